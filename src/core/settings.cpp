#include "core/settings.h"

#include <QRegularExpression>
#include <cmath>
#include <optional>

#include "core/globals.h"
#include "platform/files/Textdatei.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

constexpr int Breite = 50;  // of a value's line; wide enough for every float

QString pfad() { return AppPfad + QStringLiteral("Einstellungen.TV2"); }

std::optional<qint16> ganzzahl(const QString& zeile) {
  bool gelesen = false;
  const qint16 zahl = zeile.trimmed().toShort(&gelesen, 10);
  return gelesen ? std::optional(zahl) : std::nullopt;
}

// A decimal comma is taken as well: people edit the file by hand.
std::optional<float> wert(const QString& zeile) {
  static const QRegularExpression form(
      QStringLiteral("\\A[+-]?(?:[0-9]+(?:[.,][0-9]*)?|[.,][0-9]+)(?:[eE][+-]?[0-9]+)?\\z"));
  QString text = zeile.trimmed();
  if (!form.match(text).hasMatch()) return std::nullopt;
  const auto zahl = static_cast<float>(Deutsch::val(text.replace(u',', u'.')));
  return std::isfinite(zahl) ? std::optional(zahl) : std::nullopt;
}

QString eineZeile(const QString& text) {
  QString zeile = text;
  zeile.replace(CRLF, QStringLiteral(" "));
  zeile.replace(u'\r', u' ');
  zeile.replace(u'\n', u' ');
  return zeile;
}

// The encoding that the mark at a file's beginning tells; empty without one.
QString fremdeCodierung(const QByteArray& bytes) {
  if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) return QStringLiteral("UTF-16");
  return bytes.startsWith("\xEF\xBB\xBF") ? QStringLiteral("UTF-8") : QString();
}

// What stands in a line, as far as it can be shown.
QString gezeigt(const QString& zeile) {
  constexpr qsizetype Länge = 40;
  QString text = zeile.left(Länge);
  for (QChar& zeichen : text)
    if (!zeichen.isPrint()) zeichen = u'?';
  return u'\u201E' + text + (zeile.size() > Länge ? QStringLiteral("...") : QString()) + u'\u201C';
}

// The lines of the file, one after the other, until one can't be read.
class Zeilenleser {
 public:
  explicit Zeilenleser(const QString& pfad) : m_zeilen(Textdatei::lesen(pfad)) {
    const QString codierung = fremdeCodierung(Textdatei::bytesLesen(pfad));
    if (!codierung.isEmpty())
      abbrechen(QStringLiteral("Die Datei ist in der Codierung %1 gespeichert statt in "
                               "Windows-1252 (ANSI).")
                    .arg(codierung));
  }

  void nimm(qint16& platz) {
    nimm(platz, ganzzahl, QStringLiteral("keine ganze Zahl von -32768 bis 32767"));
  }
  void nimm(float& platz) { nimm(platz, wert, QStringLiteral("keine Zahl")); }
  void nimm(QString& platz) {
    nimm(platz, [](const QString& zeile) { return std::optional(zeile); }, {});
  }

  const std::optional<Einstellungsbruch>& bruch() const { return m_bruch; }

 private:
  void abbrechen(const QString& grund) { m_bruch = {static_cast<int>(m_nummer) + 1, grund}; }

  template <typename Zelle, typename Lesart>
  void nimm(Zelle& platz, Lesart lesart, const QString& sonst) {
    if (m_bruch) return;
    if (m_nummer == m_zeilen.size()) {
      abbrechen(m_zeilen.isEmpty() ? QStringLiteral("Die Datei ist leer.")
                                   : QStringLiteral("Die Datei endet vorher."));
      return;
    }
    const QString& zeile = m_zeilen[m_nummer];
    if (const auto gelesen = lesart(zeile)) {
      platz = *gelesen;
      ++m_nummer;
    } else {
      abbrechen(QStringLiteral("Dort steht %1, das ist %2.").arg(gezeigt(zeile), sonst));
    }
  }

  QStringList m_zeilen;
  qsizetype m_nummer = 0;  // lines read
  std::optional<Einstellungsbruch> m_bruch;
};

}  // namespace

std::optional<Einstellungsbruch> EinstellungenLesen() {
  if (!Textdatei::existiert(pfad())) return std::nullopt;
  Zeilenleser zeilen(pfad());
  for (qint16& platz : EinstellungenZahl) zeilen.nimm(platz);
  for (float& platz : EinstellungenWert) zeilen.nimm(platz);
  for (QString& platz : EinstellungenText) zeilen.nimm(platz);
  QString& trenner = EinstellungenText[Textslots.trennzeichen];
  if (trenner.isEmpty()) trenner = TrennzeichenStandard;
  return zeilen.bruch();
}

void EinstellungenAufheben() { Textdatei::kopieren(pfad(), pfad() + QStringLiteral(".alt")); }

void EinstellungenSchreiben() {
  QStringList zeilen;
  for (const qint16 zahl : EinstellungenZahl) zeilen += QString::number(zahl);
  // The shortest decimal of the float is what the user typed; it is rounded from there.
  for (const float zahl : EinstellungenWert)
    zeilen += Deutsch::festeZahl(Breite, Deutsch::einfach(static_cast<double>(zahl))).trimmed();
  for (const QString& text : EinstellungenText) zeilen += eineZeile(text);
  Textdatei::schreiben(pfad(), zeilen);
}

void EinstellungenStandard(QDate heute) {
  for (const Zahlslot& slot : zahlslots())
    EinstellungenZahl[slot] =
        static_cast<qint16>(slot.standard == LaufendesJahr ? heute.year() : slot.standard);
  for (const Wertslot& slot : wertslots()) EinstellungenWert[slot] = 0;
  for (const Textslot& slot : textslots())
    EinstellungenText[slot] = QString::fromUtf16(slot.standard);
}

void EinstellungenPrüfen() {
  for (const Zahlslot& slot : zahlslots())
    if (slot.reparatur == Reparatur::AuchStart)
      EinstellungenZahl[slot] = static_cast<qint16>(slot.grenzen.begrenzt(EinstellungenZahl[slot]));
}
