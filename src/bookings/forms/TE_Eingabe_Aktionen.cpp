// What the buttons and lists of TE_Eingabe do.
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QScopeGuard>

#include "bookings/Buchungsliste.h"
#include "bookings/forms/Slotfelder.h"
#include "bookings/forms/TE_Eingabe.h"
#include "core/globals.h"
#include "core/main_list.h"
#include "data/forms/helpers_forms.h"
#include "data/helpers.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/database/werte/Kollation.h"

using namespace TZ_Variablen;

void TE_Eingabe::neu(int index) {
  datumVervollständigen();
  const Hauptliste& haupt = *hauptliste();
  const QString datum = m_slots->text(0);
  const int markiert = static_cast<int>(haupt.markierteZeilen().size());
  if (index == 0) {
    if (zugestimmt(prüfeNeu(datum, markiert))) neuBuchen();
  } else {
    const QString volknr = haupt.zelle(haupt.aktuelleZeile(), "Volknr");
    if (zugestimmt(prüfeÄndern(datum, m_li->aktuelleZeile() >= 0, markiert, volknr))) ändern();
  }
  if (!IstDatum(m_slots->text(0))) m_slots->feld(0)->fokussieren();
}

// Enter and the mnemonic leave the focus in the date: it is completed as on leaving it.
void TE_Eingabe::datumVervollständigen() {
  const QString datum = DatumErgaenzen(m_slots->text(0));
  if (!datum.isEmpty()) m_slots->setText(0, datum);
}

bool TE_Eingabe::zugestimmt(const Prüfergebnis& ergebnis) {
  switch (ergebnis.art) {
    case Prüfergebnis::Art::Weiter:
      return true;
    case Prüfergebnis::Art::Frage:
      return Meldungen::Frage(ergebnis.text, Meldungen::Vorgabe::Ja, this);
    case Prüfergebnis::Art::HinweisUndWeiter:
      Meldungen::Hinweis(ergebnis.text, this);
      return true;
    case Prüfergebnis::Art::Abbruch:
      break;
  }
  Meldungen::Hinweis(ergebnis.text, this);
  return false;
}

void TE_Eingabe::neuBuchen() {
  const Hauptliste& haupt = *hauptliste();
  QStringList völker;
  for (const int zeile : haupt.markierteZeilen()) völker.append(haupt.zelle(zeile, "ID"));

  Buchung buchung{BuchungsArt, m_slots->texte()};
  Buchungskontext kontext{static_cast<int>(völker.size()), m_geänderteVölker};
  std::exception_ptr fehler;
  try {
    const Ereignis::Sanduhr sanduhr;
    BuchungslaufSpeichern(m_db, buchung, völker, kontext);
  } catch (...) {
    fehler = std::current_exception();
  }
  m_geänderteVölker = kontext.geänderteVölker;
  if (fehler) markierungNehmen(kontext.gebucht);
  nachFehler(fehler, buchung, {});
  Tastenton();
  const Füllen füllen(m_füllt);  // the user hasn't left the slot: the new booking stays as shown
  BuchungenLaden();
  m_slots->feld(0)->fokussieren();
}

void TE_Eingabe::ändern() {
  const QString id = m_li->wert(m_li->aktuelleZeile(), "ID").toString();
  Buchung buchung{BuchungsArt, m_slots->texte()};
  Buchungskontext kontext{static_cast<int>(hauptliste()->markierteZeilen().size()),
                          m_geänderteVölker};
  std::exception_ptr fehler;
  try {
    const Ereignis::Sanduhr sanduhr;
    BuchungSpeichern(m_db, buchung, volkId(), id, kontext);
  } catch (...) {
    fehler = std::current_exception();
  }
  m_geänderteVölker = kontext.geänderteVölker;
  nachFehler(fehler, buchung, id);
  BuchungenLaden();
  const int zeile = m_li->findeZeile("ID = " + id);
  if (zeile >= 0) m_li->setAktuelleZeile(zeile);  // and shows it
}

// The colonies that a run has booked before it failed: going on must book each once.
void TE_Eingabe::markierungNehmen(const QStringList& gebucht) {
  Hauptliste& haupt = *hauptliste();
  QList<int> übrige = haupt.markierteZeilen();
  übrige.removeIf([&](int zeile) { return gebucht.contains(haupt.zelle(zeile, "ID")); });
  haupt.setMarkierteZeilen(übrige);
  m_volkli->setMarkierteZeilen(übrige);
}

