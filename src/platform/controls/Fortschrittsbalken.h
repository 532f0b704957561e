#pragma once

#include <QElapsedTimer>
#include <QProgressBar>
#include <functional>

// The bar of a long run: hidden but while one lasts. The window goes on painting meanwhile and may
// be asked to close; keys and mouse do nothing until the run has ended.
class Fortschrittsbalken : public QProgressBar {
 public:
  explicit Fortschrittsbalken(QWidget* eltern = nullptr);

  using Melder = std::function<void(int fertig, int gesamt)>;
  // Runs the work under the wait pointer. It tells the reporter how far it is, as often as it
  // likes; a run that is over in a moment shows no bar. Throws what the work throws.
  void laufen(const std::function<void(const Melder&)>& arbeit);
  bool läuft() const { return m_läuft; }

 private:
  void melden(int fertig, int gesamt);

  QElapsedTimer m_uhr;
  bool m_läuft = false;
};
