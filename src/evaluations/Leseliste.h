#pragma once

#include "evaluations/Auswertung.h"

namespace Auswertung {

// The rows of a statement as lists show them: texts as TextLesen reads them, dates and numbers with
// their types, null as empty. The columns named in geld are money though the statement works them
// out, and have their two decimals. Throws Datenbankfehler.
Daten gelesen(const Lauf& lauf, const QString& anweisung, const QVariantList& werte = {},
              const QStringList& geld = {});

}  // namespace Auswertung
