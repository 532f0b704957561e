#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

#include "platform/database/Datenbank.h"

// The reminder at the start: the open appointments up to a number of days ahead, and the ways of
// closing them. Everything throws Datenbankfehler when a statement fails.
namespace Starttermine {

// "Aktuelle offene Termine (bis 14 Tage ab heute)"
QString titel();
// The last day of the list: today plus EinstellungenZahl 17.
QDate grenze();

// The open appointments up to the horizon, those of the colonies and the general ones, by Datum,
// Termin and Volknr. Columns Datum, Termin, Volknr, Volkname, Standort, ID.
Daten liste(Database& db);
// The open appointments of the colonies up to the horizon, one row for each site, day and kind:
// Standort, Datum, Termin, Anz_Völker.
Daten gruppiert(Database& db);

// The kinds to choose from: the work plan's, without empty ones.
QStringList arbeitsarten(Database& db);

// How an appointment is closed.
struct Erledigung {
  QString datum;               // the day of the work; no date: the planned day stays
  bool reiheAnpassen = false;  // whether the rest of a series goes by that day
};

// Closes one row. kennzeichen "N": the row keeps its day. Otherwise it gets the day of the closing
// and, with reiheAnpassen, the open appointments of the same text and colony go and come anew from
// that day on, in steps of the work plan option's interval to the end of its period. A datum that
// is none counts as "N".
void TerminErledigen(Database& db, qint64 id, const QString& kennzeichen, const QString& termin,
                     const Erledigung& erledigung);

// The closing actions, each one commit.
void aktuellenErledigen(Database& db, qint64 id, const QString& termin,
                        const Erledigung& erledigung);
void markierteErledigen(Database& db, const std::vector<qint64>& ids);
// All up to today, whatever the list shows.
void bisHeuteErledigen(Database& db);

// All of a kind at a site up to a day; texts as typed, compared as they are stored.
struct Standortauftrag {
  QString termin;
  QString standort;
  QString bis;
};
// Whether something is missing; a bis that is no date is.
bool unvollständig(const Standortauftrag& auftrag);
// How many rows the order concerns.
int gefunden(Database& db, const Standortauftrag& auftrag);
// Closes the rows of the list that the order concerns, in the order given (row numbers of the
// block); what lies beyond the list's horizon stays open.
void amStandortErledigen(Database& db, const Standortauftrag& auftrag, const Daten& liste,
                         const std::vector<int>& ordnung, const Erledigung& erledigung);

QString markierteFrage(qsizetype anzahl);
QString bisHeuteFrage();
QString unvollständigText();
QString standortFrage(int anzahl);

}  // namespace Starttermine
