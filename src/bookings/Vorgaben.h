#pragma once

#include "bookings/Buchungstypen.h"

// Defaults from the newest booking of any colony, when the user leaves a slot or picks an entry of
// its list: what was booked with the same treatment or agent, or the price last achieved for the
// same grade. Empty when the slot has no such default or there is no such booking. Throws
// Datenbankfehler.
QList<Slotaenderung> vorgabenBeimVerlassen(Database& datenbank, int art, int slot,
                                           const Slottexte& texte);
