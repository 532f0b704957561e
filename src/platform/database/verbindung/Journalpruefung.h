#pragma once

#include <QString>

// The journal of an interrupted change lies beside the database, and the engine plays it back at
// the next opening. One that was left by another file of the same name (a copy was put back after a
// crash) would ruin the copy.
namespace Journalprüfung {

QString journal(const QString& datenbank);

// Whether the journal beside the file tells of this file: the state that its first page holds (the
// engine counts a file's changes there) is the file's own or the one before it. A journal without
// that page must fit the file's length. True also when there is no journal, or one that the engine
// ignores anyway. Never writes.
bool gehörtDazu(const QString& datenbank);

// Renames the journal ("...-journal.alt", with a number behind where that name is taken). Gives the
// new path. Throws Datenbankfehler when it can't be renamed.
QString legeBeiseite(const QString& datenbank);

}  // namespace Journalprüfung
