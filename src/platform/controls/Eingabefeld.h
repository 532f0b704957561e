#pragma once

#include <QLineEdit>
#include <QStringList>
#include <functional>
#include <optional>

class QAction;

// The one entry field of all forms: text, number, date or choice. Limits are kept while typing and
// while pasting; line breaks and tabs in pasted text become blanks.
class Eingabefeld : public QLineEdit {
  Q_OBJECT

 public:
  enum class Art { Text, Dezimal, Ganzzahl, Datum, TagMonat, Auswahl };

  struct Beschreibung {
    Art art = Art::Text;
    int maxLaenge = 0;           // characters, 0 for no limit
    int nachkommastellen = 0;    // Dezimal
    std::optional<qint64> bis;   // Ganzzahl: from 0 to this
    QString ersterText;
    QString einheit;             // shown behind the text, as "€"
    QStringList auswahl;         // Auswahl: the only texts allowed
  };

  explicit Eingabefeld(QWidget* eltern = nullptr);

  // Dresses the field anew and puts the first text in.
  void einrichten(const Beschreibung& beschreibung);
  const Beschreibung& beschreibung() const { return m_beschreibung; }
  Art art() const { return m_beschreibung.art; }

  // The pick list: texts offered for completion and by the button (or Alt+Down); free text stays
  // allowed.
  void setListe(const QStringList& texte);
  const QStringList& liste() const { return m_liste; }
  void listeOeffnen();

  // Puts a text in as the program's own; longer texts are cut to maxLaenge. inhaltGeaendert is
  // sent all the same.
  void setInhalt(const QString& text);
  QString inhalt() const { return text(); }

  // How date shorthand is completed on leaving (gets the text, gives "dd.mm.yyyy" or empty), what
  // today is, and the calculator's two tax rates. Set once by the program.
  static void setDatumErgaenzer(std::function<QString(const QString&)> ergaenzer);
  static void setHeute(std::function<QDate()> heute);
  static void setSteuersaetze(std::function<std::pair<int, int>()> saetze);

 Q_SIGNALS:
  void inhaltGeaendert(const QString& text);  // by typing or by the program
  void verlassen();                           // focus went elsewhere, after completion
  void ausListeGewaehlt(const QString& text);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void abschliessen();     // completes a date on leaving
  void kalenderOeffnen();
  void rechnerOeffnen();

  Beschreibung m_beschreibung;
  QStringList m_liste;
  QAction* m_knopf = nullptr;
};
