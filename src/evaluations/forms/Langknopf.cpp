#include "evaluations/forms/Langknopf.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int Umbruch = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

}  // namespace

QSize Langknopf::sizeHint() const {
  constexpr int Zeichen = 52;
  const int rand = fontMetrics().height();
  const QRect höchstens(0, 0, Zeichen * fontMetrics().averageCharWidth(), 10 * rand);
  return fontMetrics().boundingRect(höchstens, Umbruch, text()).size() + QSize(rand, rand / 2);
}

void Langknopf::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter maler(this);
  QStyleOptionButton wie;
  initStyleOption(&wie);
  wie.text.clear();
  maler.drawControl(QStyle::CE_PushButton, wie);
  maler.drawItemText(rect(), Umbruch, palette(), isEnabled(), text(), QPalette::ButtonText);
}
