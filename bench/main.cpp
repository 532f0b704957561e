#include <QApplication>

#include "Messwerk.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  return messen(argc, argv);
}
