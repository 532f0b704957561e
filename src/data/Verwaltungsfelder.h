#pragma once

#include <QHash>
#include <QList>
#include <QStringList>
#include <QVariant>
#include <optional>

#include "platform/database/Datenbank.h"

// The inputs of the forms as data: each is described once, in the order of the form, and dressing,
// row display and saving all read it from here. Management forms, booking slots, the colony record,
// the calendar and the settings share this one description.
namespace Verwaltung {

enum class Art { Text, Auswahl, Ganzzahl, Dezimal, Datum, TagMonat, Notiz };  // Notiz: many lines

struct Feld {
  Art art = Art::Text;
  QString feld;              // of the table
  QString beschriftung;      // empty: stands in the row of the field before
  int maxLänge = 0;          // characters, 0 for no limit
  int nachkommastellen = 0;  // Dezimal
  qint64 bis = 0;            // Ganzzahl: from von to this
  QStringList texte = {};    // Auswahl: the only texts allowed; Text: a fixed pick list
  QString ersterText = {};   // in the empty form
  QString listenAnweisung = {};
  QString zeichen = {};     // unit shown behind the input
  bool nurAnzeige = false;  // shown, but neither typed nor saved
  bool ohneFüllnullen = false;
  qint64 von = 0;            // Ganzzahl
  QString gesprochen = {};   // what a screen reader says, else the caption
  bool unverändert = false;  // Text: blanks and apostrophes stay as typed

  Feld vorgabe(const QString& text) const;       // the text in the empty form
  Feld liste(const QString& anweisung) const;    // the statement of its pick list
  Feld listeAus(const QString& tabelle) const;   // what the field of that table holds already
  Feld angebot(const QStringList& texte) const;  // a fixed pick list; free text stays allowed
  Feld knapp() const;  // a decimal number with no more decimals than it has
  Feld einheit(const QString& text) const;
  Feld gezeigt() const;
  Feld ab(qint64 kleinste) const;  // a whole number from this on instead of 0
  Feld wörtlich() const;           // a text that is stored as it was typed
  // Stands right of the field before, under its caption; the name is what a screen reader says.
  Feld daneben(const QString& name) const;
  Feld genannt(const QString& name) const;  // what a screen reader says instead of the caption
  bool hatPickliste() const;
  bool stehtDaneben() const { return beschriftung.isEmpty() && art != Art::Notiz; }
  // What a screen reader says: the name given, else the caption.
  QString name() const { return gesprochen.isEmpty() ? beschriftung : gesprochen; }
};

Feld text(const QString& feld, const QString& beschriftung, int länge);
Feld auswahl(const QString& feld, const QString& beschriftung, const QStringList& texte);
Feld ganzzahl(const QString& feld, const QString& beschriftung, qint64 bis);
Feld dezimal(const QString& feld, const QString& beschriftung, int länge, int nachkommastellen);
Feld geld(const QString& feld, const QString& beschriftung, int länge);  // two decimals, in €
Feld datum(const QString& feld, const QString& beschriftung);
Feld notiz(const QString& feld, const QString& name);
Feld tagMonat(const QString& feld, const QString& beschriftung);  // stored as a text, "dd.mm"

using Felder = QList<Feld>;
using Texte = QHash<QString, QString>;  // the inputs' texts by field

// The texts of the empty form.
Texte vorgaben(const Felder& felder);
// A field's value as its input shows it: numbers with the field's decimals (more where the value
// has more, fewer where they would be longer than the field), null as an empty text.
QString feldtext(const Feld& feld, const QVariant& wert);
// What an input's text is stored as: texts cleaned by TextLesen, no date as null, decimal numbers
// read by ZahlLesen: in single precision (some seven digits) and without a sign.
QVariant feldwert(const Feld& feld, const QString& text);
// The texts of a field's pick list, without empty ones; fixed ones in their order. Throws
// Datenbankfehler.
QStringList pickliste(Database& datenbank, const Feld& feld);

// Writes a row of the table: the one of that ID, or a new one without it. weitere are fields that
// have no input. Gives the row's ID. Throws Datenbankfehler, also when the row isn't there any
// more.
qint64 speichern(Database& datenbank, const QString& tabelle, const Felder& felder,
                 const Texte& texte, std::optional<qint64> id, const QVariantHash& weitere = {});

// Whether a row other than the one of that ID holds what this text is stored as. No date is never
// found.
bool vorhanden(Database& datenbank, const QString& tabelle, const Feld& feld, const QString& text,
               std::optional<qint64> id);

// The one box with all reasons for not saving.
QString ablehnung(const QStringList& gründe);

}  // namespace Verwaltung
