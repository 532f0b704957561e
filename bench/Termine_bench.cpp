// Back after three years: 50,000 appointments are due. Opening their list, and closing a thousand
// of them.

#include "Messwerk.h"
#include "core/globals.h"
#include "planning/Starttermine.h"
#include "planning/forms/TV_Starttermine.h"
#include "platform/controls/Grid.h"

using namespace TZ_Variablen;

namespace {

constexpr int faellige = 50000;
constexpr int markierte = 1000;
constexpr int arten = 30;

int voelker(const benchmark::State& zustand) { return static_cast<int>(zustand.range(0)); }

// Open ones of all colonies over three years up to today, and every hundredth a general one.
void vorbereiten(int anzahl) {
  betriebOeffnen(anzahl);
  EinstellungenZahl[17] = 14;
  const Daten ids = DB.Lesen("select ID from Bienenvolk order by ID");
  const QDate heute = Starttermine::grenze().addDays(-14);
  DB.Execute("delete from Termine");
  DB.Sammelschreiben([&] {
    for (int i = 0; i < faellige; ++i)
      DB.Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, ?, 'N', ?)",
                 {heute.addDays(-(i * 7919 % 1095)), QString("Arbeit %1").arg(i % arten),
                  i % 100 == 0 ? 0 : ids->ganzzahl(i % ids->zeilen(), 0)});
  });
}

const char* const voelkertermine =
    "select Datum, Termin, Volknr, Volkname, Standort, Termine.ID from Termine, Bienenvolk where "
    "Datum <= ?1 and Bienenvolk.ID = Volk_ID and Erledigt = 'N'";
const char* const allgemeine =
    "select Datum, Termin, ID from Termine where Datum <= ?1 and Volk_ID = 0 and Erledigt = 'N' "
    "order by Datum";

// The form as it comes up, drawn once.
void Terminliste_programm(benchmark::State& zustand) {
  vorbereiten(voelker(zustand));
  int zeilen = 0;
  for (auto _ : zustand) {
    TV_Starttermine form;
    form.laden();
    benchmark::DoNotOptimize(form.grab());
    zeilen = form.findChild<Grid*>("litermine")->zeilen();
    zustand.PauseTiming();
    form.close();
    zustand.ResumeTiming();
  }
  zustand.counters["Termine"] = zeilen;
  betriebVerwerfen();
}

void Terminliste_blank(benchmark::State& zustand) {
  vorbereiten(voelker(zustand));
  const std::string grenze = Starttermine::grenze().toString(Qt::ISODate).toStdString();
  Blank blank(DatenbankPfad);
  Blank::Anweisung eine(blank.db(), voelkertermine);
  Blank::Anweisung andere(blank.db(), allgemeine);
  int zeilen = 0;
  for (auto _ : zustand) {
    eine.binde(1, grenze.c_str());
    andere.binde(1, grenze.c_str());
    zeilen = eine.lese() + andere.lese();
  }
  zustand.counters["Termine"] = zeilen;
  betriebVerwerfen();
}

std::vector<qint64> tausend() {
  const Daten daten = Starttermine::liste(DB);
  std::vector<qint64> ids;
  for (int i = 0; i < markierte; ++i) ids.push_back(daten->ganzzahl(i * (faellige / markierte), 5));
  return ids;
}

void oeffnen() { DB.Execute("update Termine set Erledigt = 'N'"); }

void Erledigen_programm(benchmark::State& zustand) {
  vorbereiten(voelker(zustand));
  const std::vector<qint64> ids = tausend();
  for (auto _ : zustand) {
    Starttermine::markierteErledigen(DB, ids);
    zustand.PauseTiming();
    zustand.counters["erledigt"] = static_cast<double>(
        DB.Lesen("select count(*) as n from Termine where Erledigt = 'J'")->ganzzahl(0, 0));
    oeffnen();
    zustand.ResumeTiming();
  }
  betriebVerwerfen();
}

void Erledigen_blank(benchmark::State& zustand) {
  vorbereiten(voelker(zustand));
  const std::vector<qint64> ids = tausend();
  Blank blank(DatenbankPfad);
  Blank::Anweisung zeile(blank.db(), "update Termine set Erledigt = 'J' where ID = ?1");
  for (auto _ : zustand) {
    blank.fuehreAus("begin immediate");
    for (const qint64 id : ids) {
      zeile.binde(1, id);
      zeile.fuehreAus();
    }
    blank.fuehreAus("commit");
    zustand.PauseTiming();
    zustand.counters["erledigt"] = static_cast<double>(
        DB.Lesen("select count(*) as n from Termine where Erledigt = 'J'")->ganzzahl(0, 0));
    oeffnen();
    zustand.ResumeTiming();
  }
  betriebVerwerfen();
}

void groesse(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(Terminliste_programm)->Name("Termine50000Form/programm")->Apply(groesse);
BENCHMARK(Terminliste_blank)->Name("Termine50000Form/blank")->Apply(groesse);
BENCHMARK(Erledigen_programm)->Name("Termine1000Erledigen/programm")->Apply(groesse);
BENCHMARK(Erledigen_blank)->Name("Termine1000Erledigen/blank")->Apply(groesse);

}  // namespace
