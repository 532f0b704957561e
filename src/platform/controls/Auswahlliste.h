#pragma once

#include <QFrame>
#include <QStringList>

class QKeyEvent;
class QLineEdit;
class QListView;
class QStringListModel;

// The list that an entry field opens below itself, to choose from or to complete what is typed. The
// keyboard stays with the field, which hands its keys to taste(). A click elsewhere closes it.
class Auswahlliste : public QFrame {
  Q_OBJECT

 public:
  explicit Auswahlliste(QLineEdit* feld);

  // All texts, the given one marked; nothing is marked when it isn't among them.
  void öffnen(const QStringList& texte, const QString& aktuell);
  // The texts that begin with what was typed, none marked but the only one. Closes when nothing is
  // left to offer. Gives the only one.
  QString ergänzen(const QStringList& texte, const QString& anfang);
  // Arrows, page keys, Enter and Esc while it is open; true when the key was its own. Enter is its
  // own only on a text that the user has marked.
  bool taste(QKeyEvent* event);
  // True for the keys that taste() would take, so that no shortcut takes them first.
  bool nimmtTaste(const QKeyEvent* event) const;

  QStringList texte() const;
  QString markiert() const;
  QListView* liste() const { return m_liste; }

  // Index of the first text that begins so (letter case doesn't count), searched from behind the
  // given index round to it; -1 without one.
  static int sucheAnfang(const QStringList& texte, const QString& anfang, int hinter);

 Q_SIGNALS:
  void genommen(const QString& text);

 protected:
  bool eventFilter(QObject* objekt, QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void zeige(const QStringList& texte, int zeile);
  void anlegen();
  void setZeile(int zeile);
  void nimm(int zeile);

  QLineEdit* m_feld;
  QListView* m_liste;
  QStringListModel* m_modell;
  bool m_vonSelbst = false;  // the marked text is the only one, not the user's choice yet
};
