#pragma once

#include <vector>

#include "platform/database/dialekt/Dialektleser.h"

// Reads a select and writes it in the engine's language. Internal to the dialect.
namespace Dialekt {

// A column of a select.
struct Posten {
  Ausdruck ausdruck;
  QString alias;
  QString stern;         // "*" or "T.*" instead of an expression
  bool ausViel = false;  // computed from many rows

  QString sql() const;
};

struct Sortierung {
  Ausdruck ausdruck;
  bool absteigend = false;
};

// A select, taken apart.
struct Auswahl {
  Geltung geltung;
  bool verschieden = false;  // distinct
  int anzahl = -1;           // top
  std::vector<Posten> posten;
  QString von;
  QString wo;
  std::vector<Ausdruck> gruppen;
  std::vector<Sortierung> sortierung;

  // Rows of the tables as they are, none of them computed from many.
  bool einfach() const { return !verschieden && gruppen.empty() && !geltung.aggregat; }
  bool eineTabelle() const { return geltung.quellen.size() == 1; }
};

Auswahl liesAuswahl(Leser& leser);
QString alsAnweisung(const Auswahl& auswahl, const Auskunft& auskunft);

// Its tables and conditions alone.
QString vonUndWo(const Auswahl& auswahl);
// What rows are grouped by, with commas in between.
QString verbunden(const std::vector<Ausdruck>& teile);

}  // namespace Dialekt
