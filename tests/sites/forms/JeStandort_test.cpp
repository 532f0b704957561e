#include <QPushButton>

#include "sites/forms/Orteprobe.h"

// The tab of the plants at a site.

namespace {

class JeStandortReiter : public ZweiOrte {};

TEST_F(JeStandortReiter, ZeigtDiePflanzenDesGewähltenStandorts) {
  tracht(hof, "Raps", 60);
  tracht(hof, "Linde", 25);
  öffne();
  zumStandort(1);
  EXPECT_EQ(liste("lijeort")->zelle(1, "Standort"), "Hof");
  ASSERT_EQ(liste("lijepflanze")->zeilen(), 2);
  EXPECT_EQ(liste("lijepflanze")->zelle(0, "Pflanze"), "Linde");
  EXPECT_EQ(text("bezproz"), "85");
  wähle("lijeort", 0);
  EXPECT_EQ(liste("lijepflanze")->zeilen(), 0);
  EXPECT_EQ(text("bezproz"), "0");
  EXPECT_EQ(feld("Pflanzen je Standort", "Pflanze")->liste(), QStringList({"Linde", "Raps"}));
}

TEST_F(JeStandortReiter, BeginntMitDemStandortDesErstenReitersUndNimmtIhnMit) {
  öffne();
  wähle("listandorte", 1);
  zumReiter(1);
  EXPECT_EQ(liste("lijeort")->aktuelleZeile(), 1);
  wähle("lijeort", 0);
  EXPECT_EQ(liste("listandorte")->aktuelleZeile(), 0);
  zumReiter(0);
  EXPECT_EQ(inhalt("Standort"), "Heide");
}

TEST_F(JeStandortReiter, AuchNachSortierenGehörtDieZeileZumGewähltenStandort) {
  tracht(heide, "Raps", 60);
  öffne();
  liste("listandorte")->sortiere(0, Qt::DescendingOrder);
  zumStandort(0);
  EXPECT_EQ(liste("lijeort")->zelle(0, "Standort"), "Heide");
  EXPECT_EQ(liste("lijepflanze")->zeilen(), 1);
  tippeTracht("Linde", "300", "10");
  klicke("neuje_0");
  EXPECT_EQ(anzahl("Standorte_Pflanzen", QString("Standort_Kennung = %1").arg(heide)), 2);
}

TEST_F(JeStandortReiter, WerEinePflanzeNachschlägtBehältWasErGetipptHat) {
  öffne();
  zumStandort(1);
  tippeTracht("Raps", "500", "60");
  zumReiter(2);
  zumReiter(1);
  EXPECT_EQ(inhalt("Pflanzen je Standort", "Pflanze"), "Raps");
  EXPECT_EQ(inhalt("Entfernung m"), "500");
  EXPECT_EQ(inhalt("Anteil in %"), "60");
}

TEST_F(JeStandortReiter, NeuSchreibtMitDerKennungDesStandorts) {
  öffne();
  zumStandort(1);
  tippeTracht("Raps", "500", "60");
  klicke("neuje_0");
  const Daten d = db().Lesen(
      "select Pflanze, Entfernung_m, Proz_Anteil, Standort_Kennung "
      "from Standorte_Pflanzen");
  ASSERT_EQ(d->zeilen(), 1);
  EXPECT_EQ(d->anzeige(0, 0), "Raps");
  EXPECT_EQ(d->ganzzahl(0, 1), 500);
  EXPECT_EQ(d->ganzzahl(0, 2), 60);
  EXPECT_EQ(d->ganzzahl(0, 3), hof);
  EXPECT_EQ(text("bezproz"), "60");
}

TEST_F(JeStandortReiter, SechzigUndVierzigGehenEinProzentMehrNicht) {
  öffne();
  zumStandort(1);
  tippeTracht("Raps", "500", "60");
  klicke("neuje_0");
  tippeTracht("Linde", "500", "40");
  klicke("neuje_0");
  EXPECT_EQ(text("bezproz"), "100");
  tippeTracht("Klee", "500", "1");
  boxen.hinweis(Weil +
                "...der prozentuale Anteil bei den Pflanzen am Standort nicht über 100 sein darf.");
  klicke("neuje_0");
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 2);
}

TEST_F(JeStandortReiter, AusSechzigWirdNeunundfünfzigAberNichtEinundsechzig) {
  tracht(hof, "Linde", 40);
  tracht(hof, "Raps", 60);
  öffne();
  zumStandort(1);
  wähle("lijepflanze", 1);
  EXPECT_EQ(inhalt("Pflanzen je Standort", "Pflanze"), "Raps");
  EXPECT_EQ(inhalt("Entfernung m"), "100");
  tippe("Anteil in %", "61");
  boxen.hinweis(Weil +
                "...der prozentuale Anteil bei den Pflanzen am Standort nicht über 100 sein darf.");
  klicke("neuje_1");
  EXPECT_EQ(wert("select Proz_Anteil from Standorte_Pflanzen where Pflanze = 'Raps'").toInt(), 60);
  tippe("Anteil in %", "59");
  klicke("neuje_1");
  EXPECT_EQ(wert("select Proz_Anteil from Standorte_Pflanzen where Pflanze = 'Raps'").toInt(), 59);
  EXPECT_EQ(text("bezproz"), "99");
}

TEST_F(JeStandortReiter, AlleGründeInIhrerFolge) {
  öffne();
  zumStandort(1);
  boxen.hinweis(Weil +
                "...die Pflanze angegeben werden muß.\r\n"
                "...die Entfernung muß größer als 0 Meter sein.\r\n"
                "...der prozentuale Anteil müß größer als 0 % sein.");
  klicke("neuje_0");
  tippeTracht("Raps", "500", "60");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz (die Pflanze), den Sie ändern möchten!");
  klicke("neuje_1");
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 0);
}

TEST_F(JeStandortReiter, UnbekanntePflanzeWirdGespeichertUndÄndertDieTrachtzeitNicht) {
  öffne();
  zumStandort(1);
  tippeTracht("Wunderkraut", "10", "5");
  klicke("neuje_0");
  EXPECT_EQ(anzahl("Standorte_Pflanzen", "Pflanze = 'Wunderkraut'"), 1);
  klicke("beenden");
  EXPECT_TRUE(von("Hof").isNull());
  EXPECT_TRUE(bis("Hof").isNull());
}

TEST_F(JeStandortReiter, EinePflanzeDarfMehrmalsAnEinemStandortStehen) {
  öffne();
  zumStandort(1);
  tippeTracht("Raps", "500", "10");
  klicke("neuje_0");
  klicke("neuje_0");
  EXPECT_EQ(anzahl("Standorte_Pflanzen", "Pflanze = 'Raps'"), 2);
  EXPECT_EQ(text("bezproz"), "20");
}

TEST_F(JeStandortReiter, LöschenZeigtDieSummeNeu) {
  tracht(hof, "Linde", 40);
  tracht(hof, "Raps", 60);
  TZ_Variablen::EinstellungenZahl[Zahlslots.löschabfrage] = 1;
  öffne();
  zumStandort(1);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("lschje");
  wähle("lijepflanze", 0);
  boxen.frage(Löschfrage, true);
  klicke("lschje");
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 1);
  EXPECT_EQ(text("bezproz"), "60");
  EXPECT_EQ(inhalt("Pflanzen je Standort", "Pflanze"), "Raps");
}

}  // namespace
