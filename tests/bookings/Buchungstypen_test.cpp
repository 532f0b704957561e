#include "bookings/Buchungstypen.h"

#include "Bestand.h"

namespace {

// "1 Menge (kg)|Menge_kg|D8.2|0,00|geld|Tabelle.Feld": a slot in one line.
QString zeile(const Buchungsslot& s) {
  QString form;
  switch (s.art) {
    case Verwaltung::Art::Text:
      form = QString("T%1").arg(s.maxLänge);
      break;
    case Verwaltung::Art::Dezimal:
      form = QString("D%1.%2").arg(s.maxLänge).arg(s.nachkommastellen);
      break;
    case Verwaltung::Art::Ganzzahl:
      form = QString("G%1<=%2").arg(s.maxLänge).arg(s.bis);
      break;
    case Verwaltung::Art::Auswahl:
      form = "A:" + s.texte.join(",");
      break;
    default:
      EXPECT_EQ(s.art, Verwaltung::Art::Notiz);
      form = "N";
  }
  QString text =
      QString("%1 %2|%3|%4|%5").arg(s.nummer).arg(s.beschriftung, s.feld, form, s.ersterText);
  if (s.zeichen == "€") text += "|geld";
  if (s.hatPickliste())
    text += "|" + s.listenAnweisung.section(' ', 4, 4) + "." + s.listenAnweisung.section(' ', 2, 2);
  return text;
}

void erwarte(int art, const QString& tabelle, const QString& beschriftung,
             const QStringList& zeilen) {
  const Buchungstyp& typ = buchungstyp(art);
  EXPECT_EQ(typ.art, art);
  EXPECT_EQ(typ.tabelle, tabelle);
  EXPECT_EQ(typ.beschriftung, beschriftung);
  ASSERT_EQ(typ.plätze.size(), zeilen.size());
  for (qsizetype i = 0; i < zeilen.size(); ++i) EXPECT_EQ(zeile(typ.plätze[i]), zeilen[i]);
}

const QString Zeit = " Zeit (h)|Zeit_h|D5.2|0,00";
const QString Kosten = " Kosten|Kosten|D8.2|0,00|geld";
const QString Bem = " Bemerkung|Bemerkung|T30||";

}  // namespace

TEST(Buchungstypen, Stockkarte) {
  erwarte(0, "Stockkarte", "Stockkarte",
          {"1 Volksstärke|Volkstärke|D4.1|0,0",
           "2 Brutstand|Brutstand|D4.1|0,0",
           "3 Wabensitz|Wabensitz|D4.1|0,0",
           "4 Sanftmut|Sanftmut|D4.1|0,0",
           "5 Schwarmtrieb|Schwarmtrieb|D4.1|0,0",
           "6 Frühjahrsentw.|Frühjahrsentw|D4.1|0,0",
           "7 Winterfestigkeit|Winterfestigkeit|D4.1|0,0",
           "8 Varroabefall|Varroabefall|D4.1|0,0",
           "9 Belagert|Belagert|D4.1|0,0",
           "10 Magazine|Magazine|G1<=9|0",
           "11 Waben|Waben|G2<=99|0",
           "12 Honigwaben|Honigwaben|G2<=99|0",
           "13 Brutwaben|Brutwaben|G2<=99|0",
           "14 Pollenwaben|Pollenwaben|G2<=99|0",
           "16 Drohnenwaben|Drohnenwaben|G2<=99|0",
           "17 Leerwaben|Leerwaben|G2<=99|0",
           "18 Mittelwände|Mittelwände|G2<=99|0",
           "19 Futterwaben|Futterwaben|G2<=99|0",
           "20 HW_verdeckelt%|HW_verdeckelt|G3<=100|0",
           "21 BW_Stifte%|BW_Stift|G3<=100|0",
           "22 BW_offen%|BW_offen|G3<=100|0",
           "23 BW_verdeckelt%|BW_verdeckelt|G3<=100|0",
           "24 Futter Flssg.|Teig|Eigen|Futter_flüssig_l|D5.2|0,00",
           "25 |Futter_Teig_kg|D5.2|0,00",
           "26 |Eigener_Futtervorrat|D5.2|0,00",
           "27" + Bem + "Stockkarte.Bemerkung"});
}

