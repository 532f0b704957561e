#include "platform/controls/QtDiagramme.h"

#include <QBarCategoryAxis>
#include <QBarSet>
#include <QChart>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QPainter>
#include <QPen>
#include <QPieSeries>
#include <QPieSlice>
#include <QStackedBarSeries>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

namespace QtDiagramme {

namespace {

// A chart without anything around it.
QChart* leeresDiagramm(QGraphicsScene& szene) {
  auto* diagramm = new QChart;
  diagramm->setAnimationOptions(QChart::NoAnimation);
  diagramm->setBackgroundVisible(false);
  diagramm->setMargins({});
  diagramm->legend()->hide();
  szene.addItem(diagramm);
  return diagramm;
}

void zeichne(QPainter& maler, QGraphicsScene& szene, QChart* diagramm, const QRectF& feld) {
  const QRectF ganz(QPointF(0, 0), feld.size());
  diagramm->resize(feld.size());
  diagramm->setPlotArea(ganz);
  diagramm->layout()->activate();
  szene.render(&maler, feld, ganz, Qt::IgnoreAspectRatio);
}

}  // namespace

void torte(QPainter& maler, const QRectF& quadrat, const Diagramminhalt& inhalt, double radius,
           double herausgezogen) {
  QGraphicsScene szene;
  QChart* diagramm = leeresDiagramm(szene);
  auto* reihe = new QPieSeries;
  for (int i = 0; i < inhalt.punkte.size(); ++i) {
    if (inhalt.anteil(i) <= 0) continue;
    QPieSlice* stück = reihe->append({}, inhalt.anteil(i));
    stück->setBrush(Diagramminhalt::farbe(i));
    // A whole pie isn't cut.
    stück->setPen(inhalt.anteil(i) < 1 ? QPen(Qt::white, inhalt.nummeriert() ? 0.5 : 1.0)
                                       : QPen(Qt::NoPen));
    stück->setExploded(i == inhalt.herausgezogen);
    stück->setExplodeDistanceFactor(herausgezogen);
  }
  reihe->setPieSize(radius);
  diagramm->addSeries(reihe);
  zeichne(maler, szene, diagramm, quadrat);
}

Achse achse(const Diagramminhalt& inhalt) {
  constexpr double Luft = 1.05;  // above the highest bar
  Achse achse{0, 0, 2, 0};
  for (const auto& punkt : inhalt.punkte) {
    achse.von = std::min(achse.von, punkt.wert * Luft);
    achse.bis = std::max(achse.bis, punkt.wert * Luft);
  }
  if (achse.bis <= achse.von) achse.bis = 1;
  QValueAxis zahlen;
  zahlen.setRange(achse.von, achse.bis);
  zahlen.applyNiceNumbers();
  achse.von = zahlen.min();
  achse.bis = zahlen.max();
  achse.striche = std::max(2, zahlen.tickCount());
  constexpr int Höchstens = 4;
  constexpr double Spiel = 1e-9;
  achse.nachkommastellen =
      std::clamp(static_cast<int>(std::ceil(-std::log10(achse.schritt()) - Spiel)), 0, Höchstens);
  return achse;
}

void balken(QPainter& maler, const QRectF& feld, const Diagramminhalt& inhalt, const Achse& achse) {
  QGraphicsScene szene;
  QChart* diagramm = leeresDiagramm(szene);
  const auto anzahl = static_cast<int>(inhalt.punkte.size());
  auto* reihe = new QStackedBarSeries;
  constexpr double Balkenbreite = 0.75;
  reihe->setBarWidth(Balkenbreite);
  // A set for each colour, with nothing where the points have another one.
  for (int farbe = 0; farbe < std::min(anzahl, Diagramminhalt::Farbzahl); ++farbe) {
    auto* menge = new QBarSet({});
    for (int i = 0; i < anzahl; ++i)
      menge->append(i % Diagramminhalt::Farbzahl == farbe ? inhalt.punkte[i].wert : 0);
    menge->setColor(Diagramminhalt::farbe(farbe));
    menge->setPen(Qt::NoPen);
    reihe->append(menge);
  }
  auto* namen = new QBarCategoryAxis;
  for (int i = 0; i < anzahl; ++i) namen->append(QString::number(i));
  diagramm->addSeries(reihe);
  auto* zahlen = new QValueAxis;
  zahlen->setRange(achse.von, achse.bis);
  namen->setVisible(false);
  zahlen->setVisible(false);
  diagramm->addAxis(namen, Qt::AlignBottom);
  diagramm->addAxis(zahlen, Qt::AlignLeft);
  reihe->attachAxis(namen);
  reihe->attachAxis(zahlen);
  zeichne(maler, szene, diagramm, feld);
}

}  // namespace QtDiagramme
