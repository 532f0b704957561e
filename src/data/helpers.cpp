#include "data/helpers.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "core/globals.h"
#include "core/main_list.h"
#include "platform/locale/Deutsch.h"

namespace {

bool istZiffer(QChar c) { return c >= u'0' && c <= u'9'; }

bool sindZiffern(QStringView text) { return std::all_of(text.begin(), text.end(), istZiffer); }

std::optional<double> alsZahl(const QVariant& wert) {
  switch (wert.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Bool:
      return wert.toDouble();
    default:
      return std::nullopt;
  }
}

// A field value as the screen shows it.
QString alsText(const QVariant& wert) {
  if (wert.isNull()) return {};
  if (const auto zahl = alsZahl(wert)) return Deutsch::schlicht(*zahl);
  if (wert.typeId() == QMetaType::QDate) return Deutsch::datumText(wert.toDate());
  return wert.toString();
}

// The digits, commas and capital E of a text, and its last point.
QString nurZahlzeichen(const QString& text) {
  const qsizetype punkt = text.lastIndexOf(u'.');
  QString zahl;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (istZiffer(c) || c == u',' || c == u'E' || i == punkt) zahl += c;
  }
  return zahl;
}

void ersetzeErstes(QString& text, QChar von, QChar nach) {
  const qsizetype stelle = text.indexOf(von);
  if (stelle >= 0) text[stelle] = nach;
}

// True when the whole text is a number with a decimal comma, blanks around it aside.
bool istNumerisch(QStringView text) {
  text = text.trimmed();
  qsizetype i = 0;
  const auto ziffern = [&] {
    const qsizetype anfang = i;
    while (i < text.size() && istZiffer(text[i])) ++i;
    return i - anfang;
  };
  const auto eines = [&](QChar a, QChar b) {
    if (i < text.size() && (text[i] == a || text[i] == b)) ++i;
  };
  eines(u'+', u'-');
  qsizetype stellen = ziffern();
  if (i < text.size() && text[i] == u',') {
    ++i;
    stellen += ziffern();
  }
  if (stellen == 0) return false;
  if (i < text.size() && (text[i] == u'e' || text[i] == u'E')) {
    ++i;
    eines(u'+', u'-');
    if (ziffern() == 0) return false;
  }
  return i == text.size();
}

// What ZahlFormat formats; 0 for what is no number.
double formatWert(const QVariant& wert) {
  if (const auto zahl = alsZahl(wert)) return *zahl;
  QString text = alsText(wert);
  ersetzeErstes(text, u'.', u',');
  if (!istNumerisch(text)) return 0;
  ersetzeErstes(text, u',', u'.');
  const double zahl = Deutsch::val(text);
  return std::fabs(zahl) < std::numeric_limits<double>::max() ? zahl : 0;
}

// Cut to a width without leaving half a character behind.
QString geschnitten(const QString& text, int breite) {
  QString links = text.trimmed().left(std::max(breite, 0));
  if (!links.isEmpty() && links.back().isHighSurrogate()) links.chop(1);
  return links;
}

QString tagUndMonat(QStringView tag, QStringView monat, QStringView jahr) {
  return tag.toString().rightJustified(2, u'0') + u'.' + monat.toString().rightJustified(2, u'0') +
         u'.' + jahr.toString();
}

// Today's parts, for what the user left out.
QString dieserMonat() { return TZ_Variablen::HeuteText.mid(3, 2); }
QString diesesJahr() { return TZ_Variablen::HeuteText.mid(6, 4); }
QString diesesJahrhundert() { return TZ_Variablen::HeuteText.mid(6, 2); }

QString ohnePunkt(const QString& text) {
  const QStringView t(text);
  switch (t.size()) {
    case 1:
      return tagUndMonat(t, dieserMonat(), diesesJahr());
    case 2:
      return text.toInt() <= 31 ? tagUndMonat(t, dieserMonat(), diesesJahr())
                                : tagUndMonat(t.left(1), t.right(1), diesesJahr());
    case 4:
      return tagUndMonat(t.left(2), t.right(2), diesesJahr());
    case 6:
      return tagUndMonat(t.left(2), t.mid(2, 2), QString(diesesJahrhundert() + text.right(2)));
    case 8:
      return tagUndMonat(t.left(2), t.mid(2, 2), t.right(4));
    default:
      return text;
  }
}

QString einPunkt(const QString& text) {
  const qsizetype punkt = text.indexOf(u'.');
  const QStringView tag = QStringView(text).left(punkt);
  const QStringView monat = QStringView(text).mid(punkt + 1);
  if (!sindZiffern(tag) || !sindZiffern(monat) || monat.size() > 2) return text;
  return tagUndMonat(tag, monat, diesesJahr());
}

QString mehrerePunkte(QString text) {
  if (text.indexOf(u'.') == 1) text.prepend(u'0');
  if (text.indexOf(u'.') == 2 && text.indexOf(u'.', 3) == 4) text.insert(3, u'0');
  if (text.size() == 8) text.insert(6, diesesJahrhundert());
  return text;
}

