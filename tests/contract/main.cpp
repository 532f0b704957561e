#include <gtest/gtest.h>

#include <QApplication>

#include "platform/controls/Gestaltung.h"

// The screen of a small notebook.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TOVA_TESTDATEN "/bildschirm.json");
  QApplication anwendung(argc, argv);
  gestalten(anwendung);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
