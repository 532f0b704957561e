// Back after three years: 50,000 appointments are due. Opening their list, closing a thousand of
// them, and closing all of one kind at one site with their series.

#include <numeric>

#include "Blankfenster.h"
#include "Messwerk.h"
#include "core/globals.h"
#include "data/helpers.h"
#include "planning/Starttermine.h"
#include "planning/forms/TV_Starttermine.h"
#include "platform/controls/Grid.h"

using namespace TZ_Variablen;

namespace {

constexpr int fällige = 50000;
constexpr int markierte = 1000;
constexpr int arten = 30;
constexpr int serienfrist = 7;

int völker(const benchmark::State& zustand) { return static_cast<int>(zustand.range(0)); }

// Open ones of all colonies over three years up to today, and every hundredth a general one.
void vorbereiten(int anzahl, int offene = fällige) {
  betriebÖffnen(anzahl);
  EinstellungenZahl[Zahlslots.termintage] = 14;
  const Daten ids = DB.Lesen("select ID from Bienenvolk order by ID");
  const QDate heute = Starttermine::grenze().addDays(-14);
  DB.Execute("delete from Termine");
  DB.Sammelschreiben([&] {
    for (int i = 0; i < offene; ++i)
      DB.Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, ?, 'N', ?)",
                 {heute.addDays(-(i * 7919 % 1095)), QString("Arbeit %1").arg(i % arten),
                  i % 100 == 0 ? 0 : ids->ganzzahl(i % ids->zeilen(), 0)});
  });
}

const char* const völkertermine =
    "select Datum, Termin, Volknr, Volkname, Standort, Termine.ID from Termine, Bienenvolk where "
    "Datum <= ?1 and Bienenvolk.ID = Volk_ID and Erledigt = 'N'";
const char* const allgemeine =
    "select Datum, Termin, ID from Termine where Datum <= ?1 and Volk_ID = 0 and Erledigt = 'N' "
    "order by Datum";

