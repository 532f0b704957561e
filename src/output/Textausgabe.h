#pragma once

#include <QString>
#include <QStringList>
#include <functional>

// The work behind the window that shows a text file and prints it: reading, the preferences, and
// which line stands on which printed page.
namespace Textausgabe {

inline constexpr int MeisteZeichen = 32000;  // of the text field
inline constexpr int ÜblicheGröße = 10;      // points, where no size is kept
inline constexpr int KleinsteGröße = 8;      // of the list and of a kept size
inline constexpr int GrößteGröße = 48;
inline constexpr int KleinsteStufe = 4;  // by the buttons
inline constexpr int GrößteStufe = 30;

// For the callers: writes the lines as LISTE.TXT in AppPfad and sets AusgabeDatei to it. Throws
// Dateifehler; the form must then not be opened, since it would show an older list.
void listeSchreiben(const QStringList& zeilen);

struct Anzeige {
  QString text;         // each line with CR LF behind it
  bool zuGroß = false;  // the reading was stopped, or the last line went beyond the limit
};
// Adds line after line until the text is longer than the limit. Throws Dateifehler.
Anzeige lesen(const QString& pfad);

// What the user is told.
QString fehltText(const QString& pfad);
QString zuGroßText();
QString schriftHinweis();
// True for a font with which the columns of a list don't stand below each other.
bool schriftUnpassend(const QString& name);

// The five preferences in slots 18, 19, 20, 22 and 23.
struct Einstellungen {
  bool quer = false;
  bool fett = false;
  bool kursiv = false;
  int größe = ÜblicheGröße;  // points
  int rand = 0;              // characters
};
Einstellungen laden();
void sichern(const Einstellungen& einstellungen);

// The size after a press on a button.
int größeNach(int größe, int schritt);
// What the margin's field holds after typing: below 0 gives "0", above 30 gives "30".
QString randNachTippen(const QString& text);
int rand(const QString& text);

// The two ways of printing: what the field holds, or the file.
enum class Druckweg { Text, Datei };
bool istSeitenwechsel(const QString& zeile, Druckweg weg);

// How many of the text's first characters fit into the width of the page.
using Passend = std::function<qsizetype(QStringView)>;

// A line behind the margin. One that is wider than the page goes on below, set in by two blanks
// behind the margin and broken at a blank where there is one; nothing of it is lost.
QStringList umbrechen(const QString& zeile, int rand, const Passend& passend);

// The pages with their lines. The first page begins with an empty line; a page that is full is
// followed by another. A page break behind the last line gives no empty sheet.
QList<QStringList> seiten(const QStringList& zeilen, Druckweg weg, int rand, int zeilenJeSeite,
                          const Passend& passend);

// Writes the field's text as DRUCKAUF.TXT into the current folder and gives its path. Throws
// Dateifehler.
QString druckaufSchreiben(const QString& text);

}  // namespace Textausgabe
