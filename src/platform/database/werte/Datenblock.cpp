#include "platform/database/werte/Datenblock.h"

#include "platform/database/werte/Datenbankfehler.h"
#include "platform/database/werte/Feldregeln.h"
#include "platform/locale/Deutsch.h"

namespace {

// Sums of clean decimals carry noise behind the fifteenth digit of their largest part; nobody wants
// to read it. Amounts of money need the digits, other numbers have nine at most.
double lesbar(double wert, bool geld) {
  return QString::number(wert, 'g', geld ? 15 : 12).toDouble();
}

// The shortest form, but with the two decimals that a price is written with.
QString geldbetrag(double wert) {
  const QString kurz = Deutsch::schlicht(wert);
  const qsizetype komma = kurz.indexOf(QLatin1Char(','));
  return komma >= 0 && kurz.size() - komma > 3 ? kurz : Deutsch::zahl(wert, 2);
}

void hole(const void* ort) {
#ifdef __GNUC__
  __builtin_prefetch(ort);
#else
  static_cast<void>(ort);
#endif
}

}  // namespace

int Datenblock::spaltenNummer(QStringView name) const {
  const auto& liste = *m_spalten;
  for (size_t i = 0; i < liste.size(); ++i) {
    if (liste[i].name == name) return static_cast<int>(i);
  }
  for (size_t i = 0; i < liste.size(); ++i) {
    if (name.compare(liste[i].name, Qt::CaseInsensitive) == 0) return static_cast<int>(i);
  }
  return -1;
}

bool Datenblock::istNull(int zeile, int spalte) const {
  return zelle(zeile, spalte).art == Art::Null;
}

bool Datenblock::istText(int zeile, int spalte) const {
  return zelle(zeile, spalte).art == Art::Text;
}

QVariant Datenblock::wert(int zeile, int spalteNummer) const {
  const Zelle& z = zelle(zeile, spalteNummer);
  switch (z.art) {
    case Art::Null:
      return {};
    case Art::Ganz:
      return QVariant::fromValue<qint64>(z.ganz);
    case Art::Gleitkomma:
      return z.gleit;
    case Art::Text:
      break;
  }
  const QByteArrayView text = rohtext(zeile, spalteNummer);
  const Feldtyp typ = spalte(spalteNummer).typ;
  if (typ == Feldtyp::Datum || (typ == Feldtyp::Ausdruck && text.size() == 10)) {
    const QDate tag = Feldregeln::isoDatum(text);
    if (tag.isValid()) return tag;
  }
  return QString::fromUtf8(text);
}

QByteArrayView Datenblock::rohtext(int zeile, int spalte) const {
  const Zelle& z = zelle(zeile, spalte);
  if (z.art != Art::Text) return {};
  return {m_texte.data() + z.ort, static_cast<qsizetype>(z.länge)};
}

double Datenblock::zahl(int zeile, int spalte) const {
  const Zelle& z = zelle(zeile, spalte);
  switch (z.art) {
    case Art::Ganz:
      return static_cast<double>(z.ganz);
    case Art::Gleitkomma:
      return z.gleit;
    case Art::Text:
      return Deutsch::val(QString::fromUtf8(rohtext(zeile, spalte)));
    case Art::Null:
      break;
  }
  return 0;
}

qint64 Datenblock::ganzzahl(int zeile, int spalte) const {
  const Zelle& z = zelle(zeile, spalte);
  if (z.art == Art::Ganz) return z.ganz;
  return Deutsch::ganzzahl(zahl(zeile, spalte));
}

QString Datenblock::anzeige(int zeile, int spalteNummer) const {
  const Zelle& z = zelle(zeile, spalteNummer);
  const bool geld = spalte(spalteNummer).typ == Feldtyp::Währung;
  switch (z.art) {
    case Art::Null:
      return {};
    case Art::Ganz:
      return geld ? geldbetrag(static_cast<double>(z.ganz)) : QString::number(z.ganz);
    case Art::Gleitkomma:
      return geld ? geldbetrag(lesbar(z.gleit, geld)) : Deutsch::schlicht(lesbar(z.gleit, geld));
    case Art::Text:
      break;
  }
  const QByteArrayView text = rohtext(zeile, spalteNummer);
  const Feldtyp typ = spalte(spalteNummer).typ;
  if (typ == Feldtyp::Datum || (typ == Feldtyp::Ausdruck && text.size() == 10)) {
    const QDate tag = Feldregeln::isoDatum(text);
    if (tag.isValid()) return Deutsch::datumText(tag);
  }
  return QString::fromUtf8(text);
}

