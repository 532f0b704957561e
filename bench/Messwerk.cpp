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
#include "platform/database/Kollation.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

const QDate messtag(2026, 8, 31);

// 200 bookings for each colony.
QString vorlage(int voelker) {
  const QString ordner = QStringLiteral(TOVA_BENCH_DATEN "/%1").arg(voelker);
  if (QFile::exists(ordner + "/Einstellungen.TV2")) return ordner;
  QDir(ordner).removeRecursively();
  QDir().mkpath(ordner);
  std::fprintf(stderr, "Making the sample operation with %d colonies ...\n", voelker);
  Betriebsgroesse groesse;
  groesse.voelker = voelker;
  groesse.jahre = 5;
  groesse.buchungenJeVolk = 200;
  groesse.heute = messtag;
  betriebAnlegen(ordner, groesse);
  DB.Close();
  Arbeitsbereich.Close();
  return ordner;
}

std::unique_ptr<QTemporaryDir> arbeitskopie;
int offen = 0;

int kollation(void*, int n1, const void* a, int n2, const void* b) {
  return Kollation::vergleicheUtf8(QByteArrayView(static_cast<const char*>(a), n1),
                                   QByteArrayView(static_cast<const char*>(b), n2));
}

}  // namespace

void betriebOeffnen(int voelker) {
  if (offen == voelker) return;
  DB.Close();
  Arbeitsbereich.Close();
  const QString von = vorlage(voelker);
  arbeitskopie = std::make_unique<QTemporaryDir>(QStringLiteral(TOVA_BENCH_DATEN "/kopie-XXXXXX"));
  zuruecksetzen();
  AppPfad = arbeitskopie->path() + "/";
  DatenbankPfad = AppPfad + "TOVA2.MDB";
  for (const char* datei : {"TOVA2.MDB", "Einstellungen.TV2"})
    QFile::copy(von + "/" + datei, AppPfad + datei);
  HeuteText = Deutsch::datumText(messtag);
  EinstellungenLesen();
  DB = Arbeitsbereich.OpenDatabase(DatenbankPfad);
  offen = voelker;
}

void betriebVerwerfen() { offen = 0; }

Blank::Blank(const QString& pfad) {
  if (sqlite3_open_v2(pfad.toUtf8().constData(), &m_db, SQLITE_OPEN_READWRITE, nullptr) !=
      SQLITE_OK)
    throw std::runtime_error("open");
  sqlite3_create_collation(m_db, "tova", SQLITE_UTF8, nullptr, kollation);
  fuehreAus("pragma journal_mode=delete; pragma synchronous=full; pragma cache_size=-65536");
}

Blank::~Blank() { sqlite3_close(m_db); }

void Blank::fuehreAus(const char* sql) {
  char* fehler = nullptr;
  if (sqlite3_exec(m_db, sql, nullptr, nullptr, &fehler) != SQLITE_OK)
    throw std::runtime_error(fehler);
}

int Blank::Anweisung::lese() {
  int zeilen = 0;
  int ergebnis;
  while ((ergebnis = sqlite3_step(m_s)) == SQLITE_ROW) {
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
    ++zeilen;
  }
  sqlite3_reset(m_s);
  return ergebnis == SQLITE_DONE ? zeilen : -1;
}

namespace {

// Prints the usual table and collects the pairs for the ratios.
class Verhaeltnisse : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& laeufe) override {
    ConsoleReporter::ReportRuns(laeufe);
    for (const Run& lauf : laeufe) {
      if (lauf.run_type != Run::RT_Iteration || lauf.error_occurred) continue;
      const std::string name = lauf.run_name.function_name;  // "Name/programm"
      const size_t strich = name.rfind('/');
      const std::string schluessel = name.substr(0, strich) + "/" + lauf.run_name.args;
      const double zeit = lauf.real_accumulated_time / static_cast<double>(lauf.iterations);
      (name.substr(strich + 1) == "blank" ? m_blank : m_programm)[schluessel] = zeit;
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
  Verhaeltnisse bericht;
  benchmark::RunSpecifiedBenchmarks(&bericht);
  DB.Close();
  Arbeitsbereich.Close();
  arbeitskopie.reset();
  return 0;
}
