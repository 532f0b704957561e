#include "platform/controls/TovaStil.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QTest>

namespace {

// How wide the ink of a menu's only entry is.
int tintenbreite(QMenu& menue) {
  const QImage bild = menue.grab().toImage();
  const QRect flaeche = menue.actionGeometry(menue.actions().first()).adjusted(3, 3, -3, -3);
  int links = flaeche.right(), rechts = 0;
  for (int x = flaeche.left(); x <= flaeche.right(); ++x)
    for (int y = flaeche.top(); y <= flaeche.bottom(); ++y)
      if (bild.pixelColor(x, y).lightness() < 100) {
        links = std::min(links, x);
        rechts = std::max(rechts, x);
      }
  return rechts - links;
}

void pruefe(const QString& text) {
  TovaStil stil;
  QMenu menue;
  menue.setStyle(&stil);
  menue.addAction(text);
  menue.ensurePolished();
  menue.resize(menue.sizeHint());
  const int eng = tintenbreite(menue);
  menue.setMinimumWidth(menue.sizeHint().width() + 100);
  menue.resize(menue.sizeHint());
  EXPECT_GT(eng, 50);
  EXPECT_EQ(eng, tintenbreite(menue)) << text.toStdString();
}

TEST(TovaStil, DerLaengsteMenueeintragStehtGanzDa) {
  pruefe("Markierte Völker &selektieren");
  pruefe("& D.I.B Gewährleistungsverschlüsse");
}

}  // namespace
