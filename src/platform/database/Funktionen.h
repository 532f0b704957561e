#pragma once

#include <QDateTime>
#include <functional>

struct sqlite3;

// The functions that translated statements call, and the collation "tova" of all text columns.
namespace Funktionen {

// Registers them with a connection: year, month, day, datediff, now, left, right, mid, len, ucase,
// lcase, val, int, like by "*" and "?", and the collation. Also tova_feld(value, field name, type,
// length), which the dialect puts around every value that insert and update assign: it applies the
// field's rule (Feldregeln.h). Null in, null out. Throws Datenbankfehler when the engine refuses.
void registriereFunktionen(sqlite3* verbindung);

// A value that its field can't hold fails the statement: with the German text for the user as the
// engine's message and SQLITE_MISMATCH as its error code, which means Art::Wertebereich.

// What "now" gives. An empty function: the machine's clock.
void setzeUhr(std::function<QDateTime()> uhr);

}  // namespace Funktionen
