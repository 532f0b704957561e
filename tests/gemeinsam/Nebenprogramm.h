#pragma once

#include <QHash>
#include <QStringList>
#include <functional>
#include <optional>

// What a test program does when it is started again as a process of its own, the one that is
// killed: a task under a word, which is the first argument. Made before main, as a constant of the
// test's file.
class Nebenprogramm {
 public:
  // The task gets the arguments behind the word and gives the exit code.
  using Aufgabe = std::function<int(const QStringList&)>;

  Nebenprogramm(const QString& wort, Aufgabe aufgabe) { aufgaben()[wort] = std::move(aufgabe); }

  // The task's exit code; nothing when the program is to run its tests.
  static std::optional<int> laufe(const QStringList& argumente) {
    const auto aufgabe = aufgaben().find(argumente.value(1));
    if (aufgabe == aufgaben().end()) return std::nullopt;
    return (*aufgabe)(argumente.mid(2));
  }

 private:
  static QHash<QString, Aufgabe>& aufgaben() {
    static QHash<QString, Aufgabe> alle;
    return alle;
  }
};
