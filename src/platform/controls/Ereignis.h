#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <type_traits>
#include <utility>

class QWidget;

// The one place where an event enters a form. A failure (Datenbankfehler, Dateifehler, any other
// exception) ends the action with a message box and the program goes on.
namespace Ereignis {

// Runs the action; tells a failure over the given window. True when it came to its end.
bool ausführen(QWidget* fenster, const std::function<void()>& aktion);

// Calls a handler with the signal's values, or without them when it takes none.
template <typename Handler, typename... Werte>
void rufe(const Handler& handler, Werte&&... werte) {
  if constexpr (std::is_invocable_v<const Handler&, Werte...>)
    handler(std::forward<Werte>(werte)...);
  else
    handler();
}

// connect() with the guard around the handler: wenn(knopf, &QPushButton::clicked, this,
// [this]{...}).
template <typename Sender, typename Signal, typename Handler>
QMetaObject::Connection wenn(const Sender* sender, Signal signal, QWidget* fenster,
                             Handler handler) {
  return QObject::connect(sender, signal, fenster, [fenster, handler](auto&&... werte) -> void {
    ausführen(fenster, [&] { rufe(handler, std::forward<decltype(werte)>(werte)...); });
  });
}

// The wait pointer for as long as it lives.
class Sanduhr {
 public:
  Sanduhr();
  ~Sanduhr();
  Sanduhr(const Sanduhr&) = delete;
  Sanduhr& operator=(const Sanduhr&) = delete;
};

}  // namespace Ereignis
