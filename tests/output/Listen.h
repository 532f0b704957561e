#pragma once

#include <QDate>
#include <QFile>

#include "output/Ausgabeliste.h"

// Lists made by hand.
namespace Listen {

// Rows of values: null as QVariant(), numbers, texts, dates.
inline Daten block(std::vector<Spalte> spalten, const QList<QVariantList>& zeilen) {
  Datenblock::Bauer bauer(std::move(spalten));
  for (const QVariantList& zeile : zeilen)
    for (const QVariant& wert : zeile) bauer.wert(wert);
  return bauer.fertig();
}

// The colonies of a small list: a text, a whole number, a decimal number, a price, a date.
inline Daten ernte() {
  return block({{"Volkname", Feldtyp::Text, 30},
                {"Anz_Ernten", Feldtyp::Lang, 0},
                {"Menge_kg", Feldtyp::Einfach, 0},
                {"Erlös", Feldtyp::Währung, 0},
                {"Datum", Feldtyp::Datum, 0}},
               {{"Anna", 2, 12.5, 87.5, QDate(2026, 5, 4)},
                {"Bärbel", 10, 7, 1049.0, QDate(2026, 7, 21)},
                {"Cäsar", QVariant(), QVariant(), QVariant(), QVariant()}});
}

inline QByteArray bytes(const QString& pfad) {
  QFile datei(pfad);
  return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("(fehlt)");
}

}  // namespace Listen
