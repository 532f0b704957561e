#pragma once

#include "evaluations/Auswertung.h"

namespace Auswertung {

// The rows of a statement as lists show them: texts as TextLesen reads them, dates and numbers with
// their types. What the statement works out is taken for numbers; the columns named in geld are
// money and have their two decimals. Throws Datenbankfehler.
Daten gelesen(const Lauf& lauf, const QString& anweisung, const QVariantList& werte = {},
              const QStringList& geld = {});

// Adds a cell to a list in the making: a text as TextLesen reads it, anything else as it lies.
void zelleLesen(Datenblock::Bauer& ziel, const Datenblock& von, int zeile, int spalte);

}  // namespace Auswertung
