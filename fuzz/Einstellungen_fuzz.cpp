// A settings file of any bytes: reading it never fails, and what the program writes it reads back.
#include <QFile>
#include <QTemporaryDir>
#include <cmath>

#include "Fuzzziel.h"
#include "core/globals.h"
#include "core/settings.h"

using namespace TZ_Variablen;

namespace {

QByteArray dateiinhalt(const QString& pfad) {
  QFile datei(pfad);
  return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

void lesen(const QString& pfad) {
  zurücksetzen();
  AppPfad = pfad;
  EinstellungenLesen();
  for (const float wert : EinstellungenWert) verlange(std::isfinite(wert), "a value is a number");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
  static const QTemporaryDir ordner;
  const QString pfad = ordner.path() + u'/';
  const QString name = pfad + QStringLiteral("Einstellungen.TV2");
  QFile datei(name);
  verlange(datei.open(QIODevice::WriteOnly), "a file for the settings");
  datei.write(alsBytes(daten, größe));
  datei.close();

  lesen(pfad);
  verlange(!EinstellungenText[Textslots.trennzeichen].isEmpty(),
           "a list's columns are parted by something");
  EinstellungenSchreiben();
  const QByteArray geschrieben = dateiinhalt(name);
  verlange(geschrieben.count('\n') == 173, "the file has its lines");
  const auto zahlen = EinstellungenZahl;
  const auto texte = EinstellungenText;
  lesen(pfad);
  verlange(EinstellungenZahl == zahlen, "whole numbers read back");
  for (std::size_t i = 0; i < texte.size(); ++i)
    if (i != 4) verlange(texte.at(i).size() == EinstellungenText.at(i).size(), "texts read back");
  EinstellungenSchreiben();
  verlange(dateiinhalt(name) == geschrieben, "a file that was read is written alike");
  return 0;
}
