#pragma once

#include "output/Ausgabeliste.h"

// The list as web pages: report.htm, and report-2.htm, report-3.htm and so on for the further ones.
namespace Webbericht {

struct Vorgaben {
  QString titel;             // may be empty
  int zeilenJeSeite = 0;     // 0 and below: all on one page
  bool seitenzeile = false;  // "Seite x von y" on each page, from two pages on
  bool anzahlzeile = false;  // the number of rows on the last page
};

// As the settings want it: EinstellungenZahl 21, 46, 47 and 48, EinstellungenText 0.
Vorgaben vorgaben();

// Deletes the pages of an earlier report and writes the new ones into the folder (ending in "/").
// Gives the path of the first one. Throws Dateifehler.
QString schreiben(const QString& ordner, const Ausgabeliste& liste, const Vorgaben& vorgaben,
                  const Fortschritt& fortschritt = {});

}  // namespace Webbericht
