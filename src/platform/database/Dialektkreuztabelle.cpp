#include "platform/database/Dialektanweisungen.h"
#include "platform/database/Dialektauswahl.h"

namespace Dialekt {

namespace {

using QL = QLatin1String;

// The columns' names in one select for each table row, g0, g1, ...
QString gruppenname(size_t nummer) { return QL("g") + QString::number(nummer); }

QString spaltenname(const Posten& posten, size_t nummer) {
  if (!posten.alias.isEmpty()) return alsName(posten.alias);
  if (posten.ausdruck.sorte == Ausdruck::Sorte::Feld) return alsName(posten.ausdruck.feld);
  return QL("Ausdruck") + QString::number(nummer + 1);
}

// Two groupings of the same rows: one by table row, which gives the left columns with their
// totals, one by table row and pivot value, which gives the cells.
QString kreuztabelleSql(const Auswahl& auswahl, const Ausdruck& zelle, const Ausdruck& pivot) {
  QString gruppen;
  QString gleich;
  QString ordnung;
  for (size_t i = 0; i < auswahl.gruppen.size(); ++i) {
    const QString name = gruppenname(i);
    gruppen += auswahl.gruppen[i].sql + QL(" AS ") + name + QL(", ");
    gleich +=
        (i > 0 ? QL(" AND ") : QL("")) + QStringLiteral("z.%1 IS c.%1 COLLATE tova").arg(name);
    ordnung += QStringLiteral("c.%1 COLLATE tova, ").arg(name);
  }
  QString links;
  QString ergebnis;
  for (size_t i = 0; i < auswahl.posten.size(); ++i) {
    const Posten& posten = auswahl.posten[i];
    const QString name = QL("s") + QString::number(i);
    links += (i > 0 ? QL(", ") : QL("")) + posten.ausdruck.sql + QL(" AS ") + name;
    ergebnis += QStringLiteral("z.%1 AS %2, ").arg(name, spaltenname(posten, i));
  }
  const QString grundlage = vonUndWo(auswahl) + QL(" GROUP BY ") + verbunden(auswahl.gruppen);
  return QL("WITH z AS (SELECT ") + gruppen + links + grundlage + QL("), c AS (SELECT ") + gruppen +
         pivot.sql + QL(" AS p, ") + zelle.sql + QL(" AS w") + grundlage + QL(", ") +
         mitKollation(pivot) + QL(") SELECT ") + ergebnis +
         QL("c.p AS Pivot, c.w AS Zelle FROM c JOIN z ON ") + gleich + QL(" ORDER BY ") + ordnung +
         QL("c.p COLLATE tova");
}

}  // namespace

QString kreuztabelle(Leser& leser, int& gruppen) {
  const size_t anfang = leser.stelle();
  leser.geheZu(leser.suche(QL("select")));
  if (leser.stelle() == anfang) leser.unlesbar();
  const size_t auswahlAnfang = leser.stelle();
  Auswahl auswahl = liesAuswahl(leser);
  if (auswahl.gruppen.empty() || auswahl.verschieden || auswahl.anzahl >= 0 ||
      !auswahl.sortierung.empty() || !auswahl.haben.isEmpty()) {
    leser.unlesbar();
  }
  for (const Posten& posten : auswahl.posten) {
    if (!posten.stern.isEmpty()) leser.unlesbar();
  }
  leser.geltung = &auswahl.geltung;
  auswahl.geltung.vorrang = Geltung::Vorrang::NurFelder;
  leser.verlangeWort(QL("pivot"));
  const Ausdruck pivot = leser.wert();
  const size_t schluss = leser.stelle();
  leser.geheZu(anfang);
  auswahl.geltung.aggregat = false;
  const Ausdruck zelle = leser.wert();
  if (leser.stelle() != auswahlAnfang || !auswahl.geltung.aggregat) leser.unlesbar();
  leser.geltung = nullptr;
  leser.geheZu(schluss);
  gruppen = static_cast<int>(auswahl.posten.size());
  return kreuztabelleSql(auswahl, zelle, pivot);
}

}  // namespace Dialekt