// The form as it comes up, drawn once.
void Terminliste_programm(benchmark::State& zustand) {
  vorbereiten(völker(zustand));
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

// A window of as many bare controls, drawn once, with as many rows as were read.
void Terminliste_blank(benchmark::State& zustand) {
  vorbereiten(völker(zustand));
  const Bauteilzahl zahl = [] {
    TV_Starttermine vorbild;
    vorbild.laden();
    return zähle(vorbild);
  }();
  const std::string grenze = Starttermine::grenze().toString(Qt::ISODate).toStdString();
  Blank blank(DatenbankPfad);
  Blank::Anweisung eine(blank.db(), völkertermine);
  Blank::Anweisung andere(blank.db(), allgemeine);
  int zeilen = 0;
  for (auto _ : zustand) {
    eine.binde(1, grenze.c_str());
    andere.binde(1, grenze.c_str());
    zeilen = eine.lese() + andere.lese();
    Blankfenster fenster(zahl);
    fenster.fülle(zeilen, QStringLiteral("31.08.2026"));
    benchmark::DoNotOptimize(fenster.grab());
  }
  zustand.counters["Termine"] = zeilen;
  betriebVerwerfen();
}

// The rows of the list alone, for 50,000 and for 500,000.
void Terminzeilen_programm(benchmark::State& zustand) {
  vorbereiten(1000, völker(zustand));
  for (auto _ : zustand) benchmark::DoNotOptimize(Starttermine::liste(DB));
  betriebVerwerfen();
}

void Terminzeilen_blank(benchmark::State& zustand) {
  vorbereiten(1000, völker(zustand));
  const std::string grenze = Starttermine::grenze().toString(Qt::ISODate).toStdString();
  Blank blank(DatenbankPfad);
  Blank::Anweisung eine(blank.db(), völkertermine);
  Blank::Anweisung andere(blank.db(), allgemeine);
  for (auto _ : zustand) {
    eine.binde(1, grenze.c_str());
    andere.binde(1, grenze.c_str());
    benchmark::DoNotOptimize(eine.lese() + andere.lese());
  }
  betriebVerwerfen();
}

std::vector<qint64> tausend() {
  const Daten daten = Starttermine::liste(DB);
  std::vector<qint64> ids;
  for (int i = 0; i < markierte; ++i) ids.push_back(daten->ganzzahl(i * (fällige / markierte), 5));
  return ids;
}

void zählen(benchmark::State& zustand) {
  const Daten daten =
      DB.Lesen("select Erledigt, count(*) as n from Termine group by Erledigt order by Erledigt");
  for (int i = 0; i < daten->zeilen(); ++i)
    zustand.counters[daten->anzeige(i, 0) == "J" ? "erledigt" : "offen"] =
        static_cast<double>(daten->ganzzahl(i, 1));
}

void öffnen() { DB.Execute("update Termine set Erledigt = 'N'"); }

void Erledigen_programm(benchmark::State& zustand) {
  vorbereiten(völker(zustand));
  const std::vector<qint64> ids = tausend();
  for (auto _ : zustand) {
    Starttermine::markierteErledigen(DB, ids);
    zustand.PauseTiming();
    zählen(zustand);
    öffnen();
    zustand.ResumeTiming();
  }
  betriebVerwerfen();
}

void Erledigen_blank(benchmark::State& zustand) {
  vorbereiten(völker(zustand));
  const std::vector<qint64> ids = tausend();
  Blank blank(DatenbankPfad);
  Blank::Anweisung zeile(blank.db(), "update Termine set Erledigt = 'J' where ID = ?1");
  for (auto _ : zustand) {
    blank.führeAus("begin immediate");
    for (const qint64 id : ids) {
      zeile.binde(1, id);
      zeile.führeAus();
    }
    blank.führeAus("commit");
    zustand.PauseTiming();
    zählen(zustand);
    öffnen();
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

void standortSchließen(benchmark::State& zustand, bool reiheAnpassen) {
  for (auto _ : zustand) {
    zustand.PauseTiming();
    einStandort(völker(zustand));
    const Daten daten = Starttermine::liste(DB);
    std::vector<int> ordnung(static_cast<size_t>(daten->zeilen()));
    std::iota(ordnung.begin(), ordnung.end(), 0);
    zustand.ResumeTiming();
    Starttermine::amStandortErledigen(DB, {"Durchsicht", "Hof", HeuteText}, daten, ordnung,
                                      {HeuteText, reiheAnpassen});
  }
  zählen(zustand);
  betriebVerwerfen();
}

void Standort_programm(benchmark::State& zustand) { standortSchließen(zustand, false); }
void Standortreihe_programm(benchmark::State& zustand) { standortSchließen(zustand, true); }

QByteArray iso(QDate tag) { return tag.toString(Qt::ISODate).toLatin1(); }

void Standort_blank(benchmark::State& zustand) {
  for (auto _ : zustand) {
    zustand.PauseTiming();
    einStandort(völker(zustand));
    const Daten daten = Starttermine::liste(DB);
    Blank blank(DatenbankPfad);
    Blank::Anweisung zeile(blank.db(),
                           "update Termine set Erledigt = 'J', Datum = ?1 where ID = ?2");
    const QByteArray heute = iso(DatumLesen(HeuteText));
    zustand.ResumeTiming();
    blank.führeAus("begin immediate");
    for (int i = 0; i < daten->zeilen(); ++i) {
      if (daten->anzeige(i, 4).isEmpty()) continue;
      zeile.binde(1, heute.constData());
      zeile.binde(2, daten->ganzzahl(i, 5));
      zeile.führeAus();
    }
    blank.führeAus("commit");
  }
  zählen(zustand);
  betriebVerwerfen();
}

// One row of each colony is closed; the others go and the series comes anew.
void Standortreihe_blank(benchmark::State& zustand) {
  for (auto _ : zustand) {
    zustand.PauseTiming();
    einStandort(völker(zustand));
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
    blank.führeAus("begin immediate");
    for (int i = 0; i < erste->zeilen(); ++i) {
      zeile.binde(1, iso(heute).constData());
      zeile.binde(2, erste->ganzzahl(i, 1));
      zeile.führeAus();
      weg.binde(1, erste->ganzzahl(i, 0));
      weg.führeAus();
      for (const QByteArray& tag : tage) {
        neu.binde(1, tag.constData());
        neu.binde(2, erste->ganzzahl(i, 0));
        neu.führeAus();
      }
    }
    blank.führeAus("commit");
  }
  zählen(zustand);
  betriebVerwerfen();
}

void größe(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(Terminliste_programm)->Name("Termine50000Form/programm")->Apply(größe);
BENCHMARK(Terminliste_blank)->Name("Termine50000Form/blank")->Apply(größe);
void mengen(benchmark::internal::Benchmark* messung) {
  messung->Arg(50000)->Arg(500000)->Unit(benchmark::kMillisecond)->UseRealTime();
}
BENCHMARK(Terminzeilen_programm)->Name("Terminzeilen/programm")->Apply(mengen);
BENCHMARK(Terminzeilen_blank)->Name("Terminzeilen/blank")->Apply(mengen);
BENCHMARK(Erledigen_programm)->Name("Termine1000Erledigen/programm")->Apply(größe);
BENCHMARK(Erledigen_blank)->Name("Termine1000Erledigen/blank")->Apply(größe);
BENCHMARK(Standort_programm)->Name("Termine50000Standort/programm")->Apply(größe);
BENCHMARK(Standort_blank)->Name("Termine50000Standort/blank")->Apply(größe);
BENCHMARK(Standortreihe_programm)->Name("Termine50000Standortreihe/programm")->Apply(größe);
BENCHMARK(Standortreihe_blank)->Name("Termine50000Standortreihe/blank")->Apply(größe);

}  // namespace
