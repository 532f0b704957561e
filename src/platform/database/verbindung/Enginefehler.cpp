#include "platform/database/verbindung/Enginefehler.h"

#include <sqlite3.h>

#include <QRegularExpression>
#include <cerrno>

namespace {

using Art = Datenbankfehler::Art;

// What the engine says in English, in German; what isn't known here gets its number. What this
// program's own functions and triggers say is German already.
QString deutsch(const Enginefehler::Lage& lage) {
  struct Satz {
    const char* muster;
    const char* text;
  };
  static constexpr Satz sätze[] = {
      {"no such table: (.+)", "die Tabelle %1 gibt es nicht"},
      {"no such column: \"?([^\" ]+).*", "das Feld %1 gibt es nicht"},
      {"no such index: (.+)", "den Index %1 gibt es nicht"},
      {"no such function: (.+)", "die Funktion %1 gibt es nicht"},
      {"wrong number of arguments to function (.+)\\(\\)",
       "%1 braucht eine andere Zahl von Werten"},
      {"misuse of aggregate.*: (.+)\\(\\)", "%1 ist an dieser Stelle nicht möglich"},
      {"ambiguous column name: (.+)", "das Feld %1 steht in mehreren Tabellen"},
      {"duplicate column name: (.+)", "das Feld %1 gibt es schon"},
      {"table (.+) already exists", "die Tabelle %1 gibt es schon"},
      {"index (.+) already exists", "den Index %1 gibt es schon"},
      {"table (.+) has no column named (.+)", "die Tabelle %1 hat kein Feld %2"},
      {"([0-9]+) values for ([0-9]+) columns", "%1 Werte für %2 Felder"},
      {"UNIQUE constraint failed: (.+)", "den Wert von %1 gibt es schon"},
      {"near \"(.*)\": syntax error", "bei \"%1\""},
      {"incomplete input", "sie ist unvollständig"},
  };
  const bool eigener =
      lage.code == SQLITE_CONSTRAINT_TRIGGER || lage.meldung.endsWith(QLatin1Char('.'));
  if (eigener) return lage.meldung;
  for (const Satz& satz : sätze) {
    const auto gefunden =
        QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(satz.muster)))
            .match(lage.meldung);
    if (!gefunden.hasMatch()) continue;
    QString text = QString::fromUtf8(satz.text);
    for (int i = 1; i <= gefunden.lastCapturedIndex(); ++i) text = text.arg(gefunden.captured(i));
    return text;
  }
  return QStringLiteral("Fehlernummer %1").arg(lage.code);
}

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

QString beschädigt(const QString& datei) {
  return QStringLiteral(
             "Die Datei \"%1\" ist beschädigt oder keine Datenbank von TOVA. Bitte spielen Sie "
             "Ihre letzte Datensicherung zurück.")
      .arg(datei);
}

QString datenträger(const QString& datei, const QString& meldung) {
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

Datenbankfehler vomDatenträger(const Enginefehler::Lage& lage, const QString& datei,
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
      return {Art::Datenträger, datenträger(datei, deutsch(lage)), anweisung};
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
      return {Art::KeineDatenbank, beschädigt(datei), anweisung};
    case SQLITE_IOERR:
      return vomDatenträger(lage, datei, anweisung);
    case SQLITE_NOMEM:
    case SQLITE_INTERNAL:
    case SQLITE_PROTOCOL:
      return {Art::Datenträger, sonst(datei, deutsch(lage)), anweisung};
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
      return {Art::Allgemein, sonst(datei, deutsch(lage)), anweisung};
    default:
      if (lage.beimVorbereiten) return {Art::Anweisung, unlesbar(datei, deutsch(lage)), anweisung};
      return {Art::Allgemein, sonst(datei, deutsch(lage)), anweisung};
  }
}

void Enginefehler::allesVerworfen(Datenbankfehler& fehler) {
  if (fehler.allesVerworfen()) return;
  fehler = Datenbankfehler(
      fehler.art(), fehler.text() + QStringLiteral(" Von diesem Vorgang wurde nichts gespeichert."),
      fehler.anweisung());
  fehler.setAllesVerworfen(true);
}
