#include "platform/controls/Bauteile.h"

#include <gtest/gtest.h>

#include <QTest>

namespace {

// While the program starts the main form isn't on the screen yet: a box over it would stand where
// the form is to be created, in a corner.
TEST(Bauteile, EineMeldungStehtÜberEinemSichtbarenFensterSonstInDerMitte) {
  QWidget fenster;
  auto* feld = new QWidget(&fenster);
  EXPECT_EQ(Bauteile::fensterDarunter(feld), nullptr);
  fenster.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&fenster));
  EXPECT_EQ(Bauteile::fensterDarunter(feld), &fenster);
  fenster.hide();
  EXPECT_EQ(Bauteile::fensterDarunter(feld), nullptr);
}

}  // namespace
