#pragma once

#include "data/Verwaltungsfelder.h"

// The cash and honey book: purchases, sales and the honey store. A deal whose product is a honey
// keeps a movement of its own in Honiglager, tied to it by EVK_ID. Purchases and sales count their
// IDs independently, so the amount that is 0 tells whose movement it is: a purchase's has no
// Abgang, a sale's no Zugang. All functions with a database throw Datenbankfehler.
namespace Handel {

enum class Seite { Einkauf, Verkauf };

// The table of the deals, the fields of the other party and of the money.
QString tabelle(Seite seite);
QString partnerfeld(Seite seite);
QString geldfeld(Seite seite);

// The statements of the lists.
QString geschäftsliste(Seite seite);
QString lagerliste();

// The inputs, today (HeuteText) as the first date. Not kept, as today differs from start to start.
Verwaltung::Felder geschäftsfelder(Seite seite);
Verwaltung::Felder lagerfelder();

// Reasons for not saving, in their order; none when all is well.
QStringList geschäftsgründe(const Verwaltung::Texte& texte);
QStringList lagergründe(const Verwaltung::Texte& texte);

// Whether a product has the word honey in its name, in any case.
bool istHonig(const QString& produkt);

// Writes a deal (a new one without an ID), makes sure that its party is known and books its honey
// movement, all as one commit. Gives the deal's ID.
qint64 geschäftSpeichern(Database& datenbank, Seite seite, const Verwaltung::Texte& texte,
                         std::optional<qint64> id);

// Adds a bare row for a party that no row of Kunden has by name, as supplier or as customer.
void partnerSichern(Database& datenbank, Seite seite, const QString& name);

// Books the movement of a honey deal in place of the one it had; the day of filling stays. Does
// nothing for other products. The quantity is taken as kilograms whatever the unit says.
void bewegungBuchen(Database& datenbank, Seite seite, const Verwaltung::Texte& texte, qint64 id);

// Deletes the movement of a deal if it bears this date and product; fails, with nothing deleted,
// when the date is none.
void bewegungLöschen(Database& datenbank, Seite seite, const QString& datum, const QString& produkt,
                     qint64 id);

// The store by product and batch: Summe (in minus out), Anzahl (movements), Zugänge, Abgänge. Rows
// with an empty batch and rows without one are two groups.
Daten bestand(Database& datenbank);

// "Einkauf: 1,00 €   Verkauf: 3,00 €   Summe: 2,00 €": what was paid, received and is left.
QString summenzeile(Database& datenbank);

}  // namespace Handel
