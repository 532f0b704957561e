#include "stores/forms/Handelsprobe.h"

// The tabs of purchases and sales.
namespace {

const QString ZuerstLoeschen = "Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.";

class EinkaufReiter : public Handelsprobe {};
class VerkaufReiter : public Handelsprobe {};

// ---- purchases ----

TEST_F(EinkaufReiter, NeuSchreibtAllesUndFindetDieZeileWieder) {
  kaufe("Zucker", "50");
  db().Execute("update Einkauf set Datum = ?", {QDate(2006, 12, 24)});
  oeffne(Einkauf);
  tippe("sevteinkauf_0", "1.5.06");
  tippe("sevteinkauf_1", "Gläser");
  tippe("sevteinkauf_2", "500 g");
  tippe("sevteinkauf_3", "Glashütte");
  tippe("sevteinkauf_4", "1.239");  // the point becomes the comma
  tippe("sevteinkauf_5", "St");
  tippe("sevteinkauf_6", "24,5");
  tippe("sevteinkauf_7", "B7");
  klicke("neueinkauf_0");
  EXPECT_EQ(zeilen("select Datum, Produkt, Qualität, Lieferant, Menge, Einheit, Ausgaben, Charge "
                   "from Einkauf where Produkt = 'Gläser'"),
            QStringList("01.05.2006|Gläser|500 g|Glashütte|1,239|St|24,50|B7"));
  EXPECT_EQ(liste("lieinkauf")->aktuelleZeile(), 0);
  EXPECT_EQ(inhalte("einkauf"), "01.05.2006|Gläser|500 g|Glashütte|1,239|St|24,50|B7");
  EXPECT_TRUE(feld("sevteinkauf_0")->hasFocus());
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

TEST_F(EinkaufReiter, DiePicklistenKommenNachDemSpeichernNeu) {
  lager("Raps", 5, 0, "C1");
  oeffne(Einkauf);
  EXPECT_EQ(feld("sevteinkauf_1")->liste(), QStringList());
  EXPECT_EQ(feld("sevteinkauf_5")->liste(), QStringList({"kg", "g", "l", "ml", "St"}));
  EXPECT_EQ(feld("sevteinkauf_7")->liste(), QStringList("C1"));
  tippeEinkauf("Honig", "5", "Meier");
  tippe("sevteinkauf_2", "I");
  tippe("sevteinkauf_5", "Fl");  // free text
  tippe("sevteinkauf_7", "A1");
  klicke("neueinkauf_0");
  EXPECT_EQ(feld("sevteinkauf_1")->liste(), QStringList("Honig"));
  EXPECT_EQ(feld("sevteinkauf_2")->liste(), QStringList("I"));
  EXPECT_EQ(feld("sevteinkauf_3")->liste(), QStringList("Meier"));
  EXPECT_EQ(feld("sevteinkauf_5")->liste(), QStringList({"kg", "g", "l", "ml", "St"}));
  EXPECT_EQ(feld("sevteinkauf_7")->liste(), QStringList({"A1", "C1"}));
  EXPECT_EQ(wert("select Einheit from Einkauf").toString(), "Fl");
}

TEST_F(EinkaufReiter, DieChargenKommenAusDemHoniglagerNichtAusDemEinkauf) {
  kaufe("Wachs", "1", "", "W9");
  lager("Raps", 5, 0, "C1");
  oeffne(Einkauf);
  for (const char* name : {"sevteinkauf_7", "sevtverkauf_7", "sevthonig_5"})
    EXPECT_EQ(feld(name)->liste(), QStringList("C1")) << name;
}

TEST_F(EinkaufReiter, AlleGruendeInEinerMeldungJederMitZeilenende) {
  oeffne(Einkauf);
  tippe("sevteinkauf_0", "");
  boxen.hinweis(Weil +
                "...das Datum korrekt angegeben werden muß.\r\n"
                "...das Produkt angegeben werden muß.\r\n"
                "...die Menge über 0 liegen muß.\r\n");
  klicke("neueinkauf_0");
  EXPECT_EQ(anzahl("Einkauf"), 0);
}

TEST_F(EinkaufReiter, AendernOhneZeileSagtWasFehlt) {
  oeffne(Einkauf);
  tippeEinkauf("Gläser", "1", "Meier");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  klicke("neueinkauf_1");
  EXPECT_EQ(anzahl("Einkauf") + anzahl("Kunden"), 0);
  EXPECT_EQ(inhalte("einkauf"), "20.06.2006|Gläser||Meier|1||0|");
}

TEST_F(EinkaufReiter, DieGruendeKommenVorDerFrageNachDerZeile) {
  oeffne(Einkauf);
  tippe("sevteinkauf_4", "1");
  boxen.hinweis(Weil + "...das Produkt angegeben werden muß.\r\n");
  klicke("neueinkauf_1");
  EXPECT_EQ(anzahl("Einkauf"), 0);
}

TEST_F(EinkaufReiter, HonigGehtInsLagerUndStehtDortSofort) {
  oeffne(Einkauf);
  tippeEinkauf("Honig", "40");
  klicke("neueinkauf_0");
  zumReiter(Lager);
  ASSERT_EQ(liste("lihonig")->zeilen(), 1);
  EXPECT_EQ(liste("lihonig")->zelle(0, "Zugang"), "40");
  EXPECT_EQ(liste("lihonig")->zelle(0, "Abgang"), "0");
}

TEST_F(EinkaufReiter, LoeschenNimmtNurDenZugangGleicherNummerMit) {
  const qint64 verkauf = verkaufe("Honig", "3");
  const qint64 einkauf = kaufe("Honig", "8");
  ASSERT_EQ(verkauf, einkauf);
  oeffne(Einkauf);
  waehle("lieinkauf", 0);
  klicke("lscheinkauf");
  EXPECT_EQ(anzahl("Einkauf"), 0);
  EXPECT_EQ(zeilen("select Zugang, Abgang from Honiglager"), QStringList("0|3"));
  EXPECT_EQ(liste("lihonig")->zeilen(), 1);
  EXPECT_EQ(inhalte("einkauf"), "20.06.2006||||0||0|");
}

// ---- sales ----

TEST_F(VerkaufReiter, ZeileWaehlenKopiertAlleAchtFelder) {
  verkaufe("Honig", "2");
  db().Execute(
      "update Verkauf set Qualität = 'I', Abnehmer = 'Meier', Einheit = 'kg', Einnahmen = 12.5, "
      "Charge = 'A1', Menge = 2.5");
  verkaufe("Wachs", "3");
  oeffne(Verkauf);
  waehle("liverkauf", 0);
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006|Honig|I|Meier|2,5|kg|12,50|A1");
  QTest::keyClick(liste("liverkauf"), Qt::Key_Down);
  EXPECT_EQ(inhalt("sevtverkauf_1"), "Wachs");
}

TEST_F(VerkaufReiter, DieSchonAktuelleZeileKopiertEinKlickAuch) {
  verkaufe("Honig", "2");
  oeffne(Verkauf);
  EXPECT_EQ(inhalt("sevtverkauf_1"), "");
  waehle("liverkauf", 0);
  EXPECT_EQ(inhalt("sevtverkauf_1"), "Honig");
}

TEST_F(VerkaufReiter, AendernOhneZeileSagtWasFehlt) {
  oeffne(Verkauf);
  tippeVerkauf("Honig", "1");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz (die Pflanze), den Sie ändern möchten!");
  klicke("neuverkauf_1");
  EXPECT_EQ(anzahl("Verkauf"), 0);
}

TEST_F(VerkaufReiter, AendernErsetztDieBewegungUndBehaeltDasAbfuelldatum) {
  oeffne(Verkauf);
  tippeVerkauf("Waldhonig", "12,5", "Meier");
  tippe("sevtverkauf_7", "A1");
  klicke("neuverkauf_0");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Waldhonig|0|12,5|A1||1"));
  zumReiter(Lager);
  waehle("lihonig", 0);
  tippe("sevthonig_6", "01.06.2006");
  klicke("neuhonig_1");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Waldhonig|0|12,5|A1||1"));
  zumReiter(Verkauf);
  tippe("sevtverkauf_4", "10");
  klicke("neuverkauf_1");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Waldhonig|0|10|A1||1"));
  EXPECT_EQ(wert("select Abfülldatum from Honiglager").toDate(), QDate(2006, 6, 1));
  EXPECT_EQ(anzahl("Verkauf"), 1);
  EXPECT_EQ(anzahl("Kunden"), 1);
}

TEST_F(VerkaufReiter, UnbekannterAbnehmerStehtDanachInDerPicklisteNichtBeiDenLieferanten) {
  oeffne(Verkauf);
  tippeVerkauf("Wachs", "1", "Meier");
  klicke("neuverkauf_0");
  EXPECT_EQ(feld("sevtverkauf_3")->liste(), QStringList("Meier"));
  zumReiter(Einkauf);
  tippeEinkauf("Gläser", "1", "Meier");
  klicke("neueinkauf_0");
  EXPECT_EQ(anzahl("Kunden"), 1);
  EXPECT_EQ(feld("sevteinkauf_3")->liste(), QStringList());
}

TEST_F(VerkaufReiter, LoeschenOhneZeileUndDieFrage) {
  TZ_Variablen::EinstellungenZahl[55] = 1;
  oeffne(Verkauf);
  boxen.hinweis(ZuerstLoeschen);
  klicke("lschverkauf");
  tippeVerkauf("Honig", "3");
  klicke("neuverkauf_0");
  boxen.frage(Loeschfrage, false);
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 2);
  boxen.frage(Loeschfrage, true);
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 0);
  EXPECT_EQ(liste("lihonig")->zeilen(), 0);
}

