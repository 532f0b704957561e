#pragma once

#include <QListWidget>

// A list that stands open, from which one entry or any number of them is chosen. Where many can be,
// what is chosen has a tick too; click and blank switch an entry over, Ctrl+A takes all. An entry's
// key is what it stands for.
class Merkliste : public QListWidget {
 public:
  enum class Wahl { Eine, Viele };
  explicit Merkliste(const QString& name, Wahl wahl = Wahl::Viele, QWidget* eltern = nullptr);

  // Fills it anew; nothing is chosen then.
  void setPosten(const QStringList& schlüssel, const QStringList& titel);
  QStringList gewählt() const;  // the keys in the list's order
  void setGewählt(const QStringList& schlüssel);
  QString aktueller() const;  // the key of the current entry

  // Shows what belongs to the other list's entries, row by row: nothing is chosen here, and what
  // scrolls one scrolls the other.
  void führeNeben(Merkliste* andere);

  // Lists give way first: the least is a few rows.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 private:
  QSize größe(int zeilen) const;
  void blassMarkieren();
  void hakenZeigen();
};
