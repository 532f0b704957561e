#include "platform/files/Schreibschutz.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Schreibschutz {

QStringList dateien(const QString& ordner) {
  QStringList geschützt;
  const QFileInfoList alle = QDir(ordner).entryInfoList(
      QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks, QDir::Name);
  // The attribute itself counts, not what this user may do: an administrator may write all files.
  for (const QFileInfo& datei : alle)
    if (!datei.permission(QFileDevice::WriteOwner)) geschützt += datei.absoluteFilePath();
  return geschützt;
}

QStringList entfernen(const QStringList& dateien) {
  QStringList geblieben;
  for (const QString& pfad : dateien) {
    const QFileInfo datei(pfad);
    if (!datei.exists() || datei.isSymLink()) continue;
    const auto rechte = datei.permissions() | QFileDevice::WriteOwner | QFileDevice::WriteUser;
    if (!QFile::setPermissions(pfad, rechte)) geblieben += pfad;
  }
  return geblieben;
}

}  // namespace Schreibschutz
