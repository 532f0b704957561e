#pragma once

#include <QFileDevice>
#include <QString>
#include <memory>
#include <string>

// Writes a long file piece by piece. All functions throw Dateifehler, with the file as it was
// before when it is written whole or not at all.
class Dateischreiber {
 public:
  enum class Art {
    GanzOderGarNicht,  // beside the old file, put in its place by fertig()
    Fluechtig  // in place and not flushed to the medium: for outputs that last until closing
  };

  explicit Dateischreiber(const QString& pfad, Art art = Art::GanzOderGarNicht);
  ~Dateischreiber();  // without fertig(): nothing is written
  Dateischreiber(const Dateischreiber&) = delete;
  Dateischreiber& operator=(const Dateischreiber&) = delete;

  // What is to be written is added here; weiter() hands it on when it has become long.
  std::string& puffer() { return m_puffer; }
  void weiter() {
    if (m_puffer.size() >= Stueck) leeren();
  }
  void fertig();

 private:
  static constexpr size_t Stueck = 1 << 20;
  void leeren();

  QString m_pfad;
  std::unique_ptr<QFileDevice> m_datei;
  std::string m_puffer;
  Art m_art;
  bool m_fertig = false;
};
