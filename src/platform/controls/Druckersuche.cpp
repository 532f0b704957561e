#include "platform/controls/Druckersuche.h"

#include <QPrinterInfo>
#include <future>
#include <thread>
#include <utility>

namespace Druckersuche {

bool systemHatDrucker() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

// Not std::async: the future that it gives waits for the thread when it goes.
std::optional<bool> antwort(std::function<bool()> frage, std::chrono::milliseconds frist) {
  try {
    std::packaged_task<bool()> aufgabe(std::move(frage));
    std::future<bool> ergebnis = aufgabe.get_future();
    std::thread(std::move(aufgabe)).detach();
    if (ergebnis.wait_for(frist) != std::future_status::ready) return std::nullopt;
    return ergebnis.get();
  } catch (...) {  // the question failed, or no thread could be had
    return std::nullopt;
  }
}

}  // namespace Druckersuche
