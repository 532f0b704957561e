#include "evaluations/Leseliste.h"

#include "evaluations/Feldtext.h"

namespace Auswertung {

Daten gelesen(const Lauf& lauf, const QString& anweisung, const QVariantList& werte,
              const QStringList& geld) {
  const Daten roh = lauf.db.Lesen(anweisung, werte);
  std::vector<Spalte> spalten;
  for (int i = 0; i < roh->spalten(); ++i) {
    spalten.push_back(roh->spalte(i));
    if (geld.contains(spalten.back().name)) spalten.back().typ = Feldtyp::Währung;
  }
  Datenblock::Bauer bauer(std::move(spalten));
  for (int zeile = 0; zeile < roh->zeilen(); ++zeile) {
    for (int i = 0; i < roh->spalten(); ++i) Feldtext::kopieren(bauer, *roh, zeile, i);
    if (lauf.fortschritt) lauf.fortschritt(zeile + 1, roh->zeilen());
  }
  return bauer.fertig();
}

}  // namespace Auswertung
