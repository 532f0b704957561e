#pragma once

#include <array>
#include <functional>

#include "planning/Optionen.h"
#include "platform/controls/Formular.h"

class Eingabefeld;
class Grid;
class QPushButton;

// The form that keeps the work plan options. Appointments are not edited here: they are derived
// from the options when one is added, renamed or deleted.
class TV_Arplanoptionen : public Formular {
 public:
  explicit TV_Arplanoptionen(QWidget* oeffner = nullptr);

  // What the button of the appointment management opens; it can't be pressed as long as there is
  // nothing to open.
  void setTerminverwaltung(std::function<void()> oeffnen);

  // Shows the form modally and returns when it was closed. Throws Datenbankfehler when it can't be
  // loaded; it isn't shown then.
  void zeigen();
  // Loading alone: the list, empty inputs.
  void laden();

 private:
  void aufbauen();
  QWidget* feldgruppeBauen();
  QWidget* hinweisBauen();
  QWidget* knoepfeBauen();
  QWidget* fussBauen();
  void verbinden();
  void reihenfolgeSetzen();

  void listeLaden();
  void entladen();
  void neuLesen(qint64 id);
  void arbeitsartenFuellen();
  void leeren();
  void zeileZeigen(int zeile);
  Optionseingabe eingabe() const;
  qint64 aktuelleId() const;  // 0 without a current row

  void neu(int index);
  bool darfSpeichern(int index);
  void nachSpeichern(const QString& arbeitsart);
  void loeschen();
  void alleBerechnen();

  Database m_db;
  QString AlteArbeitsart;  // of the row shown last
  std::function<void()> m_terminverwaltung;
  Grid* liarplan = nullptr;
  std::array<Eingabefeld*, 7> sevt{};
  std::array<QPushButton*, 2> m_neu{};
  QPushButton* m_loeschen = nullptr;
  QPushButton* calender = nullptr;
  QPushButton* terminverwaltung = nullptr;
  QPushButton* hilfe = nullptr;
  QPushButton* m_schliessen = nullptr;
};
