// Reading: opening the database, the list of colonies, the panel.

#include "Messwerk.h"
#include "core/globals.h"
#include "core/mainform/Liste.h"
#include "core/mainform/Volkanzeige.h"
#include "platform/controls/Grid.h"

using namespace TZ_Variablen;

namespace {

int voelker(const benchmark::State& zustand) { return static_cast<int>(zustand.range(0)); }

// The program checks the file before it opens it; the bare loop only reads the schema.
void DatenbankOeffnen_programm(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  for (auto _ : zustand) {
    Workspace bereich;
    Database db = bereich.OpenDatabase(DatenbankPfad);
    benchmark::DoNotOptimize(db.Lesen("select top 1 * from Bienenvolk"));
  }
}
void DatenbankOeffnen_blank(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  for (auto _ : zustand) {
    Blank blank(DatenbankPfad);
    Blank::Anweisung eine(blank.db(), "select * from Bienenvolk limit 1");
    eine.lese();
  }
}

void ListeLesen_programm(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  listenfelderPruefen();
  Grid gitter;
  for (auto _ : zustand) {
    gitter.setDaten(volkliste(DB, Volkfilter::Alles));
    benchmark::DoNotOptimize(volkanzahl(DB));
  }
}
void ListeLesen_blank(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  listenfelderPruefen();
  Blank blank(DatenbankPfad);
  Blank::Anweisung liste(blank.db(), EinstellungenText[17].toUtf8().constData());
  Blank::Anweisung bestand(blank.db(),
                           "select count(*) from Bienenvolk where Akt_im_Bestand = 'X'");
  Blank::Anweisung abgang(blank.db(),
                          "select count(*) from Bienenvolk where Akt_im_Bestand is not 'X'");
  for (auto _ : zustand) {
    liste.lese();
    bestand.lese();
    abgang.lese();
  }
}

// With the sort that the user left; the bare loop lets the engine sort.
void ListeSortiert_programm(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  listenfelderPruefen();
  Grid gitter;
  for (auto _ : zustand) {
    gitter.setDaten(volkliste(DB, Volkfilter::Alles));
    gitter.sortiere(1, Qt::AscendingOrder);
  }
}
void ListeSortiert_blank(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  listenfelderPruefen();
  Blank blank(DatenbankPfad);
  Blank::Anweisung liste(blank.db(),
                         (EinstellungenText[17] + " order by Volkname").toUtf8().constData());
  for (auto _ : zustand) liste.lese();
}

// The panel of one colony after the other, spread over the register.
class Volkfolge {
 public:
  explicit Volkfolge(int anzahl) : m_anzahl(anzahl) {}
  qint64 naechstes() { return m_id = (m_id + 37) % m_anzahl + 1; }

 private:
  int m_anzahl;
  qint64 m_id = 0;
};

void InfoFenster_programm(benchmark::State& zustand) {
  betriebOeffnen(voelker(zustand));
  listenfelderPruefen();
  stockkartenfelderPruefen();
  const Daten liste = volkliste(DB, Volkfilter::Alles);
  const int idSpalte = liste->spaltenNummer(u"ID");
  Volkfolge folge(voelker(zustand));
  for (auto _ : zustand) {
    const int zeile = static_cast<int>(folge.naechstes() - 1);
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
  betriebOeffnen(voelker(zustand));
  Blank blank(DatenbankPfad);
  std::vector<std::unique_ptr<Blank::Anweisung>> bloecke;
  const auto dazu = [&](const char* sql) {
    bloecke.push_back(std::make_unique<Blank::Anweisung>(blank.db(), sql));
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
  Volkfolge folge(voelker(zustand));
  for (auto _ : zustand) {
    const qint64 id = folge.naechstes();
    for (auto& block : bloecke) {
      block->binde(1, id);
      block->lese();
    }
  }
}

void groessen(benchmark::internal::Benchmark* messung) {
  messung->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(DatenbankOeffnen_programm)->Name("DatenbankOeffnen/programm")->Apply(groessen);
BENCHMARK(DatenbankOeffnen_blank)->Name("DatenbankOeffnen/blank")->Apply(groessen);
BENCHMARK(ListeLesen_programm)->Name("ListeLesen/programm")->Apply(groessen);
BENCHMARK(ListeLesen_blank)->Name("ListeLesen/blank")->Apply(groessen);
BENCHMARK(ListeSortiert_programm)->Name("ListeSortiert/programm")->Apply(groessen);
BENCHMARK(ListeSortiert_blank)->Name("ListeSortiert/blank")->Apply(groessen);
BENCHMARK(InfoFenster_programm)->Name("InfoFenster/programm")->Apply(groessen);
BENCHMARK(InfoFenster_blank)->Name("InfoFenster/blank")->Apply(groessen);

}  // namespace
