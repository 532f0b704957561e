#include <QDir>
#include <QFileInfo>
#include <QSemaphore>
#include <stdexcept>

#include "Hauptumfeld.h"
#include "mainform/Komprimieren.h"
#include "platform/database/verbindung/Verbindung.h"

using namespace TZ_Variablen;

class Hauptstart : public Hauptumfeld {};

TEST_F(Hauptstart, ErsterStartLegtDatenbankUndEinstellungenAnUndZeigtDieErstenSchritte) {
  ASSERT_TRUE(laden());
  EXPECT_EQ(form->windowTitle(), QStringLiteral("TOVA 2.0.57 - Die Software für Imker"));
  EXPECT_TRUE(QFile::exists(datei("TOVA2.MDB")));
  EXPECT_TRUE(QFile::exists(datei("Einstellungen.TV2")));
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sicherungstage], 14);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.mehrwertsteuer1], 19);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.mehrwertsteuer2], 7);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.wabenJeMagazin], 10);
  EXPECT_EQ(HeuteText, QStringLiteral("15.06.2024"));
  Formbesuch hilfe("TH_Hilfe_Wieanfangen");
  zeigen();
  EXPECT_TRUE(hilfe.war());
  EXPECT_EQ(filtertexte(),
            QStringList({"Bestand (0 Völker)", "Abgang (0 Völker)", "Alles (0 Völker)"}));
  EXPECT_EQ(ProgrammGestartet, 1);
}

TEST_F(Hauptstart, AuchEinFensterOhneHauptformularTrägtDasProgrammsymbol) {
  ASSERT_TRUE(laden());
  const QWidget allein;
  ASSERT_FALSE(allein.windowIcon().isNull());
  EXPECT_EQ(allein.windowIcon().cacheKey(), form->windowIcon().cacheKey());
}

TEST_F(Hauptstart, MitVölkernKommenDieErstenSchritteNicht) {
  völker(2);
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

TEST_F(Hauptstart, GelöschteDatenbankEntstehtLeerUndDieEinstellungenBleiben) {
  völker(3);
  starten();
  EinstellungenZahl[Zahlslots.termintage] = 77;
  schließen();
  zurücksetzen();
  ASSERT_TRUE(QFile::remove(datei("TOVA2.MDB")));

  Formbesuch hilfe("TH_Hilfe_Wieanfangen");
  starten();
  EXPECT_TRUE(hilfe.war());
  EXPECT_EQ(form->zeilen(), 0);
  EXPECT_EQ(DB.Lesen("select ID from Arbeitsplanoptionen")->zeilen(), 18);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.termintage], 77);
}

TEST_F(Hauptstart, GelöschteEinstellungenKommenMitVorgabenWieder) {
  völker(3);
  starten();
  EinstellungenZahl[Zahlslots.termintage] = 77;
  EinstellungenText[Textslots.volkfelder] =
      QStringLiteral("select Volknr, Futterwaben, ID from Bienenvolk");
  schließen();
  zurücksetzen();
  ASSERT_TRUE(QFile::remove(datei("Einstellungen.TV2")));

  starten();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.termintage], 14);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2024);
  EXPECT_EQ(nummern(), QStringList({"1", "2", "3"}));
  EXPECT_TRUE(
      EinstellungenText[Textslots.volkfelder].startsWith("select Volknr, Volkname, Volkstärke"));
  EXPECT_TRUE(
      EinstellungenText[Textslots.stockkartenfelder].startsWith("select Datum, Volkstärke"));
}

// A booking whose colony was never summed up: the program was killed, or the disk was full.
TEST_F(Hauptstart, DerStartHoltOffeneZusammenfassungenNach) {
  völker(2);
  Start::datenbankÖffnen();
  DB.Execute("insert into Honigernte (Datum, Menge_kg, Volk_ID) values (?, 5, 2)",
             {QDate(2024, 6, 1)});
  DB.Execute("insert into Zusammenfassung_offen (Volk_ID) values (2)");
  trennen();
  starten();
  EXPECT_EQ(DB.Lesen("select Honigmenge_Gesamt from Bienenvolk where ID = 2")->anzeige(0, 0), "5");
  EXPECT_EQ(DB.Lesen("select ID from Zusammenfassung_offen")->zeilen(), 0);
  EXPECT_FALSE(finde<QTimer>("nachholen")->isActive());
}

