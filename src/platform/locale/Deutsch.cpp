#include "platform/locale/Deutsch.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

namespace {

// A number by its shortest decimal digits: 0.d1d2d3... times ten to the power of punkt.
struct Dezimal {
  bool negativ = false;
  std::string ziffern;  // no leading or trailing zeros; empty for zero
  int punkt = 0;        // digits in front of the decimal point; may be 0 or negative
};

enum class Runden { HalbeAufwärts, HalbeGerade };

// Infinite and not a number count as zero.
Dezimal zerlege(double wert) {
  Dezimal dezimal;
  if (!std::isfinite(wert) || wert == 0) return dezimal;
  dezimal.negativ = wert < 0;
  char puffer[64];
  const auto ende =
      std::to_chars(puffer, puffer + sizeof puffer, std::fabs(wert), std::chars_format::scientific)
          .ptr;
  const std::string_view text(puffer, static_cast<size_t>(ende - puffer));
  const size_t e = text.find('e');
  for (const char c : text.substr(0, e))
    if (c != '.') dezimal.ziffern += c;
  while (dezimal.ziffern.size() > 1 && dezimal.ziffern.back() == '0') dezimal.ziffern.pop_back();
  int exponent = 0;
  const size_t vorzeichen = text[e + 1] == '+' ? 2 : 1;  // from_chars takes no plus sign
  std::from_chars(text.data() + e + vorzeichen, ende, exponent);
  dezimal.punkt = exponent + 1;
  return dezimal;
}

bool rundetAuf(const std::string& ziffern, size_t behalten, Runden art) {
  const char nächste = ziffern[behalten];
  if (nächste != '5' || art == Runden::HalbeAufwärts) return nächste >= '5';
  if (behalten + 1 < ziffern.size()) return true;  // more than a half
  return behalten > 0 && (ziffern[behalten - 1] - '0') % 2 == 1;
}

void runde(Dezimal& dezimal, int nachkommastellen, Runden art) {
  const int behalten = dezimal.punkt + nachkommastellen;
  if (behalten >= static_cast<int>(dezimal.ziffern.size())) return;
  const bool auf = behalten >= 0 && rundetAuf(dezimal.ziffern, static_cast<size_t>(behalten), art);
  dezimal.ziffern.resize(static_cast<size_t>(std::max(behalten, 0)));
  if (auf) {
    size_t stelle = dezimal.ziffern.size();
    while (stelle > 0 && dezimal.ziffern[stelle - 1] == '9') dezimal.ziffern[--stelle] = '0';
    if (stelle > 0) {
      ++dezimal.ziffern[stelle - 1];
    } else {
      dezimal.ziffern.insert(dezimal.ziffern.begin(), '1');
      ++dezimal.punkt;
    }
  }
  while (!dezimal.ziffern.empty() && dezimal.ziffern.back() == '0') dezimal.ziffern.pop_back();
  if (dezimal.ziffern.empty()) dezimal = {};
}

std::string vorDemKomma(const Dezimal& dezimal) {
  if (dezimal.punkt <= 0 || dezimal.ziffern.empty()) return "0";
  std::string ganz = dezimal.ziffern.substr(0, static_cast<size_t>(dezimal.punkt));
  ganz.append(static_cast<size_t>(dezimal.punkt) - ganz.size(), '0');
  return ganz;
}

// All digits behind the point, without trailing zeros.
std::string nachDemKomma(const Dezimal& dezimal) {
  if (dezimal.ziffern.empty()) return {};
  if (dezimal.punkt <= 0)
    return std::string(static_cast<size_t>(-dezimal.punkt), '0') + dezimal.ziffern;
  if (static_cast<size_t>(dezimal.punkt) >= dezimal.ziffern.size()) return {};
  return dezimal.ziffern.substr(static_cast<size_t>(dezimal.punkt));
}

std::string feste(const Dezimal& dezimal, int nachkommastellen, char trenner) {
  std::string text = dezimal.negativ ? "-" : "";
  text += vorDemKomma(dezimal);
  if (nachkommastellen == 0) return text;
  std::string nach = nachDemKomma(dezimal);
  nach.resize(static_cast<size_t>(nachkommastellen), '0');
  return text + trenner + nach;
}

// The number in units of its last decimal, rounded, when it lies so far from a half that its digits
// needn't be looked at: nearly all that lists show. Its sign is left out; -1 for the others.
qint64 klarGerundet(double betrag, int nachkommastellen) {
  constexpr std::array Zehner{1.0, 10.0, 100.0};
  constexpr double Größter = 1e9;
  constexpr double Abstand = 1e-3;  // of 1e11, a double is exact to far less
  if (nachkommastellen >= static_cast<int>(Zehner.size()) || !(betrag < Größter)) return -1;
  const double viele = betrag * Zehner[static_cast<size_t>(nachkommastellen)];
  const auto ganze = static_cast<qint64>(viele);
  const double rest = viele - static_cast<double>(ganze);
  if (std::fabs(rest - 0.5) < Abstand) return -1;
  return rest > 0.5 ? ganze + 1 : ganze;
}

QString festerText(bool negativ, qint64 einheiten, int nachkommastellen) {
  std::array<char, 24> puffer;
  size_t i = puffer.size();
  const bool minus = negativ && einheiten != 0;
  for (int stelle = 0; stelle <= nachkommastellen || einheiten != 0; ++stelle, einheiten /= 10) {
    if (stelle == nachkommastellen && stelle > 0) puffer[--i] = ',';
    puffer[--i] = static_cast<char>('0' + einheiten % 10);
  }
  if (minus) puffer[--i] = '-';
  return QString::fromLatin1(puffer.data() + i, static_cast<qsizetype>(puffer.size() - i));
}

double alsZahl(const Dezimal& dezimal) {
  if (dezimal.ziffern.empty()) return 0.0;
  const std::string text =
      (dezimal.negativ ? "-0." : "0.") + dezimal.ziffern + "e" + std::to_string(dezimal.punkt);
  double wert = 0.0;
  std::from_chars(text.data(), text.data() + text.size(), wert);
  return wert;
}

// Whether a number has six digits at most, two or four of them behind the point, or is a whole one
// of up to 24 bits: its float's shortest decimal is the number itself.
bool istKurz(double betrag) {
  if (!(betrag <= 16777216)) return false;
  if (static_cast<double>(static_cast<int>(betrag)) == betrag) return true;
  for (const double einheit : {100.0, 10000.0}) {
    const double viele = betrag * einheit;
    if (viele >= 999999) return false;
    if (static_cast<double>(std::lround(viele)) / einheit == betrag) return true;
  }
  return false;
}

bool istZiffer(QChar c) { return c >= u'0' && c <= u'9'; }

// The number of a text of ASCII digits only; -1 for anything else or another length.
int ziffernWert(QStringView text, qsizetype mindestens, qsizetype höchstens) {
  if (text.size() < mindestens || text.size() > höchstens) return -1;
  int wert = 0;
  for (const QChar c : text) {
    if (!istZiffer(c)) return -1;
    wert = wert * 10 + (c.unicode() - u'0');
  }
  return wert;
}

// For a number that a double can't hold: true when it is too big, false when it is too small.
bool zuGroß(const std::string& text) {
  const size_t e = text.find('e');
  const std::string mantisse = text.substr(0, e);
  const size_t punkt = std::min(mantisse.find('.'), mantisse.size());
  const auto erste = static_cast<double>(mantisse.find_first_of("123456789"));
  // Exponents with more digits than an int saturate.
  const double exponent =
      e == std::string::npos ? 0 : std::strtol(text.c_str() + e + 1, nullptr, 10);
  return static_cast<double>(punkt) - erste + exponent > 0;
}

}  // namespace

