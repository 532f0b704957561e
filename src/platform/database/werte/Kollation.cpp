#include "platform/database/werte/Kollation.h"

#include <QList>
#include <QString>
#include <array>
#include <vector>

// Every code point has up to four elements. An element with a primary weight stands for a place in
// the order, one with only a secondary weight for an accent on the place before it. Texts compare
// by their primary weights, then by their accents; the rest of a text's look doesn't count.

namespace {

struct Element {
  quint32 primär = 0;   // 0: an accent only
  quint8 sekundär = 1;  // 1: no accent
};

struct Eintrag {
  std::array<Element, 4> elemente;
  int anzahl = 0;
};

// Primary weights, in this order.
constexpr quint32 steuerzeichen = 1;  // + code point (up to U+009F)
constexpr quint32 leerzeichen = 0x100;
constexpr quint32 schriftzeichen = 0x101;  // + place among the 32 signs
constexpr quint32 sonstige = 0x1000;       // + code point
constexpr quint32 ziffern = 0x200000;      // + digit
constexpr quint32 buchstaben = 0x200100;   // + letter
constexpr quint32 fremde = 0x201000;       // + code point, letters of other alphabets

constexpr const char* zeichenfolge = "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~";

// Accents. The combining ones follow their code points, those that are part of a letter come last.
constexpr quint8 ersterAkzent = 2;  // U+0300
constexpr quint8 querstrich = 0x72;
constexpr quint8 haken = 0x73;
constexpr quint8 andereForm = 0x74;

constexpr char32_t tabellenEnde = 0x2000;

struct Sonderfall {
  char32_t zeichen;
  const char* grundform;
  quint8 sekundär;  // of the last place
};

// Latin letters without a decomposition, in lower case.
constexpr Sonderfall sonderfälle[] = {
    {U'ß', "ss", 1},          {U'ẞ', "ss", 1},          {U'æ', "ae", 1},
    {U'œ', "oe", 1},          {U'ø', "o", querstrich},  {U'đ', "d", querstrich},
    {U'ł', "l", querstrich},  {U'ħ', "h", querstrich},  {U'ŧ', "t", querstrich},
    {U'ƀ', "b", querstrich},  {U'ɨ', "i", querstrich},  {U'ǥ', "g", querstrich},
    {U'ƶ', "z", querstrich},  {U'ð', "d", andereForm},  {U'þ', "th", andereForm},
    {U'ı', "i", andereForm},  {U'ƒ', "f", haken},       {U'ɓ', "b", haken},
    {U'ƙ', "k", haken},       {U'ŋ', "n", haken},       {U'ĳ', "ij", andereForm},
    {U'ŉ', "n", andereForm},  {U'ŀ', "l", andereForm},  {U'ǆ', "dz", andereForm},
    {U'ǉ', "lj", andereForm}, {U'ǌ', "nj", andereForm}, {U'ǳ', "dz", andereForm},
};

bool istLateinbereich(char32_t z) { return z < 0x250 || (z >= 0x1E00 && z < 0x1F00); }

// Characters that nobody sees: soft hyphen, joiners, marks of direction, byte order mark.
bool istUnsichtbar(char32_t z) {
  return z == 0xAD || (z >= 0x200B && z <= 0x200F) || (z >= 0x202A && z <= 0x202E) ||
         (z >= 0x2060 && z <= 0x2064) || z == 0xFEFF;
}

quint32 gewichtAscii(char32_t z) {
  if (z < 0x20 || z == 0x7F) return steuerzeichen + z;
  if (z == ' ') return leerzeichen;
  if (z >= '0' && z <= '9') return ziffern + (z - '0');
  if (z >= 'a' && z <= 'z') return buchstaben + (z - 'a');
  if (z >= 'A' && z <= 'Z') return buchstaben + (z - 'A');
  quint32 stelle = 0;
  while (static_cast<char32_t>(static_cast<unsigned char>(zeichenfolge[stelle])) != z) ++stelle;
  return schriftzeichen + stelle;
}

void hängeAn(Eintrag& eintrag, Element element) {
  if (eintrag.anzahl < static_cast<int>(eintrag.elemente.size())) {
    eintrag.elemente[static_cast<size_t>(eintrag.anzahl++)] = element;
  }
}

void hängeAlleAn(Eintrag& eintrag, const Eintrag& weiterer) {
  for (int i = 0; i < weiterer.anzahl; ++i) {
    hängeAn(eintrag, weiterer.elemente[static_cast<size_t>(i)]);
  }
}

// What a code point is made of, worked out from scratch.
Eintrag zerlege(char32_t z) {
  Eintrag eintrag;
  if (istUnsichtbar(z)) return eintrag;
  if (z < 0x80) {
    hängeAn(eintrag, {gewichtAscii(z), 1});
    return eintrag;
  }
  if (z == 0xA0) {  // looks like a blank, counts as one
    hängeAn(eintrag, {leerzeichen, 1});
    return eintrag;
  }
  if (z < 0xA0) {
    hängeAn(eintrag, {steuerzeichen + z, 1});
    return eintrag;
  }
  if (z >= 0x300 && z <= 0x36F) {
    hängeAn(eintrag, {0, static_cast<quint8>(ersterAkzent + (z - 0x300))});
    return eintrag;
  }
  const char32_t klein = QChar::toCaseFolded(z);
  for (const Sonderfall& fall : sonderfälle) {
    if (fall.zeichen != klein) continue;
    for (const char* c = fall.grundform; *c != 0; ++c) {
      hängeAn(eintrag, {buchstaben + static_cast<quint32>(*c - 'a'), 1});
    }
    if (fall.sekundär != 1) hängeAn(eintrag, {0, fall.sekundär});
    return eintrag;
  }
  if (istLateinbereich(z) && QChar::decompositionTag(z) == QChar::Canonical) {
    for (const uint teil : QChar::decomposition(z).toUcs4()) hängeAlleAn(eintrag, zerlege(teil));
    return eintrag;
  }
  if (klein != z) return zerlege(klein);
  const bool buchstabe = (QChar::isLetter(z) && z != 0xAA && z != 0xBA) || QChar::isMark(z);
  hängeAn(eintrag, {(buchstabe ? fremde : sonstige) + static_cast<quint32>(z), 1});
  return eintrag;
}

struct Tabelle {
  std::array<quint32, 128> ascii{};
  std::vector<Eintrag> einträge;

