#include "Arbeitskalender.h"

#include <algorithm>
#include <numeric>

#include "core/globals.h"
#include "planning/Jahreslauf.h"
#include "planning/Optionen.h"
#include "planning/Starttermine.h"
#include "planning/Terminverwaltung.h"
#include "platform/locale/Deutsch.h"

using TZ_Variablen::DB;

namespace {

constexpr int offeneTage = 9;  // so far back something may still be undone

// Works as on another day; the old day comes back at the end of the scope.
class AmTag {
 public:
  explicit AmTag(QDate tag) : m_vorher(TZ_Variablen::HeuteText) {
    TZ_Variablen::HeuteText = Deutsch::datumText(tag);
  }
  ~AmTag() { TZ_Variablen::HeuteText = m_vorher; }
  AmTag(const AmTag&) = delete;
  AmTag& operator=(const AmTag&) = delete;

 private:
  QString m_vorher;
};

void verlange(const QString& ablehnung) {
  if (!ablehnung.isEmpty()) throw Datenbankfehler(Datenbankfehler::Art::Allgemein, ablehnung);
}

// Options of a new database that this beekeeper does without, or wants otherwise: of an option only
// the name can be changed.
const QStringList entfernt = {
    "Winterkontrolle",     "Beuten bauen",       "Erweiterungskontrolle",  "Brutkontrolle",
    "Jahreserstkontrolle", "Frühjahrskontrolle", "Drohnenbrutentnahme",    "Varroakontrolle",
    "Fütterung",           "Einwinterung",       "Varroa-Winterbekämpfung"};

// Arbeitsart, from, to, interval, for each colony, settled by the booking, by the kind of work.
const Optionseingabe neue[] = {
    {"Frühjahrskontrolle", "10.03", "30.04", "21", "J", "", "Frühjahrskontrolle"},
    {"Honigraum aufsetzen", "10.04", "10.04", "0", "J", "", "Honigraum aufsetzen"},
    {"Stockwaage ablesen", "01.04", "30.09", "30", "N", "", ""},
    {"Drohnenbrutentnahme", "01.05", "30.06", "14", "J", "", "Drohnenbrutentnahme"},
    {"Varroakontrolle", "01.05", "30.09", "21", "J", "", ""},
    {"In die Linde wandern", "10.06", "15.06", "0", "J", "Wanderung", ""},
    {"Königinnen zeichnen", "25.06", "25.06", "0", "J", "Königinwechsel", ""},
    {"Sommerbehandlung", "01.08", "10.08", "0", "J", "Behandlung", ""},
    {"Fütterung", "01.09", "12.09", "0", "J", "", "Fütterung"},
    {"Einwinterung", "05.10", "20.10", "0", "J", "", "Einwinterung"},
    {"Mäusegitter anbringen", "15.10", "15.10", "0", "J", "", ""},
    {"Varroa-Winterbekämpfung", "10.12", "24.12", "0", "J", "Behandlung", ""},
    {"Völkerzahl melden", "15.01", "15.01", "0", "N", "", ""},
    {"Gläser und Deckel bestellen", "20.04", "20.04", "0", "N", "", ""},
    {"Honig abfüllen", "15.06", "15.09", "30", "N", "", ""},
};

// The first day of work with a year's calendar.
QDate kalendertag(int jahr, QDate saisonstart, QDate heute) {
  return std::min(std::max(QDate(jahr, 1, 2), saisonstart), heute);
}

}  // namespace

void Arbeitskalender::optionenEinrichten() {
  const AmTag silvester(QDate(m_beginn - 1, 12, 31));
  for (const QString& arbeitsart : entfernt)
    optionLöschen(DB, arbeitsart, [&] {
      DB.Execute("delete from Arbeitsplanoptionen where Arbeitsart = ?", {arbeitsart});
    });
  for (const Optionseingabe& option : neue) {
    verlange(optionPrüfen(option));
    verlange(optionsnamePrüfen(DB, option[0], 0));
    optionAnlegen(DB, option);
  }
  const Daten waben =
      DB.Lesen("select ID from Arbeitsplanoptionen where Arbeitsart = 'Waben schmelzen'");
  optionUmbenennen(DB, waben->ganzzahl(0, 0), "Altwaben einschmelzen", "Waben schmelzen");
}

void Arbeitskalender::jahrBeginnen(int jahr, QDate saisonstart) {
  if (jahr < m_beginn) return;
  const QDate beginn = kalendertag(jahr, saisonstart, m_heute);
  const AmTag neujahr(beginn);
  VolkTermineSetzen(DB, {[](const QString&, bool) { return true; }, [](const QString&) {}});
  DB.Sammelschreiben([&] {
    const Daten ohneVolk = DB.Lesen(
        QString("select Arbeitsart, Startzeitraum from Arbeitsplanoptionen where Volkabhängig = "
                "'N' order by ID"));
    for (int i = 0; i < ohneVolk->zeilen(); ++i) {
      const auto tag =
          Deutsch::datum(QStringLiteral("%1.%2").arg(ohneVolk->anzeige(i, 1)).arg(jahr));
      if (tag && *tag >= beginn) eintragen(*tag, ohneVolk->anzeige(i, 0));
    }
    for (int monat = 1; monat <= 11; ++monat) {
      const QDate erster(jahr, monat, 1);
      const QDate freitag = erster.addDays((Qt::Friday - erster.dayOfWeek() + 7) % 7);
      if (freitag >= beginn) eintragen(freitag, "Imkerversammlung");
    }
  });
}

