#include "core/mainform/Start.h"

#include <QDir>
#include <QFile>

#include "core/globals.h"
#include "core/settings.h"
#include "data/helpers.h"
#include "data/schema.h"
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

QString waehrungstest() {
  if (!Deutsch::waehrung(0).endsWith(QStringLiteral("DM"))) return {};
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

Database datenbankOeffnen() {
  if (datenbankVorhanden())
    DB = Arbeitsbereich.OpenDatabase(DatenbankPfad);
  else
    DatenbankAnlegen();
  return Arbeitsbereich.OpenDatabase(DatenbankPfad);
}

QStringList schreibgeschuetzte() { return Schreibschutz::dateien(AppPfad); }

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

void resteLoeschen() {
  Textdatei::resteLoeschen(
      AppPfad, {QStringLiteral("*.TV2"), QStringLiteral("LISTE.TXT"), QStringLiteral("gridli.txt"),
                QStringLiteral("tova_liste.xlsx"), QStringLiteral("TOVA2.LAY")});
}

void einstellungenLaden(QDate heute) {
  HeuteText = Deutsch::datumText(heute);
  EinstellungenZahl[46] = 1;
  if (Textdatei::existiert(AppPfad + QStringLiteral("Einstellungen.TV2"))) {
    EinstellungenLesen();
    return;
  }
  EinstellungenStandard(heute);
  EinstellungenSchreiben();
}

bool startZaehlen() {
  if (EinstellungenZahl[78] > 30000) EinstellungenZahl[78] = 1;
  ++EinstellungenZahl[78];
  return EinstellungenZahl[78] % 20 == 0;
}

bool termineFaellig(Database& db) {
  const QDate grenze = DatumLesen(HeuteText).addDays(EinstellungenZahl[17]);
  return db.Lesen(QStringLiteral("select top 1 * from Termine where Datum <= ? and Erledigt = 'N'"),
                  {grenze})
             ->zeilen() > 0;
}

void berichteLoeschen() {
  QString geblieben;
  const auto berichte = QDir(AppPfad).entryList({QStringLiteral("report-*.htm")}, QDir::Files);
  for (const QString& bericht : berichte)
    if (!QFile::remove(AppPfad + bericht) && geblieben.isEmpty()) geblieben = AppPfad + bericht;
  if (!geblieben.isEmpty())
    throw Dateifehler(QStringLiteral("Die Datei ") + geblieben +
                      QStringLiteral(" konnte nicht gelöscht werden. Bitte schließen Sie alle "
                                     "Programme, die sie anzeigen."));
}

bool sicherungFaellig() {
  const QDate letzte = DatumLesen(EinstellungenText[26]);
  if (!letzte.isValid()) {
    EinstellungenText[26] = HeuteText;
    return false;
  }
  return letzte.daysTo(DatumLesen(HeuteText)) >= EinstellungenZahl[50];
}

}  // namespace Start
