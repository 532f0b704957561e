#include "evaluations/forms/Auswertungsformular.h"

#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QSplitter>
#include <QVBoxLayout>

#include "core/main_list.h"
#include "data/helpers.h"
#include "evaluations/forms/Auswertungseingaben.h"
#include "output/Textausgabe.h"
#include "output/forms/TA_Textausgabe.h"
#include "output/forms/TA_Zwischenliste.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Fortschrittsbalken.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/controls/Rollbereich.h"

using Auswertung::Befehl;
using Auswertung::Beschreibung;
using Auswertung::Eingaben;
using Auswertung::Ergebnis;

namespace {

const QString Ergebnistitel = QStringLiteral("Ergebnis");
const QString Völkerwahl = QStringLiteral("optitieraus");

}  // namespace

Auswertungsformular::Auswertungsformular(Beschreibung beschreibung, QWidget* öffner)
    : Datenformular(beschreibung.name, beschreibung.titel, öffner),
      m_beschreibung(std::move(beschreibung)) {
  aufbauen();
}

// ---- layout ----

void Auswertungsformular::aufbauen() {
  m_meter = new Fortschrittsbalken;
  const QList<QWidget*> fuß = fußBauen();
  zusammensetzen(inhaltBauen(), {.links = fuß, .schließen = "beenden"});
  QList<QWidget*> folge = m_eingaben->tabfolge();
  if (m_ergebnis != nullptr) folge += m_ergebnis;
  setTabfolge(folge);
  standardFestlegen();
  setWunschgröße(m_beschreibung.zeichen, m_beschreibung.zeilen);
}

QWidget* Auswertungsformular::inhaltBauen() {
  m_eingaben = new Auswertungseingaben(
      m_beschreibung.gruppen, this, [this](const QString& name) { geändert(name); },
      [this](const QString& name) { befehl(name); });
  QList<Bauteile::Teil> teile;
  if (m_beschreibung.ergebnisliste.isEmpty())
    teile.append({new Rollbereich(m_eingaben), 1});
  else
    teile.append(Bauteile::Teil{Bauteile::teiler("teiler", {new Rollbereich(m_eingaben), 1, 400},
                                                 {ergebnisBauen(), 2, 600}),
                                1});
  if (!m_beschreibung.hinweis.isEmpty()) {
    auto* hinweis = Bauteile::benannt(new QLabel(m_beschreibung.hinweis), "hinweis");
    hinweis->setWordWrap(true);
    teile.append({hinweis});
  }
  teile.append({m_meter});
  return Bauteile::untereinander(teile);
}

QWidget* Auswertungsformular::ergebnisBauen() {
  m_ergebnistitel = Bauteile::benannt(Bauteile::überschrift(Ergebnistitel), "ergebnistitel");
  m_ergebnis = Bauteile::benannt(new Grid, m_beschreibung.ergebnisliste);
  m_ergebnis->setAccessibleName(Ergebnistitel);
  return Bauteile::untereinander({{m_ergebnistitel}, {m_ergebnis, 1}});
}

QList<QWidget*> Auswertungsformular::fußBauen() {
  QList<QWidget*> knöpfe;
  for (const Befehl& b : m_beschreibung.befehle) {
    if (b.titel.isEmpty()) continue;
    auto* knopf = Bauteile::knopf(b.titel, b.name, b.hinweis);
    Ereignis::wenn(knopf, &QPushButton::clicked, this, [this, name = b.name] { befehl(name); });
    knöpfe += knopf;
  }
  return knöpfe;
}

// What Enter presses: the first command of the foot, else the first run among the inputs.
void Auswertungsformular::standardFestlegen() {
  for (const Befehl& b : m_beschreibung.befehle) {
    auto* knopf = findChild<QPushButton*>(b.name);
    if (knopf == nullptr || (b.titel.isEmpty() && !b.lauf)) continue;
    return knopf->setDefault(true);
  }
}

// ---- opening and closing ----

void Auswertungsformular::füllen() {
  const Ereignis::Sanduhr sanduhr;
  m_schließtNachher = false;
  m_eingaben->tabfolge().first()->setFocus();  // a date that still has it would choose its period
  Eingaben e;
  m_eingaben->listenFüllen(m_db, e);
  Auswertung::laden(m_beschreibung, e);
  m_eingaben->zeigen(e);
  // Lists that go by another input are right only now that it has its value.
  m_eingaben->lesen(e);
  m_eingaben->listenFüllen(m_db, e);
  Auswertung::laden(m_beschreibung, e);
  m_eingaben->zeigen(e);
  merken(e);
  volkZeigen();
  if (m_ergebnis == nullptr) return;
  m_ergebnis->setDaten({});
  m_ergebnistitel->setText(Ergebnistitel);
}

void Auswertungsformular::done(int ergebnis) {
  if (m_meter->läuft()) {
    m_schließtNachher = true;
    return;
  }
  if (QWidget* zuletzt = focusWidget()) zuletzt->clearFocus();  // what was typed is completed
  Auswertung::sichern(m_beschreibung, eingaben());
  Datenformular::done(ergebnis);
  if (m_ergebnis != nullptr) m_ergebnis->setDaten({});
}

// ---- inputs ----

