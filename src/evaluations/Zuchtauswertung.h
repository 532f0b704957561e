#pragma once

#include "evaluations/Auswertung.h"

// Chosen fields of the breeding book, and averages of what the queens' colonies have achieved,
// grouped by a field that identifies or describes a queen.
namespace Zuchtauswertung {

Auswertung::Beschreibung beschreibung();

}  // namespace Zuchtauswertung
