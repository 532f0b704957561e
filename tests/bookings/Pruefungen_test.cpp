#include "bookings/Pruefungen.h"

#include "Bestand.h"

using Art = Prüfergebnis::Art;

namespace {

const QString FalschesDatum =
    "Die Buchung wird nicht ausgeführt, weil das Datum nicht korrekt ist.";

void erwarte(const Prüfergebnis& ergebnis, Art art, const QString& text) {
  EXPECT_EQ(ergebnis.art, art);
  EXPECT_EQ(ergebnis.text, text);
}

}  // namespace

TEST(PrüfungNeu, EinMarkiertesVolkFragtNichts) {
  erwarte(prüfeNeu("20.06.2026", 1), Art::Weiter, "");
}

TEST(PrüfungNeu, DreiMarkierteVölkerFragen) {
  erwarte(prüfeNeu("20.06.2026", 3), Art::Frage,
          "Es sind im Moment 3 Völker markiert. Soll die Buchung wirklich bei allen markierten "
          "Völkern eingetragen werden?");
}

TEST(PrüfungNeu, KeinMarkiertesVolkBrichtAb) {
  erwarte(prüfeNeu("20.06.2026", 0), Art::Abbruch,
          "Bitte markieren Sie zuerst die Völker, bei denen die Buchung ausgeführt werden soll!");
}

TEST(PrüfungNeu, DerEinunddreißigsteFebruarIstKeinDatum) {
  erwarte(prüfeNeu("31.02.2026", 1), Art::Abbruch, FalschesDatum);
  erwarte(prüfeNeu("", 1), Art::Abbruch, FalschesDatum);
}

TEST(PrüfungNeu, DasDatumKommtZuerst) {
  erwarte(prüfeNeu("", 0), Art::Abbruch, FalschesDatum);
  erwarte(prüfeNeu("", 3), Art::Abbruch, FalschesDatum);
}

TEST(PrüfungÄndern, EineZeileUndEinVolkFragtNichts) {
  erwarte(prüfeÄndern("20.06.2026", true, 1, "7"), Art::Weiter, "");
  erwarte(prüfeÄndern("20.06.2026", true, 0, "7"), Art::Weiter, "");
}

TEST(PrüfungÄndern, OhneZeileBrichtAb) {
  erwarte(prüfeÄndern("20.06.2026", false, 1, "7"), Art::Abbruch,
          "Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  erwarte(prüfeÄndern("20.06.2026", false, 3, "7"), Art::Abbruch,
          "Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
}

TEST(PrüfungÄndern, DreiMarkierteVölkerWarnenUndGehenWeiter) {
  erwarte(prüfeÄndern("20.06.2026", true, 3, "7a"), Art::HinweisUndWeiter,
          "ACHTUNG: Sie haben mehrere Völker markiert und [Ändern] angeklickt. Änderungen können "
          "nur für ein Volk vorgenommen werden. Die Änderung wird deshalb nur beim aktuellen Volk "
          "7a auf dem ausgewählten Datensatz ausgeführt.");
}

TEST(PrüfungÄndern, DasDatumKommtZuerst) {
  erwarte(prüfeÄndern("30.02.2026", false, 3, "7"), Art::Abbruch, FalschesDatum);
}

TEST(PrüfungLöschen, OhneZeileBrichtAb) {
  erwarte(prüfeLöschen(false), Art::Abbruch,
          "Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  erwarte(prüfeLöschen(true), Art::Weiter, "");
}
