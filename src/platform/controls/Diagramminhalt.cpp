#include "platform/controls/Diagramminhalt.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/locale/Deutsch.h"

namespace {

// Okabe and Ito's colours for all kinds of colour vision, a dark grey instead of their black.
constexpr std::array<QRgb, 8> Farben = {0xff0072b2, 0xffe69f00, 0xff009e73, 0xffcc79a7,
                                        0xff56b4e9, 0xffd55e00, 0xfff0e442, 0xff555555};

QColor gemischt(const QColor& farbe, const QColor& mit, double anteil) {
  const auto teil = [anteil](float a, float b) {
    return static_cast<float>((a * (1 - anteil)) + (b * anteil));
  };
  return QColor::fromRgbF(teil(farbe.redF(), mit.redF()), teil(farbe.greenF(), mit.greenF()),
                          teil(farbe.blueF(), mit.blueF()));
}

}  // namespace

double Diagramminhalt::anteil(int punkt) const {
  double summe = 0;
  for (const Punkt& p : punkte) summe += std::max(p.wert, 0.0);
  return summe > 0 && std::isfinite(summe) ? std::max(punkte[punkt].wert, 0.0) / summe : 0;
}

QString Diagramminhalt::werttext(int punkt) const {
  constexpr double Hundert = 100;
  switch (werte) {
    case Werte::Prozent:
      return Deutsch::zahl(anteil(punkt) * Hundert, 1) + QStringLiteral(" %");
    case Werte::Mengen:
      return Deutsch::schlicht(punkte[punkt].wert);
    default:
      return {};
  }
}

bool Diagramminhalt::nummeriert() const {
  return art != Art::Balken && punkte.size() > static_cast<int>(Farben.size());
}

QColor Diagramminhalt::farbe(int punkt) {
  constexpr double Heller = 0.5;
  constexpr double Dunkler = 0.45;
  const auto farben = static_cast<int>(Farben.size());
  const QColor farbe = QColor::fromRgb(Farben[static_cast<size_t>(punkt % farben)]);
  switch (punkt / farben % 3) {
    case 1:
      return gemischt(farbe, Qt::white, Heller);
    case 2:
      return gemischt(farbe, Qt::black, Dunkler);
    default:
      return farbe;
  }
}

QColor Diagramminhalt::schriftAuf(const QColor& grund) {
  constexpr int Grenze = 135;
  return qGray(grund.rgb()) > Grenze ? Qt::black : Qt::white;
}
