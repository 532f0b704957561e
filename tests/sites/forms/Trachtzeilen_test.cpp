#include <QPushButton>

#include "sites/forms/Orteprobe.h"

// The plants at a site: which site they belong to, what may be typed, the sum of the shares.

namespace {

const QString Ueber100 =
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

TEST_F(Trachtzeilen, AendernSchreibtAlleFelderDerEinenZeile) {
  tracht(hof, "Linde", 40, 200);
  const qint64 raps = tracht(hof, "Raps", 50, 300);
  tracht(heide, "Raps", 10, 400);
  oeffne();
  zumStandort(1);
  waehle("lijepflanze", 1);
  EXPECT_EQ(inhalt("sevtje_0"), "Raps");
  EXPECT_EQ(inhalt("sevtje_1"), "300");
  EXPECT_EQ(inhalt("sevtje_2"), "50");
  tippeTracht("Ahorn", "777", "55");
  klicke("neuje_1");
  const Daten d = db().Lesen(
      "select Pflanze, Entfernung_m, Proz_Anteil, Standort_Kennung from Standorte_Pflanzen "
      "where ID = ?",
      {raps});
  ASSERT_EQ(d->zeilen(), 1);
  EXPECT_EQ(d->anzeige(0, 0), "Ahorn");
  EXPECT_EQ(d->ganzzahl(0, 1), 777);
  EXPECT_EQ(d->ganzzahl(0, 2), 55);
  EXPECT_EQ(d->ganzzahl(0, 3), hof);
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 3);
  EXPECT_EQ(anzahl("Standorte_Pflanzen", "Pflanze = 'Linde' and Proz_Anteil = 40"), 1);
  EXPECT_EQ(anzahl("Standorte_Pflanzen", "Pflanze = 'Raps' and Entfernung_m = 400"), 1);
}

TEST_F(Trachtzeilen, NachAendernStehtDieZeileInDerNeuenFolgeUndIstGewaehlt) {
  tracht(hof, "Linde", 40);
  tracht(hof, "Raps", 50);
  oeffne();
  zumStandort(1);
  waehle("lijepflanze", 1);
  tippeTracht("Ahorn", "777", "55");
  klicke("neuje_1");
  EXPECT_EQ(liste("lijepflanze")->aktuelleZeile(), 0);
  EXPECT_EQ(zelle(0, "Pflanze"), "Ahorn");
  EXPECT_EQ(inhalt("sevtje_0"), "Ahorn");
  EXPECT_EQ(inhalt("sevtje_1"), "777");
  EXPECT_EQ(text("bezproz"), "95");
  EXPECT_TRUE(feld("sevtje_0")->hasFocus());
}

TEST_F(Trachtzeilen, NachWahlEinesAnderenStandortsIstKeineZeileMehrZuAendern) {
  tracht(hof, "Raps", 50);
  oeffne();
  zumStandort(1);
  waehle("lijepflanze", 0);
  waehle("lijeort", 0);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz (die Pflanze), den Sie ändern möchten!");
  klicke("neuje_1");
  EXPECT_EQ(zeilenVon(hof), 1);
  EXPECT_EQ(zeilenVon(heide), 0);
}

TEST_F(Trachtzeilen, UnveraendertGeaendertBeiHundertProzentWirdAngenommen) {
  tracht(hof, "Raps", 100);
  oeffne();
  zumStandort(1);
  waehle("lijepflanze", 0);
  klicke("neuje_1");
  EXPECT_EQ(text("bezproz"), "100");
  EXPECT_EQ(zeilenVon(hof), 1);
}

TEST_F(Trachtzeilen, GruendeKommenVorDerFehlendenZeile) {
  oeffne();
  zumStandort(1);
  tippeTracht("Raps", "0", "10");
  boxen.hinweis(Weil + "...die Entfernung muß größer als 0 Meter sein.");
  klicke("neuje_1");
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 0);
}

// ---- shares ----

TEST_F(Trachtzeilen, AnteileBisGenauHundertProzent) {
  tracht(hof, "Linde", 60);
  oeffne();
  zumStandort(1);
  tippeTracht("Raps", "500", "41");
  boxen.hinweis(Ueber100);
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(hof), 1);
  EXPECT_EQ(text("bezproz"), "60");
  tippe("sevtje_2", "40");
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(hof), 2);
  EXPECT_EQ(text("bezproz"), "100");
}

TEST_F(Trachtzeilen, EinePflanzeAlleinDarfHundertProzentHaben) {
  oeffne();
  zumStandort(1);
  tippeTracht("Raps", "1", "100");
  klicke("neuje_0");
  EXPECT_EQ(text("bezproz"), "100");
}

