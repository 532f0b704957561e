#include "sites/Standorte.h"

#include "sites/Ortebetrieb.h"

using namespace Verwaltung;

namespace {

const QString NichtUeber100 =
    "...der prozentuale Anteil bei den Pflanzen am Standort nicht über 100 sein darf.";

Texte tie(const QString& pflanze, const QString& entfernung, const QString& anteil) {
  return {{"Pflanze", pflanze}, {"Entfernung_m", entfernung}, {"Proz_Anteil", anteil}};
}

const Feld& feld(const Felder& felder, const QString& name) {
  for (const Feld& f : felder)
    if (f.feld == name) return f;
  static const Feld keines;
  return keines;
}

class Trachtzeit : public Ortebetrieb {};
class Jahreswechsel : public Ortebetrieb {
 protected:
  static QDate weide(const QString& name, const QString& spalte = "Weidezeit_von") {
    return wert("select " + spalte + " from Pflanzen where Pflanze = ?", {name}).toDate();
  }
};
class Anteile : public Ortebetrieb {};

TEST(Standortfelder, BeschriftungenUndVorgabenInDerFolgeDesFormulars) {
  QStringList namen;
  QStringList vorgaben;
  for (const Feld& f : Standorte::standortfelder()) {
    namen << f.beschriftung;
    vorgaben << f.ersterText;
  }
  EXPECT_EQ(namen, QStringList({"Standort", "Zusatz-Orthinweis", "Wintertauglich", "Klima",
                                "PKW anfahrbar", "Wasserentfernung m", "Flugrichtung",
                                "Max. Anzahl Völker", "Standortprämie je Volk", "Trachtzeit von",
                                "Trachtzeit bis"}));
  EXPECT_EQ(vorgaben, QStringList({"", "", "J", "", "J", "0", "", "10", "0,00", "", ""}));
}

TEST(Standortfelder, Grenzen) {
  const Felder& felder = Standorte::standortfelder();
  EXPECT_EQ(feld(felder, "Standort").maxLaenge, 100);
  EXPECT_EQ(feld(felder, "Zusatzortshinweis").maxLaenge, 50);
  EXPECT_EQ(feld(felder, "Klima").maxLaenge, 20);
  EXPECT_EQ(feld(felder, "Flugrichtung").maxLaenge, 10);
  EXPECT_EQ(feld(felder, "Entfernung_Wasser_m").bis, 9999);
  EXPECT_EQ(feld(felder, "Max_Völker").bis, 999);
  EXPECT_EQ(feld(felder, "Standortprämie_Volk").maxLaenge, 8);
  for (const char* name : {"Wintertauglich", "Pkw_anfahrbar"})
    EXPECT_EQ(feld(felder, name).texte, QStringList({"J", "N"})) << name;
  for (const char* name : {"Trachtzeit_von", "Trachtzeit_bis"})
    EXPECT_TRUE(feld(felder, name).nurAnzeige) << name;
}

TEST(Pflanzenfelder, BeschriftungenGrenzenUndVorgaben) {
  const Felder& felder = Standorte::pflanzenfelder();
  ASSERT_EQ(felder.size(), 5);
  EXPECT_EQ(feld(felder, "Pflanze").maxLaenge, 20);
  EXPECT_EQ(feld(felder, "Weidezeit_von").beschriftung, "Weidezeit von");
  EXPECT_EQ(feld(felder, "Weidezeit_bis").beschriftung, "Weidezeit bis");
  EXPECT_EQ(feld(felder, "Nektarstufe").beschriftung, "Nektarstufe (0..10)");
  EXPECT_EQ(feld(felder, "Pollenstufe").beschriftung, "Pollenstufe (0..10)");
  for (const char* name : {"Nektarstufe", "Pollenstufe"}) {
    EXPECT_EQ(feld(felder, name).bis, 10);
    EXPECT_EQ(feld(felder, name).ersterText, "5");
  }
}

TEST(Trachtfelder, BeschriftungenUndGrenzen) {
  const Felder& felder = Standorte::trachtfelder();
  ASSERT_EQ(felder.size(), 3);
  EXPECT_EQ(felder[0].beschriftung, "Pflanze");
  EXPECT_EQ(felder[0].listenAnweisung, "select distinct Pflanze from Pflanzen order by Pflanze");
  EXPECT_EQ(felder[1].beschriftung, "Entfernung m");
  EXPECT_EQ(felder[1].bis, 9999);
  EXPECT_EQ(felder[2].beschriftung, "Anteil in %");
  EXPECT_EQ(felder[2].bis, 100);
  EXPECT_TRUE(felder[2].nullVerboten);
  EXPECT_FALSE(felder[1].nullVerboten);
}

TEST(Picklisten, IhreAnweisungen) {
  const auto anweisung = [](const Felder& felder, const char* name) {
    return feld(felder, name).listenAnweisung.toStdString();
  };
  const Felder& orte = Standorte::standortfelder();
  EXPECT_EQ(anweisung(orte, "Zusatzortshinweis"),
            "select distinct Zusatzortshinweis from Standorte order by Zusatzortshinweis");
  EXPECT_EQ(anweisung(orte, "Klima"), "select distinct Klima from Standorte order by Klima");
  EXPECT_EQ(anweisung(orte, "Flugrichtung"),
            "select distinct Flugrichtung from Standorte order by Flugrichtung");
  EXPECT_EQ(anweisung(orte, "Standort"), "");
  EXPECT_EQ(anweisung(Standorte::pflanzenfelder(), "Pflanze"),
            "select distinct Pflanze from Pflanzen order by Pflanze");
}

TEST(Standortpruefung, NurDerNameIstPflicht) {
  EXPECT_EQ(Standorte::standortGruende({{"Standort", "  "}}),
            QStringList("...der Standort angegeben werden muß."));
  EXPECT_EQ(Standorte::standortGruende({{"Standort", "Hof"}}), QStringList());
}

TEST(Pflanzenpruefung, NameUndBeideDaten) {
  EXPECT_EQ(Standorte::pflanzenGruende({}),
            QStringList({"...die Pflanze angegeben werden muß.",
                         "...die Weidezeit von...bis korrekt angegeben werden muß."}));
  EXPECT_EQ(
      Standorte::pflanzenGruende(
          {{"Pflanze", "Raps"}, {"Weidezeit_von", "01.05.2003"}, {"Weidezeit_bis", "31.06.2003"}}),
      QStringList("...die Weidezeit von...bis korrekt angegeben werden muß."));
}

TEST(Pflanzenpruefung, DieFolgeDerBeidenDatenZaehltNicht) {
  EXPECT_EQ(
      Standorte::pflanzenGruende(
          {{"Pflanze", "Raps"}, {"Weidezeit_von", "01.06.2003"}, {"Weidezeit_bis", "01.05.2003"}}),
      QStringList());
}

TEST(Trachtpruefung, AlleGruendeInIhrerFolge) {
  EXPECT_EQ(Standorte::trachtGruende(tie("", "0", "0"), 101),
            QStringList({"...die Pflanze angegeben werden muß.",
                         "...die Entfernung muß größer als 0 Meter sein.",
                         "...der prozentuale Anteil müß größer als 0 % sein.", NichtUeber100}));
}

TEST(Trachtpruefung, SechzigUndVierzigGehenEinProzentMehrNicht) {
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "500", "40"), 60), QStringList());
  EXPECT_EQ(Standorte::trachtGruende(tie("Linde", "500", "1"), 100), QStringList(NichtUeber100));
}