QString nachPunkten(const QString& text) {
  if (text.size() == 10) return text;
  switch (text.count(u'.')) {
    case 0:
      return sindZiffern(text) ? ohnePunkt(text) : text;
    case 1:
      return einPunkt(text);
    default:
      return mehrerePunkte(text);
  }
}

}  // namespace

double ZahlLesenDoppelt(const QVariant& wert) {
  // A number comes out of the steps below as it is, without its sign.
  if (const auto zahl = alsZahl(wert)) {
    const double betrag = std::fabs(*zahl);
    return betrag < std::numeric_limits<double>::max() ? betrag : 0;  // nor what is no number
  }
  QString text = alsText(wert);
  if (text.endsWith(u'.')) text.chop(1);
  ersetzeErstes(text, u',', u'.');
  const double zahl = Deutsch::val(nurZahlzeichen(text));
  // Reading goes on past a number too big and has nothing so far.
  return zahl < std::numeric_limits<double>::max() ? zahl : 0;
}

double ZahlLesen(const QVariant& wert) {
  const double zahl = Deutsch::einfach(ZahlLesenDoppelt(wert));
  return std::isfinite(static_cast<float>(zahl)) ? zahl : 0;
}

QString ZahlText2(double zahl) { return Deutsch::zahl(zahl, 2); }

QString ZahlFormat(const QVariant& wert, int nachkommastellen) {
  return Deutsch::zahl(formatWert(wert), nachkommastellen);
}

QString ZahlFormatBreite(const QVariant& wert, int nachkommastellen, int breite, int plus) {
  const double zahl = formatWert(wert);
  const QString vorzeichen = plus == 1 && zahl > 0 ? QStringLiteral("+") : QString();
  return TextRechts(vorzeichen + Deutsch::zahl(zahl, nachkommastellen), breite);
}

QString ZahlFest(int breite, double zahl) { return Deutsch::festeZahl(breite, zahl); }

QString TextLesen(const QVariant& wert) { return alsText(wert).trimmed().replace(u'\'', u'`'); }

QString TextLinks(const QString& text, int breite) {
  return geschnitten(text, breite).leftJustified(std::max(breite, 0), u' ');
}

QString TextRechts(const QString& text, int breite) {
  return geschnitten(text, breite).rightJustified(std::max(breite, 0), u' ');
}

bool NurZiffern(const QString& text) { return sindZiffern(text); }

int ZifferTaste(int code) {
  const bool erlaubt =
      (code >= 48 && code <= 57) || code == 42 || code == 13 || (code >= 8 && code <= 10);
  return erlaubt ? code : 0;
}

QString SqlDatum(QString& datum) {
  if (const auto tag = Deutsch::datum(datum)) datum = Deutsch::datumText(*tag);
  return u'#' + datum.mid(3, 2) + u'/' + datum.left(2) + u'/' + datum.mid(6, 4) + u'#';
}

QString SqlDatum(const QString& datum) {
  QString text = datum;
  return SqlDatum(text);
}

QString DatumErgaenzen(const QString& eingabe) {
  QString text = eingabe.trimmed();
  if (const auto tag = Deutsch::datum(text)) return Deutsch::datumText(*tag);
  if (text.endsWith(u'.')) text.chop(1);
  const auto tag = Deutsch::datum(nachPunkten(text));
  return tag ? Deutsch::datumText(*tag) : QString();
}

QString DatumSortiert(const QString& datum) {
  QString text = datum;
  if (text.size() == 8)
    if (const auto tag = Deutsch::datum(text)) text = Deutsch::datumText(*tag);
  return text.mid(6, 4) + text.mid(3, 2) + text.left(2);
}

QString JahrErgaenzen(const QString& jahr) {
  const QString text = jahr.trimmed();
  if (text.isEmpty()) return diesesJahr();
  if (text.size() == 1 && istZiffer(text[0])) return QStringLiteral("200") + text;
  if (text.size() == 2)
    return (text >= QStringLiteral("50") ? QStringLiteral("19") : QStringLiteral("20")) + text;
  return text.size() == 3 ? QString() : text;
}

QDate DatumLesen(const QString& text) { return Deutsch::datum(text).value_or(QDate()); }

bool IstDatum(const QString& text) { return Deutsch::datum(text).has_value(); }

qint64 GanzLesen(const QString& text) {
  const double zahl = Deutsch::gerade(Deutsch::val(text));
  return static_cast<qint64>(std::clamp<double>(zahl, std::numeric_limits<qint32>::min(),
                                                std::numeric_limits<qint32>::max()));
}

void VolkWechseln(int richtung) {
  Hauptliste& liste = *hauptliste();
  const int zeilen = liste.zeilen();
  if (zeilen == 0) return;
  const int zeile = liste.aktuelleZeile() + (richtung == 0 ? -1 : 1);
  liste.setAktuelleZeile(zeile < 0 ? zeilen - 1 : zeile >= zeilen ? 0 : zeile);
}
