#pragma once

#include <optional>
#include <string>

#include "platform/database/werte/Datenblock.h"
#include "platform/locale/Deutsch.h"

// The cells of a list as texts and as numbers, quick enough for millions of them.
namespace Zelltext {

// Adds to the text (UTF-8) what Datenblock::anzeige gives.
void anhängen(std::string& ziel, const Datenblock& block, int zeile, int spalte);
// Adds a number in its shortest form, as Deutsch::schlicht gives it.
void zahlAnhängen(std::string& ziel, double zahl);

// The number that a shown text is, as Deutsch::gelesen takes it.
inline std::optional<double> zahl(QByteArrayView text) { return Deutsch::gelesen(text); }
// The number that a cell shows, be it stored as a number or as a text; in a column of numbers an
// amount of money too.
std::optional<double> zahl(const Datenblock& block, int zeile, int spalte);

}  // namespace Zelltext
