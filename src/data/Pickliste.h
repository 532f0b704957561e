#pragma once

#include <QStringList>

#include "platform/database/Datenbank.h"

// The texts that an input offers, read from a table.
namespace Pickliste {

// Gelesen: as TextLesen reads them, which is how most inputs are saved and looked for.
// WieGespeichert: as they stand in the table, for a choice that is compared with it letter for
// letter.
enum class Schreibung { Gelesen, WieGespeichert };

// The first column of the statement, in its order, without the empty texts and those of blanks
// alone. Throws Datenbankfehler.
QStringList lesen(Database& datenbank, const QString& anweisung,
                  Schreibung schreibung = Schreibung::Gelesen);

}  // namespace Pickliste
