// How the form is laid out and wired.

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "data/forms/Feldbeschreibung.h"
#include "planning/forms/TV_Arplanoptionen.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Rollbereich.h"

using Bauteile::knopf;

void TV_Arplanoptionen::aufbauen() {
  m_liarplan = new Grid;
  m_liarplan->setObjectName("liarplan");
  m_liarplan->setAccessibleName("Arbeitsplan-Optionen");
  m_liarplan->setSelectionMode(QAbstractItemView::SingleSelection);
  m_liarplan->setLayoutSchlüssel("TOVA/tv_arplanoptionen_liarplan/ColWidths");
  // Headed as the input where the field's name is none to read.
  for (const Verwaltung::Feld& feld : optionsfelder())
    if (feld.feld.contains(u'_')) m_liarplan->setÜberschrift(feld.feld, feld.beschriftung);

  m_calender = knopf({}, "calender");
  m_terminverwaltung = knopf("&Terminverwaltung", "terminverwaltung");
  führtZu(m_terminverwaltung, "XV_Termine");
  zusammensetzen(
      Bauteile::untereinander(
          {{m_liarplan, 1},
           {new Rollbereich(Bauteile::untereinander({{feldgruppeBauen()}, {hinweisBauen()}}))},
           {knöpfeBauen()}}),
      {.links = {m_calender, m_terminverwaltung}, .schließen = "cmdschließen"});
  verbinden();
  reihenfolgeSetzen();
  setWunschgröße(150, 38);  // all columns and the options of a year
}

// Two columns, read downwards.
QWidget* TV_Arplanoptionen::feldgruppeBauen() {
  constexpr int Höhe = 4;
  auto* rahmen = new QGroupBox("Arbeitsplan-Option");
  auto* gitter = new QGridLayout(rahmen);
  for (size_t i = 0; i < m_sevt.size(); ++i) {
    const Verwaltung::Feld& feld = optionsfelder()[i];
    const int zeile = static_cast<int>(i) % Höhe;
    const int spalte = static_cast<int>(i) / Höhe * 3;
    auto* eingabe = new Eingabefeld;
    eingabe->setObjectName("sevt_" + QString::number(i));
    eingabe->einrichten(Verwaltung::beschreibung(feld));
    m_sevt[i] = eingabe;
    gitter->addWidget(beschriften(feld.beschriftung, eingabe), zeile, spalte);
    gitter->addWidget(eingabe, zeile, spalte + 1);
  }
  gitter->setColumnMinimumWidth(2, fontMetrics().averageCharWidth() * 2);
  gitter->setColumnStretch(1, 1);
  gitter->setColumnStretch(4, 1);
  return rahmen;
}

QWidget* TV_Arplanoptionen::knöpfeBauen() {
  m_neu[0] = knopf("&Neu", "neu_0");
  m_neu[0]->setDefault(true);
  m_neu[1] = knopf("&Ändern", "neu_1");
  m_löschen = knopf("&Löschen", "löschen");
  return Bauteile::leiste({m_neu[0], m_neu[1], m_löschen});
}

// Wraps, and keeps the height that the text needs at the form's width.
QWidget* TV_Arplanoptionen::hinweisBauen() {
  auto* hinweis = new QLabel(
      QString("Hinweis: Durch das Hinzufüngen, Ändern und Löschen von Arbeitsplanoptionen werden "
              "alle daraus resultierenden Termine automatisch berechnet und in die "
              "Terminverwaltung eingetragen. Durch das Löschen einer Arbeitsplan-Option werden die "
              "entsprechenden Termine gelöscht."));
  hinweis->setObjectName("hinweis");
  hinweis->setWordWrap(true);
  hinweis->setMinimumWidth(fontMetrics().averageCharWidth() * 90);
  hinweis->setMinimumHeight(hinweis->heightForWidth(hinweis->minimumWidth()));
  return hinweis;
}

void TV_Arplanoptionen::verbinden() {
  using Ereignis::wenn;
  wenn(m_liarplan, &Grid::zeileAngeklickt, this, [this](int zeile) { zeileZeigen(zeile); });
  wenn(m_liarplan, &Grid::zeileGewechselt, this, [this](int zeile) { zeileZeigen(zeile); });
  for (int i : {0, 1})
    wenn(m_neu[static_cast<size_t>(i)], &QPushButton::clicked, this, [this, i] { neu(i); });
  wenn(m_löschen, &QPushButton::clicked, this, [this] { löschen(); });
  wenn(m_calender, &QPushButton::clicked, this, [this] { alleBerechnen(); });
}

// From the list to the inputs, then the buttons.
void TV_Arplanoptionen::reihenfolgeSetzen() {
  QList<QWidget*> folge = {m_liarplan};
  for (Eingabefeld* feld : m_sevt) folge << feld;
  folge << m_neu[0] << m_neu[1] << m_löschen;
  setTabfolge(folge);
}
