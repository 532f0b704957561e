#pragma once

#include <QList>
#include <QString>

// The measures of the colony statistics.
namespace Statistik {

// What is worked out of the bookings of a table.
enum class Rechnung {
  Anzahl,  // how many
  Mittel,  // of a field, over the bookings in which it isn't empty
  Summe,   // of a field
  Preis    // the sum of a value divided by that of a quantity
};

struct Maß {
  QString titel;
  QString schlüssel;
  QString tabelle;
  Rechnung rechnung = Rechnung::Anzahl;
  QString feld = {};  // of a price the quantity
  QString wert = {};  // of a price
  bool geld = false;  // shown as an amount of money

  Maß inGeld() const {
    Maß maß = *this;
    maß.geld = true;
    return maß;
  }
};

// All of them, in the order in which they are listed.
const QList<Maß>& maße();

}  // namespace Statistik
