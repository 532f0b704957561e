// The calendar's inputs: entering, changing, deleting.

#include "planning/forms/Terminverwaltungsprobe.h"
#include "platform/files/Ton.h"

namespace {

using TZ_Variablen::EinstellungenZahl;

TEST_F(TVTerminverwaltung, EinUngültigesDatumLässtDieTageStehen) {
  öffne();
  tippe("Heute in...", "3");
  ASSERT_EQ(inhalt("Datum"), "23.06.2006");
  tippe("Datum", "31.02.2006");
  EXPECT_EQ(inhalt("Heute in..."), "3");
}

TEST_F(TVTerminverwaltung, JedesFeldHatNamenUndBeschriftung) {
  öffne();
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
  EXPECT_EQ(feld("Heute in...")->beschreibung().einheit, "Tagen");
}

TEST_F(TVTerminverwaltung, ErsteWerteUndAuswahlen) {
  öffne();
  EXPECT_EQ(inhalt("Datum"), "20.06.2006");
  EXPECT_EQ(inhalt("Erledigt (J/N)"), "N");
  EXPECT_EQ(inhalt("...Termindatum vom"), "13.06.2006");
  EXPECT_EQ(inhalt("...Termindatum bis"), "04.07.2006");
  EXPECT_EQ(inhalt("Heute in..."), "0");
  EXPECT_EQ(feld("...die Volknummer")->beschreibung().auswahl, QStringList({"", "7", "8"}));
  EXPECT_EQ(feld("...den Erledigungs-Status")->beschreibung().auswahl, QStringList({"", "J", "N"}));
  EXPECT_EQ(feld("Erledigt (J/N)")->beschreibung().auswahl, QStringList({"J", "N"}));
  EXPECT_EQ(feld("oder alle Völker am Standort")->beschreibung().auswahl,
            QStringList({"", "Heide"}));
  for (const int i : {1, 4})
    EXPECT_EQ(feld(i)->liste(), QStringList({"Durchsicht", "Fest", "Schau", "Steuer"}));
  EXPECT_EQ(feld("Volknummer")->liste(), QStringList({"7", "8"}));
  EXPECT_TRUE(kind<QRadioButton>("opti_0")->isChecked());
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
}

TEST_F(TVTerminverwaltung, HeuteInTagenSetztDasDatumUndUmgekehrt) {
  öffne();
  tippe("Heute in...", "14");
  EXPECT_EQ(inhalt("Datum"), "04.07.2006");
  tippe("Heute in...", "-1");
  EXPECT_EQ(inhalt("Datum"), "19.06.2006");
  EXPECT_EQ(inhalt("Heute in..."), "-1");
  tippe("Datum", "30.6.2006");
  EXPECT_EQ(inhalt("Heute in..."), "10");
}

TEST_F(TVTerminverwaltung, InTageKommenNurZiffernUndVorzeichen) {
  öffne();
  tippe("Heute in...", "1a2,3");
  EXPECT_EQ(inhalt("Heute in..."), "123");
}

TEST_F(TVTerminverwaltung, NeuerTerminStehtDanachAktuellInDerListe) {
  öffne();
  tippe("Datum", "24.06.2006");
  tippe("Termin", "Markt");
  neu();
  EXPECT_EQ(spalte("Termin"), "Schau Steuer Markt");
  EXPECT_EQ(li()->aktuelleZeile(), 2);
  EXPECT_EQ(inhalt("Erledigt (J/N)"), "N");
  EXPECT_TRUE(feld("Termin")->liste().contains("Markt"));
}

TEST_F(TVTerminverwaltung, NeuerTerminFürEinVolk) {
  öffne();
  volkansicht();
  tippe("Termin", "Zarge");
  tippe("Volknummer", "7");
  neu();
  EXPECT_EQ(termine("Termin = 'Zarge'"), "20.06. Zarge N " + std::to_string(volk));
}

TEST_F(TVTerminverwaltung, NachJedemSpeichernUndNurDannKommtDerTastenton) {
  int töne = 0;
  Ton::setSpieler([&](int, int) { ++töne; });
  EinstellungenZahl[Zahlslots.tastenton] = 1;
  öffne();
  boxen.hinweisMit("...die Terminart angegeben werden muß.");
  neu();
  klickeZeile(0);
  boxen.hinweis("Dieser Termin existiert bereits.");
  neu();
  EXPECT_EQ(töne, 0);
  tippe("Termin", "Messe");
  ändern();
  EXPECT_EQ(töne, 1);
  tippe("Termin", "Markt");
  neu();
  EXPECT_EQ(töne, 2);
  Ton::setSpieler({});
}

TEST_F(TVTerminverwaltung, TexteSindSoLangWieIhreFelder) {
  öffne();
  for (const int i : {1, 4}) EXPECT_EQ(feld(i)->beschreibung().maxLänge, 30);
  EXPECT_EQ(feld("Volknummer")->beschreibung().maxLänge, 10);
  tippe("Termin", QString(31, u'x'));
  neu();
  EXPECT_EQ(anzahl("Termine", "Termin = '" + QString(30, u'x') + "'"), 1);
}

TEST_F(TVTerminverwaltung, BlankAlsVolknummerIstEinAllgemeinerTermin) {
  öffne();
  tippe("Termin", "Markt");
  tippe("Volknummer", " ");
  neu();
  EXPECT_EQ(termine("Termin = 'Markt'"), "20.06. Markt N 0");
}

// Else the next new appointment would be entered as done.
TEST_F(TVTerminverwaltung, ErledigtStehtNachJedemSpeichernWiederAufN) {
  öffne();
  tippe("Termin", "Markt");
  feld("Erledigt (J/N)")->setFocus();
  QTest::keyClicks(feld("Erledigt (J/N)"), "J");
  ASSERT_EQ(inhalt("Erledigt (J/N)"), "J");
  neu();
  EXPECT_EQ(termine("Termin = 'Markt'"), "20.06. Markt J 0");
  EXPECT_EQ(inhalt("Erledigt (J/N)"), "N");
  doppelklick(1);
  EXPECT_EQ(termine("Termin = 'Schau'"), "21.06. Schau J 0");
  EXPECT_EQ(inhalt("Erledigt (J/N)"), "N");
  klickeZeile(1);
  EXPECT_EQ(inhalt("Erledigt (J/N)"), "J");
}

TEST_F(TVTerminverwaltung, LeeresDatumWirdNachDemLöschenDerErledigtenHeute) {
  öffne();
  klickeZeile(1);
  tippe("Datum", "");
  feld("oder alle Völker am Standort")->setFocus();
  QTest::keyClicks(feld("oder alle Völker am Standort"), "H");
  ASSERT_EQ(inhalt("oder alle Völker am Standort"), "Heide");
  ASSERT_EQ(inhalt("Erledigt (J/N)"), "J");
  boxen.frageMit("Sollen wirklich alle als erledigt markierte Termine", true);
  klicke("lschalleerledigte");
  EXPECT_EQ(inhalt("Datum"), "20.06.2006");
  EXPECT_EQ(inhalt("Erledigt (J/N)"), "N");
  EXPECT_EQ(inhalt("oder alle Völker am Standort"), "");
  EXPECT_EQ(feld("Termin")->liste(), QStringList({"Durchsicht", "Fest", "Schau"}));
}

TEST_F(TVTerminverwaltung, ErstKommenDieGründeDannDieZeile) {
  öffne();
  boxen.hinweis(
      "Die Daten werden nicht gespeichert, weil...\n\n"
      "...die Terminart angegeben werden muß.\n");
  ändern();
}

TEST_F(TVTerminverwaltung, ErstKommtDieZeileDannDerDoppelteTermin) {
  öffne();
  tippe("Datum", "21.06.2006");
  tippe("Termin", "Schau");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  ändern();
}

TEST_F(TVTerminverwaltung, ErstKommtDerDoppelteTerminDannDieFrageNachDemStandort) {
  öffne();
  klickeZeile(0);
  feld("oder alle Völker am Standort")->setFocus();
  QTest::keyClicks(feld("oder alle Völker am Standort"), "H");
  boxen.hinweis("Dieser Termin existiert bereits.");
  neu();
  EXPECT_EQ(anzahl("Termine"), 4);
  EXPECT_EQ(inhalt("oder alle Völker am Standort"), "Heide");
}

TEST_F(TVTerminverwaltung, AlleGründeStehenInEinemHinweis) {
  öffne();
  tippe("Datum", "31.02.2006");
  tippe("Volknummer", "8");
  boxen.hinweis(
      "Die Daten werden nicht gespeichert, weil...\n\n"
      "...das Datum des Termins angegeben werden muß.\n"
      "...die Terminart angegeben werden muß.\n"
      "...das angegebene Volk nicht existiert (aktuell im Bestand ist).\n");
  neu();
  EXPECT_EQ(anzahl("Termine"), 4);
}

TEST_F(TVTerminverwaltung, ÄndernOhneZeileWirdErklärt) {
  öffne();
  tippe("Termin", "Markt");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  ändern();
}

TEST_F(TVTerminverwaltung, DoppelterTerminWirdAbgelehnt) {
  öffne();
  klickeZeile(0);
  boxen.hinweis("Dieser Termin existiert bereits.");
  neu();
  EXPECT_EQ(anzahl("Termine"), 4);
}

TEST_F(TVTerminverwaltung, ÄndernMitStandortFragtUndÄndertNurDieZeile) {
  öffne();
  klickeZeile(0);
  tippe("Termin", "Messe");
  feld("oder alle Völker am Standort")->setFocus();
  QTest::keyClicks(feld("oder alle Völker am Standort"), "H");
  const QString frage =
      "Soll der Termin wirklich bei allen Völkern am Standort 'Heide' eingetragen werden?";
  boxen.frage(frage, false);
  ändern();
  EXPECT_EQ(anzahl("Termine", "Termin = 'Messe'"), 0);
  EXPECT_EQ(inhalt("Termin"), "Messe");
  boxen.frage(frage, true);
  ändern();
  EXPECT_EQ(termine("Termin = 'Messe'"), "21.06. Messe N 0");
  EXPECT_EQ(anzahl("Termine"), 4);
  EXPECT_EQ(inhalt("oder alle Völker am Standort"), "");
}

TEST_F(TVTerminverwaltung, ÄndernKannDasVolkWegnehmen) {
  öffne();
  volkansicht();
  klickeZeile(0);
  tippe("Volknummer", "");
  ändern();
  EXPECT_EQ(termine("Termin = 'Durchsicht'"), "23.06. Durchsicht N 0");
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(li()->aktuelleZeile(), -1);
}

TEST_F(TVTerminverwaltung, ÄndernSchreibtDieZeileUndBehältIhrKennzeichen) {
  öffne();
  klickeZeile(1);
  tippe("Datum", "25.06.2006");
  ändern();
  EXPECT_EQ(termine("Termin = 'Steuer'"), "25.06. Steuer J 0");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
}

TEST_F(TVTerminverwaltung, ÄndernAufEinenVorhandenenWirdAbgelehnt) {
  öffne();
  klickeZeile(1);
  tippe("Datum", "21.06.2006");
  tippe("Termin", "Schau");
  boxen.hinweis("Dieser Termin existiert bereits.");
  ändern();
  EXPECT_EQ(termine("Termin = 'Steuer'"), "22.06. Steuer J 0");
}

TEST_F(TVTerminverwaltung, DoppelklickMarkiertAlsErledigt) {
  öffne();
  doppelklick(0);
  EXPECT_EQ(termine("Termin = 'Schau'"), "21.06. Schau J 0");
  EXPECT_EQ(spalte("Erledigt"), "J J");
}

TEST_F(TVTerminverwaltung, DoppelklickBeimVolkNichtImBestandWirdAbgelehnt) {
  db().Execute("update Bienenvolk set Akt_im_Bestand = '' where ID = ?", {volk});
  öffne();
  volkansicht();
  boxen.hinweisMit("...das angegebene Volk nicht existiert (aktuell im Bestand ist).");
  doppelklick(0);
  EXPECT_EQ(termine("Termin = 'Durchsicht'"), "23.06. Durchsicht N " + std::to_string(volk));
}

// The colonies have moved away since the form was opened.
TEST_F(TVTerminverwaltung, StandortOhneVölkerTrägtNichtsEin) {
  öffne();
  tippe("Termin", "Zarge");
  feld("oder alle Völker am Standort")->setFocus();
  QTest::keyClicks(feld("oder alle Völker am Standort"), "H");
  db().Execute("update Bienenvolk set Standort = 'Hof'");
  boxen.frageMit("Soll der Termin wirklich bei allen Völkern am Standort 'Heide'", true);
  neu();
  EXPECT_EQ(anzahl("Termine"), 4);
  EXPECT_EQ(li()->aktuelleZeile(), -1);
  EXPECT_EQ(feld("oder alle Völker am Standort")->beschreibung().auswahl, QStringList({"", "Hof"}));
}

TEST_F(TVTerminverwaltung, StandortFragtUndTrägtBeiAllenVölkernEin) {
  öffne();
  volkansicht();
  tippe("Termin", "Zarge");
  feld("oder alle Völker am Standort")->setFocus();
  QTest::keyClicks(feld("oder alle Völker am Standort"), "H");
  const QString frage =
      "Soll der Termin wirklich bei allen Völkern am Standort 'Heide' eingetragen werden?";
  boxen.frage(frage, false);
  neu();
  EXPECT_EQ(anzahl("Termine", "Termin = 'Zarge'"), 0);
  boxen.frage(frage, true);
  neu();
  EXPECT_EQ(anzahl("Termine", "Termin = 'Zarge'"), 2);
  EXPECT_EQ(inhalt("oder alle Völker am Standort"), "");
  EXPECT_EQ(li()->zelle(li()->aktuelleZeile(), "Termin"), "Zarge");
}

TEST_F(TVTerminverwaltung, LöschenFragtUndNimmtDieZeileWeg) {
  EinstellungenZahl[Zahlslots.löschabfrage] = 1;
  öffne();
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke(QString("löschen"));
  klickeZeile(0);
  boxen.frageMit(Löschfrage, false);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Termine"), 4);
  boxen.frageMit(Löschfrage, true);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Termine", "Termin = 'Schau'"), 0);
  EXPECT_EQ(spalte("Termin"), "Steuer");
  EXPECT_EQ(inhalt("Termin"), "Steuer");
}

TEST_F(TVTerminverwaltung, LöschenDerLetztenZeileZeigtDieDavor) {
  öffne();
  klickeZeile(1);
  klicke(QString("löschen"));
  EXPECT_EQ(spalte("Termin"), "Schau");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
  EXPECT_EQ(inhalt("Termin"), "Schau");
}

TEST_F(TVTerminverwaltung, LöschenDerEinzigenZeileLässtDieEingabenStehen) {
  öffne();
  volkansicht();
  klickeZeile(0);
  klicke(QString("löschen"));
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(li()->aktuelleZeile(), -1);
  EXPECT_EQ(inhalt("Termin"), "Durchsicht");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke(QString("löschen"));
}

TEST_F(TVTerminverwaltung, AlleErledigtenLöschenFragt) {
  öffne();
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

TEST_F(TVTerminverwaltung, FehlschlagBeimSpeichernLässtDieEingabenStehen) {
  öffne();
  tippe("Datum", "24.06.2006");
  tippe("Termin", "Markt");
  scheitern("insert");
  boxen.hinweisMit("kein Platz");
  neu();
  EXPECT_EQ(anzahl("Termine"), 4);
  EXPECT_EQ(inhalt("Datum"), "24.06.2006");
  EXPECT_EQ(inhalt("Termin"), "Markt");
  EXPECT_TRUE(form->isVisible());
}

// Two colonies stand there; the second one's row can't be written.
TEST_F(TVTerminverwaltung, FehlschlagAmStandortZeigtWasEingetragenIstUndLässtDieEingaben) {
  öffne();
  volkansicht();
  klickeZeile(0);
  tippe("Datum", "22.06.2006");
  tippe("Termin", "Zarge");
  feld("oder alle Völker am Standort")->setFocus();
  QTest::keyClicks(feld("oder alle Völker am Standort"), "H");
  scheitern("insert", "(select count(*) from Termine) = 5");
  boxen.frageMit("Soll der Termin wirklich bei allen Völkern am Standort 'Heide'", true)
      .hinweisMit(
          "Bei 1 von 2 Völkern am Standort 'Heide' ist der Termin schon eingetragen, bei den "
          "anderen nicht.");
  neu();
  EXPECT_EQ(termine("Termin = 'Zarge'"), "22.06. Zarge N " + std::to_string(volk));
  EXPECT_EQ(spalte("Termin"), "Zarge Durchsicht");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
  EXPECT_EQ(inhalt("Datum"), "22.06.2006");
  EXPECT_EQ(inhalt("Termin"), "Zarge");
  EXPECT_EQ(inhalt("oder alle Völker am Standort"), "Heide");
}

TEST_F(TVTerminverwaltung, FehlschlagBeimLöschenLässtDieZeileStehen) {
  öffne();
  klickeZeile(1);
  scheitern("delete");
  boxen.hinweisMit("kein Platz");
  klicke(QString("löschen"));
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
}

TEST_F(TVTerminverwaltung, BildBeiHundertUndHundertfünfzigProzent) {
  saison();
  for (const int prozent : {100, 150}) {
    const Schriftgröße schrift(prozent);
    öffne();
    volkansicht();
    klickeZeile(0);
    passtAufKleinenSchirm(*form);
    knöpfeSindLesbar(*form);
    bildAblegen(*form, QString("termine_verwaltung_%1").arg(prozent));
    form.reset();
  }
}

}  // namespace
