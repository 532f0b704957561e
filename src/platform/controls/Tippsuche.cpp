#include "platform/controls/Tippsuche.h"

#include <QDateTime>
#include <algorithm>

namespace {

constexpr qint64 PauseMs = 1000;  // after a longer one a key begins a new word

int suche(int start, int anzahl, const QString& wort, const Tippsuche::Beginnt& beginnt) {
  for (int i = 0; i < anzahl; ++i)
    if (const int ort = (start + i) % anzahl; beginnt(ort, wort)) return ort;
  return -1;
}

}  // namespace

int Tippsuche::taste(const QString& zeichen, int anzahl, int aktuell, const Beginnt& beginnt) {
  if (anzahl <= 0 || zeichen.isEmpty()) return -1;
  const qint64 jetzt = QDateTime::currentMSecsSinceEpoch();
  if (jetzt - m_zeit > PauseMs) m_wort.clear();
  m_zeit = jetzt;
  const int nächster = aktuell + 1;
  if (m_wort.isEmpty()) {
    m_wort = zeichen;
    return suche(nächster, anzahl, m_wort, beginnt);
  }
  const QString länger = m_wort + zeichen;
  const int ort = suche(std::max(aktuell, 0), anzahl, länger, beginnt);
  if (ort < 0 && m_wort.compare(zeichen, Qt::CaseInsensitive) == 0)
    return suche(nächster, anzahl, m_wort, beginnt);
  m_wort = länger;
  return ort;
}
