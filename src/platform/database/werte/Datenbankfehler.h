#pragma once

#include <QString>
#include <exception>

// A statement or an operation of the database that failed. It is caught in one place, where an
// event enters a form (platform/controls/Ereignis.h).
class Datenbankfehler : public std::exception {
 public:
  enum class Art {
    Allgemein,       // none of the others
    Anweisung,       // the statement can't be read or names what isn't there
    Wertebereich,    // a text too long for its field, a number out of its range, no date
    NurLesen,        // the file or the medium can't be written
    Voll,            // no room on the medium
    Gesperrt,        // another program holds the file
    KeineDatenbank,  // the file is something else, is damaged, cut short or can't be opened
    Datenträger      // the medium or the engine reports a failure
  };

  Datenbankfehler(Art art, QString text, QString anweisung = {});

  Art art() const { return m_art; }
  // German, for the user: what is wrong and, where it helps, what to do.
  const QString& text() const { return m_text; }
  // The statement as it was given; empty where none was run.
  const QString& anweisung() const { return m_anweisung; }
  // A failure of medium or engine rather than of a rule: what an action has written before it can't
  // be relied on, so a Sammelschreiben keeps nothing of it.
  bool istStörung() const;
  // True when the writes of the whole surrounding Sammelschreiben were lost with the failure.
  bool allesVerworfen() const { return m_allesVerworfen; }
  void setAllesVerworfen(bool ja) { m_allesVerworfen = ja; }
  const char* what() const noexcept override { return m_utf8.constData(); }

 private:
  Art m_art;
  QString m_text;
  QString m_anweisung;
  QByteArray m_utf8;
  bool m_allesVerworfen = false;
};
