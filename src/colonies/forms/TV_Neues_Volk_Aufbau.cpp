// How the form is laid out and wired.

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include "colonies/forms/TV_Neues_Volk.h"
#include "data/forms/Feldbeschreibung.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Rollbereich.h"

using Bauteile::knopf;

namespace {

// Numbers and dates need little room and look alike, texts get as much as there is.
void breiteSetzen(Eingabefeld* feld, const Volkfeld& f) {
  if (f.art == Verwaltung::Art::Text) return;
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
  m_kon = new QCheckBox("Volk aktuell im Bestand");
  m_kon->setObjectName("kon");
  m_kon->setChecked(true);
  m_reiter = new QTabWidget;
  m_reiter->setObjectName("reiter");
  m_reiter->setAccessibleName("Reiter der Volkdaten");
  for (int i = 0; i < volkreiter().size(); ++i)
    m_reiter->addTab(new Rollbereich(reiterBauen(i)), volkreiter().at(i));

  knöpfeBauen();
  zusammensetzen(m_reiter, {.links = {m_ok, m_oknächster[0], m_oknächster[1], m_standard},
                            .hilfe = "comhilfe",
                            .schließen = "cmdabbrechen",
                            .wort = "&Abbrechen"});
  knöpfeVerbinden();
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
  if (nummer == volkgruppeBestand()) zeilen->addRow(m_kon);
  for (const Volkfeld& f : volkfelder())
    if (f.gruppe == nummer) feldBauen(f, zeilen);
  return rahmen;
}

void TV_Neues_Volk::feldBauen(const Volkfeld& f, QFormLayout* zeilen) {
  auto* eingabe = new Eingabefeld;
  eingabe->setObjectName(feldname(f));
  eingabe->einrichten(Verwaltung::beschreibung(f));
  breiteSetzen(eingabe, f);
  zeilen->addRow(beschriften(f.beschriftung, eingabe), eingabe);
  const auto i = static_cast<size_t>(f.index);
  (f.array == Volkarray::sevt ? m_sevt[i] : m_sevtx[i]) = eingabe;
}

void TV_Neues_Volk::knöpfeBauen() {
  m_ok = knopf("&OK", "ok");
  m_ok->setDefault(true);
  m_oknächster[0] = knopf("Speichern, &nächstes Volk", "oknächster_0");
  m_oknächster[1] = knopf("Speichern, &voriges Volk", "oknächster_1");
  m_standard = knopf("Als Standard si&chern", "standard");
  m_standard->setToolTip("Die Eingaben werden bei jedem neuen Volk vorgegeben");
}

void TV_Neues_Volk::knöpfeVerbinden() {
  Ereignis::wenn(m_ok, &QPushButton::clicked, this, [this] {
    if (speichern()) accept();
  });
  for (int i : {0, 1})
    Ereignis::wenn(m_oknächster[static_cast<size_t>(i)], &QPushButton::clicked, this,
                   [this, i] { speichernUndWeiter(i); });
  Ereignis::wenn(m_standard, &QPushButton::clicked, this, [this] { standardSichern(); });
}

// Through the frames of each tab in their order, then the buttons.
void TV_Neues_Volk::reihenfolgeSetzen() {
  QList<QWidget*> folge;
  for (int g = 0; g < volkgruppen().size(); ++g) {
    if (g == volkgruppeBestand()) folge << m_kon;
    for (const Volkfeld& f : volkfelder())
      if (f.gruppe == g) folge << feld(f);
  }
  setTabfolge(folge, {m_reiter->tabBar()});
}
