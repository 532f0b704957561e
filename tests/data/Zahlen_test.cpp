#include <gtest/gtest.h>

#include <QDate>
#include <cmath>
#include <limits>
#include <random>

#include "data/helpers.h"
#include "platform/locale/Deutsch.h"

namespace {

double lies(const char* text) { return ZahlLesen(QString::fromUtf8(text)); }
double doppelt(const char* text) { return ZahlLesenDoppelt(QString::fromUtf8(text)); }
std::string format(const QVariant& wert, int stellen) {
  return ZahlFormat(wert, stellen).toStdString();
}

TEST(ZahlLesenTest, NullUndLeerGebenNull) {
  EXPECT_EQ(ZahlLesen(QVariant()), 0);
  EXPECT_EQ(ZahlLesen(QVariant(QMetaType::fromType<double>())), 0);
  EXPECT_EQ(lies(""), 0);
  EXPECT_EQ(lies("   "), 0);
}

// A number reads as its text on the screen does.
TEST(ZahlLesenTest, EineZahlLiestSichWieIhrText) {
  std::mt19937_64 zufall(3);
  std::vector<double> zahlen = {0.0,
                                -0.0,
                                1e15,
                                1.5e20,
                                -1e-7,
                                3.4028236e38,
                                1e39,
                                1e308,
                                std::numeric_limits<double>::max(),
                                std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()};
  for (int i = 0; i < 20000; ++i) {
    const auto ganz = static_cast<double>(static_cast<qint64>(zufall() % 20000000) - 10000000);
    zahlen.push_back(ganz / std::pow(10, i % 8));
    zahlen.push_back(std::ldexp(ganz + 0.1, i % 120 - 60));
  }
  for (const double zahl : zahlen) {
    const QString text = Deutsch::schlicht(zahl);
    ASSERT_EQ(ZahlLesenDoppelt(zahl), ZahlLesenDoppelt(text)) << zahl;
    ASSERT_EQ(ZahlLesen(zahl), ZahlLesen(text)) << zahl;
  }
  EXPECT_EQ(ZahlLesen(QVariant::fromValue<qint64>(-123456789012)), lies("123456789012"));
  EXPECT_EQ(ZahlLesen(QVariant::fromValue(3.33F)), 3.33);
}

TEST(ZahlLesenTest, DasKommaIstDasDezimalzeichen) {
  EXPECT_EQ(lies("3,5"), 3.5);
  EXPECT_EQ(lies(",5"), 0.5);
  EXPECT_EQ(lies("12,"), 12);
}

TEST(ZahlLesenTest, DerLetztePunktGiltAlsDezimalpunkt) {
  EXPECT_EQ(lies("1.234"), 1.234);
  EXPECT_EQ(lies("1.234.567"), 1234.567);
}

TEST(ZahlLesenTest, TausenderpunkteVorEinemKommaFallenWeg) {
  EXPECT_EQ(lies("1.234,56"), 1234.56);
  EXPECT_EQ(lies("1.234.567,8"), 1234567.8);
}

TEST(ZahlLesenTest, EinPunktAmEndeFälltWeg) {
  EXPECT_EQ(lies("12."), 12);
  EXPECT_EQ(lies("1.234."), 1.234);
  EXPECT_EQ(lies("."), 0);
}

TEST(ZahlLesenTest, EinZweitesKommaBeendetDieZahl) {
  EXPECT_EQ(lies("1,2,3"), 1.2);
  EXPECT_EQ(lies(",,5"), 0);
}

TEST(ZahlLesenTest, KommaVorPunktWirdWieEinTausenderpunktVerworfen) {
  EXPECT_EQ(lies("1,234.5"), 1234.5);
}

TEST(ZahlLesenTest, DasMinusFälltWeg) {
  EXPECT_EQ(lies("-3,5"), 3.5);
  EXPECT_EQ(ZahlLesen(-3.5), 3.5);
  EXPECT_EQ(ZahlLesen(-4), 4);
}

TEST(ZahlLesenTest, BuchstabenFallenWeg) {
  EXPECT_EQ(lies("abc"), 0);
  EXPECT_EQ(lies("3,5 kg"), 3.5);
  EXPECT_EQ(lies("ca. 12 Stück"), 0.12);
  EXPECT_EQ(lies("a1b2c3"), 123);
  EXPECT_EQ(lies("1 000"), 1000);
}

TEST(ZahlLesenTest, DasGroßeEIstDerExponentDasKleineNicht) {
  EXPECT_EQ(lies("3E2"), 300);
  EXPECT_EQ(lies("1,5E3"), 1500);
  EXPECT_EQ(lies("3e2"), 32);
  EXPECT_EQ(lies("E5"), 0);
  EXPECT_EQ(lies("5 Euro"), 5);
  EXPECT_EQ(lies("1E-3"), 1000);
  EXPECT_EQ(lies("12E3,5"), 12000);
}

TEST(ZahlLesenTest, FeldwerteVomTypZahl) {
  EXPECT_EQ(ZahlLesen(3.25), 3.25);
  EXPECT_EQ(ZahlLesen(1e-7), 1e-7);
  EXPECT_EQ(ZahlLesen(1e20), 1e20);
  EXPECT_EQ(ZahlLesen(QVariant::fromValue<qint64>(123456)), 123456);
  EXPECT_EQ(ZahlLesenDoppelt(QVariant::fromValue<qint64>(1234567890123)), 1234567890123);
}

TEST(ZahlLesenTest, EinfacheGenauigkeitAlsKürzesteDezimalzahl) {
  EXPECT_EQ(lies("3,33"), 3.33);
  EXPECT_EQ(lies("16777217"), 16777216);
  EXPECT_EQ(doppelt("16777217"), 16777217);
  EXPECT_EQ(lies("3,33333333333"), 3.3333333);
  EXPECT_EQ(doppelt("3,33333333333"), 3.33333333333);
}

TEST(ZahlLesenTest, ZuGroßeZahlenGebenNull) {
  EXPECT_EQ(lies("9E99"), 0);
  EXPECT_EQ(doppelt("9E99"), 9e99);
  EXPECT_EQ(doppelt("9E999"), 0);
  EXPECT_EQ(ZahlLesenDoppelt(QString(400, u'9')), 0);
  EXPECT_EQ(ZahlLesen(std::numeric_limits<double>::infinity()), 0);
  EXPECT_EQ(ZahlLesenDoppelt(std::nan("")), 0);
}

TEST(ZahlText2Test, ZweiStellenMitKomma) {
  EXPECT_EQ(ZahlText2(0), QStringLiteral("0,00"));
  EXPECT_EQ(ZahlText2(1234.5), QStringLiteral("1234,50"));
  EXPECT_EQ(ZahlText2(-1.005), QStringLiteral("-1,01"));
}

TEST(ZahlFormatTest, StellenWieVerlangt) {
  EXPECT_EQ(format(3.14159, 0), "3");
  EXPECT_EQ(format(3.14159, 1), "3,1");
  EXPECT_EQ(format(3.14159, 3), "3,142");
}

TEST(ZahlFormatTest, LeerUndNullSindNull) {
  EXPECT_EQ(format(QVariant(), 2), "0,00");
  EXPECT_EQ(format(QString(), 2), "0,00");
  EXPECT_EQ(format(QString(), 0), "0");
}

TEST(ZahlFormatTest, TextMitKommaOderPunkt) {
  EXPECT_EQ(format(QStringLiteral("3,5"), 2), "3,50");
  EXPECT_EQ(format(QStringLiteral("3.5"), 2), "3,50");
  EXPECT_EQ(format(QStringLiteral(" 7 "), 1), "7,0");
  EXPECT_EQ(format(QStringLiteral(",5"), 1), "0,5");
  EXPECT_EQ(format(QStringLiteral("5,"), 1), "5,0");
  EXPECT_EQ(format(QStringLiteral("1,5e2"), 0), "150");
}

TEST(ZahlFormatTest, DasVorzeichenBleibt) {
  EXPECT_EQ(format(QStringLiteral("-3,5"), 2), "-3,50");
  EXPECT_EQ(format(-3.5, 1), "-3,5");
  EXPECT_EQ(format(QStringLiteral("+3"), 0), "3");
}

TEST(ZahlFormatTest, WasKeineZahlIstZähltAlsNull) {
  for (const char* text :
       {"abc", "3 kg", "1,2,3", "1.2.3", "1.234,56", "-", "e5", "1e", "--1", "1,2.3", ",", "12 €"})
    EXPECT_EQ(format(QString::fromUtf8(text), 2), "0,00") << text;
  EXPECT_EQ(format(QDate(2026, 1, 1), 2), "0,00");
  EXPECT_EQ(format(QStringLiteral("9e999"), 2), "0,00");
  EXPECT_EQ(format(std::numeric_limits<double>::infinity(), 2), "0,00");
}

TEST(ZahlFormatBreiteTest, RechtsbündigInDerBreite) {
  EXPECT_EQ(ZahlFormatBreite(3.5, 2, 8, 0), QStringLiteral("    3,50"));
  EXPECT_EQ(ZahlFormatBreite(QStringLiteral("3.5"), 1, 5, 0), QStringLiteral("  3,5"));
  EXPECT_EQ(ZahlFormatBreite(QStringLiteral("abc"), 1, 5, 0), QStringLiteral("  0,0"));
  EXPECT_EQ(ZahlFormatBreite(QVariant(), 0, 3, 0), QStringLiteral("  0"));
}

TEST(ZahlFormatBreiteTest, PlusNurVorWertenÜberNull) {
  EXPECT_EQ(ZahlFormatBreite(3.5, 1, 6, 1), QStringLiteral("  +3,5"));
  EXPECT_EQ(ZahlFormatBreite(0, 1, 6, 1), QStringLiteral("   0,0"));
  EXPECT_EQ(ZahlFormatBreite(-3.5, 1, 6, 1), QStringLiteral("  -3,5"));
  EXPECT_EQ(ZahlFormatBreite(3.5, 1, 6, 2), QStringLiteral("   3,5"));
}

TEST(ZahlFormatBreiteTest, ZuSchmalBehältDenLinkenTeil) {
  EXPECT_EQ(ZahlFormatBreite(12345.67, 2, 4, 0), QStringLiteral("1234"));
}

TEST(ZahlFestTest, PunktUndZweiStellen) {
  EXPECT_EQ(ZahlFest(8, 3.5), QStringLiteral("    3.50"));
  EXPECT_EQ(ZahlFest(3, 12.34), QStringLiteral("12."));
}

TEST(GanzLesenTest, FührendeZahlHalbeZurGeraden) {
  EXPECT_EQ(GanzLesen(QStringLiteral("12")), 12);
  EXPECT_EQ(GanzLesen(QStringLiteral("2.5")), 2);
  EXPECT_EQ(GanzLesen(QStringLiteral("3.5")), 4);
  EXPECT_EQ(GanzLesen(QStringLiteral("-7")), -7);
  EXPECT_EQ(GanzLesen(QStringLiteral("1,9")), 1);
  EXPECT_EQ(GanzLesen(QStringLiteral("5 Waben")), 5);
  EXPECT_EQ(GanzLesen(QString()), 0);
}

TEST(GanzLesenTest, AufZweiunddreißigBitsBegrenzt) {
  EXPECT_EQ(GanzLesen(QStringLiteral("9999999999")), 2147483647);
  EXPECT_EQ(GanzLesen(QStringLiteral("-9999999999")), -2147483648LL);
  EXPECT_EQ(GanzLesen(QStringLiteral("1e999")), 2147483647);
}

}  // namespace
