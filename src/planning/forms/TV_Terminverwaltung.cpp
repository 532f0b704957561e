#include "planning/forms/TV_Terminverwaltung.h"

#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QScopedValueRollback>

#include "core/globals.h"
#include "data/Verwaltungsfelder.h"
#include "data/forms/helpers_forms.h"
#include "data/helpers.h"
#include "planning/forms/TV_Starttermine.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"

using Terminverwaltung::Ansicht;
using TZ_Variablen::CRLF;
using TZ_Variablen::HeuteText;

namespace {

Eingabefeld::Beschreibung beschreibung(Eingabefeld::Art art, int maxLänge = 0,
                                       const QString& ersterText = {},
                                       const QStringList& auswahl = {}) {
  Eingabefeld::Beschreibung b;
  b.art = art;
  b.maxLänge = maxLänge;
  b.ersterText = ersterText;
  b.auswahl = auswahl;
  return b;
}

// A choice gets other texts to choose from and keeps what it shows.
void auswahlSetzen(Eingabefeld* feld, const QStringList& texte) {
  const QString vorher = feld->inhalt();
  feld->einrichten(beschreibung(Eingabefeld::Art::Auswahl, 0,
                                texte.contains(vorher) ? vorher : QString(), texte));
}

}  // namespace

TV_Terminverwaltung::TV_Terminverwaltung(QWidget* öffner)
    : Datenformular("TV_Terminverwaltung", "Terminverwaltung", öffner) {
  aufbauen();
  verbinden();
}

// Enter in a filter goes on to the next one, so that the list is read; it books nothing.
void TV_Terminverwaltung::keyPressEvent(QKeyEvent* event) {
  const bool eingabetaste = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  for (size_t i = NurVolk; eingabetaste && i <= Bis; ++i)
    if (m_sevt[i]->hasFocus()) {
      focusNextChild();
      event->accept();
      return;
    }
  Datenformular::keyPressEvent(event);
}

void TV_Terminverwaltung::füllen() {
  einrichten();
  m_litermine->sortiere(-1, Qt::AscendingOrder);
  listeLesen();
  m_sevt[Datum]->fokussieren();
}

void TV_Terminverwaltung::einrichten() {
  using Art = Eingabefeld::Art;
  m_opti[0]->setChecked(true);
  m_sevt[NurVolk]->einrichten(beschreibung(Art::Auswahl));
  m_sevt[NurTermin]->einrichten(beschreibung(Art::Text, 30));
  m_sevt[NurErledigt]->einrichten(beschreibung(Art::Auswahl, 0, {}, {"", "J", "N"}));
  for (const size_t i : {Von, Bis}) m_sevt[i]->einrichten(beschreibung(Art::Datum));
  // A whole number with a sign; what doesn't belong there is taken out in tageGeändert.
  Eingabefeld::Beschreibung tage = beschreibung(Art::Text, 5);
  tage.einheit = "Tagen";
  m_sevt[InTagen]->einrichten(tage);
  m_sevt[InTagen]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_sevt[Datum]->einrichten(beschreibung(Art::Datum, 0, HeuteText));
  m_sevt[Termin]->einrichten(beschreibung(Art::Text, 30));
  m_sevt[Erledigt]->einrichten(beschreibung(Art::Auswahl, 0, "N", {"J", "N"}));
  m_sevt[Volk]->einrichten(beschreibung(Art::Text, 10));
  m_sevt[Standort]->einrichten(beschreibung(Art::Auswahl));
  listenFüllen();
}

void TV_Terminverwaltung::listenFüllen() {
  const QStringList leer = {""};
  const QStringList nummern = Terminverwaltung::volknummern(m_db);
  const QStringList arten = Terminverwaltung::terminarten(m_db);
  auswahlSetzen(m_sevt[NurVolk], leer + nummern);
  auswahlSetzen(m_sevt[Standort], leer + Terminverwaltung::standorte(m_db));
  m_sevt[Volk]->setListe(nummern);
  for (const size_t i : {NurTermin, Termin}) m_sevt[i]->setListe(arten);
}

