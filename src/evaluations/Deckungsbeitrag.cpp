#include "evaluations/Deckungsbeitrag.h"

#include <array>

#include "data/helpers.h"
#include "evaluations/Buchungssummen.h"
#include "platform/locale/Deutsch.h"

using namespace Auswertung;

namespace Deckungsbeitrag {

namespace {

// The items by their number: revenue first, then costs.
constexpr int Verkäufe = 0;
constexpr int ErsteAusgabe = 6;
constexpr int Wanderung = 11;
constexpr int Einkäufe = 15;
constexpr int Anzahl = 17;
constexpr int Summe = Anzahl;

// Values of all items and, behind them, what is left; in single precision.
using Werte = std::array<double, Anzahl + 1>;

struct Posten {
  QString titel;
  QString spalte;
  QString tabelle;  // empty: a flat amount
  QString feld;
};

const QList<Posten>& posten() {
  static const QList<Posten> alle{
      {"Einnahmen Verkäufe (nur bei Auswertung nach Jahren)", "E_Verkäufe", "Verkauf", "Einnahmen"},
      {"Einnahmen Honigernte", "E_Honigernte", "Honigernte", "Honig_Wert"},
      {"Einnahmen Wachsernte", "E_Wachsernte", "Wachsernte", "Wachs_Wert"},
      {"Einnahmen Pollenernte", "E_Pollenernte", "Pollenernte", "Pollen_Wert"},
      {"Einnahmen Sonstige Ernte", "E_Sonstigeernte", "Sonstigeernte", "Wert"},
      {"Pauschale Einnahme je Volk u. Jahr von...", "E_Pauschale", {}, "sevt_0"},
      {"Kosten Honigernte", "K_Honigernte", "Honigernte", "Kosten"},
      {"Kosten Wachsernte", "K_Wachsernte", "Wachsernte", "Kosten"},
      {"Kosten Pollenernte", "K_Pollenernte", "Pollenernte", "Kosten"},
      {"Kosten Sonstige Ernte", "K_Sonstigeernte", "Sonstigeernte", "Kosten"},
      {"Kosten durch Arbeiten", "K_Arbeiten", "Arbeiten", "Kosten"},
      {"Kosten Wanderung abzgl. Standortprämie", "K_Wanderung", "Wanderung", "Kosten"},
      {"Kosten Gewichtsmessung", "K_Gewichtsmessung", "Gewichtsmessung", "Kosten"},
      {"Kosten Behandlung", "K_Behandlung", "Behandlung", "Kosten"},
      {"Kosten Königinwechsel", "K_Königinwechsel", "Königinwechsel", "Kosten"},
      {"Kosten Einkäufe (nur bei Auswertung nach Jahren)", "K_Verkäufe", "Einkauf", "Ausgaben"},
      {"Pauschale Kosten je Volk u. Jahr von...", "K_Pauschale", {}, "sevt_1"},
  };
  return alle;
}

// Sales and purchases are those of the whole operation.
bool istHandel(int nummer) { return nummer == Verkäufe || nummer == Einkäufe; }

const QString Kästchen = QStringLiteral("konkost");
const QString Erhalten = QStringLiteral("iif(Prämie_erhalten = 'J', Standortprämie, Null)");

// ---- calculation ----

// The rows' values: what has to be added up for the items that are on, and what comes of it.
class Rechner {
 public:
  Rechner(Lauf& lauf, const Listenzeilen& zeilen) : m_eingaben(lauf.eingaben), m_zeilen(zeilen) {
    QList<Summenauftrag> aufträge;
    for (int i = 0; i < Anzahl; ++i) {
      const Posten& p = posten()[i];
      if (!m_eingaben.an(Kästchen, i) || (istHandel(i) && zeilen.jeVolk())) continue;
      m_an += i;
      if (p.tabelle.isEmpty()) continue;
      const Summenauftrag tabelle{p.tabelle, {}, {}, istHandel(i)};
      m_orte[i] = aufnehmen(aufträge, tabelle, p.feld);
      if (i == Wanderung) m_prämie = aufnehmen(aufträge, tabelle, Erhalten);
    }
    m_summen = summiere(lauf, zeilen, aufträge);
  }

  const QList<int>& an() const { return m_an; }
  Werte zeile(int zeile) const {
    Werte werte{};
    for (const int i : m_an) werte[static_cast<size_t>(i)] = wert(zeile, i);
    werte[Summe] = übrig(werte);
    return werte;
  }