TEST_F(VerkaufReiter, LoeschenZeigtDieZeileDieNunDortSteht) {
  for (const char* produkt : {"Honig A", "Honig B", "Honig C"}) verkaufe(produkt, "1");
  oeffne(Verkauf);
  waehle("liverkauf", 1);
  klicke("lschverkauf");
  EXPECT_EQ(liste("liverkauf")->aktuelleZeile(), 1);
  EXPECT_EQ(inhalt("sevtverkauf_1"), "Honig C");
  EXPECT_EQ(zeilen("select Produkt from Honiglager order by ID"),
            QStringList({"Honig A", "Honig C"}));
}

TEST_F(VerkaufReiter, GeaendertesDatumImFeldLaesstDieBewegungStehen) {
  verkaufe("Honig", "3");
  oeffne(Verkauf);
  waehle("liverkauf", 0);
  tippe("sevtverkauf_0", "21.06.2006");
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf"), 0);
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Honig|0|3|||1"));
}

TEST_F(VerkaufReiter, OhneDatumImFeldWirdNichtGeloescht) {
  verkaufe("Honig", "3");
  oeffne(Verkauf);
  waehle("liverkauf", 0);
  tippe("sevtverkauf_0", "");
  boxen.hinweisMit("im Feld \"Datum\" kein gültiges Datum");
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 2);
  EXPECT_EQ(liste("liverkauf")->zeilen(), 1);
}

