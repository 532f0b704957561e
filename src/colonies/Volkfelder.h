#pragma once

#include <QList>
#include <QString>

#include "data/Verwaltungsfelder.h"

// The inputs of the colony record, each described once.

enum class Volkarray { sevt, sevtx };

// An input of the record: its place on the form, and what it is.
struct Volkfeld : Verwaltung::Feld {
  Volkarray array = Volkarray::sevt;
  int index = 0;   // within its array
  int gruppe = 0;  // index into volkgruppen()
};

// A frame on the form: its caption, its tab and its column there. Frames of a column stand below
// each other in the order of the list.
struct Volkgruppe {
  QString titel;
  int reiter = 0;  // index into volkreiter()
  int spalte = 0;
};

constexpr int SevtAnzahl = 20;
constexpr int SevtxAnzahl = 27;

// All of sevt, then all of sevtx: the order in which they are saved.
const QList<Volkfeld>& volkfelder();
const QList<Volkgruppe>& volkgruppen();
// Captions of the tabs.
const QStringList& volkreiter();
// The group in which the check box "Volk aktuell im Bestand" stands, above the fields.
int volkgruppeBestand();
