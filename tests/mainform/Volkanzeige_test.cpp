#include "mainform/Volkanzeige.h"

#include <QHash>

#include "Umfeld.h"

using namespace TZ_Variablen;

namespace {

using Zellen = QHash<QString, QString>;

class Panel : public Umfeld {
 protected:
  void SetUp() override {
    Umfeld::SetUp();
    datenbank();
    m_id = neu("Bienenvolk", {{"Volknr", "7"}});
    m_zellen = {{"Volknr", "7"}, {"ID", QString::number(m_id)}};
  }
  // The panel's lines.
  QStringList panel(bool nurJahr = false) {
    const Zellen zellen = m_zellen;
    return Volkanzeige::text(
               DB, [zellen](const QString& spalte) { return zellen.value(spalte); }, nurJahr)
        .split(CRLF);
  }
  void nurPosition(int position) {
    EinstellungenText[Textslots.infofenster] = QString(60, u'0');
    EinstellungenText[Textslots.infofenster][position - 1] = u'1';
  }
  // A stock card with counts that only matter for the differences.
  void karte(QDate datum, int waben, int mittelwände) {
    neu("Stockkarte",
        {{"Datum", datum}, {"Waben", waben}, {"Mittelwände", mittelwände}, {"Volk_ID", m_id}});
  }
  void alleBuchungen();

