#pragma once

#include <QString>

class QWidget;

// The dialogs that ask for a file or a folder, in German. A closed dialog gives an empty path.
// Filters as "Bilder (*.jpg *.png)", several joined by ";;".
namespace Dateidialoge {

// An existing file.
QString öffnen(QWidget* über, const QString& titel, const QString& ordner, const QString& filter);
// A file to write; vorschlag is a name or a whole path. An existing file is only given after the
// user agreed to overwrite it. endung (without a point) is added to a name that has none; without
// one it is that of the filter that the user has chosen.
QString speichern(QWidget* über, const QString& titel, const QString& vorschlag,
                  const QString& filter, const QString& endung = {});
// Where people keep their own files.
QString dokumente();
QString ordnerWählen(QWidget* über, const QString& titel, const QString& ordner);

// For tests: while one lives, no dialog is shown; each call takes the next answer (empty: closed).
class Probe {
 public:
  Probe();
  ~Probe();
  Probe(const Probe&) = delete;
  Probe& operator=(const Probe&) = delete;

  Probe& antwort(const QString& pfad);
  // The next dialog must have this title.
  Probe& antwort(const QString& titel, const QString& pfad);
  // Empty when all dialogs came as expected; else one line for each difference. Clears the queue.
  QString fehler();

  struct Innen;

 private:
  Innen* m_innen;
};

}  // namespace Dateidialoge
