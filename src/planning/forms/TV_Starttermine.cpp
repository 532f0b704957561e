#include "planning/forms/TV_Starttermine.h"

#include <QCheckBox>
#include <QEvent>
#include <QPushButton>

#include "core/globals.h"
#include "output/forms/TA_Zwischenliste.h"
#include "planning/Terminverwaltung.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"

using TZ_Variablen::EinstellungenZahl;
using TZ_Variablen::HeuteText;

namespace {

void nichtsZuListen(QWidget* fenster) {
  Meldungen::Hinweis("Keine zu listenden Daten gefunden", fenster);
}

}  // namespace

TV_Starttermine::TV_Starttermine(QWidget* öffner)
    : Datenformular("TV_Starttermine", Starttermine::titel(), öffner) {
  aufbauen();
  verbinden();
}

void TV_Starttermine::verbinden() {
  Ereignis::wenn(m_litermine, &Grid::zeileGewechselt, this, [this](int z) { zeileZeigen(z); });
  Ereignis::wenn(m_litermine, &Grid::zeileAngeklickt, this, [this](int z) { zeileZeigen(z); });
  Ereignis::wenn(m_litermine, &Grid::zeileDoppelgeklickt, this, [this](int zeile) {
    m_sevt[Erledigungstag]->setInhalt(m_litermine->zelle(zeile, "Datum"));
    erledigen(zeile);
  });
  Ereignis::wenn(m_cmdok[0], &QPushButton::clicked, this,
                 [this] { erledigen(m_litermine->aktuelleZeile()); });
  Ereignis::wenn(m_cmdok[1], &QPushButton::clicked, this, [this] { markierteErledigen(); });
  Ereignis::wenn(m_cmdok[2], &QPushButton::clicked, this, [this] { bisHeuteErledigen(); });
  Ereignis::wenn(m_cmdok[3], &QPushButton::clicked, this, [this] { amStandortErledigen(); });
  Ereignis::wenn(m_ok, &QPushButton::clicked, this, [this] {
    if (m_litermine->zeilen() == 0) return nichtsZuListen(this);
    zwischenlisteZeigen(this, *m_litermine);
  });
  Ereignis::wenn(m_okgruppiert, &QPushButton::clicked, this, [this] { gruppiertListen(); });
  for (Eingabefeld* f : m_sevt) f->installEventFilter(this);
}

// Enter in an input does what its group's button does.
bool TV_Starttermine::eventFilter(QObject* objekt, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
    QPushButton* vorgabe = schließknopf();
    if (event->type() == QEvent::FocusIn)
      vorgabe = objekt == m_sevt[Erledigungstag] ? m_cmdok[0] : m_cmdok[3];
    vorgabe->setDefault(true);
  }
  return Datenformular::eventFilter(objekt, event);
}

void TV_Starttermine::füllen() {
  const Ereignis::Sanduhr sanduhr;
  setWindowTitle(Starttermine::titel());
  m_kon->setChecked(EinstellungenZahl[Zahlslots.terminlisteBeimStart] == 1);
  // Realigning deletes appointments: it is chosen anew each time the form opens.
  m_konterminreihe->setChecked(false);
  for (const size_t i : {Erledigungstag, Bis}) m_sevt[i]->setInhalt(HeuteText);
  for (const size_t i : {Art, Ort}) m_sevt[i]->clear();
  m_sevt[Art]->setListe(Starttermine::arbeitsarten(m_db));
  m_sevt[Ort]->setListe(Terminverwaltung::standorte(m_db));
  m_litermine->setDaten(Starttermine::liste(m_db));
  m_litermine->setFocus();
}

