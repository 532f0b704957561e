#include "bookings/Vorgaben.h"

#include "Bestand.h"

using Änderungen = QList<Slotänderung>;

namespace {

class Vorgaben : public Bestand {
 protected:
  static void behandlung(const QString& art, const QString& mittel, int menge,
                         const QString& zulassung, int wartezeit, QDate datum, int volk = 1) {
    schreibe(
        "insert into Behandlung (Behandlungsart, Mittel, Menge_g, Zulassungsnr, Wartezeit, Datum, "
        "Volk_ID) values (?, ?, ?, ?, ?, ?, ?)",
        {art, mittel, menge, zulassung, wartezeit, datum, volk});
  }
  static void honig(const QString& sorte, const QString& güte, double menge, double wert,
                    QDate datum, int volk = 1) {
    schreibe(
        "insert into Honigernte (Honigsorte, Qualität, Menge_kg, Honig_Wert, Datum, Volk_ID) "
        "values (?, ?, ?, ?, ?, ?)",
        {sorte, güte, menge, wert, datum, volk});
  }
  static Änderungen vorgaben(int art, int slot, const Änderungen& texte) {
    return vorgabenBeimVerlassen(db(), art, slot, slottexte(texte));
  }
};

const QDate Mai(2026, 5, 1);
const QDate Juni(2026, 6, 1);

}  // namespace

TEST_F(Vorgaben, BehandlungsartBringtMittelMengeZulassungUndWartezeit) {
  behandlung("Ameisensäure", "AS 60%", 200, "123.45", 7, Mai);
  EXPECT_EQ(vorgaben(8, 1, {{1, "Ameisensäure"}}),
            (Änderungen{{2, "AS 60%"}, {3, "200"}, {4, "123.45"}, {5, "7"}}));
}

TEST_F(Vorgaben, MittelBringtMengeZulassungUndWartezeit) {
  behandlung("Winter", "Oxalsäure", 50, "9", 0, Mai);
  EXPECT_EQ(vorgaben(8, 2, {{1, "anderes"}, {2, "Oxalsäure"}}),
            (Änderungen{{3, "50"}, {4, "9"}, {5, "0"}}));
}

TEST_F(Vorgaben, DieNeuesteBehandlungAllerVölkerZählt) {
  behandlung("Sommer", "neu", 2, "", 0, Juni, 3);
  behandlung("Sommer", "alt", 1, "", 0, Mai, 1);
  EXPECT_EQ(vorgaben(8, 1, {{1, "Sommer"}}), (Änderungen{{2, "neu"}, {3, "2"}, {4, ""}, {5, "0"}}));
}

TEST_F(Vorgaben, AmSelbenTagEntscheidetDieErsteZeile) {
  behandlung("Sommer", "erste", 1, "", 0, Juni);
  behandlung("Sommer", "zweite", 2, "", 0, Juni);
  EXPECT_EQ(vorgaben(8, 1, {{1, "Sommer"}}).first(), (Slotänderung{2, "erste"}));
}

TEST_F(Vorgaben, LeereOderUnbekannteBehandlungBringtNichts) {
  behandlung("", "", 5, "", 5, Mai);
  EXPECT_EQ(vorgaben(8, 1, {{1, ""}}), Änderungen{});
  EXPECT_EQ(vorgaben(8, 1, {{1, "  "}}), Änderungen{});
  EXPECT_EQ(vorgaben(8, 2, {}), Änderungen{});
  EXPECT_EQ(vorgaben(8, 1, {{1, "unbekannt"}}), Änderungen{});
}

TEST_F(Vorgaben, BehandlungMitLeerenFeldernGibtNullUndLeer) {
  schreibe("insert into Behandlung (Behandlungsart, Volk_ID) values ('kurz', 1)");
  EXPECT_EQ(vorgaben(8, 1, {{1, "kurz"}}), (Änderungen{{2, ""}, {3, "0"}, {4, ""}, {5, "0"}}));
}

TEST_F(Vorgaben, ApostrophImTextWirdZumAkzent) {
  behandlung("Bee`s best", "m", 1, "", 0, Mai);
  EXPECT_EQ(vorgaben(8, 1, {{1, " Bee's best "}}).size(), 4);
}

TEST_F(Vorgaben, HonigwertAusDemLetztenPreisDieserGüte) {
  honig("Raps", "A", 10, 85, Mai);
  honig("Raps", "B", 10, 10, Juni);
  for (const int slot : {1, 2, 3})
    EXPECT_EQ(vorgaben(1, slot, {{1, "4,00"}, {2, "Raps"}, {3, "A"}}), (Änderungen{{6, "34,00"}}))
        << slot;
}

