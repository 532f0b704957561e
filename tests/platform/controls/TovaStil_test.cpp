#include "platform/controls/TovaStil.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QToolTip>

namespace {

// How wide the ink of a menu's only entry is.
int tintenbreite(QMenu& menü) {
  const QImage bild = menü.grab().toImage();
  const QRect fläche = menü.actionGeometry(menü.actions().first()).adjusted(3, 3, -3, -3);
  int links = fläche.right(), rechts = 0;
  for (int x = fläche.left(); x <= fläche.right(); ++x)
    for (int y = fläche.top(); y <= fläche.bottom(); ++y)
      if (bild.pixelColor(x, y).lightness() < 100) {
        links = std::min(links, x);
        rechts = std::max(rechts, x);
      }
  return rechts - links;
}

void prüfe(const QString& text) {
  TovaStil stil;
  QMenu menü;
  menü.setStyle(&stil);
  menü.addAction(text);
  menü.ensurePolished();
  menü.resize(menü.sizeHint());
  const int eng = tintenbreite(menü);
  menü.setMinimumWidth(menü.sizeHint().width() + 100);
  menü.resize(menü.sizeHint());
  EXPECT_GT(eng, 50);
  EXPECT_EQ(eng, tintenbreite(menü)) << text.toStdString();
}

TEST(TovaStil, DerLängsteMenüeintragStehtGanzDa) {
  prüfe("Markierte Völker &selektieren");
  prüfe("& D.I.B Gewährleistungsverschlüsse");
}

// What the user typed ("<b>Anna</b>", "a<br>b") is shown as it was typed.
TEST(TovaStil, EinTippZeigtSeinenTextUndKeineAuszeichnung) {
  QWidget fenster;
  fenster.resize(300, 100);
  fenster.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&fenster));
  QToolTip::showText(fenster.mapToGlobal(QPoint(10, 10)), QStringLiteral("<b>Anna</b><br>2"),
                     &fenster);
  const QLabel* tipp = nullptr;
  for (const QWidget* w : QApplication::topLevelWidgets())
    if (w->inherits("QTipLabel")) tipp = qobject_cast<const QLabel*>(w);
  ASSERT_NE(tipp, nullptr);
  EXPECT_EQ(tipp->text(), QStringLiteral("<b>Anna</b><br>2"));
  EXPECT_EQ(tipp->textFormat(), Qt::PlainText);
  QToolTip::hideText();
}

}  // namespace
