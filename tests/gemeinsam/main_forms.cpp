#include <gtest/gtest.h>

#include <QApplication>

#include "platform/controls/Gestaltung.h"

// Forms are judged in the look that the user sees.
int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication anwendung(argc, argv);
  gestalten(anwendung);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
