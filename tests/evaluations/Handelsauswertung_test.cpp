#include "evaluations/Handelsauswertung.h"

#include <random>

#include "colonies/Testbetrieb.h"
#include "evaluations/Probelauf.h"

// Sales and purchases, listed and summed up.

namespace {

using Zeilen = QList<QStringList>;

const QString Weil = "Die Auswertung kann nicht ausgeführt werden, weil...\r\n\r\n";
enum Befehle { Alle, JeProdukt, JeQualität, JePartner, JeCharge, JeMonat, JeJahr };

class HandelsauswertungTest : public Testbetrieb {
 protected:
  struct Geschäft {
    QString tag;
    QString produkt;
    QString qualität;
    QString charge;
    QString partner;
    QVariant menge;
    QString einheit;
    QVariant geld;
  };
  static void schreibe(const QString& tabelle, const QString& partner, const QString& geld,
                       const Geschäft& g) {
    db().Execute("insert into " + tabelle + "(Datum, Produkt, Qualität, Charge, " + partner +
                     ", Menge, Einheit, " + geld + ") values (?, ?, ?, ?, ?, ?, ?, ?)",
                 {DatumLesen(g.tag), g.produkt, g.qualität, g.charge, g.partner, g.menge, g.einheit,
                  g.geld});
  }
  static void verkauf(const Geschäft& g) { schreibe("Verkauf", "Abnehmer", "Einnahmen", g); }
  static void einkauf(const Geschäft& g) { schreibe("Einkauf", "Lieferant", "Ausgaben", g); }
  static void geschäfte() {
    verkauf({"03.05.2006", "Honig", "I", "A1", "Meier", 10, "kg", 99.5});
    verkauf({"01.02.2006", "Honig", "II", "A2", "Meier", 2.5, "kg", 20.25});
    verkauf({"04.05.2005", "Wachs", "I", "", "Schulz", 3, "St", 0.1});
    verkauf({"05.05.2006", "Honig", "I", "A1", "Schulz", 2.5, "St", 1000});
    einkauf({"06.06.2006", "Zucker", "fein", "Z", "Müller", 25, "kg", 30});
    einkauf({"07.06.2006", "Zucker", "grob", "Z", "O'Neill", 50, "kg", 55.5});
  }

  void SetUp() override {
    Testbetrieb::SetUp();
    probe.emplace(Handelsauswertung::beschreibung());
  }
  Ausgabeliste liste(int befehl) { return probe->liste(QString("rolisten_%1").arg(befehl)); }
  Zeilen zeilen(int befehl) { return Probelauf::zeilen(liste(befehl)); }
  void einkäufe() { probe->wähle("optiart", 1); }
  void zeitraum(const QString& von, const QString& bis) {
    probe->wähle("optibuch", 1);
    probe->tippe("tdat_0", von);
    probe->tippe("tdat_1", bis);
  }

