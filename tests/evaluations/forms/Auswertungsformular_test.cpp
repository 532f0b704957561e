#include "evaluations/forms/Auswertungsformular.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <algorithm>

#include "core/globals.h"
#include "evaluations/Tabelle.h"
#include "gemeinsam/Formularprobe.h"
#include "gemeinsam/Musterdatenbank.h"
#include "gemeinsam/Testliste.h"
#include "output/Uebergabe.h"

using namespace Auswertung;
using namespace TZ_Variablen;

namespace {

// What the runs of the probe have seen.
struct Spur {
  QStringList befehle;
  Eingaben eingaben;
  std::function<void(Lauf&)> während;
};
Spur spur;

Ergebnis eineZeile(Lauf& lauf) {
  spur.befehle += "ok";
  spur.eingaben = lauf.eingaben;
  if (spur.während) spur.während(lauf);
  Tabelle t;
  t.spalte("a", "Über & unter");
  t.zeile({"Max & Moritz"});
  return {.liste = t.fertig()};
}

Ergebnis keineZeile(Lauf&) {
  Tabelle t;
  t.spalte("a", "A");
  return {.liste = t.fertig(), .leer = "Hier ist nichts."};
}

QList<Posten> felderDer(Database&, const Eingaben& e) {
  if (e.text("sevt", 0) != u"Honigernte") return {};
  return {{"Honig", "Honig"}, {"Menge", "Menge"}};
}

Beschreibung probe() {
  Beschreibung b;
  b.name = "TW_Probe";
  b.titel = "Probe";
  b.gruppen = {
      völkerwahl(),
      {"Folgende Buchungen",
       {optionen("optibuch", {"Alle Buchungen", "Datum von"}).slot(Zahlslots.buchungsauswahl),
        datum("tdat_0", {}).slot(Textslots.datumVon).wählt("optibuch", 1),
        datum("tdat_1", "bis").slot(Textslots.datumBis).wählt("optibuch", 1)}},
      {"Jahre",
       {jahr("t_0", "Von").slot(Zahlslots.jahrVon), jahr("t_1", "Bis").mitVorgabe("2026")}},
      {"Felder",
       {merkliste("liste", "Felder", feste(QStringList{"Volknr", "Volkname"}))
            .slot(Textslots.volkdatenFelder),
        wahltext("sevt_0", "Tabelle", feste(QStringList{"Arbeiten", "Honigernte"})),
        merkliste("li", "Tabellenfelder", felderDer).abhängigVon("sevt_0"),
        haken("konschnitt", "Durchschnitt").slot(Zahlslots.statistikSchnitt)},
       1,
       1,
       Gruppe::Alle::Knöpfe}};
  b.befehle = {{.name = "ok", .titel = "&Listen", .lauf = eineZeile},
               {.name = "nichts", .titel = "Nichts", .lauf = keineZeile}};
  b.beiÄnderung = [](const QString& name, Eingaben& e) {
    if (name == u"sevt_0") e.setGewählt("li", {});
  };
  b.prüfe = [](const QString&, const Eingaben& e) {
    QStringList gründe = zeitraumGründe(e);
    if (e.text("t", 0) > e.text("t", 1)) gründe += "...die Jahre verkehrt sind.";
    return gründe;
  };
  return b;
}

class Probeform : public Auswertungsformular {
 public:
  explicit Probeform(QWidget* öffner) : Auswertungsformular(probe(), öffner) {}
};

struct Ordner : testing::Test {
  void SetUp() override {
    leereDatenbank();
    spur = {};
    EinstellungenZahl[Zahlslots.jahrVon] = 2020;
  }
  Programmordner m_ordner{"15.06.2026"};
};

class FormularTest : public Formularprobe<Probeform, Ordner> {
 protected:
  // Closes the lists that runs open and counts them.
  FormularTest() {
    QObject::connect(&m_takt, &QTimer::timeout, &m_takt, [this] {
      QWidget* fenster = QApplication::activeModalWidget();
      if (fenster == nullptr || fenster == form.get()) return;
      ++listen;
      fenster->close();
    });
    m_takt.start(5);
  }
  static Testliste völker(int anzahl) {
    QList<QHash<QString, QString>> zeilen;
    const QStringList namen{"Anna", "Max & Moritz", "Carla"};
    for (int i = 0; i < anzahl; ++i)
      zeilen += {{"ID", QString::number(i + 11)},
                 {"Volknr", QString::number(i + 1)},
                 {"Volkname", namen[i]}};
    if (zeilen.isEmpty()) return Testliste(Daten());
    return Testliste(zeilen);
  }
  QRadioButton* wahl(int i) { return kind<QRadioButton>(QString("optitieraus_%1").arg(i)); }

  int listen = 0;

