#include "mainform/forms/Verdrahtung.h"

#include <QApplication>

#include "core/globals.h"
#include "data/helpers.h"
#include "mainform/forms/Formen.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Formular.h"
#include "platform/files/Ton.h"

using namespace TZ_Variablen;

void Verdrahtung::herstellen() {
  Eingabefeld::setDatumErgaenzer([](const QString& text) { return DatumErgaenzen(text); });
  Eingabefeld::setHeute([] { return DatumLesen(HeuteText); });
  Eingabefeld::setSteuersätze([] {
    return std::pair<int, int>(EinstellungenZahl[Zahlslots.mehrwertsteuer1],
                               EinstellungenZahl[Zahlslots.mehrwertsteuer2]);
  });
  Formular::setHilfe(Formen::hilfe);
  Formular::setWeiterführung({Formen::gibtEs, Formen::zeigen});
  Fensterablage::setDatei(AppPfad + QStringLiteral("TOVA2.LAY"));
  Ton::setSpieler([](int, int) { QApplication::beep(); });
}
