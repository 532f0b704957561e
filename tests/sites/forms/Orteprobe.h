#pragma once

#include <QLabel>
#include <QTabWidget>

#include "gemeinsam/Formularprobe.h"
#include "sites/Ortebetrieb.h"
#include "sites/forms/TV_Pflanzen_Standorte.h"

class Orteprobe : public Formularprobe<TV_Pflanzen_Standorte, Ortebetrieb> {
 protected:
  void oeffne(const QString& modus = "0") {
    TZ_Variablen::FormModus = modus;
    Formularprobe::oeffne();
  }
  QString text(const QString& name) { return kind<QLabel>(name)->text(); }
  int reiter() { return kind<QTabWidget>("reiter")->currentIndex(); }
  void zumReiter(int nummer) {
    QTabBar* leiste = kind<QTabWidget>("reiter")->findChild<QTabBar*>();
    QTest::mouseClick(leiste, Qt::LeftButton, {}, leiste->tabRect(nummer).center());
  }
  void tippePflanze(const QString& name, const QString& von, const QString& bis) {
    tippe("sevt_0", name);
    tippe("sevt_1", von);
    tippe("sevt_2", bis);
  }
  void tippeTracht(const QString& name, const QString& entfernung, const QString& anteil) {
    tippe("sevtje_0", name);
    tippe("sevtje_1", entfernung);
    tippe("sevtje_2", anteil);
  }
};

// Two sites and two plants. In the chooser "Heide" is row 0 and "Hof" row 1.
class ZweiOrte : public Orteprobe {
 protected:
  void SetUp() override {
    Orteprobe::SetUp();
    hof = standort("Hof");
    heide = standort("Heide");
    pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
    pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  }
  // The tab of the plants at a site, with the site chosen.
  void zumStandort(int zeile) {
    zumReiter(1);
    waehle("lijeort", zeile);
  }
  qint64 hof = 0;
  qint64 heide = 0;
};
