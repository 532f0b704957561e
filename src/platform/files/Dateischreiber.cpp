#include "platform/files/Dateischreiber.h"

#include <QFile>
#include <QSaveFile>

#include "platform/files/Textdatei.h"

Dateischreiber::Dateischreiber(const QString& pfad, Art art) : m_pfad(pfad), m_art(art) {
  if (art == Art::GanzOderGarNicht)
    m_datei = std::make_unique<QSaveFile>(pfad);
  else
    m_datei = std::make_unique<QFile>(pfad);
  if (!m_datei->open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
    m_fertig = true;  // nothing was begun
    Textdatei::schreibfehler(pfad);
  }
  m_puffer.reserve(Stueck + Stueck / 4);
}

// A save file that isn't committed takes its beginnings away by itself.
Dateischreiber::~Dateischreiber() {
  if (m_fertig || m_art == Art::GanzOderGarNicht) return;
  m_datei->close();
  QFile::remove(m_pfad);
}

void Dateischreiber::leeren() {
  const auto laenge = static_cast<qint64>(m_puffer.size());
  if (m_datei->write(m_puffer.data(), laenge) != laenge) Textdatei::schreibfehler(m_pfad);
  m_puffer.clear();
}

void Dateischreiber::fertig() {
  leeren();
  if (m_art == Art::GanzOderGarNicht) {
    if (!static_cast<QSaveFile&>(*m_datei).commit()) Textdatei::schreibfehler(m_pfad);
  } else {
    m_datei->close();
    if (m_datei->error() != QFileDevice::NoError) Textdatei::schreibfehler(m_pfad);
  }
  m_fertig = true;
}
