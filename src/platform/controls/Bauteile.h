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

// The row ok (default) and schließen of a small question at the end of its layout; they accept and
// reject the dialog. Returns ok.
QPushButton* okUndSchließen(QDialog* dialog, QBoxLayout* seite);

// A heading above a list, in bold.
QLabel* überschrift(const QString& text);
// A page of a tab widget: the content with the margin that a page has.
QWidget* reiterseite(QWidget* inhalt);

// A row of controls without a margin of its own: some on the left, some on the right.
QWidget* leiste(const QList<QWidget*>& links, const QList<QWidget*>& rechts = {});
// Parts one below the other, without a margin of their own. One with a share takes the room that
// the others leave, and gives way before they do.
struct Teil {
  QWidget* inhalt;
  int anteil = 0;
};
QWidget* untereinander(const QList<Teil>& teile);

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
void fenstergröße(QWidget* fenster, int zeichen, int zeilen);

// The window over which a box or a dialog appears: that of the given control, else the active one.
// Null, which is the middle of the screen, while that window isn't shown yet.
QWidget* fensterDarunter(QWidget* über);

}  // namespace Bauteile
