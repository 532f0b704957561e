#include "mainform/Feldfolge.h"

#include "Umfeld.h"
#include "mainform/Volkliste.h"

using namespace TZ_Variablen;
using Feldfolge::Liste;

class Felderfolge : public Umfeld {
 protected:
  void SetUp() override {
    Umfeld::SetUp();
    datenbank();
    listenfelderPrüfen();
    stockkartenfelderPrüfen();
  }
};

TEST_F(Felderfolge, StandardderVölkerHatFünfzigFelder) {
  const QStringList felder = Feldfolge::lesen(Liste::Volk, DB);
  EXPECT_EQ(felder.size(), 50);
  EXPECT_EQ(felder.first(), "Volknr");
  EXPECT_EQ(felder[11], "Futterwaben");
  EXPECT_EQ(felder[48], "Selektiert");
  EXPECT_EQ(felder.last(), "ID");
}

TEST_F(Felderfolge, StandardDerStockkarteBeginntMitDatumUndEndetMitID) {
  const QStringList felder = Feldfolge::lesen(Liste::Stockkarte, DB);
  EXPECT_EQ(felder.size(), 29);
  EXPECT_EQ(felder.first(), "Datum");
  EXPECT_EQ(felder[1], QString("Volkstärke"));
  EXPECT_EQ(felder[27], "Bemerkung");
  EXPECT_EQ(felder.last(), "ID");
}

TEST_F(Felderfolge, UngeänderteFelderGebenDieAnweisungDesErstenStarts) {
  EXPECT_EQ(Feldfolge::anweisung(Liste::Volk, Feldfolge::lesen(Liste::Volk, DB)),
            listenfelderStandard());
  EXPECT_EQ(Feldfolge::anweisung(Liste::Stockkarte, Feldfolge::lesen(Liste::Stockkarte, DB)),
            stockkartenfelderStandard());
}

TEST_F(Felderfolge, EigeneReihenfolgeUndAuswahlBleiben) {
  EinstellungenText[Textslots.volkfelder] =
      "select Standort, Volknr, Futterwaben, Selektiert, ID from Bienenvolk";
  EXPECT_EQ(Feldfolge::lesen(Liste::Volk, DB),
            QStringList({"Standort", "Volknr", "Futterwaben", "Selektiert", "ID"}));
}

TEST_F(Felderfolge, SelektiertUndIDKommenDazuWennSieFehlen) {
  EinstellungenText[Textslots.volkfelder] = "select Volknr, Futterwaben from Bienenvolk";
  EXPECT_EQ(Feldfolge::lesen(Liste::Volk, DB),
            QStringList({"Volknr", "Futterwaben", "Selektiert", "ID"}));
}

TEST_F(Felderfolge, IDStehtAmEndeAuchWennSieVorneStand) {
  EinstellungenText[Textslots.volkfelder] =
      "select ID, Selektiert, Volknr, Futterwaben from Bienenvolk";
  EXPECT_EQ(Feldfolge::lesen(Liste::Volk, DB),
            QStringList({"Selektiert", "Volknr", "Futterwaben", "ID"}));
}

TEST_F(Felderfolge, DatumStehtInDerStockkarteVorne) {
  EinstellungenText[Textslots.stockkartenfelder] =
      "select Volk_ID, Waben, Futterwaben, Datum, ID from Stockkarte";
  EXPECT_EQ(Feldfolge::lesen(Liste::Stockkarte, DB),
            QStringList({"Datum", "Volk_ID", "Waben", "Futterwaben", "ID"}));
}

TEST_F(Felderfolge, DatumVolkUndIDDerStockkarteKommenDazuWennSieFehlen) {
  EinstellungenText[Textslots.stockkartenfelder] = "select Waben, Futterwaben from Stockkarte";
  EXPECT_EQ(Feldfolge::lesen(Liste::Stockkarte, DB),
            QStringList({"Datum", "Waben", "Futterwaben", "Volk_ID", "ID"}));
}

