#pragma once

#include <QLabel>
#include <QTabWidget>

#include "gemeinsam/Formularprobe.h"
#include "sites/Ortebetrieb.h"
#include "sites/forms/TV_Pflanzen_Standorte.h"

class Orteprobe : public Formularprobe<TV_Pflanzen_Standorte, Ortebetrieb> {
 protected:
  void öffne(const QString& modus = "0") {
    TZ_Variablen::FormModus = modus;
    Formularprobe::öffne();
  }
  QString text(const QString& name) { return kind<QLabel>(name)->text(); }
  int reiter() { return kind<QTabWidget>("reiter")->currentIndex(); }
  void zumReiter(int nummer) {
    QTabBar* leiste = kind<QTabWidget>("reiter")->findChild<QTabBar*>();
    QTest::mouseClick(leiste, Qt::LeftButton, {}, leiste->tabRect(nummer).center());
  }
  void tippePflanze(const QString& name, const QString& von, const QString& bis) {
    tippe("Pflanzen", "Pflanze", name);
    tippe("Weidezeit von", von);
    tippe("Weidezeit bis", bis);
  }
  void tippeTracht(const QString& name, const QString& entfernung, const QString& anteil) {
    tippe("Pflanzen je Standort", "Pflanze", name);
    tippe("Entfernung m", entfernung);
    tippe("Anteil in %", anteil);
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
    wähle("lijeort", zeile);
  }
  qint64 hof = 0;
  qint64 heide = 0;
};
