#include "output/Zelltext.h"

#include <gtest/gtest.h>

#include <limits>

#include "output/Listen.h"
#include "platform/locale/Deutsch.h"

namespace {

std::string text(const Daten& block, int zeile, int spalte) {
  std::string t;
  Zelltext::anhängen(t, *block, zeile, spalte);
  return t;
}

TEST(Zelltext, JedeZelleStehtDaWieAufDemBildschirm) {
  const Daten d = Listen::ernte();
  EXPECT_EQ(text(d, 0, 0), "Anna");
  EXPECT_EQ(text(d, 0, 1), "2");
  EXPECT_EQ(text(d, 0, 2), "12,5");
  EXPECT_EQ(text(d, 0, 3), "87,50");
  EXPECT_EQ(text(d, 1, 3), "1049,00");
  EXPECT_EQ(text(d, 0, 4), "04.05.2026");
  EXPECT_EQ(text(d, 2, 4), "");
  EXPECT_EQ(text(d, 1, 0), "Bärbel");
}

// The quick way of writing a number must never differ from the one way there is otherwise.
TEST(Zelltext, ZahlenGleichenDerAnzeigeZiffernFürZiffer) {
  QList<QVariantList> zeilen;
  for (const double wert :
       {0.0,     -0.0,  0.1,     0.1 + 0.2, 3.33,         3.3333333, -7.05,          99999.9999,
        0.00004, 1e-7,  1.005,   2.675,     9999999999.5, 1e10,      12345678901.25, 1e14 + 0.5,
        1e15,    1e300, -0.0001, 0.12345,   33.333333333})
    zeilen += QVariantList{wert, wert, wert};
  for (int i = -2000; i < 2000; ++i) zeilen += QVariantList{i / 7.0, i / 8.0, i * 0.01};
  const Daten d = Listen::block(
      {{"a", Feldtyp::Ausdruck, 0}, {"b", Feldtyp::Einfach, 0}, {"c", Feldtyp::Währung, 0}},
      zeilen);
  for (int zeile = 0; zeile < d->zeilen(); ++zeile)
    for (int spalte = 0; spalte < 3; ++spalte)
      ASSERT_EQ(text(d, zeile, spalte), d->anzeige(zeile, spalte).toStdString());
}

TEST(Zelltext, EineZahlStehtInIhrerKürzestenForm) {
  for (const double wert : {0.0, -0.0, 3.5, -0.0001, 0.1 + 0.2, 1e15, 1e16, 33.333333333}) {
    std::string t = "VS=";
    Zelltext::zahlAnhängen(t, wert);
    EXPECT_EQ(t, "VS=" + Deutsch::schlicht(wert).toStdString());
  }
}

TEST(Zelltext, EinGeldbetragZeigtKeinRauschen) {
  const Daten d = Listen::block({{"Erlös", Feldtyp::Währung, 0}}, {{0.1 + 0.2}});
  EXPECT_EQ(text(d, 0, 0), "0,30");
}

TEST(Zelltext, GroßeGanzeZahlenVerlierenKeineZiffer) {
  const qint64 groß = std::numeric_limits<qint64>::max();
  const Daten d = Listen::block({{"a", Feldtyp::Ausdruck, 0}}, {{QVariant(groß)}});
  EXPECT_EQ(text(d, 0, 0), "9223372036854775807");
}

TEST(Zelltext, EinTextDerWieEinTagAussiehtIstNurInAusdruckUndDatumEiner) {
  const Daten d = Listen::block({{"t", Feldtyp::Text, 20}, {"max", Feldtyp::Ausdruck, 0}},
                                {{"2026-05-04", "2026-05-04"}, {"2026-13-04", "2026-13-04"}});
  EXPECT_EQ(text(d, 0, 0), "2026-05-04");
  EXPECT_EQ(text(d, 0, 1), "04.05.2026");
  EXPECT_EQ(text(d, 1, 1), "2026-13-04");
}

TEST(Zelltext, EinTextMitKommaIstEineZahl) {
  EXPECT_EQ(Zelltext::zahl("12,5"), 12.5);
  EXPECT_EQ(Zelltext::zahl("-3"), -3);
  EXPECT_EQ(Zelltext::zahl("+3,25"), 3.25);
  EXPECT_EQ(Zelltext::zahl("  7 "), 7);
  EXPECT_EQ(Zelltext::zahl(",5"), 0.5);
  EXPECT_EQ(Zelltext::zahl("5,"), 5);
  EXPECT_EQ(Zelltext::zahl("0"), 0);
}

TEST(Zelltext, EinPunktMachtDenTextZuKeinerZahl) {
  for (const char* t : {"12.5", "1.234,50", "04.05.2026", "."})
    EXPECT_FALSE(Zelltext::zahl(t)) << t;
}

TEST(Zelltext, AnderesIstKeineZahl) {
  for (const char* t : {"", " ", "-", ",", "1,2,3", "12a", "1e5", "12 kg", "1 2", "--1", "87,50 €"})
    EXPECT_FALSE(Zelltext::zahl(t)) << t;
}

TEST(Zelltext, EinGeldbetragInEinerZahlenspalteIstEineZahl) {
  const Daten d = Listen::block({{"wert", Feldtyp::Währung, 0}, {"text", Feldtyp::Memo, 0}},
                                {{"-1.234,50 €", "-1.234,50 €"}, {"04.05.2026", "87,50 €"}});
  EXPECT_EQ(Zelltext::zahl(*d, 0, 0), -1234.5);
  EXPECT_FALSE(Zelltext::zahl(*d, 0, 1));
  EXPECT_FALSE(Zelltext::zahl(*d, 1, 0));
  EXPECT_FALSE(Zelltext::zahl(*d, 1, 1));
}

TEST(Zelltext, MehrAlsFünfzehnZiffernBleibenText) {
  EXPECT_EQ(Zelltext::zahl("123456789012345"), 123456789012345.0);
  EXPECT_FALSE(Zelltext::zahl("1234567890123456"));
}

TEST(Zelltext, NullIstKeineZahlUndEinDatumAuchNicht) {
  const Daten d = Listen::ernte();
  EXPECT_FALSE(Zelltext::zahl(*d, 2, 1));
  EXPECT_FALSE(Zelltext::zahl(*d, 0, 4));
  EXPECT_EQ(Zelltext::zahl(*d, 0, 2), 12.5);
}

}  // namespace
