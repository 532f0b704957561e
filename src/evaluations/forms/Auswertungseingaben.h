#pragma once

#include <QHash>
#include <QWidget>

#include "evaluations/Auswertung.h"

class QBoxLayout;
class QPushButton;

// The inputs of an evaluation's window, made from their description: groups in columns, each input
// under its name. They hold what the user sees; lesen() and zeigen() go between them and Eingaben.
class Auswertungseingaben : public QWidget {
 public:
  using Änderung = std::function<void(const QString& name)>;
  using Befehlsruf = std::function<void(const QString& name)>;

  // geändert: an input was changed by the user, a text left. befehl: a button or a double click.
  Auswertungseingaben(const QList<Auswertung::Gruppe>& gruppen, QWidget* formular,
                      Änderung geändert, Befehlsruf befehl);

  // Fills the lists, all or those that depend on an input, and tells the inputs what they offer.
  // What was chosen stays chosen where it is offered again.
  void listenFüllen(Database& db, Auswertung::Eingaben& eingaben, const QString& nurVon = {});
  // What the controls show, added to the inputs.
  void lesen(Auswertung::Eingaben& eingaben) const;
  void zeigen(const Auswertung::Eingaben& eingaben);

  // All controls that the Tab key stops at, in the order of the groups.
  QList<QWidget*> tabfolge() const { return m_tabfolge; }
  // The caption and use of the fifth colony choice; without a colony it can't be chosen.
  void setVolk(bool gibtEs, const QString& beschriftung);

 protected:
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  struct Reihe;  // where the next input of a group goes
  QWidget* gruppeBauen(const Auswertung::Gruppe& gruppe);
  void eingabeBauen(const Auswertung::Eingabe& e, const Auswertung::Gruppe& gruppe, Reihe& reihe);
  void optionenBauen(const Auswertung::Eingabe& e, Reihe& reihe);
  QWidget* controlBauen(const Auswertung::Eingabe& e);
  QWidget* feldBauen(const Auswertung::Eingabe& e);
  QWidget* listeBauen(const Auswertung::Eingabe& e);
  void nächsterBauen(Reihe& reihe);
  void alleKeineBauen(Reihe& reihe);
  void alleSetzen(bool an);
  void gemeldet(const QString& name);
  void leseEingabe(const Auswertung::Eingabe& e, Auswertung::Eingaben& eingaben) const;
  void zeigeEingabe(const Auswertung::Eingabe& e, const Auswertung::Eingaben& eingaben);
  void zeigeOption(const Auswertung::Eingabe& e, int wahl);
  void jede(const std::function<void(const Auswertung::Eingabe&)>& aktion) const;

  QList<Auswertung::Gruppe> m_gruppen;
  QWidget* m_formular;
  Änderung m_geändert;
  Befehlsruf m_befehl;
  QHash<QString, QWidget*> m_controls;         // by name; of options "name_0" and on
  QHash<QString, QBoxLayout*> m_optionsreihe;  // of an option: where its inputs stand
  QHash<QWidget*, std::pair<QString, int>> m_fokusWählt;
  QList<QWidget*> m_tabfolge;
  QList<QPushButton*> m_nächster;
  bool m_zeigt = false;
};
