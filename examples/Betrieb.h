#pragma once

#include <QDate>
#include <QString>
#include <functional>

// The sample operation: a believable beekeeping of any size, written through the program's own
// routines. The same size, seed and day give the same data.
struct Betriebsgröße {
  int völker = 24;
  int jahre = 3;            // seasons, the last one is that of today
  int buchungenJeVolk = 0;  // 0: what a season brings; else filled up with weighings to this count
  quint32 saat = 1;
  QDate heute;  // invalid: the day of the computer
};

// Makes TOVA2.MDB and Einstellungen.TV2 in the folder (both must not be there yet) and leaves the
// program's global state set to it, the database open as DB. fortschritt gets the colonies done.
// Throws Datenbankfehler or Dateifehler.
void betriebAnlegen(const QString& ordner, const Betriebsgröße& größe,
                    const std::function<void(int)>& fortschritt = {});
