#pragma once

#include "platform/database/dialekt/Dialektleser.h"

// The statements other than select, from behind their first word. Each gives the engine's
// statement. Internal to the dialect.
namespace Dialekt {

// transform; tells the number of left columns (Kreuztabelle in Dialekt.h).
QString kreuztabelle(Leser& leser, int& gruppen);

QString einfügen(Leser& leser);  // insert
QString ändern(Leser& leser);    // update
QString löschen(Leser& leser);   // delete

QString anlegen(Leser& leser);    // create
QString umbauen(Leser& leser);    // alter
QString entfernen(Leser& leser);  // drop

}  // namespace Dialekt
