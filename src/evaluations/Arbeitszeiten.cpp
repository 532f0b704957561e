#include "evaluations/Arbeitszeiten.h"

#include "data/helpers.h"
#include "evaluations/Buchungssummen.h"

using namespace Auswertung;

namespace Arbeitszeiten {

namespace {

struct Quelle {
  QString tabelle;
  QString titel;
};

const QList<Quelle>& quellen() {
  static const QList<Quelle> alle{{"Honigernte", "Honigernte"},
                                  {"Wachsernte", "Wachsernte"},
                                  {"Pollenernte", "Pollenernte"},
                                  {"Sonstigeernte", "Sonstige Ernte"},
                                  {"Arbeiten", "Arbeiten"},
                                  {"Wanderung", "Wanderung"},
                                  {"Gewichtsmessung", "Gewichtsmessung"},
                                  {"Behandlung", "Behandlung"},
                                  {"Königinwechsel", "Königinwechsel"}};
  return alle;
}

QList<int> gewählte(const Eingaben& eingaben) {
  QList<int> an;
  for (int i = 0; i < quellen().size(); ++i)
    if (eingaben.an(QStringLiteral("konkost"), i)) an += i;
  return an;
}

// A row's hours in the order of its columns, and their total.
void stundenSchreiben(Tabelle& tabelle, const QList<double>& stunden, double gesamt) {
  for (const double h : stunden) tabelle.text(ZahlFormat(h, 2));
  tabelle.text(ZahlFormat(gesamt, 2));
  tabelle.zeileEnde();
}

Tabelle tabellenkopf(const Listenzeilen& zeilen, const QList<int>& gewählt) {
  Tabelle tabelle;
  zeilen.kopfspalten(tabelle);
  for (const int i : gewählt) tabelle.zahlenspalte(QString::number(i), quellen()[i].titel);
  tabelle.zahlenspalte(QString::number(quellen().size()), QStringLiteral("Gesamt"));
  return tabelle;
}

Ergebnis listen(Lauf& lauf) {
  const QList<int> gewählt = gewählte(lauf.eingaben);
  const Listenzeilen zeilen = Listenzeilen::wieGewählt(lauf);
  QList<Summenauftrag> aufträge;
  for (const int i : gewählt) aufträge.append({quellen()[i].tabelle, {QStringLiteral("Zeit_h")}});
  const std::vector<Buchungssummen> summen = summiere(lauf, zeilen, aufträge);

  Tabelle tabelle = tabellenkopf(zeilen, gewählt);
  std::vector<Dezimalsumme> alle(summen.size() + 1);
  for (int z = 0; z < zeilen.anzahl(); ++z) {
    QList<double> stunden;
    Dezimalsumme gesamt;
    for (size_t i = 0; i < summen.size(); ++i) {
      stunden += ZahlLesen(summen[i].summe(z, 0));
      gesamt.dazu(stunden.back());
      alle[i].dazu(stunden.back());
    }
    alle.back().dazu(gesamt.wert());
    zeilen.kopf(tabelle, z);
    stundenSchreiben(tabelle, stunden, gesamt.wert());
  }
  if (alle.back().wert() != 0) {
    QList<double> stunden;
    for (size_t i = 0; i < summen.size(); ++i) stunden += alle[i].wert();
    zeilen.schluss(tabelle, QStringLiteral("SUMME"));
    stundenSchreiben(tabelle, stunden, alle.back().wert());
  }
  return {tabelle.fertig(), {}, NichtsGefunden};
}

Gruppe arbeitszeiten() {
  Gruppe gruppe{QStringLiteral("Zu berücksichtigende Arbeitszeiten aus..."), {}, 1};
  gruppe.alle = Gruppe::Alle::Knöpfe;
  for (int i = 0; i < quellen().size(); ++i)
    gruppe.eingaben += haken(QStringLiteral("konkost"), i, quellen()[i].titel)
                           .slot(Textslots.arbeitszeitTabellen, i);
  return gruppe;
}

}  // namespace

Beschreibung beschreibung() {
  Beschreibung b;
  b.name = QStringLiteral("TW_Arbeitszeiten");
  b.titel = QStringLiteral("Auswertung Arbeitszeiten");
  b.gruppen = {
      völkerwahl(),
      volkfelder(QStringLiteral("Zu listende Datenfelder (Völker)"),
                 {Zahlslots.listeVolknummer, Zahlslots.listeVolkname, Zahlslots.listeStandort}),
      auswertungNach(), wirtschaftsjahre(), arbeitszeiten()};
  b.befehle = {{QStringLiteral("ok"), QStringLiteral("&Listen"), listen}};
  b.nachLaden = jahreErgänzen;
  b.prüfe = [](const QString&, const Eingaben& e) { return wirtschaftsjahrGründe(e); };
  return b;
}

}  // namespace Arbeitszeiten
