#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>

#include "core/settings.h"
#include "platform/database/Datenbank.h"

// The steps of starting and closing that need no window, each one a function; the main form calls
// them in their order and shows what they give.
namespace Start {

// "TOVA 2.0.57 - Die Software für Imker"
QString fenstertitel();
QString schonGestartetText();
QString andererRechnerFrage(const QString& rechner);
QString keinDruckerText();

// Tests of the number and date forms. Each gives the message to show, empty when all is well. After
// landtest's message the program ends.
QString landtest();
QString währungstest();
QString datumtest(const QDateTime& jetzt);

// AppPfad (ends in "/"), DatenbankPfad, ListeNeuLesen, ProgrammGestartet.
void pfadeSetzen(const QString& programmordner);

bool datenbankVorhanden();
// Creates TOVA2.MDB when there is none, else opens it, as DB; the handle is another one on the same
// file. Throws Datenbankfehler.
Database datenbankÖffnen();

// Files of the program folder that carry the read-only attribute, full paths by name.
QStringList schreibgeschützte();
QString schreibschutzText(qsizetype anzahl);
// Clears the attribute. Throws Dateifehler for the first file that keeps it, after trying all.
void schreibschutzEntfernen(const QStringList& dateien);

// Deletes what saves, compactions and first starts of a killed program have left in the program
// folder; the database itself must be open, so that it is there. Throws Dateifehler for
// the first file that stays, after trying all.
void resteLöschen();

// HeuteText, then the settings: the defaults, and over them what the file holds. Without a file
// they are saved at once. A file that can't be read to its end is kept as Einstellungen.TV2.alt and
// replaced at once by what holds now; where it stopped is given for einstellungsbruchText. Throws
// Dateifehler, also when it can't be kept.
std::optional<Einstellungsbruch> einstellungenLaden(QDate heute);
QString einstellungsbruchText(const Einstellungsbruch& bruch);

// Counts this start in EinstellungenZahl 78. True at each twentieth start, when the hint at updates
// is due.
bool startZählen();

// Whether an open appointment lies at or before today plus slot 17 days.
bool termineFällig(Database& db);

// Closing: deletes the exported reports, one by one. Throws Dateifehler for the first one that
// stays, after trying all.
void berichteLöschen();
// Closing: whether the last backup (EinstellungenText 26) is at least slot 50 days old. A slot 26
// that is no date becomes today, so that the interval starts now.
bool sicherungFällig();

}  // namespace Start
