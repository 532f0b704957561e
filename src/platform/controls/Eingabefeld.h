#pragma once

#include <QLineEdit>
#include <QStringList>
#include <functional>
#include <optional>

class Auswahlliste;
class QAction;

// The one entry field of all forms: text, number, date or choice. Limits are kept while typing and
// while pasting; line breaks and tabs in pasted text become blanks. F4, Alt+Down and the button
// open the pick list, the calendar or the calculator.
//
// A pasted text that is too long is cut to the room there is; a pasted number or date is taken
// whole or refused whole, with a beep. A point typed into a decimal number becomes its comma.
class Eingabefeld : public QLineEdit {
  Q_OBJECT

 public:
  enum class Art { Text, Dezimal, Ganzzahl, Datum, TagMonat, Auswahl };

  struct Beschreibung {
    Art art = Art::Text;
    int maxLaenge = 0;          // characters, 0 for no limit
    int nachkommastellen = 0;   // Dezimal
    std::optional<qint64> bis;  // Ganzzahl: from 0 to this
    QString ersterText;
    QString einheit;        // shown behind the text, as "€"
    QStringList auswahl;    // Auswahl: the only texts allowed
    bool ohneNull = false;  // Ganzzahl: from 1 on
  };

  explicit Eingabefeld(QWidget* eltern = nullptr);

  // Dresses the field anew and puts the first text in. A pick list from before is gone.
  void einrichten(const Beschreibung& beschreibung);
  const Beschreibung& beschreibung() const { return m_beschreibung; }
  Art art() const { return m_beschreibung.art; }

  // The pick list: texts offered for completion and by the button (or Alt+Down); free text stays
  // allowed.
  void setListe(const QStringList& texte);
  const QStringList& liste() const { return m_liste; }
  void listeOeffnen();

  // Puts a text in as the program's own; longer texts are cut to maxLaenge, numbers never.
  // inhaltGeaendert is sent all the same. The rules for typing don't hold here: an old record's
  // text is shown as it is.
  void setInhalt(const QString& text);
  void setText(const QString& text) { setInhalt(text); }
  void clear() { setInhalt({}); }
  QString inhalt() const { return text(); }

  // True while the field shows a date that is none in the warning colour. What can't be completed
  // on leaving stays as it was typed.
  bool hatWarnung() const { return m_warnung; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  // How date shorthand is completed on leaving (gets the text, gives "dd.mm.yyyy" or empty), what
  // today is, and the calculator's two tax rates. Set once by the program.
  static void setDatumErgaenzer(std::function<QString(const QString&)> ergaenzer);
  static void setHeute(std::function<QDate()> heute);
  static void setSteuersaetze(std::function<std::pair<int, int>()> saetze);

 Q_SIGNALS:
  void inhaltGeaendert(const QString& text);   // by typing or by the program
  void verlassen();                            // focus went elsewhere, after completion
  void ausListeGewaehlt(const QString& text);  // by the list or, in a choice, by its first letter

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void abschliessen();  // completes a date on leaving
  void kalenderOeffnen();
  void rechnerOeffnen();
  void aufklappen();  // what the button does
  bool rechnerUebernehmen(double wert);
  bool zeichenTippen(const QKeyEvent& event);
  void waehlen(const QString& text);
  void knopfEinrichten();
  void pruefeWarnung();
  void setWarnung(bool ja);
  int breiteFuer(int zeichen) const;
  Auswahlliste* aufklappliste();
  const QStringList& angebot() const;  // the texts to choose from

  class Waechter;  // judges each change of the text
  Beschreibung m_beschreibung;
  QStringList m_liste;
  QAction* m_knopf = nullptr;
  Auswahlliste* m_aufklappliste = nullptr;
  QString m_vorher;  // the last accepted text
  bool m_vomProgramm = false;
  bool m_warnung = false;
};
