// What a booking over several colonies divides, multiplies and books into the honey store.
#include "Bestand.h"

using TZ_Variablen::EinstellungenWert;
using TZ_Variablen::EinstellungenZahl;

namespace {

class Sammelbuchung : public Bestand {
 protected:
  void SetUp() override {
    Bestand::SetUp();
    EinstellungenZahl[Zahlslots.ernteInsHoniglager] = 0;
    EinstellungenZahl[Zahlslots.sammelbuchungTeilen] = 0;
    EinstellungenZahl[Zahlslots.honigInWaben] = 0;
    EinstellungenWert.fill(0);
  }
  static void lagerAn() { EinstellungenZahl[Zahlslots.ernteInsHoniglager] = 1; }
  static void teilenAn() { EinstellungenZahl[Zahlslots.sammelbuchungTeilen] = 1; }
  static void wabenAn(float kg) {
    EinstellungenZahl[Zahlslots.honigInWaben] = 1;
    EinstellungenWert[Wertslots.kgJeHonigwabe] = kg;
  }
  // Every number slot holds "10", divided over three colonies; the row as "Feld=Wert" for what
  // isn't text.
  QString geteilt(int art) {
    teilenAn();
    QList<Slotänderung> texte;
    QStringList felder;
    for (const Buchungsslot& slot : buchungstyp(art).plätze)
      if (slot.art == Verwaltung::Art::Dezimal || slot.art == Verwaltung::Art::Ganzzahl) {
        texte.append({slot.nummer, "10"});
        felder.append(slot.feld);
      }
    lauf(buchung(art, "05.06.2026", texte), {"1", "2", "3"});
    QStringList zeile;
    for (const QString& name : felder)
      zeile.append(name + "=" + feld(buchungstyp(art).tabelle, name));
    return zeile.join(" ");
  }
};

Buchung honig(const QString& menge) {
  return buchung(1, "05.06.2026", {{1, menge}, {2, "Ra'ps"}, {7, "L'1"}, {8, "x"}});
}

}  // namespace

TEST_F(Sammelbuchung, TeilungHonigernte) {
  EXPECT_EQ(geteilt(1), "Menge_kg=3,33 Zeit_h=3,33 Kosten=3,33 Honig_Wert=3,33");
}
TEST_F(Sammelbuchung, TeilungWachsernte) {
  EXPECT_EQ(geteilt(2), "Menge_kg=3,33 Zeit_h=3,33 Kosten=3,33 Wachs_Wert=3,33");
}
TEST_F(Sammelbuchung, TeilungPollenernte) {
  EXPECT_EQ(geteilt(3), "Menge_g=3 Zeit_h=3,33 Kosten=3,33 Pollen_Wert=3,33");
}
TEST_F(Sammelbuchung, TeilungSonstigeErnte) {
  EXPECT_EQ(geteilt(4), "Menge_g=3 Zeit_h=3,33 Kosten=3,33 Wert=3,33");
}
TEST_F(Sammelbuchung, TeilungArbeiten) { EXPECT_EQ(geteilt(5), "Zeit_h=3,33 Kosten=3,33"); }
TEST_F(Sammelbuchung, TeilungWanderung) {
  EXPECT_EQ(geteilt(6), "Zeit_h=3,33 Kosten=3,33 Standortprämie=3,33");
}
TEST_F(Sammelbuchung, TeilungGewichtsmessungOhneGewicht) {
  EXPECT_EQ(geteilt(7), "Gewicht_kg=10 Zeit_h=3,33 Kosten=3,33");
}
TEST_F(Sammelbuchung, TeilungBehandlungOhneWartezeitUndVarroen) {
  EXPECT_EQ(geteilt(8), "Menge_g=3 Wartezeit=10 Zeit_h=3,33 Kosten=3,33 Anz_Varroen=10");
}
TEST_F(Sammelbuchung, TeilungKöniginwechsel) { EXPECT_EQ(geteilt(9), "Zeit_h=3,33 Kosten=3,33"); }
TEST_F(Sammelbuchung, StockkarteTeiltNichts) {
  const QString zeile = geteilt(0);
  EXPECT_EQ(zeile.count("=10"), 25);
  EXPECT_FALSE(zeile.contains("3,33"));
}
TEST_F(Sammelbuchung, NotizenTeiltNichts) {
  teilenAn();
  lauf(buchung(10, "05.06.2026", {{15, "10"}}), {"1", "2", "3"});
  EXPECT_EQ(spalte("select NOTIZ from Notizen"), "10|10|10");
}

