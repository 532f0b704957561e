#include "platform/controls/Fortschrittsbalken.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScopeGuard>

#include "platform/controls/Ereignis.h"

namespace {

constexpr int ZwischenbildMs = 60;

// What the user types and clicks while a run lasts is lost, as it was meant for what he saw before
// it; the closing of a window comes through.
class Eingabesperre : public QObject {
 public:
  Eingabesperre() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* /*objekt*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
      case QEvent::Shortcut:
      case QEvent::ShortcutOverride:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::ContextMenu:
      case QEvent::Wheel:
      case QEvent::TouchBegin:
      case QEvent::TouchUpdate:
      case QEvent::TouchEnd:
        return true;
      default:
        return false;
    }
  }
};

}  // namespace

Fortschrittsbalken::Fortschrittsbalken(QWidget* eltern) : QProgressBar(eltern) {
  setObjectName(QStringLiteral("meter"));
  setAccessibleName(QStringLiteral("Fortschritt"));
  QSizePolicy platz = sizePolicy();
  platz.setRetainSizeWhenHidden(true);  // nothing jumps when it comes
  setSizePolicy(platz);
  hide();
}

void Fortschrittsbalken::laufen(const std::function<void(const Melder&)>& arbeit) {
  const Ereignis::Sanduhr sanduhr;
  const Eingabesperre sperre;
  setRange(0, 0);
  setValue(0);
  m_läuft = true;
  const auto ende = qScopeGuard([this] {
    hide();
    m_läuft = false;
  });
  m_uhr.start();
  arbeit([this](int fertig, int gesamt) { melden(fertig, gesamt); });
}

void Fortschrittsbalken::melden(int fertig, int gesamt) {
  if (m_uhr.elapsed() < ZwischenbildMs) return;
  setRange(0, gesamt);
  setValue(fertig);
  show();
  QCoreApplication::processEvents();
  m_uhr.restart();
}
