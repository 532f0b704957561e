#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>

#include "Listen.h"
#include "gemeinsam/Programmordner.h"
#include "output/Excelausgabe.h"
#include "output/Textausgabe.h"
#include "output/Textliste.h"
#include "output/Uebergabe.h"
#include "output/Webbericht.h"

// Lists, reports and scratch files can be made again: no output waits for the medium.
namespace {

int gespült = 0;

int zähle(const char* name, int griff) {
  ++gespült;
  return reinterpret_cast<int (*)(int)>(dlsym(RTLD_NEXT, name))(griff);
}

}  // namespace

extern "C" int fsync(int griff) { return zähle("fsync", griff); }
extern "C" int fdatasync(int griff) { return zähle("fdatasync", griff); }

namespace {

TEST(Spülen, KeineAusgabeWartetAufDenDatenträger) {
  const Programmordner ordner{"20.11.2026"};
  const Ausgabeliste liste(Listen::ernte());
  const QString bisher = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(ordner.path() + "/"));
  gespült = 0;
  Übergabe::schreiben(Übergabe::datei(), liste);
  Textliste::schreiben(Textliste::datei(), liste, {}, " | ");
  Textausgabe::listeSchreiben({"Zeile"});
  Textausgabe::druckaufSchreiben("Text");
  Webbericht::schreiben(ordner.path() + "/", liste, {});
  Excelausgabe::schreiben(Excelausgabe::datei(), liste, {});
  EXPECT_EQ(gespült, 0);
  QDir::setCurrent(bisher);
  for (const char* name :
       {"gridli.txt", "LISTE.TXT", "DRUCKAUF.TXT", "report.htm", "tova_liste.xlsx"})
    EXPECT_GT(Listen::bytes(ordner.filePath(name)).size(), 3) << name;
}

}  // namespace
