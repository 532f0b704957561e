#include "data/Pickliste.h"

#include "colonies/Testbetrieb.h"

namespace {

const QString Orte = "select distinct Standort from Standorte order by Standort";

class Picklisten : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    db().Execute("delete from Standorte");
  }
  static void ort(const QVariant& name) {
    db().Execute("insert into Standorte(Standort) values (?)", {name});
  }
};

TEST_F(Picklisten, OhneLeereTexteUndSolcheAusLeerzeichenInDerOrdnungDerAnweisung) {
  for (const char* name : {"Wald", "", "  ", "Heide", "Wald"}) ort(name);
  ort({});
  EXPECT_EQ(Pickliste::lesen(db(), Orte), QStringList({"Heide", "Wald"}));
}

TEST_F(Picklisten, TexteWieSieGelesenWerdenOderWieSieInDerTabelleStehen) {
  ort(" Peter's Hof");
  EXPECT_EQ(Pickliste::lesen(db(), Orte), QStringList("Peter`s Hof"));
  EXPECT_EQ(Pickliste::lesen(db(), Orte, Pickliste::Schreibung::WieGespeichert),
            QStringList(" Peter's Hof"));
}

TEST_F(Picklisten, EineLeereTabelleGibtEineLeereListe) {
  EXPECT_EQ(Pickliste::lesen(db(), Orte), QStringList());
}

TEST_F(Picklisten, EineAnweisungDieScheitertWirft) {
  EXPECT_THROW(Pickliste::lesen(db(), "select Standort from Nirgends"), Datenbankfehler);
}

}  // namespace