  qint64 m_id = 0;
  Zellen m_zellen;
};

void Panel::alleBuchungen() {
  const auto volk = std::pair<QString, QVariant>("Volk_ID", m_id);
  const auto stockkarte = [&](QDate datum, const QList<double>& noten, const QList<int>& zahlen,
                              const QList<double>& futter, const QString& bemerkung) {
    Felder felder = {{"Datum", datum}, {"Bemerkung", bemerkung}, volk};
    const QStringList notenfelder = {"Volkstärke",       "Brutstand",    "Wabensitz",
                                     "Sanftmut",         "Schwarmtrieb", "Frühjahrsentw",
                                     "Winterfestigkeit", "Varroabefall", "Belagert"};
    const QStringList zahlenfelder = {"Magazine",    "Waben",        "Honigwaben", "Brutwaben",
                                      "Pollenwaben", "Drohnenwaben", "Leerwaben",  "Mittelwände"};
    const QStringList futterfelder = {"Futter_flüssig_l", "Futter_Teig_kg", "Eigener_Futtervorrat"};
    for (int i = 0; i < 9; ++i) felder << std::pair<QString, QVariant>(notenfelder[i], noten[i]);
    for (int i = 0; i < 8; ++i) felder << std::pair<QString, QVariant>(zahlenfelder[i], zahlen[i]);
    for (int i = 0; i < 3; ++i) felder << std::pair<QString, QVariant>(futterfelder[i], futter[i]);
    neu("Stockkarte", felder);
  };
  stockkarte(QDate(2023, 9, 20), {6, 3, 5, 8, 1, 0, 0, 2, 7}, {2, 22, 4, 3, 1, 0, 14, 2},
             {5, 0, 10}, "Eingefüttert");
  stockkarte(QDate(2024, 5, 10), {8, 7.5, 6, 9, 2, 8, 7, 1, 10}, {3, 20, 6, 8, 2, 1, 3, 4},
             {1.5, 0, 12.25}, "Honigraum auf");
  stockkarte(QDate(2024, 4, 1), {5, 4.5, 5, 9, 1, 6, 7, 1, 6}, {2, 18, 3, 5, 2, 0, 8, 0}, {0, 0, 8},
             "");
  neu("Honigernte", {{"Datum", QDate(2024, 6, 1)},
                     {"Menge_kg", 12.5},
                     {"Honigsorte", "Raps"},
                     {"Qualität", "gut"},
                     {"Zeit_h", 1.5},
                     {"Kosten", 22.5},
                     {"Honig_Wert", 100},
                     {"Charge", "2024-01"},
                     {"Bemerkung", "Erste Schleuderung"},
                     volk});
  neu("Wachsernte", {{"Datum", QDate(2024, 6, 2)},
                     {"Menge_kg", 0.8},
                     {"Qualität", "hell"},
                     {"Zeit_h", 0.5},
                     {"Kosten", 7.5},
                     {"Wachs_Wert", 12},
                     volk});
  neu("Pollenernte", {{"Datum", QDate(2024, 6, 3)},
                      {"Menge_g", 350},
                      {"Qualität", "gut"},
                      {"Zeit_h", 1},
                      {"Kosten", 15},
                      {"Pollen_Wert", 35},
                      {"Bemerkung", "Falle"},
                      volk});
  neu("Sonstigeernte", {{"Datum", QDate(2024, 6, 4)},
                        {"Ernteart", "Propolis"},
                        {"Menge_g", 40},
                        {"Qualität", "roh"},
                        {"Zeit_h", 0.25},
                        {"Kosten", 3.75},
                        {"Wert", 8},
                        volk});
  neu("Arbeiten", {{"Datum", QDate(2024, 6, 5)},
                   {"Arbeitsart", "Schwarmkontrolle"},
                   {"Zeit_h", 0.25},
                   {"Kosten", 3.75},
                   {"Bemerkung", "ohne Befund"},
                   volk});
  neu("Wanderung", {{"Datum", QDate(2024, 5, 6)},
                    {"Standort", "Rapsfeld Nord"},
                    {"Zeit_h", 2},
                    {"Kosten", 30},
                    {"Standortprämie", 50},
                    {"Prämie_erhalten", "J"},
                    volk});
  neu("Gewichtsmessung", {{"Datum", QDate(2024, 6, 7)},
                          {"Gewicht_kg", 42.3},
                          {"Zeit_h", 0.1},
                          {"Kosten", 1.5},
                          {"Bemerkung", "Stockwaage"},
                          volk});
  neu("Behandlung", {{"Datum", QDate(2023, 8, 8)},
                     {"Behandlungsart", "Varroa"},
                     {"Mittel", "Ameisensäure 60%"},
                     {"Menge_g", 20},
                     {"Zulassungsnr", "4711"},
                     {"Wartezeit", 3},
                     {"Zeit_h", 0.25},
                     {"Anz_Varroen", 120},
                     {"Kosten", 3.75},
                     {"Bemerkung", "Sommer"},
                     volk});
  neu("Königinwechsel", {{"Datum", QDate(2023, 7, 9)},
                         {"Herkunft", "Eigene Zucht"},
                         {"Zuchtindex", "1,25"},
                         {"Nummer", "K-17"},
                         {"Farbe", "rot"},
                         {"Zeit_h", 0.5},
                         {"Kosten", 7.5},
                         volk});
  neu("Notizen", {{"Datum", QDate(2024, 3, 1)}, {"NOTIZ", "Reinigungsflug"}, volk});
  neu("Notizen", {{"Datum", QDate(2024, 6, 10)}, {"NOTIZ", "Weisel gesehen\nruhig"}, volk});
}

const QStringList Blöcke = {
    "",
    "",
    "Stockkarte",
    "DATUM        VS   BS   WS   SM   ST   FE   WF   VB   BE MAG  WZ DIF HOW BRW POW DRW LEW  MW "
    "DIF MWG  FUTTER_FL/TEIG/EIGEN  BEMERKUNG",
    "----------------------------------------------------------------------------------------------"
    "--------------------------------------",
    "10.05.2024  8,0  7,5  6,0  9,0  2,0  8,0  7,0  1,0 10,0   3  20   2   6   8   2   1   3   4   "
    "4  24    1,50   0,00  12,25  Honigraum auf",
    "01.04.2024  5,0  4,5  5,0  9,0  1,0  6,0  7,0  1,0  6,0   2  18  -4   3   5   2   0   8   0  "
    "-2  18    0,00   0,00   8,00  ",
    "20.09.2023  6,0  3,0  5,0  8,0  1,0  0,0  0,0  2,0  7,0   2  22       4   3   1   0  14   2   "
    "   24    5,00   0,00  10,00  Eingefüttert",
    "",
    "",
    "Honigernte",
    "DATUM       MENGE_KG  HONIGSORTE           QUALITÄT   ZEIT_H  KOSTEN HONIGWERT  CHARGE        "
    "  BEMERKUNG",
    "----------------------------------------------------------------------------------------------"
    "-----------",
    "01.06.2024     12,50  Raps                 gut          1,50   22,50    100,00  2024-01       "
    "  Erste Schleuderung",
    "",
    "",
    "Wachsernte",
    "DATUM       MENGE_KG  QUALITÄT   ZEIT_H  KOSTEN WACHSWERT  BEMERKUNG",
    "--------------------------------------------------------------------",
    "02.06.2024      0,80  hell         0,50    7,50     12,00  ",
    "",
    "",
    "Pollenernte",
    "DATUM       MENGE_G  QUALITÄT   ZEIT_H  KOSTEN POLLENWERT  BEMERKUNG",
    "--------------------------------------------------------------------",
    "03.06.2024   350,00  gut          1,00   15,00      35,00  Falle",
    "",
    "",
    "Sonstige Ernte",
    "DATUM       ERNTEART             MENGE_G  QUALITÄT   ZEIT_H  KOSTEN     WERT  BEMERKUNG",
    "---------------------------------------------------------------------------------------",
    "04.06.2024  Propolis               40,00  roh          0,25    3,75    8,00  ",
    "",
    "",
    "Arbeiten",
    "DATUM       ARBEITSART                     ZEIT_H  KOSTEN  BEMERKUNG",
    "--------------------------------------------------------------------",
    "05.06.2024  Schwarmkontrolle                 0,25    3,75  ohne Befund",
    "",
    "",
    "Wanderung",
    "DATUM       STANDORT                                 ZEIT_H  KOSTEN  PRÄMIE  E  BEMERKUNG",
    "-----------------------------------------------------------------------------------------",
    "06.05.2024  Rapsfeld Nord                              2,00   30,00   50,00  J  ",
    "",
    "",
    "Gewichtsmessung",
    "DATUM       GEWICHT_KG  ZEIT_H  KOSTEN  BEMERKUNG",
    "-------------------------------------------------",
    "07.06.2024       42,30    0,10    1,50  Stockwaage",
    "",
    "",
    "Behandlung",
    "DATUM       BEHANDLUNGSART                 MITTEL                          MENGE_G  ZULASS-NR "
    " WZ ZEIT_H A_V  KOSTEN  BEMERKUNG",
    "----------------------------------------------------------------------------------------------"
    "---------------------------------",
    "08.08.2023  Varroa                         Ameisensäure 60%                  20,00  4711      "
    "  3   0,25 120    3,75  Sommer",
    "",
    "",
    "Königinwechsel",
    "DATUM       HERKUNFT                       ZUCHTINDEX NUMMER               FARBE      ZEIT_H  "
    "KOSTEN  BEMERKUNG",
    "----------------------------------------------------------------------------------------------"
    "-----------------",
    "09.07.2023  Eigene Zucht                   1,25       K-17                 rot          0,50  "
    "  7,50  ",
    "",
    "",
    "NOTIZEN",
    "Datum: 10.06.2024",
    "Weisel gesehen",
    "ruhig",
    "",
    "Datum: 01.03.2024",
    "Reinigungsflug",
    "",
    ""};

}  // namespace