// Shows the texts that saving changed. After a failure the entry stays, the list shows what was
// saved, and the failure goes on.
void TE_Eingabe::nachFehler(const std::exception_ptr& fehler, const Buchung& buchung,
                            const QString& buchungId) {
  const Füllen füllen(m_füllt);
  for (const Buchungsslot& slot : buchungstyp(buchung.art).plätze)
    if (const QString& text = buchung.texte[static_cast<size_t>(slot.nummer)];
        text != m_slots->text(slot.nummer))
      m_slots->setText(slot.nummer, text);
  if (!fehler) return;
  listeBinden();
  const int zeile =
      buchungId.isEmpty() ? m_li->zeilen() - 1 : m_li->findeZeile("ID = " + buchungId);
  m_li->setAktuelleZeile(zeile);
  std::rethrow_exception(fehler);
}

void TE_Eingabe::löschen() {
  const int zeile = m_li->aktuelleZeile();
  if (!zugestimmt(prüfeLöschen(zeile >= 0))) return;
  const QString benennung =
      buchungstyp(BuchungsArt).beschriftung + " vom " + m_li->zelle(zeile, "Datum");
  if (!LoeschenBestaetigt(benennung)) return;
  m_li->löscheZeile(zeile, m_db, buchungstyp(BuchungsArt).tabelle);
}

void TE_Eingabe::maskeSichernUndMelden() {
  maskeSichern(BuchungsArt, m_slots->texte(), m_slotarten);
  Meldungen::Hinweis(maskeGesichertText(BuchungsArt), this);
}

void TE_Eingabe::maskeHolen() {
  const auto maske = maskeEinlesen(BuchungsArt, m_slotarten);
  if (!maske) return;
  const Füllen füllen(m_füllt);
  einsetzen(*maske);
  m_slots->bezmw()->clear();
}

void TE_Eingabe::anzeigeGewählt(int bereich) {
  EinstellungenZahl[Zahlslots.anzeigebereich] = static_cast<qint16>(bereich);
  BuchungenLaden();
}

void TE_Eingabe::artGewählt(int art) {
  if (art == BuchungsArt) return;
  BuchungsArt = art;
  MaskeAufbauen();
}

void TE_Eingabe::nachbarvolk(int richtung) {
  if (hauptliste()->zeilen() == 0) return;
  VolkWechseln(richtung);
  m_volkli->setAktuelleZeile(hauptliste()->aktuelleZeile());
  MaskeAufbauen();
}

void TE_Eingabe::volkAngeklickt(int zeile) {
  {
    BildAnhalten = 1;
    const auto weiter = qScopeGuard([] { BildAnhalten = 0; });
    hauptliste()->setAktuelleZeile(zeile);
  }
  hauptliste()->setMarkierteZeilen(m_volkli->markierteZeilen());
  MaskeAufbauen();
  // Who walks through the list with the keyboard, or marks there, goes on doing so.
  if (m_volkPerTaste) m_volkli->setFocus();
}

void TE_Eingabe::markierungNachziehen() {
  if (!m_offen) return;
  if (m_volkli->aktuelleZeile() != hauptliste()->aktuelleZeile() ||
      m_volkli->markierteZeilen() != hauptliste()->markierteZeilen())
    volkAngeklickt(m_volkli->aktuelleZeile());
}

void TE_Eingabe::standortGewählt(int index) {
  Hauptliste& haupt = *hauptliste();
  haupt.setAktuelleZeile(-1);
  const QString standort = m_kom->itemText(index);
  QList<int> treffer;
  for (int zeile = 0; zeile < m_volkli->zeilen(); ++zeile)
    if (Kollation::vergleiche(TextLesen(m_volkli->zelle(zeile, "Standort")), standort) == 0)
      treffer.append(zeile);
  const int erster = treffer.isEmpty() ? -1 : treffer.first();
  if (erster >= 0) haupt.setAktuelleZeile(erster);
  m_volkli->setAktuelleZeile(erster);
  haupt.setMarkierteZeilen(treffer);
  m_volkli->setMarkierteZeilen(treffer);
  MaskeAufbauen();
}
