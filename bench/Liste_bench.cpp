// Long lists on their way out: 100,000 rows of 52 columns, by the program's own routine and by a
// bare loop that writes the same bytes (reads, compares) with everything laid out beforehand. The
// bare loop of the sheet goes through its library.

#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <numeric>

#include "Messwerk.h"
#include "core/globals.h"
#include "output/Excelausgabe.h"
#include "output/Textliste.h"
#include "output/Uebergabe.h"
#include "output/Webbericht.h"
#include "platform/controls/Grid.h"
#include "platform/files/Tabellenblatt.h"

namespace {

constexpr int Zeilen = 100000;
constexpr int Spalten = 52;

QString ordner() {
  static const QTemporaryDir eigener(QStringLiteral(TOVA_BENCH_DATEN "-liste-XXXXXX"));
  return eigener.path() + "/";
}

// As an evaluation makes them: names, whole numbers, weights, prices, dates, notes, empty cells.
const Ausgabeliste& liste() {
  static const Ausgabeliste fertig = [] {
    constexpr std::array Typen{Feldtyp::Text,    Feldtyp::Lang,  Feldtyp::Einfach,
                               Feldtyp::Währung, Feldtyp::Datum, Feldtyp::Memo};
    std::vector<Spalte> spalten;
    for (size_t i = 0; i < Spalten; ++i)
      spalten.push_back({"Spalte_" + QString::number(i), Typen[i % Typen.size()], 0});
    Datenblock::Bauer bauer(spalten);
    quint32 zufall = 1;
    for (int zeile = 0; zeile < Zeilen; ++zeile)
      for (int i = 0; i < Spalten; ++i) {
        zufall = zufall * 1664525U + 1013904223U;
        const int n = static_cast<int>(zufall >> 8);
        if (n % 9 == 0) {
          bauer.null();
          continue;
        }
        switch (i % 6) {
          case 0:
            bauer.text(QStringView(QString("Völkchen %1").arg(n % 5000)));
            break;
          case 1:
            bauer.ganz(n % 100);
            break;
          case 2:
            bauer.gleitkomma((n % 4000) / 100.0);
            break;
          case 3:
            bauer.gleitkomma((n % 90000) / 100.0);
            break;
          case 4:
            bauer.wert(QDate(2020, 1, 1).addDays(n % 2400));
            break;
          default:
            bauer.text(QStringView(QString("sitzt ruhig auf %1 Waben").arg(n % 20)));
        }
      }
    return Ausgabeliste(bauer.fertig());
  }();
  return fertig;
}

QByteArray bytes(const QString& pfad) {
  QFile datei(pfad);
  if (!datei.open(QIODevice::ReadOnly)) throw std::runtime_error("open");
  return datei.readAll();
}

// Writes the bytes as a C program would, flushed or not.
void blankSchreiben(const QString& pfad, const QByteArray& inhalt, bool gespült) {
  QFile datei(pfad);
  if (!datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) throw std::runtime_error("open");
  constexpr qsizetype Stück = 1 << 20;
  for (qsizetype i = 0; i < inhalt.size(); i += Stück)
    datei.write(inhalt.constData() + i, std::min(Stück, inhalt.size() - i));
  if (gespült) fsync(datei.handle());
}

void Übergeben_programm(benchmark::State& zustand) {
  liste();  // made before the clock runs
  for (auto _ : zustand) Übergabe::schreiben(ordner() + "gridli.txt", liste());
}
void Übergeben_blank(benchmark::State& zustand) {
  Übergabe::schreiben(ordner() + "gridli.txt", liste());
  const QByteArray inhalt = bytes(ordner() + "gridli.txt");
  for (auto _ : zustand) blankSchreiben(ordner() + "blank.txt", inhalt, true);
}

// The bare loop reads the file and finds the beginning of every cell.
void Laden_programm(benchmark::State& zustand) {
  Übergabe::schreiben(ordner() + "gridli.txt", liste());
  for (auto _ : zustand) benchmark::DoNotOptimize(Übergabe::lesen(ordner() + "gridli.txt"));
}
void Laden_blank(benchmark::State& zustand) {
  Übergabe::schreiben(ordner() + "gridli.txt", liste());
  for (auto _ : zustand) {
    const QByteArray inhalt = bytes(ordner() + "gridli.txt");
    std::vector<const char*> zellen;
    zellen.reserve(size_t{Zeilen} * Spalten + 200);
    for (const char& c : inhalt)
      if (c == '\t' || c == '\n') zellen.push_back(&c + 1);
    benchmark::DoNotOptimize(zellen.data());
  }
}

// By the texts of a column; the bare loop sorts ready keys.
void Sortieren_programm(benchmark::State& zustand) {
  Grid gitter;
  gitter.setDaten(liste().daten());
  bool auf = true;
  for (auto _ : zustand) {
    gitter.sortiere(0, auf ? Qt::AscendingOrder : Qt::DescendingOrder);
    auf = !auf;
  }
}
void Sortieren_blank(benchmark::State& zustand) {
  std::vector<std::string> texte;
  for (int i = 0; i < Zeilen; ++i) {
    const QByteArrayView roh = liste().daten()->rohtext(i, 0);
    texte.emplace_back(roh.data(), static_cast<size_t>(roh.size()));
  }
  for (auto _ : zustand) {
    std::vector<int> ordnung(Zeilen);
    std::iota(ordnung.begin(), ordnung.end(), 0);
    std::stable_sort(ordnung.begin(), ordnung.end(), [&](int a, int b) {
      return texte[static_cast<size_t>(a)] < texte[static_cast<size_t>(b)];
    });
    benchmark::DoNotOptimize(ordnung.data());
  }
}

void Text_programm(benchmark::State& zustand) {
  for (auto _ : zustand)
    Textliste::schreiben(ordner() + "LISTE.TXT", liste(), {"20.11.2026", "Kopf"}, " | ");
}
void Text_blank(benchmark::State& zustand) {
  Textliste::schreiben(ordner() + "LISTE.TXT", liste(), {"20.11.2026", "Kopf"}, " | ");
  const QByteArray inhalt = bytes(ordner() + "LISTE.TXT");
  for (auto _ : zustand) blankSchreiben(ordner() + "blank.txt", inhalt, true);
}

void Web_programm(benchmark::State& zustand) {
  for (auto _ : zustand) Webbericht::schreiben(ordner(), liste(), {});
}
void Web_blank(benchmark::State& zustand) {
  Webbericht::schreiben(ordner(), liste(), {});
  const QByteArray inhalt = bytes(ordner() + "report.htm");
  for (auto _ : zustand) blankSchreiben(ordner() + "blank.htm", inhalt, false);
}

// The bare loop hands the same number of ready cells to the sheet's library.
void Tabelle_programm(benchmark::State& zustand) {
  for (auto _ : zustand) Excelausgabe::schreiben(ordner() + "tova_liste.xlsx", liste(), {});
}
void Tabelle_blank(benchmark::State& zustand) {
  const Datenblock& daten = *liste().daten();
  std::vector<std::string> texte;
  for (int zeile = 0; zeile < Zeilen; ++zeile)
    for (int i = 0; i < Spalten; ++i)
      texte.push_back(daten.istText(zeile, i) ? daten.anzeige(zeile, i).toStdString() : "");
  for (auto _ : zustand) {
    Tabellenblatt blatt(ordner() + "blank.xlsx", "Liste");
    size_t n = 0;
    for (int zeile = 0; zeile < Zeilen; ++zeile)
      for (int i = 0; i < Spalten; ++i, ++n) {
        if (!texte[n].empty())
          blatt.text(zeile, i, texte[n].c_str(), Tabellenblatt::Form::Standard);
        else if (!daten.istNull(zeile, i))
          blatt.zahl(zeile, i, daten.zahl(zeile, i), Tabellenblatt::Form::Zahl);
      }
    blatt.speichern();
  }
}

void einmal(benchmark::internal::Benchmark* messung) {
  messung->Arg(Zeilen)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(Übergeben_programm)->Name("ListeUebergeben/programm")->Apply(einmal);
BENCHMARK(Übergeben_blank)->Name("ListeUebergeben/blank")->Apply(einmal);
BENCHMARK(Laden_programm)->Name("ListeLaden/programm")->Apply(einmal);
BENCHMARK(Laden_blank)->Name("ListeLaden/blank")->Apply(einmal);
BENCHMARK(Sortieren_programm)->Name("ListeSortieren/programm")->Apply(einmal);
BENCHMARK(Sortieren_blank)->Name("ListeSortieren/blank")->Apply(einmal);
BENCHMARK(Text_programm)->Name("ListeText/programm")->Apply(einmal);
BENCHMARK(Text_blank)->Name("ListeText/blank")->Apply(einmal);
BENCHMARK(Web_programm)->Name("ListeWeb/programm")->Apply(einmal);
BENCHMARK(Web_blank)->Name("ListeWeb/blank")->Apply(einmal);
BENCHMARK(Tabelle_programm)->Name("ListeTabelle/programm")->Apply(einmal);
BENCHMARK(Tabelle_blank)->Name("ListeTabelle/blank")->Apply(einmal);

}  // namespace
