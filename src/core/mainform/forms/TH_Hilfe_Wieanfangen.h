#pragma once

#include <array>
#include <functional>

#include "platform/controls/Formular.h"

class QPushButton;

// The first steps, shown as long as there is no colony. A step without an action has no form yet:
// its button is shown, but can't be pressed.
class TH_Hilfe_Wieanfangen : public Formular {
 public:
  using Schritte = std::array<std::function<void()>, 3>;

  TH_Hilfe_Wieanfangen(QWidget* oeffner, const Schritte& schritte);

 private:
  QWidget* schrittBauen(int nummer, const std::function<void()>& aktion);

  std::array<QPushButton*, 3> schritt{};
  QPushButton* schliessen = nullptr;
};
