#include "evaluations/VoelkerBuchungenStandard.h"

#include "evaluations/Buchungsbetrieb.h"

using namespace TZ_Variablen;

namespace {

class BuchungenStandard : public Buchungsbetrieb {
 protected:
  static Probelauf auswertung(const QString& tabelle, const QStringList& felder = {}) {
    Probelauf a(VölkerBuchungenStandard::beschreibung());
    a.wähle("optitieraus", 1);
    a.tippe("sevt_0", tabelle);
    a.e.setGewählt("li", felder);
    return a;
  }
};

TEST_F(BuchungenStandard, ZehnTabellenOhneDieNotizenWerdenAngeboten) {
  Probelauf a(VölkerBuchungenStandard::beschreibung());
  EXPECT_EQ(
      a.e.angebot("sevt_0"),
      QStringList({"Stockkarte", "Honigernte", "Wachsernte", "Pollenernte", "Sonstigeernte",
                   "Arbeiten", "Wanderung", "Gewichtsmessung", "Behandlung", "Königinwechsel"}));
}

TEST_F(BuchungenStandard, SieÖffnetMitDerStockkarteUndAllIhrenFeldern) {
  Probelauf a(VölkerBuchungenStandard::beschreibung());
  EXPECT_EQ(a.e.text("sevt_0"), "Stockkarte");
  EXPECT_EQ(a.e.gewählt("li"), a.e.angebot("li"));
  EXPECT_EQ(a.e.angebot("li").first(), "Datum");
  EXPECT_FALSE(a.e.angebot("li").contains("Volk_ID"));
}

TEST_F(BuchungenStandard, DieTabelleBestimmtDieFelderOhneIhreSchlüssel) {
  const QStringList wachs{"Datum",  "Menge_kg",   "Qualität", "Zeit_h",
                          "Kosten", "Wachs_Wert", "Bemerkung"};
  const Probelauf a = auswertung("Wachsernte");
  EXPECT_EQ(a.e.angebot("li"), wachs);
  for (const char* sortierung : {"sevt_1", "sevt_2"})
    EXPECT_EQ(a.e.angebot(sortierung), (QStringList{"", "Volknr", "Volkname"} + wachs));
}

TEST_F(BuchungenStandard, EineAndereTabelleLeertFelderUndSortierungen) {
  Probelauf a = auswertung("Wachsernte", {"Menge_kg"});
  a.tippe("sevt_1", "Menge_kg");
  a.tippe("sevt_2", "Volknr");
  a.tippe("sevt_0", "Pollenernte");
  EXPECT_EQ(a.e.gewählt("li"), QStringList());
  EXPECT_EQ(a.e.text("sevt_1") + a.e.text("sevt_2"), "");
  EXPECT_TRUE(a.e.angebot("li").contains("Menge_g"));
}

TEST_F(BuchungenStandard, DieAnweisungMitAllemWasGewähltIst) {
  Probelauf a = auswertung("Honigernte", {"Datum", "Menge_kg"});
  a.wähle("optitieraus", 0);
  a.hake("kontier_0");
  a.hake("kontier_1");
  a.wähle("optibuch", 1);
  a.tippe("tdat_0", "01.05.2006");
  a.tippe("tdat_1", "31.05.2006");
  a.tippe("sevt_1", "Volknr");
  a.tippe("sevt_2", "Menge_kg");
  EXPECT_EQ(VölkerBuchungenStandard::anweisung(a.e),
            "select Bienenvolk.Volknr as Volknr, Bienenvolk.Volkname as Volkname, "
            "Honigernte.Datum as Datum, Honigernte.Menge_kg as Menge_kg "
            "from Bienenvolk, Honigernte where Akt_im_Bestand = 'X' "
            "and Bienenvolk.ID = Honigernte.Volk_ID "
            "and Honigernte.Datum >= #05/01/2006# and Honigernte.Datum <= #05/31/2006# "
            "order by Volknr, Honigernte.Menge_kg");
}

TEST_F(BuchungenStandard, AktuellesVolkUndTabelleStehenBeideInDerEinschränkung) {
  Probelauf a = auswertung("Arbeiten", {"Arbeitsart"});
  a.wähle("optitieraus", 4);
  a.e.volk = 7;
  EXPECT_EQ(VölkerBuchungenStandard::anweisung(a.e),
            "select Arbeiten.Arbeitsart as Arbeitsart from Bienenvolk, Arbeiten "
            "where Bienenvolk.ID = 7 and Bienenvolk.ID = Arbeiten.Volk_ID");
}

TEST_F(BuchungenStandard, AlleVölkerHabenNurDieVerbindungAlsBedingung) {
  EXPECT_EQ(VölkerBuchungenStandard::anweisung(auswertung("Arbeiten", {"Datum"}).e),
            "select Arbeiten.Datum as Datum from Bienenvolk, Arbeiten "
            "where Bienenvolk.ID = Arbeiten.Volk_ID");
}

TEST_F(BuchungenStandard, EineLeereZweiteSortierungLässtEineUndEineLeereErsteDieZweite) {
  Probelauf a = auswertung("Arbeiten", {"Datum"});
  a.tippe("sevt_1", "Volkname");
  EXPECT_TRUE(VölkerBuchungenStandard::anweisung(a.e).endsWith(" order by Volkname"));
  a.tippe("sevt_1", "");
  a.tippe("sevt_2", "Datum");
  EXPECT_TRUE(VölkerBuchungenStandard::anweisung(a.e).endsWith(" order by Arbeiten.Datum"));
}

TEST_F(BuchungenStandard, OhneFeldWirdMitDemErstenGrundAbgelehnt) {
  Probelauf a = auswertung("Honigernte");
  a.hake("kontier_0");
  EXPECT_FALSE(a.drücke("ok").liste);
  EXPECT_EQ(a.meldungen,
            QStringList("Die Daten können nicht gelistet werden, weil...\r\n\r\n"
                        "...keine zu listenden Datenfelder (Buchungen) ausgewählt sind."));
}

TEST_F(BuchungenStandard, NachDenFeldernWirdDerZeitraumGeprüft) {
  Probelauf a = auswertung("Honigernte");
  a.wähle("optibuch", 1);
  a.tippe("tdat_0", "01.02.2006");
  a.tippe("tdat_1", "31.01.2006");
  a.drücke("ok");
  EXPECT_EQ(a.meldungen,
            QStringList("Die Daten können nicht gelistet werden, weil...\r\n\r\n"
                        "...keine zu listenden Datenfelder (Buchungen) ausgewählt sind.\r\n"
                        "...das 'Datum von' größer ist als das 'Datum bis'."));
}

TEST_F(BuchungenStandard, DieListeHatDieFelderUnterIhrenNamenUndInIhrerArt) {
  ernte(zwei, tag(6, 1), 8.25, " 'gut' ");
  ernte(zehn, tag(6, 3), 12.5);
  Probelauf a = auswertung("Honigernte", {"Datum", "Menge_kg", "Qualität", "Kosten"});
  a.hake("kontier_0");
  a.hake("kontier_1");
  a.tippe("sevt_1", "Menge_kg");
  const Ausgabeliste liste = a.liste("ok");
  EXPECT_EQ(liste.überschriften(),
            QStringList({"Volknr", "Volkname", "Datum", "Menge_kg", "Qualität", "Kosten"}));
  EXPECT_EQ(zeilen(liste),
            QStringList({"2|Ol`ga|01.06.2006|8,25|`gut`|", "10|Max & Moritz|03.06.2006|12,5||"}));
  EXPECT_EQ(liste.daten()->spalte(2).typ, Feldtyp::Datum);
  EXPECT_EQ(liste.daten()->spalte(3).typ, Feldtyp::Einfach);
  EXPECT_EQ(liste.daten()->spalte(5).typ, Feldtyp::Währung);
}

TEST_F(BuchungenStandard, SortiertNachVolknummerUndDarinNachDemTag) {
  ernte(zwei, tag(6, 9), 1);
  ernte(zehn, tag(6, 3), 2);
  ernte(zwei, tag(6, 1), 3);
  Probelauf a = auswertung("Honigernte", {"Menge_kg"});
  a.tippe("sevt_1", "Volknr");
  a.tippe("sevt_2", "Datum");
  EXPECT_EQ(zeilen(a.liste("ok")), QStringList({"2", "3", "1"}));
}

TEST_F(BuchungenStandard, JedeTabelleMitAllenFeldernUndJederSortierung) {
  for (const QString& tabelle :
       Probelauf(VölkerBuchungenStandard::beschreibung()).e.angebot("sevt_0")) {
    buche(tabelle, zehn, tag(5, 1));
    Probelauf a = auswertung(tabelle);
    a.hake("kontier_0");
    a.e.setGewählt("li", a.e.angebot("li"));
    for (const QString& sortierung : a.e.angebot("sevt_1")) {
      a.tippe("sevt_1", sortierung);
      EXPECT_EQ(a.liste("ok").zeilen(), 1) << tabelle.toStdString();
    }
  }
}

TEST_F(BuchungenStandard, JedeVölkerwahlListetIhreVölker) {
  for (const qint64 id : {zehn, zwei, drei}) ernte(id, tag(6, 1), 1);
  db().Execute("update Bienenvolk set Selektiert = 'X' where Volknr = '3'");
  const QStringList erwartet[]{{"10", "2"}, {"10", "2", "3"}, {"3"}, {"3"}, {"2"}};
  for (int wahl = 0; wahl < 5; ++wahl) {
    Probelauf a = auswertung("Honigernte", {"Bemerkung"});
    a.hake("kontier_0");
    a.wähle("optitieraus", wahl);
    a.tippe("sevt_1", "Volknr");
    a.e.volk = zwei;
    QStringList nummern;
    for (const QStringList& z : Probelauf::zeilen(a.liste("ok"))) nummern += z.first();
    EXPECT_EQ(nummern, erwartet[wahl]) << wahl;
  }
}

TEST_F(BuchungenStandard, OhneBuchungSagtDieAuswertungDassKeineDatenGefundenWurden) {
  Probelauf a = auswertung("Honigernte", {"Datum"});
  a.drücke("ok");
  EXPECT_EQ(a.meldungen,
            QStringList("Es wurden lt. den aktuellen Einstellungen keine Daten gefunden!"));
}

TEST_F(BuchungenStandard, DieWahlHatEigenenPlatzFürDieBuchungenUndKeinenFürDieFelder) {
  EinstellungenZahl[Zahlslots.buchungsauswahl] = 2;
  EinstellungenZahl[Zahlslots.buchungsauswahlStandard] = 1;
  EinstellungenZahl[Zahlslots.buchungenVolkname] = 1;
  EinstellungenText[Textslots.datumBis] = "31.12.2006";
  Probelauf a(VölkerBuchungenStandard::beschreibung());
  EXPECT_EQ(a.e.wahl("optibuch"), 1);
  EXPECT_TRUE(a.e.an("kontier", 1));
  EXPECT_EQ(a.e.text("tdat", 1), "31.12.2006");
  a.wähle("optibuch", 0);
  a.hake("kontier_0");
  a.tippe("sevt_0", "Honigernte");
  a.e.setGewählt("li", {"Datum"});
  a.schließen();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.buchungsauswahl], 2);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.buchungsauswahlStandard], 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.buchungenVolknummer], 1);
  a.öffnen();
  EXPECT_EQ(a.e.text("sevt_0"), "Stockkarte");
}

}  // namespace
