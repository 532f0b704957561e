#include "evaluations/Arbeitsplan.h"

#include "colonies/Testbetrieb.h"
#include "evaluations/Probelauf.h"

// The work plans of three colonies around the turn of a year.

namespace {

using namespace TZ_Variablen;

const QString KeineTermine = "Es wurden lt. den aktuellen Einstellungen keine Termine gefunden!";
const QString Weil = "Die Arbeitspläne können nicht berechnet werden, weil...\r\n\r\n";

class ArbeitsplanTest : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    HeuteText = "28.12.2006";  // a Thursday
    anna = volk("1", "Anna", "Hof");
    berta = volk("2", "Berta", "Wald");
    EinstellungenZahl[Zahlslots.webzeilen] = 0;
  }

  static qint64 volk(const QString& nummer, const QString& name, const QString& standort,
                     const QString& imBestand = "X") {
    const qint64 id = neuesVolk(nummer, imBestand, standort);
    db().Execute("update Bienenvolk set Volkname = ? where ID = ?", {name, id});
    return id;
  }
  static void termin(qint64 volkId, QDate tag, const QString& text, const QString& erledigt = "N") {
    db().Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, ?, ?, ?)",
                 {tag, text, erledigt, volkId});
  }
  void termine() const {
    termin(berta, QDate(2007, 1, 3), "Beutenkontrolle");
    termin(anna, QDate(2006, 12, 31), "Futterkontrolle");
    termin(anna, QDate(2006, 12, 28), "Winterbehandlung");
    termin(anna, QDate(2006, 12, 31), "Flugloch räumen");
  }
  static QByteArray golden(const QString& name) {
    return Probelauf::inhalt(TOVA_TESTDATEN "/" + name);
  }
  static QStringList ersteSpalte(const Ausgabeliste& liste, int spalte = 0) {
    QStringList werte;
    for (const QStringList& zeile : Probelauf::zeilen(liste)) werte += zeile[spalte];
    return werte;
  }

  qint64 anna = 0;
  qint64 berta = 0;
};

// ---- opening ----

TEST_F(ArbeitsplanTest, ÖffnetMitHeuteUndEinerWoche) {
  EinstellungenZahl[Zahlslots.arbeitsplanTage] = 0;
  const Probelauf probe(Arbeitsplan::beschreibung());
  EXPECT_EQ(probe.e.text("tdat"), "28.12.2006");
  EXPECT_EQ(probe.e.text("Bezeichnung1"), "bis 03.01.2007");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.arbeitsplanTage], 6);
}

TEST_F(ArbeitsplanTest, DieGewählteZeitspanneGiltBeimNächstenÖffnen) {
  EinstellungenZahl[Zahlslots.arbeitsplanTage] = 20;
  const Probelauf probe(Arbeitsplan::beschreibung());
  EXPECT_EQ(probe.e.text("Bezeichnung1"), "bis 17.01.2007");
}

TEST_F(ArbeitsplanTest, KästchenSortierungUndZeichenKommenAusDenEinstellungen) {
  EinstellungenZahl[Zahlslots.tastenton] = 1;
  EinstellungenZahl[Zahlslots.arbeitsplanVolkname] = 2;  // no state of a box
  EinstellungenZahl[Zahlslots.webzeilen] = 2;
  EinstellungenText[Textslots.terminZeichen] = "ja";
  const Probelauf probe(Arbeitsplan::beschreibung());
  EXPECT_TRUE(probe.e.an("kon", 0));
  EXPECT_FALSE(probe.e.an("kon", 1));
  EXPECT_FALSE(probe.e.an("kon", 2));
  EXPECT_EQ(probe.e.wahl("optisort"), 2);
  EXPECT_EQ(probe.e.text("t", 0), "ja");
  EXPECT_EQ(probe.e.text("t", 1), "");
}

