#include <gtest/gtest.h>

#include <QCoreApplication>

#include "gemeinsam/Nebenprogramm.h"

int main(int argc, char** argv) {
  QCoreApplication anwendung(argc, argv);
  if (const auto ergebnis = Nebenprogramm::laufe(QCoreApplication::arguments())) return *ergebnis;
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
