#include "platform/controls/Eingaberegel.h"

#include <QDate>
#include <QRegularExpression>

namespace Eingaberegel {
namespace {

using Art = Eingabefeld::Art;
using Beschreibung = Eingabefeld::Beschreibung;

constexpr QChar Minuszeichen(0x2212);  // as spreadsheets and web pages print it

bool istZiffer(QChar c) { return c >= u'0' && c <= u'9'; }

bool nurZiffern(QStringView text) {
  for (const QChar c : text)
    if (!istZiffer(c)) return false;
  return true;
}

bool mitVorzeichen(const Beschreibung& b) { return b.art == Art::Ganzzahl && b.von < 0; }

// Also what can still become a number within the bounds: the "3" of 30, the minus sign alone.
bool istGanzzahl(const QString& text, const Beschreibung& b) {
  const bool minus = mitVorzeichen(b) && text.startsWith(u'-');
  const QStringView ziffern = QStringView(text).mid(minus ? 1 : 0);
  if (!nurZiffern(ziffern)) return false;
  if (ziffern.isEmpty()) return true;
  bool lesbar = false;
  const qint64 wert = ziffern.toLongLong(&lesbar);
  if (!lesbar) return false;
  if (minus) return wert > 0 && -wert >= b.von;
  return (!b.bis || wert <= *b.bis) && (b.von <= 0 || wert > 0);
}

bool istDatumstext(const QString& text) {
  for (const QChar c : text)
    if (!istZiffer(c) && c != u'.') return false;
  return true;
}

bool längeReicht(const Beschreibung& b, qsizetype zeichen) {
  const int länge = größteLänge(b);
  return länge <= 0 || zeichen <= länge;
}

// "1" and "234", but not "12" and "34": what the points of a number part.
bool gruppenStimmen(const QStringList& gruppen) {
  for (qsizetype i = 0; i < gruppen.size(); ++i)
    if (gruppen.size() > 1 &&
        (i == 0 ? gruppen[i].isEmpty() || gruppen[i].size() > 3 : gruppen[i].size() != 3))
      return false;
  return true;
}

// A decimal number or the beginning of one; with a point it can go on as either of two numbers.
bool istDezimalanfang(const QString& text, const Beschreibung& b) {
  const qsizetype komma = text.indexOf(u',');
  const QString bruch = komma < 0 ? QString() : text.mid(komma + 1);
  QStringList gruppen = (komma < 0 ? text : text.left(komma)).split(u'.');
  const bool trenner = komma >= 0 || gruppen.size() > 1;
  const QString ziffern = gruppen.join(QString());
  if (!nurZiffern(ziffern) || !nurZiffern(bruch)) return false;
  if (!trenner) return längeReicht(b, ziffern.size());
  if (b.nachkommastellen == 0) return false;
  if (komma >= 0)
    return gruppenStimmen(gruppen) && bruch.size() <= b.nachkommastellen &&
           längeReicht(b, ziffern.size() + 1 + bruch.size());
  const QString letzte = gruppen.takeLast();
  if (gruppenStimmen(gruppen) && letzte.size() <= b.nachkommastellen &&
      längeReicht(b, ziffern.size() + 1))
    return true;
  constexpr int Gruppe = 3;
  gruppen << letzte.leftJustified(Gruppe, u'0');
  return gruppenStimmen(gruppen) && längeReicht(b, gruppen.join(QString()).size());
}

// The change as prefix, what came in, suffix. Nothing when the texts can't be explained so (undo).
struct Schnitt {
  QString davor, neu, danach;
};

std::optional<Schnitt> schneide(const QString& vorher, const QString& nachher, int cursor) {
  const QString danach = nachher.mid(cursor);
  if (!danach.isEmpty() && !vorher.endsWith(danach)) return std::nullopt;
  const qsizetype grenze = std::min<qsizetype>(cursor, vorher.size() - danach.size());
  qsizetype gleich = 0;
  while (gleich < grenze && vorher[gleich] == nachher[gleich]) ++gleich;
  return Schnitt{nachher.left(gleich), nachher.mid(gleich, cursor - gleich), danach};
}

// A single character may complete a number that is being typed; several are a number themselves.
QString alsZahlenteil(const Schnitt& s, const Beschreibung& b, bool& gut) {
  gut = true;
  if (s.neu.size() == 1) return s.neu;
  QString neu = s.neu.trimmed();
  const bool minus = mitVorzeichen(b) && (neu.startsWith(u'-') || neu.startsWith(Minuszeichen));
  if (minus) neu.remove(0, 1);
  const auto zahl = zahlAusText(neu, b.art == Art::Dezimal ? b.nachkommastellen : 0, b.einheit);
  gut = zahl.has_value();
  if (!gut) return {};
  return minus ? u'-' + *zahl : *zahl;
}

QString alsDatumsteil(const QString& neu) {
  if (neu == u",") return QStringLiteral(".");  // the number block of German keyboards
  return neu.size() > 1 ? bereinigt(neu).trimmed() : neu;
}

std::optional<Ergebnis> prüfeAuswahl(const Beschreibung& b, const QString& nachher) {
  const QString text = bereinigt(nachher).trimmed();
  for (const QString& wahl : b.auswahl)
    if (wahl == text) return Ergebnis{wahl, static_cast<int>(wahl.size())};
  for (const QString& wahl : b.auswahl)
    if (wahl.compare(text, Qt::CaseInsensitive) == 0)
      return Ergebnis{wahl, static_cast<int>(wahl.size())};
  return std::nullopt;
}

std::optional<Ergebnis> prüfeText(const Beschreibung& b, const Schnitt& s) {
  const QString sauber = bereinigt(s.neu);
  QString neu = sauber;
  if (b.maxLänge > 0) {
    const qsizetype platz = b.maxLänge - s.davor.size() - s.danach.size();
    neu = platz > 0 ? gekürzt(sauber, platz) : QString();
  }
  if (neu.isEmpty()) return std::nullopt;
  return Ergebnis{s.davor + neu + s.danach, static_cast<int>(s.davor.size() + neu.size()),
                  neu.size() < sauber.size()};
}

// ---- what is said of a refused change ----

QString höchstensZeichen(const Beschreibung& b) {
  return QStringLiteral("höchstens %1 Zeichen").arg(größteLänge(b));
}

QString höchstensStellen(int stellen) {
  if (stellen == 1) return QStringLiteral("höchstens 1 Stelle nach dem Komma");
  return QStringLiteral("höchstens %1 Stellen nach dem Komma").arg(stellen);
}

QString grundGanzzahl(const Beschreibung& b, const Schnitt& s) {
  bool gut = true;
  const QString ganz = s.davor + alsZahlenteil(s, b, gut) + s.danach;
  const bool minus = mitVorzeichen(b) && ganz.startsWith(u'-');
  const QString ziffern = ganz.mid(minus ? 1 : 0);
  if (!gut || !nurZiffern(ziffern)) return QStringLiteral("nur ganze Zahlen");
  bool lesbar = false;
  const qint64 wert = ziffern.toLongLong(&lesbar);
  if (!minus && b.bis && (!lesbar || wert > *b.bis))
    return QStringLiteral("höchstens %1").arg(*b.bis);
  if (minus ? !lesbar || -wert < b.von : lesbar && wert == 0 && b.von > 0)
    return QStringLiteral("mindestens %1").arg(b.von);
  return höchstensZeichen(b);
}

QString grundDezimal(const Beschreibung& b, const Schnitt& s) {
  constexpr int Viele = 15;
  const bool einzeln = s.neu.size() == 1;
  const bool trenner = s.neu == u"," || s.neu == u".";
  if (trenner && b.nachkommastellen == 0) return QStringLiteral("nur ganze Zahlen");
  if (s.neu == u"-" || s.neu == u"+") return QStringLiteral("nur Zahlen ohne Vorzeichen");
  const auto neu = einzeln ? s.neu : zahlAusText(s.neu, Viele, b.einheit);
  if (!neu || !(trenner || nurZiffern(QString(*neu).remove(u','))))
    return QStringLiteral("nur Zahlen");
  const QString ganz = s.davor + *neu + s.danach;
  if (trenner && QString(s.davor + s.danach).contains(u',')) return QStringLiteral("nur ein Komma");
  Beschreibung beliebigLang = b;
  beliebigLang.maxLänge = 0;
  if (istDezimalanfang(ganz, beliebigLang)) return höchstensZeichen(b);
  beliebigLang.nachkommastellen = Viele;
  if (b.nachkommastellen > 0 && istDezimalanfang(ganz, beliebigLang))
    return höchstensStellen(b.nachkommastellen);
  if (b.nachkommastellen == 0) return QStringLiteral("nur ganze Zahlen");
  return trenner ? QStringLiteral("nur ein Komma") : QStringLiteral("nur Zahlen");
}

}  // namespace

QString grund(const Beschreibung& b, const QString& vorher, const QString& nachher, int cursor) {
  if (b.art == Art::Auswahl) return QStringLiteral("nur aus der Liste");
  const auto s = schneide(vorher, nachher, cursor);
  if (!s) return {};
  switch (b.art) {
    case Art::Ganzzahl:
      return grundGanzzahl(b, *s);
    case Art::Dezimal:
      return grundDezimal(b, *s);
    case Art::Datum:
    case Art::TagMonat:
      if (!istDatumstext(alsDatumsteil(s->neu))) return QStringLiteral("nur Ziffern und Punkte");
      return höchstensZeichen(b);
    default:
      return b.maxLänge > 0 ? höchstensZeichen(b) : QString();
  }
}

QString neues(const QString& vorher, const QString& nachher, int cursor) {
  const auto schnitt = schneide(vorher, nachher, cursor);
  return schnitt ? schnitt->neu : QString();
}

int größteLänge(const Beschreibung& b) {
  if (b.maxLänge > 0) return b.maxLänge;
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

QString gekürzt(const QString& text, qsizetype länge) {
  if (länge <= 0 || text.size() <= länge) return text;
  if (text[länge - 1].isHighSurrogate()) --länge;
  return text.left(länge);
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

QString zahlform(const QString& text) {
  static const QRegularExpression form(QStringLiteral("^[0-9.]*,?[0-9.]*$"));
  if (!form.match(text).hasMatch()) return text;
  QString zahl = text;
  if (zahl.endsWith(u'.')) zahl.chop(1);
  zahl.replace(u',', u'.');
  const qsizetype punkt = zahl.lastIndexOf(u'.');
  if (punkt < 0) return zahl;
  const QString bruch = zahl.mid(punkt + 1);
  const QString ganz = zahl.left(punkt).remove(u'.');
  return bruch.isEmpty() ? ganz : ganz + u',' + bruch;
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
      return längeReicht(b, text.size());
    case Art::Dezimal:
      return !text.contains(u'.') && istDezimalanfang(text, b);
    case Art::Ganzzahl:
      return längeReicht(b, text.size()) && istGanzzahl(text, b);
    case Art::Datum:
    case Art::TagMonat:
      return längeReicht(b, text.size()) && istDatumstext(text);
  }
  return false;
}

std::optional<Ergebnis> prüfe(const Beschreibung& b, const QString& vorher, const QString& nachher,
                              int cursor) {
  if (nachher == vorher) return Ergebnis{nachher, cursor};
  if (b.art == Art::Auswahl) return prüfeAuswahl(b, nachher);
  const auto schnitt = schneide(vorher, nachher, cursor);
  if (!schnitt || schnitt->neu.isEmpty()) return Ergebnis{nachher, cursor};
  if (b.art == Art::Text) return prüfeText(b, *schnitt);
  bool gut = true;
  const QString neu = b.art == Art::Datum || b.art == Art::TagMonat
                          ? alsDatumsteil(schnitt->neu)
                          : alsZahlenteil(*schnitt, b, gut);
  const QString ganz = schnitt->davor + neu + schnitt->danach;
  const bool nimmt = b.art == Art::Dezimal ? istDezimalanfang(ganz, b) : passt(b, ganz);
  if (!gut || neu.isEmpty() || !nimmt) return std::nullopt;
  return Ergebnis{ganz, static_cast<int>(schnitt->davor.size() + neu.size())};
}

}  // namespace Eingaberegel
