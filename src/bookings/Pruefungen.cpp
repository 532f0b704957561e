#include "bookings/Pruefungen.h"

#include "data/helpers.h"

using Art = Prüfergebnis::Art;

namespace {

Prüfergebnis falschesDatum() {
  return {Art::Abbruch, "Die Buchung wird nicht ausgeführt, weil das Datum nicht korrekt ist."};
}

}  // namespace

Prüfergebnis prüfeNeu(const QString& datum, int anzahlMarkiert) {
  if (!IstDatum(datum)) return falschesDatum();
  if (anzahlMarkiert < 1)
    return {Art::Abbruch,
            "Bitte markieren Sie zuerst die Völker, bei denen die Buchung ausgeführt werden soll!"};
  if (anzahlMarkiert > 1)
    return {Art::Frage, "Es sind im Moment " + QString::number(anzahlMarkiert) +
                            " Völker markiert. Soll die Buchung wirklich bei allen markierten "
                            "Völkern eingetragen werden?"};
  return {};
}

Prüfergebnis prüfeÄndern(const QString& datum, bool zeileGewählt, int anzahlMarkiert,
                         const QString& volknr) {
  if (!IstDatum(datum)) return falschesDatum();
  if (!zeileGewählt)
    return {Art::Abbruch, "Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!"};
  if (anzahlMarkiert > 1)
    return {Art::HinweisUndWeiter,
            "ACHTUNG: Sie haben mehrere Völker markiert und [Ändern] angeklickt. Änderungen können "
            "nur für ein Volk vorgenommen werden. Die Änderung wird deshalb nur beim aktuellen "
            "Volk " +
                volknr + " auf dem ausgewählten Datensatz ausgeführt."};
  return {};
}

Prüfergebnis prüfeLöschen(bool zeileGewählt) {
  if (!zeileGewählt)
    return {Art::Abbruch, "Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten."};
  return {};
}
