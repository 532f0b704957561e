#include "platform/controls/Kalender.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/controls/Aufklappen.h"
#include "platform/controls/Gestaltung.h"

Kalender::Kalender(QWidget* eltern, QDate gewählt, QDate heute)
    : QFrame(eltern, Qt::Popup),
      m_kalender(new QCalendarWidget(this)),
      m_heute(new QPushButton(this)) {
  setObjectName(QStringLiteral("kalender"));
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_NoMouseReplay);  // a click on the field's button only closes it
  setFrameShape(QFrame::Box);
  m_kalender->setLocale(QLocale(QLocale::German, QLocale::Germany));
  m_kalender->setFirstDayOfWeek(Qt::Monday);
  m_kalender->setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
  m_kalender->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
  m_kalender->setDateEditEnabled(false);
  m_kalender->setAccessibleName(QStringLiteral("Kalender"));
  QTextCharFormat wochenende;
  wochenende.setForeground(Gestaltung::warnfarbe(palette()));
  m_kalender->setWeekdayTextFormat(Qt::Saturday, wochenende);
  m_kalender->setWeekdayTextFormat(Qt::Sunday, wochenende);
  QTextCharFormat heutige = m_kalender->dateTextFormat(heute);
  heutige.setFontWeight(QFont::Bold);
  heutige.setFontUnderline(true);
  m_kalender->setDateTextFormat(heute, heutige);
  m_kalender->setSelectedDate(gewählt.isValid() ? gewählt : heute);

  m_heute->setObjectName(QStringLiteral("heute"));
  m_heute->setText(QStringLiteral("&Heute, %1").arg(heute.toString(QStringLiteral("dd.MM.yyyy"))));
  m_heute->setAutoDefault(false);

  auto* lage = new QVBoxLayout(this);
  lage->setContentsMargins(4, 4, 4, 4);
  lage->addWidget(m_kalender);
  lage->addWidget(m_heute);
  setFocusProxy(m_kalender);

  connect(m_kalender, &QCalendarWidget::clicked, this, &Kalender::nimm);
  connect(m_kalender, &QCalendarWidget::activated, this, &Kalender::nimm);
  connect(m_heute, &QPushButton::clicked, this, [this, heute] { nimm(heute); });
}

void Kalender::zeigeUnter(QWidget* feld) {
  adjustSize();
  move(aufklappOrt(feld, sizeHint()));
  show();
  m_kalender->setFocus(Qt::PopupFocusReason);
}

QDate Kalender::datum() const { return m_kalender->selectedDate(); }

void Kalender::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F4) {
    close();
    return;
  }
  QFrame::keyPressEvent(event);
}

// Enter and a click come through two signals of the calendar; the day is told once.
void Kalender::nimm(QDate datum) {
  if (m_genommen) return;
  m_genommen = true;
  close();
  Q_EMIT genommen(datum);
}
