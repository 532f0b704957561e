#pragma once

#include <QString>
#include <QVariant>

// TZ_TOVA_Subs: the helpers through which all code reads and writes. None of them fails on any
// input. Those that ask or sound something stand in data/forms/helpers_forms.h.

// A field value or text as a number. Null and empty give 0. The last point is the decimal point
// ("1.234" is 1.234), the first comma becomes one; signs and letters fall away, so a negative
// number loses its sign. ZahlLesen gives single precision as its shortest decimal. A number too big
// for the precision gives 0.
double ZahlLesen(const QVariant& wert);
double ZahlLesenDoppelt(const QVariant& wert);
// "0,00"
QString ZahlText2(double zahl);
// The value (number or text with a comma or point) with that many decimals; not numeric counts
// as 0.
QString ZahlFormat(const QVariant& wert, int nachkommastellen);
// The same, right-aligned in the width, with a "+" in front of a value above 0 when plus is 1.
QString ZahlFormatBreite(const QVariant& wert, int nachkommastellen, int breite, int plus);
// With a decimal point and two decimals, cut to the width, filled with blanks on the left.
QString ZahlFest(int breite, double zahl);

// Trimmed text; null gives an empty one; each ' becomes a backtick.
QString TextLesen(const QVariant& wert);
QString TextLinks(const QString& text, int breite);   // left-aligned, cut to the width
QString TextRechts(const QString& text, int breite);  // right-aligned, keeps the left part
bool NurZiffern(const QString& text);                 // an empty text gives true
int ZifferTaste(int code);                            // the code itself, or 0 to cancel the key

// The date literal #mm/dd/yyyy#. The text becomes "dd.mm.yyyy" when it is a date; one that is none
// is cut apart all the same and gives a literal that fails.
QString SqlDatum(QString& datum);
QString SqlDatum(const QString& datum);
// A full "dd.mm.yyyy" from what the user typed, or an empty text.
QString DatumErgaenzen(const QString& eingabe);
// The sort key yyyymmdd.
QString DatumSortiert(const QString& datum);
// A four-digit year, or an empty text.
QString JahrErgaenzen(const QString& jahr);
// A text that is a date in the German form; others give an invalid QDate. For binding.
QDate DatumLesen(const QString& text);
bool IstDatum(const QString& text);

// The number value of a text as a whole number, a half to the even one; for whole-number slots.
// Limited to 32 bits, so that no text overflows.
qint64 GanzLesen(const QString& text);

// Moves the main list's row by one, 0 back or 1 forward, around both ends.
void VolkWechseln(int richtung);
