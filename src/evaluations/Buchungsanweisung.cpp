#include "evaluations/Buchungsanweisung.h"

using namespace Auswertung;

namespace Buchungsanweisung {

Postenquelle felderVon(const QString& tabelle) {
  return Auswertung::felderVon(tabelle, {QStringLiteral("Volk_ID"), QStringLiteral("ID")});
}

QString auswahl(const Eingaben& eingaben, const QString& tabelle, const QStringList& felder) {
  const QString kontier = QStringLiteral("kontier");
  QString text = QStringLiteral("select ");
  if (eingaben.an(kontier, 0)) text += QStringLiteral("Bienenvolk.Volknr as Volknr, ");
  if (eingaben.an(kontier, 1)) text += QStringLiteral("Bienenvolk.Volkname as Volkname, ");
  for (const QString& feld : felder)
    text += tabelle + u'.' + feld + QStringLiteral(" as ") + feld + QStringLiteral(", ");
  text.chop(2);
  return text;
}

QString herkunft(const Eingaben& eingaben, const QString& tabelle) {
  const QString rest = schlichterRest(eingaben);
  return QStringLiteral(" from Bienenvolk, ") + tabelle + rest +
         (rest.isEmpty() ? QStringLiteral(" where ") : QStringLiteral(" and ")) +
         QStringLiteral("Bienenvolk.ID = ") + tabelle + QStringLiteral(".Volk_ID") +
         zeitraumRest(eingaben, tabelle + QStringLiteral(".Datum"));
}

QStringList gründe(const Eingaben& eingaben, bool felderFehlen) {
  QStringList alle;
  if (felderFehlen)
    alle += QStringLiteral("...keine zu listenden Datenfelder (Buchungen) ausgewählt sind.");
  return alle + zeitraumGründe(eingaben);
}

QString nichtsGefunden() {
  return QStringLiteral("Es wurden lt. den aktuellen Einstellungen keine Daten gefunden!");
}

}  // namespace Buchungsanweisung