TEST_F(Trachtzeilen, JederStandortHatSeineEigenenHundertProzent) {
  tracht(hof, "Raps", 100);
  oeffne();
  zumStandort(0);
  tippeTracht("Linde", "500", "100");
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(heide), 1);
}

TEST_F(Trachtzeilen, GespeicherteUeberHundertProzentLassenSichNurVerkleinern) {
  tracht(hof, "Linde", 90);
  tracht(hof, "Raps", 60);
  oeffne();
  zumStandort(1);
  EXPECT_EQ(text("bezproz"), "150");
  waehle("lijepflanze", 1);
  boxen.hinweis(Ueber100);
  klicke("neuje_1");
  tippe("sevtje_2", "10");
  klicke("neuje_1");
  EXPECT_EQ(text("bezproz"), "100");
}

// ---- numbers below 0, from an import ----

TEST_F(Trachtzeilen, GespeichertesUnterNullWirdAbgelehntBisEsBerichtigtIst) {
  tracht(hof, "Raps", -10, -5);
  oeffne();
  zumStandort(1);
  EXPECT_EQ(text("bezproz"), "-10");
  waehle("lijepflanze", 0);
  EXPECT_EQ(inhalt("sevtje_1"), "-5");
  EXPECT_EQ(inhalt("sevtje_2"), "-10");
  boxen.hinweis(Weil +
                "...die Entfernung muß größer als 0 Meter sein.\r\n"
                "...der prozentuale Anteil müß größer als 0 % sein.");
  klicke("neuje_1");
  EXPECT_EQ(wert("select Proz_Anteil from Standorte_Pflanzen").toInt(), -10);
  tippe("sevtje_1", "5");
  tippe("sevtje_2", "100");
  klicke("neuje_1");
  EXPECT_EQ(wert("select Proz_Anteil from Standorte_Pflanzen").toInt(), 100);
  EXPECT_EQ(text("bezproz"), "100");
}

TEST_F(Trachtzeilen, EineSummeUnterNullZaehltMitIhremVorzeichen) {
  tracht(hof, "Linde", -10);
  oeffne();
  zumStandort(1);
  tippeTracht("Raps", "5", "100");  // -10 + 100
  klicke("neuje_0");
  EXPECT_EQ(text("bezproz"), "90");
  tippeTracht("Klee", "5", "11");
  boxen.hinweis(Ueber100);
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(hof), 2);
}

// ---- limits while typing ----

TEST_F(Trachtzeilen, GrenzenBeimTippen) {
  oeffne();
  zumStandort(1);
  tippe("sevtje_1", "10000");
  EXPECT_EQ(inhalt("sevtje_1"), "1000");
  tippe("sevtje_1", "9999");
  EXPECT_EQ(inhalt("sevtje_1"), "9999");
  tippe("sevtje_1", "-5");
  EXPECT_EQ(inhalt("sevtje_1"), "5");
  tippe("sevtje_2", "101");
  EXPECT_EQ(inhalt("sevtje_2"), "10");
  tippe("sevtje_2", "100");
  EXPECT_EQ(inhalt("sevtje_2"), "100");
  tippe("sevtje_2", "0");
  EXPECT_EQ(inhalt("sevtje_2"), "");
  tippe("sevtje_2", "-1,5");
  EXPECT_EQ(inhalt("sevtje_2"), "15");
  tippe("sevtje_0", "Schmalblaettriges-Weidenroeschen");
  EXPECT_EQ(inhalt("sevtje_0"), "Schmalblaettriges-We");
}

// ---- which site ----

TEST_F(Trachtzeilen, EinNichtAufgefuehrterStandortZeigtNichtsUndNimmtNichtsAn) {
  tracht(heide, "Linde", 30);
  oeffne();
  standort("Zaun");  // by another way, after the list of sites was read
  zumReiter(1);
  ASSERT_EQ(liste("lijeort")->zeilen(), 3);
  EXPECT_EQ(text("bezproz"), "30");
  waehle("lijeort", 2);
  EXPECT_EQ(liste("lijepflanze")->zeilen(), 0);
  EXPECT_EQ(text("bezproz"), "0");
  EXPECT_EQ(liste("listandorte")->aktuelleZeile(), -1);
  tippeTracht("Raps", "5", "10");
  boxen.hinweisMit(KeinOrt);
  klicke("neuje_0");
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 1);
  waehle("lijeort", 0);
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(heide), 2);
}

