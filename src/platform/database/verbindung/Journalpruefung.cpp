#include "platform/database/verbindung/Journalpruefung.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <optional>

#include "platform/database/werte/Datenbankfehler.h"

namespace {

constexpr qint64 Kopflänge = 100;  // of a database
constexpr int OrtSeitengröße = 16;
constexpr int OrtZähler = 24;
constexpr int OrtSeitenzahl = 28;
constexpr int OrtGültigkeit = 92;  // the counter at which the number of pages was written

quint32 zahl(const QByteArray& bytes, int ort) {
  return qFromBigEndian<quint32>(reinterpret_cast<const uchar*>(bytes.constData()) + ort);
}

quint32 seitengröße(const QByteArray& kopf) {
  const auto größe =
      qFromBigEndian<quint16>(reinterpret_cast<const uchar*>(kopf.constData()) + OrtSeitengröße);
  return größe == 1 ? 65536 : größe;
}

bool istZweierpotenz(quint32 z, quint32 von) {
  return z >= von && z <= 65536 && (z & (z - 1)) == 0;
}

// A journal is made of parts: a header in a sector of its own, then records of a page's number, its
// former content and a check sum.
struct Teilkopf {
  static constexpr int Länge = 28;
  quint32 sätze = 0;
  quint32 anfangsseiten = 0;  // of the database before the change
  quint32 sektor = 0;
  quint32 seite = 0;
};

std::optional<Teilkopf> liesTeilkopf(QFile& datei, qint64 ort) {
  static const QByteArray Kennung = QByteArray::fromHex("d9d505f920a163d7");
  if (!datei.seek(ort)) return std::nullopt;
  const QByteArray kopf = datei.read(Teilkopf::Länge);
  if (kopf.size() < Teilkopf::Länge || !kopf.startsWith(Kennung)) return std::nullopt;
  const Teilkopf teil{zahl(kopf, 8), zahl(kopf, 16), zahl(kopf, 20), zahl(kopf, 24)};
  if (!istZweierpotenz(teil.sektor, 32) || !istZweierpotenz(teil.seite, 512)) return std::nullopt;
  return teil;
}

// The beginning of the database's first page as the journal keeps it; none where the change hadn't
// come to that page.
QByteArray ersteSeite(QFile& datei, const Teilkopf& anfang) {
  std::optional<Teilkopf> teil = anfang;
  qint64 ort = 0;
  while (teil) {
    ort += teil->sektor;
    const qint64 satz = qint64{teil->seite} + 8;
    const qint64 passen = (datei.size() - ort) / satz;
    // A header that wasn't finished yet says 0 or all ones: the records reach to the end.
    const bool offen = teil->sätze == 0 || teil->sätze == 0xffffffffU;
    const qint64 sätze = offen ? passen : std::min<qint64>(teil->sätze, passen);
    for (qint64 i = 0; i < sätze; ++i, ort += satz) {
      if (!datei.seek(ort)) return {};
      const QByteArray nummer = datei.read(4);
      if (nummer.size() == 4 && zahl(nummer, 0) == 1) return datei.read(Kopflänge);
    }
    if (offen) return {};
    ort = (ort + teil->sektor - 1) / teil->sektor * teil->sektor;
    teil = liesTeilkopf(datei, ort);
  }
  return {};
}

}  // namespace

namespace Journalprüfung {

QString journal(const QString& datenbank) { return datenbank + QStringLiteral("-journal"); }

bool gehörtDazu(const QString& datenbank) {
  QFile datei(journal(datenbank));
  QFile bank(datenbank);
  if (!datei.open(QIODevice::ReadOnly) || !bank.open(QIODevice::ReadOnly)) return true;
  const auto anfang = liesTeilkopf(datei, 0);
  const QByteArray kopf = bank.read(Kopflänge);
  if (!anfang || kopf.size() < Kopflänge) return true;
  if (anfang->seite != seitengröße(kopf)) return false;
  const QByteArray vorher = ersteSeite(datei, *anfang);
  const quint32 zähler = zahl(kopf, OrtZähler);
  if (vorher.size() == Kopflänge) {
    const quint32 stand = zahl(vorher, OrtZähler);
    return zähler == stand || zähler == stand + 1;
  }
  return zahl(kopf, OrtGültigkeit) != zähler || zahl(kopf, OrtSeitenzahl) == anfang->anfangsseiten;
}

QString legeBeiseite(const QString& datenbank) {
  const QString alt = journal(datenbank) + QStringLiteral(".alt");
  QString ziel = alt;
  for (int i = 2; QFileInfo::exists(ziel); ++i) ziel = alt + QString::number(i);
  if (!QFile::rename(journal(datenbank), ziel)) {
    throw Datenbankfehler(
        Datenbankfehler::Art::NurLesen,
        QStringLiteral("Die Datei \"%1\" gehört zu einer anderen Datenbank und konnte nicht "
                       "beiseite gelegt werden. Bitte verschieben Sie sie in einen anderen Ordner "
                       "und starten Sie TOVA neu.")
            .arg(QDir::toNativeSeparators(journal(datenbank))));
  }
  return ziel;
}

}  // namespace Journalprüfung
