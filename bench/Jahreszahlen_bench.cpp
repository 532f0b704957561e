// Evaluations that add up all bookings of some years: 42 measures, contribution margin, work times;
// each beside a loop that reads the same fields once and adds them.

#include <array>

#include "Messwerk.h"
#include "core/globals.h"
#include "evaluations/Arbeitszeiten.h"
#include "evaluations/Deckungsbeitrag.h"
#include "evaluations/Statistik.h"
#include "platform/database/werte/Datenblock.h"

using namespace TZ_Variablen;

namespace {

struct Jahre {
  int von;
  int bis;
};
constexpr Jahre EinJahr{2025, 2025};
constexpr Jahre Fünf{2022, 2026};
constexpr Jahre Dreißig{1997, 2026};

enum class Zeile { Volk, Jahr };

// ---- the program ----

Auswertung::Eingaben eingaben(const Auswertung::Beschreibung& b, Jahre jahre, Zeile zeile) {
  Auswertung::Eingaben e;
  for (const Auswertung::Gruppe& gruppe : b.gruppen)
    for (const Auswertung::Eingabe& eingabe : gruppe.eingaben) {
      QStringList schlüssel;
      if (eingabe.posten)
        for (const auto& posten : eingabe.posten(DB, e)) schlüssel += posten.schlüssel;
      e.setAngebot(eingabe.name, schlüssel);
      if (eingabe.art == Auswertung::Art::Merkliste) e.setGewählt(eingabe.name, schlüssel);
      if (eingabe.art == Auswertung::Art::Haken) e.setAn(eingabe.name, true);
    }
  e.setAn("konschnitt", false);
  e.setWahl("optitieraus", 0);
  e.setWahl("optiauswertung", zeile == Zeile::Volk ? 1 : 0);
  e.setText("t", 0, QString::number(jahre.von));
  e.setText("t", 1, QString::number(jahre.bis));
  return e;
}

void programm(benchmark::State& zustand, const Auswertung::Beschreibung& b, const QString& befehl,
              Jahre jahre, Zeile zeile) {
  betriebÖffnen(static_cast<int>(zustand.range(0)));
  const Auswertung::Eingaben e = eingaben(b, jahre, zeile);
  for (auto _ : zustand) {
    Auswertung::Lauf lauf{DB, e, [](int fertig, int) { benchmark::DoNotOptimize(fertig); }};
    const auto ergebnis = b.befehl(befehl)->lauf(lauf);
    benchmark::DoNotOptimize(ergebnis.liste->zeilen());
  }
}

// ---- the bare loop ----

// A table and what is added up of it.
struct Quelle {
  const char* tabelle;
  const char* felder;
  int anzahl;
  const char* bedingung = "";
};
using Quellen = std::vector<Quelle>;

const Quellen maßquellen{
    {"Honigernte", "Menge_kg, Honig_Wert", 2},
    {"Wachsernte", "Menge_kg, Wachs_Wert", 2},
    {"Pollenernte", "Menge_g, Pollen_Wert", 2},
    {"Wanderung", "Standortprämie", 1, " and +Prämie_erhalten = 'J'"},
    {"Gewichtsmessung", "Gewicht_kg", 1},
    {"Stockkarte",
     "Volkstärke, Brutstand, Wabensitz, Sanftmut, Schwarmtrieb, Frühjahrsentw, Winterfestigkeit, "
     "Varroabefall, Belagert, Magazine, Mittelwände, Waben, Honigwaben, Brutwaben, Pollenwaben, "
     "Drohnenwaben, Leerwaben, Futterwaben, Futter_flüssig_l, Futter_Teig_kg, Eigener_Futtervorrat",
     21}};

const Quellen geldquellen{
    {"Honigernte", "Honig_Wert, Kosten", 2},
    {"Wachsernte", "Wachs_Wert, Kosten", 2},
    {"Pollenernte", "Pollen_Wert, Kosten", 2},
    {"Sonstigeernte", "Wert, Kosten", 2},
    {"Arbeiten", "Kosten", 1},
    {"Wanderung", "Kosten, iif(Prämie_erhalten = 'J', Standortprämie, null)", 2},
    {"Gewichtsmessung", "Kosten", 1},
    {"Behandlung", "Kosten", 1},
    {"Königinwechsel", "Kosten", 1}};

const Quellen zeitquellen{
    {"Honigernte", "Zeit_h", 1},      {"Wachsernte", "Zeit_h", 1}, {"Pollenernte", "Zeit_h", 1},
    {"Sonstigeernte", "Zeit_h", 1},   {"Arbeiten", "Zeit_h", 1},   {"Wanderung", "Zeit_h", 1},
    {"Gewichtsmessung", "Zeit_h", 1}, {"Behandlung", "Zeit_h", 1}, {"Königinwechsel", "Zeit_h", 1}};

struct Stand {
  double summe = 0;
  int werte = 0;
};

int jahrVon(sqlite3_stmt* s, int spalte) {
  const auto* tag = sqlite3_column_text(s, spalte);
  return (tag[0] - '0') * 1000 + (tag[1] - '0') * 100 + (tag[2] - '0') * 10 + tag[3] - '0';
}

// One pass over a table; platz gives the row of the list from the key in the first column.
template <class Platz>
void durchlauf(sqlite3* db, const Quelle& q, Jahre jahre, Zeile zeile, int zeilen, Platz&& platz) {
  const std::string sql = std::string("select ") + (zeile == Zeile::Volk ? "Volk_ID" : "Datum") +
                          ", " + q.felder + " from " + q.tabelle +
                          " where +Datum >= ?1 and +Datum <= ?2" + q.bedingung;
  const std::string von = std::to_string(jahre.von) + "-01-01";
  const std::string bis = std::to_string(jahre.bis) + "-12-31";
  sqlite3_stmt* s = nullptr;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &s, nullptr) != SQLITE_OK)
    throw std::runtime_error(sqlite3_errmsg(db));
  sqlite3_bind_text(s, 1, von.c_str(), -1, SQLITE_STATIC);
  sqlite3_bind_text(s, 2, bis.c_str(), -1, SQLITE_STATIC);
  std::vector<Stand> stände(static_cast<size_t>(zeilen) * static_cast<size_t>(q.anzahl));
  std::vector<int> buchungen(static_cast<size_t>(zeilen));
  while (sqlite3_step(s) == SQLITE_ROW) {
    const int z = platz(s);
    if (z < 0) continue;
    ++buchungen[static_cast<size_t>(z)];
    Stand* stand = &stände[static_cast<size_t>(z) * static_cast<size_t>(q.anzahl)];
    for (int i = 1; i <= q.anzahl; ++i, ++stand) {
      if (sqlite3_column_type(s, i) == SQLITE_NULL) continue;
      stand->summe += sqlite3_column_double(s, i);
      ++stand->werte;
    }
  }
  sqlite3_finalize(s);
  benchmark::DoNotOptimize(stände.data());
  benchmark::DoNotOptimize(buchungen.data());
}

