#pragma once

#include <QString>
#include <QVariant>
#include <functional>
#include <memory>

#include "platform/database/Datenbankfehler.h"
#include "platform/database/Datenblock.h"

class Recordset;
class Verbindung;  // the one connection to a file, with its caches; lives in Verbindung.h

// A light handle on the one connection of its file. Copies are cheap and mean the same connection,
// so open forms see each other's writes at once. All statements are given in the tables' own
// dialect (docs/architecture.md) with "?" for each bound value. A value may be null (an invalid
// QVariant), bool, a whole number, a double, a QString, a QDate. Every failure throws
// Datenbankfehler.
class Database {
 public:
  Database() = default;

  bool IsOpen() const;          // false too when the workspace has closed the connection
  const QString& Name() const;  // the file's path

  // Runs a statement that gives no rows. Commits by itself, except inside a Sammelschreiben.
  // Returns the number of rows changed.
  qint64 Execute(const QString& anweisung, const QVariantList& werte = {});
  // Opens the rows of a select (or transform) statement, the first one current.
  Recordset OpenRecordset(const QString& anweisung, const QVariantList& werte = {});
  // The rows alone, for lists.
  Daten Lesen(const QString& anweisung, const QVariantList& werte = {});

  // Makes the writes of one action one commit: runs it, then commits what it wrote, also when it
  // fails half way (its exception goes on afterwards). Inside another Sammelschreiben it joins it.
  // When the commit itself fails, or the engine has thrown the writes away with the failure (disk
  // full), the Datenbankfehler says so with allesVerworfen().
  void Sammelschreiben(const std::function<void()>& aktion);

  // The ID that the last AddNew or insert into gave.
  qint64 LetzteID() const;
  // Declared fields of a table in their order; empty for a table that isn't there.
  std::vector<Spalte> Felder(const QString& tabelle) const;
  QStringList Tabellen() const;
  // The statement as the engine gets it, for tests.
  QString Uebersetzung(const QString& anweisung) const;

  void Close() { m_verbindung.reset(); }

 private:
  friend class Workspace;
  friend class Recordset;
  explicit Database(std::shared_ptr<Verbindung> verbindung);
  Verbindung& verbindung() const;  // throws when closed
  std::shared_ptr<Verbindung> m_verbindung;
};

// Opens and makes database files. One connection per file, shared by all its handles.
class Workspace {
 public:
  // A new file; it must not exist yet.
  Database CreateDatabase(const QString& pfad);
  // Read-write. The file is checked first and is left byte for byte as it was when it isn't a
  // database of this program's engine, is cut short, is a folder or can't be read or written: then
  // a Datenbankfehler names the file and says in German what to do.
  Database OpenDatabase(const QString& pfad);
  // Closes every connection; handles still held throw on use. Inside a Sammelschreiben what it has
  // written so far is committed first; where that fails all are closed nevertheless, and the first
  // failure is thrown.
  void Close();
  // Writes a compacted copy. The source must not be open; the target must not exist.
  static void CompactDatabase(const QString& von, const QString& nach);

 private:
  std::vector<std::shared_ptr<Verbindung>> m_verbindungen;
};
