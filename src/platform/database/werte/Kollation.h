#pragma once

#include <QByteArray>
#include <QStringView>

// The order of texts in the database and in every list. Letter case never counts; ß = ss, æ = ae,
// œ = oe; accents count only between words otherwise equal; blanks at the end don't count; signs
// before digits before letters.
namespace Kollation {

// Below 0, 0 or above 0, as strcmp.
int vergleiche(QStringView links, QStringView rechts);
int vergleicheUtf8(QByteArrayView links, QByteArrayView rechts);
// A key whose byte order (memcmp) is this order, for sorting many texts.
QByteArray schlüssel(QStringView text);

}  // namespace Kollation
