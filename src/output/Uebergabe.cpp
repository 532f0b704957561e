#include "output/Uebergabe.h"

#include <QDir>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

#include "core/globals.h"
#include "platform/files/Dateischreiber.h"
#include "platform/files/Textdatei.h"

namespace {

// The kinds of the columns in the file, in the order of Feldtyp.
constexpr std::string_view Arten = "TMKLSWDZA";
constexpr std::string_view Kennung = "TOVA-Liste 1";
constexpr int Schritt = 2000;  // rows between two reports of progress

void entschärft(std::string& ziel, const char* text, size_t länge) {
  const char* ende = text + länge;
  while (text < ende) {
    const char* stelle = text;
    while (stelle < ende && *stelle != '\t' && *stelle != '\n' && *stelle != '\r' &&
           *stelle != '\\')
      ++stelle;
    ziel.append(text, stelle);
    if (stelle < ende) {
      ziel += '\\';
      ziel += *stelle == '\t' ? 't' : *stelle == '\n' ? 'n' : *stelle == '\r' ? 'r' : '\\';
      ++stelle;
    }
    text = stelle;
  }
}

void entschärft(std::string& ziel, const QString& text) {
  const QByteArray utf8 = text.toUtf8();
  entschärft(ziel, utf8.constData(), static_cast<size_t>(utf8.size()));
}

// Null is "\N"; a cell of another kind than its column's is marked "\#" (number) or "\T" (text).
void zelle(std::string& ziel, const Datenblock& block, int zeile, int spalte, bool zahlenspalte) {
  if (block.istNull(zeile, spalte)) {
    ziel += "\\N";
  } else if (block.istText(zeile, spalte)) {
    if (zahlenspalte) ziel += "\\T";
    const QByteArrayView text = block.rohtext(zeile, spalte);
    entschärft(ziel, text.data(), static_cast<size_t>(text.size()));
  } else {
    if (!zahlenspalte) ziel += "\\#";
    std::array<char, 32> puffer{};
    char* const ende = puffer.data() + puffer.size();
    const double wert = block.zahl(zeile, spalte);
    // Up to here a whole number is the same as a double; beyond, a 64-bit one is written as it is,
    // and a double with its exponent, so that it isn't taken for one.
    constexpr double Exakt = 9e15;
    const bool klein = std::fabs(wert) < Exakt;
    const bool ganz = klein ? wert == std::floor(wert)
                            : block.wert(zeile, spalte).typeId() == QMetaType::LongLong;
    const auto bis = ganz ? std::to_chars(puffer.data(), ende, block.ganzzahl(zeile, spalte))
                     : klein
                         ? std::to_chars(puffer.data(), ende, wert)
                         : std::to_chars(puffer.data(), ende, wert, std::chars_format::scientific);
    ziel.append(puffer.data(), bis.ptr);
  }
}

// A sorted list takes its rows from all over the block.
void vorholen(const Ausgabeliste& liste, int zeile) {
  constexpr int Texte = 8;  // rows ahead
  constexpr int Zellen = 16;
  if (zeile + Zellen >= liste.zeilen()) return;
  liste.daten()->holeZellen(liste.blockzeile(zeile + Zellen));
  liste.daten()->holeTexte(liste.blockzeile(zeile + Texte));
}

[[noreturn]] void unlesbar(const QString& pfad) {
  throw Dateifehler(QStringLiteral("Die Datei %1 enthält keine Liste, die angezeigt werden kann. "
                                   "Bitte starten Sie die Auswertung noch einmal.")
                        .arg(QDir::toNativeSeparators(pfad)));
}

// Goes through the bytes of the file, line by line and cell by cell.
class Leser {
 public:
  Leser(const QString& pfad, const QByteArray& bytes)
      : m_pfad(pfad), m_stelle(bytes.constData()), m_ende(m_stelle + bytes.size()) {}

  bool amEnde() const { return m_stelle == m_ende; }
  const char* stelle() const { return m_stelle; }
  const char* ende() const { return m_ende; }

  // The next line, without its end; a line that isn't ended was cut off.
  std::string_view zeile() {
    const char* bis = static_cast<const char*>(
        std::memchr(m_stelle, '\n', static_cast<size_t>(m_ende - m_stelle)));
    if (bis == nullptr) unlesbar(m_pfad);
    const std::string_view text(m_stelle, static_cast<size_t>(bis - m_stelle));
    m_stelle = bis + 1;
    return text;
  }

 private:
  const QString& m_pfad;
  const char* m_stelle;
  const char* m_ende;
};

// Takes the next cell off the line.
std::string_view nächste(std::string_view& zeile) {
  const size_t bis = zeile.find('\t');
  const std::string_view zelle = zeile.substr(0, bis);
  zeile.remove_prefix(bis == std::string_view::npos ? zeile.size() : bis + 1);
  return zelle;
}

std::string_view entschlüsselt(std::string_view text, std::string& puffer) {
  if (text.find('\\') == std::string_view::npos) return text;
  puffer.clear();
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      puffer += text[i];
      continue;
    }
    const char c = text[++i];
    puffer += c == 't' ? '\t' : c == 'n' ? '\n' : c == 'r' ? '\r' : c;
  }
  return puffer;
}

QStringList texte(std::string_view zeile, int anzahl) {
  QStringList alle;
  std::string puffer;
  for (int i = 0; i < anzahl; ++i) {
    const std::string_view text = entschlüsselt(nächste(zeile), puffer);
    alle += QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  }
  return alle;
}