TEST_F(Panel, AlleFünfundvierzigZeilenAusDerListe) {
  m_zellen.insert({{"Volkname", "Anna"},
                   {"Volkstärke", "7,5"},
                   {"Magazine", "3"},
                   {"Mittelwände", "4"},
                   {"Wabenanzahl", "20"},
                   {"Honigwaben", "6"},
                   {"Brutwaben", "8"},
                   {"Pollenwaben", "2"},
                   {"Drohnenwaben", "1"},
                   {"Leerwaben", "3"},
                   {"Futterwaben", "5"},
                   {"HW_verdeckelt", "11"},
                   {"BW_Stift", "12"},
                   {"BW_offen", "13"},
                   {"BW_verdeckelt", "14"},
                   {"Brutstand", "1,1"},
                   {"Wabensitz", "2,2"},
                   {"Sanftmut", "3,3"},
                   {"Schwarmtrieb", "4,4"},
                   {"Frühjahrsentw", "5,5"},
                   {"Winterfestigkeit", "6,6"},
                   {"Varroabefall", "7,7"},
                   {"Belagert", "8,8"},
                   {"Belegstelle", "Inselbeleg"},
                   {"Zuchtbuchnr", "ZB-1"},
                   {"L_Honigernte", "01.06.2024"},
                   {"L_Honigmenge_kg", "12,5"},
                   {"Honigmenge_Gesamt", "80,25"},
                   {"L_Behandlung", "08.08.2023"},
                   {"Standort", "Rapsfeld Nord"},
                   {"Königin_Nr", "K-17"},
                   {"Königin_Farbe", "rot"},
                   {"Königin_Zugangsdatum", "09.07.2023"},
                   {"Futtervorrat_eigen", "9"},
                   {"Futtervorrat_flüssig", "1,5"},
                   {"Futtervorrat_Teig", "0,5"},
                   {"Beuteart", "Zander"},
                   {"Waben_je_Magazin", "10"},
                   {"Bienenrasse", "Carnica"},
                   {"Volk_Zugangsdatum", "01.05.2020"},
                   {"Volk_Herkunft", "Ableger"},
                   {"Abgangsdatum", "02.02.2024"},
                   {"Abgangsgrund", "verkauft"},
                   {"Abnehmer", "Frau Immel"}});
  EXPECT_EQ(panel(), QStringList({"VOLKDATEN",
                                  "Volknummer:        7",
                                  "Volkname:          Anna",
                                  "Volkstärke:        7,5",
                                  "Magazine:          3",
                                  "Mittelwände:       4",
                                  "Wabenanzahl:       20",
                                  "Summe Wände/Waben: 24",
                                  "Honigwaben:        6",
                                  "Brutwaben:         8",
                                  "Pollenwaben:       2",
                                  "Drohnenwaben:      1",
                                  "Leerwaben:         3",
                                  "Futterwaben:       5",
                                  "HW_verdeckelt:     11",
                                  "BW_Stifte:         12",
                                  "BW_offen:          13",
                                  "BW_verdeckelt:     14",
                                  "Brutstand:         1,1",
                                  "Wabensitz:         2,2",
                                  "Sanftmut:          3,3",
                                  "Schwarmtrieb:      4,4",
                                  "Frühjahrsentw.:    5,5",
                                  "Winterfestigkeit:  6,6",
                                  "Varroabefall:      7,7",
                                  "Belagert:          8,8",
                                  "Belegstelle:       Inselbeleg",
                                  "Zuchtbuchnr:       ZB-1",
                                  "L_Honigernte:      01.06.2024",
                                  "L_Honigmenge kg:   12,5",
                                  "Honigmenge Ges.:   80,25",
                                  "L_Behandlung:      08.08.2023",
                                  "Standort:          Rapsfeld Nord",
                                  "Königin Nr:        K-17",
                                  "Königin Farbe:     rot",
                                  "Königin Zugang:    09.07.2023",
                                  "Futter eigen:      9",
                                  "Futter flüssig:    1,5",
                                  "Futter Teig:       0,5",
                                  "Beuteart:          Zander",
                                  "Waben je Magazin:  10",
                                  "Bienenrasse:       Carnica",
                                  "Zugangsdatum:      01.05.2020",
                                  "Herkunft:          Ableger",
                                  "Abgangsdatum:      02.02.2024",
                                  "Abgangsgrund:      verkauft",
                                  "Abnehmer:          Frau Immel",
                                  ""}));
}

