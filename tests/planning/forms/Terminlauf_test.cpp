// The yearly run over a window, and the window that shows how far a run is.
#include "planning/forms/Terminlauf.h"

#include <QProgressBar>
#include <QProgressDialog>

#include "Arplanprobe.h"
#include "platform/database/verbindung/Verbindung.h"

using namespace TZ_Variablen;

namespace {

class Terminlauf : public Arplanprobe {
 protected:
  static QProgressDialog* fortschritt() {
    for (QWidget* fenster : QApplication::topLevelWidgets())
      if (fenster->objectName() == "fortschritt") return qobject_cast<QProgressDialog*>(fenster);
    return nullptr;
  }
};

}  // namespace

TEST_F(Terminlauf, DerJahreslaufFragtUndMeldetÜberDemFenster) {
  neuesVolk("1");
  option("Honig", "01.07", 0, "01.07");
  öffne();
  boxen.frageMit("Sie starten TOVA das erste mal im neuen Jahr", true)
      .hinweis(
          "Die volkabhängigen Termine wurden für das Jahr 2006 neu berechnet und im "
          "Terminkalender eingetragen.");
  volkTermineSetzen(form.get());
  EXPECT_EQ(anzahl("Termine"), 1);
  boxen.frageMit("Sie starten TOVA", true)
      .frage(
          "Es befinden sich im Jahr 2006 bereits volkabhängige Termine im Terminkalender. Die "
          "Termine für ein komplettes Jahr können nur dann eingetragen werden, wenn noch keine "
          "volkabhängigen Termine existieren. Sollen die existierenden Termine jetzt gelöscht "
          "werden?",
          false, Meldungen::Vorgabe::Nein)
      .hinweisMit("Die Aktion wird nicht ausgeführt, weil...");
  volkTermineSetzen(form.get());
}

TEST_F(Terminlauf, EinKurzerLaufZeigtKeinFenster) {
  öffne();
  const Laufanzeige anzeige(form.get());
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  ASSERT_NE(fortschritt(), nullptr);
  EXPECT_FALSE(fortschritt()->isVisible());
}

TEST_F(Terminlauf, EinLangerLaufZeigtWieWeitErIstUndLässtSichNichtSchließen) {
  öffne();
  for (const int prozent : {100, 150}) {
    const Schriftgröße schrift(prozent);
    Laufanzeige anzeige(form.get());
    QTest::qWait(800);
    anzeige.zeige(30, 120);
    QProgressDialog* fenster = fortschritt();
    ASSERT_NE(fenster, nullptr);
    EXPECT_TRUE(fenster->isVisible());
    EXPECT_EQ(fenster->labelText(), "Die Termine werden berechnet ...");
    EXPECT_EQ(fenster->value(), 250);  // of a thousand
    QTest::keyClick(fenster, Qt::Key_Escape);
    fenster->close();
    EXPECT_TRUE(fenster->isVisible());
    EXPECT_FALSE(fenster->wasCanceled());
    bildAblegen(*fenster, QString("plan_fortschritt_%1").arg(prozent));
  }
  EXPECT_EQ(fortschritt(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Terminlauf, EinFehlerDesJahreslaufsLässtKeinFensterUndKeineSanduhrZurück) {
  EinstellungenZahl[Zahlslots.terminjahr] = 2005;
  for (int i = 0; i < 200; ++i) neuesVolk(QString::number(i));
  option("Honig", "01.07", 9, "31.12");
  öffne();
  auto& verbindung = *Verbindung::zu(DatenbankPfad);
  const int seiten = verbindung.steuere("pragma page_count").toInt();
  verbindung.steuere("pragma max_page_count = " + QByteArray::number(seiten + 1));
  boxen.frageMit("Sie starten TOVA das erste mal im neuen Jahr", true)
      .hinweisMit("Auf dem Datenträger ist kein Platz mehr");
  EXPECT_FALSE(Ereignis::ausführen(form.get(), [this] { volkTermineSetzen(form.get()); }));
  EXPECT_EQ(fortschritt(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(anzahl("Termine"), 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2005);
}
