#pragma once

#include <QStringList>
#include <optional>

// What this test program does as a second process.
namespace Helfer {

// "--unterbrochen FILE": writes 150 of 300 rows of one action, through a cache so small that they
// reach the file, says "halb" and waits to be killed.
// "--laeufe FILE": says "los" and writes actions of 300 rows, one after the other, until killed.
// "--ohne-rechte FILE": opens the file as a user without rights; says the kind of failure
// ("nurlesen", "keine", "anders") or "offen".
// Gives the exit code; nothing when the arguments ask for something else.
std::optional<int> laufe(const QStringList& argumente);

}  // namespace Helfer
