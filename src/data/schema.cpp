#include "data/schema.h"

namespace {

// A table as it is declared here: its fields in the dialect's own words and its indexes, both in
// their order. Each field is described in this one place.
struct Vereinbarung {
  const char* name;
  const char* felder;
  std::vector<std::pair<const char*, const char*>> indexe;
};

// clang-format off
const std::vector<Vereinbarung> vereinbarungen = {
    {"Bienenvolk",
     "Volknr TEXT (10), Volkname TEXT (20), Volkstärke SINGLE, Magazine INTEGER, "
     "Wabenanzahl INTEGER, Honigwaben INTEGER, Brutwaben INTEGER, Pollenwaben INTEGER, "
     "Drohnenwaben INTEGER, Leerwaben INTEGER, Mittelwände INTEGER, Futterwaben INTEGER, "
     "HW_verdeckelt INTEGER, BW_Stift INTEGER, BW_offen INTEGER, BW_verdeckelt INTEGER, "
     "Brutstand SINGLE, Wabensitz SINGLE, Sanftmut SINGLE, Schwarmtrieb SINGLE, "
     "Frühjahrsentw SINGLE, Winterfestigkeit SINGLE, Varroabefall SINGLE, Belagert SINGLE, "
     "Belegstelle TEXT (20), Zuchtbuchnr TEXT (15), L_Honigernte DATETIME, "
     "L_Honigmenge_kg SINGLE, Honigmenge_Gesamt SINGLE, L_Behandlung DATETIME, "
     "Standort TEXT (100), Königin_Nr TEXT (20), Königin_Farbe TEXT (10), "
     "Königin_Zugangsdatum DATETIME, Futtervorrat_eigen SINGLE, Futtervorrat_flüssig SINGLE, "
     "Futtervorrat_Teig SINGLE, Beuteart TEXT (20), Waben_je_Magazin INTEGER, "
     "Bienenrasse TEXT (20), Volk_Zugangsdatum DATETIME, Volk_Herkunft TEXT (50), "
     "Volk_Einkaufspreis CURRENCY, Akt_im_Bestand TEXT (1), Abgangsdatum DATETIME, "
     "Abgangsgrund TEXT (20), Abnehmer TEXT (50), Volk_Verkaufspreis CURRENCY, "
     "Selektiert TEXT (1), STop LONG, SLeft LONG, ID COUNTER",
     {{"volk1", "Volknr"}, {"volk2", "Volkname"}, {"volk3", "Bienenrasse"},
      {"volk4", "Standort"}, {"volk5", "Königin_Nr"}, {"volk6", "Königin_Farbe"},
      {"volk7", "Beuteart"}, {"volk8", "Volk_Herkunft"}, {"volk9", "Abgangsgrund"},
      {"volk10", "Abnehmer"}, {"volk11", "Selektiert"}, {"volk12", "ID"},
      {"volk13", "Belegstelle"}}},
    {"Stockkarte",
     "Datum DATETIME, Volkstärke SINGLE, Brutstand SINGLE, Wabensitz SINGLE, Sanftmut SINGLE, "
     "Schwarmtrieb SINGLE, Frühjahrsentw SINGLE, Winterfestigkeit SINGLE, Varroabefall SINGLE, "
     "Belagert SINGLE, Magazine INTEGER, Waben INTEGER, Honigwaben INTEGER, Brutwaben INTEGER, "
     "Pollenwaben INTEGER, Drohnenwaben INTEGER, Leerwaben INTEGER, Mittelwände INTEGER, "
     "Futterwaben INTEGER, HW_verdeckelt INTEGER, BW_Stift INTEGER, BW_offen INTEGER, "
     "BW_verdeckelt INTEGER, Futter_flüssig_l SINGLE, Futter_Teig_kg SINGLE, "
     "Eigener_Futtervorrat SINGLE, Bemerkung TEXT (30), Volk_ID LONG, ID COUNTER",
     {{"stockkarte1", "Datum"}, {"stockkarte2", "Volkstärke"}, {"stockkarte3", "Brutstand"},
      {"stockkarte4", "Wabensitz"}, {"stockkarte5", "Sanftmut"}, {"stockkarte6", "Schwarmtrieb"},
      {"stockkarte7", "Frühjahrsentw"}, {"stockkarte8", "Winterfestigkeit"},
      {"stockkarte9", "Varroabefall"}, {"stockkarte10", "Belagert"},
      {"stockkarte11", "Mittelwände"}, {"stockkarte12", "Waben"},
      {"stockkarte13", "Futter_flüssig_l"}, {"stockkarte14", "Futter_Teig_kg"},
      {"stockkarte15", "Eigener_Futtervorrat"}, {"stockkarte17", "Bemerkung"},
      {"stockkarte16", "Volk_ID"}}},
    {"Honigernte",
     "Datum DATETIME, Menge_kg SINGLE, Honigsorte TEXT (20), Qualität TEXT (10), Zeit_h SINGLE, "
     "Kosten CURRENCY, Honig_Wert CURRENCY, Charge TEXT (15), Bemerkung TEXT (30), Volk_ID LONG, "
     "ID COUNTER",
     {{"honigernte1", "Datum"}, {"honigernte2", "Menge_kg"}, {"honigernte3", "Honigsorte"},
      {"honigernte4", "Qualität"}, {"honigernte5", "Zeit_h"}, {"honigernte6", "Kosten"},
      {"honigernte7", "Honig_Wert"}, {"honigernte8", "Bemerkung"}, {"honigernte9", "Volk_ID"},
      {"honigernte10", "Charge"}}},
    {"Wachsernte",
     "Datum DATETIME, Menge_kg SINGLE, Qualität TEXT (10), Zeit_h SINGLE, Kosten CURRENCY, "
     "Wachs_Wert CURRENCY, Bemerkung TEXT (30), Volk_ID LONG, ID COUNTER",
     {{"wachsernte1", "Datum"}, {"wachsernte2", "Menge_kg"}, {"wachsernte3", "Qualität"},
      {"wachsernte4", "Zeit_h"}, {"wachsernte5", "Kosten"}, {"wachsernte6", "Wachs_Wert"},
      {"wachsernte7", "Bemerkung"}, {"wachsernte8", "Volk_ID"}}},
    {"Pollenernte",
     "Datum DATETIME, Menge_g LONG, Qualität TEXT (10), Zeit_h SINGLE, Kosten CURRENCY, "
     "Pollen_Wert CURRENCY, Bemerkung TEXT (30), Volk_ID LONG, ID COUNTER",
     {{"pollenernte1", "Datum"}, {"pollenernte2", "Menge_g"}, {"pollenernte3", "Qualität"},
      {"pollenernte4", "Zeit_h"}, {"pollenernte5", "Kosten"}, {"pollenernte6", "Pollen_Wert"},
      {"pollenernte7", "Bemerkung"}, {"pollenernte8", "Volk_ID"}}},
    {"Sonstigeernte",
     "Datum DATETIME, Ernteart TEXT (20), Menge_g LONG, Qualität TEXT (10), Zeit_h SINGLE, "
     "Kosten CURRENCY, Wert CURRENCY, Bemerkung TEXT (30), Volk_ID LONG, ID COUNTER",
     {{"sonstigeernte1", "Datum"}, {"sonstigeernte2", "Ernteart"}, {"sonstigeernte3", "Menge_g"},
      {"sonstigeernte4", "Qualität"}, {"sonstigeernte5", "Zeit_h"}, {"sonstigeernte6", "Kosten"},
      {"sonstigeernte7", "Wert"}, {"sonstigeernte8", "Bemerkung"}, {"sonstigeernte9", "Volk_ID"}}},
    {"Arbeiten",
     "Datum DATETIME, Arbeitsart TEXT (30), Zeit_h SINGLE, Kosten CURRENCY, Bemerkung TEXT (30), "
     "Volk_ID LONG, ID COUNTER",
     {{"arbeiten1", "Datum"}, {"arbeiten2", "Arbeitsart"}, {"arbeiten3", "Zeit_h"},
      {"arbeiten4", "Kosten"}, {"arbeiten5", "Bemerkung"}, {"arbeiten6", "Volk_ID"}}},
    {"Wanderung",
     "Datum DATETIME, Standort TEXT (100), Zeit_h SINGLE, Kosten CURRENCY, "
     "Standortprämie CURRENCY, Prämie_erhalten TEXT (1), Bemerkung TEXT (30), Volk_ID LONG, "
     "ID COUNTER",
     {{"Wanderung1", "Datum"}, {"Wanderung2", "Standort"}, {"Wanderung3", "Zeit_h"},
      {"Wanderung4", "Kosten"}, {"Wanderung5", "Standortprämie"},
      {"Wanderung6", "Prämie_erhalten"}, {"Wanderung7", "Bemerkung"}, {"Wanderung8", "Volk_ID"}}},
    {"Gewichtsmessung",
     "Datum DATETIME, Gewicht_kg SINGLE, Zeit_h SINGLE, Kosten CURRENCY, Bemerkung TEXT (30), "
     "Volk_ID LONG, ID COUNTER",
     {{"Gewichtsmessung1", "Datum"}, {"Gewichtsmessung2", "Gewicht_kg"},
      {"Gewichtsmessung3", "Zeit_h"}, {"Gewichtsmessung4", "Kosten"},
      {"Gewichtsmessung5", "Bemerkung"}, {"Gewichtsmessung6", "Volk_ID"}}},
    {"Behandlung",
     "Datum DATETIME, Behandlungsart TEXT (30), Mittel TEXT (30), Menge_g LONG, "
     "Zulassungsnr TEXT (10), Wartezeit INTEGER, Zeit_h SINGLE, Kosten CURRENCY, "
     "Bemerkung TEXT (30), Anz_Varroen INTEGER, Volk_ID LONG, ID COUNTER",
     {{"Behandlung1", "Datum"}, {"Behandlung2", "Mittel"}, {"Behandlung3", "Behandlungsart"},
      {"Behandlung4", "Zeit_h"}, {"Behandlung5", "Kosten"}, {"Behandlung6", "Bemerkung"},
      {"Behandlung7", "Volk_ID"}, {"Behandlung8", "Menge_g"}, {"Behandlung9", "Zulassungsnr"},
      {"Behandlung10", "Anz_Varroen"}}},
    {"Königinwechsel",
     "Datum DATETIME, Herkunft TEXT (30), Zuchtindex TEXT (10), Nummer TEXT (20), "
     "Farbe TEXT (10), Zeit_h SINGLE, Kosten CURRENCY, Bemerkung TEXT (30), Volk_ID LONG, "
     "ID COUNTER",
     {{"Königinwechsel1", "Datum"}, {"Königinwechsel2", "Herkunft"},
      {"Königinwechsel3", "Zuchtindex"}, {"Königinwechsel4", "Farbe"},
      {"Königinwechsel9", "Nummer"}, {"Königinwechsel5", "Zeit_h"},
      {"Königinwechsel6", "Kosten"}, {"Königinwechsel7", "Bemerkung"},
      {"Königinwechsel8", "Volk_ID"}}},
    {"Notizen",
     "Datum DATETIME, NOTIZ MEMO, Volk_ID LONG, ID COUNTER",
     {{"Notizen1", "Datum"}, {"Notizen2", "Volk_ID"}}},
    {"Standorte",
     "Standort TEXT (100), Zusatzortshinweis TEXT (50), Wintertauglich TEXT (1), "
     "Klima TEXT (20), Trachtzeit_von DATETIME, Trachtzeit_bis DATETIME, Pkw_anfahrbar TEXT (1), "
     "Entfernung_Wasser_m LONG, Flugrichtung TEXT (10), Max_Völker LONG, "
     "Standortprämie_Volk CURRENCY, PTop LONG, PLeft LONG, ID COUNTER",
     {{"standorte1", "Standort"}, {"standorte2", "Zusatzortshinweis"},
      {"standorte3", "Wintertauglich"}, {"standorte4", "Klima"}, {"standorte5", "Pkw_anfahrbar"},
      {"standorte6", "Flugrichtung"}, {"standorte7", "ID"}}},
    {"Standorte_Pflanzen",
     "Pflanze TEXT (20), Entfernung_m LONG, Proz_Anteil SHORT, Standort_Kennung LONG, ID COUNTER",
     {{"standortepflanzen1", "Pflanze"}, {"standortepflanzen2", "Entfernung_m"},
      {"standortepflanzen3", "Proz_Anteil"}, {"standortepflanzen4", "Standort_Kennung"}}},
    {"Pflanzen",
     "Pflanze TEXT (20), Weidezeit_von DATETIME, Weidezeit_bis DATETIME, Nektarstufe SHORT, "
     "Pollenstufe SHORT, ID COUNTER",
     {{"pflanzen1", "Pflanze"}, {"pflanzen2", "Weidezeit_von"}, {"pflanzen3", "Weidezeit_bis"},
      {"pflanzen4", "Nektarstufe"}, {"pflanzen5", "Pollenstufe"}}},
    {"Wetterdaten",
     "Datum DATETIME, Wetter TEXT (20), Temperatur INTEGER, Niederschlag_mm INTEGER, "
     "Windrichtung TEXT (10), Windstärke INTEGER, Bemerkung TEXT (30), ID COUNTER",
     {{"wetter1", "Datum"}, {"wetter2", "Wetter"}, {"wetter3", "Windrichtung"},
      {"wetter4", "Bemerkung"}}},
    {"Arbeitsplanoptionen",
     "Arbeitsart TEXT (30), Startzeitraum TEXT (5), Endzeitraum TEXT (5), "
     "Wiederholungsfrist_Tage INTEGER, Volkabhängig TEXT (1), Auto_erledigt_Buchung TEXT (15), "
     "Auto_erledigt_Arbeitsart TEXT (30), ID COUNTER",
     {{"arplanopti1", "Arbeitsart"}}},
    {"Termine",
     "Datum DATETIME, Termin TEXT (30), Erledigt TEXT (1), Volk_ID LONG, ID COUNTER",
     {{"termine1", "Datum"}, {"termine2", "Termin"}, {"termine3", "Erledigt"},
      {"termine4", "Volk_ID"}}},
    {"Verkauf",
     "Datum DATETIME, Produkt TEXT (20), Qualität TEXT (20), Abnehmer TEXT (30), Menge SINGLE, "
     "Einheit TEXT (2), Einnahmen CURRENCY, Charge TEXT (15), ID COUNTER",
     {{"verkauf1", "Datum"}, {"verkauf2", "Produkt"}, {"verkauf3", "Qualität"},
      {"verkauf4", "Abnehmer"}, {"verkauf5", "Menge"}, {"verkauf6", "Einheit"},
      {"verkauf7", "Einnahmen"}, {"verkauf8", "Charge"}}},
    {"Einkauf",
     "Datum DATETIME, Produkt TEXT (20), Qualität TEXT (20), Lieferant TEXT (30), Menge SINGLE, "
     "Einheit TEXT (2), Ausgaben CURRENCY, Charge TEXT (15), ID COUNTER",
     {{"einkauf1", "Datum"}, {"einkauf2", "Produkt"}, {"einkauf3", "Qualität"},
      {"einkauf4", "Lieferant"}, {"einkauf5", "Menge"}, {"einkauf6", "Einheit"},
      {"einkauf7", "Ausgaben"}, {"einkauf8", "Charge"}}},
    {"Honiglager",
     "Datum DATETIME, Produkt TEXT (20), Zugang SINGLE, Abgang SINGLE, Charge TEXT (15), "
     "Abfülldatum DATETIME, Bemerkung TEXT (30), EVK_ID LONG, ID COUNTER",
     {{"honiglager1", "Datum"}, {"honiglager2", "Produkt"}, {"honiglager3", "Zugang"},
      {"honiglager4", "Abgang"}, {"honiglager5", "Bemerkung"}, {"honiglager6", "EVK_ID"},
      {"honiglager7", "Charge"}}},
    {"Zuchtbuch",
     "Jahr TEXT (4), Zuchtbuchnr TEXT (15), Rasse TEXT (20), Generationsfolge SHORT, "
     "ZBuchnrMutter TEXT (15), Anpaarung TEXT (20), Schlüpftag DATETIME, Farbe TEXT (10), "
     "Zeichen TEXT (10), Art_der_Paarung TEXT (20), Besamt_am DATETIME, "
     "Besamungsstelle TEXT (20), Eiablage_seit DATETIME, Verbleib_Datum DATETIME, "
     "Verlust TEXT (1), Verbleib_Volk TEXT (10), Verkauft_an TEXT (20), LJ1_Stand INTEGER, "
     "LJ1_Teiltracht_bis_15_6 SINGLE, LJ1_Teiltracht_16_6_bis_15_8 SINGLE, "
     "LJ1_Teiltracht_ab_16_8 SINGLE, LJ1_Vorräte SINGLE, LJ1_Summe SINGLE, "
     "LJ1_Leistung_Proz SINGLE, LJ1_Rangfolge INTEGER, LJ2_Stand INTEGER, "
     "LJ2_Teiltracht_bis_15_6 SINGLE, LJ2_Teiltracht_16_6_bis_15_8 SINGLE, "
     "LJ2_Teiltracht_ab_16_8 SINGLE, LJ2_Vorräte SINGLE, LJ2_Summe SINGLE, "
     "LJ2_Leistung_Proz SINGLE, LJ2_Rangfolge INTEGER, Sanftmut SINGLE, Wabensitz SINGLE, "
     "Schwarmtrieb SINGLE, Winterfestigkeit SINGLE, Frühjahrsentw SINGLE, Volkstärke SINGLE, "
     "Anz_Varroen INTEGER, Anteil_verletzt_Varroen INTEGER, Ausräumrate_Proz INTEGER, "
     "Sonst_Krankheit TEXT (20), Arbeitsbiene_Rasse TEXT (1), Untersuchungsnr1 TEXT (15), "
     "Drohnen_Rasse TEXT (1), Untersuchungsnr2 TEXT (15), Bemerkung TEXT (50), ID COUNTER",
     {{"zuchtbuch1", "Jahr"}, {"zuchtbuch2", "Rasse"}, {"zuchtbuch3", "Anpaarung"},
      {"zuchtbuch4", "Farbe"}, {"zuchtbuch5", "Zeichen"}, {"zuchtbuch6", "Art_der_Paarung"},
      {"zuchtbuch7", "Besamungsstelle"}, {"zuchtbuch8", "Verbleib_Volk"},
      {"zuchtbuch9", "Verkauft_an"}, {"zuchtbuch10", "Sonst_Krankheit"},
      {"zuchtbuch11", "Bemerkung"}, {"zuchtbuch12", "ID"}}},
    {"Inventar",
     "Objekt TEXT (30), Kaufdatum DATETIME, Kaufpreis CURRENCY, Abschreib_Proz SINGLE, "
     "Abschreib_Jahre SHORT, Abschreib_je_Jahr CURRENCY, Erstes_Jahr LONG, Letztes_Jahr LONG, "
     "Erhalten_von TEXT (50), Ausgeliehen_an TEXT (50), Bemerkung TEXT (50), ID COUNTER",
     {{"inventar1", "Objekt"}, {"inventar2", "Kaufdatum"}, {"inventar3", "Erhalten_von"},
      {"inventar4", "Ausgeliehen_an"}, {"inventar5", "Bemerkung"}, {"inventar6", "ID"}}},
    {"Kunden",
     "Firma TEXT (30), Kundenname TEXT (30), Lieferant TEXT (1), Strasse TEXT (30), "
     "PLZ TEXT (7), Ort TEXT (30), Geburtsdatum DATETIME, Kontoinhaber TEXT (30), "
     "Bank TEXT (30), BLZ TEXT (8), Konto TEXT (10), Telefon TEXT (20), FAX TEXT (20), "
     "Handy TEXT (20), Web TEXT (50), Mail TEXT (50), Bemerkung MEMO, ID COUNTER",
     {{"kunden1", "Kundenname"}, {"kunden2", "ID"}}},
    {"Lagerartikel",
     "Artikel TEXT (20), Bestand SINGLE, Mindestbestand SINGLE, ID COUNTER",
     {{"lagerartikel1", "Artikel"}, {"lagerartikel2", "ID"}}},
    {"Lagerbuchungen",
     "Datum DATETIME, Artikel TEXT (20), Eingang SINGLE, Ausgang SINGLE, An_Von TEXT (30), "
     "ID COUNTER",
     {{"lagerbuchungen1", "Datum"}, {"lagerbuchungen2", "Artikel"},
      {"lagerbuchungen3", "Eingang"}, {"lagerbuchungen4", "Ausgang"},
      {"lagerbuchungen5", "An_Von"}, {"lagerbuchungen6", "ID"}}},
    {"DIBVerschluss",
     "Verschlussnr TEXT (10), Charge TEXT (15), Kunde TEXT (20), Datum DATETIME, "
     "Bemerkung TEXT (30), ID COUNTER",
     {{"dibverschluss1", "Verschlussnr"}, {"dibverschluss2", "Charge"},
      {"dibverschluss3", "Kunde"}, {"dibverschluss4", "Datum"}, {"dibverschluss5", "Bemerkung"},
      {"dibverschluss6", "ID"}}},
    // The program's own: colonies whose summary is still to be written (bookings/Zusammenfassung).
    {"Zusammenfassung_offen", "Volk_ID LONG, ID COUNTER",
     {{"zusammenfassung_offen1", "Volk_ID"}}}
};
// clang-format on

// The year of the forage periods means nothing beyond day and month.
QStringList startpflanzen() {
  struct Pflanze {
    const char* name;
    const char* von;
    const char* bis;
    int nektar;
    int pollen;
  };
  static const Pflanze pflanzen[] = {
      {"Efeu", "15.09.2006", "20.11.2006", 5, 2},
      {"Schneeheide", "15.01.2006", "20.03.2006", 5, 5},
      {"Haselnuss", "15.01.2006", "10.03.2006", 0, 4},
      {"Küblerweide", "10.03.2006", "10.04.2006", 4, 7},
      {"Krokus", "10.02.2006", "10.04.2006", 5, 5},
      {"Kirsche", "20.03.2006", "10.05.2006", 7, 3},
      {"Löwenzahn", "01.04.2006", "20.05.2006", 6, 8},
      {"Bergahorn", "01.05.2006", "30.06.2006", 4, 2},
      {"Winterlinde", "20.06.2006", "31.07.2006", 7, 2},
      {"Fichte", "15.05.2006", "31.07.2006", 7, 0},
      {"Goldrute", "20.07.2006", "30.09.2006", 3, 3},
  };
  QStringList anweisungen;
  for (const Pflanze& p : pflanzen)
    anweisungen << QStringLiteral(
                       "insert into Pflanzen(Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, "
                       "Pollenstufe) values ('%1', '%2', '%3', %4, %5)")
                       .arg(QString(p.name), QString(p.von), QString(p.bis))
                       .arg(p.nektar)
                       .arg(p.pollen);
  return anweisungen;
}

QStringList startoptionen() {
  struct Option {
    const char* arbeit;
    const char* start;
    int frist;
    const char* ende;
    const char* volkabhängig;
    const char* buchung;
  };
  static const Option optionen[] = {
      {"Schwarmkontrolle", "01.05", 9, "30.06", "J", ""},
      {"Varroakontrolle", "01.05", 9, "30.09", "J", ""},
      {"Varroa-Winterbekämpfung", "15.12", 0, "15.12", "J", ""},
      {"Rähmchen bauen", "01.11", 0, "01.11", "N", ""},
      {"Waben schmelzen", "01.08", 0, "01.08", "N", ""},
      {"Beuten reparieren", "01.12", 0, "01.12", "N", ""},
      {"Beuten bauen", "01.12", 0, "01.12", "N", ""},
      {"Frühjahrskontrolle", "01.03", 9, "30.04", "J", ""},
      {"Erweiterungskontrolle", "01.04", 9, "31.07", "J", ""},
      {"Honigernte", "01.06", 14, "31.08", "J", "Honigernte"},
      {"Kerzenproduktion", "01.11", 0, "01.11", "N", ""},
      {"Fütterung", "01.09", 0, "01.09", "J", ""},
      {"Drohnenbrutentnahme", "01.05", 14, "31.07", "J", ""},
      {"Wassertränke errichten", "15.03", 0, "15.03", "N", ""},
      {"Brutkontrolle", "01.04", 9, "31.08", "J", ""},
      {"Jahreserstkontrolle", "15.03", 0, "15.03", "J", ""},
      {"Einwinterung", "15.09", 0, "15.09", "J", ""},
      {"Winterkontrolle", "01.11", 14, "15.05", "J", ""},
  };
  QStringList anweisungen;
  for (const Option& o : optionen)
    anweisungen << QStringLiteral(
                       "insert into Arbeitsplanoptionen(Arbeitsart, Startzeitraum, "
                       "Wiederholungsfrist_Tage, Endzeitraum, Volkabhängig, Auto_erledigt_Buchung, "
                       "Auto_erledigt_Arbeitsart) values ('%1', '%2', %3, '%4', '%5', '%6', '')")
                       .arg(QString(o.arbeit), QString(o.start))
                       .arg(o.frist)
                       .arg(QString(o.ende), QString(o.volkabhängig), QString(o.buchung));
  return anweisungen;
}

QList<Tabelle> tabellenBauen() {
  QList<Tabelle> tabellen;
  for (const Vereinbarung& v : vereinbarungen) {
    Tabelle t;
    t.name = QString(v.name);
    t.anlegen = QStringLiteral("create table %1(%2)").arg(t.name, QString(v.felder));
    for (const auto& [index, feld] : v.indexe)
      t.indexe
          << QStringLiteral("create index %1 on %2(%3)").arg(QString(index), t.name, QString(feld));
    if (t.name == QLatin1String("Pflanzen")) t.startwerte = startpflanzen();
    if (t.name == QLatin1String("Arbeitsplanoptionen")) t.startwerte = startoptionen();
    tabellen << t;
  }
  return tabellen;
}

}  // namespace

const QList<Tabelle>& schema() {
  static const QList<Tabelle> tabellen = tabellenBauen();
  return tabellen;
}

const QStringList& buchungstabellen() {
  static const QStringList namen = {
      QStringLiteral("Stockkarte"),    QStringLiteral("Honigernte"),
      QStringLiteral("Wachsernte"),    QStringLiteral("Pollenernte"),
      QStringLiteral("Sonstigeernte"), QStringLiteral("Arbeiten"),
      QStringLiteral("Wanderung"),     QStringLiteral("Gewichtsmessung"),
      QStringLiteral("Behandlung"),    QStringLiteral("Königinwechsel"),
      QStringLiteral("Notizen")};
  return namen;
}
