#include "core/settings.h"

#include <QRegularExpression>
#include <cmath>
#include <optional>

#include "core/globals.h"
#include "platform/files/Textdatei.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

constexpr int Breite = 50;  // of a value's line; wide enough for every float

QString pfad() { return AppPfad + QStringLiteral("Einstellungen.TV2"); }

std::optional<qint16> ganzzahl(const QString& zeile) {
  bool gelesen = false;
  const qint16 zahl = zeile.trimmed().toShort(&gelesen, 10);
  return gelesen ? std::optional(zahl) : std::nullopt;
}

// A decimal comma is taken as well: people edit the file by hand.
std::optional<float> wert(const QString& zeile) {
  static const QRegularExpression form(
      QStringLiteral("\\A[+-]?(?:[0-9]+(?:[.,][0-9]*)?|[.,][0-9]+)(?:[eE][+-]?[0-9]+)?\\z"));
  QString text = zeile.trimmed();
  if (!form.match(text).hasMatch()) return std::nullopt;
  const auto zahl = static_cast<float>(Deutsch::val(text.replace(u',', u'.')));
  return std::isfinite(zahl) ? std::optional(zahl) : std::nullopt;
}

QString eineZeile(const QString& text) {
  QString zeile = text;
  zeile.replace(CRLF, QStringLiteral(" "));
  zeile.replace(u'\r', u' ');
  zeile.replace(u'\n', u' ');
  return zeile;
}

// Takes the lines one by one into the slots; a bad line ends it.
void zeilenLesen(const QStringList& zeilen) {
  auto zeile = zeilen.cbegin();
  for (qint16& platz : EinstellungenZahl) {
    if (zeile == zeilen.cend()) return;
    const auto zahl = ganzzahl(*zeile++);
    if (!zahl) return;
    platz = *zahl;
  }
  for (float& platz : EinstellungenWert) {
    if (zeile == zeilen.cend()) return;
    const auto zahl = wert(*zeile++);
    if (!zahl) return;
    platz = *zahl;
  }
  for (QString& platz : EinstellungenText) {
    if (zeile == zeilen.cend()) return;
    platz = *zeile++;
  }
}

}  // namespace

void EinstellungenLesen() {
  if (!Textdatei::existiert(pfad())) return;
  zeilenLesen(Textdatei::lesen(pfad()));
  if (EinstellungenText[4].isEmpty()) EinstellungenText[4] = TrennzeichenStandard;
}

void EinstellungenSchreiben() {
  QStringList zeilen;
  for (const qint16 zahl : EinstellungenZahl) zeilen += QString::number(zahl);
  // The shortest decimal of the float is what the user typed; it is rounded from there.
  for (const float zahl : EinstellungenWert)
    zeilen += Deutsch::festeZahl(Breite, Deutsch::einfach(static_cast<double>(zahl))).trimmed();
  for (const QString& text : EinstellungenText) zeilen += eineZeile(text);
  Textdatei::schreiben(pfad(), zeilen);
}

void EinstellungenStandard(QDate heute) {
  EinstellungenZahl[13] = 1;
  EinstellungenZahl[17] = 14;
  EinstellungenZahl[24] = 1;
  EinstellungenZahl[28] = static_cast<qint16>(heute.year());
  EinstellungenZahl[46] = 1;
  EinstellungenZahl[47] = 1;
  EinstellungenZahl[49] = 60;
  EinstellungenZahl[50] = 14;
  EinstellungenZahl[55] = 1;
  EinstellungenZahl[57] = 1;
  EinstellungenText[4] = TrennzeichenStandard;
}

void MehrwertsteuerPruefen() {
  if (EinstellungenZahl[44] < 1 || EinstellungenZahl[44] > 50) EinstellungenZahl[44] = 19;
  if (EinstellungenZahl[45] < 1 || EinstellungenZahl[45] > 50) EinstellungenZahl[45] = 7;
}

void WabenJeMagazinPruefen() {
  if (EinstellungenZahl[56] < 8 || EinstellungenZahl[56] > 16) EinstellungenZahl[56] = 10;
}
