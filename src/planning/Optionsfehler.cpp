#include "planning/Optionsfehler.h"

#include "core/globals.h"

namespace {

// A date that is none, a booking table that isn't there: the next option may be sound.
bool nurDieserOption(const Datenbankfehler& fehler) {
  if (fehler.allesVerworfen()) return false;
  return fehler.art() == Datenbankfehler::Art::Wertebereich ||
         fehler.art() == Datenbankfehler::Art::Anweisung;
}

}  // namespace

void Optionsfehler::versuche(qint64 optionId, const std::function<void()>& arbeit) {
  if (m_optionen.contains(optionId)) return;
  try {
    arbeit();
    m_gelungene.insert(optionId);
  } catch (const Datenbankfehler& fehler) {
    if (!nurDieserOption(fehler)) throw;
    if (m_texte.isEmpty()) {
      m_art = fehler.art();
      m_anweisung = fehler.anweisung();
    }
    m_optionen.insert(optionId);
    m_texte << fehler.text();
  }
}

QString Optionsfehler::text(const QString& nachsatz) const {
  if (m_texte.isEmpty()) return {};
  const QString ende = TZ_Variablen::CRLF + TZ_Variablen::CRLF;
  QString text = m_texte.join(ende);
  if (!(m_gelungene - m_optionen).isEmpty())
    text += ende + QString("Die Termine aller anderen Arbeitsplan-Optionen wurden eingetragen.");
  if (!nachsatz.isEmpty()) text += ende + nachsatz;
  return text;
}

void Optionsfehler::wirf() const {
  if (!m_texte.isEmpty()) throw Datenbankfehler(m_art, text(), m_anweisung);
}