  Tabelle() {
    einträge.reserve(tabellenEnde);
    for (char32_t z = 0; z < tabellenEnde; ++z) einträge.push_back(zerlege(z));
    for (char32_t z = 0; z < 128; ++z) ascii[z] = gewichtAscii(z);
  }
};

const Tabelle& tabelle() {
  static const Tabelle eine;
  return eine;
}

// Whether a code point at the end of a text counts for nothing.
bool zähltAmEndeNicht(char32_t z) { return z == ' ' || z == 0xA0 || istUnsichtbar(z); }

// The two forms of text, read code point by code point from the front, cut at the back. What is
// malformed counts as one sign a unit.
class Utf16 {
 public:
  explicit Utf16(QStringView text) : m_von(text.utf16()), m_bis(m_von + text.size()) {
    while (m_von != m_bis && zähltAmEndeNicht(m_bis[-1])) --m_bis;
  }
  bool ende() const { return m_von == m_bis; }
  char32_t einheit() const { return *m_von; }
  void weiter() { ++m_von; }
  // Whether a unit begins a character of several units, or is the last unit of any other.
  static bool beginntMehrere(char32_t einheit) { return QChar::isHighSurrogate(einheit); }
  static bool stehtAllein(char32_t einheit) { return !QChar::isHighSurrogate(einheit); }
  char32_t nimm() {
    const char16_t z = *m_von++;
    if (!QChar::isHighSurrogate(z) || ende() || !QChar::isLowSurrogate(*m_von)) return z;
    return QChar::surrogateToUcs4(z, *m_von++);
  }

 private:
  const char16_t* m_von;
  const char16_t* m_bis;
};

class Utf8 {
 public:
  explicit Utf8(QByteArrayView text)
      : m_von(reinterpret_cast<const unsigned char*>(text.data())), m_bis(m_von + text.size()) {
    while (m_von != m_bis) {
      if (m_bis[-1] < 0x80) {
        if (m_bis[-1] != ' ') return;
        --m_bis;
        continue;
      }
      Utf8 letztes = *this;
      letztes.m_von = m_bis - 1;
      while (letztes.m_von != m_von && m_bis - letztes.m_von < 4 && (*letztes.m_von & 0xC0) == 0x80)
        --letztes.m_von;
      const unsigned char* const anfang = letztes.m_von;
      const char32_t z = letztes.nimm();
      if (!letztes.ende() || !zähltAmEndeNicht(z)) return;
      m_bis = anfang;
    }
  }
  bool ende() const { return m_von == m_bis; }
  char32_t einheit() const { return *m_von; }
  void weiter() { ++m_von; }
  static bool beginntMehrere(char32_t einheit) { return einheit >= 0xC0; }
  static bool stehtAllein(char32_t einheit) { return einheit < 0x80; }
  char32_t nimm() {
    const char32_t erstes = *m_von++;
    if (erstes < 0x80) return erstes;
    const int folge = erstes >= 0xF0 && erstes < 0xF5 ? 3 : erstes >= 0xE0 ? 2 : 1;
    if (erstes < 0xC2 || erstes > 0xF4 || m_bis - m_von < folge) return kaputt(erstes);
    char32_t z = erstes & (0x3F >> folge);
    for (int i = 0; i < folge; ++i) {
      if ((m_von[i] & 0xC0) != 0x80) return kaputt(erstes);
      z = (z << 6) | (m_von[i] & 0x3F);
    }
    constexpr char32_t kleinstes[] = {0, 0x80, 0x800, 0x10000};
    if (z < kleinstes[folge] || z > 0x10FFFF || (z >= 0xD800 && z < 0xE000)) return kaputt(erstes);
    m_von += folge;
    return z;
  }

