#pragma once

#include <QDate>
#include <QHash>
#include <QString>
#include <QVariant>
#include <memory>
#include <vector>

// What a field holds. The field types of the tables are Text to Zähler; a column that is an
// expression has the type Ausdruck and tells each value's own kind.
enum class Feldtyp : quint8 {
  Text,     // TEXT (n)
  Memo,     // MEMO
  Kurz,     // SHORT, 16 bits
  Lang,     // INTEGER and LONG, 32 bits
  Einfach,  // SINGLE
  Währung,  // CURRENCY
  Datum,    // DATETIME
  Zähler,   // COUNTER
  Ausdruck
};

inline bool istZahl(Feldtyp typ) {
  return typ >= Feldtyp::Kurz && typ <= Feldtyp::Zähler && typ != Feldtyp::Datum;
}

struct Spalte {
  QString name;
  Feldtyp typ = Feldtyp::Ausdruck;
  int länge = 0;  // most characters of a Text, else 0
};

// The rows that a statement gave, in little memory: 16 bytes a cell and the texts in one piece.
// Immutable once built, so that a grid and a recordset can share it. Rows and columns count from 0.
// Text lies in UTF-8, dates as "yyyy-mm-dd".
class Datenblock {
 public:
  class Bauer;

  int zeilen() const { return m_zeilen; }
  int spalten() const { return static_cast<int>(m_spalten->size()); }
  const Spalte& spalte(int nummer) const { return (*m_spalten)[static_cast<size_t>(nummer)]; }
  // The number of the column of this name (letter case doesn't count), -1 when there is none.
  int spaltenNummer(QStringView name) const;

  bool istNull(int zeile, int spalte) const;
  bool istText(int zeile, int spalte) const;  // a text or a date
  // Null, a qint64, a double, a QString or, in a column of type Datum, a QDate. A text of exactly
  // the form yyyy-mm-dd in a column of type Ausdruck (max(Datum)) counts as a date here and in
  // anzeige.
  QVariant wert(int zeile, int spalte) const;
  // The text of a text or date cell as it lies in memory; empty for null and for numbers.
  QByteArrayView rohtext(int zeile, int spalte) const;
  size_t textbytes() const { return m_texte.size(); }
  // A number as such, a text by its leading number, null as 0.
  double zahl(int zeile, int spalte) const;
  qint64 ganzzahl(int zeile, int spalte) const;
  // For the screen: text as it stands, dates "dd.mm.yyyy", numbers with a decimal comma and no
  // more decimals than they have (CURRENCY at least two), null as an empty text.
  QString anzeige(int zeile, int spalte) const;
  // For rows that are read in another order than they lie in: brings the cells of one that comes
  // soon near to the processor, and once they are there its texts. Changes nothing.
  void holeZellen(int zeile) const;
  void holeTexte(int zeile) const;
  // A block of these rows, in this order.
  std::shared_ptr<const Datenblock> geordnet(const std::vector<int>& zeilen) const;

 private:
  enum class Art : quint8 { Null, Ganz, Gleitkomma, Text };
  struct Zelle {
    union {
      qint64 ganz;
      double gleit;
      quint64 ort;  // offset in m_texte
    };
    quint32 länge;
    Art art;
  };
  const Zelle& zelle(int zeile, int spalte) const {
    return m_zellen[static_cast<size_t>(zeile) * m_spalten->size() + static_cast<size_t>(spalte)];
  }

  std::shared_ptr<const std::vector<Spalte>> m_spalten;
  std::vector<Zelle> m_zellen;
  std::vector<char> m_texte;
  int m_zeilen = 0;

  friend class Bauer;
};

using Daten = std::shared_ptr<const Datenblock>;

// Fills a block cell by cell, row by row.
class Datenblock::Bauer {
 public:
  explicit Bauer(std::shared_ptr<const std::vector<Spalte>> spalten);
  explicit Bauer(std::vector<Spalte> spalten);
  ~Bauer();
  Bauer(const Bauer&) = delete;
  Bauer& operator=(const Bauer&) = delete;

  // Room for this many cells and bytes of text, when they are known beforehand.
  void reserviere(size_t zellen, size_t textbytes);
  void null();
  void ganz(qint64 wert);
  void gleitkomma(double wert);
  void text(const char* utf8, qsizetype länge);
  void text(QStringView text);
  void wert(const QVariant& wert);  // null, whole number, double, text or date
  // How many cells there are, which is the number that the next one gets.
  size_t zellen() const { return m_block->m_zellen.size(); }
  // The same as that cell; a text takes no further room.
  void wie(size_t zelle) { m_block->m_zellen.push_back(m_block->m_zellen[zelle]); }
  // Ends the build; the cells given must fill whole rows. The builder is empty afterwards.
  Daten fertig();

 private:
  std::shared_ptr<Datenblock> m_block;
};
