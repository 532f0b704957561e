#pragma once

#include <QHash>
#include <functional>
#include <memory>

#include "platform/database/dialekt/Dialekt.h"

struct sqlite3_stmt;

// A statement ready to run, with what was learnt about it.
struct Anweisung {
  QString text;  // as it was given
  Dialekt::Übersetzt übersetzt;
  sqlite3_stmt* stmt = nullptr;
  // The columns of the rows it gives, and the field of übersetzt.tabelle behind each of them
  // (empty for expressions).
  std::shared_ptr<const std::vector<Spalte>> spalten;
  QStringList felder;
  std::vector<QByteArray> texte;  // the bound ones, which the engine reads while it runs
  int vorbereitungen = 0;         // how often the engine has prepared it anew
  size_t letzteZellen = 0;        // size of the last result, to make room for the next one
  size_t letzteTextbytes = 0;
  bool inBenutzung = false;
  quint64 zuletzt = 0;

  Anweisung() = default;
  ~Anweisung();
  Anweisung(const Anweisung&) = delete;
  Anweisung& operator=(const Anweisung&) = delete;
};

// The statements of a connection by their text; those not used for long go first. A statement in
// use is not handed out again: a second one is made for the time.
class Anweisungen {
 public:
  using Macher = std::function<std::shared_ptr<Anweisung>(const QString& text)>;

  // Holds a statement while it runs; resets it and drops its bound values afterwards.
  class Leihe {
   public:
    explicit Leihe(std::shared_ptr<Anweisung> anweisung);
    ~Leihe();
    Leihe(const Leihe&) = delete;
    Leihe& operator=(const Leihe&) = delete;
    Anweisung* operator->() const { return m_anweisung.get(); }
    Anweisung& operator*() const { return *m_anweisung; }

   private:
    std::shared_ptr<Anweisung> m_anweisung;
  };

  Leihe leihe(const QString& text, const Macher& mache);
  void leere() { m_vorrat.clear(); }

 private:
  static constexpr int höchstens = 300;
  void räume();

  QHash<QString, std::shared_ptr<Anweisung>> m_vorrat;
  quint64 m_zähler = 0;
};
