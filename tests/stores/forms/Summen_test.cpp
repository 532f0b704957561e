#include "stores/forms/Handelsprobe.h"

// The sums are worked out at load and on the button; meanwhile the form says that they are old.
namespace {

class Summenstand : public Handelsprobe {
 protected:
  bool veraltet() { return kind<QLabel>("summenstand")->isVisible(); }
};

TEST_F(Summenstand, FrischGeöffnetSindSieAktuell) {
  verkaufe("Honig", "3");
  öffne(Verkauf);
  EXPECT_FALSE(veraltet());
}

TEST_F(Summenstand, NachEinemVerkaufSindSieAltBisZumKnopf) {
  öffne(Verkauf);
  tippeVerkauf("Kerzen", "3");
  tippe("Einnahmen", "12,50");
  const QString vorher = summen();
  klicke("neuverkauf_0");
  EXPECT_TRUE(veraltet());
  EXPECT_EQ(kind<QLabel>("summenstand")->text(), "(nicht aktuell)");
  EXPECT_EQ(summen(), vorher);
  klicke("rosumme");
  EXPECT_FALSE(veraltet());
  EXPECT_EQ(summen(), "Einkauf: 0,00 €   Verkauf: 12,50 €   Summe: 12,50 €");
}

TEST_F(Summenstand, NachDemLöschenSindSieAlt) {
  verkaufe("Kerzen", "3");
  öffne(Verkauf);
  wähle("liverkauf", 0);
  klicke("lschverkauf");
  EXPECT_TRUE(veraltet());
}

TEST_F(Summenstand, EineLagerbuchungÄndertSieNicht) {
  öffne(Lager);
  tippeLager("Raps", "5", "0");
  klicke("neuhonig_0");
  EXPECT_FALSE(veraltet());
}

}  // namespace
