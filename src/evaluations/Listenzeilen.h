#pragma once

#include "evaluations/Tabelle.h"
#include "evaluations/Wirtschaftsjahre.h"

namespace Auswertung {

// Where none of the boxes kontier is on, all three are switched on.
void kontierWennKeine(Eingaben& eingaben);

// The rows of a list by colonies or by years: what leads each of them, and in which one a booking
// of the period counts.
class Listenzeilen {
 public:
  // A row for each colony of "select Volknr, Volkname, Standort, ID from Bienenvolk" + rest, led by
  // the fields whose boxes kontier are on.
  static Listenzeilen jeVolk(Lauf& lauf, const QString& rest, Jahre jahre);
  // A row for each year.
  static Listenzeilen jeJahr(Jahre jahre);
  // The same, in which only bookings of these colonies count.
  static Listenzeilen jeJahr(Lauf& lauf, const QString& rest, Jahre jahre);
  // By optiauswertung, optitieraus and the years of the inputs.
  static Listenzeilen wieGewählt(Lauf& lauf);

  int anzahl() const;
  int völker() const { return static_cast<int>(m_platz.size()); }
  Jahre jahre() const { return m_jahre; }

  void kopfspalten(Tabelle& tabelle, const QString& jahr = QStringLiteral("jahr")) const;
  void kopf(Tabelle& tabelle, int zeile) const;
  // The word in the first of the leading columns, for a row below all others.
  void schluss(Tabelle& tabelle, const QString& wort) const;

  // What decides in which row a booking counts, and that row; -1 for none.
  bool jeVolk() const { return m_jeVolk; }
  bool brauchtVolk() const { return m_nurVölker; }
  int zeile(qint64 volk) const { return m_platz.value(volk, -1); }
  int zeile(qint64 volk, int jahr) const { return m_platz.contains(volk) ? zeileVon(jahr) : -1; }
  int zeileVon(int jahr) const { return jahr - m_jahre.von; }

 private:
  explicit Listenzeilen(Jahre jahre) : m_jahre(jahre) {}
  void völkerLesen(Lauf& lauf, const QString& rest);

  Jahre m_jahre;
  bool m_jeVolk = false;
  bool m_nurVölker = false;
  Daten m_völker;
  QHash<qint64, int> m_platz;  // a colony's row in m_völker by its ID
  QList<int> m_felder;         // the leading fields, as columns of m_völker
};

}  // namespace Auswertung
