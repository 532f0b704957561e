#pragma once

#include <QLockFile>
#include <QString>

// Lets one instance of the program work on a folder at a time: holds a lock file in the folder for
// as long as it lives. The lock of a program that crashed, or of a computer that was switched off,
// doesn't count.
class Einzelstart {
 public:
  explicit Einzelstart(const QString& ordner);

  // True when another instance holds the folder. A folder in which no lock can be written, such as
  // a read-only medium, gives false.
  bool laeuftBereits() const { return m_laeuftBereits; }

  static QString sperrdatei(const QString& ordner);

 private:
  QLockFile m_sperre;
  bool m_laeuftBereits = false;
};
