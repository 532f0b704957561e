#pragma once

#include <QList>
#include <QString>

// The menus, the tool bar and the popup of the main form as data.
namespace Menue {

// What an entry opens or does.
enum class Ziel {
  NochNicht,  // its form does not exist: the entry is shown, but can't be chosen
  NeuesVolk,
  VolkAendern,
  VolkLoeschen,
  VoelkerSelektieren,
  SelektierteMarkieren,
  MarkierteSelektieren,
  Beenden,
  Eingabe,  // the booking form
  Arbeitsplanoptionen,
  TermineSetzen,  // the yearly run of the appointments
  Termine,        // the calendar
  AktuelleTermine,
  Standorte,  // sites and plants
  Handel,     // purchases, sales and the honey store
  Einstellungen,
  Internet,  // fetching the newest set-up
  Komprimieren,
  WieAnfangen,
  Hilfe
};

// When an entry can be chosen.
enum class Regel { Immer, BrauchtZeile, BrauchtListe };

struct Eintrag {
  QString name;
  QString titel;
  Ziel ziel = Ziel::NochNicht;
  Regel regel = Regel::Immer;
  QString wert;  // BuchungsArt of a booking, FormModus, HilfeThema of a help entry
};

struct Menue {
  QString name;
  QString titel;
  QString hilfethema;  // F1 on the open menu
  QList<Eintrag> eintraege;
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

const QList<Menue>& menues();
const QList<Taste>& tasten();
const QList<Popupzeile>& popup();

// The menu entry of that name; an empty one when there is none.
const Eintrag& eintrag(const QString& name);

// Whether something with this target and rule can be chosen.
bool waehlbar(Ziel ziel, Regel regel, bool zeileDa, bool listeDa);

// A caption without its mnemonic.
QString ohneMnemonik(const QString& titel);

// What the popup's entries from 1 on say when no row is marked.
QString nichtsMarkiertText();

}  // namespace Menue
