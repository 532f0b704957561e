#pragma once

#include <QFrame>
#include <functional>
#include <utility>

#include "platform/controls/Rechenwerk.h"

class QLabel;
class QPushButton;
class QGridLayout;

// The pocket calculator that a number field opens. All by keys too: digits, comma or point, + - *
// /, Enter or "=", C, backspace, M for tax rate 1 and Shift+M for rate 2, Esc. Enter takes the
// number into the field when nothing is left to work out.
class Rechner : public QFrame {
  Q_OBJECT

 public:
  // sätze: percents that "MwSt" adds with the left and with the right mouse button. übernehmen
  // puts the result into the field and says whether it fits there.
  Rechner(QWidget* eltern, double wert, std::pair<int, int> sätze,
          std::function<bool(double)> übernehmen);

  void zeigeUnter(QWidget* feld);
  const Rechenwerk& rechenwerk() const { return m_werk; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  QPushButton* knopf(const QString& text, const QString& name, const QString& tipp, int zeile,
                     int spalte, std::function<void()> aktion, int breite = 1);
  void tastenfeld();
  void auffrischen(const QString& hinweis = {});
  void nehmen();

  Rechenwerk m_werk;
  std::pair<int, int> m_sätze;
  std::function<bool(double)> m_übernehmen;
  QGridLayout* m_raster;
  QLabel* m_anzeige;
  QLabel* m_vorgang;
};
