#include <gtest/gtest.h>

#include <QCoreApplication>

int abbruchHelfer(const QString& ordner);  // Abbruch_test.cpp

int main(int argc, char** argv) {
  QCoreApplication anwendung(argc, argv);
  const QStringList argumente = QCoreApplication::arguments();
  if (argumente.size() == 3 && argumente[1] == "--abbruch-helfer")
    return abbruchHelfer(argumente[2]);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
