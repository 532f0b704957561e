#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "Betrieb.h"
#include "core/settings.h"
#include "data/schema.h"
#include "gemeinsam/Programmordner.h"
#include "platform/locale/Deutsch.h"

using TZ_Variablen::DB;

const QDate Heute(2026, 6, 15);

// Makes sample operations and counts in them.
class Betriebsfall : public ::testing::Test {
 protected:
  static void TearDownTestSuite() { schließen(); }

  static void schließen() {
    standardOffen = false;
    Programmordner::trenne();
    TZ_Variablen::zurücksetzen();
  }

  static Betriebsgröße klein(quint32 saat) {
    Betriebsgröße größe;
    größe.völker = 6;
    größe.jahre = 2;
    größe.saat = saat;
    größe.heute = Heute;
    return größe;
  }

  // Makes the operation in a folder of its own and leaves it open.
  void anlegen(const Betriebsgröße& größe) {
    schließen();
    m_ordner = std::make_unique<QTemporaryDir>();
    ASSERT_TRUE(m_ordner->isValid());
    betriebAnlegen(m_ordner->path(), größe);
  }
  // The operation of the tour, for tests that only read. It is made once for all of them and opened
  // again when another one was open in between.
  void standard() {
    if (standardOffen) return;
    static QTemporaryDir ordner;
    static bool angelegt = false;
    ASSERT_TRUE(ordner.isValid());
    schließen();
    if (angelegt) {
      öffnen(ordner.path());
    } else {
      Betriebsgröße größe;
      größe.heute = Heute;
      betriebAnlegen(ordner.path(), größe);
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
  static QList<qint64> völker(const QString& bedingung) {
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
  static void öffnen(const QString& ordner) {
    Programmordner::betrete(ordner, Deutsch::datumText(Heute));
    EinstellungenLesen();
    Programmordner::verbinde();
  }

  static inline bool standardOffen = false;
};
