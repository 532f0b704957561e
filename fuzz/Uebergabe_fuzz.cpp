// A hand-over file of any bytes: it is a list or a Dateifehler, and a list is written as it was
// read.
#include <QFile>
#include <QTemporaryDir>

#include "Fuzzziel.h"
#include "output/Uebergabe.h"
#include "platform/files/Textdatei.h"

namespace {

QByteArray dateiinhalt(const QString& pfad) {
  QFile datei(pfad);
  return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

void vergleiche(const Ausgabeliste& eine, const Ausgabeliste& andere) {
  verlange(eine.zeilen() == andere.zeilen() && eine.spalten() == andere.spalten(),
           "rows and columns read back");
  verlange(eine.überschriften() == andere.überschriften(), "captions read back");
  for (int i = 0; i < eine.zeilen(); ++i)
    for (int j = 0; j < eine.spalten(); ++j) {
      const Datenblock& links = *eine.daten();
      const Datenblock& rechts = *andere.daten();
      verlange(links.istNull(i, j) == rechts.istNull(i, j), "null reads back");
      verlange(links.istText(i, j) == rechts.istText(i, j), "a text reads back as a text");
      verlange(links.anzeige(i, j) == rechts.anzeige(i, j), "a cell reads back");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
  static const QTemporaryDir ordner;
  const QString pfad = ordner.filePath(QStringLiteral("gridli.txt"));
  QFile datei(pfad);
  verlange(datei.open(QIODevice::WriteOnly), "a file for the list");
  datei.write(alsBytes(daten, größe));
  datei.close();
  try {
    const Ausgabeliste gelesen = Übergabe::lesen(pfad);
    Übergabe::schreiben(pfad, gelesen);
    const QByteArray geschrieben = dateiinhalt(pfad);
    const Ausgabeliste wieder = Übergabe::lesen(pfad);
    vergleiche(gelesen, wieder);
    Übergabe::schreiben(pfad, wieder);
    verlange(dateiinhalt(pfad) == geschrieben, "a list that was read is written alike");
  } catch (const Dateifehler& fehler) {
    verlange(!fehler.text().isEmpty(), "a failure has a text");
  }
  return 0;
}
