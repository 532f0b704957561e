#include "mainform/Menue.h"

namespace Menü {

namespace {

// An entry that opens a form.
Eintrag form(const QString& name, const QString& titel, const QString& wert = {}) {
  return {name, titel, Ziel::Form, Regel::Immer, wert};
}

Eintrag form(const QString& name, const QString& titel, Regel regel) {
  return {name, titel, Ziel::Form, regel, {}};
}

Eintrag buchung(const QString& name, const QString& titel, int buchungsArt) {
  return {name, titel, Ziel::Form, Regel::BrauchtZeile, QString::number(buchungsArt)};
}

Menü völker() {
  return {
      "XV_Bienenvolk",
      "&Völker",
      "Hilfe_Völker",
      {form("XV_neuevölker", "Neue Völker &eingeben", "Neu"),
       {"XV_volkändern", "Aktuelles Volk &ändern", Ziel::Form, Regel::BrauchtZeile, "Ändern"},
       {"XV_volklöschen", "Aktuelles Volk &löschen", Ziel::VolkLoeschen, Regel::BrauchtZeile, {}},
       form("XV_Landkarte", "Landkarte"),
       {"XV_völkerselektieren",
        "Völker sele&ktieren",
        Ziel::VölkerSelektieren,
        Regel::BrauchtListe,
        {}},
       {"XV_selektiertevölkermarkieren",
        "Selektierte Völker &markieren",
        Ziel::SelektierteMarkieren,
        Regel::BrauchtListe,
        {}},
       {"XV_markiertevölkerselektieren",
        "Markierte Völker &selektieren",
        Ziel::MarkierteSelektieren,
        Regel::BrauchtListe,
        {}},
       {"XV_beenden", "&Beenden", Ziel::Beenden, Regel::Immer, {}}}};
}

Menü eingabe() {
  return {"XE_Eingabe",
          "&Eingabe",
          "Hilfe_Eingabe",
          {buchung("XE_stockkarte", "&Stockkarte", 0), buchung("XE_honigernte", "&Honigernte", 1),
           buchung("XE_wachsernte", "&Wachsernte", 2), buchung("XE_pollenernte", "&Pollenernte", 3),
           buchung("XE_sonstigeernte", "&Sonstige Ernte", 4),
           buchung("XE_arbeiten", "&Arbeiten", 5), buchung("XE_wanderung", "&Wanderung", 6),
           buchung("XE_gewichtsmessung", "Gewichtsmessung", 7),
           buchung("XE_behandlung", "&Behandlung", 8),
           buchung("XE_Königinenwechsel", "&Königinenwechsel", 9),
           buchung("XE_Notizen", "&Notizen", 10)}};
}

Menü auswertungen() {
  constexpr Regel Liste = Regel::BrauchtListe;
  return {"A_Auswertungen",
          "&Auswertungen",
          "Hilfe_Auswertungen",
          {form("XW_Völker", "Völker (Volkdaten)", Liste),
           form("XW_Völkerbuchungenstandard", "Völker (Buchungen) Standard", Liste),
           form("XW_Völkerbuchungen", "Völker (Buchungen) Erweitert", Liste),
           form("XW_Stockkarten", "Stockkarten"), form("XW_Listengenerator", "Listengenerator"),
           form("XW_Arbeitspläne", "Arbeitspläne", Liste),
           form("XW_Deckungsbeiträge", "Deckungsbeiträge", Liste),
           form("XW_Arbeitszeiten", "Arbeitszeiten", Liste),
           form("XW_Statistiken", "Statistiken", Liste),
           form("XW_Gruppierungen", "Gruppierungen", Liste),
           form("XW_Grafiken", "Grafische Auswertung"),
           form("XW_Standorte", "Standorte / Pflanzen"), form("XW_Wetterdaten", "Wetterdaten"),
           form("XW_Einverkauf", "Ein- und Verkäufe"), form("XW_Honiglager", "Honiglager"),
           form("XW_Materiallager", "Materiallager"), form("XW_Inventar", "Inventar")}};
}

Menü verwaltung() {
  return {"V_Verwaltung",
          "&Verwaltung",
          "Hilfe_Verwaltung",
          {form("XV_Zuchtbuch", "&Zuchtbuch"), form("XV_standorte", "&Standorte (Wanderung)", "0"),
           form("XV_pflanzen", "&Pflanzen (Tracht)", "2"),
           form("XV_Arbeitsplanoptionen", "&Arbeitsplanoptionen"),
           form("XV_Termine", "&Terminverwaltung"),
           form("XV_Aktuelle_Termine", "&Aktuelle Termine"), form("XV_wetterdaten", "&Wetterdaten"),
           form("XV_Kunden", "&Kunden"), form("XV_einkauf", "&Einkäufe", "0"),
           form("XV_verkauf", "&Verkäufe", "1"), form("XV_honiglager", "&Honiglager", "2"),
           form("XV_Materiallager", "&Materiallager"), form("xv_inventar", "&Inventar"),
           form("xv_dibverschluss", "& D.I.B Gewährleistungsverschlüsse")}};
}

Menü optionen() {
  return {
      "O_Optionen",
      "&Optionen",
      "Hilfe_Optionen",
      {form("O_Einstellungen", "Einstellungen"),
       form("O_Datensicherung", "Datensicherung"),
       {"O_Datenbankkomprimieren", "Datenbank komprimieren", Ziel::Komprimieren, Regel::Immer, {}},
       form("TO_OPocketexport", "Datenexport an Pocket-TOVA"),
       form("TO_OPocketimport", "Datenimport von Pocket-TOVA"),
       form("O_Datenimport_tova1", "Datenübernahme aus TOVA 1.0"),
       form("O_Updatemanager", "Update-Manager"),
       {"O_volkabhängigeterminesetzen",
        "Volkabhängige Termine setzen",
        Ziel::TermineSetzen,
        Regel::Immer,
        {}},
       {"O_Interakt", "Internet-Aktualisierung", Ziel::Internet, Regel::Immer, {}}}};
}

Menü hilfe() {
  return {
      "H_Hilfe",
      "&Hilfe",
      "Hilfe_Startmenue",
      {form("hilfewieanfangen", "Die ersten Schritte mit TOVA"),
       {"hilfestartmenue", "Das Start&menue", Ziel::Hilfe, Regel::Immer, "Hilfe_Startmenue"},
       {"hilfewiemacheich", "Wie mache ich...", Ziel::Hilfe, Regel::Immer, "Hilfe_Wiemacheich"}}};
}

}  // namespace

const QList<Menü>& menüs() {
  static const QList<Menü> liste = {völker(),     eingabe(),  auswertungen(),
                                    verwaltung(), optionen(), hilfe()};
  return liste;
}

const QList<Taste>& tasten() {
  constexpr Regel Immer = Regel::Immer;
  constexpr Regel Zeile = Regel::BrauchtZeile;
  constexpr Regel Liste = Regel::BrauchtListe;
  static const QList<Taste> liste = {
      {"btn_neuesvolk", "XV_neuevölker", "Neu", "volk_neu", Immer, false},
      {"btn_volkändern", "XV_volkändern", "Ändern", "volk_aendern", Zeile, false},
      {"btn_landkarte", "XV_Landkarte", "Karte", "landkarte", Liste, false},
      {"btn_e_stockkarte", "XE_stockkarte", "Stockkarte", "stockkarte", Zeile, true},
      {"btn_e_honigernte", "XE_honigernte", "Honig", "honig", Zeile, false},
      {"btn_e_wachsernte", "XE_wachsernte", "Wachs", "wachs", Zeile, false},
      {"btn_e_arbeiten", "XE_arbeiten", "Arbeiten", "arbeiten", Zeile, false},
      {"btn_e_wanderung", "XE_wanderung", "Wandern", "wanderung", Zeile, false},
      {"btn_e_behandlung", "XE_behandlung", "Behandlung", "behandlung", Zeile, false},
      {"btn_a_völker", "XW_Völker", "Völker", "liste", Liste, true, true},
      {"btn_a_buchungen", "XW_Völkerbuchungenstandard", "Buchungen", "buchungen", Liste, false},
      {"btn_a_arbeitspläne", "XW_Arbeitspläne", "Pläne", "arbeitsplan", Liste, false},
      {"btn_a_deckungsbeiträge", "XW_Deckungsbeiträge", "Beiträge", "beitraege", Liste, false},
      {"btn_a_statistiken", "XW_Statistiken", "Statistik", "statistik", Liste, false},
      {"btn_a_gruppierungen", "XW_Gruppierungen", "Gruppen", "gruppen", Liste, false},
      {"btn_a_standorte", "XW_Standorte", "Tracht", "tracht", Immer, false},
      {"btn_grafik", "XW_Grafiken", "Grafik", "grafik", Liste, false},
      {"btn_v_standorte", "XV_standorte", "Standorte", "standort", Immer, true},
      {"btn_v_Arbeitsplanoptionen", "XV_Arbeitsplanoptionen", "Planung", "planung", Immer, false},
      {"btn_v_termine", "XV_Termine", "Termine", "termine", Immer, false},
      {"btn_v_wetterdaten", "XV_wetterdaten", "Wetter", "wetter", Immer, false},
      {"btn_v_honiglager", "XV_honiglager", "Lager", "lager", Immer, false},
      {"btn_o_einstellungen", "O_Einstellungen", "Optionen", "einstellungen", Immer, true},
      {"btn_o_datensicherung", "O_Datensicherung", "Sichern", "sicherung", Immer, false},
  };
  return liste;
}

const QList<Popupzeile>& popup() {
  static const QList<Popupzeile> liste = {{"&Neues Volk eingeben", "XV_neuevölker"},
                                          {"&Volk ändern", "XV_volkändern"},
                                          {"&Volk löschen", "XV_volklöschen"},
                                          {{}, {}},
                                          {"Stockkarte", "XE_stockkarte"},
                                          {"Honigernte", "XE_honigernte"},
                                          {"Wachsernte", "XE_wachsernte"},
                                          {"Pollenernte", "XE_pollenernte"},
                                          {"Sonstige Ernte", "XE_sonstigeernte"},
                                          {"Arbeiten", "XE_arbeiten"},
                                          {"Wanderung", "XE_wanderung"},
                                          {"Gewichtsmessung", "XE_gewichtsmessung"},
                                          {"Behandlung", "XE_behandlung"},
                                          {"Königinwechsel", "XE_Königinenwechsel"},
                                          {"Notizen", "XE_Notizen"}};
  return liste;
}

const Eintrag& eintrag(const QString& name) {
  static const Eintrag keiner;
  for (const Menü& menü : menüs())
    for (const Eintrag& e : menü.einträge)
      if (e.name == name) return e;
  return keiner;
}

bool wählbar(Ziel ziel, bool formDa, Regel regel, bool zeileDa, bool listeDa) {
  if (ziel == Ziel::Form && !formDa) return false;
  if (regel == Regel::BrauchtZeile) return zeileDa;
  if (regel == Regel::BrauchtListe) return listeDa;
  return true;
}

QString ohneMnemonik(const QString& titel) {
  QString text = titel;
  return text.remove(u'&').trimmed();
}

QString nichtsMarkiertText() {
  return QStringLiteral(
      "Bitte markieren Sie zuerst das Volk, das Sie ändern oder löschen möchten oder bei dem Sie "
      "Buchungen eintragen möchten!");
}

}  // namespace Menü
