// Writing: one harvest over 500 marked colonies, and the colonies' summary fields after it.

#include "Messwerk.h"
#include "bookings/Buchung.h"
#include "bookings/Zusammenfassung.h"
#include "core/globals.h"
#include "platform/database/Recordset.h"

using namespace TZ_Variablen;

namespace {

constexpr int markiert = 500;

int völker(const benchmark::State& zustand) { return static_cast<int>(zustand.range(0)); }

// Every second colony of the first thousand.
QStringList markierte() {
  QStringList ids;
  for (int i = 1; i <= markiert; ++i) ids << QString::number(2 * i);
  return ids;
}

Buchung ernte() {
  Buchung buchung;
  buchung.art = 1;
  const auto setze = [&](int slot, const char* text) {
    buchung.texte[static_cast<size_t>(slot)] = QString(text);
  };
  setze(0, "31.08.2026");
  setze(1, "12,50");
  setze(2, "Raps");
  setze(3, "I");
  setze(4, "0,50");
  setze(5, "9,00");
  setze(6, "93,75");
  setze(7, "2026/RAP");
  setze(8, "Messung");
  return buchung;
}

void Buchungslauf500_programm(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  const QStringList ids = markierte();
  for (auto _ : zustand) {
    Buchung buchung = ernte();
    Buchungskontext kontext;
    kontext.anzahlMarkiert = markiert;
    BuchungslaufSpeichern(DB, buchung, ids, kontext);
  }
}
// The same appointments closed, the same rows added, one commit.
void Buchungslauf500_blank(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  const QStringList ids = markierte();
  Blank blank(DatenbankPfad);
  Blank::Anweisung termine(blank.db(),
                           "update Termine set Erledigt = 'J' where Termin = 'Honigernte' and "
                           "Datum <= '2026-08-31' and Volk_ID = ?1");
  Blank::Anweisung zeile(blank.db(),
                         "insert into Honigernte(Menge_kg, Honigsorte, Qualität, Zeit_h, Kosten, "
                         "Honig_Wert, Charge, Bemerkung, Datum, Volk_ID) values (12.5, 'Raps', "
                         "'I', 0.5, 9.0, 93.75, '2026/RAP', 'Messung', '2026-08-31', ?1)");
  for (auto _ : zustand) {
    blank.führeAus("begin immediate");
    for (const QString& id : ids) {
      termine.binde(1, id.toLongLong());
      termine.führeAus();
      zeile.binde(1, id.toLongLong());
      zeile.führeAus();
    }
    blank.führeAus("commit");
  }
}

// Before each round the summaries are made to differ, so that there is something to write.
void verstimmen() {
  DB.Execute(
      "update Bienenvolk set Honigmenge_Gesamt = 0, L_Honigmenge_kg = 0, L_Honigernte = null "
      "where ID <= 1000");
}

void VolkfelderNachziehen500_programm(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  QString geändert;
  for (const QString& id : markierte()) geändert += "/" + id + "/";
  for (auto _ : zustand) {
    zustand.PauseTiming();
    verstimmen();
    zustand.ResumeTiming();
    VolkfelderNachziehen(DB, geändert);
  }
}
void VolkfelderNachziehen500_blank(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  const QStringList ids = markierte();
  Blank blank(DatenbankPfad);
  std::vector<std::unique_ptr<Blank::Anweisung>> lesen;
  for (const char* sql :
       {"select Volkstärke, Magazine, Waben, Honigwaben, Brutwaben, Pollenwaben, Drohnenwaben, "
        "Leerwaben, Mittelwände, Futterwaben, HW_verdeckelt, BW_Stift, BW_offen, BW_verdeckelt, "
        "Brutstand, Wabensitz, Sanftmut, Schwarmtrieb, Frühjahrsentw, Winterfestigkeit, "
        "Varroabefall, Belagert, Futter_flüssig_l, Futter_Teig_kg, Eigener_Futtervorrat "
        "from Stockkarte where Volk_ID = ?1 order by Datum desc, ID limit 1",
        // The newest one and the sum in one pass.
        "select Datum, ID, Menge_kg from Honigernte where Volk_ID = ?1",
        "select Standort from Wanderung where Volk_ID = ?1 order by Datum desc, ID limit 1",
        "select max(Datum) from Behandlung where Volk_ID = ?1",
        "select Datum, Nummer, Farbe from Königinwechsel where Volk_ID = ?1 "
        "order by Datum desc, ID limit 1"})
    lesen.push_back(std::make_unique<Blank::Anweisung>(blank.db(), sql));
  Blank::Anweisung schreiben(blank.db(),
                             "update Bienenvolk set L_Honigernte = '2026-08-31', L_Honigmenge_kg = "
                             "12.5, Honigmenge_Gesamt = 150.5 where ID = ?1");
  for (auto _ : zustand) {
    zustand.PauseTiming();
    verstimmen();
    zustand.ResumeTiming();
    blank.führeAus("begin immediate");
    for (const QString& id : ids) {
      for (auto& eine : lesen) {
        eine->binde(1, id.toLongLong());
        eine->lese();
      }
      schreiben.binde(1, id.toLongLong());
      schreiben.führeAus();
    }
    blank.führeAus("commit");
  }
}

void größen(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);
}

BENCHMARK(Buchungslauf500_programm)->Name("Buchungslauf500/programm")->Apply(größen);
BENCHMARK(Buchungslauf500_blank)->Name("Buchungslauf500/blank")->Apply(größen);
BENCHMARK(VolkfelderNachziehen500_programm)
    ->Name("VolkfelderNachziehen500/programm")
    ->Apply(größen);
BENCHMARK(VolkfelderNachziehen500_blank)->Name("VolkfelderNachziehen500/blank")->Apply(größen);

}  // namespace
