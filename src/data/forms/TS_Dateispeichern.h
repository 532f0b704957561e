#pragma once

#include "platform/controls/Formular.h"

class Eingabefeld;

// Asks for a file name without its ending. Afterwards DateiErgebnis is the name, or empty.
class TS_Dateispeichern : public Formular {
 public:
  // vorschlag: the name to begin with; characters not allowed in it fall away.
  explicit TS_Dateispeichern(QWidget* öffner, const QString& vorschlag = {});

  // The letters A to Z and a to z, digits, "_" and "*" of a text.
  static QString nurErlaubte(const QString& text);

 protected:
  void done(int ergebnis) override;

 private:
  void nachTippen(const QString& text);

  Eingabefeld* m_t;
};
