#include "planning/Terminverwaltung.h"

#include <cstdlib>

#include "core/globals.h"
#include "data/Pickliste.h"
#include "data/helpers.h"
#include "platform/database/Recordset.h"
#include "platform/locale/Deutsch.h"

using TZ_Variablen::CRLF;
using TZ_Variablen::HeuteText;

namespace Terminverwaltung {

namespace {

constexpr int TageZurück = 7;
constexpr int TageVoraus = 14;
constexpr qint64 MeisteTage = 9999;

QString heutePlus(qint64 tage) { return Deutsch::datumText(DatumLesen(HeuteText).addDays(tage)); }

void füllen(Recordset& termine, const Eingabe& eingabe, qint64 volkId) {
  termine["Datum"] = DatumLesen(eingabe.datum);
  termine["Termin"] = TextLesen(eingabe.termin);
  termine["Erledigt"] = TextLesen(eingabe.erledigt);
  termine["Volk_ID"] = volkId;
}

// What of an entry for a site was written before the failure.
QString teilText(const QString& standort, int eingetragen, int anzahl) {
  return QString(
             "Bei %1 von %2 Völkern am Standort '%3' ist der Termin schon eingetragen, bei den "
             "anderen nicht.")
      .arg(QString::number(eingetragen), QString::number(anzahl), standort);
}

}  // namespace

void vorgaben(Filter& filter) {
  if (!IstDatum(filter.von)) filter.von = heutePlus(-TageZurück);
  if (!IstDatum(filter.bis)) filter.bis = heutePlus(TageVoraus);
}

Daten liste(Database& db, const Filter& filter) {
  QString anweisung =
      filter.ansicht == Ansicht::Volkabhängig
          ? QString(
                "select Datum, Termin, Erledigt, Volknr, Volkname, Standort, Volk_ID, "
                "Termine.ID from Bienenvolk, Termine where Volk_ID = Bienenvolk.ID")
          : QString(
                "select Datum, Termin, Erledigt, Volk_ID, Termine.ID from Termine where "
                "Volk_ID = 0");
  anweisung += " and Datum >= ? and Datum <= ?";
  QVariantList werte = {DatumLesen(filter.von), DatumLesen(filter.bis)};
  if (const QString nummer = TextLesen(filter.volknr); !nummer.isEmpty()) {
    const Daten volk = db.Lesen("select Volknr, ID from Bienenvolk where Volknr = ?", {nummer});
    if (volk->zeilen() > 0) {
      anweisung += " and Volk_ID = ?";
      werte << volk->wert(0, 1);
    }
  }
  if (const QString termin = TextLesen(filter.termin); !termin.isEmpty()) {
    anweisung += " and Termin = ?";
    werte << termin;
  }
  if (!filter.erledigt.isEmpty()) {
    anweisung += " and Erledigt = ?";
    werte << filter.erledigt;
  }
  return db.Lesen(anweisung + " order by Datum", werte);
}

Prüfung prüfen(Database& db, const Eingabe& eingabe) {
  Prüfung ergebnis;
  if (!IstDatum(eingabe.datum)) ergebnis.gründe << "...das Datum des Termins angegeben werden muß.";
  if (TextLesen(eingabe.termin).isEmpty())
    ergebnis.gründe << "...die Terminart angegeben werden muß.";
  const QString volknr = TextLesen(eingabe.volknr);
  if (volknr.isEmpty()) return ergebnis;
  const Daten volk =
      db.Lesen("select ID from Bienenvolk where Volknr = ? and Akt_im_Bestand = 'X'", {volknr});
  if (volk->zeilen() > 0)
    ergebnis.volkId = volk->ganzzahl(0, 0);
  else
    ergebnis.gründe << "...das angegebene Volk nicht existiert (aktuell im Bestand ist).";
  return ergebnis;
}

QString standortFrage(const QString& standort) {
  return "Soll der Termin wirklich bei allen Völkern am Standort '" + standort +
         "' eingetragen werden?";
}

bool existiert(Database& db, const Eingabe& eingabe, qint64 volkId, qint64 außer) {
  QString anweisung = "select Termin from Termine where Datum = ? and Termin = ? and Volk_ID = ?";
  QVariantList werte = {DatumLesen(eingabe.datum), TextLesen(eingabe.termin), volkId};
  if (außer != 0) {
    anweisung += " and ID <> ?";
    werte << außer;
  }
  return db.Lesen(anweisung, werte)->zeilen() > 0;
}

qint64 speichern(Database& db, const Eingabe& eingabe, qint64 volkId, qint64 id) {
  if (id == 0) {
    Recordset termine = db.OpenRecordset("select top 1 * from Termine");
    termine.AddNew();
    füllen(termine, eingabe, volkId);
    termine.Update();
    return db.LetzteID();
  }
  Recordset termine = db.OpenRecordset("select top 1 * from Termine where ID = ?", {id});
  termine.Edit();
  füllen(termine, eingabe, volkId);
  termine.Update();
  return id;
}

qint64 amStandortEintragen(Database& db, const Eingabe& eingabe) {
  qint64 letzte = 0;
  int eingetragen = 0;
  int anzahl = 0;
  try {
    db.Sammelschreiben([&] {
      Recordset termine = db.OpenRecordset("select top 1 * from Termine");
      const Daten völker =
          db.Lesen("select ID from Bienenvolk where Standort = ?", {eingabe.standort});
      for (anzahl = völker->zeilen(); eingetragen < anzahl; ++eingetragen) {
        termine.AddNew();
        füllen(termine, eingabe, völker->ganzzahl(eingetragen, 0));
        termine.Update();
        letzte = db.LetzteID();
      }
    });
  } catch (const Datenbankfehler& fehler) {
    if (eingetragen == 0 || fehler.allesVerworfen()) throw;
    throw Datenbankfehler(
        fehler.art(), fehler.text() + CRLF + CRLF + teilText(eingabe.standort, eingetragen, anzahl),
        fehler.anweisung());
  }
  return letzte;
}

void erledigteLöschen(Database& db) { db.Execute("delete from Termine where Erledigt = 'J'"); }

QString volknummer(Database& db, qint64 volkId) {
  if (volkId == 0) return {};
  const Daten volk = db.Lesen("select Volknr from Bienenvolk where ID = ?", {volkId});
  return volk->zeilen() == 0 ? QString() : volk->anzeige(0, 0);
}

QStringList volknummern(Database& db) {
  return Pickliste::lesen(db, "select distinct Volknr from Bienenvolk order by Volknr");
}

QStringList terminarten(Database& db) {
  return Pickliste::lesen(db, "select distinct Termin from Termine order by Termin");
}

// amStandortEintragen looks for the site as it was chosen.
QStringList standorte(Database& db) {
  return Pickliste::lesen(db, "select distinct Standort from Bienenvolk order by Standort",
                          Pickliste::Schreibung::WieGespeichert);
}

QString nurTage(const QString& text) {
  QString rein;
  qsizetype ziffern = 0;
  for (const QChar zeichen : text) {
    if (zeichen == u'-' && rein.isEmpty()) rein += zeichen;
    if (zeichen >= u'0' && zeichen <= u'9' && ziffern < 4) {
      rein += zeichen;
      ++ziffern;
    }
  }
  return rein;
}

QString datumInTagen(const QString& tage) {
  bool zahl = false;
  const qint64 anzahl = tage.trimmed().toLongLong(&zahl);
  return zahl && std::abs(anzahl) <= MeisteTage ? heutePlus(anzahl) : QString();
}

QString tageBis(const QString& datum) {
  const QDate tag = DatumLesen(datum);
  if (!tag.isValid()) return {};
  const qint64 tage = DatumLesen(HeuteText).daysTo(tag);
  return std::abs(tage) <= MeisteTage ? QString::number(tage) : QString();
}

}  // namespace Terminverwaltung
