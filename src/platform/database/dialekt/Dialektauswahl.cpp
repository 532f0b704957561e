#include "platform/database/dialekt/Dialektauswahl.h"

#include <utility>

namespace Dialekt {

namespace {

using QL = QLatin1String;

// ---- reading ----

// "T.*"
bool liesTabellenstern(Leser& leser, const Auswahl& auswahl, Posten& posten) {
  if (!leser.istName()) return false;
  const size_t anfang = leser.stelle();
  const QString name = leser.nimmName();
  if (leser.nimmZeichen(QL(".")) && leser.nimmZeichen(QL("*"))) {
    for (const Quelle& quelle : auswahl.geltung.quellen) {
      if (quelle.name.compare(name, Qt::CaseInsensitive) == 0) {
        posten.stern = alsName(quelle.name) + QL(".*");
        return true;
      }
    }
  }
  leser.geheZu(anfang);
  return false;
}

Posten liesPosten(Leser& leser, const Auswahl& auswahl) {
  Posten posten;
  if (leser.nimmZeichen(QL("*"))) {
    posten.stern = QStringLiteral("*");
    return posten;
  }
  if (liesTabellenstern(leser, auswahl, posten)) return posten;
  const bool vorher = std::exchange(leser.geltung->aggregat, false);
  posten.ausdruck = leser.wert();
  posten.ausViel = std::exchange(leser.geltung->aggregat, vorher || leser.geltung->aggregat);
  if (leser.nimmWort(QL("as"))) posten.alias = leser.nimmName();
  return posten;
}

QString liesTabelle(Leser& leser, Geltung& geltung) {
  Quelle quelle = leser.nimmTabelle();
  QString sql = alsName(quelle.tabelle);
  if (leser.nimmWort(QL("as")) || leser.istName()) {
    quelle.name = leser.nimmName();
    sql += QL(" AS ") + alsName(quelle.name);
  }
  geltung.quellen.push_back(std::move(quelle));
  return sql;
}

QString liesTabellen(Leser& leser, Geltung& geltung) {
  QString sql = liesTabelle(leser, geltung);
  while (leser.nimmZeichen(QL(","))) sql += QL(", ") + liesTabelle(leser, geltung);
  return sql;
}

// The tables stand behind the columns but say what these mean: they are read first.
void liesSpaltenUndTabellen(Leser& leser, Auswahl& auswahl) {
  const size_t spalten = leser.stelle();
  const size_t von = leser.suche(QL("from"));
  if (von != spalten) {
    leser.geheZu(von);
    leser.weiter();
    auswahl.von = liesTabellen(leser, auswahl.geltung);
  }
  const size_t dahinter = leser.stelle();
  leser.geheZu(spalten);
  leser.geltung = &auswahl.geltung;
  do auswahl.posten.push_back(liesPosten(leser, auswahl));
  while (leser.nimmZeichen(QL(",")));
  for (const Posten& posten : auswahl.posten) {
    if (!posten.alias.isEmpty()) auswahl.geltung.aliase.push_back({posten.alias, posten.ausdruck});
  }
  if (von == spalten) return;
  if (leser.stelle() != von) leser.unlesbar();
  leser.geheZu(dahinter);
}

void liesSortierung(Leser& leser, Auswahl& auswahl) {
  Sortierung eine;
  eine.ausdruck = leser.wert();
  eine.absteigend = leser.nimmWort(QL("desc"));
  if (!eine.absteigend) leser.nimmWort(QL("asc"));
  auswahl.sortierung.push_back(std::move(eine));
}

// ---- writing ----

// The IDs of the tables that the given order doesn't contain yet.
QStringList kennungen(const Auswahl& auswahl) {
  QStringList alle;
  for (size_t i = 0; i < auswahl.geltung.quellen.size(); ++i) {
    const Quelle& quelle = auswahl.geltung.quellen[i];
    const Spalte* id = quelle.feld(u"ID");
    if (!id) continue;
    bool vorhanden = false;
    for (const Sortierung& eine : auswahl.sortierung) {
      vorhanden = vorhanden || eine.ausdruck.istFeld(static_cast<int>(i), u"ID");
    }
    if (!vorhanden) alle += alsName(quelle.name) + QL(".") + alsName(id->name);
  }
  return alle;
}

// ---- the different values of an indexed field ----

bool istWertsuche(const Auswahl& auswahl, const Auskunft& auskunft) {
  if (!auswahl.verschieden || auswahl.anzahl >= 0 || !auswahl.eineTabelle() ||
      auswahl.posten.size() != 1 || auswahl.sortierung.size() != 1 ||
      auswahl.sortierung[0].absteigend || !auswahl.wo.isEmpty() || !auswahl.gruppen.empty() ||
      !auskunft.beginntIndex) {
    return false;
  }
  const Ausdruck& feld = auswahl.posten[0].ausdruck;
  return feld.sorte == Ausdruck::Sorte::Feld && feld.quelle == 0 &&
         auswahl.sortierung[0].ausdruck.istFeld(0, feld.feld) &&
         auskunft.beginntIndex(auswahl.geltung.quellen[0].tabelle, feld.feld);
}

// From each value the index leads to the next one; rows of the same value are never read. Null
// has no next value and comes first, by itself. An index that contradicts its table could lead back
// for ever: it goes on to a greater value only, else the database counts as damaged.
QString wertsuche(const Auswahl& auswahl) {
  const Posten& posten = auswahl.posten[0];
  const QString feld = alsName(posten.ausdruck.feld);
  const QString tabelle = alsName(auswahl.geltung.quellen[0].tabelle);
  const QString name = alsName(posten.alias.isEmpty() ? posten.ausdruck.feld : posten.alias);
  return QStringLiteral(
             "WITH RECURSIVE tova_werte(wert) AS ("
             "SELECT * FROM (SELECT %1 FROM %2 WHERE %1 IS NOT NULL ORDER BY %1 LIMIT 1) "
             "UNION ALL SELECT CASE WHEN tova_t.%1 > tova_werte.wert THEN tova_t.%1 "
             "ELSE tova_fehlfolge() END FROM tova_werte CROSS JOIN %2 AS tova_t "
             "WHERE tova_t.rowid = (SELECT tova_u.rowid FROM %2 AS tova_u "
             "WHERE tova_u.%1 > tova_werte.wert ORDER BY tova_u.%1 LIMIT 1)) "
             "SELECT * FROM (SELECT %1 AS %3 FROM %2 WHERE %1 IS NULL LIMIT 1) "
             "UNION ALL SELECT wert FROM tova_werte")
      .arg(feld, tabelle, name);
}

}  // namespace

Auswahl liesAuswahl(Leser& leser) {
  Auswahl auswahl;
  leser.verlangeWort(QL("select"));
  auswahl.verschieden = leser.nimmWort(QL("distinct"));
  if (leser.nimmWort(QL("top"))) auswahl.anzahl = leser.nimmAnzahl();
  liesSpaltenUndTabellen(leser, auswahl);
  leser.geltung = &auswahl.geltung;
  if (leser.nimmWort(QL("where"))) auswahl.wo = leser.bedingung().sql;
  using Vorrang = Geltung::Vorrang;
  if (leser.nimmWort(QL("group"))) {
    leser.verlangeWort(QL("by"));
    auswahl.geltung.vorrang = Vorrang::FelderZuerst;
    do auswahl.gruppen.push_back(leser.wert());
    while (leser.nimmZeichen(QL(",")));
  }
  if (leser.nimmWort(QL("order"))) {
    leser.verlangeWort(QL("by"));
    auswahl.geltung.vorrang = Vorrang::AliaseZuerst;
    do liesSortierung(leser, auswahl);
    while (leser.nimmZeichen(QL(",")));
  }
  leser.geltung = nullptr;
  return auswahl;
}

QString vonUndWo(const Auswahl& auswahl) {
  QString sql;
  if (!auswahl.von.isEmpty()) sql += QL(" FROM ") + auswahl.von;
  if (!auswahl.wo.isEmpty()) sql += QL(" WHERE ") + auswahl.wo;
  return sql;
}

QString kopf(const Auswahl& auswahl) {
  QString sql =
      auswahl.verschieden ? QStringLiteral("SELECT DISTINCT ") : QStringLiteral("SELECT ");
  for (size_t i = 0; i < auswahl.posten.size(); ++i) {
    if (i > 0) sql += QL(", ");
    Posten posten = auswahl.posten[i];
    if (auswahl.verschieden) posten.ausdruck.sql = mitKollation(posten.ausdruck);
    sql += posten.sql();
  }
  sql += vonUndWo(auswahl);
  if (!auswahl.gruppen.empty()) sql += QL(" GROUP BY ") + verbunden(auswahl.gruppen);
  return sql;
}

// Order and limit. Rows that the given order leaves equal come in the order of their IDs, groups
// without a given order in the order of what they are grouped by.
QString ende(const Auswahl& auswahl) {
  QString sql;
  const auto hängeAn = [&sql](const QString& teil) {
    sql += (sql.isEmpty() ? QL(" ORDER BY ") : QL(", ")) + teil;
  };
  for (const Sortierung& eine : auswahl.sortierung) {
    hängeAn(mitKollation(eine.ausdruck) + (eine.absteigend ? QL(" DESC") : QL("")));
  }
  const bool begrenzt = auswahl.anzahl >= 0;
  if (!auswahl.gruppen.empty()) {
    if (sql.isEmpty() && !auswahl.verschieden) hängeAn(verbunden(auswahl.gruppen));
  } else if (auswahl.einfach() &&
             (begrenzt || (auswahl.eineTabelle() && (!sql.isEmpty() || auswahl.wo.isEmpty())))) {
    for (const QString& id : kennungen(auswahl)) hängeAn(id);
  }
  if (begrenzt) sql += QL(" LIMIT ") + QString::number(auswahl.anzahl);
  return sql;
}

QString verbunden(const std::vector<Ausdruck>& teile) {
  QString sql;
  for (const Ausdruck& teil : teile) {
    if (!sql.isEmpty()) sql += QL(", ");
    sql += mitKollation(teil);
  }
  return sql;
}

QString Posten::sql() const {
  if (!stern.isEmpty()) return stern;
  return alias.isEmpty() ? ausdruck.sql : ausdruck.sql + QL(" AS ") + alsName(alias);
}

QString alsAnweisung(const Auswahl& auswahl, const Auskunft& auskunft) {
  return istWertsuche(auswahl, auskunft) ? wertsuche(auswahl) : kopf(auswahl) + ende(auswahl);
}

}  // namespace Dialekt
