#pragma once

#include "evaluations/Auswertung.h"

// An evaluation without its form: its lists filled, its slots read, its inputs set by a test.
class Auswertungslauf {
 public:
  Auswertungslauf(Database& db, Auswertung::Beschreibung beschreibung)
      : b(std::move(beschreibung)), m_db(db) {
    füllen({});
    Auswertung::laden(b, e);
  }

  // What a user does: another entry of a list or choice, with all that follows.
  void wähle(const QString& name, const QString& key) {
    e.setWahl(name, static_cast<int>(e.angebot(name).indexOf(key)));
    setzen(name, key);
  }
  void schreibe(const QString& name, const QString& text) { setzen(name, text); }
  void hake(const QString& name, bool an = true) {
    e.setAn(name, an);
    geändert(name);
  }

  QStringList gründe(const QString& befehl = "ok") const {
    return b.prüfe ? b.prüfe(befehl, e) : QStringList();
  }
  Auswertung::Ergebnis starten(const QString& befehl = "ok") {
    Auswertung::Lauf lauf{m_db, e, [this](int fertig, int gesamt) {
                            fortschritt += {fertig, gesamt};
                          }};
    return b.befehl(befehl)->lauf(lauf);
  }
  // The rows of the result as they are shown, cells parted by "|".
  QStringList zeilen(const QString& befehl = "ok") { return zeilenVon(*starten(befehl).liste); }

  static QStringList zeilenVon(const Ausgabeliste& liste) {
    QStringList alle;
    for (int zeile = 0; zeile < liste.zeilen(); ++zeile) {
      QStringList zellen;
      for (int i = 0; i < liste.spalten(); ++i)
        zellen += liste.daten()->anzeige(liste.blockzeile(zeile), i);
      alle += zellen.join('|');
    }
    return alle;
  }

  Auswertung::Beschreibung b;
  Auswertung::Eingaben e;
  QList<std::pair<int, int>> fortschritt;

 private:
  void setzen(const QString& name, const QString& text) {
    e.setText(name, text);
    geändert(name);
  }
  void geändert(const QString& name) {
    if (b.beiÄnderung) b.beiÄnderung(name, e);
    füllen(name);
  }
  // All lists, or those that depend on this input.
  void füllen(const QString& nurVon) {
    for (const Auswertung::Gruppe& g : b.gruppen)
      for (const Auswertung::Eingabe& eingabe : g.eingaben) {
        if (!eingabe.posten || (!nurVon.isEmpty() && eingabe.postenVon != nurVon)) continue;
        QStringList keys;
        for (const auto& p : eingabe.posten(m_db, e)) keys += p.schlüssel;
        e.setAngebot(eingabe.name, keys);
      }
  }

  Database& m_db;
};
