#pragma once

#include <memory>

#include "output/Ausgabeliste.h"

namespace Auswertung {

// A list in the making, row by row. A column of numbers stands on the right and is sorted by size,
// be its cells numbers or texts of numbers ("1.234,50 €").
class Tabelle {
 public:
  Tabelle& spalte(const QString& schlüssel, const QString& titel);
  Tabelle& zahlenspalte(const QString& schlüssel, const QString& titel);
  // Fields of a row of that table or statement, under their names and with their types.
  Tabelle& spalte(const Spalte& spalte);
  int spalten() const { return static_cast<int>(m_spalten.size()); }
  const Spalte& kopf(int spalte) const { return m_spalten[static_cast<size_t>(spalte)]; }
  int zeilen() const { return m_zeilen; }

  // The next cell, from left to right. No column comes behind the first cell.
  Datenblock::Bauer& zelle();
  void text(const QString& text) { zelle().text(QStringView(text)); }
  void leer() { zelle().text(QStringView()); }
  // Ends the row; what was left out is empty.
  void zeileEnde();
  // A whole row of texts; what was left out is empty.
  void zeile(const QStringList& texte);

  Ausgabeliste fertig();

 private:
  Datenblock::Bauer& bauer();

  std::vector<Spalte> m_spalten;
  QStringList m_titel;
  std::unique_ptr<Datenblock::Bauer> m_bauer;
  int m_zeilen = 0;
  int m_inZeile = 0;  // cells of the row in the making
};

}  // namespace Auswertung