TEST(Trachtpruefung, AusSechzigWirdNeunundfuenfzigAberNichtEinundsechzig) {
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "500", "61"), 40), QStringList(NichtUeber100));
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "500", "59"), 40), QStringList());
}

TEST(Trachtpruefung, GenauHundertProzentGehenEinProzentMehrNicht) {
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "1", "100"), 0), QStringList());
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "1", "1"), 99), QStringList());
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "1", "2"), 99), QStringList(NichtUeber100));
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "1", "100"), 1), QStringList(NichtUeber100));
}

TEST(Trachtpruefung, EntfernungUnterNullWirdAbgelehnt) {
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "-5", "10"), 0),
            QStringList("...die Entfernung muß größer als 0 Meter sein."));
}

TEST(Trachtpruefung, AnteilUnterNullWirdAbgelehnt) {
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "5", "-10"), 0),
            QStringList("...der prozentuale Anteil müß größer als 0 % sein."));
}

TEST(Trachtpruefung, LeereZahlenGeltenAlsNull) {
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "", ""), 0),
            QStringList({"...die Entfernung muß größer als 0 Meter sein.",
                         "...der prozentuale Anteil müß größer als 0 % sein."}));
}

TEST(Trachtpruefung, EineSummeUnterNullLaesstMehrZu) {
  EXPECT_EQ(Standorte::trachtGruende(tie("Raps", "5", "100"), -10), QStringList());
}

