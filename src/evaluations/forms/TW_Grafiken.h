#pragma once

#include <array>

#include "core/forms/Datenformular.h"
#include "evaluations/Grafiken.h"

class Diagramm;
class Eingabefeld;
class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

// The charts. What is chosen on the left is drawn at once, and stays chosen for the next opening.
class TW_Grafiken : public Datenformular {
 public:
  explicit TW_Grafiken(QWidget* öffner);

 protected:
  void füllen() override;

 private:
  void aufbauen();
  QWidget* auswahlBauen();
  QWidget* artBauen();
  QWidget* torteBauen();
  QWidget* werteBauen();
  void verbinden();

  int auswahl() const;
  QString dateiname() const;
  void jahrVerlassen();
  void lesen();     // the rows of the choice, then zeichnen
  void zeichnen();  // these as the rest of the inputs say
  void sagen(const QString& text);

  void drucken();
  void kopieren();
  void speichern();

  Grafiken::Grafik m_grafik;
  std::array<QRadioButton*, 5> m_auswahl{};
  Eingabefeld* m_t = nullptr;
  std::array<QRadioButton*, 2> m_optitorte{};  // pie, bars
  QGroupBox* m_torte = nullptr;                // what is for pies alone
  std::array<QRadioButton*, 2> m_opti3d{};     // flat, with depth
  QCheckBox* m_großerTeil = nullptr;
  std::array<QCheckBox*, 2> m_konwertanzeige{};  // percentages, quantities
  Diagramm* m_graph = nullptr;
  QLabel* m_meldung = nullptr;
  QPushButton* m_drucken = nullptr;
  QPushButton* m_zwischenablage = nullptr;
  QPushButton* m_speichern = nullptr;
};
