#include "bookings/Pruefungen.h"

#include "Bestand.h"

using Art = Pruefergebnis::Art;

namespace {

const QString FalschesDatum =
    "Die Buchung wird nicht ausgeführt, weil das Datum nicht korrekt ist.";

void erwarte(const Pruefergebnis& ergebnis, Art art, const QString& text) {
  EXPECT_EQ(ergebnis.art, art);
  EXPECT_EQ(ergebnis.text, text);
}

}  // namespace

TEST(PruefungNeu, EinMarkiertesVolkFragtNichts) {
  erwarte(pruefeNeu("20.06.2026", 1), Art::Weiter, "");
}

TEST(PruefungNeu, DreiMarkierteVoelkerFragen) {
  erwarte(pruefeNeu("20.06.2026", 3), Art::Frage,
          "Es sind im Moment 3 Völker markiert. Soll die Buchung wirklich bei allen markierten "
          "Völkern eingetragen werden?");
}

TEST(PruefungNeu, KeinMarkiertesVolkBrichtAb) {
  erwarte(pruefeNeu("20.06.2026", 0), Art::Abbruch,
          "Bitte markieren Sie zuerst die Völker, bei denen die Buchung ausgeführt werden soll!");
}

TEST(PruefungNeu, DerEinunddreissigsteFebruarIstKeinDatum) {
  erwarte(pruefeNeu("31.02.2026", 1), Art::Abbruch, FalschesDatum);
  erwarte(pruefeNeu("", 1), Art::Abbruch, FalschesDatum);
}

TEST(PruefungNeu, DasDatumKommtZuerst) {
  erwarte(pruefeNeu("", 0), Art::Abbruch, FalschesDatum);
  erwarte(pruefeNeu("", 3), Art::Abbruch, FalschesDatum);
}

TEST(PruefungAendern, EineZeileUndEinVolkFragtNichts) {
  erwarte(pruefeAendern("20.06.2026", true, 1, "7"), Art::Weiter, "");
  erwarte(pruefeAendern("20.06.2026", true, 0, "7"), Art::Weiter, "");
}

TEST(PruefungAendern, OhneZeileBrichtAb) {
  erwarte(pruefeAendern("20.06.2026", false, 1, "7"), Art::Abbruch,
          "Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  erwarte(pruefeAendern("20.06.2026", false, 3, "7"), Art::Abbruch,
          "Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
}

TEST(PruefungAendern, DreiMarkierteVoelkerWarnenUndGehenWeiter) {
  erwarte(pruefeAendern("20.06.2026", true, 3, "7a"), Art::HinweisUndWeiter,
          "ACHTUNG: Sie haben mehrere Völker markiert und [Ändern] angeklickt. Änderungen können "
          "nur für ein Volk vorgenommen werden. Die Änderung wird deshalb nur beim aktuellen Volk "
          "7a auf dem ausgewählten Datensatz ausgeführt.");
}

TEST(PruefungAendern, DasDatumKommtZuerst) {
  erwarte(pruefeAendern("30.02.2026", false, 3, "7"), Art::Abbruch, FalschesDatum);
}

TEST(PruefungLoeschen, OhneZeileBrichtAb) {
  erwarte(pruefeLoeschen(false), Art::Abbruch,
          "Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  erwarte(pruefeLoeschen(true), Art::Weiter, "");
}