TEST_F(Sammelbuchung, GrammWerdenHalbZurGeradenGerundet) {
  teilenAn();
  lauf(buchung(3, "05.06.2026", {{1, "5"}}), {"1", "2"});  // 2,5
  EXPECT_EQ(feld("Pollenernte", "Menge_g"), "2");
  lauf(buchung(3, "05.06.2026", {{1, "7"}}), {"1", "2"});  // 3,5
  EXPECT_EQ(feld("Pollenernte", "Menge_g"), "4");
  lauf(buchung(3, "05.06.2026", {{1, "8"}}), {"1", "2", "3"});  // 2,67
  EXPECT_EQ(feld("Pollenernte", "Menge_g"), "3");
}

TEST_F(Sammelbuchung, OhneSchalterWirdNichtGeteilt) {
  lauf(buchung(5, "05.06.2026", {{1, "a"}, {2, "3,00"}}), {"1", "2", "3"});
  EXPECT_EQ(spalte("select Zeit_h from Arbeiten"), "3|3|3");
}

TEST_F(Sammelbuchung, EinVolkWirdNichtGeteiltUndNichtGerundet) {
  teilenAn();
  lauf(buchung(7, "05.06.2026", {{2, "3,123"}}), {"1"});
  EXPECT_EQ(feld("Gewichtsmessung", "Zeit_h"), "3,123");
}

TEST_F(Sammelbuchung, ÄndernBeiMehrerenMarkiertenTeiltEbenfalls) {
  neu(buchung(5, "05.06.2026", {{1, "a"}, {2, "3,00"}}));
  teilenAn();
  m_kontext.anzahlMarkiert = 3;
  Buchung b = buchung(5, "05.06.2026", {{1, "a"}, {2, "3,00"}});
  BuchungSpeichern(db(), b, "1", "1", m_kontext);
  EXPECT_EQ(feld("Arbeiten", "Zeit_h"), "1");
  EXPECT_EQ(b.texte[2], "3,00");
}

TEST_F(Sammelbuchung, ZehnKiloAufDreiVölkerGibt3Komma33UndZugang10Einmal) {
  teilenAn();
  lagerAn();
  lauf(honig("10,00"), {"1", "2", "3"});
  EXPECT_EQ(spalte("select Menge_kg from Honigernte"), "3,33|3,33|3,33");
  EXPECT_EQ(spalte("select Zugang from Honiglager"), "10");
}

TEST_F(Sammelbuchung, OhneTeilungZehnKiloJeVolkUndZugang30Einmal) {
  lagerAn();
  lauf(honig("10,00"), {"1", "2", "3"});
  EXPECT_EQ(spalte("select Menge_kg from Honigernte"), "10|10|10");
  EXPECT_EQ(spalte("select Zugang from Honiglager"), "30");
}

TEST_F(Sammelbuchung, ZeileDesHoniglagers) {
  lagerAn();
  lauf(honig("2,50"), {"1"});
  EXPECT_EQ(anzahl("Honiglager"), 1);
  EXPECT_EQ(feld("Honiglager", "Datum"), "05.06.2026");
  EXPECT_EQ(feld("Honiglager", "Produkt"), "Ra`ps");
  EXPECT_EQ(feld("Honiglager", "Zugang"), "2,5");
  EXPECT_EQ(feld("Honiglager", "Abgang"), "0");
  EXPECT_EQ(feld("Honiglager", "Charge"), "L`1");
  EXPECT_EQ(feld("Honiglager", "Bemerkung"), "");
  EXPECT_EQ(feld("Honiglager", "EVK_ID"), "0");
  EXPECT_EQ(feld("Honiglager", "Abfülldatum"), "<null>");
}

TEST_F(Sammelbuchung, KeinLagerOhneSchalterOhneMengeOderAlsFolgevolk) {
  neu(honig("10"));
  EXPECT_EQ(anzahl("Honiglager"), 0);
  lagerAn();
  neu(honig("0,00"));
  EXPECT_EQ(anzahl("Honiglager"), 0);
  TZ_Variablen::SammelFolgevolk = true;
  neu(honig("10"));
  EXPECT_EQ(anzahl("Honiglager"), 0);
  TZ_Variablen::SammelFolgevolk = false;
  neu(honig("10"));
  EXPECT_EQ(anzahl("Honiglager"), 1);
}