void Datenblock::holeZellen(int zeile) const {
  constexpr int JeZeile = 64 / sizeof(Zelle);  // of the cache
  for (int i = 0; i < spalten(); i += JeZeile) hole(&zelle(zeile, i));
  hole(&zelle(zeile, spalten() - 1));
}

void Datenblock::holeTexte(int zeile) const {
  for (int i = 0; i < spalten(); ++i)
    if (const Zelle& z = zelle(zeile, i); z.art == Art::Text) hole(m_texte.data() + z.ort);
}

Daten Datenblock::geordnet(const std::vector<int>& zeilen) const {
  auto neu = std::make_shared<Datenblock>();
  neu->m_spalten = m_spalten;
  neu->m_texte = m_texte;
  neu->m_zeilen = static_cast<int>(zeilen.size());
  const size_t breite = m_spalten->size();
  neu->m_zellen.reserve(zeilen.size() * breite);
  for (const int zeile : zeilen) {
    const auto anfang = m_zellen.begin() + static_cast<std::ptrdiff_t>(zeile * breite);
    neu->m_zellen.insert(neu->m_zellen.end(), anfang, anfang + static_cast<std::ptrdiff_t>(breite));
  }
  return neu;
}

Datenblock::Bauer::Bauer(std::shared_ptr<const std::vector<Spalte>> spalten)
    : m_block(std::make_shared<Datenblock>()) {
  m_block->m_spalten = std::move(spalten);
}

Datenblock::Bauer::Bauer(std::vector<Spalte> spalten)
    : Bauer(std::make_shared<const std::vector<Spalte>>(std::move(spalten))) {}

Datenblock::Bauer::~Bauer() = default;

void Datenblock::Bauer::reserviere(size_t zellen, size_t textbytes) {
  m_block->m_zellen.reserve(zellen);
  m_block->m_texte.reserve(textbytes);
}

void Datenblock::Bauer::null() {
  Zelle z;
  z.ganz = 0;
  z.länge = 0;
  z.art = Art::Null;
  m_block->m_zellen.push_back(z);
}

void Datenblock::Bauer::ganz(qint64 wert) {
  Zelle z;
  z.ganz = wert;
  z.länge = 0;
  z.art = Art::Ganz;
  m_block->m_zellen.push_back(z);
}

void Datenblock::Bauer::gleitkomma(double wert) {
  Zelle z;
  z.gleit = wert;
  z.länge = 0;
  z.art = Art::Gleitkomma;
  m_block->m_zellen.push_back(z);
}

void Datenblock::Bauer::text(const char* utf8, qsizetype länge) {
  Zelle z;
  z.ort = m_block->m_texte.size();
  z.länge = static_cast<quint32>(länge);
  z.art = Art::Text;
  m_block->m_texte.insert(m_block->m_texte.end(), utf8, utf8 + länge);
  m_block->m_zellen.push_back(z);
}

void Datenblock::Bauer::text(QStringView text) {
  const QByteArray utf8 = text.toUtf8();
  this->text(utf8.constData(), utf8.size());
}

void Datenblock::Bauer::wert(const QVariant& wert) {
  if (!wert.isValid() || wert.isNull()) return null();
  switch (wert.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Short:
    case QMetaType::UShort:
      return ganz(wert.toLongLong());
    case QMetaType::Float:
      return gleitkomma(Deutsch::einfach(wert.toFloat()));
    case QMetaType::Double:
      return gleitkomma(wert.toDouble());
    case QMetaType::QDate:
    case QMetaType::QDateTime: {
      const QDate tag = wert.toDate();
      if (!tag.isValid()) return null();
      const QByteArray iso = Feldregeln::isoText(tag);
      return text(iso.constData(), iso.size());
    }
    default:
      return text(wert.toString());
  }
}

Daten Datenblock::Bauer::fertig() {
  const size_t breite = m_block->m_spalten->size();
  const size_t zellen = m_block->m_zellen.size();
  if (breite == 0 ? zellen != 0 : zellen % breite != 0) {
    throw Datenbankfehler(Datenbankfehler::Art::Allgemein,
                          QStringLiteral("Die Tabelle hat eine unvollständige Zeile."));
  }
  m_block->m_zeilen = breite == 0 ? 0 : static_cast<int>(zellen / breite);
  auto neu = std::make_shared<Datenblock>();
  neu->m_spalten = m_block->m_spalten;
  return std::exchange(m_block, std::move(neu));
}
