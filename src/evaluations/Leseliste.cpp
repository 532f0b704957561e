#include "evaluations/Leseliste.h"

#include "evaluations/Feldtext.h"

namespace Auswertung {

void zelleLesen(Datenblock::Bauer& ziel, const Datenblock& von, int zeile, int spalte) {
  if (!von.istText(zeile, spalte)) return ziel.wert(von.wert(zeile, spalte));
  std::string text;
  Feldtext::anhängen(text, von.rohtext(zeile, spalte));
  ziel.text(text.data(), static_cast<qsizetype>(text.size()));
}

Daten gelesen(const Lauf& lauf, const QString& anweisung, const QVariantList& werte,
              const QStringList& geld) {
  const Daten roh = lauf.db.Lesen(anweisung, werte);
  std::vector<Spalte> spalten;
  for (int i = 0; i < roh->spalten(); ++i) {
    spalten.push_back(roh->spalte(i));
    Spalte& spalte = spalten.back();
    if (spalte.typ == Feldtyp::Ausdruck)
      spalte.typ = geld.contains(spalte.name) ? Feldtyp::Währung : Feldtyp::Einfach;
  }
  Datenblock::Bauer bauer(std::move(spalten));
  for (int zeile = 0; zeile < roh->zeilen(); ++zeile) {
    for (int i = 0; i < roh->spalten(); ++i) zelleLesen(bauer, *roh, zeile, i);
    if (lauf.fortschritt) lauf.fortschritt(zeile + 1, roh->zeilen());
  }
  return bauer.fertig();
}

}  // namespace Auswertung
