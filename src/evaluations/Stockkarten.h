#pragma once

#include "evaluations/Auswertung.h"

// The inspections of all colonies as lines of fixed width (TW_Stockkarten).
namespace Stockkarten {

Auswertung::Beschreibung beschreibung();

// The lines of the report. The choice of colonies is kept but doesn't count: all are listed.
QStringList bericht(Auswertung::Lauf& lauf);

}  // namespace Stockkarten
