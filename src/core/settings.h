#pragma once

#include <QDate>
#include <QString>

// What stands between two columns of a text list as long as the user wants nothing else
// (EinstellungenText 4).
inline const QString TrennzeichenStandard = QStringLiteral(" | ");

// The settings file Einstellungen.TV2 in AppPfad: 173 lines, strictly by position, for the three
// slot stores of TZ_Variablen.

// Reads the file. Stops at a line that can't be read (one of the first 101 that is no 16-bit whole
// number, one of the next 11 that is no number) or at the file's end and keeps what it has; the
// remaining slots stay. Lines behind the 173rd are ignored. No file: nothing happens. An empty
// EinstellungenText 4 becomes " | ". Throws Dateifehler for a file that may not be read: writing
// the settings later would replace it.
void EinstellungenLesen();

// Writes the file anew, whole or not at all: a crash while writing leaves the old one. Line breaks
// within a text become blanks. Throws Dateifehler.
void EinstellungenSchreiben();

// The settings of a first start.
void EinstellungenStandard(QDate heute);

// VAT rates (slots 44 and 45) outside 1 to 50 become 19 and 7.
void MehrwertsteuerPruefen();
// Combs per magazine (slot 56) outside 8 to 16 becomes 10.
void WabenJeMagazinPruefen();
