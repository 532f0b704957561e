#include <QPushButton>

#include "sites/forms/Orteprobe.h"

// The plants at a site: which site they belong to, what may be typed, the sum of the shares.

namespace {

const QString Über100 =
    Weil + "...der prozentuale Anteil bei den Pflanzen am Standort nicht über 100 sein darf.";
const QString KeinOrt = "weil der gewählte Standort nicht im Register \"Standorte\" steht";

class Trachtzeilen : public ZweiOrte {
 protected:
  static qint64 zeilenVon(qint64 ort) {
    return anzahl("Standorte_Pflanzen", QString("Standort_Kennung = %1").arg(ort));
  }
  std::string zelle(int zeile, const QString& spalte) {
    return liste("lijepflanze")->zelle(zeile, spalte).toStdString();
  }
};

// ---- changing a row ----

TEST_F(Trachtzeilen, NachÄndernStehtDieZeileInDerNeuenFolgeUndIstGewählt) {
  tracht(hof, "Linde", 40);
  tracht(hof, "Raps", 50);
  öffne();
  zumStandort(1);
  wähle("lijepflanze", 1);
  tippeTracht("Ahorn", "777", "55");
  klicke("neuje_1");
  EXPECT_EQ(liste("lijepflanze")->aktuelleZeile(), 0);
  EXPECT_EQ(zelle(0, "Pflanze"), "Ahorn");
  EXPECT_EQ(inhalt("Pflanzen je Standort", "Pflanze"), "Ahorn");
  EXPECT_EQ(inhalt("Entfernung m"), "777");
  EXPECT_EQ(text("bezproz"), "95");
  EXPECT_TRUE(feld("Pflanzen je Standort", "Pflanze")->hasFocus());
}

TEST_F(Trachtzeilen, NachWahlEinesAnderenStandortsIstKeineZeileMehrZuÄndern) {
  tracht(hof, "Raps", 50);
  öffne();
  zumStandort(1);
  wähle("lijepflanze", 0);
  wähle("lijeort", 0);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz (die Pflanze), den Sie ändern möchten!");
  klicke("neuje_1");
  EXPECT_EQ(zeilenVon(hof), 1);
  EXPECT_EQ(zeilenVon(heide), 0);
}

TEST_F(Trachtzeilen, UnverändertGeändertBeiHundertProzentWirdAngenommen) {
  tracht(hof, "Raps", 100);
  öffne();
  zumStandort(1);
  wähle("lijepflanze", 0);
  klicke("neuje_1");
  EXPECT_EQ(text("bezproz"), "100");
  EXPECT_EQ(zeilenVon(hof), 1);
}

TEST_F(Trachtzeilen, GründeKommenVorDerFehlendenZeile) {
  öffne();
  zumStandort(1);
  tippeTracht("Raps", "0", "10");
  boxen.hinweis(Weil + "...die Entfernung muß größer als 0 Meter sein.");
  klicke("neuje_1");
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 0);
}

// ---- shares ----

TEST_F(Trachtzeilen, AnteileBisGenauHundertProzent) {
  tracht(hof, "Linde", 60);
  öffne();
  zumStandort(1);
  tippeTracht("Raps", "500", "41");
  boxen.hinweis(Über100);
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(hof), 1);
  EXPECT_EQ(text("bezproz"), "60");
  tippe("Anteil in %", "40");
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(hof), 2);
  EXPECT_EQ(text("bezproz"), "100");
}

TEST_F(Trachtzeilen, EinePflanzeAlleinDarfHundertProzentHaben) {
  öffne();
  zumStandort(1);
  tippeTracht("Raps", "1", "100");
  klicke("neuje_0");
  EXPECT_EQ(text("bezproz"), "100");
}

TEST_F(Trachtzeilen, JederStandortHatSeineEigenenHundertProzent) {
  tracht(hof, "Raps", 100);
  öffne();
  zumStandort(0);
  tippeTracht("Linde", "500", "100");
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(heide), 1);
}

TEST_F(Trachtzeilen, GespeicherteÜberHundertProzentLassenSichNurVerkleinern) {
  tracht(hof, "Linde", 90);
  tracht(hof, "Raps", 60);
  öffne();
  zumStandort(1);
  EXPECT_EQ(text("bezproz"), "150");
  wähle("lijepflanze", 1);
  boxen.hinweis(Über100);
  klicke("neuje_1");
  tippe("Anteil in %", "10");
  klicke("neuje_1");
  EXPECT_EQ(text("bezproz"), "100");
}

// ---- numbers below 0, from an import ----