// A sort that the user has chosen stays.
void TV_Starttermine::listeLesen() {
  const Ereignis::Sanduhr sanduhr;
  const int zeile = m_litermine->aktuelleZeile();
  const int spalte = m_litermine->sortierSpalte();
  const Qt::SortOrder richtung = m_litermine->sortierRichtung();
  m_litermine->setDaten(Starttermine::liste(m_db));
  if (spalte >= 0) m_litermine->sortiere(spalte, richtung);
  if (zeile >= 0) m_litermine->setAktuelleZeile(std::min(zeile, m_litermine->zeilen() - 1));
}

// The list shows what is written, also when the action has failed half way.
void TV_Starttermine::schreiben(const std::function<void()>& aktion) {
  Ereignis::ausführen(this, [&] {
    const Ereignis::Sanduhr sanduhr;
    aktion();
  });
  listeLesen();
}

// A click prepares the closing of the same kind at the site.
void TV_Starttermine::zeileZeigen(int zeile) {
  if (zeile < 0) return;
  m_sevt[Bis]->setInhalt(m_litermine->zelle(zeile, "Datum"));
  m_sevt[Art]->setInhalt(m_litermine->zelle(zeile, "Termin"));
  m_sevt[Ort]->setInhalt(m_litermine->zelle(zeile, "Standort"));
}

Starttermine::Erledigung TV_Starttermine::erledigung() const {
  return {m_sevt[Erledigungstag]->inhalt(), m_konterminreihe->isChecked()};
}

void TV_Starttermine::erledigen(int zeile) {
  if (zeile < 0) {
    Meldungen::Hinweis("Bitte markieren Sie zuerst den zu erledigenden Termin.", this);
    return;
  }
  schreiben([&] {
    Starttermine::aktuellenErledigen(m_db, m_litermine->wert(zeile, "ID").toLongLong(),
                                     m_litermine->wert(zeile, "Termin").toString(), erledigung());
  });
}

void TV_Starttermine::markierteErledigen() {
  const QList<int> markiert = m_litermine->markierteZeilen();
  if (markiert.isEmpty()) {
    Meldungen::Hinweis("Bitter markieren Sie zuerst die zu erledigenden Termine.", this);
    return;
  }
  if (!Meldungen::Frage(Starttermine::markierteFrage(markiert.size()), Meldungen::Vorgabe::Ja,
                        this))
    return;
  std::vector<qint64> ids;
  for (const int zeile : markiert) ids.push_back(m_litermine->wert(zeile, "ID").toLongLong());
  schreiben([&] { Starttermine::markierteErledigen(m_db, ids); });
}

void TV_Starttermine::bisHeuteErledigen() {
  if (!Meldungen::Frage(Starttermine::bisHeuteFrage(), Meldungen::Vorgabe::Ja, this)) return;
  schreiben([&] { Starttermine::bisHeuteErledigen(m_db); });
}

void TV_Starttermine::amStandortErledigen() {
  const Starttermine::Standortauftrag auftrag = {m_sevt[Art]->inhalt(), m_sevt[Ort]->inhalt(),
                                                 m_sevt[Bis]->inhalt()};
  if (Starttermine::unvollständig(auftrag)) {
    Meldungen::Hinweis(Starttermine::unvollständigText(), this);
    return;
  }
  const int anzahl = Starttermine::gefunden(m_db, auftrag);
  if (anzahl == 0 ||
      !Meldungen::Frage(Starttermine::standortFrage(anzahl), Meldungen::Vorgabe::Ja, this))
    return;
  schreiben([&] {
    Starttermine::amStandortErledigen(m_db, auftrag, m_litermine->daten(), m_litermine->ordnung(),
                                      erledigung());
  });
}

void TV_Starttermine::gruppiertListen() {
  const Daten daten = Starttermine::gruppiert(m_db);
  if (daten->zeilen() == 0) return nichtsZuListen(this);
  zwischenlisteZeigen(this, daten);
}

void TV_Starttermine::done(int ergebnis) {
  EinstellungenZahl[Zahlslots.terminlisteBeimStart] = m_kon->isChecked() ? 1 : 0;
  Datenformular::done(ergebnis);
}
