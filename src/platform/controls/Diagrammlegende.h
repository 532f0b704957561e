#pragma once

#include <QFont>
#include <QRectF>

#include "platform/controls/Diagramminhalt.h"

class QPainter;

// The names of a chart's points with their colours and values, in as many columns as it takes.
class Diagrammlegende {
 public:
  // Finds the font size and the columns for this room: long names are cut, then the text becomes
  // smaller, and what even then has no room is told by its count.
  Diagrammlegende(const Diagramminhalt& inhalt, const QFont& schrift, QSizeF raum);

  QSizeF größe() const { return m_größe; }
  // How many points it names; the others are told by their count.
  int genannt() const { return m_genannt; }
  void malen(QPainter& maler, const QPointF& ort) const;

 private:
  void einteilen(int schriftgröße, double höhe);
  void einpassen(double breite, double kürzesterName);
  void maleEintrag(QPainter& maler, int punkt, const QRectF& zeile) const;
  QString nummer(int punkt) const;

  const Diagramminhalt& m_inhalt;
  QFont m_schrift;
  QSizeF m_größe;
  double m_zeilenhöhe = 0;
  double m_nummern = 0;  // widths
  double m_namen = 0;
  double m_werte = 0;
  double m_spaltenbreite = 0;
  int m_zeilen = 1;  // of a column
  int m_spalten = 1;
  int m_genannt = 0;
};
