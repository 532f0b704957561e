// The pocket calculator under any row of keys, each byte one of them.
#include <QRegularExpression>
#include <cmath>

#include "Fuzzziel.h"
#include "platform/controls/Rechenwerk.h"

namespace {

using Operation = Rechenwerk::Operation;

void taste(Rechenwerk& werk, std::uint8_t byte) {
  switch (byte) {
    case '+':
      return werk.operation(Operation::Plus);
    case '-':
      return werk.operation(Operation::Minus);
    case '*':
      return werk.operation(Operation::Mal);
    case '/':
      return werk.operation(Operation::Geteilt);
    case '=':
      return werk.gleich();
    case ',':
      return werk.komma();
    case '<':
      return werk.zurück();
    case 'C':
      return werk.löschen();
    case 'm':
      return werk.steuer(7);
    case 'M':
      return werk.steuer(19);
    case 'w':
      return werk.setWert(-1234.5);
    case 'W':
      return werk.setWert(1e300);
    default:
      return werk.ziffer(byte % 10);
  }
}

void prüfe(const Rechenwerk& werk, const QString& tasten) {
  static const QRegularExpression form(QStringLiteral("\\A-?[0-9]{1,15}(,[0-9]{0,15})?\\z"));
  const QString anzeige = werk.anzeige();
  const QString näheres = tasten + QStringLiteral(" shows ") + anzeige;
  if (werk.fehler()) {
    verlange(anzeige == QStringLiteral("Fehler") && !werk.wert(), "a failure is shown", näheres);
    return;
  }
  verlange(form.match(anzeige).hasMatch(), "what is shown is a number", näheres);
  int ziffern = 0;
  for (const QChar c : anzeige) ziffern += c.isDigit() ? 1 : 0;
  verlange(ziffern <= 16, "it has no more digits than it can show", näheres);
  verlange(werk.wert().has_value() && std::isfinite(*werk.wert()), "it has a value", näheres);
  const double gezeigt = QString(anzeige).replace(u',', u'.').toDouble();
  verlange(std::abs(gezeigt - *werk.wert()) <= 1e-10 + std::abs(gezeigt) * 1e-14,
           "the value is what is shown", näheres);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
  Rechenwerk werk;
  QString tasten;
  for (std::size_t i = 0; i < größe; ++i) {
    taste(werk, daten[i]);
    tasten += QChar::fromLatin1(static_cast<char>(daten[i]));
    prüfe(werk, tasten);
    static_cast<void>(werk.vorgang());
  }
  werk.löschen();
  verlange(!werk.fehler() && werk.anzeige() == QStringLiteral("0"), "C begins anew", tasten);
  return 0;
}
