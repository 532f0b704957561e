#include "mainform/forms/Stockzeichner.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

using Volkbild::Bild;
using Volkbild::Wabenart;

namespace {

// Twips of the picture.
constexpr double Breite = 3390;  // with a margin on both sides of the widest hive
constexpr double Wand = 105;
constexpr double Oberkante = 66;
constexpr double Wabenteilung = 180;
constexpr double Wabenbreite = 150;
constexpr double ErsteWabe = 990;  // of the eight in the middle
constexpr double Fuß = 150;
constexpr double Bodenbrett = 125;
constexpr double Dach = 200;
constexpr double Wiese = 170;
constexpr double GrößteMagazinhöhe = 1120;

// The column of a place in its magazine, 0 to 7 in the middle of the hive: from the middle outward,
// right and left by turns. It meets the walls, which move out on the left first.
int spalte(int platz) {
  const int stelle = platz % Volkbild::MagazinPlätze;
  return stelle % 2 == 0 ? 3 - stelle / 2 : 4 + stelle / 2;
}

struct Farben {
  QColor himmelOben, himmelUnten, hügel, wieseOben, wieseUnten;
  QColor holzHell, holz, holzDunkel, holzLinie;
  QColor innenOben, innenUnten, dachHell, dachDunkel;
};

const Farben& farben(bool dunkel) {
  static const Farben hell = {
      QColor(0xdc, 0xeb, 0xf2), QColor(0xfb, 0xf6, 0xe6), QColor(0xd9, 0xe3, 0xc0),
      QColor(0xb9, 0xce, 0x8c), QColor(0x97, 0xb3, 0x69), QColor(0xec, 0xc9, 0x92),
      QColor(0xd9, 0xac, 0x6c), QColor(0xc0, 0x8d, 0x4d), QColor(0x82, 0x58, 0x2a),
      QColor(0x3b, 0x28, 0x17), QColor(0x54, 0x3b, 0x24), QColor(0xc9, 0xd0, 0xd4),
      QColor(0x8b, 0x96, 0x9d)};
  static const Farben nacht = {
      QColor(0x25, 0x2f, 0x3a), QColor(0x3a, 0x3a, 0x38), QColor(0x36, 0x40, 0x31),
      QColor(0x46, 0x56, 0x2f), QColor(0x31, 0x3d, 0x22), QColor(0xd3, 0xab, 0x72),
      QColor(0xb8, 0x8c, 0x52), QColor(0x98, 0x6d, 0x38), QColor(0x55, 0x38, 0x19),
      QColor(0x1f, 0x15, 0x0d), QColor(0x30, 0x22, 0x15), QColor(0x9a, 0xa3, 0xa9),
      QColor(0x62, 0x6c, 0x73)};
  return dunkel ? nacht : hell;
}

// The kind's palette colour, a little calmer: the hue stays, pure light becomes paint.
QColor wabenfarbe(Wabenart art) {
  for (const Volkbild::Wabe& wabe : Volkbild::waben()) {
    if (wabe.art != art) continue;
    const QColor rein(QRgb(Volkbild::palettenfarbe(wabe.farbnummer)));
    if (rein.hsvSaturation() == 0)
      return rein == QColor(Qt::white) ? QColor(0xfc, 0xfb, 0xf7) : rein;
    const bool blau = rein.hsvHue() == 240;  // dark to the eye: needs more light
    return QColor::fromHsv(rein.hsvHue(), blau ? 165 : 195, blau ? 250 : 238);
  }
  return {};
}

QLinearGradient senkrecht(const QRectF& fläche, const QColor& oben, const QColor& unten) {
  QLinearGradient verlauf(fläche.topLeft(), fläche.bottomLeft());
  verlauf.setColorAt(0, oben);
  verlauf.setColorAt(1, unten);
  return verlauf;
}

double liniendicke(const QPainter& maler) {
  const double dichte = maler.device()->devicePixelRatioF();
  return std::max(1.0, std::floor(dichte)) / dichte;
}

// Outlines lie inside of the area, so that they are sharp.
void rahmen(QPainter& maler, const QRectF& fläche, const QColor& farbe, double rundung = 0) {
  const double d = liniendicke(maler);
  maler.setPen(QPen(farbe, d));
  maler.setBrush(Qt::NoBrush);
  const QRectF innen = fläche.adjusted(d / 2, d / 2, -d / 2, -d / 2);
  if (rundung > 0)
    maler.drawRoundedRect(innen, rundung, rundung);
  else
    maler.drawRect(innen);
}

void holz(QPainter& maler, const QRectF& brett, const Farben& f) {
  const bool liegend = brett.width() > brett.height();
  QLinearGradient verlauf(brett.topLeft(), liegend ? brett.bottomLeft() : brett.topRight());
  verlauf.setColorAt(0, f.holzHell);
  verlauf.setColorAt(0.5, f.holz);
  verlauf.setColorAt(1, f.holzDunkel);
  maler.fillRect(brett, verlauf);
  rahmen(maler, brett, f.holzLinie);
}

// The grain of a standing board: short strokes, always the same for the same board.
void maserung(QPainter& maler, const QRectF& brett, int saat, const Farben& f) {
  QColor strich = f.holzLinie;
  strich.setAlpha(70);
  maler.setPen(QPen(strich, liniendicke(maler)));
  for (int i = 0; i < 3; ++i) {
    const double anfang = 0.12 + 0.29 * ((saat * 7 + i * 5) % 3);
    const double x = brett.left() + brett.width() * (0.3 + 0.2 * i);
    maler.drawLine(QPointF(x, brett.top() + brett.height() * anfang),
                   QPointF(x, brett.top() + brett.height() * (anfang + 0.24)));
  }
}

void landschaft(QPainter& maler, const QRectF& feld, const Stockmaß& mass, const Farben& f) {
  QPainterPath ausschnitt;
  const double rundung = std::min(feld.width(), feld.height()) * 0.03;
  ausschnitt.addRoundedRect(feld, rundung, rundung);
  maler.setClipPath(ausschnitt);
  maler.fillRect(feld, senkrecht(feld, f.himmelOben, f.himmelUnten));
  const double b = feld.width();
  const double y = mass.boden() - mass.länge(Wiese);
  maler.setPen(Qt::NoPen);
  maler.setBrush(f.hügel);
  maler.drawEllipse(QRectF(feld.left() - 0.35 * b, y - 0.13 * b, 1.1 * b, 0.6 * b));
  maler.drawEllipse(QRectF(feld.left() + 0.45 * b, y - 0.08 * b, 1.0 * b, 0.6 * b));
  const QRectF wiese(feld.left(), y, b, feld.bottom() - y);
  maler.fillRect(wiese, senkrecht(wiese, f.wieseOben, f.wieseUnten));
}

void bodenUndFüße(QPainter& maler, const Stockmaß& mass, const Farben& f) {
  const QRectF brett = mass.bodenbrett();
  QColor schatten(0, 0, 0, 45);
  maler.setPen(Qt::NoPen);
  maler.setBrush(schatten);
  const double d = mass.länge(95);
  maler.drawEllipse(
      QRectF(brett.left() - d, mass.boden() - d * 0.6, brett.width() + 2 * d, d * 1.2));
  const double fußbreite = mass.länge(150);
  for (const double x : {brett.left() + fußbreite, brett.right() - 2 * fußbreite}) {
    const double links = mass.scharf(x);
    holz(maler, QRectF(links, brett.bottom(), fußbreite, mass.boden() - brett.bottom()), f);
  }
  holz(maler, brett, f);
  const double breite = mass.länge(720);
  const QRectF flugloch(mass.scharf(brett.center().x() - breite / 2), brett.top() + mass.länge(30),
                        breite, mass.länge(56));
  maler.setPen(Qt::NoPen);
  maler.setBrush(f.innenOben);
  maler.drawRoundedRect(flugloch, flugloch.height() / 2, flugloch.height() / 2);
}

void dach(QPainter& maler, const Stockmaß& mass, const Farben& f) {
  const QRectF blech = mass.dach();
  const double rundung = blech.height() * 0.22;
  maler.setPen(Qt::NoPen);
  maler.setBrush(senkrecht(blech, f.dachHell, f.dachDunkel));
  maler.drawRoundedRect(blech, rundung, rundung);
  rahmen(maler, blech, f.dachDunkel.darker(140), rundung);
  maler.setPen(QPen(QColor(255, 255, 255, 90), liniendicke(maler)));
  const double glanz = blech.top() + blech.height() * 0.3;
  maler.drawLine(QPointF(blech.left() + rundung * 2, glanz),
                 QPointF(blech.right() - rundung * 2, glanz));
}

void zarge(QPainter& maler, const Stockmaß& mass, const Bild& bild, int nummer, const Farben& f) {
  const QRectF kasten = mass.magazin(nummer);
  maler.fillRect(kasten, senkrecht(kasten, f.innenOben, f.innenUnten));
  const double links = mass.x(bild.rahmen.links);
  const double rechts = mass.x(bild.rahmen.rechts);
  const QRectF linkeWand(links, kasten.top(), mass.x(bild.rahmen.links + Wand) - links,
                         kasten.height());
  const QRectF rechteWand(rechts, kasten.top(), mass.x(bild.rahmen.rechts + Wand) - rechts,
                          kasten.height());
  for (const QRectF& wand : {linkeWand, rechteWand}) {
    holz(maler, wand, f);
    maserung(maler, wand, nummer * 2 + (wand == rechteWand ? 1 : 0), f);
  }
  holz(maler, QRectF(kasten.left(), kasten.top(), kasten.width(), mass.länge(Oberkante)), f);
}

void wabeImRahmen(QPainter& maler, const Stockmaß& mass, int platz, Wabenart art, const Farben& f) {
  QRectF wabe = mass.wabe(platz);
  const double träger = mass.länge(44);
  const double überstand = mass.länge(10);
  Stockzeichner::zeichneWabe(maler, wabe.adjusted(0, träger, 0, 0), art);
  const QRectF holm(wabe.left() - überstand, wabe.top(), wabe.width() + 2 * überstand, träger);
  maler.fillRect(holm, f.holzHell);
  rahmen(maler, holm, f.holzLinie);
}

void biene(QPainter& maler, const QPointF& ort, double länge, double winkel) {
  maler.save();
  maler.translate(ort);
  maler.rotate(winkel);
  const double h = länge * 0.5;
  maler.setPen(QPen(QColor(60, 60, 60, 110), länge * 0.04));
  maler.setBrush(QColor(255, 255, 255, 190));
  maler.save();
  maler.rotate(-28);
  maler.drawEllipse(QRectF(-h * 0.25, -h * 1.25, h * 0.62, h * 1.15));
  maler.rotate(46);
  maler.drawEllipse(QRectF(-h * 0.3, -h * 1.2, h * 0.62, h * 1.1));
  maler.restore();
  const QRectF leib(-länge / 2, -h / 2, länge, h);
  QPainterPath umriss;
  umriss.addEllipse(leib);
  maler.setPen(Qt::NoPen);
  maler.fillPath(umriss, QColor(0xf2, 0xb1, 0x2c));
  maler.setClipPath(umriss, Qt::IntersectClip);
  const QColor streifen(0x3a, 0x28, 0x14);
  for (const double x : {-0.33, -0.08, 0.17})
    maler.fillRect(QRectF(x * länge - länge * 0.06, -h, länge * 0.12, 2 * h), streifen);
  maler.fillRect(QRectF(länge * 0.34, -h, länge * 0.2, 2 * h), streifen);
  maler.restore();
}

// Three of them on the way home, where the hive leaves them room.
void bienen(QPainter& maler, const QRectF& feld, const Stockmaß& mass, const Bild& bild) {
  const double länge = std::max(9.0, mass.länge(125));
  QRectF stock = mass.dach() | mass.bodenbrett();
  for (int platz = 0; platz < Volkbild::Plätze; ++platz)
    if (bild.waben[static_cast<size_t>(platz)]) stock |= mass.wabe(platz);
  const double höhe = mass.bodenbrett().top();
  if (stock.left() - feld.left() > 2.2 * länge) {
    const double x = (feld.left() + stock.left()) / 2;
    biene(maler, QPointF(x + länge * 0.3, höhe - länge), länge, 14);
    biene(maler, QPointF(x - länge * 0.2, höhe - 4.2 * länge), länge, 32);
  }
  if (feld.right() - stock.right() > 2.2 * länge) {
    maler.save();
    maler.translate((feld.right() + stock.right()) / 2, höhe - 2.6 * länge);
    maler.scale(-1, 1);
    biene(maler, {}, länge, 22);
    maler.restore();
  }
}

}  // namespace

