#pragma once

#include <QElapsedTimer>
#include <functional>
#include <memory>

#include "platform/controls/Ereignis.h"

class QProgressDialog;
class QWidget;

// Shows how far a run over many appointments is, once it takes longer than a moment. It can't be
// closed: what has begun is written to its end.
class Laufanzeige {
 public:
  explicit Laufanzeige(QWidget* fenster);
  ~Laufanzeige();
  Laufanzeige(const Laufanzeige&) = delete;
  Laufanzeige& operator=(const Laufanzeige&) = delete;

  void zeige(qint64 fertig, qint64 gesamt);

 private:
  const Ereignis::Sanduhr m_sanduhr;
  std::unique_ptr<QProgressDialog> m_fenster;
  QElapsedTimer m_uhr;
};

// The yearly run (planning/Jahreslauf.h) with its boxes over this window, on DB. Throws
// Datenbankfehler, Dateifehler.
void volkTermineSetzen(QWidget* fenster);
