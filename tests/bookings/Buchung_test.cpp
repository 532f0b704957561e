#include "bookings/Buchung.h"

#include <QFileInfo>

#include "Bestand.h"
#include "platform/database/Dateigrenze.h"
#include "platform/database/verbindung/Verbindung.h"

using TZ_Variablen::ListeNeuLesen;

namespace {

class Buchen : public Bestand {
 protected:
  // All fields of the type's newest row without Datum, Volk_ID and ID, joined by "|".
  static QString zeile(int art) {
    QStringList texte;
    for (const Buchungsslot& slot : buchungstyp(art).plätze)
      texte.append(feld(buchungstyp(art).tabelle, slot.feld));
    return texte.join("|");
  }
  void ändern(Buchung b, const QString& id, const QString& volkId = "1", int markiert = 1) {
    m_kontext.anzahlMarkiert = markiert;
    BuchungSpeichern(db(), b, volkId, id, m_kontext);
  }
};

}  // namespace

TEST_F(Buchen, Stockkarte) {
  QList<Slotänderung> texte;
  for (int slot = 1; slot <= 9; ++slot) texte.append({slot, QString("%1,5").arg(slot)});
  for (int slot = 10; slot <= 23; ++slot) texte.append({slot, QString::number(slot)});
  texte += {{24, "1,25"}, {25, "0,50"}, {26, "12,00"}, {27, "ruhig"}};
  neu(buchung(0, "05.06.2026", texte), "2");
  EXPECT_EQ(zeile(0),
            "1,5|2,5|3,5|4,5|5,5|6,5|7,5|8,5|9,5|10|11|12|13|14|16|17|18|19|20|21|22|23|"
            "1,25|0,5|12|ruhig");
  EXPECT_EQ(feld("Stockkarte", "Datum"), "05.06.2026");
  EXPECT_EQ(feld("Stockkarte", "Volk_ID"), "2");
}

TEST_F(Buchen, Honigernte) {
  neu(buchung(1, "05.06.2026",
              {{1, "12,50"},
               {2, "Raps"},
               {3, "A"},
               {4, "1,50"},
               {5, "23,25"},
               {6, "106,25"},
               {7, "L1"},
               {8, "gut"}}));
  EXPECT_EQ(zeile(1), "12,5|Raps|A|1,5|23,25|106,25|L1|gut");
}

TEST_F(Buchen, Wachsernte) {
  neu(buchung(2, "05.06.2026",
              {{1, "2,75"}, {2, "gelb"}, {3, "0,50"}, {4, "5,00"}, {5, "33,00"}, {6, "x"}}));
  EXPECT_EQ(zeile(2), "2,75|gelb|0,5|5,00|33,00|x");
}

TEST_F(Buchen, Pollenernte) {
  neu(buchung(3, "05.06.2026",
              {{1, "250"}, {2, "fein"}, {3, "0,25"}, {4, "4,00"}, {5, "7,50"}, {6, "x"}}));
  EXPECT_EQ(zeile(3), "250|fein|0,25|4,00|7,50|x");
}

TEST_F(Buchen, SonstigeErnte) {
  neu(buchung(
      4, "05.06.2026",
      {{1, "Propolis"}, {2, "30"}, {3, "roh"}, {4, "1,00"}, {5, "15,50"}, {6, "6,00"}, {7, "x"}}));
  EXPECT_EQ(zeile(4), "Propolis|30|roh|1|15,50|6,00|x");
}

TEST_F(Buchen, Arbeiten) {
  neu(buchung(5, "05.06.2026", {{1, "Drohnen schneiden"}, {2, "0,20"}, {3, "3,10"}, {4, "x"}}));
  EXPECT_EQ(zeile(5), "Drohnen schneiden|0,2|3,10|x");
}

TEST_F(Buchen, Wanderung) {
  neu(buchung(6, "05.06.2026",
              {{1, "Rapsfeld"}, {2, "3,00"}, {3, "46,50"}, {4, "20,00"}, {5, "J"}, {6, "x"}}));
  EXPECT_EQ(zeile(6), "Rapsfeld|3|46,50|20,00|J|x");
}

TEST_F(Buchen, Gewichtsmessung) {
  neu(buchung(7, "05.06.2026", {{1, "43,125"}, {2, "0,10"}, {3, "1,55"}, {4, "x"}}));
  EXPECT_EQ(zeile(7), "43,125|0,1|1,55|x");
}

