#include "bookings/Zusammenfassung.h"

#include "Bestand.h"

namespace {

// Summary field and the stock card field that it copies.
const QList<std::pair<QString, QString>> Kartenfelder{
    {"Volkstärke", "Volkstärke"},
    {"Magazine", "Magazine"},
    {"Wabenanzahl", "Waben"},
    {"Honigwaben", "Honigwaben"},
    {"Brutwaben", "Brutwaben"},
    {"Pollenwaben", "Pollenwaben"},
    {"Drohnenwaben", "Drohnenwaben"},
    {"Leerwaben", "Leerwaben"},
    {"Mittelwände", "Mittelwände"},
    {"Futterwaben", "Futterwaben"},
    {"HW_verdeckelt", "HW_verdeckelt"},
    {"BW_Stift", "BW_Stift"},
    {"BW_offen", "BW_offen"},
    {"BW_verdeckelt", "BW_verdeckelt"},
    {"Brutstand", "Brutstand"},
    {"Wabensitz", "Wabensitz"},
    {"Sanftmut", "Sanftmut"},
    {"Schwarmtrieb", "Schwarmtrieb"},
    {"Frühjahrsentw", "Frühjahrsentw"},
    {"Winterfestigkeit", "Winterfestigkeit"},
    {"Varroabefall", "Varroabefall"},
    {"Belagert", "Belagert"},
    {"Futtervorrat_flüssig", "Futter_flüssig_l"},
    {"Futtervorrat_Teig", "Futter_Teig_kg"},
    {"Futtervorrat_eigen", "Eigener_Futtervorrat"},
};

class Volkfelder : public Bestand {
 protected:
  void nachziehen() { VolkfelderNachziehen(db(), m_kontext.geänderteVölker); }
  // Every field of the card gets a number of its own, from this one on.
  static void karte(int ab, QDate datum, int volk = 1) {
    QStringList felder{"Datum", "Volk_ID"};
    QStringList fragen{"?", "?"};
    QVariantList werte{datum, volk};
    for (const auto& [ziel, quelle] : Kartenfelder) {
      felder.append(quelle);
      fragen.append("?");
      werte.append(ab++);
    }
    schreibe(
        "insert into Stockkarte (" + felder.join(", ") + ") values (" + fragen.join(", ") + ")",
        werte);
  }
  static void honig(double menge, QDate datum, int volk = 1) {
    schreibe("insert into Honigernte (Menge_kg, Datum, Volk_ID) values (?, ?, ?)",
             {menge, datum, volk});
  }
};

const QDate Mai(2026, 5, 1);
const QDate Juni(2026, 6, 1);

}  // namespace

TEST_F(Volkfelder, StockkartenfelderKommenVonDerNeuestenKarte) {
  karte(50, Juni);
  karte(10, Mai);
  VolkfelderNachziehen(db(), "/1/");
  int soll = 50;
  for (const auto& [ziel, quelle] : Kartenfelder)
    EXPECT_EQ(volkfeld(ziel), QString::number(soll++)) << ziel.toStdString();
}

TEST_F(Volkfelder, AmSelbenTagEntscheidetDieErsteZeile) {
  karte(50, Juni);
  karte(10, Juni);
  VolkfelderNachziehen(db(), "/1/");
  EXPECT_EQ(volkfeld("Volkstärke"), "50");
}

TEST_F(Volkfelder, OhneStockkarteWerdenAlleFelderNull) {
  for (const auto& [ziel, quelle] : Kartenfelder)
    schreibe("update Bienenvolk set " + ziel + " = 7");
  VolkfelderNachziehen(db(), "/1/");
  for (const auto& [ziel, quelle] : Kartenfelder) {
    EXPECT_EQ(volkfeld(ziel), "0") << ziel.toStdString();
    EXPECT_EQ(volkfeld(ziel, 2), "7") << ziel.toStdString();
  }
}

TEST_F(Volkfelder, LeeresFeldDerKarteWirdNull) {
  schreibe("insert into Stockkarte (Datum, Volkstärke, Volk_ID) values (?, 3.5, 1)", {Juni});
  VolkfelderNachziehen(db(), "/1/");
  EXPECT_EQ(volkfeld("Volkstärke"), "3,5");
  EXPECT_EQ(volkfeld("Magazine"), "0");
}

