// How the calendar is laid out and wired.

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "planning/forms/TV_Terminverwaltung.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"

using Bauteile::knopfOhneEnter;

void TV_Terminverwaltung::aufbauen() {
  for (size_t i = 0; i < sevt.size(); ++i) {
    sevt[i] = new Eingabefeld;
    sevt[i]->setObjectName("sevt_" + QString::number(i));
  }
  litermine = new Grid;
  litermine->setObjectName("litermine");
  litermine->setAccessibleName("Termine");
  litermine->setLayoutSchluessel("tv_terminverwaltung_litermine");
  litermine->setSelectionMode(QAbstractItemView::SingleSelection);
  for (const char* spalte : {"Volk_ID", "ID"}) litermine->setSpalteVerborgen(spalte, true);
  litermine->setMinimumHeight(litermine->fontMetrics().height() * 8);

  auto* seite = new QVBoxLayout(this);
  seite->addWidget(filterBauen());
  seite->addWidget(litermine, 1);
  seite->addWidget(terminBauen());
  seite->addWidget(fussBauen());
  reihenfolgeSetzen();
  resize(sizeHint().expandedTo(QSize(std::max(900, fontMetrics().height() * 60), 640)));
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
  return rahmen;
}

QWidget* TV_Terminverwaltung::knoepfeBauen() {
  neu[0] = knopfOhneEnter("&Neu", "neu_0");
  neu[0]->setDefault(true);
  neu[1] = knopfOhneEnter("&Ändern", "neu_1");
  löschen = knopfOhneEnter("&Löschen", QString("löschen"));
  lschalleerledigte =
      knopfOhneEnter("Alle als erledigt markierte Termine löschen", "lschalleerledigte");
  neu[0]->setToolTip("Die Eingaben als neuen Termin eintragen");
  neu[1]->setToolTip("Den in der Liste gewählten Termin ändern");
  löschen->setToolTip("Den in der Liste gewählten Termin löschen");
  lschalleerledigte->setToolTip("In allen Jahren und beiden Ansichten");
  auto* leiste = new QWidget;
  auto* zeile = new QHBoxLayout(leiste);
  zeile->setContentsMargins(0, 0, 0, 0);
  for (QPushButton* k : {neu[0], neu[1], löschen}) zeile->addWidget(k);
  zeile->addStretch(1);
  zeile->addWidget(lschalleerledigte);
  return leiste;
}

QWidget* TV_Terminverwaltung::fussBauen() {
  ok = knopfOhneEnter("Aktuelle &offene Termine", "ok");
  hilfe = knopfOhneEnter("&Hilfe", "hilfe");
  schließen = knopfOhneEnter("&Schließen", QString("schließen"));
  auto* leiste = new QWidget;
  auto* zeile = new QHBoxLayout(leiste);
  zeile->setContentsMargins(0, 0, 0, 0);
  m_ausgeblendet = new QLabel;
  m_ausgeblendet->setObjectName("ausgeblendet");
  zeile->addWidget(ok);
  zeile->addWidget(m_ausgeblendet);
  zeile->addStretch(1);
  zeile->addWidget(hilfe);
  zeile->addWidget(schließen);
  return leiste;
}

// From the filters over the list to the inputs, then the buttons.
void TV_Terminverwaltung::reihenfolgeSetzen() {
  QList<QWidget*> folge = {opti[0], opti[1]};
  for (size_t i = NurVolk; i <= Bis; ++i) folge << sevt[i];
  folge << litermine;
  for (const size_t i : {Datum, InTagen, Erledigt, Termin, Volk, Standort}) folge << sevt[i];
  folge << neu[0] << neu[1] << löschen << lschalleerledigte << ok << hilfe << schließen;
  Bauteile::tabfolge(folge);
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
  for (size_t i = NurVolk; i <= Bis; ++i)
    Ereignis::wenn(sevt[i], &Eingabefeld::verlassen, this, [this, i] { filterPruefen(i); });
}
