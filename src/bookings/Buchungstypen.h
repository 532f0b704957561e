#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <array>

#include "platform/database/Datenbank.h"

// The eleven booking types as data: which slot of the entry form holds which field of which table.
// Each field stands here once; dressing, list, row display and saving all read it from here.

// Slots 0 (the date) to 27 of the entry form.
inline constexpr int AnzahlSlots = 28;
inline constexpr int NotizSlot = 15;  // the many-lined note; no other type uses this slot

using Slottexte = std::array<QString, AnzahlSlots>;

// A text that is to be put into a slot.
struct Slotaenderung {
  int slot = 0;
  QString text;
  bool operator==(const Slotaenderung&) const = default;
};

enum class Slotart : quint8 {
  Text,
  Dezimal,   // a number with the slot's decimals
  Ganzzahl,  // a whole number from 0 to the slot's limit
  Auswahl,   // one of a few fixed texts
  Notiz      // many lines of text
};

struct Buchungsslot {
  int nummer = 0;
  QString beschriftung;  // empty: stands right of the slot before
  QString feld;
  Slotart art = Slotart::Text;
  int laenge = 0;              // most characters; 0 for a note
  int nachkommastellen = 0;    // of Dezimal
  qint64 bis = 0;              // limit of Ganzzahl
  QString ersterText = {};     // put in when the slot is dressed; not for Auswahl
  bool geld = false;           // shown with the currency as its unit
  QString listenTabelle = {};  // source of the pick list; empty: no pick list
  QString listenFeld = {};
  QStringList auswahl = {};  // the texts of Auswahl
  bool geteilt = false;      // a collective booking divides it by the number of colonies
};

struct Buchungstyp {
  int art = 0;  // BuchungsArt
  QString tabelle;
  QString beschriftung;         // of the option button
  QList<Buchungsslot> plaetze;  // ascending by number, without the date

  // The slot of this number, or nullptr when the type doesn't use it.
  const Buchungsslot* platz(int nummer) const;
};

// The type of BuchungsArt 0 to 10.
const Buchungstyp& buchungstyp(int art);

// The statement of the type's list before its filter. The stock card's comes from the settings.
QString listenAbfrage(int art);

// "select distinct <field> from <table> order by <field>"; empty for a slot without a pick list.
QString picklistenAbfrage(const Buchungsslot& slot);
// The texts of the pick list, without empty ones. Throws Datenbankfehler.
QStringList pickliste(Database& datenbank, const Buchungsslot& slot);
