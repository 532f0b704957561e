#include "platform/locale/Deutsch.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr double Unendlich = std::numeric_limits<double>::infinity();
constexpr double KeineZahl = std::numeric_limits<double>::quiet_NaN();

std::string zahl(double wert, int stellen) { return Deutsch::zahl(wert, stellen).toStdString(); }
std::string schlicht(double wert) { return Deutsch::schlicht(wert).toStdString(); }

TEST(Zahl, HatSoVieleNachkommastellenWieVerlangt) {
  EXPECT_EQ(zahl(3.14159, 2), "3,14");
  EXPECT_EQ(zahl(3, 2), "3,00");
  EXPECT_EQ(zahl(3.14159, 0), "3");
  EXPECT_EQ(zahl(0.5, 4), "0,5000");
  EXPECT_EQ(zahl(1234567.891, 1), "1234567,9");
  EXPECT_EQ(zahl(0.1, 15), "0,100000000000000");
}

TEST(Zahl, HalbeWirdVonNullWegGerundet) {
  EXPECT_EQ(zahl(1.005, 2), "1,01");
  EXPECT_EQ(zahl(2.675, 2), "2,68");
  EXPECT_EQ(zahl(-1.005, 2), "-1,01");
  EXPECT_EQ(zahl(0.5, 0), "1");
  EXPECT_EQ(zahl(2.5, 0), "3");
  EXPECT_EQ(zahl(-2.5, 0), "-3");
  EXPECT_EQ(zahl(0.05, 1), "0,1");
}

TEST(Zahl, KnappUnterDerHälfteWirdAbgerundet) {
  EXPECT_EQ(zahl(1.0049, 2), "1,00");
  EXPECT_EQ(zahl(0.49, 0), "0");
  EXPECT_EQ(zahl(0.0049999, 2), "0,00");
}

TEST(Zahl, ÜbertragLäuftBisVorDasKomma) {
  EXPECT_EQ(zahl(9.999, 2), "10,00");
  EXPECT_EQ(zahl(999.995, 2), "1000,00");
  EXPECT_EQ(zahl(0.995, 2), "1,00");
  EXPECT_EQ(zahl(0.099, 2), "0,10");
}

TEST(Zahl, KeineNegativeNull) {
  EXPECT_EQ(zahl(-0.0, 2), "0,00");
  EXPECT_EQ(zahl(-0.001, 2), "0,00");
  EXPECT_EQ(zahl(-0.4, 0), "0");
  EXPECT_EQ(zahl(-0.005, 2), "-0,01");
}

TEST(Zahl, WinzigeZahlen) {
  EXPECT_EQ(zahl(1e-300, 2), "0,00");
  EXPECT_EQ(zahl(5e-324, 15), "0,000000000000000");
  EXPECT_EQ(zahl(4e-15, 15), "0,000000000000004");
  EXPECT_EQ(zahl(6e-16, 15), "0,000000000000001");
}

TEST(Zahl, RiesigeZahlenStehenAusgeschrieben) {
  EXPECT_EQ(zahl(1e21, 2), "1000000000000000000000,00");
  EXPECT_EQ(zahl(1.5e15, 0), "1500000000000000");
  EXPECT_EQ(Deutsch::zahl(std::numeric_limits<double>::max(), 2).size(), 309 + 3);
}

TEST(Zahl, UnendlichUndKeineZahlSindNull) {
  EXPECT_EQ(zahl(Unendlich, 2), "0,00");
  EXPECT_EQ(zahl(-Unendlich, 0), "0");
  EXPECT_EQ(zahl(KeineZahl, 3), "0,000");
}

TEST(Zahl, StellenAußerhalbVonNullBisFünfzehnWerdenBegrenzt) {
  EXPECT_EQ(zahl(1.5, -3), "2");
  EXPECT_EQ(zahl(1.5, 99), "1,500000000000000");
}

TEST(Zahl, HängtNichtVonDerSpracheDesRechnersAb) {
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  EXPECT_EQ(zahl(1234.5, 2), "1234,50");
  QLocale::setDefault(QLocale::c());
}

