#pragma once

#include <QString>
#include <optional>

#include "platform/controls/Eingabefeld.h"

// What an entry field accepts, without the field: judges one change of its text, whichever way it
// came (key, paste, drop, completion).
//
// Text is filtered and cut to the length. A number or a date is taken whole or not at all, since a
// number that lost a digit is another number. In a decimal number a typed point stays a point: it
// groups thousands when a comma follows, else the last one is the decimal sign, as ZahlLesen reads.
namespace Eingaberegel {

struct Ergebnis {
  QString text;
  int cursor = 0;
  bool gekürzt = false;  // a part of what came in was left out for want of room
};

// vorher: the accepted text; nachher: the text with the change, the cursor behind what came in.
// Gives the text to show, or nothing when the change is refused. What is only taken away is never
// refused (but a choice stays one of its texts).
std::optional<Ergebnis> prüfe(const Eingabefeld::Beschreibung& beschreibung, const QString& vorher,
                              const QString& nachher, int cursor);

// Why that change was refused or cut, in words for the user: "höchstens 9999".
QString grund(const Eingabefeld::Beschreibung& beschreibung, const QString& vorher,
              const QString& nachher, int cursor);

// What a change brings in: the characters that stand in front of the cursor and weren't there.
// Empty for what only takes away.
QString neues(const QString& vorher, const QString& nachher, int cursor);

// True when the field may hold the text as its whole content.
bool passt(const Eingabefeld::Beschreibung& beschreibung, const QString& text);

// Line breaks and tabs as blanks, no control characters, no halves of surrogate pairs.
QString bereinigt(const QString& text);
// At most so many UTF-16 units (0: all), never half a surrogate pair.
QString gekürzt(const QString& text, qsizetype länge);
// The most characters the field takes, 0 for no limit.
int größteLänge(const Eingabefeld::Beschreibung& beschreibung);

// A pasted number in the field's own form: "1.234,56 €" gives "1234,56", "2.5" gives "2,5". Nothing
// when it isn't a number without a sign.
std::optional<QString> zahlAusText(const QString& text, int nachkommastellen,
                                   const QString& einheit = {});

// A typed decimal number in the form that it keeps, of the same value: "1.234,5" gives "1234,5",
// "12.5" gives "12,5", "12," gives "12". What isn't made of digits, points and a comma stays.
QString zahlform(const QString& text);

// "1.5" gives "01.05"; empty when it is no day of a year.
QString tagMonat(const QString& text);

}  // namespace Eingaberegel
