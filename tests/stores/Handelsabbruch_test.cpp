#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QThread>

#include "gemeinsam/Musterdatenbank.h"
#include "gemeinsam/Nebenprogramm.h"
#include "platform/database/verbindung/Verbindung.h"
#include "stores/Handel.h"

// The program is killed while it saves a sale: the deal and the customer are written, the movement
// of the honey store isn't yet.
namespace {

using namespace TZ_Variablen;

void verkaufen(const QString& menge) {
  Verwaltung::Texte texte = Verwaltung::vorgaben(Handel::geschäftsfelder(Handel::Seite::Verkauf));
  texte["Produkt"] = "Waldhonig";
  texte["Menge"] = menge;
  texte["Abnehmer"] = "Meier";
  Handel::geschäftSpeichern(DB, Handel::Seite::Verkauf, texte, {});
}

int anzahl(const QString& tabelle) { return DB.Lesen("select ID from " + tabelle)->zeilen(); }

// The same program again, as the one that is killed.
const Nebenprogramm abbruch("--verkaufen", [](const QStringList& argumente) {
  Programmordner::betrete(argumente.value(0), "20.06.2026");
  Programmordner::verbinde();
  QFile aus;
  if (!aus.open(stdout, QIODevice::WriteOnly)) return 1;
  aus.write("los\n");
  aus.flush();
  verkaufen("12,5");
  return 0;
});

class Abbruch : public ::testing::Test {
 protected:
  void SetUp() override { leereDatenbank(); }
  // From now on the engine doesn't come to an end with a movement.
  static void bewegungDauertEwig() {
    Verbindung::zu(DatenbankPfad)
        ->steuere(
            "create trigger ewig before insert on Honiglager begin "
            "select (with recursive z(n) as (select 1 union all select n + 1 from z) "
            "select max(n) from z); end");
  }
  void töteBeimSpeichern() {
    Programmordner::trenne();
    QProcess programm;
    programm.start(QCoreApplication::applicationFilePath(), {"--verkaufen", m_ordner.path()});
    ASSERT_TRUE(programm.waitForStarted());
    ASSERT_TRUE(programm.waitForReadyRead(20000));
    // The engine's journal beside the file tells that the deal is being written.
    for (int i = 0; i < 2000 && !QFile::exists(DatenbankPfad + "-journal"); ++i)
      QThread::msleep(10);
    ASSERT_TRUE(QFile::exists(DatenbankPfad + "-journal"));
    QThread::msleep(200);
    ASSERT_EQ(programm.state(), QProcess::Running);
    programm.kill();
    ASSERT_TRUE(programm.waitForFinished());
    Programmordner::verbinde();
  }
  Programmordner m_ordner{"20.06.2026"};
};

TEST_F(Abbruch, ZwischenGeschäftUndBewegungBleibtNichtsVonBeidem) {
  bewegungDauertEwig();
  töteBeimSpeichern();
  EXPECT_EQ(Verbindung::zu(DatenbankPfad)->steuere("pragma integrity_check"), "ok");
  EXPECT_EQ(anzahl("Verkauf"), 0);
  EXPECT_EQ(anzahl("Kunden"), 0);
  EXPECT_EQ(anzahl("Honiglager"), 0);

  Verbindung::zu(DatenbankPfad)->steuere("drop trigger ewig");
  verkaufen("12,5");  // the user types it once more
  EXPECT_EQ(anzahl("Verkauf"), 1);
  EXPECT_EQ(anzahl("Honiglager"), 1);
}

TEST_F(Abbruch, FrühereGeschäfteBleibenGanz) {
  verkaufen("3");
  bewegungDauertEwig();
  töteBeimSpeichern();
  EXPECT_EQ(anzahl("Verkauf"), 1);
  EXPECT_EQ(anzahl("Kunden"), 1);
  EXPECT_EQ(DB.Lesen("select Abgang from Honiglager")->anzeige(0, 0), "3");
}

}  // namespace
