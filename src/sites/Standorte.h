#pragma once

#include "data/Verwaltungsfelder.h"

// Sites, forage plants and the ties between them: which plants stand at a site, how far away and
// with what share of its forage. A tie holds the plant by name and the site by ID; a name that no
// plant bears is kept. All functions throw Datenbankfehler.
namespace Standorte {

const Verwaltung::Felder& standortfelder();  // of the table Standorte
const Verwaltung::Felder& pflanzenfelder();  // of Pflanzen
const Verwaltung::Felder& trachtfelder();    // of Standorte_Pflanzen

// The statements of the lists. That of the plants at a site takes the site's ID.
QString standortliste();
QString pflanzenliste();
QString trachtliste();
// The names of all sites in the order of their list.
Daten standortnamen(Database& datenbank);

// Reasons for not saving, in their order; none when all is well. anteilSonst is the share in per
// cent of the site's other plants.
QStringList standortGründe(const Verwaltung::Texte& texte);
QStringList pflanzenGründe(const Verwaltung::Texte& texte);
QStringList trachtGründe(const Verwaltung::Texte& texte, qint64 anteilSonst);

// Where the map shows a new site.
QVariantHash neuerPlatz();

// The sum of the shares at a site in per cent, 0 without plants.
qint64 anteilSumme(Database& datenbank, qint64 standortId);

// Works out Trachtzeit_von and Trachtzeit_bis of all sites: the earliest start and the latest end
// of bloom of the plants there, as full dates; null for a site without a known plant. A site is
// found by its name: of several with one name the first gets them.
void trachtzeitenErmitteln(Database& datenbank);

// Moves the bloom of all plants by so many years, within 1901 to 2099. A 29th of February that the
// new year doesn't have ends it with a Datenbankfehler; the plants entered before it stay moved,
// that plant and those entered later stay as they are.
void weidezeitenVerschieben(Database& datenbank, int jahre);

}  // namespace Standorte
