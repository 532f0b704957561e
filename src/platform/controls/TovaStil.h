#pragma once

#include <QProxyStyle>

// Fusion with a frame two pixels wide around what has the keyboard, lines that can be seen on a
// dark ground, a little air in lists and calm pictures in the message boxes.
class TovaStil : public QProxyStyle {
 public:
  TovaStil();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* maler,
                     const QWidget* fenster) const override;
  int pixelMetric(PixelMetric mass, const QStyleOption* option,
                  const QWidget* fenster) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* fenster,
                QStyleHintReturn* zurueck) const override;
  QIcon standardIcon(StandardPixmap symbol, const QStyleOption* option,
                     const QWidget* fenster) const override;
};