 private:
  QTimer m_takt;
};

TEST_F(FormularTest, OhneVolkKannDasAktuelleNichtGewähltWerdenUndDasErsteGilt) {
  const Testliste liste = völker(0);
  EinstellungenZahl[Zahlslots.völkerwahl] = 4;
  öffne();
  EXPECT_FALSE(wahl(4)->isEnabled());
  EXPECT_TRUE(wahl(0)->isChecked());
  EXPECT_FALSE(kind<QPushButton>("nächster_0")->isVisible());
}

TEST_F(FormularTest, DasAktuelleVolkNenntSichMitNummerUndNamenSamtUndZeichen) {
  const Testliste liste = völker(3);
  öffne();
  EXPECT_EQ(wahl(4)->text(), "Aktuelles Volk");
  EXPECT_FALSE(kind<QPushButton>("nächster_1")->isVisible());
  klicke(wahl(4));
  EXPECT_TRUE(kind<QPushButton>("nächster_1")->isVisible());
  klicke("nächster_1");
  EXPECT_EQ(wahl(4)->text(), "Aktuelles Volk 2 / Max && Moritz");
  EXPECT_EQ(form->eingaben().volk, 12);
  klicke(wahl(1));
  EXPECT_EQ(wahl(4)->text(), "Aktuelles Volk");
  EXPECT_FALSE(kind<QPushButton>("nächster_1")->isVisible());
}

TEST_F(FormularTest, VomLetztenVolkGehtEsZumErstenUndZurück) {
  const Testliste liste = völker(3);
  EinstellungenZahl[Zahlslots.völkerwahl] = 4;
  öffne();
  klicke("nächster_0");
  EXPECT_EQ(wahl(4)->text(), "Aktuelles Volk 3 / Carla");
  klicke("nächster_1");
  EXPECT_EQ(wahl(4)->text(), "Aktuelles Volk 1 / Anna");
}

TEST_F(FormularTest, EinJahrWirdBeimVerlassenVollständig) {
  const Testliste liste = völker(1);
  öffne();
  const QList<std::pair<const char*, const char*>> jahre = {
      {"7", "2007"}, {"49", "2049"}, {"50", "1950"}, {"123", ""}, {"1999", "1999"}};
  for (const auto& [getippt, daraus] : jahre) {
    tippe("t_0", getippt);
    feld("t_1")->setFocus();
    EXPECT_EQ(inhalt("t_0"), daraus) << getippt;
  }
  tippe("t_0", "x2019");
  EXPECT_EQ(inhalt("t_0"), "");
}

TEST_F(FormularTest, DasDatumWähltSeinenZeitraum) {
  const Testliste liste = völker(1);
  öffne();
  EXPECT_TRUE(kind<QRadioButton>("optibuch_0")->isChecked());
  feld("tdat_1")->setFocus();
  EXPECT_TRUE(kind<QRadioButton>("optibuch_1")->isChecked());
}

TEST_F(FormularTest, ZweiGründeStehenInEinerMeldungUndNichtsLäuft) {
  const Testliste liste = völker(1);
  EinstellungenZahl[Zahlslots.buchungsauswahl] = 1;
  öffne();
  tippe("t_1", "2019");
  boxen.hinweis(
      "Die Daten können nicht gelistet werden, weil...\n\n...das Datum von...bis eingegeben werden "
      "muß.\n...die Jahre verkehrt sind.");
  klicke("ok");
  EXPECT_EQ(spur.befehle, QStringList());
  EXPECT_FALSE(QFile::exists(Übergabe::datei()));
  EXPECT_TRUE(offen());
}

TEST_F(FormularTest, EinLaufÜbergibtSeineListeUndDieEingabenBleiben) {
  const Testliste liste = völker(2);
  öffne();
  klicke("konschnitt");
  klicke("alletier_0");
  klicke("ok");
  ASSERT_EQ(listen, 1);
  EXPECT_TRUE(spur.eingaben.an("konschnitt"));
  EXPECT_EQ(spur.eingaben.gewählt("liste"), QStringList({"Volknr", "Volkname"}));
  EXPECT_EQ(spur.eingaben.volk, 11);
  const Ausgabeliste gelesen = Übergabe::lesen(Übergabe::datei());
  EXPECT_EQ(gelesen.überschrift(0), "Über & unter");
  EXPECT_EQ(gelesen.daten()->anzeige(0, 0), "Max & Moritz");
  EXPECT_TRUE(kind<QCheckBox>("konschnitt")->isChecked());
}

TEST_F(FormularTest, OhneZeileSagtDerLaufSeinenTextUndÜbergibtNichts) {
  const Testliste liste = völker(1);
  öffne();
  boxen.hinweis("Hier ist nichts.");
  klicke("nichts");
  EXPECT_EQ(listen, 0);
  EXPECT_FALSE(QFile::exists(Übergabe::datei()));
}

TEST_F(FormularTest, AlleUndKeineSchaltenListeUndKästchen) {
  const Testliste liste = völker(1);
  öffne();
  klicke("alletier_0");
  EXPECT_EQ(form->eingaben().gewählt("liste").size(), 2);
  EXPECT_TRUE(form->eingaben().an("konschnitt"));
  klicke("alletier_1");
  EXPECT_EQ(form->eingaben().gewählt("liste").size(), 0);
  EXPECT_FALSE(form->eingaben().an("konschnitt"));
}

// Its list goes by the field that stands before it.
TEST_F(FormularTest, EinUnverändertVerlassenesFeldLässtDieHakenStehen) {
  const Testliste liste = völker(1);
  öffne();
  auto* tabelle = feld("sevt_0");
  tippe(tabelle, "H");
  kind<QWidget>("t_0")->setFocus();
  EXPECT_EQ(form->eingaben().gewählt("li"), QStringList());
  klicke("alletier_0");
  const QStringList alle = form->eingaben().gewählt("li");
  EXPECT_EQ(alle, QStringList({"Honig", "Menge"}));
  tabelle->setFocus();
  kind<QWidget>("t_0")->setFocus();
  EXPECT_EQ(form->eingaben().gewählt("li"), alle);
  tabelle->setFocus();
  klicke("ok");
  EXPECT_EQ(spur.eingaben.gewählt("li"), alle);
}

TEST_F(FormularTest, BeimSchließenGehenDieEingabenInIhrePlätze) {
  const Testliste liste = völker(1);
  öffne();
  klicke(wahl(2));
  klicke("alletier_0");
  tippe("t_0", "2021");
  klicke("beenden");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.völkerwahl], 2);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.statistikSchnitt], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.jahrVon], 2021);
  EXPECT_EQ(EinstellungenText[Textslots.volkdatenFelder], ";Volknr;Volkname;");
}

