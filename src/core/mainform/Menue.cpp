#include "core/mainform/Menue.h"

namespace Menue {

namespace {

Eintrag buchung(const QString& name, const QString& titel, int buchungsArt) {
  return {name, titel, Ziel::Eingabe, Regel::BrauchtZeile, QString::number(buchungsArt)};
}

Menue voelker() {
  return {
      "XV_Bienenvolk",
      "&Völker",
      "Hilfe_Völker",
      {{"XV_neuevölker", "Neue Völker &eingeben", Ziel::NeuesVolk, Regel::Immer, {}},
       {"XV_volkändern", "Aktuelles Volk &ändern", Ziel::VolkAendern, Regel::BrauchtZeile, {}},
       {"XV_volklöschen", "Aktuelles Volk &löschen", Ziel::VolkLoeschen, Regel::BrauchtZeile, {}},
       {"XV_Landkarte", "Landkarte", Ziel::NochNicht, Regel::Immer, {}},
       {"XV_völkerselektieren",
        "Völker sele&ktieren",
        Ziel::VoelkerSelektieren,
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

Menue eingabe() {
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

// An entry whose form does not exist.
Eintrag spaeter(const QString& name, const QString& titel, Regel regel = Regel::Immer) {
  return {name, titel, Ziel::NochNicht, regel, {}};
}

Menue auswertungen() {
  constexpr Regel Liste = Regel::BrauchtListe;
  return {
      "A_Auswertungen",
      "&Auswertungen",
      "Hilfe_Auswertungen",
      {spaeter("XW_Völker", "Völker (Volkdaten)", Liste),
       spaeter("XW_Völkerbuchungenstandard", "Völker (Buchungen) Standard", Liste),
       spaeter("XW_Völkerbuchungen", "Völker (Buchungen) Erweitert", Liste),
       spaeter("XW_Stockkarten", "Stockkarten"), spaeter("XW_Listengenerator", "Listengenerator"),
       spaeter("XW_Arbeitspläne", "Arbeitspläne", Liste),
       spaeter("XW_Deckungsbeiträge", "Deckungsbeiträge", Liste),
       spaeter("XW_Arbeitszeiten", "Arbeitszeiten", Liste),
       spaeter("XW_Statistiken", "Statistiken", Liste),
       spaeter("XW_Gruppierungen", "Gruppierungen", Liste),
       spaeter("XW_Grafiken", "Grafische Auswertung"),
       spaeter("XW_Standorte", "Standorte / Pflanzen"), spaeter("XW_Wetterdaten", "Wetterdaten"),
       spaeter("XW_Einverkauf", "Ein- und Verkäufe"), spaeter("XW_Honiglager", "Honiglager"),
       spaeter("XW_Materiallager", "Materiallager"), spaeter("XW_Inventar", "Inventar")}};
}

Menue verwaltung() {
  return {"V_Verwaltung",
          "&Verwaltung",
          "Hilfe_Verwaltung",
          {spaeter("XV_Zuchtbuch", "&Zuchtbuch"),
           {"XV_standorte", "&Standorte (Wanderung)", Ziel::Standorte, Regel::Immer, "0"},
           {"XV_pflanzen", "&Pflanzen (Tracht)", Ziel::Standorte, Regel::Immer, "2"},
           {"XV_Arbeitsplanoptionen",
            "&Arbeitsplanoptionen",
            Ziel::Arbeitsplanoptionen,
            Regel::Immer,
            {}},
           {"XV_Termine", "&Terminverwaltung", Ziel::Termine, Regel::Immer, {}},
           {"XV_Aktuelle_Termine", "&Aktuelle Termine", Ziel::AktuelleTermine, Regel::Immer, {}},
           spaeter("XV_wetterdaten", "&Wetterdaten"),
           spaeter("XV_Kunden", "&Kunden"),
           {"XV_einkauf", "&Einkäufe", Ziel::Handel, Regel::Immer, "0"},
           {"XV_verkauf", "&Verkäufe", Ziel::Handel, Regel::Immer, "1"},
           {"XV_honiglager", "&Honiglager", Ziel::Handel, Regel::Immer, "2"},
           spaeter("XV_Materiallager", "&Materiallager"),
           spaeter("xv_inventar", "&Inventar"),
           spaeter("xv_dibverschluss", "& D.I.B Gewährleistungsverschlüsse")}};
}

Menue optionen() {
  return {
      "O_Optionen",
      "&Optionen",
      "Hilfe_Optionen",
      {{"O_Einstellungen", "Einstellungen", Ziel::Einstellungen, Regel::Immer, {}},
       spaeter("O_Datensicherung", "Datensicherung"),
       {"O_Datenbankkomprimieren", "Datenbank komprimieren", Ziel::Komprimieren, Regel::Immer, {}},
       spaeter("TO_OPocketexport", "Datenexport an Pocket-TOVA"),
       spaeter("TO_OPocketimport", "Datenimport von Pocket-TOVA"),
       spaeter("O_Datenimport_tova1", "Datenübernahme aus TOVA 1.0"),
       spaeter("O_Updatemanager", "Update-Manager"),
       {"O_volkabhängigeterminesetzen",
        "Volkabhängige Termine setzen",
        Ziel::TermineSetzen,
        Regel::Immer,
        {}},
       {"O_Interakt", "Internet-Aktualisierung", Ziel::Internet, Regel::Immer, {}}}};
}

Menue hilfe() {
  return {
      "H_Hilfe",
      "&Hilfe",
      "Hilfe_Startmenue",
      {{"hilfewieanfangen", "Die ersten Schritte mit TOVA", Ziel::WieAnfangen, Regel::Immer, {}},
       {"hilfestartmenue", "Das Start&menue", Ziel::Hilfe, Regel::Immer, "Hilfe_Startmenue"},
       {"hilfewiemacheich", "Wie mache ich...", Ziel::Hilfe, Regel::Immer, "Hilfe_Wiemacheich"}}};
}

}  // namespace

const QList<Menue>& menues() {
  static const QList<Menue> liste = {voelker(),    eingabe(),  auswertungen(),
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
  for (const Menue& menue : menues())
    for (const Eintrag& e : menue.eintraege)
      if (e.name == name) return e;
  return keiner;
}

bool waehlbar(Ziel ziel, Regel regel, bool zeileDa, bool listeDa) {
  if (ziel == Ziel::NochNicht) return false;
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

}  // namespace Menue
