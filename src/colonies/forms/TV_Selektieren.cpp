#include "colonies/forms/TV_Selektieren.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>

#include "core/globals.h"
#include "core/main_list.h"
#include "data/Pickliste.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Meldungen.h"

using Selektion::Regel;
using TZ_Variablen::EinstellungenZahl;

namespace {

// The slots of the two check boxes.
constexpr std::array<size_t, 2> KonSlot = {53, 52};
constexpr size_t Bezug = 5;
constexpr size_t Zahl = 6;

template <typename T>
T* benannt(T* control, const QString& name, size_t index) {
  control->setObjectName(name + u'_' + QString::number(index));
  return control;
}

}  // namespace

TV_Selektieren::TV_Selektieren(QWidget* oeffner)
    : Formular("TV_Selektieren", "Völker selektieren", oeffner) {
  aufbauen();
}

void TV_Selektieren::aufbauen() {
  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(vorgabenBauen());
  spalte->addWidget(regelnBauen());
  spalte->addWidget(anzahlBauen());
  spalte->addStretch(1);
  spalte->addWidget(fussBauen());
  verbinden();
  reihenfolgeSetzen();
}

QWidget* TV_Selektieren::vorgabenBauen() {
  kon[0] = benannt(new QCheckBox("Alte Selektion vor neuer Selektion löschen"), "kon", 0);
  kon[1] =
      benannt(new QCheckBox(
                  "Die Selektion bezieht sich nur auf die aktuell im Bestand befindlichen Völker"),
              "kon", 1);
  auto* rahmen = new QGroupBox("Vorgaben");
  auto* zeilen = new QVBoxLayout(rahmen);
  for (QCheckBox* k : kon) zeilen->addWidget(k);
  return rahmen;
}

// Each rule's input stands beside its button; the rules without one share the rows at the top.
QWidget* TV_Selektieren::regelnBauen() {
  auto* rahmen = new QGroupBox("Selektieren");
  auto* gitter = new QGridLayout(rahmen);
  regelBauen(0, gitter, 0, 0);
  regelBauen(1, gitter, 0, 1);
  regelBauen(7, gitter, 1, 0);
  for (const int index : {2, 3, 4, 5, 6}) {
    regelBauen(index, gitter, index, 0);
    const int nummer = Selektion::regeln().at(index).sevt;
    auto* eingabe = benannt(new Eingabefeld, "sevt", static_cast<size_t>(nummer));
    eingabe->setAccessibleName(Selektion::feldVon(nummer));
    sevt[static_cast<size_t>(nummer)] = eingabe;
    gitter->addWidget(eingabe, index, 1);
  }
  regelBauen(8, gitter, 7, 0);
  zahlBauen(gitter, 7);
  gitter->setColumnStretch(1, 1);
  return rahmen;
}

void TV_Selektieren::regelBauen(int index, QGridLayout* gitter, int zeile, int spalte) {
  const auto i = static_cast<size_t>(index);
  entselekt[i] =
      benannt(new QPushButton(Selektion::regeln().at(index).beschriftung), "entselekt", i);
  gitter->addWidget(entselekt[i], zeile, spalte);
}

void TV_Selektieren::zahlBauen(QGridLayout* gitter, int zeile) {
  sevt[Bezug] = benannt(new Eingabefeld, "sevt", Bezug);
  sevt[Bezug]->setAccessibleName("Bezug");
  sevt[Zahl] = benannt(new Eingabefeld, "sevt", Zahl);
  sevt[Zahl]->setAccessibleName("Zahl, die der Bezug hat");
  auto* paar = new QHBoxLayout;
  paar->addWidget(sevt[Bezug], 3);
  paar->addWidget(new QLabel("="));
  paar->addWidget(sevt[Zahl], 1);
  gitter->addLayout(paar, zeile, 1);
}

QWidget* TV_Selektieren::anzahlBauen() {
  anzahl = new QLabel;
  anzahl->setObjectName("anzahl");
  anzahl->setMargin(anzahl->fontMetrics().height() / 3);
  return anzahl;
}

QWidget* TV_Selektieren::fussBauen() {
  comhilfe = new QPushButton("&Hilfe");
  comhilfe->setObjectName("comhilfe");
  schliessen = new QPushButton("&Schließen");
  schliessen->setObjectName("schliessen");
  schliessen->setDefault(true);

  auto* leiste = new QWidget;
  auto* zeile = new QHBoxLayout(leiste);
  zeile->setContentsMargins(0, 0, 0, 0);
  zeile->addStretch(1);
  zeile->addWidget(comhilfe);
  zeile->addWidget(schliessen);
  return leiste;
}

