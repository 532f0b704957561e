#include "evaluations/Lagerauswertung.h"

#include "colonies/Testbetrieb.h"
#include "evaluations/Probelauf.h"

// The honey store, listed and summed up.

namespace {

using Zeilen = QList<QStringList>;

enum Befehle { Alle, JeProdukt, Bestand, JeCharge, JeMonat, JeJahr };

class LagerauswertungTest : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    probe.emplace(Lagerauswertung::beschreibung());
  }
  static void bewegung(const QString& tag, const QString& produkt, const QVariant& zugang,
                       const QVariant& abgang, const QString& charge,
                       const QString& abgefüllt = {}) {
    db().Execute(QString("insert into Honiglager(Datum, Produkt, Zugang, Abgang, Charge, "
                         "Abfülldatum, Bemerkung, EVK_ID) values (?, ?, ?, ?, ?, ?, ?, 0)"),
                 {DatumLesen(tag), produkt, zugang, abgang, charge, DatumLesen(abgefüllt),
                  QString("'s war gut")});
  }
  static void bewegungen() {
    bewegung("01.06.2005", "Raps", 30, 0, "R5");
    bewegung("02.06.2006", "Raps", 10.1, 0, "R6", "10.06.2006");
    bewegung("03.07.2006", "Raps", 0, 45.3, "R5");
    bewegung("04.07.2006", "Linde", 20, 0, "L6");
  }
  Ausgabeliste liste(int befehl) { return probe->liste(QString("rolisten_%1").arg(befehl)); }
  Zeilen zeilen(int befehl) { return Probelauf::zeilen(liste(befehl)); }
  void zeitraum(const QString& von, const QString& bis) {
    probe->wähle("optibuch", 1);
    probe->tippe("tdat_0", von);
    probe->tippe("tdat_1", bis);
  }

  std::optional<Probelauf> probe;
};

TEST_F(LagerauswertungTest, ÖffnetAufAllenBuchungenUndDiesemJahrBisHeute) {
  EXPECT_EQ(probe->b.titel, "Honiglager auswerten");
  EXPECT_EQ(probe->e.wahl("optibuch"), 0);
  EXPECT_EQ(probe->e.text("tdat", 0), "01.01.2006");
  EXPECT_EQ(probe->e.text("tdat", 1), "20.06.2006");
}

TEST_F(LagerauswertungTest, EinFalscherZeitraumWirdVerweigert) {
  bewegungen();
  zeitraum("02.06.2006", "01.06.2006");
  EXPECT_EQ(zeilen(Alle), Zeilen());
  EXPECT_EQ(probe->meldungen,
            QStringList("Die Auswertung kann nicht ausgeführt werden, weil...\r\n\r\n...das Datum "
                        "von... kleiner sein muß als das Datum bis..."));
}

TEST_F(LagerauswertungTest, OhneBewegungenWirdEsGesagt) {
  for (int befehl : {Alle, JeProdukt, Bestand, JeCharge}) EXPECT_EQ(zeilen(befehl), Zeilen());
  EXPECT_EQ(probe->meldungen, QStringList(4, "Keine Daten gefunden"));
}

TEST_F(LagerauswertungTest, DieBewegungenNachTagen) {
  bewegungen();
  EXPECT_EQ(liste(Alle).überschriften(), QStringList({"Datum", "Produkt", "Zugang", "Abgang",
                                                      "Charge", "Abfülldatum", "Bemerkung"}));
  zeitraum("02.06.2006", "03.07.2006");
  EXPECT_EQ(zeilen(Alle),
            Zeilen({{"02.06.2006", "Raps", "10,1", "0", "R6", "10.06.2006", "`s war gut"},
                    {"03.07.2006", "Raps", "0", "45,3", "R5", "", "`s war gut"}}));
}

TEST_F(LagerauswertungTest, SummenJeProduktUndCharge) {
  bewegungen();
  EXPECT_EQ(liste(JeProdukt).überschriften(),
            QStringList({"Produkt", "Anzahl", "Zugänge", "Abgänge"}));
  EXPECT_EQ(zeilen(JeProdukt), Zeilen({{"Linde", "1", "20", "0"}, {"Raps", "3", "40,1", "45,3"}}));
  EXPECT_EQ(zeilen(JeCharge), Zeilen({{"Linde", "L6", "1", "20", "0"},
                                      {"Raps", "R5", "2", "30", "45,3"},
                                      {"Raps", "R6", "1", "10,1", "0"}}));
  zeitraum("01.01.2006", "30.06.2006");
  EXPECT_EQ(zeilen(JeProdukt), Zeilen({{"Raps", "1", "10,1", "0"}}));
  EXPECT_EQ(zeilen(JeCharge), Zeilen({{"Raps", "R6", "1", "10,1", "0"}}));
}

TEST_F(LagerauswertungTest, DerBestandJeProduktGehtNieNachDemZeitraum) {
  bewegungen();
  const Zeilen bestand{{"Linde", "20", "1", "20", "0"}, {"Raps", "-5,2", "3", "40,1", "45,3"}};
  EXPECT_EQ(zeilen(Bestand), bestand);
  zeitraum("01.01.2006", "30.06.2006");
  EXPECT_EQ(zeilen(Bestand), bestand);
  const Ausgabeliste liste = this->liste(Bestand);
  EXPECT_EQ(liste.überschriften(),
            QStringList({"Produkt", "Summe", "Anzahl", "Zugänge", "Abgänge"}));
  EXPECT_TRUE(istZahl(liste.daten()->spalte(1).typ));  // stands on the right
}

TEST_F(LagerauswertungTest, DieMonateMitNullenUndEinemNegativenGesamt) {
  bewegungen();
  EXPECT_EQ(liste(JeMonat).überschriften(),
            QStringList({"Monat", "Buchungen", "Zugänge", "Abgänge", "Gesamt"}));
  const Zeilen monate = zeilen(JeMonat);
  ASSERT_EQ(monate.size(), 12);
  EXPECT_EQ(monate[0], QStringList({"1", "0", "0,00", "0,00", "0,00"}));
  EXPECT_EQ(monate[5], QStringList({"6", "2", "40,10", "0,00", "40,10"}));
  EXPECT_EQ(monate[6], QStringList({"7", "2", "20,00", "45,30", "-25,30"}));
  zeitraum("01.01.2006", "31.12.2006");
  EXPECT_EQ(zeilen(JeMonat)[5], QStringList({"6", "1", "10,10", "0,00", "10,10"}));
}

TEST_F(LagerauswertungTest, ElfJahreBisHeuer) {
  bewegungen();
  EXPECT_EQ(liste(JeJahr).überschriften(),
            QStringList({"Jahr", "Buchungen", "Zugänge", "Abgänge", "Gesamt"}));
  const Zeilen jahre = zeilen(JeJahr);
  ASSERT_EQ(jahre.size(), 11);
  EXPECT_EQ(jahre[0], QStringList({"1996", "0", "0,00", "0,00", "0,00"}));
  EXPECT_EQ(jahre[9], QStringList({"2005", "1", "30,00", "0,00", "30,00"}));
  EXPECT_EQ(jahre[10], QStringList({"2006", "3", "30,10", "45,30", "-15,20"}));
}

}  // namespace
