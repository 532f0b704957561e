#pragma once

#include <QProxyStyle>

// Fusion with a frame two pixels wide around what has the keyboard, lines that can be seen on a
// dark ground, a little air in lists and calm pictures in the message boxes. In a table numbers
// keep clear of the text in the next column. Tool tips are text: what the user has typed is shown
// in them as typed, also "<b>".
class TovaStil : public QProxyStyle {
 public:
  TovaStil();

  // The room on the right of a table's numbers and their heading, besides the usual one.
  static int zahlenrand(const QFontMetrics& schrift);

  using QProxyStyle::polish;
  void polish(QWidget* fenster) override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* maler,
                     const QWidget* fenster) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* maler,
                   const QWidget* fenster) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* fenster) const override;
  QSize sizeFromContents(ContentsType inhalt, const QStyleOption* option, const QSize& größe,
                         const QWidget* fenster) const override;
  int pixelMetric(PixelMetric mass, const QStyleOption* option,
                  const QWidget* fenster) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* fenster,
                QStyleHintReturn* zurück) const override;
  QIcon standardIcon(StandardPixmap symbol, const QStyleOption* option,
                     const QWidget* fenster) const override;
};
