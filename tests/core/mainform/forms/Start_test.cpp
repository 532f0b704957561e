#include <QDir>

#include "Hauptumfeld.h"
#include "core/mainform/Komprimieren.h"

using namespace TZ_Variablen;

class Hauptstart : public Hauptumfeld {};

TEST_F(Hauptstart, ErsterStartLegtDatenbankUndEinstellungenAnUndZeigtDieErstenSchritte) {
  ASSERT_TRUE(laden());
  EXPECT_EQ(form->windowTitle(), QStringLiteral("TOVA 2.0.57 - Die Software für Imker"));
  EXPECT_TRUE(QFile::exists(datei("TOVA2.MDB")));
  EXPECT_TRUE(QFile::exists(datei("Einstellungen.TV2")));
  EXPECT_EQ(EinstellungenZahl[50], 14);
  EXPECT_EQ(EinstellungenZahl[44], 19);
  EXPECT_EQ(EinstellungenZahl[45], 7);
  EXPECT_EQ(EinstellungenZahl[56], 10);
  EXPECT_EQ(HeuteText, QStringLiteral("15.06.2024"));
  Formbesuch hilfe("TH_Hilfe_Wieanfangen");
  zeigen();
  EXPECT_TRUE(hilfe.war());
  EXPECT_EQ(filtertexte(),
            QStringList({"Bestand (0 Völker)", "Abgang (0 Völker)", "Alles (0 Völker)"}));
  EXPECT_EQ(ProgrammGestartet, 1);
}

TEST_F(Hauptstart, AuchEinFensterOhneHauptformularTraegtDasProgrammsymbol) {
  ASSERT_TRUE(laden());
  const QWidget allein;
  ASSERT_FALSE(allein.windowIcon().isNull());
  EXPECT_EQ(allein.windowIcon().cacheKey(), form->windowIcon().cacheKey());
}

TEST_F(Hauptstart, MitVoelkernKommenDieErstenSchritteNicht) {
  voelker(2);
  Formbesuch hilfe("TH_Hilfe_Wieanfangen");
  starten();
  EXPECT_FALSE(hilfe.war());
  EXPECT_EQ(form->aktuelleZeile(), 0);
  EXPECT_FALSE(finde<QLabel>("leerhinweis")->isVisible());
}

TEST_F(Hauptstart, ErsteSchritteKommenNurEinmalImProgrammlauf) {
  {
    Formbesuch hilfe("TH_Hilfe_Wieanfangen");
    starten();
    EXPECT_TRUE(hilfe.war());
  }
  Formbesuch hilfe("TH_Hilfe_Wieanfangen");
  form->aktivieren();
  EXPECT_FALSE(hilfe.war());
}

TEST_F(Hauptstart, GeloeschteDatenbankEntstehtLeerUndDieEinstellungenBleiben) {
  voelker(3);
  starten();
  EinstellungenZahl[17] = 77;
  schliessen();
  zuruecksetzen();
  ASSERT_TRUE(QFile::remove(datei("TOVA2.MDB")));

  Formbesuch hilfe("TH_Hilfe_Wieanfangen");
  starten();
  EXPECT_TRUE(hilfe.war());
  EXPECT_EQ(form->zeilen(), 0);
  EXPECT_EQ(DB.Lesen("select ID from Arbeitsplanoptionen")->zeilen(), 18);
  EXPECT_EQ(EinstellungenZahl[17], 77);
}

TEST_F(Hauptstart, GeloeschteEinstellungenKommenMitVorgabenWieder) {
  voelker(3);
  starten();
  EinstellungenZahl[17] = 77;
  EinstellungenText[17] = QStringLiteral("select Volknr, Futterwaben, ID from Bienenvolk");
  schliessen();
  zuruecksetzen();
  ASSERT_TRUE(QFile::remove(datei("Einstellungen.TV2")));

  starten();
  EXPECT_EQ(EinstellungenZahl[17], 14);
  EXPECT_EQ(EinstellungenZahl[28], 2024);
  EXPECT_EQ(nummern(), QStringList({"1", "2", "3"}));
  EXPECT_TRUE(EinstellungenText[17].startsWith("select Volknr, Volkname, Volkstärke"));
  EXPECT_TRUE(EinstellungenText[22].startsWith("select Datum, Volkstärke"));
}

