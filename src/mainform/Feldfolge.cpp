#include "mainform/Feldfolge.h"

#include <QRegularExpression>

#include "core/globals.h"
#include "mainform/Volkliste.h"

namespace Feldfolge {

namespace {

const QString Datum = QStringLiteral("Datum");
const QString ID = QStringLiteral("ID");

QString tabelle(Liste liste) {
  return liste == Liste::Volk ? QStringLiteral("Bienenvolk") : QStringLiteral("Stockkarte");
}

// The names between "select" and "from <table>"; none when the text is something else.
QStringList namen(Liste liste, const QString& text) {
  static const QRegularExpression form(
      QStringLiteral("\\A\\s*select\\s+(.+?)\\s+from\\s+(\\w+)\\s*\\z"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption |
          QRegularExpression::UseUnicodePropertiesOption);
  const auto treffer = form.match(text);
  if (!treffer.hasMatch() || treffer.captured(2).compare(tabelle(liste), Qt::CaseInsensitive) != 0)
    return {};
  QStringList ergebnis;
  for (const QString& name : treffer.captured(1).split(u',')) ergebnis << name.trimmed();
  return ergebnis;
}

QStringList nurFelder(const QStringList& namen, const std::vector<Spalte>& tabellenfelder) {
  QStringList felder;
  for (const QString& name : namen)
    for (const Spalte& feld : tabellenfelder)
      if (feld.name.compare(name, Qt::CaseInsensitive) == 0 && !felder.contains(feld.name))
        felder << feld.name;
  return felder;
}

}  // namespace

QStringList lesen(Liste liste, const Database& db) {
  const bool volk = liste == Liste::Volk;
  const std::vector<Spalte> tabellenfelder = db.Felder(tabelle(liste));
  QStringList felder =
      nurFelder(namen(liste, TZ_Variablen::EinstellungenText[volk ? Textslots.volkfelder
                                                                  : Textslots.stockkartenfelder]),
                tabellenfelder);
  if (!felder.contains(QStringLiteral("Futterwaben")))
    felder = nurFelder(namen(liste, volk ? listenfelderStandard() : stockkartenfelderStandard()),
                       tabellenfelder);
  felder.removeAll(ID);
  const QString nötig = volk ? QStringLiteral("Selektiert") : QStringLiteral("Volk_ID");
  if (!felder.contains(nötig)) felder << nötig;
  if (!volk) {
    felder.removeAll(Datum);
    felder.prepend(Datum);
  }
  return felder << ID;
}

QString anweisung(Liste liste, const QStringList& felder) {
  return QStringLiteral("select ") + felder.join(QStringLiteral(", ")) + QStringLiteral(" from ") +
         tabelle(liste);
}

int verschieben(QStringList& felder, int zeile, int schritt) {
  const auto fest = [&](int i) { return felder[i] == Datum || felder[i] == ID; };
  if (zeile < 0 || zeile >= felder.size()) return zeile;
  if (fest(zeile)) return -1;
  const int ziel = zeile + schritt;
  if (ziel < 0 || ziel >= felder.size()) return zeile;
  if (fest(ziel)) return -1;
  felder.swapItemsAt(zeile, ziel);
  return ziel;
}

QString unbeweglichText() {
  return QStringLiteral("Das Datum und die ID können nicht verschoben werden.");
}

}  // namespace Feldfolge
