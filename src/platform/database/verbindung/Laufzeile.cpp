#include "platform/database/verbindung/Laufzeile.h"

#include <sqlite3.h>

#include "platform/database/werte/Feldregeln.h"
#include "platform/locale/Deutsch.h"

int Laufzeile::spalten() const { return sqlite3_column_count(m_stmt); }

bool Laufzeile::istNull(int spalte) const {
  return sqlite3_column_type(m_stmt, spalte) == SQLITE_NULL;
}

bool Laufzeile::istText(int spalte) const {
  return sqlite3_column_type(m_stmt, spalte) == SQLITE_TEXT;
}

// A value is looked up once and then asked: rows come by the million. The connection has no lock
// that a value of its own would lack.
qint64 Laufzeile::ganzzahl(int spalte) const {
  sqlite3_value* wert = sqlite3_column_value(m_stmt, spalte);
  if (sqlite3_value_type(wert) == SQLITE_INTEGER) return sqlite3_value_int64(wert);
  return Deutsch::ganzzahl(zahl(spalte));
}

double Laufzeile::zahl(int spalte) const {
  sqlite3_value* wert = sqlite3_column_value(m_stmt, spalte);
  if (sqlite3_value_type(wert) == SQLITE_TEXT) return Deutsch::val(text(spalte));
  return sqlite3_value_double(wert);
}

QByteArrayView Laufzeile::rohtext(int spalte) const {
  sqlite3_value* wert = sqlite3_column_value(m_stmt, spalte);
  if (sqlite3_value_type(wert) != SQLITE_TEXT) return {};
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(wert));
  return {text, static_cast<qsizetype>(sqlite3_value_bytes(wert))};
}

QDate Laufzeile::datum(int spalte) const { return Feldregeln::isoDatum(rohtext(spalte)); }

int Laufzeile::jahr(int spalte) const {
  const QByteArrayView text = rohtext(spalte);
  if (text.size() != 10 || text[4] != '-') return 0;
  int jahr = 0;
  for (int i = 0; i < 4; ++i) {
    if (text[i] < '0' || text[i] > '9') return 0;
    jahr = jahr * 10 + (text[i] - '0');
  }
  return jahr;
}
