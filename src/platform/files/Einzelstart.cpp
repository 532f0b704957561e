#include "platform/files/Einzelstart.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>

namespace {

constexpr int Wartezeit = 200;  // ms in which a starting instance has written its lock

// The lines of a lock file: process, program, computer, and by newer ones the computer's own mark,
// which it keeps when it gets another name.
QString fremderRechner(const QString& sperrdatei) {
  QFile datei(sperrdatei);
  if (!datei.open(QIODevice::ReadOnly)) return {};
  const QList<QByteArray> zeilen = datei.read(4096).split('\n');
  const QByteArray name = zeilen.value(2).trimmed();
  const QByteArray marke = zeilen.value(3).trimmed();
  const bool hier = marke.isEmpty() ? name == QSysInfo::machineHostName().toUtf8()
                                    : marke == QSysInfo::machineUniqueId();
  return hier ? QString() : QString::fromUtf8(name);
}

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
  m_läuftBereits = m_sperre.error() == QLockFile::LockFailedError;
  if (m_läuftBereits) m_andererRechner = fremderRechner(sperrdatei(ordner));
}

void Einzelstart::übernehmen() {
  m_sperre.removeStaleLockFile();
  m_läuftBereits = !m_sperre.tryLock(0) && m_sperre.error() == QLockFile::LockFailedError;
}
