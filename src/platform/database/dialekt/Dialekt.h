#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "platform/database/werte/Datenblock.h"

// Turns a statement of the tables' own dialect into the engine's. What it gives depends on the
// tables there are: whoever keeps translations drops them when a statement changed the schema.
namespace Dialekt {

// The declared fields of a table; empty when there is no such table. Asked for names in any letter
// case (umlauts too).
using Katalog = std::function<std::vector<Spalte>(const QString& tabelle)>;

// What else is known of the tables. Each part may be left out.
struct Auskunft {
  // The name of a table as it was declared. Needed for a name whose umlauts stand in the other
  // letter case ("KÖNIGINWECHSEL"); without it names go to the engine as they are given.
  std::function<QString(const QString& tabelle)> tabellenname;
  // Whether an index begins with this field. Both names come as declared. Where one does, "select
  // distinct F from T order by F" jumps from value to value instead of reading all rows.
  std::function<bool(const QString& tabelle, const QString& feld)> beginntIndex;
};

// How the rows of a transform statement become the cross table. Each row holds, in this order:
//
//   gruppen columns   the left columns of the cross table as they stand behind "select", with
//                     their names: the group values and the counts of the whole group ("count(*)
//                     as Anzahl"). They are the same in all rows of one table row.
//   pivot value       null, number or text; its declared type is the field's
//   cell value        how many rows of the tables there are
//
// The tables are grouped once, by table row and pivot value. Rows come in the order of the groups,
// then ascending by pivot value, null first, text by the collation. Cells that no row gives stay
// null. A text may be spelled in other letter case in another row; by the collation it is the same
// group or column.
struct Kreuztabelle {
  int gruppen = 0;  // number of left columns
};

struct Übersetzt {
  QString sql;
  // Set for transform statements: sql then gives the grouped rows from which the table is built.
  std::optional<Kreuztabelle> kreuztabelle;
  bool schreibt = false;      // insert, update, delete
  bool ändertSchema = false;  // create, alter, drop
  // The one table of a select without joins and groups; empty otherwise. Its rows can be changed.
  // Spelled as declared.
  QString tabelle;
  // Number of "?" in the statement. The engine's statement takes the same values in the same order.
  int werte = 0;
};

// Throws Datenbankfehler (Art::Anweisung) for what can't be read. The text is the engine's for
// "prepare"; it needs the functions and the collation of Funktionen.h.
Übersetzt übersetze(const QString& anweisung, const Katalog& katalog,
                    const Auskunft& auskunft = {});

}  // namespace Dialekt
