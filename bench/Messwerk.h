#pragma once

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QString>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

// What the benchmarks share. Each measures one piece of work twice in one run: by the program's own
// routine ("Name/programm/N") and by a bare SQLite loop that does the least possible
// ("Name/blank/N"). The closing table gives the ratio.

// The folder of a copy of the sample operation of this size, made once and kept in the build.
// Opens it as the program does (AppPfad, DB, main list); the copy is the program's own until the
// next call.
void betriebÖffnen(int völker);
// The next betriebÖffnen takes a fresh copy; for a benchmark that changes more than it adds.
void betriebVerwerfen();

// Runs the registered benchmarks and prints the table of ratios; the program's exit code.
int messen(int argc, char** argv);

// A second, bare connection to the open database, opened with the program's own settings.
class Blank {
 public:
  explicit Blank(const QString& pfad);
  ~Blank();
  Blank(const Blank&) = delete;
  Blank& operator=(const Blank&) = delete;

  class Anweisung {
   public:
    Anweisung(sqlite3* db, const char* sql) : m_db(db) {
      if (sqlite3_prepare_v3(db, sql, -1, SQLITE_PREPARE_PERSISTENT, &m_s, nullptr) != SQLITE_OK)
        throw std::runtime_error(std::string(sql) + ": " + sqlite3_errmsg(db));
    }
    ~Anweisung() { sqlite3_finalize(m_s); }
    Anweisung(const Anweisung&) = delete;
    Anweisung& operator=(const Anweisung&) = delete;

    void binde(int nummer, qint64 wert) { sqlite3_bind_int64(m_s, nummer, wert); }
    void binde(int nummer, double wert) { sqlite3_bind_double(m_s, nummer, wert); }
    void binde(int nummer, const char* wert) {
      sqlite3_bind_text(m_s, nummer, wert, -1, SQLITE_TRANSIENT);
    }
    // Steps to the end and touches every cell; returns the number of rows.
    int lese();
    // The same, and adds the text of this column of each row.
    int leseMit(int spalte, std::vector<std::string>& texte);
    // The first cell of the first row as text; empty for null and for no rows.
    std::string text() {
      std::string wert;
      if (sqlite3_step(m_s) == SQLITE_ROW)
        if (const auto* zeichen = sqlite3_column_text(m_s, 0))
          wert = reinterpret_cast<const char*>(zeichen);
      sqlite3_reset(m_s);
      return wert;
    }
    void führeAus() {
      if (lese() < 0) throw std::runtime_error(sqlite3_errmsg(m_db));
    }

   private:
    void berühre();  // every cell of the row

    sqlite3* m_db;
    sqlite3_stmt* m_s = nullptr;
  };

  // The values of a field, each once: jumps from one to the next along the field's index.
  class Sprungliste {
   public:
    Sprungliste(sqlite3* db, const std::string& tabelle, const std::string& feld)
        : m_erster(db, ("select min(" + feld + ") from " + tabelle).c_str()),
          m_nächster(
              db,
              ("select min(" + feld + ") from " + tabelle + " where " + feld + " > ?1").c_str()) {}
    void lese() {
      std::string text = m_erster.text();
      while (!text.empty()) {
        m_nächster.binde(1, text.c_str());
        text = m_nächster.text();
      }
    }

   private:
    Anweisung m_erster;
    Anweisung m_nächster;
  };

  sqlite3* db() const { return m_db; }
  void führeAus(const char* sql);

 private:
  sqlite3* m_db = nullptr;
};
