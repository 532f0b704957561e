#pragma once

#include "platform/database/werte/Datenbankfehler.h"

// What went wrong in the engine, said in German.
namespace Enginefehler {

struct Lage {
  int code = 0;          // the engine's result code, extended or not
  int systemfehler = 0;  // errno of the last file operation, 0 when unknown
  QString meldung;       // the engine's own message
  bool beimVorbereiten = false;
};

// A failure of the file `datei`, ready to be thrown.
Datenbankfehler fehler(const Lage& lage, const QString& datei, const QString& anweisung);

// Says behind the text that the whole action is lost, and marks the failure so.
void allesVerworfen(Datenbankfehler& fehler);

}  // namespace Enginefehler
