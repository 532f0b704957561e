#include "output/Ausgabeliste.h"

#include <numeric>

#include "core/globals.h"

Ausgabeliste::Ausgabeliste(Daten daten, QStringList ueberschriften)
    : m_daten(std::move(daten)), m_ueberschriften(std::move(ueberschriften)) {
  m_ordnung.resize(m_daten ? static_cast<size_t>(m_daten->zeilen()) : 0);
  std::iota(m_ordnung.begin(), m_ordnung.end(), 0);
}

Ausgabeliste::Ausgabeliste(Daten daten, QStringList ueberschriften, std::vector<int> ordnung)
    : m_daten(std::move(daten)),
      m_ueberschriften(std::move(ueberschriften)),
      m_ordnung(std::move(ordnung)) {}

QString Ausgabeliste::ueberschrift(int spalte) const {
  return m_ueberschriften.value(spalte, m_daten->spalte(spalte).name);
}

QStringList Ausgabeliste::ueberschriften() const {
  QStringList alle;
  for (int i = 0; i < spalten(); ++i) alle += ueberschrift(i);
  return alle;
}

bool Ausgabeliste::istTrennzeile(int zeile) const {
  if (spalten() == 0) return false;
  const QByteArrayView erste = m_daten->rohtext(blockzeile(zeile), 0);
  return erste.size() == 1 && erste[0] == '.';
}

Listenkopf listenkopf() {
  using namespace TZ_Variablen;
  Listenkopf kopf;
  if (EinstellungenZahl[46] == 1) kopf.datum = HeuteText;
  kopf.kopftext = EinstellungenText[0];
  return kopf;
}
