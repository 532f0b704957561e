#pragma once

#include <QFileDevice>
#include <QString>

// The rights of a file that is made under another name first and then renamed.
namespace Dateirechte {

// Those of the file that it is to replace; for a new one what the user's own setting (the umask)
// gives to any new file.
QFileDevice::Permissions für(const QString& pfad);

}  // namespace Dateirechte
