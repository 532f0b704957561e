#include "platform/database/dialekt/Dialektanweisungen.h"
#include "platform/database/dialekt/Dialektauswahl.h"

namespace Dialekt {

namespace {

using QL = QLatin1String;

bool istAnzahl(const Ausdruck& ausdruck) { return ausdruck.sql == QL("count(*)"); }

// What isn't a group value is a count; every group value has its column.
void prüfe(const Leser& leser, const Auswahl& auswahl) {
  if (auswahl.gruppen.empty() || auswahl.verschieden || auswahl.anzahl >= 0 ||
      !auswahl.sortierung.empty()) {
    leser.unlesbar();
  }
  size_t gruppen = 0;
  for (const Posten& posten : auswahl.posten) {
    bool gruppe = false;
    for (const Ausdruck& eine : auswahl.gruppen) gruppe = gruppe || eine.sql == posten.ausdruck.sql;
    if (!posten.stern.isEmpty() || (posten.ausViel && !istAnzahl(posten.ausdruck)))
      leser.unlesbar();
    gruppen += gruppe ? 1 : 0;
  }
  if (gruppen < auswahl.gruppen.size()) leser.unlesbar();
}

// The rows are grouped once, by table row and pivot value; the counts of a table row are added up
// from its groups.
QString kreuztabelleSql(const Auswahl& auswahl, const Ausdruck& pivot) {
  const QString gruppen = verbunden(auswahl.gruppen);
  QString spalten;
  for (Posten posten : auswahl.posten) {
    if (posten.ausViel)
      posten.ausdruck.sql =
          QL("CAST(total(count(*)) OVER (PARTITION BY ") + gruppen + QL(") AS INTEGER)");
    spalten += posten.sql() + QL(", ");
  }
  const QString folge = gruppen + QL(", ") + mitKollation(pivot);
  return QL("SELECT ") + spalten + pivot.sql + QL(" AS Pivot, count(*) AS Zelle") +
         vonUndWo(auswahl) + QL(" GROUP BY ") + folge + QL(" ORDER BY ") + folge;
}

}  // namespace

QString kreuztabelle(Leser& leser, int& gruppen) {
  for (const char* zeichen : {"count", "(", "*", ")"}) {
    if (leser.marke().text.compare(QL(zeichen), Qt::CaseInsensitive) != 0) leser.unlesbar();
    leser.weiter();
  }
  const Auswahl auswahl = liesAuswahl(leser);
  prüfe(leser, auswahl);
  Geltung geltung = auswahl.geltung;
  geltung.vorrang = Geltung::Vorrang::NurFelder;
  geltung.aggregat = false;
  leser.geltung = &geltung;
  leser.verlangeWort(QL("pivot"));
  const Ausdruck pivot = leser.wert();
  if (geltung.aggregat) leser.unlesbar();
  leser.geltung = nullptr;
  gruppen = static_cast<int>(auswahl.posten.size());
  return kreuztabelleSql(auswahl, pivot);
}

}  // namespace Dialekt