  std::optional<Probelauf> probe;
};

TEST_F(HandelsauswertungTest, ÖffnetAufAllenVerkäufenUndDiesemJahrBisHeute) {
  EXPECT_EQ(probe->b.titel, "Ein- und Verkäufe auswerten");
  EXPECT_EQ(probe->e.wahl("optiart"), 0);
  EXPECT_EQ(probe->e.wahl("optibuch"), 0);
  EXPECT_EQ(probe->e.text("tdat", 0), "01.01.2006");
  EXPECT_EQ(probe->e.text("tdat", 1), "20.06.2006");
}

// ---- period ----

TEST_F(HandelsauswertungTest, EinTagDerKeinerIstWirdVerweigert) {
  for (const auto& [von, bis] : {std::pair("31.02.2006", "20.06.2006"), {"01.01.2006", ""}}) {
    zeitraum(von, bis);
    EXPECT_EQ(zeilen(Alle), Zeilen());
  }
  EXPECT_EQ(probe->meldungen, QStringList(2, Weil + "...die Datumangaben nicht korrekt sind."));
}

TEST_F(HandelsauswertungTest, VonMussVorBisLiegen) {
  geschäfte();
  zeitraum("03.05.2006", "03.05.2006");
  EXPECT_EQ(zeilen(JeMonat), Zeilen());
  zeitraum("01.01.2006", "31.12.2005");
  EXPECT_EQ(zeilen(JeMonat), Zeilen());
  EXPECT_EQ(probe->meldungen,
            QStringList(2, Weil + "...das Datum von... kleiner sein muß als das Datum bis..."));
}

TEST_F(HandelsauswertungTest, OhneZeitraumSindDieTageEgal) {
  geschäfte();
  zeitraum("kein Tag", "");
  probe->wähle("optibuch", 0);
  EXPECT_EQ(zeilen(Alle).size(), 4);
  EXPECT_EQ(probe->meldungen, QStringList());
}

TEST_F(HandelsauswertungTest, DerZeitraumSchließtBeideTageEin) {
  geschäfte();
  zeitraum("01.02.2006", "03.05.2006");
  const Zeilen alle = zeilen(Alle);
  ASSERT_EQ(alle.size(), 2);
  EXPECT_EQ(alle[0][0], "01.02.2006");
  EXPECT_EQ(alle[1][0], "03.05.2006");
  EXPECT_EQ(zeilen(JeProdukt), Zeilen({{"Honig", "2", "12,5", "6,25", "119,75"}}));
}

// ---- lists ----

TEST_F(HandelsauswertungTest, OhneGeschäfteWirdEsGesagt) {
  for (int befehl : {Alle, JeProdukt, JeQualität, JePartner, JeCharge})
    EXPECT_EQ(zeilen(befehl), Zeilen());
  EXPECT_EQ(probe->meldungen, QStringList(5, "Keine Daten gefunden"));
}

TEST_F(HandelsauswertungTest, DieVerkäufeNachTagen) {
  geschäfte();
  EXPECT_EQ(liste(Alle).überschriften(),
            QStringList({"Datum", "Produkt", "Qualität", "Charge", "Abnehmer", "Menge", "Einheit",
                         "Einnahmen"}));
  EXPECT_EQ(zeilen(Alle),
            Zeilen({{"04.05.2005", "Wachs", "I", "", "Schulz", "3", "St", "0,10"},
                    {"01.02.2006", "Honig", "II", "A2", "Meier", "2,5", "kg", "20,25"},
                    {"03.05.2006", "Honig", "I", "A1", "Meier", "10", "kg", "99,50"},
                    {"05.05.2006", "Honig", "I", "A1", "Schulz", "2,5", "St", "1000,00"}}));
}

TEST_F(HandelsauswertungTest, DieEinkäufeNachTagen) {
  geschäfte();
  einkäufe();
  EXPECT_EQ(liste(Alle).überschriften(),
            QStringList({"Datum", "Produkt", "Qualität", "Charge", "Lieferant", "Menge", "Einheit",
                         "Ausgaben"}));
  EXPECT_EQ(zeilen(Alle),
            Zeilen({{"06.06.2006", "Zucker", "fein", "Z", "Müller", "25", "kg", "30,00"},
                    {"07.06.2006", "Zucker", "grob", "Z", "O`Neill", "50", "kg", "55,50"}}));
}

TEST_F(HandelsauswertungTest, MengenZählenÜberIhreEinheitenZusammen) {
  geschäfte();
  EXPECT_EQ(liste(JeProdukt).überschriften(),
            QStringList({"Produkt", "Anzahl", "S_Menge", "D_Menge", "Einnahme"}));
  EXPECT_EQ(zeilen(JeProdukt),
            Zeilen({{"Honig", "3", "15", "5", "1119,75"}, {"Wachs", "1", "3", "3", "0,10"}}));
}

TEST_F(HandelsauswertungTest, JeQualitätUndJeAbnehmer) {
  geschäfte();
  EXPECT_EQ(zeilen(JeQualität), Zeilen({{"I", "3", "15,5", "5,16666666667", "1099,60"},
                                        {"II", "1", "2,5", "2,5", "20,25"}}));
  EXPECT_EQ(liste(JePartner).überschriften().first(), "Abnehmer");
  EXPECT_EQ(zeilen(JePartner), Zeilen({{"Meier", "2", "12,5", "6,25", "119,75"},
                                       {"Schulz", "2", "5,5", "2,75", "1000,10"}}));
}

TEST_F(HandelsauswertungTest, JeProduktUndCharge) {
  geschäfte();
  EXPECT_EQ(liste(JeCharge).überschriften().first(2), QStringList({"Produkt", "Charge"}));
  EXPECT_EQ(zeilen(JeCharge), Zeilen({{"Honig", "A1", "2", "12,5", "6,25", "1099,50"},
                                      {"Honig", "A2", "1", "2,5", "2,5", "20,25"},
                                      {"Wachs", "", "1", "3", "3", "0,10"}}));
}

TEST_F(HandelsauswertungTest, DieEinkäufeGruppiert) {
  geschäfte();
  einkäufe();
  EXPECT_EQ(liste(JePartner).überschriften(),
            QStringList({"Lieferant", "Anzahl", "S_Menge", "D_Menge", "Ausgabe"}));
  EXPECT_EQ(zeilen(JePartner),
            Zeilen({{"Müller", "1", "25", "25", "30,00"}, {"O`Neill", "1", "50", "50", "55,50"}}));
  EXPECT_EQ(zeilen(JeQualität).size(), 2);
  EXPECT_EQ(zeilen(JeProdukt), Zeilen({{"Zucker", "2", "75", "37,5", "85,50"}}));
  EXPECT_EQ(zeilen(JeCharge), Zeilen({{"Zucker", "Z", "2", "75", "37,5", "85,50"}}));
}

TEST_F(HandelsauswertungTest, SummenVonBeträgenSindGenau) {
  for (int i = 0; i < 30; ++i) verkauf({"01.02.2006", "Honig", "I", "A", "M", 0.1, "kg", 0.1});
  verkauf({"01.02.2006", "Honig", "I", "A", "M", 7, "kg", 900000000000.01});
  EXPECT_EQ(zeilen(JeProdukt)[0][4], "900000000003,01");
  EXPECT_EQ(zeilen(JeProdukt)[0][2], "10");
}

// ---- months and years ----

TEST_F(HandelsauswertungTest, EinMonatOhneGeschäftStehtMitNull) {
  geschäfte();
  EXPECT_EQ(liste(JeMonat).überschriften(),
            QStringList({"Monat", "Buchungen", "Menge", "Einnahmen"}));
  const Zeilen monate = zeilen(JeMonat);
  ASSERT_EQ(monate.size(), 12);
  EXPECT_EQ(monate[0], QStringList({"1", "0", "0,00", "0,00"}));
  EXPECT_EQ(monate[1], QStringList({"2", "1", "2,50", "20,25"}));
  EXPECT_EQ(monate[11], QStringList({"12", "0", "0,00", "0,00"}));
}

TEST_F(HandelsauswertungTest, DieMonateAllerJahreDesZeitraumsSindEiner) {
  geschäfte();
  EXPECT_EQ(zeilen(JeMonat)[4], QStringList({"5", "3", "15,50", "1099,60"}));
  zeitraum("01.01.2006", "31.12.2006");
  EXPECT_EQ(zeilen(JeMonat)[4], QStringList({"5", "2", "12,50", "1099,50"}));
}

TEST_F(HandelsauswertungTest, ElfJahreBisHeuer) {
  geschäfte();
  verkauf({"31.12.1995", "Honig", "I", "A1", "Meier", 1, "kg", 1});
  verkauf({"01.01.1996", "Honig", "I", "A1", "Meier", 1, "kg", 2});
  verkauf({"01.01.2007", "Honig", "I", "A1", "Meier", 1, "kg", 4});
  EXPECT_EQ(liste(JeJahr).überschriften(),
            QStringList({"Jahr", "Buchungen", "Menge", "Einnahmen"}));
  const Zeilen jahre = zeilen(JeJahr);
  ASSERT_EQ(jahre.size(), 11);
  EXPECT_EQ(jahre.first(), QStringList({"1996", "1", "1,00", "2,00"}));
  EXPECT_EQ(jahre[9], QStringList({"2005", "1", "3,00", "0,10"}));
  EXPECT_EQ(jahre.last(), QStringList({"2006", "3", "15,00", "1119,75"}));
}

TEST_F(HandelsauswertungTest, DieZeittabellenDerEinkäufe) {
  geschäfte();
  einkäufe();
  EXPECT_EQ(liste(JeMonat).überschriften().last(), "Ausgaben");
  EXPECT_EQ(zeilen(JeMonat)[5], QStringList({"6", "2", "75,00", "85,50"}));
  EXPECT_EQ(zeilen(JeJahr).last(), QStringList({"2006", "2", "75,00", "85,50"}));
}

TEST_F(HandelsauswertungTest, EineZeileOhneTagZähltInKeinemMonat) {
  verkauf({"", "Honig", "I", "A1", "Meier", 1, "kg", 1});
  for (const QStringList& zeile : zeilen(JeMonat)) EXPECT_EQ(zeile[1], "0");
}

// One statement for each month and year, as they may be asked one by one.
TEST_F(HandelsauswertungTest, JedeZelleIstWieMitEinerAnweisungJeMonatUndJahr) {
  std::mt19937 zufall(8);
  const auto würfel = [&](int bis) { return static_cast<int>(zufall() % unsigned(bis)); };
  db().Sammelschreiben([&] {
    for (int i = 0; i < 600; ++i)
      verkauf({QDate(1994, 1, 1).addDays(würfel(5000)).toString("dd.MM.yyyy"), "Honig", "I", "A",
               "M", würfel(20) == 0 ? QVariant() : QVariant(würfel(5000) / 100.0), "kg",
               würfel(20) == 0 ? QVariant() : QVariant(würfel(1000000) / 10000.0)});
  });
  const auto buchstabe = [](const QString& zeit, int wert, const QString& rest) {
    const Daten d = db().Lesen(
        QString("select count(*) as Anzahl, sum(Menge) as summe1, sum(Einnahmen) as summe2 from "
                "Verkauf%1 %2 %3 = %4")
            .arg(rest, rest.isEmpty() ? "where" : "and", zeit)
            .arg(wert));
    return QStringList({QString::number(wert), d->anzeige(0, 0), ZahlFormat(d->wert(0, 1), 2),
                        ZahlFormat(d->wert(0, 2), 2)});
  };
  for (const bool begrenzt : {false, true}) {
    const QString rest =
        begrenzt ? QString(" where Datum >= #03/15/1997# and Datum <= #10/02/2004#") : QString();
    if (begrenzt) zeitraum("15.03.1997", "02.10.2004");
    const Zeilen monate = zeilen(JeMonat);
    for (int monat = 1; monat <= 12; ++monat)
      EXPECT_EQ(monate[monat - 1], buchstabe("month(Datum)", monat, rest));
    const Zeilen jahre = zeilen(JeJahr);
    for (int jahr = 1996; jahr <= 2006; ++jahr)
      EXPECT_EQ(jahre[jahr - 1996], buchstabe("year(Datum)", jahr, rest));
  }
}

}  // namespace
