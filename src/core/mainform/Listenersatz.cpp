#include "core/mainform/Listenersatz.h"

#include "core/globals.h"

using namespace TZ_Variablen;

namespace {

struct Versuch {
  Daten daten;    // null: the settings can't be used
  QString grund;  // for the user
};

Versuch versuche(Database& db, Volkfilter filter) {
  try {
    const Daten daten = volkliste(db, filter);
    for (const QString& feld : {QStringLiteral("Selektiert"), QStringLiteral("ID")})
      if (daten->spaltenNummer(feld) < 0)
        return {nullptr, QStringLiteral("Das Feld %1 fehlt.").arg(feld)};
    return {daten, {}};
  } catch (const Datenbankfehler& fehler) {
    if (fehler.art() != Datenbankfehler::Art::Anweisung) throw;
    return {nullptr, fehler.text()};
  }
}

QString sortiermeldung(const QString& grund) {
  return QStringLiteral("Die eingestellte Sortierung der Völkerliste kann nicht benutzt werden:") +
         CRLF + grund + CRLF + CRLF +
         QStringLiteral("Die Liste ist deshalb wieder nach ihrer Spalte sortiert.");
}

QString feldmeldung(const QString& grund) {
  return QStringLiteral("Die eingestellten Felder der Völkerliste können nicht benutzt werden:") +
         CRLF + grund + CRLF + CRLF +
         QStringLiteral("Die Liste zeigt deshalb wieder alle Felder in ihrer ersten Reihenfolge.");
}

void ohneSortierung() {
  EinstellungenText[33].clear();
  EinstellungenText[34].clear();
}

void standardfelder() {
  EinstellungenText[17].clear();
  listenfelderPruefen();
}

}  // namespace

Volkzeilen volklisteMitErsatz(Database& db, Volkfilter filter) {
  const Versuch wieEingestellt = versuche(db, filter);
  if (wieEingestellt.daten) return {wieEingestellt.daten, {}};

  const auto vorher = EinstellungenText;
  ohneSortierung();
  Versuch versuch = versuche(db, filter);
  if (versuch.daten) return {versuch.daten, sortiermeldung(wieEingestellt.grund)};

  const QString feldgrund = versuch.grund;
  EinstellungenText = vorher;
  standardfelder();
  versuch = versuche(db, filter);
  if (versuch.daten) return {versuch.daten, feldmeldung(feldgrund)};

  const QString sortiergrund = versuch.grund;
  ohneSortierung();
  versuch = versuche(db, filter);
  if (versuch.daten)
    return {versuch.daten, feldmeldung(feldgrund) + CRLF + CRLF + sortiermeldung(sortiergrund)};
  EinstellungenText = vorher;
  throw Datenbankfehler(Datenbankfehler::Art::Anweisung, versuch.grund);
}