TEST_F(Volkfelder, HonigLetzteErnteUndSumme) {
  honig(3.33, Juni);
  honig(3.33, Mai);
  honig(3.33, Mai.addYears(-1));
  honig(100, Juni.addDays(1), 2);
  VolkfelderNachziehen(db(), "/1/");
  EXPECT_EQ(volkfeld("L_Honigernte"), "01.06.2026");
  EXPECT_EQ(volkfeld("L_Honigmenge_kg"), "3,33");
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt"), "9,99");
}

TEST_F(Volkfelder, OhneHonigWirdDasDatumLeerUndDieMengenNull) {
  schreibe("update Bienenvolk set L_Honigernte = ?, L_Honigmenge_kg = 5, Honigmenge_Gesamt = 50",
           {Mai});
  VolkfelderNachziehen(db(), "/1/");
  EXPECT_EQ(volkfeld("L_Honigernte"), "<null>");
  EXPECT_EQ(volkfeld("L_Honigmenge_kg"), "0");
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt"), "0");
}

TEST_F(Volkfelder, HonigernteOhneMenge) {
  schreibe("insert into Honigernte (Datum, Volk_ID) values (?, 1)", {Juni});
  VolkfelderNachziehen(db(), "/1/");
  EXPECT_EQ(volkfeld("L_Honigernte"), "01.06.2026");
  EXPECT_EQ(volkfeld("L_Honigmenge_kg"), "0");
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt"), "0");
}

TEST_F(Volkfelder, BehandlungLetztesDatumOderLeer) {
  schreibe("update Bienenvolk set L_Behandlung = ?", {Mai});
  schreibe("insert into Behandlung (Datum, Volk_ID) values (?, 1)", {Juni});
  schreibe("insert into Behandlung (Datum, Volk_ID) values (?, 1)", {Mai});
  VolkfelderNachziehen(db(), "/1//2/");
  EXPECT_EQ(volkfeld("L_Behandlung", 1), "01.06.2026");
  EXPECT_EQ(volkfeld("L_Behandlung", 2), "<null>");
  EXPECT_EQ(volkfeld("L_Behandlung", 3), "01.05.2026");
}

TEST_F(Volkfelder, StandortDerNeuestenWanderungSonstBleibtEr) {
  schreibe("update Bienenvolk set Standort = 'Garten'");
  schreibe("insert into Wanderung (Datum, Standort, Volk_ID) values (?, 'Rapsfeld', 1)", {Juni});
  schreibe("insert into Wanderung (Datum, Standort, Volk_ID) values (?, 'Wald', 1)", {Mai});
  VolkfelderNachziehen(db(), "/1//2/");
  EXPECT_EQ(volkfeld("Standort", 1), "Rapsfeld");
  EXPECT_EQ(volkfeld("Standort", 2), "Garten");
  schreibe("delete from Wanderung");
  VolkfelderNachziehen(db(), "/1/");
  EXPECT_EQ(volkfeld("Standort", 1), "Rapsfeld");
}

TEST_F(Volkfelder, KöniginDesNeuestenWechselsSonstBleibtSie) {
  schreibe(
      "update Bienenvolk set Königin_Nr = 'alt', Königin_Farbe = 'rot', Königin_Zugangsdatum = ?",
      {Mai});
  schreibe(
      "insert into Königinwechsel (Datum, Nummer, Farbe, Volk_ID) values (?, 'K17', 'blau', 1)",
      {Juni});
  VolkfelderNachziehen(db(), "/1//2/");
  EXPECT_EQ(volkfeld("Königin_Nr"), "K17");
  EXPECT_EQ(volkfeld("Königin_Farbe"), "blau");
  EXPECT_EQ(volkfeld("Königin_Zugangsdatum"), "01.06.2026");
  EXPECT_EQ(volkfeld("Königin_Nr", 2), "alt");
  EXPECT_EQ(volkfeld("Königin_Farbe", 2), "rot");
  EXPECT_EQ(volkfeld("Königin_Zugangsdatum", 2), "01.05.2026");
  schreibe("delete from Königinwechsel");
  VolkfelderNachziehen(db(), "/1/");
  EXPECT_EQ(volkfeld("Königin_Nr"), "K17");
  EXPECT_EQ(volkfeld("Königin_Farbe"), "blau");
  EXPECT_EQ(volkfeld("Königin_Zugangsdatum"), "01.06.2026");
}

