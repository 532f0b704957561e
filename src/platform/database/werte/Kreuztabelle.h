#pragma once

#include "platform/database/werte/Datenblock.h"

namespace Kreuztabelle {

// The cross table from grouped rows of: group columns..., pivot value, cell value. One row per
// group in the order in which the groups come; behind the group columns one column per pivot
// value that occurs, ascending (numbers by size, texts by the collation), null first under the
// heading "<>". A cell without a grouped row is null.
Daten baue(const Datenblock& zeilen, int gruppen);

}  // namespace Kreuztabelle