// The flag begins anew, whatever the row has: else the next new appointment would be entered as
// done when the one before was.
void TV_Terminverwaltung::eingabenSetzen() {
  if (m_sevt[Datum]->inhalt().isEmpty()) m_sevt[Datum]->setInhalt(HeuteText);
  m_sevt[Erledigt]->setInhalt("N");
  m_sevt[Standort]->clear();
  listenFüllen();
}

void TV_Terminverwaltung::filterPrüfen(size_t index) {
  if (m_sevt[index]->inhalt() != m_gelesen[index]) listeLesen();
}

// A sort that the user has chosen stays, where the view has that column.
void TV_Terminverwaltung::listeLesen() {
  const Ereignis::Sanduhr sanduhr;
  Terminverwaltung::Filter filter;
  filter.ansicht = m_opti[1]->isChecked() ? Ansicht::Volkabhängig : Ansicht::Allgemein;
  filter.volknr = m_sevt[NurVolk]->inhalt();
  filter.termin = m_sevt[NurTermin]->inhalt();
  filter.erledigt = m_sevt[NurErledigt]->inhalt();
  filter.von = m_sevt[Von]->inhalt();
  filter.bis = m_sevt[Bis]->inhalt();
  Terminverwaltung::vorgaben(filter);
  if (filter.von != m_sevt[Von]->inhalt()) m_sevt[Von]->setInhalt(filter.von);
  if (filter.bis != m_sevt[Bis]->inhalt()) m_sevt[Bis]->setInhalt(filter.bis);
  const QString spalte = m_litermine->spaltenName(m_litermine->sortierSpalte());
  const Qt::SortOrder richtung = m_litermine->sortierRichtung();
  m_litermine->setDaten(Terminverwaltung::liste(m_db, filter));
  m_ausgeblendet->clear();
  for (size_t i = NurVolk; i <= Bis; ++i) m_gelesen[i] = m_sevt[i]->inhalt();
  if (!spalte.isEmpty()) m_litermine->sortiere(m_litermine->spaltenNummer(spalte), richtung);
}

// What the row puts into the inputs.
Terminverwaltung::Eingabe TV_Terminverwaltung::zeileneingabe(int zeile) {
  const qint64 volkId = m_litermine->wert(zeile, "Volk_ID").toLongLong();
  return {m_litermine->zelle(zeile, "Datum"),
          m_litermine->zelle(zeile, "Termin"),
          m_litermine->zelle(zeile, "Erledigt"),
          Terminverwaltung::volknummer(m_db, volkId),
          {}};
}

void TV_Terminverwaltung::zeileZeigen(int zeile) {
  if (zeile < 0 || m_eingabenBehalten) return;
  const Terminverwaltung::Eingabe daten = zeileneingabe(zeile);
  m_sevt[Datum]->setInhalt(daten.datum);
  m_sevt[Termin]->setInhalt(daten.termin);
  m_sevt[Erledigt]->setInhalt(daten.erledigt);
  m_sevt[Volk]->setInhalt(daten.volknr);
}

void TV_Terminverwaltung::tageGeändert() {
  if (m_abgleich) return;
  const QString tage = Terminverwaltung::nurTage(m_sevt[InTagen]->inhalt());
  m_abgleich = true;
  if (tage != m_sevt[InTagen]->inhalt()) m_sevt[InTagen]->setInhalt(tage);
  if (const QString datum = Terminverwaltung::datumInTagen(tage); !datum.isEmpty())
    m_sevt[Datum]->setInhalt(datum);
  m_abgleich = false;
}

void TV_Terminverwaltung::datumGeändert() {
  if (m_abgleich || !IstDatum(m_sevt[Datum]->inhalt())) return;
  m_abgleich = true;
  m_sevt[InTagen]->setInhalt(Terminverwaltung::tageBis(m_sevt[Datum]->inhalt()));
  m_abgleich = false;
}

void TV_Terminverwaltung::aktuellSetzen(qint64 id) {
  m_litermine->setAktuelleZeile(m_litermine->findeZeile("ID = " + QString::number(id)));
}

qint64 TV_Terminverwaltung::id(int zeile) const {
  return m_litermine->wert(zeile, "ID").toLongLong();
}

