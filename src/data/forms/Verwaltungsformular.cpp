#include "data/forms/Verwaltungsformular.h"

#include <QPushButton>

#include "platform/controls/Ereignis.h"

void Verwaltungsformular::ausBlock(Verwaltungsblock* block, const Fuß& fuß) {
  setBlöcke({block});
  zusammensetzen(block, fuß);
  block->neuKnopf()->setDefault(true);
  setTabfolge(block->tabfolge());
  constexpr int Zeichen = 120;
  constexpr int Zeilen = 38;
  setWunschgröße(Zeichen, Zeilen);
}

void Verwaltungsformular::füllen() {
  const Ereignis::Sanduhr sanduhr;
  for (Verwaltungsblock* block : m_blöcke) block->laden(m_db);
  m_blöcke.first()->fokusAufErstesFeld();
}

void Verwaltungsformular::loslassen() {
  for (Verwaltungsblock* block : m_blöcke) block->entladen();
  Datenformular::loslassen();
}
