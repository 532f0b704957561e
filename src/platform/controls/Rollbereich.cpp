#include "platform/controls/Rollbereich.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

Rollbereich::Rollbereich(QWidget* inhalt) {
  setObjectName(QStringLiteral("rollbereich"));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  setWidget(inhalt);
  inhalt->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  inhalt->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* control) { zeigeFokus(control); });
}

// The content's own: a scroll bar stands only where it doesn't get that.
QSize Rollbereich::sizeHint() const { return widget()->sizeHint(); }

// Lower it may be; narrower than its content only where that leaves no room beside it on the
// screen.
QSize Rollbereich::minimumSizeHint() const {
  constexpr int Zeilen = 4;
  constexpr int Zeichen = 95;
  const QSize ganz = widget()->minimumSizeHint();
  constexpr double Bildschirmteil = 0.7;
  const int breite = std::max(Zeichen * fontMetrics().averageCharWidth(),
                              int(Bildschirmteil * screen()->availableSize().width()));
  const QSize klein(breite, Zeilen * fontMetrics().height());
  const int leiste = ganz.height() > klein.height() ? verticalScrollBar()->sizeHint().width() : 0;
  return QSize(ganz.width() + leiste, ganz.height()).boundedTo(klein);
}

void Rollbereich::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  zeigeFokus(QApplication::focusWidget());
}

// A content that has grown or shrunk asks for other room.
bool Rollbereich::eventFilter(QObject* objekt, QEvent* event) {
  if (objekt == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(objekt, event);
}

// Wholly, with a little around it where there is room; what is larger than the area fills it. The
// toolkit's own way would be content with an input's cursor.
void Rollbereich::zeigeFokus(QWidget* control) {
  if (control == nullptr || !widget()->isAncestorOf(control)) return;
  const int rand = fontMetrics().height() / 2;
  const auto rolle = [rand](QScrollBar* leiste, int ort, int länge, int platz) {
    const int luft = std::clamp((platz - länge) / 2, 0, rand);
    const auto [von, bis] = std::minmax({ort - luft, ort + länge + luft - platz});
    leiste->setValue(std::clamp(leiste->value(), von, bis));
  };
  const QPoint ecke = control->mapTo(widget(), QPoint(0, 0));
  rolle(horizontalScrollBar(), ecke.x(), control->width(), viewport()->width());
  rolle(verticalScrollBar(), ecke.y(), control->height(), viewport()->height());
}
