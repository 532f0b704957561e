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
  // gewaehlt is marked at first; without a valid one today is.
  Kalender(QWidget* eltern, QDate gewaehlt, QDate heute);

  void zeigeUnter(QWidget* feld);
  QDate datum() const;

 Q_SIGNALS:
  void gewaehlt(QDate datum);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void nimm(QDate datum);

  QCalendarWidget* m_kalender;
  QPushButton* m_heute;
  bool m_genommen = false;
};
