#include "output/Zelltext.h"

#include <array>
#include <charconv>
#include <cmath>

#include "platform/database/werte/Feldregeln.h"
#include "platform/locale/Deutsch.h"

namespace {

constexpr double GrößteZahl = 1e15;  // from here on not every whole number is a double

// Most numbers have up to four decimals; those are written without a detour. False when it isn't
// sure that the text is the shortest one of the number.
bool kurzeZahl(std::string& ziel, double wert, bool geld) {
  constexpr double Grenze = 1e10;
  constexpr int Stellen = 4;
  constexpr qint64 Zehntausend = 10000;
  if (!(std::fabs(wert) < Grenze)) return false;
  const qint64 runde = std::llround(wert * Zehntausend);
  if (static_cast<double>(runde) / Zehntausend != wert) return false;
  const qint64 betrag = runde < 0 ? -runde : runde;
  std::array<char, 24> puffer{};
  char* ende =
      std::to_chars(puffer.data(), puffer.data() + puffer.size(), betrag / Zehntausend).ptr;
  std::array<char, Stellen> bruch{};
  int länge = Stellen;
  qint64 rest = betrag % Zehntausend;
  for (int i = Stellen - 1; i >= 0; --i, rest /= 10)
    bruch[static_cast<size_t>(i)] = static_cast<char>('0' + rest % 10);
  const int kleinste = geld ? 2 : 0;
  while (länge > kleinste && bruch[static_cast<size_t>(länge) - 1] == '0') --länge;
  if (runde < 0) ziel += '-';
  ziel.append(puffer.data(), ende);
  if (länge > 0) ziel.append(1, ',').append(bruch.data(), static_cast<size_t>(länge));
  return true;
}

bool kannDatumSein(Feldtyp typ, QByteArrayView text) {
  return text.size() == 10 && text[4] == '-' && text[7] == '-' &&
         (typ == Feldtyp::Datum || typ == Feldtyp::Ausdruck);
}

}  // namespace

namespace Zelltext {

void anhängen(std::string& ziel, const Datenblock& block, int zeile, int spalte) {
  if (block.istNull(zeile, spalte)) return;
  const Feldtyp typ = block.spalte(spalte).typ;
  if (!block.istText(zeile, spalte)) {
    if (!kurzeZahl(ziel, block.zahl(zeile, spalte), typ == Feldtyp::Währung))
      ziel += block.anzeige(zeile, spalte).toStdString();
    return;
  }
  const QByteArrayView text = block.rohtext(zeile, spalte);
  if (kannDatumSein(typ, text) && Feldregeln::isoDatum(text).isValid()) {
    ziel.append(text.data() + 8, 2).append(1, '.').append(text.data() + 5, 2).append(1, '.');
    ziel.append(text.data(), 4);
    return;
  }
  ziel.append(text.data(), static_cast<size_t>(text.size()));
}

void zahlAnhängen(std::string& ziel, double zahl) {
  if (!kurzeZahl(ziel, zahl, false)) ziel += Deutsch::schlicht(zahl).toStdString();
}

std::optional<double> zahl(const Datenblock& block, int zeile, int spalte) {
  if (block.istNull(zeile, spalte)) return std::nullopt;
  if (block.istText(zeile, spalte))
    return Deutsch::gelesen(block.rohtext(zeile, spalte), istZahl(block.spalte(spalte).typ));
  const double wert = block.zahl(zeile, spalte);
  if (!(std::fabs(wert) < GrößteZahl)) return std::nullopt;
  return wert;
}

}  // namespace Zelltext
