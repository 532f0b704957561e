#include "platform/database/werte/Datenbankfehler.h"

Datenbankfehler::Datenbankfehler(Art art, QString text, QString anweisung)
    : m_art(art), m_text(std::move(text)), m_anweisung(std::move(anweisung)) {
  m_utf8 = m_text.toUtf8();
  if (!m_anweisung.isEmpty()) m_utf8 += " [" + m_anweisung.toUtf8() + "]";
}

bool Datenbankfehler::istStörung() const {
  switch (m_art) {
    case Art::Allgemein:
    case Art::Anweisung:
    case Art::Wertebereich:
      return false;
    case Art::NurLesen:
    case Art::Voll:
    case Art::Gesperrt:
    case Art::KeineDatenbank:
    case Art::Datenträger:
      break;
  }
  return true;
}
