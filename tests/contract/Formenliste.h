#pragma once

#include <QHash>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "Betrieb.h"

class QWidget;

// All forms with what their contract needs to know of them. Those that a menu entry opens come from
// the program's own list (mainform/forms/Formen), whether something more is said of them here or
// not.

using Form = std::unique_ptr<QWidget>;

// How a form saves its inputs. Without wieder it keeps none; without verderben it refuses none.
struct Sichern {
  QString knopf;                                               // saves
  QStringList unberührt;                                       // inputs that stay as they are
  std::function<void(Meldungen::Probe&)> boxen;                // what saving shows; may be empty
  std::function<Form(Betrieb&)> wieder;                        // the form anew, on what was saved
  std::function<void(QWidget*)> auswählen;                     // brings it up in the shown form
  std::function<void(QWidget*, Meldungen::Probe&)> verderben;  // an entry that is refused
  QHash<QString, QString> werte = {};  // texts for inputs that not every text is right for
  QString abgelehnt = {};              // the button that refuses; empty: the one that saves
};

struct Löschen {
  QString tabelle;
  QString frage;  // its first words
  std::function<void(QWidget*)> auslösen;
};

struct Formfall {
  QString fall;                          // name in the test, plain letters
  QString objekt;                        // the form's name
  QString hilfethema;                    // empty: F1 opens nothing
  QString standardknopf;                 // what Enter presses; empty: there is none
  std::function<Form(Betrieb&)> machen;  // made and filled, not yet shown
  bool hauptformular = false;
  std::optional<Sichern> sichern = {};
  std::optional<Löschen> löschen = {};
  // Mnemonics that the given captions have more than once: of the window, of its menus.
  QStringList doppelt = {};
  QStringList doppeltImMenü = {};
  // The menu entries that it stands for. One that no case names gets a plain one, which knows
  // nothing of its form but what holds for all.
  QStringList einträge = {};
  // On a magnified screen its commands, which stand among its inputs, may scroll with them.
  bool befehleRollen = false;
  bool schlicht = false;
  // What Enter presses in the first input of its kind, where that isn't the standardknopf.
  QString eingabeknopf = {};
};

const std::vector<Formfall>& formenliste();
