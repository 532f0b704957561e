// How the form of the open appointments is laid out.

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "planning/forms/TV_Starttermine.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"

using Bauteile::knopfOhneEnter;

namespace {

Eingabefeld* feld(size_t index, Eingabefeld::Art art, int maxLaenge = 0) {
  auto* f = new Eingabefeld;
  f->setObjectName("sevt_" + QString::number(index));
  Eingabefeld::Beschreibung beschreibung;
  beschreibung.art = art;
  beschreibung.maxLaenge = maxLaenge;
  f->einrichten(beschreibung);
  return f;
}

}  // namespace

void TV_Starttermine::aufbauen() {
  litermine = new Grid;
  litermine->setObjectName("litermine");
  litermine->setAccessibleName("Offene Termine");
  litermine->setLayoutSchluessel("tv_starttermine_litermine");
  litermine->setSpalteVerborgen("ID", true);
  litermine->setMinimumHeight(litermine->fontMetrics().height() * 9);
  kon = new QCheckBox("Terminliste bei jedem Programmstart öffnen (falls offene Termine anstehen)");
  kon->setObjectName("kon");

  auto* seite = new QVBoxLayout(this);
  seite->addWidget(litermine, 1);
  seite->addWidget(tagBauen());
  auto* gruppen = new QHBoxLayout;
  gruppen->addWidget(einzelnBauen(), 1);
  gruppen->addWidget(standortBauen(), 1);
  seite->addLayout(gruppen);
  seite->addWidget(kon);
  seite->addWidget(fussBauen());
  resize(sizeHint().expandedTo(QSize(std::max(900, fontMetrics().height() * 60), 620)));
}

// Both groups below close to this day.
QWidget* TV_Starttermine::tagBauen() {
  sevt[Erledigungstag] = feld(Erledigungstag, Eingabefeld::Art::Datum);
  konterminreihe = new QCheckBox("Terminreihe bei regelmäßigen Terminen neu anpassen?");
  konterminreihe->setObjectName("konterminreihe");
  konterminreihe->setToolTip(
      "Die offenen Termine derselben Arbeit bei diesem Volk werden gelöscht und ab dem\n"
      "Erledigungsdatum im Abstand der Arbeitsplanoption neu eingetragen");
  auto* leiste = new QWidget;
  auto* zeile = new QHBoxLayout(leiste);
  zeile->setContentsMargins(0, 0, 0, 0);
  zeile->addWidget(beschriften("Erledigungsdatum", sevt[Erledigungstag]));
  zeile->addWidget(sevt[Erledigungstag]);
  zeile->addSpacing(fontMetrics().height());
  zeile->addWidget(konterminreihe);
  zeile->addStretch(1);
  return leiste;
}

QWidget* TV_Starttermine::einzelnBauen() {
  cmdok[0] = knopfOhneEnter("Aktuellen Termin erledigen zum obigen Datum", "cmdok_0");
  cmdok[1] = knopfOhneEnter("Markierte Termine erledigen", "cmdok_1");
  cmdok[2] = knopfOhneEnter("Alle Termine bis heute erledigen", "cmdok_2");
  cmdok[0]->setToolTip("Ein Doppelklick in der Liste erledigt am geplanten Tag");
  cmdok[1]->setToolTip(
      "Alle farbigen Zeilen der Liste, jede an ihrem geplanten Tag.\n"
      "Mehrere markieren: Strg-Taste halten und die Zeilen anklicken");
  cmdok[2]->setToolTip("Jeder Termin behält seinen geplanten Tag");
  auto* rahmen = new QGroupBox("Termine erledigen");
  auto* zeilen = new QVBoxLayout(rahmen);
  for (size_t i = 0; i < 3; ++i) zeilen->addWidget(cmdok[i]);
  zeilen->addStretch(1);
  return rahmen;
}

QWidget* TV_Starttermine::standortBauen() {
  sevt[Art] = feld(Art, Eingabefeld::Art::Text, 30);
  sevt[Ort] = feld(Ort, Eingabefeld::Art::Text, 100);
  sevt[Bis] = feld(Bis, Eingabefeld::Art::Datum);
  cmdok[3] = knopfOhneEnter("zum obigen Datum erledigen", "cmdok_3");
  cmdok[3]->setToolTip("Zum Erledigungsdatum erledigen");

  // Else "obig" would be taken for the date right above the button.
  auto* rahmen = new QGroupBox("An einem Standort zum Erledigungsdatum erledigen");
  auto* zeilen = new QFormLayout(rahmen);
  zeilen->addRow(beschriften("Die Termine", sevt[Art]), sevt[Art]);
  zeilen->addRow(beschriften("am Standort", sevt[Ort]), sevt[Ort]);
  zeilen->addRow(beschriften("bis einschl.", sevt[Bis]), sevt[Bis]);
  zeilen->addRow(cmdok[3]);
  return rahmen;
}

QWidget* TV_Starttermine::fussBauen() {
  ok = knopfOhneEnter("&Liste", "ok");
  ok->setToolTip("Die Termine listen");
  okgruppiert = knopfOhneEnter("Liste &gruppiert", "okgruppiert");
  okgruppiert->setToolTip("Je Standort, Tag und Termin die Zahl der Völker listen");
  hilfe = knopfOhneEnter("&Hilfe", "hilfe");
  schließen = knopfOhneEnter("&Schließen", QString("schließen"));
  schließen->setDefault(true);
  auto* leiste = new QWidget;
  auto* zeile = new QHBoxLayout(leiste);
  zeile->setContentsMargins(0, 0, 0, 0);
  zeile->addWidget(ok);
  zeile->addWidget(okgruppiert);
  zeile->addStretch(1);
  zeile->addWidget(hilfe);
  zeile->addWidget(schließen);
  return leiste;
}
