// The entry form: opening it on a type, and stepping to the next colony with all pick lists.

#include <QApplication>
#include <QPushButton>

#include "Messwerk.h"
#include "bookings/Buchungstypen.h"
#include "bookings/forms/TE_Eingabe.h"
#include "core/globals.h"
#include "gemeinsam/Testliste.h"

using namespace TZ_Variablen;

namespace {

constexpr int honigernte = 1;

int voelker(const benchmark::State& zustand) { return static_cast<int>(zustand.range(0)); }

// What stands in the two lists: the bookings of one colony, and each pick list's texts once.
class BlankeMaske {
 public:
  explicit BlankeMaske(Blank& blank)
      : m_liste(blank.db(), "select * from Honigernte where Volk_ID = ?1 order by Datum") {
    for (const Buchungsslot& platz : buchungstyp(honigernte).plaetze) {
      if (platz.listenFeld.isEmpty()) continue;
      m_erster.push_back(std::make_unique<Blank::Anweisung>(
          blank.db(), QStringLiteral("select min(%1) from Honigernte")
                          .arg(platz.listenFeld)
                          .toUtf8()
                          .constData()));
      m_naechster.push_back(std::make_unique<Blank::Anweisung>(
          blank.db(), QStringLiteral("select min(%1) from Honigernte where %1 > ?1")
                          .arg(platz.listenFeld)
                          .toUtf8()
                          .constData()));
    }
  }
  void lese(qint64 volkId) {
    m_liste.binde(1, volkId);
    m_liste.lese();
    for (size_t i = 0; i < m_erster.size(); ++i) {
      std::string text = m_erster[i]->text();
      while (!text.empty()) {
        m_naechster[i]->binde(1, text.c_str());
        text = m_naechster[i]->text();
      }
    }
  }

 private:
  Blank::Anweisung m_liste;
  std::vector<std::unique_ptr<Blank::Anweisung>> m_erster;
  std::vector<std::unique_ptr<Blank::Anweisung>> m_naechster;
};

void MaskeOeffnen_programm(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  Testliste liste;
  liste.setAktuelleZeile(0);
  BuchungsArt = honigernte;
  for (auto _ : zustand) {
    TE_Eingabe form(nullptr);
    form.show();
    QApplication::processEvents();
    ListeNeuLesen = 0;
    form.close();
  }
}
void MaskeOeffnen_blank(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  Blank blank(DatenbankPfad);
  Blank::Anweisung register_(
      blank.db(),
      "select Volknr, Volkname, Standort, ID from Bienenvolk where Akt_im_Bestand = 'X'");
  Blank::Anweisung orte(blank.db(), "select distinct Standort from Bienenvolk order by Standort");
  BlankeMaske maske(blank);
  for (auto _ : zustand) {
    register_.lese();
    orte.lese();
    maske.lese(1);
  }
}

void NaechstesVolk_programm(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  Testliste liste;
  liste.setAktuelleZeile(0);
  BuchungsArt = honigernte;
  TE_Eingabe form(nullptr);
  form.show();
  QApplication::processEvents();
  auto* weiter = form.findChild<QPushButton*>("nextvolk1_1");
  for (auto _ : zustand) weiter->click();
  ListeNeuLesen = 0;
  form.close();
}
void NaechstesVolk_blank(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  Blank blank(DatenbankPfad);
  BlankeMaske maske(blank);
  qint64 id = 0;
  for (auto _ : zustand) maske.lese(id = id % voelker(zustand) + 1);
}

void groessen(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(MaskeOeffnen_programm)->Name("MaskeOeffnen/programm")->Apply(groessen);
BENCHMARK(MaskeOeffnen_blank)->Name("MaskeOeffnen/blank")->Apply(groessen);
BENCHMARK(NaechstesVolk_programm)->Name("NaechstesVolk/programm")->Apply(groessen);
BENCHMARK(NaechstesVolk_blank)->Name("NaechstesVolk/blank")->Apply(groessen);

}  // namespace
