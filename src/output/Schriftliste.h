#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The fonts that the text output offers.
struct Schriftwahl {
  QString name;     // as the list shows it
  QString familie;  // as the system knows it
};

inline constexpr auto ÜblicheSchrift = "Courier New";

// Fixed-pitch families first, then the others, each without doubles. Where the system has no font
// whose name begins with "Courier", the fixed-pitch one that looks most like it stands first under
// the name "Courier New (Ersatz: <family>)" in place of its own.
QList<Schriftwahl> schriftliste(const QStringList& feste, const QStringList& übrige);

// The entry of that name; for one that isn't in the list the Courier entry, else the first. -1 for
// an empty list.
int schriftIndex(const QList<Schriftwahl>& liste, const QString& name);
