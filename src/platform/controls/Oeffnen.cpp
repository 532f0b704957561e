#include "platform/controls/Oeffnen.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

std::function<bool(const QString&)>& gesetzt() {
  static std::function<bool(const QString&)> oeffner;
  return oeffner;
}

}  // namespace

namespace Oeffnen {

bool datei(const QString& pfad) {
  if (gesetzt()) return gesetzt()(pfad);
  return QDesktopServices::openUrl(QUrl::fromLocalFile(pfad));
}

bool adresse(const QString& url) {
  if (gesetzt()) return gesetzt()(url);
  return QDesktopServices::openUrl(QUrl(url));
}

void setOeffner(std::function<bool(const QString& pfad)> oeffner) {
  gesetzt() = std::move(oeffner);
}

}  // namespace Oeffnen
