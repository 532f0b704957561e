// How the form of the open appointments is laid out.

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "planning/forms/TV_Starttermine.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Rollbereich.h"

using Bauteile::knopfOhneEnter;

namespace {

Eingabefeld* feld(size_t index, Eingabefeld::Art art, int maxLänge = 0) {
  auto* f = new Eingabefeld;
  f->setObjectName("sevt_" + QString::number(index));
  Eingabefeld::Beschreibung beschreibung;
  beschreibung.art = art;
  beschreibung.maxLänge = maxLänge;
  f->einrichten(beschreibung);
  return f;
}

}  // namespace

void TV_Starttermine::aufbauen() {
  m_litermine = new Grid;
  m_litermine->setObjectName("litermine");
  m_litermine->setAccessibleName("Offene Termine");
  m_litermine->setLayoutSchlüssel("tv_starttermine_litermine");
  m_litermine->setSpalteVerborgen("ID", true);
  m_kon =
      new QCheckBox("Terminliste bei jedem Programmstart öffnen (falls offene Termine anstehen)");
  m_kon->setObjectName("kon");

  auto* eingaben = new QWidget;
  auto* zeilen = new QVBoxLayout(eingaben);
  zeilen->setContentsMargins(0, 0, 0, 0);
  zeilen->addWidget(tagBauen());
  auto* gruppen = new QHBoxLayout;
  gruppen->addWidget(einzelnBauen(), 1);
  gruppen->addWidget(standortBauen(), 1);
  zeilen->addLayout(gruppen);
  zeilen->addWidget(m_kon, 0, Qt::AlignLeft);
  m_ok = knopfOhneEnter("&Liste", "ok");
  m_ok->setToolTip("Die Termine listen");
  m_okgruppiert = knopfOhneEnter("Liste &gruppiert", "okgruppiert");
  m_okgruppiert->setToolTip("Je Standort, Tag und Termin die Zahl der Völker listen");
  zusammensetzen(Bauteile::untereinander({{m_litermine, 1}, {new Rollbereich(eingaben)}}),
                 {.links = {m_ok, m_okgruppiert}, .ohneEnter = true});
  schließknopf()->setDefault(true);
  setTabfolge({m_litermine, m_sevt[Erledigungstag], m_konterminreihe, m_cmdok[0], m_cmdok[1],
               m_cmdok[2], m_sevt[Art], m_sevt[Ort], m_sevt[Bis], m_cmdok[3], m_kon});
  setWunschgröße(110, 40);
}

// Both groups below close to this day.
QWidget* TV_Starttermine::tagBauen() {
  m_sevt[Erledigungstag] = feld(Erledigungstag, Eingabefeld::Art::Datum);
  m_konterminreihe = new QCheckBox("Terminreihe bei regelmäßigen Terminen neu anpassen?");
  m_konterminreihe->setObjectName("konterminreihe");
  m_konterminreihe->setToolTip(
      "Die offenen Termine derselben Arbeit bei diesem Volk werden gelöscht und ab dem\n"
      "Erledigungsdatum im Abstand der Arbeitsplanoption neu eingetragen");
  auto* leiste = new QWidget;
  auto* zeile = new QHBoxLayout(leiste);
  zeile->setContentsMargins(0, 0, 0, 0);
  zeile->addWidget(beschriften("Erledigungsdatum", m_sevt[Erledigungstag]));
  zeile->addWidget(m_sevt[Erledigungstag]);
  zeile->addSpacing(fontMetrics().height());
  zeile->addWidget(m_konterminreihe);
  zeile->addStretch(1);
  return leiste;
}

QWidget* TV_Starttermine::einzelnBauen() {
  m_cmdok[0] = knopfOhneEnter("Aktuellen Termin erledigen zum obigen Datum", "cmdok_0");
  m_cmdok[1] = knopfOhneEnter("Markierte Termine erledigen", "cmdok_1");
  m_cmdok[2] = knopfOhneEnter("Alle Termine bis heute erledigen", "cmdok_2");
  m_cmdok[0]->setToolTip("Ein Doppelklick in der Liste erledigt am geplanten Tag");
  m_cmdok[1]->setToolTip(
      "Alle farbigen Zeilen der Liste, jede an ihrem geplanten Tag.\n"
      "Mehrere markieren: Strg-Taste halten und die Zeilen anklicken");
  m_cmdok[2]->setToolTip("Jeder Termin behält seinen geplanten Tag");
  auto* rahmen = new QGroupBox("Termine erledigen");
  auto* zeilen = new QVBoxLayout(rahmen);
  for (size_t i = 0; i < 3; ++i) zeilen->addWidget(m_cmdok[i]);
  zeilen->addStretch(1);
  return rahmen;
}

QWidget* TV_Starttermine::standortBauen() {
  m_sevt[Art] = feld(Art, Eingabefeld::Art::Text, 30);
  m_sevt[Ort] = feld(Ort, Eingabefeld::Art::Text, 100);
  m_sevt[Bis] = feld(Bis, Eingabefeld::Art::Datum);
  m_cmdok[3] = knopfOhneEnter("zum obigen Datum erledigen", "cmdok_3");
  m_cmdok[3]->setToolTip("Zum Erledigungsdatum erledigen");

  // Else "obig" would be taken for the date right above the button.
  auto* rahmen = new QGroupBox("An einem Standort zum Erledigungsdatum erledigen");
  auto* zeilen = new QFormLayout(rahmen);
  zeilen->addRow(beschriften("Die Termine", m_sevt[Art]), m_sevt[Art]);
  zeilen->addRow(beschriften("am Standort", m_sevt[Ort]), m_sevt[Ort]);
  zeilen->addRow(beschriften("bis einschl.", m_sevt[Bis]), m_sevt[Bis]);
  zeilen->addRow(m_cmdok[3]);
  return rahmen;
}
