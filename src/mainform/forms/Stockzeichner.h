#pragma once

#include <QColor>
#include <QRectF>

#include "mainform/Volkbild.h"

class QPainter;

// Where the pieces of the hive stand within the given area, in pixels. The magazines stand on the
// ground, the first one at the bottom as in a real hive, where the queen and her brood are; the
// brood comes first in the order of the combs.
class Stockmaß {
 public:
  // dichte: device pixels per pixel, on which all edges fall.
  Stockmaß(const QRectF& feld, const Volkbild::Bild& bild, double dichte);

  double x(double twips) const;             // of a position in the picture
  double länge(double twips) const;         // at least one device pixel
  double boden() const { return m_boden; }  // the ground
  QRectF magazin(int nummer) const;         // from 0, at the bottom
  // A comb with its top bar. The first eight places of a magazine lie in its middle, the others
  // outward by turns as the walls do, so that the brood nest is in the middle.
  QRectF wabe(int platz) const;
  QRectF bodenbrett() const;
  QRectF dach() const;
  double scharf(double pixel) const;  // the nearest edge of a device pixel

 private:
  QRectF m_feld;
  Volkbild::Rahmen m_rahmen;
  int m_magazine;
  double m_dichte;
  double m_maßstab;  // pixels per twip
  double m_boden;
  double m_magazinhöhe;
};

namespace Stockzeichner {

// The hive in its meadow.
void zeichne(QPainter& maler, const QRectF& feld, const Volkbild::Bild& bild, bool dunkel);
// A piece of comb in the colour of its kind.
void zeichneWabe(QPainter& maler, const QRectF& fläche, Volkbild::Wabenart art);

}  // namespace Stockzeichner
