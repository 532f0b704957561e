#pragma once

#include "evaluations/Auswertung.h"

// The open appointments of the colonies in stock, for one to eight weeks: as a plain list or as a
// table with a column for each day.
namespace Arbeitsplan {

Auswertung::Beschreibung beschreibung();

}  // namespace Arbeitsplan
