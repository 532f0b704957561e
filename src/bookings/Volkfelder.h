#pragma once

#include "platform/database/Datenbank.h"

// Rebuilds the summary fields in Bienenvolk of every colony named in geaenderteVoelker ("/12//7/")
// from the booking tables, as one commit. The form calls it when it closes and ListeNeuLesen is 1.
// Throws Datenbankfehler; the colonies rebuilt before stay so.
void VolkfelderNachziehen(Database& datenbank, const QString& geaenderteVoelker);
