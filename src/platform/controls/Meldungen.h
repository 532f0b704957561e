#pragma once

#include <QString>

class QWidget;

// The two message boxes of the program, with German buttons. Line breaks may be CR LF or LF.
namespace Meldungen {

enum class Vorgabe { Ja, Nein };

void Hinweis(const QString& text, QWidget* über = nullptr);
// True for Ja. Esc and closing the box mean Nein.
bool Frage(const QString& text, Vorgabe vorgabe = Vorgabe::Ja, QWidget* über = nullptr);

// For tests: while one lives, boxes are not shown but compared with a queue. A box that was not
// expected, and an expectation that is left over at the end, are reported by fehler().
class Probe {
 public:
  Probe();
  ~Probe();
  Probe(const Probe&) = delete;
  Probe& operator=(const Probe&) = delete;

  // The next box is a Hinweis with this text; line breaks are compared as LF.
  Probe& hinweis(const QString& text);
  // A Hinweis that contains the text.
  Probe& hinweisMit(const QString& teil);
  // The next box is a Frage with this text and this default; it gets this answer.
  Probe& frage(const QString& text, bool ja, Vorgabe vorgabe = Vorgabe::Ja);
  Probe& frageMit(const QString& teil, bool ja);
  // Empty when all came as expected; else one line for each difference. Clears the queue.
  QString fehler();

  struct Innen;

 private:
  Innen* m_innen;
};

}  // namespace Meldungen
