#include <gtest/gtest.h>

#include <QDate>

#include "data/helpers.h"

namespace {

TEST(TextLesenTest, NullGibtLeer) {
  EXPECT_EQ(TextLesen(QVariant()), QString());
  EXPECT_EQ(TextLesen(QVariant(QMetaType::fromType<QString>())), QString());
}

TEST(TextLesenTest, BlanksAmRandFallenWeg) {
  EXPECT_EQ(TextLesen(QStringLiteral("  Carnica  ")), QStringLiteral("Carnica"));
  EXPECT_EQ(TextLesen(QStringLiteral("a  b")), QStringLiteral("a  b"));
  EXPECT_EQ(TextLesen(QStringLiteral("   ")), QString());
}

TEST(TextLesenTest, JedesHochkommaWirdEinRückwärtsstrich) {
  EXPECT_EQ(TextLesen(QStringLiteral("O'Neill's 'Hof'")), QStringLiteral("O`Neill`s `Hof`"));
}

TEST(TextLesenTest, FeldwerteWieAufDemBildschirm) {
  EXPECT_EQ(TextLesen(3.5), QStringLiteral("3,5"));
  EXPECT_EQ(TextLesen(12), QStringLiteral("12"));
  EXPECT_EQ(TextLesen(-0.25), QStringLiteral("-0,25"));
  EXPECT_EQ(TextLesen(QDate(2006, 2, 5)), QStringLiteral("05.02.2006"));
}

TEST(TextLesenTest, MehrzeiligeNotizBleibtMehrzeilig) {
  EXPECT_EQ(TextLesen(QStringLiteral("eins\r\nzwei")), QStringLiteral("eins\r\nzwei"));
}

TEST(TextLinksTest, MitBlanksRechtsAufDieBreite) {
  EXPECT_EQ(TextLinks(QStringLiteral("ab"), 5), QStringLiteral("ab   "));
  EXPECT_EQ(TextLinks(QStringLiteral("  ab "), 5), QStringLiteral("ab   "));
  EXPECT_EQ(TextLinks(QString(), 3), QStringLiteral("   "));
}

TEST(TextLinksTest, ZuLangBehältDenLinkenTeil) {
  EXPECT_EQ(TextLinks(QStringLiteral("abcdef"), 3), QStringLiteral("abc"));
}

TEST(TextRechtsTest, MitBlanksLinksAufDieBreite) {
  EXPECT_EQ(TextRechts(QStringLiteral("ab"), 5), QStringLiteral("   ab"));
  EXPECT_EQ(TextRechts(QStringLiteral(" ab  "), 5), QStringLiteral("   ab"));
}

TEST(TextRechtsTest, ZuLangBehältDenLinkenTeil) {
  EXPECT_EQ(TextRechts(QStringLiteral("abcdef"), 3), QStringLiteral("abc"));
}

TEST(TextRechtsTest, BreiteNullUndDarunterGibtLeer) {
  EXPECT_EQ(TextRechts(QStringLiteral("ab"), 0), QString());
  EXPECT_EQ(TextLinks(QStringLiteral("ab"), -3), QString());
}

TEST(NurZiffernTest, NurNullBisNeun) {
  EXPECT_TRUE(NurZiffern(QStringLiteral("0123456789")));
  EXPECT_FALSE(NurZiffern(QStringLiteral("12a")));
  EXPECT_FALSE(NurZiffern(QStringLiteral("1 2")));
  EXPECT_FALSE(NurZiffern(QStringLiteral("-1")));
  EXPECT_FALSE(NurZiffern(QStringLiteral("1,5")));
  EXPECT_FALSE(NurZiffern(QString(QChar(0x0661))));
}

TEST(NurZiffernTest, LeerIstWahr) { EXPECT_TRUE(NurZiffern(QString())); }

TEST(ZifferTasteTest, NurDieErlaubtenTastenGehenDurch) {
  for (int code = -1; code < 300; ++code) {
    const bool erlaubt = (code >= 48 && code <= 57) || code == 42 || code == 8 || code == 9 ||
                         code == 10 || code == 13;
    EXPECT_EQ(ZifferTaste(code), erlaubt ? code : 0) << code;
  }
}

}  // namespace
