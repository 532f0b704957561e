#pragma once

#include <QColor>
#include <QPalette>

class QApplication;

// The look of the program: style, colours for the system's light or dark setting, font, and German
// texts for what the toolkit itself writes. Called once at the start, after the QApplication was
// made and before the first window.
void gestalten(QApplication& anwendung);

namespace Gestaltung {

QPalette palette(bool dunkel);
bool istDunkel(const QPalette& palette);
// Text that asks for attention: a date that is none, weekends in the calendar.
QColor warnfarbe(const QPalette& palette);

}  // namespace Gestaltung
