#include <gtest/gtest.h>

#include <QDate>

#include "core/globals.h"
#include "data/helpers.h"

namespace {

class DatumHeute : public testing::Test {
 protected:
  DatumHeute() { heute("17.03.2026"); }
  ~DatumHeute() override { TZ_Variablen::zurücksetzen(); }

  static void heute(const char* text) { TZ_Variablen::HeuteText = QString::fromLatin1(text); }
  static std::string ergänzt(const char* text) {
    return DatumErgaenzen(QString::fromUtf8(text)).toStdString();
  }
  static std::string jahr(const char* text) {
    return JahrErgaenzen(QString::fromUtf8(text)).toStdString();
  }
};

TEST(SqlDatumTest, DerMonatStehtVorn) {
  QString text = QStringLiteral("05.02.2006");
  EXPECT_EQ(SqlDatum(text), QStringLiteral("#02/05/2006#"));
  EXPECT_EQ(text, QStringLiteral("05.02.2006"));
}

TEST(SqlDatumTest, DerTextWirdAusgeschrieben) {
  QString text = QStringLiteral("5.2.06");
  EXPECT_EQ(SqlDatum(text), QStringLiteral("#02/05/2006#"));
  EXPECT_EQ(text, QStringLiteral("05.02.2006"));
}

TEST(SqlDatumTest, JahresgrenzenAusTagUndJahr) {
  EXPECT_EQ(SqlDatum(QStringLiteral("01.01.") + QStringLiteral("2026")),
            QStringLiteral("#01/01/2026#"));
  EXPECT_EQ(SqlDatum(QStringLiteral("31.12.2026")), QStringLiteral("#12/31/2026#"));
}

TEST(SqlDatumTest, WasKeinDatumIstWirdTrotzdemZerlegt) {
  QString text = QStringLiteral("31.02.2026");
  EXPECT_EQ(SqlDatum(text), QStringLiteral("#02/31/2026#"));
  EXPECT_EQ(text, QStringLiteral("31.02.2026"));
  EXPECT_EQ(SqlDatum(QString()), QStringLiteral("#//#"));
  EXPECT_EQ(SqlDatum(QStringLiteral("morgen früh")), QStringLiteral("#ge/mo/ frü#"));
}

TEST_F(DatumHeute, LeerBleibtLeer) {
  EXPECT_EQ(ergänzt(""), "");
  EXPECT_EQ(ergänzt("   "), "");
}

TEST_F(DatumHeute, EinGültigesDatumWirdAusgeschrieben) {
  EXPECT_EQ(ergänzt("05.02.2006"), "05.02.2006");
  EXPECT_EQ(ergänzt(" 5.2.2006 "), "05.02.2006");
  EXPECT_EQ(ergänzt("1.5.26"), "01.05.2026");
  EXPECT_EQ(ergänzt("1.5.99"), "01.05.1999");
}

TEST_F(DatumHeute, EineZifferIstEinTagDiesesMonats) {
  EXPECT_EQ(ergänzt("5"), "05.03.2026");
  EXPECT_EQ(ergänzt("9"), "09.03.2026");
  EXPECT_EQ(ergänzt("0"), "");
  EXPECT_EQ(ergänzt("5."), "05.03.2026");
}

TEST_F(DatumHeute, ZweiZiffernBisEinunddreißigSindEinTagDiesesMonats) {
  EXPECT_EQ(ergänzt("05"), "05.03.2026");
  EXPECT_EQ(ergänzt("17"), "17.03.2026");
  EXPECT_EQ(ergänzt("31"), "31.03.2026");
  EXPECT_EQ(ergänzt("17."), "17.03.2026");
  EXPECT_EQ(ergänzt("00"), "");
}

TEST_F(DatumHeute, DerEinunddreißigsteNurInEinemMonatDerIhnHat) {
  heute("10.04.2026");
  EXPECT_EQ(ergänzt("31"), "");
  EXPECT_EQ(ergänzt("30"), "30.04.2026");
}

TEST_F(DatumHeute, ZweiZiffernÜberEinunddreißigSindTagUndMonat) {
  EXPECT_EQ(ergänzt("32"), "03.02.2026");
  EXPECT_EQ(ergänzt("45"), "04.05.2026");
  EXPECT_EQ(ergänzt("99"), "09.09.2026");
  EXPECT_EQ(ergänzt("40"), "");
}

TEST_F(DatumHeute, VierZiffernSindTagUndMonat) {
  EXPECT_EQ(ergänzt("0105"), "01.05.2026");
  EXPECT_EQ(ergänzt("3112"), "31.12.2026");
  EXPECT_EQ(ergänzt("3113"), "");
  EXPECT_EQ(ergänzt("2902"), "");
}

TEST_F(DatumHeute, DerSchalttagNurImSchaltjahr) {
  heute("17.03.2028");
  EXPECT_EQ(ergänzt("2902"), "29.02.2028");
}

TEST_F(DatumHeute, SechsZiffernMitDemJahrhundertVonHeute) {
  EXPECT_EQ(ergänzt("010524"), "01.05.2024");
  EXPECT_EQ(ergänzt("010599"), "01.05.2099");
  heute("17.03.1999");
  EXPECT_EQ(ergänzt("010524"), "01.05.1924");
}

TEST_F(DatumHeute, AchtZiffernMitVierstelligemJahr) {
  EXPECT_EQ(ergänzt("01051999"), "01.05.1999");
  EXPECT_EQ(ergänzt("31022026"), "");
}

TEST_F(DatumHeute, AndereAnzahlenVonZiffernSindKeinDatum) {
  for (const char* text : {"123", "12345", "1234567", "123456789", "1234567890", "12345678901"})
    EXPECT_EQ(ergänzt(text), "") << text;
}

TEST_F(DatumHeute, EinPunktTrenntTagUndMonat) {
  EXPECT_EQ(ergänzt("1.5"), "01.05.2026");
  EXPECT_EQ(ergänzt("01.05"), "01.05.2026");
  EXPECT_EQ(ergänzt("31.12"), "31.12.2026");
  EXPECT_EQ(ergänzt("1.5."), "01.05.2026");
  EXPECT_EQ(ergänzt("1.13"), "");
  EXPECT_EQ(ergänzt(".5"), "");
  EXPECT_EQ(ergänzt("123.5"), "");
  EXPECT_EQ(ergänzt("1.x"), "");
}

TEST_F(DatumHeute, ZweiPunkteMitZweistelligemJahrBekommenDasJahrhundertVonHeute) {
  // Complete dates are read by their year; with a point behind them this century counts.
  EXPECT_EQ(ergänzt("1.5.99."), "01.05.2099");
  EXPECT_EQ(ergänzt("01.5.99."), "01.05.2099");
  EXPECT_EQ(ergänzt("1.05.99."), "01.05.2099");
  EXPECT_EQ(ergänzt("1.5.2024."), "01.05.2024");
}

TEST_F(DatumHeute, ZweiPunkteOhneRichtigesJahrSindKeinDatum) {
  for (const char* text : {"1.5.6", "1.5..", "..", "1..26", "1.5.126", "1.5.20266", "1.2.3.4"})
    EXPECT_EQ(ergänzt(text), "") << text;
}

TEST_F(DatumHeute, ZehnZeichenBleibenWieSieSind) {
  EXPECT_EQ(ergänzt("31.02.2026"), "");
  EXPECT_EQ(ergänzt("1.5.200000"), "");
}

TEST_F(DatumHeute, AndererTextIstKeinDatum) {
  for (const char* text : {"heute", "a", "ab", "1a", "12a4", "1-5", "1/5/26", "-5", "+5", "1,5",
                           "1 5", "2026-05-01", "٥"})
    EXPECT_EQ(ergänzt(text), "") << text;
}

TEST_F(DatumHeute, OhneHeuteGibtEsNichtsZuErgänzen) {
  heute("");
  EXPECT_EQ(ergänzt("5"), "");
  EXPECT_EQ(ergänzt("1.5"), "");
  EXPECT_EQ(ergänzt("01052026"), "01.05.2026");
}

TEST(DatumSortiertTest, JahrMonatTag) {
  EXPECT_EQ(DatumSortiert(QStringLiteral("05.02.2006")), QStringLiteral("20060205"));
}

TEST(DatumSortiertTest, AchtZeichenWerdenErstAusgeschrieben) {
  EXPECT_EQ(DatumSortiert(QStringLiteral("05.02.06")), QStringLiteral("20060205"));
  EXPECT_EQ(DatumSortiert(QStringLiteral("5.2.2006")), QStringLiteral("20060205"));
}

TEST(DatumSortiertTest, LeerBleibtLeer) { EXPECT_EQ(DatumSortiert(QString()), QString()); }

TEST_F(DatumHeute, JahrLeerIstDiesesJahr) {
  EXPECT_EQ(jahr(""), "2026");
  EXPECT_EQ(jahr("  "), "2026");
}

TEST_F(DatumHeute, JahrMitEinerZiffer) {
  EXPECT_EQ(jahr("0"), "2000");
  EXPECT_EQ(jahr("7"), "2007");
}

TEST_F(DatumHeute, JahrMitZweiZiffernAbFünfzigIstNeunzehnhundert) {
  EXPECT_EQ(jahr("49"), "2049");
  EXPECT_EQ(jahr("50"), "1950");
  EXPECT_EQ(jahr("00"), "2000");
  EXPECT_EQ(jahr("99"), "1999");
  EXPECT_EQ(jahr(" 06 "), "2006");
}

TEST_F(DatumHeute, JahrMitDreiZeichenIstLeer) {
  EXPECT_EQ(jahr("123"), "");
  EXPECT_EQ(jahr("abc"), "");
}

TEST_F(DatumHeute, AnderesJahrBleibtWieEsIst) {
  EXPECT_EQ(jahr("2026"), "2026");
  EXPECT_EQ(jahr("1850"), "1850");
  EXPECT_EQ(jahr("20266"), "20266");
}

TEST(DatumLesenTest, DatumOderKeines) {
  EXPECT_EQ(DatumLesen(QStringLiteral("5.2.06")), QDate(2006, 2, 5));
  EXPECT_FALSE(DatumLesen(QStringLiteral("5.2")).isValid());
  EXPECT_TRUE(IstDatum(QStringLiteral("01.01.1999")));
  EXPECT_TRUE(IstDatum(QStringLiteral("01.01.2001")));
  EXPECT_FALSE(IstDatum(QStringLiteral("30.02.2001")));
  EXPECT_FALSE(IstDatum(QString()));
}

}  // namespace
