// The cash and honey book: saving a thousand sales with their movements, opening the form with ten
// thousand deals.

#include "Messwerk.h"
#include "core/globals.h"
#include "stores/Handel.h"
#include "stores/forms/TV_EinVerkauf_Lager.h"

using namespace TZ_Variablen;

namespace {

constexpr int Voelker = 100;  // the smallest operation; they play no part
constexpr int Kunden = 50;

QString kunde(int i) { return QString("Kunde %1").arg(i % Kunden); }

void leeren() {
  DB.Sammelschreiben([] {
    for (const char* tabelle : {"Einkauf", "Verkauf", "Honiglager", "Kunden"})
      DB.Execute(QString("delete from %1").arg(tabelle));
  });
}

void speichern(Handel::Seite seite, int i) {
  Verwaltung::Texte texte = Verwaltung::vorgaben(Handel::geschaeftsfelder(seite));
  texte["Produkt"] = i % 2 == 0 ? QString("Waldhonig") : QString("Honig");
  texte["Qualität"] = QString("I");
  texte[Handel::partnerfeld(seite)] = kunde(i);
  texte["Menge"] = QString("12,5");
  texte["Einheit"] = QString("kg");
  texte[Handel::geldfeld(seite)] = QString("118,75");
  texte["Charge"] = QString("C%1").arg(i % 20);
  Handel::geschaeftSpeichern(DB, seite, texte, {});
}

void Verkauf_programm(benchmark::State& zustand) {
  betriebOeffnen(Voelker);
  for (auto _ : zustand) {
    zustand.PauseTiming();
    leeren();
    zustand.ResumeTiming();
    for (int i = 0; i < zustand.range(0); ++i) speichern(Handel::Seite::Verkauf, i);
  }
  betriebVerwerfen();
}

// The same rows, a commit for each sale too.
void Verkauf_blank(benchmark::State& zustand) {
  betriebOeffnen(Voelker);
  Blank blank(DatenbankPfad);
  Blank::Anweisung geschaeft(
      blank.db(),
      "insert into Verkauf(Datum, Produkt, \"Qualität\", Abnehmer, Menge, Einheit, Einnahmen, "
      "Charge) values (?1, ?2, 'I', ?3, 12.5, 'kg', 118.75, ?4)");
  Blank::Anweisung bekannt(blank.db(), "select ID from Kunden where Kundenname = ?1");
  Blank::Anweisung neuer(blank.db(), "insert into Kunden(Kundenname, Lieferant) values (?1, 'N')");
  Blank::Anweisung alte(blank.db(),
                        "select ID from Honiglager where EVK_ID = ?1 and Zugang = 0 limit 1");
  Blank::Anweisung bewegung(
      blank.db(),
      "insert into Honiglager(Datum, Produkt, Zugang, Abgang, Charge, Bemerkung, EVK_ID) values "
      "(?1, ?2, 0, 12.5, ?3, '', ?4)");
  for (auto _ : zustand) {
    zustand.PauseTiming();
    leeren();
    zustand.ResumeTiming();
    for (int i = 0; i < zustand.range(0); ++i) {
      const std::string name = kunde(i).toStdString();
      const std::string charge = "C" + std::to_string(i % 20);
      const char* produkt = i % 2 == 0 ? "Waldhonig" : "Honig";
      blank.fuehreAus("begin immediate");
      geschaeft.binde(1, "2026-08-31");
      geschaeft.binde(2, produkt);
      geschaeft.binde(3, name.c_str());
      geschaeft.binde(4, charge.c_str());
      geschaeft.fuehreAus();
      const qint64 id = sqlite3_last_insert_rowid(blank.db());
      bekannt.binde(1, name.c_str());
      if (bekannt.lese() == 0) {
        neuer.binde(1, name.c_str());
        neuer.fuehreAus();
      }
      alte.binde(1, id);
      alte.lese();
      bewegung.binde(1, "2026-08-31");
      bewegung.binde(2, produkt);
      bewegung.binde(3, charge.c_str());
      bewegung.binde(4, id);
      bewegung.fuehreAus();
      blank.fuehreAus("commit");
    }
  }
  betriebVerwerfen();
}

void fuellen(int geschaefte) {
  betriebOeffnen(Voelker);
  leeren();
  DB.Sammelschreiben([&] {
    for (int i = 0; i < geschaefte; ++i)
      speichern(i % 2 == 0 ? Handel::Seite::Einkauf : Handel::Seite::Verkauf, i);
  });
}

void Formular_programm(benchmark::State& zustand) {
  fuellen(static_cast<int>(zustand.range(0)));
  FormModus = QString("2");
  for (auto _ : zustand) {
    TV_EinVerkauf_Lager form;
    form.laden();
  }
  betriebVerwerfen();
}

// What the form reads, once.
void Formular_blank(benchmark::State& zustand) {
  fuellen(static_cast<int>(zustand.range(0)));
  Blank blank(DatenbankPfad);
  const char* const anweisungen[] = {
      "select * from Honiglager order by Datum",
      "select * from Einkauf order by Datum",
      "select * from Verkauf order by Datum",
      "select distinct Produkt from Honiglager order by Produkt",
      "select distinct Bemerkung from Honiglager order by Bemerkung",
      "select distinct Charge from Honiglager order by Charge",
      "select distinct Produkt from Einkauf order by Produkt",
      "select distinct \"Qualität\" from Einkauf order by \"Qualität\"",
      "select distinct Kundenname from Kunden where Lieferant = 'J' order by Kundenname",
      "select distinct Charge from Honiglager order by Charge",
      "select distinct Produkt from Verkauf order by Produkt",
      "select distinct \"Qualität\" from Verkauf order by \"Qualität\"",
      "select distinct Kundenname from Kunden where Lieferant = 'N' order by Kundenname",
      "select distinct Charge from Honiglager order by Charge",
      "select sum(Ausgaben) from Einkauf",
      "select sum(Einnahmen) from Verkauf"};
  for (auto _ : zustand)
    for (const char* text : anweisungen) {
      Blank::Anweisung anweisung(blank.db(), text);
      if (anweisung.lese() < 0) zustand.SkipWithError(text);
    }
  betriebVerwerfen();
}

void jeVerkauf(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
}
void jeFormular(benchmark::internal::Benchmark* messung) {
  messung->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);
}

BENCHMARK(Verkauf_programm)->Name("VerkaufMitBewegung/programm")->Apply(jeVerkauf);
BENCHMARK(Verkauf_blank)->Name("VerkaufMitBewegung/blank")->Apply(jeVerkauf);
BENCHMARK(Formular_programm)->Name("HandelOeffnen/programm")->Apply(jeFormular);
BENCHMARK(Formular_blank)->Name("HandelOeffnen/blank")->Apply(jeFormular);

}  // namespace
