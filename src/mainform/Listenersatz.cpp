#include "mainform/Listenersatz.h"

#include <QScopeGuard>
#include <QStringList>
#include <functional>

#include "core/globals.h"

using namespace TZ_Variablen;

namespace {

struct Versuch {
  Daten daten;    // null: the settings can't be used
  QString grund;  // for the user
};

Versuch versuche(const std::function<Daten()>& lesen, const QStringList& pflichtfelder) {
  try {
    const Daten daten = lesen();
    for (const QString& feld : pflichtfelder)
      if (daten->spaltenNummer(feld) < 0)
        return {nullptr, QStringLiteral("Das Feld %1 fehlt.").arg(feld)};
    return {daten, {}};
  } catch (const Datenbankfehler& fehler) {
    if (fehler.art() != Datenbankfehler::Art::Anweisung) throw;
    return {nullptr, fehler.text()};
  }
}

Versuch versucheVölker(Database& db, Volkfilter filter) {
  return versuche([&] { return volkliste(db, filter); },
                  {QStringLiteral("Selektiert"), QStringLiteral("ID")});
}

QString sortiermeldung(const QString& grund) {
  return QStringLiteral("Die eingestellte Sortierung der Völkerliste kann nicht benutzt werden:") +
         CRLF + grund + CRLF + CRLF +
         QStringLiteral("Die Liste ist deshalb wieder nach ihrer Spalte sortiert.");
}

QString feldmeldung(const QString& liste, const QString& grund) {
  return QStringLiteral("Die eingestellten Felder der %1 können nicht benutzt werden:").arg(liste) +
         CRLF + grund + CRLF + CRLF +
         QStringLiteral("Die Liste zeigt deshalb wieder alle Felder in ihrer ersten Reihenfolge.");
}

void ohneSortierung() {
  EinstellungenText[Textslots.sortierung1].clear();
  EinstellungenText[Textslots.sortierung2].clear();
}

void standardfelder() {
  EinstellungenText[Textslots.volkfelder].clear();
  listenfelderPrüfen();
}

}  // namespace

Volkzeilen volklisteMitErsatz(Database& db, Volkfilter filter) {
  const Versuch wieEingestellt = versucheVölker(db, filter);
  if (wieEingestellt.daten) return {wieEingestellt.daten, {}};

  const auto vorher = EinstellungenText;
  auto zurück = qScopeGuard([&vorher] { EinstellungenText = vorher; });
  const auto gelungen = [&zurück](const Versuch& versuch, const QString& meldung) {
    zurück.dismiss();
    return Volkzeilen{versuch.daten, meldung};
  };

  ohneSortierung();
  Versuch versuch = versucheVölker(db, filter);
  if (versuch.daten) return gelungen(versuch, sortiermeldung(wieEingestellt.grund));

  const QString felder = feldmeldung(QStringLiteral("Völkerliste"), versuch.grund);
  EinstellungenText = vorher;
  standardfelder();
  versuch = versucheVölker(db, filter);
  if (versuch.daten) return gelungen(versuch, felder);

  const QString sortierung = sortiermeldung(versuch.grund);
  ohneSortierung();
  versuch = versucheVölker(db, filter);
  if (versuch.daten) return gelungen(versuch, felder + CRLF + CRLF + sortierung);
  throw Datenbankfehler(Datenbankfehler::Art::Anweisung, versuch.grund);
}

QString stockkartenfelderErsetzen(Database& db) {
  // No stock card has the number 0: the select is tried without reading the table.
  const Versuch versuch = versuche(
      [&db] {
        return db.Lesen(EinstellungenText[Textslots.stockkartenfelder] +
                        QStringLiteral(" where ID = 0"));
      },
      {QStringLiteral("Datum"), QStringLiteral("Volk_ID"), QStringLiteral("ID")});
  if (versuch.daten) return {};
  EinstellungenText[Textslots.stockkartenfelder].clear();
  stockkartenfelderPrüfen();
  return feldmeldung(QStringLiteral("Stockkartenliste"), versuch.grund);
}
