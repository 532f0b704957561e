#pragma once

#include <QStringList>
#include <random>

// Repeatable choices: the standard generator's raw numbers, no distribution (those differ from one
// library to the next).
class Zufall {
 public:
  explicit Zufall(quint32 saat) : m_quelle(saat) {}

  int zahl(int von, int bis) {
    return von + static_cast<int>(m_quelle() % static_cast<quint32>(bis - von + 1));
  }
  double bruch(double von, double bis) {
    return von + (bis - von) * (m_quelle() % 10001) / 10000.0;
  }
  bool chance(int prozent) { return zahl(1, 100) <= prozent; }
  const QString& aus(const QStringList& liste) {
    return liste[zahl(0, static_cast<int>(liste.size()) - 1)];
  }

 private:
  std::mt19937 m_quelle;
};
