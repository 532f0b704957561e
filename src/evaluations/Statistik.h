#pragma once

#include "evaluations/Auswertung.h"

// TW_Statistiken: any of 42 measures over a span of years, a row for each colony in stock or for
// each year, and a row of averages below them.
namespace Statistik {

Auswertung::Beschreibung beschreibung();

}  // namespace Statistik
