#include "platform/database/werte/Suchbedingung.h"

#include "platform/database/werte/Datenbankfehler.h"
#include "platform/database/werte/Feldregeln.h"
#include "platform/database/werte/Kollation.h"
#include "platform/locale/Deutsch.h"

namespace {

class Leser {
 public:
  explicit Leser(const QString& text) : m_text(text) {}

  QString feldname() {
    leerraum();
    if (istZeichen(u'[')) {
      const qsizetype ende = m_text.indexOf(QLatin1Char(']'), m_stelle);
      if (ende < 0) unlesbar();
      QString name = m_text.mid(m_stelle, ende - m_stelle);
      m_stelle = ende + 1;
      return name;
    }
    return wort();
  }

  void gleich() {
    leerraum();
    if (!istZeichen(u'=')) unlesbar();
    leerraum();
  }

  // True for a text in quotes, false for a bare word or number.
  bool wert(QString& inhalt) {
    if (!istZeichen(u'\'')) {
      inhalt = wort();
      return false;
    }
    inhalt.clear();
    for (;;) {
      const qsizetype ende = m_text.indexOf(QLatin1Char('\''), m_stelle);
      if (ende < 0) unlesbar();
      inhalt += QStringView(m_text).mid(m_stelle, ende - m_stelle);
      m_stelle = ende + 1;
      if (!istZeichen(u'\'')) return true;
      inhalt += QLatin1Char('\'');
    }
  }

  bool und() {
    leerraum();
    if (m_stelle == m_text.size()) return false;
    if (wort().compare(QLatin1String("and"), Qt::CaseInsensitive) != 0) unlesbar();
    return true;
  }

  [[noreturn]] void unlesbar() const {
    throw Datenbankfehler(Datenbankfehler::Art::Anweisung,
                          QStringLiteral("Die Suchbedingung \"%1\" ist nicht lesbar.").arg(m_text));
  }

 private:
  void leerraum() {
    while (m_stelle < m_text.size() && m_text[m_stelle].isSpace()) ++m_stelle;
  }
  bool istZeichen(char16_t zeichen) {
    if (m_stelle >= m_text.size() || m_text[m_stelle] != zeichen) return false;
    ++m_stelle;
    return true;
  }
  QString wort() {
    const qsizetype anfang = m_stelle;
    while (m_stelle < m_text.size() && !m_text[m_stelle].isSpace() && m_text[m_stelle] != u'=' &&
           m_text[m_stelle] != u'\'') {
      ++m_stelle;
    }
    if (m_stelle == anfang) unlesbar();
    return m_text.mid(anfang, m_stelle - anfang);
  }

  QString m_text;
  qsizetype m_stelle = 0;
};

}  // namespace

Suchbedingung::Suchbedingung(const QString& text, const Datenblock& block) {
  Leser leser(text);
  do {
    const QString name = leser.feldname();
    Teil teil;
    teil.spalte = block.spaltenNummer(name);
    if (teil.spalte < 0) {
      throw Datenbankfehler(Datenbankfehler::Art::Anweisung,
                            QStringLiteral("Das Feld \"%1\" gibt es nicht.").arg(name));
    }
    leser.gleich();
    QString inhalt;
    const bool inAnführung = leser.wert(inhalt);
    teil.zahl = inhalt.toDouble(&teil.zahlig);
    if (!inAnführung) {
      teil.null = inhalt.compare(QLatin1String("null"), Qt::CaseInsensitive) == 0;
      if (!teil.null && !teil.zahlig) leser.unlesbar();
    }
    const auto tag = Deutsch::datum(inhalt);
    const bool datumsfeld = block.spalte(teil.spalte).typ == Feldtyp::Datum;
    teil.text = datumsfeld && tag ? Feldregeln::isoText(*tag) : inhalt.toUtf8();
    m_teile.push_back(std::move(teil));
  } while (leser.und());
}

bool Suchbedingung::textGleich(const Teil& teil, QByteArrayView text) {
  return Kollation::vergleicheUtf8(teil.text, text) == 0;
}

bool Suchbedingung::trifftZu(const Datenblock& block, int zeile) const {
  for (const Teil& teil : m_teile) {
    const bool null = block.istNull(zeile, teil.spalte);
    if (null || teil.null) {
      if (null && teil.null) continue;
      return false;
    }
    const bool gleich = block.istText(zeile, teil.spalte)
                            ? textGleich(teil, block.rohtext(zeile, teil.spalte))
                            : teil.zahlig && block.zahl(zeile, teil.spalte) == teil.zahl;
    if (!gleich) return false;
  }
  return true;
}

bool Suchbedingung::trifftZu(const std::vector<QVariant>& zeile) const {
  for (const Teil& teil : m_teile) {
    const QVariant& wert = zeile[static_cast<size_t>(teil.spalte)];
    if (!wert.isValid() || teil.null) {
      if (!wert.isValid() && teil.null) continue;
      return false;
    }
    const bool zahl = wert.typeId() == QMetaType::LongLong || wert.typeId() == QMetaType::Double;
    const QByteArray text = wert.typeId() == QMetaType::QDate ? Feldregeln::isoText(wert.toDate())
                                                              : wert.toString().toUtf8();
    const bool gleich = zahl ? teil.zahlig && wert.toDouble() == teil.zahl : textGleich(teil, text);
    if (!gleich) return false;
  }
  return true;
}
