#include <QPushButton>

#include "sites/forms/Orteprobe.h"

// The tab of the plants.

namespace {

class PflanzenReiter : public Orteprobe {};

TEST_F(PflanzenReiter, NeuSchreibtUndFindetDieZeileWieder) {
  öffne("2");
  EXPECT_EQ(inhalt("Nektarstufe (0..10)"), "5");
  EXPECT_EQ(inhalt("Pollenstufe (0..10)"), "5");
  tippePflanze("Raps", "20.4.03", "20.05.2003");
  tippe("Nektarstufe (0..10)", "9");
  klicke("neu_0");
  EXPECT_EQ(wert("select Weidezeit_von from Pflanzen").toDate(), QDate(2003, 4, 20));
  EXPECT_EQ(wert("select Nektarstufe from Pflanzen").toInt(), 9);
  EXPECT_EQ(wert("select Pollenstufe from Pflanzen").toInt(), 5);
  EXPECT_EQ(liste("lipflanzen")->aktuelleZeile(), 0);
  EXPECT_TRUE(feld("Pflanzen", "Pflanze")->hasFocus());
  EXPECT_EQ(feld("Pflanzen", "Pflanze")->liste(), QStringList("Raps"));
}

TEST_F(PflanzenReiter, NeuMitEinemNamenEinerAnderenZeileSchreibtNichts) {
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  öffne("2");
  wähle("lipflanzen", 0);
  tippe("Nektarstufe (0..10)", "9");
  boxen.hinweis("Die Pflanze existiert bereits!");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Pflanzen"), 1);
  EXPECT_EQ(wert("select Nektarstufe from Pflanzen").toInt(), 3);
}

TEST_F(PflanzenReiter, AlleGründeInEinerMeldung) {
  öffne("2");
  boxen.hinweis(Weil +
                "...die Pflanze angegeben werden muß.\r\n"
                "...die Weidezeit von...bis korrekt angegeben werden muß.");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Pflanzen"), 0);
}

TEST_F(PflanzenReiter, DerNameEinerAnderenWirdAbgelehnt) {
  pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  öffne("2");
  tippePflanze("Linde", "10.06.2003", "10.07.2003");
  boxen.hinweis("Die Pflanze existiert bereits!").hinweis("Die Pflanze existiert bereits!");
  klicke("neu_0");
  wähle("lipflanzen", 1);
  tippe("Pflanzen", "Pflanze", "Linde");
  klicke("neu_1");
  EXPECT_EQ(anzahl("Pflanzen", "Pflanze = 'Linde'"), 1);
}

TEST_F(PflanzenReiter, UmbenennenUndLöschenLassenDieStandortZeilenStehen) {
  const qint64 hof = standort("Hof");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  tracht(hof, "Raps", 50);
  öffne("2");
  wähle("lipflanzen", 0);
  EXPECT_EQ(inhalt("Weidezeit von"), "20.04.2003");
  EXPECT_EQ(inhalt("Nektarstufe (0..10)"), "3");
  EXPECT_EQ(inhalt("Pollenstufe (0..10)"), "4");
  tippe("Pflanzen", "Pflanze", "Winterraps");
  klicke("neu_1");
  EXPECT_EQ(wert("select Pflanze from Pflanzen").toString(), "Winterraps");
  EXPECT_EQ(wert("select Pflanze from Standorte_Pflanzen").toString(), "Raps");
  klicke("löschen");
  EXPECT_EQ(anzahl("Pflanzen"), 0);
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 1);
}

TEST_F(PflanzenReiter, StufenBisZehn) {
  öffne("2");
  tippe("Nektarstufe (0..10)", "11");
  EXPECT_EQ(inhalt("Nektarstufe (0..10)"), "1");
  tippe("Pollenstufe (0..10)", "10");
  EXPECT_EQ(inhalt("Pollenstufe (0..10)"), "10");
}

TEST_F(PflanzenReiter, EinJahrVorUndZurückZeigtDieNeuenDaten) {
  pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  öffne("2");
  wähle("lipflanzen", 1);
  klicke("aufwaerts_0");
  EXPECT_EQ(liste("lipflanzen")->zelle(0, "Weidezeit_von"), "10.06.2004");
  EXPECT_EQ(liste("lipflanzen")->aktuelleZeile(), 1);
  EXPECT_EQ(inhalt("Weidezeit von"), "20.04.2004");
  klicke("aufwaerts_1");
  klicke("aufwaerts_1");
  EXPECT_EQ(inhalt("Weidezeit bis"), "20.05.2002");
}

TEST_F(PflanzenReiter, NeunundzwanzigsterFebruarWirdGesagtUndDieListeZeigtWasGetanIst) {
  pflanze("Krokus", QDate(2004, 3, 1), QDate(2004, 4, 1));
  pflanze("Hasel", QDate(2004, 2, 10), QDate(2004, 2, 29));
  öffne("2");
  boxen.hinweisMit("29.02.2005");
  klicke("aufwaerts_0");
  EXPECT_EQ(liste("lipflanzen")->zelle(0, "Weidezeit_bis"), "29.02.2004");
  EXPECT_EQ(liste("lipflanzen")->zelle(1, "Weidezeit_von"), "01.03.2005");
  EXPECT_TRUE(offen());
}

}  // namespace
