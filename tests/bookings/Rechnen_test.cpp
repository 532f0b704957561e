#include "bookings/Rechnen.h"

#include "Bestand.h"

using TZ_Variablen::EinstellungenWert;
using Änderungen = QList<Slotänderung>;

namespace {

// Slots 12, 13, 14, 16, 17, 19 and the foundation sheets in slot 18.
Slottexte waben(int honig, int brut, int pollen, int drohnen, int leer, int futter,
                int mittelwände) {
  const auto zahl = [](int n) { return QString::number(n); };
  return slottexte({{12, zahl(honig)},
                    {13, zahl(brut)},
                    {14, zahl(pollen)},
                    {16, zahl(drohnen)},
                    {17, zahl(leer)},
                    {19, zahl(futter)},
                    {18, zahl(mittelwände)}});
}

class Geld : public testing::Test {
 protected:
  void SetUp() override {
    TZ_Variablen::zurücksetzen();
    EinstellungenWert[Wertslots.honigJeKg] = 8.5F;     // honey per kg
    EinstellungenWert[Wertslots.wachsJeKg] = 12.0F;    // wax per kg
    EinstellungenWert[Wertslots.pollenJeG] = 0.03F;    // pollen per g
    EinstellungenWert[Wertslots.sonstigesJeG] = 0.5F;  // others per g
    EinstellungenWert[Wertslots.stundensatz] = 15.5F;  // rate per hour
  }
  void TearDown() override { TZ_Variablen::zurücksetzen(); }

  // "6=85", or "-" when nothing follows.
  static QString folge(int art, int slot, const QString& text) {
    const auto geld = geldvorgabe(art, slot, slottexte({{slot, text}}));
    return geld ? QString::number(geld->slot) + "=" + geld->text : QString("-");
  }
};

}  // namespace

TEST(Wabenrechnung, SummeOhneMittelwändeUndMagazineAufgerundet) {
  // 3+6+1+1+2+2 = 15 combs; with 4 foundation sheets 19, at ten a magazine 2.
  EXPECT_EQ(wabenrechnung(12, waben(3, 6, 1, 1, 2, 2, 4), 10), (Änderungen{{11, "15"}, {10, "2"}}));
}

TEST(Wabenrechnung, JederWabenslotLöstSieAusAndereNicht) {
  const Slottexte texte = waben(1, 1, 1, 1, 1, 1, 1);
  for (int slot = 0; slot < AnzahlSlots; ++slot) {
    const bool soll = slot == 12 || slot == 13 || slot == 14 || (slot >= 16 && slot <= 19);
    EXPECT_EQ(!wabenrechnung(slot, texte, 10).isEmpty(), soll) << slot;
  }
}

TEST(Wabenrechnung, SummeNullGibtNullWabenAberEinMagazin) {
  EXPECT_EQ(wabenrechnung(12, waben(0, 0, 0, 0, 0, 0, 0), 10), (Änderungen{{11, "0"}, {10, "1"}}));
}

TEST(Wabenrechnung, FünfundneunzigWabenGebenDieMagazineVonNeunzig) {
  EXPECT_EQ(wabenrechnung(13, waben(50, 45, 0, 0, 0, 0, 0), 10),
            (Änderungen{{11, "95"}, {10, "9"}}));
}

TEST(Wabenrechnung, HundertWabenUndMehrBehaltenAlleZiffern) {
  EXPECT_EQ(wabenrechnung(13, waben(60, 60, 0, 0, 0, 0, 0), 10),
            (Änderungen{{11, "120"}, {10, "9"}}));
}

TEST(Wabenrechnung, RiesigeZahlAusEinerMaskeSprengtNichts) {
  const Slottexte texte = slottexte({{12, "99999999999"}, {18, "99999999999"}});
  EXPECT_EQ(wabenrechnung(12, texte, 10), (Änderungen{{11, "999999999"}, {10, "9"}}));
  EXPECT_EQ(wabenbilanz({}, texte), "MW: 0 (999999999)   WZ: 0 (0)");
}

TEST(Wabenrechnung, MittelwändeZählenFürMagazineNieFürWaben) {
  EXPECT_EQ(wabenrechnung(18, waben(10, 0, 0, 0, 0, 0, 0), 10),
            (Änderungen{{11, "10"}, {10, "1"}}));
  EXPECT_EQ(wabenrechnung(18, waben(10, 0, 0, 0, 0, 0, 1), 10),
            (Änderungen{{11, "10"}, {10, "2"}}));
}

TEST(Wabenrechnung, TeiltDurchDieWabenJeMagazinDesVolkes) {
  EXPECT_EQ(wabenrechnung(12, waben(22, 0, 0, 0, 0, 0, 0), 11),
            (Änderungen{{11, "22"}, {10, "2"}}));
  EXPECT_EQ(wabenrechnung(12, waben(23, 0, 0, 0, 0, 0, 0), 11),
            (Änderungen{{11, "23"}, {10, "3"}}));
}

