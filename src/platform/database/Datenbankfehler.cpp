#include "platform/database/Datenbankfehler.h"

Datenbankfehler::Datenbankfehler(Art art, QString text, QString anweisung)
    : m_art(art), m_text(std::move(text)), m_anweisung(std::move(anweisung)) {
  m_utf8 = m_text.toUtf8();
  if (!m_anweisung.isEmpty()) m_utf8 += " [" + m_anweisung.toUtf8() + "]";
}
