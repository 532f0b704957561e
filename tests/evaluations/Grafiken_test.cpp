#include "evaluations/Grafiken.h"

#include "colonies/Testbetrieb.h"

namespace {

class GrafikenTest : public Testbetrieb {
 protected:
  enum Auswahl { Völker, Sorten, Honig, Wachs, Pollen };

  static void honig(const QString& tag, const QVariant& sorte, const QVariant& kg) {
    ernte("Honigernte(Datum, Honigsorte, Menge_kg)", {datum(tag), sorte, kg});
  }
  static void ernte(const QString& felder, const QVariantList& werte) {
    db().Execute(
        "insert into " + felder + " values (?" + QString(", ?").repeated(werte.size() - 1) + ")",
        werte);
  }
  static QVariant datum(const QString& tag) { return QDate::fromString(tag, "dd.MM.yyyy"); }
  static Grafiken::Grafik grafik(int auswahl, const QString& jahr = "2006") {
    return Grafiken::lesen(db(), auswahl, jahr);
  }
  // "Raps 12.5, Linde 3"
  static std::string punkte(const Grafiken::Grafik& grafik) {
    QStringList alle;
    for (const auto& punkt : grafik.punkte)
      alle += punkt.name + u' ' + QString::number(punkt.wert, 'g', 12);
    return alle.join(", ").toStdString();
  }
};

TEST_F(GrafikenTest, FünfAuswahlenMitIhrenTiteln) {
  EXPECT_EQ(
      Grafiken::auswahlen(),
      QStringList({"Völker an Standorten", "Honigernte nach Sorten", "Honigernten je Jahr (kg)",
                   "Wachsernte je Jahr (kg)", "Pollenernte je Jahr (g)"}));
  EXPECT_EQ(grafik(Völker).titel, "Auswertung (Völker an Standorten)");
  EXPECT_EQ(grafik(Sorten, "2005").titel, "Auswertung (Honigernte nach Sorten) für 2005");
  EXPECT_EQ(grafik(Honig).titel, "Auswertung (Honigernten je Jahr (kg)) alle Jahre");
  EXPECT_EQ(grafik(Wachs).titel, "Auswertung (Wachsernte je Jahr (kg)) alle Jahre");
  EXPECT_EQ(grafik(Pollen).titel, "Auswertung (Pollenernte je Jahr (g)) alle Jahre");
}

TEST_F(GrafikenTest, DerFußNenntDenTag) { EXPECT_EQ(grafik(Honig).fuß, "Stand: 20.06.2006"); }

TEST_F(GrafikenTest, AlleVölkerZählenAuchAbgegangene) {
  neuesVolk("1", "X", "Hof");
  neuesVolk("2", "", "Hof");
  neuesVolk("3", "X", "Heide");
  EXPECT_EQ(punkte(grafik(Völker)), "Heide 1, Hof 2");
}

TEST_F(GrafikenTest, WasKeinenNamenHatStehtDa) {
  neuesVolk("1");
  EXPECT_EQ(punkte(grafik(Völker)), "ohne Angabe 1");
}

TEST_F(GrafikenTest, LeererUndFehlenderNameSindEinPunkt) {
  honig("01.05.2006", QVariant(), 2);
  honig("02.05.2006", "", 3);
  honig("03.05.2006", "Raps", 4);
  EXPECT_EQ(punkte(grafik(Sorten)), "ohne Angabe 5, Raps 4");
  EXPECT_EQ(grafik(Sorten).größter, 0);
}

TEST_F(GrafikenTest, HonigNachSortenNurAusDemJahr) {
  honig("31.12.2005", "Raps", 1);
  honig("01.01.2006", "Raps", 2.5);
  honig("31.12.2006", "Linde", 4);
  honig("01.01.2007", "Linde", 8);
  EXPECT_EQ(punkte(grafik(Sorten)), "Linde 4, Raps 2.5");
  EXPECT_EQ(punkte(grafik(Sorten, "2007")), "Linde 8");
}

TEST_F(GrafikenTest, DieErntenAllerJahre) {
  honig("05.06.2005", "Raps", 10);
  honig("05.06.2006", "Raps", 3.3);
  honig("07.07.2006", "Linde", 3.3);
  ernte("Wachsernte(Datum, Menge_kg)", {datum("01.02.2004"), 0.75});
  ernte("Pollenernte(Datum, Menge_g)", {datum("01.05.2006"), 1500});
  EXPECT_EQ(punkte(grafik(Honig)), "2005 10, 2006 6.6");
  EXPECT_EQ(punkte(grafik(Wachs)), "2004 0.75");
  EXPECT_EQ(punkte(grafik(Pollen)), "2006 1500");
}

TEST_F(GrafikenTest, EinWertMitNachkommastellenKommtAlsZahlAn) {
  honig("05.06.2006", "Raps", 12.25);
  EXPECT_EQ(grafik(Sorten).punkte[0].wert, 12.25);
}

TEST_F(GrafikenTest, EinJahrOhneErnteHatKeinePunkte) {
  honig("05.06.2006", "Raps", 1);
  const auto leer = grafik(Sorten, "1999");
  EXPECT_TRUE(leer.punkte.isEmpty());
  EXPECT_EQ(leer.größter, -1);
  EXPECT_EQ(leer.titel, "Auswertung (Honigernte nach Sorten) für 1999");
}

TEST_F(GrafikenTest, OhneGültigesJahrGibtEsKeinePunkteUndKeinenFehler) {
  honig("05.06.2006", "Raps", 1);
  for (const char* jahr : {"", "6", "206", "0000", "2oo6", "20066"})
    EXPECT_TRUE(grafik(Sorten, jahr).punkte.isEmpty()) << jahr;
}

TEST_F(GrafikenTest, VonGleichGroßenIstDerErsteDerGrößte) {
  honig("05.06.2006", "Akazie", 2);
  honig("05.06.2006", "Linde", 7);
  honig("05.06.2006", "Raps", 7);
  EXPECT_EQ(grafik(Sorten).größter, 1);
}

TEST_F(GrafikenTest, ErntenOhneMengeZählenNull) {
  honig("05.06.2006", "Raps", {});
  EXPECT_EQ(punkte(grafik(Sorten)), "Raps 0");
  EXPECT_EQ(grafik(Sorten).größter, 0);
}

}  // namespace
