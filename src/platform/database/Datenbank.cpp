#include "platform/database/Datenbank.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <exception>
#include <filesystem>
#include <utility>

#include "platform/database/Recordset.h"
#include "platform/database/verbindung/Dateipruefung.h"
#include "platform/database/verbindung/Journalpruefung.h"
#include "platform/database/verbindung/Verbindung.h"

namespace {

using Art = Datenbankfehler::Art;

QByteArray literal(const QString& text) {
  QByteArray utf8 = text.toUtf8();
  utf8.replace('\'', "''");
  return '\'' + utf8 + '\'';
}

const QByteArray kennung =
    "pragma application_id = " + QByteArray::number(Dateiprüfung::Programmkennung);

// Reads the schema, which also lets the engine put an interrupted change right. A file without the
// program's mark (some tool has copied the tables) must have more than one table of that name.
void prüfeInhalt(Verbindung& verbindung) {
  const bool gekennzeichnet =
      verbindung.steuere("pragma application_id").toInt() == Dateiprüfung::Programmkennung;
  QStringList nötig = {QStringLiteral("Bienenvolk")};
  if (!gekennzeichnet) {
    nötig << QStringLiteral("Stockkarte") << QStringLiteral("Honigernte")
          << QStringLiteral("Standorte") << QStringLiteral("Termine");
  }
  for (const QString& tabelle : nötig) {
    if (!verbindung.tabellen().contains(tabelle, Qt::CaseInsensitive)) {
      Dateiprüfung::keineVonTova(verbindung.pfad(), tabelle);
    }
  }
}

// What can be told without the engine's touching the file.
Dateiprüfung::Befund prüfeUnberührt(const QString& pfad) {
  const Dateiprüfung::Befund befund = Dateiprüfung::prüfe(pfad);
  if (befund.schreibprotokoll || !befund.gekennzeichnet) {
    Verbindung betrachtet(pfad, Verbindung::Modus::Betrachten);
    prüfeInhalt(betrachtet);
  }
  return befund;
}

QString fremdesJournalText(const QString& pfad, const QString& beiseite) {
  return QStringLiteral(
             "Neben der Datenbank \"%1\" lag die Mitschrift eines abgebrochenen Vorgangs, die zu "
             "einem anderen Stand der Datei gehört. Das kommt vor, wenn nach einem Absturz eine "
             "Datensicherung zurückgespielt wurde. Sie wurde nicht verwendet und liegt jetzt als "
             "\"%2\" im selben Ordner.")
      .arg(QDir::toNativeSeparators(pfad), QFileInfo(beiseite).fileName());
}

void löscheMitJournal(const QString& pfad) {
  QFile::remove(pfad);
  QFile::remove(pfad + QStringLiteral("-journal"));
}

void prüfeZiel(const QString& pfad) {
  if (!QFileInfo::exists(pfad) && !QFileInfo(pfad).isSymLink()) return;
  throw Datenbankfehler(Art::Allgemein,
                        QStringLiteral("Die Datei \"%1\" ist schon vorhanden und wird nicht "
                                       "überschrieben.")
                            .arg(QDir::toNativeSeparators(pfad)));
}

// The copy must lie safely on the medium before the caller deletes the source; writing its header
// once more makes the engine synchronise the whole file.
void sichere(const QString& pfad) {
  Verbindung kopie(pfad, Verbindung::Modus::Schreiben);
  if (kopie.steuere("pragma quick_check(1)") != "ok") {
    throw Datenbankfehler(Art::Allgemein,
                          QStringLiteral("Die komprimierte Datenbank \"%1\" ist fehlerhaft. Die "
                                         "bisherige bleibt, wie sie ist.")
                              .arg(QDir::toNativeSeparators(pfad)));
  }
  kopie.steuere(kennung);
}

[[noreturn]] void benutzt(const QString& pfad) {
  throw Datenbankfehler(
      Art::Gesperrt, QStringLiteral("Die Datenbank \"%1\" wird gerade von einem anderen Programm "
                                    "benutzt. Bitte beenden Sie es und starten Sie TOVA neu.")
                         .arg(QDir::toNativeSeparators(pfad)));
}

// From here to the end of the connection nobody else can read or write the file.
void nimmAllein(Verbindung& verbindung) {
  if (verbindung.steuere("pragma journal_mode = delete") != "delete") benutzt(verbindung.pfad());
  verbindung.steuere("pragma locking_mode = exclusive");
  verbindung.steuere("begin exclusive");
  verbindung.steuere("commit");
}

void prüfeGanz(Verbindung& verbindung) {
  if (verbindung.steuere("pragma integrity_check(1)") == "ok") return;
  throw Datenbankfehler(Art::KeineDatenbank,
                        QStringLiteral("Die Datenbank \"%1\" ist beschädigt und bleibt, wie sie "
                                       "ist. Bitte spielen Sie Ihre letzte Datensicherung zurück.")
                            .arg(QDir::toNativeSeparators(verbindung.pfad())));
}

void ersetze(const QString& pfad, const QString& durch) {
  std::error_code fehler;
  std::filesystem::rename(QFileInfo(durch).filesystemFilePath(),
                          QFileInfo(pfad).filesystemFilePath(), fehler);
  if (!fehler) return;
  throw Datenbankfehler(Art::NurLesen,
                        QStringLiteral("Die Datenbank \"%1\" konnte nicht ersetzt werden. Bitte "
                                       "prüfen Sie, ob in dem Ordner geschrieben werden darf.")
                            .arg(QDir::toNativeSeparators(pfad)));
}

// Calls danach while the source is still held.
void komprimiere(const QString& von, const QString& nach,
                 const std::function<void(Verbindung&)>& danach) {
  if (Verbindung::zu(von)) {
    throw Datenbankfehler(Art::Gesperrt,
                          QStringLiteral("Die Datenbank \"%1\" ist noch geöffnet und kann nicht "
                                         "komprimiert werden.")
                              .arg(QDir::toNativeSeparators(von)));
  }
  prüfeZiel(nach);
  prüfeUnberührt(von);
  if (!Journalprüfung::gehörtDazu(von)) benutzt(von);  // it came while the program was running
  Verbindung quelle(von, Verbindung::Modus::Schreiben);
  prüfeInhalt(quelle);
  nimmAllein(quelle);
  prüfeGanz(quelle);
  try {
    quelle.steuere("vacuum into " + literal(nach));
    sichere(nach);
    danach(quelle);
  } catch (...) {
    löscheMitJournal(nach);
    throw;
  }
}

}  // namespace

