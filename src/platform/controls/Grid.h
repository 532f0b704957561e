#pragma once

#include <QTableView>
#include <functional>

#include "platform/database/Datenbank.h"

class GridModell;

// The data grid: a block of rows, sorted by header click, several rows markable, widths kept per
// layout key. Rows count from 0 in the order shown; no row is -1. Columns go by name.
class Grid : public QTableView {
  Q_OBJECT

 public:
  explicit Grid(QWidget* eltern = nullptr);

  // Shows other rows. No row is current or marked afterwards; the sort is as the rows come.
  void setDaten(Daten daten);
  int zeilen() const;
  int spalten() const;
  QString spaltenName(int spalte) const;
  int spaltenNummer(const QString& name) const;
  QString zelle(int zeile, const QString& spalte) const;  // as shown; empty without the column
  QVariant wert(int zeile, const QString& spalte) const;
  void setAnzeige(const QString& spalte, std::function<QString(const QVariant&)> anzeige);
  void setUeberschrift(const QString& spalte, const QString& text);
  void setSpalteVerborgen(const QString& spalte, bool ja);

  int aktuelleZeile() const;
  void setAktuelleZeile(int zeile);         // marks it alone and scrolls to it
  QList<int> markierteZeilen() const;       // ascending
  void setMarkierteZeilen(const QList<int>& zeilen);
  // The first row for which "Feld = wert" holds, -1 without one.
  int findeZeile(const QString& bedingung) const;

  // Numbers as numbers, dates as dates, texts by the collation; equal rows keep their order.
  void sortiere(int spalte, Qt::SortOrder richtung);
  int sortierSpalte() const;  // -1: as the rows came
  Qt::SortOrder sortierRichtung() const;

  // Deletes the record behind the row from the table (by its column ID), then the row; the next
  // row becomes current. Throws Datenbankfehler; the row then stays.
  void loescheZeile(int zeile, Database& datenbank, const QString& tabelle);

  // The fixed first column: text for a row of the block as shown.
  void setErsteSpalte(std::function<QString(int zeile)> text);

  // Widths: kept under the key, restored by setDaten for a block with as many columns; a column
  // drawn narrower than 25 becomes 25.
  void setLayoutSchluessel(const QString& schluessel);
  static constexpr int KleinsteBreite = 25;

 Q_SIGNALS:
  void zeileGewechselt(int zeile);
  void zeileAngeklickt(int zeile);       // click or key on a row, also the current one
  void zeileDoppelgeklickt(int zeile);
  void markierungGeaendert();
  void vomBenutzerSortiert(int spalte, Qt::SortOrder richtung);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void breitenLaden();
  void breitenSichern();

  GridModell* m_modell;
  QString m_layoutSchluessel;
  bool m_breitenGesperrt = false;
};
