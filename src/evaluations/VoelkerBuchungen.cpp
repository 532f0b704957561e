#include "evaluations/VoelkerBuchungen.h"

#include <QMap>
#include <algorithm>

#include "data/helpers.h"
#include "data/schema.h"
#include "evaluations/Buchungsanweisung.h"
#include "evaluations/Ereignisbericht.h"
#include "evaluations/Tabelle.h"

using namespace Auswertung;

namespace {

const QString Felder = QStringLiteral("li");
const QString Ereignisse = QStringLiteral("konereignis");
const QString Leerzeile = QStringLiteral("tierleer");

// The booking tables of which fields are listed.
QList<int> gewählteTabellen(const Eingaben& eingaben) {
  QList<int> alle;
  for (int i = 0; i < buchungstabellen().size(); ++i)
    if (!eingaben.gewählt(Felder, i).isEmpty()) alle += i;
  return alle;
}

// ---- table by table ----

// The number of the colony leads the fields that the list shows, so that a colony's rows are known
// where it isn't listed.
QString anweisung(const Eingaben& eingaben, int nummer) {
  const QString& tabelle = buchungstabellen().at(nummer);
  return Buchungsanweisung::auswahl(eingaben, tabelle, eingaben.gewählt(Felder, nummer)) +
         QStringLiteral(", Bienenvolk.Volknr as Volkwechsel") +
         Buchungsanweisung::herkunft(eingaben, tabelle) +
         QStringLiteral(" order by Bienenvolk.Volknr, ") + tabelle + QStringLiteral(".Datum, ") +
         tabelle + QStringLiteral(".ID");
}

constexpr int Schritt = 2000;  // rows between two reports of progress

class Tabellenliste {
 public:
  explicit Tabellenliste(Lauf& lauf)
      : m_lauf(lauf),
        m_nurLetzte(lauf.eingaben.wahl(QStringLiteral("optibuch")) == 2),
        m_mitLeerzeilen(lauf.eingaben.an(Leerzeile)) {}

  Ausgabeliste erstellen() {
    const int tabellen = static_cast<int>(buchungstabellen().size());
    QMap<int, Daten> gelesen;
    for (int nummer = 0; nummer < tabellen; ++nummer) {
      if (gewählteTabellen(m_lauf.eingaben).contains(nummer)) {
        const Daten buchungen = m_lauf.db.Lesen(anweisung(m_lauf.eingaben, nummer));
        if (buchungen->zeilen() > 0) gelesen[nummer] = buchungen;
      }
      if (m_lauf.fortschritt) m_lauf.fortschritt(nummer + 1, tabellen);
    }
    spalten(gelesen.keys());
    for (auto t = gelesen.cbegin(); t != gelesen.cend(); ++t) tabelle(t.key(), *t.value());
    return m_liste.fertig();
  }

 private:
  // As many as the widest of the tables with rows has. What stands in them is told by the row above
  // each.
  void spalten(const QList<int>& tabellen) {
    const QString kontier = QStringLiteral("kontier");
    if (m_lauf.eingaben.an(kontier, 0))
      m_liste.spalte(QStringLiteral("volknr"), QStringLiteral("Volknr"));
    if (m_lauf.eingaben.an(kontier, 1))
      m_liste.spalte(QStringLiteral("volkname"), QStringLiteral("Volkname"));
    qsizetype felder = 0;
    for (const int nummer : tabellen)
      felder = std::max(felder, m_lauf.eingaben.gewählt(Felder, nummer).size());
    for (qsizetype i = 1; i <= felder; ++i)
      m_liste.spalte(QStringLiteral("feld%1").arg(i), QStringLiteral("Feld %1").arg(i));
  }

  void tabelle(int nummer, const Datenblock& buchungen) {
    m_liste.zeile({buchungstabellen().at(nummer).toUpper()});
    const int felder = buchungen.spalten() - 1;  // the last one is not shown
    QStringList namen;
    for (int i = 0; i < felder; ++i) namen += buchungen.spalte(i).name.toUpper();
    m_liste.zeile(namen);
    int davor = -1;
    for (int zeile = 0; zeile < buchungen.zeilen(); ++zeile) {
      if (m_nurLetzte && zeile + 1 < buchungen.zeilen() &&
          gleichesVolk(buchungen, zeile, zeile + 1))
        continue;
      if (m_mitLeerzeilen && davor >= 0 && !gleichesVolk(buchungen, davor, zeile))
        m_liste.zeileEnde();
      if (m_lauf.fortschritt && zeile % Schritt == Schritt - 1)
        m_lauf.fortschritt(nummer + 1, static_cast<int>(buchungstabellen().size()));
      for (int i = 0; i < felder; ++i) m_liste.text(zelle(buchungen, zeile, i));
      m_liste.zeileEnde();
      davor = zeile;
    }
    for (int i = 0; i < (m_mitLeerzeilen ? 3 : 2); ++i) m_liste.zeileEnde();
  }

