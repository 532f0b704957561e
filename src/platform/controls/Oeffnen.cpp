#include "platform/controls/Oeffnen.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

std::function<bool(const QString&)>& gesetzt() {
  static std::function<bool(const QString&)> öffner;
  return öffner;
}

}  // namespace

namespace Öffnen {

bool datei(const QString& pfad) {
  if (gesetzt()) return gesetzt()(pfad);
  return QDesktopServices::openUrl(QUrl::fromLocalFile(pfad));
}

bool adresse(const QString& url) {
  if (gesetzt()) return gesetzt()(url);
  return QDesktopServices::openUrl(QUrl(url));
}

void setÖffner(std::function<bool(const QString& pfad)> öffner) { gesetzt() = std::move(öffner); }

}  // namespace Öffnen