Terminverwaltung::Eingabe TV_Terminverwaltung::eingabe() const {
  return {m_sevt[Datum]->inhalt(), m_sevt[Termin]->inhalt(), m_sevt[Erledigt]->inhalt(),
          m_sevt[Volk]->inhalt(), m_sevt[Standort]->inhalt()};
}

void TV_Terminverwaltung::speichern(bool neuerTermin) {
  const Terminverwaltung::Eingabe daten = eingabe();
  const Terminverwaltung::Prüfung prüfung = Terminverwaltung::prüfen(m_db, daten);
  if (!prüfung.gründe.isEmpty())
    return Meldungen::Hinweis(Verwaltung::ablehnung(prüfung.gründe) + CRLF, this);
  const int zeile = m_litermine->aktuelleZeile();
  if (!neuerTermin && zeile < 0)
    return Meldungen::Hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!",
                              this);
  const qint64 alt = neuerTermin ? 0 : id(zeile);
  if (Terminverwaltung::existiert(m_db, daten, prüfung.volkId, alt))
    return Meldungen::Hinweis("Dieser Termin existiert bereits.", this);
  const bool standort = !daten.standort.isEmpty();
  if (standort && !Meldungen::Frage(Terminverwaltung::standortFrage(daten.standort),
                                    Meldungen::Vorgabe::Ja, this))
    return;
  const qint64 neueId = standort && neuerTermin
                            ? amStandortEintragen(daten)
                            : Terminverwaltung::speichern(m_db, daten, prüfung.volkId, alt);
  if (neuerTermin && neueId != 0) m_opti[standort || prüfung.volkId != 0 ? 1 : 0]->setChecked(true);
  gespeichertesZeigen(neueId);
  Tastenton();
  eingabenSetzen();
}

// Where the view or a filter hides it the form says so, else it would be entered again. An ID of 0
// is nothing saved.
void TV_Terminverwaltung::gespeichertesZeigen(qint64 id) {
  listeLesen();
  aktuellSetzen(id);
  if (id != 0 && m_litermine->aktuelleZeile() < 0)
    m_ausgeblendet->setText("Gespeichert. Die Einschränkung oben blendet den Termin aus.");
}

// What a failure half way has left written stands in the list: pressing the button again would
// enter it twice. The inputs stay.
qint64 TV_Terminverwaltung::amStandortEintragen(const Terminverwaltung::Eingabe& daten) {
  try {
    return Terminverwaltung::amStandortEintragen(m_db, daten);
  } catch (...) {
    const int zeile = m_litermine->aktuelleZeile();
    listeNeuLesen(zeile < 0 ? 0 : id(zeile), true);
    throw;
  }
}

void TV_Terminverwaltung::terminLöschen() {
  const int zeile = m_litermine->aktuelleZeile();
  if (zeile < 0)
    return Meldungen::Hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.",
                              this);
  if (!LoeschenBestaetigt()) return;
  m_litermine->löscheZeile(zeile, m_db, "Termine");
  listenFüllen();
}

void TV_Terminverwaltung::erledigteLöschen() {
  if (!Meldungen::Frage("Sollen wirklich alle als erledigt markierte Termine aus der "
                        "Terminverwaltung gelöscht werden?",
                        Meldungen::Vorgabe::Ja, this))
    return;
  Terminverwaltung::erledigteLöschen(m_db);
  listeLesen();
  eingabenSetzen();
}

// What was closed there shows here at once. Inputs that no longer are the row's have been typed in
// and stay.
void TV_Terminverwaltung::aktuelleTermine() {
  const int zeile = m_litermine->aktuelleZeile();
  const qint64 vorher = zeile < 0 ? 0 : id(zeile);
  const bool getippt = zeile >= 0 && eingabe() != zeileneingabe(zeile);
  TV_Starttermine(this).zeigen();
  listeNeuLesen(vorher, getippt);
}

// The list anew; the row of this ID, 0 for none, becomes current again.
void TV_Terminverwaltung::listeNeuLesen(qint64 id, bool eingabenBehalten) {
  listeLesen();
  if (id == 0) return;
  const QScopedValueRollback behalten(m_eingabenBehalten, eingabenBehalten);
  aktuellSetzen(id);
}
