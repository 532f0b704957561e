#include "platform/files/Dateischreiber.h"

#include <QFileInfo>
#include <filesystem>

#include "platform/files/Dateirechte.h"
#include "platform/files/Textdatei.h"

namespace {

// A link is followed to the file that it stands for.
QString zielVon(const QString& pfad) {
  const QFileInfo info(pfad);
  return info.isSymLink() ? info.symLinkTarget() : pfad;
}

// A file that may not be written isn't replaced either.
bool darfWerden(const QString& pfad) {
  const QFileInfo info(pfad);
  return !info.isDir() && (!info.exists() || info.isWritable());
}

}  // namespace

Dateischreiber::Dateischreiber(const QString& pfad)
    : m_pfad(pfad), m_ziel(zielVon(pfad)), m_datei(m_ziel + QStringLiteral(".XXXXXX")) {
  // The pieces are long: another buffer would only copy them.
  QFileDevice& datei = m_datei;
  if (!darfWerden(m_ziel) || !datei.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
    Textdatei::schreibfehler(pfad);
  m_puffer.reserve(Stück + Stück / 4);
}

Dateischreiber::~Dateischreiber() = default;

void Dateischreiber::leeren() {
  const auto länge = static_cast<qint64>(m_puffer.size());
  if (m_datei.write(m_puffer.data(), länge) != länge) Textdatei::schreibfehler(m_pfad);
  m_puffer.clear();
}

void Dateischreiber::fertig() {
  leeren();
  const QString name = m_datei.fileName();
  m_datei.setPermissions(Dateirechte::für(m_ziel));
  m_datei.close();
  if (m_datei.error() != QFileDevice::NoError) Textdatei::schreibfehler(m_pfad);
  std::error_code fehler;
  std::filesystem::rename(QFileInfo(name).filesystemFilePath(),
                          QFileInfo(m_ziel).filesystemFilePath(), fehler);
  if (fehler) Textdatei::schreibfehler(m_pfad);
  m_datei.setAutoRemove(false);
}
