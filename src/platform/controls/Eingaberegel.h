#pragma once

#include <QString>
#include <optional>

#include "platform/controls/Eingabefeld.h"

// What an entry field accepts, without the field: judges one change of its text, whichever way it
// came (key, paste, drop, completion).
//
// Text is filtered and cut to the length. A number or a date is taken whole or not at all, since a
// number that lost a digit is another number.
namespace Eingaberegel {

struct Ergebnis {
  QString text;
  int cursor = 0;
  bool gekuerzt = false;  // a part of what came in was left out for want of room
};

// vorher: the accepted text; nachher: the text with the change, the cursor behind what came in.
// Gives the text to show, or nothing when the change is refused. What is only taken away is never
// refused (but a choice stays one of its texts).
std::optional<Ergebnis> pruefe(const Eingabefeld::Beschreibung& beschreibung, const QString& vorher,
                               const QString& nachher, int cursor);

// True when the field may hold the text as its whole content.
bool passt(const Eingabefeld::Beschreibung& beschreibung, const QString& text);

// Line breaks and tabs as blanks, no control characters, no halves of surrogate pairs.
QString bereinigt(const QString& text);
// At most so many UTF-16 units (0: all), never half a surrogate pair.
QString gekuerzt(const QString& text, qsizetype laenge);
// The most characters the field takes, 0 for no limit.
int groessteLaenge(const Eingabefeld::Beschreibung& beschreibung);

// A pasted number in the field's own form: "1.234,56 €" gives "1234,56", "2.5" gives "2,5". Nothing
// when it isn't a number without a sign.
std::optional<QString> zahlAusText(const QString& text, int nachkommastellen,
                                   const QString& einheit = {});

// "1.5" gives "01.05"; empty when it is no day of a year.
QString tagMonat(const QString& text);

}  // namespace Eingaberegel
