#include <gtest/gtest.h>

#include <QCoreApplication>

int abbruchHelfer(const QString& ordner, const QString& stelle);  // Jahreslauf_Abbruch_test.cpp

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  const QStringList argumente = QCoreApplication::arguments();
  if (argumente.size() == 4 && argumente[1] == "--abbruch-helfer")
    return abbruchHelfer(argumente[2], argumente[3]);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