TEST_F(Trachtzeilen, ZweiStandorteGleichenNamensBehaltenIhrePflanzen) {
  const qint64 zweiter = standort("Hof");
  tracht(hof, "Raps", 10);
  tracht(zweiter, "Linde", 20);
  oeffne();
  zumStandort(2);
  EXPECT_EQ(text("bezproz"), "20");
  tippeTracht("Klee", "5", "30");
  klicke("neuje_0");
  EXPECT_EQ(zeilenVon(zweiter), 2);
  EXPECT_EQ(zeilenVon(hof), 1);
  EXPECT_EQ(liste("listandorte")->wert(liste("listandorte")->aktuelleZeile(), "ID").toLongLong(),
            zweiter);
  waehle("lijeort", 1);
  EXPECT_EQ(text("bezproz"), "10");
}

TEST_F(Trachtzeilen, DerZweiteGleichenNamensIstAuchImAuswahlfeldDerZweite) {
  const qint64 zweiter = standort("Hof");
  tracht(zweiter, "Linde", 20);
  oeffne();
  waehle("listandorte", 2);
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
  oeffne();
  Grid* orte = liste("listandorte");
  orte->sortiere(orte->spaltenNummer("Klima"), Qt::AscendingOrder);
  zumStandort(1);
  EXPECT_EQ(text("bezproz"), "10");
  waehle("lijeort", 2);
  EXPECT_EQ(text("bezproz"), "20");
}

TEST_F(Trachtzeilen, AuchDieSortierteAuswahlMeintDenGewaehltenStandort) {
  tracht(hof, "Raps", 10);
  oeffne();
  zumReiter(1);
  liste("lijeort")->sortiere(0, Qt::DescendingOrder);
  waehle("lijeort", 0);
  EXPECT_EQ(text("bezproz"), "10");
  EXPECT_EQ(liste("listandorte")->zelle(liste("listandorte")->aktuelleZeile(), "Standort"), "Hof");
}

TEST_F(Trachtzeilen, NachDemLoeschenEinesStandortsStimmenDieUebrigen) {
  const qint64 zaun = standort("Zaun");
  tracht(zaun, "Raps", 70);
  tracht(heide, "Raps", 10);
  oeffne();
  waehle("listandorte", 0);
  klicke("lschstandort");
  zumReiter(1);
  ASSERT_EQ(liste("lijeort")->zeilen(), 2);
  waehle("lijeort", 1);
  EXPECT_EQ(text("bezproz"), "70");
}

TEST_F(Trachtzeilen, InDerSortiertenListeWirdDieGewaehlteZeileGeloeschtUndDieNaechsteGezeigt) {
  for (const char* name : {"Ahorn", "Linde", "Raps"}) tracht(hof, name, 30);
  oeffne();
  zumStandort(1);
  liste("lijepflanze")->sortiere(0, Qt::DescendingOrder);
  waehle("lijepflanze", 0);
  EXPECT_EQ(inhalt("sevtje_0"), "Raps");
  klicke("lschje");
  EXPECT_EQ(anzahl("Standorte_Pflanzen", "Pflanze = 'Raps'"), 0);
  EXPECT_EQ(inhalt("sevtje_0"), "Linde");
  EXPECT_EQ(zelle(liste("lijepflanze")->aktuelleZeile(), "Pflanze"), "Linde");
}

TEST_F(Trachtzeilen, DieLetzteGeloeschtLaesstNullProzentUndLeereEingaben) {
  tracht(hof, "Raps", 30);
  oeffne();
  zumStandort(1);
  waehle("lijepflanze", 0);
  klicke("lschje");
  EXPECT_EQ(text("bezproz"), "0");
  EXPECT_EQ(inhalt("sevtje_0"), "");
  EXPECT_EQ(inhalt("sevtje_2"), "");
}

TEST_F(Trachtzeilen, EineNeuePflanzeStehtBeimNaechstenBesuchZurWahl) {
  oeffne();
  zumReiter(1);
  EXPECT_EQ(feld("sevtje_0")->liste(), QStringList({"Linde", "Raps"}));
  zumReiter(2);
  tippePflanze("Klee", "01.06.2003", "01.07.2003");
  klicke("neu_0");
  zumReiter(1);
  EXPECT_EQ(feld("sevtje_0")->liste(), QStringList({"Klee", "Linde", "Raps"}));
}

TEST_F(Trachtzeilen, UeberschriftUndSummeStehenUeberDerListe) {
  oeffne();
  zumReiter(1);
  QStringList texte;
  for (const auto* schild : form->findChildren<QLabel*>())
    if (schild->isVisible()) texte << schild->text();
  EXPECT_TRUE(texte.contains("Pflanzen (Tracht) am ausgewählten Standort"));
  EXPECT_TRUE(texte.contains("Pflanzen am Standort in %: "));
}

}  // namespace
