#include "evaluations/Standortauswertung.h"

#include <algorithm>

#include "evaluations/Standortbetrieb.h"

// The lists of sites and plants, and the inputs of the quality index.

namespace {

using namespace TZ_Variablen;

const QString KeineDaten = "Es wurden lt. den aktuellen Einstellungen keine Daten gefunden!";
const QList<Zahlslot> Ablage{Zahlslots.nektarpunkte,    Zahlslots.pollenpunkte,
                             Zahlslots.anteilfaktor,    Zahlslots.entfernungsfaktor,
                             Zahlslots.anfahrtzuschlag, Zahlslots.wasserzuschlag,
                             Zahlslots.prämienzuschlag};
const QStringList Standardwerte{"5", "5", "5", "15", "30", "50", "3"};

class StandortauswertungTest : public Standortbetrieb {
 protected:
  static QStringList parameter(const Probelauf& probe) {
    QStringList werte;
    for (int i = 0; i < 7; ++i) werte += probe.e.text("sevt", i);
    return werte;
  }
};

// ---- parameters ----

TEST_F(StandortauswertungTest, NullInDenEinstellungenWirdVorgabeUndDerTagIstHeute) {
  for (const Zahlslot& slot : Ablage) EinstellungenZahl[slot] = 0;
  const Probelauf probe(Standortauswertung::beschreibung());
  EXPECT_EQ(parameter(probe), Standardwerte);
  EXPECT_EQ(probe.e.text("sevt", 7), "20.06.2006");
}

TEST_F(StandortauswertungTest, DieParameterWerdenBeimSchließenGeschrieben) {
  Probelauf probe(Standortauswertung::beschreibung());
  for (int i = 0; i < 7; ++i) probe.tippe(QString("sevt_%1").arg(i), QString::number(10 + i));
  probe.tippe("sevt_7", "01.01.2001");
  probe.schließen();
  for (int i = 0; i < 7; ++i) EXPECT_EQ(EinstellungenZahl[Ablage[i]], 10 + i);
  probe.öffnen();
  EXPECT_EQ(parameter(probe), QStringList({"10", "11", "12", "13", "14", "15", "16"}));
  EXPECT_EQ(probe.e.text("sevt", 7), "20.06.2006");
}

TEST_F(StandortauswertungTest, EineNullGiltNurBisZumSchließen) {
  Probelauf probe(Standortauswertung::beschreibung());
  probe.tippe("sevt_4", "0");
  probe.schließen();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.anfahrtzuschlag], 0);
  probe.öffnen();
  EXPECT_EQ(probe.e.text("sevt", 4), "30");
}

TEST_F(StandortauswertungTest, StandardParameterWerdenNachEinerFrageGesetzt) {
  Probelauf probe(Standortauswertung::beschreibung());
  EXPECT_EQ(probe.b.befehl("standardparameter")->frage,
            "Sollen die Qualitätspraramter wirklich auf die Standard-Parameter gesetzt "
            "werden?\r\n\r\nDie Standardparameter sind (von oben nach unten in den grünen Feldern) "
            "5 - 5 - 5 - 15 - 30 - 50 - 3");
  for (int i = 0; i < 7; ++i) probe.tippe(QString("sevt_%1").arg(i), "77");
  probe.drücke("standardparameter");
  EXPECT_EQ(parameter(probe), Standardwerte);
}

TEST_F(StandortauswertungTest, WasKeineZahlIstZähltAlsNull) {
  löwenzahn();
  const qint64 hof = ort({.pkw = "J", .wasser_m = 300, .prämie = 20});
  tracht(hof, "Löwenzahn", 40, 200);
  Probelauf probe(Standortauswertung::beschreibung());
  probe.tippe("sevt_7", "01.05.2006");
  EXPECT_EQ(Probelauf::zeile(probe.liste("rolisten_4"), 0),
            QStringList({"Hof", "2940", "2530", "5470"}));
  for (int i = 2; i < 7; ++i) probe.tippe(QString("sevt_%1").arg(i), "viel");
  EXPECT_EQ(Probelauf::zeile(probe.liste("rolisten_4"), 0), QStringList({"Hof", "70", "0", "70"}));
}

