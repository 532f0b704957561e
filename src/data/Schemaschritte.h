#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "platform/database/Datenbank.h"

// The stands of the schema. A database file keeps the number of the last step that was taken on it
// (pragma user_version); a new one is made by data/schema.cpp and has the highest.

// What a step may do. Everything is added only where it is missing, so that a step may be taken
// again on a file that has some of it. All functions throw Datenbankfehler.
class Umbau {
 public:
  explicit Umbau(Database& db) : m_db(db) {}

  // A field as it is declared ("Belegstelle TEXT (20)"), with an index of its own where one is
  // named, and the value (a literal) that all rows have in the beginning. A field in which some row
  // has a value already keeps its values.
  void feld(const QString& tabelle, const QString& erklärung, const QString& wert,
            const QString& index = {});
  // A table as it is declared, with pairs of index and field.
  void tabelle(const QString& name, const QString& felder,
               const std::vector<std::pair<const char*, const char*>>& indexe = {});

  // Whether a table, a field or an index was missing.
  bool geändert() const { return m_geändert; }

 private:
  void index(const QString& name, const QString& tabelle, const QString& feld);
  bool hatFeld(const QString& tabelle, const QString& feld) const;
  void führeAus(const QString& anweisung);

  Database& m_db;
  bool m_geändert = false;
};

using Schemaschritt = std::function<void(Umbau&)>;

// All steps in their order; the first one makes stand 1 of a database of the earliest version. A
// step that was published is not changed any more: what comes later is a step behind it.
const std::vector<Schemaschritt>& schemaschritte();

// The stand of a new database.
int heutigerSchemastand();

// The stand of the file. One without Bienenvolk.Futterwaben is at the beginning, whatever number it
// has.
int schemastand(const Database& db);

// Throws Datenbankfehler for a file that a later version of the program has brought further than
// this one knows. Changes nothing.
void schemastandPrüfen(const Database& db, int höchster = heutigerSchemastand());

// Takes the steps that the file lacks and then writes its number. The caller makes it one commit.
// Gives whether the first step, the one of the earliest version, had something to add. Throws
// Datenbankfehler; the number is then as it was, so that the next call begins at the same step.
bool schemaschritteNehmen(Database& db, const std::vector<Schemaschritt>& schritte);
