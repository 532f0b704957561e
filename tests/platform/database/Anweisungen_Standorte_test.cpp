#include "platform/database/Anweisungsprobe.h"

// The statements of sites, forage, weather and the breeding book.
namespace {

TEST_F(Anweisungsprobe, StandorteUndIhrePflanzen) {
  prüfe({
      {"Standorte", "select * from Standorte order by Standort"},
      {"Pflanzen am Standort",
       "select * from Standorte_Pflanzen where Standort_Kennung = 2 order by Pflanze",
       zeilen({"Efeu|300|40|2|2", "Haselnuss|100|60|2|1"})},
      {"Anteil am Standort",
       "select sum(Proz_Anteil) as xsumme from Standorte_Pflanzen where Standort_Kennung = 2",
       zeilen({"100"})},
      {"Standort schon da",
       "select Standort, Zusatzortshinweis from Standorte where Standort = 'wald' and ID <> 1",
       zeilen({"Wald|am Bach"})},
      {"Pflanze schon da", "select Pflanze from Pflanzen where Pflanze = 'EFEU' and ID <> 1",
       QStringList()},
  });
}

TEST_F(Anweisungsprobe, Trachtzeiten) {
  prüfe({
      {"Trachtzeit eines Standorts",
       "select Trachtzeit_von, Trachtzeit_bis, ID from Standorte where Standort = 'Wald'",
       zeilen({"<>|<>|2"})},
      {"Erste Weide",
       "select top 1 Weidezeit_von from Pflanzen, Standorte_Pflanzen where Standort_Kennung = 2 "
       "and "
       "Standorte_Pflanzen.Pflanze = Pflanzen.Pflanze order by Weidezeit_von",
       zeilen({"2006-01-15"})},
      {"Letzte Weide",
       "select top 1 Weidezeit_bis from Pflanzen, Standorte_Pflanzen where Standort_Kennung = 1 "
       "and "
       "Standorte_Pflanzen.Pflanze = Pflanzen.Pflanze order by Weidezeit_bis DESC",
       zeilen({"2006-11-20"})},
  });
}

TEST_F(Anweisungsprobe, Standortkarte) {
  prüfe({
      {"Standorte der Karte", "select Standort, PTop, PLeft from Standorte order by Standort",
       zeilen({"Wald|10|20", "Wiese|250|0"})},
      {"Völker der Karte",
       "select Volknr, Volkname, Standort, STop, SLeft, ID from Bienenvolk order by Volknr"},
      {"Lage eines Volkes", "select STop, SLeft from Bienenvolk where ID = 1", zeilen({"<>|<>"})},
      {"Lage eines Standorts", "select PTop, PLeft from Standorte where Standort = 'Wald'",
       zeilen({"10|20"})},
  });
}

TEST_F(Anweisungsprobe, Wetterdaten) {
  prüfe({
      {"Wetter", "select * from Wetterdaten order by Datum DESC"},
      {"Tag schon da", "select Datum from Wetterdaten where Datum = #05/01/2006# and ID <> 2",
       zeilen({"2006-05-01"})},
      {"Wetter listen",
       "select Datum, Wetter, Temperatur, Niederschlag_mm, Windrichtung, Windstärke, Bemerkung "
       "from "
       "Wetterdaten where Datum >= #01/01/2006# and Datum <= #12/31/2006# order by Datum",
       zeilen({"2006-05-01|sonnig|20|0|W|2|<>", "2006-05-02|Regen|11|12|W|5|<>"})},
  });
}

TEST_F(Anweisungsprobe, WetterGruppiert) {
  const QString mittel =
      "count(*) as Anzahl, avg(Temperatur) as D_Temperatur, avg(Niederschlag_mm) as "
      "D_Niederschlag, "
      "avg(Windstärke) as D_Windstärke from Wetterdaten";
  prüfe({
      {"Nach Wetter", "select Wetter, " + mittel + " group by Wetter",
       zeilen({"Regen|1|11.0|12.0|5.0", "sonnig|2|21.5|0.0|1.5"})},
      {"Nach Temperatur",
       "select Temperatur, count(*) as Anzahl from Wetterdaten group by Temperatur",
       zeilen({"11|1", "20|1", "23|1"})},
      {"Nach Niederschlag",
       "select Niederschlag_mm, count(*) as Anzahl from Wetterdaten group by Niederschlag_mm",
       zeilen({"<>|1", "0|1", "12|1"})},
      {"Nach Windrichtung",
       "select Windrichtung, " + mittel +
           " where Datum >= #01/01/2006# and Datum <= #12/31/2006# group "
           "by Windrichtung",
       zeilen({"W|2|15.5|6.0|3.5"})},
      {"Nach Windstärke",
       "select Windstärke, count(*) as Anzahl from Wetterdaten group by Windstärke",
       zeilen({"1|1", "2|1", "5|1"})},
      {"Wetter eines Monats",
       "select count(*) as Anzahl, avg(Temperatur) as summe1, avg(Niederschlag_mm) as summe2, "
       "avg(Windstärke) as summe3 from Wetterdaten where month(Datum) = 5",
       zeilen({"3|18.0|6.0|2.66666666666667"})},
  });
}

TEST_F(Anweisungsprobe, Zuchtbuch) {
  prüfe({
      {"Zuchtbuch", "select * from Zuchtbuch order by Jahr, Zuchtbuchnr"},
      {"Zuchtbuch eines Jahres",
       "select Zuchtbuchnr from Zuchtbuch where Jahr = '2006' order by Jahr, Zuchtbuchnr",
       zeilen({"12", "3"})},
      {"Zuchtbuchnummer schon da",
       "select Zuchtbuchnr from Zuchtbuch where Jahr = '2006' and Zuchtbuchnr = '3' and ID <> 1",
       zeilen({"3"})},
      {"Zuchtbuch zum Ändern", "select top 1 * from Zuchtbuch where ID = 1"},
  });
}

TEST_F(Anweisungsprobe, ZuchtbuchNachRasse) {
  prüfe({
      {"Zuchtbuch nach Rasse",
       "select Rasse, count(*) as Buchungen, avg(Sanftmut) as Sanftm, avg(Wabensitz) as Wabens, "
       "avg(Schwarmtrieb) as Schwarmtr, avg(Winterfestigkeit) as Winterf, avg(Frühjahrsentw) as "
       "FJahrentw, avg(Volkstärke) as Volkst, avg(Anz_Varroen) as Varroen, "
       "avg(Anteil_verletzt_Varroen) as VerlVarroen, avg(Ausräumrate_Proz) as Ausräumrate, "
       "avg(LJ1_Teiltracht_bis_15_6) as LJ1_T1506, avg(LJ1_Teiltracht_16_6_bis_15_8) as "
       "LJ1_T1606_1508, avg(LJ1_Teiltracht_ab_16_8) as LJ1_T1608, avg(LJ1_Vorräte) as LJ1_Vorrat, "
       "avg(LJ1_Summe) as LJ1_Gesamt, avg(LJ1_Leistung_Proz) as LJ1_Leistung, "
       "avg(LJ2_Teiltracht_bis_15_6) as LJ2_T1506, avg(LJ2_Teiltracht_16_6_bis_15_8) as "
       "LJ2_T1606_1508, avg(LJ2_Teiltracht_ab_16_8) as LJ2_T1608, avg(LJ2_Vorräte) as LJ2_Vorrat, "
       "avg(LJ2_Summe) as LJ2_Gesamt, avg(LJ2_Leistung_Proz) as LJ2_Leistung from Zuchtbuch where "
       "Jahr = "
       "'2006' group by Rasse"},
      {"Sanftmut nach Rasse",
       "select Rasse, count(*) as Buchungen, avg(Sanftmut) as Sanftm, avg(LJ1_Summe) as LJ1_Gesamt "
       "from "
       "Zuchtbuch group by Rasse",
       zeilen({"Buckfast|1|2.0|30.0", "Carnica|2|3.5|20.0"})},
  });
}

}  // namespace