// --- Workspace --------------------------------------------------------------------------------

Database Workspace::CreateDatabase(const QString& pfad) {
  prüfeZiel(pfad);
  if (!QFileInfo(QFileInfo(pfad).absolutePath()).isDir()) {
    throw Datenbankfehler(
        Art::NurLesen, QStringLiteral("Der Ordner \"%1\" für die Datenbank wurde nicht gefunden.")
                           .arg(QDir::toNativeSeparators(QFileInfo(pfad).absolutePath())));
  }
  // A journal left over from an earlier file of this name would be played back into the new one.
  if (QFileInfo::exists(pfad + QStringLiteral("-journal"))) {
    QFile::remove(pfad + QStringLiteral("-journal"));
  }
  try {
    auto verbindung = std::make_shared<Verbindung>(pfad, Verbindung::Modus::Neu);
    verbindung->steuere(kennung);
    m_verbindungen.push_back(verbindung);
    return Database(std::move(verbindung));
  } catch (...) {
    löscheMitJournal(pfad);
    throw;
  }
}

void Workspace::prüfeDatei(const QString& pfad) {
  prüfeUnberührt(pfad);
  if (Journalprüfung::gehörtDazu(pfad)) return;
  m_hinweise << fremdesJournalText(pfad, Journalprüfung::legeBeiseite(pfad));
  prüfeUnberührt(pfad);  // with a journal beside it the file's length wasn't looked at
}