TEST_F(Buchen, Behandlung) {
  neu(buchung(8, "05.06.2026",
              {{1, "Ameisensäure"},
               {2, "AS 60%"},
               {3, "200"},
               {4, "123"},
               {5, "7"},
               {6, "0,50"},
               {7, "7,75"},
               {8, "x"},
               {9, "42"}}));
  EXPECT_EQ(zeile(8), "Ameisensäure|AS 60%|200|123|7|0,5|7,75|x|42");
}

TEST_F(Buchen, Königinwechsel) {
  neu(buchung(9, "05.06.2026",
              {{1, "Züchter Weiß"},
               {2, "1,2"},
               {3, "K17"},
               {4, "blau"},
               {5, "0,50"},
               {6, "7,75"},
               {7, "x"}}));
  EXPECT_EQ(zeile(9), "Züchter Weiß|1,2|K17|blau|0,5|7,75|x");
}

TEST_F(Buchen, NotizMitMehrerenZeilen) {
  neu(buchung(10, "05.06.2026", {{15, "Volk ist weisellos?\r\nNächste Woche prüfen."}}));
  EXPECT_EQ(feld("Notizen", "NOTIZ"), "Volk ist weisellos?\r\nNächste Woche prüfen.");
  EXPECT_EQ(feld("Notizen", "Datum"), "05.06.2026");
}

TEST_F(Buchen, ApostropheWerdenZuAkzentenUndTexteGetrimmt) {
  neu(buchung(5, "05.06.2026", {{1, "  Anna's Stock "}, {4, "'ä'"}}));
  EXPECT_EQ(feld("Arbeiten", "Arbeitsart"), "Anna`s Stock");
  EXPECT_EQ(feld("Arbeiten", "Bemerkung"), "`ä`");
}

TEST_F(Buchen, LeereSlotsGebenNullenUndLeereTexteNieNull) {
  Buchung b;
  b.art = 8;
  b.texte[0] = "05.06.2026";
  neu(b);
  EXPECT_EQ(zeile(8), "||0||0|0|0,00||0");
}

TEST_F(Buchen, ZahlenImDeutschenFormat) {
  neu(buchung(7, "05.06.2026", {{1, "1.234,5"}}));
  EXPECT_EQ(feld("Gewichtsmessung", "Gewicht_kg"), "1234,5");
}

TEST_F(Buchen, GanzeZahlenSindDerZahlwertIhresTextes) {
  neu(buchung(0, "05.06.2026", {{11, "12,7"}, {12, "120"}, {13, "x"}}));
  EXPECT_EQ(feld("Stockkarte", "Waben"), "12");
  EXPECT_EQ(feld("Stockkarte", "Honigwaben"), "120");
  EXPECT_EQ(feld("Stockkarte", "Brutwaben"), "0");
}

TEST_F(Buchen, KurzesDatumIstEines) {
  neu(buchung(5, "5.6.26", {{1, "a"}}));
  EXPECT_EQ(feld("Arbeiten", "Datum"), "05.06.2026");
}

TEST_F(Buchen, MerktVolkEinmalUndSetztListeNeuLesen) {
  ListeNeuLesen = 0;
  const Buchung b = buchung(5, "05.06.2026", {{1, "a"}});
  neu(b, "2");
  EXPECT_EQ(ListeNeuLesen, 1);
  EXPECT_EQ(m_kontext.geänderteVölker, "/2/");
  neu(b, "1");
  neu(b, "2");
  EXPECT_EQ(m_kontext.geänderteVölker, "/2//1/");
}

TEST_F(Buchen, Volk1SchließtVolk12NichtAus) {
  m_kontext.geänderteVölker = "/12/";
  neu(buchung(5, "05.06.2026", {{1, "a"}}), "1");
  EXPECT_EQ(m_kontext.geänderteVölker, "/12//1/");
}

TEST_F(Buchen, ÄndernTrifftNurDieseZeile) {
  neu(buchung(5, "05.06.2026", {{1, "eins"}, {2, "1,00"}}));
  neu(buchung(5, "06.06.2026", {{1, "zwei"}, {2, "2,00"}}));
  m_kontext.geänderteVölker.clear();
  ändern(buchung(5, "07.06.2026", {{1, "neu"}, {2, "3,00"}}), "1");
  EXPECT_EQ(spalte("select Arbeitsart from Arbeiten order by ID"), "neu|zwei");
  EXPECT_EQ(spalte("select Datum from Arbeiten order by ID"), "07.06.2026|06.06.2026");
  EXPECT_EQ(spalte("select Zeit_h from Arbeiten order by ID"), "3|2");
  EXPECT_EQ(m_kontext.geänderteVölker, "/1/");
}