Stockmaß::Stockmaß(const QRectF& feld, const Bild& bild, double dichte)
    : m_feld(feld),
      m_rahmen(bild.rahmen),
      m_magazine(bild.magazine),
      m_dichte(dichte),
      m_maßstab(std::min(feld.width() / Breite, feld.height() / 2300)),
      m_boden(0),
      m_magazinhöhe(0) {
  m_boden = scharf(feld.bottom() - länge(Wiese) * 0.45);
  const double frei = m_boden - feld.top() - länge(Fuß + Bodenbrett + Dach) - länge(Dach) * 0.5;
  m_magazinhöhe =
      std::floor(std::min(frei / m_magazine, länge(GrößteMagazinhöhe)) * m_dichte) / m_dichte;
}

double Stockmaß::scharf(double pixel) const { return std::round(pixel * m_dichte) / m_dichte; }

double Stockmaß::x(double twips) const {
  return scharf(m_feld.center().x() + (twips - Breite / 2) * m_maßstab);
}

double Stockmaß::länge(double twips) const {
  return std::max(1 / m_dichte, scharf(twips * m_maßstab));
}

QRectF Stockmaß::magazin(int nummer) const {
  const double unten = bodenbrett().top() - nummer * m_magazinhöhe;
  const double links = x(m_rahmen.links);
  return {links, unten - m_magazinhöhe, x(m_rahmen.links + m_rahmen.obenBreite) - links,
          m_magazinhöhe};
}

