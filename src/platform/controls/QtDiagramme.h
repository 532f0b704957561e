#pragma once

#include <QRectF>

#include "platform/controls/Diagramminhalt.h"

class QPainter;

// What the charts' library draws: the slices of a pie lying flat, and bars. The only file that
// knows the library; what stands around and on them is drawn by us, so that it is alike in all
// charts.
namespace QtDiagramme {

// A pie in a square; its radius and how far a slice is pulled out are parts of half the square and
// of the radius.
void torte(QPainter& maler, const QRectF& quadrat, const Diagramminhalt& inhalt, double radius,
           double herausgezogen);

// The numbers beside the bars, round ones with some room above the highest bar.
struct Achse {
  double von = 0;
  double bis = 1;
  int striche = 2;  // with those at both ends
  int nachkommastellen = 0;
  double schritt() const { return (bis - von) / (striche - 1); }
};
Achse achse(const Diagramminhalt& inhalt);
// Bars at equal distances, from one side of the field to the other.
void balken(QPainter& maler, const QRectF& feld, const Diagramminhalt& inhalt, const Achse& achse);

}  // namespace QtDiagramme
