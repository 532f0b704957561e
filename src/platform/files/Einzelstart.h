#pragma once

#include <QLockFile>
#include <QString>

// Lets one instance of the program work on a folder at a time: holds a lock file in the folder for
// as long as it lives. The lock of a program that crashed, or of this computer before it was
// switched off, doesn't count. Whether a program on another computer still lives can't be seen from
// here.
class Einzelstart {
 public:
  explicit Einzelstart(const QString& ordner);

  // True when another instance holds the folder. A folder in which no lock can be written, such as
  // a read-only medium, gives false.
  bool läuftBereits() const { return m_läuftBereits; }
  // The name of the computer when the lock that is in the way is another computer's; else empty.
  const QString& andererRechner() const { return m_andererRechner; }

  // Takes the folder from another computer, once the user has said that the program doesn't run
  // there. läuftBereits() then tells whether that has worked.
  void übernehmen();

  static QString sperrdatei(const QString& ordner);

 private:
  QLockFile m_sperre;
  bool m_läuftBereits = false;
  QString m_andererRechner;
};
