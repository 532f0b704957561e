#pragma once

#include <QStringList>

// Files that carry a write protection: the owner may not write them.
namespace Schreibschutz {

// The full paths of the protected files directly in the folder, by name. A link isn't one: the file
// that it leads to lies elsewhere and belongs to somebody else. A folder that isn't there or can't
// be listed gives none.
QStringList dateien(const QString& ordner);

// Takes the protection off, of links never. Gives the files on which that failed; a file that has
// gone meanwhile is no failure.
QStringList entfernen(const QStringList& dateien);

}  // namespace Schreibschutz
