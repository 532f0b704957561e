#include "platform/controls/Eingaberegel.h"

#include <gtest/gtest.h>

using Art = Eingabefeld::Art;
using Beschreibung = Eingabefeld::Beschreibung;

namespace {

// The field's text after "neu" came in at the place of "|" in a text; "" when it was refused.
QString nach(const Beschreibung& b, const QString& mitMarke, const QString& neu) {
  const int ort = static_cast<int>(mitMarke.indexOf(u'|'));
  QString vorher = mitMarke;
  vorher.remove(ort, 1);
  QString nachher = vorher;
  nachher.insert(ort, neu);
  const auto ergebnis = Eingaberegel::prüfe(b, vorher, nachher, ort + static_cast<int>(neu.size()));
  return ergebnis ? ergebnis->text : QString();
}

Beschreibung dezimal(int länge, int stellen) {
  return {Art::Dezimal, länge, stellen, {}, {}, {}, {}};
}

Beschreibung ganz(int länge, qint64 bis) { return {Art::Ganzzahl, länge, 0, bis, {}, {}, {}}; }

Beschreibung text(int länge) { return {Art::Text, länge, 0, {}, {}, {}, {}}; }

Beschreibung datum() { return {Art::Datum, 0, 0, {}, {}, {}, {}}; }

}  // namespace

TEST(Eingaberegel, UmbrücheUndTabsWerdenLeerzeichen) {
  EXPECT_EQ(Eingaberegel::bereinigt(QStringLiteral("a\r\nb\nc\td\re")),
            QStringLiteral("a b c d e"));
}

TEST(Eingaberegel, SteuerzeichenFallenWeg) {
  EXPECT_EQ(Eingaberegel::bereinigt(QStringLiteral("a\u0001b\u007Fc\u0085d")),
            QStringLiteral("abcd"));
}

TEST(Eingaberegel, HalbeSurrogatpaareFallenWeg) {
  EXPECT_EQ(Eingaberegel::bereinigt(QStringLiteral("a") + QChar(0xD83D)), QStringLiteral("a"));
  EXPECT_EQ(Eingaberegel::bereinigt(QChar(0xDC1D) + QStringLiteral("a")), QStringLiteral("a"));
}

TEST(Eingaberegel, EmojiBleiben) {
  EXPECT_EQ(Eingaberegel::bereinigt(QStringLiteral("Biene 🐝")), QStringLiteral("Biene 🐝"));
}

TEST(Eingaberegel, KürzenTrenntKeinPaar) {
  EXPECT_EQ(Eingaberegel::gekürzt(QStringLiteral("ab🐝"), 3), QStringLiteral("ab"));
  EXPECT_EQ(Eingaberegel::gekürzt(QStringLiteral("ab🐝"), 4), QStringLiteral("ab🐝"));
}

TEST(Eingaberegel, ZuLangerTextWirdAufDenPlatzGekürzt) {
  EXPECT_EQ(nach(text(10), QStringLiteral("Vo|lk"), QStringLiteral("xxxxxxxxxxxx")),
            QStringLiteral("Voxxxxxxlk"));
}

TEST(Eingaberegel, VollesTextfeldNimmtNichtsMehr) {
  EXPECT_EQ(nach(text(4), QStringLiteral("Volk|"), QStringLiteral("x")), QString());
}

TEST(Eingaberegel, ZehntausendZeichenBleibenBisZurLänge) {
  EXPECT_EQ(nach(text(30), QStringLiteral("|"), QString(10000, u'x')).size(), 30);
}

TEST(Eingaberegel, DezimalNimmtZiffernUndEinKomma) {
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("12|"), QStringLiteral(",")), QStringLiteral("12,"));
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("1,2|"), QStringLiteral(",")), QString());
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("1|"), QStringLiteral("a")), QString());
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("|1"), QStringLiteral("-")), QString());
}

TEST(Eingaberegel, PunktBleibtPunkt) {
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("12|"), QStringLiteral(".")), QStringLiteral("12."));
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("1,2|"), QStringLiteral(".")), QString());
  EXPECT_EQ(nach(dezimal(8, 0), QStringLiteral("12|"), QStringLiteral(".")), QString());
}

