#include "core/mainform/forms/Verdrahtung.h"

#include <QApplication>

#include "core/globals.h"
#include "core/mainform/forms/Formen.h"
#include "data/helpers.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Formular.h"
#include "platform/files/Ton.h"

using namespace TZ_Variablen;

void Verdrahtung::herstellen() {
  Eingabefeld::setDatumErgaenzer([](const QString& text) { return DatumErgaenzen(text); });
  Eingabefeld::setHeute([] { return DatumLesen(HeuteText); });
  Eingabefeld::setSteuersaetze(
      [] { return std::pair<int, int>(EinstellungenZahl[44], EinstellungenZahl[45]); });
  Formular::setHilfe([](QWidget* fenster, const QString& thema) { Formen::hilfe(fenster, thema); });
  Fensterablage::setDatei(AppPfad + QStringLiteral("TOVA2.LAY"));
  Ton::setSpieler([](int, int) { QApplication::beep(); });
}
