#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <functional>
#include <vector>

#include "platform/database/werte/Datenblock.h"

// The rows of a grid: a block, the order in which its rows are shown, and which are gone. Rows
// count as shown. Texts are made when a cell is painted.
class GridModell : public QAbstractTableModel {
  Q_OBJECT

 public:
  using Anzeige = std::function<QString(const QVariant&)>;

  using QAbstractTableModel::QAbstractTableModel;

  // Without an order all rows as they lie. A row may be shown more than once.
  void setDaten(Daten daten, std::vector<int> ordnung = {});
  const Daten& daten() const { return m_daten; }
  int zeilen() const { return static_cast<int>(m_ordnung.size()); }
  int spalten() const { return m_daten ? m_daten->spalten() : 0; }
  int blockzeile(int zeile) const { return m_ordnung[static_cast<size_t>(zeile)]; }

  void setAnzeige(const QString& spalte, Anzeige anzeige);
  bool hatAnzeige(int spalte) const {
    return m_spaltenanzeige[static_cast<size_t>(spalte)] != nullptr;
  }
  void setÜberschrift(const QString& spalte, const QString& text);
  void setErsteSpalte(std::function<QString(int)> text);
  // The whole text of a cell; the screen shows it in one line.
  QString text(int zeile, int spalte) const;
  // How many characters the cell's text has at most, told without making it.
  qsizetype zeichenHöchstens(int zeile, int spalte) const;
  QVariant wert(int zeile, int spalte) const;
  QString überschrift(int spalte) const;
  // Numbers stand on the right, heading and cells alike: a column of a number's type, or an
  // expression whose values are numbers and nothing else.
  bool rechtsbündig(int spalte) const { return m_rechts[static_cast<size_t>(spalte)]; }

  // Column -1: as the rows came. Nulls and empty texts first; equal rows keep their order.
  void sortiere(int spalte, Qt::SortOrder richtung);
  void entferneZeile(int zeile);
  // -1 when no row fits. Throws Datenbankfehler for a condition that can't be read.
  int finde(const QString& bedingung) const;

  int rowCount(const QModelIndex& eltern = {}) const override;
  int columnCount(const QModelIndex& eltern = {}) const override;
  QVariant data(const QModelIndex& index, int rolle) const override;
  QVariant headerData(int nummer, Qt::Orientation richtung, int rolle) const override;

 private:
  int ausrichtung(int spalte) const;
  void anzeigenZuordnen();
  std::vector<int> sortierteOrdnung(int spalte, Qt::SortOrder richtung) const;

  Daten m_daten;
  std::vector<int> m_ordnung;               // shown row -> row of the block
  std::vector<int> m_gegeben;               // the order in which they came; empty: as they lie
  QHash<QString, Anzeige> m_anzeigen;       // by column name in lower case
  QHash<QString, QString> m_überschriften;  // likewise
  std::vector<const Anzeige*> m_spaltenanzeige;
  std::vector<bool> m_rechts;  // by column
  std::function<QString(int)> m_ersteSpalte;
};