TEST_F(Panel, AlleElfBlöckeGanz) {
  alleBuchungen();
  EinstellungenText[Textslots.infofenster] = QString(45, u'0') + QString(15, u'1');
  EXPECT_EQ(panel(), QStringList({"VOLKDATEN", "Volknummer:        7"}) + Blöcke);
}

TEST_F(Panel, NurDasJahrLässtÄltereBuchungenWeg) {
  alleBuchungen();
  EinstellungenText[Textslots.infofenster] = QString(45, u'0') + QString(15, u'1');
  const QStringList zeilen = panel(true);
  for (const QString& zeile : zeilen) EXPECT_FALSE(zeile.contains(".2023")) << qPrintable(zeile);
  EXPECT_FALSE(zeilen.contains("Behandlung"));
  EXPECT_FALSE(zeilen.contains("Königinwechsel"));
  // The year's oldest row has no older one to compare with.
  EXPECT_TRUE(
      zeilen.contains("01.04.2024  5,0  4,5  5,0  9,0  1,0  6,0  7,0  1,0  6,0   2  18       3   5 "
                      "  2   0   8   0      18    0,00   0,00   8,00  "));
  EXPECT_TRUE(
      zeilen.contains("10.05.2024  8,0  7,5  6,0  9,0  2,0  8,0  7,0  1,0 10,0   3  20   2   6   8 "
                      "  2   1   3   4   4  24    1,50   0,00  12,25  Honigraum auf"));
}

TEST_F(Panel, ErsterJanuarGehörtZumJahr) {
  nurPosition(56);
  neu("Notizen", {{"Datum", QDate(2024, 1, 1)}, {"NOTIZ", "Neujahr"}, {"Volk_ID", m_id}});
  neu("Notizen", {{"Datum", QDate(2023, 12, 31)}, {"NOTIZ", "Silvester"}, {"Volk_ID", m_id}});
  EXPECT_EQ(panel(true), QStringList({"VOLKDATEN", "Volknummer:        7", "", "", "NOTIZEN",
                                      "Datum: 01.01.2024", "Neujahr", "", ""}));
}

TEST_F(Panel, ÄlteresVolkZeigtImJahrKeineStockkarte) {
  nurPosition(46);
  karte(QDate(2022, 5, 1), 10, 0);
  EXPECT_EQ(panel(true), QStringList({"VOLKDATEN", "Volknummer:        7", ""}));
}

