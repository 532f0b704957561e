#pragma once

#include <QString>

#include "mainform/Volkliste.h"

// The list of colonies in spite of settings that can't be used: without a list nobody could reach
// the settings' form to put them right.

struct Volkzeilen {
  Daten daten;
  QString meldung;  // for the user, when a setting was replaced; else empty
};

// The rows of the list. A start sort (EinstellungenText 33 and 34) that the database refuses is
// cleared; a field list (EinstellungenText 17) that it refuses, or that gives no Selektiert or no
// ID, becomes the default. Settings that can be used stay. Throws Datenbankfehler for any other
// failure; the settings are then as they were.
Volkzeilen volklisteMitErsatz(Database& db, Volkfilter filter);

// The stock card's select (EinstellungenText 22) becomes the default when the database refuses it,
// or when it gives no Datum, no Volk_ID or no ID. Gives what to tell the user; empty when it stays.
// Throws Datenbankfehler for any other failure.
QString stockkartenfelderErsetzen(Database& db);
