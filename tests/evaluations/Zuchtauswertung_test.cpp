#include "evaluations/Zuchtauswertung.h"

#include "colonies/Testbetrieb.h"
#include "evaluations/Probelauf.h"

// The breeding book: fields of it, and averages by a key.

namespace {

using Zeilen = QList<QStringList>;

class ZuchtauswertungTest : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    königin("2004", "K2", "Carnica", {{"Sanftmut", 3}, {"LJ1_Summe", 40}});
    königin("2003", "K9", "Buckfast", {{"Sanftmut", 4}, {"Anz_Varroen", 7}});
    königin("2004", "K1", "Carnica", {{"Sanftmut", 3.5}, {"LJ2_Leistung_Proz", 110}});
    königin("2003", "K7", "Carnica", {{"Bemerkung", QString("wie K9's Tochter")}});
    probe.emplace(Zuchtauswertung::beschreibung());
  }
  static void königin(const QString& jahr, const QString& nummer, const QString& rasse,
                      const QList<std::pair<QString, QVariant>>& felder) {
    db().Execute("insert into Zuchtbuch(Jahr, Zuchtbuchnr, Rasse) values (?, ?, ?)",
                 {jahr, nummer, rasse});
    const qint64 id = db().LetzteID();
    for (const auto& [feld, wert] : felder)
      db().Execute("update Zuchtbuch set " + feld + " = ? where ID = ?", {wert, id});
  }
  Zeilen zeilen(const QString& befehl) { return Probelauf::zeilen(probe->liste(befehl)); }
  void jahr(const QString& wert) {
    probe->wähle("komjahr", wert);
    probe->wähle("optizeit", 0);
  }

  std::optional<Probelauf> probe;
};

// ---- the form's choices ----

TEST_F(ZuchtauswertungTest, ÖffnetMitAllenFeldernAufAllenJahren) {
  EXPECT_EQ(probe->b.titel, "Auswertungen Zuchtbuch");
  EXPECT_EQ(probe->e.gewählt("liste"), probe->e.angebot("liste"));
  EXPECT_EQ(probe->e.wahl("optizeit"), 1);
  EXPECT_EQ(probe->e.angebot("komjahr"), QStringList({"2003", "2004"}));
}

TEST_F(ZuchtauswertungTest, ZumListenStehenAlleFelder) {
  QStringList felder;
  for (const Spalte& s : db().Felder("Zuchtbuch")) felder += s.name;
  EXPECT_EQ(probe->e.angebot("liste"), felder);
  EXPECT_EQ(felder.size(), 49);
}

TEST_F(ZuchtauswertungTest, GruppiertWirdNachAllemWasKeinDurchschnittIst) {
  const QStringList felder = probe->e.angebot("listgruppe");
  EXPECT_EQ(felder.size(), 49 - 9 - 6 - 6);
  for (const char* name :
       {"Jahr", "Zuchtbuchnr", "Rasse", "Anpaarung", "LJ1_Rangfolge", "Bemerkung"})
    EXPECT_TRUE(felder.contains(QString(name))) << name;
  for (const char* name :
       {"Sanftmut", "Ausräumrate_Proz", "LJ1_Teiltracht_bis_15_6", "LJ2_Leistung_Proz"})
    EXPECT_FALSE(felder.contains(QString(name))) << name;
}

TEST_F(ZuchtauswertungTest, DasErgebnisBleibtImFormularBisEsGelistetWird) {
  EXPECT_EQ(probe->b.ergebnisliste, "datali");
  ASSERT_NE(probe->b.befehl("ok"), nullptr);
  EXPECT_TRUE(probe->b.befehl("ok")->übergibt);
  EXPECT_EQ(probe->b.befehl("ok")->titel, "&Listen");
  EXPECT_EQ(probe->b.eingabe("listgruppe")->doppelklick, "cmdgruppe");
}

// ---- plain list ----

TEST_F(ZuchtauswertungTest, DieGewähltenFelderNachJahrUndNummer) {
  probe->e.setGewählt("liste", {"Zuchtbuchnr", "Sanftmut", "Bemerkung"});
  const auto ergebnis = probe->drücke("cmdok");
  EXPECT_EQ(ergebnis.titel, "Ergebnis");
  EXPECT_EQ(ergebnis.liste->überschriften(), QStringList({"Zuchtbuchnr", "Sanftmut", "Bemerkung"}));
  EXPECT_EQ(
      Probelauf::zeilen(*ergebnis.liste),
      Zeilen(
          {{"K7", "", "wie K9`s Tochter"}, {"K9", "4", ""}, {"K1", "3,5", ""}, {"K2", "3", ""}}));
}

