#pragma once

#include <QHash>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "Betrieb.h"

class QWidget;

// The registry of all forms: a form that is in the program stands here, with what its contract
// needs to know of it.

using Form = std::unique_ptr<QWidget>;

// How a form saves its inputs. Without wieder it keeps none; without verderben it refuses none.
struct Sichern {
  QString knopf;                                               // saves
  QStringList unberuehrt;                                      // inputs that stay as they are
  std::function<void(Meldungen::Probe&)> boxen;                // what saving shows; may be empty
  std::function<Form(Betrieb&)> wieder;                        // the form anew, on what was saved
  std::function<void(QWidget*)> auswaehlen;                    // brings it up in the shown form
  std::function<void(QWidget*, Meldungen::Probe&)> verderben;  // an entry that is refused
  QHash<QString, QString> werte = {};  // texts for inputs that not every text is right for
  QString abgelehnt = {};              // the button that refuses; empty: the one that saves
};

struct Loeschen {
  QString tabelle;
  QString frage;  // its first words
  std::function<void(QWidget*)> ausloesen;
};

struct Formfall {
  QString fall;                          // name in the test, plain letters
  QString objekt;                        // the form's name
  QString hilfethema;                    // empty: F1 opens nothing
  QString standardknopf;                 // what Enter presses; empty: there is none
  std::function<Form(Betrieb&)> machen;  // made and filled, not yet shown
  bool hauptformular = false;
  std::optional<Sichern> sichern = {};
  std::optional<Loeschen> loeschen = {};
  // Mnemonics that the given captions have more than once: of the window, of its menus.
  QStringList doppelt = {};
  QStringList doppeltImMenue = {};
  // What Enter presses in the first input of its kind, where that isn't the standardknopf.
  QString eingabeknopf = {};
};

const std::vector<Formfall>& formenliste();
