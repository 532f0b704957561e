#pragma once

#include <QFont>
#include <QRectF>

#include "platform/controls/Diagramminhalt.h"

class QPainter;

// Bars with the numbers on their left, their names below and their values above them.
namespace Diagrammbalken {

void malen(QPainter& maler, const QRectF& feld, const Diagramminhalt& inhalt, const QFont& schrift);

// Whether all names stand below their bars in full, so that no legend is needed.
bool nennenAlle(const QRectF& feld, const Diagramminhalt& inhalt, const QFont& schrift);

}  // namespace Diagrammbalken
