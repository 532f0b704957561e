#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include "Bestand.h"
#include "bookings/Buchung.h"
#include "bookings/Zusammenfassung.h"
#include "gemeinsam/Musterdatenbank.h"
#include "gemeinsam/Nebenprogramm.h"
#include "platform/database/Recordset.h"
#include "platform/database/verbindung/Verbindung.h"

// The program is killed in the middle of booking three hundred colonies.
namespace {

using namespace TZ_Variablen;

constexpr int völker = 300;

int gebucht() { return DB.Lesen("select ID from Honigernte")->zeilen(); }

int erledigt() { return DB.Lesen("select ID from Termine where Erledigt = 'J'")->zeilen(); }

void bestandAnlegen() {
  leereDatenbank();
  DB.Sammelschreiben([] {
    for (int i = 1; i <= völker; ++i) {
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
  for (int i = 1; i <= völker; ++i) ids << QString::number(i);
  Buchungskontext kontext;
  kontext.anzahlMarkiert = völker;
  BuchungslaufSpeichern(DB, buchung, ids, kontext);
}

// The same program again, as the one that is killed: books until it is.
const Nebenprogramm abbruch("--buchen", [](const QStringList& argumente) -> int {
  Programmordner::betrete(argumente.value(0), "20.06.2026");
  Programmordner::verbinde();
  QFile aus;
  if (!aus.open(stdout, QIODevice::WriteOnly)) return 1;
  aus.write("los\n");
  aus.flush();
  for (;;) laufBuchen();
});

class Abbruch : public ::testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    bestandAnlegen();
    Programmordner::trenne();
  }
  Programmordner m_ordner{"20.06.2026"};
};

TEST_P(Abbruch, DanachIstDieDatenbankHeilUndJederLaufGanzDaOderGarNicht) {
  QProcess programm;
  programm.start(QCoreApplication::applicationFilePath(), {"--buchen", m_ordner.path()});
  ASSERT_TRUE(programm.waitForStarted());
  ASSERT_TRUE(programm.waitForReadyRead(20000));
  programm.waitForFinished(GetParam());  // never ends by itself
  programm.kill();
  ASSERT_TRUE(programm.waitForFinished());

  Programmordner::verbinde();
  EXPECT_EQ(Verbindung::zu(DatenbankPfad)->steuere("pragma integrity_check"), "ok");
  EXPECT_EQ(gebucht() % völker, 0);
  EXPECT_EQ(erledigt(), gebucht() > 0 ? völker : 0);
  // The summaries of what was booked are still to be written, and the next start does it.
  EXPECT_EQ(ZusammenfassungenOffen(DB), gebucht() > 0);
  ZusammenfassungenNachholen(DB);
  const double jedes = 12.5 * gebucht() / völker;
  const Daten summen = DB.Lesen("select distinct Honigmenge_Gesamt from Bienenvolk");
  ASSERT_EQ(summen->zeilen(), 1);
  EXPECT_EQ(summen->wert(0, 0).toDouble(), jedes);
  EXPECT_FALSE(ZusammenfassungenOffen(DB));
}

INSTANTIATE_TEST_SUITE_P(NachMillisekunden, Abbruch, ::testing::Values(1, 5, 13, 29, 61));

}  // namespace
