#include "platform/locale/Dezimalsumme.h"

#include <algorithm>
#include <cmath>

#include "platform/locale/Deutsch.h"

namespace {

constexpr double Million = 1e6;
constexpr double Billion = 1e12;
// Below it every whole number is a double of its own.
constexpr double Ganzgenau = 9007199254740992.0;  // 2^53
constexpr qint64 Voll = qint64{1} << 62;

// The part in units of 1/einheit when it is exactly that many of them.
bool inEinheiten(double teil, double einheit, qint64& anzahl) {
  const double viele = teil * einheit;
  if (!(std::fabs(viele) < Ganzgenau - 1)) return false;  // infinite and not a number too
  anzahl = static_cast<qint64>(viele < 0 ? viele - 0.5 : viele + 0.5);
  return static_cast<double>(anzahl) / einheit == teil;
}

double ausEinheiten(qint64 anzahl, qint64 einheit) {
  const auto teiler = static_cast<double>(einheit);
  if (std::fabs(static_cast<double>(anzahl)) < Ganzgenau)
    return static_cast<double>(anzahl) / teiler;
  const auto ganze = anzahl / einheit;
  return static_cast<double>(ganze) + static_cast<double>(anzahl % einheit) / teiler;
}

}  // namespace

bool Dezimalsumme::exakt(double teil) {
  qint64 anzahl = 0;
  if (inEinheiten(teil, Million, anzahl)) {
    m_millionstel += anzahl;
    if (std::abs(m_millionstel) < Voll) return true;
    ungenau(ausEinheiten(m_millionstel, 1'000'000));
    m_millionstel = 0;
    return true;
  }
  if (!inEinheiten(teil, Billion, anzahl)) return false;
  m_billionstel += anzahl;
  m_millionstel += m_billionstel / 1'000'000;
  m_billionstel %= 1'000'000;
  return true;
}

// What the rounded addition loses is kept and added at the end.
void Dezimalsumme::ungenau(double teil) {
  m_hatRest = true;
  const double neu = m_rest + teil;
  if (std::isfinite(neu))
    m_verlust +=
        std::fabs(m_rest) >= std::fabs(teil) ? (m_rest - neu) + teil : (teil - neu) + m_rest;
  m_rest = neu;
}

void Dezimalsumme::dazu(double teil) {
  m_größter = std::max(m_größter, std::fabs(teil));
  if (!exakt(teil)) ungenau(teil);
}

double Dezimalsumme::wert() const {
  const double millionstel = ausEinheiten(m_millionstel, 1'000'000);
  double genau = millionstel;
  if (m_billionstel != 0) {
    // Both in one whole number where it holds them: one rounding instead of two.
    genau = std::fabs(millionstel) < Ganzgenau / Billion - 1
                ? ausEinheiten(m_millionstel * 1'000'000 + m_billionstel, 1'000'000'000'000)
                : millionstel + static_cast<double>(m_billionstel) / Billion;
  }
  if (!m_hatRest) return genau;
  const double summe = m_rest + m_verlust + genau;
  if (!std::isfinite(summe)) return m_rest;
  return Deutsch::gerundet(summe, std::max(m_größter, std::fabs(summe)), 15);
}

double Dezimalsumme::von(std::initializer_list<double> teile) {
  Dezimalsumme summe;
  for (const double teil : teile) summe.dazu(teil);
  return summe.wert();
}
