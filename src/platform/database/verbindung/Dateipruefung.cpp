#include "platform/database/verbindung/Dateipruefung.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include "platform/database/werte/Datenbankfehler.h"

namespace {

using Art = Datenbankfehler::Art;

constexpr int kopflänge = 100;
constexpr char kennung[] = "SQLite format 3";  // with its closing zero byte
// The first bytes of the file format that earlier versions of the program used.
constexpr char altesFormat[] =
    "\x00\x01\x00\x00"
    "\x53\x74\x61\x6e\x64\x61\x72\x64"
    "\x20\x4a\x65\x74\x20\x44\x42";

[[noreturn]] void keine(const QString& text, const QString& pfad) {
  throw Datenbankfehler(Art::KeineDatenbank, text.arg(QDir::toNativeSeparators(pfad)));
}

[[noreturn]] void schreibgeschützt(const QString& text, const QString& pfad) {
  throw Datenbankfehler(Art::NurLesen, text.arg(QDir::toNativeSeparators(pfad)));
}

void prüfeOrt(const QString& pfad) {
  const QFileInfo datei(pfad);
  if (!datei.exists()) {
    keine(QStringLiteral("Die Datenbank \"%1\" wurde nicht gefunden."), pfad);
  }
  if (datei.isDir()) {
    keine(QStringLiteral("\"%1\" ist ein Ordner und keine Datenbank. Bitte benennen Sie den Ordner "
                         "um oder verschieben Sie ihn."),
          pfad);
  }
  if (!datei.isFile()) {
    keine(QStringLiteral("\"%1\" ist keine Datei und keine Datenbank."), pfad);
  }
}

QByteArray liesKopf(const QString& pfad) {
  QFile datei(pfad);
  if (!datei.open(QIODevice::ReadOnly)) {
    keine(QStringLiteral("Die Datenbank \"%1\" kann nicht gelesen werden. Bitte prüfen Sie, ob Sie "
                         "die Rechte an der Datei haben und ob ein anderes Programm sie benutzt."),
          pfad);
  }
  return datei.read(kopflänge);
}

void prüfeSchreibbar(const QString& pfad) {
  // The attempt tells more than the rights do: a medium can be read-only for everybody.
  QFile datei(pfad);
  if (!QFileInfo(pfad).isWritable() ||
      !datei.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
    schreibgeschützt(QStringLiteral("Die Datenbank \"%1\" ist schreibgeschützt. Bitte heben Sie "
                                    "den Schreibschutz der Datei auf und starten Sie TOVA neu."),
                     pfad);
  }
  const QString ordner = QFileInfo(pfad).absolutePath();
  if (!QFileInfo(ordner).isWritable()) {
    schreibgeschützt(QStringLiteral("In den Ordner \"%1\" der Datenbank kann nicht geschrieben "
                                    "werden. Bitte heben Sie den Schreibschutz des Ordners auf "
                                    "und starten Sie TOVA neu."),
                     ordner);
  }
}

bool istText(const QByteArray& kopf) {
  for (const char zeichen : kopf) {
    const auto z = static_cast<unsigned char>(zeichen);
    if (z < 32 && z != '\t' && z != '\n' && z != '\r' && z != '\f') return false;
  }
  return true;
}

void prüfeKennung(const QByteArray& kopf, const QString& pfad) {
  if (kopf.isEmpty()) {
    keine(QStringLiteral("Die Datei \"%1\" ist leer und keine Datenbank. Bitte spielen Sie Ihre "
                         "letzte Datensicherung zurück oder verschieben Sie die Datei."),
          pfad);
  }
  if (kopf.startsWith(QByteArrayView(kennung, sizeof kennung))) {
    if (kopf.size() < kopflänge) {
      keine(QStringLiteral("Die Datenbank \"%1\" ist unvollständig: Ihr Ende fehlt. Bitte spielen "
                           "Sie Ihre letzte Datensicherung zurück."),
            pfad);
    }
    return;
  }
  if (kopf.startsWith(QByteArrayView(altesFormat, sizeof altesFormat - 1))) {
    keine(QStringLiteral("Die Datei \"%1\" ist die Datenbank einer älteren TOVA-Version. Bitte "
                         "verschieben Sie sie in einen anderen Ordner und starten Sie TOVA neu; "
                         "ihre Daten können später übernommen werden."),
          pfad);
  }
  if (istText(kopf)) {
    keine(QStringLiteral("Die Datei \"%1\" ist eine Textdatei und keine Datenbank von TOVA. Bitte "
                         "verschieben Sie sie oder spielen Sie Ihre letzte Datensicherung zurück."),
          pfad);
  }
  keine(QStringLiteral("Die Datei \"%1\" ist keine Datenbank von TOVA. Bitte verschieben Sie sie "
                       "oder spielen Sie Ihre letzte Datensicherung zurück."),
        pfad);
}

// The header names the pages that the file must have, unless a change was interrupted.
void prüfeLänge(const QByteArray& kopf, const QString& pfad) {
  if (QFileInfo(pfad + QStringLiteral("-journal")).size() > 0) return;
  const auto* bytes = reinterpret_cast<const uchar*>(kopf.constData());
  qint64 seite = qFromBigEndian<quint16>(bytes + 16);
  if (seite == 1) seite = 65536;
  if (seite < 512 || (seite & (seite - 1)) != 0) {
    keine(QStringLiteral("Die Datenbank \"%1\" ist beschädigt. Bitte spielen Sie Ihre letzte "
                         "Datensicherung zurück."),
          pfad);
  }
  const bool zahlGilt = qFromBigEndian<quint32>(bytes + 24) == qFromBigEndian<quint32>(bytes + 92);
  const qint64 seiten = zahlGilt ? qFromBigEndian<quint32>(bytes + 28) : 1;
  if (QFileInfo(pfad).size() < seite * seiten) {
    keine(QStringLiteral("Die Datenbank \"%1\" ist unvollständig: Ihr Ende fehlt. Bitte spielen "
                         "Sie Ihre letzte Datensicherung zurück."),
          pfad);
  }
}

// The mark and the encoding stand in the header's last third.
quint32 kopfzahl(const QByteArray& kopf, int ort) {
  return qFromBigEndian<quint32>(reinterpret_cast<const uchar*>(kopf.constData()) + ort);
}

bool prüfeHerkunft(const QByteArray& kopf, const QString& pfad) {
  constexpr int OrtKodierung = 56;
  constexpr int OrtKennung = 68;
  const quint32 kodierung = kopfzahl(kopf, OrtKodierung);
  const quint32 marke = kopfzahl(kopf, OrtKennung);
  const bool eigene = marke == Dateiprüfung::Programmkennung;
  if ((marke != 0 && !eigene) || kodierung > 1) {
    keine(QStringLiteral("Die Datei \"%1\" ist keine Datenbank von TOVA, sondern die eines anderen "
                         "Programms. Bitte verschieben Sie sie oder spielen Sie Ihre letzte "
                         "Datensicherung zurück."),
          pfad);
  }
  return eigene;
}

}  // namespace

Dateiprüfung::Befund Dateiprüfung::prüfe(const QString& pfad) {
  prüfeOrt(pfad);
  const QByteArray kopf = liesKopf(pfad);
  prüfeKennung(kopf, pfad);
  const bool gekennzeichnet = prüfeHerkunft(kopf, pfad);
  prüfeLänge(kopf, pfad);
  prüfeSchreibbar(pfad);
  return {kopf[18] == 2 || kopf[19] == 2, gekennzeichnet};
}

void Dateiprüfung::keineVonTova(const QString& pfad, const QString& tabelle) {
  throw Datenbankfehler(
      Art::KeineDatenbank,
      QStringLiteral(
          "Die Datei \"%1\" ist keine Datenbank von TOVA: Die Tabelle %2 fehlt. Bitte "
          "verschieben Sie die Datei oder spielen Sie Ihre letzte Datensicherung zurück.")
          .arg(QDir::toNativeSeparators(pfad), tabelle));
}
