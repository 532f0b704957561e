#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "platform/database/Datenblock.h"

// Turns a statement of the tables' own dialect into the engine's.
namespace Dialekt {

// The declared fields of a table; empty when there is no such table.
using Katalog = std::function<std::vector<Spalte>(const QString& tabelle)>;

struct Kreuztabelle {
  // rows of: group columns..., pivot value, cell value
  int gruppen = 0;        // number of leading columns that name a row of the cross table
};

struct Uebersetzt {
  QString sql;
  // Set for transform statements: sql then gives the grouped rows from which the table is built.
  std::optional<Kreuztabelle> kreuztabelle;
  bool schreibt = false;      // insert, update, delete
  bool aendertSchema = false; // create, alter, drop
  // The one table of a select without joins and groups; empty otherwise. Its rows can be changed.
  QString tabelle;
};

// Throws Datenbankfehler (Art::Anweisung) for what can't be read.
Uebersetzt uebersetze(const QString& anweisung, const Katalog& katalog);

}  // namespace Dialekt
