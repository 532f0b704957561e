#pragma once

#include <QListWidget>

// A list from which any number of entries is chosen. What is chosen is coloured and has a tick;
// click and blank switch an entry over, Ctrl+A takes all. An entry's key is what it stands for.
class Merkliste : public QListWidget {
 public:
  explicit Merkliste(const QString& name, QWidget* eltern = nullptr);

  // Fills it anew; nothing is chosen then.
  void setPosten(const QStringList& schlüssel, const QStringList& titel);
  QStringList gewählt() const;  // in the list's order
  void setGewählt(const QStringList& schlüssel);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 private:
  void hakenZeigen();
};

// The key of a list's entry.
QString schlüsselVon(const QListWidgetItem* posten);
// An entry with its key.
QListWidgetItem* neuerPosten(const QString& schlüssel, const QString& titel);
// Lists give way first: the least is a few rows.
QSize kleinsteListe(const QListWidget& liste, int zeilen);
