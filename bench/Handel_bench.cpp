// The cash and honey book: saving a thousand sales with their movements, opening the form with ten
// thousand deals.

#include "Blankfenster.h"
#include "Messwerk.h"
#include "core/globals.h"
#include "stores/Handel.h"
#include "stores/forms/TV_EinVerkauf_Lager.h"

using namespace TZ_Variablen;

namespace {

constexpr int Völker = 100;  // the smallest operation; they play no part
constexpr int Kunden = 50;

QString kunde(int i) { return QString("Kunde %1").arg(i % Kunden); }

void leeren() {
  DB.Sammelschreiben([] {
    for (const char* tabelle : {"Einkauf", "Verkauf", "Honiglager", "Kunden"})
      DB.Execute(QString("delete from %1").arg(tabelle));
  });
}

void speichern(Handel::Seite seite, int i) {
  Verwaltung::Texte texte = Verwaltung::vorgaben(Handel::geschäftsfelder(seite));
  texte["Produkt"] = i % 2 == 0 ? QString("Waldhonig") : QString("Honig");
  texte["Qualität"] = QString("I");
  texte[Handel::partnerfeld(seite)] = kunde(i);
  texte["Menge"] = QString("12,5");
  texte["Einheit"] = QString("kg");
  texte[Handel::geldfeld(seite)] = QString("118,75");
  texte["Charge"] = QString("C%1").arg(i % 20);
  Handel::geschäftSpeichern(DB, seite, texte, {});
}

void Verkauf_programm(benchmark::State& zustand) {
  betriebÖffnen(Völker);
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
  betriebÖffnen(Völker);
  Blank blank(DatenbankPfad);
  Blank::Anweisung geschäft(
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
      blank.führeAus("begin immediate");
      geschäft.binde(1, "2026-08-31");
      geschäft.binde(2, produkt);
      geschäft.binde(3, name.c_str());
      geschäft.binde(4, charge.c_str());
      geschäft.führeAus();
      const qint64 id = sqlite3_last_insert_rowid(blank.db());
      bekannt.binde(1, name.c_str());
      if (bekannt.lese() == 0) {
        neuer.binde(1, name.c_str());
        neuer.führeAus();
      }
      alte.binde(1, id);
      alte.lese();
      bewegung.binde(1, "2026-08-31");
      bewegung.binde(2, produkt);
      bewegung.binde(3, charge.c_str());
      bewegung.binde(4, id);
      bewegung.führeAus();
      blank.führeAus("commit");
    }
  }
  betriebVerwerfen();
}

void füllen(int geschäfte) {
  betriebÖffnen(Völker);
  leeren();
  DB.Sammelschreiben([&] {
    for (int i = 0; i < geschäfte; ++i)
      speichern(i % 2 == 0 ? Handel::Seite::Einkauf : Handel::Seite::Verkauf, i);
  });
}

void Formular_programm(benchmark::State& zustand) {
  füllen(static_cast<int>(zustand.range(0)));
  FormModus = QString("2");
  for (auto _ : zustand) {
    TV_EinVerkauf_Lager form;
    form.laden();
  }
  betriebVerwerfen();
}

// A window of as many bare controls, and what the form shows, each read once: the sums are added
// up on the way, and a pick list that two inputs share is one.
void Formular_blank(benchmark::State& zustand) {
  füllen(static_cast<int>(zustand.range(0)));
  FormModus = QString("2");
  const Bauteilzahl zahl = [] {
    TV_EinVerkauf_Lager vorbild;
    vorbild.laden();
    return zähle(vorbild);
  }();
  Blank blank(DatenbankPfad);
  std::vector<std::unique_ptr<Blank::Anweisung>> lesen;
  for (const char* text :
       {"select * from Honiglager order by Datum", "select * from Einkauf order by Datum",
        "select * from Verkauf order by Datum",
        "select Lieferant, Kundenname from Kunden order by Kundenname"})
    lesen.push_back(std::make_unique<Blank::Anweisung>(blank.db(), text));
  std::vector<std::unique_ptr<Blank::Sprungliste>> auswahl;
  for (const auto& [tabelle, feld] : {std::pair("Honiglager", "Produkt"),
                                      {"Honiglager", "Bemerkung"},
                                      {"Honiglager", "Charge"},
                                      {"Einkauf", "Produkt"},
                                      {"Einkauf", "Qualität"},
                                      {"Verkauf", "Produkt"},
                                      {"Verkauf", "Qualität"}})
    auswahl.push_back(std::make_unique<Blank::Sprungliste>(blank.db(), tabelle, feld));
  for (auto _ : zustand) {
    Blankfenster fenster(zahl);
    for (auto& eine : lesen) eine->lese();
    for (auto& eine : auswahl) eine->lese();
    fenster.fülle(static_cast<int>(zustand.range(0)), QStringLiteral("31.08.2026"));
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
