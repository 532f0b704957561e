#pragma once

#include <array>

#include "platform/controls/Formular.h"

class QPushButton;

// The first steps, shown as long as there is no colony. Each leads to the form of a menu entry.
class TH_Hilfe_Wieanfangen : public Formular {
 public:
  explicit TH_Hilfe_Wieanfangen(QWidget* öffner = nullptr);

 private:
  QWidget* schrittBauen(int nummer);

  std::array<QPushButton*, 3> m_schritt{};
};
