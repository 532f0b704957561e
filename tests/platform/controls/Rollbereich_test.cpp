#include "platform/controls/Rollbereich.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QTest>

namespace {

// Six by ten inputs: more than the window has room for, both ways.
class RollbereichTest : public testing::Test {
 protected:
  void SetUp() override {
    auto* inhalt = new QWidget;
    auto* raster = new QGridLayout(inhalt);
    for (int i = 0; i < 60; ++i) {
      auto* feld = new QLineEdit;
      feld->setFixedSize(120, 24);
      raster->addWidget(feld, i / 6, i % 6);
      felder << feld;
    }
    bereich = std::make_unique<Rollbereich>(inhalt);
    bereich->setMinimumSize(1, 1);
    bereich->resize(300, 100);
    bereich->show();
    bereich->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(bereich.get()));
  }
  static bool ganzZuSehen(const QWidget* w) {
    return w->visibleRegion().boundingRect() == w->rect();
  }

  std::unique_ptr<Rollbereich> bereich;
  QList<QLineEdit*> felder;
};

TEST_F(RollbereichTest, WasDieTastaturHatIstGanzZuSehenNichtNurSeineSchreibmarke) {
  for (const int i : {0, 59, 5, 54, 27, 1, 58}) {
    felder[i]->setFocus();
    QApplication::processEvents();
    EXPECT_TRUE(ganzZuSehen(felder[i])) << i;
  }
}

TEST_F(RollbereichTest, EsBleibtZuSehenWennDerPlatzKleinerWird) {
  felder[32]->setFocus();
  for (const QSize größe : {QSize(600, 260), QSize(200, 260), QSize(200, 60), QSize(140, 42)}) {
    bereich->resize(größe);
    QApplication::processEvents();
    EXPECT_TRUE(ganzZuSehen(felder[32])) << größe.width() << " x " << größe.height();
  }
}

TEST_F(RollbereichTest, WasGrößerIstAlsDerPlatzFülltIhn) {
  felder[32]->setFixedSize(500, 24);
  felder[32]->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(felder[32]->visibleRegion().boundingRect().width(), bereich->viewport()->width());
}

}  // namespace
