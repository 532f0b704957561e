#pragma once

#include <QString>
#include <vector>

// The words and signs of a statement in the tables' own dialect.
namespace Dialekt {

struct Marke {
  enum class Art {
    Name,     // a word or a name, also one in brackets
    Text,     // 'text' or "text"; text holds what it says
    Zahl,     // as it stands
    Datum,    // #mm/dd/yyyy#; text holds "yyyy-mm-dd"
    Wert,     // ?
    Zeichen,  // an operator or a sign
    Ende
  };
  Art art = Art::Ende;
  QString text;
  bool geklammert = false;  // a name in brackets: never a word of the language
  int nummer = 0;           // of a Wert, from 1
  qsizetype ort = 0;        // where it begins in the statement
};

// All marks of a statement, the last one of Art::Ende. Throws Datenbankfehler (Art::Anweisung) for
// what is no mark, a text or name without an end, and a date that is none.
std::vector<Marke> zerlege(const QString& anweisung);

// The failure for a statement that can't be read from this place on.
[[noreturn]] void wirfUnlesbar(const QString& anweisung, qsizetype ort);

}  // namespace Dialekt