TEST(Buchungstypen, Honigernte) {
  erwarte(1, "Honigernte", "Honigernte",
          {"1 Menge (kg)|Menge_kg|D8.2|0,00", "2 Honigsorte|Honigsorte|T20||Honigernte.Honigsorte",
           "3 Qualität|Qualität|T10||Honigernte.Qualität", "4" + Zeit, "5" + Kosten,
           "6 Honigwert|Honig_Wert|D8.2|0,00|geld", "7 Charge|Charge|T15||Honigernte.Charge",
           "8" + Bem + "Honigernte.Bemerkung"});
}

TEST(Buchungstypen, Wachsernte) {
  erwarte(2, "Wachsernte", "Wachsernte",
          {"1 Menge (kg)|Menge_kg|D8.2|0,00", "2 Qualität|Qualität|T10||Wachsernte.Qualität",
           "3" + Zeit, "4" + Kosten, "5 Wachswert|Wachs_Wert|D8.2|0,00|geld",
           "6" + Bem + "Wachsernte.Bemerkung"});
}

TEST(Buchungstypen, Pollenernte) {
  erwarte(3, "Pollenernte", "Pollenernte",
          {"1 Menge (g)|Menge_g|G4<=9999|0", "2 Qualität|Qualität|T10||Pollenernte.Qualität",
           "3" + Zeit, "4" + Kosten, "5 Pollenwert|Pollen_Wert|D8.2|0,00|geld",
           "6" + Bem + "Pollenernte.Bemerkung"});
}

TEST(Buchungstypen, SonstigeErnte) {
  erwarte(4, "Sonstigeernte", "Sonstige Ernte",
          {"1 Art der Ernte|Ernteart|T20||Sonstigeernte.Ernteart", "2 Menge (g)|Menge_g|G4<=9999|0",
           "3 Qualität|Qualität|T10||Sonstigeernte.Qualität", "4" + Zeit, "5" + Kosten,
           "6 Wert|Wert|D8.2|0,00|geld", "7" + Bem + "Sonstigeernte.Bemerkung"});
}

TEST(Buchungstypen, Arbeiten) {
  erwarte(5, "Arbeiten", "Arbeiten",
          {"1 Arbeitsart|Arbeitsart|T30||Arbeiten.Arbeitsart", "2" + Zeit, "3" + Kosten,
           "4" + Bem + "Arbeiten.Bemerkung"});
}

TEST(Buchungstypen, Wanderung) {
  erwarte(6, "Wanderung", "Wanderung",
          {"1 Standort|Standort|T100||Standorte.Standort", "2" + Zeit, "3" + Kosten,
           "4 Standortprämie|Standortprämie|D8.2|0,00|geld",
           "5 Prämie erhalten JN|Prämie_erhalten|A:J,N|", "6" + Bem + "Wanderung.Bemerkung"});
}

TEST(Buchungstypen, Gewichtsmessung) {
  erwarte(7, "Gewichtsmessung", "Gewichtsmessung",
          {"1 Gewicht (kg)|Gewicht_kg|D7.3|0,000", "2" + Zeit, "3" + Kosten,
           "4" + Bem + "Gewichtsmessung.Bemerkung"});
}

TEST(Buchungstypen, Behandlung) {
  erwarte(8, "Behandlung", "Behandlung",
          {"1 Behandlungsart|Behandlungsart|T30||Behandlung.Behandlungsart",
           "2 Mittel|Mittel|T30||Behandlung.Mittel", "3 Menge (g)|Menge_g|G4<=9999|0",
           "4 Zulassungsnr|Zulassungsnr|T10||Behandlung.Zulassungsnr",
           "5 Wartezeit in Tagen|Wartezeit|G2<=99|0", "6" + Zeit, "7" + Kosten,
           "8" + Bem + "Behandlung.Bemerkung", "9 Anzahl Varroen|Anz_Varroen|G3<=999|0"});
}

TEST(Buchungstypen, Königinwechsel) {
  erwarte(9, "Königinwechsel", "Königinwechsel",
          {"1 Herkunft|Herkunft|T30||Königinwechsel.Herkunft",
           "2 Zuchtindex|Zuchtindex|T10||Königinwechsel.Zuchtindex",
           "3 Nummer|Nummer|T20||Königinwechsel.Nummer", "4 Farbe|Farbe|T10||Königinwechsel.Farbe",
           "5" + Zeit, "6" + Kosten, "7" + Bem + "Königinwechsel.Bemerkung"});
}

