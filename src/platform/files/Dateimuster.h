#pragma once

#include <QStringList>

// File patterns as "/imkerei/*.TKS": a folder and a name with * and ?. Letter case doesn't count,
// "*.*" means every file. A backslash parts folders as well.
namespace Dateimuster {

// The folder of the pattern, ending in "/"; empty for a pattern without one.
QString ordner(const QString& muster);
// The names, without the folder, of the files that match, in the order of the alphabet. Folders
// don't match. A folder that isn't there has none.
QStringList namen(const QString& muster);

}  // namespace Dateimuster
