// The quality index week by week: 200 sites with 20 plants each, beside reading these rows once.

#include "Messwerk.h"
#include "core/globals.h"
#include "evaluations/Standortauswertung.h"

using namespace TZ_Variablen;

namespace {

constexpr int Völker = 100;  // the smallest operation; they play no part
constexpr int JeStandort = 20;
constexpr int Pflanzen = 60;

void füllen(int standorte) {
  betriebÖffnen(Völker);
  DB.Sammelschreiben([&] {
    for (const char* tabelle : {"Standorte", "Pflanzen", "Standorte_Pflanzen"})
      DB.Execute(QString("delete from %1").arg(tabelle));
    for (int i = 0; i < Pflanzen; ++i)
      DB.Execute(
          "insert into Pflanzen(Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe) "
          "values (?, ?, ?, ?, ?)",
          {QString("Pflanze %1").arg(i), QDate(2006, 3, 1).addDays(qint64{3} * i),
           QDate(2006, 4, 10).addDays(qint64{3} * i), i % 11, (i * 7) % 11});
    for (int i = 0; i < standorte; ++i) {
      DB.Execute(
          QString("insert into Standorte(Standort, Pkw_anfahrbar, Entfernung_Wasser_m, "
                  "Standortprämie_Volk) values (?, ?, ?, ?)"),
          {QString("Stand %1").arg(i), QString(i % 2 == 0 ? "J" : "N"), (i * 37) % 1200, i % 30});
      const qint64 id = DB.LetzteID();
      for (int n = 0; n < JeStandort; ++n)
        DB.Execute(
            "insert into Standorte_Pflanzen(Pflanze, Entfernung_m, Proz_Anteil, Standort_Kennung) "
            "values (?, ?, ?, ?)",
            {QString("Pflanze %1").arg((i + 3 * n) % Pflanzen), (i * 53 + n * 311) % 3500, 5, id});
    }
  });
}

void Index_programm(benchmark::State& zustand) {
  füllen(static_cast<int>(zustand.range(0)));
  const Auswertung::Beschreibung b = Standortauswertung::beschreibung();
  Auswertung::Eingaben eingaben;
  Auswertung::laden(b, eingaben);
  const auto& lauf = b.befehl("rolisten_5")->lauf;
  for (auto _ : zustand) {
    Auswertung::Lauf einer{DB, eingaben, [](int, int) {}};
    benchmark::DoNotOptimize(lauf(einer));
  }
  betriebVerwerfen();
}

void Index_blank(benchmark::State& zustand) {
  füllen(static_cast<int>(zustand.range(0)));
  Blank blank(DatenbankPfad);
  std::vector<std::unique_ptr<Blank::Anweisung>> lesen;
  for (const char* text :
       {"select Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe from Pflanzen",
        "select Standort_Kennung, Pflanze, Entfernung_m, Proz_Anteil from Standorte_Pflanzen",
        "select ID, Standort, Pkw_anfahrbar, Entfernung_Wasser_m, \"Standortprämie_Volk\" from "
        "Standorte order by Standort"})
    lesen.push_back(std::make_unique<Blank::Anweisung>(blank.db(), text));
  for (auto _ : zustand)
    for (auto& eine : lesen) eine->lese();
  betriebVerwerfen();
}

void einmal(benchmark::internal::Benchmark* messung) {
  messung->Arg(200)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(Index_programm)->Name("QualitaetsindexJeWoche/programm")->Apply(einmal);
BENCHMARK(Index_blank)->Name("QualitaetsindexJeWoche/blank")->Apply(einmal);

}  // namespace
