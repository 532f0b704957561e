#include "evaluations/Auswertung.h"

#include <gtest/gtest.h>

#include "core/globals.h"
#include "evaluations/Tabelle.h"
#include "gemeinsam/Programmordner.h"

using namespace Auswertung;
using namespace TZ_Variablen;

namespace {

class AuswertungTest : public testing::Test {
 protected:
  Programmordner m_ordner{"15.06.2026"};
  Eingaben e;
};

Eingaben zeitraum(const QString& von, const QString& bis) {
  Eingaben e;
  e.setWahl("optibuch", 1);
  e.setText("tdat", 0, von);
  e.setText("tdat", 1, bis);
  return e;
}

TEST_F(AuswertungTest, DieEinschränkungDerVölkerwahlInBeidenFormen) {
  e.volk = 17;
  const QStringList schlicht{" where Akt_im_Bestand = 'X'", "", " where Selektiert = 'X'",
                             " where Akt_im_Bestand <> 'X'", " where Bienenvolk.ID = 17"};
  const QStringList qualifiziert{
      " where Bienenvolk.Akt_im_Bestand = 'X'", " where Bienenvolk.Volknr IS NOT NULL",
      " where Bienenvolk.Selektiert = 'X'", " where Bienenvolk.Akt_im_Bestand <> 'X'",
      " where Bienenvolk.ID = 17"};
  for (int wahl = 0; wahl < 5; ++wahl) {
    e.setWahl("optitieraus", wahl);
    EXPECT_EQ(schlichterRest(e), schlicht[wahl]);
    EXPECT_EQ(qualifizierterRest(e), qualifiziert[wahl]);
  }
}

TEST_F(AuswertungTest, Der31DezemberLiegtVorDem1Januar) {
  EXPECT_EQ(zeitraumGründe(zeitraum("31.12.2005", "01.01.2006")), QStringList());
  EXPECT_EQ(zeitraumGründe(zeitraum("01.01.2006", "31.12.2005")),
            QStringList("...das 'Datum von' größer ist als das 'Datum bis'."));
}

TEST_F(AuswertungTest, BeideTageLeerErgebenNurDenZweitenGrund) {
  EXPECT_EQ(zeitraumGründe(zeitraum(" ", "")),
            QStringList("...das Datum von...bis eingegeben werden muß."));
}

TEST_F(AuswertungTest, OhneEndeStehenBeideGründe) {
  EXPECT_EQ(zeitraumGründe(zeitraum("01.01.2006", "")),
            QStringList({"...das 'Datum von' größer ist als das 'Datum bis'.",
                         "...das Datum von...bis eingegeben werden muß."}));
}

TEST_F(AuswertungTest, EinTagDenEsNichtGibtWirdGenannt) {
  EXPECT_EQ(zeitraumGründe(zeitraum("30.02.2006", "01.03.2006")),
            QStringList("...'30.02.2006' kein Datum ist."));
  EXPECT_EQ(zeitraumGründe(zeitraum("30.02.2006", "")),
            QStringList({"...'30.02.2006' kein Datum ist.",
                         "...das Datum von...bis eingegeben werden muß."}));
}

TEST_F(AuswertungTest, KurzGeschriebeneTageVergleichenSichAlsTage) {
  EXPECT_EQ(zeitraumGründe(zeitraum("1.6.06", "01.07.2006")), QStringList());
}

TEST_F(AuswertungTest, OhneZeitraumZählenDieTageNicht) {
  Eingaben ohne = zeitraum("", "");
  ohne.setWahl("optibuch", 0);
  EXPECT_EQ(zeitraumGründe(ohne), QStringList());
}

TEST_F(AuswertungTest, DerZeitraumStehtInDerAnweisungMitDemMonatVorn) {
  EXPECT_EQ(zeitraumRest(zeitraum("05.02.2006", "31.12.2006 "), "Datum"),
            " and Datum >= #02/05/2006# and Datum <= #12/31/2006#");
  Eingaben ohne = zeitraum("05.02.2006", "31.12.2006");
  ohne.setWahl("optibuch", 2);
  EXPECT_EQ(zeitraumRest(ohne, "Datum"), "");
}

TEST_F(AuswertungTest, EinTagWähltDenZeitraumUndLiegtInSeinemPlatz) {
  const Gruppe g = buchungsauswahl("Buchungen", buchungsauswahlTexte(), Zahlslots.buchungsauswahl);
  ASSERT_EQ(g.eingaben.size(), 3);
  EXPECT_EQ(g.eingaben[0].texte[2], "Nur die letzte (aktuellste) Buchung je Volk");
  for (int i : {0, 1}) {
    EXPECT_EQ(g.eingaben[i + 1].name, Eingaben::glied("tdat", i));
    EXPECT_EQ(g.eingaben[i + 1].fokusWählt, std::pair(QString("optibuch"), 1));
    EXPECT_EQ(g.eingaben[i + 1].textslot->nummer, 27 + i);
  }
}

TEST_F(AuswertungTest, DerNameInDerListeSuchtMitSemikolons) {
  EXPECT_EQ(alsListe({"Volknr", "Standort"}), ";Volknr;Standort;");
  EXPECT_EQ(alsListe({}), "");
  EXPECT_TRUE(inListe(";Volknr;", "Volknr"));
  EXPECT_FALSE(inListe(";Volknr;", "Volk"));
  EXPECT_FALSE(inListe("", ""));
}

TEST_F(AuswertungTest, GründeSammelnSichInEinerMeldung) {
  Beschreibung b;
  EXPECT_EQ(ablehnung(b, {"...eins.", "...zwei."}),
            "Die Daten können nicht gelistet werden, weil...\r\n\r\n...eins.\r\n...zwei.");
  EXPECT_EQ(ablehnung(b, {}), "");
}

// ---- slots ----

Beschreibung probe() {
  Beschreibung b;
  b.gruppen = {völkerwahl(),
               volkfelder("", {Zahlslots.listeVolknummer, Zahlslots.listeVolkname}),
               {"",
                {haken("tierleer", 0, "").slot(Zahlslots.stockkartenAbstand, 1),
                 haken("tierleer", 1, "").slot(Zahlslots.stockkartenAbstand, 2)}},
               {"",
                {haken("konkost", 0, "").slot(Textslots.deckungsbeitragPosten, 0),
                 haken("konkost", 1, "").slot(Textslots.deckungsbeitragPosten, 1)}},
               {"",
                {merkliste("liste", "", feste(QStringList{"Volknr", "Volk"}))
                     .slot(Textslots.volkdatenFelder),
                 ganzzahl("sevt_0", "", 99).slot(Zahlslots.nektarpunkte).nullWirdVorgabe("5"),
                 jahr("t_0", "").slot(Zahlslots.jahrVon),
                 optionen("optisort", {"a", "b"}).slot(Zahlslots.webzeilen).ohneZwang(),
                 datum("tdat_0", "").slot(Textslots.datumVon)}}};
  return b;
}

TEST_F(AuswertungTest, AlleEingabenKommenAusIhrenPlätzenUndGehenDorthinZurück) {
  EinstellungenZahl[Zahlslots.völkerwahl] = 2;
  EinstellungenZahl[Zahlslots.listeVolkname] = 1;
  EinstellungenZahl[Zahlslots.stockkartenAbstand] = 2;
  EinstellungenText[Textslots.deckungsbeitragPosten] = "01";
  EinstellungenText[Textslots.volkdatenFelder] = ";Volknr;";
  EinstellungenZahl[Zahlslots.nektarpunkte] = 7;
  EinstellungenZahl[Zahlslots.jahrVon] = 2020;
  EinstellungenZahl[Zahlslots.webzeilen] = 1;
  EinstellungenText[Textslots.datumVon] = "01.02.2026";
  const auto zahlen = EinstellungenZahl;
  const auto texte = EinstellungenText;
  e.setAngebot("liste", {"Volknr", "Volk"});
  laden(probe(), e);
  EXPECT_EQ(e.wahl("optitieraus"), 2);
  EXPECT_FALSE(e.an("kontier", 0));
  EXPECT_TRUE(e.an("kontier", 1));
  EXPECT_FALSE(e.an("tierleer", 0));
  EXPECT_TRUE(e.an("tierleer", 1));
  EXPECT_FALSE(e.an("konkost", 0));
  EXPECT_TRUE(e.an("konkost", 1));
  EXPECT_EQ(e.gewählt("liste"), QStringList("Volknr"));
  EXPECT_EQ(e.text("sevt", 0), "7");
  EXPECT_EQ(e.text("t", 0), "2020");
  EXPECT_EQ(e.wahl("optisort"), 1);
  EXPECT_EQ(e.text("tdat", 0), "01.02.2026");
  for (const Zahlslot& slot : zahlslots()) EinstellungenZahl[slot] = 0;
  sichern(probe(), e);
  for (const Zahlslot& slot : zahlslots())
    EXPECT_EQ(EinstellungenZahl[slot], zahlen[slot]) << slot.nummer;
  for (const Textslot& slot : textslots())
    EXPECT_EQ(EinstellungenText[slot], texte[slot]) << slot.nummer;
}

TEST_F(AuswertungTest, GeteilterPlatzWirdNullWennKeinKästchenAnIst) {
  EinstellungenZahl[Zahlslots.stockkartenAbstand] = 2;
  laden(probe(), e);
  e.setAn("tierleer", 1, false);
  sichern(probe(), e);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.stockkartenAbstand], 0);
}

