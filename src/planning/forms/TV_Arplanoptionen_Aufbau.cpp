// How the form is laid out and wired.

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include "data/forms/Feldbeschreibung.h"
#include "planning/forms/TV_Arplanoptionen.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"

using Bauteile::knopf;

namespace {

// A row of buttons without a margin of its own.
QWidget* leiste(const QList<QWidget*>& links, const QList<QWidget*>& rechts) {
  auto* streifen = new QWidget;
  auto* zeile = new QHBoxLayout(streifen);
  zeile->setContentsMargins(0, 0, 0, 0);
  for (QWidget* w : links) zeile->addWidget(w);
  zeile->addStretch(1);
  for (QWidget* w : rechts) zeile->addWidget(w);
  return streifen;
}

}  // namespace

void TV_Arplanoptionen::aufbauen() {
  liarplan = new Grid;
  liarplan->setObjectName("liarplan");
  liarplan->setAccessibleName("Arbeitsplan-Optionen");
  liarplan->setSelectionMode(QAbstractItemView::SingleSelection);
  liarplan->setLayoutSchluessel("TOVA/tv_arplanoptionen_liarplan/ColWidths");
  // Headed as the input where the field's name is none to read.
  for (const Verwaltung::Feld& feld : optionsfelder())
    if (feld.feld.contains(u'_')) liarplan->setUeberschrift(feld.feld, feld.beschriftung);
  liarplan->setMinimumHeight(6 * fontMetrics().height() + 40);

  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(liarplan, 1);
  spalte->addWidget(feldgruppeBauen());
  spalte->addWidget(knoepfeBauen());
  spalte->addWidget(hinweisBauen());
  spalte->addWidget(fussBauen());
  verbinden();
  reihenfolgeSetzen();
  // Room for all columns and the options of a year, and never more than the screen has.
  const QSize frei = screen()->availableGeometry().size();
  resize(QSize(150 * fontMetrics().averageCharWidth(), 38 * fontMetrics().height())
             .boundedTo(frei * 9 / 10));
}

// Two columns, read downwards.
QWidget* TV_Arplanoptionen::feldgruppeBauen() {
  constexpr int Hoehe = 4;
  auto* rahmen = new QGroupBox("Arbeitsplan-Option");
  auto* gitter = new QGridLayout(rahmen);
  for (size_t i = 0; i < sevt.size(); ++i) {
    const Verwaltung::Feld& feld = optionsfelder()[i];
    const int zeile = static_cast<int>(i) % Hoehe;
    const int spalte = static_cast<int>(i) / Hoehe * 3;
    auto* eingabe = new Eingabefeld;
    eingabe->setObjectName("sevt_" + QString::number(i));
    eingabe->einrichten(Verwaltung::beschreibung(feld));
    sevt[i] = eingabe;
    gitter->addWidget(beschriften(feld.beschriftung, eingabe), zeile, spalte);
    gitter->addWidget(eingabe, zeile, spalte + 1);
  }
  gitter->setColumnMinimumWidth(2, fontMetrics().averageCharWidth() * 2);
  gitter->setColumnStretch(1, 1);
  gitter->setColumnStretch(4, 1);
  return rahmen;
}

QWidget* TV_Arplanoptionen::knoepfeBauen() {
  m_neu[0] = knopf("&Neu", "neu_0");
  m_neu[0]->setDefault(true);
  m_neu[1] = knopf("&Ändern", "neu_1");
  m_loeschen = knopf("&Löschen", "löschen");
  calender = knopf({}, "calender");
  return leiste({m_neu[0], m_neu[1], m_loeschen}, {});
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

QWidget* TV_Arplanoptionen::fussBauen() {
  terminverwaltung = knopf("&Terminverwaltung", "terminverwaltung");
  terminverwaltung->setEnabled(false);
  hilfe = knopf("&Hilfe", "hilfe");
  m_schliessen = knopf("&Schließen", "cmdschließen");
  return leiste({calender, terminverwaltung}, {hilfe, m_schliessen});
}

void TV_Arplanoptionen::verbinden() {
  using Ereignis::wenn;
  wenn(liarplan, &Grid::zeileAngeklickt, this, [this](int zeile) { zeileZeigen(zeile); });
  wenn(liarplan, &Grid::zeileGewechselt, this, [this](int zeile) { zeileZeigen(zeile); });
  for (int i : {0, 1})
    wenn(m_neu[static_cast<size_t>(i)], &QPushButton::clicked, this, [this, i] { neu(i); });
  wenn(m_loeschen, &QPushButton::clicked, this, [this] { loeschen(); });
  wenn(calender, &QPushButton::clicked, this, [this] { alleBerechnen(); });
  wenn(terminverwaltung, &QPushButton::clicked, this, [this] { m_terminverwaltung(); });
  wenn(hilfe, &QPushButton::clicked, this, [this] { hilfeZeigen(); });
  wenn(m_schliessen, &QPushButton::clicked, this, [this] { reject(); });
}

// From the list to the inputs, then the buttons.
void TV_Arplanoptionen::reihenfolgeSetzen() {
  QList<QWidget*> folge = {liarplan};
  for (Eingabefeld* feld : sevt) folge << feld;
  folge << m_neu[0] << m_neu[1] << m_loeschen << calender << terminverwaltung << hilfe
        << m_schliessen;
  Bauteile::tabfolge(folge);
}
