#pragma once

#include <QtGlobal>
#include <initializer_list>

// A sum of decimals as people add them: 10 - 3.3 - 3.3 - 3.4 is 0, and ten times 0.1 is 1. Parts of
// up to twelve decimals (what fields hold) are added exactly. Others, such as products, bring noise
// behind the fifteenth digit of the largest part; the sum is rounded there.
class Dezimalsumme {
 public:
  void dazu(double teil);
  double wert() const;

  // The sum of a few parts.
  static double von(std::initializer_list<double> teile);

 private:
  bool exakt(double teil);
  void ungenau(double teil);

  qint64 m_millionstel = 0;
  qint64 m_billionstel = 0;
  double m_rest = 0;  // of the parts that are no short decimals
  double m_verlust = 0;
  double m_größter = 0;  // among all parts, without its sign
  bool m_hatRest = false;
};
