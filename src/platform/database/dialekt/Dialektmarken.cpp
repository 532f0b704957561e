#include "platform/database/dialekt/Dialektmarken.h"

#include <QDate>
#include <QStringList>

#include "platform/database/werte/Datenbankfehler.h"

namespace {

using Dialekt::Marke;

bool istZiffer(QChar zeichen) { return zeichen >= u'0' && zeichen <= u'9'; }

bool istNamenszeichen(QChar zeichen) {
  return zeichen.isLetter() || istZiffer(zeichen) || zeichen == u'_';
}

// A year of two digits: 00 to 29 is 20xx, 30 to 99 is 19xx.
QDate datumAus(QStringView text) {
  const bool iso = text.contains(u'-');
  const auto teile = text.trimmed().split(iso ? u'-' : u'/');
  if (teile.size() != 3) return {};
  int zahlen[3];
  for (int i = 0; i < 3; ++i) {
    if (teile[i].isEmpty() || teile[i].size() > 4) return {};
    for (const QChar zeichen : teile[i]) {
      if (!istZiffer(zeichen)) return {};
    }
    zahlen[i] = teile[i].toInt();
  }
  const qsizetype stellen = teile[iso ? 0 : 2].size();
  int jahr = zahlen[iso ? 0 : 2];
  if (stellen == 2 && !iso) jahr += jahr < 30 ? 2000 : 1900;
  if (stellen != 4 && (stellen != 2 || iso)) return {};
  if (jahr < 100) return {};
  return iso ? QDate(jahr, zahlen[1], zahlen[2]) : QDate(jahr, zahlen[0], zahlen[1]);
}

class Zerleger {
 public:
  explicit Zerleger(const QString& anweisung) : m_text(anweisung) {}

  std::vector<Marke> alle() {
    for (;;) {
      while (m_ort < m_text.size() && m_text[m_ort].isSpace()) ++m_ort;
      Marke marke = nächste();
      m_marken.push_back(std::move(marke));
      if (m_marken.back().art == Marke::Art::Ende) return std::move(m_marken);
    }
  }

 private:
  QChar zeichen(qsizetype abstand = 0) const {
    return m_ort + abstand < m_text.size() ? m_text[m_ort + abstand] : QChar();
  }

  Marke nächste() {
    Marke marke;
    marke.ort = m_ort;
    if (m_ort >= m_text.size()) return marke;
    const QChar z = zeichen();
    if (z == u'\'' || z == u'"') {
      marke.art = Marke::Art::Text;
      marke.text = bisZum(z, z);
    } else if (z == u'[') {
      marke.art = Marke::Art::Name;
      marke.geklammert = true;
      marke.text = bisZum(u']', QChar());
      if (marke.text.trimmed().isEmpty()) Dialekt::wirfUnlesbar(m_text, marke.ort);
    } else if (z == u'#') {
      marke.art = Marke::Art::Datum;
      marke.text = datum();
    } else if (istZiffer(z) || (z == u'.' && istZiffer(zeichen(1)))) {
      marke.art = Marke::Art::Zahl;
      marke.text = zahl();
    } else if (istNamenszeichen(z)) {
      marke.art = Marke::Art::Name;
      while (istNamenszeichen(zeichen())) ++m_ort;
      marke.text = m_text.mid(marke.ort, m_ort - marke.ort);
    } else if (z == u'?') {
      marke.art = Marke::Art::Wert;
      marke.nummer = ++m_werte;
      ++m_ort;
    } else {
      marke.art = Marke::Art::Zeichen;
      marke.text = operatorzeichen();
    }
    return marke;
  }

  // What stands between two signs; the end sign doubled stands for itself where it may be.
  QString bisZum(QChar ende, QChar verdoppelt) {
    const qsizetype anfang = m_ort++;
    QString inhalt;
    for (; m_ort < m_text.size(); ++m_ort) {
      const QChar z = zeichen();
      if (z.isNull()) break;  // the engine would take it for the end of the statement
      if (z == ende) {
        if (verdoppelt.isNull() || zeichen(1) != verdoppelt) {
          ++m_ort;
          return inhalt;
        }
        ++m_ort;
      }
      inhalt += z;
    }
    Dialekt::wirfUnlesbar(m_text, anfang);
  }

  QString datum() {
    const qsizetype anfang = m_ort;
    const QString inhalt = bisZum(u'#', QChar());
    const QDate tag = datumAus(inhalt);
    if (!tag.isValid()) {
      throw Datenbankfehler(
          Datenbankfehler::Art::Anweisung,
          QStringLiteral("%1 ist kein Datum.").arg(m_text.mid(anfang, m_ort - anfang).left(40)),
          m_text);
    }
    return tag.toString(Qt::ISODate);
  }

  QString zahl() {
    const qsizetype anfang = m_ort;
    while (istZiffer(zeichen())) ++m_ort;
    if (zeichen() == u'.') ++m_ort;
    while (istZiffer(zeichen())) ++m_ort;
    const bool vorzeichen = zeichen(1) == u'+' || zeichen(1) == u'-';
    if (zeichen().toLower() == u'e' && istZiffer(zeichen(vorzeichen ? 2 : 1))) {
      m_ort += vorzeichen ? 2 : 1;
      while (istZiffer(zeichen())) ++m_ort;
    }
    if (istNamenszeichen(zeichen())) Dialekt::wirfUnlesbar(m_text, anfang);
    return m_text.mid(anfang, m_ort - anfang);
  }

  QString operatorzeichen() {
    const QStringView rest = QStringView(m_text).mid(m_ort, 2);
    for (const char16_t* paar : {u"<=", u">=", u"<>"}) {
      if (rest == QStringView(paar)) {
        m_ort += 2;
        return rest.toString();
      }
    }
    if (!QStringView(u"(),.*+-/&=<>;").contains(zeichen())) Dialekt::wirfUnlesbar(m_text, m_ort);
    return QString(m_text[m_ort++]);
  }

  const QString m_text;
  qsizetype m_ort = 0;
  int m_werte = 0;
  std::vector<Marke> m_marken;
};

}  // namespace

std::vector<Marke> Dialekt::zerlege(const QString& anweisung) { return Zerleger(anweisung).alle(); }

void Dialekt::wirfUnlesbar(const QString& anweisung, qsizetype ort) {
  const QString rest = anweisung.mid(ort).trimmed();
  QString text;
  if (rest.isEmpty()) {
    text = QStringLiteral("Die Anweisung an die Datenbank ist unvollständig.");
  } else {
    text = QStringLiteral("Die Anweisung an die Datenbank ist ab \"%1\" nicht zu verstehen.")
               .arg(rest.size() > 40 ? rest.left(40) + QStringLiteral("...") : rest);
  }
  throw Datenbankfehler(Datenbankfehler::Art::Anweisung, text, anweisung);
}
