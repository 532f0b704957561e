#pragma once

#include <QDate>
#include <QList>

#include "Zufall.h"

// The trade of the sample operation, written through src/stores: purchases, sales with the honey
// movements that follow from them, days of filling, what leaves the store otherwise. The number of
// deals doesn't grow with the colonies, their quantities do.
class Handelsbuch {
 public:
  Handelsbuch(Zufall& zufall, QDate heute, int erstesJahr, int voelker)
      : m_zufall(zufall), m_heute(heute), m_erstesJahr(erstesJahr), m_voelker(voelker) {}

  // After the harvests: no batch is sold before it has come in, and none beyond what there is.
  // Throws Datenbankfehler.
  void fuehren();

 private:
  struct Geschaeft {
    QDate tag;
    bool verkauf = true;
    QString produkt;
    QString qualitaet;
    QString partner;
    double menge = 0;
    QString einheit;
    double geld = 0;
    QString charge;
    QDate abgefuellt = {};  // of a honey sale
  };
  // What leaves the store without being sold.
  struct Entnahme {
    QDate tag;
    QString produkt;
    QString charge;
    double kg = 0;
    QString bemerkung;
  };
  // A honey in its batch, as it lies in the store.
  struct Posten {
    QString produkt;
    QString charge;
    double kg = 0;
    QDate vollstaendig;  // the day its last kilogram came in
  };

  void einkaufen(int jahr);
  void nebenherVerkaufen(int jahr);
  QList<Posten> posten() const;
  void honigVerkaufen(const Posten& posten);
  void einkauf(QDate tag, const char* produkt, const char* qualitaet, const char* lieferant,
               double menge, const char* einheit, double geld, const QString& charge = {});
  void verkauf(QDate tag, const char* produkt, const char* qualitaet, const QString& abnehmer,
               double menge, const char* einheit, double geld);
  void schreiben();
  static void speichern(const Geschaeft& geschaeft);
  static void abfuellungEintragen(qint64 verkaufId, QDate tag);
  static void speichern(const Entnahme& entnahme);
  QDate tag(int jahr, int monat) { return QDate(jahr, monat, m_zufall.zahl(1, 28)); }

  Zufall& m_zufall;
  QDate m_heute;
  int m_erstesJahr;
  int m_voelker;
  QList<Geschaeft> m_geschaefte;
  QList<Entnahme> m_entnahmen;
};