TEST_F(ArbeitsplanTest, EineSeitenlängeDesWebberichtsIstKeineSortierung) {
  EinstellungenZahl[Zahlslots.webzeilen] = 60;
  Probelauf probe(Arbeitsplan::beschreibung());
  EXPECT_EQ(probe.e.wahl("optisort"), -1);
  probe.schließen();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.webzeilen], 60);
}

TEST_F(ArbeitsplanTest, DasSchließenSchreibtAlleEinstellungen) {
  Probelauf probe(Arbeitsplan::beschreibung());
  for (int i = 0; i < 3; ++i) probe.hake(QString("kon_%1").arg(i));
  probe.wähle("optisort", 1);
  probe.tippe("t_0", "*");
  probe.tippe("t_1", "-");
  probe.schließen();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.tastenton], 1);  // which also turns on the key sound
  EXPECT_EQ(EinstellungenZahl[Zahlslots.arbeitsplanVolkname], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.arbeitsplanStandort], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.webzeilen], 1);
  EXPECT_EQ(EinstellungenText[Textslots.terminZeichen], "*");
  EXPECT_EQ(EinstellungenText[Textslots.freiZeichen], "-");
}

// ---- period ----

TEST_F(ArbeitsplanTest, DieZeitspannenReichenEineBisAchtWochen) {
  Probelauf probe(Arbeitsplan::beschreibung());
  const QList<int> tage{6, 13, 20, 27, 55};
  const QStringList bis{"03.01.2007", "10.01.2007", "17.01.2007", "24.01.2007", "21.02.2007"};
  for (int i = 0; i < 5; ++i) {
    probe.drücke(QString("woche_%1").arg(i));
    EXPECT_EQ(EinstellungenZahl[Zahlslots.arbeitsplanTage], tage[i]);
    EXPECT_EQ(probe.e.text("Bezeichnung1"), "bis " + bis[i]);
  }
}

TEST_F(ArbeitsplanTest, EinAndererErsterTagRechnetDasEndeNeu) {
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.tippe("tdat", "24.02.2008");
  EXPECT_EQ(probe.e.text("Bezeichnung1"), "bis 01.03.2008");
}

TEST_F(ArbeitsplanTest, EinErsterTagDerKeinDatumIstLässtDasEndeStehen) {
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.tippe("tdat", "30.02.2007");
  probe.drücke("woche_1");
  EXPECT_EQ(probe.e.text("Bezeichnung1"), "bis 03.01.2007");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.arbeitsplanTage], 13);
}

// ---- refusals ----

TEST_F(ArbeitsplanTest, AchtWochenGehenNurAlsListe) {
  termine();
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.drücke("woche_4");
  EXPECT_EQ(probe.liste("ok_0").zeilen(), 4);
  EXPECT_EQ(probe.meldungen, QStringList());
  EXPECT_EQ(probe.liste("ok_1").zeilen(), 0);
  EXPECT_EQ(probe.meldungen,
            QStringList(Weil + "...der tabellarische Arbeitsplan kann nur für 1 bis 4 Wochen "
                               "(nicht für 8 Wochen) erstellt werden."));
}

TEST_F(ArbeitsplanTest, BeideGründeStehenUntereinander) {
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.drücke("woche_4");
  probe.tippe("tdat", "");
  probe.drücke("ok_1");
  EXPECT_EQ(
      probe.meldungen,
      QStringList(Weil + "...die Berechnungszeiträume falsche Datumangaben enthalten.\r\n...der "
                         "tabellarische Arbeitsplan kann nur für 1 bis 4 Wochen (nicht für 8 "
                         "Wochen) erstellt werden."));
}

TEST_F(ArbeitsplanTest, OhneTermineWirdEsGesagt) {
  Probelauf probe(Arbeitsplan::beschreibung());
  EXPECT_EQ(probe.liste("ok_0").zeilen(), 0);
  EXPECT_EQ(probe.liste("ok_1").zeilen(), 0);
  EXPECT_EQ(probe.meldungen, QStringList({KeineTermine, KeineTermine}));
}

// ---- the marks ----

