#pragma once

#include "core/forms/Datenformular.h"
#include "evaluations/Auswertung.h"

class Auswertungseingaben;
class Fortschrittsbalken;
class Grid;
class QLabel;
class QPushButton;

// The window of an evaluation, made from its description: inputs that keep their values in slots,
// the colony choice with the main list's current row, the check with all reasons in one box, the
// run with its progress, the hand-over to the intermediate list or to the text output. A window
// that is closed while it runs closes after the run, without a hand-over.
class Auswertungsformular : public Datenformular {
 public:
  Auswertungsformular(Auswertung::Beschreibung beschreibung, QWidget* öffner);

  const Auswertung::Beschreibung& beschreibung() const { return m_beschreibung; }
  // What the inputs hold.
  Auswertung::Eingaben eingaben() const;

 protected:
  void füllen() override;
  void done(int ergebnis) override;

 private:
  void aufbauen();
  QWidget* inhaltBauen();
  QList<QWidget*> fußBauen();
  QWidget* ergebnisBauen();
  void standardFestlegen();
  void volkZeigen();
  void geändert(const QString& name);
  void merken(const Auswertung::Eingaben& eingaben);
  void befehl(const QString& name);
  void tun(const Auswertung::Befehl& befehl);
  void laufe(const Auswertung::Befehl& befehl);
  // What is right before a run and what the run changes in the inputs. False: it doesn't run.
  bool bereit(const QString& befehl, Auswertung::Eingaben& eingaben);
  void übergeben(const Auswertung::Ergebnis& ergebnis);
  void ergebnisZeigen(const Auswertung::Ergebnis& ergebnis);

  const Auswertung::Beschreibung m_beschreibung;
  Auswertung::Eingaben m_angebot;  // what the lists offer
  Auswertung::Eingaben m_stand;    // as the inputs were answered last
  Auswertungseingaben* m_eingaben = nullptr;
  Grid* m_ergebnis = nullptr;
  QLabel* m_ergebnistitel = nullptr;
  Fortschrittsbalken* m_meter = nullptr;
  bool m_schließtNachher = false;
};

// The form of one evaluation, for the list of forms.
template <auto Beschreibung>
class Auswertungsform : public Auswertungsformular {
 public:
  explicit Auswertungsform(QWidget* öffner) : Auswertungsformular(Beschreibung(), öffner) {}
};
