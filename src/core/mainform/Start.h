#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include "platform/database/Datenbank.h"

// The steps of starting and closing that need no window, each one a function; the main form calls
// them in their order and shows what they give.
namespace Start {

// "TOVA 2.0.57 - Die Software für Imker"
QString fenstertitel();
QString schonGestartetText();
QString keinDruckerText();

// Tests of the number and date forms. Each gives the message to show, empty when all is well. After
// landtest's message the program ends.
QString landtest();
QString waehrungstest();
QString datumtest(const QDateTime& jetzt);

// AppPfad (ends in "/"), DatenbankPfad, ListeNeuLesen, ProgrammGestartet.
void pfadeSetzen(const QString& programmordner);

bool datenbankVorhanden();
// Creates TOVA2.MDB when there is none, else opens it, as DB; the handle is another one on the same
// file. Throws Datenbankfehler.
Database datenbankOeffnen();

// Files of the program folder that carry the read-only attribute, full paths by name.
QStringList schreibgeschuetzte();
QString schreibschutzText(qsizetype anzahl);
// Clears the attribute. Throws Dateifehler for the first file that keeps it, after trying all.
void schreibschutzEntfernen(const QStringList& dateien);

// Deletes what saves of a killed program have left in the program folder. Throws Dateifehler for
// the first file that stays, after trying all.
void resteLoeschen();

// HeuteText, then the settings: read when the file exists, otherwise the defaults, saved at once.
// Throws Dateifehler.
void einstellungenLaden(QDate heute);

// Counts this start in EinstellungenZahl 78. True at each twentieth start, when the hint at updates
// is due.
bool startZaehlen();

// Whether an open appointment lies at or before today plus slot 17 days.
bool termineFaellig(Database& db);

// Closing: deletes the exported reports, one by one. Throws Dateifehler for the first one that
// stays, after trying all.
void berichteLoeschen();
// Closing: whether the last backup (EinstellungenText 26) is at least slot 50 days old. A slot 26
// that is no date becomes today, so that the interval starts now.
bool sicherungFaellig();

}  // namespace Start