TEST_F(Hauptstart, ScheitertDasNachholenGehtDerStartWeiterUndEsWirdVonSelbstWiederVersucht) {
  völker(1);
  Start::datenbankÖffnen();
  DB.Execute("insert into Honigernte (Datum, Menge_kg, Volk_ID) values (?, 5, 1)",
             {QDate(2024, 6, 1)});
  DB.Execute("insert into Zusammenfassung_offen (Volk_ID) values (1)");
  Verbindung::zu(DatenbankPfad)
      ->steuere(
          "create trigger kaputt before update on Bienenvolk begin select raise(fail, 'gestört'); "
          "end");
  trennen();
  probe.hinweisMit("gestört");
  starten();
  auto* nachholen = finde<QTimer>("nachholen");
  EXPECT_TRUE(nachholen->isActive());
  nachholen->setInterval(1);
  nachholen->start();
  QTest::qWait(50);  // tried again without a word
  EXPECT_EQ(DB.Lesen("select ID from Zusammenfassung_offen")->zeilen(), 1);
  Verbindung::zu(DatenbankPfad)->steuere("drop trigger kaputt");
  EXPECT_TRUE(QTest::qWaitFor(
      [] { return DB.Lesen("select ID from Zusammenfassung_offen")->zeilen() == 0; }));
  EXPECT_EQ(DB.Lesen("select Honigmenge_Gesamt from Bienenvolk")->anzeige(0, 0), "5");
  QTest::qWait(20);
  EXPECT_FALSE(nachholen->isActive());
  EXPECT_EQ(ListeNeuLesen, 0) << "the list shows it";
}

TEST_F(Hauptstart, FremdeDateiBeendetMitMeldungUndBleibtWieSieIst) {
  dateiSchreiben("TOVA2.MDB", "das ist ein Brief");
  probe.hinweisMit("TOVA2.MDB");
  EXPECT_FALSE(laden());
  beenden();
  EXPECT_EQ(dateiLesen("TOVA2.MDB"), QByteArray("das ist ein Brief"));
  EXPECT_FALSE(QFile::exists(datei("Einstellungen.TV2")));
}

TEST_F(Hauptstart, NachDemFehlstartSchreibtAuchDasSchließenNichts) {
  dateiSchreiben("TOVA2.MDB", "das ist ein Brief");
  dateiSchreiben("report-1.htm", "x");
  probe.hinweisMit("TOVA2.MDB");
  EXPECT_FALSE(laden());
  form->close();
  EXPECT_FALSE(QFile::exists(datei("Einstellungen.TV2")));
  EXPECT_TRUE(QFile::exists(datei("report-1.htm")));
}

TEST_F(Hauptstart, ZweiterStartImSelbenOrdnerEndetMitMeldung) {
  völker(1);
  starten();
  probe.hinweis(
      "Die Anwendung wurde bereits gestartet!  Mit der Tastenkombination CTRL+ESC können Sie alle "
      "aktiven Programme auflisten und auswählen.");
  TA_TOVA zweites;
  EXPECT_FALSE(zweites.laden({m_ordner.path(), QDate(2024, 6, 15), [] { return true; }}));
}

TEST_F(Hauptstart, DieSperreEinesAnderenRechnersFragtUndNeinBeendet) {
  völker(1);
  dateiSchreiben("tova.lock", "4711\ntova\nIMKER-PC\n");
  probe.frage(Start::andererRechnerFrage("IMKER-PC"), false, Meldungen::Vorgabe::Nein);
  EXPECT_FALSE(laden());
  beenden();
  EXPECT_EQ(dateiLesen("tova.lock"), QByteArray("4711\ntova\nIMKER-PC\n"));
  EXPECT_TRUE(Start::andererRechnerFrage("IMKER-PC").contains("\"IMKER-PC\""));
}

TEST_F(Hauptstart, MitJaWirdDerOrdnerDesAnderenRechnersÜbernommen) {
  völker(1);
  dateiSchreiben("tova.lock", "4711\ntova\nIMKER-PC\n");
  probe.frage(Start::andererRechnerFrage("IMKER-PC"), true, Meldungen::Vorgabe::Nein);
  EXPECT_TRUE(laden());
  EXPECT_FALSE(dateiLesen("tova.lock").contains("IMKER-PC"));
}

