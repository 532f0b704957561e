#pragma once

#include <QStringList>
#include <vector>

#include "platform/database/werte/Datenblock.h"

// The condition of Recordset::FindFirst: "Feld = wert", several joined by "and". The value is a
// number with a decimal point, a text in single quotes (an apostrophe doubled) or Null; a field may
// stand in square brackets.
class Suchbedingung {
 public:
  // Throws Datenbankfehler (Art::Anweisung) for what can't be read or names an unknown field.
  Suchbedingung(const QString& text, const Datenblock& block);

  bool trifftZu(const Datenblock& block, int zeile) const;
  // The same for a row that isn't in the block.
  bool trifftZu(const std::vector<QVariant>& zeile) const;

 private:
  struct Teil {
    int spalte = 0;
    bool null = false;
    bool zahlig = false;  // the value is a number or a text that is one
    double zahl = 0;
    QByteArray text;  // UTF-8, a date as "yyyy-mm-dd"
  };
  static bool textGleich(const Teil& teil, QByteArrayView text);
  std::vector<Teil> m_teile;
};