TEST_F(Vorgaben, DerNeuestePreisAllerVölkerZählt) {
  honig("Raps", "A", 10, 90, Juni, 2);
  honig("Raps", "A", 10, 80, Mai, 1);
  EXPECT_EQ(vorgaben(1, 1, {{1, "1"}, {2, "raps"}, {3, "a"}}), (Änderungen{{6, "9,00"}}));
}

TEST_F(Vorgaben, EineErnteOhneMengeHatKeinenPreis) {
  honig("Raps", "A", 10, 80, Mai);
  honig("Raps", "A", 0, 80, Juni);  // the newest one decides alone
  EXPECT_EQ(vorgaben(1, 1, {{1, "1"}, {2, "Raps"}, {3, "A"}}), Änderungen{});
}

TEST_F(Vorgaben, OhneMengeImFormularWirdDerWertNull) {
  honig("Raps", "A", 10, 80, Mai);
  EXPECT_EQ(vorgaben(1, 2, {{1, "0,00"}, {2, "Raps"}, {3, "A"}}), (Änderungen{{6, "0,00"}}));
}

TEST_F(Vorgaben, HonigOhneSorteUndQualitätVergleichtMitLeeren) {
  honig("", "", 2, 10, Mai);
  EXPECT_EQ(vorgaben(1, 1, {{1, "3"}}), (Änderungen{{6, "15,00"}}));
}

TEST_F(Vorgaben, PreisWirdAufZweiStellenGerundet) {
  honig("Raps", "A", 10, 0.45, Mai);
  // 5 x 0.045 = 0.225
  EXPECT_EQ(vorgaben(1, 1, {{1, "5"}, {2, "Raps"}, {3, "A"}}), (Änderungen{{6, "0,23"}}));
}

TEST_F(Vorgaben, WachswertNachQualität) {
  schreibe(
      "insert into Wachsernte (Qualität, Menge_kg, Wachs_Wert, Datum, Volk_ID) values "
      "('gelb', 2, 30, ?, 1)",
      {Mai});
  EXPECT_EQ(vorgaben(2, 1, {{1, "3,00"}, {2, "gelb"}}), (Änderungen{{5, "45,00"}}));
  EXPECT_EQ(vorgaben(2, 2, {{1, "3,00"}, {2, "gelb"}}), (Änderungen{{5, "45,00"}}));
  EXPECT_EQ(vorgaben(2, 3, {{1, "3,00"}, {2, "gelb"}}), Änderungen{});
}

TEST_F(Vorgaben, PollenwertNachQualität) {
  schreibe(
      "insert into Pollenernte (Qualität, Menge_g, Pollen_Wert, Datum, Volk_ID) values "
      "('fein', 200, 6, ?, 1)",
      {Mai});
  EXPECT_EQ(vorgaben(3, 1, {{1, "50"}, {2, "fein"}}), (Änderungen{{5, "1,50"}}));
  EXPECT_EQ(vorgaben(3, 2, {{1, "50"}, {2, "fein"}}), (Änderungen{{5, "1,50"}}));
}

TEST_F(Vorgaben, SonstigerWertNachErnteartUndQualität) {
  schreibe(
      "insert into Sonstigeernte (Ernteart, Qualität, Menge_g, Wert, Datum, Volk_ID) values "
      "('Propolis', 'roh', 100, 20, ?, 1)",
      {Mai});
  for (const int slot : {1, 2, 3})
    EXPECT_EQ(vorgaben(4, slot, {{1, "Propolis"}, {2, "30"}, {3, "roh"}}),
              (Änderungen{{6, "6,00"}}))
        << slot;
  EXPECT_EQ(vorgaben(4, 1, {{1, "Propolis"}, {2, "30"}, {3, "fein"}}), Änderungen{});
}

TEST_F(Vorgaben, AndereSlotsUndTypenHabenKeine) {
  honig("", "", 2, 10, Mai);
  behandlung("x", "x", 1, "", 1, Mai);
  EXPECT_EQ(vorgaben(1, 4, {{4, "1"}}), Änderungen{});
  EXPECT_EQ(vorgaben(8, 3, {{1, "x"}, {3, "1"}}), Änderungen{});
  for (const int art : {0, 5, 6, 7, 9, 10}) EXPECT_EQ(vorgaben(art, 1, {{1, "x"}}), Änderungen{});
}