TEST_F(Sammelbuchung, NurHonigKommtInsLager) {
  lagerAn();
  neu(buchung(2, "05.06.2026", {{1, "10"}}));
  neu(buchung(4, "05.06.2026", {{1, "Honig"}, {2, "10"}}));
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

TEST_F(Sammelbuchung, ÄndernVon10Auf12LässtDasLagerBei10) {
  lagerAn();
  neu(honig("10"));
  Buchung b = honig("12");
  BuchungSpeichern(db(), b, "1", "1", m_kontext);
  EXPECT_EQ(feld("Honigernte", "Menge_kg"), "12");
  EXPECT_EQ(spalte("select Zugang from Honiglager"), "10");
}

TEST_F(Sammelbuchung, ZweiLäufeSindZweiLagerbewegungen) {
  lagerAn();
  lauf(honig("1"), {"1", "2"});
  lauf(honig("2"), {"1", "2"});
  EXPECT_EQ(spalte("select Zugang from Honiglager order by ID"), "2|4");
}

TEST_F(Sammelbuchung, ZugangOhneBinärrest) {
  lagerAn();
  lauf(honig("3,3"), {"1", "2", "3"});
  EXPECT_EQ(spalte("select Zugang from Honiglager"), "9,9");
}

TEST_F(Sammelbuchung, EineAndereStellungDesTeilensTeiltNichtUndNimmtDenZugangWieErSteht) {
  lagerAn();
  EinstellungenZahl[Zahlslots.sammelbuchungTeilen] = 2;
  lauf(honig("10"), {"1", "2"});
  EXPECT_EQ(spalte("select Menge_kg from Honigernte"), "10|10");
  EXPECT_EQ(spalte("select Zugang from Honiglager"), "10");
}

TEST_F(Sammelbuchung, HonigwabenWerdenKilo) {
  wabenAn(2.2F);
  const Buchung danach = lauf(honig("3"), {"1"});
  EXPECT_EQ(feld("Honigernte", "Menge_kg"), "6,6");
  EXPECT_EQ(danach.texte[1], "6,60");
}

TEST_F(Sammelbuchung, ZweitesVolkMultipliziertNocheinmal) {
  wabenAn(2);
  lagerAn();
  const Buchung danach = lauf(honig("3"), {"1", "2", "3"});
  EXPECT_EQ(spalte("select Menge_kg from Honigernte order by ID"), "6|12|24");
  EXPECT_EQ(danach.texte[1], "24,00");
  EXPECT_EQ(spalte("select Zugang from Honiglager"), "18");  // 6 x 3, at the first colony
}

TEST_F(Sammelbuchung, WabenUndTeilung) {
  wabenAn(2);
  teilenAn();
  lagerAn();
  lauf(honig("3"), {"1", "2"});
  EXPECT_EQ(spalte("select Menge_kg from Honigernte order by ID"), "3|6");
  EXPECT_EQ(spalte("select Zugang from Honiglager"), "6");
}

TEST_F(Sammelbuchung, ÄndernMultipliziertNicht) {
  neu(honig("3"));
  wabenAn(2);
  Buchung b = honig("4");
  BuchungSpeichern(db(), b, "1", "1", m_kontext);
  EXPECT_EQ(feld("Honigernte", "Menge_kg"), "4");
  EXPECT_EQ(b.texte[1], "4");
}

TEST_F(Sammelbuchung, OhneFaktorOderSchalterBleibenDieWaben) {
  wabenAn(0);
  neu(honig("3"));
  EXPECT_EQ(feld("Honigernte", "Menge_kg"), "3");
  wabenAn(2);
  EinstellungenZahl[Zahlslots.honigInWaben] = 0;
  neu(honig("3"));
  EXPECT_EQ(feld("Honigernte", "Menge_kg"), "3");
}

TEST_F(Sammelbuchung, NurHonigRechnetWabenUm) {
  wabenAn(2);
  neu(buchung(2, "05.06.2026", {{1, "3"}}));
  EXPECT_EQ(feld("Wachsernte", "Menge_kg"), "3");
}

TEST_F(Sammelbuchung, HonigwertNachDemLetztenPreisFolgtDenKilo) {
  wabenAn(2);
  EinstellungenWert[Wertslots.honigJeKg] = 5;
  schreibe(
      "insert into Honigernte (Honigsorte, Qualität, Menge_kg, Honig_Wert, Datum, Volk_ID) values "
      "('Ra`ps', '', 10, 80, ?, 3)",
      {QDate(2025, 6, 1)});
  Buchung b = honig("3");
  b.texte[6] = "24,00";  // 3 x 8, put in on leaving the slot
  const Buchung danach = lauf(b, {"1", "2"});
  EXPECT_EQ(spalte("select Honig_Wert from Honigernte order by ID"), "80,00|48,00|96,00");
  EXPECT_EQ(danach.texte[6], "96,00");
}

TEST_F(Sammelbuchung, BerechneterHonigwertFolgtDenKiloGetippterBleibt) {
  wabenAn(2);
  EinstellungenWert[Wertslots.honigJeKg] = 5;
  Buchung b = honig("3");
  b.texte[6] = "15";  // 3 x 5, as computed while typing
  const Buchung danach = lauf(b, {"1", "2"});
  EXPECT_EQ(spalte("select Honig_Wert from Honigernte order by ID"), "30,00|60,00");
  EXPECT_EQ(danach.texte[6], "60");
  b.texte[6] = "50,00";
  lauf(b, {"1"});
  EXPECT_EQ(feld("Honigernte", "Honig_Wert"), "50,00");
}
