// The entry form: opening it on a type, and stepping to the next colony with all pick lists.

#include <QApplication>
#include <QPushButton>

#include "Blankfenster.h"
#include "Messwerk.h"
#include "bookings/Buchungstypen.h"
#include "bookings/forms/TE_Eingabe.h"
#include "core/globals.h"
#include "gemeinsam/Testliste.h"

using namespace TZ_Variablen;

namespace {

constexpr int honigernte = 1;

int völker(const benchmark::State& zustand) { return static_cast<int>(zustand.range(0)); }

// What stands in the two lists: the bookings of one colony, and each pick list's texts once.
class BlankeMaske {
 public:
  explicit BlankeMaske(Blank& blank)
      : m_liste(blank.db(), "select * from Honigernte where Volk_ID = ?1 order by Datum") {
    for (const Buchungsslot& platz : buchungstyp(honigernte).plätze)
      if (platz.hatPickliste())
        m_auswahl.push_back(std::make_unique<Blank::Sprungliste>(blank.db(), "Honigernte",
                                                                 platz.feld.toStdString()));
  }
  // Gives the number of bookings.
  int lese(qint64 volkId) {
    m_liste.binde(1, volkId);
    const int zeilen = m_liste.lese();
    for (auto& eine : m_auswahl) eine->lese();
    return zeilen;
  }

 private:
  Blank::Anweisung m_liste;
  std::vector<std::unique_ptr<Blank::Sprungliste>> m_auswahl;
};

void MaskeÖffnen_programm(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  Testliste liste;
  liste.setAktuelleZeile(0);
  BuchungsArt = honigernte;
  for (auto _ : zustand) {
    TE_Eingabe form(nullptr);
    form.laden();
    form.show();
    QApplication::processEvents();
    ListeNeuLesen = 0;
    form.close();
  }
}
Bauteilzahl maskenteile() {
  Testliste liste;
  liste.setAktuelleZeile(0);
  BuchungsArt = honigernte;
  TE_Eingabe vorbild(nullptr);
  vorbild.show();
  QApplication::processEvents();
  ListeNeuLesen = 0;
  vorbild.close();
  return zähle(vorbild);
}

// A window of as many bare controls, and what stands in its lists.
void MaskeÖffnen_blank(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  const Bauteilzahl zahl = maskenteile();
  Blank blank(DatenbankPfad);
  Blank::Anweisung register_(
      blank.db(),
      "select Volknr, Volkname, Standort, ID from Bienenvolk where Akt_im_Bestand = 'X'");
  BlankeMaske maske(blank);
  for (auto _ : zustand) {
    Blankfenster fenster(zahl);
    register_.lese();  // the sites of the colonies come along
    fenster.fülle(maske.lese(1), QStringLiteral("31.08.2026"));
    fenster.show();
    QApplication::processEvents();
    fenster.close();
  }
}

void NächstesVolk_programm(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  Testliste liste;
  liste.setAktuelleZeile(0);
  BuchungsArt = honigernte;
  TE_Eingabe form(nullptr);
  form.laden();
  form.show();
  QApplication::processEvents();
  auto* weiter = form.findChild<QPushButton*>("nextvolk1_1");
  for (auto _ : zustand) weiter->click();
  ListeNeuLesen = 0;
  form.close();
}
void NächstesVolk_blank(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  Blankfenster fenster(maskenteile());
  fenster.show();
  QApplication::processEvents();
  Blank blank(DatenbankPfad);
  BlankeMaske maske(blank);
  qint64 id = 0;
  for (auto _ : zustand) {
    const int zeilen = maske.lese(id = id % völker(zustand) + 1);
    fenster.fülle(zeilen, QString::number(id));
  }
  fenster.close();
}

void größen(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(MaskeÖffnen_programm)->Name("MaskeOeffnen/programm")->Apply(größen);
BENCHMARK(MaskeÖffnen_blank)->Name("MaskeOeffnen/blank")->Apply(größen);
BENCHMARK(NächstesVolk_programm)->Name("NaechstesVolk/programm")->Apply(größen);
BENCHMARK(NächstesVolk_blank)->Name("NaechstesVolk/blank")->Apply(größen);

}  // namespace
