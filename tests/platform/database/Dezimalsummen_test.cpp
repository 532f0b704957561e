#include <QSet>
#include <limits>

#include "platform/database/Testdatenbank.h"

// Sums of statements add decimals as people do.
class Summen : public Testdatenbank {
 protected:
  void SetUp() override {
    Testdatenbank::SetUp();
    for (const double menge : {10.0, -3.3, -3.3, -3.4}) bewegung(menge);
  }
  void bewegung(const QVariant& menge, const QVariant& preis = {}) {
    db.Execute("insert into Bienenvolk (Menge_kg, Preis) values (?, ?)", {menge, preis});
  }
};

TEST_F(Summen, EineGeleerteMengeIstNull) {
  EXPECT_EQ(einWert("select sum(Menge_kg) from Bienenvolk"), QVariant(0.0));
  EXPECT_EQ(einWert("select avg(Menge_kg) from Bienenvolk"), QVariant(0.0));
  EXPECT_EQ(einWert("select sum(Menge_kg) from Bienenvolk where Menge_kg < 0"), QVariant(-10.0));
}

TEST_F(Summen, AuchInDerZeileUndZwischenSummen) {
  bewegung(223.7, 223);
  EXPECT_EQ(einWert("select Menge_kg - Preis from Bienenvolk where Preis = 223"), QVariant(0.7));
  EXPECT_EQ(einWert("select 10 - 3.3 - 3.3 - 3.4"), QVariant(0.0));
  EXPECT_EQ(einWert("select 0.1 + 0.2 - 0.3 + 1.1 - 1"), QVariant(0.1));
  EXPECT_EQ(einWert("select 1 - (0.3 - (0.2 + 0.1))"), QVariant(1.0));
  EXPECT_EQ(einWert("select sum(Menge_kg - Preis) from Bienenvolk"), QVariant(0.7));
  EXPECT_EQ(einWert("select sum(Menge_kg) - sum(Preis) from Bienenvolk"), QVariant(0.7));
  EXPECT_EQ(einWert("select 2 * 3 - 4 / 8 + -1"), QVariant(4.5));
}

TEST_F(Summen, GanzeZahlenBleibenGanzUndNullBleibtNull) {
  EXPECT_EQ(einWert("select sum(ID) from Bienenvolk").typeId(), QMetaType::LongLong);
  EXPECT_EQ(einWert("select sum(ID) from Bienenvolk"), QVariant(10));
  EXPECT_EQ(einWert("select ID + 1 - 2 from Bienenvolk where ID = 4").typeId(),
            QMetaType::LongLong);
  EXPECT_EQ(einWert("select sum(Preis) from Bienenvolk"), QVariant());
  EXPECT_EQ(einWert("select avg(Preis) from Bienenvolk"), QVariant());
  EXPECT_EQ(einWert("select sum(Menge_kg) from Bienenvolk where ID = 99"), QVariant());
  EXPECT_EQ(einWert("select Menge_kg - Preis from Bienenvolk where ID = 1"), QVariant());
  bewegung(1, 2.5);
  EXPECT_EQ(einWert("select avg(Preis) from Bienenvolk"), QVariant(2.5));
}

TEST_F(Summen, WasNichtInEineGanzeZahlPasstWirdEinBruch) {
  const qint64 größte = std::numeric_limits<qint64>::max();
  EXPECT_EQ(einWert("select ? + 1", {größte}), QVariant(9.22337203685478e18));
  EXPECT_EQ(einWert("select sum(? + ID * 0) from Bienenvolk", {größte}),
            QVariant(3.68934881474191e19));
}

TEST_F(Summen, EineLangeKetteWirdInStückenAddiert) {
  QString kette = "0.1";
  for (int i = 1; i < 1000; ++i) kette += " + 0.1";
  EXPECT_EQ(einWert("select " + kette), QVariant(100.0));
}

TEST_F(Summen, ViertelmillionZehntelSindGlatt) {
  db.Execute("delete from Bienenvolk");
  db.Sammelschreiben([&] {
    for (int i = 0; i < 1000; ++i) bewegung(0.1);
  });
  EXPECT_EQ(einWert("select sum(Bienenvolk.Menge_kg) from Bienenvolk, Bienenvolk as anderes where "
                    "anderes.ID <= 254"),
            QVariant(25000.0));
}
