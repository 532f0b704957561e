#pragma once

#include "colonies/Testbetrieb.h"

// Appointments for the tests of the calendar, on the 20th of June 2006.
class Terminbestand : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    db().Execute("delete from Arbeitsplanoptionen");
    TZ_Variablen::EinstellungenZahl[Zahlslots.termintage] = 14;
  }

  static QDate tag(int monat, int tagImMonat) { return {2006, monat, tagImMonat}; }

  static qint64 termin(QDate datum, const QString& text, const QVariant& volkId = 0,
                       const QString& erledigt = "N") {
    db().Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, ?, ?, ?)",
                 {datum, text, erledigt, volkId});
    return db().LetzteID();
  }

  // A season's appointments: twelve colonies at three sites, long names among them.
  static void saison() {
    const QStringList orte = {"Hausgarten", "Lindenallee am Schloßpark hinter der Mühle", "Heide"};
    const QStringList arten = {"Schwarmkontrolle", "Honigraum aufsetzen",
                               "Behandlung mit Ameisensäure"};
    for (int i = 0; i < 12; ++i) {
      const qint64 volk = neuesVolk(QString::number(i + 1), "X", orte[i % 3]);
      db().Execute("update Bienenvolk set Volkname = ? where ID = ?",
                   {QString(i % 2 == 0 ? "Anna von der Au" : "Berta"), volk});
      for (int k = 0; k < 3; ++k) termin(tag(6, 8 + 4 * k + i % 2), arten[k], volk);
    }
    termin(tag(6, 16), "Imkerstammtisch");
    termin(tag(6, 17), "Honigprämierung anmelden", 0, "J");
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