TEST_F(Volkfelder, NurDieGenanntenVölker) {
  for (const int volk : {1, 2, 3}) honig(5, Juni, volk);
  VolkfelderNachziehen(db(), "/1//3/");
  EXPECT_EQ(spalte("select Honigmenge_Gesamt from Bienenvolk order by ID"), "5||5");
}

TEST_F(Volkfelder, OhneGenannteVölkerGeschiehtNichts) {
  honig(5, Juni);
  VolkfelderNachziehen(db(), "");
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt"), "<null>");
}

TEST_F(Volkfelder, GelöschtesVolkWirdÜbergangen) {
  honig(5, Juni);
  VolkfelderNachziehen(db(), "/99//1/");
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt"), "5");
}

TEST_F(Volkfelder, ÜbrigeFelderDesVolkesBleiben) {
  schreibe(
      "update Bienenvolk set Volkname = 'Anna', Waben_je_Magazin = 11, Bienenrasse = 'Carnica'");
  karte(5, Juni);
  VolkfelderNachziehen(db(), "/1/");
  EXPECT_EQ(volkfeld("Volkname"), "Anna");
  EXPECT_EQ(volkfeld("Waben_je_Magazin"), "11");
  EXPECT_EQ(volkfeld("Bienenrasse"), "Carnica");
  EXPECT_EQ(volkfeld("Volknr"), "1");
}

TEST_F(Volkfelder, MehrVölkerAlsInEineAnweisungPassen) {
  QString alle;
  schreibe("delete from Bienenvolk");
  db().Sammelschreiben([&] {
    for (int i = 0; i < 450; ++i) schreibe("insert into Bienenvolk (Volknr) values ('v')");
  });
  const Daten ids = db().Lesen("select ID from Bienenvolk order by ID");
  for (int i = 0; i < ids->zeilen(); ++i) alle += "/" + ids->anzeige(i, 0) + "/";
  VolkfelderNachziehen(db(), alle);
  EXPECT_EQ(db().Lesen("select ID from Bienenvolk where Magazine = 0")->zeilen(), 450);
}

// From here on bookings as the form writes them.

TEST_F(Volkfelder, NeueBuchungStehtNachDemSchließenImVolk) {
  neu(buchung(1, "05.06.2026", {{1, "10"}}));
  EXPECT_EQ(volkfeld("L_Honigmenge_kg"), "<null>");  // only the close rebuilds
  nachziehen();
  EXPECT_EQ(volkfeld("L_Honigmenge_kg"), "10");
  EXPECT_EQ(volkfeld("L_Honigernte"), "05.06.2026");
}

TEST_F(Volkfelder, ÄndernLässtDieAltenWerteFallen) {
  neu(buchung(1, "05.06.2026", {{1, "10"}}));
  nachziehen();
  Buchung b = buchung(1, "07.06.2026", {{1, "12"}});
  Buchungskontext später;
  BuchungSpeichern(db(), b, "1", "1", später);
  VolkfelderNachziehen(db(), später.geänderteVölker);
  EXPECT_EQ(volkfeld("L_Honigernte"), "07.06.2026");
  EXPECT_EQ(volkfeld("L_Honigmenge_kg"), "12");
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt"), "12");
}

TEST_F(Volkfelder, LöschenAlleinLässtDasVolkWieEsWar) {
  neu(buchung(1, "05.06.2026", {{1, "10"}}));
  nachziehen();
  m_kontext = {};  // the form was opened anew
  schreibe("delete from Honigernte where ID = 1");
  nachziehen();
  EXPECT_EQ(volkfeld("L_Honigernte"), "05.06.2026");
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt"), "10");
}

