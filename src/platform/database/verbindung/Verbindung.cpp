#include "platform/database/verbindung/Verbindung.h"

#include <sqlite3.h>

#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <utility>

#include "platform/database/verbindung/Enginefehler.h"
#include "platform/database/verbindung/Funktionen.h"

namespace {

using Art = Datenbankfehler::Art;

constexpr int wartezeitMs = 2000;

// The connections of this process, to know the file that is open already.
QList<Verbindung*>& offeneVerbindungen() {
  // Never destroyed: a connection of the global state may end after all static lists.
  static auto* liste = new QList<Verbindung*>;
  return *liste;
}

QString ortVon(const QString& pfad) {
  const QFileInfo info(pfad);
  const QString echt = info.canonicalFilePath();
  return echt.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : echt;
}

int öffnungsart(Verbindung::Modus modus) {
  // The program has one thread; without the engine's locks reading is faster.
  switch (modus) {
    case Verbindung::Modus::Neu:
      return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    case Verbindung::Modus::Schreiben:
      return SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    case Verbindung::Modus::NurLesen:
      return SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX;
    case Verbindung::Modus::Betrachten:
      break;
  }
  return SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI;
}

QByteArray öffnungsname(const QString& pfad, Verbindung::Modus modus) {
  if (modus != Verbindung::Modus::Betrachten) return pfad.toUtf8();
  return QUrl::fromLocalFile(QFileInfo(pfad).absoluteFilePath()).toEncoded() + "?immutable=1";
}

QString utf8(const char* text) { return QString::fromUtf8(text ? text : ""); }

// The file's own last error; the connection's may come from the clearing up behind it.
int systemfehler(sqlite3* db) {
  int fehler = 0;
  sqlite3_file_control(db, "main", SQLITE_FCNTL_LAST_ERRNO, &fehler);
  return fehler != 0 ? fehler : sqlite3_system_errno(db);
}

class Tiefe {
 public:
  explicit Tiefe(int& tiefe) : m_tiefe(tiefe) { ++m_tiefe; }
  ~Tiefe() { --m_tiefe; }
  Tiefe(const Tiefe&) = delete;
  Tiefe& operator=(const Tiefe&) = delete;

 private:
  int& m_tiefe;
};

}  // namespace

Verbindung::Verbindung(const QString& pfad, Modus modus) : m_pfad(pfad) {
  const int code =
      sqlite3_open_v2(öffnungsname(pfad, modus).constData(), &m_db, öffnungsart(modus), nullptr);
  try {
    if (code != SQLITE_OK) wirf(code, {});
    sqlite3_extended_result_codes(m_db, 1);
    sqlite3_busy_timeout(m_db, wartezeitMs);
    // A misspelt name in double quotes is a failure and not a text.
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    // Settings of the connection; none of them writes to the file.
    steuere("pragma foreign_keys = off");
    steuere("pragma temp_store = memory");
    steuere("pragma cache_size = -65536");
    steuere("pragma secure_delete = off");
    // As full, and the folder is synchronised behind the deleted journal: without that the last
    // commit could be undone by a power cut.
    steuere("pragma synchronous = extra");
    Funktionen::registriereFunktionen(m_db);
  } catch (...) {
    sqlite3_close_v2(m_db);
    throw;
  }
  m_ort = ortVon(pfad);
  offeneVerbindungen().append(this);
}

// A running Sammelschreiben holds its connection, so that nothing waits for a commit here.
Verbindung::~Verbindung() { trenne(); }

void Verbindung::schließe() {
  if (!m_db) return;
  if (!sqlite3_get_autocommit(m_db)) {
    try {
      schreibeFest();
    } catch (const Datenbankfehler& fehler) {
      m_verlust = fehler;  // the Sammelschreiben tells it too, should its action swallow it
    }
  }
  trenne();
  if (m_verlust) throw Datenbankfehler(*m_verlust);
}

void Verbindung::trenne() {
  if (!m_db) return;
  vergiss();
  sqlite3_close_v2(m_db);
  m_db = nullptr;
  offeneVerbindungen().removeOne(this);
}

bool Verbindung::verschoben() const {
  int ja = 0;
  return m_db && sqlite3_file_control(m_db, "main", SQLITE_FCNTL_HAS_MOVED, &ja) == SQLITE_OK &&
         ja != 0;
}

bool Verbindung::nurLesend() const { return m_db && sqlite3_db_readonly(m_db, "main") == 1; }

bool Verbindung::istDatei(const QString& pfad) const { return ortVon(pfad) == m_ort; }

Verbindung* Verbindung::zu(const QString& pfad) {
  const QString ort = ortVon(pfad);
  for (Verbindung* verbindung : offeneVerbindungen()) {
    if (verbindung->m_ort == ort) return verbindung;
  }
  return nullptr;
}

QByteArray Verbindung::steuere(const QByteArray& sql) {
  sqlite3_stmt* stmt = nullptr;
  int code =
      sqlite3_prepare_v2(m_db, sql.constData(), static_cast<int>(sql.size()), &stmt, nullptr);
  QByteArray erster;
  bool gelesen = false;
  while (code == SQLITE_OK || code == SQLITE_ROW) {
    code = sqlite3_step(stmt);
    if (code == SQLITE_ROW && !gelesen) {
      erster = reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0));
      gelesen = true;
    }
  }
  if (code != SQLITE_DONE) {
    const std::shared_ptr<sqlite3_stmt> freigeben(stmt, sqlite3_finalize);
    wirf(code, QString::fromUtf8(sql));
  }
  sqlite3_finalize(stmt);
  return erster;
}

