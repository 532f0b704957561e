#include "data/helpers.h"
#include "sites/Ortebetrieb.h"
#include "sites/Standorte.h"

// The forage periods of the sites, and the plants' bloom moved by a year.

namespace {

constexpr const char* leer = "";

// Of "dd.mm.yyyy"; an empty text is no date.
QDate tag(const char* text) { return DatumLesen(QString(text)); }
QVariant zelle(const char* text) { return *text == 0 ? QVariant() : QVariant(tag(text)); }

class Trachtzeit : public Ortebetrieb {};
class Jahreswechsel : public Ortebetrieb {
 protected:
  static QDate weide(const QString& name, const QString& spalte = "Weidezeit_von") {
    return wert("select " + spalte + " from Pflanzen where Pflanze = ?", {name}).toDate();
  }
};

struct Weide {
  const char* pflanze;
  const char* von;
  const char* bis;
};

// The plants that are known, those at the site, and its forage period.
struct Trachtfall {
  const char* name;
  QList<Weide> bekannt;
  QStringList amStandort;
  const char* von;
  const char* bis;
};

void PrintTo(const Trachtfall& fall, std::ostream* aus) { *aus << fall.name; }

class TrachtzeitEinesStandorts : public Trachtzeit,
                                 public testing::WithParamInterface<Trachtfall> {};

TEST_P(TrachtzeitEinesStandorts, IstErmittelt) {
  const Trachtfall& fall = GetParam();
  const qint64 hof = standort("Hof");
  db().Execute("update Standorte set Trachtzeit_von = ?, Trachtzeit_bis = ?",
               {QDate(1999, 1, 1), QDate(1999, 2, 2)});  // which never stays
  for (const Weide& w : fall.bekannt) pflanze(w.pflanze, zelle(w.von), zelle(w.bis));
  for (const QString& name : fall.amStandort) tracht(hof, name, 50);
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_EQ(von("Hof").toDate(), tag(fall.von));
  EXPECT_EQ(bis("Hof").toDate(), tag(fall.bis));
}

const Weide raps{"Raps", "20.04.2003", "20.05.2003"};

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Fälle, TrachtzeitEinesStandorts,
    testing::Values(
        Trachtfall{"FruehesterBeginnUndSpaetestesEnde",
                   {{"Krokus", "01.03.2003", "15.04.2003"},
                    {"Robinie", "10.05.2003", "30.06.2003"}},
                   {"Robinie", "Krokus"}, "01.03.2003", "30.06.2003"},
        Trachtfall{"BeginnUndEndeVonDerselbenPflanze",
                   {raps, {"Klee", "01.03.2003", "30.09.2003"},
                    {"Linde", "10.06.2003", "10.07.2003"}},
                   {"Raps", "Klee", "Linde"}, "01.03.2003", "30.09.2003"},
        Trachtfall{"WasNichtAmStandortStehtZaehltNicht",
                   {raps, {"Krokus", "01.03.2003", "15.04.2003"},
                    {"Efeu", "01.09.2003", "30.10.2003"}},
                   {"Raps"}, "20.04.2003", "20.05.2003"},
        Trachtfall{"OhnePflanzenLeerAuchWennVorherEtwasStand", {raps}, {}, leer, leer},
        Trachtfall{"UnbekanntePflanzeTraegtNichtsBei",
                   {raps}, {"Raps", "Wunderkraut"}, "20.04.2003", "20.05.2003"},
        Trachtfall{"NurUnbekanntePflanzenLeer", {raps}, {"Wunderkraut"}, leer, leer},
        Trachtfall{"DasJahrZaehltMit",
                   {{"Raps", "20.04.2005", "20.05.2005"}, {"Heide", "01.08.2001", "15.09.2001"}},
                   {"Raps", "Heide"}, "01.08.2001", "20.05.2005"},
        Trachtfall{"LeererBeginnStehtVornUndMachtDenBeginnLeer",
                   {raps, {"Klee", leer, "01.07.2003"}}, {"Raps", "Klee"}, leer, "01.07.2003"},
        Trachtfall{"LeeresEndeStehtHintenUndZaehltNicht",
                   {raps, {"Klee", "01.06.2003", leer}},
                    {"Raps", "Klee"}, "20.04.2003", "20.05.2003"},
        Trachtfall{"LeeresEndeZaehltAllein",
                   {{"Klee", "01.06.2003", leer}}, {"Klee"}, "01.06.2003", leer},
        Trachtfall{"PflanzenNamenGeltenOhneGrossUndKlein",
                   {raps}, {"RAPS"}, "20.04.2003", "20.05.2003"}),
    [](const auto& fall) { return std::string(fall.param.name); });
// clang-format on

