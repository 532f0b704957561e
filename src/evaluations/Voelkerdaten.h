#pragma once

#include "evaluations/Auswertung.h"

// Any fields of the colonies as a list in one order (TW_Völkerdaten).
namespace Völkerdaten {

Auswertung::Beschreibung beschreibung();

// The statement of the list.
QString anweisung(const Auswertung::Eingaben& eingaben);

}  // namespace Völkerdaten