TEST_F(Buchen, ÄndernEinerGelöschtenZeileIstEinFehler) {
  neu(buchung(5, "05.06.2026", {{1, "eins"}}));
  schreibe("delete from Arbeiten");
  EXPECT_THROW(ändern(buchung(5, "05.06.2026", {{1, "x"}}), "1"), Datenbankfehler);
  EXPECT_EQ(anzahl("Arbeiten"), 0);
}

TEST_F(Buchen, ÄndernDerZeileEinesAnderenVolkesIstEinFehler) {
  neu(buchung(5, "05.06.2026", {{1, "eins"}}), "1");
  EXPECT_THROW(ändern(buchung(5, "05.06.2026", {{1, "x"}}), "1", "2"), Datenbankfehler);
  EXPECT_EQ(feld("Arbeiten", "Arbeitsart"), "eins");
}

TEST_F(Buchen, OhneDatumWirdNichtsGeschrieben) {
  schreibe(
      "insert into Arbeitsplanoptionen (Arbeitsart, Auto_erledigt_Buchung) values ('T', "
      "'Arbeiten')");
  schreibe("insert into Termine (Datum, Termin, Erledigt, Volk_ID) values (?, 'T', 'N', 1)",
           {QDate(2026, 1, 1)});
  EXPECT_THROW(neu(buchung(5, "31.02.2026", {{1, "a"}})), Datenbankfehler);
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  EXPECT_EQ(wert("select Erledigt from Termine"), "N");
  EXPECT_EQ(m_kontext.geänderteVölker, "");
}

TEST_F(Buchen, ZuLangerTextIstEinFehlerUndNieEinSchnitt) {
  EXPECT_THROW(neu(buchung(5, "05.06.2026", {{1, QString(31, 'x')}})), Datenbankfehler);
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  neu(buchung(5, "05.06.2026", {{1, QString(30, u'ä')}}));
  EXPECT_EQ(anzahl("Arbeiten"), 1);
}

TEST_F(Buchen, LaufBuchtAlleMarkiertenInIhrerReihenfolge) {
  lauf(buchung(5, "05.06.2026", {{1, "a"}}), {"3", "1", "2"});
  EXPECT_EQ(spalte("select Volk_ID from Arbeiten order by ID"), "3|1|2");
  EXPECT_EQ(m_kontext.geänderteVölker, "/3//1//2/");
  EXPECT_FALSE(TZ_Variablen::SammelFolgevolk);
}

TEST_F(Buchen, FehlerMittenImLaufLässtDieFrüherenVölkerGebucht) {
  // The second colony's ID doesn't fit its field.
  Buchung b = buchung(5, "05.06.2026", {{1, "a"}});
  m_kontext.anzahlMarkiert = 3;
  EXPECT_THROW(BuchungslaufSpeichern(db(), b, {"1", "9999999999", "3"}, m_kontext),
               Datenbankfehler);
  EXPECT_EQ(spalte("select Volk_ID from Arbeiten order by ID"), "1");
  EXPECT_EQ(m_kontext.geänderteVölker, "/1/");
  EXPECT_FALSE(TZ_Variablen::SammelFolgevolk);
}

TEST_F(Buchen, FehlerImLaufLässtDenGeändertenText) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.honigInWaben] = 1;
  TZ_Variablen::EinstellungenWert[Wertslots.kgJeHonigwabe] = 2;
  Buchung b = buchung(1, "05.06.2026", {{1, "3"}});
  EXPECT_THROW(BuchungslaufSpeichern(db(), b, {"1", "9999999999"}, m_kontext), Datenbankfehler);
  EXPECT_EQ(b.texte[1], "12,00");
}

TEST_F(Buchen, FehlerNachDenTerminenLässtDieTermineErledigt) {
  schreibe(
      "insert into Arbeitsplanoptionen (Arbeitsart, Auto_erledigt_Buchung) values ('T', "
      "'Arbeiten')");
  schreibe("insert into Termine (Datum, Termin, Erledigt, Volk_ID) values (?, 'T', 'N', 1)",
           {QDate(2026, 1, 1)});
  Buchung b = buchung(5, "05.06.2026", {{1, QString(31, 'x')}});
  EXPECT_THROW(BuchungslaufSpeichern(db(), b, {"1", "2"}, m_kontext), Datenbankfehler);
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  EXPECT_EQ(wert("select Erledigt from Termine"), "J");
  EXPECT_FALSE(TZ_Variablen::SammelFolgevolk);
}

