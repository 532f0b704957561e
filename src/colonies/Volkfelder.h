#pragma once

#include <QList>
#include <QString>

// The inputs of the colony record, each described once.

enum class Volkarray { sevt, sevtx };

struct Volkfeld {
  enum class Art { Text, Ganzzahl, Dezimal, Waehrung, Datum };

  Volkarray array = Volkarray::sevt;
  int index = 0;  // within its array
  QString feld;   // of Bienenvolk
  QString beschriftung;
  Art art = Art::Text;
  int maxLaenge = 0;         // characters
  int nachkommastellen = 0;  // Dezimal and Waehrung
  QString einheit;           // shown behind the input; may be empty
  QString listenTabelle;     // where the pick list comes from; empty: no pick list
  int gruppe = 0;            // index into volkgruppen()
  qint64 bis = 0;            // Ganzzahl: greatest number

  // The statement of the pick list; empty without one.
  QString listenAnweisung() const;
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
