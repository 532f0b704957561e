#pragma once

#include "evaluations/Auswertung.h"

// Lists of sites and forage plants, what each site can hold, and the sites' quality index on a day
// or week by week.
namespace Standortauswertung {

Auswertung::Beschreibung beschreibung();

}  // namespace Standortauswertung
