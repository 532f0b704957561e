#pragma once

#include "evaluations/Auswertung.h"

// TW_Deckungsbeitrag: the revenue of the beekeeping and its costs, item by item, for each business
// year or each colony, and what is left.
namespace Deckungsbeitrag {

Auswertung::Beschreibung beschreibung();

}  // namespace Deckungsbeitrag
