#include "colonies/forms/TV_Selektieren.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "core/globals.h"
#include "core/main_list.h"
#include "data/Pickliste.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Meldungen.h"
#include "platform/controls/Rollbereich.h"

using Selektion::Regel;
using TZ_Variablen::EinstellungenZahl;

namespace {

// The slots of the two check boxes.
constexpr std::array<Zahlslot, 2> KonSlot = {Zahlslots.selektionAlteLöschen,
                                             Zahlslots.selektionNurBestand};
constexpr size_t Bezug = 5;
constexpr size_t Zahl = 6;

template <typename T>
T* benannt(T* control, const QString& name, size_t index) {
  control->setObjectName(name + u'_' + QString::number(index));
  return control;
}

}  // namespace

TV_Selektieren::TV_Selektieren(QWidget* öffner)
    : Datenformular("TV_Selektieren", "Völker selektieren", öffner) {
  aufbauen();
}

void TV_Selektieren::aufbauen() {
  auto* regeln = Bauteile::untereinander({{vorgabenBauen()}, {regelnBauen()}, {new QWidget, 1}});
  zusammensetzen(new Rollbereich(regeln),
                 {.links = {anzahlBauen()}, .hilfe = "comhilfe", .schließen = "schliessen"});
  schließknopf()->setDefault(true);
  verbinden();
  reihenfolgeSetzen();
}

QWidget* TV_Selektieren::vorgabenBauen() {
  m_kon[0] = benannt(new QCheckBox("Alte Selektion vor neuer Selektion löschen"), "kon", 0);
  m_kon[1] =
      benannt(new QCheckBox(
                  "Die Selektion bezieht sich nur auf die aktuell im Bestand befindlichen Völker"),
              "kon", 1);
  auto* rahmen = new QGroupBox("Vorgaben");
  auto* zeilen = new QVBoxLayout(rahmen);
  for (QCheckBox* k : m_kon) zeilen->addWidget(k);
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
    const Selektion::Regel& regel = Selektion::regeln().at(index);
    const int nummer = regel.sevt;
    auto* eingabe = benannt(new Eingabefeld, "sevt", static_cast<size_t>(nummer));
    eingabe->setAccessibleName(regel.wort.section(u' ', 1));  // without its article
    m_sevt[static_cast<size_t>(nummer)] = eingabe;
    gitter->addWidget(eingabe, index, 1);
  }
  regelBauen(8, gitter, 7, 0);
  zahlBauen(gitter, 7);
  gitter->setColumnStretch(1, 1);
  gitter->setVerticalSpacing(fontMetrics().height() / 6);
  return rahmen;
}

void TV_Selektieren::regelBauen(int index, QGridLayout* gitter, int zeile, int spalte) {
  const auto i = static_cast<size_t>(index);
  m_entselekt[i] =
      benannt(new QPushButton(Selektion::regeln().at(index).beschriftung), "entselekt", i);
  gitter->addWidget(m_entselekt[i], zeile, spalte);
}

void TV_Selektieren::zahlBauen(QGridLayout* gitter, int zeile) {
  m_sevt[Bezug] = benannt(new Eingabefeld, "sevt", Bezug);
  m_sevt[Bezug]->setAccessibleName("Bezug");
  m_sevt[Zahl] = benannt(new Eingabefeld, "sevt", Zahl);
  m_sevt[Zahl]->setAccessibleName("Zahl, die der Bezug hat");
  auto* paar = new QHBoxLayout;
  paar->addWidget(m_sevt[Bezug], 3);
  paar->addWidget(new QLabel("="));
  paar->addWidget(m_sevt[Zahl], 1);
  gitter->addLayout(paar, zeile, 1);
}

// It has room for the longest sentence from the first on: a rule must not widen the window.
QWidget* TV_Selektieren::anzahlBauen() {
  constexpr Selektion::Anzahl Viele{.alle = 8888, .abgang = 8888};
  m_anzahl = new QLabel(Selektion::anzahlText(Viele));
  m_anzahl->setObjectName("anzahl");
  m_anzahl->setMargin(m_anzahl->fontMetrics().height() / 3);
  m_anzahl->setMinimumWidth(m_anzahl->sizeHint().width());
  return m_anzahl;
}

