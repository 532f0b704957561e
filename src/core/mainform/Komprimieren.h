#pragma once

#include <QString>

// Compaction of the database file.

QString komprimierenFrage();
QString komprimierenErfolgText();  // the program ends after it
QString komprimierenFehlerText();

// Closes the workspace with all handles, writes a compacted copy beside DatenbankPfad (its last
// three characters replaced by "$$$") and puts it in the place of the old file. Throws
// Datenbankfehler or Dateifehler; the old file is then as it was, and the workspace stays closed.
void datenbankKomprimieren();
