#pragma once

#include <functional>

#include "colonies/Volkeingabe.h"

// The boxes that saving a colony needs; the form shows them.
struct Volkfragen {
  std::function<bool(const QString&)> frage;  // Yes and No; true for Yes
  std::function<void(const QString&)> hinweis;
};

// The whole text that tells why the inputs can't be saved; empty when they can. id 0 is a new
// colony.
QString volkPrüfen(Database& db, qint64 id, const Volkeingabe& eingabe);

// Saves inputs that passed volkPrüfen, with all that follows for migrations, appointments and old
// bookings, and sets ListeNeuLesen. id 0 adds a colony, any other changes that one; geladen is what
// the inputs held when it was loaded. Returns the colony's ID. All questions come before the first
// write, so that no transaction waits for the user; all writes are one Sammelschreiben. A work plan
// option that can't be computed is left out; when all is written, the last note names it. Throws
// Datenbankfehler.
qint64 volkSpeichern(Database& db, qint64 id, const Volkeingabe& eingabe,
                     const Volkeingabe& geladen, const Volkfragen& fragen);

// Deletes all bookings and appointments of the colony; Bienenvolk itself stays. One commit.
void VolkLoeschen(Database& db, qint64 id);
