#include "data/Pickliste.h"

#include "data/helpers.h"

namespace Pickliste {

QStringList lesen(Database& datenbank, const QString& anweisung, Schreibung schreibung) {
  const Daten zeilen = datenbank.Lesen(anweisung);
  QStringList texte;
  for (int i = 0; i < zeilen->zeilen(); ++i) {
    const QString gelesen = TextLesen(zeilen->wert(i, 0));
    if (gelesen.isEmpty()) continue;
    texte << (schreibung == Schreibung::Gelesen ? gelesen : zeilen->anzeige(i, 0));
  }
  return texte;
}

}  // namespace Pickliste
