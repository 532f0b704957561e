#include "mainform/Start.h"

#include <QDir>
#include <QFile>

#include "core/globals.h"
#include "core/settings.h"
#include "data/Datenbankdatei.h"
#include "data/Schemaschritte.h"
#include "data/helpers.h"
#include "data/schema.h"
#include "mainform/Komprimieren.h"
#include "platform/files/Schreibschutz.h"
#include "platform/files/Textdatei.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace Start {

QString fenstertitel() {
  return QStringLiteral("TOVA ") + QLatin1String(Version) +
         QStringLiteral(" - Die Software für Imker");
}

QString schonGestartetText() {
  return QStringLiteral(
      "Die Anwendung wurde bereits gestartet!  Mit der Tastenkombination CTRL+ESC können Sie alle "
      "aktiven Programme auflisten und auswählen.");
}

QString andererRechnerFrage(const QString& rechner) {
  return QStringLiteral("Dieser Ordner ist von TOVA auf dem Rechner \"%1\" in Benutzung.")
             .arg(rechner) +
         CRLF + CRLF +
         QStringLiteral(
             "Zwei Programme, die zugleich mit derselben Datenbank arbeiten, können Daten "
             "zerstören. Läuft TOVA dort noch, antworten Sie bitte mit Nein und beenden Sie es "
             "zuerst. Ist der Rechner ausgeschaltet oder dort abgestürzt, können Sie mit Ja "
             "weitermachen.") +
         CRLF + CRLF + QStringLiteral("Soll TOVA trotzdem gestartet werden?");
}

QString keinDruckerText() {
  return QStringLiteral(
      "Es ist kein Drucker installiert bzw. eingerichtet. Bitte installieren Sie einen Drucker, "
      "bevor Sie mit TOVA arbeiten, weil es sonst zu Programmabbrüchen kommen kann! Falls Sie "
      "keinen Drucker verwenden, installieren Sie bitte trotzdem einen beliebigen Druckertreiber.");
}

QString landtest() {
  if (Deutsch::datum(u"01.01.1999") && Deutsch::datum(u"01.01.2001")) return {};
  return QStringLiteral(
             "WICHTIG!!! Die Datumsberechnung oder Zahlenumrechnung kann nicht korrekt erkannt "
             "werden. Bitte stellen Sie unter Start/Einstellungen/Systemsteuerung/"
             "Ländereinstellung folgende Werte ein!") +
         CRLF + CRLF + QStringLiteral("Ländereinstellung = Deutsch (Standard)") + CRLF + CRLF +
         QStringLiteral("Zahlen:") + CRLF + QStringLiteral("Dezimaltrennzeichen = ,") + CRLF +
         QStringLiteral("Anzahl Dezimalstellen = 2") + CRLF +
         QStringLiteral("Symbol für Zifferngruppierung = .") + CRLF +
         QStringLiteral("Anzahl Ziffern je Gruppe = 3") + CRLF + CRLF +
         QStringLiteral("Währung: (siehe Zahlen)") + CRLF + CRLF + QStringLiteral("Uhrzeit:") +
         CRLF + QStringLiteral("Zeitformat = HH:mm:ss") + CRLF +
         QStringLiteral("Zeittrennzeichen = :") + CRLF + CRLF + QStringLiteral("Datum:") + CRLF +
         QStringLiteral("Datumformat = TT.MM.JJ oder TT.MM.JJJJ") + CRLF +
         QStringLiteral("Trennzeichen = .") + CRLF + CRLF +
         QStringLiteral(
             "Da diese Einstellung Standard sind und für TOVA zwingend erforderlich "
             "sind, wird TOVA jetzt beendet!");
}

QString währungstest() {
  if (!Deutsch::währung(0).endsWith(QStringLiteral("DM"))) return {};
  return QStringLiteral(
      "Ihr Rechner ist noch auf die Währung DM eingestellt. Bitte stellen Sie in den "
      "Systemeinstellungen (Ländereinstellung) die Währung auf Euro ein!");
}

QString datumtest(const QDateTime& jetzt) {
  const QString text =
      Deutsch::datumText(jetzt.date()) + u' ' + jetzt.time().toString(QStringLiteral("HH:mm:ss"));
  if (text.indexOf(u' ') == 10) return {};
  return QStringLiteral("Achtung!") + CRLF + CRLF +
         QStringLiteral(
             "In den Systemsteuerungen ist das Datumformat nicht auf TT.MM.JJJJ eingestellt. Bei "
             "datumspezifischen Berechnungen kann es deshalb zu fehlerhaften Berechnungen kommen. "
             "Um dies auszuschließen, sollten Sie in den Systemsteuerungen das Datumformat auf "
             "TT.MM.JJJJ einstellen.");
}

void pfadeSetzen(const QString& programmordner) {
  AppPfad = QDir::fromNativeSeparators(programmordner);
  if (!AppPfad.endsWith(u'/')) AppPfad += u'/';
  DatenbankPfad = AppPfad + QStringLiteral("TOVA2.MDB");
  ListeNeuLesen = 1;
  ProgrammGestartet = 0;
}

bool datenbankVorhanden() { return QFile::exists(DatenbankPfad); }

