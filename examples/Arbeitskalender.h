#pragma once

#include <QDate>

#include "Zufall.h"

// The planning of the sample operation, written through src/planning: the work plan options as this
// beekeeper keeps them, the yearly runs, what is entered by hand, and what has been ticked off. All
// of it throws Datenbankfehler and leaves HeuteText at heute.
class Arbeitskalender {
 public:
  // beginn: the first year whose appointments the calendar still holds.
  Arbeitskalender(Zufall& zufall, QDate heute, int beginn)
      : m_zufall(zufall), m_heute(heute), m_beginn(beginn) {}

  // Prunes and completes the options that a new database brings. No appointment comes of it yet.
  void optionenEinrichten();
  // A year begins: the yearly run, the options without colonies and the club's evenings, which are
  // entered by hand. saisonstart: the day before which there were no colonies yet.
  void jahrBeginnen(int jahr, QDate saisonstart);
  // At New Year's Eve all that is left of the year is ticked off.
  void jahrAbschließen(int jahr);
  // Of this year all is ticked off but the last days' rest: a site closed in one go, single ones
  // here and there. Then what stands ahead is entered. The colonies must stand at their sites.
  void bisHeute();

 private:
  void eintragen(QDate tag, const QString& termin, const QString& volknr = {});
  void standErledigen();
  void einzelneErledigen();
  void ausstehendesEintragen();
  void amStandEintragen(QDate tag, const QString& termin);

  Zufall& m_zufall;
  QDate m_heute;
  int m_beginn;
};
