#include "evaluations/Voelkerdaten.h"

#include "colonies/Testbetrieb.h"
#include "evaluations/Probelauf.h"

using namespace TZ_Variablen;

namespace {

class Volkdaten : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    m_max = neuesVolk("10", "X", "Hof");
    benenne(m_max, "Max & Moritz", 4.5, 120.5, QDate(2005, 5, 14));
    benenne(neuesVolk("2", "", "Heide"), " Ol'ga ", 3, 80, {});
    benenne(neuesVolk("3", "X", "Wald"), "Anna", 2.5, QVariant(), QDate(2006, 4, 1));
    db().Execute("update Bienenvolk set Selektiert = 'X' where Volknr = '3'");
    db().Execute("update Bienenvolk set Akt_im_Bestand = Null where Volknr = '2'");
  }
  static void benenne(qint64 id, const QString& name, double stärke, const QVariant& preis,
                      const QVariant& zugang) {
    db().Execute(
        "update Bienenvolk set Volkname = ?, Volkstärke = ?, Volk_Einkaufspreis = ?, "
        "Volk_Zugangsdatum = ? where ID = ?",
        {name, stärke, preis, zugang, id});
  }
  Probelauf auswertung(const QStringList& felder, const QString& sortierung = "Volknr",
                       int völkerwahl = 1) {
    Probelauf a(Völkerdaten::beschreibung());
    a.e.setGewählt("liste", felder);
    a.wähle("komsort", sortierung);
    a.e.setWahl("optitieraus", völkerwahl);
    a.e.volk = m_max;
    return a;
  }

  // The rows of the list, cells parted by "|".
  static QStringList zeilen(Probelauf a) {
    QStringList alle;
    for (const QStringList& z : Probelauf::zeilen(a.liste("ok"))) alle += z.join('|');
    return alle;
  }

  qint64 m_max = 0;
};

TEST_F(Volkdaten, BeideListenBietenAlleFelderInDerFolgeDerTabelleMitID) {
  const Probelauf a(Völkerdaten::beschreibung());
  QStringList felder;
  for (const Spalte& s : db().Felder("Bienenvolk")) felder += s.name;
  EXPECT_EQ(a.e.angebot("liste"), felder);
  EXPECT_EQ(a.e.angebot("komsort"), felder);
  EXPECT_EQ(felder.first(), "Volknr");
  EXPECT_EQ(felder.last(), "ID");
}

TEST_F(Volkdaten, GewähltIstWasImPlatzZwischenSemikolonsSteht) {
  EinstellungenText[Textslots.volkdatenFelder] = ";Volknr;Standort;";
  const Probelauf a(Völkerdaten::beschreibung());
  EXPECT_EQ(a.e.gewählt("liste"), QStringList({"Volknr", "Standort"}));
}

TEST_F(Volkdaten, EineNegativeSortierungWirdZumErstenFeld) {
  EinstellungenZahl[Zahlslots.volkdatenSortierung] = -3;
  EXPECT_EQ(Probelauf(Völkerdaten::beschreibung()).e.posten("komsort"), "Volknr");
  EinstellungenZahl[Zahlslots.volkdatenSortierung] = 1;
  EXPECT_EQ(Probelauf(Völkerdaten::beschreibung()).e.posten("komsort"), "Volkname");
}

TEST_F(Volkdaten, DieWahlGehtBeimSchließenInIhrePlätze) {
  Probelauf a = auswertung({"Volknr", "Volkname"}, "Volkname", 3);
  a.schließen();
  EXPECT_EQ(EinstellungenText[Textslots.volkdatenFelder], ";Volknr;Volkname;");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.volkdatenSortierung], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.völkerwahl], 3);
}

TEST_F(Volkdaten, DieAnweisungIstAusFeldernEinschränkungUndSortierungZusammengesetzt) {
  EXPECT_EQ(Völkerdaten::anweisung(auswertung({"Volknr", "Standort"}, "Volkname", 0).e),
            "select Volknr, Standort from Bienenvolk where Akt_im_Bestand = 'X' order by Volkname");
}

TEST_F(Volkdaten, AlleVölkerHabenKeineEinschränkung) {
  EXPECT_EQ(Völkerdaten::anweisung(auswertung({"Volknr"}).e),
            "select Volknr from Bienenvolk order by Volknr");
}

TEST_F(Volkdaten, JedeVölkerwahlListetIhreVölker) {
  const QStringList erwartet[]{{"10", "3"}, {"10", "2", "3"}, {"3"}, {"2"}, {"10"}};
  for (int wahl = 0; wahl < 5; ++wahl)
    EXPECT_EQ(zeilen(auswertung({"Volknr"}, "Volknr", wahl)), erwartet[wahl]) << wahl;
}

TEST_F(Volkdaten, SortiertWirdAuchNachEinemFeldDasNichtGelistetIst) {
  EXPECT_EQ(zeilen(auswertung({"Volknr"}, "Volkstärke")), QStringList({"3", "2", "10"}));
}

TEST_F(Volkdaten, DieSpaltenHeißenWieDieFelderUndStehenInDerenFolge) {
  EXPECT_EQ(auswertung({"Standort", "Volknr"}).liste("ok").überschriften(),
            QStringList({"Standort", "Volknr"}));
}

TEST_F(Volkdaten, DieWerteStehenDaWieGelesenOhneApostrophUndRand) {
  EXPECT_EQ(
      zeilen(auswertung({"Volkname", "Volkstärke", "Volk_Einkaufspreis", "Volk_Zugangsdatum"})),
      QStringList(
          {"Max & Moritz|4,5|120,50|14.05.2005", "Ol`ga|3|80,00|", "Anna|2,5||01.04.2006"}));
}

TEST_F(Volkdaten, ZahlenUndTageBleibenWelcheDamitDieListeSieSoSortiert) {
  const Daten liste = auswertung({"Volkstärke", "Volk_Zugangsdatum"}).liste("ok").daten();
  EXPECT_FALSE(liste->istText(0, 0));
  EXPECT_EQ(liste->wert(0, 1).toDate(), QDate(2005, 5, 14));
}

TEST_F(Volkdaten, OhneFeldWirdNichtGelistet) {
  Probelauf a = auswertung({});
  EXPECT_FALSE(a.drücke("ok").liste);
  EXPECT_EQ(a.meldungen, QStringList("Die Daten können nicht gelistet werden, weil...\r\n\r\n"
                                     "...keine zu listenden Datenfelder ausgewählt sind."));
}

TEST_F(Volkdaten, OhneVolkSagtDieAuswertungDassKeineGefundenWurden) {
  db().Execute("delete from Bienenvolk");
  Probelauf a = auswertung({"Volknr"});
  a.drücke("ok");
  EXPECT_EQ(a.meldungen,
            QStringList("Es wurden lt. den aktuellen Einstellungen keine Völker gefunden!"));
}

}  // namespace