TEST_F(Trachtzeilen, GespeichertesUnterNullWirdAbgelehntBisEsBerichtigtIst) {
  tracht(hof, "Raps", -10, -5);
  öffne();
  zumStandort(1);
  EXPECT_EQ(text("bezproz"), "-10");
  wähle("lijepflanze", 0);
  EXPECT_EQ(inhalt("Entfernung m"), "-5");
  EXPECT_EQ(inhalt("Anteil in %"), "-10");
  boxen.hinweis(Weil +
                "...die Entfernung muß größer als 0 Meter sein.\r\n"
                "...der prozentuale Anteil müß größer als 0 % sein.");
  klicke("neuje_1");
  EXPECT_EQ(wert("select Proz_Anteil from Standorte_Pflanzen").toInt(), -10);
  tippe("Entfernung m", "5");
  tippe("Anteil in %", "100");
  klicke("neuje_1");
  EXPECT_EQ(wert("select Proz_Anteil from Standorte_Pflanzen").toInt(), 100);
  EXPECT_EQ(text("bezproz"), "100");
}

TEST_F(Trachtzeilen, EineSummeUnterNullZähltMitIhremVorzeichen) {
  tracht(hof, "Linde", -10);
  öffne();
  zumStandort(1);
  tippeTracht("Raps", "5", "100");  // -10 + 100
  klicke("neuje_0");
  EXPECT_EQ(text("bezproz"), "90");
  tippeTracht("Klee", "5", "11");
  boxen.hinweis(Über100);
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(hof), 2);
}

// ---- limits while typing ----

TEST_F(Trachtzeilen, GrenzenBeimTippen) {
  öffne();
  zumStandort(1);
  tippe("Entfernung m", "10000");
  EXPECT_EQ(inhalt("Entfernung m"), "1000");
  tippe("Entfernung m", "9999");
  EXPECT_EQ(inhalt("Entfernung m"), "9999");
  tippe("Entfernung m", "-5");
  EXPECT_EQ(inhalt("Entfernung m"), "");
  tippe("Anteil in %", "101");
  EXPECT_EQ(inhalt("Anteil in %"), "10");
  tippe("Anteil in %", "100");
  EXPECT_EQ(inhalt("Anteil in %"), "100");
  tippe("Anteil in %", "0");
  EXPECT_EQ(inhalt("Anteil in %"), "");
  EXPECT_EQ(feld("Anteil in %")->hinweis(), "mindestens 1");
  tippe("Anteil in %", "-1,5");
  EXPECT_EQ(inhalt("Anteil in %"), "");
  tippe("Pflanzen je Standort", "Pflanze", "Schmalblaettriges-Weidenroeschen");
  EXPECT_EQ(inhalt("Pflanzen je Standort", "Pflanze"), "Schmalblaettriges-We");
}

// ---- which site ----

TEST_F(Trachtzeilen, EinNichtAufgeführterStandortZeigtNichtsUndNimmtNichtsAn) {
  tracht(heide, "Linde", 30);
  öffne();
  standort("Zaun");  // by another way, after the list of sites was read
  zumReiter(1);
  ASSERT_EQ(liste("lijeort")->zeilen(), 3);
  EXPECT_EQ(text("bezproz"), "30");
  wähle("lijeort", 2);
  EXPECT_EQ(liste("lijepflanze")->zeilen(), 0);
  EXPECT_EQ(text("bezproz"), "0");
  EXPECT_EQ(liste("listandorte")->aktuelleZeile(), -1);
  tippeTracht("Raps", "5", "10");
  boxen.hinweisMit(KeinOrt);
  klicke("neuje_0");
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 1);
  wähle("lijeort", 0);
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(heide), 2);
}

TEST_F(Trachtzeilen, ZweiStandorteGleichenNamensBehaltenIhrePflanzen) {
  const qint64 zweiter = standort("Hof");
  tracht(hof, "Raps", 10);
  tracht(zweiter, "Linde", 20);
  öffne();
  zumStandort(2);
  EXPECT_EQ(text("bezproz"), "20");
  tippeTracht("Klee", "5", "30");
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(zweiter), 2);
  EXPECT_EQ(zeilenVon(hof), 1);
  EXPECT_EQ(liste("listandorte")->wert(liste("listandorte")->aktuelleZeile(), "ID").toLongLong(),
            zweiter);
  wähle("lijeort", 1);
  EXPECT_EQ(text("bezproz"), "10");
}

