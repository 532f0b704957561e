#include "planning/forms/TV_Starttermine.h"

#include <QCheckBox>
#include <QEvent>
#include <QPushButton>
#include <QScopeGuard>

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

TV_Starttermine::TV_Starttermine(QWidget* oeffner)
    : Formular("TV_Starttermine", Starttermine::titel(), oeffner) {
  aufbauen();
  verbinden();
}

void TV_Starttermine::verbinden() {
  Ereignis::wenn(litermine, &Grid::zeileGewechselt, this, [this](int z) { zeileZeigen(z); });
  Ereignis::wenn(litermine, &Grid::zeileAngeklickt, this, [this](int z) { zeileZeigen(z); });
  Ereignis::wenn(litermine, &Grid::zeileDoppelgeklickt, this, [this](int zeile) {
    sevt[Erledigungstag]->setInhalt(litermine->zelle(zeile, "Datum"));
    erledigen(zeile);
  });
  Ereignis::wenn(cmdok[0], &QPushButton::clicked, this,
                 [this] { erledigen(litermine->aktuelleZeile()); });
  Ereignis::wenn(cmdok[1], &QPushButton::clicked, this, [this] { markierteErledigen(); });
  Ereignis::wenn(cmdok[2], &QPushButton::clicked, this, [this] { bisHeuteErledigen(); });
  Ereignis::wenn(cmdok[3], &QPushButton::clicked, this, [this] { amStandortErledigen(); });
  Ereignis::wenn(ok, &QPushButton::clicked, this, [this] {
    if (litermine->zeilen() == 0) return nichtsZuListen(this);
    zwischenlisteZeigen(this, *litermine);
  });
  Ereignis::wenn(okgruppiert, &QPushButton::clicked, this, [this] { gruppiertListen(); });
  Ereignis::wenn(hilfe, &QPushButton::clicked, this, [this] { hilfeZeigen(); });
  Ereignis::wenn(schließen, &QPushButton::clicked, this, [this] { accept(); });
  for (Eingabefeld* f : sevt) f->installEventFilter(this);
}

// Enter in an input does what its group's button does.
bool TV_Starttermine::eventFilter(QObject* objekt, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
    QPushButton* vorgabe = schließen;
    if (event->type() == QEvent::FocusIn)
      vorgabe = objekt == sevt[Erledigungstag] ? cmdok[0] : cmdok[3];
    vorgabe->setDefault(true);
  }
  return Formular::eventFilter(objekt, event);
}

void TV_Starttermine::zeigen() {
  const auto ende = qScopeGuard([this] { m_db.Close(); });
  laden();
  Formular::zeigen();
}

void TV_Starttermine::laden() {
  const Ereignis::Sanduhr sanduhr;
  m_db = TZ_Variablen::Arbeitsbereich.OpenDatabase(TZ_Variablen::DatenbankPfad);
  setWindowTitle(Starttermine::titel());
  kon->setChecked(EinstellungenZahl[13] == 1);
  // Realigning deletes appointments: it is chosen anew each time the form opens.
  konterminreihe->setChecked(false);
  for (const size_t i : {Erledigungstag, Bis}) sevt[i]->setInhalt(HeuteText);
  for (const size_t i : {Art, Ort}) sevt[i]->clear();
  sevt[Art]->setListe(Starttermine::arbeitsarten(m_db));
  sevt[Ort]->setListe(Terminverwaltung::standorte(m_db));
  litermine->setDaten(Starttermine::liste(m_db));
  litermine->setFocus();
}

// A sort that the user has chosen stays.
void TV_Starttermine::listeLesen() {
  const Ereignis::Sanduhr sanduhr;
  const int zeile = litermine->aktuelleZeile();
  const int spalte = litermine->sortierSpalte();
  const Qt::SortOrder richtung = litermine->sortierRichtung();
  litermine->setDaten(Starttermine::liste(m_db));
  if (spalte >= 0) litermine->sortiere(spalte, richtung);
  if (zeile >= 0) litermine->setAktuelleZeile(std::min(zeile, litermine->zeilen() - 1));
}

// The list shows what is written, also when the action has failed half way.
void TV_Starttermine::schreiben(const std::function<void()>& aktion) {
  Ereignis::ausfuehren(this, [&] {
    const Ereignis::Sanduhr sanduhr;
    aktion();
  });
  listeLesen();
}

// A click prepares the closing of the same kind at the site.
void TV_Starttermine::zeileZeigen(int zeile) {
  if (zeile < 0) return;
  sevt[Bis]->setInhalt(litermine->zelle(zeile, "Datum"));
  sevt[Art]->setInhalt(litermine->zelle(zeile, "Termin"));
  sevt[Ort]->setInhalt(litermine->zelle(zeile, "Standort"));
}

Starttermine::Erledigung TV_Starttermine::erledigung() const {
  return {sevt[Erledigungstag]->inhalt(), konterminreihe->isChecked()};
}

void TV_Starttermine::erledigen(int zeile) {
  if (zeile < 0) {
    Meldungen::Hinweis("Bitte markieren Sie zuerst den zu erledigenden Termin.", this);
    return;
  }
  schreiben([&] {
    Starttermine::aktuellenErledigen(m_db, litermine->wert(zeile, "ID").toLongLong(),
                                     litermine->wert(zeile, "Termin").toString(), erledigung());
  });
}

void TV_Starttermine::markierteErledigen() {
  const QList<int> markiert = litermine->markierteZeilen();
  if (markiert.isEmpty()) {
    Meldungen::Hinweis("Bitter markieren Sie zuerst die zu erledigenden Termine.", this);
    return;
  }
  if (!Meldungen::Frage(Starttermine::markierteFrage(markiert.size()), Meldungen::Vorgabe::Ja,
                        this))
    return;
  std::vector<qint64> ids;
  for (const int zeile : markiert) ids.push_back(litermine->wert(zeile, "ID").toLongLong());
  schreiben([&] { Starttermine::markierteErledigen(m_db, ids); });
}

void TV_Starttermine::bisHeuteErledigen() {
  if (!Meldungen::Frage(Starttermine::bisHeuteFrage(), Meldungen::Vorgabe::Ja, this)) return;
  schreiben([&] { Starttermine::bisHeuteErledigen(m_db); });
}

void TV_Starttermine::amStandortErledigen() {
  const Starttermine::Standortauftrag auftrag = {sevt[Art]->inhalt(), sevt[Ort]->inhalt(),
                                                 sevt[Bis]->inhalt()};
  if (Starttermine::unvollstaendig(auftrag)) {
    Meldungen::Hinweis(Starttermine::unvollstaendigText(), this);
    return;
  }
  const int anzahl = Starttermine::gefunden(m_db, auftrag);
  if (anzahl == 0 ||
      !Meldungen::Frage(Starttermine::standortFrage(anzahl), Meldungen::Vorgabe::Ja, this))
    return;
  schreiben([&] {
    Starttermine::amStandortErledigen(m_db, auftrag, litermine->daten(), litermine->ordnung(),
                                      erledigung());
  });
}

void TV_Starttermine::gruppiertListen() {
  const Daten daten = Starttermine::gruppiert(m_db);
  if (daten->zeilen() == 0) return nichtsZuListen(this);
  zwischenlisteZeigen(this, daten);
}

void TV_Starttermine::done(int ergebnis) {
  EinstellungenZahl[13] = kon->isChecked() ? 1 : 0;
  Formular::done(ergebnis);
}