void blank(benchmark::State& zustand, const Quellen& quellen, Jahre jahre, Zeile zeile) {
  betriebÖffnen(static_cast<int>(zustand.range(0)));
  Blank blank(DatenbankPfad);
  for (auto _ : zustand) {
    const Daten völker = DB.Lesen("select ID from Bienenvolk where Akt_im_Bestand = 'X'");
    std::vector<int> zeilen(static_cast<size_t>(zustand.range(0)) * 2, -1);
    for (int v = 0; v < völker->zeilen(); ++v)
      zeilen.at(static_cast<size_t>(völker->ganzzahl(v, 0))) = v;
    for (const Quelle& q : quellen) {
      if (zeile == Zeile::Jahr)
        durchlauf(blank.db(), q, jahre, zeile, jahre.bis - jahre.von + 1,
                  [&](sqlite3_stmt* s) { return jahrVon(s, 0) - jahre.von; });
      else
        durchlauf(blank.db(), q, jahre, zeile, völker->zeilen(), [&](sqlite3_stmt* s) {
          return zeilen[static_cast<size_t>(sqlite3_column_int64(s, 0))];
        });
    }
  }
}

// ---- the rows ----

void MaßeFünfJahre_programm(benchmark::State& z) {
  programm(z, Statistik::beschreibung(), "ok_0", Fünf, Zeile::Volk);
}
void MaßeFünfJahre_blank(benchmark::State& z) { blank(z, maßquellen, Fünf, Zeile::Volk); }
void MaßeEinJahr_programm(benchmark::State& z) {
  programm(z, Statistik::beschreibung(), "ok_0", EinJahr, Zeile::Volk);
}
void MaßeEinJahr_blank(benchmark::State& z) { blank(z, maßquellen, EinJahr, Zeile::Volk); }
void MaßeJeJahr_programm(benchmark::State& z) {
  programm(z, Statistik::beschreibung(), "ok_1", Fünf, Zeile::Jahr);
}
void MaßeJeJahr_blank(benchmark::State& z) { blank(z, maßquellen, Fünf, Zeile::Jahr); }
void Deckungsbeitrag_programm(benchmark::State& z) {
  programm(z, Deckungsbeitrag::beschreibung(), "ok", Dreißig, Zeile::Volk);
}
void Deckungsbeitrag_blank(benchmark::State& z) { blank(z, geldquellen, Dreißig, Zeile::Volk); }
void Arbeitszeiten_programm(benchmark::State& z) {
  programm(z, Arbeitszeiten::beschreibung(), "ok", Dreißig, Zeile::Volk);
}
void Arbeitszeiten_blank(benchmark::State& z) { blank(z, zeitquellen, Dreißig, Zeile::Volk); }

void größen(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(MaßeFünfJahre_programm)->Name("MasseFuenfJahre/programm")->Apply(größen);
BENCHMARK(MaßeFünfJahre_blank)->Name("MasseFuenfJahre/blank")->Apply(größen);
BENCHMARK(MaßeEinJahr_programm)->Name("MasseEinJahr/programm")->Apply(größen);
BENCHMARK(MaßeEinJahr_blank)->Name("MasseEinJahr/blank")->Apply(größen);
BENCHMARK(MaßeJeJahr_programm)->Name("MasseJeJahr/programm")->Apply(größen);
BENCHMARK(MaßeJeJahr_blank)->Name("MasseJeJahr/blank")->Apply(größen);
BENCHMARK(Deckungsbeitrag_programm)->Name("Deckungsbeitrag/programm")->Apply(größen);
BENCHMARK(Deckungsbeitrag_blank)->Name("Deckungsbeitrag/blank")->Apply(größen);
BENCHMARK(Arbeitszeiten_programm)->Name("Arbeitszeiten/programm")->Apply(größen);
BENCHMARK(Arbeitszeiten_blank)->Name("Arbeitszeiten/blank")->Apply(größen);

}  // namespace
