#include "bookings/Buchungsliste.h"

#include "core/globals.h"
#include "data/helpers.h"

namespace {

// What a booking doesn't have shows as in a new one.
QString slottext(const Buchungsslot& slot, const QVariant& wert) {
  return wert.isNull() ? slot.ersterText : Verwaltung::feldtext(slot, wert);
}

}  // namespace

Buchungsabfrage buchungsAbfrage(int art, const QString& volkId, Anzeigebereich bereich) {
  Buchungsabfrage abfrage{listenAbfrage(art) + " where Volk_ID = ?", {volkId.toLongLong()}};
  if (bereich != Anzeigebereich::Alles) {
    const int jahr = DatumLesen(TZ_Variablen::HeuteText).year();
    const int von = bereich == Anzeigebereich::AktuellesUndLetztesJahr ? jahr - 1 : jahr;
    abfrage.anweisung += " and Datum >= ? and Datum <= ?";
    abfrage.werte << QDate(von, 1, 1) << QDate(jahr, 12, 31);
  }
  abfrage.anweisung += " order by Datum";
  return abfrage;
}

Daten buchungenLesen(Database& datenbank, int art, const QString& volkId, Anzeigebereich bereich) {
  const Buchungsabfrage abfrage = buchungsAbfrage(art, volkId, bereich);
  return datenbank.Lesen(abfrage.anweisung, abfrage.werte);
}

QStringList volkstandorte(Database& datenbank) {
  const Daten zeilen =
      datenbank.Lesen("select distinct Standort from Bienenvolk order by Standort");
  QStringList orte;
  for (int i = 0; i < zeilen->zeilen(); ++i)
    if (const QString ort = TextLesen(zeilen->wert(i, 0)); !orte.contains(ort)) orte << ort;
  return orte;
}

QList<Slotänderung> zeilentexte(const Datenblock& daten, int zeile, int art) {
  QList<Slotänderung> texte;
  if (const int spalte = daten.spaltenNummer(u"Datum"); spalte >= 0)
    texte.append({0, daten.anzeige(zeile, spalte)});
  for (const Buchungsslot& slot : buchungstyp(art).plätze)
    if (const int spalte = daten.spaltenNummer(slot.feld); spalte >= 0)
      texte.append({slot.nummer, slottext(slot, daten.wert(zeile, spalte))});
  return texte;
}

QString listenÜberschrift(const QString& volknr, const QString& volkname) {
  return "Bewegungsdaten für das Volk:  " + volknr + " / " + volkname;
}

QString listenLayout(int art) { return QString::number(art) + "bewegungsdaten"; }

QString listenLayoutSchlüssel(int art) { return "Tova/ColWidths/" + listenLayout(art); }
