#include "platform/database/verbindung/Anweisungen.h"

#include <sqlite3.h>

Anweisung::~Anweisung() { sqlite3_finalize(stmt); }

Anweisungen::Leihe::Leihe(std::shared_ptr<Anweisung> anweisung)
    : m_anweisung(std::move(anweisung)) {
  m_anweisung->inBenutzung = true;
}

Anweisungen::Leihe::~Leihe() {
  sqlite3_reset(m_anweisung->stmt);
  sqlite3_clear_bindings(m_anweisung->stmt);
  m_anweisung->texte.clear();
  m_anweisung->inBenutzung = false;
}

Anweisungen::Leihe Anweisungen::leihe(const QString& text, const Macher& mache) {
  const auto gefunden = m_vorrat.constFind(text);
  if (gefunden != m_vorrat.constEnd()) {
    if ((*gefunden)->inBenutzung) return Leihe(mache(text));
    (*gefunden)->zuletzt = ++m_zähler;
    return Leihe(*gefunden);
  }
  auto neu = mache(text);
  neu->zuletzt = ++m_zähler;
  if (m_vorrat.size() >= höchstens) räume();
  m_vorrat.insert(text, neu);
  return Leihe(std::move(neu));
}

void Anweisungen::räume() {
  auto ältester = m_vorrat.begin();
  for (auto it = m_vorrat.begin(); it != m_vorrat.end(); ++it) {
    if ((*it)->zuletzt < (*ältester)->zuletzt) ältester = it;
  }
  m_vorrat.erase(ältester);
}
