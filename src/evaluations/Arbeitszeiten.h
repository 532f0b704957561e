#pragma once

#include "evaluations/Auswertung.h"

// TW_Arbeitszeiten: the hours booked, table by table, for each business year or each colony.
namespace Arbeitszeiten {

Auswertung::Beschreibung beschreibung();

}  // namespace Arbeitszeiten
