#pragma once

#include <optional>

#include "bookings/Buchungstypen.h"

// Saved entry masks: a text file for each type with one line for each of the slots 1 to 27, shown
// or hidden, without slot 15 and without the slots that are a choice list.

// The kind that each slot has from its last dressing. All are Text when the form opens; a type
// dresses only the slots that it uses, the others keep what they were.
using Slotarten = std::array<Verwaltung::Art, AnzahlSlots>;
void einkleiden(Slotarten& arten, int art);

// AppPfad + "TOVA_TE_EINGABE_STD" + the type's number + ".TV2"
QString maskenDatei(int art);

// Writes the mask. Throws Dateifehler.
void maskeSichern(int art, const Slottexte& texte, const Slotarten& arten);
// What is told afterwards.
QString maskeGesichertText(int art);

// The texts of the mask, each for its slot; a short file fills only the first ones. Nothing when
// there is no such file. Throws Dateifehler.
std::optional<QList<Slotänderung>> maskeEinlesen(int art, const Slotarten& arten);
