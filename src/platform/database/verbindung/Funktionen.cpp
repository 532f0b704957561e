#include "platform/database/verbindung/Funktionen.h"

#include <sqlite3.h>

#include <QDate>
#include <cmath>

#include "platform/database/werte/Datenbankfehler.h"
#include "platform/database/werte/Feldregeln.h"
#include "platform/database/werte/Kollation.h"
#include "platform/locale/Deutsch.h"
#include "platform/locale/Dezimalsumme.h"

namespace {

using Kontext = sqlite3_context;

std::function<QDateTime()>& uhr() {
  static std::function<QDateTime()> eine;
  return eine;
}

QByteArrayView oktette(sqlite3_value* wert) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(wert));
  return {text, text ? sqlite3_value_bytes(wert) : 0};
}

QString text(sqlite3_value* wert) { return QString::fromUtf8(oktette(wert)); }

bool istNull(sqlite3_value* wert) { return sqlite3_value_type(wert) == SQLITE_NULL; }

void gib(Kontext* kontext, const QString& text) {
  const QByteArray utf8 = text.toUtf8();
  sqlite3_result_text(kontext, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

// ---- dates ----

// A stored date, with or without a time behind it, or a date as people write it.
QDate datum(sqlite3_value* wert) {
  const QByteArrayView roh = oktette(wert);
  const QDate iso = Feldregeln::isoDatum(roh.first(std::min<qsizetype>(roh.size(), 10)));
  return iso.isValid() ? iso : Deutsch::datum(QString::fromUtf8(roh)).value_or(QDate());
}

template <class Teil>
void datumsteil(Kontext* kontext, sqlite3_value* wert, Teil teil) {
  if (istNull(wert)) return;
  const QDate tag = datum(wert);
  if (tag.isValid()) sqlite3_result_int(kontext, teil(tag));
}

void year(Kontext* kontext, int, sqlite3_value** werte) {
  datumsteil(kontext, *werte, [](QDate tag) { return tag.year(); });
}

void month(Kontext* kontext, int, sqlite3_value** werte) {
  datumsteil(kontext, *werte, [](QDate tag) { return tag.month(); });
}

void day(Kontext* kontext, int, sqlite3_value** werte) {
  datumsteil(kontext, *werte, [](QDate tag) { return tag.day(); });
}

qint64 monate(QDate tag) { return tag.year() * 12LL + tag.month() - 1; }

// Days from Sunday to Saturday are one week; the number counts the Sundays passed.
qint64 wochen(QDate tag) {
  const qint64 seitSonntag = tag.toJulianDay() + 1;
  return seitSonntag >= 0 ? seitSonntag / 7 : -((6 - seitSonntag) / 7);
}

// datediff(interval, from, to): the boundaries of the interval crossed between two days.
void datediff(Kontext* kontext, int, sqlite3_value** werte) {
  if (istNull(werte[0]) || istNull(werte[1]) || istNull(werte[2])) return;
  const QDate von = datum(werte[1]);
  const QDate bis = datum(werte[2]);
  if (!von.isValid() || !bis.isValid()) return;
  const QString intervall = text(werte[0]).toLower();
  if (intervall == QLatin1String("yyyy")) {
    sqlite3_result_int64(kontext, bis.year() - von.year());
  } else if (intervall == QLatin1String("q")) {
    sqlite3_result_int64(kontext, monate(bis) / 3 - monate(von) / 3);
  } else if (intervall == QLatin1String("m")) {
    sqlite3_result_int64(kontext, monate(bis) - monate(von));
  } else if (intervall == QLatin1String("ww")) {
    sqlite3_result_int64(kontext, wochen(bis) - wochen(von));
  } else if (intervall == QLatin1String("d") || intervall == QLatin1String("y")) {
    sqlite3_result_int64(kontext, von.daysTo(bis));
  } else {
    const QByteArray fehler =
        QStringLiteral("Das Intervall \"%1\" ist nicht bekannt.").arg(intervall).toUtf8();
    sqlite3_result_error(kontext, fehler.constData(), static_cast<int>(fehler.size()));
  }
}

void now(Kontext* kontext, int, sqlite3_value**) {
  const QDateTime jetzt = uhr() ? uhr()() : QDateTime::currentDateTime();
  gib(kontext, jetzt.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
}

// ---- texts and numbers ----

// A count of characters given as an argument; negative ones fail the statement.
bool anzahl(Kontext* kontext, sqlite3_value* wert, qsizetype& ergebnis) {
  const qint64 zahl = sqlite3_value_int64(wert);
  if (zahl < 0) {
    sqlite3_result_error(kontext, "Eine Anzahl von Zeichen darf nicht negativ sein.", -1);
    return false;
  }
  ergebnis = static_cast<qsizetype>(zahl);
  return true;
}

void left(Kontext* kontext, int, sqlite3_value** werte) {
  qsizetype länge = 0;
  if (istNull(werte[0]) || istNull(werte[1]) || !anzahl(kontext, werte[1], länge)) return;
  gib(kontext, text(werte[0]).left(länge));
}

void right(Kontext* kontext, int, sqlite3_value** werte) {
  qsizetype länge = 0;
  if (istNull(werte[0]) || istNull(werte[1]) || !anzahl(kontext, werte[1], länge)) return;
  const QString inhalt = text(werte[0]);
  gib(kontext, länge >= inhalt.size() ? inhalt : inhalt.right(länge));
}

void mid(Kontext* kontext, int argumente, sqlite3_value** werte) {
  qsizetype ab = 0;
  qsizetype länge = std::numeric_limits<qsizetype>::max();
  for (int i = 0; i < argumente; ++i) {
    if (istNull(werte[i])) return;
  }
  if (!anzahl(kontext, werte[1], ab)) return;
  if (argumente > 2 && !anzahl(kontext, werte[2], länge)) return;
  const QString inhalt = text(werte[0]);
  if (ab < 1) {
    sqlite3_result_error(kontext, "Zeichen werden von 1 an gezählt.", -1);
  } else if (ab > inhalt.size()) {
    gib(kontext, QString());
  } else {
    gib(kontext, inhalt.mid(ab - 1, std::min(länge, inhalt.size() - (ab - 1))));
  }
}

void len(Kontext* kontext, int, sqlite3_value** werte) {
  if (!istNull(*werte)) sqlite3_result_int64(kontext, text(*werte).size());
}

void ucase(Kontext* kontext, int, sqlite3_value** werte) {
  if (!istNull(*werte)) gib(kontext, text(*werte).toUpper());
}

void lcase(Kontext* kontext, int, sqlite3_value** werte) {
  if (!istNull(*werte)) gib(kontext, text(*werte).toLower());
}

void val(Kontext* kontext, int, sqlite3_value** werte) {
  if (!istNull(*werte)) sqlite3_result_double(kontext, Deutsch::val(text(*werte)));
}

// The greatest whole number that isn't above the value.
void ganzzahl(Kontext* kontext, int, sqlite3_value** werte) {
  if (istNull(*werte)) return;
  const double abgerundet = std::floor(sqlite3_value_double(*werte));
  if (std::abs(abgerundet) < 9e18) {
    sqlite3_result_int64(kontext, static_cast<qint64>(abgerundet));
  } else {
    sqlite3_result_double(kontext, abgerundet);
  }
}

void wie(Kontext* kontext, int, sqlite3_value** werte) {
  if (istNull(werte[0]) || istNull(werte[1])) return;
  sqlite3_result_int(kontext, Funktionen::passtZu(text(werte[0]), text(werte[1])) ? 1 : 0);
}

// ---- values on their way into a field ----

QVariant alsVariante(sqlite3_value* wert, Feldtyp typ) {
  switch (sqlite3_value_type(wert)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return QVariant::fromValue<qint64>(sqlite3_value_int64(wert));
    case SQLITE_FLOAT:
      return sqlite3_value_double(wert);
    default:
      break;
  }
  const QByteArrayView roh = oktette(wert);
  // What "now" gives has a time behind the date; fields hold dates.
  if (typ == Feldtyp::Datum && roh.size() == 19 && roh[10] == ' ') {
    const QDate tag = Feldregeln::isoDatum(roh.first(10));
    if (tag.isValid()) return tag;
  }
  return QString::fromUtf8(roh);
}

void gib(Kontext* kontext, const QVariant& wert) {
  switch (wert.typeId()) {
    case QMetaType::UnknownType:
      return;
    case QMetaType::LongLong:
      sqlite3_result_int64(kontext, wert.toLongLong());
      return;
    case QMetaType::Double:
      sqlite3_result_double(kontext, wert.toDouble());
      return;
    case QMetaType::QDate:
      gib(kontext, wert.toDate().toString(Qt::ISODate));
      return;
    default:
      gib(kontext, wert.toString());
  }
}

// Most values go in as they are; the others the field's rule converts or refuses.
bool passt(sqlite3_value* wert, Feldtyp typ, int länge) {
  switch (sqlite3_value_type(wert)) {
    case SQLITE_NULL:
      return true;
    case SQLITE_INTEGER:
      return Feldregeln::ganzPasst(typ, sqlite3_value_int64(wert));
    case SQLITE_TEXT:
      return Feldregeln::textPasst(typ, länge, oktette(wert));
    default:
      return false;
  }
}

void feld(Kontext* kontext, int, sqlite3_value** werte) {
  const auto typ = static_cast<Feldtyp>(sqlite3_value_int(werte[2]));
  const int länge = sqlite3_value_int(werte[3]);
  if (passt(werte[0], typ, länge)) {
    sqlite3_result_value(kontext, werte[0]);
    return;
  }
  try {
    gib(kontext, Feldregeln::prüfe({text(werte[1]), typ, länge}, alsVariante(werte[0], typ)));
  } catch (const Datenbankfehler& fehler) {
    const QByteArray utf8 = fehler.text().toUtf8();
    sqlite3_result_error(kontext, utf8.constData(), static_cast<int>(utf8.size()));
    sqlite3_result_error_code(kontext, SQLITE_MISMATCH);
  }
}

// ---- like ----

// Whether one character fits the first sign of the pattern; gives the pattern's length of it.
bool passtZeichen(QChar zeichen, QStringView muster, qsizetype& länge) {
  länge = 1;
  if (muster[0] == u'?') return true;
  if (muster[0] == u'#') return zeichen >= u'0' && zeichen <= u'9';
  const qsizetype ende = muster[0] == u'[' ? muster.indexOf(u']', 1) : -1;
  const auto klein = [](QChar z) { return z.toCaseFolded(); };
  if (ende < 0) return klein(zeichen) == klein(muster[0]);
  länge = ende + 1;
  const bool verneint = muster[1] == u'!';
  bool gefunden = false;
  for (qsizetype i = verneint ? 2 : 1; i < ende; ++i) {
    const bool bereich = i + 2 < ende && muster[i + 1] == u'-';
    const QChar von = klein(muster[i]);
    const QChar bis = bereich ? klein(muster[i + 2]) : von;
    if (klein(zeichen) >= von && klein(zeichen) <= bis) gefunden = true;
    if (bereich) i += 2;
  }
  return gefunden != verneint;
}

// ---- sums ----

// A sum while its rows come. The engine hands it out as zero bytes.
struct Summenstand {
  Dezimalsumme summe;
  qint64 anzahl;
  qint64 ganze;   // the sum as long as all are whole numbers
  bool mitBruch;  // one of them wasn't
  bool überlauf;  // of the whole numbers
};

void addiere(Summenstand& stand, sqlite3_value* wert) {
  const int art = sqlite3_value_numeric_type(wert);
  if (art == SQLITE_NULL) return;
  ++stand.anzahl;
  if (art == SQLITE_INTEGER && !stand.mitBruch) {
    if (qAddOverflow(stand.ganze, sqlite3_value_int64(wert), &stand.ganze)) stand.überlauf = true;
  } else {
    stand.mitBruch = true;
  }
  stand.summe.dazu(sqlite3_value_double(wert));
}

void gibSumme(Kontext* kontext, const Summenstand& stand) {
  if (stand.mitBruch || stand.überlauf) {
    sqlite3_result_double(kontext, stand.summe.wert());
  } else {
    sqlite3_result_int64(kontext, stand.ganze);
  }
}

void summenzeile(Kontext* kontext, int, sqlite3_value** werte) {
  auto* stand = static_cast<Summenstand*>(sqlite3_aggregate_context(kontext, sizeof(Summenstand)));
  if (stand == nullptr) {
    sqlite3_result_error_nomem(kontext);
  } else {
    addiere(*stand, *werte);
  }
}

// Null for no rows and for nothing but null.
const Summenstand* summenstand(Kontext* kontext) {
  const auto* stand = static_cast<const Summenstand*>(sqlite3_aggregate_context(kontext, 0));
  return stand != nullptr && stand->anzahl > 0 ? stand : nullptr;
}

void summe(Kontext* kontext) {
  if (const Summenstand* stand = summenstand(kontext)) gibSumme(kontext, *stand);
}

void mittel(Kontext* kontext) {
  if (const Summenstand* stand = summenstand(kontext))
    sqlite3_result_double(kontext, stand->summe.wert() / static_cast<double>(stand->anzahl));
}

// tova_summe(a, b, ...): what "+" and "-" add up in one row.
void zeilensumme(Kontext* kontext, int anzahl, sqlite3_value** werte) {
  Summenstand stand{};
  for (int i = 0; i < anzahl; ++i) {
    if (istNull(werte[i])) return;
    addiere(stand, werte[i]);
  }
  gibSumme(kontext, stand);
}

// An index that leads back is not the order of its table.
void fehlfolge(Kontext* kontext, int, sqlite3_value**) {
  sqlite3_result_error_code(kontext, SQLITE_CORRUPT);
}

int kollation(void*, int längeLinks, const void* links, int längeRechts, const void* rechts) {
  return Kollation::vergleicheUtf8({static_cast<const char*>(links), längeLinks},
                                   {static_cast<const char*>(rechts), längeRechts});
}

struct Eintrag {
  const char* name;
  int argumente;
  void (*funktion)(Kontext*, int, sqlite3_value**);
};

constexpr Eintrag feste[] = {
    {"year", 1, year},      {"month", 1, month},
    {"day", 1, day},        {"datediff", 3, datediff},
    {"tova_left", 2, left}, {"tova_right", 2, right},
    {"mid", 2, mid},        {"mid", 3, mid},
    {"len", 1, len},        {"ucase", 1, ucase},
    {"lcase", 1, lcase},    {"val", 1, val},
    {"int", 1, ganzzahl},   {"tova_wie", 2, wie},
    {"tova_feld", 4, feld}, {"tova_summe", -1, zeilensumme},
};

}  // namespace

void Funktionen::registriereFunktionen(sqlite3* verbindung) {
  const auto verlange = [verbindung](int ergebnis) {
    if (ergebnis == SQLITE_OK) return;
    throw Datenbankfehler(Datenbankfehler::Art::Allgemein,
                          QString::fromUtf8(sqlite3_errmsg(verbindung)));
  };
  constexpr int fest = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
  for (const Eintrag& eintrag : feste) {
    verlange(sqlite3_create_function_v2(verbindung, eintrag.name, eintrag.argumente, fest, nullptr,
                                        eintrag.funktion, nullptr, nullptr, nullptr));
  }
  // Not fixed: the one moves on, the other must not be called before it is needed.
  for (const auto& [name, funktion] : {std::pair{"now", &now}, {"tova_fehlfolge", &fehlfolge}}) {
    verlange(sqlite3_create_function_v2(verbindung, name, 0, SQLITE_UTF8, nullptr, funktion,
                                        nullptr, nullptr, nullptr));
  }
  // In place of the engine's own, which leave noise.
  for (const auto& [name, ergebnis] : {std::pair{"sum", &summe}, {"avg", &mittel}}) {
    verlange(sqlite3_create_function_v2(verbindung, name, 1, fest, nullptr, nullptr, summenzeile,
                                        ergebnis, nullptr));
  }
  verlange(
      sqlite3_create_collation_v2(verbindung, "tova", SQLITE_UTF8, nullptr, kollation, nullptr));
}

void Funktionen::setzeUhr(std::function<QDateTime()> neue) { uhr() = std::move(neue); }

bool Funktionen::passtZu(QStringView text, QStringView muster) {
  qsizetype i = 0;
  qsizetype m = 0;
  qsizetype sternText = -1;  // where to go on when the last "*" must take one character more
  qsizetype sternMuster = -1;
  while (i < text.size()) {
    qsizetype länge = 0;
    if (m < muster.size() && muster[m] == u'*') {
      sternText = i;
      sternMuster = ++m;
    } else if (m < muster.size() && passtZeichen(text[i], muster.mid(m), länge)) {
      ++i;
      m += länge;
    } else if (sternMuster >= 0) {
      i = ++sternText;
      m = sternMuster;
    } else {
      return false;
    }
  }
  while (m < muster.size() && muster[m] == u'*') ++m;
  return m == muster.size();
}
