#pragma once

#include "output/Ausgabeliste.h"

// gridli.txt in AppPfad: the list that an evaluation hands on to TA_Zwischenliste. UTF-8, a line
// for the names of the columns, one for their kinds, one for the captions, then one for each row;
// cells are parted by tabs, and tabs, line breaks and backslashes within them are escaped.
namespace Übergabe {

QString datei();

// Writes the list, whole or not at all. Throws Dateifehler.
void schreiben(const QString& pfad, const Ausgabeliste& liste, const Fortschritt& fortschritt = {});

// The list as it was written: names, kinds, captions, rows in the order given, each cell with its
// value. An empty list when there is no such file. Throws Dateifehler for a file that can't be read
// or isn't one of these.
Ausgabeliste lesen(const QString& pfad, const Fortschritt& fortschritt = {});

}  // namespace Übergabe
