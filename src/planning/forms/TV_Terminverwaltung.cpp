#include "planning/forms/TV_Terminverwaltung.h"

#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QScopeGuard>
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

Eingabefeld::Beschreibung beschreibung(Eingabefeld::Art art, int maxLaenge = 0,
                                       const QString& ersterText = {},
                                       const QStringList& auswahl = {}) {
  Eingabefeld::Beschreibung b;
  b.art = art;
  b.maxLaenge = maxLaenge;
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

TV_Terminverwaltung::TV_Terminverwaltung(QWidget* oeffner)
    : Formular("TV_Terminverwaltung", "Terminverwaltung", oeffner) {
  aufbauen();
  verbinden();
}

// Enter in a filter goes on to the next one, so that the list is read; it books nothing.
void TV_Terminverwaltung::keyPressEvent(QKeyEvent* event) {
  const bool eingabetaste = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  for (size_t i = NurVolk; eingabetaste && i <= Bis; ++i)
    if (sevt[i]->hasFocus()) {
      focusNextChild();
      event->accept();
      return;
    }
  Formular::keyPressEvent(event);
}

void TV_Terminverwaltung::zeigen() {
  const auto ende = qScopeGuard([this] { m_db.Close(); });
  laden();
  Formular::zeigen();
}

void TV_Terminverwaltung::laden() {
  m_db = TZ_Variablen::Arbeitsbereich.OpenDatabase(TZ_Variablen::DatenbankPfad);
  einrichten();
  litermine->sortiere(-1, Qt::AscendingOrder);
  listeLesen();
  sevt[Datum]->setFocus();
}

void TV_Terminverwaltung::einrichten() {
  using Art = Eingabefeld::Art;
  opti[0]->setChecked(true);
  sevt[NurVolk]->einrichten(beschreibung(Art::Auswahl));
  sevt[NurTermin]->einrichten(beschreibung(Art::Text, 30));
  sevt[NurErledigt]->einrichten(beschreibung(Art::Auswahl, 0, {}, {"", "J", "N"}));
  for (const size_t i : {Von, Bis}) sevt[i]->einrichten(beschreibung(Art::Datum));
  // A whole number with a sign; what doesn't belong there is taken out in tageGeaendert.
  Eingabefeld::Beschreibung tage = beschreibung(Art::Text, 5);
  tage.einheit = "Tagen";
  sevt[InTagen]->einrichten(tage);
  sevt[InTagen]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  sevt[Datum]->einrichten(beschreibung(Art::Datum, 0, HeuteText));
  sevt[Termin]->einrichten(beschreibung(Art::Text, 30));
  sevt[Erledigt]->einrichten(beschreibung(Art::Auswahl, 0, "N", {"J", "N"}));
  sevt[Volk]->einrichten(beschreibung(Art::Text, 10));
  sevt[Standort]->einrichten(beschreibung(Art::Auswahl));
  listenFuellen();
}

void TV_Terminverwaltung::listenFuellen() {
  const QStringList leer = {""};
  const QStringList nummern = Terminverwaltung::volknummern(m_db);
  const QStringList arten = Terminverwaltung::terminarten(m_db);
  auswahlSetzen(sevt[NurVolk], leer + nummern);
  auswahlSetzen(sevt[Standort], leer + Terminverwaltung::standorte(m_db));
  sevt[Volk]->setListe(nummern);
  for (const size_t i : {NurTermin, Termin}) sevt[i]->setListe(arten);
}

// The flag begins anew, whatever the row has: else the next new appointment would be entered as
// done when the one before was.
void TV_Terminverwaltung::eingabenSetzen() {
  if (sevt[Datum]->inhalt().isEmpty()) sevt[Datum]->setInhalt(HeuteText);
  sevt[Erledigt]->setInhalt("N");
  sevt[Standort]->clear();
  listenFuellen();
}

void TV_Terminverwaltung::filterPruefen(size_t index) {
  if (sevt[index]->inhalt() != m_gelesen[index]) listeLesen();
}

// A sort that the user has chosen stays, where the view has that column.
void TV_Terminverwaltung::listeLesen() {
  const Ereignis::Sanduhr sanduhr;
  Terminverwaltung::Filter filter;
  filter.ansicht = opti[1]->isChecked() ? Ansicht::Volkabhaengig : Ansicht::Allgemein;
  filter.volknr = sevt[NurVolk]->inhalt();
  filter.termin = sevt[NurTermin]->inhalt();
  filter.erledigt = sevt[NurErledigt]->inhalt();
  filter.von = sevt[Von]->inhalt();
  filter.bis = sevt[Bis]->inhalt();
  Terminverwaltung::vorgaben(filter);
  if (filter.von != sevt[Von]->inhalt()) sevt[Von]->setInhalt(filter.von);
  if (filter.bis != sevt[Bis]->inhalt()) sevt[Bis]->setInhalt(filter.bis);
  const QString spalte = litermine->spaltenName(litermine->sortierSpalte());
  const Qt::SortOrder richtung = litermine->sortierRichtung();
  litermine->setDaten(Terminverwaltung::liste(m_db, filter));
  m_ausgeblendet->clear();
  for (size_t i = NurVolk; i <= Bis; ++i) m_gelesen[i] = sevt[i]->inhalt();
  if (!spalte.isEmpty()) litermine->sortiere(litermine->spaltenNummer(spalte), richtung);
}

// What the row puts into the inputs.
Terminverwaltung::Eingabe TV_Terminverwaltung::zeileneingabe(int zeile) {
  const qint64 volkId = litermine->wert(zeile, "Volk_ID").toLongLong();
  return {litermine->zelle(zeile, "Datum"),
          litermine->zelle(zeile, "Termin"),
          litermine->zelle(zeile, "Erledigt"),
          Terminverwaltung::volknummer(m_db, volkId),
          {}};
}

void TV_Terminverwaltung::zeileZeigen(int zeile) {
  if (zeile < 0 || m_eingabenBehalten) return;
  const Terminverwaltung::Eingabe daten = zeileneingabe(zeile);
  sevt[Datum]->setInhalt(daten.datum);
  sevt[Termin]->setInhalt(daten.termin);
  sevt[Erledigt]->setInhalt(daten.erledigt);
  sevt[Volk]->setInhalt(daten.volknr);
}

void TV_Terminverwaltung::tageGeaendert() {
  if (m_abgleich) return;
  const QString tage = Terminverwaltung::nurTage(sevt[InTagen]->inhalt());
  m_abgleich = true;
  if (tage != sevt[InTagen]->inhalt()) sevt[InTagen]->setInhalt(tage);
  if (const QString datum = Terminverwaltung::datumInTagen(tage); !datum.isEmpty())
    sevt[Datum]->setInhalt(datum);
  m_abgleich = false;
}

void TV_Terminverwaltung::datumGeaendert() {
  if (m_abgleich || !IstDatum(sevt[Datum]->inhalt())) return;
  m_abgleich = true;
  sevt[InTagen]->setInhalt(Terminverwaltung::tageBis(sevt[Datum]->inhalt()));
  m_abgleich = false;
}

void TV_Terminverwaltung::aktuellSetzen(qint64 id) {
  litermine->setAktuelleZeile(litermine->findeZeile("ID = " + QString::number(id)));
}

qint64 TV_Terminverwaltung::id(int zeile) const {
  return litermine->wert(zeile, "ID").toLongLong();
}

Terminverwaltung::Eingabe TV_Terminverwaltung::eingabe() const {
  return {sevt[Datum]->inhalt(), sevt[Termin]->inhalt(), sevt[Erledigt]->inhalt(),
          sevt[Volk]->inhalt(), sevt[Standort]->inhalt()};
}

void TV_Terminverwaltung::speichern(bool neuerTermin) {
  const Terminverwaltung::Eingabe daten = eingabe();
  const Terminverwaltung::Pruefung pruefung = Terminverwaltung::pruefen(m_db, daten);
  if (!pruefung.gruende.isEmpty())
    return Meldungen::Hinweis(Verwaltung::ablehnung(pruefung.gruende) + CRLF, this);
  const int zeile = litermine->aktuelleZeile();
  if (!neuerTermin && zeile < 0)
    return Meldungen::Hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!",
                              this);
  const qint64 alt = neuerTermin ? 0 : id(zeile);
  if (Terminverwaltung::existiert(m_db, daten, pruefung.volkId, alt))
    return Meldungen::Hinweis("Dieser Termin existiert bereits.", this);
  const bool standort = !daten.standort.isEmpty();
  if (standort && !Meldungen::Frage(Terminverwaltung::standortFrage(daten.standort),
                                    Meldungen::Vorgabe::Ja, this))
    return;
  const qint64 neueId = standort && neuerTermin
                            ? amStandortEintragen(daten)
                            : Terminverwaltung::speichern(m_db, daten, pruefung.volkId, alt);
  if (neuerTermin && neueId != 0) opti[standort || pruefung.volkId != 0 ? 1 : 0]->setChecked(true);
  gespeichertesZeigen(neueId);
  Tastenton();
  eingabenSetzen();
}

