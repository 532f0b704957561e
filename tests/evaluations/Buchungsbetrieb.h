#pragma once

#include "colonies/Testbetrieb.h"
#include "evaluations/Probelauf.h"

// Three colonies (10 and 2 in stock, 3 gone) and short ways to book.
class Buchungsbetrieb : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    zehn = volk("10", "Max & Moritz", "X");
    zwei = volk("2", "Ol'ga", "X");
    drei = volk("3", "Anna", "");
  }
  static qint64 volk(const QString& nummer, const QString& name, const QString& imBestand) {
    const qint64 id = neuesVolk(nummer, imBestand);
    db().Execute("update Bienenvolk set Volkname = ? where ID = ?", {name, id});
    return id;
  }
  static void buche(const QString& tabelle, qint64 volk, const QVariant& datum,
                    const QStringList& felder = {}, const QVariantList& werte = {}) {
    QStringList fragezeichen(felder.size() + 2, "?");
    db().Execute("insert into " + tabelle + "(" +
                     (QStringList{"Volk_ID", "Datum"} + felder).join(", ") + ") values (" +
                     fragezeichen.join(", ") + ")",
                 QVariantList{volk, datum} + werte);
  }
  static void ernte(qint64 volk, const QVariant& datum, const QVariant& menge,
                    const QVariant& qualität = {}) {
    buche("Honigernte", volk, datum, {"Menge_kg", "Qualität"}, {menge, qualität});
  }
  // The rows of a list, cells parted by "|".
  static QStringList zeilen(const Ausgabeliste& liste) {
    QStringList alle;
    for (const QStringList& z : Probelauf::zeilen(liste)) alle += z.join('|');
    return alle;
  }
  static QDate tag(int monat, int tag) { return {2006, monat, tag}; }

  qint64 zehn = 0;
  qint64 zwei = 0;
  qint64 drei = 0;
};
