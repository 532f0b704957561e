#pragma once

#include <QPoint>
#include <QScreen>
#include <QWidget>

// Where a window that opens at a field goes: below it, above it where there is no room, always on
// the screen.
inline QPoint aufklappOrt(const QWidget* feld, QSize größe) {
  const QRect schirm = feld->screen()->availableGeometry();
  QPoint ort = feld->mapToGlobal(QPoint(0, feld->height()));
  if (ort.y() + größe.height() > schirm.bottom())
    ort.setY(feld->mapToGlobal(QPoint(0, 0)).y() - größe.height());
  ort.setY(std::max(schirm.top(), ort.y()));
  ort.setX(std::max(schirm.left(), std::min(ort.x(), schirm.right() - größe.width())));
  return ort;
}
