#pragma once

#include "evaluations/Auswertung.h"

// The statements of the booking lists: one booking table, and of the colonies their number and name
// where the boxes kontier are on.
namespace Buchungsanweisung {

// The fields of a booking table that are offered: all but Volk_ID and ID.
Auswertung::Postenquelle felderVon(const QString& tabelle);

// "select Bienenvolk.Volknr as Volknr, Honigernte.Datum as Datum": at least one field or box.
QString auswahl(const Auswertung::Eingaben& eingaben, const QString& tabelle,
                const QStringList& felder);
// " from Bienenvolk, Honigernte where ...": the colonies chosen and the period.
QString herkunft(const Auswertung::Eingaben& eingaben, const QString& tabelle);

// The reasons for not listing: no field, then the period.
QStringList gründe(const Auswertung::Eingaben& eingaben, bool felderFehlen);
QString nichtsGefunden();

}  // namespace Buchungsanweisung
