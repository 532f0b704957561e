#pragma once

#include "evaluations/Auswertung.h"

// The movements of the honey store as a list, summed up by product and batch, by month and by year,
// and what there is of each product.
namespace Lagerauswertung {

Auswertung::Beschreibung beschreibung();

}  // namespace Lagerauswertung
