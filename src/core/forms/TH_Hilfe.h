#pragma once

#include "platform/controls/Formular.h"

class QTextBrowser;

// Shows the section of the help text whose key is HilfeThema, to read, select and copy.
class TH_Hilfe : public Formular {
 public:
  explicit TH_Hilfe(QWidget* oeffner);

  // Reads the section and shows it; says so and shows nothing when the help file isn't there.
  void zeigen();
  // Reads the section of HilfeThema into the window. False when the help file isn't there.
  bool lesen();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QTextBrowser* m_text;
};
