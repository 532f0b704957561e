#pragma once

#include <QDate>
#include <QList>

#include "platform/database/Datenbank.h"

// Appointments derived from the work plan options.

// Adds the open appointments of one option for one colony (0 for an option that is not tied to
// colonies) to Termine: the days of the option's series in the year of HeuteText, from today and
// from the newest booking that settles the option on. What stands in Termine already is not looked
// at; callers see to double rows. An option that isn't there gives nothing. A period text that is
// no day of this year throws Datenbankfehler (Wertebereich), a booking table that isn't one another
// (Anweisung); both name the option, and nothing is written then.
void TermineBerechnen(Database& db, qint64 optionId, qint64 volkId);

// A period text "dd.mm" as a day of the year of HeuteText; invalid when that year has no such day.
QDate tagDesJahres(const QString& tagMonat);

// The ID of each colony that is in stock.
Daten völkerImBestand(Database& db);

// The days beginn, beginn + frist, ... up to ende (included) that are not earlier than schwelle. A
// frist of 0 gives the one day beginn.
QList<QDate> terminreihe(QDate beginn, QDate ende, qint64 frist, QDate schwelle);
