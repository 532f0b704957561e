// The yearly run: the appointments of 30 work plan options for every colony in stock.

#include "Messwerk.h"
#include "core/globals.h"
#include "planning/Jahreslauf.h"

using namespace TZ_Variablen;

namespace {

constexpr int optionen = 30;
constexpr int tageJeOption = 8;
const char* const jahresbeginn = "01.01.2026";

int völker(const benchmark::State& zustand) { return static_cast<int>(zustand.range(0)); }

// Thirty options of eight days each; every third one asks for the newest booking that settles it.
void vorbereiten(int anzahl) {
  betriebÖffnen(anzahl);
  HeuteText = QString(jahresbeginn);
  DB.Execute("update Bienenvolk set Akt_im_Bestand = 'X'");
  DB.Execute("delete from Arbeitsplanoptionen");
  for (int i = 0; i < optionen; ++i)
    DB.Execute(QString("insert into Arbeitsplanoptionen(Arbeitsart, Startzeitraum, Endzeitraum, "
                       "Wiederholungsfrist_Tage, Volkabhängig, Auto_erledigt_Buchung) values "
                       "(?, '01.10', '03.12', 9, 'J', ?)"),
               {QString("Arbeit %1").arg(i), QString(i % 3 == 0 ? "Honigernte" : "")});
}

void leeren() { DB.Execute("delete from Termine"); }

void Jahreslauf_programm(benchmark::State& zustand) {
  vorbereiten(völker(zustand));
  Terminfragen fragen;
  fragen.frage = [](const QString&, bool) { return true; };
  fragen.hinweis = [](const QString&) {};
  for (auto _ : zustand) {
    zustand.PauseTiming();
    leeren();
    zustand.ResumeTiming();
    VolkTermineSetzen(DB, fragen);
  }
  zustand.counters["Termine"] =
      static_cast<double>(DB.Lesen("select count(*) as n from Termine")->ganzzahl(0, 0));
  betriebVerwerfen();
}

// The same rows, one commit.
void Jahreslauf_blank(benchmark::State& zustand) {
  vorbereiten(völker(zustand));
  const Daten ids = DB.Lesen("select ID from Bienenvolk where Akt_im_Bestand = 'X'");
  std::vector<std::string> tage;
  for (int i = 0; i < tageJeOption; ++i)
    tage.push_back(QDate(2026, 10, 1).addDays(9 * i).toString(Qt::ISODate).toStdString());
  std::vector<std::string> texte;
  for (int i = 0; i < optionen; ++i) texte.push_back("Arbeit " + std::to_string(i));
  Blank blank(DatenbankPfad);
  Blank::Anweisung zeile(blank.db(),
                         "insert into Termine(Datum, Termin, Erledigt, Volk_ID) values "
                         "(?1, ?2, 'N', ?3)");
  for (auto _ : zustand) {
    zustand.PauseTiming();
    leeren();
    zustand.ResumeTiming();
    blank.führeAus("begin immediate");
    for (int v = 0; v < ids->zeilen(); ++v)
      for (const std::string& text : texte)
        for (const std::string& tag : tage) {
          zeile.binde(1, tag.c_str());
          zeile.binde(2, text.c_str());
          zeile.binde(3, ids->ganzzahl(v, 0));
          zeile.führeAus();
        }
    blank.führeAus("commit");
  }
  zustand.counters["Termine"] =
      static_cast<double>(DB.Lesen("select count(*) as n from Termine")->ganzzahl(0, 0));
  betriebVerwerfen();
}

void größe(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);
}

BENCHMARK(Jahreslauf_programm)->Name("Jahreslauf30/programm")->Apply(größe);
BENCHMARK(Jahreslauf_blank)->Name("Jahreslauf30/blank")->Apply(größe);

}  // namespace
