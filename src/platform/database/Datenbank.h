#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

#include "platform/database/verbindung/Laufzeile.h"
#include "platform/database/werte/Datenbankfehler.h"
#include "platform/database/werte/Datenblock.h"

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

  // Gives the rows of a select to a visitor one by one, without holding them: for evaluations over
  // whole tables. The visitor takes a const Laufzeile&, which is good until it returns; one that
  // returns bool ends the reading with false. It may read by other statements, but a write fails
  // until the reading has ended. No transform statements.
  // A "+" in front of the fields of the conditions keeps their indexes out: the table is read from
  // front to back, which is the quickest way to most of its rows.
  template <class Besucher>
  void Durchlaufe(const QString& anweisung, const QVariantList& werte, Besucher&& besucher) {
    durchlaufe(anweisung, werte, [&besucher](const Laufzeile& zeile) {
      if constexpr (std::is_void_v<std::invoke_result_t<Besucher&, const Laufzeile&>>) {
        besucher(zeile);
        return true;
      } else {
        return besucher(zeile);
      }
    });
  }

  // Makes the writes of one action one commit: runs it, then commits what it wrote, also when a
  // rule fails half way (its exception goes on afterwards). Inside another Sammelschreiben it joins
  // it. A failure of medium or engine (Datenbankfehler::istStörung) at the beginning, half way or
  // at the commit undoes the whole action, also when the action swallows it: the Datenbankfehler
  // says so with allesVerworfen().
  void Sammelschreiben(const std::function<void()>& aktion);
  // What follows outside the database from what was written (a row leaves its list): runs once the
  // running Sammelschreiben is committed, never when its writes were lost; at once outside of one.
  void NachFestschreiben(std::function<void()> folge);

  // The ID that the last AddNew or insert into gave.
  qint64 LetzteID() const;
  // Declared fields of a table in their order; empty for a table that isn't there.
  std::vector<Spalte> Felder(const QString& tabelle) const;
  QStringList Tabellen() const;
  // A number that the program keeps in the file's header, 0 at first; written it becomes part of
  // the running commit.
  int Schemastand() const;
  void setSchemastand(int stand);
  // The statement as the engine gets it, for tests.
  QString Übersetzung(const QString& anweisung) const;

  void Close() { m_verbindung.reset(); }

 private:
  friend class Workspace;
  friend class Recordset;
  explicit Database(std::shared_ptr<Verbindung> verbindung);
  void durchlaufe(const QString& anweisung, const QVariantList& werte,
                  const std::function<bool(const Laufzeile&)>& besucher);
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
  // What opening had to tell the user, German texts; they are given once. So far: a journal that
  // belongs to another file was put aside.
  QStringList NimmHinweise() { return std::exchange(m_hinweise, {}); }

  // Writes a compacted copy. The source must not be open; the target must not exist. The file is
  // checked whole first (a damaged one is a failure of the kind KeineDatenbank), and no other
  // program may be using it (Gesperrt).
  static void CompactDatabase(const QString& von, const QString& nach);
  // The same, and then puts the copy in the place of the file in one step, before any other program
  // can write into it. After a failure the file is as it was and there is no copy.
  static void CompactInPlace(const QString& pfad, const QString& kopie);

 private:
  void prüfeDatei(const QString& pfad);

  QStringList m_hinweise;
  std::vector<std::shared_ptr<Verbindung>> m_verbindungen;
};