 private:
  static char32_t kaputt(char32_t oktett) { return 0xDC00 + oktett; }  // no character has it
  const unsigned char* m_von;
  const unsigned char* m_bis;
};

// The elements of a text, one by one.
template <class Text>
class Elemente {
 public:
  explicit Elemente(Text text) : m_text(text) {}
  // False at the end.
  bool nächstes(Element& element) {
    while (m_stelle == m_anzahl) {
      if (m_text.ende()) return false;
      const char32_t z = m_text.nimm();
      if (z < tabellenEnde) {
        m_eintrag = &tabelle().einträge[z];
      } else {
        m_eigener = zerlege(z);
        m_eintrag = &m_eigener;
      }
      m_anzahl = m_eintrag->anzahl;
      m_stelle = 0;
    }
    element = m_eintrag->elemente[static_cast<size_t>(m_stelle++)];
    return true;
  }
  // The next element with a primary weight; 0 at the end.
  quint32 nächstesGewicht() {
    Element element;
    while (nächstes(element)) {
      if (element.primär != 0) return element.primär;
    }
    return 0;
  }

 private:
  Text m_text;
  const Eintrag* m_eintrag = nullptr;
  Eintrag m_eigener;
  int m_anzahl = 0;
  int m_stelle = 0;
};

int ordnung(quint32 links, quint32 rechts) { return links < rechts ? -1 : links > rechts ? 1 : 0; }

template <class Text>
int nachAkzenten(Text links, Text rechts) {
  Elemente<Text> l(links);
  Elemente<Text> r(rechts);
  for (;;) {
    Element el;
    Element er;
    const bool nochLinks = l.nächstes(el);
    const bool nochRechts = r.nächstes(er);
    // An accent left over makes the greater text; a place can't be left over.
    if (!nochLinks || !nochRechts) return ordnung(nochLinks, nochRechts);
    if (el.sekundär != er.sekundär) return ordnung(el.sekundär, er.sekundär);
  }
}

template <class Text>
int vergleicheTexte(Text links, Text rechts) {
  const auto& ascii = tabelle().ascii;
  Text abLinks = links;  // from here on the quick look doesn't suffice: a whole character begins
  Text abRechts = rechts;
  while (!links.ende() && !rechts.ende()) {
    const char32_t l = links.einheit();
    const char32_t r = rechts.einheit();
    if (l != r) {
      if (l >= 128 || r >= 128) break;
      // An accent behind it belongs to the same place and so doesn't change the order.
      if (ascii[l] != ascii[r]) return ordnung(ascii[l], ascii[r]);
    } else if (Text::beginntMehrere(l)) {
      abLinks = links;
      abRechts = rechts;
    }
    links.weiter();
    rechts.weiter();
    if (Text::stehtAllein(l)) {
      abLinks = links;
      abRechts = rechts;
    }
  }
  if (links.ende() && rechts.ende()) return 0;
  Elemente<Text> l(abLinks);
  Elemente<Text> r(abRechts);
  for (;;) {
    const quint32 gl = l.nächstesGewicht();
    const quint32 gr = r.nächstesGewicht();
    if (gl != gr) return ordnung(gl, gr);
    if (gl == 0) return nachAkzenten(abLinks, abRechts);
  }
}

// The weight as bytes that compare in the same order; no code is the beginning of another.
void hängeGewichtAn(QByteArray& schlüssel, quint32 gewicht) {
  const auto oktett = [&schlüssel](quint32 wert) { schlüssel.append(static_cast<char>(wert)); };
  const auto langes = [&oktett](quint32 art, quint32 zeichen) {
    oktett(art);
    oktett(zeichen >> 16);
    oktett((zeichen >> 8) & 0xFF);
    oktett(zeichen & 0xFF);
  };
  if (gewicht < leerzeichen) {
    oktett(1);
    oktett(gewicht);
  } else if (gewicht < sonstige) {
    oktett(2 + (gewicht - leerzeichen));  // 2 to 34
  } else if (gewicht < ziffern) {
    langes(35, gewicht - sonstige);
  } else if (gewicht < buchstaben) {
    oktett(36 + (gewicht - ziffern));
  } else if (gewicht < fremde) {
    oktett(46 + (gewicht - buchstaben));
  } else {
    langes(72, gewicht - fremde);
  }
}

}  // namespace

int Kollation::vergleiche(QStringView links, QStringView rechts) {
  return vergleicheTexte(Utf16(links), Utf16(rechts));
}

int Kollation::vergleicheUtf8(QByteArrayView links, QByteArrayView rechts) {
  return vergleicheTexte(Utf8(links), Utf8(rechts));
}

QByteArray Kollation::schlüssel(QStringView text) {
  QByteArray schlüssel;
  schlüssel.reserve(text.size() + 1);
  QByteArray akzente;
  qsizetype letzter = 0;
  Elemente<Utf16> elemente{Utf16(text)};
  Element element;
  while (elemente.nächstes(element)) {
    if (element.primär != 0) hängeGewichtAn(schlüssel, element.primär);
    akzente.append(static_cast<char>(element.sekundär));
    if (element.sekundär != 1) letzter = akzente.size();
  }
  schlüssel.append('\0');
  schlüssel.append(akzente.constData(), letzter);  // places without accents behind it say nothing
  return schlüssel;
}
