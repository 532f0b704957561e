#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/database/Helfer.h"

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  // The same program again, as the process that is killed or that has no rights.
  if (const auto ergebnis = Helfer::laufe(QCoreApplication::arguments())) return *ergebnis;
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
