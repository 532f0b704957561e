#include "evaluations/VoelkerBuchungenStandard.h"

#include "data/schema.h"
#include "evaluations/Buchungsanweisung.h"
#include "evaluations/Leseliste.h"

using namespace Auswertung;

namespace {

const QString Tabellenwahl = QStringLiteral("sevt_0");
const QStringList Sortierungen{QStringLiteral("sevt_1"), QStringLiteral("sevt_2")};
const QString Felder = QStringLiteral("li");
const QString Volknr = QStringLiteral("Volknr");
const QString Volkname = QStringLiteral("Volkname");

// All booking tables but the last, the notes.
QStringList tabellen() { return buchungstabellen().mid(0, buchungstabellen().size() - 1); }

QList<Posten> tabellenfelder(Database& db, const Eingaben& eingaben) {
  const QString tabelle = eingaben.text(Tabellenwahl);
  if (tabelle.isEmpty()) return {};
  return Buchungsanweisung::felderVon(tabelle)(db, eingaben);
}

QList<Posten> sortierfelder(Database& db, const Eingaben& eingaben) {
  const QList<Posten> felder = tabellenfelder(db, eingaben);
  if (felder.isEmpty()) return {};
  return QList<Posten>{{{}, {}}, {Volknr, Volknr}, {Volkname, Volkname}} + felder;
}

QString sortierung(const Eingaben& eingaben) {
  QStringList felder;
  for (const QString& name : Sortierungen) {
    const QString feld = eingaben.text(name);
    if (feld.isEmpty()) continue;
    const bool vomVolk = feld == Volknr || feld == Volkname;
    felder += vomVolk ? feld : eingaben.text(Tabellenwahl) + u'.' + feld;
  }
  if (felder.isEmpty()) return {};
  return QStringLiteral(" order by ") + felder.join(QStringLiteral(", "));
}

// Another table has other fields.
void tabelleGewechselt(const QString& name, Eingaben& eingaben) {
  if (name != Tabellenwahl) return;
  eingaben.setGewählt(Felder, {});
  for (const QString& s : Sortierungen) eingaben.setText(s, {});
}

Ergebnis listen(Lauf& lauf) {
  Ergebnis ergebnis;
  ergebnis.liste = Ausgabeliste(gelesen(lauf, VölkerBuchungenStandard::anweisung(lauf.eingaben)));
  ergebnis.leer = Buchungsanweisung::nichtsGefunden();
  return ergebnis;
}

Eingabe sortierwahl(int nummer, const QString& titel) {
  return wahltext(Sortierungen[nummer], titel, sortierfelder).abhängigVon(Tabellenwahl);
}

// The titles are the pieces of a sentence.
QList<Gruppe> gruppen() {
  Gruppe völker = völkerwahl(1);
  völker.titel = QStringLiteral("...von den Völkern...");
  return {{QStringLiteral("Es sollen die Daten aus den Buchungen..."),
           {wahltext(Tabellenwahl, {}, feste(tabellen())).mitVorgabe(tabellen().first())}},
          {QStringLiteral("...und daraus die Datenfelder..."),
           {merkliste(Felder, {}, tabellenfelder).abhängigVon(Tabellenwahl)},
           0,
           1,
           Gruppe::Alle::Knöpfe},
          völker,
          buchungsauswahl(QStringLiteral("...innerhalb des Zeitraumes..."),
                          buchungsauswahlTexte().mid(0, 2), Zahlslots.buchungsauswahlStandard, 1),
          volkfelder(QStringLiteral("...mit den folgenden Feldinhalten der Völker..."),
                     {Zahlslots.buchungenVolknummer, Zahlslots.buchungenVolkname}, 1),
          {QStringLiteral("...sortiert nach den Datenfeldern..."),
           {sortierwahl(0, QStringLiteral("zuerst")), sortierwahl(1, QStringLiteral("dann"))},
           1}};
}

}  // namespace

namespace VölkerBuchungenStandard {

QString anweisung(const Eingaben& eingaben) {
  const QString tabelle = eingaben.text(Tabellenwahl);
  return Buchungsanweisung::auswahl(eingaben, tabelle, eingaben.gewählt(Felder)) +
         Buchungsanweisung::herkunft(eingaben, tabelle) + sortierung(eingaben);
}

Beschreibung beschreibung() {
  Beschreibung b;
  b.name = QStringLiteral("TW_Völker_Buchungen_Standard");
  b.titel = QStringLiteral("Völker (Buchungen) Standard");
  b.gruppen = gruppen();
  // It opens on a table with all its fields, ready to be listed.
  b.nachLaden = [](Eingaben& e) { e.setGewählt(Felder, e.angebot(Felder)); };
  b.hinweis = QStringLiteral("...gelistet werden.");
  b.beiÄnderung = tabelleGewechselt;
  b.prüfe = [](const QString&, const Eingaben& eingaben) {
    return Buchungsanweisung::gründe(eingaben, eingaben.gewählt(Felder).isEmpty());
  };
  b.befehle = {{QStringLiteral("ok"), QStringLiteral("&Listen"), listen}};
  return b;
}

}  // namespace VölkerBuchungenStandard
