#include <gtest/gtest.h>

#include <QApplication>

#include "platform/controls/Gestaltung.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication anwendung(argc, argv);
  gestalten(anwendung);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
