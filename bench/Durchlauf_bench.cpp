// Evaluations: one pass over 2,000,000 rows through a visitor, beside a bare loop that asks and
// adds the same; the same list sorted by its columns; a cross table.

#include <algorithm>
#include <array>
#include <numeric>

#include "Messwerk.h"
#include "core/globals.h"
#include "platform/controls/GridModell.h"

using namespace TZ_Variablen;

namespace {

constexpr int Zeilen = 2'000'000;

// A table of harvests in a database of its own, made once.
Database& tabelle() {
  static Database fertig = [] {
    betriebÖffnen(1000);
    const QString pfad = AppPfad + "Durchlauf.MDB";
    static Workspace bereich;
    Database db = bereich.CreateDatabase(pfad);
    db.Execute(
        "create table Ernte(Volk_ID LONG, Datum DATETIME, Menge_kg SINGLE, Honigsorte TEXT (20), "
        "Standort TEXT (30), ID COUNTER)");
    constexpr std::array Sorten{"Raps", "Linde", "Wald", "Löwenzahn", "Robinie", "Heide"};
    db.Sammelschreiben([&] {
      for (int i = 0; i < Zeilen; ++i) {
        const auto n = static_cast<unsigned>(i) * 2654435761U >> 8;
        db.Execute(
            "insert into Ernte(Volk_ID, Datum, Menge_kg, Honigsorte, Standort) values (?, "
            "?, ?, ?, ?)",
            {n % 10000, QDate(2017, 1, 1).addDays(n % 3650), (n % 4000) / 100.0,
             QString(Sorten[n % Sorten.size()]), QString("Stand %1").arg(n % 50)});
      }
      db.Execute("create index Datum on Ernte(Datum)");
      db.Execute("create index Volk_ID on Ernte(Volk_ID)");
    });
    return db;
  }();
  return fertig;
}

const char* const auswertung =
    "select Volk_ID, Datum, Menge_kg from Ernte where +Datum >= ? order by ID";

// By colony and year: how many and how much.
struct Maße {
  std::vector<int> anzahl = std::vector<int>(size_t{10000} * 16);
  std::vector<double> menge = std::vector<double>(size_t{10000} * 16);
  void dazu(qint64 volk, int jahr, double kg) {
    const auto platz = static_cast<size_t>(volk * 16 + jahr - 2015);
    ++anzahl[platz];
    menge[platz] += kg;
  }
};

void Durchlauf_programm(benchmark::State& zustand) {
  tabelle();
  for (auto _ : zustand) {
    Maße maße;
    tabelle().Durchlaufe(auswertung, {QDate(2016, 1, 1)}, [&](const Laufzeile& zeile) {
      maße.dazu(zeile.ganzzahl(0), zeile.jahr(1), zeile.zahl(2));
    });
    benchmark::DoNotOptimize(maße.menge.data());
  }
}
void Durchlauf_blank(benchmark::State& zustand) {
  Blank blank(tabelle().Name());
  sqlite3_stmt* s = nullptr;
  sqlite3_prepare_v3(blank.db(), auswertung, -1, SQLITE_PREPARE_PERSISTENT, &s, nullptr);
  for (auto _ : zustand) {
    Maße maße;
    sqlite3_bind_text(s, 1, "2016-01-01", -1, SQLITE_STATIC);
    while (sqlite3_step(s) == SQLITE_ROW) {
      const auto* tag = sqlite3_column_text(s, 1);
      const int jahr =
          (tag[0] - '0') * 1000 + (tag[1] - '0') * 100 + (tag[2] - '0') * 10 + tag[3] - '0';
      maße.dazu(sqlite3_column_int64(s, 0), jahr, sqlite3_column_double(s, 2));
    }
    sqlite3_reset(s);
    benchmark::DoNotOptimize(maße.menge.data());
  }
  sqlite3_finalize(s);
}

// The whole list by one of its columns, up and down in turns; the bare loop sorts ready integers.
void sortieren(benchmark::State& zustand, int spalte) {
  GridModell modell;
  modell.setDaten(tabelle().Lesen("select Datum, Honigsorte, Menge_kg from Ernte"));
  bool auf = true;
  for (auto _ : zustand) {
    modell.sortiere(spalte, auf ? Qt::AscendingOrder : Qt::DescendingOrder);
    auf = !auf;
  }
}
void SortierenDatum_programm(benchmark::State& zustand) { sortieren(zustand, 0); }
void SortierenText_programm(benchmark::State& zustand) { sortieren(zustand, 1); }
void SortierenZahl_programm(benchmark::State& zustand) { sortieren(zustand, 2); }

void blankSortieren(benchmark::State& zustand, const char* ausdruck) {
  const Daten daten = tabelle().Lesen(QString("select %1 from Ernte").arg(ausdruck));
  std::vector<int> werte;
  for (int i = 0; i < daten->zeilen(); ++i)
    werte.push_back(static_cast<int>(daten->zahl(i, 0) * 100));
  for (auto _ : zustand) {
    std::vector<int> ordnung(werte.size());
    std::iota(ordnung.begin(), ordnung.end(), 0);
    std::stable_sort(ordnung.begin(), ordnung.end(), [&](int a, int b) {
      return werte[static_cast<size_t>(a)] < werte[static_cast<size_t>(b)];
    });
    benchmark::DoNotOptimize(ordnung.data());
  }
}
void SortierenDatum_blank(benchmark::State& zustand) {
  blankSortieren(zustand, "datediff('d', #01/01/2000#, Datum)");
}
void SortierenText_blank(benchmark::State& zustand) { blankSortieren(zustand, "len(Honigsorte)"); }
void SortierenZahl_blank(benchmark::State& zustand) { blankSortieren(zustand, "Menge_kg"); }

void Kreuztabelle_programm(benchmark::State& zustand) {
  for (auto _ : zustand)
    benchmark::DoNotOptimize(tabelle().Lesen(
        "transform count(*) select Standort, count(*) as Anzahl from Ernte group by "
        "Standort pivot Honigsorte"));
}
void Kreuztabelle_blank(benchmark::State& zustand) {
  Blank blank(tabelle().Name());
  Blank::Anweisung gruppen(blank.db(),
                           "select Standort, Honigsorte, count(*) from Ernte group by Standort, "
                           "Honigsorte order by Standort, Honigsorte");
  for (auto _ : zustand) gruppen.lese();
}

void einmal(benchmark::internal::Benchmark* messung) {
  messung->Arg(Zeilen)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(Durchlauf_programm)->Name("Durchlauf/programm")->Apply(einmal);
BENCHMARK(Durchlauf_blank)->Name("Durchlauf/blank")->Apply(einmal);
BENCHMARK(SortierenDatum_programm)->Name("SortierenDatum/programm")->Apply(einmal);
BENCHMARK(SortierenDatum_blank)->Name("SortierenDatum/blank")->Apply(einmal);
BENCHMARK(SortierenText_programm)->Name("SortierenText/programm")->Apply(einmal);
BENCHMARK(SortierenText_blank)->Name("SortierenText/blank")->Apply(einmal);
BENCHMARK(SortierenZahl_programm)->Name("SortierenZahl/programm")->Apply(einmal);
BENCHMARK(SortierenZahl_blank)->Name("SortierenZahl/blank")->Apply(einmal);
BENCHMARK(Kreuztabelle_programm)->Name("Kreuztabelle/programm")->Apply(einmal);
BENCHMARK(Kreuztabelle_blank)->Name("Kreuztabelle/blank")->Apply(einmal);

}  // namespace
