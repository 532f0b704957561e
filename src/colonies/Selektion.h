#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <array>

#include "platform/database/Datenbank.h"

// Selected colonies carry Selektiert = 'X' in Bienenvolk. Here the flag is set by rule or by ID and
// counted.
namespace Selektion {

constexpr int SevtAnzahl = 7;

// What a button entselekt does; its index there is its place in regeln().
struct Regel {
  enum class Art {
    Alle,     // every colony
    Keine,    // only clears
    Text,     // the field equals the text of its sevt
    Bestand,  // colonies in stock
    Zahl      // the field named in its sevt equals the number in the next one
  };

  QString beschriftung;
  Art art = Art::Alle;
  int sevt = -1;  // the input it needs; -1: none
  QString feld;   // Text: the field of Bienenvolk
  QString wort;   // what is missing when that input is empty
};

const QList<Regel>& regeln();
// The fields offered for the rule with a number.
const QStringList& zahlfelder();
// The statement of a text input's pick list; empty for the others.
QString listenAnweisung(int sevt);
// The field behind a text input; empty for the others.
QString feldVon(int sevt);

struct Auftrag {
  int regel = 0;
  std::array<QString, SevtAnzahl> sevt;
  bool alteLöschen = false;  // clear the old selection first
  bool nurBestand = false;   // select only colonies in stock
};

// Why the order can't be carried out; empty when it can.
QString prüfen(const Auftrag& auftrag);
// Carries out an order that passed prüfen. Colonies that don't fit keep their flag. One commit;
// ListeNeuLesen is set. Texts compare as TextLesen gives them, by the collation; a field without a
// number counts as 0. Throws Datenbankfehler.
void ausführen(Database& db, const Auftrag& auftrag);

// Selects the colonies with these IDs and no others, hidden ones included; an ID that isn't there
// is passed over. One commit. Throws Datenbankfehler.
void nurDiese(Database& db, const QList<qint64>& ids);

struct Anzahl {
  qint64 alle = 0;
  qint64 abgang = 0;  // of these, no longer in stock
};
Anzahl selektierte(Database& db);
// The line that tells the user how many are selected now.
QString anzahlText(const Anzahl& anzahl);

}  // namespace Selektion