TEST_F(Felderfolge, UnbekanntesUndDoppeltesFälltWeg) {
  EinstellungenText[Textslots.volkfelder] =
      "SELECT volknr , VOLKNR, Gibtsnicht, futterwaben, 1+1, Selektiert, ID FROM bienenvolk ";
  EXPECT_EQ(Feldfolge::lesen(Liste::Volk, DB),
            QStringList({"Volknr", "Futterwaben", "Selektiert", "ID"}));
}

TEST_F(Felderfolge, WasKeineFeldlisteIstGibtDieFelderDesErstenStarts) {
  for (const char* text :
       {"", "select * from Bienenvolk", "Futterwaben", "select Futterwaben, ID from Stockkarte",
        "select Volknr, ID from Bienenvolk",
        "select Futterwaben from Bienenvolk where Akt_im_Bestand = 'X'",
        "delete from Bienenvolk"}) {
    EinstellungenText[Textslots.volkfelder] = QString::fromUtf8(text);
    EXPECT_EQ(Feldfolge::lesen(Liste::Volk, DB).size(), 50) << text;
  }
}

TEST_F(Felderfolge, HochUndRunterTauschenMitDemNachbarn) {
  QStringList felder = {"A", "B", "C", "ID"};
  EXPECT_EQ(Feldfolge::verschieben(felder, 1, -1), 0);
  EXPECT_EQ(felder, QStringList({"B", "A", "C", "ID"}));
  EXPECT_EQ(Feldfolge::verschieben(felder, 1, 1), 2);
  EXPECT_EQ(felder, QStringList({"B", "C", "A", "ID"}));
}

TEST_F(Felderfolge, AmAnfangBleibtDasFeldStehen) {
  QStringList felder = {"A", "B", "ID"};
  EXPECT_EQ(Feldfolge::verschieben(felder, 0, -1), 0);
  EXPECT_EQ(felder, QStringList({"A", "B", "ID"}));
}

TEST_F(Felderfolge, DatumUndIDBewegenSichNicht) {
  QStringList felder = {"Datum", "A", "B", "ID"};
  for (const auto& [zeile, schritt] : {std::pair(0, 1), {0, -1}, {3, -1}, {3, 1}, {1, -1}, {2, 1}})
    EXPECT_EQ(Feldfolge::verschieben(felder, zeile, schritt), -1) << zeile << ' ' << schritt;
  EXPECT_EQ(felder, QStringList({"Datum", "A", "B", "ID"}));
  EXPECT_EQ(Feldfolge::unbeweglichText(),
            QString("Das Datum und die ID können nicht verschoben werden."));
}

TEST_F(Felderfolge, OhneZeileGeschiehtNichts) {
  QStringList felder = {"A", "ID"};
  EXPECT_EQ(Feldfolge::verschieben(felder, -1, 1), -1);
  EXPECT_EQ(Feldfolge::verschieben(felder, 2, 1), 2);
  EXPECT_EQ(felder, QStringList({"A", "ID"}));
}

// Whatever the user arranges, the engine takes it.
TEST_F(Felderfolge, JedeGebauteAnweisungLäuft) {
  neu("Bienenvolk", {{"Volknr", "1"}, {"Akt_im_Bestand", "X"}});
  QStringList felder = Feldfolge::lesen(Liste::Volk, DB);
  for (int i = 0; i < felder.size(); ++i) {
    Feldfolge::verschieben(felder, (i * 7) % static_cast<int>(felder.size()), i % 2 == 0 ? 1 : -1);
    EinstellungenText[Textslots.volkfelder] = Feldfolge::anweisung(Liste::Volk, felder);
    const Daten zeilen = volkliste(DB, Volkfilter::Bestand);
    ASSERT_EQ(zeilen->zeilen(), 1);
    ASSERT_EQ(zeilen->spalten(), 50);
    EXPECT_GE(zeilen->spaltenNummer(u"Selektiert"), 0);
    EXPECT_EQ(zeilen->spaltenNummer(u"ID"), 49);
  }
  QStringList stock = Feldfolge::lesen(Liste::Stockkarte, DB);
  Feldfolge::verschieben(stock, 20, -1);
  EXPECT_EQ(DB.Lesen(Feldfolge::anweisung(Liste::Stockkarte, stock))->spalten(), 29);
}