// Its pages have another size than the database's.
TEST_F(Hauptstart, DieMitschriftEinerAnderenDateiWirdGemeldetUndDerStartGehtWeiter) {
  völker(2);
  const QByteArray vorher = dateiLesen("TOVA2.MDB");
  dateiSchreiben("TOVA2.MDB-journal", QByteArray::fromHex("d9d505f920a163d7000000000000000100000001"
                                                          "0000020000000200")
                                          .leftJustified(1024, '\0'));
  probe.hinweisMit("\"TOVA2.MDB-journal.alt\"");
  starten();
  EXPECT_EQ(form->zeilen(), 2);
  EXPECT_TRUE(QFile::exists(datei("TOVA2.MDB-journal.alt")));
  EXPECT_EQ(dateiLesen("TOVA2.MDB").size(), vorher.size());
}

TEST_F(Hauptstart, EinWeggenommenerProgrammordnerWirdGemeldetUndEntstehtNichtNeu) {
  völker(1);
  starten();
  const QString ordner = m_ordner.path();
  const QString umbenannt = ordner + ".weg";
  ASSERT_TRUE(QDir().rename(ordner, umbenannt));
  try {
    DB.Execute("update Bienenvolk set Volkname = 'x'");
    ADD_FAILURE() << "kein Fehler";
  } catch (const Datenbankfehler& fehler) {
    EXPECT_TRUE(fehler.text().contains("verschoben oder gelöscht")) << fehler.what();
  }
  probe.hinweisMit("Einstellungen.TV2");
  form->close();
  beenden();
  EXPECT_FALSE(QFileInfo::exists(ordner));
  EXPECT_TRUE(QDir().rename(umbenannt, ordner));
}

TEST_F(Hauptstart, OhneDruckerWirdGewarntUndWeitergemacht) {
  völker(1);
  probe.hinweis(
      "Es ist kein Drucker installiert bzw. eingerichtet. Bitte installieren Sie einen Drucker, "
      "bevor Sie mit TOVA arbeiten, weil es sonst zu Programmabbrüchen kommen kann! Falls Sie "
      "keinen Drucker verwenden, installieren Sie bitte trotzdem einen beliebigen Druckertreiber.");
  EXPECT_TRUE(laden(false));
}

TEST_F(Hauptstart, StummerDruckdienstHältDenStartNichtAufUndMeldetNichts) {
  völker(1);
  const auto frei = std::make_shared<QSemaphore>();
  const auto fertig = std::make_shared<QSemaphore>();
  const auto stumm = [frei, fertig] {
    frei->tryAcquire(1, 60000);
    fertig->release();
    return false;
  };
  form = std::make_unique<TA_TOVA>();
  EXPECT_TRUE(form->laden({m_ordner.path(), QDate(2024, 6, 15), stumm}));
  EXPECT_EQ(fertig->available(), 0);
  frei->release();
  EXPECT_TRUE(fertig->tryAcquire(1, 60000));
}

TEST_F(Hauptstart, FrageNachDruckernDieScheitertMeldetNichts) {
  völker(1);
  form = std::make_unique<TA_TOVA>();
  EXPECT_TRUE(form->laden({m_ordner.path(), QDate(2024, 6, 15),
                           []() -> bool { throw std::runtime_error("kein Druckdienst"); }}));
}

TEST_F(Hauptstart, SchreibschutzWirdGemeldetUndEntfernt) {
  völker(1);
  dateiSchreiben("LISTE.TXT", "x");
  QFile::setPermissions(datei("LISTE.TXT"), QFile::ReadOwner);
  probe.hinweis(
      "ACHTUNG!!!\n\nIm Installationsverzeichnis von TOVA befinden sich 1 Dateien, die mit einem "
      "Schreibschutz versehen sind. Dadurch kann es bei TOVA zu Funktionsstörungen kommen. Der "
      "Schreibschutz wird deshalb entfernt?");
  EXPECT_TRUE(laden());
  EXPECT_TRUE(QFile::permissions(datei("LISTE.TXT")) & QFile::WriteOwner);
}

TEST_F(Hauptstart, SchreibgeschützteDatenbankWirdFreiUndGeht) {
  völker(1);
  QFile::setPermissions(datei("TOVA2.MDB"), QFile::ReadOwner);
  probe.hinweisMit("befinden sich 1 Dateien");
  starten();
  DB.Execute("update Bienenvolk set Volkname = 'frei'");
  EXPECT_EQ(DB.Lesen("select Volkname from Bienenvolk")->anzeige(0, 0), QStringLiteral("frei"));
}

