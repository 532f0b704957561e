#pragma once

#include "evaluations/Auswertung.h"

// Counts of colonies and bookings by a field, cross tables, ages of the stock. The result stays in
// the form.
namespace Gruppierungen {

Auswertung::Beschreibung beschreibung();

// The statements, for the tests; all look at the colonies in stock but where told.
QString volkgruppen(const QString& feld);
// "Honigernte / Honigsorte" by Volknr or Volkname.
QString buchungskreuz(const QString& posten, const QString& gruppe);
QString kostengruppen(const QString& tabelle, const QString& gruppe);
enum class Standortliste { Völker, Waben, Mittelwände };
QString standortliste(Standortliste welche);
enum class Alter { Jahre, Monate };
QString bestandsalter(Alter einheit, const QString& pivot);

}  // namespace Gruppierungen
