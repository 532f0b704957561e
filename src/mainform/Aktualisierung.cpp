#include "mainform/Aktualisierung.h"

#include <QUrl>

#include "core/globals.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

namespace Aktualisierung {

QString ladenFrage() {
  return QStringLiteral("Bitte beim Download folgendes beachten:") + CRLF +
         QStringLiteral("1. Es muss vor dem Download eine Internetverbindung bestehen.") + CRLF +
         QStringLiteral(
             "2. Je nach Explorereinstellung können Sie die aktuelle TOVA erst speichern oder "
             "direkt installieren.") +
         CRLF +
         QStringLiteral(
             "3. WICHTIG!!! Bevor Sie die Installation starten, muss TOVA beendet werden (sonst "
             "ist "
             "eine Aktualisierung nicht möglich).") +
         CRLF +
         QStringLiteral(
             "Soll die aktuellste TOVA (ca. 8 MByte) jetzt heruntergeladen werden? Dieser Prozess "
             "kann je nach Internetanschluss einige Minuten dauern?") +
         CRLF +
         QStringLiteral(
             "WICHTIG!!! Es reicht nicht, die Software herunterzuladen. Sie müssen nach dem "
             "Download TOVA beenden und die heruntergeladene Software starte (öffnen), damit diese "
             "installiert wird!");
}

QString adressdatei() { return AppPfad + QStringLiteral("INTERNET.TXT"); }

QString setupAdresse() {
  if (!Textdatei::existiert(adressdatei())) return {};
  const QStringList zeilen = Textdatei::lesen(adressdatei());
  QString ordner = zeilen.isEmpty() ? QString() : zeilen.first().trimmed();
  const QUrl url(ordner, QUrl::StrictMode);
  const bool imNetz =
      url.isValid() && !url.host().isEmpty() &&
      (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
  if (!imNetz) return {};
  if (!ordner.endsWith(u'/')) ordner += u'/';
  return ordner + QStringLiteral("tova20_setup.exe");
}

QString keineAdresseText() {
  return QStringLiteral(
             "Es ist keine Internet-Adresse für die Aktualisierung eingetragen. Bitte tragen Sie "
             "die Adresse in die erste Zeile dieser Datei ein:") +
         CRLF + CRLF + adressdatei();
}

QString nichtGeöffnetText(const QString& adresse) {
  return QStringLiteral(
             "Die Internet-Adresse konnte nicht geöffnet werden. Bitte geben Sie sie selbst in "
             "Ihrem Internet-Programm ein:") +
         CRLF + CRLF + adresse;
}

}  // namespace Aktualisierung
