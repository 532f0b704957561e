#pragma once

#include <array>

#include "core/forms/Datenformular.h"
#include "planning/Terminverwaltung.h"

class Eingabefeld;
class Grid;
class QGridLayout;
class QLabel;
class QPushButton;
class QRadioButton;

// The calendar: lists and filters the appointments in two views and lets the user add, change and
// delete them.
class TV_Terminverwaltung : public Datenformular {
 public:
  explicit TV_Terminverwaltung(QWidget* öffner = nullptr);

 protected:
  void füllen() override;  // first values, pick lists, the list
  void keyPressEvent(QKeyEvent* event) override;

 private:
  enum Slot : size_t {
    Datum,
    Termin,
    Erledigt,
    NurVolk,
    NurTermin,
    NurErledigt,
    Von,
    Bis,
    Volk,
    InTagen,
    Standort
  };

  void aufbauen();
  QWidget* filterBauen();
  QWidget* terminBauen();
  QWidget* knöpfeBauen();
  void reihenfolgeSetzen();
  void setzen(QGridLayout* gitter, int zeile, int spalte, size_t index, const QString& titel);
  void verbinden();
  void filterVerbinden();

  void einrichten();      // the inputs as they are at first
  void listenFüllen();    // pick lists
  void eingabenSetzen();  // after a write
  void filterPrüfen(size_t index);
  void listeLesen();
  void listeNeuLesen(qint64 id, bool eingabenBehalten);
  void zeileZeigen(int zeile);
  void tageGeändert();
  void datumGeändert();
  void speichern(bool neuerTermin);
  void gespeichertesZeigen(qint64 id);
  qint64 amStandortEintragen(const Terminverwaltung::Eingabe& daten);
  void terminLöschen();
  void erledigteLöschen();
  void aktuelleTermine();
  void aktuellSetzen(qint64 id);
  qint64 id(int zeile) const;
  Terminverwaltung::Eingabe eingabe() const;
  Terminverwaltung::Eingabe zeileneingabe(int zeile);

  std::array<QRadioButton*, 2> m_opti{};
  std::array<Eingabefeld*, 11> m_sevt{};
  std::array<QString, 11> m_gelesen;  // the filters that the list shows
  bool m_abgleich = false;            // date and days are being brought into line
  bool m_eingabenBehalten = false;    // a row becomes current without being shown
  Grid* m_litermine = nullptr;
  QLabel* m_ausgeblendet = nullptr;  // says so when a filter hides what was saved
  std::array<QPushButton*, 2> m_neu{};
  QPushButton* m_löschen = nullptr;
  QPushButton* m_lschalleerledigte = nullptr;
  QPushButton* m_ok = nullptr;
};