TEST_F(FormularTest, EinLangerLaufZeigtSeinenFortschrittUndDasFensterMaltWeiter) {
  const Testliste liste = völker(1);
  öffne();
  auto* meter = kind<QProgressBar>("meter");
  bool gesehen = false;
  spur.während = [&](Lauf& lauf) {
    QThread::msleep(70);
    lauf.fortschritt(3, 10);
    gesehen = meter->isVisible() && meter->value() == 3 && meter->maximum() == 10;
  };
  klicke("ok");
  EXPECT_TRUE(gesehen);
  EXPECT_FALSE(meter->isVisible());
}

TEST_F(FormularTest, WährendDesLaufsGeschlossenSchließtEsDanachOhneÜbergabe) {
  const Testliste liste = völker(1);
  öffne();
  bool währenddessen = false;
  spur.während = [&](Lauf&) {
    form->close();
    währenddessen = offen();
  };
  klicke("ok");
  EXPECT_TRUE(währenddessen);
  QApplication::processEvents();
  EXPECT_FALSE(offen());
  EXPECT_EQ(listen, 0);
}

TEST_F(FormularTest, TastenWährendDesLaufsGehenVerloren) {
  const Testliste liste = völker(1);
  öffne();
  spur.während = [&](Lauf& lauf) {
    QApplication::postEvent(kind<QWidget>("ok"),
                            new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
    QApplication::postEvent(kind<QWidget>("ok"),
                            new QKeyEvent(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier));
    QThread::msleep(70);
    lauf.fortschritt(3, 10);
  };
  klicke("ok");
  QApplication::processEvents();
  EXPECT_EQ(spur.befehle, QStringList("ok"));
}

TEST_F(FormularTest, EinWiederGeöffnetesFensterWähltKeinenZeitraumVonSelbst) {
  const Testliste liste = völker(1);
  öffne();
  feld("tdat_1")->setFocus();
  QTest::keyClick(feld("tdat_1"), Qt::Key_Escape);
  EXPECT_FALSE(offen());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.buchungsauswahl], 1);
  EinstellungenZahl[Zahlslots.buchungsauswahl] = 0;
  form->laden();
  form->show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  EXPECT_TRUE(kind<QRadioButton>("optibuch_0")->isChecked());
}

TEST_F(FormularTest, EinUnfertigesJahrWirdAuchBeimSchließenVollständig) {
  const Testliste liste = völker(1);
  öffne();
  tippe("t_0", "7");
  QTest::keyClick(feld("t_0"), Qt::Key_Escape);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.jahrVon], 2007);
}

TEST_F(FormularTest, EinFehlerDesLaufsWirdGesagtUndDasFensterBleibtBenutzbar) {
  const Testliste liste = völker(1);
  öffne();
  spur.während = [](Lauf& lauf) { lauf.db.Lesen("select Gibtsnicht from Bienenvolk"); };
  boxen.hinweisMit("Gibtsnicht");
  klicke("ok");
  EXPECT_FALSE(kind<QProgressBar>("meter")->isVisible());
  spur.während = {};
  klicke("ok");
  EXPECT_EQ(listen, 1);
}

}  // namespace