TEST(Eingaberegel, PunkteTeilenTausender) {
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("1.23|"), QStringLiteral("4")),
            QStringLiteral("1.234"));
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("1.234|"), QStringLiteral(",")),
            QStringLiteral("1.234,"));
  EXPECT_EQ(nach(dezimal(10, 2), QStringLiteral("1.234|"), QStringLiteral(".")),
            QStringLiteral("1.234."));
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("1.234|"), QStringLiteral("5")), QString());
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("1234.56|"), QStringLiteral("7")), QString());
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("12.5|"), QStringLiteral(",")), QString());
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral(".5|"), QStringLiteral("6")), QStringLiteral(".56"));
  EXPECT_EQ(nach(dezimal(6, 2), QStringLiteral("1.234,5|"), QStringLiteral("6")), QString())
      << "länger als das Feld";
  EXPECT_EQ(nach(dezimal(7, 2), QStringLiteral("1.234,5|"), QStringLiteral("6")),
            QStringLiteral("1.234,56"));
}

TEST(Eingaberegel, ZahlformHatDenselbenWert) {
  EXPECT_EQ(Eingaberegel::zahlform(QStringLiteral("1.234,56")), QStringLiteral("1234,56"));
  EXPECT_EQ(Eingaberegel::zahlform(QStringLiteral("1.234.567,8")), QStringLiteral("1234567,8"));
  EXPECT_EQ(Eingaberegel::zahlform(QStringLiteral("12.5")), QStringLiteral("12,5"));
  EXPECT_EQ(Eingaberegel::zahlform(QStringLiteral("1.234")), QStringLiteral("1,234"));
  EXPECT_EQ(Eingaberegel::zahlform(QStringLiteral("12.")), QStringLiteral("12"));
  EXPECT_EQ(Eingaberegel::zahlform(QStringLiteral("12,")), QStringLiteral("12"));
  EXPECT_EQ(Eingaberegel::zahlform(QStringLiteral("1.234.")), QStringLiteral("1,234"));
  EXPECT_EQ(Eingaberegel::zahlform(QStringLiteral("0,50")), QStringLiteral("0,50"));
  EXPECT_EQ(Eingaberegel::zahlform(QStringLiteral("-3,55")), QStringLiteral("-3,55"));
  EXPECT_EQ(Eingaberegel::zahlform(QString()), QString());
}

TEST(Eingaberegel, MehrNachkommastellenAlsErlaubtWerdenNichtAngenommen) {
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("1,23|"), QStringLiteral("4")), QString());
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("1|,23"), QStringLiteral("4")),
            QStringLiteral("14,23"));
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("1|234"), QStringLiteral(",")), QString());
}

TEST(Eingaberegel, DezimalOhneNachkommastellenNimmtKeinKomma) {
  EXPECT_EQ(nach(dezimal(8, 0), QStringLiteral("12|"), QStringLiteral(",")), QString());
}

TEST(Eingaberegel, EingefügteZahlMitTausenderpunkten) {
  EXPECT_EQ(nach(dezimal(10, 2), QStringLiteral("|"), QStringLiteral("1.234,56")),
            QStringLiteral("1234,56"));
  EXPECT_EQ(nach(dezimal(10, 2), QStringLiteral("|"), QStringLiteral(" 1.234,56 €\n")),
            QStringLiteral("1234,56"));
  EXPECT_EQ(nach(dezimal(12, 2), QStringLiteral("|"), QStringLiteral("1.234.567")),
            QStringLiteral("1234567"));
}

TEST(Eingaberegel, EingefügterPunktOhneKommaIstDasKomma) {
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("|"), QStringLiteral("2.5")), QStringLiteral("2,5"));
  EXPECT_EQ(nach(dezimal(8, 3), QStringLiteral("|"), QStringLiteral("1.234")),
            QStringLiteral("1,234"));
}

TEST(Eingaberegel, EingefügteZahlGanzOderGarNicht) {
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("|"), QStringLiteral("1,239")), QString());
  EXPECT_EQ(nach(dezimal(4, 1), QStringLiteral("|"), QStringLiteral("1234,5")), QString());
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("|"), QStringLiteral("-3,5")), QString());
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("|"), QStringLiteral("3 Völker")), QString());
  EXPECT_EQ(nach(dezimal(8, 2), QStringLiteral("|"), QStringLiteral("1.23,4")), QString());
}

