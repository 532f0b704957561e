#include <gtest/gtest.h>

#include <QApplication>

#include "data/helpers.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Gestaltung.h"

int main(int anzahl, char** worte) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication anwendung(anzahl, worte);
  gestalten(anwendung);
  Eingabefeld::setDatumErgaenzer(DatumErgaenzen);
  testing::InitGoogleTest(&anzahl, worte);
  return RUN_ALL_TESTS();
}