class Zeilenleser {
 public:
  Zeilenleser(const QString& pfad, const std::vector<Spalte>& spalten)
      : m_pfad(pfad), m_anzahl(spalten.size()), m_bauer(spalten) {
    for (const Spalte& s : spalten) m_zahlenspalte.push_back(istZahl(s.typ));
  }

  Datenblock::Bauer& bauer() { return m_bauer; }

  void zeile(std::string_view rest) {
    if (static_cast<size_t>(std::count(rest.begin(), rest.end(), '\t')) + 1 != m_anzahl)
      unlesbar(m_pfad);
    for (size_t i = 0; i < m_anzahl; ++i) zelle(nächste(rest), m_zahlenspalte[i]);
  }

 private:
  void zelle(std::string_view text, bool zahl) {
    if (text.size() >= 2 && text[0] == '\\' &&
        (text[1] == 'N' || text[1] == '#' || text[1] == 'T')) {
      if (text[1] == 'N') return m_bauer.null();
      zahl = text[1] == '#';
      text.remove_prefix(2);
    }
    if (zahl) return zahlzelle(text);
    const std::string_view klar = entschlüsselt(text, m_puffer);
    m_bauer.text(klar.data(), static_cast<qsizetype>(klar.size()));
  }

  void zahlzelle(std::string_view text) {
    const char* ende = text.data() + text.size();
    qint64 ganz = 0;
    if (const auto [bis, fehler] = std::from_chars(text.data(), ende, ganz);
        fehler == std::errc() && bis == ende)
      return m_bauer.ganz(ganz);
    double wert = 0;
    const auto [bis, fehler] = std::from_chars(text.data(), ende, wert);
    if (fehler != std::errc() || bis != ende) unlesbar(m_pfad);
    m_bauer.gleitkomma(wert);
  }

  const QString& m_pfad;
  size_t m_anzahl;
  Datenblock::Bauer m_bauer;
  std::vector<bool> m_zahlenspalte;
  std::string m_puffer;
};

// An empty list has no column, so that its lines of names and kinds are empty.
std::vector<Spalte> spaltenLesen(const QString& pfad, std::string_view namen,
                                 std::string_view arten) {
  std::vector<Spalte> spalten;
  const QStringList alle = texte(namen, static_cast<int>(arten.size()));
  for (size_t i = 0; i < arten.size(); ++i) {
    const size_t art = Arten.find(arten[i]);
    if (art == std::string_view::npos) unlesbar(pfad);
    spalten.push_back({alle.at(static_cast<qsizetype>(i)), static_cast<Feldtyp>(art), 0});
  }
  return spalten;
}

}  // namespace

namespace Übergabe {

QString datei() { return TZ_Variablen::AppPfad + QStringLiteral("gridli.txt"); }

void schreiben(const QString& pfad, const Ausgabeliste& liste, const Fortschritt& fortschritt) {
  static_assert(Arten.size() == static_cast<size_t>(Feldtyp::Ausdruck) + 1);
  Dateischreiber datei(pfad);
  std::string& puffer = datei.puffer();
  puffer.append(Kennung).append("\n");
  const int spalten = liste.spalten();
  std::string arten;
  std::vector<bool> zahlenspalte;
  for (int i = 0; i < spalten; ++i) {
    const Spalte& s = liste.daten()->spalte(i);
    if (i > 0) puffer += '\t';
    entschärft(puffer, s.name);
    arten += Arten[static_cast<size_t>(s.typ)];
    zahlenspalte.push_back(istZahl(s.typ));
  }
  puffer.append("\n").append(arten).append("\n");
  for (int i = 0; i < spalten; ++i) {
    if (i > 0) puffer += '\t';
    entschärft(puffer, liste.überschrift(i));
  }
  puffer += '\n';
  const int zeilen = spalten > 0 ? liste.zeilen() : 0;
  for (int zeile = 0; zeile < zeilen; ++zeile) {
    const int block = liste.blockzeile(zeile);
    vorholen(liste, zeile);
    for (int i = 0; i < spalten; ++i) {
      if (i > 0) puffer += '\t';
      zelle(puffer, *liste.daten(), block, i, zahlenspalte[static_cast<size_t>(i)]);
    }
    puffer += '\n';
    datei.weiter();
    if (fortschritt && zeile % Schritt == 0) fortschritt(zeile, zeilen);
  }
  datei.fertig();
}

Ausgabeliste lesen(const QString& pfad, const Fortschritt& fortschritt) {
  if (!Textdatei::existiert(pfad)) return {};
  const QByteArray bytes = Textdatei::bytesLesen(pfad);
  Leser leser(pfad, bytes);
  if (leser.zeile() != Kennung) unlesbar(pfad);
  const std::string_view namen = leser.zeile();
  const std::string_view arten = leser.zeile();
  const QStringList überschriften = texte(leser.zeile(), static_cast<int>(arten.size()));
  const std::vector<Spalte> spalten = spaltenLesen(pfad, namen, arten);

  const auto zeilen = std::count(leser.stelle(), leser.ende(), '\n');
  Zeilenleser zeilenleser(pfad, spalten);
  zeilenleser.bauer().reserviere(static_cast<size_t>(zeilen) * spalten.size(),
                                 static_cast<size_t>(leser.ende() - leser.stelle()));
  for (int zeile = 0; !leser.amEnde(); ++zeile) {
    zeilenleser.zeile(leser.zeile());
    if (fortschritt && zeile % Schritt == 0) fortschritt(zeile, static_cast<int>(zeilen));
  }
  return Ausgabeliste(zeilenleser.bauer().fertig(), überschriften);
}

}  // namespace Übergabe
