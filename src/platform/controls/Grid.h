#pragma once

#include <QTableView>
#include <functional>

#include "platform/controls/Tippsuche.h"
#include "platform/database/Datenbank.h"

class GridModell;

// The data grid: a block of rows, sorted by header click, several rows markable, widths kept per
// layout key. Rows count from 0 in the order shown; no row is -1. Columns go by name (letter case
// doesn't count). The current row carries a frame, the marked rows are coloured.
//
// Keys: arrows, page keys, Home and End move, Shift and Ctrl mark, Ctrl+A marks all, typed
// words are searched in the sorted column (else the first), Enter is a double click, Ctrl+C copies
// the marked rows.
class Grid : public QTableView {
  Q_OBJECT

 public:
  explicit Grid(QWidget* eltern = nullptr);

  // Shows other rows. No row is current or marked afterwards; the sort is as the rows come.
  // With an order only the rows that it names, in that order.
  void setDaten(Daten daten, std::vector<int> ordnung = {});
  int zeilen() const;
  int spalten() const;
  QString spaltenName(int spalte) const;
  int spaltenNummer(const QString& name) const;
  QString zelle(int zeile, const QString& spalte) const;  // as shown; empty without the column
  QVariant wert(int zeile, const QString& spalte) const;
  void setAnzeige(const QString& spalte, std::function<QString(const QVariant&)> anzeige);
  void setÜberschrift(const QString& spalte, const QString& text);
  void setSpalteVerborgen(const QString& spalte, bool ja);
  // What is shown, for handing it on: the block (null before the first setDaten), its rows in the
  // order shown, captions and texts by number, and whether setAnzeige makes a column's texts.
  Daten daten() const;
  std::vector<int> ordnung() const;
  QString überschrift(int spalte) const;
  QString text(int zeile, int spalte) const;
  bool hatAnzeige(int spalte) const;

  int aktuelleZeile() const;
  void setAktuelleZeile(int zeile);    // marks it alone and scrolls to it
  QList<int> markierteZeilen() const;  // ascending
  void setMarkierteZeilen(const QList<int>& zeilen);
  // The first row for which "Feld = wert" holds (several joined by "and"), -1 without one. Throws
  // Datenbankfehler for a condition that can't be read or names no column of the rows.
  int findeZeile(const QString& bedingung) const;

  // Numbers as numbers, dates as dates, texts by the collation; null and empty first; equal rows
  // keep their order. The current record and the marked ones stay; zeileGewechselt isn't sent.
  void sortiere(int spalte, Qt::SortOrder richtung);
  int sortierSpalte() const;  // -1: as the rows came
  Qt::SortOrder sortierRichtung() const;

  // Deletes the record behind the row from the table (by its column ID). When that is committed the
  // row goes, the next one becomes current and zeileGewechselt tells it. Throws Datenbankfehler;
  // the row stays then, and also when a surrounding Sammelschreiben is lost.
  void löscheZeile(int zeile, Database& datenbank, const QString& tabelle);

  // The fixed first column: text for a row as shown. Without a function there is none.
  void setErsteSpalte(std::function<QString(int zeile)> text);

  // Widths: kept under the key, restored by setDaten for a block with as many columns; a column
  // drawn narrower than 25 becomes 25.
  void setLayoutSchlüssel(const QString& schlüssel);
  static constexpr int KleinsteBreite = 25;
  // Lists give way before anything else does: the heading and a few rows are enough.
  QSize minimumSizeHint() const override;
  // Room beyond the least comes from the form's stretch: a list gives way before what stands above.
  QSize sizeHint() const override {
    return {QTableView::sizeHint().width(), minimumSizeHint().height()};
  }
  // Fits each column to its heading and the texts from the first visible row on (some hundreds), at
  // least this wide. These widths aren't kept.
  void passeBreitenAn(int kleinste);

 Q_SIGNALS:
  void zeileGewechselt(int zeile);  // another record is current, -1 for none
  void zeileAngeklickt(int zeile);  // click or key on a row, also the current one
  void zeileDoppelgeklickt(int zeile);
  void markierungNeu();
  void vomBenutzerSortiert(int spalte, Qt::SortOrder richtung);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void keyboardSearch(const QString& zeichen) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  QModelIndex moveCursor(CursorAction aktion, Qt::KeyboardModifiers tasten) override;

 private:
  void verbinden();
  void nimmZeileHeraus(int zeile);
  void vomKopfSortiert(int spalte, Qt::SortOrder richtung);
  void zeigeSortierung();
  void breitenLaden();
  void breitenSichern();
  void breitenAnpassen();
  int zellenrand(int spalte) const;
  void breiteGeändert(int spalte, int breite);
  void zeilenhöheAnpassen();
  void verborgeneAnwenden();
  void kopieren();
  void rolleZu(const QModelIndex& index);
  int ersteSichtbareSpalte() const;
  QModelIndex zielIndex(int zeile) const;

  GridModell* m_modell;
  QString m_layoutSchlüssel;
  bool m_breitenGesperrt = false;  // widths are being set by the program
  bool m_breitenGeändert = false;  // while the user draws: to be stored when he lets go
  bool m_breitenEigene = false;    // restored or drawn: not to be worked out anew
  QList<int> m_breiten;            // of all columns, hidden ones too
  QStringList m_spaltennamen;
  QStringList m_verborgen;  // column names in lower case
  int m_sortierSpalte = -1;
  Qt::SortOrder m_sortierRichtung = Qt::AscendingOrder;
  bool m_wechselGesperrt = false;
  bool m_imFokus = false;
  bool m_tasteGedrückt = false;
  Tippsuche m_suche;
};
