#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <memory>

#include "Betrieb.h"
#include "core/globals.h"
#include "core/settings.h"
#include "data/schema.h"
#include "platform/locale/Deutsch.h"

using TZ_Variablen::DB;

const QDate Heute(2026, 6, 15);

// Makes sample operations and counts in them.
class Betriebsfall : public ::testing::Test {
 protected:
  static void TearDownTestSuite() { schliessen(); }

  static void schliessen() {
    standardOffen = false;
    DB.Close();
    TZ_Variablen::Arbeitsbereich.Close();
    TZ_Variablen::zuruecksetzen();
  }

  static Betriebsgroesse klein(quint32 saat) {
    Betriebsgroesse groesse;
    groesse.voelker = 6;
    groesse.jahre = 2;
    groesse.saat = saat;
    groesse.heute = Heute;
    return groesse;
  }

  // Makes the operation in a folder of its own and leaves it open.
  void anlegen(const Betriebsgroesse& groesse) {
    schliessen();
    m_ordner = std::make_unique<QTemporaryDir>();
    ASSERT_TRUE(m_ordner->isValid());
    betriebAnlegen(m_ordner->path(), groesse);
  }
  // The operation of the tour, for tests that only read. It is made once for all of them and opened
  // again when another one was open in between.
  void standard() {
    if (standardOffen) return;
    static QTemporaryDir ordner;
    static bool angelegt = false;
    ASSERT_TRUE(ordner.isValid());
    schliessen();
    if (angelegt) {
      oeffnen(ordner.path());
    } else {
      Betriebsgroesse groesse;
      groesse.heute = Heute;
      betriebAnlegen(ordner.path(), groesse);
    }
    angelegt = true;
    standardOffen = true;
  }

  static qint64 anzahl(const QString& tabelle, const QString& bedingung = {}) {
    return DB
        .Lesen("select count(*) as n from " + tabelle +
               (bedingung.isEmpty() ? QString() : " where " + bedingung))
        ->ganzzahl(0, 0);
  }
  static QList<qint64> voelker(const QString& bedingung) {
    const Daten daten = DB.Lesen("select ID from Bienenvolk where " + bedingung + " order by ID");
    QList<qint64> ids;
    for (int i = 0; i < daten->zeilen(); ++i) ids << daten->ganzzahl(i, 0);
    return ids;
  }
  static qint64 buchungen(qint64 volk) {
    qint64 summe = 0;
    for (const QString& tabelle : buchungstabellen())
      summe += anzahl(tabelle, "Volk_ID = " + QString::number(volk));
    return summe;
  }

  std::unique_ptr<QTemporaryDir> m_ordner;

 private:
  static void oeffnen(const QString& ordner) {
    TZ_Variablen::AppPfad = ordner + "/";
    TZ_Variablen::DatenbankPfad = TZ_Variablen::AppPfad + "TOVA2.MDB";
    TZ_Variablen::HeuteText = Deutsch::datumText(Heute);
    EinstellungenLesen();
    DB = TZ_Variablen::Arbeitsbereich.OpenDatabase(TZ_Variablen::DatenbankPfad);
  }

  static inline bool standardOffen = false;
};
