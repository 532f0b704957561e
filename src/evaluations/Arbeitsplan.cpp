#include "evaluations/Arbeitsplan.h"

#include "core/globals.h"
#include "data/helpers.h"
#include "evaluations/Leseliste.h"
#include "evaluations/Tabelle.h"
#include "platform/locale/Deutsch.h"

using namespace Auswertung;
using namespace TZ_Variablen;

namespace Arbeitsplan {

namespace {

constexpr int Woche = 7;
constexpr int VierWochen = 27;  // days that are added to the first one
constexpr int TerminVorhanden = 0;
constexpr int TerminFrei = 1;

struct Leitspalte {
  QString feld;
  QString titel;  // in the lists
};
const QList<Leitspalte>& leitspalten() {
  static const QList<Leitspalte> spalten{
      {"Volknr", "Volknummer"}, {"Volkname", "Volkname"}, {"Standort", "Standort"}};
  return spalten;
}

// ---- the period ----

// The days that are added to the first one are kept as soon as they are chosen.
auto& tage() { return EinstellungenZahl[Zahlslots.arbeitsplanTage]; }

QDate ersterTag(const Eingaben& e) { return DatumLesen(e.text("tdat")); }

void letztenTagZeigen(Eingaben& e) {
  const QDate erster = ersterTag(e);
  if (erster.isValid())
    e.setText("Bezeichnung1", "bis " + Deutsch::datumText(erster.addDays(tage())));
}

void zeitraumVorgeben(Eingaben& e) {
  e.setText("tdat", HeuteText);
  if (tage() < Woche - 1) tage() = Woche - 1;
  letztenTagZeigen(e);
}

// ---- reading ----

QList<Leitspalte> gewählteLeitspalten(const Eingaben& e) {
  QList<Leitspalte> gewählt;
  for (int i = 0; i < leitspalten().size(); ++i)
    if (e.an("kon", i)) gewählt += leitspalten().at(i);
  return gewählt;
}

QString sortierung(const Eingaben& e) {
  switch (e.wahl("optisort")) {
    case 0:
      return "Volknr";
    case 1:
      return "Volkname, Volknr";
    case 2:
      return "Standort, Volknr";
    default:
      return "Datum";
  }
}

// Datum, the leading columns, Termin. What the sort leaves open goes by day and entry.
Daten termine(const Lauf& lauf) {
  QString felder = "Datum";
  for (const Leitspalte& s : gewählteLeitspalten(lauf.eingaben)) felder += ", " + s.feld;
  const QDate erster = ersterTag(lauf.eingaben);
  return gelesen(lauf,
                 "select " + felder +
                     ", Termin from Bienenvolk, Termine where Volk_ID = Bienenvolk.ID and "
                     "Erledigt = 'N' and Akt_im_Bestand = 'X' and Datum >= ? and Datum <= ? "
                     "order by " +
                     sortierung(lauf.eingaben) + ", Datum, Termine.ID",
                 {erster, erster.addDays(tage())});
}

// ---- the two lists ----

Ausgabeliste terminliste(const Daten& termine) {
  QStringList titel;
  for (int i = 0; i < termine->spalten(); ++i) {
    const QString& feld = termine->spalte(i).name;
    titel += feld == "Volknr" ? QString("Volknummer") : feld;
  }
  return Ausgabeliste(termine, titel);
}

// The table of days: a narrow column for each, four rows on top that say which day it is.
class Tagetabelle {
 public:
  explicit Tagetabelle(const Eingaben& e)
      : m_erster(ersterTag(e)),
        m_tage(tage() + 1),
        m_leitspalten(gewählteLeitspalten(e)),
        m_vorhanden(e.text("t", TerminVorhanden)),
        m_frei(e.text("t", TerminFrei)) {
    for (const Leitspalte& s : m_leitspalten) m_tabelle.spalte(s.feld.toLower(), s.titel);
    for (int i = 1; i <= m_tage; ++i) m_tabelle.spalte(QString::number(i), QString::number(i));
    m_tabelle.spalte("termin", "Termin");
  }

  Ausgabeliste aus(const Datenblock& termine) {
    köpfe();
    for (int zeile = 0; zeile < termine.zeilen(); ++zeile) dazu(termine, zeile);
    return m_tabelle.fertig();
  }

 private:
  void köpfe() {
    static const QStringList Wochentage{"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"};
    kopf([](QDate tag) { return Wochentage.at(tag.dayOfWeek() % Woche); });
    kopf([](QDate tag) { return Deutsch::datumText(tag).left(2); });
    kopf([](QDate tag) { return Deutsch::datumText(tag).mid(3, 2); });
    kopf([](QDate tag) { return Deutsch::datumText(tag).mid(8, 2); });
  }

  template <class Tagestext>
  void kopf(Tagestext text) {
    for (int i = 0; i < m_leitspalten.size(); ++i) m_tabelle.leer();
    for (int i = 0; i < m_tage; ++i) m_tabelle.text(text(m_erster.addDays(i)));
    m_tabelle.zeileEnde();
  }

  void dazu(const Datenblock& termine, int zeile) {
    const int letzte = termine.spalten() - 1;
    for (int i = 1; i < letzte; ++i) zelleLesen(m_tabelle.zelle(), termine, zeile, i);
    const qint64 tag = m_erster.daysTo(termine.wert(zeile, 0).toDate());
    for (int i = 0; i < m_tage; ++i) m_tabelle.text(i == tag ? m_vorhanden : m_frei);
    zelleLesen(m_tabelle.zelle(), termine, zeile, letzte);
    m_tabelle.zeileEnde();
  }

