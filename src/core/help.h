#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// The help text HILFETOVA.HLP in AppPfad: sections of plain text. A line that is a topic's key
// begins the section, a line "#ende#" ends it.
namespace Hilfe {

QString datei();
// What to tell when the file isn't there.
QString fehltMeldung();

// The lines of a topic's section; none when the file has no such section. A section that isn't
// ended goes to the end of the file. Throws Dateifehler.
std::optional<QStringList> abschnitt(const QString& thema);

// What the window shows: a line underlined with "=" is the title, one underlined with "-" a
// heading, "- " an entry of a list, a line that begins with two blanks is shown letter for letter.
// The other lines are paragraphs; an empty line parts two of them.
QString alsHtml(const QStringList& zeilen);

// In place of a section that isn't there.
QStringList ohneAbschnitt(const QString& thema);

}  // namespace Hilfe
