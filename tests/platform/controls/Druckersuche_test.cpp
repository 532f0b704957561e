#include "platform/controls/Druckersuche.h"

#include <gtest/gtest.h>

#include <QSemaphore>
#include <memory>
#include <stdexcept>

namespace {

using namespace std::chrono_literals;

TEST(Druckersuche, GibtDieAntwortWeiter) {
  EXPECT_EQ(Druckersuche::antwort([] { return true; }, 10s), std::optional(true));
  EXPECT_EQ(Druckersuche::antwort([] { return false; }, 10s), std::optional(false));
}

TEST(Druckersuche, GescheiterteFrageGibtKeineAntwort) {
  EXPECT_EQ(Druckersuche::antwort([]() -> bool { throw std::runtime_error("kein Dienst"); }, 10s),
            std::nullopt);
}

TEST(Druckersuche, WartetNichtAufEinenStummenDienst) {
  const auto frei = std::make_shared<QSemaphore>();
  const auto fertig = std::make_shared<QSemaphore>();
  const auto stumm = [frei, fertig] {
    frei->tryAcquire(1, 60000);
    fertig->release();
    return false;
  };
  EXPECT_EQ(Druckersuche::antwort(stumm, 20ms), std::nullopt);
  EXPECT_EQ(fertig->available(), 0);
  frei->release();
  EXPECT_TRUE(fertig->tryAcquire(1, 60000));  // its late answer goes nowhere
}

TEST(Druckersuche, FristIstEineViertelsekunde) { EXPECT_EQ(Druckersuche::Frist, 250ms); }

}  // namespace
