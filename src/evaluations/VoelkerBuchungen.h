#pragma once

#include "evaluations/Auswertung.h"

// All booking tables in one list, table by table or as an event report (TW_Völker_Buchungen).
namespace VölkerBuchungen {

Auswertung::Beschreibung beschreibung();

}  // namespace VölkerBuchungen
