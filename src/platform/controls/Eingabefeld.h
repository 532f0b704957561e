#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QStringList>
#include <functional>
#include <optional>

#include "platform/controls/Tippsuche.h"

class Auswahlliste;
class Feldhinweis;
class QAction;

// The one entry field of all forms: text, number, date or choice. Limits are kept while typing and
// while pasting; line breaks and tabs in pasted text become blanks. F4, Alt+Down and the button
// open the pick list, the calendar or the calculator.
//
// A pasted text that is too long is cut to the room there is; a pasted number or date is taken
// whole or refused whole, with a beep. Beside a key that it can't take the field says why. A number
// or a date then takes nothing more until the user leaves it, deletes or goes elsewhere in it, so
// that "17,5" never becomes 175.
//
// The first click and every focus that the program sets select the content. What leaving means
// happens at Enter and at a mnemonic (Alt+N) too, before the button is pressed: the only text of
// the pick list that begins with what was typed is taken, a date completed, a number put into its
// form ("1.234,5" is 1234,5) and verlassen() sent.
class Eingabefeld : public QLineEdit {
  Q_OBJECT

 public:
  enum class Art { Text, Dezimal, Ganzzahl, Datum, TagMonat, Auswahl };

  struct Beschreibung {
    Art art = Art::Text;
    int maxLänge = 0;           // characters, 0 for no limit
    int nachkommastellen = 0;   // Dezimal
    std::optional<qint64> bis;  // Ganzzahl: the greatest number
    QString ersterText;
    QString einheit;      // shown behind the text, as "€"
    QStringList auswahl;  // Auswahl: the only texts allowed
    qint64 von = 0;       // Ganzzahl: the least number; below 0 a minus sign can be typed
  };

  explicit Eingabefeld(QWidget* eltern = nullptr);
  ~Eingabefeld() override;

  // The focus, set by the program: the next key begins anew, also where the field had the focus.
  void fokussieren();

  // Dresses the field anew and puts the first text in. A pick list from before is gone.
  void einrichten(const Beschreibung& beschreibung);
  const Beschreibung& beschreibung() const { return m_beschreibung; }
  Art art() const { return m_beschreibung.art; }

  // The pick list: texts offered for completion and by the button (or Alt+Down); free text stays
  // allowed.
  void setListe(const QStringList& texte);
  const QStringList& liste() const { return m_liste; }
  void listeÖffnen();

  // Puts a text in as the program's own; longer texts are cut to maxLänge, numbers never.
  // inhaltNeu is sent all the same. The rules for typing don't hold here: an old record's
  // text is shown as it is.
  void setInhalt(const QString& text);
  void setText(const QString& text) { setInhalt(text); }
  void clear() { setInhalt({}); }
  QString inhalt() const { return text(); }

  // What the field says beside itself about a key that it couldn't take; empty when it took all.
  QString hinweis() const;

  // True while the field shows a date that is none in the warning colour. What can't be completed
  // on leaving stays as it was typed.
  bool hatWarnung() const { return m_warnung; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  // How date shorthand is completed on leaving (gets the text, gives "dd.mm.yyyy" or empty), what
  // today is, and the calculator's two tax rates. Set once by the program.
  static void setDatumErgaenzer(std::function<QString(const QString&)> ergänzer);
  static void setHeute(std::function<QDate()> heute);
  static void setSteuersätze(std::function<std::pair<int, int>()> sätze);

 Q_SIGNALS:
  void inhaltNeu(const QString& text);  // by typing or by the program
  // The focus went elsewhere, or Enter or a mnemonic was pressed; after completion.
  void verlassen();
  void ausListeGenommen(const QString& text);  // by the list or, in a choice, by typing

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void abgeben();      // what leaving does to the content
  void abschließen();  // completes a date
  void zahlSetzen();
  void vorschlagNehmen();
  void kalenderÖffnen();
  void rechnerÖffnen();
  void aufklappen();  // what the button does
  bool rechnerÜbernehmen(double wert);
  bool zeichenTippen(const QKeyEvent& event);
  void wahlTippen(const QString& zeichen);
  bool nimmtÄnderung(QString& text, int& ort);
  void zeigeHinweis(const QString& text);
  void entsperren();  // takes keys again
  void wählen(const QString& text);
  bool bietetListe() const;
  void knopfEinrichten();
  void prüfeWarnung();
  void setWarnung(bool ja);
  int breiteFür(int zeichen) const;
  Auswahlliste* aufklappliste();
  const QStringList& angebot() const;  // the texts to choose from

  class Wächter;  // judges each change of the text
  Beschreibung m_beschreibung;
  QStringList m_liste;
  QAction* m_knopf = nullptr;
  Auswahlliste* m_aufklappliste = nullptr;
  QString m_vorher;     // the last accepted text
  Tippsuche m_suche;    // in a choice
  QString m_vorschlag;  // the only text of the pick list that begins with what was typed
  QPointer<Feldhinweis> m_hinweis;
  QPoint m_klickort;
  bool m_erstklick = false;  // the focus came with the mouse button that is still down
  bool m_gesperrt = false;   // a key was refused: what follows would close the gap
  bool m_vomProgramm = false;
  bool m_warnung = false;
};
