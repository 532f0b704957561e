#include "platform/controls/Rechenwerk.h"

#include <gtest/gtest.h>

namespace {

// Presses the keys as they are written: digits, comma, + - * / =, C, "<" for backspace.
QString rechne(const char* tasten, Rechenwerk& werk) {
  using Operation = Rechenwerk::Operation;
  for (const char* t = tasten; *t != 0; ++t) {
    switch (*t) {
      case ',':
        werk.komma();
        break;
      case '+':
        werk.operation(Operation::Plus);
        break;
      case '-':
        werk.operation(Operation::Minus);
        break;
      case '*':
        werk.operation(Operation::Mal);
        break;
      case '/':
        werk.operation(Operation::Geteilt);
        break;
      case '=':
        werk.gleich();
        break;
      case 'C':
        werk.löschen();
        break;
      case '<':
        werk.zurück();
        break;
      default:
        werk.ziffer(*t - '0');
    }
  }
  return werk.anzeige();
}

QString rechne(const char* tasten) {
  Rechenwerk werk;
  return rechne(tasten, werk);
}

}  // namespace

TEST(Rechenwerk, VierGrundrechenarten) {
  EXPECT_EQ(rechne("2+3="), QStringLiteral("5"));
  EXPECT_EQ(rechne("2-3="), QStringLiteral("-1"));
  EXPECT_EQ(rechne("2,5*4="), QStringLiteral("10"));
  EXPECT_EQ(rechne("7/2="), QStringLiteral("3,5"));
}

TEST(Rechenwerk, RechnetVonLinksNachRechts) { EXPECT_EQ(rechne("2+3*4="), QStringLiteral("20")); }

TEST(Rechenwerk, EinZehntelUndZweiZehntelSindDreiZehntel) {
  EXPECT_EQ(rechne("0,1+0,2="), QStringLiteral("0,3"));
}

TEST(Rechenwerk, EinDrittelHatZehnStellen) {
  EXPECT_EQ(rechne("1/3="), QStringLiteral("0,3333333333"));
}

TEST(Rechenwerk, DurchNullZeigtFehlerBisC) {
  Rechenwerk werk;
  EXPECT_EQ(rechne("5/0=", werk), QStringLiteral("Fehler"));
  EXPECT_FALSE(werk.wert().has_value());
  EXPECT_EQ(rechne("12+3=", werk), QStringLiteral("Fehler"));
  EXPECT_EQ(rechne("C12", werk), QStringLiteral("12"));
}

TEST(Rechenwerk, DurchNullInEinerKetteZeigtFehler) {
  EXPECT_EQ(rechne("5/0+"), QStringLiteral("Fehler"));
}

TEST(Rechenwerk, NullDurchFünfIstNull) { EXPECT_EQ(rechne("0/5="), QStringLiteral("0")); }

TEST(Rechenwerk, ZuGroßeZahlZeigtFehler) {
  EXPECT_EQ(rechne("999999999999999*999="), QStringLiteral("Fehler"));
}

TEST(Rechenwerk, MehrAlsFünfzehnZiffernWerdenNichtAngenommen) {
  EXPECT_EQ(rechne("1234567890123456789"), QStringLiteral("123456789012345"));
}

TEST(Rechenwerk, RücktasteNimmtDieLetzteStelle) {
  EXPECT_EQ(rechne("12,5<"), QStringLiteral("12,"));
  EXPECT_EQ(rechne("12,5<<<<"), QStringLiteral("0"));
  EXPECT_EQ(rechne("12,5<<<<<<7"), QStringLiteral("7"));
}

TEST(Rechenwerk, ZweitesKommaZähltNicht) { EXPECT_EQ(rechne("1,2,3"), QStringLiteral("1,23")); }

TEST(Rechenwerk, KommaZuerstWirdNullKomma) { EXPECT_EQ(rechne(",5+,5="), QStringLiteral("1")); }

TEST(Rechenwerk, FührendeNullenVerschwinden) { EXPECT_EQ(rechne("007"), QStringLiteral("7")); }

TEST(Rechenwerk, LetzteOperationGiltWennMehrereGedrücktWerden) {
  EXPECT_EQ(rechne("8+-*/2="), QStringLiteral("4"));
}

TEST(Rechenwerk, GleichNocheinmalWiederholt) { EXPECT_EQ(rechne("2+3==="), QStringLiteral("11")); }

TEST(Rechenwerk, NachGleichBeginntEineNeueZahl) { EXPECT_EQ(rechne("2+3=9"), QStringLiteral("9")); }

TEST(Rechenwerk, MitDemErgebnisWirdWeitergerechnet) {
  EXPECT_EQ(rechne("2+3=*2="), QStringLiteral("10"));
}

TEST(Rechenwerk, SteuerKommtDazu) {
  Rechenwerk werk;
  rechne("100", werk);
  werk.steuer(19);
  EXPECT_EQ(werk.anzeige(), QStringLiteral("119"));
  rechne("C10", werk);
  werk.steuer(7);
  EXPECT_EQ(werk.anzeige(), QStringLiteral("10,7"));
}

TEST(Rechenwerk, SteuerGiltDerGezeigtenZahlInDerKette) {
  Rechenwerk werk;
  rechne("10+100", werk);
  werk.steuer(19);
  EXPECT_EQ(rechne("=", werk), QStringLiteral("129"));
}

TEST(Rechenwerk, VorgangZeigtWasOffenIst) {
  Rechenwerk werk;
  rechne("12,5+", werk);
  EXPECT_EQ(werk.vorgang(), QStringLiteral("12,5 +"));
  EXPECT_TRUE(werk.offen());
  rechne("1=", werk);
  EXPECT_EQ(werk.vorgang(), QString());
  EXPECT_FALSE(werk.offen());
}

TEST(Rechenwerk, StartwertIstDerAnfang) {
  Rechenwerk werk;
  werk.setWert(3.5);
  EXPECT_EQ(rechne("*2=", werk), QStringLiteral("7"));
  werk.setWert(3.5);
  EXPECT_EQ(rechne("8", werk), QStringLiteral("8"));
}
