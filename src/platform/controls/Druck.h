#pragma once

#include <QFont>
#include <QRectF>
#include <QStringList>
#include <functional>

class QPainter;
class QPrinter;
class QWidget;

// Printing of lines of text, or of a picture, through the system's print dialog. Printing into a
// PDF file is always among its choices, also on a machine without a printer.
namespace Druck {

// The room of one page in the font.
struct Satzspiegel {
  int zeilen = 1;                                 // at least 1
  std::function<qsizetype(QStringView)> passend;  // how many first characters fit into a line
};

struct Auftrag {
  QString titel;  // of the document, and the name proposed for a PDF file
  QFont schrift;  // family, size in points, bold, italic
  bool quer = false;
  // Gives the pages with their lines for the page that the user chose.
  std::function<QList<QStringList>(const Satzspiegel&)> umbruch;
  // Or draws the one page of a picture; its unit is that of seite().
  std::function<void(QPainter&, const QRectF&)> malen;
};

// The system's fonts that can print German texts; fixed-pitch ones or the others. Looked up once.
QStringList schriften(bool feste);

// Asks with the print dialog and prints. False when the user cancelled. Throws Dateifehler when
// the printer can't be used or the file can't be written whole.
bool drucken(const Auftrag& auftrag, QWidget* über);

// Makes the painter's unit 1/96 inch on whatever it draws, as on a screen; gives the page's field.
QRectF seite(QPainter& maler);

// The two halves of drucken, around the dialog.
void einrichten(QPrinter& drucker, const Auftrag& auftrag);
void ausgeben(QPrinter& drucker, const Auftrag& auftrag);

}  // namespace Druck
