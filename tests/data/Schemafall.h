#pragma once

#include <gtest/gtest.h>

#include <QFile>

#include "data/Datenbankdatei.h"
#include "gemeinsam/Programmordner.h"
#include "platform/database/Recordset.h"

// A program folder without a database, and what a database's schema is compared by.
class Schemafall : public ::testing::Test {
 protected:
  static QString wert(const QString& anweisung, int spalte = 0) {
    const Daten daten = TZ_Variablen::DB.Lesen(anweisung);
    return daten->zeilen() == 0 ? QStringLiteral("<keine Zeile>") : daten->anzeige(0, spalte);
  }
  static QStringList zeilen(const QString& anweisung) {
    const Daten daten = TZ_Variablen::DB.Lesen(anweisung);
    QStringList liste;
    for (int z = 0; z < daten->zeilen(); ++z) {
      QStringList felder;
      for (int s = 0; s < daten->spalten(); ++s) felder << daten->anzeige(z, s);
      liste << felder.join('|');
    }
    return liste;
  }

  Programmordner m_ordner{"20.06.2026"};
};

inline QString typwort(const Spalte& spalte) {
  switch (spalte.typ) {
    case Feldtyp::Text:
      return QStringLiteral("TEXT (%1)").arg(spalte.länge);
    case Feldtyp::Memo:
      return "MEMO";
    case Feldtyp::Kurz:
      return "SHORT";
    case Feldtyp::Lang:
      return "INTEGER";
    case Feldtyp::Einfach:
      return "SINGLE";
    case Feldtyp::Währung:
      return "CURRENCY";
    case Feldtyp::Datum:
      return "DATETIME";
    case Feldtyp::Zähler:
      return "COUNTER";
    case Feldtyp::Ausdruck:
      break;
  }
  return "?";
}

// Tables, fields and indexes of the open database in their order of creation. LONG and INTEGER
// are one type.
inline QStringList beschreibung() {
  QStringList zeilen;
  for (const QString& tabelle : TZ_Variablen::DB.Tabellen()) {
    zeilen << tabelle;
    for (const Spalte& feld : TZ_Variablen::DB.Felder(tabelle))
      zeilen << QStringLiteral("  %1: %2").arg(feld.name, typwort(feld));
    const Daten indexe = TZ_Variablen::DB.Lesen(
        "select name, sql from sqlite_master where type = 'index' and tbl_name = ?", {tabelle});
    for (int i = 0; i < indexe->zeilen(); ++i) {
      const QString sql = indexe->wert(i, 1).toString();
      const qsizetype klammer = sql.lastIndexOf('(');
      zeilen << QStringLiteral("  index %1 (%2)")
                    .arg(indexe->wert(i, 0).toString(), sql.mid(klammer + 1).chopped(1).trimmed());
    }
  }
  return zeilen;
}

// A kept description of a schema (tests/data), lines as those of beschreibung(). One line alone
// says that the file is missing.
inline QStringList festgehalten(const QString& pfad) {
  QFile datei(pfad);
  if (!datei.open(QIODevice::ReadOnly)) return {pfad + " fehlt"};
  QString text = QString::fromUtf8(datei.readAll()).trimmed();
  return text.replace(": LONG", ": INTEGER").split('\n');
}
