#pragma once

#include <QColor>
#include <QIcon>

// The small pictures on the buttons of entry fields, drawn in the given colour.
namespace Feldsymbole {

QIcon pfeil(const QColor& farbe);
QIcon kalender(const QColor& farbe);
QIcon rechner(const QColor& farbe);

}  // namespace Feldsymbole
