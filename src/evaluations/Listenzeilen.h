#pragma once

#include "evaluations/Tabelle.h"
#include "evaluations/Wirtschaftsjahre.h"

namespace Auswertung {

// Where each colony stands in a list, by its ID. IDs count from 1, so most are found without a
// search; a booking asks, and there are millions of them.
class Volkplätze {
 public:
  void setze(qint64 id, int platz);
  int platz(qint64 id) const {  // -1 when it isn't in the list
    if (id >= 0 && id < static_cast<qint64>(m_kleine.size()))
      return m_kleine[static_cast<size_t>(id)];
    return m_große.isEmpty() ? -1 : m_große.value(id, -1);
  }

 private:
  std::vector<int> m_kleine;
  QHash<qint64, int> m_große;
};

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
  int völker() const { return m_völker ? m_völker->zeilen() : 0; }
  Jahre jahre() const { return m_jahre; }

  void kopfspalten(Tabelle& tabelle, const QString& jahr = QStringLiteral("jahr")) const;
  void kopf(Tabelle& tabelle, int zeile) const;
  // The word in the first of the leading columns, for a row below all others.
  void schluss(Tabelle& tabelle, const QString& wort) const;

  // What decides in which row a booking counts, and that row; -1 for none.
  bool jeVolk() const { return m_jeVolk; }
  bool brauchtVolk() const { return m_nurVölker; }
  int zeile(qint64 volk) const { return m_plätze.platz(volk); }
  int zeile(qint64 volk, int jahr) const { return zeile(volk) < 0 ? -1 : zeileVon(jahr); }
  int zeileVon(int jahr) const { return jahr - m_jahre.von; }

 private:
  explicit Listenzeilen(Jahre jahre) : m_jahre(jahre) {}
  void völkerLesen(Lauf& lauf, const QString& rest);

  Jahre m_jahre;
  bool m_jeVolk = false;
  bool m_nurVölker = false;
  Daten m_völker;
  Volkplätze m_plätze;  // in m_völker
  QList<int> m_felder;  // the leading fields, as columns of m_völker
};

}  // namespace Auswertung