void Verbindung::vergiss() {
  m_anweisungen.leere();
  m_roh.leere();
  m_felder.clear();
  m_tabellen.reset();
}

// --- Visits -----------------------------------------------------------------------------------

void Verbindung::durchlaufe(const QString& anweisung, const QVariantList& werte,
                            const std::function<bool(const Laufzeile&)>& besucher) {
  prüfeNutzbar(anweisung);
  const auto a = leihe(anweisung);
  prüfeLesend(*a);
  if (a->übersetzt.kreuztabelle) {
    throw Datenbankfehler(Art::Anweisung,
                          QStringLiteral("Eine Kreuztabelle gibt es nur als Ganzes."), anweisung);
  }
  binde(*a, werte);
  const Laufzeile zeile(a->stmt);
  const Tiefe lauf(m_läufe);
  while (schritt(*a)) {
    const bool weiter = besucher(zeile);
    prüfeNutzbar(anweisung);  // the visitor may have closed the database
    if (!weiter) return;
  }
}

// --- Sammelschreiben --------------------------------------------------------------------------

void Verbindung::sammelschreiben(const std::function<void()>& aktion) {
  prüfeSchreibbar({});
  if (m_tiefe > 0) {
    const Tiefe tiefe(m_tiefe);
    aktion();
    return;
  }
  beginne();
  std::exception_ptr ausnahme = laufe(aktion);
  const auto folgen = std::exchange(m_folgen, {});
  if (m_verlust) throw Datenbankfehler(*std::exchange(m_verlust, std::nullopt));
  if (m_db) schreibeFest();
  for (const auto& folge : folgen) {  // one that fails doesn't take the others with it
    try {
      folge();
    } catch (...) {
      if (!ausnahme) ausnahme = std::current_exception();
    }
  }
  if (ausnahme) std::rethrow_exception(ausnahme);
}

void Verbindung::beginne() {
  m_verlust.reset();
  m_folgen.clear();
  try {
    steuere("begin immediate");
  } catch (Datenbankfehler& fehler) {
    Enginefehler::allesVerworfen(fehler);
    throw;
  }
}

// Runs the action; gives what it ended with.
std::exception_ptr Verbindung::laufe(const std::function<void()>& aktion) {
  const Tiefe tiefe(m_tiefe);
  try {
    aktion();
  } catch (Datenbankfehler& fehler) {
    // Another connection's too: what was to be written here from there is only half here.
    if (fehler.istStörung() && !m_verlust) verwirf(fehler);
    return std::current_exception();
  } catch (...) {
    return std::current_exception();
  }
  return nullptr;
}

void Verbindung::nachFestschreiben(std::function<void()> folge) {
  if (m_tiefe > 0)
    m_folgen.push_back(std::move(folge));
  else
    folge();
}

// The running Sammelschreiben is lost: nothing of it stays, and nothing more is written in it.
void Verbindung::verwirf(Datenbankfehler& fehler) {
  if (m_db && !sqlite3_get_autocommit(m_db)) {
    sqlite3_exec(m_db, "rollback", nullptr, nullptr, nullptr);
  }
  Enginefehler::allesVerworfen(fehler);
  m_verlust = fehler;
  vergiss();
}

void Verbindung::schreibeFest() {
  try {
    steuere("commit");
  } catch (Datenbankfehler& fehler) {
    if (!sqlite3_get_autocommit(m_db)) {
      sqlite3_exec(m_db, "rollback", nullptr, nullptr, nullptr);
    }
    vergiss();
    Enginefehler::allesVerworfen(fehler);
    throw;
  }
}

void Verbindung::prüfeNutzbar(const QString& anweisung) const {
  if (!m_db) {
    throw Datenbankfehler(Art::Allgemein, QStringLiteral("Die Datenbank ist geschlossen."),
                          anweisung);
  }
  // After the engine has thrown the action's writes away, what follows would commit by itself.
  if (m_verlust && m_tiefe > 0) throw Datenbankfehler(*m_verlust);
}

// A row that is being visited must not change under the visitor.
void Verbindung::prüfeSchreibbar(const QString& anweisung) const {
  prüfeNutzbar(anweisung);
  if (m_läufe == 0) return;
  throw Datenbankfehler(
      Art::Anweisung,
      QStringLiteral("Die Datenbank wird gerade gelesen, solange kann nichts gespeichert werden."),
      anweisung);
}

void Verbindung::wirf(int code, const QString& anweisung, bool beimVorbereiten) {
  Enginefehler::Lage lage;
  lage.code = code;
  lage.beimVorbereiten = beimVorbereiten;
  lage.meldung = m_db ? utf8(sqlite3_errmsg(m_db)) : utf8(sqlite3_errstr(code));
  lage.systemfehler = m_db ? systemfehler(m_db) : 0;
  auto fehler = Enginefehler::fehler(lage, QDir::toNativeSeparators(m_pfad), anweisung);
  // Depending on the statement the engine throws away the one that failed, or all.
  if (m_tiefe > 0 && !m_verlust && (fehler.istStörung() || sqlite3_get_autocommit(m_db))) {
    verwirf(fehler);
  }
  throw fehler;
}
