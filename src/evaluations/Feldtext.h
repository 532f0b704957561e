#pragma once

#include <string>

#include "platform/database/verbindung/Laufzeile.h"

// Field values as TextLesen gives them, in UTF-8 and quick enough for millions of rows.
namespace Feldtext {

// A text trimmed, each ' in it a backtick.
void anhängen(std::string& ziel, QByteArrayView utf8);
// A number in its shortest form, with a decimal comma.
void anhängen(std::string& ziel, double zahl);
// Null adds nothing. A date stands as it lies, "yyyy-mm-dd": a row doesn't tell it from a text.
void anhängen(std::string& ziel, const Laufzeile& zeile, int spalte);

}  // namespace Feldtext
