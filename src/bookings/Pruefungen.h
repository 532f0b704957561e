#pragma once

#include <QString>

// The checks before a booking is written, changed or deleted, in their order.
struct Prüfergebnis {
  enum class Art {
    Weiter,            // do it, without a word
    Abbruch,           // show the text as a Hinweis and do nothing
    HinweisUndWeiter,  // show the text as a Hinweis, then do it
    Frage              // ask the text; do it on Ja
  };
  Art art = Art::Weiter;
  QString text;
};

// The button neu(0): the date's text, the number of colonies marked.
Prüfergebnis prüfeNeu(const QString& datum, int anzahlMarkiert);
// The button neu(1): whether the list has a current row, the number of the current colony.
Prüfergebnis prüfeÄndern(const QString& datum, bool zeileGewählt, int anzahlMarkiert,
                         const QString& volknr);
// The button löschen; the question whether to delete at all is LoeschenBestaetigt's.
Prüfergebnis prüfeLöschen(bool zeileGewählt);
