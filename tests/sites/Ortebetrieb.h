#pragma once

#include <QDate>

#include "colonies/Testbetrieb.h"

// A program folder with no site and no plant, and short ways to add them.
class Ortebetrieb : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    for (const char* tabelle : {"Standorte", "Pflanzen", "Standorte_Pflanzen"})
      db().Execute(QString("delete from %1").arg(tabelle));
  }
  static qint64 standort(const QString& name) {
    db().Execute("insert into Standorte(Standort, PTop, PLeft) values (?, ?, ?)", {name, 250, 250});
    return db().LetzteID();
  }
  static qint64 pflanze(const QString& name, const QVariant& von, const QVariant& bis) {
    db().Execute(
        "insert into Pflanzen(Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe) "
        "values (?, ?, ?, ?, ?)",
        {name, von, bis, 3, 4});
    return db().LetzteID();
  }
  static qint64 tracht(qint64 standortId, const QString& name, int anteil, int entfernung = 100) {
    db().Execute(
        "insert into Standorte_Pflanzen(Pflanze, Entfernung_m, Proz_Anteil, Standort_Kennung) "
        "values (?, ?, ?, ?)",
        {name, entfernung, anteil, standortId});
    return db().LetzteID();
  }
  static QVariant von(const QString& name) {
    return wert("select Trachtzeit_von from Standorte where Standort = ?", {name});
  }
  static QVariant bis(const QString& name) {
    return wert("select Trachtzeit_bis from Standorte where Standort = ?", {name});
  }
};