TEST_F(ZuchtauswertungTest, AlleFelderLassenSichListen) {
  probe->e.setGewählt("liste", probe->e.angebot("liste"));
  EXPECT_EQ(zeilen("cmdok").size(), 4);
}

TEST_F(ZuchtauswertungTest, OhneFelderWirdNichtGelistet) {
  probe->e.setGewählt("liste", {});
  EXPECT_EQ(zeilen("cmdok"), Zeilen());
  EXPECT_EQ(probe->meldungen,
            QStringList("Die Daten können nicht gelistet werden, weil...\r\n\r\n...keine zu "
                        "listenden Datenfelder ausgewählt sind."));
}

TEST_F(ZuchtauswertungTest, DasJahrBegrenztDieListe) {
  probe->e.setGewählt("liste", {"Zuchtbuchnr"});
  jahr("2004");
  EXPECT_EQ(zeilen("cmdok"), Zeilen({{"K1"}, {"K2"}}));
}

// ---- averages ----

TEST_F(ZuchtauswertungTest, OhneHakenNurSchlüsselUndAnzahl) {
  probe->wähle("listgruppe", "Rasse");
  const auto ergebnis = probe->drücke("cmdgruppe");
  EXPECT_EQ(ergebnis.titel, "Ergebnis (Durchschnittswerte gruppiert nach Rasse)");
  EXPECT_EQ(ergebnis.liste->überschriften(), QStringList({"Rasse", "Buchungen"}));
  EXPECT_EQ(Probelauf::zeilen(*ergebnis.liste), Zeilen({{"Buckfast", "1"}, {"Carnica", "3"}}));
}

TEST_F(ZuchtauswertungTest, DieQualitätsmerkmaleHeißenKurz) {
  probe->wähle("listgruppe", "Rasse");
  probe->hake("konstat_0");
  EXPECT_EQ(probe->liste("cmdgruppe").überschriften(),
            QStringList({"Rasse", "Buchungen", "Sanftm", "Wabens", "Schwarmtr", "Winterf",
                         "FJahrentw", "Volkst", "Varroen", "VerlVarroen", "Ausräumrate"}));
  // Who has no mark doesn't count, and an average of none is empty.
  EXPECT_EQ(zeilen("cmdgruppe"),
            Zeilen({{"Buckfast", "1", "4", "", "", "", "", "", "7", "", ""},
                    {"Carnica", "3", "3,25", "", "", "", "", "", "", "", ""}}));
}

TEST_F(ZuchtauswertungTest, DieLeistungenBeiderJahre) {
  probe->wähle("listgruppe", "Jahr");
  probe->hake("konstat_1");
  probe->hake("konstat_2");
  EXPECT_EQ(probe->liste("cmdgruppe").überschriften(),
            QStringList({"Jahr", "Buchungen", "LJ1_T1506", "LJ1_T1606_1508", "LJ1_T1608",
                         "LJ1_Vorrat", "LJ1_Gesamt", "LJ1_Leistung", "LJ2_T1506", "LJ2_T1606_1508",
                         "LJ2_T1608", "LJ2_Vorrat", "LJ2_Gesamt", "LJ2_Leistung"}));
  EXPECT_EQ(zeilen("cmdgruppe"),
            Zeilen({{"2003", "2", "", "", "", "", "", "", "", "", "", "", "", ""},
                    {"2004", "2", "", "", "", "", "40", "", "", "", "", "", "", "110"}}));
}

TEST_F(ZuchtauswertungTest, EineRasseOhneKöniginImJahrFehlt) {
  probe->wähle("listgruppe", "Rasse");
  jahr("2004");
  EXPECT_EQ(zeilen("cmdgruppe"), Zeilen({{"Carnica", "2"}}));
}

TEST_F(ZuchtauswertungTest, NachJedemAngebotenenFeldWirdGruppiert) {
  for (int i = 0; i < 3; ++i) probe->hake(QString("konstat_%1").arg(i));
  for (const QString& feld : probe->e.angebot("listgruppe")) {
    probe->wähle("listgruppe", feld);
    const Ausgabeliste liste = probe->liste("cmdgruppe");
    EXPECT_EQ(liste.spalten(), 2 + 21) << feld.toStdString();
    EXPECT_GE(liste.zeilen(), 1);
  }
}

}  // namespace