TEST(Eingaberegel, NullenAmEndeEinerEingefügtenZahlDürfenFehlen) {
  EXPECT_EQ(nach(dezimal(8, 1), QStringLiteral("|"), QStringLiteral("3,500")),
            QStringLiteral("3,5"));
}

TEST(Eingaberegel, GanzzahlBisZurGrenze) {
  EXPECT_EQ(nach(ganz(2, 9), QStringLiteral("|"), QStringLiteral("9")), QStringLiteral("9"));
  EXPECT_EQ(nach(ganz(2, 9), QStringLiteral("1|"), QStringLiteral("0")), QString());
  EXPECT_EQ(nach(ganz(3, 100), QStringLiteral("10|"), QStringLiteral("0")), QStringLiteral("100"));
  EXPECT_EQ(nach(ganz(3, 100), QStringLiteral("10|"), QStringLiteral("1")), QString());
  EXPECT_EQ(nach(ganz(3, 100), QStringLiteral("|"), QStringLiteral("250")), QString());
  EXPECT_EQ(nach(ganz(3, 100), QStringLiteral("1|"), QStringLiteral(",")), QString());
  EXPECT_EQ(nach(ganz(3, 100), QStringLiteral("|"), QStringLiteral("-")), QString());
}

TEST(Eingaberegel, GanzzahlOhneNullBeginntMitEins) {
  Beschreibung anteil = ganz(3, 100);
  anteil.von = 1;
  EXPECT_EQ(nach(anteil, QStringLiteral("|"), QStringLiteral("0")), QString());
  EXPECT_EQ(nach(anteil, QStringLiteral("|"), QStringLiteral("00")), QString());
  EXPECT_EQ(nach(anteil, QStringLiteral("|"), QStringLiteral("1")), QStringLiteral("1"));
  EXPECT_EQ(nach(anteil, QStringLiteral("10|"), QStringLiteral("0")), QStringLiteral("100"));
  EXPECT_FALSE(Eingaberegel::passt(anteil, QStringLiteral("0")));  // from the calculator
  EXPECT_TRUE(Eingaberegel::passt(anteil, QString()));
}

TEST(Eingaberegel, GanzzahlUnterNullNimmtEinVorzeichenUndHältDieUntereGrenze) {
  Beschreibung grad = ganz(3, 60);
  grad.von = -40;
  EXPECT_EQ(nach(grad, QStringLiteral("|"), QStringLiteral("-")), QStringLiteral("-"));
  EXPECT_EQ(nach(grad, QStringLiteral("-|"), QStringLiteral("4")), QStringLiteral("-4"));
  EXPECT_EQ(nach(grad, QStringLiteral("-4|"), QStringLiteral("0")), QStringLiteral("-40"));
  EXPECT_EQ(nach(grad, QStringLiteral("-4|"), QStringLiteral("1")), QString());
  EXPECT_EQ(nach(grad, QStringLiteral("|12"), QStringLiteral("-")), QStringLiteral("-12"));
  EXPECT_EQ(nach(grad, QStringLiteral("|60"), QStringLiteral("-")), QString());
  EXPECT_EQ(nach(grad, QStringLiteral("6|"), QStringLiteral("1")), QString());
  EXPECT_EQ(nach(grad, QStringLiteral("1|"), QStringLiteral("-")), QString());
  EXPECT_EQ(nach(grad, QStringLiteral("-|"), QStringLiteral("-")), QString());
  EXPECT_EQ(nach(grad, QStringLiteral("-|"), QStringLiteral("0")), QString());
  EXPECT_EQ(nach(grad, QStringLiteral("|"), QStringLiteral("0")), QStringLiteral("0"));
  EXPECT_EQ(nach(grad, QStringLiteral("|"), QStringLiteral(" -12 ")), QStringLiteral("-12"));
  EXPECT_EQ(nach(grad, QStringLiteral("|"), QStringLiteral("\u22127")), QStringLiteral("-7"));
  EXPECT_EQ(nach(grad, QStringLiteral("|"), QStringLiteral("-41")), QString());
  EXPECT_EQ(nach(grad, QStringLiteral("|"), QStringLiteral("61")), QString());
  EXPECT_TRUE(Eingaberegel::passt(grad, QStringLiteral("-40")));  // from the calculator
  EXPECT_FALSE(Eingaberegel::passt(grad, QStringLiteral("-41")));
}

