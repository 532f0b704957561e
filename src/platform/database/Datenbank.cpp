#include "platform/database/Datenbank.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <exception>
#include <utility>

#include "platform/database/Dateipruefung.h"
#include "platform/database/Recordset.h"
#include "platform/database/Verbindung.h"

namespace {

using Art = Datenbankfehler::Art;

// A mark in the file's header by which its maker can be told.
constexpr int programmkennung = 0x544F5641;  // "TOVA"

QByteArray literal(const QString& text) {
  QByteArray utf8 = text.toUtf8();
  utf8.replace('\'', "''");
  return '\'' + utf8 + '\'';
}

// Reads the schema, which also lets the engine put an interrupted change right.
void pruefeInhalt(Verbindung& verbindung) {
  if (!verbindung.tabellen().contains(QStringLiteral("Bienenvolk"), Qt::CaseInsensitive)) {
    Dateipruefung::keineVonTova(verbindung.pfad());
  }
}

void pruefeDatei(const QString& pfad) {
  if (!Dateipruefung::pruefe(pfad)) return;
  Verbindung betrachtet(pfad, Verbindung::Modus::Betrachten);
  pruefeInhalt(betrachtet);
}

void loescheMitJournal(const QString& pfad) {
  QFile::remove(pfad);
  QFile::remove(pfad + QStringLiteral("-journal"));
}

void pruefeZiel(const QString& pfad) {
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
  kopie.steuere("pragma application_id = " + QByteArray::number(programmkennung));
}

}  // namespace

// --- Workspace --------------------------------------------------------------------------------

Database Workspace::CreateDatabase(const QString& pfad) {
  pruefeZiel(pfad);
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
    verbindung->steuere("pragma application_id = " + QByteArray::number(programmkennung));
    m_verbindungen.push_back(verbindung);
    return Database(std::move(verbindung));
  } catch (...) {
    loescheMitJournal(pfad);
    throw;
  }
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
    alte->schliesse();
    break;
  }
  // Reading a file beside the engine's back ends the locks that this process holds on it.
  if (!Verbindung::zu(pfad)) pruefeDatei(pfad);
  auto verbindung = std::make_shared<Verbindung>(pfad, Verbindung::Modus::Schreiben);
  pruefeInhalt(*verbindung);
  if (verbindung->nurLesend()) {
    throw Datenbankfehler(Art::NurLesen,
                          QStringLiteral("Die Datenbank \"%1\" ist schreibgeschützt. Bitte heben "
                                         "Sie den Schreibschutz auf und starten Sie TOVA neu.")
                              .arg(QDir::toNativeSeparators(pfad)));
  }
  if (verbindung->steuere("pragma journal_mode = delete") != "delete") {
    throw Datenbankfehler(Art::Gesperrt,
                          QStringLiteral("Die Datenbank \"%1\" wird gerade von einem anderen "
                                         "Programm benutzt. Bitte beenden Sie es und starten Sie "
                                         "TOVA neu.")
                              .arg(QDir::toNativeSeparators(pfad)));
  }
  m_verbindungen.push_back(verbindung);
  return Database(std::move(verbindung));
}

void Workspace::Close() {
  std::exception_ptr erster;
  for (const auto& verbindung : std::exchange(m_verbindungen, {})) {
    try {
      verbindung->schliesse();
    } catch (...) {
      if (!erster) erster = std::current_exception();
    }
  }
  if (erster) std::rethrow_exception(erster);
}

void Workspace::CompactDatabase(const QString& von, const QString& nach) {
  if (Verbindung::zu(von)) {
    throw Datenbankfehler(Art::Gesperrt,
                          QStringLiteral("Die Datenbank \"%1\" ist noch geöffnet und kann nicht "
                                         "komprimiert werden.")
                              .arg(QDir::toNativeSeparators(von)));
  }
  pruefeZiel(nach);
  pruefeDatei(von);
  Verbindung quelle(von, Verbindung::Modus::Schreiben);
  pruefeInhalt(quelle);
  try {
    quelle.steuere("vacuum into " + literal(nach));
    sichere(nach);
  } catch (...) {
    loescheMitJournal(nach);
    throw;
  }
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

void Database::Sammelschreiben(const std::function<void()>& aktion) {
  // The connection must outlive the action, which may close this handle.
  const std::shared_ptr<Verbindung> gehalten = m_verbindung;
  verbindung().sammelschreiben(aktion);
}

qint64 Database::LetzteID() const { return verbindung().letzteID(); }

std::vector<Spalte> Database::Felder(const QString& tabelle) const {
  return verbindung().felder(tabelle);
}

QStringList Database::Tabellen() const { return verbindung().tabellen(); }

QString Database::Uebersetzung(const QString& anweisung) const {
  return verbindung().uebersetzung(anweisung);
}
