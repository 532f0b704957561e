#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "platform/database/Datenbank.h"

// The list generator: a free text with placeholders in braces, put out once for each colony. A
// placeholder is as wide on the page as the value that takes its place, braces and dashes included,
// so that the text keeps its columns.
namespace Listengenerator {

// What a placeholder stands for: a field of the colony, or of its newest or second newest booking.
struct Datenfeld {
  QString bezeichnung;  // "Vorletzte Arbeit Datum"
  QString platzhalter;  // "{VA_Datum}"; users' texts hold it
  QString tabelle;      // Bienenvolk or a booking table
  QString feld;
  int buchung = 0;  // of a booking table: 0 the newest, 1 the one before
};
const QList<Datenfeld>& datenfelder();
// As the list shows it: "Schwarmtrieb -> {ST}".
QString eintrag(const Datenfeld& feld);

// A value in the width of its placeholder: a number on the right, a day or a text on the left; what
// is longer is cut.
QString gesetzt(const QString& wert, int breite);

// The text for these colonies, in this order; one that the database doesn't have is left out. After
// each jeSeite colonies comes a line with "#", the page break; with 0 there is none. What stands in
// braces and is no placeholder stays as it is. Throws Datenbankfehler.
QStringList zeilen(Database& db, const QStringList& vorlage, const QList<qint64>& völker,
                   int jeSeite);

// Writes the text as druck.txt and its list as LISTE.TXT, ready for the text output. Throws
// Datenbankfehler or Dateifehler.
void listen(Database& db, const QString& text, const QList<qint64>& völker, int jeSeite);

// The texts of the program folder, *.TKS.
inline const QString Endung = QStringLiteral(".TKS");
// The line ends become those of a file. Throws Dateifehler.
void sichern(const QString& name, const QString& text);
// The characters of a text, each once, that the code page of the files doesn't have.
QString fremdeZeichen(const QString& text);
// Writes the two sample texts where they are missing. Throws Dateifehler.
void beispieleSchreiben();

// What the user is told and asked.
QString nichtsMarkiertText();
QString neuFrage();
QString ladenFrage();
QString schließenFrage();
QString keineDateiText();
QString überschreibenFrage(const QString& name);

}  // namespace Listengenerator
