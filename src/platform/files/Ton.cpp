#include "platform/files/Ton.h"

#include <QtGlobal>
#include <utility>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace {

std::function<void(int, int)>& spieler() {
  static std::function<void(int, int)> gesetzt;
  return gesetzt;
}

}  // namespace

namespace Ton {

bool piep(int hertz, int millisekunden) {
  if (spieler()) {
    spieler()(hertz, millisekunden);
    return true;
  }
#ifdef Q_OS_WIN
  return ::Beep(static_cast<DWORD>(hertz), static_cast<DWORD>(millisekunden)) != 0;
#else
  return false;  // no tone generator without a sound library; a window can ring the desktop's bell
#endif
}

void setSpieler(std::function<void(int, int)> neuer) { spieler() = std::move(neuer); }

}  // namespace Ton
