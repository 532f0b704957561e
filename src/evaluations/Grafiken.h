#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "platform/database/Datenbank.h"

// The charts: five ready-made statements whose rows become points with a name and a value.
namespace Grafiken {

struct Punkt {
  QString name;
  double wert = 0;
};

struct Grafik {
  QString titel;
  QString fuß;
  QList<Punkt> punkte;
  int größter = -1;  // the point with the largest value, the first of several; -1 without points
};

// What can be charted, in the order of the choice.
const QStringList& auswahlen();
// Whether it is the chart of one year.
bool fürEinJahr(int auswahl);

// The chart with this number from 0. Without a year of four digits the one of a year has no points.
// Throws Datenbankfehler.
Grafik lesen(Database& db, int auswahl, const QString& jahr);

}  // namespace Grafiken
