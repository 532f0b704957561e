#pragma once

#include <QList>
#include <QString>
#include <functional>

#include "platform/database/Datenbank.h"

// The text panel of the main form: everything about one colony.
namespace Volkanzeige {

// A line from the list's current row; no column for the sum of combs and foundation sheets.
struct Zeile {
  int position;  // in EinstellungenText 24, counts from 1
  QString beschriftung;
  QString spalte;
};
const QList<Zeile>& zeilen();

// A piece of a row of bookings.
struct Spaltenform {
  enum class Art {
    Rechts,     // right-aligned in the width
    Links,      // left-aligned in the width
    Lücke,      // blanks alone
    Differenz,  // count less that of the next older row; blanks for the oldest row
    Wabensumme  // Waben plus Mittelwände
  };
  Art art;
  QString feld;
  int breite;
  int nachkommastellen = -1;  // -1: the field's text as it is
};

// The bookings of one table. Without a header (the notes) its rows are paragraphs.
struct Block {
  int position;
  QString tabelle;
  QString titel;
  QString kopf;
  QList<Spaltenform> spalten;  // between the date and the remark
};
const QList<Block>& blöcke();

// The cell of the list's current row by column, as the list shows it; empty without the column.
using Zelle = std::function<QString(const QString& spalte)>;

// The panel's whole text, lines ended by CRLF. nurJahr: bookings from the first of January of this
// year on. Throws Datenbankfehler.
QString text(Database& db, const Zelle& zelle, bool nurJahr);

// The honey sums of a colony in kg, as text; "0,0" where there was no harvest.
struct Honig {
  QString letzte = QStringLiteral("0,0");
  QString jahr = QStringLiteral("0,0");
  QString alles = QStringLiteral("0,0");
};
Honig honig(Database& db, const QString& volkId);

// "Honig (2024):"
QString honigjahrBeschriftung();

}  // namespace Volkanzeige
