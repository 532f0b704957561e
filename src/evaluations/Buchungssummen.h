#pragma once

#include "evaluations/Listenzeilen.h"
#include "platform/locale/Dezimalsumme.h"

namespace Auswertung {

// What is added up of a table, all of it in one pass.
struct Summenauftrag {
  QString tabelle;
  QStringList felder;      // or expressions of fields
  QString bedingung = {};  // " and ..." behind the period
  bool ohneVolk = false;   // its rows belong to no colony; by years only
};

// Where a figure is found: in which order's sums, and which of its fields.
struct Summenort {
  size_t auftrag = 0;
  int feld = 0;
};

// Adds a field to the order for its table, unless it is in it, or begins that order; without a
// field the table alone.
Summenort aufnehmen(QList<Summenauftrag>& aufträge, const Summenauftrag& tabelle,
                    const QString& feld = {});

// The bookings of a table, counted and added up for each row of a list. The figures are those of
// count(*), sum and avg in a statement for each row; null counts as 0.
class Buchungssummen {
 public:
  Buchungssummen(int zeilen, qsizetype felder);

  qint64 anzahl(int zeile) const { return m_anzahl[static_cast<size_t>(zeile)]; }
  double summe(int zeile, int feld) const { return summe(ort(zeile, feld)); }
  double mittel(int zeile, int feld) const;

  void dazu(int zeile, const Laufzeile& buchung);

 private:
  // Small, as there are many and bookings come in any order: what millionths can't hold is kept
  // beside them.
  struct Stand {
    qint64 millionstel = 0;
    qint64 werte = 0;  // that aren't null
  };
  size_t ort(int zeile, int feld) const {
    return static_cast<size_t>(zeile) * m_felder + static_cast<size_t>(feld);
  }
  double summe(size_t ort) const;

  size_t m_felder;
  std::vector<qint64> m_anzahl;
  std::vector<Stand> m_stände;  // row by row
  QHash<size_t, Dezimalsumme> m_übrige;
};

// Adds up the bookings of the rows' period, for each order in turn.
std::vector<Buchungssummen> summiere(Lauf& lauf, const Listenzeilen& zeilen,
                                     const QList<Summenauftrag>& aufträge);

}  // namespace Auswertung
