#include "platform/database/dialekt/Dialektanweisungen.h"

namespace Dialekt {

namespace {

using QL = QLatin1String;

// A field's name and type. The second word of a type tells the engine how to store the values,
// the first one is the dialect's and comes back from the schema.
QString liesFeld(Leser& leser) {
  const QString name = alsName(leser.nimmName());
  struct Typ {
    const char* wort;
    const char* sql;
  };
  static constexpr Typ typen[] = {
      {"MEMO", "MEMO TEXT COLLATE tova"},
      {"SHORT", "SHORT INT"},
      {"INTEGER", "INTEGER"},
      {"LONG", "LONG INT"},
      {"SINGLE", "SINGLE REAL"},
      {"CURRENCY", "CURRENCY REAL"},
      {"DATETIME", "DATETIME TEXT"},
      {"COUNTER", "INTEGER PRIMARY KEY AUTOINCREMENT"},
  };
  if (leser.nimmWort(QL("TEXT"))) {
    int länge = 255;
    if (leser.nimmZeichen(QL("("))) {
      länge = leser.nimmAnzahl();
      leser.verlangeZeichen(QL(")"));
    }
    if (länge < 1) leser.unlesbar();
    return name + QStringLiteral(" TEXT (%1) COLLATE tova").arg(länge);
  }
  for (const Typ& typ : typen) {
    if (leser.nimmWort(QL(typ.wort))) return name + QL(" ") + QL(typ.sql);
  }
  leser.unlesbar();
}

}  // namespace

QString anlegen(Leser& leser) {
  if (leser.nimmWort(QL("table"))) {
    QString sql = QL("CREATE TABLE ") + alsName(leser.nimmName()) + QL(" (");
    leser.verlangeZeichen(QL("("));
    bool erste = true;
    do {
      sql += (erste ? QL("") : QL(", ")) + liesFeld(leser);
      erste = false;
    } while (leser.nimmZeichen(QL(",")));
    leser.verlangeZeichen(QL(")"));
    return sql + QL(")");
  }
  leser.verlangeWort(QL("index"));
  QString sql = QL("CREATE INDEX ") + alsName(leser.nimmName());
  leser.verlangeWort(QL("on"));
  const Quelle quelle = leser.nimmTabelle();
  sql += QL(" ON ") + alsName(quelle.tabelle) + QL(" (");
  leser.verlangeZeichen(QL("("));
  bool erste = true;
  do {
    sql += (erste ? QL("") : QL(", ")) + alsName(leser.nimmFeld(quelle).name);
    erste = false;
  } while (leser.nimmZeichen(QL(",")));
  leser.verlangeZeichen(QL(")"));
  return sql + QL(")");
}

QString umbauen(Leser& leser) {
  leser.verlangeWort(QL("table"));
  const Quelle quelle = leser.nimmTabelle();
  const QString sql = QL("ALTER TABLE ") + alsName(quelle.tabelle);
  if (leser.nimmWort(QL("drop"))) {
    leser.nimmWort(QL("column"));
    return sql + QL(" DROP COLUMN ") + alsName(leser.nimmFeld(quelle).name);
  }
  leser.verlangeWort(QL("add"));
  leser.nimmWort(QL("column"));
  return sql + QL(" ADD COLUMN ") + liesFeld(leser);
}

QString entfernen(Leser& leser) {
  if (leser.nimmWort(QL("table"))) {
    return QL("DROP TABLE ") + alsName(leser.nimmTabelle().tabelle);
  }
  leser.verlangeWort(QL("index"));
  QString sql = QL("DROP INDEX ") + alsName(leser.nimmName());
  if (leser.nimmWort(QL("on"))) leser.nimmTabelle();
  return sql;
}

}  // namespace Dialekt