TEST_F(StandortauswertungTest, DasBeispielZeigtLöwenzahnMit140UndEndetMit6935Punkten) {
  const Auswertung::Beschreibung b = Standortauswertung::beschreibung();
  const QStringList text = b.eingabe("Text1")->texte;
  EXPECT_TRUE(text.first().startsWith("Sie haben einen Standort mit folgenden "));
  EXPECT_TRUE(text.last().endsWith("keine Punkte."));
  EXPECT_EQ(text.filter("Löwenzahn: 6 x 5 + 8 x 5 = 70, 70 x (40 x 5 / 100) = 140").size(), 1);
  EXPECT_EQ(text.filter("6935 Punkte").size(), 2);
}

// ---- lists ----

TEST_F(StandortauswertungTest, LeereTabellenErgebenEineMeldung) {
  Probelauf probe(Standortauswertung::beschreibung());
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(probe.liste(QString("rolisten_%1").arg(i)).zeilen(), 0) << i;
  EXPECT_EQ(probe.meldungen, QStringList(6, KeineDaten));
}

TEST_F(StandortauswertungTest, AlleStandorteMitAllenFeldernNachNamen) {
  ort({.name = "Wald", .prämie = 1.5});
  ort({.name = "Ähre"});
  ort({.name = "Hof's"});
  Probelauf probe(Standortauswertung::beschreibung());
  const Ausgabeliste liste = probe.liste("rolisten_0");
  QStringList felder;
  for (const Spalte& s : db().Felder("Standorte")) felder += s.name;
  EXPECT_EQ(liste.überschriften(), felder);
  ASSERT_EQ(liste.zeilen(), 3);
  EXPECT_EQ(Probelauf::zeile(liste, 0)[0], "Ähre");
  EXPECT_EQ(Probelauf::zeile(liste, 1)[0], "Hof`s");
  EXPECT_EQ(Probelauf::zeile(liste, 2)[0], "Wald");
  EXPECT_EQ(Probelauf::zeile(liste, 2)[felder.indexOf("Standortprämie_Volk")], "1,50");
}

TEST_F(StandortauswertungTest, AllePflanzenMitAllenFeldernNachNamen) {
  blume({"Raps", "20.04.2003", "20.05.2003", 7, 8});
  löwenzahn();
  Probelauf probe(Standortauswertung::beschreibung());
  const Ausgabeliste liste = probe.liste("rolisten_1");
  EXPECT_EQ(liste.überschriften(), QStringList({"Pflanze", "Weidezeit_von", "Weidezeit_bis",
                                                "Nektarstufe", "Pollenstufe", "ID"}));
  EXPECT_EQ(Probelauf::zeile(liste, 1).first(5),
            QStringList({"Raps", "20.04.2003", "20.05.2003", "7", "8"}));
  EXPECT_EQ(Probelauf::zeile(liste, 0)[0], "Löwenzahn");
}

TEST_F(StandortauswertungTest, PflanzenJeStandortMitEinerLeerenZeileDazwischen) {
  const qint64 wald = ort({.name = "Wald", .hinweis = "oben"});
  const qint64 hof = ort({.name = "Hof", .hinweis = "hinten"});
  tracht(wald, "Linde", 30, 900);
  tracht(hof, "Raps", 60, 400);
  tracht(hof, "Klee", 40, 100);
  ort({.name = "Ohne Pflanzen"});
  Probelauf probe(Standortauswertung::beschreibung());
  const Ausgabeliste liste = probe.liste("rolisten_2");
  EXPECT_EQ(liste.überschriften(), QStringList({"Standort", "Zusatzortshinweis", "Pflanze",
                                                "Entfernung_m", "Proz_Anteil"}));
  EXPECT_EQ(Probelauf::zeilen(liste), QList<QStringList>({{"Hof", "hinten", "Klee", "100", "40"},
                                                          {"", "", "Raps", "400", "60"},
                                                          {"", "", "", "", ""},
                                                          {"Wald", "oben", "Linde", "900", "30"}}));
}

TEST_F(StandortauswertungTest, DieBelegungZähltAlleVölkerUndKannNegativSein) {
  ort({.name = "Wald", .hinweis = "oben", .höchstens = 1});
  ort({.name = "Wald", .hinweis = "unten", .höchstens = 5});
  ort({.name = "Hof's", .höchstens = 2});
  neuesVolk("1", "X", "Wald");
  neuesVolk("2", "", "WALD");
  neuesVolk("3", "X", "Wald");
  neuesVolk("4", "X", "Hof`s");
  neuesVolk("5", "X", "Hof's");
  neuesVolk("6", "X", "Nirgends");
  Probelauf probe(Standortauswertung::beschreibung());
  const Ausgabeliste liste = probe.liste("rolisten_3");
  EXPECT_EQ(liste.überschriften(),
            QStringList({"Standort", "Max_Völker", "Ist_Völker", "Differenz"}));
  QList<QStringList> zeilen = Probelauf::zeilen(liste);
  EXPECT_EQ(zeilen.takeFirst(), QStringList({"Hof`s", "2", "1", "1"}));
  std::sort(zeilen.begin(), zeilen.end());
  EXPECT_EQ(zeilen, QList<QStringList>({{"Wald", "1", "3", "-2"}, {"Wald", "5", "3", "2"}}));
}

