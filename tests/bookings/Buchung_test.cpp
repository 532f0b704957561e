#include "bookings/Buchung.h"

#include <QFileInfo>

#include "Bestand.h"
#include "platform/database/Dateigrenze.h"

using TZ_Variablen::ListeNeuLesen;

namespace {

class Buchen : public Bestand {
 protected:
  // All fields of the type's newest row without Datum, Volk_ID and ID, joined by "|".
  static QString zeile(int art) {
    QStringList texte;
    for (const Buchungsslot& slot : buchungstyp(art).plaetze)
      texte.append(feld(buchungstyp(art).tabelle, slot.feld));
    return texte.join("|");
  }
  void aendern(Buchung b, const QString& id, const QString& volkId = "1", int markiert = 1) {
    m_kontext.anzahlMarkiert = markiert;
    BuchungSpeichern(db(), b, volkId, id, m_kontext);
  }
};

}  // namespace

TEST_F(Buchen, Stockkarte) {
  QList<Slotaenderung> texte;
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

TEST_F(Buchen, Koeniginwechsel) {
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
  EXPECT_EQ(m_kontext.geaenderteVoelker, "/2/");
  neu(b, "1");
  neu(b, "2");
  EXPECT_EQ(m_kontext.geaenderteVoelker, "/2//1/");
}

TEST_F(Buchen, Volk1SchliesstVolk12NichtAus) {
  m_kontext.geaenderteVoelker = "/12/";
  neu(buchung(5, "05.06.2026", {{1, "a"}}), "1");
  EXPECT_EQ(m_kontext.geaenderteVoelker, "/12//1/");
}

TEST_F(Buchen, AendernTrifftNurDieseZeile) {
  neu(buchung(5, "05.06.2026", {{1, "eins"}, {2, "1,00"}}));
  neu(buchung(5, "06.06.2026", {{1, "zwei"}, {2, "2,00"}}));
  m_kontext.geaenderteVoelker.clear();
  aendern(buchung(5, "07.06.2026", {{1, "neu"}, {2, "3,00"}}), "1");
  EXPECT_EQ(spalte("select Arbeitsart from Arbeiten order by ID"), "neu|zwei");
  EXPECT_EQ(spalte("select Datum from Arbeiten order by ID"), "07.06.2026|06.06.2026");
  EXPECT_EQ(spalte("select Zeit_h from Arbeiten order by ID"), "3|2");
  EXPECT_EQ(m_kontext.geaenderteVoelker, "/1/");
}

TEST_F(Buchen, AendernEinerGeloeschtenZeileIstEinFehler) {
  neu(buchung(5, "05.06.2026", {{1, "eins"}}));
  schreibe("delete from Arbeiten");
  EXPECT_THROW(aendern(buchung(5, "05.06.2026", {{1, "x"}}), "1"), Datenbankfehler);
  EXPECT_EQ(anzahl("Arbeiten"), 0);
}

TEST_F(Buchen, AendernDerZeileEinesAnderenVolkesIstEinFehler) {
  neu(buchung(5, "05.06.2026", {{1, "eins"}}), "1");
  EXPECT_THROW(aendern(buchung(5, "05.06.2026", {{1, "x"}}), "1", "2"), Datenbankfehler);
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
  EXPECT_EQ(m_kontext.geaenderteVoelker, "");
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
  EXPECT_EQ(m_kontext.geaenderteVoelker, "/3//1//2/");
  EXPECT_FALSE(TZ_Variablen::SammelFolgevolk);
}

TEST_F(Buchen, FehlerMittenImLaufLaesstDieFrueherenVoelkerGebucht) {
  // The second colony's ID doesn't fit its field.
  Buchung b = buchung(5, "05.06.2026", {{1, "a"}});
  m_kontext.anzahlMarkiert = 3;
  EXPECT_THROW(BuchungslaufSpeichern(db(), b, {"1", "9999999999", "3"}, m_kontext),
               Datenbankfehler);
  EXPECT_EQ(spalte("select Volk_ID from Arbeiten order by ID"), "1");
  EXPECT_EQ(m_kontext.geaenderteVoelker, "/1/");
  EXPECT_FALSE(TZ_Variablen::SammelFolgevolk);
}

TEST_F(Buchen, FehlerImLaufLaesstDenGeaendertenText) {
  TZ_Variablen::EinstellungenZahl[73] = 1;
  TZ_Variablen::EinstellungenWert[5] = 2;
  Buchung b = buchung(1, "05.06.2026", {{1, "3"}});
  EXPECT_THROW(BuchungslaufSpeichern(db(), b, {"1", "9999999999"}, m_kontext), Datenbankfehler);
  EXPECT_EQ(b.texte[1], "12,00");
}

TEST_F(Buchen, FehlerNachDenTerminenLaesstDieTermineErledigt) {
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
  TZ_Variablen::EinstellungenZahl[73] = 1;
  TZ_Variablen::EinstellungenWert[5] = 1;
  QStringList voelker;
  for (int i = 1; i <= 2000; ++i) voelker.append(QString::number(i));
  m_kontext.anzahlMarkiert = 2000;
  const Buchung eingabe = buchung(1, "05.06.2026", {{1, "3"}, {2, QString(20, 'x')}});
  Buchung b = eingabe;
  bool verworfen = false;
  try {
    const Dateigrenze voll(static_cast<rlim_t>(QFileInfo(TZ_Variablen::DatenbankPfad).size()) +
                           4096);
    BuchungslaufSpeichern(db(), b, voelker, m_kontext);
  } catch (const Datenbankfehler& fehler) {
    verworfen = fehler.allesVerworfen();
  }
  EXPECT_TRUE(verworfen);
  EXPECT_EQ(anzahl("Honigernte"), 0);
  EXPECT_EQ(spalte("select Arbeitsart from Arbeiten"), "vorher");
  EXPECT_EQ(b.texte, eingabe.texte);  // a second try starts from 3 combs again
  EXPECT_EQ(m_kontext.geaenderteVoelker, "/1/");
  EXPECT_FALSE(TZ_Variablen::SammelFolgevolk);
}

TEST_F(Buchen, OptionenGeltenAuchFuerDenLaufAlsGanzes) {
  schreibe(
      "insert into Arbeitsplanoptionen (Arbeitsart, Auto_erledigt_Buchung) values ('T', "
      "'Honigernte')");
  for (const int volk : {1, 2})
    schreibe("insert into Termine (Datum, Termin, Erledigt, Volk_ID) values (?, 'T', 'N', ?)",
             {QDate(2026, 1, 1), volk});
  TZ_Variablen::EinstellungenZahl[73] = 1;
  TZ_Variablen::EinstellungenWert[5] = 2;
  lauf(buchung(1, "05.06.2026", {{1, "3"}, {2, "Raps"}}), {"1", "2"});
  EXPECT_EQ(spalte("select Erledigt from Termine"), "J|J");
  EXPECT_EQ(spalte("select Menge_kg from Honigernte order by ID"), "6|12");
  EXPECT_EQ(spalte("select Honigsorte from Honigernte order by ID"), "Raps|Raps");
}
