#include "stores/forms/Handelsprobe.h"

// The tabs of purchases and sales.
namespace {

const QString ZuerstLöschen = "Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.";

class EinkaufReiter : public Handelsprobe {};
class VerkaufReiter : public Handelsprobe {};

// ---- purchases ----

TEST_F(EinkaufReiter, NeuSchreibtAllesUndFindetDieZeileWieder) {
  kaufe("Zucker", "50");
  db().Execute("update Einkauf set Datum = ?", {QDate(2006, 12, 24)});
  öffne(Einkauf);
  tippe("Einkäufe", "Datum", "1.5.06");
  tippe("Einkäufe", "Produkt", "Gläser");
  tippe("Einkäufe", "Qualität", "500 g");
  tippe("Lieferant", "Glashütte");
  tippe("Einkäufe", "Menge", "1.239");  // the point becomes the comma
  tippe("Einkäufe", "Mengeneinheit", "St");
  tippe("Ausgaben", "24,5");
  tippe("Einkäufe", "Chargen-Nr", "B7");
  klicke("neueinkauf_0");
  EXPECT_EQ(zeilen("select Datum, Produkt, Qualität, Lieferant, Menge, Einheit, Ausgaben, Charge "
                   "from Einkauf where Produkt = 'Gläser'"),
            QStringList("01.05.2006|Gläser|500 g|Glashütte|1,239|St|24,50|B7"));
  EXPECT_EQ(liste("lieinkauf")->aktuelleZeile(), 0);
  EXPECT_EQ(inhalte("einkauf"), "01.05.2006|Gläser|500 g|Glashütte|1,239|St|24,50|B7");
  EXPECT_TRUE(feld("Einkäufe", "Datum")->hasFocus());
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

TEST_F(EinkaufReiter, DiePicklistenKommenNachDemSpeichernNeu) {
  lager("Raps", 5, 0, "C1");
  öffne(Einkauf);
  EXPECT_EQ(feld("Einkäufe", "Produkt")->liste(), QStringList());
  EXPECT_EQ(feld("Einkäufe", "Mengeneinheit")->liste(), QStringList({"kg", "g", "l", "ml", "St"}));
  EXPECT_EQ(feld("Einkäufe", "Chargen-Nr")->liste(), QStringList("C1"));
  tippeEinkauf("Honig", "5", "Meier");
  tippe("Einkäufe", "Qualität", "I");
  tippe("Einkäufe", "Mengeneinheit", "Fl");  // free text
  tippe("Einkäufe", "Chargen-Nr", "A1");
  klicke("neueinkauf_0");
  EXPECT_EQ(feld("Einkäufe", "Produkt")->liste(), QStringList("Honig"));
  EXPECT_EQ(feld("Einkäufe", "Qualität")->liste(), QStringList("I"));
  EXPECT_EQ(feld("Lieferant")->liste(), QStringList("Meier"));
  EXPECT_EQ(feld("Einkäufe", "Mengeneinheit")->liste(), QStringList({"kg", "g", "l", "ml", "St"}));
  EXPECT_EQ(feld("Einkäufe", "Chargen-Nr")->liste(), QStringList({"A1", "C1"}));
  EXPECT_EQ(wert("select Einheit from Einkauf").toString(), "Fl");
}

TEST_F(EinkaufReiter, DieChargenKommenAusDemHoniglagerNichtAusDemEinkauf) {
  kaufe("Wachs", "1", "", "W9");
  lager("Raps", 5, 0, "C1");
  öffne(Einkauf);
  for (const char* name : {"sevteinkauf_7", "sevtverkauf_7", "sevthonig_5"})
    EXPECT_EQ(feld(name)->liste(), QStringList("C1")) << name;
}

TEST_F(EinkaufReiter, AlleGründeInEinerMeldungJederMitZeilenende) {
  öffne(Einkauf);
  tippe("Einkäufe", "Datum", "");
  boxen.hinweis(Weil +
                "...das Datum korrekt angegeben werden muß.\r\n"
                "...das Produkt angegeben werden muß.\r\n"
                "...die Menge über 0 liegen muß.\r\n");
  klicke("neueinkauf_0");
  EXPECT_EQ(anzahl("Einkauf"), 0);
}

TEST_F(EinkaufReiter, DieGründeKommenVorDerFrageNachDerZeile) {
  öffne(Einkauf);
  tippe("Einkäufe", "Menge", "1");
  boxen.hinweis(Weil + "...das Produkt angegeben werden muß.\r\n");
  klicke("neueinkauf_1");
  EXPECT_EQ(anzahl("Einkauf"), 0);
}

TEST_F(EinkaufReiter, HonigGehtInsLagerUndStehtDortSofort) {
  öffne(Einkauf);
  tippeEinkauf("Honig", "40");
  klicke("neueinkauf_0");
  zumReiter(Lager);
  ASSERT_EQ(liste("lihonig")->zeilen(), 1);
  EXPECT_EQ(liste("lihonig")->zelle(0, "Zugang"), "40");
  EXPECT_EQ(liste("lihonig")->zelle(0, "Abgang"), "0");
}

TEST_F(EinkaufReiter, LöschenNimmtNurDenZugangGleicherNummerMit) {
  const qint64 verkauf = verkaufe("Honig", "3");
  const qint64 einkauf = kaufe("Honig", "8");
  ASSERT_EQ(verkauf, einkauf);
  öffne(Einkauf);
  wähle("lieinkauf", 0);
  klicke("lscheinkauf");
  EXPECT_EQ(anzahl("Einkauf"), 0);
  EXPECT_EQ(zeilen("select Zugang, Abgang from Honiglager"), QStringList("0|3"));
  EXPECT_EQ(liste("lihonig")->zeilen(), 1);
  EXPECT_EQ(inhalte("einkauf"), "20.06.2006||||0||0|");
}

// ---- sales ----

TEST_F(VerkaufReiter, ZeileWählenKopiertAlleAchtFelder) {
  verkaufe("Honig", "2");
  db().Execute(
      "update Verkauf set Qualität = 'I', Abnehmer = 'Meier', Einheit = 'kg', Einnahmen = 12.5, "
      "Charge = 'A1', Menge = 2.5");
  verkaufe("Wachs", "3");
  öffne(Verkauf);
  wähle("liverkauf", 0);
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006|Honig|I|Meier|2,5|kg|12,50|A1");
  QTest::keyClick(liste("liverkauf"), Qt::Key_Down);
  EXPECT_EQ(inhalt("Verkäufe", "Produkt"), "Wachs");
}

TEST_F(VerkaufReiter, DieSchonAktuelleZeileKopiertEinKlickAuch) {
  verkaufe("Honig", "2");
  öffne(Verkauf);
  EXPECT_EQ(inhalt("Verkäufe", "Produkt"), "");
  wähle("liverkauf", 0);
  EXPECT_EQ(inhalt("Verkäufe", "Produkt"), "Honig");
}

TEST_F(VerkaufReiter, ÄndernOhneZeileSagtWasFehlt) {
  öffne(Verkauf);
  tippeVerkauf("Honig", "1");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz (die Pflanze), den Sie ändern möchten!");
  klicke("neuverkauf_1");
  EXPECT_EQ(anzahl("Verkauf"), 0);
}

TEST_F(VerkaufReiter, ÄndernErsetztDieBewegungUndBehältDasAbfülldatum) {
  öffne(Verkauf);
  tippeVerkauf("Waldhonig", "12,5", "Meier");
  tippe("Verkäufe", "Chargen-Nr", "A1");
  klicke("neuverkauf_0");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Waldhonig|0|12,5|A1||1"));
  zumReiter(Lager);
  wähle("lihonig", 0);
  tippe("Abfülldatum", "01.06.2006");
  klicke("neuhonig_1");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Waldhonig|0|12,5|A1||1"));
  zumReiter(Verkauf);
  tippe("Verkäufe", "Menge", "10");
  klicke("neuverkauf_1");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Waldhonig|0|10|A1||1"));
  EXPECT_EQ(wert("select Abfülldatum from Honiglager").toDate(), QDate(2006, 6, 1));
  EXPECT_EQ(anzahl("Verkauf"), 1);
  EXPECT_EQ(anzahl("Kunden"), 1);
}

TEST_F(VerkaufReiter, UnbekannterAbnehmerStehtDanachInDerPicklisteNichtBeiDenLieferanten) {
  öffne(Verkauf);
  tippeVerkauf("Wachs", "1", "Meier");
  klicke("neuverkauf_0");
  EXPECT_EQ(feld("Abnehmer")->liste(), QStringList("Meier"));
  zumReiter(Einkauf);
  tippeEinkauf("Gläser", "1", "Meier");
  klicke("neueinkauf_0");
  EXPECT_EQ(anzahl("Kunden"), 1);
  EXPECT_EQ(feld("Lieferant")->liste(), QStringList());
}

TEST_F(VerkaufReiter, LöschenOhneZeileUndDieFrage) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.löschabfrage] = 1;
  öffne(Verkauf);
  boxen.hinweis(ZuerstLöschen);
  klicke("lschverkauf");
  tippeVerkauf("Honig", "3");
  klicke("neuverkauf_0");
  boxen.frage(Löschfrage, false);
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 2);
  boxen.frage(Löschfrage, true);
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 0);
  EXPECT_EQ(liste("lihonig")->zeilen(), 0);
}