TEST_F(AuswertungTest, EineSortierungDieEsNichtGibtLässtKeineAnUndDenPlatzWieErIst) {
  EinstellungenZahl[Zahlslots.webzeilen] = 60;
  laden(probe(), e);
  EXPECT_EQ(e.wahl("optisort"), -1);
  sichern(probe(), e);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.webzeilen], 60);
}

TEST_F(AuswertungTest, EinParameterVonNullWirdBeimLadenZurVorgabe) {
  laden(probe(), e);
  EXPECT_EQ(e.text("sevt", 0), "5");
  e.setText("sevt", 0, "0");
  sichern(probe(), e);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.nektarpunkte], 0);
}

// ---- lists ----

TEST_F(AuswertungTest, EineTabelleFülltKurzeZeilenAuf) {
  Tabelle t;
  t.spalte("volknr", "Volknr").zahlenspalte("9", "Gesamt");
  t.zeile({"1", "2,00"});
  t.zeile({"SUMME"});
  const Ausgabeliste liste = t.fertig();
  EXPECT_EQ(liste.überschriften(), QStringList({"Volknr", "Gesamt"}));
  ASSERT_EQ(liste.zeilen(), 2);
  EXPECT_EQ(liste.daten()->anzeige(0, 1), "2,00");
  EXPECT_EQ(liste.daten()->anzeige(1, 1), "");
}

}  // namespace
