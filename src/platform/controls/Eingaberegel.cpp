#include "platform/controls/Eingaberegel.h"

#include <QDate>
#include <QRegularExpression>

namespace Eingaberegel {
namespace {

using Art = Eingabefeld::Art;
using Beschreibung = Eingabefeld::Beschreibung;

bool istZiffer(QChar c) { return c >= u'0' && c <= u'9'; }

bool nurZiffern(QStringView text) {
  for (const QChar c : text)
    if (!istZiffer(c)) return false;
  return true;
}

bool istDezimal(const QString& text, int nachkommastellen) {
  const qsizetype komma = text.indexOf(u',');
  if (komma < 0) return nurZiffern(text);
  const QStringView rest = QStringView(text).mid(komma + 1);
  return nachkommastellen > 0 && rest.size() <= nachkommastellen && nurZiffern(rest) &&
         nurZiffern(QStringView(text).left(komma));
}

bool istGanzzahl(const QString& text, const Beschreibung& b) {
  if (!nurZiffern(text)) return false;
  if (text.isEmpty()) return true;
  bool lesbar = false;
  const qint64 wert = text.toLongLong(&lesbar);
  return lesbar && (!b.bis || wert <= *b.bis) && (!b.ohneNull || wert > 0);
}

bool istDatumstext(const QString& text) {
  for (const QChar c : text)
    if (!istZiffer(c) && c != u'.') return false;
  return true;
}

bool laengeReicht(const Beschreibung& b, const QString& text) {
  const int laenge = groessteLaenge(b);
  return laenge <= 0 || text.size() <= laenge;
}

// The change as prefix, what came in, suffix. Nothing when the texts can't be explained so (undo).
struct Schnitt {
  QString davor, neu, danach;
};

std::optional<Schnitt> schneide(const QString& vorher, const QString& nachher, int cursor) {
  const QString danach = nachher.mid(cursor);
  if (!vorher.endsWith(danach)) return std::nullopt;
  const qsizetype grenze = std::min<qsizetype>(cursor, vorher.size() - danach.size());
  qsizetype gleich = 0;
  while (gleich < grenze && vorher[gleich] == nachher[gleich]) ++gleich;
  return Schnitt{nachher.left(gleich), nachher.mid(gleich, cursor - gleich), danach};
}

// A single character may complete a number that is being typed; several are a number themselves.
QString alsZahlenteil(const Schnitt& s, const Beschreibung& b, bool& gut) {
  gut = true;
  if (s.neu.size() == 1) {
    if (s.neu == u"." && b.art == Art::Dezimal) return QStringLiteral(",");
    return s.neu;
  }
  const auto zahl = zahlAusText(s.neu, b.art == Art::Dezimal ? b.nachkommastellen : 0, b.einheit);
  gut = zahl.has_value();
  return gut ? *zahl : QString();
}

QString alsDatumsteil(const QString& neu) {
  if (neu == u",") return QStringLiteral(".");  // the number block of German keyboards
  return neu.size() > 1 ? bereinigt(neu).trimmed() : neu;
}

std::optional<Ergebnis> pruefeAuswahl(const Beschreibung& b, const QString& nachher) {
  const QString text = bereinigt(nachher).trimmed();
  for (const QString& wahl : b.auswahl)
    if (wahl == text) return Ergebnis{wahl, static_cast<int>(wahl.size())};
  for (const QString& wahl : b.auswahl)
    if (wahl.compare(text, Qt::CaseInsensitive) == 0)
      return Ergebnis{wahl, static_cast<int>(wahl.size())};
  return std::nullopt;
}

std::optional<Ergebnis> pruefeText(const Beschreibung& b, const Schnitt& s) {
  const QString sauber = bereinigt(s.neu);
  QString neu = sauber;
  if (b.maxLaenge > 0) {
    const qsizetype platz = b.maxLaenge - s.davor.size() - s.danach.size();
    neu = platz > 0 ? gekuerzt(sauber, platz) : QString();
  }
  if (neu.isEmpty()) return std::nullopt;
  return Ergebnis{s.davor + neu + s.danach, static_cast<int>(s.davor.size() + neu.size()),
                  neu.size() < sauber.size()};
}

}  // namespace

int groessteLaenge(const Beschreibung& b) {
  if (b.maxLaenge > 0) return b.maxLaenge;
  if (b.art == Art::Datum) return 10;
  if (b.art == Art::TagMonat) return 6;  // "01.05." as people write it
  return 0;
}

QString bereinigt(const QString& text) {
  QString ergebnis;
  ergebnis.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') continue;
    if (c == u'\n' || c == u'\r' || c == u'\t' || c == u'\v' || c == u'\f' ||
        c == QChar::LineSeparator || c == QChar::ParagraphSeparator) {
      ergebnis += u' ';
    } else if (c.isHighSurrogate()) {
      if (i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
        ergebnis += c;
        ergebnis += text[++i];
      }
    } else if (!c.isLowSurrogate() && c.category() != QChar::Other_Control) {
      ergebnis += c;
    }
  }
  return ergebnis;
}