// Against whole numbers, also on and right beside the halves.
TEST(Zahl, ZufälligeDezimalzahlenRundenWieIhreZiffern) {
  std::mt19937_64 zufall(7);
  constexpr std::array<qint64, 7> Zehner{1, 10, 100, 1000, 10'000, 100'000, 1'000'000};
  for (int lauf = 0; lauf < 20'000; ++lauf) {
    const size_t stellen = zufall() % 4;
    const size_t hat = stellen + zufall() % (Zehner.size() - stellen);
    qint64 ziffern = static_cast<qint64>(zufall() % (lauf % 2 == 0 ? 10'000'000 : 100'000'000'000));
    const qint64 teiler = Zehner[hat - stellen];
    if (lauf % 3 == 0) ziffern = ziffern / teiler * teiler + teiler / 2 - lauf % 5 / 4;
    const double wert = static_cast<double>(ziffern) / static_cast<double>(Zehner[hat]);
    const qint64 gerundet = (2 * ziffern + teiler) / (2 * teiler);
    std::string erwartet = std::to_string(gerundet / Zehner[stellen]);
    const std::string rest = std::to_string(gerundet % Zehner[stellen]);
    if (stellen > 0) erwartet += "," + std::string(stellen - rest.size(), '0') + rest;
    ASSERT_EQ(zahl(wert, static_cast<int>(stellen)), erwartet);
    ASSERT_EQ(zahl(-wert, static_cast<int>(stellen)), (gerundet == 0 ? "" : "-") + erwartet);
  }
}

TEST(Währung, GruppiertTausenderUndSetztDasZeichenDahinter) {
  EXPECT_EQ(Deutsch::währung(0), QStringLiteral("0,00 €"));
  EXPECT_EQ(Deutsch::währung(999.99), QStringLiteral("999,99 €"));
  EXPECT_EQ(Deutsch::währung(1000), QStringLiteral("1.000,00 €"));
  EXPECT_EQ(Deutsch::währung(1234.5), QStringLiteral("1.234,50 €"));
  EXPECT_EQ(Deutsch::währung(123456), QStringLiteral("123.456,00 €"));
  EXPECT_EQ(Deutsch::währung(1234567.891), QStringLiteral("1.234.567,89 €"));
}

TEST(Währung, NegativMitMinusDavor) {
  EXPECT_EQ(Deutsch::währung(-1234.5), QStringLiteral("-1.234,50 €"));
  EXPECT_EQ(Deutsch::währung(-123.45), QStringLiteral("-123,45 €"));
  EXPECT_EQ(Deutsch::währung(-123456), QStringLiteral("-123.456,00 €"));
  EXPECT_EQ(Deutsch::währung(-0.001), QStringLiteral("0,00 €"));
}

TEST(FesteZahl, PunktZweiStellenUndBlanksLinks) {
  EXPECT_EQ(Deutsch::festeZahl(10, 1234.5), QStringLiteral("   1234.50"));
  EXPECT_EQ(Deutsch::festeZahl(6, -0.5), QStringLiteral(" -0.50"));
  EXPECT_EQ(Deutsch::festeZahl(4, 0), QStringLiteral("0.00"));
}

TEST(FesteZahl, ZuBreitWirdRechtsAbgeschnitten) {
  EXPECT_EQ(Deutsch::festeZahl(4, 1234.56), QStringLiteral("1234"));
  EXPECT_EQ(Deutsch::festeZahl(0, 1), QString());
  EXPECT_EQ(Deutsch::festeZahl(-5, 1), QString());
}

TEST(Schlicht, KürzesterTextMitKomma) {
  EXPECT_EQ(schlicht(3.5), "3,5");
  EXPECT_EQ(schlicht(12), "12");
  EXPECT_EQ(schlicht(0), "0");
  EXPECT_EQ(schlicht(-0.0), "0");
  EXPECT_EQ(schlicht(-2.25), "-2,25");
  EXPECT_EQ(schlicht(0.1), "0,1");
  EXPECT_EQ(schlicht(1200), "1200");
  EXPECT_EQ(schlicht(0.00001), "0,00001");
}

TEST(Schlicht, KeinExponentUnterTausendBillionen) {
  EXPECT_EQ(schlicht(999999999999999), "999999999999999");
  EXPECT_EQ(schlicht(100000000000000), "100000000000000");
  EXPECT_EQ(schlicht(1e15), "1E+15");
  EXPECT_EQ(schlicht(-1.5e20), "-1,5E+20");
}

TEST(Schlicht, UnendlichUndKeineZahlSindNull) {
  EXPECT_EQ(schlicht(Unendlich), "0");
  EXPECT_EQ(schlicht(KeineZahl), "0");
}

TEST(Datum, TagMonatJahrVierstellig) {
  EXPECT_EQ(Deutsch::datum(u"05.02.2006"), QDate(2006, 2, 5));
  EXPECT_EQ(Deutsch::datum(u"5.2.2006"), QDate(2006, 2, 5));
  EXPECT_EQ(Deutsch::datum(u"31.12.9999"), QDate(9999, 12, 31));
  EXPECT_EQ(Deutsch::datum(u"1.1.0100"), QDate(100, 1, 1));
}

TEST(Datum, ZweistelligesJahrBisNeunundzwanzigIstZwanzigX) {
  EXPECT_EQ(Deutsch::datum(u"1.5.26"), QDate(2026, 5, 1));
  EXPECT_EQ(Deutsch::datum(u"1.5.00"), QDate(2000, 5, 1));
  EXPECT_EQ(Deutsch::datum(u"1.5.29"), QDate(2029, 5, 1));
  EXPECT_EQ(Deutsch::datum(u"1.5.30"), QDate(1930, 5, 1));
  EXPECT_EQ(Deutsch::datum(u"1.5.99"), QDate(1999, 5, 1));
}

TEST(Datum, BlanksRundherumZählenNicht) {
  EXPECT_EQ(Deutsch::datum(u"  1.5.2026 "), QDate(2026, 5, 1));
  EXPECT_FALSE(Deutsch::datum(u"1. 5.2026"));
}

TEST(Datum, NurEchteKalendertage) {
  EXPECT_FALSE(Deutsch::datum(u"29.02.2023"));
  EXPECT_EQ(Deutsch::datum(u"29.02.2024"), QDate(2024, 2, 29));
  EXPECT_FALSE(Deutsch::datum(u"31.04.2026"));
  EXPECT_FALSE(Deutsch::datum(u"00.01.2026"));
  EXPECT_FALSE(Deutsch::datum(u"01.13.2026"));
}

TEST(Datum, TagUndMonatWerdenNichtGetauscht) { EXPECT_FALSE(Deutsch::datum(u"02.13.2006")); }

TEST(Datum, JahreVorHundertSindKeineDaten) {
  EXPECT_FALSE(Deutsch::datum(u"01.01.0099"));
  EXPECT_FALSE(Deutsch::datum(u"01.01.0000"));
}

TEST(Datum, AndereFormenSindKeineDaten) {
  for (const auto* text : {u"",
                           u" ",
                           u"1.5.",
                           u"1.5",
                           u"1.5.6",
                           u"1.5.126",
                           u"1.5.20261",
                           u"001.5.2026",
                           u"1.005.26",
                           u"2026-05-01",
                           u"1/5/2026",
                           u"1.5.2026.",
                           u".1.5.2026",
                           u"a.b.cdef",
                           u"1.Mai.2026",
                           u"-1.5.2026",
                           u"1.5.-126",
                           u"+1.5.2026",
                           u"1,5,2026",
                           u"01052026",
                           u"..",
                           u"1..2026",
                           u"\u0661.\u0665.2026"})
    EXPECT_FALSE(Deutsch::datum(text)) << QString::fromUtf16(text).toStdString();
}

TEST(Datum, JederTagLässtSichSchreibenUndLesen) {
  for (QDate tag(1899, 12, 1); tag < QDate(2101, 1, 1); tag = tag.addDays(1))
    ASSERT_EQ(Deutsch::datum(Deutsch::datumText(tag)), tag);
}

TEST(DatumText, ZehnZeichenOderLeer) {
  EXPECT_EQ(Deutsch::datumText(QDate(2006, 2, 5)), QStringLiteral("05.02.2006"));
  EXPECT_EQ(Deutsch::datumText(QDate(100, 1, 1)), QStringLiteral("01.01.0100"));
  EXPECT_EQ(Deutsch::datumText(QDate()), QString());
}

TEST(Val, FührendeZahlMitPunkt) {
  EXPECT_EQ(Deutsch::val(u"12"), 12);
  EXPECT_EQ(Deutsch::val(u"1.5"), 1.5);
  EXPECT_EQ(Deutsch::val(u"1,5"), 1);
  EXPECT_EQ(Deutsch::val(u"-3.25kg"), -3.25);
  EXPECT_EQ(Deutsch::val(u"+7"), 7);
  EXPECT_EQ(Deutsch::val(u".5"), 0.5);
  EXPECT_EQ(Deutsch::val(u"5."), 5);
  EXPECT_EQ(Deutsch::val(u"1.2.3"), 1.2);
}

TEST(Val, BlanksWerdenÜbergangen) {
  EXPECT_EQ(Deutsch::val(u"  1 2 3 "), 123);
  EXPECT_EQ(Deutsch::val(u"- 5"), -5);
  EXPECT_EQ(Deutsch::val(u"\t4\r\n2"), 42);
}

TEST(Val, Exponent) {
  EXPECT_EQ(Deutsch::val(u"1e3"), 1000);
  EXPECT_EQ(Deutsch::val(u"1E+3"), 1000);
  EXPECT_EQ(Deutsch::val(u"5e-1x"), 0.5);
  EXPECT_EQ(Deutsch::val(u"1e"), 1);
  EXPECT_EQ(Deutsch::val(u"1e+"), 1);
  EXPECT_EQ(Deutsch::val(u"e5"), 0);
  EXPECT_EQ(Deutsch::val(u"1e2.5"), 100);
}

TEST(Val, OhneZahlNull) {
  for (const auto* text : {u"", u" ", u"abc", u"-", u"+", u".", u"-.", u"--1", u"+-1", u"inf",
                           u"nan", u"x5", u"\u0661"})
    EXPECT_EQ(Deutsch::val(text), 0) << QString::fromUtf16(text).toStdString();
}

TEST(Val, RiesigeZahlenWerdenNieUnendlich) {
  constexpr double größte = std::numeric_limits<double>::max();
  EXPECT_EQ(Deutsch::val(u"1e999"), größte);
  EXPECT_EQ(Deutsch::val(u"-1e999"), -größte);
  EXPECT_EQ(Deutsch::val(u"1e99999999999999999999"), größte);
  EXPECT_EQ(Deutsch::val(QString(400, u'9')), größte);
  EXPECT_EQ(Deutsch::val(u"1e-999"), 0);
  EXPECT_EQ(Deutsch::val(QString(QStringLiteral("0.") + QString(400, u'0') + u'1')), 0);
  EXPECT_EQ(
      Deutsch::val(QString(QStringLiteral("0.") + QString(400, u'0') + QStringLiteral("1e5"))), 0);
  EXPECT_EQ(Deutsch::val(u"0e999"), 0);
  EXPECT_FALSE(std::signbit(Deutsch::val(u"-0")));
}

TEST(Val, BeliebigerTextGibtImmerEineEndlicheZahl) {
  std::mt19937 zufall(4711);
  const QString zeichen = QStringLiteral("0123456789.,-+eE xä€");
  for (int i = 0; i < 20000; ++i) {
    QString text;
    for (auto n = zufall() % 30; n > 0; --n)
      text += zeichen[static_cast<qsizetype>(zufall() % static_cast<unsigned>(zeichen.size()))];
    ASSERT_TRUE(std::isfinite(Deutsch::val(text))) << text.toStdString();
  }
}

TEST(Einfach, KürzesterDezimalwertDesFloat) {
  EXPECT_EQ(Deutsch::einfach(3.33), 3.33);
  EXPECT_EQ(Deutsch::einfach(static_cast<double>(3.33F)), 3.33);
  EXPECT_EQ(Deutsch::einfach(10.0 / 3), 3.3333333);
  EXPECT_EQ(Deutsch::einfach(0.1), 0.1);
  EXPECT_EQ(Deutsch::einfach(16777217), 16777216);
  EXPECT_EQ(Deutsch::einfach(-2.5), -2.5);
}

TEST(Einfach, NullHatKeinVorzeichen) {
  EXPECT_FALSE(std::signbit(Deutsch::einfach(-0.0)));
  EXPECT_EQ(Deutsch::einfach(1e-60), 0);
}

TEST(Einfach, AußerhalbDesBereichsBleibtDerWert) {
  EXPECT_EQ(Deutsch::einfach(1e39), 1e39);
  EXPECT_EQ(Deutsch::einfach(-1e300), -1e300);
  EXPECT_EQ(Deutsch::einfach(Unendlich), Unendlich);
}

TEST(Einfach, ZweimalIstWieEinmalUndDerFloatBleibt) {
  std::mt19937_64 zufall(99);
  for (int i = 0; i < 20000; ++i) {
    const double wert = std::ldexp(static_cast<double>(zufall() % 1000000007ULL),
                                   static_cast<int>(zufall() % 60) - 40);
    const double einmal = Deutsch::einfach(wert);
    ASSERT_EQ(Deutsch::einfach(einmal), einmal);
    ASSERT_EQ(static_cast<float>(einmal), static_cast<float>(wert));
  }
}

TEST(Währungswert, VierStellenHalbeZurGeraden) {
  EXPECT_EQ(Deutsch::währungswert(1.00005), 1.0);
  EXPECT_EQ(Deutsch::währungswert(1.00015), 1.0002);
  EXPECT_EQ(Deutsch::währungswert(1.000051), 1.0001);
  EXPECT_EQ(Deutsch::währungswert(-1.00015), -1.0002);
  EXPECT_EQ(Deutsch::währungswert(12.5), 12.5);
  EXPECT_EQ(Deutsch::währungswert(0.00005), 0);
  EXPECT_EQ(Deutsch::währungswert(0.00006), 0.0001);
  EXPECT_EQ(Deutsch::währungswert(123456789.1234), 123456789.1234);
}

TEST(Gerade, HalbeZurGeradenZahl) {
  EXPECT_EQ(Deutsch::gerade(2.5), 2);
  EXPECT_EQ(Deutsch::gerade(3.5), 4);
  EXPECT_EQ(Deutsch::gerade(0.5), 0);
  EXPECT_EQ(Deutsch::gerade(1.5), 2);
  EXPECT_EQ(Deutsch::gerade(-2.5), -2);
  EXPECT_EQ(Deutsch::gerade(-3.5), -4);
  EXPECT_EQ(Deutsch::gerade(2.51), 3);
  EXPECT_EQ(Deutsch::gerade(9.5), 10);
  EXPECT_EQ(Deutsch::gerade(1e18), 1e18);
}

// Short decimals are known at sight; what they give must be what the long way gives.
TEST(Einfach, GibtFürKurzeZahlenSieSelbst) {
  for (int n = 1; n < 20'000'000; n += n < 1'000'000 ? 7 : 101) {
    for (const double einheit : {1.0, 10.0, 100.0, 1000.0, 10000.0, 100000.0}) {
      const double zahl = n / einheit;
      char puffer[64];
      const auto ende = std::to_chars(puffer, puffer + sizeof puffer, static_cast<float>(zahl)).ptr;
      double erwartet = 0;
      std::from_chars(puffer, ende, erwartet);
      ASSERT_EQ(Deutsch::einfach(zahl), erwartet) << zahl;
      ASSERT_EQ(Deutsch::einfach(-zahl), -erwartet) << zahl;
    }
  }
}

TEST(Gerundet, ZähltDieStellenVomMaßAn) {
  EXPECT_EQ(Deutsch::gerundet(0.04999999999994543, 1234.5, 15), 0.05);
  EXPECT_EQ(Deutsch::gerundet(4.4e-16, 10, 15), 0);
  EXPECT_EQ(Deutsch::gerundet(12.345, 12.3, 3), 12.3);
  EXPECT_EQ(Deutsch::gerundet(1254, 5000, 3), 1250);
  EXPECT_EQ(Deutsch::gerundet(-0.125, 0.5, 2), -0.12);
}

TEST(Gelesen, GeldbeträgeNurWoSieErwartetWerden) {
  EXPECT_EQ(Deutsch::gelesen("1.234.567,89 €", true), 1234567.89);
  EXPECT_EQ(Deutsch::gelesen("-0,50 €", true), -0.5);
  EXPECT_EQ(Deutsch::gelesen("12,5", true), 12.5);
  EXPECT_FALSE(Deutsch::gelesen("12,5 €"));
  EXPECT_FALSE(Deutsch::gelesen("1.234,5", true));
  EXPECT_FALSE(Deutsch::gelesen("1,234.5 €", true));
  EXPECT_FALSE(Deutsch::gelesen("€", true));
}

}  // namespace
