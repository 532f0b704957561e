#pragma once

#include "bookings/Buchungstypen.h"

// The list of the bookings of one colony.

enum class Anzeigebereich {  // the numbers of the buttons anzeige(n) and of the setting
  Alles = 0,
  AktuellesJahr = 1,
  AktuellesUndLetztesJahr = 2
};

struct Buchungsabfrage {
  QString anweisung;
  QVariantList werte;
};

// The type's list query with the colony, the range (years by HeuteText) and the order by date.
Buchungsabfrage buchungsAbfrage(int art, const QString& volkId, Anzeigebereich bereich);
// Its rows, the newest booking last. Throws Datenbankfehler.
Daten buchungenLesen(Database& datenbank, int art, const QString& volkId, Anzeigebereich bereich);

// How a row's values stand in the slots of the type, the date first, then in slot order. Numbers
// have the slot's decimals (more where the value has more), an empty field gives the slot's first
// text. A field that the list doesn't have is left out.
QList<Slotänderung> zeilentexte(const Datenblock& daten, int zeile, int art);

// The sites of all colonies in their order, as they are read; colonies without one give an empty
// text. Throws Datenbankfehler.
QStringList volkstandorte(Database& datenbank);

// "Bewegungsdaten für das Volk:  3 / Anna"
QString listenÜberschrift(const QString& volknr, const QString& volkname);
// The name under which the list's column widths are kept, as "1bewegungsdaten".
QString listenLayout(int art);
// The whole key under which the grid keeps them.
QString listenLayoutSchlüssel(int art);
