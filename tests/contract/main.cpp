#include <gtest/gtest.h>

#include <QApplication>

#include "platform/controls/Gestaltung.h"

// The screen of a small notebook less its task bar, seen as TOVA_SCHIRM says: magnified by the
// system ("100", "125", "150" per cent) or with a larger font ("14pt").
int main(int argc, char** argv) {
  const QByteArray schirm = qgetenv("TOVA_SCHIRM");
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TOVA_TESTDATEN "/bildschirm.json");
  if (const double prozent = schirm.toDouble(); prozent > 0)
    qputenv("QT_SCALE_FACTOR", QByteArray::number(prozent / 100));
  QApplication anwendung(argc, argv);
  gestalten(anwendung);
  if (schirm.endsWith("pt")) {
    QFont schrift = QApplication::font();
    schrift.setPointSizeF(schirm.chopped(2).toDouble());
    QApplication::setFont(schrift);
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
