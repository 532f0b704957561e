#pragma once

#include <gtest/gtest.h>

#include <ostream>

#include "bookings/Buchung.h"
#include "data/schema.h"
#include "gemeinsam/Musterdatenbank.h"
#include "platform/database/Recordset.h"

inline void PrintTo(const QString& text, std::ostream* aus) { *aus << text.toStdString(); }
inline void PrintTo(const Slotänderung& a, std::ostream* aus) {
  *aus << a.slot << ": \"" << a.text.toStdString() << '"';
}
inline void PrintTo(const QList<Slotänderung>& liste, std::ostream* aus) {
  *aus << "{ ";
  for (const Slotänderung& a : liste) {
    PrintTo(a, aus);
    *aus << ' ';
  }
  *aus << '}';
}

// All slots empty but these.
inline Slottexte slottexte(const QList<Slotänderung>& texte) {
  Slottexte alle;
  for (const Slotänderung& a : texte) alle[static_cast<size_t>(a.slot)] = a.text;
  return alle;
}

// The slots as the form dresses them, then these texts in them.
inline Buchung buchung(int art, const QString& datum, const QList<Slotänderung>& texte) {
  Buchung neu;
  neu.art = art;
  neu.texte[0] = datum;
  for (const Buchungsslot& slot : buchungstyp(art).plätze)
    neu.texte[static_cast<size_t>(slot.nummer)] = slot.ersterText;
  for (const Slotänderung& a : texte) neu.texte[static_cast<size_t>(a.slot)] = a.text;
  return neu;
}

// An operation with a new database of its own: three colonies, no options and no appointments.
class Bestand : public testing::Test {
 protected:
  void SetUp() override {
    static Musterdatenbank muster([] {
      schreibe("delete from Arbeitsplanoptionen");
      for (const QString nr : {"1", "2", "3"})
        schreibe("insert into Bienenvolk (Volknr, Akt_im_Bestand) values (?, 'X')", {nr});
    });
    muster.kopieren();
  }

  static Database& db() { return TZ_Variablen::DB; }
  static void schreibe(const QString& anweisung, const QVariantList& werte = {}) {
    db().Execute(anweisung, werte);
  }
  // The first cell as a list shows it; "<null>" and "<keine Zeile>" say what they say.
  static QString wert(const QString& anweisung, const QVariantList& werte = {}) {
    const Daten daten = db().Lesen(anweisung, werte);
    if (daten->zeilen() == 0) return "<keine Zeile>";
    return daten->istNull(0, 0) ? QString("<null>") : daten->anzeige(0, 0);
  }
  // A field of the table's newest row.
  static QString feld(const QString& tabelle, const QString& name) {
    return wert("select top 1 " + name + ", ID from " + tabelle + " order by ID DESC");
  }
  static QString volkfeld(const QString& name, int id = 1) {
    return wert("select " + name + " from Bienenvolk where ID = ?", {id});
  }
  static int anzahl(const QString& tabelle) {
    return static_cast<int>(db().Lesen("select ID from " + tabelle)->zeilen());
  }
  // All first cells, joined by "|".
  static QString spalte(const QString& anweisung) {
    const Daten daten = db().Lesen(anweisung);
    QStringList texte;
    for (int i = 0; i < daten->zeilen(); ++i) texte.append(daten->anzeige(i, 0));
    return texte.join("|");
  }

  // A new booking of one colony, with no other marked.
  void neu(Buchung b, const QString& volkId = "1") {
    m_kontext.anzahlMarkiert = 1;
    BuchungSpeichern(db(), b, volkId, "-1", m_kontext);
  }
  // A new booking of these colonies, all of them marked.
  Buchung lauf(Buchung b, const QStringList& volkIds) {
    m_kontext.anzahlMarkiert = static_cast<int>(volkIds.size());
    BuchungslaufSpeichern(db(), b, volkIds, m_kontext);
    return b;
  }

  Programmordner m_ordner{"20.06.2026"};
  Buchungskontext m_kontext;
};