TEST_F(VerkaufReiter, MinusLaesstSichNichtTippenUndNullWirdAbgelehnt) {
  oeffne(Verkauf);
  tippeVerkauf("Honig", "-1");
  EXPECT_EQ(inhalt("sevtverkauf_4"), "1");
  tippe("sevtverkauf_4", "7");
  fuegeEin("sevtverkauf_4", "-1");
  EXPECT_EQ(inhalt("sevtverkauf_4"), "7");
  tippe("sevtverkauf_4", "0");
  boxen.hinweis(Weil + "...die Menge über 0 liegen muß.\r\n");
  klicke("neuverkauf_0");
  EXPECT_EQ(anzahl("Verkauf"), 0);
}

TEST_F(VerkaufReiter, EineMillionWirdGespeichertUndGezeigt) {
  oeffne(Verkauf);
  tippeVerkauf("Honig", "1000000");
  tippe("sevtverkauf_6", "1000000");
  klicke("neuverkauf_0");
  EXPECT_EQ(wert("select Abgang from Honiglager").toDouble(), 1e6);
  EXPECT_EQ(inhalt("sevtverkauf_4"), "1000000");
  klicke("rosumme");
  EXPECT_EQ(summen(), "Einkauf: 0,00 €   Verkauf: 1.000.000,00 €   Summe: 1.000.000,00 €");
}

TEST_F(VerkaufReiter, EinundzwanzigZeichenEingefuegtWerdenZwanzig) {
  oeffne(Verkauf);
  fuegeEin("sevtverkauf_1", "Honigbrot mit Walnuss");
  EXPECT_EQ(inhalt("sevtverkauf_1"), "Honigbrot mit Walnus");
  tippe("sevtverkauf_4", "1");
  klicke("neuverkauf_0");
  EXPECT_EQ(wert("select Produkt from Verkauf").toString(), "Honigbrot mit Walnus");
}

TEST_F(VerkaufReiter, ApostropheImNamen) {
  oeffne(Verkauf);
  tippeVerkauf("Honig 'D'", "1", "O'Neill");
  klicke("neuverkauf_0");
  EXPECT_EQ(inhalt("sevtverkauf_3"), "O`Neill");
  EXPECT_EQ(feld("sevtverkauf_3")->liste(), QStringList("O`Neill"));
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 0);
}

}  // namespace
