#include "evaluations/Grafiken.h"

#include "core/globals.h"
#include "data/helpers.h"

namespace Grafiken {

namespace {

constexpr int VölkerAnStandorten = 0;
constexpr int HonigNachSorten = 1;

QString anweisung(int auswahl, const QString& jahr) {
  static const QStringList anweisungen = {
      "select Standort as Inhalt1, count(*) as Wert1 from Bienenvolk group by Standort",
      "select Honigsorte as Inhalt1, sum(Menge_kg) as Wert1 from Honigernte where Datum >= ",
      "select year(Datum) as Inhalt1, sum(Menge_kg) as Wert1 from Honigernte group by Year(Datum)",
      "select year(Datum) as Inhalt1, sum(Menge_kg) as Wert1 from Wachsernte group by Year(Datum)",
      "select year(Datum) as Inhalt1, sum(Menge_g) as Wert1 from Pollenernte group by Year(Datum)"};
  if (auswahl != HonigNachSorten) return anweisungen[auswahl];
  return anweisungen[auswahl] + SqlDatum("01.01." + jahr) +
         " and Datum <= " + SqlDatum("31.12." + jahr) + " group by Honigsorte";
}

QString titel(int auswahl, const QString& jahr) {
  const QString text = "Auswertung (" + auswahlen()[auswahl] + ")";
  if (auswahl == HonigNachSorten) return text + " für " + jahr;
  return auswahl == VölkerAnStandorten ? text : text + " alle Jahre";
}

}  // namespace

const QStringList& auswahlen() {
  static const QStringList titel = {"Völker an Standorten", "Honigernte nach Sorten",
                                    "Honigernten je Jahr (kg)", "Wachsernte je Jahr (kg)",
                                    "Pollenernte je Jahr (g)"};
  return titel;
}

bool fürEinJahr(int auswahl) { return auswahl == HonigNachSorten; }

Grafik lesen(Database& db, int auswahl, const QString& jahr) {
  Grafik grafik{titel(auswahl, jahr), "Stand: " + TZ_Variablen::HeuteText, {}, -1};
  if (fürEinJahr(auswahl) && (jahr.size() != 4 || !IstDatum("01.01." + jahr))) return grafik;
  const Daten daten = db.Lesen(anweisung(auswahl, jahr));
  for (int i = 0; i < daten->zeilen(); ++i) {
    const QString gelesen = TextLesen(daten->anzeige(i, 0));
    const QString name = gelesen.isEmpty() ? "ohne Angabe" : gelesen;
    // An empty name and none are two groups and one point.
    if (!grafik.punkte.isEmpty() && grafik.punkte.last().name == name)
      grafik.punkte.last().wert += daten->zahl(i, 1);
    else
      grafik.punkte.append({name, daten->zahl(i, 1)});
  }
  for (int i = 0; i < grafik.punkte.size(); ++i)
    if (i == 0 || grafik.punkte[i].wert > grafik.punkte[grafik.größter].wert) grafik.größter = i;
  return grafik;
}

}  // namespace Grafiken
