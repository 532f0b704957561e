#pragma once

#include <QString>
#include <exception>

// Compaction of the database file.

QString komprimierenFrage();
QString komprimierenErfolgText();  // the program ends after it
QString komprimierenFehlerText();
// The same, with what is wrong behind it when the database itself is.
QString komprimierenFehlerText(const std::exception& fehler);

// The copy that a compaction makes beside DatenbankPfad, its last three characters replaced by
// "$$$". A run that was killed leaves it.
QString komprimierteKopie();

// Closes the workspace with all handles, writes the compacted copy and puts it in the place of the
// old file. Throws Datenbankfehler, also when another program is using the file; the old file is
// then as it was, and the workspace stays closed.
void datenbankKomprimieren();
