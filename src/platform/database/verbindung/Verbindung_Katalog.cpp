// The tables and their declared fields.

#include <sqlite3.h>

#include "platform/database/verbindung/Verbindung.h"

namespace {

QString utf8(const char* text) { return QString::fromUtf8(text ? text : ""); }

Spalte spalteAusErklärung(const QString& name, const QString& erklärung, bool schlüssel) {
  const QString wort = erklärung.section(QLatin1Char(' '), 0, 0, QString::SectionSkipEmpty)
                           .section(QLatin1Char('('), 0, 0)
                           .toUpper();
  Spalte spalte{name, Feldtyp::Ausdruck, 0};
  if (schlüssel || wort == QLatin1String("COUNTER")) {
    spalte.typ = Feldtyp::Zähler;
  } else if (wort == QLatin1String("TEXT")) {
    spalte.typ = Feldtyp::Text;
    spalte.länge =
        erklärung.section(QLatin1Char('('), 1).section(QLatin1Char(')'), 0, 0).trimmed().toInt();
  } else if (wort == QLatin1String("MEMO")) {
    spalte.typ = Feldtyp::Memo;
  } else if (wort == QLatin1String("SHORT")) {
    spalte.typ = Feldtyp::Kurz;
  } else if (wort == QLatin1String("INTEGER") || wort == QLatin1String("LONG")) {
    spalte.typ = Feldtyp::Lang;
  } else if (wort == QLatin1String("SINGLE")) {
    spalte.typ = Feldtyp::Einfach;
  } else if (wort == QLatin1String("CURRENCY")) {
    spalte.typ = Feldtyp::Währung;
  } else if (wort == QLatin1String("DATETIME")) {
    spalte.typ = Feldtyp::Datum;
  }
  return spalte;
}

}  // namespace

const QStringList& Verbindung::tabellen() {
  prüfeNutzbar({});
  if (m_tabellen) return *m_tabellen;
  QStringList namen;
  const auto a =
      bereite(QString(), {QStringLiteral("select name from sqlite_schema where type = 'table' and "
                                         "name not like 'sqlite\\_%' escape '\\' order by rowid"),
                          std::nullopt,
                          false,
                          false,
                          {}});
  while (schritt(*a)) {
    namen << utf8(reinterpret_cast<const char*>(sqlite3_column_text(a->stmt, 0)));
  }
  m_tabellen = std::move(namen);
  return *m_tabellen;
}

const std::vector<Spalte>& Verbindung::felder(const QString& tabelle) {
  prüfeNutzbar({});
  const QString schlüssel = tabelle.toCaseFolded();
  const auto gefunden = m_felder.constFind(schlüssel);
  if (gefunden != m_felder.constEnd()) return *gefunden;
  // The engine's own name, since it folds the case of plain letters only.
  QString name = tabelle;
  for (const QString& vorhanden : tabellen()) {
    if (vorhanden.compare(tabelle, Qt::CaseInsensitive) == 0) name = vorhanden;
  }
  const auto a = bereite(
      QString(), {QStringLiteral("select name, type, pk from pragma_table_info(?) order by cid"),
                  std::nullopt,
                  false,
                  false,
                  {}});
  binde(*a, {name});
  std::vector<Spalte> liste;
  while (schritt(*a)) {
    liste.push_back(
        spalteAusErklärung(utf8(reinterpret_cast<const char*>(sqlite3_column_text(a->stmt, 0))),
                           utf8(reinterpret_cast<const char*>(sqlite3_column_text(a->stmt, 1))),
                           sqlite3_column_int(a->stmt, 2) != 0));
  }
  if (liste.empty()) {  // not kept: another connection may be about to create it
    m_tabellen.reset();
    static const std::vector<Spalte> keine;
    return keine;
  }
  return *m_felder.insert(schlüssel, liste);
}

bool Verbindung::beginntIndex(const QString& tabelle, const QString& feld) {
  const auto a = bereite(QString(), {QStringLiteral("select 1 from pragma_index_list(?) l, "
                                                    "pragma_index_info(l.name) i "
                                                    "where i.seqno = 0 and i.name = ?"),
                                     std::nullopt,
                                     false,
                                     false,
                                     {}});
  binde(*a, {tabelle, feld});
  return schritt(*a);
}