TEST_F(ArbeitsplanTest, LeereZeichenBekommenIhreVorgaben) {
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.drücke("ok_1");
  EXPECT_EQ(probe.e.text("t", 0), "X");
  EXPECT_EQ(probe.e.text("t", 1), " ");
}

TEST_F(ArbeitsplanTest, DieListeLässtDieZeichenWieSieSind) {
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.tippe("t_0", "=");
  probe.tippe("t_1", "=");
  probe.drücke("ok_0");
  EXPECT_EQ(probe.e.text("t", 0), "=");
  EXPECT_EQ(probe.meldungen, QStringList(KeineTermine));
}

TEST_F(ArbeitsplanTest, GleicheZeichenWerdenErsetztUndDerLaufGehtWeiter) {
  termine();
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.tippe("t_0", "=");
  probe.tippe("t_1", "=");
  const Ausgabeliste liste = probe.liste("ok_1");
  EXPECT_EQ(liste.zeilen(), 8);
  EXPECT_EQ(probe.e.text("t", 0), "X");
  EXPECT_EQ(probe.e.text("t", 1), " ");
  EXPECT_EQ(probe.meldungen,
            QStringList("Sie dürfen keinesfalls für die vorhandenen und freien Termine das gleiche "
                        "Zeichen verwenden. Tova ersetzt deshalb Ihre Angaben durch "
                        "Standard-Werte."));
}

TEST_F(ArbeitsplanTest, EinLeeresErstesUndEinXAlsZweitesSindGleich) {
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.tippe("t_1", "X");
  probe.drücke("ok_1");
  EXPECT_EQ(probe.e.text("t", 1), " ");
}

// ---- the plain list ----

TEST_F(ArbeitsplanTest, DieListeHatDieGewähltenFelderUnterIhrenNamen) {
  termine();
  Probelauf probe(Arbeitsplan::beschreibung());
  for (int i = 0; i < 3; ++i) probe.hake(QString("kon_%1").arg(i));
  const Ausgabeliste liste = probe.liste("ok_0");
  EXPECT_EQ(liste.überschriften(),
            QStringList({"Datum", "Volknummer", "Volkname", "Standort", "Termin"}));
  EXPECT_EQ(Probelauf::zeilen(liste),
            QList<QStringList>({{"28.12.2006", "1", "Anna", "Hof", "Winterbehandlung"},
                                {"31.12.2006", "1", "Anna", "Hof", "Futterkontrolle"},
                                {"31.12.2006", "1", "Anna", "Hof", "Flugloch räumen"},
                                {"03.01.2007", "2", "Berta", "Wald", "Beutenkontrolle"}}));
  EXPECT_EQ(probe.fortschritte, 4);
}

TEST_F(ArbeitsplanTest, OhneKästchenHatDieListeDatumUndTermin) {
  termine();
  Probelauf probe(Arbeitsplan::beschreibung());
  EXPECT_EQ(probe.liste("ok_0").überschriften(), QStringList({"Datum", "Termin"}));
}

TEST_F(ArbeitsplanTest, NurOffeneTermineVonVölkernImBestandInDerZeit) {
  const qint64 weg = volk("3", "Carla", "Hof", "");
  termin(anna, QDate(2006, 12, 27), "davor");
  termin(anna, QDate(2006, 12, 28), "erster Tag");
  termin(anna, QDate(2007, 1, 3), "letzter Tag");
  termin(anna, QDate(2007, 1, 4), "danach");
  termin(anna, QDate(2006, 12, 30), "erledigt", "J");
  termin(weg, QDate(2006, 12, 30), "nicht im Bestand");
  termin(0, QDate(2006, 12, 30), "ohne Volk");
  Probelauf probe(Arbeitsplan::beschreibung());
  EXPECT_EQ(ersteSpalte(probe.liste("ok_0"), 1), QStringList({"erster Tag", "letzter Tag"}));
}

