#include "platform/database/werte/Feldregeln.h"

#include <cmath>
#include <limits>
#include <optional>

#include "platform/database/werte/Datenbankfehler.h"
#include "platform/locale/Deutsch.h"

namespace {

constexpr double größteEinfach = std::numeric_limits<float>::max();
constexpr double größteWährung = 922337203685477.58;

[[noreturn]] void wirf(const QString& text) {
  throw Datenbankfehler(Datenbankfehler::Art::Wertebereich, text);
}

// Long texts are shortened, so that a message box stays readable.
QString zitat(const QString& text) {
  return QLatin1Char('"') + (text.size() > 40 ? text.left(40) + QStringLiteral("...") : text) +
         QLatin1Char('"');
}

[[noreturn]] void außerhalb(const Spalte& spalte, const QString& wert, const QString& grenzen) {
  wirf(QStringLiteral("Der Wert %1 passt nicht in das Feld \"%2\" (erlaubt ist %3).")
           .arg(wert, spalte.name, grenzen));
}

[[noreturn]] void keineZahl(const Spalte& spalte, const QString& was) {
  wirf(QStringLiteral("%1 ist keine Zahl und passt nicht in das Feld \"%2\".")
           .arg(was, spalte.name));
}

[[noreturn]] void keinDatum(const Spalte& spalte, const QString& was) {
  wirf(QStringLiteral("%1 ist kein Datum (TT.MM.JJJJ) und passt nicht in das Feld \"%2\".")
           .arg(was, spalte.name));
}

[[noreturn]] void leer(const Spalte& spalte) {
  wirf(QStringLiteral("Ein leerer Text passt nicht in das Feld \"%1\" (erlaubt ist %2).")
           .arg(spalte.name, spalte.typ == Feldtyp::Datum ? QStringLiteral("ein Datum")
                                                          : QStringLiteral("eine Zahl")));
}

bool istText(const QVariant& wert) {
  return wert.typeId() == QMetaType::QString || wert.typeId() == QMetaType::QByteArray ||
         wert.typeId() == QMetaType::QChar;
}

bool istGanz(const QVariant& wert) {
  switch (wert.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Short:
    case QMetaType::UShort:
      return true;
    default:
      return false;
  }
}

bool istGleitkomma(const QVariant& wert) {
  return wert.typeId() == QMetaType::Double || wert.typeId() == QMetaType::Float;
}

double gleitkomma(const QVariant& wert) {
  return wert.typeId() == QMetaType::Float ? Deutsch::einfach(wert.toFloat()) : wert.toDouble();
}

bool istDatum(const QVariant& wert) {
  return wert.typeId() == QMetaType::QDate || wert.typeId() == QMetaType::QDateTime;
}

bool istNull(const QVariant& wert) {
  return !wert.isValid() || wert.isNull() || (istDatum(wert) && !wert.toDate().isValid());
}

// A number with at most one comma or point and an exponent; nothing else around it but blanks.
std::optional<double> zahlAusText(const QString& text) {
  QString rein = text.trimmed();
  for (const QChar zeichen : rein) {
    const char16_t z = zeichen.unicode();
    const bool erlaubt = (z >= u'0' && z <= u'9') || z == u'+' || z == u'-' || z == u',' ||
                         z == u'.' || z == u'e' || z == u'E';
    if (!erlaubt) return std::nullopt;
  }
  rein.replace(QLatin1Char(','), QLatin1Char('.'));
  bool geht = false;
  const double wert = rein.toDouble(&geht);
  if (!geht || !std::isfinite(wert)) return std::nullopt;
  return wert;
}

double alsZahl(const Spalte& spalte, const QVariant& wert) {
  if (istGanz(wert)) return wert.toDouble();
  if (istGleitkomma(wert)) {
    const double zahl = gleitkomma(wert);
    if (!std::isfinite(zahl)) keineZahl(spalte, QStringLiteral("Das Rechenergebnis"));
    return zahl;
  }
  if (istText(wert)) {
    const QString text = wert.toString();
    if (text.trimmed().isEmpty()) leer(spalte);
    const auto zahl = zahlAusText(text);
    if (!zahl) keineZahl(spalte, zitat(text));
    return *zahl;
  }
  if (istDatum(wert)) keineZahl(spalte, Deutsch::datumText(wert.toDate()));
  keineZahl(spalte, QStringLiteral("Der Wert"));
}

QVariant ganz(const Spalte& spalte, const QVariant& wert) {
  const double klein = spalte.typ == Feldtyp::Kurz ? -32768.0 : -2147483648.0;
  const double groß = spalte.typ == Feldtyp::Kurz ? 32767.0 : 2147483647.0;
  const double zahl = Deutsch::gerade(alsZahl(spalte, wert));
  if (!(zahl >= klein && zahl <= groß)) {
    außerhalb(spalte, Deutsch::schlicht(zahl),
              Deutsch::schlicht(klein) + QStringLiteral(" bis ") + Deutsch::schlicht(groß));
  }
  return QVariant::fromValue<qint64>(static_cast<qint64>(zahl));
}

QVariant einfach(const Spalte& spalte, const QVariant& wert) {
  const double zahl = alsZahl(spalte, wert);
  if (std::abs(zahl) > größteEinfach) {
    außerhalb(spalte, QString::number(zahl), QStringLiteral("höchstens 3,4E+38"));
  }
  return Deutsch::einfach(zahl) + 0.0;  // + 0.0 turns a negative zero into zero
}

QVariant währung(const Spalte& spalte, const QVariant& wert) {
  const double zahl = alsZahl(spalte, wert);
  if (std::abs(zahl) > größteWährung) {
    außerhalb(spalte, Deutsch::schlicht(zahl), QStringLiteral("höchstens 922337203685477,58"));
  }
  return Deutsch::währungswert(zahl) + 0.0;
}

QVariant datum(const Spalte& spalte, const QVariant& wert) {
  QDate tag;
  if (istDatum(wert)) {
    tag = wert.toDate();
  } else if (istText(wert)) {
    const QString text = wert.toString();
    if (text.trimmed().isEmpty()) leer(spalte);
    tag = Feldregeln::isoDatum(text.trimmed().toUtf8());
    if (!tag.isValid()) tag = Deutsch::datum(text).value_or(QDate());
    if (!tag.isValid()) keinDatum(spalte, zitat(text));
  } else if (istGanz(wert) || istGleitkomma(wert)) {
    keinDatum(spalte, Deutsch::schlicht(gleitkomma(wert)));
  } else {
    keinDatum(spalte, QStringLiteral("Der Wert"));
  }
  if (tag.year() < 100 || tag.year() > 9999) {
    außerhalb(spalte, tag.toString(Qt::ISODate), QStringLiteral("ein Jahr von 100 bis 9999"));
  }
  return tag;
}

QVariant text(const Spalte& spalte, const QVariant& wert) {
  QString inhalt;
  if (istText(wert) || istGanz(wert)) {
    inhalt = wert.toString();
  } else if (istDatum(wert)) {
    inhalt = Deutsch::datumText(wert.toDate());
  } else if (istGleitkomma(wert)) {
    inhalt = Deutsch::schlicht(alsZahl(spalte, wert));
  } else {
    wirf(QStringLiteral("Der Wert ist kein Text und passt nicht in das Feld \"%1\".")
             .arg(spalte.name));
  }
  // Fewer UTF-16 units than allowed can't be too many characters.
  if (spalte.typ == Feldtyp::Text && spalte.länge > 0 && inhalt.size() > spalte.länge) {
    const int länge = Feldregeln::zeichen(inhalt);
    if (länge > spalte.länge) {
      wirf(QStringLiteral("Der Text für das Feld \"%1\" ist zu lang (%2 Zeichen, erlaubt sind %3).")
               .arg(spalte.name)
               .arg(länge)
               .arg(spalte.länge));
    }
  }
  if (inhalt.isNull()) inhalt = QStringLiteral("");
  return inhalt;
}

}  // namespace

