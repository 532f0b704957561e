#pragma once

#include <QDate>
#include <QString>
#include <QVariant>

struct sqlite3_stmt;

// The row at which a statement stands while Database::Durchlaufe runs it. It holds nothing itself:
// texts lie in the engine and are gone with the next row. Columns count from 0; the values read as
// those of a Datenblock.
class Laufzeile {
 public:
  int spalten() const;
  bool istNull(int spalte) const;
  bool istText(int spalte) const;  // a text or a date
  qint64 ganzzahl(int spalte) const;
  double zahl(int spalte) const;  // a text by its leading number, null as 0
  QByteArrayView rohtext(int spalte) const;
  QString text(int spalte) const { return QString::fromUtf8(rohtext(spalte)); }
  QDate datum(int spalte) const;  // invalid for null and for what is no date
  int jahr(int spalte) const;     // of a date, 0 when it is none; quicker than datum

 private:
  friend class Verbindung;
  explicit Laufzeile(sqlite3_stmt* stmt) : m_stmt(stmt) {}
  sqlite3_stmt* m_stmt;
};
