#include "platform/files/Dateirechte.h"

#include <QFileInfo>
#include <utility>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

using Rechte = QFileDevice::Permissions;

Rechte übliche() {
  Rechte rechte = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup |
                  QFileDevice::WriteGroup | QFileDevice::ReadOther | QFileDevice::WriteOther;
#ifdef Q_OS_UNIX
  const mode_t maske = ::umask(0);  // it can only be read by setting it
  ::umask(maske);
  const std::pair<mode_t, QFileDevice::Permission> verwehrt[] = {
      {S_IRUSR, QFileDevice::ReadOwner}, {S_IWUSR, QFileDevice::WriteOwner},
      {S_IRGRP, QFileDevice::ReadGroup}, {S_IWGRP, QFileDevice::WriteGroup},
      {S_IROTH, QFileDevice::ReadOther}, {S_IWOTH, QFileDevice::WriteOther}};
  for (const auto& [bit, recht] : verwehrt)
    if ((maske & bit) != 0) rechte &= ~Rechte(recht);
#endif
  return rechte;
}

}  // namespace

namespace Dateirechte {

QFileDevice::Permissions für(const QString& pfad) {
  const QFileInfo bisherige(pfad);
  return bisherige.exists() ? bisherige.permissions() : übliche();
}

}  // namespace Dateirechte
