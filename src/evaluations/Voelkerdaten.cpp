#include "evaluations/Voelkerdaten.h"

#include "evaluations/Leseliste.h"

using namespace Auswertung;

namespace {

const QString Felder = QStringLiteral("liste");
const QString Sortierung = QStringLiteral("komsort");

QStringList gründe(const Eingaben& eingaben) {
  if (!eingaben.gewählt(Felder).isEmpty()) return {};
  return {QStringLiteral("...keine zu listenden Datenfelder ausgewählt sind.")};
}

Ergebnis listen(Lauf& lauf) {
  Ergebnis ergebnis;
  ergebnis.liste = Ausgabeliste(gelesen(lauf, Völkerdaten::anweisung(lauf.eingaben)));
  ergebnis.leer =
      QStringLiteral("Es wurden lt. den aktuellen Einstellungen keine Völker gefunden!");
  return ergebnis;
}

}  // namespace

namespace Völkerdaten {

QString anweisung(const Eingaben& eingaben) {
  return QStringLiteral("select ") + eingaben.gewählt(Felder).join(QStringLiteral(", ")) +
         QStringLiteral(" from Bienenvolk") + schlichterRest(eingaben) +
         QStringLiteral(" order by ") + eingaben.posten(Sortierung);
}

Beschreibung beschreibung() {
  const QString tabelle = QStringLiteral("Bienenvolk");
  Beschreibung b;
  b.name = QStringLiteral("TW_Völkerdaten");
  b.titel = QStringLiteral("Völker (Volkdaten)");
  b.gruppen = {{QStringLiteral("Zu listende Datenfelder"),
                {merkliste(Felder, {}, felderVon(tabelle)).slot(Textslots.volkdatenFelder)},
                0,
                1,
                Gruppe::Alle::Knöpfe},
               völkerwahl(1),
               {QStringLiteral("Sortierung"),
                {auswahl(Sortierung, QStringLiteral("Sortiert nach"), felderVon(tabelle))
                     .slot(Zahlslots.volkdatenSortierung)},
                1}};
  b.prüfe = [](const QString&, const Eingaben& eingaben) { return gründe(eingaben); };
  b.befehle = {{QStringLiteral("ok"), QStringLiteral("&Listen"), listen}};
  return b;
}

}  // namespace Völkerdaten
