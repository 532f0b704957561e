#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The twenty-seven tables: each one's create statement, its indexes and its seed rows.
struct Tabelle {
  QString name;
  QString anlegen;         // the create table statement
  QStringList indexe;      // the create index statements, in their order
  QStringList startwerte;  // the insert statements, in their order
};

// In the order in which a new database gets them.
const QList<Tabelle>& schema();

// Creates DatenbankPfad with all tables, indexes and seed rows and opens it as DB. A crash or a
// failure half way leaves no file behind. Throws Datenbankfehler.
void DatenbankAnlegen();

// Brings a database of an earlier version (one without Bienenvolk.Futterwaben) to this schema, on
// DB; saves the settings with the full panel afterwards.
void SchemaErweitern();

// The eleven booking tables by BuchungsArt, 0 Stockkarte to 10 Notizen.
const QStringList& buchungstabellen();
