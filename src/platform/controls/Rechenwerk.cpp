#include "platform/controls/Rechenwerk.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int MeisteZiffern = 15;
constexpr double Grenze = 1e15;

// At most 10 decimals and 15 digits, no zeros at the end, a decimal comma.
QString alsText(double wert) {
  const double betrag = std::fabs(wert);
  const int vorn = betrag < 1 ? 1 : static_cast<int>(std::floor(std::log10(betrag))) + 1;
  QString text = QString::number(wert, 'f', std::clamp(MeisteZiffern - vorn, 0, 10));
  if (text.contains(u'.')) {
    while (text.endsWith(u'0')) text.chop(1);
    if (text.endsWith(u'.')) text.chop(1);
  }
  if (text == u"-0") text = QStringLiteral("0");
  return text.replace(u'.', u',');
}

QChar zeichen(Rechenwerk::Operation operation) {
  switch (operation) {
    case Rechenwerk::Operation::Plus:
      return u'+';
    case Rechenwerk::Operation::Minus:
      return u'−';
    case Rechenwerk::Operation::Mal:
      return u'×';
    case Rechenwerk::Operation::Geteilt:
      return u'÷';
    case Rechenwerk::Operation::Keine:
      break;
  }
  return u' ';
}

}  // namespace

void Rechenwerk::ziffer(int ziffer) {
  if (m_fehler) return;
  if (!m_wirdGetippt) m_eingabe = QStringLiteral("0");
  m_wirdGetippt = m_rechtsDa = true;
  if (m_eingabe.size() - m_eingabe.count(u',') >= MeisteZiffern) return;
  if (m_eingabe == u"0") m_eingabe.clear();
  m_eingabe += QChar(u'0' + ziffer);
}

void Rechenwerk::komma() {
  if (m_fehler) return;
  if (!m_wirdGetippt) m_eingabe = QStringLiteral("0");
  m_wirdGetippt = m_rechtsDa = true;
  if (!m_eingabe.contains(u',')) m_eingabe += u',';
}

void Rechenwerk::zurück() {
  if (m_fehler) return;
  if (!m_wirdGetippt) {
    m_eingabe = QStringLiteral("0");
    m_wirdGetippt = true;
    return;
  }
  m_eingabe.chop(1);
  if (m_eingabe.isEmpty()) m_eingabe = QStringLiteral("0");
}

void Rechenwerk::operation(Operation operation) {
  if (m_fehler) return;
  if (m_operation != Operation::Keine && m_rechtsDa) {
    if (!rechne(gezeigt(), m_operation)) return;
  } else {
    m_links = gezeigt();
    zeige(m_links);
  }
  m_operation = operation;
  m_rechtsDa = false;
}

void Rechenwerk::gleich() {
  if (m_fehler) return;
  if (m_operation != Operation::Keine) {
    m_letzte = m_operation;
    m_letzterRechts = gezeigt();
    m_operation = Operation::Keine;
  } else if (m_letzte != Operation::Keine) {
    m_links = gezeigt();
  } else {
    zeige(gezeigt());
    return;
  }
  rechne(m_letzterRechts, m_letzte);
  m_rechtsDa = false;
}

void Rechenwerk::steuer(int prozent) {
  if (m_fehler) return;
  // In whole percents, so that 100 and 19 % give 119 and not 118.99999999999999.
  zeige(gezeigt() * (100 + prozent) / 100);
  m_rechtsDa = true;
}

void Rechenwerk::löschen() { *this = Rechenwerk(); }

void Rechenwerk::setWert(double wert) {
  löschen();
  zeige(wert);
}

QString Rechenwerk::anzeige() const { return m_fehler ? QStringLiteral("Fehler") : m_eingabe; }

QString Rechenwerk::vorgang() const {
  if (m_fehler || m_operation == Operation::Keine) return {};
  return alsText(m_links) + u' ' + zeichen(m_operation);
}

std::optional<double> Rechenwerk::wert() const {
  if (m_fehler) return std::nullopt;
  return gezeigt();
}

double Rechenwerk::gezeigt() const {
  return m_wirdGetippt ? QString(m_eingabe).replace(u',', u'.').toDouble() : m_wert;
}

void Rechenwerk::zeige(double wert) {
  if (!std::isfinite(wert) || std::fabs(wert) >= Grenze) {
    m_fehler = true;
    return;
  }
  m_wert = wert;
  m_eingabe = alsText(wert);
  m_wirdGetippt = false;
}

bool Rechenwerk::rechne(double rechts, Operation operation) {
  double ergebnis = rechts;
  switch (operation) {
    case Operation::Plus:
      ergebnis = m_links + rechts;
      break;
    case Operation::Minus:
      ergebnis = m_links - rechts;
      break;
    case Operation::Mal:
      ergebnis = m_links * rechts;
      break;
    case Operation::Geteilt:
      if (rechts == 0) {
        m_fehler = true;
        return false;
      }
      ergebnis = m_links / rechts;
      break;
    case Operation::Keine:
      break;
  }
  zeige(ergebnis);
  m_links = ergebnis;
  return !m_fehler;
}
