#include <gtest/gtest.h>

#include <QApplication>

#include "platform/controls/Gestaltung.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  if (qEnvironmentVariableIsSet("TOVA_BILDER")) gestalten(app);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
