#include "planning/forms/Terminlauf.h"

#include <QCloseEvent>
#include <QProgressDialog>
#include <optional>

#include "core/globals.h"
#include "planning/Jahreslauf.h"
#include "platform/controls/Meldungen.h"

namespace {

class Fortschrittsfenster : public QProgressDialog {
 public:
  using QProgressDialog::QProgressDialog;
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

}  // namespace

Laufanzeige::Laufanzeige(QWidget* fenster)
    : m_fenster(std::make_unique<Fortschrittsfenster>(fenster)) {
  m_fenster->setObjectName("fortschritt");
  m_fenster->setWindowTitle("TOVA");
  m_fenster->setMinimumWidth(55 * m_fenster->fontMetrics().averageCharWidth());
  m_fenster->setLabelText("Die Termine werden berechnet ...");
  m_fenster->setCancelButton(nullptr);
  m_fenster->setWindowModality(Qt::ApplicationModal);
  m_fenster->setMinimumDuration(700);
  m_fenster->setAutoReset(false);
  m_fenster->setRange(0, 1000);
  m_fenster->setValue(0);
  m_uhr.start();
}

Laufanzeige::~Laufanzeige() = default;

// Not for each step: drawing would cost more than the work.
void Laufanzeige::zeige(qint64 fertig, qint64 gesamt) {
  if (gesamt <= 0 || m_uhr.elapsed() < 100) return;
  m_uhr.restart();
  m_fenster->setValue(static_cast<int>(fertig * 1000 / gesamt));
}

void volkTermineSetzen(QWidget* fenster) {
  std::optional<Laufanzeige> anzeige;
  Terminfragen fragen;
  fragen.frage = [fenster](const QString& text, bool neinVorgabe) {
    return Meldungen::Frage(text, neinVorgabe ? Meldungen::Vorgabe::Nein : Meldungen::Vorgabe::Ja,
                            fenster);
  };
  fragen.hinweis = [&](const QString& text) {
    anzeige.reset();
    Meldungen::Hinweis(text, fenster);
  };
  fragen.fortschritt = [&](qint64 fertig, qint64 gesamt) {
    if (!anzeige) anzeige.emplace(fenster);
    anzeige->zeige(fertig, gesamt);
  };
  VolkTermineSetzen(TZ_Variablen::DB, fragen);
}
