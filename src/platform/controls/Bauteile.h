#pragma once

#include <QList>
#include <QString>

class QDialog;
class QBoxLayout;
class QLabel;
class QPushButton;
class QSplitter;
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

// A heading above a list, in bold.
QLabel* ueberschrift(const QString& text);
// A page of a tab widget: the content with the margin that a page has.
QWidget* reiterseite(QWidget* inhalt);

// Two pages side by side, neither of which can be pushed away altogether. Each gets its share of
// what the window grows by; the widths to begin with are to each other as the given ones.
struct Teilseite {
  QWidget* inhalt;
  int anteil;
  int breite;
};
QSplitter* teiler(const QString& name, const Teilseite& links, const Teilseite& rechts);

// The Tab key goes from one to the next. All must stand in the window.
void tabfolge(const QList<QWidget*>& folge);
// The window's first size: so many average characters wide and so many lines high, no less than its
// content needs and no more than the screen has.
void fenstergroesse(QWidget* fenster, int zeichen, int zeilen);

// The window over which a box or a dialog appears: that of the given control, else the active one.
// Null, which is the middle of the screen, while that window isn't shown yet.
QWidget* fensterDarunter(QWidget* ueber);

}  // namespace Bauteile