TEST_F(VerkaufReiter, LöschenZeigtDieZeileDieNunDortSteht) {
  for (const char* produkt : {"Honig A", "Honig B", "Honig C"}) verkaufe(produkt, "1");
  öffne(Verkauf);
  wähle("liverkauf", 1);
  klicke("lschverkauf");
  EXPECT_EQ(liste("liverkauf")->aktuelleZeile(), 1);
  EXPECT_EQ(inhalt("Verkäufe", "Produkt"), "Honig C");
  EXPECT_EQ(zeilen("select Produkt from Honiglager order by ID"),
            QStringList({"Honig A", "Honig C"}));
}

TEST_F(VerkaufReiter, GeändertesDatumImFeldLässtDieBewegungStehen) {
  verkaufe("Honig", "3");
  öffne(Verkauf);
  wähle("liverkauf", 0);
  tippe("Verkäufe", "Datum", "21.06.2006");
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf"), 0);
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Honig|0|3|||1"));
}

TEST_F(VerkaufReiter, OhneDatumImFeldWirdNichtGelöscht) {
  verkaufe("Honig", "3");
  öffne(Verkauf);
  wähle("liverkauf", 0);
  tippe("Verkäufe", "Datum", "");
  boxen.hinweisMit("im Feld \"Datum\" kein gültiges Datum");
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 2);
  EXPECT_EQ(liste("liverkauf")->zeilen(), 1);
}

