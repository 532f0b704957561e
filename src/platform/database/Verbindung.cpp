#include "platform/database/Verbindung.h"

#include <sqlite3.h>

#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <cmath>

#include "platform/database/Enginefehler.h"
#include "platform/database/Feldregeln.h"
#include "platform/database/Funktionen.h"
#include "platform/database/Kreuztabelle.h"
#include "platform/locale/Deutsch.h"

namespace {

using Art = Datenbankfehler::Art;

constexpr int wartezeitMs = 2000;

// The connections of this process, to know the file that is open already.
QList<Verbindung*>& offeneVerbindungen() {
  static QList<Verbindung*> liste;
  return liste;
}

QString ortVon(const QString& pfad) {
  const QFileInfo info(pfad);
  const QString echt = info.canonicalFilePath();
  return echt.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : echt;
}

int oeffnungsart(Verbindung::Modus modus) {
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

QByteArray oeffnungsname(const QString& pfad, Verbindung::Modus modus) {
  if (modus != Verbindung::Modus::Betrachten) return pfad.toUtf8();
  return QUrl::fromLocalFile(QFileInfo(pfad).absoluteFilePath()).toEncoded() + "?immutable=1";
}

QString utf8(const char* text) { return QString::fromUtf8(text ? text : ""); }

Spalte spalteAusErklaerung(const QString& name, const QString& erklaerung, bool schluessel) {
  const QString wort = erklaerung.section(QLatin1Char(' '), 0, 0, QString::SectionSkipEmpty)
                           .section(QLatin1Char('('), 0, 0)
                           .toUpper();
  Spalte spalte{name, Feldtyp::Ausdruck, 0};
  if (schluessel || wort == QLatin1String("COUNTER")) {
    spalte.typ = Feldtyp::Zaehler;
  } else if (wort == QLatin1String("TEXT")) {
    spalte.typ = Feldtyp::Text;
    spalte.laenge =
        erklaerung.section(QLatin1Char('('), 1).section(QLatin1Char(')'), 0, 0).trimmed().toInt();
  } else if (wort == QLatin1String("MEMO")) {
    spalte.typ = Feldtyp::Memo;
  } else if (wort == QLatin1String("SHORT")) {
    spalte.typ = Feldtyp::Kurz;
  } else if (wort == QLatin1String("INTEGER") || wort == QLatin1String("LONG")) {
    spalte.typ = Feldtyp::Lang;
  } else if (wort == QLatin1String("SINGLE")) {
    spalte.typ = Feldtyp::Einfach;
  } else if (wort == QLatin1String("CURRENCY")) {
    spalte.typ = Feldtyp::Waehrung;
  } else if (wort == QLatin1String("DATETIME")) {
    spalte.typ = Feldtyp::Datum;
  }
  return spalte;
}

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
      sqlite3_open_v2(oeffnungsname(pfad, modus).constData(), &m_db, oeffnungsart(modus), nullptr);
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

Verbindung::~Verbindung() { schliesse(); }

void Verbindung::schliesse() {
  if (!m_db) return;
  if (!sqlite3_get_autocommit(m_db)) sqlite3_exec(m_db, "commit", nullptr, nullptr, nullptr);
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

// --- statements -----------------------------------------------------------------------------

qint64 Verbindung::execute(const QString& anweisung, const QVariantList& werte) {
  pruefeNutzbar(anweisung);
  qint64 zeilen = 0;
  bool schemaNeu = false;
  {
    const auto a = m_anweisungen.leihe(
        anweisung, [this](const QString& t) { return uebersetzeUndBereite(t); });
    if (!a->uebersetzt.schreibt && !a->uebersetzt.aendertSchema) {
      throw Datenbankfehler(Art::Anweisung,
                            QStringLiteral("Die Anweisung liest Zeilen und schreibt nichts."),
                            anweisung);
    }
    binde(*a, werte);
    while (schritt(*a)) {
    }
    if (a->uebersetzt.schreibt) zeilen = sqlite3_changes64(m_db);
    schemaNeu = a->uebersetzt.aendertSchema;
  }
  if (schemaNeu) vergiss();
  return zeilen;
}

Leseergebnis Verbindung::lies(const QString& anweisung, const QVariantList& werte) {
  pruefeNutzbar(anweisung);
  const auto a =
      m_anweisungen.leihe(anweisung, [this](const QString& t) { return uebersetzeUndBereite(t); });
  if (a->uebersetzt.schreibt || a->uebersetzt.aendertSchema) {
    throw Datenbankfehler(Art::Anweisung, QStringLiteral("Die Anweisung liefert keine Zeilen."),
                          anweisung);
  }
  binde(*a, werte);
  Daten zeilen = liesZeilen(*a);
  if (a->uebersetzt.kreuztabelle) {
    return {Kreuztabelle::baue(*zeilen, a->uebersetzt.kreuztabelle->gruppen), {}, {}};
  }
  return {std::move(zeilen), a->uebersetzt.tabelle, a->felder};
}

qint64 Verbindung::schreibeRoh(const QString& sql, const QVariantList& werte) {
  pruefeNutzbar(sql);
  const auto a = m_roh.leihe(sql, [this](const QString& t) {
    return bereite(t, {t, std::nullopt, true, false, {}});
  });
  binde(*a, werte);
  while (schritt(*a)) {
  }
  return sqlite3_changes64(m_db);
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

QString Verbindung::uebersetzung(const QString& anweisung) {
  pruefeNutzbar(anweisung);
  return uebersetze(anweisung).sql;
}

qint64 Verbindung::letzteID() const {
  pruefeNutzbar({});
  return sqlite3_last_insert_rowid(m_db);
}

Dialekt::Uebersetzt Verbindung::uebersetze(const QString& text) {
  Dialekt::Auskunft auskunft;
  auskunft.tabellenname = [this](const QString& tabelle) {
    for (const QString& name : tabellen()) {
      if (name.compare(tabelle, Qt::CaseInsensitive) == 0) return name;
    }
    return tabelle;
  };
  auskunft.beginntIndex = [this](const QString& tabelle, const QString& feld) {
    return beginntIndex(tabelle, feld);
  };
  return Dialekt::uebersetze(text, [this](const QString& t) { return felder(t); }, auskunft);
}

std::shared_ptr<Anweisung> Verbindung::uebersetzeUndBereite(const QString& text) {
  auto a = bereite(text, uebersetze(text));
  ermittleSpalten(*a);
  return a;
}

std::shared_ptr<Anweisung> Verbindung::bereite(const QString& text,
                                               Dialekt::Uebersetzt uebersetzt) {
  auto a = std::make_shared<Anweisung>();
  a->text = text;
  a->uebersetzt = std::move(uebersetzt);
  const QByteArray sql = a->uebersetzt.sql.toUtf8();
  const char* rest = nullptr;
  const int code = sqlite3_prepare_v3(m_db, sql.constData(), static_cast<int>(sql.size()),
                                      SQLITE_PREPARE_PERSISTENT, &a->stmt, &rest);
  if (code != SQLITE_OK) wirf(code, text, true);
  if (!a->stmt) {
    throw Datenbankfehler(Art::Anweisung, QStringLiteral("Die Anweisung ist leer."), text);
  }
  if (!QString::fromUtf8(rest).remove(QLatin1Char(';')).trimmed().isEmpty()) {
    throw Datenbankfehler(
        Art::Anweisung, QStringLiteral("Es kann nur eine Anweisung auf einmal ausgeführt werden."),
        text);
  }
  return a;
}

void Verbindung::ermittleSpalten(Anweisung& a) {
  auto spalten = std::make_shared<std::vector<Spalte>>();
  const int anzahl = sqlite3_column_count(a.stmt);
  spalten->reserve(static_cast<size_t>(anzahl));
  a.felder.clear();
  for (int i = 0; i < anzahl; ++i) {
    Spalte spalte{utf8(sqlite3_column_name(a.stmt, i)), Feldtyp::Ausdruck, 0};
    const QString tabelle = utf8(sqlite3_column_table_name(a.stmt, i));
    const QString feld = utf8(sqlite3_column_origin_name(a.stmt, i));
    if (!tabelle.isEmpty()) {
      for (const Spalte& erklaert : felder(tabelle)) {
        if (erklaert.name != feld) continue;
        spalte.typ = erklaert.typ;
        spalte.laenge = erklaert.laenge;
      }
    }
    const bool eigenes = tabelle.compare(a.uebersetzt.tabelle, Qt::CaseInsensitive) == 0;
    a.felder.append(eigenes ? feld : QString());
    spalten->push_back(std::move(spalte));
  }
  a.spalten = std::move(spalten);
}

// The engine prepares a statement anew by itself when another connection has changed the schema.
void Verbindung::pruefeNeuBereitet(Anweisung& a) {
  const int vorbereitungen = sqlite3_stmt_status(a.stmt, SQLITE_STMTSTATUS_REPREPARE, 0);
  if (vorbereitungen == a.vorbereitungen) return;
  a.vorbereitungen = vorbereitungen;
  m_felder.clear();
  m_tabellen.reset();
  ermittleSpalten(a);
}

void Verbindung::binde(Anweisung& a, const QVariantList& werte) {
  const int erwartet = sqlite3_bind_parameter_count(a.stmt);
  if (erwartet != werte.size()) {
    throw Datenbankfehler(Art::Anweisung,
                          QStringLiteral("Die Anweisung braucht %1 Werte und bekam %2.")
                              .arg(erwartet)
                              .arg(werte.size()),
                          a.text);
  }
  int nummer = 0;
  a.texte.clear();
  a.texte.reserve(static_cast<size_t>(werte.size()));  // the engine keeps pointers into it
  const auto bindeText = [&a, &nummer](QByteArray utf8) {
    const QByteArray& text = a.texte.emplace_back(std::move(utf8));
    return sqlite3_bind_text(a.stmt, nummer, text.constData(), static_cast<int>(text.size()),
                             SQLITE_STATIC);
  };
  for (const QVariant& wert : werte) {
    ++nummer;
    int code = SQLITE_OK;
    switch (wert.typeId()) {
      case QMetaType::UnknownType:
      case QMetaType::Nullptr:
        code = sqlite3_bind_null(a.stmt, nummer);
        break;
      case QMetaType::Bool:
      case QMetaType::Int:
      case QMetaType::UInt:
      case QMetaType::LongLong:
      case QMetaType::ULongLong:
      case QMetaType::Long:
      case QMetaType::ULong:
      case QMetaType::Short:
      case QMetaType::UShort:
        code = sqlite3_bind_int64(a.stmt, nummer, wert.toLongLong());
        break;
      case QMetaType::Double:
      case QMetaType::Float: {
        const double zahl =
            wert.typeId() == QMetaType::Float ? Deutsch::einfach(wert.toFloat()) : wert.toDouble();
        if (!std::isfinite(zahl)) {
          throw Datenbankfehler(Art::Wertebereich,
                                QStringLiteral("Das Rechenergebnis ist keine Zahl."), a.text);
        }
        code = sqlite3_bind_double(a.stmt, nummer, zahl);
        break;
      }
      case QMetaType::QDate:
      case QMetaType::QDateTime: {
        const QDate tag = wert.toDate();
        code =
            tag.isValid() ? bindeText(Feldregeln::isoText(tag)) : sqlite3_bind_null(a.stmt, nummer);
        break;
      }
      default:
        code =
            wert.isNull() ? sqlite3_bind_null(a.stmt, nummer) : bindeText(wert.toString().toUtf8());
        break;
    }
    if (code != SQLITE_OK) wirf(code, a.text);
  }
}

bool Verbindung::schritt(Anweisung& a) {
  const int code = sqlite3_step(a.stmt);
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  wirf(code, a.text);
}

Daten Verbindung::liesZeilen(Anweisung& a) {
  bool weiter = schritt(a);
  pruefeNeuBereitet(a);
  Datenblock::Bauer bauer(a.spalten);
  bauer.reserviere(a.letzteZellen, a.letzteTextbytes);
  sqlite3_stmt* const stmt = a.stmt;
  const int breite = sqlite3_column_count(stmt);
  size_t zellen = 0;
  for (; weiter; weiter = schritt(a)) {
    for (int s = 0; s < breite; ++s) {
      switch (sqlite3_column_type(stmt, s)) {
        case SQLITE_NULL:
          bauer.null();
          break;
        case SQLITE_INTEGER:
          bauer.ganz(sqlite3_column_int64(stmt, s));
          break;
        case SQLITE_FLOAT:
          bauer.gleitkomma(sqlite3_column_double(stmt, s));
          break;
        default: {
          const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(stmt, s));
          bauer.text(text, sqlite3_column_bytes(stmt, s));
          break;
        }
      }
    }
    zellen += static_cast<size_t>(breite);
  }
  Daten zeilen = bauer.fertig();
  a.letzteZellen = zellen;
  a.letzteTextbytes = zeilen->textbytes();
  return zeilen;
}

// --- catalogue --------------------------------------------------------------------------------

const QStringList& Verbindung::tabellen() {
  pruefeNutzbar({});
  if (m_tabellen) return *m_tabellen;
  QStringList namen;
  const auto a =
      bereite(QString(), {QStringLiteral("select name from sqlite_schema where type = 'table' and "
                                         "name not like 'sqlite\\_%' escape '\\' order by rowid"),
                          std::nullopt,
                          false,
                          false,
                          {}});
  while (schritt(*a)) {
    namen << utf8(reinterpret_cast<const char*>(sqlite3_column_text(a->stmt, 0)));
  }
  m_tabellen = std::move(namen);
  return *m_tabellen;
}

const std::vector<Spalte>& Verbindung::felder(const QString& tabelle) {
  pruefeNutzbar({});
  const QString schluessel = tabelle.toCaseFolded();
  const auto gefunden = m_felder.constFind(schluessel);
  if (gefunden != m_felder.constEnd()) return *gefunden;
  // The engine's own name, since it folds the case of plain letters only.
  QString name = tabelle;
  for (const QString& vorhanden : tabellen()) {
    if (vorhanden.compare(tabelle, Qt::CaseInsensitive) == 0) name = vorhanden;
  }
  const auto a = bereite(
      QString(), {QStringLiteral("select name, type, pk from pragma_table_info(?) order by cid"),
                  std::nullopt,
                  false,
                  false,
                  {}});
  binde(*a, {name});
  std::vector<Spalte> liste;
  while (schritt(*a)) {
    liste.push_back(
        spalteAusErklaerung(utf8(reinterpret_cast<const char*>(sqlite3_column_text(a->stmt, 0))),
                            utf8(reinterpret_cast<const char*>(sqlite3_column_text(a->stmt, 1))),
                            sqlite3_column_int(a->stmt, 2) != 0));
  }
  if (liste.empty()) {  // not kept: another connection may be about to create it
    m_tabellen.reset();
    static const std::vector<Spalte> keine;
    return keine;
  }
  return *m_felder.insert(schluessel, std::move(liste));
}

bool Verbindung::beginntIndex(const QString& tabelle, const QString& feld) {
  const auto a = bereite(QString(), {QStringLiteral("select 1 from pragma_index_list(?) l, "
                                                    "pragma_index_info(l.name) i "
                                                    "where i.seqno = 0 and i.name = ?"),
                                     std::nullopt,
                                     false,
                                     false,
                                     {}});
  binde(*a, {tabelle, feld});
  return schritt(*a);
}

void Verbindung::vergiss() {
  m_anweisungen.leere();
  m_roh.leere();
  m_felder.clear();
  m_tabellen.reset();
}

// --- Sammelschreiben --------------------------------------------------------------------------

void Verbindung::sammelschreiben(const std::function<void()>& aktion) {
  pruefeNutzbar({});
  if (m_tiefe > 0) {
    const Tiefe tiefe(m_tiefe);
    aktion();
    return;
  }
  steuere("begin immediate");
  m_verlust.reset();
  std::exception_ptr ausnahme;
  try {
    const Tiefe tiefe(m_tiefe);
    aktion();
  } catch (...) {
    ausnahme = std::current_exception();
  }
  if (m_verlust) throw *std::exchange(m_verlust, std::nullopt);
  if (m_db) schreibeFest();
  if (ausnahme) std::rethrow_exception(ausnahme);
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

void Verbindung::pruefeNutzbar(const QString& anweisung) const {
  if (!m_db) {
    throw Datenbankfehler(Art::Allgemein, QStringLiteral("Die Datenbank ist geschlossen."),
                          anweisung);
  }
  // After the engine has thrown the action's writes away, what follows would commit by itself.
  if (m_verlust && m_tiefe > 0) throw Datenbankfehler(*m_verlust);
}

void Verbindung::wirf(int code, const QString& anweisung, bool beimVorbereiten) {
  Enginefehler::Lage lage;
  lage.code = code;
  lage.beimVorbereiten = beimVorbereiten;
  lage.meldung = m_db ? utf8(sqlite3_errmsg(m_db)) : utf8(sqlite3_errstr(code));
  lage.systemfehler = m_db ? systemfehler(m_db) : 0;
  auto fehler = Enginefehler::fehler(lage, QDir::toNativeSeparators(m_pfad), anweisung);
  if (m_tiefe > 0 && !m_verlust && sqlite3_get_autocommit(m_db)) {
    Enginefehler::allesVerworfen(fehler);
    m_verlust = fehler;
    vergiss();
  }
  throw fehler;
}
