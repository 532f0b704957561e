#include "data/forms/helpers_forms.h"

#include <QApplication>

#include "core/globals.h"
#include "data/forms/TS_Dateiauswahl.h"
#include "platform/controls/Meldungen.h"
#include "platform/files/Dateimuster.h"
#include "platform/files/Ton.h"

using namespace TZ_Variablen;

bool LoeschenBestaetigt() {
  if (EinstellungenZahl[55] != 1) return true;
  return Meldungen::Frage(
      QStringLiteral("Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?"));
}

void Tastenton() {
  if (EinstellungenZahl[14] != 1) return;
  if (!Ton::piep(1000, 15)) QApplication::beep();
}

QString DateiWaehlen(const QString& muster, QWidget* oeffner) {
  const QStringList namen = Dateimuster::namen(muster);
  if (namen.isEmpty()) return QStringLiteral("-");
  if (namen.size() == 1) return namen.first();
  TS_Dateiauswahl auswahl(muster, oeffner);
  auswahl.zeigen();
  return DateiErgebnis;
}
