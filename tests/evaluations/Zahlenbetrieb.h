#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <algorithm>

#include "data/helpers.h"
#include "evaluations/Auswertung.h"
#include "gemeinsam/Musterdatenbank.h"

inline void PrintTo(const QString& text, std::ostream* aus) { *aus << text.toStdString(); }

// An evaluation of numbers without its window, on the 15th of June 2006: its inputs, and the run
// from the button to the list. No run may change a byte of the database.
class Zahlenbetrieb : public testing::Test {
 protected:
  using Felder = QList<std::pair<QString, QVariant>>;

  void SetUp() override { leereDatenbank(); }

  static Database& db() { return TZ_Variablen::DB; }

  static qint64 einfügen(const QString& tabelle, const Felder& felder) {
    QStringList namen;
    QStringList zeichen;
    QVariantList werte;
    for (const auto& [name, wert] : felder) {
      namen += name;
      zeichen += "?";
      werte += wert;
    }
    db().Execute(
        "insert into " + tabelle + "(" + namen.join(", ") + ") values (" + zeichen.join(", ") + ")",
        werte);
    return db().LetzteID();
  }

  static qint64 volk(const QString& nummer, const QVariant& imBestand = "X",
                     const QString& selektiert = "") {
    return einfügen("Bienenvolk", {{"Volknr", nummer},
                                   {"Volkname", "Volk " + nummer},
                                   {"Standort", QString("Hof")},
                                   {"Akt_im_Bestand", imBestand},
                                   {"Selektiert", selektiert}});
  }

  // A booking of a colony on a day "dd.mm.yyyy".
  static void buche(const QString& tabelle, const QVariant& volk, const QString& tag,
                    Felder felder) {
    felder.append({"Volk_ID", volk});
    felder.append({"Datum", DatumLesen(tag)});
    einfügen(tabelle, felder);
  }

  // Opens an evaluation: its lists filled, its slots read.
  void öffne(const Auswertung::Beschreibung& beschreibung) {
    b = beschreibung;
    for (const Auswertung::Gruppe& gruppe : b.gruppen)
      for (const Auswertung::Eingabe& eingabe : gruppe.eingaben) {
        if (!eingabe.posten) continue;
        QStringList keys;
        for (const auto& posten : eingabe.posten(db(), e)) keys += posten.schlüssel;
        e.setAngebot(eingabe.name, keys);
      }
    Auswertung::laden(b, e);
  }

  void zeitraum(int von, int bis) {
    e.setText("t", 0, QString::number(von));
    e.setText("t", 1, QString::number(bis));
  }
  void hake(const QString& name, const QList<int>& nummern, bool an = true) {
    for (const int i : nummern) e.setAn(name, i, an);
  }

  // What the button brings: the captions and below them the rows, their cells parted by "|"; or
  // what is said instead.
  QStringList starte(const QString& befehl = "ok") {
    if (b.vorPrüfung) b.vorPrüfung(befehl, e);
    const QString nein = Auswertung::ablehnung(b, b.prüfe(befehl, e));
    if (!nein.isEmpty()) return {nein};
    if (b.nachPrüfung) b.nachPrüfung(befehl, e);
    const QByteArray vorher = datei();
    fortschritt.clear();
    Auswertung::Lauf lauf{db(), e, [&](int fertig, int gesamt) {
                            EXPECT_LE(fertig, gesamt);
                            fortschritt += fertig;
                          }};
    ergebnis = b.befehl(befehl)->lauf(lauf);
    EXPECT_EQ(datei(), vorher);
    if (ergebnis.liste->zeilen() == 0) return {ergebnis.leer};
    return zeilen(*ergebnis.liste);
  }

  // The reasons alone, below the head.
  QStringList gründe(const QString& befehl = "ok") { return b.prüfe(befehl, e); }

  // Whether each column holds numbers, and its key.
  QStringList spalten() const {
    QStringList alle;
    for (int i = 0; i < ergebnis.liste->spalten(); ++i) {
      const Spalte& spalte = ergebnis.liste->daten()->spalte(i);
      alle += spalte.name + (istZahl(spalte.typ) ? " (Zahl)" : "");
    }
    return alle;
  }

  static QStringList zeilen(const Ausgabeliste& liste) {
    QStringList alle{liste.überschriften().join('|')};
    for (int zeile = 0; zeile < liste.zeilen(); ++zeile) {
      QStringList zellen;
      for (int i = 0; i < liste.spalten(); ++i)
        zellen += liste.daten()->anzeige(liste.blockzeile(zeile), i);
      alle += zellen.join('|');
    }
    return alle;
  }

  // Row by row, so that a failure names the first that differs.
  static testing::AssertionResult gleich(const QStringList& ist, const QStringList& soll) {
    for (qsizetype i = 0; i < std::max(ist.size(), soll.size()); ++i)
      if (ist.value(i) != soll.value(i))
        return testing::AssertionFailure()
               << "row " << i << "\nis:     " << qPrintable(ist.value(i))
               << "\nwanted: " << qPrintable(soll.value(i));
    return testing::AssertionSuccess();
  }

  Programmordner m_ordner{"15.06.2006"};
  Auswertung::Beschreibung b;
  Auswertung::Eingaben e;
  Auswertung::Ergebnis ergebnis;
  QList<int> fortschritt;

 private:
  static QByteArray datei() {
    QFile datei(TZ_Variablen::DatenbankPfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
  }
};
