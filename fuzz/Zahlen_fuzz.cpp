// Numbers and dates as people type them: no helper fails, and what is shown reads back as it was.
#include <cmath>
#include <cstring>

#include "Fuzzziel.h"
#include "core/globals.h"
#include "data/helpers.h"
#include "platform/locale/Deutsch.h"

namespace {

void zahlLesen(const QString& text) {
  for (const double zahl : {ZahlLesen(text), ZahlLesenDoppelt(text)})
    verlange(std::isfinite(zahl) && zahl >= 0, "a read number is finite and has no sign", text);
  const double zahl = ZahlLesen(text);
  if (zahl < 1e15)
    verlange(ZahlLesen(Deutsch::schlicht(zahl)) == zahl, "a shown number reads back",
             text + u' ' + Deutsch::schlicht(zahl));
  verlange(std::isfinite(Deutsch::val(text)), "a number value is finite", text);
  const qint64 ganz = GanzLesen(text);
  verlange(ganz >= INT32_MIN && ganz <= INT32_MAX, "a whole number has 32 bits", text);
  for (int stellen = 0; stellen <= 15; stellen += 5) {
    verlange(!ZahlFormat(text, stellen).isEmpty(), "a number is shown", text);
    verlange(ZahlFormatBreite(text, stellen, 12, 1).size() == 12, "it is as wide as wanted", text);
  }
}

void datumLesen(const QString& text) {
  if (const auto tag = Deutsch::datum(text)) {
    const QString gezeigt = Deutsch::datumText(*tag);
    verlange(gezeigt.size() == 10 && Deutsch::datum(gezeigt) == tag, "a date reads back", text);
    verlange(
        DatumSortiert(gezeigt).toInt() == (tag->year() * 100 + tag->month()) * 100 + tag->day(),
        "a date sorts by year, month and day", text);
  }
  const QString ergänzt = DatumErgaenzen(text);
  if (!ergänzt.isEmpty()) {
    verlange(IstDatum(ergänzt), "a completed date is one", text + u' ' + ergänzt);
    verlange(DatumErgaenzen(ergänzt) == ergänzt, "a completed date stays", text);
  }
  static_cast<void>(DatumSortiert(text));
  const QString literal = SqlDatum(text);
  verlange(literal.startsWith(u'#') && literal.endsWith(u'#'), "a literal has its marks", text);
  static_cast<void>(JahrErgaenzen(text));
}

void textLesen(const QString& text) {
  const QString gelesen = TextLesen(text);
  verlange(!gelesen.contains(u'\'') && gelesen == TextLesen(gelesen), "a read text stays", text);
  for (const int breite : {0, 1, 7, 100}) {
    verlange(TextLinks(text, breite).size() == breite, "a text is as wide as wanted", text);
    verlange(TextRechts(text, breite).size() == breite, "a text is as wide as wanted", text);
  }
}

void zahlZeigen(double zahl) {
  const QString näheres = QString::number(zahl, 'g', 17);
  for (int stellen = 0; stellen <= 15; ++stellen) {
    const QString text = Deutsch::zahl(zahl, stellen);
    verlange(!text.isEmpty() && !text.contains(u'.') && !text.contains(u'n'),
             "a number is shown in its German form", näheres);
  }
  verlange(Deutsch::währung(zahl).endsWith(QStringLiteral(" €")), "money has its sign", näheres);
  if (std::isfinite(zahl) && std::abs(zahl) < 1e15 && std::abs(zahl) > 1e-6) {
    const QString text = Deutsch::schlicht(zahl).replace(u',', u'.');
    verlange(Deutsch::val(text) == zahl, "the shortest text gives the number back",
             näheres + u' ' + text);
    const double einfach = Deutsch::einfach(zahl);
    verlange(static_cast<float>(einfach) == static_cast<float>(zahl),
             "single precision is the nearest float", näheres);
    verlange(std::abs(Deutsch::gerade(zahl) - zahl) <= 0.5, "a whole number is the nearest one",
             näheres);
  }
  for (const int breite : {1, 8, 50})
    verlange(Deutsch::festeZahl(breite, zahl).size() == breite, "a line is as wide as wanted",
             näheres);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
  TZ_Variablen::HeuteText = QStringLiteral("15.06.2024");
  const QString text = QString::fromUtf8(alsBytes(daten, größe));
  zahlLesen(text);
  datumLesen(text);
  textLesen(text);
  if (größe >= sizeof(double)) {
    double zahl = 0;
    std::memcpy(&zahl, daten, sizeof zahl);
    zahlZeigen(zahl);
  }
  return 0;
}
