#pragma once

#include <QDate>
#include <QList>

#include "Zufall.h"

// The trade of the sample operation, written through src/stores: purchases, sales with the honey
// movements that follow from them, days of filling, what leaves the store otherwise. The number of
// deals doesn't grow with the colonies, their quantities do.
class Handelsbuch {
 public:
  Handelsbuch(Zufall& zufall, QDate heute, int erstesJahr, int völker)
      : m_zufall(zufall), m_heute(heute), m_erstesJahr(erstesJahr), m_völker(völker) {}

  // After the harvests: no batch is sold before it has come in, and none beyond what there is.
  // Throws Datenbankfehler.
  void führen();

 private:
  struct Geschäft {
    QDate tag;
    bool verkauf = true;
    QString produkt;
    QString qualität;
    QString partner;
    double menge = 0;
    QString einheit;
    double geld = 0;
    QString charge;
    QDate abgefüllt = {};  // of a honey sale
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
    QDate vollständig;  // the day its last kilogram came in
  };

  void einkaufen(int jahr);
  void nebenherVerkaufen(int jahr);
  QList<Posten> posten() const;
  void honigVerkaufen(const Posten& posten);
  void einkauf(QDate tag, const char* produkt, const char* qualität, const char* lieferant,
               double menge, const char* einheit, double geld, const QString& charge = {});
  void verkauf(QDate tag, const char* produkt, const char* qualität, const QString& abnehmer,
               double menge, const char* einheit, double geld);
  void schreiben();
  static void speichern(const Geschäft& geschäft);
  static void abfüllungEintragen(qint64 verkaufId, QDate tag);
  static void speichern(const Entnahme& entnahme);
  QDate tag(int jahr, int monat) { return QDate(jahr, monat, m_zufall.zahl(1, 28)); }

  Zufall& m_zufall;
  QDate m_heute;
  int m_erstesJahr;
  int m_völker;
  QList<Geschäft> m_geschäfte;
  QList<Entnahme> m_entnahmen;
};
