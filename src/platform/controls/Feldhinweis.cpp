#include "platform/controls/Feldhinweis.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QTimer>
#include <QToolTip>

namespace {

constexpr int BleibtMs = 6000;
constexpr int Abstand = 2;

// The window, or the content that scrolls with the field.
QWidget* grundVon(QWidget* feld) {
  QWidget* grund = feld->parentWidget() == nullptr ? feld : feld->parentWidget();
  while (!grund->isWindow() && grund->parentWidget() != nullptr) {
    const auto* rollt = qobject_cast<QAbstractScrollArea*>(grund->parentWidget()->parentWidget());
    if (rollt != nullptr && rollt->viewport() == grund->parentWidget()) break;
    grund = grund->parentWidget();
  }
  return grund;
}

}  // namespace

Feldhinweis::Feldhinweis(QWidget* feld)
    : QLabel(grundVon(feld)), m_feld(feld), m_uhr(new QTimer(this)) {
  setObjectName(QStringLiteral("feldhinweis"));
  setTextFormat(Qt::PlainText);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  setFrameShape(QFrame::Box);
  setAutoFillBackground(true);
  setPalette(QToolTip::palette());
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setMargin(2);
  m_uhr->setSingleShot(true);
  m_uhr->setInterval(BleibtMs);
  connect(m_uhr, &QTimer::timeout, this, &Feldhinweis::verberge);
  feld->installEventFilter(this);
  hide();
}

void Feldhinweis::zeige(const QString& text) {
  m_uhr->stop();
  if (isHidden()) m_beschreibung = m_feld->accessibleDescription();
  m_feld->setAccessibleDescription(text);
  setText(text);
  platzieren();
  show();
  raise();
}

void Feldhinweis::verberge() {
  if (isHidden()) return;
  m_uhr->stop();
  hide();
  if (m_feld->accessibleDescription() == text()) m_feld->setAccessibleDescription(m_beschreibung);
}

void Feldhinweis::verblasse() {
  if (!isHidden()) m_uhr->start();
}

void Feldhinweis::platzieren() {
  adjustSize();
  const QWidget* grund = parentWidget();
  const QPoint feld = m_feld->mapTo(grund, QPoint(0, 0));
  int y = feld.y() - height() - Abstand;
  if (y < 0) y = feld.y() + m_feld->height() + Abstand;
  move(std::max(0, std::min(feld.x(), grund->width() - width())), y);
}

bool Feldhinweis::eventFilter(QObject* objekt, QEvent* event) {
  if (event->type() == QEvent::Hide) verberge();
  if (isVisible() && (event->type() == QEvent::Move || event->type() == QEvent::Resize))
    platzieren();
  return QLabel::eventFilter(objekt, event);
}
