#include "platform/controls/GridModell.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "platform/database/werte/Suchbedingung.h"
#include "platform/database/werte/Zeilenordnung.h"

namespace {

bool sindZahlen(const Datenblock& block, int spalte) {
  const Feldtyp typ = block.spalte(spalte).typ;
  if (typ != Feldtyp::Ausdruck) return istZahl(typ);
  bool eine = false;
  for (int zeile = 0; zeile < block.zeilen(); ++zeile) {
    if (block.istNull(zeile, spalte)) continue;
    if (block.istText(zeile, spalte)) return false;
    eine = true;
  }
  return eine;
}

QString einzeilig(QString text) {
  for (QChar& c : text)
    if (c == u'\n' || c == u'\r' || c == u'\t') c = u' ';
  return text;
}

}  // namespace

void GridModell::setDaten(Daten daten, std::vector<int> ordnung) {
  beginResetModel();
  m_daten = std::move(daten);
  m_gegeben = std::move(ordnung);
  m_ordnung = m_gegeben;
  if (m_ordnung.empty() && m_daten) {
    m_ordnung.resize(static_cast<size_t>(m_daten->zeilen()));
    std::iota(m_ordnung.begin(), m_ordnung.end(), 0);
  }
  anzeigenZuordnen();
  m_rechts.clear();
  for (int i = 0; i < spalten(); ++i) m_rechts.push_back(sindZahlen(*m_daten, i));
  endResetModel();
}

void GridModell::anzeigenZuordnen() {
  m_spaltenanzeige.assign(static_cast<size_t>(spalten()), nullptr);
  for (int i = 0; i < spalten(); ++i) {
    const auto treffer = m_anzeigen.constFind(m_daten->spalte(i).name.toLower());
    if (treffer != m_anzeigen.constEnd()) m_spaltenanzeige[static_cast<size_t>(i)] = &*treffer;
  }
}

void GridModell::setAnzeige(const QString& spalte, Anzeige anzeige) {
  if (anzeige)
    m_anzeigen[spalte.toLower()] = std::move(anzeige);
  else
    m_anzeigen.remove(spalte.toLower());
  anzeigenZuordnen();
  if (zeilen() > 0 && spalten() > 0)
    Q_EMIT dataChanged(index(0, 0), index(zeilen() - 1, spalten() - 1));
}

void GridModell::setÜberschrift(const QString& spalte, const QString& text) {
  m_überschriften[spalte.toLower()] = text;
  if (spalten() > 0) Q_EMIT headerDataChanged(Qt::Horizontal, 0, spalten() - 1);
}

void GridModell::setErsteSpalte(std::function<QString(int)> text) {
  m_ersteSpalte = std::move(text);
  if (zeilen() > 0) Q_EMIT headerDataChanged(Qt::Vertical, 0, zeilen() - 1);
}

QString GridModell::text(int zeile, int spalte) const {
  const int block = blockzeile(zeile);
  const Anzeige* anzeige = m_spaltenanzeige[static_cast<size_t>(spalte)];
  return anzeige != nullptr ? (*anzeige)(m_daten->wert(block, spalte))
                            : m_daten->anzeige(block, spalte);
}

qsizetype GridModell::zeichenHöchstens(int zeile, int spalte) const {
  constexpr qsizetype Zahl = 20;  // twelve digits, or an amount of money with its points
  const int block = blockzeile(zeile);
  if (hatAnzeige(spalte)) return std::numeric_limits<int>::max();
  if (m_daten->istNull(block, spalte)) return 0;
  // A character has one byte at least.
  return m_daten->istText(block, spalte) ? m_daten->rohtext(block, spalte).size() : Zahl;
}

QVariant GridModell::wert(int zeile, int spalte) const {
  return m_daten->wert(blockzeile(zeile), spalte);
}

QString GridModell::überschrift(int spalte) const {
  const QString name = m_daten->spalte(spalte).name;
  return m_überschriften.value(name.toLower(), name);
}

std::vector<int> GridModell::sortierteOrdnung(int spalte, Qt::SortOrder richtung) const {
  std::vector<int> neu = m_ordnung;
  if (spalte < 0 || spalte >= spalten()) {
    if (!m_gegeben.empty()) return m_gegeben;
    std::sort(neu.begin(), neu.end());
    return neu;
  }
  Zeilenordnung::sortiere(neu, Zeilenordnung::schlüssel(*m_daten, spalte),
                          richtung == Qt::DescendingOrder);
  return neu;
}

void GridModell::sortiere(int spalte, Qt::SortOrder richtung) {
  if (zeilen() == 0) return;
  Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
  const std::vector<int> alt = std::exchange(m_ordnung, sortierteOrdnung(spalte, richtung));
  std::vector<int> wohin(static_cast<size_t>(m_daten->zeilen()), -1);
  for (size_t i = 0; i < m_ordnung.size(); ++i)
    wohin[static_cast<size_t>(m_ordnung[i])] = static_cast<int>(i);
  const QModelIndexList vorher = persistentIndexList();
  QModelIndexList nachher;
  nachher.reserve(vorher.size());
  for (const QModelIndex& i : vorher)
    nachher += index(wohin[static_cast<size_t>(alt[static_cast<size_t>(i.row())])], i.column());
  changePersistentIndexList(vorher, nachher);
  Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void GridModell::entferneZeile(int zeile) {
  beginRemoveRows({}, zeile, zeile);
  m_ordnung.erase(m_ordnung.begin() + zeile);
  endRemoveRows();
}

int GridModell::finde(const QString& bedingung) const {
  if (zeilen() == 0) return -1;
  const Suchbedingung suche(bedingung, *m_daten);
  for (int zeile = 0; zeile < zeilen(); ++zeile)
    if (suche.trifftZu(*m_daten, blockzeile(zeile))) return zeile;
  return -1;
}

int GridModell::rowCount(const QModelIndex& eltern) const {
  return eltern.isValid() ? 0 : zeilen();
}

int GridModell::columnCount(const QModelIndex& eltern) const {
  return eltern.isValid() ? 0 : spalten();
}

QVariant GridModell::data(const QModelIndex& index, int rolle) const {
  if (!index.isValid() || index.row() >= zeilen() || index.column() >= spalten()) return {};
  if (rolle == Qt::DisplayRole) return einzeilig(text(index.row(), index.column()));
  if (rolle == Qt::TextAlignmentRole) return ausrichtung(index.column());
  return {};
}

int GridModell::ausrichtung(int spalte) const {
  return static_cast<int>((rechtsbündig(spalte) ? Qt::AlignRight : Qt::AlignLeft) |
                          Qt::AlignVCenter);
}

QVariant GridModell::headerData(int nummer, Qt::Orientation richtung, int rolle) const {
  if (richtung == Qt::Vertical) {
    if (rolle == Qt::DisplayRole && m_ersteSpalte && nummer >= 0 && nummer < zeilen())
      return m_ersteSpalte(nummer);
    return {};
  }
  if (nummer < 0 || nummer >= spalten()) return {};
  if (rolle == Qt::DisplayRole) return überschrift(nummer);
  if (rolle == Qt::TextAlignmentRole) return ausrichtung(nummer);
  return {};
}
