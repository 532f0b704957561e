#include "platform/controls/Ereignis.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <new>

#include "platform/controls/Meldungen.h"
#include "platform/database/werte/Datenbankfehler.h"
#include "platform/files/Textdatei.h"

namespace Ereignis {

bool ausführen(QWidget* fenster, const std::function<void()>& aktion) {
  const QPointer<QWidget> noch(fenster);  // the action may close and destroy its own window
  QString text;
  try {
    aktion();
    return true;
  } catch (const Datenbankfehler& fehler) {
    text = fehler.text();
  } catch (const Dateifehler& fehler) {
    text = fehler.text();
  } catch (const std::bad_alloc&) {
    text = QStringLiteral(
        "Der Arbeitsspeicher reicht nicht aus. Bitte schließen Sie andere Programme und versuchen "
        "Sie es noch einmal.");
  } catch (const std::exception& fehler) {
    // What the library says is English and means nothing to the user.
    qWarning("Der Vorgang wurde abgebrochen: %s", fehler.what());
    text = QStringLiteral(
        "Der Vorgang wurde wegen eines unerwarteten Fehlers abgebrochen. Bitte prüfen Sie, was "
        "davon gespeichert ist, bevor Sie ihn wiederholen.");
  } catch (...) {
    text = QStringLiteral("Der Vorgang wurde wegen eines unbekannten Fehlers abgebrochen.");
  }
  Meldungen::Hinweis(text, noch);
  return false;
}

Sanduhr::Sanduhr() { QApplication::setOverrideCursor(Qt::WaitCursor); }

Sanduhr::~Sanduhr() { QApplication::restoreOverrideCursor(); }

}  // namespace Ereignis
