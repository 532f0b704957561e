#include "platform/locale/Dezimalsumme.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "platform/locale/Deutsch.h"

namespace {

double mal(int anzahl, double teil) {
  Dezimalsumme summe;
  for (int i = 0; i < anzahl; ++i) summe.dazu(teil);
  return summe.wert();
}

TEST(Dezimalsummen, EineGeleerteChargeIstNull) {
  EXPECT_EQ(Dezimalsumme::von({10, -3.3, -3.3, -3.4}), 0);
  EXPECT_EQ(Dezimalsumme::von({223.7, -223}), 0.7);
  EXPECT_EQ(Dezimalsumme::von({1.1, -1}), 0.1);
  EXPECT_EQ(Dezimalsumme::von({0.1, 0.2}), 0.3);
  EXPECT_EQ(Dezimalsumme::von({}), 0);
  EXPECT_FALSE(std::signbit(Dezimalsumme::von({-1.5, 1.5})));
}

TEST(Dezimalsummen, VieleTeileGebenIhreDezimalsumme) {
  EXPECT_EQ(mal(10, 0.1), 1);
  EXPECT_EQ(mal(2'000'000, 0.1), 200000);
  EXPECT_EQ(mal(3, 3.3333333), 9.9999999);  // nine digits, as a field of single precision holds
  EXPECT_EQ(mal(1'000'000, 0.0333333), 33333.3);
  EXPECT_EQ(mal(1000, 0.000000000001), 0.000000001);
}

TEST(Dezimalsummen, GroßeBeträgeBehaltenIhreCent) {
  EXPECT_EQ(Dezimalsumme::von({12'345'678'901.23, 0.01}), 12'345'678'901.24);
  EXPECT_EQ(Dezimalsumme::von({922'337'203'685'477.5, -922'337'203'685'477.5}), 0);
  EXPECT_EQ(mal(1000, 8'000'000'000.5), 8'000'000'000'500.0);
  EXPECT_EQ(mal(3'000, -8'000'000'000.5), -24'000'000'001'500.0);
  EXPECT_EQ(Dezimalsumme::von({9000.000001, 0.000000000001, -9000.000001}), 0.000000000001);
}

TEST(Dezimalsummen, WasKeineKurzeDezimalzahlIstWirdNachDemGrößtenTeilGerundet) {
  const double drittel = 10 / 3.0;
  EXPECT_EQ(Dezimalsumme::von({10, -drittel, -drittel, -drittel}), 0);
  EXPECT_EQ(Dezimalsumme::von({1e15, 0.1 + 0.2, -1e15}), 0);
  EXPECT_EQ(Dezimalsumme::von({0.1 + 0.2}), 0.3);
}

TEST(Dezimalsummen, UnendlichesBleibtUnendlich) {
  const double unendlich = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Dezimalsumme::von({unendlich, 1, 2.5}), unendlich);
  EXPECT_EQ(Dezimalsumme::von({1e308, 1e308}), unendlich);
  EXPECT_EQ(Dezimalsumme::von({1e308, -1e308, 0.1}), 0);
}

// Against a count of the smallest units.
TEST(Dezimalsummen, ZufälligeDezimalzahlenGebenDieSummeIhrerKleinstenEinheiten) {
  std::mt19937 zufall(5);
  for (int lauf = 0; lauf < 300; ++lauf) {
    const int stellen = lauf % 7;
    const double einheit = std::pow(10.0, stellen);
    Dezimalsumme summe;
    qint64 einheiten = 0;
    for (int i = 0; i < 200; ++i) {
      const qint64 teil = static_cast<qint64>(zufall() % 2'000'000'000) - 1'000'000'000;
      einheiten += teil;
      summe.dazu(static_cast<double>(teil) / einheit);
    }
    ASSERT_EQ(summe.wert(), static_cast<double>(einheiten) / einheit) << lauf;
  }
}

}  // namespace