void Arbeitskalender::jahrAbschließen(int jahr) {
  if (jahr < m_beginn || QDate(jahr, 12, 31) >= m_heute) return;
  const AmTag silvester(QDate(jahr, 12, 31));
  Starttermine::bisHeuteErledigen(DB);
}

void Arbeitskalender::bisHeute() {
  {
    const AmTag neulich(m_heute.addDays(-offeneTage));
    Starttermine::bisHeuteErledigen(DB);
  }
  DB.Sammelschreiben([&] {
    standErledigen();
    einzelneErledigen();
    ausstehendesEintragen();
  });
}

// At the stand with the most overdue swarm checks they were all made yesterday; the next ones
// follow from that day.
void Arbeitskalender::standErledigen() {
  const Daten gruppen = Starttermine::gruppiert(DB);
  int meiste = -1;
  for (int i = 0; i < gruppen->zeilen(); ++i)
    if (gruppen->wert(i, 1).toDate() < m_heute &&
        (meiste < 0 || gruppen->ganzzahl(i, 3) > gruppen->ganzzahl(meiste, 3)))
      meiste = i;
  if (meiste < 0) return;
  const QString gestern = Deutsch::datumText(m_heute.addDays(-1));
  const Starttermine::Standortauftrag auftrag{gruppen->anzeige(meiste, 2),
                                              gruppen->anzeige(meiste, 0), gestern};
  const Daten liste = Starttermine::liste(DB);
  std::vector<int> ordnung(static_cast<size_t>(liste->zeilen()));
  std::iota(ordnung.begin(), ordnung.end(), 0);
  Starttermine::amStandortErledigen(DB, auftrag, liste, ordnung, {gestern, true});
}

// Two of three of what was due have been ticked off since.
void Arbeitskalender::einzelneErledigen() {
  const Daten liste = Starttermine::liste(DB);
  std::vector<qint64> erledigt;
  for (int i = 0; i < liste->zeilen(); ++i)
    if (liste->wert(i, 0).toDate() < m_heute && m_zufall.chance(67))
      erledigt.push_back(liste->ganzzahl(i, liste->spaltenNummer(u"ID")));
  if (!erledigt.empty()) Starttermine::markierteErledigen(DB, erledigt);
}

void Arbeitskalender::ausstehendesEintragen() {
  const bool saison = m_heute.month() >= 4 && m_heute.month() <= 8;
  eintragen(m_heute.addDays(-2), "Honigetiketten drucken");
  eintragen(m_heute, "Regenrinne richten");
  eintragen(m_heute.addDays(4), "Steuerberater anrufen");
  eintragen(m_heute.addDays(11), saison ? "Schulklasse zu Besuch" : "Vortrag Volkshochschule");
  const Daten völker =
      DB.Lesen("select top 3 Volknr from Bienenvolk where Akt_im_Bestand = 'X' order by ID");
  const QStringList arbeiten =
      saison ? QStringList{"Drohnenwabe umhängen", "Ableger bilden", "Beute tauschen"}
             : QStringList{"Futter wiegen", "Gemüll untersuchen", "Deckel abdichten"};
  for (int i = 0; i < völker->zeilen(); ++i)
    eintragen(m_heute.addDays(3 * i - 1), arbeiten[i], völker->anzeige(i, 0));
  amStandEintragen(m_heute.addDays(6),
                   saison ? "Gras mähen, Tränke füllen" : "Fluglöcher freiräumen");
}

// By site an appointment comes to gone colonies too, so it is entered where all are still there.
void Arbeitskalender::amStandEintragen(QDate tag, const QString& termin) {
  const Daten orte = DB.Lesen(
      "select Standort, count(*) as Anzahl from Bienenvolk where Akt_im_Bestand = 'X' group by "
      "Standort order by Standort");
  for (int i = 0; i < orte->zeilen(); ++i) {
    const QString ort = orte->anzeige(i, 0);
    const Daten alle = DB.Lesen("select count(*) as n from Bienenvolk where Standort = ?", {ort});
    if (alle->ganzzahl(0, 0) != orte->ganzzahl(i, 1)) continue;
    Terminverwaltung::amStandortEintragen(DB, {Deutsch::datumText(tag), termin, "N", {}, ort});
    return;
  }
}

void Arbeitskalender::eintragen(QDate tag, const QString& termin, const QString& volknr) {
  const Terminverwaltung::Eingabe eingabe{Deutsch::datumText(tag), termin, "N", volknr, {}};
  const Terminverwaltung::Prüfung prüfung = Terminverwaltung::prüfen(DB, eingabe);
  verlange(prüfung.gründe.join(TZ_Variablen::CRLF));
  if (!Terminverwaltung::existiert(DB, eingabe, prüfung.volkId))
    Terminverwaltung::speichern(DB, eingabe, prüfung.volkId);
}
