// Back after three years: 50,000 appointments are due. Opening their list, closing a thousand of
// them, and closing all of one kind at one site with their series.

#include <numeric>

#include "Messwerk.h"
#include "core/globals.h"
#include "data/helpers.h"
#include "planning/Starttermine.h"
#include "planning/forms/TV_Starttermine.h"
#include "platform/controls/Grid.h"

using namespace TZ_Variablen;

namespace {

constexpr int faellige = 50000;
constexpr int markierte = 1000;
constexpr int arten = 30;
constexpr int serienfrist = 7;

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

void zaehlen(benchmark::State& zustand) {
  const Daten daten =
      DB.Lesen("select Erledigt, count(*) as n from Termine group by Erledigt order by Erledigt");
  for (int i = 0; i < daten->zeilen(); ++i)
    zustand.counters[daten->anzeige(i, 0) == "J" ? "erledigt" : "offen"] =
        static_cast<double>(daten->ganzzahl(i, 1));
}

void oeffnen() { DB.Execute("update Termine set Erledigt = 'N'"); }

void Erledigen_programm(benchmark::State& zustand) {
  vorbereiten(voelker(zustand));
  const std::vector<qint64> ids = tausend();
  for (auto _ : zustand) {
    Starttermine::markierteErledigen(DB, ids);
    zustand.PauseTiming();
    zaehlen(zustand);
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
    zaehlen(zustand);
    oeffnen();
    zustand.ResumeTiming();
  }
  betriebVerwerfen();
}

// All at one site and of one kind, whose series goes on every week to the end of the year.
void einStandort(int anzahl) {
  betriebVerwerfen();
  vorbereiten(anzahl);
  DB.Execute("update Bienenvolk set Standort = 'Hof'");
  DB.Execute("update Termine set Termin = 'Durchsicht'");
  DB.Execute("delete from Arbeitsplanoptionen");
  DB.Execute(
      "insert into Arbeitsplanoptionen(Arbeitsart, Wiederholungsfrist_Tage, Endzeitraum) values "
      "('Durchsicht', ?, '31.12')",
      {serienfrist});
}

void standortSchliessen(benchmark::State& zustand, bool reiheAnpassen) {
  for (auto _ : zustand) {
    zustand.PauseTiming();
    einStandort(voelker(zustand));
    const Daten daten = Starttermine::liste(DB);
    std::vector<int> ordnung(static_cast<size_t>(daten->zeilen()));
    std::iota(ordnung.begin(), ordnung.end(), 0);
    zustand.ResumeTiming();
    Starttermine::amStandortErledigen(DB, {"Durchsicht", "Hof", HeuteText}, daten, ordnung,
                                      {HeuteText, reiheAnpassen});
  }
  zaehlen(zustand);
  betriebVerwerfen();
}

void Standort_programm(benchmark::State& zustand) { standortSchliessen(zustand, false); }
void Standortreihe_programm(benchmark::State& zustand) { standortSchliessen(zustand, true); }

QByteArray iso(QDate tag) { return tag.toString(Qt::ISODate).toLatin1(); }

void Standort_blank(benchmark::State& zustand) {
  for (auto _ : zustand) {
    zustand.PauseTiming();
    einStandort(voelker(zustand));
    const Daten daten = Starttermine::liste(DB);
    Blank blank(DatenbankPfad);
    Blank::Anweisung zeile(blank.db(),
                           "update Termine set Erledigt = 'J', Datum = ?1 where ID = ?2");
    const QByteArray heute = iso(DatumLesen(HeuteText));
    zustand.ResumeTiming();
    blank.fuehreAus("begin immediate");
    for (int i = 0; i < daten->zeilen(); ++i) {
      if (daten->anzeige(i, 4).isEmpty()) continue;
      zeile.binde(1, heute.constData());
      zeile.binde(2, daten->ganzzahl(i, 5));
      zeile.fuehreAus();
    }
    blank.fuehreAus("commit");
  }
  zaehlen(zustand);
  betriebVerwerfen();
}

// One row of each colony is closed; the others go and the series comes anew.
void Standortreihe_blank(benchmark::State& zustand) {
  for (auto _ : zustand) {
    zustand.PauseTiming();
    einStandort(voelker(zustand));
    const Daten erste = DB.Lesen(
        "select Volk_ID, min(ID) as Erste from Termine where Volk_ID <> 0 group by Volk_ID");
    Blank blank(DatenbankPfad);
    Blank::Anweisung zeile(blank.db(),
                           "update Termine set Erledigt = 'J', Datum = ?1 where ID = ?2");
    Blank::Anweisung weg(
        blank.db(),
        "delete from Termine where Erledigt = 'N' and Volk_ID = ?1 and Termin = 'Durchsicht'");
    Blank::Anweisung neu(blank.db(),
                         "insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?1, "
                         "'Durchsicht', 'N', ?2)");
    const QDate heute = DatumLesen(HeuteText);
    std::vector<QByteArray> tage;
    for (QDate tag = heute.addDays(serienfrist); tag.year() == heute.year();
         tag = tag.addDays(serienfrist))
      tage.push_back(iso(tag));
    zustand.ResumeTiming();
    blank.fuehreAus("begin immediate");
    for (int i = 0; i < erste->zeilen(); ++i) {
      zeile.binde(1, iso(heute).constData());
      zeile.binde(2, erste->ganzzahl(i, 1));
      zeile.fuehreAus();
      weg.binde(1, erste->ganzzahl(i, 0));
      weg.fuehreAus();
      for (const QByteArray& tag : tage) {
        neu.binde(1, tag.constData());
        neu.binde(2, erste->ganzzahl(i, 0));
        neu.fuehreAus();
      }
    }
    blank.fuehreAus("commit");
  }
  zaehlen(zustand);
  betriebVerwerfen();
}

void groesse(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(Terminliste_programm)->Name("Termine50000Form/programm")->Apply(groesse);
BENCHMARK(Terminliste_blank)->Name("Termine50000Form/blank")->Apply(groesse);
BENCHMARK(Erledigen_programm)->Name("Termine1000Erledigen/programm")->Apply(groesse);
BENCHMARK(Erledigen_blank)->Name("Termine1000Erledigen/blank")->Apply(groesse);
BENCHMARK(Standort_programm)->Name("Termine50000Standort/programm")->Apply(groesse);
BENCHMARK(Standort_blank)->Name("Termine50000Standort/blank")->Apply(groesse);
BENCHMARK(Standortreihe_programm)->Name("Termine50000Standortreihe/programm")->Apply(groesse);
BENCHMARK(Standortreihe_blank)->Name("Termine50000Standortreihe/blank")->Apply(groesse);

}  // namespace
