// How the form is laid out and wired.

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include "colonies/forms/TV_Neues_Volk.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"

using Bauteile::knopf;

namespace {

Eingabefeld::Beschreibung beschreibung(const Volkfeld& f) {
  Eingabefeld::Beschreibung b;
  b.maxLaenge = f.maxLaenge;
  b.nachkommastellen = f.nachkommastellen;
  b.einheit = f.einheit;
  switch (f.art) {
    case Volkfeld::Art::Text:
      b.art = Eingabefeld::Art::Text;
      break;
    case Volkfeld::Art::Ganzzahl:
      b.art = Eingabefeld::Art::Ganzzahl;
      b.bis = f.bis;
      break;
    case Volkfeld::Art::Dezimal:
    case Volkfeld::Art::Waehrung:
      b.art = Eingabefeld::Art::Dezimal;
      break;
    case Volkfeld::Art::Datum:
      b.art = Eingabefeld::Art::Datum;
      break;
  }
  return b;
}

// Numbers and dates need little room and look alike, texts get as much as there is.
void breiteSetzen(Eingabefeld* feld, const Volkfeld& f) {
  if (f.art == Volkfeld::Art::Text) return;
  constexpr int Zeichen = 14;
  constexpr int Knopf = 44;
  feld->ensurePolished();
  feld->setMaximumWidth(feld->fontMetrics().horizontalAdvance(u'0') * Zeichen + Knopf);
}

QString feldname(const Volkfeld& f) {
  return (f.array == Volkarray::sevt ? "sevt_" : "sevtx_") + QString::number(f.index);
}

}  // namespace

void TV_Neues_Volk::aufbauen() {
  kon = new QCheckBox("Volk aktuell im Bestand");
  kon->setObjectName("kon");
  kon->setChecked(true);
  reiter = new QTabWidget;
  reiter->setObjectName("reiter");
  reiter->setAccessibleName("Reiter der Volkdaten");
  for (int i = 0; i < volkreiter().size(); ++i) reiter->addTab(reiterBauen(i), volkreiter().at(i));

  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(reiter, 1);
  spalte->addWidget(knoepfeBauen());
  knoepfeVerbinden();
  reihenfolgeSetzen();
}

QWidget* TV_Neues_Volk::reiterBauen(int nummer) {
  auto* seite = new QWidget;
  auto* spalten = new QHBoxLayout(seite);
  for (int spalte = 0; spalte < 2; ++spalte) {
    auto* rahmen = new QVBoxLayout;
    for (int g = 0; g < volkgruppen().size(); ++g)
      if (volkgruppen().at(g).reiter == nummer && volkgruppen().at(g).spalte == spalte)
        rahmen->addWidget(gruppeBauen(g));
    rahmen->addStretch(1);
    spalten->addLayout(rahmen, 1);
  }
  return seite;
}

QWidget* TV_Neues_Volk::gruppeBauen(int nummer) {
  auto* rahmen = new QGroupBox(volkgruppen().at(nummer).titel);
  auto* zeilen = new QFormLayout(rahmen);
  zeilen->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  if (nummer == volkgruppeBestand()) zeilen->addRow(kon);
  for (const Volkfeld& f : volkfelder())
    if (f.gruppe == nummer) feldBauen(f, zeilen);
  return rahmen;
}

void TV_Neues_Volk::feldBauen(const Volkfeld& f, QFormLayout* zeilen) {
  auto* eingabe = new Eingabefeld;
  eingabe->setObjectName(feldname(f));
  eingabe->einrichten(beschreibung(f));
  breiteSetzen(eingabe, f);
  zeilen->addRow(beschriften(f.beschriftung, eingabe), eingabe);
  const auto i = static_cast<size_t>(f.index);
  (f.array == Volkarray::sevt ? sevt[i] : sevtx[i]) = eingabe;
}

QWidget* TV_Neues_Volk::knoepfeBauen() {
  ok = knopf("&OK", "ok");
  ok->setDefault(true);
  oknächster[0] = knopf("Speichern, &nächstes Volk", "oknächster_0");
  oknächster[1] = knopf("Speichern, &voriges Volk", "oknächster_1");
  standard = knopf("Als Standard si&chern", "standard");
  standard->setToolTip("Die Eingaben werden bei jedem neuen Volk vorgegeben");
  comhilfe = knopf("&Hilfe", "comhilfe");
  cmdabbrechen = knopf("&Abbrechen", "cmdabbrechen");

  auto* leiste = new QWidget;
  auto* gitter = new QGridLayout(leiste);
  gitter->setContentsMargins(0, 0, 0, 0);
  int spalte = 0;
  for (QPushButton* k : {ok, oknächster[0], oknächster[1], standard})
    gitter->addWidget(k, 0, spalte++);
  gitter->setColumnStretch(spalte++, 1);
  gitter->addWidget(comhilfe, 0, spalte++);
  gitter->addWidget(cmdabbrechen, 0, spalte);
  return leiste;
}

void TV_Neues_Volk::knoepfeVerbinden() {
  Ereignis::wenn(ok, &QPushButton::clicked, this, [this] {
    if (speichern()) accept();
  });
  for (int i : {0, 1})
    Ereignis::wenn(oknächster[static_cast<size_t>(i)], &QPushButton::clicked, this,
                   [this, i] { speichernUndWeiter(i); });
  Ereignis::wenn(standard, &QPushButton::clicked, this, [this] { standardSichern(); });
  Ereignis::wenn(comhilfe, &QPushButton::clicked, this, [this] { hilfeZeigen(); });
  Ereignis::wenn(cmdabbrechen, &QPushButton::clicked, this, [this] { reject(); });
}

// Through the frames of each tab in their order, then the buttons.
void TV_Neues_Volk::reihenfolgeSetzen() {
  QList<QWidget*> folge;
  for (int g = 0; g < volkgruppen().size(); ++g) {
    if (g == volkgruppeBestand()) folge << kon;
    for (const Volkfeld& f : volkfelder())
      if (f.gruppe == g) folge << feld(f);
  }
  folge << ok << oknächster[0] << oknächster[1] << standard << comhilfe << cmdabbrechen
        << reiter->tabBar();
  Bauteile::tabfolge(folge);
}
