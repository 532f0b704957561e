#include "core/mainform/Komprimieren.h"

#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "core/globals.h"
#include "platform/database/Datenbank.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

QString komprimierenFrage() {
  return QStringLiteral("Soll die Datenbasis wirklich komprimiert werden?") + CRLF + CRLF +
         QStringLiteral(
             "Durch das komprimieren werden alle als gelöscht markierten Datensätze endgültig aus "
             "der Datenbank entfernt. Eine Komprimierung ist nur erforderlich, wenn Sie einige "
             "(oder eher viele) Daten gelöscht haben!");
}

QString komprimierenErfolgText() {
  return QStringLiteral("Die Komprimierung wurde erfolgreich abgeschlossen.") + CRLF + CRLF +
         QStringLiteral(
             "TOVA 2.0 wird nun beendet. Bitte starten Sie TOVA neu, damit die "
             "Datenbasis geladen wird!");
}

QString komprimierenFehlerText() {
  return QStringLiteral(
      "Bei der Komprimierung ist ein Fehler aufgetreten! Bitte beachten Sie, daß Sie nur "
      "Access-Dateien packen können und diese Dateien von keinem Nutzer geöffnet sein darf (auch "
      "nicht von Ihnen selbst)!");
}

void datenbankKomprimieren() {
  Arbeitsbereich.Close();
  const QString kopie = DatenbankPfad.chopped(3) + QStringLiteral("$$$");
  QFile::remove(kopie);  // left over from a run that was cut off
  try {
    Workspace::CompactDatabase(DatenbankPfad, kopie);
  } catch (...) {
    QFile::remove(kopie);
    throw;
  }
  // One step, so that there is a database at every moment, whatever happens.
  std::error_code fehler;
  std::filesystem::rename(QFileInfo(kopie).filesystemFilePath(),
                          QFileInfo(DatenbankPfad).filesystemFilePath(), fehler);
  if (fehler) {
    QFile::remove(kopie);
    throw Dateifehler(QStringLiteral("Die Datei ") + DatenbankPfad +
                      QStringLiteral(" konnte nicht ersetzt werden."));
  }
}
