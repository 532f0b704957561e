#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The twenty-seven tables and one of the program's own: each one's create statement, its indexes
// and its seed rows.
struct Tabelle {
  QString name;
  QString anlegen;         // the create table statement
  QStringList indexe;      // the create index statements, in their order
  QStringList startwerte;  // the insert statements, in their order
};

// In the order in which a new database gets them.
const QList<Tabelle>& schema();

// The eleven booking tables by BuchungsArt, 0 Stockkarte to 10 Notizen.
const QStringList& buchungstabellen();
