#include "platform/controls/Diagrammtorte.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>
#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/controls/QtDiagramme.h"

namespace {

constexpr double Vollkreis = 360;
constexpr double Herausgezogen = 0.12;  // of the radius

// Angles in degrees, clockwise from the top.
struct Stück {
  int punkt = 0;
  double von = 0;
  double bis = 0;
  QPointF versatz;  // of a slice that is pulled out
  double mitte() const { return (von + bis) / 2; }
};

struct Torte {
  QPointF mitte;
  double breite = 0;  // the radii
  double höhe = 0;
  double tiefe = 0;
  std::vector<Stück> stücke;

  QPointF richtung(double winkel, double weite) const {
    const double bogen = qDegreesToRadians(winkel);
    return {breite * weite * std::sin(bogen), -höhe * weite * std::cos(bogen)};
  }
  QPointF punkt(const Stück& stück, double winkel, double weite = 1) const {
    return mitte + stück.versatz + richtung(winkel, weite);
  }
};

// In so much room as the numbers around it and a slice that is pulled out leave.
Torte aufgeteilt(const QRectF& feld, const Diagramminhalt& inhalt, double zeile) {
  Torte torte;
  const bool tief = inhalt.art == Diagramminhalt::Art::Torte3D;
  constexpr double Höhe = 0.55;  // to the width, of a pie with depth
  constexpr double Tiefe = 0.18;
  const double außen = inhalt.nummeriert() ? 2.5 * zeile : 0.5 * zeile;
  const double platzX = std::max(1.0, feld.width() - 2 * außen);
  const double platzY = std::max(1.0, feld.height() - 2 * außen);
  const double größe = 2 * (inhalt.herausgezogen >= 0 ? 1 + Herausgezogen : 1.0);
  torte.breite = tief ? std::min(platzX / größe, platzY / (größe * Höhe + Tiefe))
                      : std::min(platzX, platzY) / größe;
  torte.höhe = tief ? torte.breite * Höhe : torte.breite;
  torte.tiefe = tief ? torte.breite * Tiefe : 0;
  torte.mitte = feld.center() - QPointF(0, torte.tiefe / 2);
  double winkel = 0;
  for (int i = 0; i < inhalt.punkte.size(); ++i) {
    Stück stück{i, winkel, winkel + inhalt.anteil(i) * Vollkreis, {}};
    winkel = stück.bis;
    if (i == inhalt.herausgezogen) stück.versatz = torte.richtung(stück.mitte(), Herausgezogen);
    if (stück.bis > stück.von) torte.stücke.push_back(stück);
  }
  return torte;
}

// Points of the rim, close enough to look round.
QPolygonF rand(const Torte& torte, const Stück& stück, double von, double bis) {
  QPolygonF linie;
  const int schritte = std::max(1, static_cast<int>(std::ceil(bis - von)));
  for (int i = 0; i <= schritte; ++i) linie << torte.punkt(stück, von + (bis - von) * i / schritte);
  return linie;
}

// ---- the pie with depth ----

struct Wand {
  QPolygonF fläche;
  QColor farbe;
  double vorn;  // what stands further in front is painted later
};

Wand wand(const Torte& torte, const QPolygonF& oberkante, const QColor& farbe, int dunkler) {
  QPolygonF fläche = oberkante;
  for (auto i = oberkante.size() - 1; i >= 0; --i) fläche << oberkante[i] + QPointF(0, torte.tiefe);
  return {fläche, farbe.darker(dunkler), oberkante.boundingRect().center().y()};
}

// The walls that a viewer in front sees: the lower half of the rim, and the cuts beside a slice
// that is pulled out.
std::vector<Wand> wände(const Torte& torte, int herausgezogen) {
  constexpr int Rand = 135;
  constexpr int Schnitt = 150;
  std::vector<Wand> alle;
  const auto anzahl = torte.stücke.size();
  for (size_t i = 0; i < anzahl; ++i) {
    const Stück& stück = torte.stücke[i];
    const QColor farbe = Diagramminhalt::farbe(stück.punkt);
    const double von = std::max(stück.von, 90.0);
    const double bis = std::min(stück.bis, 270.0);
    if (von < bis) alle.push_back(wand(torte, rand(torte, stück, von, bis), farbe, Rand));
    const auto gezogen = [&](size_t nummer) {
      return torte.stücke[nummer % anzahl].punkt == herausgezogen;
    };
    if (anzahl < 2 || !(gezogen(i) || gezogen(i + 1) || gezogen(i + anzahl - 1))) continue;
    for (const double winkel : {stück.von, stück.bis})
      alle.push_back(
          wand(torte, {torte.punkt(stück, 0, 0), torte.punkt(stück, winkel)}, farbe, Schnitt));
  }
  std::ranges::stable_sort(alle, {}, &Wand::vorn);
  return alle;
}

QPolygonF oberseite(const Torte& torte, const Stück& stück) {
  QPolygonF fläche = rand(torte, stück, stück.von, stück.bis);
  if (torte.stücke.size() > 1) fläche << torte.punkt(stück, 0, 0);
  return fläche;
}

void maleTief(QPainter& maler, const Torte& torte, const Diagramminhalt& inhalt) {
  const QPen linie(Qt::white, inhalt.nummeriert() ? 0.5 : 1.0, Qt::SolidLine, Qt::RoundCap,
                   Qt::RoundJoin);
  for (const Wand& w : wände(torte, inhalt.herausgezogen)) {
    maler.setPen(QPen(w.farbe, linie.widthF()));
    maler.setBrush(w.farbe);
    maler.drawPolygon(w.fläche);
  }
  for (const Stück& stück : torte.stücke) {
    maler.setPen(linie);
    maler.setBrush(Diagramminhalt::farbe(stück.punkt));
    maler.drawPolygon(oberseite(torte, stück));
  }
}

// ---- what stands on it ----

// Whether a text stands wholly on its slice.
bool hatPlatz(const Torte& torte, const Stück& stück, const QRectF& text) {
  constexpr double Rand = 0.96;
  if (torte.stücke.size() == 1) return text.width() < torte.breite;
  for (const QPointF& ecke :
       {text.topLeft(), text.topRight(), text.bottomLeft(), text.bottomRight()}) {
    const QPointF ort = ecke - torte.mitte - stück.versatz;
    const double x = ort.x() / torte.breite;
    const double y = ort.y() / torte.höhe;
    double winkel = qRadiansToDegrees(std::atan2(x, -y));
    if (winkel < 0) winkel += Vollkreis;
    if (std::hypot(x, y) > Rand || winkel < stück.von || winkel > stück.bis) return false;
  }
  return true;
}

QRectF umMitte(const QPointF& mitte, const QFontMetricsF& masse, const QString& text) {
  const QSizeF größe(masse.horizontalAdvance(text), masse.height());
  return {mitte - QPointF(größe.width(), größe.height()) / 2, größe};
}

void maleWerte(QPainter& maler, const Torte& torte, const Diagramminhalt& inhalt) {
  const QFontMetricsF masse(maler.font());
  for (const Stück& stück : torte.stücke) {
    const QString text = inhalt.werttext(stück.punkt);
    if (text.isEmpty()) continue;
    const bool allein = torte.stücke.size() == 1;
    // Where the slice is broadest and still holds the text.
    for (const double weite : {allein ? 0.0 : 0.65, 0.75, 0.55}) {
      const QRectF ort = umMitte(torte.punkt(stück, stück.mitte(), weite), masse, text);
      if (!hatPlatz(torte, stück, ort)) continue;
      maler.setPen(Diagramminhalt::schriftAuf(Diagramminhalt::farbe(stück.punkt)));
      maler.drawText(ort, Qt::AlignCenter, text);
      break;
    }
  }
}

// Those that would stand in one another are left out; their neighbours tell where they belong.
void maleNummern(QPainter& maler, const Torte& torte) {
  const QFontMetricsF masse(maler.font());
  maler.setPen(Qt::black);
  std::vector<QRectF> gemalt;
  for (const Stück& stück : torte.stücke) {
    const QString text = QString::number(stück.punkt + 1);
    const double abstand = 0.9 * masse.height();
    QPointF ort = torte.punkt(stück, stück.mitte());
    const double bogen = qDegreesToRadians(stück.mitte());
    ort += QPointF(std::sin(bogen), -std::cos(bogen)) * abstand;
    if (std::cos(bogen) < 0) ort += QPointF(0, torte.tiefe);  // below the wall
    const QRectF feld = umMitte(ort, masse, text);
    const auto stört = [&](const QRectF& anderes) { return anderes.intersects(feld); };
    if (std::ranges::any_of(gemalt, stört)) continue;
    maler.drawText(feld, Qt::AlignCenter, text);
    gemalt.push_back(feld);
  }
}

// Where nothing can be cut.
void maleLeer(QPainter& maler, const Torte& torte) {
  maler.setPen(QPen(Qt::lightGray, 1));
  maler.setBrush(Qt::NoBrush);
  maler.drawEllipse(torte.mitte, torte.breite, torte.höhe);
}

}  // namespace

namespace Diagrammtorte {

void malen(QPainter& maler, const QRectF& feld, const Diagramminhalt& inhalt,
           const QFont& schrift) {
  const double zeile = QFontMetricsF(schrift).height();
  const Torte torte = aufgeteilt(feld, inhalt, zeile);
  maler.setFont(schrift);
  if (torte.stücke.empty()) return maleLeer(maler, torte);
  if (inhalt.art == Diagramminhalt::Art::Torte3D) {
    maleTief(maler, torte, inhalt);
  } else {
    const double halb = std::min(feld.width(), feld.height()) / 2;
    const QRectF quadrat(torte.mitte - QPointF(halb, halb), QSizeF(2 * halb, 2 * halb));
    QtDiagramme::torte(maler, quadrat, inhalt, torte.breite / halb, Herausgezogen);
  }
  maleWerte(maler, torte, inhalt);
  if (inhalt.nummeriert()) maleNummern(maler, torte);
}

}  // namespace Diagrammtorte
