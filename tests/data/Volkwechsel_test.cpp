#include <gtest/gtest.h>

#include "data/helpers.h"
#include "gemeinsam/Testliste.h"

namespace {

class Volkwechsel : public testing::Test {
 protected:
  static QList<QHash<QString, QString>> völker(int anzahl) {
    QList<QHash<QString, QString>> zeilen;
    for (int i = 1; i <= anzahl; ++i)
      zeilen += QHash<QString, QString>{{QStringLiteral("ID"), QString::number(i)}};
    return zeilen;
  }
};

TEST_F(Volkwechsel, VorwärtsUndZurückUmEineZeile) {
  Testliste liste(völker(3));
  VolkWechseln(1);
  EXPECT_EQ(liste.aktuelleZeile(), 1);
  VolkWechseln(0);
  EXPECT_EQ(liste.aktuelleZeile(), 0);
}

TEST_F(Volkwechsel, VorDerErstenKommtDieLetzte) {
  Testliste liste(völker(3));
  VolkWechseln(0);
  EXPECT_EQ(liste.aktuelleZeile(), 2);
}

TEST_F(Volkwechsel, HinterDerLetztenKommtDieErste) {
  Testliste liste(völker(3));
  liste.setAktuelleZeile(2);
  VolkWechseln(1);
  EXPECT_EQ(liste.aktuelleZeile(), 0);
}

TEST_F(Volkwechsel, EinEinzigesVolkBleibt) {
  Testliste liste(völker(1));
  VolkWechseln(1);
  EXPECT_EQ(liste.aktuelleZeile(), 0);
  VolkWechseln(0);
  EXPECT_EQ(liste.aktuelleZeile(), 0);
}

TEST_F(Volkwechsel, LeereListeBleibtOhneZeile) {
  Testliste liste(völker(0));
  VolkWechseln(1);
  VolkWechseln(0);
  EXPECT_EQ(liste.aktuelleZeile(), -1);
}

TEST_F(Volkwechsel, OhneAktuelleZeileBeginntEsAmEnde) {
  Testliste liste(völker(3));
  liste.setAktuelleZeile(-1);
  VolkWechseln(1);
  EXPECT_EQ(liste.aktuelleZeile(), 0);
  liste.setAktuelleZeile(-1);
  VolkWechseln(0);
  EXPECT_EQ(liste.aktuelleZeile(), 2);
}

}  // namespace
