#include "Messwerk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <map>
#include <memory>

#include "Betrieb.h"
#include "core/globals.h"
#include "core/settings.h"
#include "platform/database/verbindung/Funktionen.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

const QDate messtag(2026, 8, 31);

// 200 bookings for each colony.
QString vorlage(int völker) {
  const QString ordner = QStringLiteral(TOVA_BENCH_DATEN "/%1").arg(völker);
  if (QFile::exists(ordner + "/Einstellungen.TV2")) return ordner;
  QDir(ordner).removeRecursively();
  QDir().mkpath(ordner);
  std::fprintf(stderr, "Making the sample operation with %d colonies ...\n", völker);
  Betriebsgröße größe;
  größe.völker = völker;
  größe.jahre = 5;
  größe.buchungenJeVolk = 200;
  größe.heute = messtag;
  betriebAnlegen(ordner, größe);
  DB.Close();
  Arbeitsbereich.Close();
  return ordner;
}

std::unique_ptr<QTemporaryDir> arbeitskopie;
int offen = 0;

}  // namespace

void betriebÖffnen(int völker) {
  if (offen == völker) return;
  DB.Close();
  Arbeitsbereich.Close();
  const QString von = vorlage(völker);
  arbeitskopie = std::make_unique<QTemporaryDir>(QStringLiteral(TOVA_BENCH_DATEN "/kopie-XXXXXX"));
  zurücksetzen();
  AppPfad = arbeitskopie->path() + "/";
  DatenbankPfad = AppPfad + "TOVA2.MDB";
  for (const char* datei : {"TOVA2.MDB", "Einstellungen.TV2"})
    QFile::copy(von + "/" + datei, AppPfad + datei);
  HeuteText = Deutsch::datumText(messtag);
  EinstellungenLesen();
  DB = Arbeitsbereich.OpenDatabase(DatenbankPfad);
  offen = völker;
}

void betriebVerwerfen() { offen = 0; }

Blank::Blank(const QString& pfad) {
  if (sqlite3_open_v2(pfad.toUtf8().constData(), &m_db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                      nullptr) != SQLITE_OK)
    throw std::runtime_error("open");
  führeAus(
      "pragma foreign_keys = off; pragma temp_store = memory; pragma cache_size = -65536; "
      "pragma secure_delete = off; pragma synchronous = extra");
  Funktionen::registriereFunktionen(m_db);
}

Blank::~Blank() { sqlite3_close(m_db); }

void Blank::führeAus(const char* sql) {
  char* fehler = nullptr;
  if (sqlite3_exec(m_db, sql, nullptr, nullptr, &fehler) != SQLITE_OK)
    throw std::runtime_error(fehler);
}

void Blank::Anweisung::berühre() {
  const int spalten = sqlite3_column_count(m_s);
  for (int i = 0; i < spalten; ++i) {
    switch (sqlite3_column_type(m_s, i)) {
      case SQLITE_INTEGER:
        benchmark::DoNotOptimize(sqlite3_column_int64(m_s, i));
        break;
      case SQLITE_FLOAT:
        benchmark::DoNotOptimize(sqlite3_column_double(m_s, i));
        break;
      case SQLITE_TEXT:
        benchmark::DoNotOptimize(sqlite3_column_text(m_s, i));
        benchmark::DoNotOptimize(sqlite3_column_bytes(m_s, i));
        break;
      default:
        break;
    }
  }
}

int Blank::Anweisung::lese() {
  int zeilen = 0;
  int ergebnis;
  for (; (ergebnis = sqlite3_step(m_s)) == SQLITE_ROW; ++zeilen) berühre();
  sqlite3_reset(m_s);
  return ergebnis == SQLITE_DONE ? zeilen : -1;
}

int Blank::Anweisung::leseMit(int spalte, std::vector<std::string>& texte) {
  int zeilen = 0;
  int ergebnis;
  for (; (ergebnis = sqlite3_step(m_s)) == SQLITE_ROW; ++zeilen) {
    berühre();
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_s, spalte));
    texte.emplace_back(text == nullptr ? "" : text);
  }
  sqlite3_reset(m_s);
  return ergebnis == SQLITE_DONE ? zeilen : -1;
}

namespace {

// Prints the usual table and collects the pairs for the ratios.
class Verhältnisse : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& läufe) override {
    ConsoleReporter::ReportRuns(läufe);
    for (const Run& lauf : läufe) {
      if (lauf.run_type != Run::RT_Iteration || lauf.error_occurred) continue;
      const std::string name = lauf.run_name.function_name;  // "Name/programm"
      const size_t strich = name.rfind('/');
      const std::string schlüssel = name.substr(0, strich) + "/" + lauf.run_name.args;
      const double zeit = lauf.real_accumulated_time / static_cast<double>(lauf.iterations);
      (name.substr(strich + 1) == "blank" ? m_blank : m_programm)[schlüssel] = zeit;
    }
  }
  void Finalize() override {
    std::printf("\n%-44s %12s %12s %8s\n", "work/colonies", "program ms", "bare ms", "ratio");
    for (const auto& [name, zeit] : m_programm) {
      const auto blank = m_blank.find(name);
      if (blank == m_blank.end())
        std::printf("%-44s %12.3f %12s %8s\n", name.c_str(), zeit * 1e3, "-", "-");
      else
        std::printf("%-44s %12.3f %12.3f %8.2f\n", name.c_str(), zeit * 1e3, blank->second * 1e3,
                    zeit / blank->second);
    }
  }

 private:
  std::map<std::string, double> m_programm;
  std::map<std::string, double> m_blank;
};

}  // namespace

int messen(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  Verhältnisse bericht;
  benchmark::RunSpecifiedBenchmarks(&bericht);
  DB.Close();
  Arbeitsbereich.Close();
  arbeitskopie.reset();
  return 0;
}
