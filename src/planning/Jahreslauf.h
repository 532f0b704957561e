#pragma once

#include <functional>

#include "platform/database/Datenbank.h"

// The yearly run: the appointments of all colony-dependent options for all colonies in stock.

// The boxes that the run needs, and how far it is; the form shows them.
struct Terminfragen {
  // Yes and No; true for Yes. neinVorgabe: No is the default.
  std::function<bool(const QString&, bool neinVorgabe)> frage;
  std::function<void(const QString&)> hinweis;
  std::function<void(qint64 fertig, qint64 gesamt)> fortschritt = {};
};

// Asks, writes the appointments of the year of HeuteText and tells the outcome. After a Yes to the
// first question EinstellungenZahl 28 is the year and the settings are saved, whether the run came
// about or not. All questions come before the first write, so that no transaction waits for the
// user; all writes are one Sammelschreiben.
//
// An option that can't be computed is left out; the others' appointments are written and stay. Then
// a Datenbankfehler that names the option ends the run: without the note of success and with slot
// 28 as it was, so that the question comes back at the next start. Any other failure ends it at
// once. Throws Datenbankfehler, Dateifehler (settings).
void VolkTermineSetzen(Database& db, const Terminfragen& fragen);

// Whether the year of HeuteText is another one than that of the last run (EinstellungenZahl 28).
bool neuesJahr();
