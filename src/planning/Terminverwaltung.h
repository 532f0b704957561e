#pragma once

#include <QString>
#include <QStringList>

#include "platform/database/Datenbank.h"

// The beekeeper's calendar: the rows of Termine, listed, filtered, added, changed and deleted by
// hand. Everything throws Datenbankfehler when a statement fails.
namespace Terminverwaltung {

enum class Ansicht { Allgemein, Volkabhängig };  // Volk_ID 0, and the colonies' appointments

// What the list is to show; texts as the user typed them (they are compared as they are stored,
// trimmed and with backticks), empty for "all".
struct Filter {
  Ansicht ansicht = Ansicht::Allgemein;
  QString volknr;
  QString termin;
  QString erledigt;  // "J" or "N"
  QString von;       // "dd.mm.yyyy"
  QString bis;
};

// A von that is no date becomes seven days before today, a bis that is none fourteen days after.
void vorgaben(Filter& filter);
// The rows by Datum. von and bis must be dates. The number of a colony means the first colony of
// that number; one that no colony has doesn't restrict the list.
Daten liste(Database& db, const Filter& filter);

// An appointment as the user typed it.
struct Eingabe {
  QString datum;
  QString termin;
  QString erledigt;
  QString volknr;    // empty or blank: not tied to a colony
  QString standort;  // not empty: for all colonies of the site

  bool operator==(const Eingabe&) const = default;
};

struct Prüfung {
  QStringList gründe;  // for not saving
  qint64 volkId = 0;   // the colony in stock of that number
};
Prüfung prüfen(Database& db, const Eingabe& eingabe);
QString standortFrage(const QString& standort);

// Whether the colony (0 for none) has this appointment on that day already, in another row than
// außer (0: any row).
bool existiert(Database& db, const Eingabe& eingabe, qint64 volkId, qint64 außer = 0);

// Writes one row, a new one for id 0, and gives its ID.
qint64 speichern(Database& db, const Eingabe& eingabe, qint64 volkId, qint64 id = 0);
// One new row for each colony of the site, gone colonies too, as one commit. Gives the last ID, 0
// when no colony stands there. A failure half way says how many have got theirs.
qint64 amStandortEintragen(Database& db, const Eingabe& eingabe);

// Deletes what is done, of all years and of both views.
void erledigteLöschen(Database& db);

// The number of a colony; empty for 0 and for a colony that is gone from the table.
QString volknummer(Database& db, qint64 volkId);

// The texts of the pick lists, without the empty ones.
QStringList volknummern(Database& db);
QStringList terminarten(Database& db);
QStringList standorte(Database& db);

// "Heute in... Tagen": a whole number from -9999 to 9999. What is typed, without what doesn't
// belong there.
QString nurTage(const QString& text);
// The day that lies so many days ahead as "dd.mm.yyyy"; empty when the text is no number.
QString datumInTagen(const QString& tage);
// The days from today to the date; empty for a text that is no date and beyond the limits.
QString tageBis(const QString& datum);

}  // namespace Terminverwaltung
