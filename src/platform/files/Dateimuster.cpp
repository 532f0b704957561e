#include "platform/files/Dateimuster.h"

#include <QDir>

namespace {

QString mitSchrägstrichen(QString muster) { return muster.replace(u'\\', u'/'); }

}  // namespace

namespace Dateimuster {

QString ordner(const QString& muster) {
  const QString pfad = mitSchrägstrichen(muster);
  return pfad.left(pfad.lastIndexOf(u'/') + 1);
}

QStringList namen(const QString& muster) {
  const QString pfad = mitSchrägstrichen(muster);
  QString name = pfad.mid(pfad.lastIndexOf(u'/') + 1);
  if (name.isEmpty()) return {};
  if (name == QStringLiteral("*.*")) name = QStringLiteral("*");
  return QDir(ordner(pfad)).entryList({name}, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

}  // namespace Dateimuster