TEST_F(Buchen, VolleScheibeVerwirftDenLaufUndStelltDieEingabeWiederHer) {
  neu(buchung(5, "04.06.2026", {{1, "vorher"}}));
  TZ_Variablen::EinstellungenZahl[Zahlslots.honigInWaben] = 1;
  TZ_Variablen::EinstellungenWert[Wertslots.kgJeHonigwabe] = 1;
  QStringList völker;
  for (int i = 1; i <= 2000; ++i) völker.append(QString::number(i));
  m_kontext.anzahlMarkiert = 2000;
  const Buchung eingabe = buchung(1, "05.06.2026", {{1, "3"}, {2, QString(20, 'x')}});
  Buchung b = eingabe;
  bool verworfen = false;
  try {
    const Dateigrenze voll(static_cast<rlim_t>(QFileInfo(TZ_Variablen::DatenbankPfad).size()) +
                           4096);
    BuchungslaufSpeichern(db(), b, völker, m_kontext);
  } catch (const Datenbankfehler& fehler) {
    verworfen = fehler.allesVerworfen();
  }
  EXPECT_TRUE(verworfen);
  EXPECT_EQ(anzahl("Honigernte"), 0);
  EXPECT_EQ(spalte("select Arbeitsart from Arbeiten"), "vorher");
  EXPECT_EQ(b.texte, eingabe.texte);  // a second try starts from 3 combs again
  EXPECT_EQ(m_kontext.geänderteVölker, "/1/");
  EXPECT_FALSE(TZ_Variablen::SammelFolgevolk);
}

// The disk is full in the middle of the run, at a write that the engine undoes by itself.
TEST_F(Buchen, VollMittenImLaufBleibtNichtsUndWiederholtStehtJedesVolkEinmalDa) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.ernteInsHoniglager] = 1;
  TZ_Variablen::EinstellungenZahl[Zahlslots.sammelbuchungTeilen] = 0;
  db().Sammelschreiben([] {
    for (int i = 1; i <= 320; ++i)
      for (int t = 0; t < 8; ++t)  // what a booking closes: many rows in one statement
        schreibe("insert into Termine (Datum, Termin, Erledigt, Volk_ID) values (?, 'T', 'N', ?)",
                 {QDate(2026, 1, 1), i});
  });
  schreibe(
      "insert into Arbeitsplanoptionen (Arbeitsart, Auto_erledigt_Buchung) values ('T', "
      "'Honigernte')");
  QStringList völker;
  for (int i = 1; i <= 320; ++i) völker.append(QString::number(i));
  m_kontext.anzahlMarkiert = 320;
  Verbindung* const verbindung = Verbindung::zu(TZ_Variablen::DatenbankPfad);
  const Buchung eingabe = buchung(1, "05.06.2026", {{1, "4"}, {2, "Raps"}, {8, QString(30, 'x')}});
  const int seiten = verbindung->steuere("pragma page_count").toInt();
  for (int platz = 1; platz <= 8; ++platz) {  // wherever the room ends
    verbindung->steuere("pragma max_page_count = " + QByteArray::number(seiten + platz));
    Buchung b = eingabe;
    bool verworfen = false;
    try {
      BuchungslaufSpeichern(db(), b, völker, m_kontext);
    } catch (const Datenbankfehler& fehler) {
      verworfen = fehler.allesVerworfen();
      EXPECT_TRUE(fehler.text().endsWith("Von diesem Vorgang wurde nichts gespeichert."));
    }
    ASSERT_TRUE(verworfen) << platz;
    ASSERT_EQ(anzahl("Honigernte"), 0) << platz;
    ASSERT_EQ(anzahl("Honiglager"), 0) << platz;
    ASSERT_EQ(wert("select count(*) from Termine where Erledigt = 'J'"), "0") << platz;
    ASSERT_EQ(m_kontext.gebucht, QStringList());
    ASSERT_EQ(m_kontext.geänderteVölker, "");
  }
  verbindung->steuere("pragma max_page_count = 1000000");
  Buchung b = eingabe;
  BuchungslaufSpeichern(db(), b, völker, m_kontext);
  EXPECT_EQ(anzahl("Honigernte"), 320);
  EXPECT_EQ(spalte("select Zugang from Honiglager"), "1280");
  EXPECT_EQ(m_kontext.gebucht, völker);
}

