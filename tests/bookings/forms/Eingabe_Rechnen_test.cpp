// What the form computes while the user types, and the defaults on leaving a slot.
#include "Eingabeprobe.h"

namespace {

using Rechnen = Eingabeprobe;
using namespace TZ_Variablen;

TEST_F(Rechnen, WabenSindDieSummeOhneMittelwände) {
  öffne(0);
  tippe("Honigwaben", "3");
  tippe("Brutwaben", "6");
  tippe("Pollenwaben", "2");
  tippe("Drohnenwaben", "1");
  tippe("Leerwaben", "4");
  tippe("Futterwaben", "2");
  EXPECT_EQ(text("Waben"), "18");
  EXPECT_EQ(text("Magazine"), "2");
  tippe("Mittelwände", "3");
  EXPECT_EQ(text("Waben"), "18") << "foundation sheets are no combs";
  EXPECT_EQ(text("Magazine"), "3") << "but they need room: 21 at ten a magazine";
}

TEST_F(Rechnen, SummeNullGibtNullWabenAberEinMagazin) {
  öffne(0);
  tippe("Honigwaben", "3");
  tippe("Honigwaben", "0");
  EXPECT_EQ(text("Waben"), "0");
  EXPECT_EQ(text("Magazine"), "1");
}

TEST_F(Rechnen, Summe95Gibt95WabenUndDieMagazineVon90) {
  öffne(0);
  tippe("Honigwaben", "60");
  tippe("Brutwaben", "35");
  EXPECT_EQ(text("Waben"), "95");
  EXPECT_EQ(text("Magazine"), "9");
}

// Waben takes two digits from the keyboard; the sum of two such slots can have three.
TEST_F(Rechnen, Sechzigundsechzig120WabenWerdenGezeigtGespeichertUndWiederGezeigt) {
  öffne(0);
  tippe("Honigwaben", "60");
  tippe("Brutwaben", "60");
  EXPECT_EQ(text("Waben"), "120");
  EXPECT_EQ(text("Magazine"), "9") << "the count of 90 combs";
  klicke("neu_0");
  EXPECT_EQ(wert("select Waben from Stockkarte").toInt(), 120);
  EXPECT_EQ(wert("select Magazine from Stockkarte").toInt(), 9);
  klicke("nextvolk1_1");
  EXPECT_EQ(text("Waben"), "0");
  klicke("nextvolk1_0");
  EXPECT_EQ(text("Waben"), "120");
  EXPECT_EQ(text("Honigwaben"), "60");
  klicke("neu_1");
  EXPECT_EQ(wert("select Waben from Stockkarte").toInt(), 120) << "a change keeps it";
  klicke("cmdschließen");
  EXPECT_EQ(wert("select Wabenanzahl from Bienenvolk where ID = 1").toInt(), 120);
}

TEST_F(Rechnen, DieWabenJeMagazinKommenVomAktuellenVolk) {
  DB.Execute("update Bienenvolk set Waben_je_Magazin = 12 where ID = 2");
  liste = std::make_unique<Testliste>();
  öffne(0);
  tippe("Brutwaben", "12");
  EXPECT_EQ(text("Magazine"), "2");
  klicke("nextvolk1_1");
  tippe("Brutwaben", "12");
  EXPECT_EQ(text("Magazine"), "1");
}

TEST_F(Rechnen, WabenBleibenWieGetipptWennKeineWabenartFolgt) {
  öffne(0);
  tippe("Waben", "20");
  tippe("Volksstärke", "3,5");
  EXPECT_EQ(text("Waben"), "20");
  klicke("neu_0");
  EXPECT_EQ(wert("select Waben from Stockkarte").toInt(), 20);
  EXPECT_EQ(text("Waben"), "20") << "showing the booking computes nothing anew";
}

TEST_F(Rechnen, DieBilanzZeigtBasisUndUnterschied) {
  zeile("Stockkarte", 1, "2026-05-01",
        {{"Mittelwände", 2}, {"Waben", 10}, {"Brutwaben", 10}, {"Magazine", 2}});
  öffne(0);
  EXPECT_EQ(schild("bezmw"), "");
  tippe("Mittelwände", "3");
  EXPECT_EQ(schild("bezmw"), "MW: 2 (1)   WZ: 10 (0)");
  tippe("Brutwaben", "7");
  EXPECT_EQ(schild("bezmw"), "MW: 2 (1)   WZ: 10 (-3)");
  klicke(li(), 0);
  EXPECT_EQ(schild("bezmw"), "");
  EXPECT_EQ(text("Brutwaben"), "10");
}

TEST_F(Rechnen, DieBilanzGehörtZurStockkarteUndNichtZumVorigenVolk) {
  zeile("Stockkarte", 1, "2026-05-01", {{"Waben", 10}});
  öffne(0);
  klicke("nextvolk1_1");
  tippe("Brutwaben", "4");
  EXPECT_EQ(schild("bezmw"), "MW: 0 (0)   WZ: 0 (4)");
  klicke("opti_1");
  tippe("Menge (kg)", "4");
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
  const Fall fälle[] = {
      {1, 1, "3", 6, "28,5"},     {2, 1, "1,5", 5, "30"},    {3, 1, "250", 5, "12,5"},
      {4, 2, "30", 6, "7,5"},     {1, 4, "1,5", 5, "27,00"}, {4, 4, "2", 5, "36,00"},
      {2, 3, "0,5", 4, "9,00"},   {3, 3, "0,5", 4, "9,00"},  {5, 2, "1", 3, "18,00"},
      {6, 2, "1,25", 3, "22,50"}, {7, 2, "0,1", 3, "1,80"},  {8, 6, "2", 7, "36,00"},
      {9, 5, "0,75", 6, "13,50"}};
  öffne(0);
  for (const Fall& fall : fälle) {
    klicke("opti_" + QString::number(fall.art));
    tippe(fall.quelle, fall.eingabe);
    EXPECT_EQ(text(fall.ziel), fall.ergebnis) << "Art " << fall.art << " Platz " << fall.quelle;
  }
}

TEST_F(Rechnen, OhneStundensatzBleibenGetippteKostenStehen) {
  EinstellungenWert[Wertslots.stundensatz] = 0;
  öffne(5);
  tippe("Kosten", "7,50");
  tippe("Zeit (h)", "2");
  EXPECT_EQ(text("Kosten"), "7,50");
}

TEST_F(Rechnen, BeimZeigenEinerBuchungBleibtIhrWertStehen) {
  EinstellungenWert[Wertslots.honigJeKg] = 10;
  zeile("Honigernte", 1, "2026-05-01", {{"Menge_kg", 5}, {"Honig_Wert", 33}});
  öffne(1);
  EXPECT_EQ(text("Honigwert"), "33,00");
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
  öffne(8);
  tippe("Behandlungsart", "Sommerbehandlung");
  EXPECT_EQ(text("Mittel"), "") << "only on leaving";
  taste(feld("Behandlungsart"), Qt::Key_Tab);
  EXPECT_EQ(text("Mittel"), "Ameisensäure") << "the newest one of all colonies";
  EXPECT_EQ(text("Menge (g)"), "120");
  EXPECT_EQ(text("Zulassungsnr"), "Z-2");
  EXPECT_EQ(text("Wartezeit in Tagen"), "14");
  tippe("Mittel", "Thymol");
  taste(feld("Mittel"), Qt::Key_Tab);
  EXPECT_EQ(text("Menge (g)"), "50");
  EXPECT_EQ(text("Zulassungsnr"), "Z-1");
  EXPECT_EQ(text("Wartezeit in Tagen"), "30");
}

TEST_F(Rechnen, EineLeereBehandlungsartHoltNichts) {
  zeile("Behandlung", 2, "2025-08-01", {{"Behandlungsart", ""}, {"Mittel", "Thymol"}});
  öffne(8);
  feld("Behandlungsart")->setFocus();
  taste(feld("Behandlungsart"), Qt::Key_Tab);
  EXPECT_EQ(text("Mittel"), "");
}

TEST_F(Rechnen, EinGriffInDieAuswahllisteWirktWieDasVerlassen) {
  zeile("Behandlung", 2, "2025-08-01", {{"Behandlungsart", "Sommer"}, {"Mittel", "Thymol"}});
  öffne(8);
  feld("Behandlungsart")->setFocus();
  feld("Behandlungsart")->setInhalt("Sommer");
  Q_EMIT feld("Behandlungsart")->ausListeGenommen("Sommer");
  EXPECT_EQ(text("Mittel"), "Thymol");
}

// 10 kg fetched 95: 9.50 a kilogram; 4 kg are worth 38.
TEST_F(Rechnen, DerLetztePreisDerSorteSchlägtDenFestenFaktorBeimVerlassen) {
  EinstellungenWert[Wertslots.honigJeKg] = 7;
  zeile("Honigernte", 2, "2025-07-01",
        {{"Menge_kg", 10}, {"Honigsorte", "Raps"}, {"Qualität", "I"}, {"Honig_Wert", 95}});
  öffne(1);
  tippe("Honigsorte", "Raps");
  tippe("Qualität", "I");
  tippe("Menge (kg)", "4");
  EXPECT_EQ(text("Honigwert"), "28") << "while typing the fixed factor counts";
  taste(feld("Menge (kg)"), Qt::Key_Tab);
  EXPECT_EQ(text("Honigwert"), "38,00");
}

TEST_F(Rechnen, WachsPollenUndSonstigeErnteNehmenAuchDenLetztenPreis) {
  zeile("Wachsernte", 2, "2025-07-01", {{"Menge_kg", 2}, {"Qualität", "gut"}, {"Wachs_Wert", 24}});
  zeile("Pollenernte", 2, "2025-07-01",
        {{"Menge_g", 200}, {"Qualität", "gut"}, {"Pollen_Wert", 10}});
  zeile("Sonstigeernte", 2, "2025-07-01",
        {{"Ernteart", "Propolis"}, {"Menge_g", 100}, {"Qualität", "gut"}, {"Wert", 30}});
  öffne(2);
  tippe("Menge (kg)", "3");
  tippe("Qualität", "gut");
  taste(feld("Qualität"), Qt::Key_Tab);
  EXPECT_EQ(text("Wachswert"), "36,00");
  klicke("opti_3");
  tippe("Menge (g)", "50");
  tippe("Qualität", "gut");
  taste(feld("Qualität"), Qt::Key_Tab);
  EXPECT_EQ(text("Pollenwert"), "2,50");
  klicke("opti_4");
  tippe("Art der Ernte", "Propolis");
  tippe("Menge (g)", "40");
  tippe("Qualität", "gut");
  taste(feld("Qualität"), Qt::Key_Tab);
  EXPECT_EQ(text("Wert"), "12,00");
}

TEST_F(Rechnen, EineErnteOhneMengeGibtKeinenPreis) {
  EinstellungenWert[Wertslots.honigJeKg] = 7;
  zeile("Honigernte", 2, "2025-07-01",
        {{"Menge_kg", 0}, {"Honigsorte", "Raps"}, {"Qualität", ""}, {"Honig_Wert", 95}});
  öffne(1);
  tippe("Honigsorte", "Raps");
  tippe("Menge (kg)", "4");
  taste(feld("Menge (kg)"), Qt::Key_Tab);
  EXPECT_EQ(text("Honigwert"), "28");
}

// Mouse, Enter and mnemonic leave the slot alike: the price last achieved counts before the fixed
// one.
TEST_F(Rechnen, EingabetasteUndKürzelBuchenDasselbeWieDieMaus) {
  EinstellungenWert[Wertslots.honigJeKg] = 7;
  zeile("Honigernte", 2, "2025-07-01",
        {{"Menge_kg", 10}, {"Honigsorte", "Raps"}, {"Qualität", "I"}, {"Honig_Wert", 95}});
  const QList<std::function<void()>> wege{
      [this] { klicke("neu_0"); },
      [this] { taste(feld(1), Qt::Key_Return); },
      [this] { taste(feld(1), Qt::Key_N, Qt::AltModifier); },
  };
  for (qsizetype i = 0; i < wege.size(); ++i) {
    DB.Execute("delete from Honigernte where Volk_ID = 1");
    öffne(1);
    tippe("Honigsorte", "Raps");
    tippe("Qualität", "I");
    tippe("Menge (kg)", "4");
    ASSERT_EQ(text("Honigwert"), "28");
    wege[i]();
    QTRY_COMPARE(anzahl("Honigernte"), 2);
    EXPECT_EQ(wert("select Honig_Wert from Honigernte where Volk_ID = 1").toDouble(), 38.0) << i;
    form->close();
  }
}

TEST_F(Rechnen, EineBehandlungMitDerEingabetasteHatMittelNummerUndWartezeit) {
  zeile("Behandlung", 2, "2025-08-01",
        {{"Behandlungsart", "Sommerbehandlung"},
         {"Mittel", "Thymol"},
         {"Menge_g", 50},
         {"Zulassungsnr", "Z-1"},
         {"Wartezeit", 30}});
  öffne(8);
  tippe("Behandlungsart", "Somm");  // the only text of the list that begins so
  taste(feld("Behandlungsart"), Qt::Key_Return);
  const Daten daten = lies("select * from Behandlung where Volk_ID = 1");
  ASSERT_EQ(daten->zeilen(), 1);
  const auto feldwert = [&](const char* name) {
    return daten->wert(0, daten->spaltenNummer(QString(name))).toString();
  };
  EXPECT_EQ(feldwert("Behandlungsart"), "Sommerbehandlung");
  EXPECT_EQ(feldwert("Mittel"), "Thymol");
  EXPECT_EQ(feldwert("Menge_g"), "50");
  EXPECT_EQ(feldwert("Zulassungsnr"), "Z-1");
  EXPECT_EQ(feldwert("Wartezeit"), "30");
}

// Booking moves the focus to the date; that is no leaving by the user, who would book 38 next.
TEST_F(Rechnen, NachDerEingabetasteStehtDieBuchungDaWieSieGespeichertIst) {
  EinstellungenWert[Wertslots.honigJeKg] = 7;
  zeile("Honigernte", 2, "2026-07-01",
        {{"Menge_kg", 10}, {"Honigsorte", "Raps"}, {"Qualität", "I"}, {"Honig_Wert", 95}});
  öffne(1);
  tippe("Honigsorte", "Raps");
  tippe("Qualität", "I");
  tippe("Menge (kg)", "4");
  tippe("Honigwert", "28");
  taste(feld("Honigwert"), Qt::Key_Return);
  EXPECT_TRUE(hatFokus("Datum"));
  EXPECT_EQ(text("Honigwert"), "28,00");
}

TEST_F(Rechnen, GetippteTausenderGebenDenWertDerZahl) {
  EinstellungenWert[Wertslots.honigJeKg] = 2;
  öffne(1);
  tippe("Menge (kg)", "1.234,5");
  EXPECT_EQ(text("Honigwert"), "2469");
  taste(feld("Menge (kg)"), Qt::Key_Return);
  EXPECT_EQ(wert("select Menge_kg from Honigernte").toDouble(), 1234.5);
}

}  // namespace