TEST_F(Hauptstart, JederStartZähltUndDerZwanzigsteFragtNichts) {
  völker(1);
  for (int start = 1; start <= 21; ++start) {
    starten();
    EXPECT_EQ(EinstellungenZahl[Zahlslots.startzähler], start);
    schließen();
    zurücksetzen();
  }
}

TEST_F(Hauptstart, SchließenLöschtBerichteUndSichertDieEinstellungen) {
  völker(1);
  starten();
  dateiSchreiben("report-1.htm", "x");
  EinstellungenZahl[Zahlslots.termintage] = 33;
  aktion("XV_beenden")->trigger();
  EXPECT_FALSE(form->isVisible());
  EXPECT_FALSE(QFile::exists(datei("report-1.htm")));
  EXPECT_EQ(EinstellungenText[Textslots.letzteSicherung], QStringLiteral("15.06.2024"));
  EinstellungenZahl[Zahlslots.termintage] = 0;
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.termintage], 33);
}

TEST_F(Hauptstart, EinstellungenDieSichNichtSchreibenLassenHaltenDasSchließenNichtAuf) {
  völker(1);
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
  völker(1);
  starten();
  form->resize(933, 611);
  schließen();
  zurücksetzen();
  ASSERT_TRUE(laden());
  form->zeigen();
  EXPECT_EQ(form->size(), QSize(933, 611));
}

TEST_F(Hauptstart, BeimErstenStartFülltDasFensterDenSchirm) {
  völker(1);
  ASSERT_TRUE(laden());
  form->zeigen();
  EXPECT_TRUE(form->isMaximized());
}

TEST_F(Hauptstart, KomprimierenMitNeinLässtAllesWieEsIst) {
  völker(1);
  starten();
  probe.frage(komprimierenFrage(), false);
  aktion("O_Datenbankkomprimieren")->trigger();
  EXPECT_EQ(DB.Lesen("select ID from Bienenvolk")->zeilen(), 1);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(Hauptstart, KomprimierenBeendetOhneWeitereSchritte) {
  völker(1);
  starten();
  dateiSchreiben("report-1.htm", "x");
  const QByteArray einstellungen = dateiLesen("Einstellungen.TV2");
  EinstellungenZahl[Zahlslots.termintage] = 33;
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

TEST_F(Hauptstart, MisslungenesKomprimierenBehältDieAlteDatei) {
  völker(1);
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
    völker(1);
    ASSERT_TRUE(laden());
    EinstellungenZahl[Zahlslots.terminjahr] = jahr;
    schließen();
    zurücksetzen();
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
    EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2023);
    EXPECT_EQ(termine(), 0);
    schließen();
    zurücksetzen();
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
  zurücksetzen();
  EXPECT_TRUE(laden());
}

TEST_F(NeuesJahr, EineZurückgestellteUhrFragtAuch) {
  jahrStellen(2025);
  erwarteFrage(false);
  EXPECT_TRUE(laden());
}

TEST_F(NeuesJahr, EineUngültigeOptionWirdGenanntUndDerStartGehtWeiter) {
  jahrStellen(2023);
  Start::pfadeSetzen(m_ordner.path());
  Start::datenbankÖffnen();
  DB.Execute(
      QString("insert into Arbeitsplanoptionen(Arbeitsart, Startzeitraum, Endzeitraum, "
              "Wiederholungsfrist_Tage, Volkabhängig) values ('Silvester', '31.11', "
              "'31.12', 0, 'J')"));
  trennen();
  erwarteFrage(true);
  probe.hinweisMit("'Silvester'");
  EXPECT_TRUE(laden());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2023);
  EXPECT_GT(termine(), 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.wabenJeMagazin], 10);
}

// The open appointments of the next days, which the start shows once.
class Terminliste : public Hauptstart {
 protected:
  void termin(QDate datum, const QString& erledigt = "N") {
    völker(1);
    Start::pfadeSetzen(m_ordner.path());
    Start::datenbankÖffnen();
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

TEST_F(Terminliste, KommtNichtFürSpätere) {
  termin(QDate(2024, 6, 30));
  EXPECT_FALSE(kommt());
}

TEST_F(Terminliste, KommtNichtFürErledigte) {
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
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminlisteBeimStart], 0);
  schließen();
  zurücksetzen();
  EXPECT_FALSE(kommt());
}
