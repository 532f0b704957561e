#include "output/Ausgabeliste.h"

#include <numeric>

#include "core/globals.h"

Ausgabeliste::Ausgabeliste(Daten daten, QStringList überschriften)
    : m_daten(std::move(daten)), m_überschriften(std::move(überschriften)) {
  m_ordnung.resize(m_daten ? static_cast<size_t>(m_daten->zeilen()) : 0);
  std::iota(m_ordnung.begin(), m_ordnung.end(), 0);
}

Ausgabeliste::Ausgabeliste(Daten daten, QStringList überschriften, std::vector<int> ordnung)
    : m_daten(std::move(daten)),
      m_überschriften(std::move(überschriften)),
      m_ordnung(std::move(ordnung)) {}

QString Ausgabeliste::überschrift(int spalte) const {
  return m_überschriften.value(spalte, m_daten->spalte(spalte).name);
}

QStringList Ausgabeliste::überschriften() const {
  QStringList alle;
  for (int i = 0; i < spalten(); ++i) alle += überschrift(i);
  return alle;
}

bool Ausgabeliste::istTrennzeile(int zeile) const {
  if (spalten() == 0) return false;
  const int block = blockzeile(zeile);
  if (m_daten->rohtext(block, 0) != QByteArrayView(".")) return false;
  for (int i = 1; i < spalten(); ++i)
    if (!m_daten->istNull(block, i) &&
        !(m_daten->istText(block, i) && m_daten->rohtext(block, i).isEmpty()))
      return false;
  return true;
}

Listenkopf listenkopf() {
  using namespace TZ_Variablen;
  Listenkopf kopf;
  if (EinstellungenZahl[Zahlslots.datumAlsListenkopf] == 1) kopf.datum = HeuteText;
  kopf.kopftext = EinstellungenText[Textslots.kopftext];
  return kopf;
}
