#pragma once

#include <QString>

class QDialog;
class QBoxLayout;
class QPushButton;
class QWidget;

// Pieces that many forms are made of. Their texts carry the mnemonic's "&".
namespace Bauteile {

// Gives a control its name, in passing.
template <typename Control>
Control* benannt(Control* control, const QString& name) {
  control->setObjectName(name);
  return control;
}

// A button that Enter presses while it has the focus.
QPushButton* knopf(const QString& text, const QString& name, const QString& hinweis = {});
// One that leaves Enter to the form's default button.
QPushButton* knopfOhneEnter(const QString& text, const QString& name);

// The row ok (default) and schliessen of a small question at the end of its layout; they accept and
// reject the dialog. Returns ok.
QPushButton* okUndSchliessen(QDialog* dialog, QBoxLayout* seite);

// The window over which a box or a dialog appears: that of the given control, else the active one.
QWidget* fensterDarunter(QWidget* ueber);

}  // namespace Bauteile
