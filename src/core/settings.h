#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "core/slots.h"

// What stands between two columns of a text list as long as the user wants nothing else.
inline const QString TrennzeichenStandard = QString::fromUtf16(Textslots.trennzeichen.standard);

// The settings file Einstellungen.TV2 in AppPfad: 173 lines, strictly by position, for the three
// slot stores of TZ_Variablen.

// Where the reading of the file ended before its 173rd line.
struct Einstellungsbruch {
  int zeile = 0;  // the first line that wasn't read, from 1 on
  QString grund;  // a German sentence
};

// Reads the file. Stops at a line that can't be read (one of the first 101 that is no 16-bit whole
// number, one of the next 11 that is no number, the first of a file that is marked as UTF-16 or
// UTF-8) or at the file's end and keeps what it has; the remaining slots stay. Gives where it
// stopped. Lines behind the 173rd are ignored. No file: nothing happens. An empty separator becomes
// " | ". Throws Dateifehler for a file that may not be read: writing the settings later would
// replace it.
std::optional<Einstellungsbruch> EinstellungenLesen();

// Keeps the file as it stands beside itself, as Einstellungen.TV2.alt. An older copy is replaced.
// Throws Dateifehler.
void EinstellungenAufheben();

// Writes the file anew, whole or not at all: a crash while writing leaves the old one. Line breaks
// within a text become blanks. Throws Dateifehler.
void EinstellungenSchreiben();

// The settings of a first start: each slot's default.
void EinstellungenStandard(QDate heute);

// Puts slots right that are repaired at the start: VAT rates outside 1 to 50 become 19 and 7, combs
// per magazine outside 8 to 16 become 10.
void EinstellungenPrüfen();
