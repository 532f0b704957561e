// The report of all events, from the tables to the hand-over file. The bare loop reads the same
// fields, sorts ready integers and writes the same bytes.

#include <QFile>
#include <algorithm>
#include <array>
#include <utility>

#include "Messwerk.h"
#include "core/globals.h"
#include "evaluations/Ereignisbericht.h"
#include "output/Uebergabe.h"

using namespace TZ_Variablen;

namespace {

// All bookings of all colonies, with number and name, day by day.
void bericht() {
  Auswertung::Eingaben e;
  e.setWahl("optitieraus", 1);
  e.setAn("kontier", 0, true);
  e.setAn("kontier", 1, true);
  Auswertung::Lauf lauf{DB, e};
  Übergabe::schreiben(Übergabe::datei(), Ereignisbericht::liste(lauf));
}

void Ereignisse_programm(benchmark::State& zustand) {
  betriebÖffnen(static_cast<int>(zustand.range(0)));
  for (auto _ : zustand) bericht();
}

// yyyymmdd and the colony.
quint64 schlüssel(sqlite3_stmt* zeile) {
  const auto* tag = reinterpret_cast<const char*>(sqlite3_column_text(zeile, 1));
  quint64 zahl = 0;
  for (; tag != nullptr && *tag != 0; ++tag)
    if (*tag != '-') zahl = zahl * 10 + static_cast<quint64>(*tag - '0');
  return zahl << 32 | static_cast<quint64>(sqlite3_column_int64(zeile, 0));
}

// Every field of the report, touched; the keys are kept.
void blankLesen(sqlite3* db, std::vector<std::pair<quint64, int>>& zeilen) {
  for (const auto& art : Ereignisbericht::arten()) {
    QString sql = "select Volk_ID, Datum";
    for (const auto& feld : art.felder) sql += ", \"" + feld.name + '"';
    sql += " from \"" + art.tabelle + '"';
    sqlite3_stmt* s = nullptr;
    if (sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &s, nullptr) != SQLITE_OK)
      throw std::runtime_error(sqlite3_errmsg(db));
    while (sqlite3_step(s) == SQLITE_ROW) {
      zeilen.emplace_back(schlüssel(s), static_cast<int>(zeilen.size()));
      for (int i = 0; i < art.felder.size(); ++i) {
        if (sqlite3_column_type(s, 2 + i) == SQLITE_TEXT)
          benchmark::DoNotOptimize(sqlite3_column_text(s, 2 + i));
        else
          benchmark::DoNotOptimize(sqlite3_column_double(s, 2 + i));
      }
    }
    sqlite3_finalize(s);
  }
}

void blankSchreiben(const QByteArray& inhalt) {
  QFile datei(AppPfad + "blank.txt");
  if (!datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) throw std::runtime_error("open");
  constexpr qsizetype Stück = 1 << 20;
  for (qsizetype i = 0; i < inhalt.size(); i += Stück)
    datei.write(inhalt.constData() + i, std::min(Stück, inhalt.size() - i));
}

void Ereignisse_blank(benchmark::State& zustand) {
  betriebÖffnen(static_cast<int>(zustand.range(0)));
  bericht();
  QFile fertig(Übergabe::datei());
  if (!fertig.open(QIODevice::ReadOnly)) throw std::runtime_error("open");
  const QByteArray inhalt = fertig.readAll();
  const Blank blank(DatenbankPfad);
  for (auto _ : zustand) {
    std::vector<std::pair<quint64, int>> zeilen;
    blankLesen(blank.db(), zeilen);
    std::sort(zeilen.begin(), zeilen.end());
    blankSchreiben(inhalt);
    benchmark::DoNotOptimize(zeilen.data());
  }
}

void größen(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(Ereignisse_programm)->Name("Ereignisbericht/programm")->Apply(größen);
BENCHMARK(Ereignisse_blank)->Name("Ereignisbericht/blank")->Apply(größen);

}  // namespace
