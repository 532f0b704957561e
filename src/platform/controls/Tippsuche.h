#pragma once

#include <QString>
#include <functional>

// Jump typing in a list and in a choice: which text the keys mean. Keys that follow each other
// within a second are one word, so that "22" finds 22 and not the next text that begins with 2.
class Tippsuche {
 public:
  // Whether the text at that place begins with the word, letter case aside.
  using Beginnt = std::function<bool(int ort, const QString& wort)>;

  // One more key. Gives the place of the text that is meant, searched from the current one (-1 for
  // none) round to it, or -1 when there is none. The same letter again goes to the next text that
  // begins with it, where no text begins with it twice. What follows a word that fits nothing
  // belongs to that word and finds nothing either.
  int taste(const QString& zeichen, int anzahl, int aktuell, const Beginnt& beginnt);

  // The next key begins a new word.
  void neuBeginnen() { m_wort.clear(); }

 private:
  QString m_wort;
  qint64 m_zeit = 0;
};
