#pragma once

#include <array>

#include "planning/Terminverwaltung.h"
#include "platform/controls/Formular.h"

class Eingabefeld;
class Grid;
class QGridLayout;
class QLabel;
class QPushButton;
class QRadioButton;

// The calendar: lists and filters the appointments in two views and lets the user add, change and
// delete them.
class TV_Terminverwaltung : public Formular {
 public:
  explicit TV_Terminverwaltung(QWidget* oeffner = nullptr);

  // Shows the form modally and returns when it was closed. Throws Datenbankfehler when it can't be
  // loaded; it isn't shown then.
  void zeigen();
  // Loading alone: first values, pick lists, the list.
  void laden();

 protected:
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
  QWidget* knoepfeBauen();
  QWidget* fussBauen();
  void reihenfolgeSetzen();
  void setzen(QGridLayout* gitter, int zeile, int spalte, size_t index, const QString& titel);
  void verbinden();
  void filterVerbinden();

  void einrichten();      // the inputs as they are at first
  void listenFuellen();   // pick lists
  void eingabenSetzen();  // after a write
  void filterPruefen(size_t index);
  void listeLesen();
  void listeNeuLesen(qint64 id, bool eingabenBehalten);
  void zeileZeigen(int zeile);
  void tageGeaendert();
  void datumGeaendert();
  void speichern(bool neuerTermin);
  void gespeichertesZeigen(qint64 id);
  qint64 amStandortEintragen(const Terminverwaltung::Eingabe& daten);
  void loeschen();
  void erledigteLoeschen();
  void aktuelleTermine();
  void aktuellSetzen(qint64 id);
  qint64 id(int zeile) const;
  Terminverwaltung::Eingabe eingabe() const;
  Terminverwaltung::Eingabe zeileneingabe(int zeile);

  Database m_db;
  std::array<QRadioButton*, 2> opti{};
  std::array<Eingabefeld*, 11> sevt{};
  std::array<QString, 11> m_gelesen;  // the filters that the list shows
  bool m_abgleich = false;            // date and days are being brought into line
  bool m_eingabenBehalten = false;    // a row becomes current without being shown
  Grid* litermine = nullptr;
  QLabel* m_ausgeblendet = nullptr;  // says so when a filter hides what was saved
  std::array<QPushButton*, 2> neu{};
  QPushButton* löschen = nullptr;
  QPushButton* lschalleerledigte = nullptr;
  QPushButton* ok = nullptr;
  QPushButton* hilfe = nullptr;
  QPushButton* schließen = nullptr;
};