  static bool gleichesVolk(const Datenblock& buchungen, int eine, int andere) {
    const int spalte = buchungen.spalten() - 1;
    return buchungen.rohtext(eine, spalte) == buchungen.rohtext(andere, spalte);
  }

  static QString zelle(const Datenblock& buchungen, int zeile, int spalte) {
    const Feldtyp typ = buchungen.spalte(spalte).typ;
    const QVariant wert = buchungen.wert(zeile, spalte);
    if (typ == Feldtyp::Währung || typ == Feldtyp::Einfach) return ZahlFormat(ZahlLesen(wert), 2);
    return TextLesen(wert);
  }

  Lauf& m_lauf;
  bool m_nurLetzte;
  bool m_mitLeerzeilen;
  Auswertung::Tabelle m_liste;
};

Ergebnis listen(Lauf& lauf) {
  Ergebnis ergebnis;
  ergebnis.liste =
      lauf.eingaben.an(Ereignisse) ? Ereignisbericht::liste(lauf) : Tabellenliste(lauf).erstellen();
  ergebnis.leer = Buchungsanweisung::nichtsGefunden();
  return ergebnis;
}

// ---- description ----

// A list of fields for each table; the notes' choice isn't kept.
QList<Gruppe> feldlisten() {
  constexpr int JeSpalte = 4;
  const QList<Textslot> ablage{Textslots.stockkarteFelder,    Textslots.honigernteFelder,
                               Textslots.wachsernteFelder,    Textslots.pollenernteFelder,
                               Textslots.sonstigeernteFelder, Textslots.arbeitenFelder,
                               Textslots.wanderungFelder,     Textslots.gewichtsmessungFelder,
                               Textslots.behandlungFelder,    Textslots.königinwechselFelder};
  QList<Gruppe> gruppen;
  for (int i = 0; i < buchungstabellen().size(); ++i) {
    const QString& tabelle = buchungstabellen().at(i);
    Eingabe liste =
        merkliste(Eingaben::glied(Felder, i), {}, Buchungsanweisung::felderVon(tabelle));
    if (i < ablage.size()) liste = liste.slot(ablage.at(i));
    gruppen.append({tabelle, {liste}, i / JeSpalte, 1, Gruppe::Alle::Ja});
  }
  gruppen.append({QStringLiteral("Zu listende Datenfelder (Buchungen)"),
                  {},
                  static_cast<int>(buchungstabellen().size()) / JeSpalte,
                  1,
                  Gruppe::Alle::Knöpfe});
  return gruppen;
}

Gruppe darstellung(int spalte) {
  return {QStringLiteral("Darstellung"),
          {haken(Ereignisse, QStringLiteral("Ereignisbericht (nur bestimmte Datenfelder je Volk)"))
               .slot(Zahlslots.ereignisbericht),
           haken(QStringLiteral("kontiergruppe"),
                 QStringLiteral("Die Daten beim Ereingisbericht nach Völkern gruppieren"))
               .slot(Zahlslots.ereignisseNachVölkern),
           haken(Leerzeile, QStringLiteral("Zwischen den Völkern eine Leerzeile einfügen"))
               .slot(Zahlslots.buchungenLeerzeile)},
          spalte};
}

}  // namespace

namespace VölkerBuchungen {

Beschreibung beschreibung() {
  constexpr int Rechts = 3;
  Beschreibung b;
  b.name = QStringLiteral("TW_Völker_Buchungen");
  b.titel = QStringLiteral("Völker (Buchungen) Erweitert");
  b.gruppen = feldlisten();
  b.gruppen += {völkerwahl(Rechts),
                buchungsauswahl(QStringLiteral("Buchungsauswahl der Bewegungsdaten"),
                                buchungsauswahlTexte(), Zahlslots.buchungsauswahl, Rechts),
                volkfelder(QStringLiteral("Zu listende Datenfelder (Völker)"),
                           {Zahlslots.buchungenVolknummer, Zahlslots.buchungenVolkname}, Rechts),
                darstellung(Rechts)};
  b.prüfe = [](const QString&, const Eingaben& eingaben) {
    return Buchungsanweisung::gründe(
        eingaben, !eingaben.an(Ereignisse) && gewählteTabellen(eingaben).isEmpty());
  };
  b.befehle = {{QStringLiteral("ok"), QStringLiteral("&Listen"), listen}};
  return b;
}

}  // namespace VölkerBuchungen
