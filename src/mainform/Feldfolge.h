#pragma once

#include <QStringList>

#include "platform/database/Datenbank.h"

// The order of the fields in the two lists that the user arranges. It is kept as the list's select
// statement: EinstellungenText 17 for the colonies, 22 for the stock card.
namespace Feldfolge {

enum class Liste { Volk, Stockkarte };

// The fields of the configured select in their order, as the table declares them. What is no field
// of the table, or stands twice, is left out; a select that isn't a plain list of fields, or is
// older than Futterwaben, gives the fields of a first start. The date of the stock card stands
// first, the ID last; Selektiert and the stock card's Volk_ID are there in any case.
QStringList lesen(Liste liste, const Database& db);

// The select for fields as lesen() gives them and verschieben() orders them.
QString anweisung(Liste liste, const QStringList& felder);

// Moves the field of that row one place up (schritt -1) or down (1) and gives its new row; at the
// list's ends it stays. -1, and nothing is moved, when the date or the ID would have to move.
int verschieben(QStringList& felder, int zeile, int schritt);
QString unbeweglichText();

}  // namespace Feldfolge
