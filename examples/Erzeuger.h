#pragma once

#include <QDate>
#include <QString>
#include <vector>

#include "Betrieb.h"
#include "Zufall.h"
#include "bookings/Buchung.h"

class Eintrag;

// A colony as its keeper knows it.
struct Volkstand {
  QString id;
  QDate zugang;
  QDate abgang;  // invalid while held
  double stimmung = 0;
  int eigenart = 0;
  int gebucht = 0;
};

// The colonies of the sample operation: what each season brings them, booked as a beekeeper books
// it. Colonies are numbered from 1 in the order in which they were made. All functions throw
// Datenbankfehler.
class Erzeuger {
 public:
  Erzeuger(const Betriebsgröße& größe, QDate heute, Zufall& zufall)
      : m_größe(größe), m_heute(heute), m_zufall(zufall) {}

  // The last day on which a colony came.
  QDate saisonstart() const { return ersterZugang().addDays(zugangstage); }

  void volkAnlegen(int nummer);
  void saison(int nummer, int jahr);
  void auffüllen(int nummer);  // with weighings to the wanted count
  void nachziehen();

 private:
  static constexpr int zugangstage = 20;

  QDate ersterZugang() const { return QDate(m_heute.year() - m_größe.jahre + 1, 3, 1); }
  void durchsichten(int jahr);
  void durchsicht(QDate tag);
  void ernten(int jahr);
  void honig(QDate tag, const QString& sorte, double kg);
  void wanderungen(int jahr);
  void arbeiten(int jahr);
  void behandlungen(int jahr);
  void königin(int jahr);
  void notiz(int jahr);
  void waagstockTage(int anzahl);
  void buchen(Eintrag eintrag);
  QDate tag(int jahr, int monat, int erster, int letzter) {
    return QDate(jahr, monat, m_zufall.zahl(erster, letzter));
  }

  Betriebsgröße m_größe;
  QDate m_heute;
  Zufall& m_zufall;
  Buchungskontext m_kontext;
  std::vector<Volkstand> m_völker;
  Volkstand* m_volk = nullptr;  // the colony at work
};
