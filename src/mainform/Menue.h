#pragma once

#include <QList>
#include <QString>

// The menus, the tool bar and the popup of the main form as data.
namespace Menü {

// What an entry does.
enum class Ziel {
  Form,  // opens its form (mainform/forms/Formen); can't be chosen as long as there is none
  VolkLoeschen,
  VölkerSelektieren,
  SelektierteMarkieren,
  MarkierteSelektieren,
  Beenden,
  TermineSetzen,  // the yearly run of the appointments
  Internet,       // fetching the newest set-up
  Komprimieren,
  Hilfe
};

// When an entry can be chosen.
enum class Regel { Immer, BrauchtZeile, BrauchtListe };

struct Eintrag {
  QString name;
  QString titel;
  Ziel ziel = Ziel::Form;
  Regel regel = Regel::Immer;
  // What its form is told: BuchungsArt, VolkModus, FormModus; HilfeThema of a help entry.
  QString wert = {};
};

struct Menü {
  QString name;
  QString titel;
  QString hilfethema;  // F1 on the open menu
  QList<Eintrag> einträge;
};

// A tool bar key acts as a menu entry and has that entry's caption as its tool tip.
struct Taste {
  QString name;
  QString eintrag;
  QString kurztext;  // under the symbol
  QString symbol;    // file name without extension
  Regel regel = Regel::Immer;
  bool neueGruppe = false;
  bool umbruch = false;  // begins the second row where the bar stands in two
};

// An entry of the list's popup acts as a menu entry; a separator has no entry. Its index is its
// place.
struct Popupzeile {
  QString titel;
  QString eintrag;
};

const QList<Menü>& menüs();
const QList<Taste>& tasten();
const QList<Popupzeile>& popup();

// The menu entry of that name; an empty one when there is none.
const Eintrag& eintrag(const QString& name);

// Whether something with this target and rule can be chosen. formDa: the entry has its form.
bool wählbar(Ziel ziel, bool formDa, Regel regel, bool zeileDa, bool listeDa);

// A caption without its mnemonic.
QString ohneMnemonik(const QString& titel);

// What the popup's entries from 1 on say when no row is marked.
QString nichtsMarkiertText();

}  // namespace Menü
