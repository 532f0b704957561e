#pragma once

#include <QString>
#include <QStringList>
#include <exception>

// A file that can't be read or written. The text is German, names the file and says what to do.
class Dateifehler : public std::exception {
 public:
  explicit Dateifehler(QString text) : m_text(std::move(text)), m_utf8(m_text.toUtf8()) {}
  const QString& text() const { return m_text; }
  const char* what() const noexcept override { return m_utf8.constData(); }

 private:
  QString m_text;
  QByteArray m_utf8;
};

// Text files of the program: Windows-1252 with CR LF. A character outside the code page becomes
// "?". On reading LF and CR alone end a line too, and the five unused codes are kept as they are.
namespace Textdatei {

bool existiert(const QString& pfad);
// The lines without their ends. Throws Dateifehler.
QStringList lesen(const QString& pfad);
QString lesenGanz(const QString& pfad);  // as it stands, line ends as in the file
// Whole or not at all: written beside the old file, flushed to the medium, then put in its place.
// Throws Dateifehler; the old file is then as it was.
void schreiben(const QString& pfad, const QStringList& zeilen);
void schreibenGanz(const QString& pfad, const QString& text);
// The same, but not flushed: for scratch files and outputs that can be made again at any time.
void flüchtigSchreiben(const QString& pfad, const QStringList& zeilen);
void flüchtigSchreibenGanz(const QString& pfad, const QString& text);

// The file's bytes under another name, replacing what stands there, written as above. Throws
// Dateifehler.
void kopieren(const QString& von, const QString& nach);

// Deletes what writes of a killed program have left beside these files of the folder (names, with
// * and ?): "<name>.XXXXXX" with six random letters. What people call a copy ("<name>.backup")
// stays, and with it the one remainder in twenty that looks like a word. Throws Dateifehler for the
// first one that can't be deleted, after trying all.
void resteLöschen(const QString& ordner, const QStringList& namen);

// The bytes of any file, unchanged. Throws Dateifehler.
QByteArray bytesLesen(const QString& pfad);
// Throws the Dateifehler of a file that can't be written, with the reason as far as it can be seen.
[[noreturn]] void schreibfehler(const QString& pfad);

QByteArray nachCp1252(QStringView text);
QString vonCp1252(QByteArrayView bytes);

}  // namespace Textdatei
