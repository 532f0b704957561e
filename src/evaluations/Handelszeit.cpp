#include "evaluations/Handelszeit.h"

#include "core/globals.h"
#include "data/helpers.h"
#include "evaluations/Tabelle.h"

using namespace Auswertung;

namespace Handelszeit {

namespace {

constexpr int InDerZeit = 1;
constexpr int JahreZurück = 10;
constexpr int Monate = 12;

}  // namespace

Gruppe gruppe() {
  return {"Buchungsauswahl der Bewegungsdaten",
          {optionen("optibuch", {"Alle Buchungen", "Datum von"}),
           datum("tdat_0", {}).wählt("optibuch", InDerZeit),
           datum("tdat_1", "bis").wählt("optibuch", InDerZeit).rechtsDavon()}};
}

void vorgeben(Eingaben& e) {
  e.setText("tdat", 0, "01.01." + diesesJahr());
  e.setText("tdat", 1, TZ_Variablen::HeuteText);
}

QStringList gründe(const QString& /*befehl*/, const Eingaben& e) {
  if (e.wahl("optibuch") != InDerZeit) return {};
  const QString von = e.text("tdat", 0);
  const QString bis = e.text("tdat", 1);
  if (!IstDatum(von) || !IstDatum(bis)) return {"...die Datumangaben nicht korrekt sind."};
  if (DatumLesen(von) >= DatumLesen(bis))
    return {"...das Datum von... kleiner sein muß als das Datum bis..."};
  return {};
}

Klausel klausel(const Eingaben& e) {
  if (e.wahl("optibuch") != InDerZeit) return {};
  return {" where Datum >= ? and Datum <= ?",
          {DatumLesen(e.text("tdat", 0)), DatumLesen(e.text("tdat", 1))}};
}

Ergebnis ergebnis(Ausgabeliste liste) {
  return {.liste = std::move(liste), .leer = "Keine Daten gefunden"};
}

Ergebnis tabelle(const Lauf& lauf, Stufe stufe, const QString& vonTabelle,
                 const QList<Summe>& summen) {
  const bool monate = stufe == Stufe::Monat;
  const QString zeit = monate ? "month(Datum)" : "year(Datum)";
  const int dieses = diesesJahr().toInt();
  const int von = monate ? 1 : dieses - JahreZurück;
  const int bis = monate ? Monate : dieses;

  Tabelle tabelle;
  tabelle.zahlenspalte("zeit", monate ? "Monat" : "Jahr").zahlenspalte("buchungen", "Buchungen");
  QString felder = zeit + " as Zeit, count(*) as Anzahl";
  for (int i = 0; i < summen.size(); ++i) {
    const QString name = "summe" + QString::number(i + 1);
    tabelle.zahlenspalte(name, summen[i].titel);
    felder += ", " + summen[i].ausdruck + " as " + name;
  }

  const Klausel k = klausel(lauf.eingaben);
  const Daten zeilen = lauf.db.Lesen(
      "select " + felder + " from " + vonTabelle + k.text + " group by " + zeit, k.werte);
  QHash<qint64, int> zeileVon;
  for (int i = 0; i < zeilen->zeilen(); ++i)
    if (!zeilen->istNull(i, 0)) zeileVon[zeilen->ganzzahl(i, 0)] = i;

  for (int wert = von; wert <= bis; ++wert) {
    const int zeile = zeileVon.value(wert, -1);
    tabelle.text(QString::number(wert));
    tabelle.text(QString::number(zeile < 0 ? 0 : zeilen->ganzzahl(zeile, 1)));
    for (int i = 0; i < summen.size(); ++i)
      tabelle.text(ZahlFormat(zeile < 0 ? QVariant() : zeilen->wert(zeile, i + 2), 2));
    tabelle.zeileEnde();
  }
  return ergebnis(tabelle.fertig());
}

Beschreibung beschreibung(const QString& name, const QString& titel, const QList<Gruppe>& gruppen,
                          const QList<Liste>& listen) {
  Beschreibung b{.name = name, .titel = titel};
  Gruppe auswahl{"Listen", {}};
  for (int i = 0; i < listen.size(); ++i) {
    const QString befehl = Eingaben::glied("rolisten", i);
    auswahl.eingaben += knopf(befehl, listen[i].titel);
    b.befehle.append({.name = befehl, .titel = {}, .lauf = listen[i].lauf});
  }
  b.gruppen = gruppen + QList<Gruppe>{gruppe(), auswahl};
  b.kopf = "Die Auswertung kann nicht ausgeführt werden, weil...";
  b.nachLaden = vorgeben;
  b.prüfe = gründe;
  return b;
}

}  // namespace Handelszeit
