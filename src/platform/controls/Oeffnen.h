#pragma once

#include <QString>
#include <functional>

// Opens a file with the program that the system has for it.
namespace Öffnen {

// False when there is no such program.
bool datei(const QString& pfad);

// The same for an address of the web, with the system's browser.
bool adresse(const QString& url);

// What opens the files and addresses instead of the system, for tests; an empty function gives the
// system back its own.
void setÖffner(std::function<bool(const QString& pfad)> öffner);

}  // namespace Öffnen
