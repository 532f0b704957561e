// What the form computes while the user types, and the defaults on leaving a slot.
#include "Eingabeprobe.h"

namespace {

using Rechnen = Eingabeprobe;
using namespace TZ_Variablen;

TEST_F(Rechnen, WabenSindDieSummeOhneMittelwaende) {
  oeffne(0);
  tippe(12, "3");
  tippe(13, "6");
  tippe(14, "2");
  tippe(16, "1");
  tippe(17, "4");
  tippe(19, "2");
  EXPECT_EQ(text(11), "18");
  EXPECT_EQ(text(10), "2");
  tippe(18, "3");
  EXPECT_EQ(text(11), "18") << "foundation sheets are no combs";
  EXPECT_EQ(text(10), "3") << "but they need room: 21 at ten a magazine";
}

TEST_F(Rechnen, SummeNullGibtNullWabenAberEinMagazin) {
  oeffne(0);
  tippe(12, "3");
  tippe(12, "0");
  EXPECT_EQ(text(11), "0");
  EXPECT_EQ(text(10), "1");
}

TEST_F(Rechnen, Summe95Gibt95WabenUndDieMagazineVon90) {
  oeffne(0);
  tippe(12, "60");
  tippe(13, "35");
  EXPECT_EQ(text(11), "95");
  EXPECT_EQ(text(10), "9");
}

// Waben takes two digits from the keyboard; the sum of two such slots can have three.
TEST_F(Rechnen, Sechzigundsechzig120WabenWerdenGezeigtGespeichertUndWiederGezeigt) {
  oeffne(0);
  tippe(12, "60");
  tippe(13, "60");
  EXPECT_EQ(text(11), "120");
  EXPECT_EQ(text(10), "9") << "the count of 90 combs";
  klicke("neu_0");
  EXPECT_EQ(wert("select Waben from Stockkarte").toInt(), 120);
  EXPECT_EQ(wert("select Magazine from Stockkarte").toInt(), 9);
  klicke("nextvolk1_1");
  EXPECT_EQ(text(11), "0");
  klicke("nextvolk1_0");
  EXPECT_EQ(text(11), "120");
  EXPECT_EQ(text(12), "60");
  klicke("neu_1");
  EXPECT_EQ(wert("select Waben from Stockkarte").toInt(), 120) << "a change keeps it";
  klicke("cmdschließen");
  EXPECT_EQ(wert("select Wabenanzahl from Bienenvolk where ID = 1").toInt(), 120);
}

TEST_F(Rechnen, DieWabenJeMagazinKommenVomAktuellenVolk) {
  DB.Execute("update Bienenvolk set Waben_je_Magazin = 12 where ID = 2");
  liste = std::make_unique<Testliste>();
  oeffne(0);
  tippe(13, "12");
  EXPECT_EQ(text(10), "2");
  klicke("nextvolk1_1");
  tippe(13, "12");
  EXPECT_EQ(text(10), "1");
}

TEST_F(Rechnen, WabenBleibenWieGetipptWennKeineWabenartFolgt) {
  oeffne(0);
  tippe(11, "20");
  tippe(1, "3,5");
  EXPECT_EQ(text(11), "20");
  klicke("neu_0");
  EXPECT_EQ(wert("select Waben from Stockkarte").toInt(), 20);
  EXPECT_EQ(text(11), "20") << "showing the booking computes nothing anew";
}

TEST_F(Rechnen, DieBilanzZeigtBasisUndUnterschied) {
  zeile("Stockkarte", 1, "2026-05-01",
        {{"Mittelwände", 2}, {"Waben", 10}, {"Brutwaben", 10}, {"Magazine", 2}});
  oeffne(0);
  EXPECT_EQ(schild("bezmw"), "");
  tippe(18, "3");
  EXPECT_EQ(schild("bezmw"), "MW: 2 (1)   WZ: 10 (0)");
  tippe(13, "7");
  EXPECT_EQ(schild("bezmw"), "MW: 2 (1)   WZ: 10 (-3)");
  klicke(li(), 0);
  EXPECT_EQ(schild("bezmw"), "");
  EXPECT_EQ(text(13), "10");
}

TEST_F(Rechnen, DieBilanzGehoertZurStockkarteUndNichtZumVorigenVolk) {
  zeile("Stockkarte", 1, "2026-05-01", {{"Waben", 10}});
  oeffne(0);
  klicke("nextvolk1_1");
  tippe(13, "4");
  EXPECT_EQ(schild("bezmw"), "MW: 0 (0)   WZ: 0 (4)");
  klicke("opti_1");
  tippe(1, "4");
  EXPECT_EQ(schild("bezmw"), "");
}

TEST_F(Rechnen, JedeGeldvorgabeFolgtIhrerMengeBeimTippen) {
  EinstellungenWert = {9.5f, 20, 0.05f, 0.25f, 18};
  struct Fall {
    int art, quelle;
    const char* eingabe;
    int ziel;
    const char* ergebnis;
  };
  const Fall faelle[] = {
      {1, 1, "3", 6, "28,5"},     {2, 1, "1,5", 5, "30"},    {3, 1, "250", 5, "12,5"},
      {4, 2, "30", 6, "7,5"},     {1, 4, "1,5", 5, "27,00"}, {4, 4, "2", 5, "36,00"},
      {2, 3, "0,5", 4, "9,00"},   {3, 3, "0,5", 4, "9,00"},  {5, 2, "1", 3, "18,00"},
      {6, 2, "1,25", 3, "22,50"}, {7, 2, "0,1", 3, "1,80"},  {8, 6, "2", 7, "36,00"},
      {9, 5, "0,75", 6, "13,50"}};
  oeffne(0);
  for (const Fall& fall : faelle) {
    klicke("opti_" + QString::number(fall.art));
    tippe(fall.quelle, fall.eingabe);
    EXPECT_EQ(text(fall.ziel), fall.ergebnis) << "Art " << fall.art << " Platz " << fall.quelle;
  }
}

TEST_F(Rechnen, OhneStundensatzBleibenGetippteKostenStehen) {
  EinstellungenWert[4] = 0;
  oeffne(5);
  tippe(3, "7,50");
  tippe(2, "2");
  EXPECT_EQ(text(3), "7,50");
}

TEST_F(Rechnen, BeimZeigenEinerBuchungBleibtIhrWertStehen) {
  EinstellungenWert[0] = 10;
  zeile("Honigernte", 1, "2026-05-01", {{"Menge_kg", 5}, {"Honig_Wert", 33}});
  oeffne(1);
  EXPECT_EQ(text(6), "33,00");
}

TEST_F(Rechnen, DieBehandlungsartHoltMittelMengeZulassungUndWartezeit) {
  zeile("Behandlung", 2, "2025-08-01",
        {{"Behandlungsart", "Sommerbehandlung"},
         {"Mittel", "Thymol"},
         {"Menge_g", 50},
         {"Zulassungsnr", "Z-1"},
         {"Wartezeit", 30}});
  zeile("Behandlung", 3, "2025-09-01",
        {{"Behandlungsart", "Sommerbehandlung"},
         {"Mittel", "Ameisensäure"},
         {"Menge_g", 120},
         {"Zulassungsnr", "Z-2"},
         {"Wartezeit", 14}});
  oeffne(8);
  tippe(1, "Sommerbehandlung");
  EXPECT_EQ(text(2), "") << "only on leaving";
  taste(feld(1), Qt::Key_Tab);
  EXPECT_EQ(text(2), "Ameisensäure") << "the newest one of all colonies";
  EXPECT_EQ(text(3), "120");
  EXPECT_EQ(text(4), "Z-2");
  EXPECT_EQ(text(5), "14");
  tippe(2, "Thymol");
  taste(feld(2), Qt::Key_Tab);
  EXPECT_EQ(text(3), "50");
  EXPECT_EQ(text(4), "Z-1");
  EXPECT_EQ(text(5), "30");
}

TEST_F(Rechnen, EineLeereBehandlungsartHoltNichts) {
  zeile("Behandlung", 2, "2025-08-01", {{"Behandlungsart", ""}, {"Mittel", "Thymol"}});
  oeffne(8);
  feld(1)->setFocus();
  taste(feld(1), Qt::Key_Tab);
  EXPECT_EQ(text(2), "");
}

TEST_F(Rechnen, EinGriffInDieAuswahllisteWirktWieDasVerlassen) {
  zeile("Behandlung", 2, "2025-08-01", {{"Behandlungsart", "Sommer"}, {"Mittel", "Thymol"}});
  oeffne(8);
  feld(1)->setFocus();
  feld(1)->setInhalt("Sommer");
  Q_EMIT feld(1)->ausListeGewaehlt("Sommer");
  EXPECT_EQ(text(2), "Thymol");
}

// 10 kg fetched 95: 9.50 a kilogram; 4 kg are worth 38.
TEST_F(Rechnen, DerLetztePreisDerSorteSchlaegtDenFestenFaktorBeimVerlassen) {
  EinstellungenWert[0] = 7;
  zeile("Honigernte", 2, "2025-07-01",
        {{"Menge_kg", 10}, {"Honigsorte", "Raps"}, {"Qualität", "I"}, {"Honig_Wert", 95}});
  oeffne(1);
  tippe(2, "Raps");
  tippe(3, "I");
  tippe(1, "4");
  EXPECT_EQ(text(6), "28") << "while typing the fixed factor counts";
  taste(feld(1), Qt::Key_Tab);
  EXPECT_EQ(text(6), "38,00");
}

TEST_F(Rechnen, WachsPollenUndSonstigeErnteNehmenAuchDenLetztenPreis) {
  zeile("Wachsernte", 2, "2025-07-01", {{"Menge_kg", 2}, {"Qualität", "gut"}, {"Wachs_Wert", 24}});
  zeile("Pollenernte", 2, "2025-07-01",
        {{"Menge_g", 200}, {"Qualität", "gut"}, {"Pollen_Wert", 10}});
  zeile("Sonstigeernte", 2, "2025-07-01",
        {{"Ernteart", "Propolis"}, {"Menge_g", 100}, {"Qualität", "gut"}, {"Wert", 30}});
  oeffne(2);
  tippe(1, "3");
  tippe(2, "gut");
  taste(feld(2), Qt::Key_Tab);
  EXPECT_EQ(text(5), "36,00");
  klicke("opti_3");
  tippe(1, "50");
  tippe(2, "gut");
  taste(feld(2), Qt::Key_Tab);
  EXPECT_EQ(text(5), "2,50");
  klicke("opti_4");
  tippe(1, "Propolis");
  tippe(2, "40");
  tippe(3, "gut");
  taste(feld(3), Qt::Key_Tab);
  EXPECT_EQ(text(6), "12,00");
}

TEST_F(Rechnen, EineErnteOhneMengeGibtKeinenPreis) {
  EinstellungenWert[0] = 7;
  zeile("Honigernte", 2, "2025-07-01",
        {{"Menge_kg", 0}, {"Honigsorte", "Raps"}, {"Qualität", ""}, {"Honig_Wert", 95}});
  oeffne(1);
  tippe(2, "Raps");
  tippe(1, "4");
  taste(feld(1), Qt::Key_Tab);
  EXPECT_EQ(text(6), "28");
}

TEST_F(Rechnen, GebuchtWirdWasZuSehenWarAuchMitDerEingabetaste) {
  EinstellungenWert[0] = 7;
  zeile("Honigernte", 2, "2025-07-01",
        {{"Menge_kg", 10}, {"Honigsorte", "Raps"}, {"Qualität", "I"}, {"Honig_Wert", 95}});
  oeffne(1);
  tippe(2, "Raps");
  tippe(3, "I");
  tippe(1, "4");
  ASSERT_EQ(text(6), "28");
  taste(feld(1), Qt::Key_Return);
  EXPECT_EQ(wert("select Honig_Wert from Honigernte where Volk_ID = 1").toDouble(), 28.0);
}

// Booking moves the focus to the date; that is no leaving by the user, who would book 38 next.
TEST_F(Rechnen, NachDerEingabetasteStehtDieBuchungDaWieSieGespeichertIst) {
  EinstellungenWert[0] = 7;
  zeile("Honigernte", 2, "2026-07-01",
        {{"Menge_kg", 10}, {"Honigsorte", "Raps"}, {"Qualität", "I"}, {"Honig_Wert", 95}});
  oeffne(1);
  tippe(2, "Raps");
  tippe(3, "I");
  tippe(1, "4");
  taste(feld(1), Qt::Key_Return);
  EXPECT_TRUE(hatFokus(0));
  EXPECT_EQ(text(6), "28,00");
}

}  // namespace
