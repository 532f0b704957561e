#pragma once

#include <QAbstractTableModel>
#include <QLineEdit>
#include <QString>
#include <QWidget>
#include <map>
#include <vector>

// What a window is compared with: one of as many bare controls of the toolkit, laid out in a grid,
// without names, limits, pick lists or anything that one of them does for another.
struct Bauteilzahl {
  int felder = 0;  // line edits, choices and texts of several lines
  int knöpfe = 0;  // of every kind
  int schilder = 0;
  std::vector<int> listen;  // the columns of each list
};

// The controls that this window has, on all its tabs.
Bauteilzahl zähle(const QWidget& fenster);

// Rows of one text, as many as wanted.
class Blankliste : public QAbstractTableModel {
 public:
  Blankliste(int spalten, QObject* eltern) : QAbstractTableModel(eltern), m_spalten(spalten) {}
  void setZeilen(int zeilen);
  int rowCount(const QModelIndex& eltern = {}) const override;
  int columnCount(const QModelIndex& eltern = {}) const override;
  QVariant data(const QModelIndex& stelle, int rolle) const override;

 private:
  int m_spalten;
  int m_zeilen = 0;
};

class Blankfenster : public QWidget {
 public:
  explicit Blankfenster(const Bauteilzahl& zahl);
  // Another row: the lists read anew, each field another text.
  void fülle(int zeilen, const QString& text);

 private:
  void setze(QWidget* bauteil);

  std::vector<QLineEdit*> m_felder;
  std::vector<Blankliste*> m_listen;
  int m_anzahl = 0;
};