TEST(Buchungstypen, NotizenHatNurSlot15UndSonstKeinerDiesen) {
  erwarte(10, "Notizen", "Notizen", {"15 |Notiz|N|"});
  for (int art = 0; art < 10; ++art) EXPECT_EQ(buchungstyp(art).platz(NotizSlot), nullptr) << art;
}

TEST(Buchungstypen, PlatzFindetDieNummer) {
  EXPECT_EQ(buchungstyp(8).platz(9)->feld, "Anz_Varroen");
  EXPECT_EQ(buchungstyp(5).platz(5), nullptr);
}

class Buchungslisten : public Bestand {};

TEST_F(Buchungslisten, JedesFeldGehörtZurTabelleUndPasstInSie) {
  for (int art = 0; art <= 10; ++art) {
    const Buchungstyp& typ = buchungstyp(art);
    const auto felder = db().Felder(typ.tabelle);
    // Datum, Volk_ID and ID are the rest.
    EXPECT_EQ(felder.size(), static_cast<size_t>(typ.plätze.size() + 3)) << art;
    for (const Buchungsslot& slot : typ.plätze) {
      const auto gefunden = std::find_if(felder.begin(), felder.end(), [&](const Spalte& f) {
        return f.name.compare(slot.feld, Qt::CaseInsensitive) == 0;
      });
      ASSERT_NE(gefunden, felder.end()) << slot.feld.toStdString();
      if (gefunden->typ != Feldtyp::Text) continue;
      int länge = slot.maxLänge;
      for (const QString& wort : slot.texte)  // a choice is as long as its longest text
        länge = std::max(länge, static_cast<int>(wort.size()));
      EXPECT_EQ(gefunden->länge, länge) << slot.feld.toStdString();
    }
  }
}

TEST_F(Buchungslisten, ListenabfrageDerStockkarteKommtAusDenEinstellungen) {
  TZ_Variablen::EinstellungenText[Textslots.stockkartenfelder] =
      "select Datum, Waben, ID from Stockkarte";
  EXPECT_EQ(listenAbfrage(0), "select Datum, Waben, ID from Stockkarte");
  EXPECT_EQ(listenAbfrage(1), "select * from Honigernte");
  EXPECT_EQ(listenAbfrage(4), "select * from Sonstigeernte");
  EXPECT_EQ(listenAbfrage(9), "select * from Königinwechsel");
  EXPECT_EQ(listenAbfrage(10), "select * from Notizen");
}

TEST_F(Buchungslisten, OhneEingestellteAbfrageZeigtDieStockkarteAlleFelder) {
  TZ_Variablen::EinstellungenText[Textslots.stockkartenfelder] = " ";
  EXPECT_EQ(listenAbfrage(0), "select * from Stockkarte");
}

TEST_F(Buchungslisten, PicklisteNenntFrüherEingegebenesSortiertUndEinmal) {
  for (const QString art : {"Schleudern", "abdecken", "Schleudern", ""})
    schreibe("insert into Arbeiten (Arbeitsart, Volk_ID) values (?, 1)", {art});
  schreibe("insert into Arbeiten (Volk_ID) values (1)");
  const Buchungsslot& slot = *buchungstyp(5).platz(1);
  EXPECT_EQ(slot.listenAnweisung, "select distinct Arbeitsart from Arbeiten order by Arbeitsart");
  EXPECT_EQ(pickliste(db(), slot).join("|"), "abdecken|Schleudern");
}

TEST_F(Buchungslisten, PicklisteDesStandortsKommtAusDenStandorten) {
  schreibe("insert into Standorte (Standort) values ('Rapsfeld')");
  EXPECT_EQ(pickliste(db(), *buchungstyp(6).platz(1)).join("|"), "Rapsfeld");
  EXPECT_FALSE(buchungstyp(6).platz(2)->hatPickliste());
  EXPECT_TRUE(pickliste(db(), *buchungstyp(6).platz(2)).isEmpty());
}
