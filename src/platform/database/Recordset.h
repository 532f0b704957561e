#pragma once

#include <QStringList>
#include <QVariant>
#include <map>
#include <memory>

#include "platform/database/Datenbank.h"

// The rows of a statement with a current row, as they were when it was opened. Rows of a single
// table whose ID is among the columns (or "select *") can be changed; what is written goes to the
// table at once and to the rows held here.
class Recordset {
 public:
  class Feld;

  Recordset(Recordset&&) noexcept = default;
  Recordset& operator=(Recordset&&) noexcept = default;
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  int RecordCount() const;
  bool AmEnde() const;  // the end test: behind the last row, or no rows
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  // Makes the first row current for which a condition of the form "Feld = wert" holds (wert a
  // number or a text in single quotes; several joined by "and"). NoMatch tells whether there was
  // one; without one the current row stays. Text compares by the collation.
  void FindFirst(const QString& bedingung);
  bool NoMatch() const { return m_noMatch; }

  // AddNew begins a new row, Edit a change of the current one; fields are assigned; Update writes
  // the row. Fields not assigned are null in a new row and stay in a changed one; fields assigned
  // their old value are not written. After Update of a new row it is the last row, but the current
  // row stays what it was (MoveLast goes there). Without Update nothing is written.
  void AddNew();
  void Edit();
  void Update();
  void Delete();  // the current row; the next one becomes current
  void Close();

  int FieldCount() const;
  // By name (letter case doesn't count) or by index. An unknown field throws Datenbankfehler.
  Feld Fields(const QString& name);
  Feld Fields(int index);
  Feld operator[](const QString& name);
  QVariant Wert(const QString& name) const;  // of the current row, or of the row being written

 private:
  friend class Database;
  Recordset(std::shared_ptr<Verbindung> verbindung, QString tabelle, QStringList felder,
            Daten daten);
  struct Daten_;
  Daten_& daten() const;  // throws when closed
  std::shared_ptr<Daten_> m_d;
  bool m_noMatch = true;
};

// A field of the current row, or of the row being written.
class Recordset::Feld {
 public:
  QString Name() const;
  Feldtyp Type() const;
  int Size() const;  // most characters of a Text, else 0
  QVariant Value() const;
  void setValue(const QVariant& wert);
  Feld& operator=(const QVariant& wert) {
    setValue(wert);
    return *this;
  }
  // From field to field the value goes over, as it reads.
  Feld(const Feld&) = default;
  Feld& operator=(const Feld& anderes) {
    if (this != &anderes) setValue(anderes.Value());
    return *this;
  }

 private:
  friend class Recordset;
  Feld(std::shared_ptr<Daten_> d, int spalte) : m_d(std::move(d)), m_spalte(spalte) {}
  std::shared_ptr<Daten_> m_d;
  int m_spalte;
};