 private:
  double wert(int zeile, int nummer) const {
    if (posten()[nummer].tabelle.isEmpty()) return pauschale(posten()[nummer].feld);
    const double betrag = gelesen(zeile, m_orte[nummer]);
    if (nummer != Wanderung) return betrag;
    return Deutsch::einfach(Dezimalsumme::von({betrag, -gelesen(zeile, m_prämie)}));
  }
  double gelesen(int zeile, const Summenort& ort) const {
    return ZahlLesen(m_summen[ort.auftrag].summe(zeile, ort.feld));
  }
  // For each colony of a year, or for each year of a colony.
  double pauschale(const QString& eingabe) const {
    const int anzahl = m_zeilen.jeVolk() ? m_zeilen.jahre().anzahl() : m_zeilen.völker();
    return Deutsch::einfach(anzahl * ZahlLesen(m_eingaben.text(eingabe)));
  }
  static double übrig(const Werte& w) {
    Dezimalsumme summe;
    for (size_t i = 0; i < Anzahl; ++i) summe.dazu(i < ErsteAusgabe ? w[i] : -w[i]);
    return Deutsch::einfach(summe.wert());
  }

  const Eingaben& m_eingaben;
  const Listenzeilen& m_zeilen;
  QList<int> m_an;
  QHash<int, Summenort> m_orte;
  Summenort m_prämie;
  std::vector<Buchungssummen> m_summen;
};

void spalten(Tabelle& tabelle, const QList<int>& an) {
  for (const int i : an) tabelle.zahlenspalte(QString::number(i), posten()[i].spalte);
  tabelle.zahlenspalte(QString::number(Summe), QStringLiteral("Summe"));
}

void schreiben(Tabelle& tabelle, const QList<int>& an, const Werte& werte) {
  for (const int i : an) tabelle.text(Deutsch::währung(werte[static_cast<size_t>(i)]));
  tabelle.text(Deutsch::währung(werte[Summe]));
  tabelle.zeileEnde();
}

Ergebnis listen(Lauf& lauf) {
  const Listenzeilen zeilen = Listenzeilen::wieGewählt(lauf);
  const Rechner rechner(lauf, zeilen);
  Tabelle tabelle;
  zeilen.kopfspalten(tabelle);
  spalten(tabelle, rechner.an());
  Werte alle{};
  for (int z = 0; z < zeilen.anzahl(); ++z) {
    const Werte werte = rechner.zeile(z);
    for (size_t i = 0; i < alle.size(); ++i)
      alle[i] = Deutsch::einfach(Dezimalsumme::von({alle[i], werte[i]}));
    zeilen.kopf(tabelle, z);
    schreiben(tabelle, rechner.an(), werte);
  }
  if (alle[Summe] != 0) {
    zeilen.schluss(tabelle, QStringLiteral("SUMME"));
    schreiben(tabelle, rechner.an(), alle);
  }
  return {tabelle.fertig(), {}, NichtsGefunden};
}

// ---- form ----

// Nothing chosen means everything.
QString alleWennKeine(const QString&, Eingaben& eingaben) {
  bool eines = false;
  for (int i = 0; i < Anzahl; ++i) eines = eines || eingaben.an(Kästchen, i);
  for (int i = 0; i < Anzahl && !eines; ++i) eingaben.setAn(Kästchen, i, true);
  kontierWennKeine(eingaben);
  return {};
}

void ohneHandelJeVolk(const QString&, Eingaben& eingaben) {
  if (!nachVölkern(eingaben)) return;
  for (const int i : {Verkäufe, Einkäufe}) eingaben.setAn(Kästchen, i, false);
}

Gruppe postenwahl() {
  Gruppe gruppe{QStringLiteral("Zu berücksichtigende Einnahmen / Ausgaben"), {}, 1};
  gruppe.alle = Gruppe::Alle::Knöpfe;
  const QList<Textslot> pauschalen{Textslots.pauschaleEinnahme, Textslots.pauschaleKosten};
  for (int i = 0; i < Anzahl; ++i) {
    const Posten& p = posten()[i];
    gruppe.eingaben += haken(Kästchen, i, p.titel).slot(Textslots.deckungsbeitragPosten, i);
    if (!p.tabelle.isEmpty()) continue;
    const Textslot& slot = i < ErsteAusgabe ? pauschalen[0] : pauschalen[1];
    gruppe.eingaben += betrag(p.feld, {})
                           .slot(slot)
                           .mitVorgabe(QStringLiteral("0,00"))
                           .genannt(p.titel)
                           .rechtsDavon();
  }
  return gruppe;
}

}  // namespace

Beschreibung beschreibung() {
  Beschreibung b;
  b.name = QStringLiteral("TW_Deckungsbeitrag");
  b.titel = QStringLiteral("Deckungsbeiträge");
  b.gruppen = {
      völkerwahl(),
      volkfelder(QStringLiteral("Zu listende Datenfelder (Völker)"),
                 {Zahlslots.listeVolknummer, Zahlslots.listeVolkname, Zahlslots.listeStandort}),
      auswertungNach(), wirtschaftsjahre(), postenwahl()};
  b.befehle = {{QStringLiteral("ok"), QStringLiteral("&Listen"), listen}};
  b.nachLaden = jahreErgänzen;
  b.vorPrüfung = alleWennKeine;
  b.prüfe = [](const QString&, const Eingaben& e) { return wirtschaftsjahrGründe(e); };
  b.nachPrüfung = ohneHandelJeVolk;
  return b;
}

}  // namespace Deckungsbeitrag
