#include "platform/files/Textdatei.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <array>

#include "platform/files/Dateischreiber.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

// The codes 80 to 9F. The five unused ones stand for themselves, so that no byte is lost.
constexpr std::array<char16_t, 32> Mitte = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char zuByte(char16_t zeichen) {
  if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) return static_cast<char>(zeichen);
  for (size_t i = 0; i < Mitte.size(); ++i)
    if (Mitte[i] == zeichen) return static_cast<char>(0x80 + i);
  return '?';
}

QString nativ(const QString& pfad) { return QDir::toNativeSeparators(pfad); }

[[noreturn]] void lesefehler(const QString& pfad) {
  const QFileInfo info(pfad);
  if (!info.exists())
    throw Dateifehler(QStringLiteral("Die Datei %1 existiert nicht! Bitte prüfen Sie, ob sie "
                                     "verschoben oder umbenannt wurde.")
                          .arg(nativ(pfad)));
  if (info.isDir())
    throw Dateifehler(
        QStringLiteral("%1 ist ein Ordner und keine Datei. Bitte wählen Sie eine Datei aus.")
            .arg(nativ(pfad)));
  throw Dateifehler(QStringLiteral("Die Datei %1 kann nicht gelesen werden. Bitte prüfen Sie, ob "
                                   "Sie die Datei lesen dürfen und ob ein anderes Programm sie "
                                   "geöffnet hat.")
                        .arg(nativ(pfad)));
}

// Makes the new name in the folder survive a power cut. Systems that can't do it are left alone.
void ordnerSichern([[maybe_unused]] const QString& ordner) {
#ifdef Q_OS_UNIX
  const int griff = ::open(QFile::encodeName(ordner).constData(), O_RDONLY | O_DIRECTORY);
  if (griff < 0) return;
  ::fsync(griff);
  ::close(griff);
#endif
}

// QSaveFile writes beside the old file, flushes to the medium in commit() and renames.
void bytesSchreiben(const QString& pfad, const QByteArray& bytes) {
  QSaveFile datei(pfad);
  if (!datei.open(QIODevice::WriteOnly)) Textdatei::schreibfehler(pfad);
  if (datei.write(bytes) != bytes.size() || !datei.flush()) {
    datei.cancelWriting();
    Textdatei::schreibfehler(pfad);
  }
  if (!datei.commit()) Textdatei::schreibfehler(pfad);
  ordnerSichern(QFileInfo(pfad).absolutePath());
}

void bytesFlüchtig(const QString& pfad, const QByteArray& bytes) {
  Dateischreiber datei(pfad);
  datei.puffer().assign(bytes.constData(), static_cast<size_t>(bytes.size()));
  datei.fertig();
}

QByteArray zeilenbytes(const QStringList& zeilen) {
  QByteArray bytes;
  for (const QString& zeile : zeilen) {
    bytes += Textdatei::nachCp1252(zeile);
    bytes += "\r\n";
  }
  return bytes;
}

}  // namespace

namespace Textdatei {

void schreibfehler(const QString& pfad) {
  const QFileInfo info(pfad);
  const QString ordner = nativ(info.absolutePath());
  if (!info.absoluteDir().exists())
    throw Dateifehler(QStringLiteral("Die Datei %1 kann nicht geschrieben werden, weil es den "
                                     "Ordner %2 nicht gibt. Bitte legen Sie den Ordner an.")
                          .arg(nativ(pfad), ordner));
  if (info.isDir())
    throw Dateifehler(QStringLiteral("Die Datei %1 kann nicht geschrieben werden, weil es schon "
                                     "einen Ordner mit diesem Namen gibt. Bitte wählen Sie einen "
                                     "anderen Namen.")
                          .arg(nativ(pfad)));
  throw Dateifehler(QStringLiteral("Die Datei %1 kann nicht geschrieben werden. Bitte prüfen Sie, "
                                   "ob im Ordner %2 geschrieben werden darf und ob auf dem "
                                   "Datenträger noch Platz ist. Eine bisherige Datei dieses Namens "
                                   "ist unverändert geblieben.")
                        .arg(nativ(pfad), ordner));
}

QByteArray bytesLesen(const QString& pfad) {
  QFile datei(pfad);
  if (!datei.open(QIODevice::ReadOnly)) lesefehler(pfad);
  QByteArray bytes = datei.readAll();
  if (datei.error() != QFileDevice::NoError) lesefehler(pfad);
  return bytes;
}

bool existiert(const QString& pfad) { return QFileInfo(pfad).isFile(); }

QStringList lesen(const QString& pfad) {
  const QString text = lesenGanz(pfad);
  QStringList zeilen;
  qsizetype anfang = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar zeichen = text[i];
    if (zeichen != u'\r' && zeichen != u'\n') continue;
    zeilen += text.mid(anfang, i - anfang);
    if (zeichen == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
    anfang = i + 1;
  }
  if (anfang < text.size()) zeilen += text.mid(anfang);
  return zeilen;
}

QString lesenGanz(const QString& pfad) { return vonCp1252(bytesLesen(pfad)); }

void schreiben(const QString& pfad, const QStringList& zeilen) {
  bytesSchreiben(pfad, zeilenbytes(zeilen));
}

void schreibenGanz(const QString& pfad, const QString& text) {
  bytesSchreiben(pfad, nachCp1252(text));
}

void kopieren(const QString& von, const QString& nach) { bytesSchreiben(nach, bytesLesen(von)); }

void flüchtigSchreiben(const QString& pfad, const QStringList& zeilen) {
  bytesFlüchtig(pfad, zeilenbytes(zeilen));
}

void flüchtigSchreibenGanz(const QString& pfad, const QString& text) {
  bytesFlüchtig(pfad, nachCp1252(text));
}

void resteLöschen(const QString& ordner, const QStringList& namen) {
  // Six letters that are no word: neither all small, all capital nor small behind one capital.
  static const QRegularExpression zufall(
      QStringLiteral("\\.(?![A-Z]?[a-z]+\\z|[A-Z]+\\z)[A-Za-z]{6}\\z"));
  QStringList muster;
  for (const QString& name : namen) muster += name + QStringLiteral(".??????");
  QString geblieben;
  const QDir verzeichnis(ordner);
  for (const QString& name : verzeichnis.entryList(muster, QDir::Files | QDir::Hidden)) {
    if (!zufall.match(name).hasMatch()) continue;
    const QString pfad = verzeichnis.filePath(name);
    if (!QFile::remove(pfad) && geblieben.isEmpty()) geblieben = pfad;
  }
  if (!geblieben.isEmpty())
    throw Dateifehler(QStringLiteral("Die Datei %1 konnte nicht gelöscht werden. Bitte prüfen Sie, "
                                     "ob Sie die Datei löschen dürfen.")
                          .arg(nativ(geblieben)));
}

QByteArray nachCp1252(QStringView text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    // A pair of surrogates is one character and gives one "?".
    if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) ++i;
    bytes += zuByte(text[i].unicode());
  }
  return bytes;
}

QString vonCp1252(QByteArrayView bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    const char16_t zeichen = byte >= 0x80 && byte < 0xA0 ? Mitte[byte - 0x80U] : byte;
    text[i] = QChar(zeichen);
  }
  return text;
}

}  // namespace Textdatei