TEST_F(Panel, OhneBuchungenKeinBlockUndKeinTitel) {
  EinstellungenText[Textslots.infofenster] = QString(45, u'0') + QString(15, u'1');
  EXPECT_EQ(panel(), QStringList({"VOLKDATEN", "Volknummer:        7", ""}));
}

TEST_F(Panel, BuchungenAndererVölkerZeigenSichNicht) {
  nurPosition(56);
  neu("Notizen", {{"Datum", QDate(2024, 1, 1)}, {"NOTIZ", "fremd"}, {"Volk_ID", m_id + 1}});
  EXPECT_EQ(panel(), QStringList({"VOLKDATEN", "Volknummer:        7", ""}));
}

TEST_F(Panel, AbgeschaltetePosition46ZeigtKeineStockkarte) {
  karte(QDate(2024, 5, 1), 10, 0);
  EinstellungenText[Textslots.infofenster] = QString(60, u'0').replace(46, 1, u'1');
  EXPECT_EQ(panel(), QStringList({"VOLKDATEN", "Volknummer:        7", ""}));
}

TEST_F(Panel, UnterschiedSteigtFälltUndBleibtNull) {
  nurPosition(46);
  karte(QDate(2024, 1, 1), 10, 3);
  karte(QDate(2024, 2, 1), 22, 3);
  karte(QDate(2024, 3, 1), 9, 0);
  const QStringList zeilen = panel();
  ASSERT_EQ(zeilen.size(), 11);
  // Combs and their difference; sheets, their difference, the sum of both.
  const auto waben = [&](int zeile) { return zeilen[zeile].mid(59, 8); };
  const auto wände = [&](int zeile) { return zeilen[zeile].mid(87, 12); };
  EXPECT_EQ(waben(7), QStringLiteral("   9 -13"));
  EXPECT_EQ(wände(7), QStringLiteral("   0  -3   9"));
  EXPECT_EQ(waben(8), QStringLiteral("  22  12"));
  EXPECT_EQ(wände(8), QStringLiteral("   3   0  25"));
  EXPECT_EQ(waben(9), QStringLiteral("  10    "));
  EXPECT_EQ(wände(9), QStringLiteral("   3      13"));
}

TEST_F(Panel, FehlendeSpalteGibtEinenLeerenWert) {
  nurPosition(31);
  EXPECT_EQ(panel(), QStringList({"VOLKDATEN", "Volknummer:        7", "Standort:          ", ""}));
}

TEST_F(Panel, SummeOhneSpaltenIstNull) {
  nurPosition(6);
  EXPECT_EQ(panel(),
            QStringList({"VOLKDATEN", "Volknummer:        7", "Summe Wände/Waben: 0", ""}));
}

TEST_F(Panel, LeereFelderEinerBuchung) {
  nurPosition(54);
  neu("Behandlung", {{"Volk_ID", m_id}});
  EXPECT_EQ(panel()[7], QStringLiteral("") + QString(2 + 31 + 30, u' ') + "     0,00" +
                            QString(2 + 11 + 2, u' ') + "   0,00" + "    " + "    0,00" + "  ");
}

TEST_F(Panel, HonigsummenNachLetzterErnteJahrUndAllem) {
  const auto ernte = [this](QDate datum, double menge) {
    neu("Honigernte", {{"Datum", datum}, {"Menge_kg", menge}, {"Volk_ID", m_id}});
  };
  ernte(QDate(2024, 5, 20), 10.25);
  ernte(QDate(2024, 12, 31), 8);
  ernte(QDate(2024, 1, 1), 0.5);
  ernte(QDate(2023, 12, 31), 20);
  const auto honig = Volkanzeige::honig(DB, QString::number(m_id));
  EXPECT_EQ(honig.letzte, QStringLiteral("8,0"));
  EXPECT_EQ(honig.jahr, QStringLiteral("18,8"));  // 18.75
  EXPECT_EQ(honig.alles, QStringLiteral("38,8"));
}

TEST_F(Panel, OhneErnteIstDerHonigNull) {
  const auto honig = Volkanzeige::honig(DB, QString::number(m_id));
  EXPECT_EQ(honig.letzte, QStringLiteral("0,0"));
  EXPECT_EQ(honig.jahr, QStringLiteral("0,0"));
  EXPECT_EQ(honig.alles, QStringLiteral("0,0"));
}

TEST_F(Panel, HonigjahrStehtInDerBeschriftung) {
  EXPECT_EQ(Volkanzeige::honigjahrBeschriftung(), QStringLiteral("Honig (2024):"));
}
