#include "platform/database/werte/Zeilenordnung.h"

#include <QHash>
#include <algorithm>
#include <array>
#include <bit>
#include <memory>
#include <numeric>
#include <optional>
#include <utility>

#include "platform/database/werte/Kollation.h"
#include "platform/locale/Deutsch.h"

namespace {

using Zeilenordnung::Schlüssel;

constexpr quint64 Leer = 0;
constexpr quint64 Vorzeichen = quint64{1} << 63;
// Above the keys of all numbers, infinity included.
constexpr quint64 ErsterText = 0xfff8'0000'0000'0000;

// The bits of a number, turned so that they compare as the numbers do; never 0.
quint64 zahlschlüssel(double zahl) {
  const auto bits = std::bit_cast<quint64>(zahl + 0.0);  // no zero with a sign
  return (bits & Vorzeichen) != 0 ? ~bits : bits | Vorzeichen;
}

// "yyyy-mm-dd" as the number yyyymmdd.
std::optional<quint64> tagschlüssel(QByteArrayView text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  quint64 zahl = 0;
  for (const int i : {0, 1, 2, 3, 5, 6, 8, 9}) {
    if (text[i] < '0' || text[i] > '9') return std::nullopt;
    zahl = zahl * 10 + static_cast<quint64>(text[i] - '0');
  }
  return zahl + 1;  // 0 is for empty cells
}

// None where a cell is no date.
std::optional<Schlüssel> tage(const Datenblock& block, int spalte) {
  Schlüssel alle(static_cast<size_t>(block.zeilen()), Leer);
  for (int zeile = 0; zeile < block.zeilen(); ++zeile) {
    if (block.istNull(zeile, spalte)) continue;
    const auto tag = tagschlüssel(block.rohtext(zeile, spalte));
    if (!tag) return std::nullopt;
    alle[static_cast<size_t>(zeile)] = *tag;
  }
  return alle;
}

// The texts of a column, each once, and their places in the collation.
class Ränge {
 public:
  size_t nummer(QByteArrayView text) {
    if (const auto da = m_nummern.constFind(text); da != m_nummern.constEnd()) return *da;
    m_texte.push_back(text);
    m_nummern.insert(text, m_texte.size() - 1);
    return m_texte.size() - 1;
  }
  // By the number; texts that the collation takes for equal have the same rank.
  std::vector<quint64> ermittle(bool alsTage) const {
    std::vector<QByteArray> schlüssel;
    schlüssel.reserve(m_texte.size());
    for (const QByteArrayView text : m_texte)
      schlüssel.push_back(alsTage ? text.toByteArray()
                                  : Kollation::schlüssel(QString::fromUtf8(text)));
    std::vector<size_t> folge(schlüssel.size());
    std::iota(folge.begin(), folge.end(), size_t{0});
    std::sort(folge.begin(), folge.end(),
              [&](size_t a, size_t b) { return schlüssel[a] < schlüssel[b]; });
    std::vector<quint64> ränge(schlüssel.size());
    quint64 rang = ErsterText;
    for (size_t i = 0; i < folge.size(); ++i) {
      if (i > 0 && schlüssel[folge[i - 1]] != schlüssel[folge[i]]) ++rang;
      ränge[folge[i]] = rang;
    }
    return ränge;
  }

 private:
  std::vector<QByteArrayView> m_texte;
  QHash<QByteArrayView, size_t> m_nummern;
};

struct Eintrag {
  quint64 schlüssel;
  int zeile;
};

constexpr int Stellen = 8;  // of a key, in bytes
using Zählung = std::array<std::array<size_t, 256>, Stellen>;

size_t stelle(quint64 schlüssel, int nummer) { return (schlüssel >> (8 * nummer)) & 0xff; }

}  // namespace

Schlüssel Zeilenordnung::schlüssel(const Datenblock& block, int spalte) {
  const bool datum = block.spalte(spalte).typ == Feldtyp::Datum;
  if (datum)
    if (auto alle = tage(block, spalte)) return std::move(*alle);
  const bool zahlen = istZahl(block.spalte(spalte).typ);
  Schlüssel alle(static_cast<size_t>(block.zeilen()), Leer);
  Ränge texte;
  std::vector<std::pair<size_t, size_t>> offen;  // row and its text's number
  for (int zeile = 0; zeile < block.zeilen(); ++zeile) {
    if (block.istNull(zeile, spalte)) continue;
    if (!block.istText(zeile, spalte)) {
      alle[static_cast<size_t>(zeile)] = zahlschlüssel(block.zahl(zeile, spalte));
    } else if (const QByteArrayView text = block.rohtext(zeile, spalte); !text.isEmpty()) {
      const auto zahl = zahlen ? Deutsch::gelesen(text, true) : std::nullopt;
      if (zahl)
        alle[static_cast<size_t>(zeile)] = zahlschlüssel(*zahl);
      else
        offen.emplace_back(zeile, texte.nummer(text));
    }
  }
  const std::vector<quint64> ränge = texte.ermittle(datum);
  for (const auto& [zeile, nummer] : offen) alle[zeile] = ränge[nummer];
  return alle;
}

// Byte by byte of the keys, the last one first; bytes in which all rows agree cost nothing.
void Zeilenordnung::sortiere(std::vector<int>& zeilen, const Schlüssel& schlüssel,
                             bool absteigend) {
  std::vector<Eintrag> von;
  von.reserve(zeilen.size());
  auto anzahl = std::make_unique<Zählung>();
  for (const int zeile : zeilen) {
    const quint64 eigener = schlüssel[static_cast<size_t>(zeile)];
    von.push_back({absteigend ? ~eigener : eigener, zeile});
    for (int i = 0; i < Stellen; ++i)
      ++(*anzahl)[static_cast<size_t>(i)][stelle(von.back().schlüssel, i)];
  }
  std::vector<Eintrag> nach(von.size());
  for (int i = 0; i < Stellen; ++i) {
    auto& orte = (*anzahl)[static_cast<size_t>(i)];
    if (von.empty() || orte[stelle(von.front().schlüssel, i)] == von.size()) continue;
    size_t ort = 0;
    for (size_t& wert : orte) ort += std::exchange(wert, ort);
    for (const Eintrag& eintrag : von) nach[orte[stelle(eintrag.schlüssel, i)]++] = eintrag;
    von.swap(nach);
  }
  for (size_t i = 0; i < von.size(); ++i) zeilen[i] = von[i].zeile;
}
