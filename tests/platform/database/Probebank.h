#pragma once

#include <sqlite3.h>

#include <QString>
#include <QStringList>
#include <QVariant>
#include <map>

#include "platform/database/Tabellen.h"
#include "platform/database/dialekt/Dialekt.h"
#include "platform/database/verbindung/Funktionen.h"
#include "platform/database/werte/Datenbankfehler.h"

// A database in memory that sees nothing but the translator: statements go in as the program gives
// them, rows come out as the engine gives them.
class Probebank {
 public:
  Probebank() {
    sqlite3_open(":memory:", &m_db);
    Funktionen::registriereFunktionen(m_db);
  }
  ~Probebank() { sqlite3_close(m_db); }
  Probebank(const Probebank&) = delete;
  Probebank& operator=(const Probebank&) = delete;

  // All tables of the program with their indexes.
  void legeTabellenAn() {
    for (const Tabellenangabe& tabelle : tabellen) {
      lies(QString("create table %1(%2)").arg(QString(tabelle.name), QString(tabelle.felder)));
      for (const QString& index : QString(tabelle.indexe).split(", ")) {
        const QStringList teile = index.split(' ');
        lies(QString("create index %1 on %2(%3)").arg(teile[0], QString(tabelle.name), teile[1]));
      }
    }
  }

  Dialekt::Übersetzt übersetze(const QString& anweisung) {
    return Dialekt::übersetze(anweisung, [this](const QString& tabelle) { return felder(tabelle); },
                              {[this](const QString& tabelle) { return tabellenname(tabelle); },
                               [this](const QString& tabelle, const QString& feld) {
                                 return beginntIndex(tabelle, feld);
                               }});
  }
  QString sql(const QString& anweisung) { return übersetze(anweisung).sql; }

  // The rows, each as its values joined by "|", null as "<>".
  QStringList lies(const QString& anweisung, const QVariantList& werte = {}) {
    return roh(sql(anweisung), werte);
  }
  QString eins(const QString& anweisung, const QVariantList& werte = {}) {
    const QStringList zeilen = lies(anweisung, werte);
    return zeilen.isEmpty() ? QString("(keine Zeile)") : zeilen[0];
  }

  // A statement of the engine's own.
  QStringList roh(const QString& sql, const QVariantList& werte = {}) {
    sqlite3_stmt* stmt = nullptr;
    const QByteArray utf8 = sql.toUtf8();
    fehlercode = sqlite3_prepare_v2(m_db, utf8.constData(), -1, &stmt, nullptr);
    QStringList zeilen;
    if (fehlercode == SQLITE_OK) {
      binde(stmt, werte);
      spalten.clear();
      typen.clear();
      for (int i = 0; i < sqlite3_column_count(stmt); ++i) {
        spalten += QString::fromUtf8(sqlite3_column_name(stmt, i));
        typen += QString::fromUtf8(sqlite3_column_decltype(stmt, i));
      }
      while ((fehlercode = sqlite3_step(stmt)) == SQLITE_ROW) zeilen += zeile(stmt);
      if (fehlercode == SQLITE_DONE) fehlercode = SQLITE_OK;
    }
    const QString text = QString::fromUtf8(sqlite3_errmsg(m_db));
    const int code = sqlite3_extended_errcode(m_db);
    sqlite3_finalize(stmt);
    if (fehlercode != SQLITE_OK) {
      throw Datenbankfehler(code == SQLITE_MISMATCH ? Datenbankfehler::Art::Wertebereich
                                                    : Datenbankfehler::Art::Anweisung,
                            text, sql);
    }
    return zeilen;
  }

  QStringList spalten;  // names of the columns last read
  QStringList typen;    // and their declared types
  int fehlercode = SQLITE_OK;

 private:
  static void binde(sqlite3_stmt* stmt, const QVariantList& werte) {
    for (int i = 0; i < werte.size(); ++i) {
      const QVariant& wert = werte[i];
      if (wert.typeId() == QMetaType::Double) {
        sqlite3_bind_double(stmt, i + 1, wert.toDouble());
      } else if (wert.typeId() == QMetaType::Int || wert.typeId() == QMetaType::LongLong) {
        sqlite3_bind_int64(stmt, i + 1, wert.toLongLong());
      } else if (wert.isValid()) {
        const QByteArray text = wert.toString().toUtf8();  // a date: yyyy-mm-dd
        sqlite3_bind_text(stmt, i + 1, text.constData(), -1, SQLITE_TRANSIENT);
      }
    }
  }

  static QString zeile(sqlite3_stmt* stmt) {
    QStringList werte;
    for (int i = 0; i < sqlite3_column_count(stmt); ++i) {
      const char* text = reinterpret_cast<const char*>(sqlite3_column_text(stmt, i));
      werte += text ? QString::fromUtf8(text) : QString("<>");
    }
    return werte.join('|');
  }

  QString tabellenname(const QString& gesucht) {
    for (const QString& name : roh("select name from sqlite_master where type = 'table'")) {
      if (name.compare(gesucht, Qt::CaseInsensitive) == 0) return name;
    }
    return {};
  }

  std::vector<Spalte> felder(const QString& tabelle) {
    std::vector<Spalte> ergebnis;
    const QString name = tabellenname(tabelle);
    if (name.isEmpty()) return ergebnis;
    for (const QString& zeile :
         roh(QString("select name, type, pk from pragma_table_info('%1')").arg(name))) {
      const QStringList teile = zeile.split('|');
      ergebnis.push_back(spalte(teile[0], teile[1], teile[2] != "0"));
    }
    return ergebnis;
  }

  static Spalte spalte(const QString& name, const QString& typ, bool schlüssel) {
    static const std::map<QString, Feldtyp> feldtypen = {
        {"TEXT", Feldtyp::Text},        {"MEMO", Feldtyp::Memo},     {"SHORT", Feldtyp::Kurz},
        {"INTEGER", Feldtyp::Lang},     {"LONG", Feldtyp::Lang},     {"SINGLE", Feldtyp::Einfach},
        {"CURRENCY", Feldtyp::Währung}, {"DATETIME", Feldtyp::Datum}};
    const QStringList worte = typ.split(' ');
    if (schlüssel) return {name, Feldtyp::Zähler, 0};
    const Feldtyp feldtyp = feldtypen.at(worte[0]);
    const int länge = feldtyp == Feldtyp::Text ? worte[1].mid(1).chopped(1).toInt() : 0;
    return {name, feldtyp, länge};
  }

  bool beginntIndex(const QString& tabelle, const QString& feld) {
    return !roh(QString("select 1 from pragma_index_list('%1') l, pragma_index_info(l.name) i "
                        "where i.seqno = 0 and i.name = '%2'")
                    .arg(tabelle, feld))
                .isEmpty();
  }

  sqlite3* m_db = nullptr;
};
