#pragma once

#include "platform/controls/Formular.h"

class QTextBrowser;

// Shows the section of the help text whose key is HilfeThema, to read, select and copy.
class TH_Hilfe : public Formular {
 public:
  explicit TH_Hilfe(QWidget* öffner);

 protected:
  // Reads the section of HilfeThema into the window. Throws Dateifehler without the help file.
  void füllen() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QTextBrowser* m_text;
};
