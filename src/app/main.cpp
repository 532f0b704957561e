#include <QApplication>

#include "mainform/forms/TA_TOVA.h"
#include "platform/controls/Gestaltung.h"

int main(int argc, char** argv) {
  QApplication anwendung(argc, argv);
  gestalten(anwendung);
  TA_TOVA hauptformular;
  if (!hauptformular.laden({QCoreApplication::applicationDirPath(), QDate::currentDate(), {}}))
    return 1;
  hauptformular.zeigen();
  return QCoreApplication::exec();
}