TEST_F(Anteile, SummeMitLeerenUndNegativenAnteilen) {
  const qint64 hof = standort("Hof");
  tracht(hof, "Raps", 60);
  tracht(hof, "Linde", -10);
  const qint64 leer = tracht(hof, "Klee", 5);
  db().Execute("update Standorte_Pflanzen set Proz_Anteil = ? where ID = ?", {QVariant(), leer});
  EXPECT_EQ(Standorte::anteilSumme(db(), hof), 50);
  db().Execute("update Standorte_Pflanzen set Proz_Anteil = ?", {QVariant()});
  EXPECT_EQ(Standorte::anteilSumme(db(), hof), 0);
}

TEST_F(Anteile, SummeJeStandortOhnePflanzenNull) {
  const qint64 hof = standort("Hof");
  const qint64 heide = standort("Heide");
  tracht(hof, "Raps", 60);
  tracht(hof, "Linde", 25);
  EXPECT_EQ(Standorte::anteilSumme(db(), hof), 85);
  EXPECT_EQ(Standorte::anteilSumme(db(), heide), 0);
}

TEST_F(Trachtzeit, FruehesterBeginnUndSpaetestesEnde) {
  const qint64 hof = standort("Hof");
  pflanze("Krokus", QDate(2003, 3, 1), QDate(2003, 4, 15));
  pflanze("Robinie", QDate(2003, 5, 10), QDate(2003, 6, 30));
  tracht(hof, "Robinie", 50);
  tracht(hof, "Krokus", 50);
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_EQ(von("Hof").toDate(), QDate(2003, 3, 1));
  EXPECT_EQ(bis("Hof").toDate(), QDate(2003, 6, 30));
}

TEST_F(Trachtzeit, OhnePflanzenLeerAuchWennVorherEtwasStand) {
  standort("Hof");
  db().Execute("update Standorte set Trachtzeit_von = ?, Trachtzeit_bis = ?",
               {QDate(2003, 1, 1), QDate(2003, 2, 2)});
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_TRUE(von("Hof").isNull());
  EXPECT_TRUE(bis("Hof").isNull());
}

TEST_F(Trachtzeit, UnbekanntePflanzeTraegtNichtsBei) {
  const qint64 hof = standort("Hof");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  tracht(hof, "Raps", 50);
  tracht(hof, "Wunderkraut", 10);
  const qint64 heide = standort("Heide");
  tracht(heide, "Wunderkraut", 10);
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_EQ(von("Hof").toDate(), QDate(2003, 4, 20));
  EXPECT_EQ(bis("Hof").toDate(), QDate(2003, 5, 20));
  EXPECT_TRUE(von("Heide").isNull());
}

TEST_F(Trachtzeit, DasJahrZaehltMit) {
  const qint64 hof = standort("Hof");
  pflanze("Raps", QDate(2005, 4, 20), QDate(2005, 5, 20));
  pflanze("Heide", QDate(2001, 8, 1), QDate(2001, 9, 15));
  tracht(hof, "Raps", 50);
  tracht(hof, "Heide", 50);
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_EQ(von("Hof").toDate(), QDate(2001, 8, 1));
  EXPECT_EQ(bis("Hof").toDate(), QDate(2005, 5, 20));
}

TEST_F(Trachtzeit, JederStandortBekommtSeineEigene) {
  const qint64 hof = standort("Hof");
  const qint64 heide = standort("Heide");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  pflanze("Besenheide", QDate(2003, 8, 1), QDate(2003, 9, 15));
  tracht(hof, "Raps", 100);
  tracht(heide, "Besenheide", 100);
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_EQ(bis("Hof").toDate(), QDate(2003, 5, 20));
  EXPECT_EQ(von("Heide").toDate(), QDate(2003, 8, 1));
}

TEST_F(Trachtzeit, LeererBeginnStehtVornUndMachtDenBeginnLeer) {
  const qint64 hof = standort("Hof");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  pflanze("Klee", QVariant(), QDate(2003, 7, 1));
  tracht(hof, "Raps", 50);
  tracht(hof, "Klee", 50);
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_TRUE(von("Hof").isNull());
  EXPECT_EQ(bis("Hof").toDate(), QDate(2003, 7, 1));
}

