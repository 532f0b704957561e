#pragma once

#include <array>

#include "colonies/Selektion.h"
#include "core/forms/Datenformular.h"

class Eingabefeld;
class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;

// The form that selects colonies by rule. It stays open, so that rules can be combined; each click
// reads hauptliste() anew. Its two check boxes are slots 53 and 52 of EinstellungenZahl.
class TV_Selektieren : public Datenformular {
 public:
  explicit TV_Selektieren(QWidget* öffner = nullptr);

 protected:
  void füllen() override;  // check boxes, empty inputs, pick lists, the count
  void done(int ergebnis) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  void aufbauen();
  QWidget* vorgabenBauen();
  QWidget* regelnBauen();
  void regelBauen(int index, QGridLayout* gitter, int zeile, int spalte);
  void zahlBauen(QGridLayout* gitter, int zeile);
  QWidget* anzahlBauen();
  void verbinden();
  void reihenfolgeSetzen();

  void eingabenLeeren();
  void listenFüllen();
  void anzahlZeigen();
  void selektieren(int index);

  std::array<QCheckBox*, 2> m_kon{};
  std::array<Eingabefeld*, Selektion::SevtAnzahl> m_sevt{};
  std::array<QPushButton*, 9> m_entselekt{};
  QLabel* m_anzahl = nullptr;
};
