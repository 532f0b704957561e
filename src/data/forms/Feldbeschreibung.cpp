#include "data/forms/Feldbeschreibung.h"

namespace Verwaltung {

Eingabefeld::Beschreibung beschreibung(const Feld& feld) {
  Eingabefeld::Beschreibung b;
  b.maxLänge = feld.maxLänge;
  b.ersterText = feld.ersterText;
  b.einheit = feld.zeichen;
  if (feld.nurAnzeige) return b;  // no button for what isn't typed
  switch (feld.art) {
    case Art::Text:
    case Art::Notiz:
      break;
    case Art::Auswahl:
      b.art = Eingabefeld::Art::Auswahl;
      b.auswahl = feld.texte;
      break;
    case Art::Ganzzahl:
      b.art = Eingabefeld::Art::Ganzzahl;
      b.bis = feld.bis;
      b.von = feld.von;
      break;
    case Art::Dezimal:
      b.art = Eingabefeld::Art::Dezimal;
      b.nachkommastellen = feld.nachkommastellen;
      break;
    case Art::Datum:
      b.art = Eingabefeld::Art::Datum;
      break;
    case Art::TagMonat:
      b.art = Eingabefeld::Art::TagMonat;
      break;
  }
  return b;
}

}  // namespace Verwaltung