TEST_F(Volkfelder, LöschenMitAndererBuchungDesselbenVolkesRechnetNeu) {
  neu(buchung(1, "05.06.2026", {{1, "10"}}));
  nachziehen();
  m_kontext = {};
  schreibe("delete from Honigernte where ID = 1");
  neu(buchung(5, "06.06.2026", {{1, "a"}}));
  nachziehen();
  EXPECT_EQ(volkfeld("L_Honigernte"), "<null>");
  EXPECT_EQ(volkfeld("L_Honigmenge_kg"), "0");
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt"), "0");
}

TEST_F(Volkfelder, LetzteStockkarteGelöschtMitNeurechnungGibtNullen) {
  neu(buchung(0, "05.06.2026", {{1, "3,5"}, {11, "12"}}));
  nachziehen();
  EXPECT_EQ(volkfeld("Wabenanzahl"), "12");
  schreibe("delete from Stockkarte");
  nachziehen();
  EXPECT_EQ(volkfeld("Wabenanzahl"), "0");
  EXPECT_EQ(volkfeld("Volkstärke"), "0");
}

// What is noted until it is written.

TEST_F(Volkfelder, EineBuchungMerktIhrVolkVorUndDasNachziehenStreichtEs) {
  EXPECT_FALSE(ZusammenfassungenOffen(db()));
  neu(buchung(1, "05.06.2026", {{1, "10"}}));
  neu(buchung(1, "06.06.2026", {{1, "2"}}));  // noted once
  lauf(buchung(5, "06.06.2026", {{1, "x"}}), {"1", "3"});
  EXPECT_EQ(spalte("select Volk_ID from Zusammenfassung_offen order by Volk_ID"), "1|3");
  EXPECT_TRUE(ZusammenfassungenOffen(db()));
  nachziehen();
  EXPECT_FALSE(ZusammenfassungenOffen(db()));
  EXPECT_FALSE(ZusammenfassungenNachholen(db()));
}

TEST_F(Volkfelder, AuchEinÄndernMerktVor) {
  neu(buchung(1, "05.06.2026", {{1, "10"}}), "2");
  nachziehen();
  m_kontext = {};  // the form was opened anew
  Buchung b = buchung(1, "07.06.2026", {{1, "12"}});
  BuchungSpeichern(db(), b, "2", "1", m_kontext);
  EXPECT_EQ(spalte("select Volk_ID from Zusammenfassung_offen"), "2");
  EXPECT_TRUE(ZusammenfassungenNachholen(db()));
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt", 2), "12");
  EXPECT_EQ(volkfeld("L_Honigernte", 2), "07.06.2026");
  EXPECT_FALSE(ZusammenfassungenOffen(db()));
}

TEST_F(Volkfelder, WasNichtNachgezogenWurdeWirdSpäterNachgeholt) {
  lauf(buchung(1, "05.06.2026", {{1, "10"}}), {"1", "2", "3"});
  VolkfelderNachziehen(db(), "/2/");
  EXPECT_EQ(spalte("select Volk_ID from Zusammenfassung_offen order by Volk_ID"), "1|3");
  schreibe("delete from Honigernte where Volk_ID = 1");  // in the same opening of the form
  schreibe("delete from Bienenvolk where ID = 3");
  EXPECT_TRUE(ZusammenfassungenNachholen(db()));
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt", 1), "0");
  EXPECT_EQ(volkfeld("L_Honigernte", 1), "<null>");
  EXPECT_EQ(volkfeld("Honigmenge_Gesamt", 2), "10");
  EXPECT_FALSE(ZusammenfassungenOffen(db()));
}

TEST_F(Volkfelder, DieVormerkungStehtImFestschreibenDerBuchung) {
  EXPECT_THROW(db().Sammelschreiben([&] {
    neu(buchung(1, "05.06.2026", {{1, "10"}}));
    throw Datenbankfehler(Datenbankfehler::Art::Voll, "voll");
  }),
               Datenbankfehler);
  EXPECT_FALSE(ZusammenfassungenOffen(db()));
  EXPECT_EQ(anzahl("Honigernte"), 0);
}
