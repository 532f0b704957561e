#pragma once

#include <QColor>
#include <QList>
#include <QString>

// What a chart shows: its points in their order, how they are drawn and what stands around them.
struct Diagramminhalt {
  enum class Art { Torte, Torte3D, Balken };
  enum class Werte { Keine, Prozent, Mengen };
  struct Punkt {
    QString name;
    double wert = 0;
  };

  Art art = Art::Torte;
  Werte werte = Werte::Keine;
  QString titel;
  QString fuß;
  QList<Punkt> punkte;
  int herausgezogen = -1;  // the point that is pulled out of a pie; -1: none

  // A point's share of the sum, 0 to 1. What is below 0 has none.
  double anteil(int punkt) const;
  // The value as the chart shows it: "12,5 %", "12,5" or nothing.
  QString werttext(int punkt) const;
  // In a pie with more points than there are colours of their own they are numbered.
  bool nummeriert() const;

  // The colour of a point. Eight that people with a red-green blindness can tell apart, then the
  // same lighter, then darker; then they begin anew.
  static constexpr int Farbzahl = 24;
  static QColor farbe(int punkt);
  // Black or white, whichever can be read on it.
  static QColor schriftAuf(const QColor& grund);
};
