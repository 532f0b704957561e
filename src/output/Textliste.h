#pragma once

#include "output/Ausgabeliste.h"

// The list as plain text in columns of fixed width, for TA_Textausgabe.
namespace Textliste {

// LISTE.TXT in AppPfad.
QString datei();

// The separator between two columns as the settings want it (EinstellungenText 4), " | " when that
// is empty.
QString trennzeichen();

// Writes the list in the program's code page, lines ended by CR LF, whole or not at all: the date,
// the head text and an empty line below them, then the headings, a line of "-" and the rows. The
// first 52 columns, each as wide as its longest text; numbers stand on the right. Line breaks and
// tabs within a cell become blanks. A separator row becomes two empty lines and the headings.
// Throws Dateifehler.
void schreiben(const QString& pfad, const Ausgabeliste& liste, const Listenkopf& kopf,
               const QString& trennzeichen, const Fortschritt& fortschritt = {});

}  // namespace Textliste
