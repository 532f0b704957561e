#include "platform/controls/Fortschrittsbalken.h"

#include <QCoreApplication>
#include <QScopeGuard>

#include "platform/controls/Ereignis.h"

namespace {

constexpr int ZwischenbildMs = 60;

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
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  m_uhr.restart();
}
