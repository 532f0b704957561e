// Reading: opening the database, the list of colonies, the panel.

#include <algorithm>
#include <numeric>

#include "Messwerk.h"
#include "core/globals.h"
#include "mainform/Volkanzeige.h"
#include "mainform/Volkliste.h"
#include "platform/controls/Grid.h"
#include "platform/database/werte/Kollation.h"

using namespace TZ_Variablen;

namespace {

int völker(const benchmark::State& zustand) { return static_cast<int>(zustand.range(0)); }

// The program checks the file before it opens it; the bare loop only reads the schema.
void DatenbankÖffnen_programm(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  for (auto _ : zustand) {
    Workspace bereich;
    Database db = bereich.OpenDatabase(DatenbankPfad);
    benchmark::DoNotOptimize(db.Lesen("select top 1 * from Bienenvolk"));
  }
}
void DatenbankÖffnen_blank(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  for (auto _ : zustand) {
    Blank blank(DatenbankPfad);
    Blank::Anweisung eine(blank.db(), "select * from Bienenvolk limit 1");
    eine.lese();
  }
}

void ListeLesen_programm(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  listenfelderPrüfen();
  Grid gitter;
  for (auto _ : zustand) {
    gitter.setDaten(volkliste(DB, Volkfilter::Alles));
    benchmark::DoNotOptimize(volkanzahl(DB));
  }
}
void ListeLesen_blank(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  listenfelderPrüfen();
  Blank blank(DatenbankPfad);
  Blank::Anweisung liste(blank.db(), EinstellungenText[Textslots.volkfelder].toUtf8().constData());
  // Both counts in one pass.
  Blank::Anweisung anzahl(blank.db(), "select count(*), sum(Akt_im_Bestand = 'X') from Bienenvolk");
  for (auto _ : zustand) {
    liste.lese();
    anzahl.lese();
  }
}

// With the sort that the user left; the bare loop sorts the numbers of the rows by ready keys.
void ListeSortiert_programm(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  listenfelderPrüfen();
  Grid gitter;
  for (auto _ : zustand) {
    gitter.setDaten(volkliste(DB, Volkfilter::Alles));
    gitter.sortiere(1, Qt::AscendingOrder);
  }
}
void ListeSortiert_blank(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  listenfelderPrüfen();
  Blank blank(DatenbankPfad);
  Blank::Anweisung liste(blank.db(), EinstellungenText[Textslots.volkfelder].toUtf8().constData());
  for (auto _ : zustand) {
    std::vector<std::string> texte;
    texte.reserve(static_cast<size_t>(völker(zustand)));
    const int zeilen = liste.leseMit(1, texte);
    std::vector<QByteArray> schlüssel;
    schlüssel.reserve(texte.size());
    for (const std::string& text : texte)
      schlüssel.push_back(Kollation::schlüssel(QString::fromStdString(text)));
    std::vector<size_t> folge(static_cast<size_t>(zeilen));
    std::iota(folge.begin(), folge.end(), size_t{0});
    std::sort(folge.begin(), folge.end(),
              [&](size_t a, size_t b) { return schlüssel[a] < schlüssel[b]; });
    benchmark::DoNotOptimize(folge.data());
  }
}

// The panel of one colony after the other, spread over the register.
class Volkfolge {
 public:
  explicit Volkfolge(int anzahl) : m_anzahl(anzahl) {}
  qint64 nächstes() { return m_id = (m_id + 37) % m_anzahl + 1; }

 private:
  int m_anzahl;
  qint64 m_id = 0;
};

void InfoFenster_programm(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  listenfelderPrüfen();
  stockkartenfelderPrüfen();
  const Daten liste = volkliste(DB, Volkfilter::Alles);
  const int idSpalte = liste->spaltenNummer(u"ID");
  Volkfolge folge(völker(zustand));
  for (auto _ : zustand) {
    const int zeile = static_cast<int>(folge.nächstes() - 1);
    AktVolkID = liste->anzeige(zeile, idSpalte);
    const auto zelle = [&](const QString& spalte) {
      const int nummer = liste->spaltenNummer(spalte);
      return nummer < 0 ? QString() : liste->anzeige(zeile, nummer);
    };
    benchmark::DoNotOptimize(Volkanzeige::honig(DB, AktVolkID));
    benchmark::DoNotOptimize(Volkanzeige::text(DB, zelle, false));
  }
}
void InfoFenster_blank(benchmark::State& zustand) {
  betriebÖffnen(völker(zustand));
  Blank blank(DatenbankPfad);
  std::vector<std::unique_ptr<Blank::Anweisung>> blöcke;
  const auto dazu = [&](const char* sql) {
    blöcke.push_back(std::make_unique<Blank::Anweisung>(blank.db(), sql));
  };
  dazu("select * from Honigernte where Volk_ID = ?1 order by Datum desc, ID limit 1");
  dazu(
      "select sum(Menge_kg) from Honigernte where Datum >= '2026-01-01' and Datum <= '2026-12-31' "
      "and Volk_ID = ?1");
  dazu("select sum(Menge_kg) from Honigernte where Volk_ID = ?1");
  // The stock card is read twice: each row is compared with the next older one.
  for (const char* tabelle :
       {"Stockkarte", "Stockkarte", "Honigernte", "Wachsernte", "Pollenernte", "Sonstigeernte",
        "Arbeiten", "Wanderung", "Gewichtsmessung", "Behandlung", "Königinwechsel", "Notizen"})
    dazu((std::string("select * from ") + tabelle + " where Volk_ID = ?1 order by Datum desc")
             .c_str());
  Volkfolge folge(völker(zustand));
  for (auto _ : zustand) {
    const qint64 id = folge.nächstes();
    for (auto& block : blöcke) {
      block->binde(1, id);
      block->lese();
    }
  }
}

void größen(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(DatenbankÖffnen_programm)->Name("DatenbankOeffnen/programm")->Apply(größen);
BENCHMARK(DatenbankÖffnen_blank)->Name("DatenbankOeffnen/blank")->Apply(größen);
BENCHMARK(ListeLesen_programm)->Name("ListeLesen/programm")->Apply(größen);
BENCHMARK(ListeLesen_blank)->Name("ListeLesen/blank")->Apply(größen);
BENCHMARK(ListeSortiert_programm)->Name("ListeSortiert/programm")->Apply(größen);
BENCHMARK(ListeSortiert_blank)->Name("ListeSortiert/blank")->Apply(größen);
BENCHMARK(InfoFenster_programm)->Name("InfoFenster/programm")->Apply(größen);
BENCHMARK(InfoFenster_blank)->Name("InfoFenster/blank")->Apply(größen);

}  // namespace
