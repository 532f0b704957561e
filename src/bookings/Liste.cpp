#include "bookings/Liste.h"

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/locale/Deutsch.h"

namespace {

QString dezimaltext(const Buchungsslot& slot, double wert) {
  // No digit of the booking gets lost by showing it: a later change writes the text back.
  const QString fest = ZahlFormat(wert, slot.nachkommastellen);
  const QString schlicht = Deutsch::schlicht(wert);
  const auto stellen = [](const QString& text) {
    const qsizetype komma = text.indexOf(u',');
    return komma < 0 ? qsizetype{0} : text.size() - komma - 1;
  };
  const bool genauer = stellen(schlicht) > slot.nachkommastellen;
  return genauer || fest.size() > slot.laenge ? schlicht : fest;
}

QString slottext(const Buchungsslot& slot, const QVariant& wert) {
  if (wert.isNull()) return slot.ersterText;
  switch (slot.art) {
    case Slotart::Dezimal:
      return dezimaltext(slot, wert.toDouble());
    case Slotart::Ganzzahl:
      return Deutsch::schlicht(wert.toDouble());
    default:
      return wert.toString();
  }
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

QList<Slotaenderung> zeilentexte(const Datenblock& daten, int zeile, int art) {
  QList<Slotaenderung> texte;
  if (const int spalte = daten.spaltenNummer(u"Datum"); spalte >= 0)
    texte.append({0, daten.anzeige(zeile, spalte)});
  for (const Buchungsslot& slot : buchungstyp(art).plaetze)
    if (const int spalte = daten.spaltenNummer(slot.feld); spalte >= 0)
      texte.append({slot.nummer, slottext(slot, daten.wert(zeile, spalte))});
  return texte;
}

QString listenUeberschrift(const QString& volknr, const QString& volkname) {
  return "Bewegungsdaten für das Volk:  " + volknr + " / " + volkname;
}

QString listenLayout(int art) { return QString::number(art) + "bewegungsdaten"; }

QString listenLayoutSchluessel(int art) { return "Tova/ColWidths/" + listenLayout(art); }
