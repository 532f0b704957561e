// How the calendar is laid out and wired.

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "planning/forms/TV_Terminverwaltung.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Rollbereich.h"

using Bauteile::knopfOhneEnter;

void TV_Terminverwaltung::aufbauen() {
  for (size_t i = 0; i < m_sevt.size(); ++i) {
    m_sevt[i] = new Eingabefeld;
    m_sevt[i]->setObjectName("sevt_" + QString::number(i));
  }
  m_litermine = new Grid;
  m_litermine->setObjectName("litermine");
  m_litermine->setAccessibleName("Termine");
  m_litermine->setLayoutSchlüssel("tv_terminverwaltung_litermine");
  m_litermine->setSelectionMode(QAbstractItemView::SingleSelection);
  for (const char* spalte : {"Volk_ID", "ID"}) m_litermine->setSpalteVerborgen(spalte, true);
  m_ok = knopfOhneEnter("Aktuelle &offene Termine", "ok");
  m_ausgeblendet = new QLabel;
  m_ausgeblendet->setObjectName("ausgeblendet");

  zusammensetzen(Bauteile::untereinander({{new Rollbereich(filterBauen())},
                                          {m_litermine, 1},
                                          {new Rollbereich(terminBauen())},
                                          {knöpfeBauen()}}),
                 {.links = {m_ok, m_ausgeblendet}, .ohneEnter = true});
  reihenfolgeSetzen();
  setWunschgröße(110, 42);
}

void TV_Terminverwaltung::setzen(QGridLayout* gitter, int zeile, int spalte, size_t index,
                                 const QString& titel) {
  gitter->addWidget(beschriften(titel, m_sevt[index]), zeile, spalte);
  gitter->addWidget(m_sevt[index], zeile, spalte + 1);
}

QWidget* TV_Terminverwaltung::filterBauen() {
  const QStringList ansichten = {"Allgemeine Termine", "Volkabhängige Termine"};
  auto* wahl = new QHBoxLayout;
  for (size_t i = 0; i < m_opti.size(); ++i) {
    m_opti[i] = new QRadioButton(ansichten.at(static_cast<qsizetype>(i)));
    m_opti[i]->setObjectName("opti_" + QString::number(i));
    wahl->addWidget(m_opti[i]);
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
  gitter->setColumnStretch(1, 2);
  gitter->setColumnStretch(3, 3);
  return rahmen;
}

QWidget* TV_Terminverwaltung::knöpfeBauen() {
  m_neu[0] = knopfOhneEnter("&Neu", "neu_0");
  m_neu[0]->setDefault(true);
  m_neu[1] = knopfOhneEnter("&Ändern", "neu_1");
  m_löschen = knopfOhneEnter("&Löschen", QString("löschen"));
  m_lschalleerledigte =
      knopfOhneEnter("Alle als erledigt markierte Termine löschen", "lschalleerledigte");
  m_neu[0]->setToolTip("Die Eingaben als neuen Termin eintragen");
  m_neu[1]->setToolTip("Den in der Liste gewählten Termin ändern");
  m_löschen->setToolTip("Den in der Liste gewählten Termin löschen");
  m_lschalleerledigte->setToolTip("In allen Jahren und beiden Ansichten");
  return Bauteile::leiste({m_neu[0], m_neu[1], m_löschen}, {m_lschalleerledigte});
}

// From the filters over the list to the inputs, then the buttons.
void TV_Terminverwaltung::reihenfolgeSetzen() {
  QList<QWidget*> folge = {m_opti[0], m_opti[1]};
  for (size_t i = NurVolk; i <= Bis; ++i) folge << m_sevt[i];
  folge << m_litermine;
  for (const size_t i : {Datum, InTagen, Erledigt, Termin, Volk, Standort}) folge << m_sevt[i];
  folge << m_neu[0] << m_neu[1] << m_löschen << m_lschalleerledigte;
  setTabfolge(folge);
}

void TV_Terminverwaltung::verbinden() {
  Ereignis::wenn(m_litermine, &Grid::zeileGewechselt, this, [this](int z) { zeileZeigen(z); });
  Ereignis::wenn(m_litermine, &Grid::zeileAngeklickt, this, [this](int z) { zeileZeigen(z); });
  Ereignis::wenn(m_litermine, &Grid::zeileDoppelgeklickt, this, [this](int zeile) {
    zeileZeigen(zeile);
    m_sevt[Erledigt]->setInhalt("J");
    speichern(false);
  });
  Ereignis::wenn(m_sevt[InTagen], &Eingabefeld::inhaltNeu, this, [this] { tageGeändert(); });
  Ereignis::wenn(m_sevt[Datum], &Eingabefeld::inhaltNeu, this, [this] { datumGeändert(); });
  Ereignis::wenn(m_neu[0], &QPushButton::clicked, this, [this] { speichern(true); });
  Ereignis::wenn(m_neu[1], &QPushButton::clicked, this, [this] { speichern(false); });
  Ereignis::wenn(m_löschen, &QPushButton::clicked, this, [this] { terminLöschen(); });
  Ereignis::wenn(m_lschalleerledigte, &QPushButton::clicked, this, [this] { erledigteLöschen(); });
  Ereignis::wenn(m_ok, &QPushButton::clicked, this, [this] { aktuelleTermine(); });
  filterVerbinden();
}

void TV_Terminverwaltung::filterVerbinden() {
  for (QRadioButton* o : m_opti)
    Ereignis::wenn(o, &QRadioButton::clicked, this, [this] { listeLesen(); });
  for (size_t i = NurVolk; i <= Bis; ++i)
    Ereignis::wenn(m_sevt[i], &Eingabefeld::verlassen, this, [this, i] { filterPrüfen(i); });
}
