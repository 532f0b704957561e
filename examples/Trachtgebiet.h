#pragma once

#include <QList>

#include "Zufall.h"

// The stands of the sample operation with the forage around them, written through src/sites.

struct Bienenstand {
  const char* name;
  const char* hinweis;
  const char* klima;
  const char* flugrichtung;
  bool winter;    // colonies may stay there
  bool auto_hin;  // a car gets there
  double prämie;
};

// The first one is the winter stand at home, the others are visited for their forage, in the order
// of the year.
enum Stand { Hausgarten, Rapsfeld, Lindenallee, Waldlichtung, Streuobstwiese, Heidefläche };
const QList<Bienenstand>& bienenstände();

// Sites, plants with their bloom in that year, the ties between both, the forage periods that
// follow from them. Throws Datenbankfehler.
void trachtgebietAnlegen(Zufall& zufall, int jahr);
