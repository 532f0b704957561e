#pragma once

#include <QFile>
#include <stdexcept>

#include "core/globals.h"
#include "data/helpers.h"
#include "evaluations/Auswertung.h"
#include "output/Textliste.h"
#include "platform/files/Textdatei.h"

// An evaluation at work without its window: opened, its inputs changed as a user would, its
// commands run, closed. What it says on the way is collected.
class Probelauf {
 public:
  explicit Probelauf(Auswertung::Beschreibung beschreibung) : b(std::move(beschreibung)) {
    öffnen();
  }

  void öffnen() {
    e = {};
    for (int mal = 0; mal < 2; ++mal) {  // what lists offer goes by other inputs
      for (const auto& gruppe : b.gruppen)
        for (const auto& eingabe : gruppe.eingaben) anbieten(eingabe);
      Auswertung::laden(b, e);
    }
  }
  void schließen() { Auswertung::sichern(b, e); }

  void tippe(const QString& name, const QString& text) {
    e.setText(name, text);
    geändert(name);
  }
  void wähle(const QString& name, int index) {
    e.setWahl(name, index);
    geändert(name);
  }
  // An entry of a list by its key.
  void wähle(const QString& name, const QString& schlüssel) {
    wähle(name, static_cast<int>(e.angebot(name).indexOf(schlüssel)));
  }
  void hake(const QString& name, bool an = true) {
    e.setAn(name, an);
    geändert(name);
  }

  // Runs a command or does what it does; what a refused run gives is empty.
  Auswertung::Ergebnis drücke(const QString& name) {
    const Auswertung::Befehl* befehl = b.befehl(name);
    if (befehl == nullptr) throw std::runtime_error("kein Befehl " + name.toStdString());
    if (befehl->tat) befehl->tat(e);
    if (!befehl->lauf || !bereit(name)) return {};
    fortschritte = 0;
    Auswertung::Lauf lauf{TZ_Variablen::DB, e, [this](int, int) { ++fortschritte; }};
    auto ergebnis = befehl->lauf(lauf);
    if (!ergebnis.text && (!ergebnis.liste || ergebnis.liste->zeilen() == 0))
      meldungen += ergebnis.leer.isEmpty() ? Auswertung::NichtsGefunden : ergebnis.leer;
    return ergebnis;
  }
  // The list of a command; one that was refused or found nothing has no rows.
  Ausgabeliste liste(const QString& befehl) {
    return drücke(befehl).liste.value_or(Ausgabeliste());
  }

  static QStringList zeile(const Ausgabeliste& liste, int zeile) {
    QStringList zellen;
    for (int i = 0; i < liste.spalten(); ++i)
      zellen += liste.daten()->anzeige(liste.blockzeile(zeile), i);
    return zellen;
  }
  static QList<QStringList> zeilen(const Ausgabeliste& liste) {
    QList<QStringList> alle;
    for (int i = 0; i < liste.zeilen(); ++i) alle += zeile(liste, i);
    return alle;
  }
  // The list as the text output shows it, line ends as LF.
  static QString alsText(const Ausgabeliste& liste) {
    Textliste::schreiben(Textliste::datei(), liste, {}, " | ");
    return Textdatei::vonCp1252(inhalt(Textliste::datei())).remove('\r');
  }
  static QByteArray inhalt(const QString& pfad) {
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("(fehlt)");
  }

  Auswertung::Beschreibung b;
  Auswertung::Eingaben e;
  QStringList meldungen;
  int fortschritte = 0;

 private:
  void anbieten(const Auswertung::Eingabe& eingabe) {
    if (!eingabe.posten) return;
    QStringList schlüssel;
    for (const auto& posten : eingabe.posten(TZ_Variablen::DB, e)) schlüssel += posten.schlüssel;
    e.setAngebot(eingabe.name, schlüssel);
  }
  void geändert(const QString& name) {
    for (const auto& gruppe : b.gruppen)
      for (const auto& eingabe : gruppe.eingaben)
        if (eingabe.postenVon == name) anbieten(eingabe);
    if (b.beiÄnderung) b.beiÄnderung(name, e);
  }
  bool bereit(const QString& befehl) {
    const auto sage = [this](const QString& text) {
      if (!text.isEmpty()) meldungen += text;
      return !text.isEmpty();
    };
    if (b.vorPrüfung) sage(b.vorPrüfung(befehl, e));
    if (b.verweigert && sage(b.verweigert(befehl, e))) return false;
    if (b.prüfe && sage(Auswertung::ablehnung(b, b.prüfe(befehl, e)))) return false;
    if (b.nachPrüfung) b.nachPrüfung(befehl, e);
    return true;
  }
};