TEST_F(VerkaufReiter, MinusLässtSichNichtTippenUndNullWirdAbgelehnt) {
  öffne(Verkauf);
  tippeVerkauf("Honig", "-1");
  EXPECT_EQ(inhalt("Verkäufe", "Menge"), "");
  EXPECT_EQ(feld("Verkäufe", "Menge")->hinweis(), "nur Zahlen ohne Vorzeichen");
  tippe("Verkäufe", "Menge", "7");
  fügeEin(feld("Verkäufe", "Menge"), "-1");
  EXPECT_EQ(inhalt("Verkäufe", "Menge"), "7");
  tippe("Verkäufe", "Menge", "0");
  boxen.hinweis(Weil + "...die Menge über 0 liegen muß.\r\n");
  klicke("neuverkauf_0");
  EXPECT_EQ(anzahl("Verkauf"), 0);
}

TEST_F(VerkaufReiter, EineMillionWirdGespeichertUndGezeigt) {
  öffne(Verkauf);
  tippeVerkauf("Honig", "1000000");
  tippe("Einnahmen", "1000000");
  klicke("neuverkauf_0");
  EXPECT_EQ(wert("select Abgang from Honiglager").toDouble(), 1e6);
  EXPECT_EQ(inhalt("Verkäufe", "Menge"), "1000000");
  klicke("rosumme");
  EXPECT_EQ(summen(), "Einkauf: 0,00 €   Verkauf: 1.000.000,00 €   Summe: 1.000.000,00 €");
}

TEST_F(VerkaufReiter, EinundzwanzigZeichenEingefügtWerdenZwanzig) {
  öffne(Verkauf);
  fügeEin(feld("Verkäufe", "Produkt"), "Honigbrot mit Walnuss");
  EXPECT_EQ(inhalt("Verkäufe", "Produkt"), "Honigbrot mit Walnus");
  tippe("Verkäufe", "Menge", "1");
  klicke("neuverkauf_0");
  EXPECT_EQ(wert("select Produkt from Verkauf").toString(), "Honigbrot mit Walnus");
}

TEST_F(VerkaufReiter, ApostropheImNamen) {
  öffne(Verkauf);
  tippeVerkauf("Honig 'D'", "1", "O'Neill");
  klicke("neuverkauf_0");
  EXPECT_EQ(inhalt("Abnehmer"), "O`Neill");
  EXPECT_EQ(feld("Abnehmer")->liste(), QStringList("O`Neill"));
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 0);
}

}  // namespace
