#pragma once

#include "evaluations/Auswertung.h"

// Purchases or sales as a list, summed up by product, grade, party and batch, by month and by year.
namespace Handelsauswertung {

Auswertung::Beschreibung beschreibung();

}  // namespace Handelsauswertung
