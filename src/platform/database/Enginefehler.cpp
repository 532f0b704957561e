#include "platform/database/Enginefehler.h"

#include <sqlite3.h>

#include <cerrno>

namespace {

using Art = Datenbankfehler::Art;

QString voll(const QString& datei) {
  return QStringLiteral(
             "Auf dem Datenträger ist kein Platz mehr für die Datenbank \"%1\". Bitte schaffen Sie "
             "Platz und wiederholen Sie den Vorgang.")
      .arg(datei);
}

QString nurLesen(const QString& datei) {
  return QStringLiteral(
             "Die Datenbank \"%1\" kann nicht beschrieben werden. Bitte prüfen Sie, ob die Datei "
             "oder ihr Ordner schreibgeschützt ist.")
      .arg(datei);
}

QString verschoben(const QString& datei) {
  return QStringLiteral(
             "Die Datenbank \"%1\" wurde verschoben oder gelöscht, während sie geöffnet war. Bitte "
             "stellen Sie die Datei wieder her und starten Sie TOVA neu.")
      .arg(datei);
}

QString gesperrt(const QString& datei) {
  return QStringLiteral(
             "Die Datenbank \"%1\" wird gerade von einem anderen Programm benutzt. Bitte beenden "
             "Sie es und wiederholen Sie den Vorgang.")
      .arg(datei);
}

QString beschaedigt(const QString& datei) {
  return QStringLiteral(
             "Die Datei \"%1\" ist beschädigt oder keine Datenbank von TOVA. Bitte spielen Sie "
             "Ihre letzte Datensicherung zurück.")
      .arg(datei);
}

QString datentraeger(const QString& datei, const QString& meldung) {
  return QStringLiteral(
             "Der Datenträger mit der Datenbank \"%1\" meldet einen Fehler (%2). Bitte prüfen Sie "
             "den Datenträger und wiederholen Sie den Vorgang.")
      .arg(datei, meldung);
}

QString unlesbar(const QString& datei, const QString& meldung) {
  return QStringLiteral("Die Datenbank \"%1\" versteht die Anweisung nicht (%2).")
      .arg(datei, meldung);
}

QString sonst(const QString& datei, const QString& meldung) {
  return QStringLiteral("Die Datenbank \"%1\" konnte die Anweisung nicht ausführen (%2).")
      .arg(datei, meldung);
}

Datenbankfehler vomDatentraeger(const Enginefehler::Lage& lage, const QString& datei,
                                const QString& anweisung) {
  switch (lage.systemfehler) {
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return {Art::Voll, voll(datei), anweisung};
    case EROFS:
    case EACCES:
    case EPERM:
      return {Art::NurLesen, nurLesen(datei), anweisung};
    default:
      return {Art::Allgemein, datentraeger(datei, lage.meldung), anweisung};
  }
}

}  // namespace

Datenbankfehler Enginefehler::fehler(const Lage& lage, const QString& datei,
                                     const QString& anweisung) {
  switch (lage.code & 0xff) {
    case SQLITE_FULL:
      return {Art::Voll, voll(datei), anweisung};
    case SQLITE_READONLY:
      if (lage.code == SQLITE_READONLY_DBMOVED) {
        return {Art::NurLesen, verschoben(datei), anweisung};
      }
      return {Art::NurLesen, nurLesen(datei), anweisung};
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
      return {Art::NurLesen, nurLesen(datei), anweisung};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return {Art::Gesperrt, gesperrt(datei), anweisung};
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return {Art::KeineDatenbank, beschaedigt(datei), anweisung};
    case SQLITE_IOERR:
      return vomDatentraeger(lage, datei, anweisung);
    case SQLITE_MISMATCH:  // a field's rule refused a value and gave the text for the user
      if (lage.meldung == QLatin1String("datatype mismatch")) {
        return {Art::Wertebereich,
                QStringLiteral("Die Nummer eines Datensatzes muß eine ganze Zahl sein."),
                anweisung};
      }
      return {Art::Wertebereich, lage.meldung, anweisung};
    case SQLITE_CONSTRAINT:
      if (lage.code == SQLITE_CONSTRAINT_PRIMARYKEY || lage.code == SQLITE_CONSTRAINT_ROWID) {
        return {Art::Allgemein,
                QStringLiteral("Ein Datensatz mit dieser Nummer ist in der Datenbank \"%1\" schon "
                               "vorhanden.")
                    .arg(datei),
                anweisung};
      }
      return {Art::Allgemein, sonst(datei, lage.meldung), anweisung};
    default:
      if (lage.beimVorbereiten) return {Art::Anweisung, unlesbar(datei, lage.meldung), anweisung};
      return {Art::Allgemein, sonst(datei, lage.meldung), anweisung};
  }
}

void Enginefehler::allesVerworfen(Datenbankfehler& fehler) {
  if (fehler.allesVerworfen()) return;
  fehler = Datenbankfehler(
      fehler.art(), fehler.text() + QStringLiteral(" Von diesem Vorgang wurde nichts gespeichert."),
      fehler.anweisung());
  fehler.setAllesVerworfen(true);
}
