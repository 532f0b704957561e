#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QString>
#include <optional>

// Numbers and dates in their German form. The forms are the program's own, whatever the machine
// is set to.
namespace Deutsch {

// A date as people write it: d.m.yyyy or d.m.yy (00-29 is 20xx, 30-99 is 19xx), day first. Nothing
// is guessed: what is not a real calendar day between the years 100 and 9999 gives no date.
// Blanks around the text don't count.
std::optional<QDate> datum(QStringView text);

// "dd.mm.yyyy"; an empty text for a date that is none.
QString datumText(QDate datum);

// A number with a fixed count of decimals (0 to 15) and a decimal comma, without grouping. A half
// is rounded away from zero, on the decimal digits that the number prints: 1.005 gives "1,01".
// Infinite and not a number count as 0; never "-0,00".
QString zahl(double wert, int nachkommastellen);

// The same with groups of thousands and a plain blank before the sign: "-1.234,50 €".
QString währung(double wert);

// With a decimal point and two decimals, cut to the width (its left part stays), filled with blanks
// on the left: the form of numbers in the settings file.
QString festeZahl(int breite, double zahl);

// The shortest text that gives the number back, with a decimal comma and never an exponent below
// 1e15: 3.5 gives "3,5", 12 gives "12".
QString schlicht(double wert);

// The number that a shown text is: digits with at most one comma, a sign and blanks around. With
// geld an amount of money too, "1.234,50 €". None for any other text with a point (a date) and for
// one of more than 15 digits, which no number could hold exactly.
std::optional<double> gelesen(QByteArrayView text, bool geld = false);

// The number value of a text: a leading number with a decimal point, blanks skipped, 0 when there
// is none. "1,5" gives 1, "1e3" gives 1000. Never fails and never gives inf or nan: a number too
// big gives the largest double.
double val(QStringView text);

// The nearest 32-bit float as the shortest decimal that gives it: 3.3333333 gives 3.3333333, and
// 3.33f gives 3.33 and not 3.3299999237. A number beyond the range of a float stays as it is.
double einfach(double wert);

// Four decimals, a half to the even digit.
double währungswert(double wert);

// The number rounded (a half to the even digit) to the place that is the last of so many digits in
// the number maß: with three digits and 12.3 as maß to one decimal. Infinite and not a number stay.
double gerundet(double wert, double maß, int ziffern);

// A whole number, a half to the even one. 2.5 gives 2, 3.5 gives 4.
double gerade(double wert);
// The same as a 64-bit number; one beyond their range gives the outermost of them.
qint64 ganzzahl(double wert);

}  // namespace Deutsch
