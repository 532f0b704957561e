#pragma once

#include <QString>

// Looks at a database file before the engine touches it.
namespace Dateipruefung {

// Returns when the file looks like a database of this program's engine that can be read and
// written; else throws Datenbankfehler (KeineDatenbank, NurLesen) with a German text that names the
// file and says what to do. Never writes. A file whose last change was interrupted (its journal
// lies beside it) passes, so that the engine can put it right. Gives true for a file that some
// other program has switched to a write-ahead log: opening alone leaves traces beside it.
bool pruefe(const QString& pfad);

// The failure of a file that is a database, but not one of TOVA.
[[noreturn]] void keineVonTova(const QString& pfad);

}  // namespace Dateipruefung
