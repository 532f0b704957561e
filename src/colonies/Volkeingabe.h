#pragma once

#include <array>
#include <optional>

#include "colonies/Volkfelder.h"
#include "platform/database/Datenbank.h"

// What stands in the inputs of the colony record, as text.
struct Volkeingabe {
  std::array<QString, SevtAnzahl> sevt;
  std::array<QString, SevtxAnzahl> sevtx;
  bool kon = true;  // "Volk aktuell im Bestand"

  QString& operator[](const Volkfeld& feld);
  const QString& operator[](const Volkfeld& feld) const;
};

// The inputs for a new colony: the number that follows letzteNummer (what stood in sevt 0; empty on
// a form just opened) and the defaults of TV_Neues_Volk.TV2, if there is one. Throws Dateifehler.
Volkeingabe volkNeu(const QString& letzteNummer);

// The number proposed after this one: one more with slot 57 set and digits only (an empty text
// gives "1"), otherwise empty; empty as well when it would no longer fit the field.
QString volkFolgenummer(const QString& letzteNummer);

// A colony's row; none when there is no such ID.
std::optional<Volkeingabe> volkLaden(Database& db, qint64 id);

// Writes TV_Neues_Volk.TV2 and sets slot 56. Throws Dateifehler; the slot then stays.
void volkStandardSchreiben(const Volkeingabe& eingabe);
QString volkStandardDatei();
