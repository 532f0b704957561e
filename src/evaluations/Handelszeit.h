#pragma once

#include "evaluations/Auswertung.h"

// What the evaluations of trade and of the honey store share: the period, and tables with a row for
// each month or year.
namespace Handelszeit {

// optibuch 0 and 1 with tdat 0 and 1; from the first of January to today at the opening.
Auswertung::Gruppe gruppe();
void vorgeben(Auswertung::Eingaben& eingaben);
QStringList gründe(const QString& befehl, const Auswertung::Eingaben& eingaben);

// The clause of the period, which begins with " where "; without one it is empty.
struct Klausel {
  QString text;
  QVariantList werte;
};
Klausel klausel(const Auswertung::Eingaben& eingaben);

// A list, or what is said when it has no row.
Auswertung::Ergebnis ergebnis(Ausgabeliste liste);

enum class Stufe { Monat, Jahr };

// A column of sums, and what is summed.
struct Summe {
  QString titel;
  QString ausdruck;  // "sum(Menge)"
};

// A row for each month, in which all years of the period are one, or for each of the last eleven
// years: how many bookings, and their sums with two decimals.
Auswertung::Ergebnis tabelle(const Auswertung::Lauf& lauf, Stufe stufe, const QString& vonTabelle,
                             const QList<Summe>& summen);

// The lists as buttons one below the other, rolisten_0 and on, and their commands.
struct Liste {
  QString titel;
  std::function<Auswertung::Ergebnis(Auswertung::Lauf&)> lauf;
};
// A description with the groups given, the period and these lists.
Auswertung::Beschreibung beschreibung(const QString& name, const QString& titel,
                                      const QList<Auswertung::Gruppe>& gruppen,
                                      const QList<Liste>& listen);

}  // namespace Handelszeit