void TV_Selektieren::verbinden() {
  for (int i = 0; i < Selektion::regeln().size(); ++i)
    Ereignis::wenn(m_entselekt[static_cast<size_t>(i)], &QPushButton::clicked, this,
                   [this, i] { selektieren(i); });
  for (Eingabefeld* eingabe : m_sevt) eingabe->installEventFilter(this);
  for (QCheckBox* k : m_kon) k->installEventFilter(this);
}

// Row by row, each button before its input.
void TV_Selektieren::reihenfolgeSetzen() {
  QList<QWidget*> folge = {m_kon[0], m_kon[1], m_entselekt[0], m_entselekt[1], m_entselekt[7]};
  for (const size_t i : {2, 3, 4, 5, 6}) folge << m_entselekt[i] << m_sevt[i - 2];
  folge << m_entselekt[8] << m_sevt[Bezug] << m_sevt[Zahl];
  setTabfolge(folge);
}

// Enter in an input does what the button beside it does.
bool TV_Selektieren::eventFilter(QObject* objekt, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    QPushButton* vorgabe = schließknopf();
    for (size_t i = 0; i < m_sevt.size(); ++i)
      if (objekt == m_sevt[i]) vorgabe = i < Bezug ? m_entselekt[i + 2] : m_entselekt[8];
    vorgabe->setDefault(true);
  }
  return Datenformular::eventFilter(objekt, event);
}

void TV_Selektieren::füllen() {
  for (size_t i = 0; i < m_kon.size(); ++i)
    m_kon[i]->setChecked(EinstellungenZahl[KonSlot[i]] != 0);
  eingabenLeeren();
  listenFüllen();
  anzahlZeigen();
  m_sevt[0]->fokussieren();
}

void TV_Selektieren::eingabenLeeren() {
  const std::vector<Spalte> felder = m_db.Felder("Bienenvolk");
  for (size_t i = 0; i < Bezug; ++i) {
    Eingabefeld::Beschreibung text;
    for (const Spalte& feld : felder)
      if (feld.name == Selektion::feldVon(static_cast<int>(i))) text.maxLänge = feld.länge;
    m_sevt[i]->einrichten(text);
  }
  Eingabefeld::Beschreibung bezug;
  bezug.art = Eingabefeld::Art::Auswahl;
  bezug.auswahl = Selektion::zahlfelder();
  m_sevt[Bezug]->einrichten(bezug);
  Eingabefeld::Beschreibung zahl;
  zahl.art = Eingabefeld::Art::Dezimal;
  zahl.nachkommastellen = 4;
  zahl.maxLänge = 10;
  m_sevt[Zahl]->einrichten(zahl);
}

void TV_Selektieren::listenFüllen() {
  for (size_t i = 0; i < Bezug; ++i)
    m_sevt[i]->setListe(Pickliste::lesen(m_db, Selektion::listenAnweisung(static_cast<int>(i))));
}

void TV_Selektieren::anzahlZeigen() {
  m_anzahl->setText(Selektion::anzahlText(Selektion::selektierte(m_db)));
}

void TV_Selektieren::selektieren(int index) {
  Selektion::Auftrag auftrag;
  auftrag.regel = index;
  for (size_t i = 0; i < m_sevt.size(); ++i) auftrag.sevt[i] = m_sevt[i]->inhalt();
  auftrag.alteLöschen = m_kon[0]->isChecked();
  auftrag.nurBestand = m_kon[1]->isChecked();
  const QString grund = Selektion::prüfen(auftrag);
  if (!grund.isEmpty()) {
    Meldungen::Hinweis(grund, this);
    m_sevt[static_cast<size_t>(Selektion::regeln().at(index).sevt)]->fokussieren();
    return;
  }
  const Ereignis::Sanduhr sanduhr;
  Selektion::ausführen(m_db, auftrag);
  hauptliste()->datenvölkerlesen();
  anzahlZeigen();
}

void TV_Selektieren::done(int ergebnis) {
  for (size_t i = 0; i < m_kon.size(); ++i)
    EinstellungenZahl[KonSlot[i]] = m_kon[i]->isChecked() ? 1 : 0;
  Datenformular::done(ergebnis);
}