namespace {

QString fehlertext(const std::function<void()>& aktion) {
  try {
    aktion();
  } catch (const Datenbankfehler& fehler) {
    EXPECT_FALSE(fehler.allesVerworfen());
    return fehler.text();
  }
  return "kein Fehler";
}

}  // namespace

TEST_F(Buchen, EineRegelMittenImLaufSagtWievieleGebuchtSindUndWasImLagerSteht) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.ernteInsHoniglager] = 1;
  TZ_Variablen::EinstellungenZahl[Zahlslots.sammelbuchungTeilen] = 0;
  Buchung b = buchung(1, "05.06.2026", {{1, "3,5"}, {2, "Raps"}});
  m_kontext.anzahlMarkiert = 4;
  const QString text = fehlertext([&] {
    BuchungslaufSpeichern(db(), b, {"1", "2", "9999999999", "3"}, m_kontext);
  });
  EXPECT_EQ(m_kontext.gebucht, QStringList({"1", "2"}));
  EXPECT_TRUE(text.contains("\r\n\r\nGebucht ist die Eingabe jetzt bei 2 von 4 Völkern. "))
      << text.toStdString();
  EXPECT_TRUE(text.contains("Im Honiglager steht bereits ein Zugang von ")) << text.toStdString();
  EXPECT_TRUE(text.contains(wert("select Zugang from Honiglager") + " kg")) << text.toStdString();
  EXPECT_FALSE(text.contains("Geteilte Mengen"));
  EXPECT_EQ(anzahl("Honigernte"), 2);
  EXPECT_EQ(anzahl("Honiglager"), 1);
}

TEST_F(Buchen, ScheitertGleichDasErsteVolkIstKeinesGebucht) {
  Buchung b = buchung(5, "05.06.2026", {{1, QString(31, 'x')}});
  const QString text = fehlertext([&] { BuchungslaufSpeichern(db(), b, {"1", "2"}, m_kontext); });
  EXPECT_TRUE(text.endsWith("\r\n\r\nVon 2 Völkern wurde noch keines gebucht."))
      << text.toStdString();
  EXPECT_EQ(m_kontext.gebucht, QStringList());
}

TEST_F(Buchen, EinEinzelnesVolkOhneLagerSagtNurDenFehler) {
  Buchung b = buchung(5, "05.06.2026", {{1, QString(31, 'x')}});
  EXPECT_FALSE(
      fehlertext([&] { BuchungslaufSpeichern(db(), b, {"1"}, m_kontext); }).contains("\r\n"));
}

TEST_F(Buchen, GeteilteMengenNennenDenRest) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.sammelbuchungTeilen] = 1;
  Buchung b = buchung(2, "05.06.2026", {{1, "10"}});
  m_kontext.anzahlMarkiert = 3;
  const QString text = fehlertext([&] {
    BuchungslaufSpeichern(db(), b, {"1", "9999999999", "2"}, m_kontext);
  });
  EXPECT_TRUE(text.contains("bei 1 von 3 Völkern")) << text.toStdString();
  EXPECT_TRUE(text.contains("Geteilte Mengen verteilt [Neu] dann auf die übrigen Völker."))
      << text.toStdString();
}

TEST_F(Buchen, OptionenGeltenAuchFürDenLaufAlsGanzes) {
  schreibe(
      "insert into Arbeitsplanoptionen (Arbeitsart, Auto_erledigt_Buchung) values ('T', "
      "'Honigernte')");
  for (const int volk : {1, 2})
    schreibe("insert into Termine (Datum, Termin, Erledigt, Volk_ID) values (?, 'T', 'N', ?)",
             {QDate(2026, 1, 1), volk});
  TZ_Variablen::EinstellungenZahl[Zahlslots.honigInWaben] = 1;
  TZ_Variablen::EinstellungenWert[Wertslots.kgJeHonigwabe] = 2;
  lauf(buchung(1, "05.06.2026", {{1, "3"}, {2, "Raps"}}), {"1", "2"});
  EXPECT_EQ(spalte("select Erledigt from Termine"), "J|J");
  EXPECT_EQ(spalte("select Menge_kg from Honigernte order by ID"), "6|12");
  EXPECT_EQ(spalte("select Honigsorte from Honigernte order by ID"), "Raps|Raps");
}
