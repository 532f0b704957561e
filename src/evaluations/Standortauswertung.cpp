#include "evaluations/Standortauswertung.h"

#include "core/globals.h"
#include "data/helpers.h"
#include "evaluations/Leseliste.h"
#include "evaluations/Qualitaetsindex.h"
#include "evaluations/Tabelle.h"
#include "platform/database/werte/Kollation.h"
#include "platform/locale/Deutsch.h"

using namespace Auswertung;
using TZ_Variablen::CRLF;
using TZ_Variablen::HeuteText;

namespace Standortauswertung {

namespace {

const QString Stichtag = QStringLiteral("sevt_7");

// ---- lists ----

Ergebnis ergebnis(Ausgabeliste liste) {
  return {.liste = std::move(liste),
          .leer = "Es wurden lt. den aktuellen Einstellungen keine Daten gefunden!"};
}

Ergebnis standorte(Lauf& lauf) {
  return ergebnis(Ausgabeliste(gelesen(lauf, "select * from Standorte order by Standort")));
}

Ergebnis pflanzen(Lauf& lauf) {
  return ergebnis(Ausgabeliste(gelesen(lauf, "select * from Pflanzen order by Pflanze")));
}

// A site's name stands once, and an empty row before the next one.
Ergebnis pflanzenJeStandort(Lauf& lauf) {
  const Daten zeilen =
      gelesen(lauf,
              "select Standort, Zusatzortshinweis, Pflanze, Entfernung_m, Proz_Anteil from "
              "Standorte, Standorte_Pflanzen where Standort_Kennung = Standorte.ID order by "
              "Standort, Pflanze");
  constexpr int Ortsspalten = 2;
  Tabelle tabelle;
  for (int i = 0; i < zeilen->spalten(); ++i) tabelle.spalte(zeilen->spalte(i));
  QString vorher;
  for (int zeile = 0; zeile < zeilen->zeilen(); ++zeile) {
    const QString ort = zeilen->anzeige(zeile, 0);
    const bool neuer = zeile == 0 || ort != vorher;
    if (neuer && zeile > 0) tabelle.zeileEnde();
    for (int i = 0; i < zeilen->spalten(); ++i) {
      if (i < Ortsspalten && !neuer)
        tabelle.leer();
      else
        zelleLesen(tabelle.zelle(), *zeilen, zeile, i);
    }
    tabelle.zeileEnde();
    vorher = ort;
  }
  return ergebnis(tabelle.fertig());
}

// How many colonies bear a site's name, in stock or not; by the key of the name's order.
QHash<QByteArray, qint64> völkerJeStandort(Database& db) {
  QHash<QByteArray, qint64> anzahl;
  db.Durchlaufe("select Standort, count(*) as Anzahl from Bienenvolk group by Standort", {},
                [&](const Laufzeile& zeile) {
                  if (!zeile.istNull(0))
                    anzahl[Kollation::schlüssel(zeile.text(0))] += zeile.ganzzahl(1);
                });
  return anzahl;
}

Ergebnis belegung(Lauf& lauf) {
  const QHash<QByteArray, qint64> völker = völkerJeStandort(lauf.db);
  const Daten orte = gelesen(
      lauf, "select Standort, Zusatzortshinweis, Max_Völker from Standorte order by Standort");
  Tabelle tabelle;
  tabelle.spalte(orte->spalte(0)).spalte(orte->spalte(2));
  tabelle.spalte({"Ist_Völker", Feldtyp::Lang, 0}).spalte({"Differenz", Feldtyp::Lang, 0});
  for (int zeile = 0; zeile < orte->zeilen(); ++zeile) {
    const QString ort = orte->anzeige(zeile, 0);
    const qint64 höchstens = orte->ganzzahl(zeile, 2);
    const qint64 ist = völker.value(Kollation::schlüssel(ort));
    tabelle.text(ort);
    zelleLesen(tabelle.zelle(), *orte, zeile, 2);
    for (const qint64 zahl : {ist, höchstens - ist}) tabelle.zelle().ganz(zahl);
    tabelle.zeileEnde();
  }
  return ergebnis(tabelle.fertig());
}

// ---- quality index ----

Qualitätsindex::Parameter parameter(const Eingaben& e) {
  const auto zahl = [&](int index) { return Deutsch::val(e.text("sevt", index)); };
  return {.nektar = zahl(0),
          .pollen = zahl(1),
          .anteil = zahl(2),
          .entfernung = zahl(3),
          .pkw = zahl(4),
          .wasser = zahl(5),
          .prämie = ZahlLesen(e.text("sevt", 6))};
}

QList<Qualitätsindex::Standort> standorteLesen(Database& db, const QString& anweisung) {
  const Daten zeilen = db.Lesen(anweisung);
  const auto spalte = [&](const char* name) { return zeilen->spaltenNummer(QString(name)); };
  const int id = spalte("ID");
  const int name = spalte("Standort");
  const int pkw = spalte("Pkw_anfahrbar");
  const int wasser = spalte("Entfernung_Wasser_m");
  const int prämie = spalte("Standortprämie_Volk");
  QList<Qualitätsindex::Standort> orte;
  for (int i = 0; i < zeilen->zeilen(); ++i)
    orte.append({.id = zeilen->ganzzahl(i, id),
                 .name = TextLesen(zeilen->wert(i, name)),
                 .pkw = TextLesen(zeilen->wert(i, pkw)) == "J",
                 .wasser_m = zeilen->ganzzahl(i, wasser),
                 .prämie = zeilen->zahl(i, prämie)});
  return orte;
}

// A row for each site; the cells behind its name come from the visitor.
template <class Zellen>
void jeStandort(const Lauf& lauf, const QList<Qualitätsindex::Standort>& orte, Tabelle& tabelle,
                Zellen zellen) {
  const Qualitätsindex::Trachten trachten(lauf.db, parameter(lauf.eingaben));
  int fertig = 0;
  for (const Qualitätsindex::Standort& ort : orte) {
    tabelle.text(ort.name);
    zellen(trachten, ort);
    tabelle.zeileEnde();
    if (lauf.fortschritt) lauf.fortschritt(++fertig, static_cast<int>(orte.size()));
  }
}

Ergebnis indexAmTag(Lauf& lauf) {
  const int tag = Qualitätsindex::tagesschlüssel(DatumLesen(lauf.eingaben.text(Stichtag)));
  Tabelle tabelle;
  tabelle.spalte("Standort", "Standort");
  for (const char* name : {"Punkte_Pflanze", "Punkte_Standort", "Punkte_Gesamt"})
    tabelle.spalte({name, Feldtyp::Lang, 0});
  jeStandort(
      lauf, standorteLesen(lauf.db, "select * from Standorte order by Standort, Zusatzortshinweis"),
      tabelle, [&](const auto& trachten, const auto& ort) {
        const Qualitätsindex::Punkte punkte = trachten.punkte(ort, tag);
        for (const qint64 zahl : {punkte.pflanze, punkte.standort, punkte.gesamt})
          tabelle.zelle().ganz(zahl);
      });
  return ergebnis(tabelle.fertig());
}

// Every seventh day from the first of March to the end of September of this year.
QList<QDate> wochentage() {
  constexpr int Abstand = 7;
  constexpr int Oktober = 10;
  QList<QDate> tage;
  QDate tag = DatumLesen("01.03." + diesesJahr());
  for (; tag.isValid() && tag.month() < Oktober; tag = tag.addDays(Abstand)) tage += tag;
  return tage;
}

Ergebnis indexJeWoche(Lauf& lauf) {
  const QList<QDate> tage = wochentage();
  Tabelle tabelle;
  tabelle.spalte("1", "Standort");
  for (int i = 0; i < tage.size(); ++i)
    tabelle.zahlenspalte(QString::number(i + 2), Deutsch::datumText(tage[i]).left(5));
  jeStandort(lauf, standorteLesen(lauf.db, "select * from Standorte order by Standort"), tabelle,
             [&](const auto& trachten, const auto& ort) {
               for (const QDate tag : tage)
                 tabelle.text(QString::number(
                     trachten.punkte(ort, Qualitätsindex::tagesschlüssel(tag)).gesamt));
             });
  return ergebnis(tabelle.fertig());
}

// ---- description ----

struct Parameterfeld {
  QString titel;
  QString einheit;
  int standard;
  Zahlslot ablage;
};
const QList<Parameterfeld>& parameterfelder() {
  static const QList<Parameterfeld> felder{
      {"Nektarstufe (1..10) multipliziert mit...", "Punkte(n)", 5, Zahlslots.nektarpunkte},
      {"Pollenstufe (1..10) multipliziert mit...", "Punkte(n)", 5, Zahlslots.pollenpunkte},
      {"Mulitplikator Prozentualer Anteil bei 100% ", "", 5, Zahlslots.anteilfaktor},
      {"Mulitplikator von 1 m bis 3 km Entfernung", "", 15, Zahlslots.entfernungsfaktor},
      {"PKW-Anfahrbar = Erhöhung um", "%", 30, Zahlslots.anfahrtzuschlag},
      {"Entfernung Wasser 1 m bis 1 km max", "%", 50, Zahlslots.wasserzuschlag},
      {"Standortprämie je 10 Euro von", "%", 3, Zahlslots.prämienzuschlag}};
  return felder;
}

Gruppe parametergruppe() {
  constexpr qint64 Größter = 9999;
  Gruppe gruppe{"Qualitätsparameter", {}};
  for (int i = 0; i < parameterfelder().size(); ++i) {
    const Parameterfeld& p = parameterfelder().at(i);
    gruppe.eingaben += ganzzahl(Eingaben::glied("sevt", i), p.titel, Größter)
                           .slot(p.ablage)
                           .nullWirdVorgabe(QString::number(p.standard))
                           .mitEinheit(p.einheit);
    gruppe.eingaben.last().grün = true;
  }
  gruppe.eingaben += knopf("standardparameter", "Standard-&Parameter setzen");
  return gruppe;
}

void standardSetzen(Eingaben& e) {
  for (int i = 0; i < parameterfelder().size(); ++i)
    e.setText("sevt", i, QString::number(parameterfelder().at(i).standard));
}

// How the points come about, for the beekeeper who wants to follow them.
QStringList beispiel() {
  return {"Sie haben einen Standort mit folgenden Pflanzen:",
          "",
          "Löwenzahn: Nektarstufe 6, Pollenstufe 8, Entfernung 200 m, Anteil 40 %",
          "Kirsche: Nektarstufe 7, Pollenstufe 3, Entfernung 100 m, Anteil 40 %",
          "Bergahorn: Nektarstufe 4, Pollenstufe 2, Entfernung 880 m, Anteil 20 %",
          "",
          "Der Standort ist mit dem PKW anfahrbar, das Wasser ist 300 m entfernt.",
          "Die Standortprämie beträgt 20 Euro je Volk.",
          "",
          "Am 5. Mai blühen alle drei Pflanzen. Mit den Standardparametern ergibt das:",
          "",
          "Löwenzahn: 6 x 5 + 8 x 5 = 70, 70 x (40 x 5 / 100) = 140, 140 x 2800 x 15 / 3000 = 1960",
          "Kirsche: 7 x 5 + 3 x 5 = 50, 50 x (40 x 5 / 100) = 100, 100 x 2900 x 15 / 3000 = 1450",
          "Bergahorn: 4 x 5 + 2 x 5 = 30, 30 x (20 x 5 / 100) = 30, 30 x 2120 x 15 / 3000 = 318",
          "Alle Pflanzen: 1960 + 1450 + 318 = 3728 Punkte",
          "",
          "PKW-anfahrbar: 3728 + 30 % = 4846 Punkte",
          "Wasser: 700 x 50 / 1000 = 35 %, 4846 + 35 % = 6542 Punkte",
          "Standortprämie: 20 / 10 x 3 = 6 %, 6542 + 6 % = 6935 Punkte",
          "",
          "Der Standort hat also an diesem Tag 6935 Punkte.",
          "",
          "An einem Tag, an dem keine seiner Pflanzen blüht, bekommt der Standort keine Punkte."};
}

struct Liste {
  QString titel;
  Ergebnis (*lauf)(Lauf&);
};
const QList<Liste>& listen() {
  static const QList<Liste> alle{
      {"Alle Standorte listen", standorte},
      {"Alle Pflanzen listen", pflanzen},
      {"Pflanzen je Standort listen", pflanzenJeStandort},
      {"Max-Völker / Ist-Völker je Standort", belegung},
      {"Qualitäts-Index je Standort berechnen lt. den Qualitätsparametern bezogen auf das Datum...",
       indexAmTag},
      {"Qualitäts-Index mit den Qualitätsparametern je Standort ab März bis September in "
       "7-Tage-Abstand berechnen",
       indexJeWoche}};
  return alle;
}
constexpr int AmTag = 4;

Gruppe listengruppe() {
  Gruppe gruppe{"Listen", {}};
  for (int i = 0; i < listen().size(); ++i) {
    gruppe.eingaben += knopf(Eingaben::glied("rolisten", i), listen().at(i).titel);
    if (i == AmTag) gruppe.eingaben += datum(Stichtag, "Datum");
  }
  return gruppe;
}

QList<Befehl> befehle() {
  QList<Befehl> alle{
      {.name = "standardparameter",
       .titel = {},
       .tat = standardSetzen,
       .frage =
           "Sollen die Qualitätspraramter wirklich auf die Standard-Parameter gesetzt werden?" +
           CRLF + CRLF +
           "Die Standardparameter sind (von oben nach unten in den grünen Feldern) 5 - 5 - 5 "
           "- 15 - 30 - 50 - 3"}};
  for (int i = 0; i < listen().size(); ++i)
    alle.append({.name = Eingaben::glied("rolisten", i), .titel = {}, .lauf = listen().at(i).lauf});
  return alle;
}

QString ohneStichtag(const QString& befehl, const Eingaben& e) {
  if (befehl != Eingaben::glied("rolisten", AmTag) || IstDatum(e.text(Stichtag))) return {};
  return "Bitte legen zuerst das Datum fest, zu welchem Termin der Qualitäts-Index berechnet "
         "werden soll!";
}

}  // namespace

Beschreibung beschreibung() {
  Beschreibung b{.name = "TW_Standorte",
                 .titel = "Standorte / Pflanzen auswerten",
                 .gruppen = {parametergruppe(),
                             listengruppe(),
                             {"Beispiel", {lesetext("Text1", {}, beispiel())}, 1}},
                 .befehle = befehle()};
  b.nachLaden = [](Eingaben& e) { e.setText(Stichtag, HeuteText); };
  b.verweigert = ohneStichtag;
  b.zeichen = 150;
  b.zeilen = 36;
  return b;
}

}  // namespace Standortauswertung
