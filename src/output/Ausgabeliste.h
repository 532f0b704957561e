#pragma once

#include <QStringList>
#include <functional>
#include <vector>

#include "platform/database/werte/Datenblock.h"

// Told now and then how much of a long run is done; empty where nobody wants to know.
using Fortschritt = std::function<void(int fertig, int gesamt)>;

// A list on its way out: a block of rows, in which order they go, and the columns' captions.
class Ausgabeliste {
 public:
  // The columns up to this one go into text lists and have number formats in spreadsheets.
  static constexpr int MaxSpalten = 52;

  Ausgabeliste() = default;  // no row, no column
  // All rows as they lie. A column without a caption is called by its name.
  explicit Ausgabeliste(Daten daten, QStringList überschriften = {});
  // Only these rows of the block, in this order.
  Ausgabeliste(Daten daten, QStringList überschriften, std::vector<int> ordnung);

  const Daten& daten() const { return m_daten; }
  const std::vector<int>& ordnung() const { return m_ordnung; }
  int zeilen() const { return static_cast<int>(m_ordnung.size()); }
  int spalten() const { return m_daten ? m_daten->spalten() : 0; }
  int blockzeile(int zeile) const { return m_ordnung[static_cast<size_t>(zeile)]; }
  QString überschrift(int spalte) const;
  QStringList überschriften() const;
  // A row that holds a "." in its first cell and nothing else: it stands between two groups.
  bool istTrennzeile(int zeile) const;

 private:
  Daten m_daten;
  QStringList m_überschriften;
  std::vector<int> m_ordnung;
};

// What stands above a list, each empty when it is not wanted.
struct Listenkopf {
  QString datum;
  QString kopftext;
};

// As the settings want it: HeuteText with EinstellungenZahl 46 at 1, EinstellungenText 0.
Listenkopf listenkopf();
