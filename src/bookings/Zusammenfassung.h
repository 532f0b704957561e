#pragma once

#include "platform/database/Datenbank.h"

// The summary fields of a colony in Bienenvolk are written behind its bookings, when the entry form
// closes. So that nothing in between leaves them wrong, each colony that a booking touches is noted
// in the table Zusammenfassung_offen, in the booking's own commit, and struck off in that of its
// summary. All functions throw Datenbankfehler.

// Notes a colony. Called within the booking's Sammelschreiben.
void ZusammenfassungVormerken(Database& datenbank, qint64 volkId);

// Rebuilds the summary fields in Bienenvolk of every colony named in geänderteVölker ("/12//7/")
// from the booking tables and strikes them off, as one commit. The form calls it when it closes and
// ListeNeuLesen is 1. When a rule fails the colonies rebuilt before stay so.
void VolkfelderNachziehen(Database& datenbank, const QString& geänderteVölker);

// Whether colonies are noted.
bool ZusammenfassungenOffen(Database& datenbank);

// Writes the summaries of all noted colonies: of a program that was killed, of a medium or another
// program that kept the form from writing them. False when none was noted.
bool ZusammenfassungenNachholen(Database& datenbank);
