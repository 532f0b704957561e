#pragma once

#include <QString>
#include <QTemporaryFile>
#include <string>

// Writes an output piece by piece, beside the old file, whose place it takes with fertig(). It
// isn't flushed to the medium: lists, reports and scratch files can be made again at any time. What
// must survive a power cut is written by Textdatei. All functions throw Dateifehler, with the file
// as it was before.
class Dateischreiber {
 public:
  explicit Dateischreiber(const QString& pfad);
  ~Dateischreiber();  // without fertig(): nothing is written
  Dateischreiber(const Dateischreiber&) = delete;
  Dateischreiber& operator=(const Dateischreiber&) = delete;

  // What is to be written is added here; weiter() hands it on when it has become long.
  std::string& puffer() { return m_puffer; }
  void weiter() {
    if (m_puffer.size() >= Stück) leeren();
  }
  void fertig();

 private:
  static constexpr size_t Stück = 1 << 20;
  void leeren();

  QString m_pfad;
  QString m_ziel;
  QTemporaryFile m_datei;  // goes by itself where it isn't put in the place of the old one
  std::string m_puffer;
};
