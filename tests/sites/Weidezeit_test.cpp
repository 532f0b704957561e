#include "sites/Ortebetrieb.h"
#include "sites/Standorte.h"

// The forage periods of the sites, and the plants' bloom moved by a year.

namespace {

class Trachtzeit : public Ortebetrieb {};
class Jahreswechsel : public Ortebetrieb {
 protected:
  static QDate weide(const QString& name, const QString& spalte = "Weidezeit_von") {
    return wert("select " + spalte + " from Pflanzen where Pflanze = ?", {name}).toDate();
  }
};

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
