#include "evaluations/Statistik.h"

#include "data/helpers.h"
#include "evaluations/Buchungssummen.h"
#include "evaluations/Statistikmasse.h"
#include "platform/locale/Deutsch.h"

using namespace Auswertung;

namespace Statistik {

namespace {

constexpr int GrößterAbstand = 20;
constexpr int FrühestesJahr = 1901;
constexpr int SpätestesJahr = 2099;

const QString Liste = QStringLiteral("li1");

// ---- calculation ----

// The cells of the chosen measures: what has to be added up for them, and what comes of it.
class Rechner {
 public:
  explicit Rechner(const QStringList& schlüssel) {
    for (const Maß& maß : maße())
      if (schlüssel.contains(maß.schlüssel)) aufnehmen(maß);
  }

  void spalten(Tabelle& tabelle) const {
    for (const Spalte& s : m_spalten) tabelle.zahlenspalte(s.maß->schlüssel, s.maß->titel);
  }
  size_t anzahl() const { return m_spalten.size(); }
  void summiere(Lauf& lauf, const Listenzeilen& zeilen) {
    m_summen = Auswertung::summiere(lauf, zeilen, m_aufträge);
  }
  QString text(int zeile, size_t spalte) const {
    const Spalte& s = m_spalten[spalte];
    const double zahl = wert(zeile, s);
    if (s.maß->geld) return Deutsch::währung(zahl);
    return Deutsch::zahl(zahl, s.maß->rechnung == Rechnung::Anzahl ? 0 : 1);
  }

 private:
  struct Spalte {
    const Maß* maß;
    Summenort ort;
    int wertfeld;  // of a price
  };

  // Only premiums that were received count as such.
  static QString bedingung(const QString& tabelle) {
    return tabelle == u"Wanderung" ? QStringLiteral(" and +Prämie_erhalten = 'J'") : QString();
  }
  void aufnehmen(const Maß& maß) {
    const Summenauftrag tabelle{maß.tabelle, {}, bedingung(maß.tabelle)};
    const Summenort ort = Auswertung::aufnehmen(m_aufträge, tabelle, maß.feld);
    m_spalten.push_back({&maß, ort, Auswertung::aufnehmen(m_aufträge, tabelle, maß.wert).feld});
  }
  double wert(int zeile, const Spalte& s) const {
    const Buchungssummen& summen = m_summen[s.ort.auftrag];
    switch (s.maß->rechnung) {
      case Rechnung::Anzahl:
        return ZahlLesen(summen.anzahl(zeile));
      case Rechnung::Mittel:
        return ZahlLesen(summen.mittel(zeile, s.ort.feld));
      case Rechnung::Summe:
        return ZahlLesen(summen.summe(zeile, s.ort.feld));
      case Rechnung::Preis:
        break;
    }
    const auto menge = static_cast<float>(ZahlLesen(summen.summe(zeile, s.ort.feld)));
    const auto geld = static_cast<float>(ZahlLesen(summen.summe(zeile, s.wertfeld)));
    return menge == 0 ? 0 : Deutsch::einfach(static_cast<double>(geld / menge));
  }

  std::vector<Spalte> m_spalten;
  QList<Summenauftrag> m_aufträge;
  std::vector<Buchungssummen> m_summen;
};

// The averages of the columns, as they are read in the list; a zero doesn't count.
class Schnitt {
 public:
  explicit Schnitt(size_t spalten) : m_summen(spalten), m_anzahl(spalten) {}

  void dazu(size_t spalte, const QString& text) {
    const double zahl = ZahlLesen(text);
    if (zahl == 0) return;
    m_summen[spalte].dazu(zahl);
    ++m_anzahl[spalte];
  }
  // The last column has none.
  void schreiben(Tabelle& tabelle) const {
    for (size_t i = 0; i + 1 < m_summen.size(); ++i) tabelle.text(Deutsch::zahl(mittel(i), 1));
    tabelle.zeileEnde();
  }

 private:
  double mittel(size_t i) const {
    return m_anzahl[i] == 0 ? 0 : Deutsch::einfach(m_summen[i].wert() / m_anzahl[i]);
  }