Eingaben Auswertungsformular::eingaben() const {
  Eingaben e = m_angebot;
  m_eingaben->lesen(e);
  const Hauptliste& liste = *hauptliste();
  const int zeile = liste.aktuelleZeile();
  e.volk = zeile < 0 ? 0 : liste.zelle(zeile, "ID").toLongLong();
  return e;
}

void Auswertungsformular::volkZeigen() {
  const Hauptliste& liste = *hauptliste();
  const int zeile = liste.aktuelleZeile();
  QString titel = QStringLiteral("Aktuelles Volk");
  constexpr int Aktuelles = 4;
  if (zeile >= 0 && eingaben().wahl(Völkerwahl) == Aktuelles)
    titel += u' ' + liste.zelle(zeile, "Volknr") + " / " + liste.zelle(zeile, "Volkname");
  m_eingaben->setVolk(zeile >= 0, titel);
}

void Auswertungsformular::geändert(const QString& name) {
  if (name == Völkerwahl) volkZeigen();
  Eingaben e = eingaben();
  if (e == m_stand) return;  // left as it was
  const Eingaben vorher = e;
  m_eingaben->listenFüllen(m_db, e, name);
  m_angebot = e;
  m_eingaben->lesen(e);
  if (m_beschreibung.beiÄnderung) m_beschreibung.beiÄnderung(name, e);
  if (e != vorher) m_eingaben->zeigen(e);
  merken(e);
}

void Auswertungsformular::merken(const Eingaben& e) {
  m_angebot = e;
  m_stand = eingaben();
}

// ---- commands ----

void Auswertungsformular::befehl(const QString& name) {
  if (name.startsWith(QStringLiteral("nächster_"))) {
    VolkWechseln(name.endsWith(u'1') ? 1 : 0);
    return volkZeigen();
  }
  const Befehl* b = m_beschreibung.befehl(name);
  if (b == nullptr) return;
  if (b->lauf) return laufe(*b);
  if (b->übergibt) {
    if (m_ergebnis->zeilen() > 0) return zwischenlisteZeigen(this, *m_ergebnis);
    return Meldungen::Hinweis(Auswertung::NichtsGefunden, this);
  }
  tun(*b);
}

void Auswertungsformular::tun(const Befehl& b) {
  if (!b.öffnet.isEmpty()) {
    öffnen(b.öffnet);
    if (!b.danach.isEmpty()) Meldungen::Hinweis(b.danach, this);
    return;
  }
  if (!b.frage.isEmpty() && !Meldungen::Frage(b.frage, Meldungen::Vorgabe::Ja, this)) return;
  Eingaben e = eingaben();
  b.tat(e);
  m_eingaben->zeigen(e);
  merken(e);
}

bool Auswertungsformular::bereit(const QString& befehl, Eingaben& e) {
  const Beschreibung& b = m_beschreibung;
  if (b.vorPrüfung) {
    const QString hinweis = b.vorPrüfung(befehl, e);
    m_eingaben->zeigen(e);
    if (!hinweis.isEmpty()) Meldungen::Hinweis(hinweis, this);
  }
  QString ablehnung = b.verweigert ? b.verweigert(befehl, e) : QString();
  if (ablehnung.isEmpty() && b.prüfe) ablehnung = Auswertung::ablehnung(b, b.prüfe(befehl, e));
  if (!ablehnung.isEmpty()) {
    Meldungen::Hinweis(ablehnung, this);
    return false;
  }
  if (!b.nachPrüfung) return true;
  b.nachPrüfung(befehl, e);
  m_eingaben->zeigen(e);
  return true;
}

void Auswertungsformular::laufe(const Befehl& b) {
  if (m_meter->läuft()) return;
  Eingaben e = eingaben();
  if (!bereit(b.name, e)) return;
  Ergebnis ergebnis;
  const auto danach = qScopeGuard([this] {
    if (m_schließtNachher) QMetaObject::invokeMethod(this, &QDialog::reject, Qt::QueuedConnection);
  });
  m_meter->laufen([&](const Fortschritt& fortschritt) {
    Auswertung::Lauf lauf{m_db, e, fortschritt};
    ergebnis = b.lauf(lauf);
  });
  if (m_schließtNachher) return;
  if (m_ergebnis != nullptr)
    ergebnisZeigen(ergebnis);
  else
    übergeben(ergebnis);
}

void Auswertungsformular::übergeben(const Ergebnis& ergebnis) {
  if (ergebnis.text) {
    Textausgabe::listeSchreiben(*ergebnis.text);
    return TA_Textausgabe::öffnen(this);
  }
  if (ergebnis.liste && ergebnis.liste->zeilen() > 0)
    return zwischenlisteZeigen(this, *ergebnis.liste, m_meter);
  Meldungen::Hinweis(ergebnis.leer.isEmpty() ? Auswertung::NichtsGefunden : ergebnis.leer, this);
}

void Auswertungsformular::ergebnisZeigen(const Ergebnis& ergebnis) {
  m_ergebnistitel->setText(ergebnis.titel.isEmpty() ? Ergebnistitel : ergebnis.titel);
  m_ergebnis->setDaten({});
  if (!ergebnis.liste) return;
  const Ausgabeliste& liste = *ergebnis.liste;
  for (int i = 0; i < liste.spalten(); ++i)  // the widths go by the captions
    m_ergebnis->setÜberschrift(liste.daten()->spalte(i).name, liste.überschrift(i));
  m_ergebnis->setDaten(liste.daten(), liste.ordnung());
}
