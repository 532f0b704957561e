// Preparing, binding and running statements.

#include <sqlite3.h>

#include <cmath>

#include "platform/database/verbindung/Verbindung.h"
#include "platform/database/werte/Feldregeln.h"
#include "platform/database/werte/Kreuztabelle.h"
#include "platform/locale/Deutsch.h"

namespace {

using Art = Datenbankfehler::Art;

QString utf8(const char* text) { return QString::fromUtf8(text ? text : ""); }

}  // namespace

qint64 Verbindung::execute(const QString& anweisung, const QVariantList& werte) {
  prüfeSchreibbar(anweisung);
  qint64 zeilen = 0;
  bool schemaNeu = false;
  {
    const auto a = leihe(anweisung);
    if (!a->übersetzt.schreibt && !a->übersetzt.ändertSchema) {
      throw Datenbankfehler(Art::Anweisung,
                            QStringLiteral("Die Anweisung liest Zeilen und schreibt nichts."),
                            anweisung);
    }
    binde(*a, werte);
    while (schritt(*a)) {
    }
    if (a->übersetzt.schreibt) zeilen = sqlite3_changes64(m_db);
    schemaNeu = a->übersetzt.ändertSchema;
  }
  if (schemaNeu) vergiss();
  return zeilen;
}

Anweisungen::Leihe Verbindung::leihe(const QString& anweisung) {
  return m_anweisungen.leihe(anweisung,
                             [this](const QString& t) { return übersetzeUndBereite(t); });
}

void Verbindung::prüfeLesend(const Anweisung& a) {
  if (!a.übersetzt.schreibt && !a.übersetzt.ändertSchema) return;
  throw Datenbankfehler(Art::Anweisung, QStringLiteral("Die Anweisung liefert keine Zeilen."),
                        a.text);
}

Leseergebnis Verbindung::lies(const QString& anweisung, const QVariantList& werte) {
  prüfeNutzbar(anweisung);
  const auto a = leihe(anweisung);
  prüfeLesend(*a);
  binde(*a, werte);
  Daten zeilen = liesZeilen(*a);
  if (a->übersetzt.kreuztabelle) {
    return {Kreuztabelle::baue(*zeilen, a->übersetzt.kreuztabelle->gruppen), {}, {}};
  }
  return {std::move(zeilen), a->übersetzt.tabelle, a->felder};
}

qint64 Verbindung::schreibeRoh(const QString& sql, const QVariantList& werte) {
  prüfeSchreibbar(sql);
  const auto a = m_roh.leihe(sql, [this](const QString& t) {
    return bereite(t, {t, std::nullopt, true, false, {}});
  });
  binde(*a, werte);
  while (schritt(*a)) {
  }
  return sqlite3_changes64(m_db);
}

QString Verbindung::übersetzung(const QString& anweisung) {
  prüfeNutzbar(anweisung);
  return übersetze(anweisung).sql;
}

qint64 Verbindung::letzteID() const {
  prüfeNutzbar({});
  return sqlite3_last_insert_rowid(m_db);
}

Dialekt::Übersetzt Verbindung::übersetze(const QString& text) {
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
  return Dialekt::übersetze(
      text, [this](const QString& t) { return felder(t); }, auskunft);
}

std::shared_ptr<Anweisung> Verbindung::übersetzeUndBereite(const QString& text) {
  auto a = bereite(text, übersetze(text));
  ermittleSpalten(*a);
  return a;
}

std::shared_ptr<Anweisung> Verbindung::bereite(const QString& text, Dialekt::Übersetzt übersetzt) {
  auto a = std::make_shared<Anweisung>();
  a->text = text;
  a->übersetzt = std::move(übersetzt);
  const QByteArray sql = a->übersetzt.sql.toUtf8();
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
      for (const Spalte& erklärt : felder(tabelle)) {
        if (erklärt.name != feld) continue;
        spalte.typ = erklärt.typ;
        spalte.länge = erklärt.länge;
      }
    }
    const bool eigenes = tabelle.compare(a.übersetzt.tabelle, Qt::CaseInsensitive) == 0;
    a.felder.append(eigenes ? feld : QString());
    spalten->push_back(std::move(spalte));
  }
  a.spalten = std::move(spalten);
}

// The engine prepares a statement anew by itself when another connection has changed the schema.
void Verbindung::prüfeNeuBereitet(Anweisung& a) {
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
  prüfeNeuBereitet(a);
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
