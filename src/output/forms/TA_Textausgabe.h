#pragma once

#include <array>

#include "output/Schriftliste.h"
#include "output/Textausgabe.h"
#include "platform/controls/Formular.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

// Shows the text file AusgabeDatei in a fixed-width font and prints it.
class TA_Textausgabe : public Formular {
 public:
  explicit TA_Textausgabe(QWidget* öffner);

  // What callers use: the one instance, over the form that asks for it. AusgabeDatei has been
  // written before; returns when the form was closed.
  static void öffnen(QWidget* öffner);

 protected:
  void füllen() override;  // the settings and the text of AusgabeDatei; clears FormModus
  void done(int ergebnis) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  void aufbauen();
  QWidget* schriftBauen();
  QWidget* seiteBauen();
  void verbinden();

  void schriftenFüllen();
  void einstellungenSetzen(const Textausgabe::Einstellungen& einstellungen);
  Textausgabe::Einstellungen einstellungen() const;
  void textLesen();

  int schriftgröße() const;
  void schriftgrößeSetzen(int punkt);
  QFont schrift() const;
  void schriftZeigen();
  void randBegrenzen();

  void textDrucken();
  void dateiDrucken();
  void drucke(const QString& datei, Textausgabe::Druckweg weg);
  void hinweis(const QString& text);

  QList<Schriftwahl> m_schriften;

  QPlainTextEdit* m_t = nullptr;
  QComboBox* m_kom = nullptr;
  QComboBox* m_größe = nullptr;
  std::array<QCheckBox*, 2> m_kon{};
  std::array<QPushButton*, 2> m_plus5{};
  std::array<QPushButton*, 2> m_plus1{};
  std::array<QRadioButton*, 2> m_druckformat{};
  QLineEdit* m_tz = nullptr;
  QPushButton* m_drucken = nullptr;
  QPushButton* m_dateidrucken = nullptr;
};
