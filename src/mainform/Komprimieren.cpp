#include "mainform/Komprimieren.h"

#include <QFile>

#include "core/globals.h"
#include "platform/database/Datenbank.h"

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

QString komprimierenFehlerText(const std::exception& fehler) {
  const auto* vonDerDatenbank = dynamic_cast<const Datenbankfehler*>(&fehler);
  if (vonDerDatenbank == nullptr || vonDerDatenbank->art() != Datenbankfehler::Art::KeineDatenbank)
    return komprimierenFehlerText();
  return komprimierenFehlerText() + CRLF + CRLF + vonDerDatenbank->text();
}

QString komprimierteKopie() { return DatenbankPfad.chopped(3) + QStringLiteral("$$$"); }

void datenbankKomprimieren() {
  Arbeitsbereich.Close();
  QFile::remove(komprimierteKopie());  // left over from a run that was cut off
  Workspace::CompactInPlace(DatenbankPfad, komprimierteKopie());
}
