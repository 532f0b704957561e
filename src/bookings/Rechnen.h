#pragma once

#include <optional>

#include "bookings/Buchungstypen.h"

// What the entry form computes while the user types. All of it follows a change made by the user
// (or a default put in on leaving a slot): dressing the slots, showing a row of the list and
// reading a mask put their texts in as they are, without these computations.

// Comb arithmetic of the stock card. For a change of slot 12 to 14 or 16 to 19 gives the new texts
// of Waben (11) and Magazine (10); nothing for any other slot. A colony without a number of combs
// per magazine (below 1) gives no Magazine.
QList<Slotänderung> wabenrechnung(int geänderterSlot, const Slottexte& texte, int wabenJeMagazin);

// The combs of the list row last shown.
struct Wabenstand {
  int mittelwände = 0;  // MW_Basis
  int waben = 0;        // WZ_Basis
};
Wabenstand wabenstand(const Slottexte& texte);
// "MW: 2 (1)   WZ: 10 (-3)": the row last shown and what the entry changes about it.
QString wabenbilanz(const Wabenstand& basis, const Slottexte& texte);

// The money that follows from a quantity or a time, with the factors of EinstellungenWert. Nothing
// when the slot isn't such a one, and no Kosten when the hourly rate is 0.
std::optional<Slotänderung> geldvorgabe(int art, int geänderterSlot, const Slottexte& texte);

// All that follows from a change of the slot: the two above. The form puts the texts in, in this
// order. wabenJeMagazin counts for the stock card only.
QList<Slotänderung> folgeänderungen(int art, int geänderterSlot, const Slottexte& texte,
                                    int wabenJeMagazin);
