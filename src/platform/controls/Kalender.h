#pragma once

#include <QDate>
#include <QFrame>

class QCalendarWidget;
class QPushButton;

// The calendar that a date field opens: Monday first, week numbers, arrow keys and page keys, Enter
// or a click takes the day, Esc leaves the field as it was.
class Kalender : public QFrame {
  Q_OBJECT

 public:
  // gewählt is marked at first; without a valid one today is.
  Kalender(QWidget* eltern, QDate gewählt, QDate heute);

  void zeigeUnter(QWidget* feld);
  QDate datum() const;

 Q_SIGNALS:
  void genommen(QDate datum);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void nimm(QDate datum);

  QCalendarWidget* m_kalender;
  QPushButton* m_heute;
  bool m_genommen = false;
};