Database Workspace::OpenDatabase(const QString& pfad) {
  std::erase_if(m_verbindungen, [](const auto& v) { return !v->offen(); });
  // A file that was replaced from outside gets a new connection; the old one would write into the
  // file that is gone.
  for (auto it = m_verbindungen.begin(); it != m_verbindungen.end(); ++it) {
    if (!(*it)->istDatei(pfad)) continue;
    if (!(*it)->verschoben()) return Database(*it);
    const std::shared_ptr<Verbindung> alte = *it;
    m_verbindungen.erase(it);
    alte->schließe();
    break;
  }
  // Reading a file beside the engine's back ends the locks that this process holds on it.
  if (!Verbindung::zu(pfad)) prüfeDatei(pfad);
  auto verbindung = std::make_shared<Verbindung>(pfad, Verbindung::Modus::Schreiben);
  prüfeInhalt(*verbindung);
  if (verbindung->nurLesend()) {
    throw Datenbankfehler(Art::NurLesen,
                          QStringLiteral("Die Datenbank \"%1\" ist schreibgeschützt. Bitte heben "
                                         "Sie den Schreibschutz auf und starten Sie TOVA neu.")
                              .arg(QDir::toNativeSeparators(pfad)));
  }
  if (verbindung->steuere("pragma journal_mode = delete") != "delete") benutzt(pfad);
  m_verbindungen.push_back(verbindung);
  return Database(std::move(verbindung));
}

void Workspace::Close() {
  std::exception_ptr erster;
  for (const auto& verbindung : std::exchange(m_verbindungen, {})) {
    try {
      verbindung->schließe();
    } catch (...) {
      if (!erster) erster = std::current_exception();
    }
  }
  if (erster) std::rethrow_exception(erster);
}

void Workspace::CompactDatabase(const QString& von, const QString& nach) {
  komprimiere(von, nach, [](Verbindung&) {});
}

void Workspace::CompactInPlace(const QString& pfad, const QString& kopie) {
  komprimiere(pfad, kopie, [&]([[maybe_unused]] Verbindung& quelle) {
#ifdef Q_OS_WIN
    quelle.schließe();  // an open file can't be replaced there
#endif
    ersetze(pfad, kopie);
  });
}

// --- Database ---------------------------------------------------------------------------------

Database::Database(std::shared_ptr<Verbindung> verbindung) : m_verbindung(std::move(verbindung)) {}

Verbindung& Database::verbindung() const {
  if (!m_verbindung || !m_verbindung->offen()) {
    throw Datenbankfehler(Art::Allgemein, QStringLiteral("Die Datenbank ist geschlossen."));
  }
  return *m_verbindung;
}

bool Database::IsOpen() const { return m_verbindung && m_verbindung->offen(); }

const QString& Database::Name() const {
  static const QString keiner;
  return m_verbindung ? m_verbindung->pfad() : keiner;
}

qint64 Database::Execute(const QString& anweisung, const QVariantList& werte) {
  return verbindung().execute(anweisung, werte);
}

Recordset Database::OpenRecordset(const QString& anweisung, const QVariantList& werte) {
  Leseergebnis ergebnis = verbindung().lies(anweisung, werte);
  return Recordset(m_verbindung, std::move(ergebnis.tabelle), std::move(ergebnis.felder),
                   std::move(ergebnis.daten));
}

Daten Database::Lesen(const QString& anweisung, const QVariantList& werte) {
  return verbindung().lies(anweisung, werte).daten;
}

void Database::durchlaufe(const QString& anweisung, const QVariantList& werte,
                          const std::function<bool(const Laufzeile&)>& besucher) {
  // The connection must outlive the visits, which may close this handle.
  const std::shared_ptr<Verbindung> gehalten = m_verbindung;
  verbindung().durchlaufe(anweisung, werte, besucher);
}

void Database::Sammelschreiben(const std::function<void()>& aktion) {
  // The connection must outlive the action, which may close this handle.
  const std::shared_ptr<Verbindung> gehalten = m_verbindung;
  verbindung().sammelschreiben(aktion);
}

void Database::NachFestschreiben(std::function<void()> folge) {
  verbindung().nachFestschreiben(std::move(folge));
}

qint64 Database::LetzteID() const { return verbindung().letzteID(); }

std::vector<Spalte> Database::Felder(const QString& tabelle) const {
  return verbindung().felder(tabelle);
}

QStringList Database::Tabellen() const { return verbindung().tabellen(); }

int Database::Schemastand() const { return verbindung().steuere("pragma user_version").toInt(); }

void Database::setSchemastand(int stand) {
  verbindung().steuere("pragma user_version = " + QByteArray::number(stand));
}

QString Database::Übersetzung(const QString& anweisung) const {
  return verbindung().übersetzung(anweisung);
}
