#include "sites/Standorte.h"

#include "sites/Ortebetrieb.h"

using namespace Verwaltung;

namespace {

const QString NichtÜber100 =
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
  EXPECT_EQ(feld(felder, "Standort").maxLänge, 100);
  EXPECT_EQ(feld(felder, "Zusatzortshinweis").maxLänge, 50);
  EXPECT_EQ(feld(felder, "Klima").maxLänge, 20);
  EXPECT_EQ(feld(felder, "Flugrichtung").maxLänge, 10);
  EXPECT_EQ(feld(felder, "Entfernung_Wasser_m").bis, 9999);
  EXPECT_EQ(feld(felder, "Max_Völker").bis, 999);
  EXPECT_EQ(feld(felder, "Standortprämie_Volk").maxLänge, 8);
  for (const char* name : {"Wintertauglich", "Pkw_anfahrbar"})
    EXPECT_EQ(feld(felder, name).texte, QStringList({"J", "N"})) << name;
  for (const char* name : {"Trachtzeit_von", "Trachtzeit_bis"})
    EXPECT_TRUE(feld(felder, name).nurAnzeige) << name;
}

TEST(Pflanzenfelder, BeschriftungenGrenzenUndVorgaben) {
  const Felder& felder = Standorte::pflanzenfelder();
  ASSERT_EQ(felder.size(), 5);
  EXPECT_EQ(feld(felder, "Pflanze").maxLänge, 20);
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
  EXPECT_EQ(felder[2].von, 1);
  EXPECT_EQ(felder[1].von, 0);
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

TEST(Standortprüfung, NurDerNameIstPflicht) {
  EXPECT_EQ(Standorte::standortGründe({{"Standort", "  "}}),
            QStringList("...der Standort angegeben werden muß."));
  EXPECT_EQ(Standorte::standortGründe({{"Standort", "Hof"}}), QStringList());
}

TEST(Pflanzenprüfung, NameUndBeideDaten) {
  EXPECT_EQ(Standorte::pflanzenGründe({}),
            QStringList({"...die Pflanze angegeben werden muß.",
                         "...die Weidezeit von...bis korrekt angegeben werden muß."}));
  EXPECT_EQ(
      Standorte::pflanzenGründe(
          {{"Pflanze", "Raps"}, {"Weidezeit_von", "01.05.2003"}, {"Weidezeit_bis", "31.06.2003"}}),
      QStringList("...die Weidezeit von...bis korrekt angegeben werden muß."));
}

TEST(Pflanzenprüfung, JedesDerBeidenDatenMussDaSein) {
  const QStringList grund("...die Weidezeit von...bis korrekt angegeben werden muß.");
  for (const char* kein : {"", "31.04.2003", "Mai"}) {
    EXPECT_EQ(Standorte::pflanzenGründe(
                  {{"Pflanze", "Raps"}, {"Weidezeit_von", kein}, {"Weidezeit_bis", "20.05.2003"}}),
              grund)
        << kein;
    EXPECT_EQ(Standorte::pflanzenGründe(
                  {{"Pflanze", "Raps"}, {"Weidezeit_von", "20.04.2003"}, {"Weidezeit_bis", kein}}),
              grund)
        << kein;
  }
}

TEST(Pflanzenprüfung, DieFolgeDerBeidenDatenZähltNicht) {
  EXPECT_EQ(
      Standorte::pflanzenGründe(
          {{"Pflanze", "Raps"}, {"Weidezeit_von", "01.06.2003"}, {"Weidezeit_bis", "01.05.2003"}}),
      QStringList());
}

TEST(Trachtprüfung, AlleGründeInIhrerFolge) {
  EXPECT_EQ(Standorte::trachtGründe(tie("", "0", "0"), 101),
            QStringList({"...die Pflanze angegeben werden muß.",
                         "...die Entfernung muß größer als 0 Meter sein.",
                         "...der prozentuale Anteil müß größer als 0 % sein.", NichtÜber100}));
}

TEST(Trachtprüfung, SechzigUndVierzigGehenEinProzentMehrNicht) {
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "500", "40"), 60), QStringList());
  EXPECT_EQ(Standorte::trachtGründe(tie("Linde", "500", "1"), 100), QStringList(NichtÜber100));
}

TEST(Trachtprüfung, AusSechzigWirdNeunundfünfzigAberNichtEinundsechzig) {
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "500", "61"), 40), QStringList(NichtÜber100));
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "500", "59"), 40), QStringList());
}

TEST(Trachtprüfung, GenauHundertProzentGehenEinProzentMehrNicht) {
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "1", "100"), 0), QStringList());
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "1", "1"), 99), QStringList());
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "1", "2"), 99), QStringList(NichtÜber100));
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "1", "100"), 1), QStringList(NichtÜber100));
}

TEST(Trachtprüfung, EntfernungUnterNullWirdAbgelehnt) {
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "-5", "10"), 0),
            QStringList("...die Entfernung muß größer als 0 Meter sein."));
}

TEST(Trachtprüfung, AnteilUnterNullWirdAbgelehnt) {
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "5", "-10"), 0),
            QStringList("...der prozentuale Anteil müß größer als 0 % sein."));
}

TEST(Trachtprüfung, LeereZahlenGeltenAlsNull) {
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "", ""), 0),
            QStringList({"...die Entfernung muß größer als 0 Meter sein.",
                         "...der prozentuale Anteil müß größer als 0 % sein."}));
}

TEST(Trachtprüfung, EineSummeUnterNullLässtMehrZu) {
  EXPECT_EQ(Standorte::trachtGründe(tie("Raps", "5", "100"), -10), QStringList());
}

TEST(NeuerStandort, StehtAufDerKarteBei250) {
  EXPECT_EQ(Standorte::neuerPlatz(), QVariantHash({{"PTop", 250}, {"PLeft", 250}}));
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
  const qint64 wald = standort("Wald");
  tracht(wald, "Linde", 40);
  EXPECT_EQ(Standorte::anteilSumme(db(), hof), 85);
  EXPECT_EQ(Standorte::anteilSumme(db(), heide), 0);
  EXPECT_EQ(Standorte::anteilSumme(db(), wald), 40);
}

}  // namespace
