#include "mainform/forms/Symbol.h"

// The library is a static one: without this call the linker would leave the symbols out.
static void symboleBereitstellen() { Q_INIT_RESOURCE(hauptformular); }

QIcon symbol(const QString& name) {
  static const bool bereit = (symboleBereitstellen(), true);
  Q_UNUSED(bereit)
  return QIcon(QStringLiteral(":/haupt/") + name + QStringLiteral(".svg"));
}
