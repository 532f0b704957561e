#pragma once

#include <QVariant>

#include "platform/database/werte/Datenblock.h"

// What a field takes, in one place: Recordset::Update asks here before it binds, and the conversion
// functions that the dialect puts around assigned expressions ask here too.
namespace Feldregeln {

// The value as the field stores it: null, a qint64 (whole-number fields), a double (SINGLE as the
// shortest decimal of its 32-bit float, CURRENCY with four decimals), a QString (text) or a QDate.
// Takes null, whole numbers, doubles, QString and QDate; null always passes, also as an invalid
// QDate. A text goes into a number field when it is a number (decimal comma or point) and into a
// date field when it is a date ("dd.mm.yyyy" or "yyyy-mm-dd"); a number or date goes into a text
// field in its German form. A value for an expression column passes as it is.
// Throws Datenbankfehler (Art::Wertebereich) with a German sentence that names the field and its
// limit. An SQL function passes that text on with sqlite3_result_error and then marks it with
// sqlite3_result_error_code(..., SQLITE_MISMATCH), so that the kind of failure survives.
QVariant prüfe(const Spalte& spalte, const QVariant& wert);

// Characters as a user counts them, not UTF-16 units.
int zeichen(QStringView text);

// Quick answers for the common case: whether a value goes into a field of this type as it is. False
// means that prüfe has to decide. Text is UTF-8, a date "yyyy-mm-dd".
bool ganzPasst(Feldtyp typ, qint64 wert);
bool textPasst(Feldtyp typ, int länge, QByteArrayView text);

// A day between the years 100 and 9999 as "yyyy-mm-dd".
QByteArray isoText(QDate tag);
// A text of exactly the form "yyyy-mm-dd" that is a real day; else an invalid date.
QDate isoDatum(QByteArrayView text);

}  // namespace Feldregeln