// ---- index ----

TEST_F(StandortauswertungTest, OhneStichtagWirdNurDerIndexAmTagVerweigert) {
  ort({});
  Probelauf probe(Standortauswertung::beschreibung());
  probe.tippe("sevt_7", "31.02.2006");
  EXPECT_EQ(probe.liste("rolisten_4").zeilen(), 0);
  EXPECT_EQ(probe.meldungen,
            QStringList("Bitte legen zuerst das Datum fest, zu welchem Termin der Qualitäts-Index "
                        "berechnet werden soll!"));
  EXPECT_EQ(probe.liste("rolisten_5").zeilen(), 1);
  EXPECT_EQ(probe.liste("rolisten_0").zeilen(), 1);
}

TEST_F(StandortauswertungTest, DerIndexAmTagNachNamenUndHinweis) {
  löwenzahn();
  const qint64 oben = ort({.name = "Wald", .hinweis = "oben"});
  const qint64 hof = ort({.name = "Hof", .pkw = "J"});
  ort({.name = "Wald", .hinweis = "Anfang"});
  tracht(oben, "Löwenzahn", 40, 200);
  tracht(hof, "Löwenzahn", 40, 200);
  Probelauf probe(Standortauswertung::beschreibung());
  probe.tippe("sevt_7", "20.05.2001");
  const Ausgabeliste liste = probe.liste("rolisten_4");
  EXPECT_EQ(liste.überschriften(),
            QStringList({"Standort", "Punkte_Pflanze", "Punkte_Standort", "Punkte_Gesamt"}));
  EXPECT_EQ(Probelauf::zeilen(liste), QList<QStringList>({{"Hof", "2940", "882", "3822"},
                                                          {"Wald", "0", "0", "0"},
                                                          {"Wald", "2940", "0", "2940"}}));
  EXPECT_EQ(probe.fortschritte, 3);
}

TEST_F(StandortauswertungTest, DerIndexJeWocheHat31SpaltenVonMärzBisSeptember) {
  löwenzahn();
  const qint64 hof = ort({.name = "Hof"});
  tracht(hof, "Löwenzahn", 40, 200);
  Probelauf probe(Standortauswertung::beschreibung());
  probe.tippe("sevt_7", "kein Tag");
  const Ausgabeliste liste = probe.liste("rolisten_5");
  const QStringList titel = liste.überschriften();
  ASSERT_EQ(titel.size(), 32);
  EXPECT_EQ(titel.first(4), QStringList({"Standort", "01.03", "08.03", "15.03"}));
  EXPECT_EQ(titel.last(), "27.09");
  EXPECT_EQ(liste.daten()->spalte(0).name, "1");
  EXPECT_EQ(liste.daten()->spalte(31).name, "32");
  // In bloom from the 5th of April to the 17th of May.
  QStringList erwartet{"Hof"};
  for (int woche = 0; woche < 31; ++woche)
    erwartet += woche >= 5 && woche <= 11 ? QString("2940") : QString("0");
  EXPECT_EQ(Probelauf::zeile(liste, 0), erwartet);
  EXPECT_EQ(probe.meldungen, QStringList());
}

TEST_F(StandortauswertungTest, EinÜberlaufBrichtDenLaufAb) {
  blume({"Riese", "01.01.2003", "31.12.2003", 10, 10});
  const qint64 hof = ort({});
  tracht(hof, "Riese", 100, 1);
  Probelauf probe(Standortauswertung::beschreibung());
  for (int i = 0; i < 4; ++i) probe.tippe(QString("sevt_%1").arg(i), "9999");
  EXPECT_THROW(probe.drücke("rolisten_4"), Datenbankfehler);
  EXPECT_THROW(probe.drücke("rolisten_5"), Datenbankfehler);
}

}  // namespace
