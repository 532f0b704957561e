#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "core/globals.h"
#include "data/schema.h"
#include "platform/database/Recordset.h"

// A program folder of its own for each test, with an empty database on a fixed day. The database is
// made once and copied.
class Testbetrieb : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(m_ordner.isValid());
    const QString leer = vorlage();
    TZ_Variablen::zuruecksetzen();
    TZ_Variablen::AppPfad = m_ordner.path() + "/";
    TZ_Variablen::DatenbankPfad = TZ_Variablen::AppPfad + "TOVA2.MDB";
    TZ_Variablen::HeuteText = "20.06.2006";
    ASSERT_TRUE(QFile::copy(leer, TZ_Variablen::DatenbankPfad));
    TZ_Variablen::DB = TZ_Variablen::Arbeitsbereich.OpenDatabase(TZ_Variablen::DatenbankPfad);
    TZ_Variablen::EinstellungenZahl[56] = 10;
    TZ_Variablen::EinstellungenZahl[57] = 1;
  }

  void TearDown() override {
    TZ_Variablen::DB.Close();
    TZ_Variablen::Arbeitsbereich.Close();
    TZ_Variablen::zuruecksetzen();
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
                       const QString& volkabhaengig = "J", const QString& buchung = "",
                       const QString& arbeitsart = "") {
    db().Execute(QString("insert into Arbeitsplanoptionen(Arbeitsart, Startzeitraum, "
                         "Wiederholungsfrist_Tage, Endzeitraum, Volkabhängig, "
                         "Auto_erledigt_Buchung, Auto_erledigt_Arbeitsart) values "
                         "(?, ?, ?, ?, ?, ?, ?)"),
                 {arbeit, von, frist, bis, volkabhaengig, buchung, arbeitsart});
    return db().LetzteID();
  }

  QTemporaryDir m_ordner;

 private:
  static QString vorlage() {
    static QTemporaryDir ordner;
    static const QString pfad = [] {
      TZ_Variablen::AppPfad = ordner.path() + "/";
      TZ_Variablen::DatenbankPfad = ordner.path() + "/TOVA2.MDB";
      DatenbankAnlegen();
      TZ_Variablen::DB.Close();
      TZ_Variablen::Arbeitsbereich.Close();
      return ordner.path() + "/TOVA2.MDB";
    }();
    return pfad;
  }
};