  std::vector<Dezimalsumme> m_summen;
  std::vector<int> m_anzahl;
};

Ergebnis listen(Lauf& lauf, const Listenzeilen& zeilen) {
  const bool mitSchnitt = lauf.eingaben.an(QStringLiteral("konschnitt"));
  Rechner rechner(lauf.eingaben.gewählt(Liste));
  Tabelle tabelle;
  zeilen.kopfspalten(tabelle, QStringLiteral("Jahr"));
  rechner.spalten(tabelle);
  rechner.summiere(lauf, zeilen);
  Schnitt schnitt(rechner.anzahl());
  for (int z = 0; z < zeilen.anzahl(); ++z) {
    zeilen.kopf(tabelle, z);
    for (size_t i = 0; i < rechner.anzahl(); ++i) {
      const QString text = rechner.text(z, i);
      if (mitSchnitt) schnitt.dazu(i, text);
      tabelle.text(text);
    }
    tabelle.zeileEnde();
  }
  if (mitSchnitt) {
    zeilen.schluss(tabelle, QStringLiteral("SCHNITT"));
    schnitt.schreiben(tabelle);
  }
  return {tabelle.fertig(), {}, NichtsGefunden};
}

Ergebnis jeVolk(Lauf& lauf) {
  const QString rest = QStringLiteral(" where Akt_im_Bestand = 'X' order by Volknr");
  return listen(lauf, Listenzeilen::jeVolk(lauf, rest, jahre(lauf.eingaben)));
}

Ergebnis jeJahr(Lauf& lauf) { return listen(lauf, Listenzeilen::jeJahr(jahre(lauf.eingaben))); }

// ---- form ----

// Years that a program can't have saved become this year.
void jahrePrüfen(Eingaben& eingaben) {
  for (const int i : {0, 1}) {
    const qint64 jahr = GanzLesen(eingaben.text(QStringLiteral("t"), i));
    if (jahr < FrühestesJahr || jahr > SpätestesJahr)
      eingaben.setText(QStringLiteral("t"), i, diesesJahr());
  }
}

QStringList gründe(const QString&, const Eingaben& eingaben) {
  QStringList gründe = jahreszahlGründe(eingaben);
  if (!gründe.isEmpty()) return gründe;
  const Jahre zeitraum = jahre(eingaben);
  if (zeitraum.von > zeitraum.bis)
    gründe += QStringLiteral("...das Jahr von... nicht höher sein darf als das Jahr bis...!");
  if (zeitraum.bis - zeitraum.von > GrößterAbstand)
    gründe +=
        QStringLiteral("...der Unterschied Jahr von... zu Jahr bis... max. 20 Jahre sein darf.");
  return gründe;
}

// Nothing chosen means everything.
void alleWennKeine(const QString&, Eingaben& eingaben) {
  if (eingaben.gewählt(Liste).isEmpty()) eingaben.setGewählt(Liste, eingaben.angebot(Liste));
  kontierWennKeine(eingaben);
}

QList<Posten> posten() {
  QList<Posten> alle;
  for (const Maß& maß : maße()) alle.append({maß.schlüssel, maß.titel});
  return alle;
}

Gruppe maßwahl() {
  Gruppe gruppe{
      {},
      {merkliste(Liste, QStringLiteral("Zu berechnende Daten"), feste(posten()))
           .slot(Textslots.statistikMaße),
       nebenliste(QStringLiteral("li1x"), QStringLiteral("Feldname"), Liste).rechtsDavon()}};
  gruppe.alle = Gruppe::Alle::Knöpfe;
  return gruppe;
}

}  // namespace

Beschreibung beschreibung() {
  Beschreibung b;
  b.name = QStringLiteral("TW_Statistiken");
  b.titel = QStringLiteral("Statistiken");
  b.gruppen = {
      maßwahl(),
      volkfelder(QStringLiteral("Zu listende Datenfelder (Völker)"),
                 {Zahlslots.listeVolknummer, Zahlslots.listeVolkname, Zahlslots.listeStandort}, 1),
      {QStringLiteral("Bei Auswertung je Jahr"),
       {jahr(QStringLiteral("t_0"), QStringLiteral("Von Jahr")).slot(Zahlslots.jahrVon),
        jahr(QStringLiteral("t_1"), QStringLiteral("Bis Jahr")).slot(Zahlslots.jahrBis)},
       1},
      {{},
       {haken(QStringLiteral("konschnitt"), QStringLiteral("Durchschnittswerte anhängen"))
            .slot(Zahlslots.statistikSchnitt)},
       1}};
  b.befehle = {{QStringLiteral("ok_0"), QStringLiteral("Statistik je Volk"), jeVolk},
               {QStringLiteral("ok_1"), QStringLiteral("Statistik je Jahr"), jeJahr}};
  b.kopf = QStringLiteral("Die Statisktik kann nicht erstellt werden, weil...");
  b.hinweis = QStringLiteral(
      "Hinweis: Bei der Statistik je Volk werden nur die aktuell im Bestand befindlichen Völker "
      "ausgewertet. Bei der Statistik nach Jahren werden alle Völker berücksichtigt.");
  b.nachLaden = jahrePrüfen;
  b.prüfe = gründe;
  b.nachPrüfung = alleWennKeine;
  return b;
}

}  // namespace Statistik
