#pragma once

#include <QString>

// Looks at a database file before the engine touches it.
namespace Dateiprüfung {

// The mark in the header of every database that this program makes.
constexpr int Programmkennung = 0x544F5641;  // "TOVA"

struct Befund {
  // Some other program has switched the file to a write-ahead log: opening alone leaves traces
  // beside it.
  bool schreibprotokoll = false;
  bool gekennzeichnet = false;  // bears this program's mark; else only its tables can tell
};

// Returns when the file looks like a database of this program's engine that can be read and
// written; else throws Datenbankfehler (KeineDatenbank, NurLesen) with a German text that names the
// file and says what to do: also for one with another program's mark or with texts that this
// program never writes (UTF-16). Never writes. A file whose last change was interrupted (its
// journal lies beside it) passes, so that the engine can put it right.
Befund prüfe(const QString& pfad);

// The failure of a file that is a database, but not one of TOVA, as the table is missing.
[[noreturn]] void keineVonTova(const QString& pfad, const QString& tabelle);

}  // namespace Dateiprüfung