Database datenbankÖffnen() {
  if (datenbankVorhanden())
    DB = Arbeitsbereich.OpenDatabase(DatenbankPfad);
  else
    DatenbankAnlegen();
  schemastandPrüfen(DB);
  return Arbeitsbereich.OpenDatabase(DatenbankPfad);
}

QStringList schreibgeschützte() { return Schreibschutz::dateien(AppPfad); }

QString schreibschutzText(qsizetype anzahl) {
  return QStringLiteral("ACHTUNG!!!") + CRLF + CRLF +
         QStringLiteral("Im Installationsverzeichnis von TOVA befinden sich") + u' ' +
         QString::number(anzahl) +
         QStringLiteral(
             " Dateien, die mit einem Schreibschutz versehen sind. Dadurch kann es bei TOVA zu "
             "Funktionsstörungen kommen. Der Schreibschutz wird deshalb entfernt?");
}

void schreibschutzEntfernen(const QStringList& dateien) {
  const QStringList geblieben = Schreibschutz::entfernen(dateien);
  if (!geblieben.isEmpty())
    throw Dateifehler(QStringLiteral("Der Schreibschutz der Datei ") + geblieben.first() +
                      QStringLiteral(" konnte nicht entfernt werden. Bitte entfernen Sie ihn in "
                                     "der Dateiverwaltung Ihres Rechners."));
}

void resteLöschen() {
  for (const QString& rest : {komprimierteKopie(), DatenbankPfad + QStringLiteral(".neu")}) {
    QFile::remove(rest);
    QFile::remove(rest + QStringLiteral("-journal"));
  }
  Textdatei::resteLöschen(AppPfad, {QStringLiteral("*.TV2"), QStringLiteral("LISTE.TXT"),
                                    QStringLiteral("gridli.txt"), QStringLiteral("tova_liste.xlsx"),
                                    QStringLiteral("TOVA2.LAY"), QStringLiteral("report*.htm")});
}

std::optional<Einstellungsbruch> einstellungenLaden(QDate heute) {
  HeuteText = Deutsch::datumText(heute);
  EinstellungenStandard(heute);
  if (!Textdatei::existiert(AppPfad + QStringLiteral("Einstellungen.TV2"))) {
    EinstellungenSchreiben();
    return std::nullopt;
  }
  auto bruch = EinstellungenLesen();
  if (bruch) {
    EinstellungenAufheben();
    EinstellungenSchreiben();  // now, so that a crash doesn't bring the same message again
  }
  return bruch;
}

QString einstellungsbruchText(const Einstellungsbruch& bruch) {
  return QStringLiteral("Die Datei Einstellungen.TV2 konnte ab Zeile %1 nicht gelesen werden. %2")
             .arg(bruch.zeile)
             .arg(bruch.grund) +
         CRLF + CRLF +
         (bruch.zeile == 1
              ? QStringLiteral("Es gelten jetzt die Standardwerte.")
              : QStringLiteral("Die Einstellungen aus den Zeilen davor gelten weiter, für die "
                               "übrigen jetzt die Standardwerte.")) +
         QStringLiteral(
             " Die bisherige Datei ist unverändert als Einstellungen.TV2.alt im "
             "Programmordner aufgehoben.") +
         CRLF + CRLF +
         QStringLiteral(
             "Bitte prüfen Sie Ihre Einstellungen (Optionen / Einstellungen). Oder beenden Sie "
             "TOVA, berichtigen Sie die Zeile in Einstellungen.TV2.alt, speichern Sie die Datei "
             "als Windows-Text (ANSI) unter dem Namen Einstellungen.TV2 und starten Sie TOVA neu.");
}

bool startZählen() {
  if (EinstellungenZahl[Zahlslots.startzähler] > 30000)
    EinstellungenZahl[Zahlslots.startzähler] = 1;
  ++EinstellungenZahl[Zahlslots.startzähler];
  return EinstellungenZahl[Zahlslots.startzähler] % 20 == 0;
}

bool termineFällig(Database& db) {
  const QDate grenze = DatumLesen(HeuteText).addDays(EinstellungenZahl[Zahlslots.termintage]);
  return db.Lesen(QStringLiteral("select top 1 * from Termine where Datum <= ? and Erledigt = 'N'"),
                  {grenze})
             ->zeilen() > 0;
}

void berichteLöschen() {
  QString geblieben;
  const auto berichte = QDir(AppPfad).entryList({QStringLiteral("report-*.htm")}, QDir::Files);
  for (const QString& bericht : berichte)
    if (!QFile::remove(AppPfad + bericht) && geblieben.isEmpty()) geblieben = AppPfad + bericht;
  if (!geblieben.isEmpty())
    throw Dateifehler(QStringLiteral("Die Datei ") + geblieben +
                      QStringLiteral(" konnte nicht gelöscht werden. Bitte schließen Sie alle "
                                     "Programme, die sie anzeigen."));
}

bool sicherungFällig() {
  const QDate letzte = DatumLesen(EinstellungenText[Textslots.letzteSicherung]);
  if (!letzte.isValid()) {
    EinstellungenText[Textslots.letzteSicherung] = HeuteText;
    return false;
  }
  return letzte.daysTo(DatumLesen(HeuteText)) >= EinstellungenZahl[Zahlslots.sicherungstage];
}

}  // namespace Start
