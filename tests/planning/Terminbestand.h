#pragma once

#include "colonies/Testbetrieb.h"

// Appointments for the tests of the calendar, on the 20th of June 2006.
class Terminbestand : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    db().Execute("delete from Arbeitsplanoptionen");
    TZ_Variablen::EinstellungenZahl[17] = 14;
  }

  static QDate tag(int monat, int tagImMonat) { return {2006, monat, tagImMonat}; }

  static qint64 termin(QDate datum, const QString& text, const QVariant& volkId = 0,
                       const QString& erledigt = "N") {
    db().Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, ?, ?, ?)",
                 {datum, text, erledigt, volkId});
    return db().LetzteID();
  }

  // The appointments as "dd.mm. text flag colony; ...", by ID.
  static std::string termine(const QString& bedingung = {}) {
    const Daten daten =
        db().Lesen("select Datum, Termin, Erledigt, Volk_ID from Termine" +
                   (bedingung.isEmpty() ? QString() : " where " + bedingung) + " order by ID");
    QStringList zeilen;
    for (int i = 0; i < daten->zeilen(); ++i)
      zeilen << daten->wert(i, 0).toDate().toString("dd.MM.") + " " + daten->anzeige(i, 1) + " " +
                    daten->anzeige(i, 2) + " " + daten->anzeige(i, 3);
    return zeilen.join("; ").toStdString();
  }
  // The cells of a block, rows parted by "; ", cells by "|", without the columns named.
  static std::string zeilen(const Daten& daten, const QStringList& ohne = {"ID"}) {
    QStringList alle;
    for (int i = 0; i < daten->zeilen(); ++i) {
      QStringList zellen;
      for (int s = 0; s < daten->spalten(); ++s)
        if (!ohne.contains(daten->spalte(s).name)) zellen << daten->anzeige(i, s);
      alle << zellen.join('|');
    }
    return alle.join("; ").toStdString();
  }
};
