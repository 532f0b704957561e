#pragma once

#include <QMimeData>
#include <QStringList>
#include <memory>

// Rows of a list on their way to the clipboard.
namespace Kopie {

// Whether a spreadsheet would take the text for a formula: it begins with = + - or @ and isn't a
// number ("-3,5", "+1.234,50 €").
bool wieFormel(const QString& text);

// The cells parted by tabs, the rows by line ends. A text that a spreadsheet would take for a
// formula gets an apostrophe in front, the spreadsheets' own sign for a text; and the rows are
// there a second time as a table whose cells say that they are texts, which spreadsheets prefer.
std::unique_ptr<QMimeData> ablage(const QList<QStringList>& zeilen);

}  // namespace Kopie
