#pragma once

#include <vector>

#include "platform/database/werte/Datenblock.h"

// The order of a block's rows by the values of its columns, as lists show it: null and empty texts
// first, then numbers by size, then texts by the collation and dates by their day. In a column of
// numbers a text that shows one ("1.234,50 €") goes by its size. Every row's key
// is an integer and computed once, so that the work grows as the rows do.
namespace Zeilenordnung {

// By the block's rows; two of them compare as the cells do.
using Schlüssel = std::vector<quint64>;

Schlüssel schlüssel(const Datenblock& block, int spalte);
// Puts these rows into the order of their keys; rows of equal keys stay as they are among
// themselves. For several columns: once for each, the least important first.
void sortiere(std::vector<int>& zeilen, const Schlüssel& schlüssel, bool absteigend = false);

}  // namespace Zeilenordnung
