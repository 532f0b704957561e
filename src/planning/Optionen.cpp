#include "planning/Optionen.h"

#include <QStringList>
#include <algorithm>

#include "core/globals.h"
#include "data/Pickliste.h"
#include "data/Verwaltungsfelder.h"
#include "data/helpers.h"
#include "planning/Optionsfehler.h"
#include "planning/Termine.h"
#include "platform/database/Recordset.h"
#include "platform/database/werte/Kollation.h"

using namespace TZ_Variablen;

namespace {

enum Slot : size_t { Arbeitsart, Start, Ende, Frist, Volkabhängig, Buchung, Erledigtart };

// "mmdd", so that days compare as texts.
QString tagschlüssel(const QString& text) {
  const QDate datum = tagDesJahres(text);
  return datum.isValid() ? datum.toString("MMdd") : text.mid(3, 2) + text.left(2);
}

// As the appointments are computed from it: "dd.mm".
QString tagMonat(const QString& text) {
  const QDate datum = tagDesJahres(TextLesen(text));
  return datum.isValid() ? datum.toString("dd.MM") : TextLesen(text);
}

void termineBerechnen(Database& db, qint64 id, const QString& volkabhängig) {
  if (TextLesen(volkabhängig) == QLatin1String("N")) {
    TermineBerechnen(db, id, 0);
    return;
  }
  const Daten völker = völkerImBestand(db);
  for (int i = 0; i < völker->zeilen(); ++i) TermineBerechnen(db, id, völker->ganzzahl(i, 0));
}

qint64 zeileAnlegen(Database& db, const Optionseingabe& eingabe) {
  Recordset rs = db.OpenRecordset("select top 1 * from Arbeitsplanoptionen");
  rs.AddNew();
  for (size_t i = 0; i < eingabe.size(); ++i) {
    const Verwaltung::Feld& feld = optionsfelder()[i];
    const bool tag = feld.art == Verwaltung::Art::TagMonat;
    rs[feld.feld] = Verwaltung::feldwert(feld, tag ? tagMonat(eingabe[i]) : eingabe[i]);
  }
  rs.Update();
  rs.MoveLast();
  return rs.Wert("ID").toLongLong();
}

}  // namespace

const std::array<Verwaltung::Feld, 7>& optionsfelder() {
  using namespace Verwaltung;
  static const std::array<Feld, 7> felder = {
      text("Arbeitsart", "Arbeitsart", 30),
      Verwaltung::tagMonat("Startzeitraum", "Startzeitraum (TT.MM)"),
      Verwaltung::tagMonat("Endzeitraum", "Endzeitraum (TT.MM)"),
      ganzzahl("Wiederholungsfrist_Tage", "Wiederholungsfrist (Tage)", 99).vorgabe("0"),
      auswahl("Volkabhängig", "Volkabhängig (J/N)", {"J", "N"}),
      auswahl("Auto_erledigt_Buchung", "Autom. Erled. Buchung", erledigtBuchungen()),
      auswahl("Auto_erledigt_Arbeitsart", "Autom. Erled. Arbeitsart", {})};
  return felder;
}

QString optionenAnweisung() { return "select * from Arbeitsplanoptionen order by Arbeitsart"; }

const QStringList& erledigtBuchungen() {
  static const QStringList liste = {
      {},          "Honigernte",      "Wachsernte", "Pollenernte",
      "Wanderung", "Gewichtsmessung", "Behandlung", QString("Königinwechsel")};
  return liste;
}

QStringList erledigtArbeitsarten(Database& db) {
  QStringList liste = {{}};
  for (const QString& text :
       Pickliste::lesen(db, "select distinct Arbeitsart from Arbeiten order by Arbeitsart")) {
    const auto gleich = [&](const QString& anderer) {
      return Kollation::vergleiche(anderer, text) == 0;
    };
    // Different texts of the table may be one when they are read.
    if (std::none_of(liste.cbegin(), liste.cend(), gleich)) liste << text;
  }
  return liste;
}

QString optionPrüfen(const Optionseingabe& eingabe) {
  const QString start = TextLesen(eingabe[Start]);
  const QString ende = TextLesen(eingabe[Ende]);
  QStringList gründe;
  if (TextLesen(eingabe[Arbeitsart]).isEmpty()) gründe << "...die Arbeitsart angegeben werden muß.";
  if (!tagDesJahres(start).isValid() || !tagDesJahres(ende).isValid())
    gründe << "...der Start- und Endzeitraum angegeben werden muß.";
  if (tagschlüssel(start) > tagschlüssel(ende))
    gründe << "...der Startzeitraum nicht hinter dem Endzeitraum liegen darf.";
  return gründe.isEmpty() ? QString() : Verwaltung::ablehnung(gründe) + CRLF;
}

QString optionsnamePrüfen(Database& db, const QString& arbeitsart, qint64 id) {
  const QString name = TextLesen(arbeitsart);
  if (!Verwaltung::vorhanden(db, "Arbeitsplanoptionen", optionsfelder()[Arbeitsart], name,
                             id == 0 ? std::nullopt : std::optional(id)))
    return {};
  return QString("Es existiert bereits ein Arbeitsplan mit dem Namen ") + name + u'.';
}

qint64 optionAnlegen(Database& db, const Optionseingabe& eingabe) {
  qint64 id = 0;
  db.Sammelschreiben([&] {
    id = zeileAnlegen(db, eingabe);
    termineBerechnen(db, id, eingabe[Volkabhängig]);
  });
  return id;
}

void optionUmbenennen(Database& db, qint64 id, const QString& arbeitsart,
                      const QString& alteArbeitsart) {
  const QString name = TextLesen(arbeitsart);
  db.Sammelschreiben([&] {
    Recordset rs = db.OpenRecordset("select top 1 * from Arbeitsplanoptionen where ID = ?", {id});
    if (rs.RecordCount() == 0)
      throw Datenbankfehler(Datenbankfehler::Art::Allgemein,
                            QString("Die Arbeitsplan-Option '%1' ist in der Datenbank nicht mehr "
                                    "vorhanden.")
                                .arg(alteArbeitsart));
    rs.Edit();
    rs["Arbeitsart"] = name;
    rs.Update();
    db.Execute("UPDATE Termine SET Termin = ? where Termin = ?", {name, alteArbeitsart});
  });
}

void optionLöschen(Database& db, const QString& alteArbeitsart,
                   const std::function<void()>& zeileLöschen) {
  db.Sammelschreiben([&] {
    zeileLöschen();
    db.Execute("delete from Termine where Termin = ?", {alteArbeitsart});
  });
}

void alleTermineBerechnen(Database& db, const QList<Optionszeile>& optionen,
                          const std::function<void(qint64, qint64)>& fortschritt) {
  db.Sammelschreiben([&] {
    Optionsfehler fehler;
    for (qsizetype i = 0; i < optionen.size(); ++i) {
      const Optionszeile& option = optionen[i];
      db.Execute("delete from Termine where Termin = ?", {option.arbeitsart});
      fehler.versuche(option.id, [&] { termineBerechnen(db, option.id, option.volkabhängig); });
      if (fortschritt) fortschritt(i + 1, optionen.size());
    }
    fehler.wirf();
  });
}