QRectF Stockmaß::wabe(int platz) const {
  const QRectF kasten = magazin(platz / Volkbild::MagazinPlätze);
  const double twips = ErsteWabe + spalte(platz) * Wabenteilung;
  const double oben = kasten.top() + länge(Oberkante) + länge(20);
  return {x(twips), oben, x(twips + Wabenbreite) - x(twips), kasten.bottom() - länge(30) - oben};
}

QRectF Stockmaß::bodenbrett() const {
  const double links = x(m_rahmen.links - 40);
  const double unten = m_boden - länge(Fuß);
  return {links, unten - länge(Bodenbrett), x(m_rahmen.links + m_rahmen.obenBreite + 40) - links,
          länge(Bodenbrett)};
}

QRectF Stockmaß::dach() const {
  const QRectF oberstes = magazin(m_magazine - 1);
  const double links = x(m_rahmen.links - 70);
  return {links, oberstes.top() - länge(Dach), x(m_rahmen.links + m_rahmen.obenBreite + 70) - links,
          länge(Dach)};
}

namespace Stockzeichner {

void zeichneWabe(QPainter& maler, const QRectF& fläche, Wabenart art) {
  const QColor farbe = wabenfarbe(art);
  QLinearGradient verlauf(fläche.topLeft(), fläche.topRight());
  verlauf.setColorAt(0, farbe.darker(118));
  verlauf.setColorAt(0.35, farbe.lighter(106));
  verlauf.setColorAt(1, farbe.darker(132));
  const double rundung = std::min(3.0, fläche.width() * 0.18);
  maler.setPen(Qt::NoPen);
  maler.setBrush(verlauf);
  maler.drawRoundedRect(fläche, rundung, rundung);
  rahmen(maler, fläche, QColor::fromHsv(std::max(farbe.hsvHue(), 0), farbe.hsvSaturation(), 105),
         rundung);
}

void zeichne(QPainter& maler, const QRectF& feld, const Bild& bild, bool dunkel) {
  const Farben& f = farben(dunkel);
  const Stockmaß mass(feld, bild, maler.device()->devicePixelRatioF());
  maler.save();
  maler.setRenderHint(QPainter::Antialiasing);
  landschaft(maler, feld, mass, f);
  bodenUndFüße(maler, mass, f);
  for (int i = 0; i < bild.magazine; ++i) zarge(maler, mass, bild, i, f);
  dach(maler, mass, f);
  // Over the walls: in a hive whose width isn't known the combs may stand beyond them.
  for (int platz = 0; platz < Volkbild::Plätze; ++platz)
    if (const auto art = bild.waben[static_cast<size_t>(platz)]; art)
      wabeImRahmen(maler, mass, platz, *art, f);
  bienen(maler, feld, mass, bild);
  maler.restore();
}

}  // namespace Stockzeichner
