#include "platform/database/dialekt/Dialekt.h"

#include "platform/database/dialekt/Dialektanweisungen.h"
#include "platform/database/dialekt/Dialektauswahl.h"

namespace {

using namespace Dialekt;
using QL = QLatin1String;

void auswählen(Leser& leser, Übersetzt& ergebnis) {
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

constexpr Anweisungsart arten[] = {{"insert", einfügen, true}, {"update", ändern, true},
                                   {"delete", löschen, true},  {"create", anlegen, false},
                                   {"alter", umbauen, false},  {"drop", entfernen, false}};

}  // namespace

Übersetzt Dialekt::übersetze(const QString& anweisung, const Katalog& katalog,
                             const Auskunft& auskunft) {
  Leser leser(anweisung, katalog, auskunft);
  Übersetzt ergebnis;
  ergebnis.werte = leser.werte();
  if (leser.istWort(QL("select"))) {
    auswählen(leser, ergebnis);
  } else if (leser.nimmWort(QL("transform"))) {
    int gruppen = 0;
    ergebnis.sql = kreuztabelle(leser, gruppen);
    ergebnis.kreuztabelle = Kreuztabelle{gruppen};
  } else {
    for (const Anweisungsart& art : arten) {
      if (!leser.nimmWort(QL(art.wort))) continue;
      ergebnis.sql = art.lies(leser);
      (art.schreibt ? ergebnis.schreibt : ergebnis.ändertSchema) = true;
      break;
    }
    if (ergebnis.sql.isEmpty()) leser.unlesbar();
  }
  leser.verlangeEnde();
  return ergebnis;
}
