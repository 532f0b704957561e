#include "data/forms/helpers_forms.h"

#include <QApplication>

#include "core/globals.h"
#include "data/forms/TS_Dateiauswahl.h"
#include "platform/controls/Meldungen.h"
#include "platform/files/Dateimuster.h"
#include "platform/files/Ton.h"

using namespace TZ_Variablen;

bool LoeschenBestaetigt(const QString& datensatz) {
  return EinstellungenZahl[Zahlslots.löschabfrage] != 1 || LöschenErfragt(datensatz);
}

bool LöschenErfragt(const QString& datensatz) {
  const auto frage =
      QStringLiteral("Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?");
  if (datensatz.isEmpty()) return Meldungen::Frage(frage);
  return Meldungen::Frage(frage + CRLF + CRLF + datensatz, Meldungen::Vorgabe::Nein);
}

void Tastenton() {
  if (EinstellungenZahl[Zahlslots.tastenton] != 1) return;
  if (!Ton::piep(1000, 15)) QApplication::beep();
}

QString DateiWaehlen(const QString& muster, QWidget* öffner) {
  const QStringList namen = Dateimuster::namen(muster);
  if (namen.isEmpty()) return QStringLiteral("-");
  if (namen.size() == 1) return namen.first();
  TS_Dateiauswahl auswahl(muster, öffner);
  auswahl.zeigen();
  return DateiErgebnis;
}
