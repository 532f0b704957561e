#include "platform/controls/Feldsymbole.h"

#include <QPainter>
#include <QPixmap>
#include <functional>

namespace {

constexpr int Kante = 16;

// Draws in a field of 16 by 16 for screens of one, two and three dots a point.
QIcon zeichne(const QColor& farbe, const std::function<void(QPainter&)>& bild) {
  QIcon symbol;
  for (const int faktor : {1, 2, 3}) {
    QPixmap fläche(Kante * faktor, Kante * faktor);
    fläche.fill(Qt::transparent);
    QPainter maler(&fläche);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.scale(faktor, faktor);
    maler.setPen(QPen(farbe, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    bild(maler);
    maler.end();
    fläche.setDevicePixelRatio(faktor);
    symbol.addPixmap(fläche);
  }
  return symbol;
}

}  // namespace

namespace Feldsymbole {

QIcon pfeil(const QColor& farbe) {
  return zeichne(farbe, [](QPainter& m) {
    m.setPen(QPen(m.pen().color(), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    m.drawPolyline(QPolygonF{{4.5, 6.5}, {8, 10}, {11.5, 6.5}});
  });
}

QIcon kalender(const QColor& farbe) {
  return zeichne(farbe, [&farbe](QPainter& m) {
    m.drawRoundedRect(QRectF(2.5, 3.5, 11, 10), 1.5, 1.5);
    m.drawLine(QPointF(5.5, 2), QPointF(5.5, 4.5));
    m.drawLine(QPointF(10.5, 2), QPointF(10.5, 4.5));
    m.drawLine(QPointF(2.5, 6.5), QPointF(13.5, 6.5));
    m.setBrush(farbe);
    m.setPen(Qt::NoPen);
    for (const double y : {8.2, 10.8})
      for (const double x : {4.3, 7.2, 10.1}) m.drawRect(QRectF(x, y, 1.5, 1.5));
  });
}

QIcon rechner(const QColor& farbe) {
  return zeichne(farbe, [&farbe](QPainter& m) {
    m.drawRoundedRect(QRectF(3.5, 1.5, 9, 13), 1.5, 1.5);
    m.drawRect(QRectF(5.5, 3.7, 5, 2.1));
    m.setBrush(farbe);
    m.setPen(Qt::NoPen);
    for (const double y : {8.0, 11.0})
      for (const double x : {5.0, 7.4, 9.8}) m.drawRect(QRectF(x, y, 1.4, 1.4));
  });
}

}  // namespace Feldsymbole
