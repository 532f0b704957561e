#pragma once

#include "evaluations/Auswertung.h"

// Business years, which are calendar years: the inputs t_0 (from) and t_1 (to), and the choice
// optiauswertung between a row for each year and one for each colony.
namespace Auswertung {

struct Jahre {
  int von = 0;
  int bis = 0;
  int anzahl() const { return bis - von + 1; }
};

// What the inputs say, once they have passed the checks.
Jahre jahre(const Eingaben& eingaben);

// A reason for each of the two texts that is no year of four digits.
QStringList jahreszahlGründe(const Eingaben& eingaben);
// The same; else from above to, or more than 30 years.
QStringList wirtschaftsjahrGründe(const Eingaben& eingaben);

// Years never saved: the first becomes this year, the last becomes the first.
void jahreErgänzen(Eingaben& eingaben);

// The inputs, one group for the years and one for the choice.
Gruppe wirtschaftsjahre();
Gruppe auswertungNach();
bool nachVölkern(const Eingaben& eingaben);

}  // namespace Auswertung