void TV_Selektieren::verbinden() {
  for (int i = 0; i < Selektion::regeln().size(); ++i)
    Ereignis::wenn(entselekt[static_cast<size_t>(i)], &QPushButton::clicked, this,
                   [this, i] { selektieren(i); });
  Ereignis::wenn(comhilfe, &QPushButton::clicked, this, [this] { hilfeZeigen(); });
  Ereignis::wenn(schliessen, &QPushButton::clicked, this, [this] { accept(); });
  for (Eingabefeld* eingabe : sevt) eingabe->installEventFilter(this);
  for (QCheckBox* k : kon) k->installEventFilter(this);
}

// Row by row, each button before its input.
void TV_Selektieren::reihenfolgeSetzen() {
  QList<QWidget*> folge = {kon[0], kon[1], entselekt[0], entselekt[1], entselekt[7]};
  for (const size_t i : {2, 3, 4, 5, 6}) folge << entselekt[i] << sevt[i - 2];
  folge << entselekt[8] << sevt[Bezug] << sevt[Zahl] << comhilfe << schliessen;
  Bauteile::tabfolge(folge);
}

// Enter in an input does what the button beside it does.
bool TV_Selektieren::eventFilter(QObject* objekt, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    QPushButton* vorgabe = schliessen;
    for (size_t i = 0; i < sevt.size(); ++i)
      if (objekt == sevt[i]) vorgabe = i < Bezug ? entselekt[i + 2] : entselekt[8];
    vorgabe->setDefault(true);
  }
  return Formular::eventFilter(objekt, event);
}

void TV_Selektieren::zeigen() {
  const auto ende = qScopeGuard([this] { m_db.Close(); });
  laden();
  Formular::zeigen();
}

void TV_Selektieren::laden() {
  m_db = TZ_Variablen::Arbeitsbereich.OpenDatabase(TZ_Variablen::DatenbankPfad);
  for (size_t i = 0; i < kon.size(); ++i) kon[i]->setChecked(EinstellungenZahl[KonSlot[i]] != 0);
  eingabenLeeren();
  listenFuellen();
  anzahlZeigen();
  sevt[0]->setFocus();
}

void TV_Selektieren::eingabenLeeren() {
  const std::vector<Spalte> felder = m_db.Felder("Bienenvolk");
  for (size_t i = 0; i < Bezug; ++i) {
    Eingabefeld::Beschreibung text;
    for (const Spalte& feld : felder)
      if (feld.name == Selektion::feldVon(static_cast<int>(i))) text.maxLaenge = feld.laenge;
    sevt[i]->einrichten(text);
  }
  Eingabefeld::Beschreibung bezug;
  bezug.art = Eingabefeld::Art::Auswahl;
  bezug.auswahl = Selektion::zahlfelder();
  sevt[Bezug]->einrichten(bezug);
  Eingabefeld::Beschreibung zahl;
  zahl.art = Eingabefeld::Art::Dezimal;
  zahl.nachkommastellen = 4;
  zahl.maxLaenge = 10;
  sevt[Zahl]->einrichten(zahl);
}

void TV_Selektieren::listenFuellen() {
  for (size_t i = 0; i < Bezug; ++i)
    sevt[i]->setListe(Pickliste::lesen(m_db, Selektion::listenAnweisung(static_cast<int>(i))));
}

void TV_Selektieren::anzahlZeigen() {
  anzahl->setText(Selektion::anzahlText(Selektion::selektierte(m_db)));
}

void TV_Selektieren::selektieren(int index) {
  Selektion::Auftrag auftrag;
  auftrag.regel = index;
  for (size_t i = 0; i < sevt.size(); ++i) auftrag.sevt[i] = sevt[i]->inhalt();
  auftrag.alteLöschen = kon[0]->isChecked();
  auftrag.nurBestand = kon[1]->isChecked();
  const QString grund = Selektion::prüfen(auftrag);
  if (!grund.isEmpty()) {
    Meldungen::Hinweis(grund, this);
    sevt[static_cast<size_t>(Selektion::regeln().at(index).sevt)]->setFocus();
    return;
  }
  const Ereignis::Sanduhr sanduhr;
  Selektion::ausführen(m_db, auftrag);
  hauptliste()->datenvölkerlesen();
  anzahlZeigen();
}

void TV_Selektieren::done(int ergebnis) {
  for (size_t i = 0; i < kon.size(); ++i)
    EinstellungenZahl[KonSlot[i]] = kon[i]->isChecked() ? 1 : 0;
  Formular::done(ergebnis);
}