QVariant Feldregeln::prüfe(const Spalte& spalte, const QVariant& wert) {
  if (istNull(wert)) return {};
  switch (spalte.typ) {
    case Feldtyp::Text:
    case Feldtyp::Memo:
      return text(spalte, wert);
    case Feldtyp::Kurz:
    case Feldtyp::Lang:
    case Feldtyp::Zähler:
      return ganz(spalte, wert);
    case Feldtyp::Einfach:
      return einfach(spalte, wert);
    case Feldtyp::Währung:
      return währung(spalte, wert);
    case Feldtyp::Datum:
      return datum(spalte, wert);
    case Feldtyp::Ausdruck:
      break;
  }
  return wert;
}

int Feldregeln::zeichen(QStringView text) {
  int anzahl = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) ++i;
    ++anzahl;
  }
  return anzahl;
}

bool Feldregeln::ganzPasst(Feldtyp typ, qint64 wert) {
  if (typ == Feldtyp::Kurz) return wert >= -32768 && wert <= 32767;
  return (typ == Feldtyp::Lang || typ == Feldtyp::Zähler) && wert >= -2147483648LL &&
         wert <= 2147483647LL;
}

bool Feldregeln::textPasst(Feldtyp typ, int länge, QByteArrayView text) {
  if (typ == Feldtyp::Memo) return true;
  if (typ == Feldtyp::Text) return länge <= 0 || text.size() <= länge;  // bytes >= characters
  return typ == Feldtyp::Datum && isoDatum(text).year() >= 100;
}

QByteArray Feldregeln::isoText(QDate tag) {
  int jahr = 0;
  int monat = 0;
  int nummer = 0;
  tag.getDate(&jahr, &monat, &nummer);
  if (jahr < 0 || jahr > 9999) return tag.toString(Qt::ISODate).toLatin1();
  const auto ziffer = [](int wert) { return static_cast<char>('0' + wert % 10); };
  const char text[10] = {ziffer(jahr / 1000),
                         ziffer(jahr / 100),
                         ziffer(jahr / 10),
                         ziffer(jahr),
                         '-',
                         ziffer(monat / 10),
                         ziffer(monat),
                         '-',
                         ziffer(nummer / 10),
                         ziffer(nummer)};
  return {text, sizeof text};
}

QDate Feldregeln::isoDatum(QByteArrayView text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return {};
  const auto zahl = [text](int von, int bis) {
    int wert = 0;
    for (int i = von; i < bis; ++i) {
      if (text[i] < '0' || text[i] > '9') return -1;
      wert = wert * 10 + (text[i] - '0');
    }
    return wert;
  };
  const int jahr = zahl(0, 4);
  const int monat = zahl(5, 7);
  const int tag = zahl(8, 10);
  if (jahr < 1 || monat < 1 || tag < 1) return {};
  return QDate(jahr, monat, tag);
}