TEST_F(Hauptstart, FremdeDateiBeendetMitMeldungUndBleibtWieSieIst) {
  dateiSchreiben("TOVA2.MDB", "das ist ein Brief");
  probe.hinweisMit("TOVA2.MDB");
  EXPECT_FALSE(laden());
  beenden();
  EXPECT_EQ(dateiLesen("TOVA2.MDB"), QByteArray("das ist ein Brief"));
  EXPECT_FALSE(QFile::exists(datei("Einstellungen.TV2")));
}

TEST_F(Hauptstart, NachDemFehlstartSchreibtAuchDasSchliessenNichts) {
  dateiSchreiben("TOVA2.MDB", "das ist ein Brief");
  dateiSchreiben("report-1.htm", "x");
  probe.hinweisMit("TOVA2.MDB");
  EXPECT_FALSE(laden());
  form->close();
  EXPECT_FALSE(QFile::exists(datei("Einstellungen.TV2")));
  EXPECT_TRUE(QFile::exists(datei("report-1.htm")));
}

TEST_F(Hauptstart, ZweiterStartImSelbenOrdnerEndetMitMeldung) {
  voelker(1);
  starten();
  probe.hinweis(
      "Die Anwendung wurde bereits gestartet!  Mit der Tastenkombination CTRL+ESC können Sie alle "
      "aktiven Programme auflisten und auswählen.");
  TA_TOVA zweites;
  EXPECT_FALSE(zweites.laden({m_ordner.path(), QDate(2024, 6, 15), [] { return true; }}));
}

TEST_F(Hauptstart, OhneDruckerWirdGewarntUndWeitergemacht) {
  voelker(1);
  probe.hinweis(
      "Es ist kein Drucker installiert bzw. eingerichtet. Bitte installieren Sie einen Drucker, "
      "bevor Sie mit TOVA arbeiten, weil es sonst zu Programmabbrüchen kommen kann! Falls Sie "
      "keinen Drucker verwenden, installieren Sie bitte trotzdem einen beliebigen Druckertreiber.");
  EXPECT_TRUE(laden(false));
}

TEST_F(Hauptstart, SchreibschutzWirdGemeldetUndEntfernt) {
  voelker(1);
  dateiSchreiben("LISTE.TXT", "x");
  QFile::setPermissions(datei("LISTE.TXT"), QFile::ReadOwner);
  probe.hinweis(
      "ACHTUNG!!!\n\nIm Installationsverzeichnis von TOVA befinden sich 1 Dateien, die mit einem "
      "Schreibschutz versehen sind. Dadurch kann es bei TOVA zu Funktionsstörungen kommen. Der "
      "Schreibschutz wird deshalb entfernt?");
  EXPECT_TRUE(laden());
  EXPECT_TRUE(QFile::permissions(datei("LISTE.TXT")) & QFile::WriteOwner);
}

TEST_F(Hauptstart, SchreibgeschuetzteDatenbankWirdFreiUndGeht) {
  voelker(1);
  QFile::setPermissions(datei("TOVA2.MDB"), QFile::ReadOwner);
  probe.hinweisMit("befinden sich 1 Dateien");
  starten();
  DB.Execute("update Bienenvolk set Volkname = 'frei'");
  EXPECT_EQ(DB.Lesen("select Volkname from Bienenvolk")->anzeige(0, 0), QStringLiteral("frei"));
}

TEST_F(Hauptstart, JederStartZaehltUndDerZwanzigsteFragtNichts) {
  voelker(1);
  for (int start = 1; start <= 21; ++start) {
    starten();
    EXPECT_EQ(EinstellungenZahl[78], start);
    schliessen();
    zuruecksetzen();
  }
}

TEST_F(Hauptstart, SchliessenLoeschtBerichteUndSichertDieEinstellungen) {
  voelker(1);
  starten();
  dateiSchreiben("report-1.htm", "x");
  EinstellungenZahl[17] = 33;
  aktion("XV_beenden")->trigger();
  EXPECT_FALSE(form->isVisible());
  EXPECT_FALSE(QFile::exists(datei("report-1.htm")));
  EXPECT_EQ(EinstellungenText[26], QStringLiteral("15.06.2024"));
  EinstellungenZahl[17] = 0;
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl[17], 33);
}

