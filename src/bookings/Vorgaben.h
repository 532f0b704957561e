#pragma once

#include <optional>

#include "bookings/Buchungstypen.h"

// Defaults from the newest booking of any colony, when the user leaves a slot or picks an entry of
// its list: what was booked with the same treatment or agent, or the price last achieved for the
// same grade. Empty when the slot has no such default or there is no such booking. Throws
// Datenbankfehler.
QList<Slotänderung> vorgabenBeimVerlassen(Database& datenbank, int art, int slot,
                                          const Slottexte& texte);

// The price last achieved for the grade of this harvest (type 1 to 4), per unit of its quantity.
// Nothing without such a harvest, or when the newest one has no quantity. Throws Datenbankfehler.
std::optional<double> letzterPreis(Database& datenbank, int art, const Slottexte& texte);
// The value of the harvest's quantity at this price.
Slotänderung wertZumPreis(int art, const Slottexte& texte, double preis);
