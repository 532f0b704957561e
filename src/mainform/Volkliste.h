#pragma once

#include <QStringList>

#include "platform/database/Datenbank.h"

// The list of colonies: its statement, the settings it rests on, and the counts of its filter.

// The key under which the list's column widths are kept.
inline const QString VolklisteLayout = QStringLiteral("TOVA/datali/ColWidths");

enum class Volkfilter { Bestand = 0, Abgang = 1, Alles = 2 };

// The list's select (EinstellungenText 17): a field list without "Futterwaben" is dropped, an
// empty one becomes the default.
void listenfelderPrüfen();
// The same for the stock card's select (EinstellungenText 22); a panel selection
// (EinstellungenText 24) without any "1" becomes sixty times "1".
void stockkartenfelderPrüfen();
// The selects that a first start has.
const QString& listenfelderStandard();
const QString& stockkartenfelderStandard();

// The list's statement with filter and start sort (EinstellungenText 33 and 34).
QString volklisteAnweisung(Volkfilter filter);
// The rows of the list. Throws Datenbankfehler.
Daten volkliste(Database& db, Volkfilter filter);

struct Volkanzahl {
  qint64 bestand = 0;
  qint64 abgang = 0;
};
// Whatever the filter is. Throws Datenbankfehler.
Volkanzahl volkanzahl(Database& db);
// The three captions of the filter, in the order of Volkfilter.
QStringList filterbeschriftungen(const Volkanzahl& anzahl);

// The column by which the list was sorted last, kept in EinstellungenZahl 25 (columns count from
// 1) and 26 (0 ascending, 1 descending).
struct Listensortierung {
  int spalte = 0;  // counts from 0
  Qt::SortOrder richtung = Qt::AscendingOrder;
};
// Repairs slot 25 for a list of that many columns and gives the sort; spalte is -1 when a start
// sort is configured or there are no columns, and the rows stay as they came.
Listensortierung gemerkteSortierung(int spalten);
void sortierungMerken(const Listensortierung& sortierung);

// What the fixed first column shows: the running number (rows count from 0) or the colony's number.
QString ersteSpalte(int zeile, const QString& volknr);