TEST_F(Trachtzeit, LeeresEndeStehtHintenUndZaehltNurAllein) {
  const qint64 hof = standort("Hof");
  const qint64 heide = standort("Heide");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  pflanze("Klee", QDate(2003, 6, 1), QVariant());
  tracht(hof, "Raps", 50);
  tracht(hof, "Klee", 50);
  tracht(heide, "Klee", 50);
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_EQ(von("Hof").toDate(), QDate(2003, 4, 20));
  EXPECT_EQ(bis("Hof").toDate(), QDate(2003, 5, 20));
  EXPECT_EQ(von("Heide").toDate(), QDate(2003, 6, 1));
  EXPECT_TRUE(bis("Heide").isNull());
}

TEST_F(Trachtzeit, PflanzenNamenGeltenOhneGrossUndKlein) {
  const qint64 hof = standort("Hof");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  tracht(hof, "RAPS", 50);
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_EQ(von("Hof").toDate(), QDate(2003, 4, 20));
}

TEST_F(Trachtzeit, EinStandortOhneNamenWirdUebergangen) {
  const qint64 hof = standort("Hof");
  db().Execute("insert into Standorte(Klima, Trachtzeit_von) values (?, ?)",
               {QString("rau"), QDate(2003, 1, 1)});
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  tracht(hof, "Raps", 50);
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_EQ(von("Hof").toDate(), QDate(2003, 4, 20));
  EXPECT_EQ(wert("select Trachtzeit_von from Standorte where Klima = 'rau'").toDate(),
            QDate(2003, 1, 1));
}

TEST_F(Trachtzeit, NachDemLoeschenDerPflanzeIstDieZeitLeer) {
  const qint64 hof = standort("Hof");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  tracht(hof, "Raps", 50);
  Standorte::trachtzeitenErmitteln(db());
  ASSERT_FALSE(von("Hof").isNull());
  db().Execute("delete from Pflanzen");
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_TRUE(von("Hof").isNull());
  EXPECT_TRUE(bis("Hof").isNull());
}

TEST_F(Jahreswechsel, AllePflanzenUmEinJahrVorUndZurueck) {
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  pflanze("Efeu", QDate(2003, 12, 31), QDate(2004, 1, 1));
  Standorte::weidezeitenVerschieben(db(), 1);
  EXPECT_EQ(weide("Raps"), QDate(2004, 4, 20));
  EXPECT_EQ(weide("Raps", "Weidezeit_bis"), QDate(2004, 5, 20));
  EXPECT_EQ(weide("Efeu", "Weidezeit_bis"), QDate(2005, 1, 1));
  Standorte::weidezeitenVerschieben(db(), -1);
  EXPECT_EQ(weide("Raps"), QDate(2003, 4, 20));
  EXPECT_EQ(weide("Efeu"), QDate(2003, 12, 31));
}

TEST_F(Jahreswechsel, BleibtZwischen1901Und2099) {
  pflanze("Spät", QDate(2099, 12, 31), QDate(2098, 12, 31));
  Standorte::weidezeitenVerschieben(db(), 1);
  EXPECT_EQ(weide(QString("Spät")), QDate(2099, 12, 31));
  EXPECT_EQ(weide(QString("Spät"), "Weidezeit_bis"), QDate(2099, 12, 31));
  db().Execute("delete from Pflanzen");
  pflanze("Früh", QDate(1901, 1, 1), QDate(1902, 1, 1));
  Standorte::weidezeitenVerschieben(db(), -1);
  EXPECT_EQ(weide(QString("Früh")), QDate(1901, 1, 1));
  EXPECT_EQ(weide(QString("Früh"), "Weidezeit_bis"), QDate(1901, 1, 1));
}

TEST_F(Jahreswechsel, JahreAusserhalbVon1901Bis2099KommenAnDieGrenze) {
  pflanze("Alt", QDate(1850, 3, 1), QDate(1899, 12, 31));
  pflanze("Fern", QDate(2150, 3, 1), QDate(2101, 1, 1));
  Standorte::weidezeitenVerschieben(db(), 1);
  EXPECT_EQ(weide("Alt"), QDate(1901, 3, 1));
  EXPECT_EQ(weide("Alt", "Weidezeit_bis"), QDate(1901, 12, 31));
  EXPECT_EQ(weide("Fern"), QDate(2099, 3, 1));
  db().Execute("delete from Pflanzen");
  pflanze("Alt", QDate(1850, 3, 1), QDate(1901, 12, 31));
  pflanze("Fern", QDate(2150, 3, 1), QDate(2100, 1, 1));
  Standorte::weidezeitenVerschieben(db(), -1);
  EXPECT_EQ(weide("Alt"), QDate(1901, 3, 1));
  EXPECT_EQ(weide("Alt", "Weidezeit_bis"), QDate(1901, 12, 31));
  EXPECT_EQ(weide("Fern"), QDate(2099, 3, 1));
  EXPECT_EQ(weide("Fern", "Weidezeit_bis"), QDate(2099, 1, 1));
}