TEST(Wabenrechnung, OhneWabenJeMagazinBleibenDieMagazine) {
  EXPECT_EQ(wabenrechnung(12, waben(5, 0, 0, 0, 0, 0, 0), 0), (Änderungen{{11, "5"}}));
}

TEST(Wabenrechnung, LeereSlotsZählenNull) {
  EXPECT_EQ(wabenrechnung(12, slottexte({{12, "7"}}), 10), (Änderungen{{11, "7"}, {10, "1"}}));
}

TEST(Wabenbilanz, NenntStandUndUnterschied) {
  const Slottexte vorher = slottexte({{11, "12"}, {18, "2"}});
  const Wabenstand basis = wabenstand(vorher);
  EXPECT_EQ(wabenbilanz(basis, vorher), "MW: 2 (0)   WZ: 12 (0)");
  EXPECT_EQ(wabenbilanz(basis, slottexte({{11, "9"}, {18, "5"}})), "MW: 2 (3)   WZ: 12 (-3)");
  EXPECT_EQ(wabenbilanz({}, slottexte({})), "MW: 0 (0)   WZ: 0 (0)");
}

TEST_F(Geld, WertAusMenge) {
  EXPECT_EQ(folge(1, 1, "10,00"), "6=85");
  EXPECT_EQ(folge(2, 1, "2,50"), "5=30");
  EXPECT_EQ(folge(3, 1, "250"), "5=7,5");
  EXPECT_EQ(folge(4, 2, "3"), "6=1,5");
}

TEST_F(Geld, WertIstSchlichteZahlOhneRundung) {
  EXPECT_EQ(folge(1, 1, "3,33"), "6=28,305");
  EXPECT_EQ(folge(1, 1, ""), "6=0");
  EinstellungenWert[Wertslots.honigJeKg] = 0.1F;
  EXPECT_EQ(folge(1, 1, "0,7"), "6=0,07");
}

TEST_F(Geld, WertMitFaktorNullWirdNull) {
  EinstellungenWert[Wertslots.honigJeKg] = 0;
  EXPECT_EQ(folge(1, 1, "10"), "6=0");
}

TEST_F(Geld, KostenAusZeitMitZweiNachkommastellen) {
  EXPECT_EQ(folge(1, 4, "2,00"), "5=31,00");
  EXPECT_EQ(folge(4, 4, "2,00"), "5=31,00");
  EXPECT_EQ(folge(2, 3, "0,50"), "4=7,75");
  EXPECT_EQ(folge(3, 3, "0,50"), "4=7,75");
  EXPECT_EQ(folge(5, 2, "1"), "3=15,50");
  EXPECT_EQ(folge(6, 2, "1"), "3=15,50");
  EXPECT_EQ(folge(7, 2, "1"), "3=15,50");
  EXPECT_EQ(folge(8, 6, "0,25"), "7=3,88");  // 3.875
  EXPECT_EQ(folge(9, 5, "0,1"), "6=1,55");
}

TEST_F(Geld, OhneStundensatzBleibenGetippteKosten) {
  EinstellungenWert[Wertslots.stundensatz] = 0;
  for (const auto& [art, slot] : {std::pair{1, 4}, {2, 3}, {5, 2}, {8, 6}, {9, 5}})
    EXPECT_EQ(folge(art, slot, "2,00"), "-") << art;
  EXPECT_EQ(folge(1, 1, "10,00"), "6=85");
}

TEST_F(Geld, AndereSlotsLösenNichtsAus) {
  const QList<QSet<int>> auslöser{{}, {1, 4}, {1, 3}, {1, 3}, {2, 4}, {2}, {2}, {2}, {6}, {5}, {}};
  for (int art = 0; art <= 10; ++art)
    for (int slot = 0; slot < AnzahlSlots; ++slot)
      EXPECT_EQ(folge(art, slot, "1") != "-", auslöser[art].contains(slot)) << art << " " << slot;
}

TEST_F(Geld, FolgeänderungenSindWabenBeiDerStockkarteSonstGeld) {
  EXPECT_EQ(folgeänderungen(0, 12, waben(1, 0, 0, 0, 0, 0, 0), 10),
            (Änderungen{{11, "1"}, {10, "1"}}));
  EXPECT_EQ(folgeänderungen(0, 1, slottexte({{1, "2"}}), 10), Änderungen{});
  EXPECT_EQ(folgeänderungen(1, 1, slottexte({{1, "2"}}), 10), (Änderungen{{6, "17"}}));
  EXPECT_EQ(folgeänderungen(1, 12, slottexte({{12, "2"}}), 10), Änderungen{});
}
