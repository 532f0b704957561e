#include "mainform/forms/Bildfeld.h"

#include <QEvent>
#include <QScrollBar>
#include <QStyle>

#include "mainform/forms/Bildinhalt.h"

Bildfeld::Bildfeld(QWidget* eltern) : QScrollArea(eltern), m_inhalt(new Bildinhalt) {
  setObjectName(QStringLiteral("bild"));
  setFrameShape(QFrame::StyledPanel);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  setAccessibleName(QStringLiteral("Grafik des Volkes"));
  setWidget(m_inhalt);
}

void Bildfeld::zeigen(const QString& volknr, const QString& volkname, const Volkbild::Bild& bild,
                      const Volkanzeige::Honig& honig) {
  m_inhalt->zeigen(volknr, volkname, bild, honig);
  setAccessibleDescription(m_inhalt->beschreibung());
  neuEinpassen();
}

void Bildfeld::setHonigjahr(const QString& beschriftung) {
  m_inhalt->setHonigjahr(beschriftung);
  neuEinpassen();
}

int Bildfeld::heightForWidth(int breite) const {
  return m_inhalt->schöneHöhe(breite - 2 * frameWidth()) + 2 * frameWidth();
}

QSize Bildfeld::sizeHint() const {
  const int breite = std::max(width(), minimumSizeHint().width());
  return {m_inhalt->kleinsteBreite() + 2 * frameWidth(), heightForWidth(breite)};
}

QSize Bildfeld::minimumSizeHint() const {
  return {m_inhalt->kleinsteBreite() + 2 * frameWidth(), fontMetrics().height() * 8};
}

void Bildfeld::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  einpassen();
}

void Bildfeld::changeEvent(QEvent* event) {
  QScrollArea::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  neuEinpassen();
}

// Texts and fonts change the height that the picture needs.
void Bildfeld::neuEinpassen() {
  updateGeometry();
  einpassen();
}

// Decides by itself on the scroll bar's room: else its coming and going could chase each other.
void Bildfeld::einpassen() {
  const QSize platz = size() - QSize(2 * frameWidth(), 2 * frameWidth());
  int breite = platz.width();
  if (m_inhalt->kleinsteHöhe(breite) > platz.height())
    breite -= style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, verticalScrollBar());
  m_inhalt->resize(breite, std::max(platz.height(), m_inhalt->kleinsteHöhe(breite)));
}
