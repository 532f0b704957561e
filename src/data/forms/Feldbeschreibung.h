#pragma once

#include "data/Verwaltungsfelder.h"
#include "platform/controls/Eingabefeld.h"

namespace Verwaltung {

// How a field's input is dressed.
Eingabefeld::Beschreibung beschreibung(const Feld& feld);

}  // namespace Verwaltung