// Where the view or a filter hides it the form says so, else it would be entered again. An ID of 0
// is nothing saved.
void TV_Terminverwaltung::gespeichertesZeigen(qint64 id) {
  listeLesen();
  aktuellSetzen(id);
  if (id != 0 && litermine->aktuelleZeile() < 0)
    m_ausgeblendet->setText("Gespeichert. Die Einschränkung oben blendet den Termin aus.");
}

// What a failure half way has left written stands in the list: pressing the button again would
// enter it twice. The inputs stay.
qint64 TV_Terminverwaltung::amStandortEintragen(const Terminverwaltung::Eingabe& daten) {
  try {
    return Terminverwaltung::amStandortEintragen(m_db, daten);
  } catch (...) {
    const int zeile = litermine->aktuelleZeile();
    listeNeuLesen(zeile < 0 ? 0 : id(zeile), true);
    throw;
  }
}

void TV_Terminverwaltung::loeschen() {
  const int zeile = litermine->aktuelleZeile();
  if (zeile < 0)
    return Meldungen::Hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.",
                              this);
  if (!LoeschenBestaetigt()) return;
  litermine->loescheZeile(zeile, m_db, "Termine");
  listenFuellen();
}

void TV_Terminverwaltung::erledigteLoeschen() {
  if (!Meldungen::Frage("Sollen wirklich alle als erledigt markierte Termine aus der "
                        "Terminverwaltung gelöscht werden?",
                        Meldungen::Vorgabe::Ja, this))
    return;
  Terminverwaltung::erledigteLoeschen(m_db);
  listeLesen();
  eingabenSetzen();
}

// What was closed there shows here at once. Inputs that no longer are the row's have been typed in
// and stay.
void TV_Terminverwaltung::aktuelleTermine() {
  const int zeile = litermine->aktuelleZeile();
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
