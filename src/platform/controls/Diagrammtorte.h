#pragma once

#include <QFont>
#include <QRectF>

#include "platform/controls/Diagramminhalt.h"

class QPainter;

// A pie, lying flat or seen from the side with its depth. On its slices stand the values that find
// room there, around it the numbers of the points where they are numbered.
namespace Diagrammtorte {

void malen(QPainter& maler, const QRectF& feld, const Diagramminhalt& inhalt, const QFont& schrift);

}  // namespace Diagrammtorte