  QDate m_erster;
  int m_tage;
  QList<Leitspalte> m_leitspalten;
  QString m_vorhanden;
  QString m_frei;
  Tabelle m_tabelle;
};

Ergebnis ergebnis(Lauf& lauf, bool tabelle) {
  const Daten zeilen = termine(lauf);
  if (zeilen->zeilen() == 0)
    return {.leer = "Es wurden lt. den aktuellen Einstellungen keine Termine gefunden!"};
  return {.liste = tabelle ? Tagetabelle(lauf.eingaben).aus(*zeilen) : terminliste(zeilen)};
}

// ---- checks ----

// The marks of the table: never empty, never the same.
QString zeichenRichten(const QString& befehl, Eingaben& e) {
  if (befehl != "ok_1") return {};
  if (e.text("t", TerminVorhanden).isEmpty()) e.setText("t", TerminVorhanden, "X");
  if (e.text("t", TerminFrei).isEmpty()) e.setText("t", TerminFrei, " ");
  if (e.text("t", TerminVorhanden) != e.text("t", TerminFrei)) return {};
  e.setText("t", TerminVorhanden, "X");
  e.setText("t", TerminFrei, " ");
  return "Sie dürfen keinesfalls für die vorhandenen und freien Termine das gleiche Zeichen "
         "verwenden. Tova ersetzt deshalb Ihre Angaben durch Standard-Werte.";
}

QStringList gründe(const QString& befehl, const Eingaben& e) {
  QStringList gründe;
  if (!ersterTag(e).isValid())
    gründe += "...die Berechnungszeiträume falsche Datumangaben enthalten.";
  if (befehl == "ok_1" && tage() > VierWochen)
    gründe +=
        "...der tabellarische Arbeitsplan kann nur für 1 bis 4 Wochen (nicht für 8 Wochen) "
        "erstellt werden.";
  return gründe;
}

// ---- description ----

struct Zeitspanne {
  QString titel;
  int wochen;
};
const QList<Zeitspanne>& zeitspannen() {
  static const QList<Zeitspanne> spannen{
      {"&1 Woche", 1}, {"&2 Wochen", 2}, {"&3 Wochen", 3}, {"&4 Wochen", 4}, {"&8 Wochen", 8}};
  return spannen;
}

Gruppe zeitraumgruppe() {
  Gruppe gruppe{"Berechnungszeitraum ab...", {datum("tdat", {})}};
  for (int i = 0; i < zeitspannen().size(); ++i)
    gruppe.eingaben += knopf(Eingaben::glied("woche", i), zeitspannen().at(i).titel);
  gruppe.nebeneinander = static_cast<int>(zeitspannen().size());
  gruppe.eingaben += anzeige("Bezeichnung1");
  return gruppe;
}

QList<Gruppe> gruppen() {
  const QStringList texte{"Volknummer", "Volkname", "Aktueller Standort"};
  const QList<Zahlslot> ablage{Zahlslots.tastenton, Zahlslots.arbeitsplanVolkname,
                               Zahlslots.arbeitsplanStandort};
  Gruppe felder{"Zu Listende Datenfelder", {}};
  for (int i = 0; i < ablage.size(); ++i)
    felder.eingaben += haken("kon", i, texte.at(i)).slot(ablage.at(i));
  constexpr int OhneGrenze = 0;
  const auto zeichen = [](int index, const QString& titel, const Textslot& ablage) {
    return text(Eingaben::glied("t", index), titel, OhneGrenze).slot(ablage);
  };
  return {
      zeitraumgruppe(),
      felder,
      {"Sortierung nach...", {optionen("optisort", texte).slot(Zahlslots.webzeilen).ohneZwang()}},
      {{},
       {zeichen(TerminVorhanden, "Anzeige bei vorhandenem Termin (nur tabellarische Liste)",
                Textslots.terminZeichen),
        zeichen(TerminFrei, "Anzeige bei freiem Termin (nur tabellarische Liste)",
                Textslots.freiZeichen)}}};
}

Befehl zeitspannenbefehl(int index) {
  return {.name = Eingaben::glied("woche", index), .titel = {}, .tat = [index](Eingaben& e) {
            tage() = static_cast<qint16>(zeitspannen().at(index).wochen * Woche - 1);
            letztenTagZeigen(e);
          }};
}

QList<Befehl> befehle() {
  QList<Befehl> alle{
      {.name = "ok_0",
       .titel = "Termin-&Liste",
       .lauf = [](Lauf& lauf) { return ergebnis(lauf, false); }},
      {.name = "ok_1",
       .titel = "&Tabellarische Liste",
       .lauf = [](Lauf& lauf) { return ergebnis(lauf, true); }},
      {.name = "comarbplanoptionen",
       .titel = "&Arbeitsplanoptionen",
       .öffnet = "XV_Arbeitsplanoptionen",
       .danach = "Falls Sie Änderungen in den Arbeitsplanoptionen vorgenommen haben, dann "
                 "schließen Sie bitte dieses Modul und öffnen Sie es wieder, damit der "
                 "Datenbestand wieder geladen wird!"}};
  for (int i = 0; i < zeitspannen().size(); ++i) alle += zeitspannenbefehl(i);
  return alle;
}

}  // namespace

Beschreibung beschreibung() {
  Beschreibung b{.name = "TW_Arbeitsplan",
                 .titel = "Arbeitspläne berechnen (nur volkabhängige Termine)",
                 .gruppen = gruppen(),
                 .befehle = befehle()};
  b.kopf = "Die Arbeitspläne können nicht berechnet werden, weil...";
  b.nachLaden = zeitraumVorgeben;
  b.beiÄnderung = [](const QString& name, Eingaben& e) {
    if (name == "tdat") letztenTagZeigen(e);
  };
  b.vorPrüfung = zeichenRichten;
  b.prüfe = gründe;
  return b;
}

}  // namespace Arbeitsplan