// Whether the others were entered before or after it, bloom earlier or later.
TEST_F(Trachtzeit, JederStandortBekommtSeineEigene) {
  const qint64 hof = standort("Hof");
  const qint64 heide = standort("Heide");
  const qint64 wald = standort("Wald");
  pflanze("Raps", tag("20.04.2003"), tag("20.05.2003"));
  pflanze("Besenheide", tag("01.08.2003"), tag("15.09.2003"));
  pflanze("Hasel", tag("10.02.2003"), tag("20.03.2003"));
  tracht(hof, "Raps", 100);
  tracht(heide, "Besenheide", 100);
  tracht(wald, "Hasel", 100);
  Standorte::trachtzeitenErmitteln(db());
  EXPECT_EQ(von("Hof").toDate(), tag("20.04.2003"));
  EXPECT_EQ(bis("Hof").toDate(), tag("20.05.2003"));
  EXPECT_EQ(von("Heide").toDate(), tag("01.08.2003"));
  EXPECT_EQ(bis("Heide").toDate(), tag("15.09.2003"));
  EXPECT_EQ(von("Wald").toDate(), tag("10.02.2003"));
  EXPECT_EQ(bis("Wald").toDate(), tag("20.03.2003"));
}

TEST_F(Trachtzeit, EinStandortOhneNamenWirdÜbergangen) {
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

TEST_F(Trachtzeit, NachDemLöschenDerPflanzeIstDieZeitLeer) {
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

TEST_F(Trachtzeit, VonZweiStandortenGleichenNamensBekommtSieDerErste) {
  const qint64 erster = standort("Hof");
  const qint64 zweiter = standort("Hof");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  tracht(erster, "Raps", 50);
  tracht(zweiter, "Linde", 50);
  Standorte::trachtzeitenErmitteln(db());
  const auto beginn = [](qint64 id) {
    return wert("select Trachtzeit_von from Standorte where ID = ?", {id});
  };
  EXPECT_EQ(beginn(erster).toDate(), QDate(2003, 4, 20));
  EXPECT_TRUE(beginn(zweiter).isNull());
}

// A plant's bloom before and after.
struct Wechselfall {
  const char* name;
  const char* von;
  const char* bis;
  int jahre;
  const char* vonDanach;
  const char* bisDanach;
};

void PrintTo(const Wechselfall& fall, std::ostream* aus) { *aus << fall.name; }

class WeidezeitVerschoben : public Jahreswechsel,
                            public testing::WithParamInterface<Wechselfall> {};

TEST_P(WeidezeitVerschoben, LiegtDanach) {
  const Wechselfall& fall = GetParam();
  pflanze("Raps", zelle(fall.von), zelle(fall.bis));
  Standorte::weidezeitenVerschieben(db(), fall.jahre);
  EXPECT_EQ(weide("Raps"), tag(fall.vonDanach));
  EXPECT_EQ(weide("Raps", "Weidezeit_bis"), tag(fall.bisDanach));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Fälle, WeidezeitVerschoben,
    testing::Values(
        Wechselfall{"EinJahrVor",
                    "20.04.2003", "20.05.2003", 1, "20.04.2004", "20.05.2004"},
        Wechselfall{"EinJahrZurueck",
                    "20.04.2003", "20.05.2003", -1, "20.04.2002", "20.05.2002"},
        Wechselfall{"UeberNeujahr",
                    "31.12.2003", "01.01.2004", 1, "31.12.2004", "01.01.2005"},
        Wechselfall{"NichtUeber2099",
                    "31.12.2099", "31.12.2098", 1, "31.12.2099", "31.12.2099"},
        Wechselfall{"NichtUnter1901",
                    "01.01.1901", "01.01.1902", -1, "01.01.1901", "01.01.1901"},
        Wechselfall{"VonVor1901AnDieGrenzeVor",
                    "01.03.1850", "31.12.1899", 1, "01.03.1901", "31.12.1901"},
        Wechselfall{"VonVor1901AnDieGrenzeZurueck",
                    "01.03.1850", "31.12.1901", -1, "01.03.1901", "31.12.1901"},
        Wechselfall{"VonNach2099AnDieGrenzeVor",
                    "01.03.2150", "01.01.2101", 1, "01.03.2099", "01.01.2099"},
        Wechselfall{"VonNach2099AnDieGrenzeZurueck",
                    "01.03.2150", "01.01.2100", -1, "01.03.2099", "01.01.2099"},
        Wechselfall{"LeererBeginnBleibtLeer",
                    leer, "20.05.2003", 1, leer, "20.05.2004"},
        Wechselfall{"LeeresEndeBleibtLeer",
                    "20.04.2003", leer, 1, "20.04.2004", leer},
        Wechselfall{"NeunundzwanzigsterFebruarInEinSchaltjahr",
                    "01.02.2004", "29.02.2004", 4, "01.02.2008", "29.02.2008"}),
    [](const auto& fall) { return std::string(fall.param.name); });
// clang-format on

TEST_F(Jahreswechsel, AllePflanzenUmEinJahrVorUndZurück) {
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

TEST_F(Jahreswechsel, NeunundzwanzigsterFebruarJenseitsDerGrenzeSchlägtAuchFehl) {
  pflanze("Hasel", QDate(2104, 2, 29), QDate(2104, 3, 20));
  EXPECT_THROW(Standorte::weidezeitenVerschieben(db(), -1), Datenbankfehler);
  EXPECT_EQ(weide("Hasel"), QDate(2104, 2, 29));
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

}  // namespace
