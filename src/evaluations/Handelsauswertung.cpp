#include "evaluations/Handelsauswertung.h"

#include "evaluations/Handelszeit.h"
#include "evaluations/Leseliste.h"

using namespace Auswertung;
using Handelszeit::Klausel;
using Handelszeit::Stufe;

namespace Handelsauswertung {

namespace {

// What differs between sales and purchases.
struct Seite {
  QString tabelle;
  QString partner;  // fields
  QString geld;
  QString geldsumme;
};

const Seite& seite(const Eingaben& e) {
  static const Seite verkauf{"Verkauf", "Abnehmer", "Einnahmen",
                             "sum(Einnahmen) as Einnahme from Verkauf"};
  static const Seite einkauf{"Einkauf", "Lieferant", "Ausgaben",
                             "sum(Ausgaben) as Ausgabe from Einkauf"};
  return e.wahl("optiart") == 1 ? einkauf : verkauf;
}

Ergebnis alle(Lauf& lauf) {
  const Seite& s = seite(lauf.eingaben);
  const Klausel k = Handelszeit::klausel(lauf.eingaben);
  return Handelszeit::ergebnis(Ausgabeliste(
      gelesen(lauf,
              "select Datum, Produkt, Qualität, Charge, " + s.partner + ", Menge, Einheit, " +
                  s.geld + " from " + s.tabelle + k.text + " order by Datum",
              k.werte)));
}

// Quantities are added across their units.
Ergebnis gruppiert(const Lauf& lauf, const QString& felder) {
  const Klausel k = Handelszeit::klausel(lauf.eingaben);
  return Handelszeit::ergebnis(Ausgabeliste(gelesen(
      lauf,
      "select " + felder + ", count(*) as Anzahl, sum(Menge) as S_Menge, avg(Menge) as D_Menge, " +
          seite(lauf.eingaben).geldsumme + k.text + " group by " + felder,
      k.werte, {"Einnahme", "Ausgabe"})));
}

Ergebnis jePartner(Lauf& lauf) { return gruppiert(lauf, seite(lauf.eingaben).partner); }

auto je(const QString& felder) {
  return [felder](Lauf& lauf) { return gruppiert(lauf, felder); };
}

auto zeittabelle(Stufe stufe) {
  return [stufe](Lauf& lauf) {
    const Seite& s = seite(lauf.eingaben);
    return Handelszeit::tabelle(lauf, stufe, s.tabelle,
                                {{"Menge", "sum(Menge)"}, {s.geld, "sum(" + s.geld + ")"}});
  };
}

}  // namespace

Beschreibung beschreibung() {
  return Handelszeit::beschreibung(
      "TW_EinVerkauf", "Ein- und Verkäufe auswerten",
      {{"Auswertung der...", {optionen("optiart", {"Verkäufe", "Einkäufe"})}}},
      {{"Alle Buchungen listen", alle},
       {"Summen je Produkt", je("Produkt")},
       {"Summen je Qualität", je("Qualität")},
       {"Summen je Abnehmer / Lieferant", jePartner},
       {"Summen je Produkt und Charge", je("Produkt, Charge")},
       {"Summen je Monat", zeittabelle(Stufe::Monat)},
       {"Summen je Jahr", zeittabelle(Stufe::Jahr)}});
}

}  // namespace Handelsauswertung
