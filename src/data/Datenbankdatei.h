#pragma once

// The database file: made anew at the first start, brought to today's schema later.

// Creates DatenbankPfad with all tables, indexes and seed rows and opens it as DB. A crash or a
// failure half way leaves no file behind. Throws Datenbankfehler.
void DatenbankAnlegen();

// Brings DB to today's schema by the steps that it lacks (data/Schemaschritte.h), all in one
// commit: a start that is killed meanwhile leaves the file as it was, and the next one does it.
// Where the first step added something, the full panel is chosen and the settings are saved. A step
// that fails leaves what was done before it; the next start goes on there. Throws Datenbankfehler,
// Dateifehler.
void SchemaErweitern();
