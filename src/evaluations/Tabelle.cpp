#include "evaluations/Tabelle.h"

namespace Auswertung {

Tabelle& Tabelle::spalte(const QString& schlüssel, const QString& titel) {
  m_spalten.push_back({schlüssel, Feldtyp::Memo, 0});
  m_titel += titel;
  return *this;
}

Tabelle& Tabelle::zahlenspalte(const QString& schlüssel, const QString& titel) {
  m_spalten.push_back({schlüssel, Feldtyp::Währung, 0});
  m_titel += titel;
  return *this;
}

Tabelle& Tabelle::spalte(const Spalte& spalte) {
  m_spalten.push_back(spalte);
  m_titel += spalte.name;
  return *this;
}

Datenblock::Bauer& Tabelle::bauer() {
  if (!m_bauer) m_bauer = std::make_unique<Datenblock::Bauer>(m_spalten);
  return *m_bauer;
}

Datenblock::Bauer& Tabelle::zelle() {
  ++m_inZeile;
  return bauer();
}

void Tabelle::zeileEnde() {
  while (m_inZeile < spalten()) leer();
  m_inZeile = 0;
  ++m_zeilen;
}

void Tabelle::zeile(const QStringList& texte) {
  for (const QString& t : texte) text(t);
  zeileEnde();
}

Ausgabeliste Tabelle::fertig() { return Ausgabeliste(bauer().fertig(), m_titel); }

}  // namespace Auswertung
