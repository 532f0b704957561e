#pragma once

#include "evaluations/Probelauf.h"
#include "evaluations/Standortauswertung.h"
#include "sites/Ortebetrieb.h"

// Sites and plants with all that decides their points, and the form's evaluation opened.
class Standortbetrieb : public Ortebetrieb {
 protected:
  struct Ort {
    QString name = "Hof";
    QString hinweis = {};
    QString pkw = "N";
    int wasser_m = 0;
    double prämie = 0;
    int höchstens = 10;
  };
  struct Blume {
    QString name;
    QString von;  // "dd.mm.yyyy"
    QString bis;
    int nektar = 5;
    int pollen = 5;
  };

  static qint64 ort(const Ort& o) {
    db().Execute(QString("insert into Standorte(Standort, Zusatzortshinweis, Pkw_anfahrbar, "
                         "Entfernung_Wasser_m, Standortprämie_Volk, Max_Völker) values "
                         "(?, ?, ?, ?, ?, ?)"),
                 {o.name, o.hinweis, o.pkw, o.wasser_m, o.prämie, o.höchstens});
    return db().LetzteID();
  }
  static void blume(const Blume& b) {
    db().Execute(
        "insert into Pflanzen(Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe) "
        "values (?, ?, ?, ?, ?)",
        {b.name, DatumLesen(b.von), DatumLesen(b.bis), b.nektar, b.pollen});
  }
  static void löwenzahn() { blume({"Löwenzahn", "01.04.2003", "20.05.2003", 6, 8}); }
};
