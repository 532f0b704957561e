#pragma once

#include <QHash>
#include <QStringList>

#include "platform/controls/Eingabefeld.h"

class Grid;
class QWidget;

// A form driven by key and mouse on named controls.

// Brings the control's page to the front.
void nachVorn(QWidget* form, QWidget* widget);
// Types over what stands in the input.
void tippeIn(QWidget* ziel, const QString& text);
// A text that the input takes; no two neighbours get the same.
QString probetext(const Eingabefeld::Beschreibung& feld, int nummer);

// Brings the control's page to the front, marks what stands in it and types.
void tippe(QWidget* form, const QString& name, const QString& text);
void drücke(QWidget* form, const QString& knopf);
void klickeZeile(Grid* grid, int zeile);

// Types a text of its kind into every input of all pages but these; check boxes and the current
// entries of lists are switched over, a combo box goes to its next entry.
// Inputs with a text given by name get that one.
void fülle(QWidget* form, const QStringList& außer, const QHash<QString, QString>& werte);
// What the inputs of all pages hold, by name; numbers as numbers are read.
QHash<QString, QString> inhalte(QWidget* form);
