#pragma once

#include <array>

#include "output/Schriftliste.h"
#include "output/Textausgabe.h"
#include "platform/controls/Formular.h"

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

// Shows the text file AusgabeDatei in a fixed-width font and prints it.
class TA_Textausgabe : public Formular {
 public:
  explicit TA_Textausgabe(QWidget* oeffner);

  // What callers use: the one instance, over the form that asks for it. AusgabeDatei has been
  // written before; returns when the form was closed.
  static void oeffnen(QWidget* oeffner);

  // Puts the settings and the text of AusgabeDatei in; clears FormModus.
  void laden();
  void zeigen();

 protected:
  void done(int ergebnis) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  void aufbauen();
  QWidget* schriftBauen();
  QWidget* seiteBauen();
  QHBoxLayout* knoepfeBauen();
  void verbinden();

  void schriftenFuellen();
  void einstellungenSetzen(const Textausgabe::Einstellungen& einstellungen);
  Textausgabe::Einstellungen einstellungen() const;
  void textLesen();
  void inBildschirm();

  int schriftgroesse() const;
  void schriftgroesseSetzen(int groesse);
  QFont schrift() const;
  void schriftZeigen();
  void randBegrenzen();

  void textDrucken();
  void dateiDrucken();
  void drucke(const QString& datei, Textausgabe::Druckweg weg);
  void hinweis(const QString& text);

  QList<Schriftwahl> m_schriften;

  QPlainTextEdit* t = nullptr;
  QComboBox* kom = nullptr;
  QComboBox* größe = nullptr;
  std::array<QCheckBox*, 2> kon{};
  std::array<QPushButton*, 2> plus5{};
  std::array<QPushButton*, 2> plus1{};
  std::array<QRadioButton*, 2> druckformat{};
  QLineEdit* tz = nullptr;
  QPushButton* drucken = nullptr;
  QPushButton* dateidrucken = nullptr;
  QPushButton* hilfe = nullptr;
  QPushButton* abbv = nullptr;
};
