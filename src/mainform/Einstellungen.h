#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>
#include <variant>

#include "core/slots.h"
#include "data/Verwaltungsfelder.h"

// The settings that the form TO_Einstellungen shows, as data: which control stands for which slot
// of TZ_Variablen, and what a slot takes.
namespace Einstellungen {

// A check box kon; its slot is 1 or 0.
struct Schalter {
  int index = 0;
  Zahlslot slot;
  QString beschriftung;
  std::optional<bool> standard;  // what the button standard sets
};

// An entry field sevt: its slot, and how it is typed. A choice is one of the fields of the list of
// colonies or empty.
struct Eingabe {
  int index = 0;
  std::variant<Zahlslot, Wertslot, Textslot> slot;
  Verwaltung::Feld feld;
  std::optional<QString> standard = {};

  bool istZahl() const { return !std::holds_alternative<Textslot>(slot); }
  bool istListenfeld() const { return feld.art == Verwaltung::Art::Auswahl; }
};

const QList<Schalter>& schalter();
const QList<Eingabe>& eingaben();
// The one of that index; it has to exist.
const Schalter& schalter(int index);
const Eingabe& eingabe(int index);
// The pick list of the separators; its first entry is the standard one.
QStringList trennzeichen();

// Captions of the check list litext1 (the panel's 45 lines) and litext2 (the booking types).
QStringList zeilentexte();
QStringList buchungstexte();

// What the form's controls hold.
struct Stand {
  QHash<int, bool> kon;      // by index
  QHash<int, QString> sevt;  // by index
  QStringList volkfelder;    // in the order of Feldfolge::lesen
  QStringList stockfelder;
  QList<bool> gezeigt;  // the panel's positions, the lines first, then the bookings
};

// The settings as they are.
Stand lesen(const Database& db);
// The standard values; what has none stays.
void standardSetzen(Stand& stand);
QString standardFrage();
// Puts the settings into their slots, within their bounds, and writes the settings file. A second
// sort equal to the first is cleared, an empty separator becomes " | ". The remembered sort of the
// list follows its field to the new place. ListeNeuLesen becomes 1. Throws Dateifehler; slots and
// ListeNeuLesen are then as they were before.
void speichern(const Stand& stand, const Database& db);
// What stands behind the reason when the file couldn't be written.
QString nichtGespeichertText();

// Values that belong to the columns of one order, such as widths, for another order of the same
// fields; none when they don't belong to it.
QVariantList umgeordnet(const QVariantList& werte, const QStringList& vorher,
                        const QStringList& nachher);

}  // namespace Einstellungen