QString gekuerzt(const QString& text, qsizetype laenge) {
  if (laenge <= 0 || text.size() <= laenge) return text;
  if (text[laenge - 1].isHighSurrogate()) --laenge;
  return text.left(laenge);
}

std::optional<QString> zahlAusText(const QString& text, int nachkommastellen,
                                   const QString& einheit) {
  QString zahl = bereinigt(text).trimmed();
  if (!einheit.isEmpty() && zahl.endsWith(einheit)) zahl.chop(einheit.size());
  if (zahl.endsWith(u'€')) zahl.chop(1);
  zahl.remove(u' ').remove(QChar::Nbsp).remove(QChar(0x202F));
  static const QRegularExpression gruppen(QStringLiteral("^[0-9]{1,3}(\\.[0-9]{3})+$"));
  const qsizetype komma = zahl.indexOf(u',');
  QString vorn = komma < 0 ? zahl : zahl.left(komma);
  QString hinten = komma < 0 ? QString() : zahl.mid(komma + 1);
  bool mitKomma = komma >= 0;
  if (mitKomma || vorn.count(u'.') > 1) {
    if (vorn.contains(u'.') && !gruppen.match(vorn).hasMatch()) return std::nullopt;
    vorn.remove(u'.');
  } else if (const qsizetype punkt = vorn.indexOf(u'.'); punkt >= 0) {
    hinten = vorn.mid(punkt + 1);
    vorn.truncate(punkt);
    mitKomma = true;
  }
  while (hinten.size() > nachkommastellen && hinten.endsWith(u'0')) hinten.chop(1);
  if (!nurZiffern(vorn) || !nurZiffern(hinten) || hinten.size() > nachkommastellen)
    return std::nullopt;
  if (vorn.isEmpty() && hinten.isEmpty()) return std::nullopt;
  return mitKomma && nachkommastellen > 0 ? vorn + u',' + hinten : vorn;
}

QString tagMonat(const QString& text) {
  static const QRegularExpression form(
      QStringLiteral("^(?:([0-9]{1,2})\\.([0-9]{1,2})\\.?|([0-9]{2})([0-9]{2}))$"));
  const auto treffer = form.match(text.trimmed());
  if (!treffer.hasMatch()) return {};
  const bool mitPunkt = treffer.hasCaptured(1);
  const int tag = treffer.captured(mitPunkt ? 1 : 3).toInt();
  const int monat = treffer.captured(mitPunkt ? 2 : 4).toInt();
  const QDate datum(2000, monat, tag);  // a leap year: 29.02 is a day
  return datum.isValid() ? datum.toString(QStringLiteral("dd.MM")) : QString();
}

bool passt(const Beschreibung& b, const QString& text) {
  switch (b.art) {
    case Art::Auswahl:
      return b.auswahl.contains(text);
    case Art::Text:
      return laengeReicht(b, text);
    case Art::Dezimal:
      return laengeReicht(b, text) && istDezimal(text, b.nachkommastellen);
    case Art::Ganzzahl:
      return laengeReicht(b, text) && istGanzzahl(text, b);
    case Art::Datum:
    case Art::TagMonat:
      return laengeReicht(b, text) && istDatumstext(text);
  }
  return false;
}

std::optional<Ergebnis> pruefe(const Beschreibung& b, const QString& vorher, const QString& nachher,
                               int cursor) {
  if (nachher == vorher) return Ergebnis{nachher, cursor};
  if (b.art == Art::Auswahl) return pruefeAuswahl(b, nachher);
  const auto schnitt = schneide(vorher, nachher, cursor);
  if (!schnitt || schnitt->neu.isEmpty()) return Ergebnis{nachher, cursor};
  if (b.art == Art::Text) return pruefeText(b, *schnitt);
  bool gut = true;
  const QString neu = b.art == Art::Datum || b.art == Art::TagMonat
                          ? alsDatumsteil(schnitt->neu)
                          : alsZahlenteil(*schnitt, b, gut);
  const QString ganz = schnitt->davor + neu + schnitt->danach;
  if (!gut || neu.isEmpty() || !passt(b, ganz)) return std::nullopt;
  return Ergebnis{ganz, static_cast<int>(schnitt->davor.size() + neu.size())};
}

}  // namespace Eingaberegel
