#pragma once

#include <gtest/gtest.h>

#include "data/schema.h"
#include "gemeinsam/Musterdatenbank.h"
#include "platform/database/Recordset.h"

// A program folder of its own for each test, with an empty database on the 20th of June 2006.
class Testbetrieb : public ::testing::Test {
 protected:
  void SetUp() override {
    leereDatenbank();
    TZ_Variablen::EinstellungenZahl[Zahlslots.wabenJeMagazin] = 10;
    TZ_Variablen::EinstellungenZahl[Zahlslots.volknummerHochzählen] = 1;
  }

  static Database& db() { return TZ_Variablen::DB; }

  static qint64 anzahl(const QString& tabelle, const QString& bedingung = {}) {
    return db()
        .Lesen("select count(*) as n from " + tabelle +
               (bedingung.isEmpty() ? QString() : " where " + bedingung))
        ->ganzzahl(0, 0);
  }

  // The first cell of a select.
  static QVariant wert(const QString& anweisung, const QVariantList& werte = {}) {
    const Daten daten = db().Lesen(anweisung, werte);
    return daten->zeilen() == 0 ? QVariant("keine Zeile") : daten->wert(0, 0);
  }

  static qint64 neuesVolk(const QString& nummer, const QString& imBestand = "X",
                          const QString& standort = "") {
    db().Execute("insert into Bienenvolk(Volknr, Akt_im_Bestand, Standort) values (?, ?, ?)",
                 {nummer, imBestand, standort});
    return db().LetzteID();
  }

  static void wanderung(qint64 volkId, QDate datum, const QString& standort) {
    db().Execute("insert into Wanderung(Datum, Standort, Volk_ID) values (?, ?, ?)",
                 {datum, standort, volkId});
  }

  static qint64 option(const QString& arbeit, const QString& von, int frist, const QString& bis,
                       const QString& volkabhängig = "J", const QString& buchung = "",
                       const QString& arbeitsart = "") {
    db().Execute(QString("insert into Arbeitsplanoptionen(Arbeitsart, Startzeitraum, "
                         "Wiederholungsfrist_Tage, Endzeitraum, Volkabhängig, "
                         "Auto_erledigt_Buchung, Auto_erledigt_Arbeitsart) values "
                         "(?, ?, ?, ?, ?, ?, ?)"),
                 {arbeit, von, frist, bis, volkabhängig, buchung, arbeitsart});
    return db().LetzteID();
  }

  Programmordner m_ordner{"20.06.2006"};
};
