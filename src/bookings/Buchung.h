#pragma once

#include <QStringList>

#include "bookings/Buchungstypen.h"

// One booking as it stands in the entry form.
struct Buchung {
  int art = 0;      // BuchungsArt
  Slottexte texte;  // slot 0 is the date, "dd.mm.yyyy"
};

// What a booking needs to know of the form, and what it tells it.
struct Buchungskontext {
  int anzahlMarkiert = 1;    // colonies marked in the main list
  QString geänderteVölker;   // IDs of the colonies booked so far, "/12//7/", each once
  QStringList gebucht = {};  // IDs of the colonies that the last run has booked
};

// Writes one booking of one colony: closes the appointments that it settles, adds or changes the
// row of the type's table, books a new honey harvest into the honey store, sets ListeNeuLesen,
// enters the colony in geänderteVölker and, when it wasn't there, notes it for its summary
// (Zusammenfassung.h). buchungId is "-1" for a new booking.
//
// A new honey harvest entered in combs changes the text of slot 1 (and of slot 6, where it still is
// the value that the form put in for slot 1, by the factor or the last price), and it stays
// changed: in a run the second colony multiplies once more. The form shows the changed texts
// afterwards, also after a failure.
//
// Throws Datenbankfehler, also when slot 0 is no date or the row to change is gone. What was
// written before the failure stays.
void BuchungSpeichern(Database& datenbank, Buchung& buchung, const QString& volkId,
                      const QString& buchungId, Buchungskontext& kontext);

// A new booking for each of the colonies in this order, as one commit. SammelFolgevolk is set from
// the second one on and cleared at the end, also after a failure. A failure ends the run and goes
// on. By a rule: the colonies before it stay booked and stand in kontext.gebucht, and the failure's
// text says how many they are and what the honey store got. Of medium or engine: nothing stays
// (allesVerworfen), and booking and context are as they were before the run.
void BuchungslaufSpeichern(Database& datenbank, Buchung& buchung, const QStringList& volkIds,
                           Buchungskontext& kontext);
