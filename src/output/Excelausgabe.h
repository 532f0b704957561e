#pragma once

#include "output/Ausgabeliste.h"

// The list as a spreadsheet.
namespace Excelausgabe {

// tova_liste.xlsx in AppPfad.
QString datei();

// Writes the list, whole or not at all; a previous file is replaced. From the top: the date, an
// empty row, the head text, an empty row (without a head text the date alone, and only what is
// wanted), the headings in bold, then the rows. A cell that shows a number without a point is a
// number, every other one a text. Of the first 52 columns those whose cells are numbers stand on
// the right with two decimals. Throws Dateifehler, also for a list that no sheet can hold.
void schreiben(const QString& pfad, const Ausgabeliste& liste, const Listenkopf& kopf,
               const Fortschritt& fortschritt = {});

}  // namespace Excelausgabe
