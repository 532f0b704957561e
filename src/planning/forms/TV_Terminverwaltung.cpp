#include "planning/forms/TV_Terminverwaltung.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "core/globals.h"
#include "data/forms/helpers_forms.h"
#include "data/helpers.h"
#include "planning/forms/TV_Starttermine.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"

using Terminverwaltung::Ansicht;
using TZ_Variablen::HeuteText;

namespace {

enum Slot : size_t {
  Datum,
  Termin,
  Erledigt,
  NurVolk,
  NurTermin,
  NurErledigt,
  Von,
  Bis,
  Volk,
  InTagen,
  Standort
};

QPushButton* knopf(const QString& text, const QString& name) {
  auto* k = new QPushButton(text);
  k->setObjectName(name);
  k->setAutoDefault(false);
  return k;
}

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

void TV_Terminverwaltung::aufbauen() {
  for (size_t i = 0; i < sevt.size(); ++i) {
    sevt[i] = new Eingabefeld;
    sevt[i]->setObjectName("sevt_" + QString::number(i));
  }
  litermine = new Grid;
  litermine->setObjectName("litermine");
  litermine->setAccessibleName("Termine");
  litermine->setLayoutSchluessel("tv_terminverwaltung_litermine");
  for (const char* spalte : {"Volk_ID", "ID"}) litermine->setSpalteVerborgen(spalte, true);
  litermine->setMinimumHeight(litermine->fontMetrics().height() * 8);

  auto* seite = new QVBoxLayout(this);
  seite->addWidget(filterBauen());
  seite->addWidget(litermine, 1);
  seite->addWidget(terminBauen());
  seite->addWidget(fussBauen());
  resize(sizeHint().expandedTo(QSize(820, 600)));
}

void TV_Terminverwaltung::setzen(QGridLayout* gitter, int zeile, int spalte, size_t index,
                                 const QString& titel) {
  gitter->addWidget(beschriften(titel, sevt[index]), zeile, spalte);
  gitter->addWidget(sevt[index], zeile, spalte + 1);
}

QWidget* TV_Terminverwaltung::filterBauen() {
  const QStringList ansichten = {"Allgemeine Termine", "Volkabhängige Termine"};
  auto* wahl = new QHBoxLayout;
  for (size_t i = 0; i < opti.size(); ++i) {
    opti[i] = new QRadioButton(ansichten.at(static_cast<qsizetype>(i)));
    opti[i]->setObjectName("opti_" + QString::number(i));
    wahl->addWidget(opti[i]);
  }
  wahl->addStretch(1);

  auto* rahmen = new QGroupBox("Termine anzeigen, eingeschränkt auf...");
  auto* gitter = new QGridLayout(rahmen);
  gitter->addLayout(wahl, 0, 0, 1, 4);
  setzen(gitter, 1, 0, NurVolk, "...die Volknummer");
  setzen(gitter, 2, 0, NurTermin, "...die Terminart");
  setzen(gitter, 3, 0, NurErledigt, "...den Erledigungs-Status");
  setzen(gitter, 1, 2, Von, "...Termindatum vom");
  setzen(gitter, 2, 2, Bis, "...Termindatum bis");
  gitter->setColumnStretch(1, 3);
  gitter->setColumnStretch(3, 2);
  return rahmen;
}

QWidget* TV_Terminverwaltung::terminBauen() {
  auto* rahmen = new QGroupBox("Termin");
  auto* gitter = new QGridLayout(rahmen);
  setzen(gitter, 0, 0, Datum, "Datum");
  setzen(gitter, 1, 0, InTagen, "Heute in...");
  setzen(gitter, 2, 0, Erledigt, "Erledigt (J/N)");
  setzen(gitter, 0, 2, Termin, "Termin");
  setzen(gitter, 1, 2, Volk, "Volknummer");
  setzen(gitter, 2, 2, Standort, "oder alle Völker am Standort");
  gitter->addWidget(knoepfeBauen(), 3, 0, 1, 4);
  gitter->setColumnStretch(1, 2);
  gitter->setColumnStretch(3, 3);
  QWidget* vorher = nullptr;
  for (const size_t i : {Datum, InTagen, Termin, Erledigt, Volk, Standort}) {
    if (vorher != nullptr) setTabOrder(vorher, sevt[i]);
    vorher = sevt[i];
  }
  return rahmen;
}

QWidget* TV_Terminverwaltung::knoepfeBauen() {
  neu[0] = knopf("&Neu", "neu_0");
  neu[0]->setDefault(true);
  neu[1] = knopf("&Ändern", "neu_1");
  löschen = knopf("&Löschen", QString("löschen"));
  lschalleerledigte = knopf("Alle als erledigt markierte Termine löschen", "lschalleerledigte");
  auto* leiste = new QWidget;
  auto* zeile = new QHBoxLayout(leiste);
  zeile->setContentsMargins(0, 0, 0, 0);
  for (QPushButton* k : {neu[0], neu[1], löschen}) zeile->addWidget(k);
  zeile->addStretch(1);
  zeile->addWidget(lschalleerledigte);
  return leiste;
}

QWidget* TV_Terminverwaltung::fussBauen() {
  ok = knopf("Aktuelle &offene Termine", "ok");
  hilfe = knopf("&Hilfe", "hilfe");
  schließen = knopf("&Schließen", QString("schließen"));
  auto* leiste = new QWidget;
  auto* zeile = new QHBoxLayout(leiste);
  zeile->setContentsMargins(0, 0, 0, 0);
  zeile->addWidget(ok);
  zeile->addStretch(1);
  zeile->addWidget(hilfe);
  zeile->addWidget(schließen);
  return leiste;
}

void TV_Terminverwaltung::verbinden() {
  Ereignis::wenn(litermine, &Grid::zeileGewechselt, this, [this](int z) { zeileZeigen(z); });
  Ereignis::wenn(litermine, &Grid::zeileAngeklickt, this, [this](int z) { zeileZeigen(z); });
  Ereignis::wenn(litermine, &Grid::zeileDoppelgeklickt, this, [this](int zeile) {
    zeileZeigen(zeile);
    sevt[Erledigt]->setInhalt("J");
    speichern(false);
  });
  Ereignis::wenn(sevt[InTagen], &Eingabefeld::inhaltGeaendert, this, [this] { tageGeaendert(); });
  Ereignis::wenn(sevt[Datum], &Eingabefeld::inhaltGeaendert, this, [this] { datumGeaendert(); });
  Ereignis::wenn(neu[0], &QPushButton::clicked, this, [this] { speichern(true); });
  Ereignis::wenn(neu[1], &QPushButton::clicked, this, [this] { speichern(false); });
  Ereignis::wenn(löschen, &QPushButton::clicked, this, [this] { loeschen(); });
  Ereignis::wenn(lschalleerledigte, &QPushButton::clicked, this, [this] { erledigteLoeschen(); });
  Ereignis::wenn(ok, &QPushButton::clicked, this, [this] { aktuelleTermine(); });
  Ereignis::wenn(hilfe, &QPushButton::clicked, this, [this] { hilfeZeigen(); });
  Ereignis::wenn(schließen, &QPushButton::clicked, this, [this] { accept(); });
  filterVerbinden();
}

void TV_Terminverwaltung::filterVerbinden() {
  for (QRadioButton* o : opti)
    Ereignis::wenn(o, &QRadioButton::clicked, this, [this] { listeLesen(); });
  for (size_t i = NurVolk; i <= Bis; ++i) {
    sevt[i]->installEventFilter(this);
    Ereignis::wenn(sevt[i], &Eingabefeld::verlassen, this, [this, i] { filterPruefen(i); });
  }
}

// Keeps the filter's text for the comparison on leaving.
bool TV_Terminverwaltung::eventFilter(QObject* objekt, QEvent* event) {
  if (event->type() == QEvent::FocusIn &&
      static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
    for (size_t i = NurVolk; i <= Bis; ++i)
      if (objekt == sevt[i]) m_vorher[i] = sevt[i]->inhalt();
  return Formular::eventFilter(objekt, event);
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
  laden();
  Formular::zeigen();
}

void TV_Terminverwaltung::laden() {
  m_db = TZ_Variablen::Arbeitsbereich.OpenDatabase(TZ_Variablen::DatenbankPfad);
  einrichten();
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

// The flag follows the row that is shown; without one it begins anew.
void TV_Terminverwaltung::eingabenSetzen() {
  const int zeile = litermine->aktuelleZeile();
  if (sevt[Datum]->inhalt().isEmpty()) sevt[Datum]->setInhalt(HeuteText);
  sevt[Erledigt]->setInhalt(zeile < 0 ? "N" : litermine->zelle(zeile, "Erledigt"));
  sevt[Standort]->clear();
  listenFuellen();
}

void TV_Terminverwaltung::filterPruefen(size_t index) {
  if (sevt[index]->inhalt() == m_vorher[index]) return;
  m_vorher[index] = sevt[index]->inhalt();
  listeLesen();
}

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
  litermine->setDaten(Terminverwaltung::liste(m_db, filter));
}

void TV_Terminverwaltung::zeileZeigen(int zeile) {
  if (zeile < 0) return;
  sevt[Datum]->setInhalt(litermine->zelle(zeile, "Datum"));
  sevt[Termin]->setInhalt(litermine->zelle(zeile, "Termin"));
  sevt[Erledigt]->setInhalt(litermine->zelle(zeile, "Erledigt"));
  sevt[Volk]->setInhalt(
      Terminverwaltung::volknummer(m_db, litermine->wert(zeile, "Volk_ID").toLongLong()));
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
    return Meldungen::Hinweis(Terminverwaltung::abgelehntText(pruefung.gruende), this);
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
                            ? Terminverwaltung::amStandortEintragen(m_db, daten)
                            : Terminverwaltung::speichern(m_db, daten, pruefung.volkId, alt);
  listeLesen();
  litermine->setAktuelleZeile(litermine->findeZeile("ID = " + QString::number(neueId)));
  Tastenton();
  eingabenSetzen();
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

// What was closed there shows here at once.
void TV_Terminverwaltung::aktuelleTermine() {
  TV_Starttermine(this).zeigen();
  const int zeile = litermine->aktuelleZeile();
  const qint64 vorher = zeile < 0 ? 0 : id(zeile);
  listeLesen();
  if (vorher != 0)
    litermine->setAktuelleZeile(litermine->findeZeile("ID = " + QString::number(vorher)));
}

void TV_Terminverwaltung::done(int ergebnis) {
  m_db.Close();
  Formular::done(ergebnis);
}
