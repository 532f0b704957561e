#include "evaluations/Lagerauswertung.h"

#include "evaluations/Handelszeit.h"
#include "evaluations/Leseliste.h"

using namespace Auswertung;
using Handelszeit::Klausel;
using Handelszeit::Stufe;

namespace Lagerauswertung {

namespace {

const QString Summen = QStringLiteral(
    "count(*) as Anzahl, sum(Zugang) as Zugänge, sum(Abgang) as Abgänge from Honiglager");

Ergebnis inDerZeit(const Lauf& lauf, const QString& auswahl, const QString& ende) {
  const Klausel k = Handelszeit::klausel(lauf.eingaben);
  return Handelszeit::ergebnis(Ausgabeliste(gelesen(lauf, auswahl + k.text + ende, k.werte)));
}

Ergebnis alle(Lauf& lauf) {
  return inDerZeit(lauf,
                   "select Datum, Produkt, Zugang, Abgang, Charge, Abfülldatum, Bemerkung from "
                   "Honiglager",
                   " order by Datum");
}

auto je(const QString& felder) {
  return [felder](Lauf& lauf) {
    return inDerZeit(lauf, "select " + felder + ", " + Summen, " group by " + felder);
  };
}

// Stock is the whole store, whatever the period.
Ergebnis bestand(Lauf& lauf) {
  return Handelszeit::ergebnis(Ausgabeliste(gelesen(
      lauf, "select Produkt, sum(Zugang - Abgang) as Summe, " + Summen + " group by Produkt")));
}

auto zeittabelle(Stufe stufe) {
  return [stufe](Lauf& lauf) {
    return Handelszeit::tabelle(lauf, stufe, "Honiglager",
                                {{"Zugänge", "sum(Zugang)"},
                                 {"Abgänge", "sum(Abgang)"},
                                 {"Gesamt", "sum(Zugang) - sum(Abgang)"}});
  };
}

}  // namespace

Beschreibung beschreibung() {
  Beschreibung b =
      Handelszeit::beschreibung("TW_Honiglager", "Honiglager auswerten", {},
                                {{"Alle Buchungen listen", alle},
                                 {"Summen je Produkt", je("Produkt")},
                                 {"Bestand je Produkt (unabhängig vom Datum)", bestand},
                                 {"Summen je Produkt und Charge", je("Produkt, Charge")},
                                 {"Summen je Monat", zeittabelle(Stufe::Monat)},
                                 {"Summen je Jahr", zeittabelle(Stufe::Jahr)}});
  // The stock needs no period, so none can be wrong for it.
  b.prüfe = [prüfe = b.prüfe](const QString& befehl, const Eingaben& e) {
    return befehl == u"rolisten_2" ? QStringList() : prüfe(befehl, e);
  };
  return b;
}

}  // namespace Lagerauswertung
