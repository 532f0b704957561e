#pragma once

#include <QDialog>
#include <functional>

class QLabel;
class QPushButton;

// What all forms share: the given name as objectName, their course from opening to closing, the
// foot with help and close, geometry remembered per form, Esc closes, F1 opens the help topic of
// the form's name, Ctrl+Tab turns the pages, modal above its opener.
//
// A form builds its controls in its constructor, hands them to zusammensetzen() and says what it
// shows in füllen(). One with a database's handle is a Datenformular (core/forms).
class Formular : public QDialog {
 public:
  // name: the form's name, also the key of its geometry and its help topic.
  Formular(const QString& name, const QString& titel, QWidget* öffner);
  ~Formular() override;

  // A form's course: loads it, shows it modally, returns when it was closed and has let go of what
  // it took hold of. Throws what loading throws; the form isn't shown then.
  void zeigen();
  // Loading alone: takes hold and fills.
  void laden();

  // Takes the button made default (setDefault) as the one that Enter presses whenever no other
  // button has the focus, also when it was made before it stood in the form.
  void setVisible(bool sichtbar) override;

  // What F1 and the help buttons call with the topic; set once by the program.
  static void setHilfe(std::function<void(QWidget*, const QString&)> hilfe);
  void hilfeZeigen();

  // The program's other forms by the menu entry that opens them, for buttons that lead to one. Set
  // once by the program.
  struct Weiterführung {
    std::function<bool(const QString& eintrag)> gibtEs;
    std::function<void(QWidget* öffner, const QString& eintrag)> öffne;
  };
  static void setWeiterführung(Weiterführung weiter);

  // A caption label for an input: sets it as its buddy and as the input's accessible name.
  static QLabel* beschriften(const QString& text, QWidget* eingabe);

 protected:
  // ---- what a form may override ----

  virtual void ergreifen() {}  // opens what it needs while it is shown
  virtual void füllen() {}     // what it shows
  virtual void loslassen() {}  // lets go of what it has taken hold of
  virtual void schließen();    // the foot's button: rejects

  // ---- what a form is put together from ----

  // The row at the bottom: on its left what the form adds, on its right Hilfe and Schließen, under
  // the names that they have in this form.
  struct Fuß {
    QList<QWidget*> links = {};
    QString hilfe = QStringLiteral("hilfe");  // empty: there is none
    QString schließen = QStringLiteral("schließen");
    QString wort = QStringLiteral("&Schließen");
    bool ohneEnter = false;  // Enter goes to the form's default button, also from the foot
  };
  // The content takes the room that the foot leaves.
  void zusammensetzen(QWidget* inhalt, const Fuß& fuß);
  // The Tab key goes from one to the next, then through the foot; behind that to what comes last.
  void setTabfolge(QList<QWidget*> folge, const QList<QWidget*>& zuletzt = {});
  // The size at its first opening: so many average characters wide and so many lines high, no less
  // than the content needs and no more than the screen has. Without it the content alone decides.
  void setWunschgröße(int zeichen, int zeilen);
  // A button that opens the form of a menu entry; it can't be pressed as long as there is none.
  void führtZu(QPushButton* knopf, const QString& eintrag);
  // Whether the program has the form of a menu entry.
  static bool gibtEs(const QString& eintrag);
  // Opens that form; nothing happens as long as there is none.
  void öffnen(const QString& eintrag);

  QPushButton* hilfeknopf() const { return m_hilfeknopf; }
  QPushButton* schließknopf() const { return m_schließknopf; }

  void keyPressEvent(QKeyEvent* event) override;
  void done(int ergebnis) override;

 private:
  void vorgabeFestmachen();
  void hinstellen();
  void messbarMachen();

  QByteArray m_lage;  // size and place when it was closed last
  QSize m_wunsch;     // in characters and lines
  bool m_hingestellt = false;
  bool m_vorgabeFest = false;
  QList<QWidget*> m_fuß;
  QPushButton* m_hilfeknopf = nullptr;
  QPushButton* m_schließknopf = nullptr;
};

// Column widths, geometry and splits of windows, by key, in one file of the program folder.
namespace Fensterablage {
void setDatei(const QString& pfad);  // empty: nothing is kept
QVariant lesen(const QString& schlüssel);
void schreiben(const QString& schlüssel, const QVariant& wert);
}  // namespace Fensterablage
