#pragma once

#include <QList>
#include <QString>

// What the other forms need of the main list of colonies. The main form implements it; a test
// replaces it by a plain table. Rows count from 0; no row is -1.
class Hauptliste {
 public:
  virtual ~Hauptliste() = default;

  virtual int zeilen() const = 0;
  virtual int aktuelleZeile() const = 0;
  // Makes a row current and marks it alone; -1 leaves no current row. Sets AktVolkID.
  virtual void setAktuelleZeile(int zeile) = 0;
  virtual QList<int> markierteZeilen() const = 0;                 // ascending
  virtual void setMarkierteZeilen(const QList<int>& zeilen) = 0;  // the current row stays
  // The cell as the list shows it; empty for a column that the configured list doesn't have.
  virtual QString zelle(int zeile, const QString& spalte) const = 0;
  // Deletes the row and the Bienenvolk row behind it.
  virtual void löscheZeile(int zeile) = 0;
  // Reads the list anew from the database.
  virtual void datenvölkerlesen() = 0;
};

// The list in use; never null after the start.
Hauptliste* hauptliste();
void setHauptliste(Hauptliste* liste);
