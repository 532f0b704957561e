#pragma once

#include <array>

#include "colonies/Volkeingabe.h"
#include "platform/controls/Formular.h"

class Eingabefeld;
class QCheckBox;
class QFormLayout;
class QPushButton;
class QTabWidget;

// The form that creates and changes a colony. The opener sets VolkModus ("Neu", "Ändern") and calls
// zeigen(); "Ändern" works on the current row of hauptliste(). On return ListeNeuLesen tells
// whether something was saved.
class TV_Neues_Volk : public Formular {
 public:
  explicit TV_Neues_Volk(QWidget* oeffner = nullptr);

  // Loads by VolkModus, shows the form modally and returns when it was closed. Throws
  // Datenbankfehler or Dateifehler when it can't be loaded; it isn't shown then.
  void zeigen();
  // Loading alone: pick lists, inputs, first tab.
  void laden();

 private:
  void aufbauen();
  QWidget* reiterBauen(int nummer);
  QWidget* gruppeBauen(int nummer);
  void feldBauen(const Volkfeld& f, QFormLayout* zeilen);
  QWidget* knoepfeBauen();
  void knoepfeVerbinden();
  void reihenfolgeSetzen();

  void listenFuellen();
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

  Database m_db;
  qint64 m_id = 0;        // of the loaded colony; 0 for a new one
  Volkeingabe m_geladen;  // the inputs as they were on loading
  std::array<Eingabefeld*, SevtAnzahl> sevt{};
  std::array<Eingabefeld*, SevtxAnzahl> sevtx{};
  QCheckBox* kon = nullptr;
  QTabWidget* reiter = nullptr;
  QPushButton* ok = nullptr;
  std::array<QPushButton*, 2> oknächster{};
  QPushButton* standard = nullptr;
  QPushButton* comhilfe = nullptr;
  QPushButton* cmdabbrechen = nullptr;
};

// Asks whether the current colony of hauptliste() is to be deleted (No is the default) and deletes
// it with all its bookings and appointments, and its row in the list. True when it was deleted.
// Throws Datenbankfehler.
bool volkLoeschenMitFrage(QWidget* fenster);