TEST_F(Hauptstart, EinstellungenDieSichNichtSchreibenLassenHaltenDasSchliessenNichtAuf) {
  voelker(1);
  starten();
  ASSERT_TRUE(QFile::remove(datei("Einstellungen.TV2")));
  ASSERT_TRUE(QDir(m_ordner.path()).mkpath("Einstellungen.TV2/voll"));
  dateiSchreiben("report-1.htm", "x");
  probe.hinweisMit("Einstellungen.TV2");
  aktion("XV_beenden")->trigger();
  EXPECT_FALSE(form->isVisible());
  EXPECT_FALSE(QFile::exists(datei("report-1.htm")));
}

TEST_F(Hauptstart, FensterlageWirdGemerkt) {
  voelker(1);
  starten();
  form->resize(933, 611);
  schliessen();
  zuruecksetzen();
  ASSERT_TRUE(laden());
  form->zeigen();
  EXPECT_EQ(form->size(), QSize(933, 611));
}

TEST_F(Hauptstart, BeimErstenStartFuelltDasFensterDenSchirm) {
  voelker(1);
  ASSERT_TRUE(laden());
  form->zeigen();
  EXPECT_TRUE(form->isMaximized());
}

TEST_F(Hauptstart, KomprimierenMitNeinLaesstAllesWieEsIst) {
  voelker(1);
  starten();
  probe.frage(komprimierenFrage(), false);
  aktion("O_Datenbankkomprimieren")->trigger();
  EXPECT_EQ(DB.Lesen("select ID from Bienenvolk")->zeilen(), 1);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(Hauptstart, KomprimierenBeendetOhneWeitereSchritte) {
  voelker(1);
  starten();
  dateiSchreiben("report-1.htm", "x");
  const QByteArray einstellungen = dateiLesen("Einstellungen.TV2");
  EinstellungenZahl[17] = 33;
  probe
      .frage(
          "Soll die Datenbasis wirklich komprimiert werden?\n\nDurch das komprimieren werden alle "
          "als gelöscht markierten Datensätze endgültig aus der Datenbank entfernt. Eine "
          "Komprimierung ist nur erforderlich, wenn Sie einige (oder eher viele) Daten gelöscht "
          "haben!",
          true)
      .hinweis(
          "Die Komprimierung wurde erfolgreich abgeschlossen.\n\nTOVA 2.0 wird nun beendet. Bitte "
          "starten Sie TOVA neu, damit die Datenbasis geladen wird!");
  aktion("O_Datenbankkomprimieren")->trigger();
  EXPECT_FALSE(form->isVisible());
  form->close();
  EXPECT_EQ(dateiLesen("Einstellungen.TV2"), einstellungen);
  EXPECT_TRUE(QFile::exists(datei("report-1.htm")));
  beenden();
  starten();
  EXPECT_EQ(nummern(), QStringList({"1"}));
}

TEST_F(Hauptstart, MisslungenesKomprimierenBehaeltDieAlteDatei) {
  voelker(1);
  starten();
  ASSERT_TRUE(QDir(m_ordner.path()).mkpath("TOVA2.$$$/voll"));
  const QByteArray vorher = dateiLesen("TOVA2.MDB");
  probe.frageMit("Soll die Datenbasis wirklich komprimiert werden?", true)
      .hinweis(
          "Bei der Komprimierung ist ein Fehler aufgetreten! Bitte beachten Sie, daß Sie nur "
          "Access-Dateien packen können und diese Dateien von keinem Nutzer geöffnet sein darf "
          "(auch nicht von Ihnen selbst)!");
  aktion("O_Datenbankkomprimieren")->trigger();
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(dateiLesen("TOVA2.MDB"), vorher);
}

// A start on the 15th of June 2024 after one in another year.
class NeuesJahr : public Hauptumfeld {
 protected:
  void jahrStellen(qint16 jahr) {
    voelker(1);
    ASSERT_TRUE(laden());
    EinstellungenZahl[28] = jahr;
    schliessen();
    zuruecksetzen();
  }
  void erwarteFrage(bool ja) {
    probe.frageMit("Sie starten TOVA das erste mal im neuen Jahr oder haben die Funktion", ja);
  }
  static int termine() { return DB.Lesen("select ID from Termine")->zeilen(); }
};

TEST_F(NeuesJahr, ImselbenJahrKommtKeineFrage) {
  jahrStellen(2024);
  EXPECT_TRUE(laden());
  EXPECT_EQ(termine(), 0);
}

TEST_F(NeuesJahr, NeinWiederholtDieFrageBeiJedemStart) {
  jahrStellen(2023);
  for (int i = 0; i < 2; ++i) {
    erwarteFrage(false);
    EXPECT_TRUE(laden());
    EXPECT_EQ(EinstellungenZahl[28], 2023);
    EXPECT_EQ(termine(), 0);
    schliessen();
    zuruecksetzen();
  }
}

TEST_F(NeuesJahr, JaSetztTermineUndDieFrageKommtNichtWieder) {
  jahrStellen(2023);
  erwarteFrage(true);
  probe.hinweisMit("Die volkabhängigen Termine wurden für das Jahr 2024 neu berechnet");
  EXPECT_TRUE(laden());
  EXPECT_GT(termine(), 0);
  EXPECT_TRUE(dateiLesen("Einstellungen.TV2").split('\n').value(28).startsWith("2024"));
  beenden();  // without the close's own saving
  zuruecksetzen();
  EXPECT_TRUE(laden());
}

TEST_F(NeuesJahr, EineZurueckgestellteUhrFragtAuch) {
  jahrStellen(2025);
  erwarteFrage(false);
  EXPECT_TRUE(laden());
}

TEST_F(NeuesJahr, EineUngueltigeOptionWirdGenanntUndDerStartGehtWeiter) {
  jahrStellen(2023);
  Start::pfadeSetzen(m_ordner.path());
  Start::datenbankOeffnen();
  DB.Execute(
      QString("insert into Arbeitsplanoptionen(Arbeitsart, Startzeitraum, Endzeitraum, "
              "Wiederholungsfrist_Tage, Volkabhängig) values ('Silvester', '31.11', "
              "'31.12', 0, 'J')"));
  trennen();
  erwarteFrage(true);
  probe.hinweisMit("'Silvester'");
  EXPECT_TRUE(laden());
  EXPECT_EQ(EinstellungenZahl[28], 2023);
  EXPECT_GT(termine(), 0);
  EXPECT_EQ(EinstellungenZahl[56], 10);
}

// The open appointments of the next days, which the start shows once.
class Terminliste : public Hauptstart {
 protected:
  void termin(QDate datum, const QString& erledigt = "N") {
    voelker(1);
    Start::pfadeSetzen(m_ordner.path());
    Start::datenbankOeffnen();
    DB.Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, 'Schau', ?, 0)",
               {datum, erledigt});
    trennen();
  }
  bool kommt() {
    Formbesuch besuch("TV_Starttermine");
    starten();
    return besuch.war();
  }
};

TEST_F(Terminliste, KommtBeimStartWennAmGrenztagEtwasOffenIst) {
  termin(QDate(2024, 6, 29));
  EXPECT_TRUE(kommt());
  Formbesuch nochmal("TV_Starttermine");
  form->aktivieren();
  EXPECT_FALSE(nochmal.war());
}

TEST_F(Terminliste, KommtNichtFuerSpaetere) {
  termin(QDate(2024, 6, 30));
  EXPECT_FALSE(kommt());
}

TEST_F(Terminliste, KommtNichtFuerErledigte) {
  termin(QDate(2024, 6, 1), "J");
  EXPECT_FALSE(kommt());
}

TEST_F(Terminliste, OhneHakenKommtSieNicht) {
  termin(QDate(2024, 6, 1));
  {
    Formbesuch besuch("TV_Starttermine",
                      [](QWidget* f) { f->findChild<QAbstractButton*>("kon")->click(); });
    starten();
    EXPECT_TRUE(besuch.war());
  }
  EXPECT_EQ(EinstellungenZahl[13], 0);
  schliessen();
  zuruecksetzen();
  EXPECT_FALSE(kommt());
}