TEST_F(ArbeitsplanTest, SortiertNachNummerNamenStandortOderDatum) {
  const qint64 cora = volk("3", "Anna", "Alm");
  termin(anna, QDate(2006, 12, 31), "anna");
  termin(berta, QDate(2006, 12, 29), "berta");
  termin(cora, QDate(2006, 12, 30), "cora");
  Probelauf probe(Arbeitsplan::beschreibung());
  const QList<QStringList> folgen{
      {"anna", "berta", "cora"}, {"anna", "cora", "berta"}, {"cora", "anna", "berta"}};
  for (int wahl = 0; wahl < 3; ++wahl) {
    probe.wähle("optisort", wahl);
    EXPECT_EQ(ersteSpalte(probe.liste("ok_0"), 1), folgen[wahl]);
  }
  probe.wähle("optisort", -1);
  EXPECT_EQ(ersteSpalte(probe.liste("ok_0"), 1), QStringList({"berta", "cora", "anna"}));
}

// ---- the table of days ----

TEST_F(ArbeitsplanTest, DieTabelleEinerWocheÜberDenJahreswechsel) {
  termine();
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.hake("kon_0");
  probe.hake("kon_2");
  probe.tippe("t_0", "X");
  probe.tippe("t_1", ".");
  EXPECT_EQ(Probelauf::alsText(probe.liste("ok_1")).toStdString(),
            golden("Arbeitsplan_Woche.golden.txt").toStdString());
}

TEST_F(ArbeitsplanTest, OhneKästchenHatDieTabelleNurTageUndTermin) {
  termin(anna, QDate(2006, 12, 29), "Kontrolle");
  Probelauf probe(Arbeitsplan::beschreibung());
  const Ausgabeliste liste = probe.liste("ok_1");
  EXPECT_EQ(liste.überschriften(), QStringList({"1", "2", "3", "4", "5", "6", "7", "Termin"}));
  EXPECT_EQ(Probelauf::zeile(liste, 0),
            QStringList({"Do", "Fr", "Sa", "So", "Mo", "Di", "Mi", ""}));
  EXPECT_EQ(Probelauf::zeile(liste, 4),
            QStringList({" ", "X", " ", " ", " ", " ", " ", "Kontrolle"}));
}

TEST_F(ArbeitsplanTest, DieTabelleReichtVierWochen) {
  termin(anna, QDate(2007, 1, 24), "letzter Tag");
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.drücke("woche_3");
  const Ausgabeliste liste = probe.liste("ok_1");
  EXPECT_EQ(liste.spalten(), 29);
  const QStringList zeile = Probelauf::zeile(liste, 4);
  EXPECT_EQ(zeile.count("X"), 1);
  EXPECT_EQ(zeile[27], "X");
}

TEST_F(ArbeitsplanTest, EinZeichenAusMehrerenBuchstabenStehtWieEsIst) {
  termin(anna, QDate(2006, 12, 28), "Kontrolle");
  Probelauf probe(Arbeitsplan::beschreibung());
  probe.tippe("t_0", "hier!");
  probe.tippe("t_1", "--");
  EXPECT_EQ(Probelauf::zeile(probe.liste("ok_1"), 4),
            QStringList({"hier!", "--", "--", "--", "--", "--", "--", "Kontrolle"}));
}

TEST_F(ArbeitsplanTest, DieArbeitsplanoptionenWerdenGeöffnetUndDanachErklärt) {
  const Auswertung::Beschreibung b = Arbeitsplan::beschreibung();
  const Auswertung::Befehl* befehl = b.befehl("comarbplanoptionen");
  ASSERT_NE(befehl, nullptr);
  EXPECT_EQ(befehl->öffnet, "XV_Arbeitsplanoptionen");
  EXPECT_EQ(befehl->danach,
            "Falls Sie Änderungen in den Arbeitsplanoptionen vorgenommen haben, dann schließen Sie "
            "bitte dieses Modul und öffnen Sie es wieder, damit der Datenbestand wieder geladen "
            "wird!");
}

}  // namespace
