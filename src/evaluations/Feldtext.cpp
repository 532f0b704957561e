#include "evaluations/Feldtext.h"

#include <algorithm>

#include "data/helpers.h"
#include "output/Zelltext.h"

namespace {

// Whether TextLesen leaves the text as it is. White space beyond ASCII is told by TextLesen itself.
bool bleibt(QByteArrayView text) {
  const auto sichtbar = [](char c) { return c > ' ' && c < 0x7f; };
  return text.isEmpty() ||
         (sichtbar(text.front()) && sichtbar(text.back()) && !text.contains('\''));
}

}  // namespace

namespace Feldtext {

void anhängen(std::string& ziel, QByteArrayView utf8) {
  if (bleibt(utf8))
    ziel.append(utf8.data(), static_cast<size_t>(utf8.size()));
  else
    ziel += TextLesen(QString::fromUtf8(utf8)).toStdString();
}

void anhängen(std::string& ziel, double zahl) { Zelltext::zahlAnhängen(ziel, zahl); }

void anhängen(std::string& ziel, const Laufzeile& zeile, int spalte) {
  if (zeile.istText(spalte))
    anhängen(ziel, zeile.rohtext(spalte));
  else if (!zeile.istNull(spalte))
    anhängen(ziel, zeile.zahl(spalte));
}

}  // namespace Feldtext
