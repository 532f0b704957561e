#include "platform/database/Dialekt.h"

#include "platform/database/Dialektanweisungen.h"
#include "platform/database/Dialektauswahl.h"

namespace {

using namespace Dialekt;
using QL = QLatin1String;

void auswaehlen(Leser& leser, Uebersetzt& ergebnis) {
  const Auswahl auswahl = liesAuswahl(leser);
  if (auswahl.einfach() && auswahl.eineTabelle()) {
    ergebnis.tabelle = auswahl.geltung.quellen[0].tabelle;
  }
  ergebnis.sql = alsAnweisung(auswahl, leser.auskunft());
}

struct Anweisungsart {
  const char* wort;
  QString (*lies)(Leser&);
  bool schreibt;
};

constexpr Anweisungsart arten[] = {{"insert", einfuegen, true}, {"update", aendern, true},
                                   {"delete", loeschen, true},  {"create", anlegen, false},
                                   {"alter", umbauen, false},   {"drop", entfernen, false}};

}  // namespace

Uebersetzt Dialekt::uebersetze(const QString& anweisung, const Katalog& katalog,
                               const Auskunft& auskunft) {
  Leser leser(anweisung, katalog, auskunft);
  leser.unterauswahl = [&leser] { return unterauswahl(leser); };
  Uebersetzt ergebnis;
  ergebnis.werte = leser.werte();
  if (leser.istWort(QL("select"))) {
    auswaehlen(leser, ergebnis);
  } else if (leser.nimmWort(QL("transform"))) {
    int gruppen = 0;
    ergebnis.sql = kreuztabelle(leser, gruppen);
    ergebnis.kreuztabelle = Kreuztabelle{gruppen};
  } else {
    for (const Anweisungsart& art : arten) {
      if (!leser.nimmWort(QL(art.wort))) continue;
      ergebnis.sql = art.lies(leser);
      (art.schreibt ? ergebnis.schreibt : ergebnis.aendertSchema) = true;
      break;
    }
    if (ergebnis.sql.isEmpty()) leser.unlesbar();
  }
  leser.verlangeEnde();
  return ergebnis;
}
