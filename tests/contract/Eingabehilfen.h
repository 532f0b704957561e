#pragma once

#include <QHash>
#include <QStringList>

class Grid;
class QWidget;

// A form driven by key and mouse on named controls.

// Brings the control's page to the front, marks what stands in it and types.
void tippe(QWidget* form, const QString& name, const QString& text);
void druecke(QWidget* form, const QString& knopf);
void klickeZeile(Grid* grid, int zeile);

// Types a text of its kind into every input of all pages but these; check boxes and the current
// entries of lists are switched over, a combo box goes to its next entry.
// Inputs with a text given by name get that one.
void fuelle(QWidget* form, const QStringList& ausser, const QHash<QString, QString>& werte);
// What the inputs of all pages hold, by name; numbers as numbers are read.
QHash<QString, QString> inhalte(QWidget* form);
