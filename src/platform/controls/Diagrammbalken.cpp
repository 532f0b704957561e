#include "platform/controls/Diagrammbalken.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/controls/QtDiagramme.h"
#include "platform/locale/Deutsch.h"

namespace {

using QtDiagramme::Achse;

constexpr double Eng = 0.85;  // lines as close as this can still be read, in their heights

double höheVon(const QFontMetricsF& masse) { return masse.height(); }

double zahlenbreite(const Achse& achse, const QFontMetricsF& masse) {
  double breite = 0;
  for (const double zahl : {achse.von, achse.bis})
    breite = std::max(breite, masse.horizontalAdvance(Deutsch::zahl(zahl, achse.nachkommastellen)));
  return breite + höheVon(masse);
}

double längsterName(const Diagramminhalt& inhalt, const QFontMetricsF& masse) {
  double breite = 0;
  for (const auto& punkt : inhalt.punkte)
    breite = std::max(breite, masse.horizontalAdvance(punkt.name));
  return breite;
}

// The bars' field with the place of each bar and of each height.
struct Feld {
  QRectF balken;
  Achse achse;
  qsizetype anzahl = 0;
  double zahlen = 0;    // the room for the numbers on the left
  bool liegend = true;  // the names: else they stand upright
  double namen = 0;     // their room

  double abstand() const {
    return balken.width() / static_cast<double>(std::max<qsizetype>(1, anzahl));
  }
  double x(int punkt) const { return balken.left() + (punkt + 0.5) * abstand(); }
  double y(double wert) const {
    return balken.bottom() - (wert - achse.von) / (achse.bis - achse.von) * balken.height();
  }
};

Feld aufgeteilt(const QRectF& ganz, const Diagramminhalt& inhalt, const QFont& schrift) {
  constexpr double Namensraum = 0.35;  // of the height, at most
  const QFontMetricsF masse(schrift);
  Feld feld;
  feld.achse = QtDiagramme::achse(inhalt);
  feld.anzahl = inhalt.punkte.size();
  feld.zahlen = zahlenbreite(feld.achse, masse);
  feld.balken = ganz.adjusted(feld.zahlen, 1.5 * höheVon(masse), 0, 0);
  const double name = längsterName(inhalt, masse);
  feld.liegend = name + höheVon(masse) / 2 <= feld.abstand();
  feld.namen = feld.liegend ? höheVon(masse) : std::min(name, ganz.height() * Namensraum);
  feld.balken.setBottom(ganz.bottom() - feld.namen - höheVon(masse) / 2);
  return feld;
}

// Lines across the field with their numbers on the left; the one of 0 is the darkest.
void maleAchse(QPainter& maler, const Feld& feld) {
  const QFontMetricsF masse(maler.font());
  const double höhe = höheVon(masse);
  for (int i = 0; i < feld.achse.striche; ++i) {
    const double wert = feld.achse.von + i * feld.achse.schritt();
    const double y = feld.y(wert);
    const bool null = std::abs(wert) < feld.achse.schritt() / 2;
    maler.setPen(QPen(null ? Qt::darkGray : Qt::lightGray, 1));
    maler.drawLine(QPointF(feld.balken.left(), y), QPointF(feld.balken.right(), y));
    maler.setPen(Qt::black);
    maler.drawText(
        QRectF(feld.balken.left() - feld.zahlen, y - höhe / 2, feld.zahlen - höhe / 2, höhe),
        Qt::AlignRight | Qt::AlignVCenter, Deutsch::zahl(wert, feld.achse.nachkommastellen));
  }
}

// A text upright, from below upwards, that ends (or begins) at a place.
void drehen(QPainter& maler, const QPointF& ort, const QRectF& text, Qt::Alignment lage,
            const QString& inhalt) {
  maler.save();
  maler.translate(ort);
  maler.rotate(-90);
  maler.drawText(text, static_cast<int>(lage), inhalt);
  maler.restore();
}

void maleNamen(QPainter& maler, const Feld& feld, const Diagramminhalt& inhalt) {
  const QFontMetricsF masse(maler.font());
  const double oben = feld.balken.bottom() + höheVon(masse) / 4;
  // Where even upright names have no room next to one another some are left out.
  const int jeder = std::max(1, static_cast<int>(std::ceil(höheVon(masse) * Eng / feld.abstand())));
  for (int i = 0; i < feld.anzahl; ++i) {
    const QString& name = inhalt.punkte[i].name;
    if (feld.liegend)
      maler.drawText(QRectF(feld.x(i) - feld.abstand() / 2, oben, feld.abstand(), feld.namen),
                     Qt::AlignCenter, name);
    else if (i % jeder == 0)
      drehen(maler, {feld.x(i), oben},
             QRectF(-feld.namen, -höheVon(masse) / 2, feld.namen, höheVon(masse)),
             Qt::AlignRight | Qt::AlignVCenter, masse.elidedText(name, Qt::ElideRight, feld.namen));
  }
}

void maleAufrecht(QPainter& maler, const Feld& feld, int punkt, double y, const QString& text,
                  const QColor& grund) {
  const QFontMetricsF masse(maler.font());
  const double höhe = höheVon(masse);
  const double breite = masse.horizontalAdvance(text) + höhe / 4;
  // In the bar where there is no room above it.
  const bool darüber = y - breite >= feld.balken.top() - höhe;
  maler.setPen(darüber ? QColor(Qt::black) : Diagramminhalt::schriftAuf(grund));
  drehen(maler, {feld.x(punkt), y},
         QRectF(darüber ? höhe / 4 : -breite - höhe / 4, -höhe / 2, breite, höhe),
         (darüber ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter, text);
}

// Above the bars; upright where one of them is wider than its bar's place, and only in the legend
// where upright ones have no room next to one another.
void maleWerte(QPainter& maler, const Feld& feld, const Diagramminhalt& inhalt) {
  const QFontMetricsF masse(maler.font());
  const double höhe = höheVon(masse);
  double breiteste = 0;
  for (int i = 0; i < feld.anzahl; ++i)
    breiteste = std::max(breiteste, masse.horizontalAdvance(inhalt.werttext(i)));
  const bool liegend = breiteste + höhe / 4 <= feld.abstand();
  if (!liegend && feld.abstand() < höhe * Eng) return;
  for (int i = 0; i < feld.anzahl; ++i) {
    const QString text = inhalt.werttext(i);
    const double y = feld.y(std::max(0.0, inhalt.punkte[i].wert));
    if (liegend)
      maler.drawText(QRectF(feld.x(i) - feld.abstand() / 2, y - höhe, feld.abstand(), höhe),
                     Qt::AlignCenter, text);
    else
      maleAufrecht(maler, feld, i, y, text, Diagramminhalt::farbe(i));
  }
}

}  // namespace

namespace Diagrammbalken {

void malen(QPainter& maler, const QRectF& ganz, const Diagramminhalt& inhalt,
           const QFont& schrift) {
  const Feld feld = aufgeteilt(ganz, inhalt, schrift);
  maler.setFont(schrift);
  maleAchse(maler, feld);
  QtDiagramme::balken(maler, feld.balken, inhalt, feld.achse);
  maler.setPen(Qt::black);
  maleNamen(maler, feld, inhalt);
  maleWerte(maler, feld, inhalt);
}

bool nennenAlle(const QRectF& feld, const Diagramminhalt& inhalt, const QFont& schrift) {
  return aufgeteilt(feld, inhalt, schrift).liegend;
}

}  // namespace Diagrammbalken
