#pragma once

#include "platform/controls/Formular.h"

class QListWidget;
class QPushButton;

// Lets the user choose one of the files that match a pattern. Afterwards DateiErgebnis is the name
// chosen, without its folder, or empty.
class TS_Dateiauswahl : public Formular {
 public:
  TS_Dateiauswahl(const QString& muster, QWidget* öffner);

 protected:
  void done(int ergebnis) override;

 private:
  void knopfStellen();

  QListWidget* m_datei1;
  QPushButton* m_ok;
};
