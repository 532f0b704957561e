#pragma once

#include <QList>
#include <array>
#include <functional>

#include "data/Verwaltungsfelder.h"
#include "platform/database/Datenbank.h"

// The work plan options: templates of the yearly work, from which the appointments are derived.

// The inputs of an option, by slot: 0 Arbeitsart, 1 Startzeitraum, 2 Endzeitraum,
// 3 Wiederholungsfrist_Tage, 4 Volkabhängig, 5 Auto_erledigt_Buchung, 6 Auto_erledigt_Arbeitsart.
using Optionseingabe = std::array<QString, 7>;
// The field of each slot. The texts of slot 6 are erledigtArbeitsarten.
const std::array<Verwaltung::Feld, 7>& optionsfelder();

// A row of the list of options.
struct Optionszeile {
  qint64 id = 0;
  QString arbeitsart;  // as it stands in the table
  QString volkabhängig;
};

// The select of the list.
QString optionenAnweisung();
// What the slots 5 and 6 offer, in this order.
const QStringList& erledigtBuchungen();
QStringList erledigtArbeitsarten(Database& db);

// The whole text that tells why the inputs can't be saved; empty when they can.
QString optionPrüfen(const Optionseingabe& eingabe);

// Why the name can't be taken; empty when it can. id 0 is a new option, any other the one that is
// renamed: its own name is free for it.
QString optionsnamePrüfen(Database& db, const QString& arbeitsart, qint64 id);

// Adds an option that passed the checks, and its appointments: of each colony in stock, or of none
// when slot 4 is "N". Returns its ID. One commit. Throws Datenbankfehler.
qint64 optionAnlegen(Database& db, const Optionseingabe& eingabe);

// Gives the option another name, and all appointments of alteArbeitsart with it, of every year and
// done ones too. Nothing else of an option can be changed. One commit. Throws Datenbankfehler.
void optionUmbenennen(Database& db, qint64 id, const QString& arbeitsart,
                      const QString& alteArbeitsart);

// Deletes the option by `zeileLöschen` and then every appointment of its text: of all years, open
// or done, entered by hand too. One commit. Throws Datenbankfehler.
void optionLöschen(Database& db, const QString& alteArbeitsart,
                   const std::function<void()>& zeileLöschen);

// Deletes the appointments of all these options, of every year, and writes those of this year anew,
// option by option. One commit. An option that can't be computed loses its appointments and is left
// out; a Datenbankfehler that names it is thrown when all others are done.
void alleTermineBerechnen(Database& db, const QList<Optionszeile>& optionen,
                          const std::function<void(qint64, qint64)>& fortschritt = {});
