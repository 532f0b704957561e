// The calendar's inputs: entering, changing, deleting.

#include "planning/forms/Terminverwaltungsprobe.h"
#include "platform/files/Ton.h"

namespace {

using TZ_Variablen::EinstellungenZahl;

TEST_F(TVTerminverwaltung, EinUngueltigesDatumLaesstDieTageStehen) {
  oeffne();
  tippe(9, "3");
  ASSERT_EQ(inhalt(0), "23.06.2006");
  tippe(0, "31.02.2006");
  EXPECT_EQ(inhalt(9), "3");
}

TEST_F(TVTerminverwaltung, JedesFeldHatNamenUndBeschriftung) {
  oeffne();
  EXPECT_EQ(form->objectName(), "TV_Terminverwaltung");
  EXPECT_EQ(form->windowTitle(), "Terminverwaltung");
  EXPECT_EQ(kind<QRadioButton>("opti_0")->text(), "Allgemeine Termine");
  EXPECT_EQ(kind<QRadioButton>("opti_1")->text(), "Volkabhängige Termine");
  EXPECT_EQ(kind<QPushButton>("neu_0")->text(), "&Neu");
  EXPECT_EQ(kind<QPushButton>("neu_1")->text(), "&Ändern");
  EXPECT_EQ(kind<QPushButton>("lschalleerledigte")->text(),
            "Alle als erledigt markierte Termine löschen");
  const QStringList namen = {"Datum",
                             "Termin",
                             "Erledigt (J/N)",
                             "...die Volknummer",
                             "...die Terminart",
                             "...den Erledigungs-Status",
                             "...Termindatum vom",
                             "...Termindatum bis",
                             "Volknummer",
                             "Heute in...",
                             "oder alle Völker am Standort"};
  for (int i = 0; i < 11; ++i) EXPECT_EQ(feld(i)->accessibleName(), namen[i]);
  EXPECT_EQ(feld(9)->beschreibung().einheit, "Tagen");
}

TEST_F(TVTerminverwaltung, ErsteWerteUndAuswahlen) {
  oeffne();
  EXPECT_EQ(inhalt(0), "20.06.2006");
  EXPECT_EQ(inhalt(2), "N");
  EXPECT_EQ(inhalt(6), "13.06.2006");
  EXPECT_EQ(inhalt(7), "04.07.2006");
  EXPECT_EQ(inhalt(9), "0");
  EXPECT_EQ(feld(3)->beschreibung().auswahl, QStringList({"", "7", "8"}));
  EXPECT_EQ(feld(5)->beschreibung().auswahl, QStringList({"", "J", "N"}));
  EXPECT_EQ(feld(2)->beschreibung().auswahl, QStringList({"J", "N"}));
  EXPECT_EQ(feld(10)->beschreibung().auswahl, QStringList({"", "Heide"}));
  for (const int i : {1, 4})
    EXPECT_EQ(feld(i)->liste(), QStringList({"Durchsicht", "Fest", "Schau", "Steuer"}));
  EXPECT_EQ(feld(8)->liste(), QStringList({"7", "8"}));
  EXPECT_TRUE(kind<QRadioButton>("opti_0")->isChecked());
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
}

TEST_F(TVTerminverwaltung, HeuteInTagenSetztDasDatumUndUmgekehrt) {
  oeffne();
  tippe(9, "14");
  EXPECT_EQ(inhalt(0), "04.07.2006");
  tippe(9, "-1");
  EXPECT_EQ(inhalt(0), "19.06.2006");
  EXPECT_EQ(inhalt(9), "-1");
  tippe(0, "30.6.2006");
  EXPECT_EQ(inhalt(9), "10");
}

TEST_F(TVTerminverwaltung, InTageKommenNurZiffernUndVorzeichen) {
  oeffne();
  tippe(9, "1a2,3");
  EXPECT_EQ(inhalt(9), "123");
}

TEST_F(TVTerminverwaltung, NeuerTerminStehtDanachAktuellInDerListe) {
  oeffne();
  tippe(0, "24.06.2006");
  tippe(1, "Markt");
  neu();
  EXPECT_EQ(spalte("Termin"), "Schau Steuer Markt");
  EXPECT_EQ(li()->aktuelleZeile(), 2);
  EXPECT_EQ(inhalt(2), "N");
  EXPECT_TRUE(feld(1)->liste().contains("Markt"));
}

TEST_F(TVTerminverwaltung, NeuerTerminFuerEinVolk) {
  oeffne();
  volkansicht();
  tippe(1, "Zarge");
  tippe(8, "7");
  neu();
  EXPECT_EQ(termine("Termin = 'Zarge'"), "20.06. Zarge N " + std::to_string(volk));
}

TEST_F(TVTerminverwaltung, NachJedemSpeichernUndNurDannKommtDerTastenton) {
  int toene = 0;
  Ton::setSpieler([&](int, int) { ++toene; });
  EinstellungenZahl[14] = 1;
  oeffne();
  boxen.hinweisMit("...die Terminart angegeben werden muß.");
  neu();
  klickeZeile(0);
  boxen.hinweis("Dieser Termin existiert bereits.");
  neu();
  EXPECT_EQ(toene, 0);
  tippe(1, "Messe");
  aendern();
  EXPECT_EQ(toene, 1);
  tippe(1, "Markt");
  neu();
  EXPECT_EQ(toene, 2);
  Ton::setSpieler({});
}

TEST_F(TVTerminverwaltung, TexteSindSoLangWieIhreFelder) {
  oeffne();
  for (const int i : {1, 4}) EXPECT_EQ(feld(i)->beschreibung().maxLaenge, 30);
  EXPECT_EQ(feld(8)->beschreibung().maxLaenge, 10);
  tippe(1, QString(31, u'x'));
  neu();
  EXPECT_EQ(anzahl("Termine", "Termin = '" + QString(30, u'x') + "'"), 1);
}

TEST_F(TVTerminverwaltung, BlankAlsVolknummerIstEinAllgemeinerTermin) {
  oeffne();
  tippe(1, "Markt");
  tippe(8, " ");
  neu();
  EXPECT_EQ(termine("Termin = 'Markt'"), "20.06. Markt N 0");
}

// Else the next new appointment would be entered as done.
TEST_F(TVTerminverwaltung, ErledigtStehtNachJedemSpeichernWiederAufN) {
  oeffne();
  tippe(1, "Markt");
  feld(2)->setFocus();
  QTest::keyClicks(feld(2), "J");
  ASSERT_EQ(inhalt(2), "J");
  neu();
  EXPECT_EQ(termine("Termin = 'Markt'"), "20.06. Markt J 0");
  EXPECT_EQ(inhalt(2), "N");
  doppelklick(1);
  EXPECT_EQ(termine("Termin = 'Schau'"), "21.06. Schau J 0");
  EXPECT_EQ(inhalt(2), "N");
  klickeZeile(1);
  EXPECT_EQ(inhalt(2), "J");
}

TEST_F(TVTerminverwaltung, LeeresDatumWirdNachDemLoeschenDerErledigtenHeute) {
  oeffne();
  klickeZeile(1);
  tippe(0, "");
  feld(10)->setFocus();
  QTest::keyClicks(feld(10), "H");
  ASSERT_EQ(inhalt(10), "Heide");
  ASSERT_EQ(inhalt(2), "J");
  boxen.frageMit("Sollen wirklich alle als erledigt markierte Termine", true);
  klicke("lschalleerledigte");
  EXPECT_EQ(inhalt(0), "20.06.2006");
  EXPECT_EQ(inhalt(2), "N");
  EXPECT_EQ(inhalt(10), "");
  EXPECT_EQ(feld(1)->liste(), QStringList({"Durchsicht", "Fest", "Schau"}));
}

TEST_F(TVTerminverwaltung, ErstKommenDieGruendeDannDieZeile) {
  oeffne();
  boxen.hinweis(
      "Die Daten werden nicht gespeichert, weil...\n\n"
      "...die Terminart angegeben werden muß.\n");
  aendern();
}

TEST_F(TVTerminverwaltung, ErstKommtDieZeileDannDerDoppelteTermin) {
  oeffne();
  tippe(0, "21.06.2006");
  tippe(1, "Schau");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  aendern();
}

TEST_F(TVTerminverwaltung, ErstKommtDerDoppelteTerminDannDieFrageNachDemStandort) {
  oeffne();
  klickeZeile(0);
  feld(10)->setFocus();
  QTest::keyClicks(feld(10), "H");
  boxen.hinweis("Dieser Termin existiert bereits.");
  neu();
  EXPECT_EQ(anzahl("Termine"), 4);
  EXPECT_EQ(inhalt(10), "Heide");
}

TEST_F(TVTerminverwaltung, AlleGruendeStehenInEinemHinweis) {
  oeffne();
  tippe(0, "31.02.2006");
  tippe(8, "8");
  boxen.hinweis(
      "Die Daten werden nicht gespeichert, weil...\n\n"
      "...das Datum des Termins angegeben werden muß.\n"
      "...die Terminart angegeben werden muß.\n"
      "...das angegebene Volk nicht existiert (aktuell im Bestand ist).\n");
  neu();
  EXPECT_EQ(anzahl("Termine"), 4);
}

TEST_F(TVTerminverwaltung, AendernOhneZeileWirdErklaert) {
  oeffne();
  tippe(1, "Markt");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  aendern();
}

TEST_F(TVTerminverwaltung, DoppelterTerminWirdAbgelehnt) {
  oeffne();
  klickeZeile(0);
  boxen.hinweis("Dieser Termin existiert bereits.");
  neu();
  EXPECT_EQ(anzahl("Termine"), 4);
}

TEST_F(TVTerminverwaltung, AendernMitStandortFragtUndAendertNurDieZeile) {
  oeffne();
  klickeZeile(0);
  tippe(1, "Messe");
  feld(10)->setFocus();
  QTest::keyClicks(feld(10), "H");
  const QString frage =
      "Soll der Termin wirklich bei allen Völkern am Standort 'Heide' eingetragen werden?";
  boxen.frage(frage, false);
  aendern();
  EXPECT_EQ(anzahl("Termine", "Termin = 'Messe'"), 0);
  EXPECT_EQ(inhalt(1), "Messe");
  boxen.frage(frage, true);
  aendern();
  EXPECT_EQ(termine("Termin = 'Messe'"), "21.06. Messe N 0");
  EXPECT_EQ(anzahl("Termine"), 4);
  EXPECT_EQ(inhalt(10), "");
}

TEST_F(TVTerminverwaltung, AendernKannDasVolkWegnehmen) {
  oeffne();
  volkansicht();
  klickeZeile(0);
  tippe(8, "");
  aendern();
  EXPECT_EQ(termine("Termin = 'Durchsicht'"), "23.06. Durchsicht N 0");
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(li()->aktuelleZeile(), -1);
}

TEST_F(TVTerminverwaltung, AendernSchreibtDieZeileUndBehaeltIhrKennzeichen) {
  oeffne();
  klickeZeile(1);
  tippe(0, "25.06.2006");
  aendern();
  EXPECT_EQ(termine("Termin = 'Steuer'"), "25.06. Steuer J 0");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
}

TEST_F(TVTerminverwaltung, AendernAufEinenVorhandenenWirdAbgelehnt) {
  oeffne();
  klickeZeile(1);
  tippe(0, "21.06.2006");
  tippe(1, "Schau");
  boxen.hinweis("Dieser Termin existiert bereits.");
  aendern();
  EXPECT_EQ(termine("Termin = 'Steuer'"), "22.06. Steuer J 0");
}

TEST_F(TVTerminverwaltung, DoppelklickMarkiertAlsErledigt) {
  oeffne();
  doppelklick(0);
  EXPECT_EQ(termine("Termin = 'Schau'"), "21.06. Schau J 0");
  EXPECT_EQ(spalte("Erledigt"), "J J");
}

TEST_F(TVTerminverwaltung, DoppelklickBeimVolkNichtImBestandWirdAbgelehnt) {
  db().Execute("update Bienenvolk set Akt_im_Bestand = '' where ID = ?", {volk});
  oeffne();
  volkansicht();
  boxen.hinweisMit("...das angegebene Volk nicht existiert (aktuell im Bestand ist).");
  doppelklick(0);
  EXPECT_EQ(termine("Termin = 'Durchsicht'"), "23.06. Durchsicht N " + std::to_string(volk));
}

// The colonies have moved away since the form was opened.
TEST_F(TVTerminverwaltung, StandortOhneVoelkerTraegtNichtsEin) {
  oeffne();
  tippe(1, "Zarge");
  feld(10)->setFocus();
  QTest::keyClicks(feld(10), "H");
  db().Execute("update Bienenvolk set Standort = 'Hof'");
  boxen.frageMit("Soll der Termin wirklich bei allen Völkern am Standort 'Heide'", true);
  neu();
  EXPECT_EQ(anzahl("Termine"), 4);
  EXPECT_EQ(li()->aktuelleZeile(), -1);
  EXPECT_EQ(feld(10)->beschreibung().auswahl, QStringList({"", "Hof"}));
}

TEST_F(TVTerminverwaltung, StandortFragtUndTraegtBeiAllenVoelkernEin) {
  oeffne();
  volkansicht();
  tippe(1, "Zarge");
  feld(10)->setFocus();
  QTest::keyClicks(feld(10), "H");
  const QString frage =
      "Soll der Termin wirklich bei allen Völkern am Standort 'Heide' eingetragen werden?";
  boxen.frage(frage, false);
  neu();
  EXPECT_EQ(anzahl("Termine", "Termin = 'Zarge'"), 0);
  boxen.frage(frage, true);
  neu();
  EXPECT_EQ(anzahl("Termine", "Termin = 'Zarge'"), 2);
  EXPECT_EQ(inhalt(10), "");
  EXPECT_EQ(li()->zelle(li()->aktuelleZeile(), "Termin"), "Zarge");
}

TEST_F(TVTerminverwaltung, LoeschenFragtUndNimmtDieZeileWeg) {
  EinstellungenZahl[55] = 1;
  oeffne();
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke(QString("löschen"));
  klickeZeile(0);
  boxen.frageMit(Loeschfrage, false);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Termine"), 4);
  boxen.frageMit(Loeschfrage, true);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Termine", "Termin = 'Schau'"), 0);
  EXPECT_EQ(spalte("Termin"), "Steuer");
  EXPECT_EQ(inhalt(1), "Steuer");
}

TEST_F(TVTerminverwaltung, LoeschenDerLetztenZeileZeigtDieDavor) {
  oeffne();
  klickeZeile(1);
  klicke(QString("löschen"));
  EXPECT_EQ(spalte("Termin"), "Schau");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
  EXPECT_EQ(inhalt(1), "Schau");
}

TEST_F(TVTerminverwaltung, LoeschenDerEinzigenZeileLaesstDieEingabenStehen) {
  oeffne();
  volkansicht();
  klickeZeile(0);
  klicke(QString("löschen"));
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(li()->aktuelleZeile(), -1);
  EXPECT_EQ(inhalt(1), "Durchsicht");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke(QString("löschen"));
}

TEST_F(TVTerminverwaltung, AlleErledigtenLoeschenFragt) {
  oeffne();
  const QString frage =
      "Sollen wirklich alle als erledigt markierte Termine aus der Terminverwaltung gelöscht "
      "werden?";
  boxen.frage(frage, false);
  klicke("lschalleerledigte");
  EXPECT_EQ(anzahl("Termine"), 4);
  boxen.frage(frage, true);
  klicke("lschalleerledigte");
  EXPECT_EQ(anzahl("Termine", "Erledigt = 'J'"), 0);
  EXPECT_EQ(spalte("Termin"), "Schau");
}

TEST_F(TVTerminverwaltung, FehlschlagBeimSpeichernLaesstDieEingabenStehen) {
  oeffne();
  tippe(0, "24.06.2006");
  tippe(1, "Markt");
  scheitern("insert");
  boxen.hinweisMit("kein Platz");
  neu();
  EXPECT_EQ(anzahl("Termine"), 4);
  EXPECT_EQ(inhalt(0), "24.06.2006");
  EXPECT_EQ(inhalt(1), "Markt");
  EXPECT_TRUE(form->isVisible());
}

// Two colonies stand there; the second one's row can't be written.
TEST_F(TVTerminverwaltung, FehlschlagAmStandortZeigtWasEingetragenIstUndLaesstDieEingaben) {
  oeffne();
  volkansicht();
  klickeZeile(0);
  tippe(0, "22.06.2006");
  tippe(1, "Zarge");
  feld(10)->setFocus();
  QTest::keyClicks(feld(10), "H");
  scheitern("insert", "(select count(*) from Termine) = 5");
  boxen.frageMit("Soll der Termin wirklich bei allen Völkern am Standort 'Heide'", true)
      .hinweisMit(
          "Bei 1 von 2 Völkern am Standort 'Heide' ist der Termin schon eingetragen, bei den "
          "anderen nicht.");
  neu();
  EXPECT_EQ(termine("Termin = 'Zarge'"), "22.06. Zarge N " + std::to_string(volk));
  EXPECT_EQ(spalte("Termin"), "Zarge Durchsicht");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
  EXPECT_EQ(inhalt(0), "22.06.2006");
  EXPECT_EQ(inhalt(1), "Zarge");
  EXPECT_EQ(inhalt(10), "Heide");
}

TEST_F(TVTerminverwaltung, FehlschlagBeimLoeschenLaesstDieZeileStehen) {
  oeffne();
  klickeZeile(1);
  scheitern("delete");
  boxen.hinweisMit("kein Platz");
  klicke(QString("löschen"));
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
}

TEST_F(TVTerminverwaltung, BildBeiHundertUndHundertfuenfzigProzent) {
  saison();
  for (const int prozent : {100, 150}) {
    const Schriftgroesse schrift(prozent);
    oeffne();
    volkansicht();
    klickeZeile(0);
    passtAufKleinenSchirm(*form);
    knoepfeSindLesbar(*form);
    bildAblegen(*form, QString("termine_verwaltung_%1").arg(prozent));
    form.reset();
  }
}

}  // namespace