TEST_F(Jahreswechsel, OhnePflanzenGeschiehtNichts) {
  Standorte::weidezeitenVerschieben(db(), 1);
  EXPECT_EQ(anzahl("Pflanzen"), 0);
}

TEST_F(Jahreswechsel, NeunundzwanzigsterFebruarAlsBeginnWirdGesagtUndDasEndeBleibtAuch) {
  pflanze("Krokus", QDate(2004, 3, 1), QDate(2004, 4, 1));
  pflanze("Hasel", QDate(2004, 2, 29), QDate(2004, 3, 20));
  pflanze("Raps", QDate(2004, 4, 20), QDate(2004, 5, 20));
  for (const int jahre : {-1, 1}) try {
      Standorte::weidezeitenVerschieben(db(), jahre);
      FAIL() << "kein Fehler";
    } catch (const Datenbankfehler& fehler) {
      const QString text = QString::fromUtf8(fehler.what());
      EXPECT_TRUE(text.contains(jahre < 0 ? "29.02.2003" : "29.02.2005")) << fehler.what();
      EXPECT_TRUE(text.contains("Hasel")) << fehler.what();
    }
  // Back and forth again: the plant before came back, the others never moved.
  EXPECT_EQ(weide("Krokus"), QDate(2004, 3, 1));
  EXPECT_EQ(weide("Hasel"), QDate(2004, 2, 29));
  EXPECT_EQ(weide("Hasel", "Weidezeit_bis"), QDate(2004, 3, 20));
  EXPECT_EQ(weide("Raps"), QDate(2004, 4, 20));
}

TEST_F(Jahreswechsel, NeunundzwanzigsterFebruarJenseitsDerGrenzeSchlaegtAuchFehl) {
  pflanze("Hasel", QDate(2104, 2, 29), QDate(2104, 3, 20));
  EXPECT_THROW(Standorte::weidezeitenVerschieben(db(), -1), Datenbankfehler);
  EXPECT_EQ(weide("Hasel"), QDate(2104, 2, 29));
}

TEST_F(Jahreswechsel, LeereWeidezeitBleibtLeer) {
  pflanze("Raps", QVariant(), QDate(2003, 5, 20));
  Standorte::weidezeitenVerschieben(db(), 1);
  EXPECT_TRUE(wert("select Weidezeit_von from Pflanzen").isNull());
  EXPECT_EQ(weide("Raps", "Weidezeit_bis"), QDate(2004, 5, 20));
}

TEST_F(Jahreswechsel, NeunundzwanzigsterFebruarWirdGesagtUndWasGetanIstBleibt) {
  pflanze("Krokus", QDate(2004, 3, 1), QDate(2004, 4, 1));
  pflanze("Hasel", QDate(2004, 2, 10), QDate(2004, 2, 29));
  pflanze("Raps", QDate(2004, 4, 20), QDate(2004, 5, 20));
  try {
    Standorte::weidezeitenVerschieben(db(), 1);
    FAIL() << "kein Fehler";
  } catch (const Datenbankfehler& fehler) {
    EXPECT_TRUE(QString::fromUtf8(fehler.what()).contains("29.02.2005")) << fehler.what();
    EXPECT_FALSE(fehler.allesVerworfen());
  }
  EXPECT_EQ(weide("Krokus"), QDate(2005, 3, 1));
  EXPECT_EQ(weide("Hasel"), QDate(2004, 2, 10));
  EXPECT_EQ(weide("Raps"), QDate(2004, 4, 20));
}

TEST_F(Jahreswechsel, NeunundzwanzigsterFebruarInEinSchaltjahrGeht) {
  pflanze("Hasel", QDate(2099, 2, 1), QDate(2004, 2, 29));
  EXPECT_THROW(Standorte::weidezeitenVerschieben(db(), -1), Datenbankfehler);
  Standorte::weidezeitenVerschieben(db(), 4);
  EXPECT_EQ(weide("Hasel", "Weidezeit_bis"), QDate(2008, 2, 29));
}

}  // namespace
