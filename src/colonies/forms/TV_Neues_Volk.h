#pragma once

#include <array>

#include "colonies/Volkeingabe.h"
#include "core/forms/Datenformular.h"

class Eingabefeld;
class QCheckBox;
class QFormLayout;
class QPushButton;
class QTabWidget;

// The form that creates and changes a colony. The opener sets VolkModus ("Neu", "Ändern") and calls
// zeigen(); "Ändern" works on the current row of hauptliste(). On return ListeNeuLesen tells
// whether something was saved.
class TV_Neues_Volk : public Datenformular {
 public:
  explicit TV_Neues_Volk(QWidget* öffner = nullptr);

 protected:
  void füllen() override;  // by VolkModus: pick lists, inputs, first tab

 private:
  void aufbauen();
  QWidget* reiterBauen(int nummer);
  QWidget* gruppeBauen(int nummer);
  void feldBauen(const Volkfeld& f, QFormLayout* zeilen);
  void knöpfeBauen();
  void knöpfeVerbinden();
  void reihenfolgeSetzen();

  void listenFüllen();
  void datenLaden();
  void zeigeEingabe(const Volkeingabe& eingabe);
  Volkeingabe eingabe() const;
  Eingabefeld* feld(const Volkfeld& f) const;
  void fokusAuf(Eingabefeld* feld);  // on its tab
  Eingabefeld* erstesFeld(int reiterNummer) const;

  bool speichern();  // checks first; false when it told reasons
  void speichernUndWeiter(int index);
  void standardSichern();
  bool istNeu() const;

  qint64 m_id = 0;        // of the loaded colony; 0 for a new one
  Volkeingabe m_geladen;  // the inputs as they were on loading
  std::array<Eingabefeld*, SevtAnzahl> m_sevt{};
  std::array<Eingabefeld*, SevtxAnzahl> m_sevtx{};
  QCheckBox* m_kon = nullptr;
  QTabWidget* m_reiter = nullptr;
  QPushButton* m_ok = nullptr;
  std::array<QPushButton*, 2> m_oknächster{};
  QPushButton* m_standard = nullptr;
};

// Asks whether the current colony of hauptliste() is to be deleted (No is the default) and deletes
// it with all its bookings and appointments, and its row in the list. True when it was deleted.
// Throws Datenbankfehler.
bool volkLöschenMitFrage(QWidget* fenster);
