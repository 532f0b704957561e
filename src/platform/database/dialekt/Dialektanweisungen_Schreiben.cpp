#include "platform/database/dialekt/Dialektanweisungen.h"

namespace Dialekt {

namespace {

using QL = QLatin1String;

// The value on its way into a field: through the field's rule.
QString insFeld(const QString& sql, const Spalte& spalte) {
  return QStringLiteral("tova_feld(") + sql + QL(", ") + alsText(spalte.name) + QL(", ") +
         QString::number(static_cast<int>(spalte.typ)) + QL(", ") + QString::number(spalte.länge) +
         QL(")");
}

std::vector<Spalte> zielfelder(Leser& leser, const Quelle& quelle) {
  if (!leser.nimmZeichen(QL("("))) return quelle.felder;
  std::vector<Spalte> felder;
  do felder.push_back(leser.nimmFeld(quelle));
  while (leser.nimmZeichen(QL(",")));
  leser.verlangeZeichen(QL(")"));
  return felder;
}

QString werte(Leser& leser, const std::vector<Spalte>& felder) {
  leser.verlangeZeichen(QL("("));
  QString sql;
  size_t i = 0;
  do {
    if (i == felder.size()) leser.unlesbar();
    sql += (i > 0 ? QL(", ") : QL("")) + insFeld(leser.wert().sql, felder[i]);
    ++i;
  } while (leser.nimmZeichen(QL(",")));
  if (i != felder.size()) leser.unlesbar();
  leser.verlangeZeichen(QL(")"));
  return sql;
}

}  // namespace

QString einfügen(Leser& leser) {
  leser.verlangeWort(QL("into"));
  const Quelle quelle = leser.nimmTabelle();
  const std::vector<Spalte> felder = zielfelder(leser, quelle);
  QString sql = QL("INSERT INTO ") + alsName(quelle.tabelle) + QL(" (");
  for (size_t i = 0; i < felder.size(); ++i) {
    sql += (i > 0 ? QL(", ") : QL("")) + alsName(felder[i].name);
  }
  sql += QL(") ");
  leser.verlangeWort(QL("values"));
  sql += QL("VALUES ");
  bool erste = true;
  do {
    sql += (erste ? QL("(") : QL(", (")) + werte(leser, felder) + QL(")");
    erste = false;
  } while (leser.nimmZeichen(QL(",")));
  return sql;
}

QString ändern(Leser& leser) {
  Geltung geltung;
  geltung.quellen.push_back(leser.nimmTabelle());
  const Quelle quelle = geltung.quellen[0];
  leser.geltung = &geltung;
  leser.verlangeWort(QL("set"));
  QString sql = QL("UPDATE ") + alsName(quelle.tabelle) + QL(" SET ");
  bool erste = true;
  do {
    const Spalte& spalte = leser.nimmFeld(quelle);
    leser.verlangeZeichen(QL("="));
    sql += (erste ? QL("") : QL(", ")) + alsName(spalte.name) + QL(" = ") +
           insFeld(leser.wert().sql, spalte);
    erste = false;
  } while (leser.nimmZeichen(QL(",")));
  if (leser.nimmWort(QL("where"))) sql += QL(" WHERE ") + leser.bedingung().sql;
  if (geltung.aggregat) leser.unlesbar();
  leser.geltung = nullptr;
  return sql;
}

QString löschen(Leser& leser) {
  leser.verlangeWort(QL("from"));
  Geltung geltung;
  geltung.quellen.push_back(leser.nimmTabelle());
  leser.geltung = &geltung;
  QString sql = QL("DELETE FROM ") + alsName(geltung.quellen[0].tabelle);
  if (leser.nimmWort(QL("where"))) sql += QL(" WHERE ") + leser.bedingung().sql;
  leser.geltung = nullptr;
  return sql;
}

}  // namespace Dialekt