TEST(Eingaberegel, GanzzahlAbDreißigLässtSichZiffernweiseTippen) {
  Beschreibung zeilen = ganz(4, 9999);
  zeilen.von = 30;
  EXPECT_EQ(nach(zeilen, QStringLiteral("|"), QStringLiteral("3")), QStringLiteral("3"));
  EXPECT_EQ(nach(zeilen, QStringLiteral("3|"), QStringLiteral("0")), QStringLiteral("30"));
  EXPECT_EQ(nach(zeilen, QStringLiteral("|"), QStringLiteral("0")), QString());
}

TEST(Eingaberegel, GanzzahlMitSehrVielenZiffernWirdAbgelehnt) {
  EXPECT_EQ(nach(Beschreibung{Art::Ganzzahl, 0, 0, {}, {}, {}, {}}, QStringLiteral("|"),
                 QString(40, u'9')),
            QString());
}

TEST(Eingaberegel, DatumNimmtZiffernUndPunkteBisZehnZeichen) {
  EXPECT_EQ(nach(datum(), QStringLiteral("3|"), QStringLiteral(".")), QStringLiteral("3."));
  EXPECT_EQ(nach(datum(), QStringLiteral("3|"), QStringLiteral(",")), QStringLiteral("3."));
  EXPECT_EQ(nach(datum(), QStringLiteral("3|"), QStringLiteral("/")), QString());
  EXPECT_EQ(nach(datum(), QStringLiteral("03.05.2024|"), QStringLiteral("1")), QString());
  EXPECT_EQ(nach(datum(), QStringLiteral("|"), QStringLiteral(" 03.05.2024\n")),
            QStringLiteral("03.05.2024"));
  EXPECT_EQ(nach(datum(), QStringLiteral("|"), QStringLiteral("03.05.2024 12:30")), QString());
}

TEST(Eingaberegel, WegnehmenGehtImmer) {
  const auto ergebnis =
      Eingaberegel::prüfe(dezimal(4, 1), QStringLiteral("-12345"), QStringLiteral("-1234"), 5);
  ASSERT_TRUE(ergebnis.has_value());
  EXPECT_EQ(ergebnis->text, QStringLiteral("-1234"));
}

TEST(Eingaberegel, AuswahlNurAusIhrenTexten) {
  const Beschreibung b{Art::Auswahl, 0, 0, {}, {}, {}, {QStringLiteral("J"), QStringLiteral("N")}};
  EXPECT_EQ(nach(b, QStringLiteral("|"), QStringLiteral("J")), QStringLiteral("J"));
  EXPECT_EQ(nach(b, QStringLiteral("|"), QStringLiteral("n")), QStringLiteral("N"));
  EXPECT_EQ(nach(b, QStringLiteral("|"), QStringLiteral("X")), QString());
  EXPECT_FALSE(Eingaberegel::prüfe(b, QStringLiteral("J"), QString(), 0).has_value());
}

TEST(Eingaberegel, TagUndMonat) {
  EXPECT_EQ(Eingaberegel::tagMonat(QStringLiteral("1.5")), QStringLiteral("01.05"));
  EXPECT_EQ(Eingaberegel::tagMonat(QStringLiteral("01.05.")), QStringLiteral("01.05"));
  EXPECT_EQ(Eingaberegel::tagMonat(QStringLiteral("0105")), QStringLiteral("01.05"));
  EXPECT_EQ(Eingaberegel::tagMonat(QStringLiteral("29.2")), QStringLiteral("29.02"));
  EXPECT_EQ(Eingaberegel::tagMonat(QStringLiteral("30.2")), QString());
  EXPECT_EQ(Eingaberegel::tagMonat(QStringLiteral("1.13")), QString());
  EXPECT_EQ(Eingaberegel::tagMonat(QStringLiteral("15")), QString());
  EXPECT_EQ(Eingaberegel::tagMonat(QStringLiteral("0.5")), QString());
}
