#pragma once

#include <array>

#include "colonies/Selektion.h"
#include "platform/controls/Formular.h"

class Eingabefeld;
class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;

// The form that selects colonies by rule. It stays open, so that rules can be combined; each click
// reads hauptliste() anew. Its two check boxes are slots 53 and 52 of EinstellungenZahl.
class TV_Selektieren : public Formular {
 public:
  explicit TV_Selektieren(QWidget* oeffner = nullptr);

  // Shows the form modally and returns when it was closed. Throws Datenbankfehler when it can't be
  // loaded; it isn't shown then.
  void zeigen();
  // Loading alone: check boxes, empty inputs, pick lists, the count.
  void laden();

 protected:
  void done(int ergebnis) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  void aufbauen();
  QWidget* vorgabenBauen();
  QWidget* regelnBauen();
  void regelBauen(int index, QGridLayout* gitter, int zeile, int spalte);
  void zahlBauen(QGridLayout* gitter, int zeile);
  QWidget* anzahlBauen();
  QWidget* fussBauen();
  void verbinden();
  void reihenfolgeSetzen();

  void eingabenLeeren();
  void listenFuellen();
  void anzahlZeigen();
  void selektieren(int index);

  Database m_db;
  std::array<QCheckBox*, 2> kon{};
  std::array<Eingabefeld*, Selektion::SevtAnzahl> sevt{};
  std::array<QPushButton*, 9> entselekt{};
  QLabel* anzahl = nullptr;
  QPushButton* comhilfe = nullptr;
  QPushButton* schliessen = nullptr;
};
