#pragma once

#include <QDateTime>
#include <QStringView>
#include <functional>

struct sqlite3;

// The functions that translated statements call, and the collation "tova" of all text columns.
namespace Funktionen {

// Registers them with a connection: year, month, day, datediff, now, mid, len, ucase, lcase, val,
// int, tova_left, tova_right, tova_wie (like) and the collation. Null in, null out. Throws
// Datenbankfehler when the engine refuses.
//   sum, avg          add decimals as people do (Dezimalsumme.h), in place of the engine's own
//   tova_summe(...)   "+" and "-" between numbers, rounded in the same way
//   tova_fehlfolge()  fails as a damaged database does
//   tova_feld(value, field name, type, length), which the dialect puts around every value that
//                     insert and update assign: it applies the field's rule (Feldregeln.h)
//
// A value that its field can't hold fails the statement: with the German text for the user as the
// engine's message and SQLITE_MISMATCH as its error code, which means Art::Wertebereich.
void registriereFunktionen(sqlite3* verbindung);

// What "now" gives. An empty function: the machine's clock.
void setzeUhr(std::function<QDateTime()> uhr);

// "like": "*" stands for any text, "?" for one character, "#" for a digit, "[abc]", "[a-f]" and
// "[!abc]" for one character of a list or outside of it. Letter case never counts.
bool passtZu(QStringView text, QStringView muster);

}  // namespace Funktionen