TEST_F(Trachtzeilen, DerZweiteGleichenNamensIstAuchImAuswahlfeldDerZweite) {
  const qint64 zweiter = standort("Hof");
  tracht(zweiter, "Linde", 20);
  öffne();
  wähle("listandorte", 2);
  zumReiter(1);
  EXPECT_EQ(liste("lijeort")->aktuelleZeile(), 2);
  EXPECT_EQ(text("bezproz"), "20");
}

TEST_F(Trachtzeilen, GleicheNamenBleibenInIhrerFolgeAuchWennDieStandorteSortiertSind) {
  const qint64 zweiter = standort("Hof");
  for (const auto& [id, klima] : {std::pair{hof, "rau"}, std::pair{zweiter, "mild"}})
    db().Execute("update Standorte set Klima = ? where ID = ?", {klima, id});
  tracht(hof, "Raps", 10);
  tracht(zweiter, "Linde", 20);
  öffne();
  Grid* orte = liste("listandorte");
  orte->sortiere(orte->spaltenNummer("Klima"), Qt::AscendingOrder);
  zumStandort(1);
  EXPECT_EQ(text("bezproz"), "10");
  wähle("lijeort", 2);
  EXPECT_EQ(text("bezproz"), "20");
}

TEST_F(Trachtzeilen, AuchDieSortierteAuswahlMeintDenGewähltenStandort) {
  tracht(hof, "Raps", 10);
  öffne();
  zumReiter(1);
  liste("lijeort")->sortiere(0, Qt::DescendingOrder);
  wähle("lijeort", 0);
  EXPECT_EQ(text("bezproz"), "10");
  EXPECT_EQ(liste("listandorte")->zelle(liste("listandorte")->aktuelleZeile(), "Standort"), "Hof");
}

TEST_F(Trachtzeilen, NachDemLöschenEinesStandortsStimmenDieÜbrigen) {
  const qint64 zaun = standort("Zaun");
  tracht(zaun, "Raps", 70);
  tracht(heide, "Raps", 10);
  öffne();
  wähle("listandorte", 0);
  klicke("lschstandort");
  zumReiter(1);
  ASSERT_EQ(liste("lijeort")->zeilen(), 2);
  wähle("lijeort", 1);
  EXPECT_EQ(text("bezproz"), "70");
}

TEST_F(Trachtzeilen, InDerSortiertenListeWirdDieGewählteZeileGelöschtUndDieNächsteGezeigt) {
  for (const char* name : {"Ahorn", "Linde", "Raps"}) tracht(hof, name, 30);
  öffne();
  zumStandort(1);
  liste("lijepflanze")->sortiere(0, Qt::DescendingOrder);
  wähle("lijepflanze", 0);
  EXPECT_EQ(inhalt("Pflanzen je Standort", "Pflanze"), "Raps");
  klicke("lschje");
  EXPECT_EQ(anzahl("Standorte_Pflanzen", "Pflanze = 'Raps'"), 0);
  EXPECT_EQ(inhalt("Pflanzen je Standort", "Pflanze"), "Linde");
  EXPECT_EQ(zelle(liste("lijepflanze")->aktuelleZeile(), "Pflanze"), "Linde");
}

TEST_F(Trachtzeilen, DieLetzteGelöschtLässtNullProzentUndLeereEingaben) {
  tracht(hof, "Raps", 30);
  öffne();
  zumStandort(1);
  wähle("lijepflanze", 0);
  klicke("lschje");
  EXPECT_EQ(text("bezproz"), "0");
  EXPECT_EQ(inhalt("Pflanzen je Standort", "Pflanze"), "");
  EXPECT_EQ(inhalt("Anteil in %"), "");
}

TEST_F(Trachtzeilen, EineNeuePflanzeStehtBeimNächstenBesuchZurWahl) {
  öffne();
  zumReiter(1);
  EXPECT_EQ(feld("Pflanzen je Standort", "Pflanze")->liste(), QStringList({"Linde", "Raps"}));
  zumReiter(2);
  tippePflanze("Klee", "01.06.2003", "01.07.2003");
  klicke("neu_0");
  zumReiter(1);
  EXPECT_EQ(feld("Pflanzen je Standort", "Pflanze")->liste(),
            QStringList({"Klee", "Linde", "Raps"}));
}

TEST_F(Trachtzeilen, ÜberschriftUndSummeStehenÜberDerListe) {
  öffne();
  zumReiter(1);
  QStringList texte;
  for (const auto* schild : form->findChildren<QLabel*>())
    if (schild->isVisible()) texte << schild->text();
  EXPECT_TRUE(texte.contains("Pflanzen (Tracht) am ausgewählten Standort"));
  EXPECT_TRUE(texte.contains("Pflanzen am Standort in %: "));
}

}  // namespace
