#pragma once

#include <QList>
#include <QString>
#include <QTimer>
#include <functional>

class QWidget;

// Walks through forms as a user would: each step waits until its form is the one on top, then acts
// on it. A step may open a modal form; the next step then finds it there.
class Begleiter {
 public:
  using Aktion = std::function<void(QWidget* form)>;

  // Pictures go into this folder.
  explicit Begleiter(const QString& bildordner);

  Begleiter& schritt(const QString& form, Aktion aktion);
  // A step that only takes a picture.
  Begleiter& bild(const QString& form, const QString& name);
  void starten();
  // Empty when all steps were walked; else what the guide was waiting for.
  QString offen() const;

  void fotografieren(QWidget* form, const QString& name);

 private:
  void weiter();
  struct Schritt {
    QString form;
    Aktion aktion;
  };
  QString m_bildordner;
  QList<Schritt> m_schritte;
  qsizetype m_nächster = 0;
  int m_gewartet = 0;
  QTimer m_takt;
};

// What a user's hand does, on controls by their name. A control that isn't there or can't be
// reached ends the tour with a message.
namespace Hand {
// Replaces what stands in a field; in a list that folds out goes to the entry.
void tippen(QWidget* form, const QString& feld, const QString& text);
void drücken(QWidget* form, const QString& knopf);
void ankreuzen(QWidget* form, const QString& kästchen);  // one that is ticked stays so
void anklicken(QWidget* form, const QString& liste, const QString& text);  // an entry of a list
void wählen(QWidget* form, const QString& eintrag);                        // a menu entry
void reiterWählen(QWidget* form, const QString& reiter, int nummer);       // counts from 0
// Marks rows of a grid: a click on the first, then clicks with Ctrl.
void markieren(QWidget* form, const QString& gitter, const QList<int>& zeilen);
}  // namespace Hand
