#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <array>

#include "data/Verwaltungsfelder.h"

// The eleven booking types as data: which slot of the entry form holds which field of which table.
// Each field stands here once; dressing, list, row display and saving all read it from here.

// Slots 0 (the date) to 27 of the entry form.
inline constexpr int AnzahlSlots = 28;
inline constexpr int NotizSlot = 15;  // the many-lined note; no other type uses this slot

using Slottexte = std::array<QString, AnzahlSlots>;

// A text that is to be put into a slot.
struct Slotänderung {
  int slot = 0;
  QString text;
  bool operator==(const Slotänderung&) const = default;
};

// An input of the entry form and its number there. One without a caption stands right of the slot
// before.
struct Buchungsslot : Verwaltung::Feld {
  int nummer = 0;
  bool geteilt = false;  // a collective booking divides it by the number of colonies
};

struct Buchungstyp {
  int art = 0;  // BuchungsArt
  QString tabelle;
  QString beschriftung;        // of the option button
  QList<Buchungsslot> plätze;  // ascending by number, without the date

  // The slot of this number, or nullptr when the type doesn't use it.
  const Buchungsslot* platz(int nummer) const;
};

// The type of BuchungsArt 0 to 10.
const Buchungstyp& buchungstyp(int art);

// The statement of the type's list before its filter. The stock card's comes from the settings.
QString listenAbfrage(int art);