namespace Deutsch {

std::optional<QDate> datum(QStringView text) {
  const QList<QStringView> teile = text.trimmed().split(u'.');
  if (teile.size() != 3) return std::nullopt;
  const int tag = ziffernWert(teile[0], 1, 2);
  const int monat = ziffernWert(teile[1], 1, 2);
  int jahr = ziffernWert(teile[2], 2, 4);
  if (teile[2].size() == 3 || tag < 0 || monat < 0 || jahr < 0) return std::nullopt;
  if (teile[2].size() == 2) jahr += jahr < 30 ? 2000 : 1900;
  if (jahr < 100 || !QDate::isValid(jahr, monat, tag)) return std::nullopt;
  return QDate(jahr, monat, tag);
}

QString datumText(QDate datum) {
  if (!datum.isValid()) return {};
  int jahr = 0, monat = 0, tag = 0;
  datum.getDate(&jahr, &monat, &tag);
  if (jahr < 0 || jahr > 9999) return datum.toString(QStringLiteral("dd.MM.yyyy"));
  // By hand: lists show dates by the thousand.
  QString text(10, u'.');
  const auto setze = [&text](qsizetype ende, int stellen, int zahl) {
    for (; stellen > 0; --stellen, zahl /= 10) text[--ende] = QChar(u'0' + zahl % 10);
  };
  setze(2, 2, tag);
  setze(5, 2, monat);
  setze(10, 4, jahr);
  return text;
}

QString zahl(double wert, int nachkommastellen) {
  const int stellen = std::clamp(nachkommastellen, 0, 15);
  const qint64 einheiten = klarGerundet(std::fabs(wert), stellen);
  if (einheiten >= 0) return festerText(wert < 0, einheiten, stellen);
  Dezimal dezimal = zerlege(wert);
  runde(dezimal, stellen, Runden::HalbeAufwärts);
  return QString::fromLatin1(feste(dezimal, stellen, ','));
}

QString währung(double wert) {
  QString text = zahl(wert, 2);
  const qsizetype erste = text.startsWith(u'-') ? 1 : 0;
  for (qsizetype i = text.size() - 6; i > erste; i -= 3) text.insert(i, u'.');
  return text + QStringLiteral(" €");
}

QString festeZahl(int breite, double zahl) {
  Dezimal dezimal = zerlege(zahl);
  runde(dezimal, 2, Runden::HalbeAufwärts);
  const int zeichen = std::max(breite, 0);
  return QString::fromLatin1(feste(dezimal, 2, '.')).left(zeichen).rightJustified(zeichen, u' ');
}

QString schlicht(double wert) {
  const Dezimal dezimal = zerlege(wert);
  std::string text = dezimal.negativ ? "-" : "";
  if (dezimal.punkt > 15) {
    text += dezimal.ziffern[0];
    if (dezimal.ziffern.size() > 1) text += "," + dezimal.ziffern.substr(1);
    text += "E+" + std::to_string(dezimal.punkt - 1);
    return QString::fromLatin1(text);
  }
  text += vorDemKomma(dezimal);
  const std::string nach = nachDemKomma(dezimal);
  if (!nach.empty()) text += "," + nach;
  return QString::fromLatin1(text);
}

std::optional<double> gelesen(QByteArrayView text, bool geld) {
  const QByteArrayView euro("€");
  text = text.trimmed();
  geld = geld && text.endsWith(euro);
  if (geld) text = text.chopped(euro.size()).trimmed();
  const bool negativ = text.startsWith('-');
  if (negativ || text.startsWith('+')) text = text.sliced(1);
  constexpr int Ziffern = 15;
  std::array<char, Ziffern + 1> puffer{};
  size_t länge = 0;
  int ziffern = 0;
  bool komma = false;
  for (const char c : text) {
    if (c >= '0' && c <= '9' && ziffern < Ziffern) {
      ++ziffern;
      puffer[länge++] = c;
    } else if (c == ',' && !komma) {
      komma = true;
      puffer[länge++] = '.';
    } else if (!(c == '.' && geld && !komma)) {
      return std::nullopt;
    }
  }
  if (ziffern == 0) return std::nullopt;
  double wert = 0;
  std::from_chars(puffer.data(), puffer.data() + länge, wert);
  return negativ ? -wert : wert;
}

double val(QStringView text) {
  std::string zahl;
  enum { Anfang, Ganz, Bruch, E, Exponent } zustand = Anfang;
  for (const QChar zeichen : text) {
    if (zeichen == u' ' || zeichen == u'\t' || zeichen == u'\r' || zeichen == u'\n') continue;
    const char c = zeichen.toLatin1();
    if (istZiffer(zeichen)) {
      zustand = zustand == Anfang ? Ganz : zustand == E ? Exponent : zustand;
    } else if (zustand == Anfang && (c == '-' || c == '+')) {
      zustand = Ganz;
    } else if (zustand <= Ganz && c == '.') {
      zustand = Bruch;
    } else if ((zustand == Ganz || zustand == Bruch) && (c == 'e' || c == 'E') &&
               zahl.find_first_of("0123456789") != std::string::npos) {
      zahl += 'e';
      zustand = E;
      continue;
    } else if (zustand == E && zahl.back() == 'e' && (c == '-' || c == '+')) {
      // the exponent's sign
    } else {
      break;
    }
    zahl += c;
  }
  const size_t plus = zahl.starts_with('+') ? 1 : 0;  // from_chars takes no plus sign
  double wert = 0.0;
  const auto ergebnis = std::from_chars(zahl.data() + plus, zahl.data() + zahl.size(), wert);
  if (ergebnis.ec == std::errc::result_out_of_range) {
    if (!zuGroß(zahl)) return 0.0;
    wert = std::numeric_limits<double>::max();
    return zahl.starts_with('-') ? -wert : wert;
  }
  return ergebnis.ec == std::errc() && wert != 0 ? wert : 0.0;
}

double einfach(double wert) {
  if (istKurz(std::fabs(wert))) return wert == 0 ? 0.0 : wert;
  const float einzeln = static_cast<float>(wert);
  if (!std::isfinite(einzeln)) return wert;
  if (einzeln == 0) return 0.0;
  char puffer[64];
  const auto ende = std::to_chars(puffer, puffer + sizeof puffer, einzeln).ptr;
  double ergebnis = 0.0;
  std::from_chars(puffer, ende, ergebnis);
  return ergebnis;
}

double währungswert(double wert) {
  if (!std::isfinite(wert)) return wert;
  Dezimal dezimal = zerlege(wert);
  runde(dezimal, 4, Runden::HalbeGerade);
  return alsZahl(dezimal);
}

double gerundet(double wert, double maß, int ziffern) {
  if (!std::isfinite(wert) || wert == 0) return wert;
  Dezimal dezimal = zerlege(wert);
  runde(dezimal, ziffern - zerlege(maß).punkt, Runden::HalbeGerade);
  return alsZahl(dezimal);
}

double gerade(double wert) {
  if (!std::isfinite(wert)) return wert;
  Dezimal dezimal = zerlege(wert);
  runde(dezimal, 0, Runden::HalbeGerade);
  return alsZahl(dezimal);
}

qint64 ganzzahl(double wert) {
  const double gerundet = gerade(wert);
  constexpr double grenze = 9.2e18;
  if (gerundet >= grenze) return std::numeric_limits<qint64>::max();
  if (gerundet <= -grenze) return std::numeric_limits<qint64>::min();
  return static_cast<qint64>(gerundet);
}

}  // namespace Deutsch
