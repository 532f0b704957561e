#include "evaluations/Zuchtauswertung.h"

#include "evaluations/Leseliste.h"

using namespace Auswertung;

namespace Zuchtauswertung {

namespace {

enum Zeitbereich { EinJahr, AlleJahre };

// What is averaged for each of the boxes, and its caption.
struct Leistung {
  QString titel;
  QString durchschnitte;
};
const QList<Leistung>& leistungen() {
  static const QList<Leistung> alle{
      {"Qualitätsmerkmale",
       ", avg(Sanftmut) as Sanftm, avg(Wabensitz) as Wabens, avg(Schwarmtrieb) as Schwarmtr, "
       "avg(Winterfestigkeit) as Winterf, avg(Frühjahrsentw) as FJahrentw, avg(Volkstärke) as "
       "Volkst, avg(Anz_Varroen) as Varroen, avg(Anteil_verletzt_Varroen) as VerlVarroen, "
       "avg(Ausräumrate_Proz) as Ausräumrate"},
      {"Leistungen 1. Jahr",
       ", avg(LJ1_Teiltracht_bis_15_6) as LJ1_T1506, avg(LJ1_Teiltracht_16_6_bis_15_8) as "
       "LJ1_T1606_1508, avg(LJ1_Teiltracht_ab_16_8) as LJ1_T1608, avg(LJ1_Vorräte) as LJ1_Vorrat, "
       "avg(LJ1_Summe) as LJ1_Gesamt, avg(LJ1_Leistung_Proz) as LJ1_Leistung"},
      {"Leistungen 2. Jahr",
       ", avg(LJ2_Teiltracht_bis_15_6) as LJ2_T1506, avg(LJ2_Teiltracht_16_6_bis_15_8) as "
       "LJ2_T1606_1508, avg(LJ2_Teiltracht_ab_16_8) as LJ2_T1608, avg(LJ2_Vorräte) as LJ2_Vorrat, "
       "avg(LJ2_Summe) as LJ2_Gesamt, avg(LJ2_Leistung_Proz) as LJ2_Leistung"}};
  return alle;
}

QStringList gemittelteFelder() {
  QStringList felder;
  for (const Leistung& l : leistungen())
    for (const QString& teil : l.durchschnitte.split("avg(").sliced(1))
      felder += teil.section(')', 0, 0);
  return felder;
}

// ---- runs ----

Daten imZeitbereich(const Lauf& lauf, const QString& auswahl, const QString& ende) {
  QString zeit;
  QVariantList werte;
  if (lauf.eingaben.wahl("optizeit") == EinJahr) {
    zeit = " where Jahr = ?";
    werte += lauf.eingaben.posten("komjahr");
  }
  return gelesen(lauf, "select " + auswahl + " from Zuchtbuch" + zeit + ende, werte);
}

Ergebnis buchungsinhalte(Lauf& lauf) {
  return {.liste = Ausgabeliste(imZeitbereich(lauf, lauf.eingaben.gewählt("liste").join(", "),
                                              " order by Jahr, Zuchtbuchnr")),
          .titel = "Ergebnis"};
}

Ergebnis durchschnitte(Lauf& lauf) {
  const QString schlüssel = lauf.eingaben.posten("listgruppe");
  QString auswahl = schlüssel + ", count(*) as Buchungen";
  for (int i = 0; i < leistungen().size(); ++i)
    if (lauf.eingaben.an("konstat", i)) auswahl += leistungen().at(i).durchschnitte;
  return {.liste = Ausgabeliste(imZeitbereich(lauf, auswahl, " group by " + schlüssel)),
          .titel = "Ergebnis (Durchschnittswerte gruppiert nach " + schlüssel + ")"};
}

QStringList gründe(const QString& befehl, const Eingaben& e) {
  if (befehl != "cmdok" || !e.gewählt("liste").isEmpty()) return {};
  return {"...keine zu listenden Datenfelder ausgewählt sind."};
}

// ---- description ----

QList<Posten> jahre(Database& db, const Eingaben& /*eingaben*/) {
  QList<Posten> posten;
  const Daten daten = db.Lesen("select distinct Jahr from Zuchtbuch order by Jahr");
  for (int i = 0; i < daten->zeilen(); ++i)
    posten.append({daten->anzeige(i, 0), daten->anzeige(i, 0)});
  return posten;
}

Gruppe statistik() {
  Gruppe gruppe{"Statistische Auswertungen",
                {liste("listgruppe",
                       "Die links unten ausgewälten Leistungsdaten werden nach dem im Listenfeld "
                       "ausgewählten Datensatz gruppiert (Doppelklick oder Start)",
                       felderVon("Zuchtbuch", gemittelteFelder()))
                     .beiDoppelklick("cmdgruppe")},
                1};
  for (int i = 0; i < leistungen().size(); ++i)
    gruppe.eingaben += haken("konstat", i, leistungen().at(i).titel);
  gruppe.eingaben += knopf("cmdgruppe", "Start");
  return gruppe;
}

}  // namespace

Beschreibung beschreibung() {
  Beschreibung b{.name = "TW_Zuchtbuch", .titel = "Auswertungen Zuchtbuch"};
  b.gruppen = {
      {.titel = "Buchungsinhalte listen",
       .eingaben = {merkliste("liste", {}, felderVon("Zuchtbuch")), knopf("cmdok", "Start")},
       .alle = Gruppe::Alle::Knöpfe},
      statistik(),
      {.titel = "Zeitbereich",
       .eingaben = {
           optionen("optizeit", {"Zuchtbucheinträge für das Jahr...", "Alle Zuchtbucheinträge"},
                    AlleJahre),
           auswahl("komjahr", {}, jahre).wählt("optizeit", EinJahr)}}};
  b.befehle = {{.name = "ok", .titel = "&Listen", .übergibt = true},
               {.name = "cmdok", .titel = {}, .lauf = buchungsinhalte},
               {.name = "cmdgruppe", .titel = {}, .lauf = durchschnitte}};
  b.nachLaden = [](Eingaben& e) { e.setGewählt("liste", e.angebot("liste")); };
  b.prüfe = gründe;
  b.ergebnisliste = "datali";
  b.zeichen = 170;
  b.zeilen = 46;
  return b;
}

}  // namespace Zuchtauswertung
