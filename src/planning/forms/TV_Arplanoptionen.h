#pragma once

#include <array>

#include "core/forms/Datenformular.h"
#include "planning/Optionen.h"

class Eingabefeld;
class Grid;
class QPushButton;

// The form that keeps the work plan options. Appointments are not edited here: they are derived
// from the options when one is added, renamed or deleted.
class TV_Arplanoptionen : public Datenformular {
 public:
  explicit TV_Arplanoptionen(QWidget* öffner = nullptr);

 protected:
  void füllen() override;  // the list, empty inputs
  void loslassen() override;

 private:
  void aufbauen();
  QWidget* feldgruppeBauen();
  QWidget* hinweisBauen();
  QWidget* knöpfeBauen();
  void verbinden();
  void reihenfolgeSetzen();

  void listeLaden();
  void neuLesen(qint64 id);
  void arbeitsartenFüllen();
  void leeren();
  void zeileZeigen(int zeile);
  Optionseingabe eingabe() const;
  qint64 aktuelleId() const;  // 0 without a current row

  void neu(int index);
  bool darfSpeichern(int index);
  void nachSpeichern(const QString& arbeitsart);
  void löschen();
  void alleBerechnen();

  QString m_alteArbeitsart;  // of the row shown last
  Grid* m_liarplan = nullptr;
  std::array<Eingabefeld*, 7> m_sevt{};
  std::array<QPushButton*, 2> m_neu{};
  QPushButton* m_löschen = nullptr;
  QPushButton* m_calender = nullptr;
  QPushButton* m_terminverwaltung = nullptr;
};
