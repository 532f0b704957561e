#include "platform/files/Einzelstart.h"

#include <QDir>

namespace {

constexpr int Wartezeit = 200;  // ms in which a starting instance has written its lock

bool hatBesitzer(const QLockFile& sperre) {
  qint64 prozess = 0;
  QString rechner;
  QString programm;
  return sperre.getLockInfo(&prozess, &rechner, &programm);
}

}  // namespace

QString Einzelstart::sperrdatei(const QString& ordner) {
  return QDir(ordner).filePath(QStringLiteral("tova.lock"));
}

Einzelstart::Einzelstart(const QString& ordner) : m_sperre(sperrdatei(ordner)) {
  // No age makes a lock stale, only that its program has gone: people leave the program open.
  m_sperre.setStaleLockTime(0);
  if (m_sperre.tryLock(0) || m_sperre.error() != QLockFile::LockFailedError) return;
  // A lock file cut short by a power cut names no owner. One that is just being written doesn't
  // either, so it gets a moment.
  if (!hatBesitzer(m_sperre) && !m_sperre.tryLock(Wartezeit) && !hatBesitzer(m_sperre))
    m_sperre.removeStaleLockFile();
  if (m_sperre.isLocked() || m_sperre.tryLock(0)) return;
  m_laeuftBereits = m_sperre.error() == QLockFile::LockFailedError;
}
