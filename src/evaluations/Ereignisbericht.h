#pragma once

#include "evaluations/Auswertung.h"

// What happened to the colonies, day by day or colony by colony: a row for each booking with a few
// of its fields in the column Hinweise.
namespace Ereignisbericht {

// The fields of a booking that the report shows, each behind its label.
struct Ereignisart {
  QString tabelle;
  struct Feld {
    QString name;
    QString vorsatz = {};
  };
  QList<Feld> felder;
};
const QList<Ereignisart>& arten();

// Sorted by day and colony, or with kontiergruppe by colony and day; then tierleer puts an empty
// row between two colonies. Several items in Hinweise stand two blanks apart. optibuch 2 counts as
// all bookings. Throws Datenbankfehler.
Ausgabeliste liste(Auswertung::Lauf& lauf);

}  // namespace Ereignisbericht
