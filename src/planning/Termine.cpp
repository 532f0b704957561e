#include "planning/Termine.h"

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/database/Recordset.h"

namespace {

struct Option {
  QString arbeitsart;
  QString start;  // "dd.mm"
  QString ende;
  qint64 frist = 0;
  bool volkabhängig = false;
  QString buchung;      // booking table that settles the option
  QString arbeit;       // work type that settles it
  QVariant termintext;  // the work type as it stands, null too
};

Option lies(const Recordset& rs) {
  Option o;
  o.arbeitsart = TextLesen(rs.Wert("Arbeitsart"));
  o.termintext = rs.Wert("Arbeitsart");
  o.start = TextLesen(rs.Wert("Startzeitraum"));
  o.ende = TextLesen(rs.Wert("Endzeitraum"));
  o.frist = static_cast<qint64>(ZahlLesen(rs.Wert(QStringLiteral("Wiederholungsfrist_Tage"))));
  o.volkabhängig = TextLesen(rs.Wert(QStringLiteral("Volkabhängig"))) == QLatin1String("J");
  o.buchung = TextLesen(rs.Wert("Auto_erledigt_Buchung"));
  o.arbeit = TextLesen(rs.Wert("Auto_erledigt_Arbeitsart"));
  return o;
}

QString mitJahr(const QString& tagMonat) { return tagMonat + TZ_Variablen::HeuteText.mid(5, 5); }

QDate verlangeTag(const Option& option, const QString& tagMonat, const QString& name) {
  const QDate tag = tagDesJahres(tagMonat);
  if (tag.isValid()) return tag;
  throw Datenbankfehler(
      Datenbankfehler::Art::Wertebereich,
      QString("Die Termine der Arbeitsplan-Option '%1' können nicht berechnet werden, weil der "
              "%2 '%3' kein gültiges Datum ist. Bitte löschen Sie diese Option in den "
              "Arbeitsplanoptionen und legen Sie sie mit einem gültigen Zeitraum neu an.")
          .arg(option.arbeitsart, name, mitJahr(tagMonat)));
}

// The bookings that settle an option. A table that isn't there, or has no such fields, is a fault
// of the option, which the user knows by its name only.
Recordset buchungen(Database& db, const Option& option, const QString& anweisung,
                    const QVariantList& werte, const QString& erledigung) {
  try {
    return db.OpenRecordset(anweisung, werte);
  } catch (const Datenbankfehler& fehler) {
    if (fehler.art() != Datenbankfehler::Art::Anweisung || fehler.allesVerworfen()) throw;
    throw Datenbankfehler(
        fehler.art(),
        QString("Die Termine der Arbeitsplan-Option '%1' können nicht berechnet werden, weil ihre "
                "%2 nicht gelesen werden kann. Bitte löschen Sie diese Option in den "
                "Arbeitsplanoptionen und legen Sie sie neu an.")
            .arg(option.arbeitsart, erledigung),
        fehler.anweisung());
  }
}

// The newest of the bookings moves the threshold to its Datum.
void anheben(const Recordset& rs, QDate& schwelle) {
  if (rs.RecordCount() == 0) return;
  const QDate datum = rs.Wert("Datum").toDate();
  if (datum > schwelle) schwelle = datum;
}

// The first day on which the colony still needs the work: not before today, and not before the
// newest booking that did it.
QDate berechneSchwelle(Database& db, const Option& option, qint64 volkId, QDate beginn) {
  QDate schwelle = beginn;
  const QDate heute = DatumLesen(TZ_Variablen::HeuteText);
  if (heute > schwelle) schwelle = heute;
  if (option.volkabhängig && !option.buchung.isEmpty())
    anheben(buchungen(db, option,
                      "select top 1 Datum from " + option.buchung +
                          " where Volk_ID = ? and Datum >= ? order by Datum DESC",
                      {volkId, schwelle}, QString("Buchung '%1'").arg(option.buchung)),
            schwelle);
  if (option.volkabhängig && !option.arbeit.isEmpty())
    anheben(
        buchungen(db, option,
                  "select top 1 Datum from Arbeiten where Arbeitsart = ? and Volk_ID = ? and "
                  "Datum >= ? order by Datum DESC",
                  {option.arbeit, volkId, schwelle}, QString("Arbeitsart '%1'").arg(option.arbeit)),
        schwelle);
  return schwelle;
}

void eintragen(Database& db, const QList<QDate>& tage, const QVariant& text, qint64 volkId) {
  Recordset termine = db.OpenRecordset("select top 1 * from Termine");
  for (const QDate& tag : tage) {
    termine.AddNew();
    termine["Datum"] = tag;
    termine["Termin"] = text;
    termine["Erledigt"] = "N";
    termine["Volk_ID"] = volkId;
    termine.Update();
  }
}

}  // namespace

QDate tagDesJahres(const QString& tagMonat) { return DatumLesen(mitJahr(tagMonat)); }

Daten völkerImBestand(Database& db) {
  return db.Lesen("select ID from Bienenvolk where Akt_im_Bestand = 'X'");
}

QList<QDate> terminreihe(QDate beginn, QDate ende, qint64 frist, QDate schwelle) {
  QList<QDate> tage;
  for (QDate lauf = beginn; lauf <= ende;) {
    if (lauf >= schwelle) tage.append(lauf);
    lauf = frist == 0 ? ende.addDays(1) : lauf.addDays(frist);
  }
  return tage;
}

void TermineBerechnen(Database& db, qint64 optionId, qint64 volkId) {
  Recordset rs = db.OpenRecordset("select * from Arbeitsplanoptionen where ID = ?", {optionId});
  if (rs.RecordCount() == 0) return;
  const Option option = lies(rs);
  rs.Close();

  const QDate beginn = verlangeTag(option, option.start, "Beginn");
  const QDate ende = verlangeTag(option, option.ende, "Endtermin");
  const QDate schwelle = berechneSchwelle(db, option, volkId, beginn);
  const QList<QDate> tage = terminreihe(beginn, ende, option.frist, schwelle);
  if (tage.isEmpty()) return;
  db.Sammelschreiben([&] { eintragen(db, tage, option.termintext, volkId); });
}
