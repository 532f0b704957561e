#pragma once

#include <QString>

class QWidget;

// The helpers of TZ_TOVA_Subs that ask or sound something.

// Whether the user may delete the marked record. Asks, unless EinstellungenZahl 55 is other than 1.
// A record that is named (one line, as "Honigernte vom 05.06.2026") stands below the question, and
// No is the default.
bool LoeschenBestaetigt(const QString& datensatz = {});

// The same question, asked whatever the setting is: for a record that the user hasn't seen.
bool LöschenErfragt(const QString& datensatz);

// A short beep when EinstellungenZahl 14 is 1.
void Tastenton();

// The name, without its folder, of the one file that matches the pattern (platform/files/
// Dateimuster.h), or of the user's choice of several; empty when the user chose none, "-" when
// nothing matches.
QString DateiWaehlen(const QString& muster, QWidget* öffner = nullptr);
