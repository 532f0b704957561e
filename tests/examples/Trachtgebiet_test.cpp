#include "Betriebsfall.h"

namespace {

class Trachtgebiet : public Betriebsfall {};

TEST_F(Trachtgebiet, DieAnteileEinesStandortsSindZusammenHöchstensHundertProzent) {
  standard();
  const Daten summen = DB.Lesen(
      "select Standort_Kennung, sum(Proz_Anteil) as Summe, count(*) as Anzahl from "
      "Standorte_Pflanzen group by Standort_Kennung");
  EXPECT_EQ(summen->zeilen(), 6);
  for (int i = 0; i < summen->zeilen(); ++i) {
    EXPECT_GT(summen->zahl(i, 1), 0) << i;
    EXPECT_LE(summen->zahl(i, 1), 100) << i;
    EXPECT_GE(summen->zahl(i, 2), 2) << i;
  }
}

TEST_F(Trachtgebiet, JedePflanzeAnEinemStandortStehtUnterDenPflanzen) {
  standard();
  const Daten pflanzen = DB.Lesen("select Pflanze from Pflanzen");
  QStringList namen;
  for (int i = 0; i < pflanzen->zeilen(); ++i) namen << pflanzen->anzeige(i, 0);
  EXPECT_GE(namen.size(), 20);
  EXPECT_EQ(namen.removeDuplicates(), 0);
  const Daten trachten = DB.Lesen("select distinct Pflanze from Standorte_Pflanzen");
  for (int i = 0; i < trachten->zeilen(); ++i)
    EXPECT_TRUE(namen.contains(trachten->anzeige(i, 0))) << trachten->anzeige(i, 0).toStdString();
}

TEST_F(Trachtgebiet, AlleWeidezeitenLiegenImJahrVonHeute) {
  standard();
  EXPECT_EQ(anzahl("Pflanzen", "year(Weidezeit_von) <> 2026 or year(Weidezeit_bis) <> 2026"), 0);
  EXPECT_EQ(anzahl("Pflanzen", "Weidezeit_von > Weidezeit_bis"), 0);
}

// The orchard: cherries from 20.03. open the year, white clover to 30.09. closes it.
TEST_F(Trachtgebiet, DieTrachtzeitDerStreuobstwieseGehtVonDerKirscheBisZumWeißklee) {
  standard();
  const Daten ort = DB.Lesen(
      "select Trachtzeit_von, Trachtzeit_bis from Standorte where Standort = 'Streuobstwiese "
      "Talhof'");
  ASSERT_EQ(ort->zeilen(), 1);
  EXPECT_EQ(ort->wert(0, 0).toDate(), QDate(2026, 3, 20));
  EXPECT_EQ(ort->wert(0, 1).toDate(), QDate(2026, 9, 30));
  EXPECT_EQ(anzahl("Standorte", "Trachtzeit_von is null or Trachtzeit_bis is null"), 0);
}

TEST_F(Trachtgebiet, DieVölkerStehenAnBekanntenStandortenUndNichtZuVieleAnEinem) {
  standard();
  const Daten völker = DB.Lesen(
      "select Standort, count(*) as Anzahl from Bienenvolk where Akt_im_Bestand = 'X' group by "
      "Standort");
  ASSERT_GT(völker->zeilen(), 0);
  for (int i = 0; i < völker->zeilen(); ++i) {
    const Daten ort =
        DB.Lesen("select Max_Völker from Standorte where Standort = ?", {völker->wert(i, 0)});
    ASSERT_EQ(ort->zeilen(), 1) << völker->anzeige(i, 0).toStdString();
    EXPECT_GE(ort->ganzzahl(0, 0), völker->ganzzahl(i, 1)) << völker->anzeige(i, 0).toStdString();
  }
  EXPECT_EQ(
      DB.Lesen("select Standorte.Standort from Standorte, Bienenvolk where Standorte.Standort "
               "= Bienenvolk.Standort")
          ->zeilen(),
      anzahl("Bienenvolk"));
}

// Who stays in a place over the winter stays in one that is fit for it.
TEST_F(Trachtgebiet, ImWinterStehenDieVölkerAnWintertauglichenStandorten) {
  Betriebsgröße größe;
  größe.heute = QDate(2026, 1, 15);
  anlegen(größe);
  EXPECT_EQ(DB.Lesen("select Bienenvolk.ID from Bienenvolk, Standorte where Bienenvolk.Standort = "
                     "Standorte.Standort and Wintertauglich = 'N' and Akt_im_Bestand = 'X'")
                ->zeilen(),
            0);
}

}  // namespace
