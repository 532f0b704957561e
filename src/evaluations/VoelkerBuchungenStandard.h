#pragma once

#include "evaluations/Auswertung.h"

// One booking table as a list, its fields and order chosen in a sentence
// (TW_Völker_Buchungen_Standard).
namespace VölkerBuchungenStandard {

Auswertung::Beschreibung beschreibung();

// The statement of the list.
QString anweisung(const Auswertung::Eingaben& eingaben);

}  // namespace VölkerBuchungenStandard
