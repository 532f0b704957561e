#include <QPushButton>

#include "sites/forms/Orteprobe.h"

// The tab of the plants.

namespace {

class PflanzenReiter : public Orteprobe {};

TEST_F(PflanzenReiter, NeuSchreibtUndFindetDieZeileWieder) {
  oeffne("2");
  EXPECT_EQ(inhalt("sevt_3"), "5");
  EXPECT_EQ(inhalt("sevt_4"), "5");
  tippePflanze("Raps", "20.4.03", "20.05.2003");
  tippe("sevt_3", "9");
  klicke("neu_0");
  EXPECT_EQ(wert("select Weidezeit_von from Pflanzen").toDate(), QDate(2003, 4, 20));
  EXPECT_EQ(wert("select Nektarstufe from Pflanzen").toInt(), 9);
  EXPECT_EQ(wert("select Pollenstufe from Pflanzen").toInt(), 5);
  EXPECT_EQ(liste("lipflanzen")->aktuelleZeile(), 0);
  EXPECT_TRUE(feld("sevt_0")->hasFocus());
  EXPECT_EQ(feld("sevt_0")->liste(), QStringList("Raps"));
}

TEST_F(PflanzenReiter, AendernSchreibtAlleFelderDerEinenZeile) {
  pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  const qint64 raps = pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  oeffne("2");
  waehle("lipflanzen", 1);
  tippePflanze("Ahorn", "01.04.2004", "02.05.2005");
  tippe("sevt_3", "0");
  tippe("sevt_4", "10");
  klicke("neu_1");
  const Daten d = db().Lesen(
      "select Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe from Pflanzen "
      "where ID = ?",
      {raps});
  ASSERT_EQ(d->zeilen(), 1);
  EXPECT_EQ(d->anzeige(0, 0), "Ahorn");
  EXPECT_EQ(d->wert(0, 1).toDate(), QDate(2004, 4, 1));
  EXPECT_EQ(d->wert(0, 2).toDate(), QDate(2005, 5, 2));
  EXPECT_EQ(d->ganzzahl(0, 3), 0);
  EXPECT_EQ(d->ganzzahl(0, 4), 10);
  EXPECT_EQ(anzahl("Pflanzen"), 2);
  EXPECT_EQ(liste("lipflanzen")->aktuelleZeile(), 0);
  EXPECT_TRUE(feld("sevt_0")->hasFocus());
}

TEST_F(PflanzenReiter, NeuMitEinemNamenEinerAnderenZeileSchreibtNichts) {
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  oeffne("2");
  waehle("lipflanzen", 0);
  tippe("sevt_3", "9");
  boxen.hinweis("Die Pflanze existiert bereits!");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Pflanzen"), 1);
  EXPECT_EQ(wert("select Nektarstufe from Pflanzen").toInt(), 3);
}

TEST_F(PflanzenReiter, AlleGruendeInEinerMeldung) {
  oeffne("2");
  boxen.hinweis(Weil +
                "...die Pflanze angegeben werden muß.\r\n"
                "...die Weidezeit von...bis korrekt angegeben werden muß.");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Pflanzen"), 0);
}

TEST_F(PflanzenReiter, AendernOhneZeileUndDoppelterName) {
  pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  oeffne("2");
  tippePflanze("Linde", "10.06.2003", "10.07.2003");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!")
      .hinweis("Die Pflanze existiert bereits!")
      .hinweis("Die Pflanze existiert bereits!");
  klicke("neu_1");
  klicke("neu_0");
  waehle("lipflanzen", 1);
  tippe("sevt_0", "Linde");
  klicke("neu_1");
  EXPECT_EQ(anzahl("Pflanzen", "Pflanze = 'Linde'"), 1);
}

TEST_F(PflanzenReiter, UmbenennenUndLoeschenLassenDieStandortZeilenStehen) {
  const qint64 hof = standort("Hof");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  tracht(hof, "Raps", 50);
  oeffne("2");
  waehle("lipflanzen", 0);
  EXPECT_EQ(inhalt("sevt_1"), "20.04.2003");
  EXPECT_EQ(inhalt("sevt_3"), "3");
  EXPECT_EQ(inhalt("sevt_4"), "4");
  tippe("sevt_0", "Winterraps");
  klicke("neu_1");
  EXPECT_EQ(wert("select Pflanze from Pflanzen").toString(), "Winterraps");
  EXPECT_EQ(wert("select Pflanze from Standorte_Pflanzen").toString(), "Raps");
  klicke("löschen");
  EXPECT_EQ(anzahl("Pflanzen"), 0);
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 1);
}

TEST_F(PflanzenReiter, StufenBisZehn) {
  oeffne("2");
  tippe("sevt_3", "11");
  EXPECT_EQ(inhalt("sevt_3"), "1");
  tippe("sevt_4", "10");
  EXPECT_EQ(inhalt("sevt_4"), "10");
}

TEST_F(PflanzenReiter, EinJahrVorUndZurueckZeigtDieNeuenDaten) {
  pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  oeffne("2");
  waehle("lipflanzen", 1);
  klicke("aufwaerts_0");
  EXPECT_EQ(liste("lipflanzen")->zelle(0, "Weidezeit_von"), "10.06.2004");
  EXPECT_EQ(liste("lipflanzen")->aktuelleZeile(), 1);
  EXPECT_EQ(inhalt("sevt_1"), "20.04.2004");
  klicke("aufwaerts_1");
  klicke("aufwaerts_1");
  EXPECT_EQ(inhalt("sevt_2"), "20.05.2002");
}

TEST_F(PflanzenReiter, NeunundzwanzigsterFebruarWirdGesagtUndDieListeZeigtWasGetanIst) {
  pflanze("Krokus", QDate(2004, 3, 1), QDate(2004, 4, 1));
  pflanze("Hasel", QDate(2004, 2, 10), QDate(2004, 2, 29));
  oeffne("2");
  boxen.hinweisMit("29.02.2005");
  klicke("aufwaerts_0");
  EXPECT_EQ(liste("lipflanzen")->zelle(0, "Weidezeit_bis"), "29.02.2004");
  EXPECT_EQ(liste("lipflanzen")->zelle(1, "Weidezeit_von"), "01.03.2005");
  EXPECT_TRUE(offen());
}

}  // namespace
