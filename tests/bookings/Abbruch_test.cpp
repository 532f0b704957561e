#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "Bestand.h"
#include "bookings/Buchung.h"
#include "core/globals.h"
#include "data/schema.h"
#include "gemeinsam/Nebenprogramm.h"
#include "platform/database/Recordset.h"
#include "platform/database/Verbindung.h"

// The program is killed in the middle of booking three hundred colonies.
namespace {

using namespace TZ_Variablen;

constexpr int voelker = 300;

void oeffnen(const QString& ordner) {
  zuruecksetzen();
  AppPfad = ordner + "/";
  DatenbankPfad = AppPfad + "TOVA2.MDB";
  HeuteText = "20.06.2026";
}

void schliessen() {
  DB.Close();
  Arbeitsbereich.Close();
}

int gebucht() { return DB.Lesen("select ID from Honigernte")->zeilen(); }

int erledigt() { return DB.Lesen("select ID from Termine where Erledigt = 'J'")->zeilen(); }

void bestandAnlegen() {
  DatenbankAnlegen();
  DB.Sammelschreiben([] {
    for (int i = 1; i <= voelker; ++i) {
      DB.Execute("insert into Bienenvolk(Volknr, Akt_im_Bestand) values (?, 'X')",
                 {QString::number(i)});
      DB.Execute(
          "insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, 'Honigernte', 'N', ?)",
          {QDate(2026, 6, 15), i});
    }
  });
}

void laufBuchen() {
  Buchung buchung;
  buchung.art = 1;
  buchung.texte[0] = "20.06.2026";
  buchung.texte[1] = "12,50";
  buchung.texte[2] = "Linde";
  buchung.texte[3] = "I";
  QStringList ids;
  for (int i = 1; i <= voelker; ++i) ids << QString::number(i);
  Buchungskontext kontext;
  kontext.anzahlMarkiert = voelker;
  BuchungslaufSpeichern(DB, buchung, ids, kontext);
}

// The same program again, as the one that is killed: books until it is.
const Nebenprogramm abbruch("--buchen", [](const QStringList& argumente) -> int {
  oeffnen(argumente.value(0));
  DB = Arbeitsbereich.OpenDatabase(DatenbankPfad);
  QFile aus;
  if (!aus.open(stdout, QIODevice::WriteOnly)) return 1;
  aus.write("los\n");
  aus.flush();
  for (;;) laufBuchen();
});

class Abbruch : public ::testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    oeffnen(m_ordner.path());
    bestandAnlegen();
    schliessen();
  }
  void TearDown() override { schliessen(); }
  QTemporaryDir m_ordner;
};

TEST_P(Abbruch, DanachIstDieDatenbankHeilUndJederLaufGanzDaOderGarNicht) {
  QProcess programm;
  programm.start(QCoreApplication::applicationFilePath(), {"--buchen", m_ordner.path()});
  ASSERT_TRUE(programm.waitForStarted());
  ASSERT_TRUE(programm.waitForReadyRead(20000));
  programm.waitForFinished(GetParam());  // never ends by itself
  programm.kill();
  ASSERT_TRUE(programm.waitForFinished());

  DB = Arbeitsbereich.OpenDatabase(DatenbankPfad);
  EXPECT_EQ(Verbindung::zu(DatenbankPfad)->steuere("pragma integrity_check"), "ok");
  EXPECT_EQ(gebucht() % voelker, 0);
  EXPECT_EQ(erledigt(), gebucht() > 0 ? voelker : 0);
}

INSTANTIATE_TEST_SUITE_P(NachMillisekunden, Abbruch, ::testing::Values(1, 5, 13, 29, 61));

}  // namespace
