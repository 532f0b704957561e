#include "platform/database/werte/Zeilenordnung.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "platform/database/werte/Kollation.h"

namespace {

Daten spalte(Feldtyp typ, const QVariantList& werte) {
  Datenblock::Bauer bauer(std::vector<Spalte>{{"Feld", typ, 0}});
  for (const QVariant& wert : werte) bauer.wert(wert);
  return bauer.fertig();
}

std::vector<int> alle(const Daten& block) {
  std::vector<int> zeilen(static_cast<size_t>(block->zeilen()));
  std::iota(zeilen.begin(), zeilen.end(), 0);
  return zeilen;
}

std::vector<int> folge(const Daten& block, bool absteigend = false) {
  std::vector<int> zeilen = alle(block);
  Zeilenordnung::sortiere(zeilen, Zeilenordnung::schlüssel(*block, 0), absteigend);
  return zeilen;
}

// Cell by cell, as the order is described.
int vergleiche(const Datenblock& block, int a, int b) {
  const auto rang = [&](int zeile) {
    if (!block.istText(zeile, 0)) return block.istNull(zeile, 0) ? 0 : 1;
    return block.rohtext(zeile, 0).isEmpty() ? 0 : 2;
  };
  if (rang(a) != rang(b) || rang(a) == 0) return rang(a) - rang(b);
  if (rang(a) == 1) {
    const double links = block.zahl(a, 0), rechts = block.zahl(b, 0);
    return links < rechts ? -1 : links > rechts ? 1 : 0;
  }
  if (block.spalte(0).typ == Feldtyp::Datum)
    return block.rohtext(a, 0).compare(block.rohtext(b, 0));
  return Kollation::vergleicheUtf8(block.rohtext(a, 0), block.rohtext(b, 0));
}

std::vector<int> erwartet(const Daten& block, bool absteigend) {
  std::vector<int> zeilen = alle(block);
  std::stable_sort(zeilen.begin(), zeilen.end(), [&](int a, int b) {
    const int wie = vergleiche(*block, a, b);
    return absteigend ? wie > 0 : wie < 0;
  });
  return zeilen;
}

TEST(Zeilenordnungen, LeeresZuerstDannZahlenDannTexte) {
  const Daten block = spalte(Feldtyp::Ausdruck, {"Wald", 10, QVariant(), -2.5, "", "ähre", 1e300,
                                                 "Ahre", -1e300, qint64{3}, 0.0, -0.0, "Ähren"});
  EXPECT_EQ(folge(block), std::vector<int>({2, 4, 8, 3, 10, 11, 9, 1, 6, 7, 5, 12, 0}));
}

TEST(Zeilenordnungen, GleichesBleibtInSeinerFolgeAuchAbsteigend) {
  const Daten block = spalte(Feldtyp::Text, {"b", "A", "B ", "a", QVariant(), "b"});
  EXPECT_EQ(folge(block), std::vector<int>({4, 1, 3, 0, 2, 5}));
  EXPECT_EQ(folge(block, true), std::vector<int>({0, 2, 5, 1, 3, 4}));
}

TEST(Zeilenordnungen, TageNachDemKalenderUndFremdeTexteDazwischen) {
  const QVariantList tage = {QDate(2026, 5, 1), QDate(999, 12, 31), QVariant(), QDate(2025, 12, 31),
                             QDate(9999, 1, 1)};
  EXPECT_EQ(folge(spalte(Feldtyp::Datum, tage)), std::vector<int>({2, 1, 3, 0, 4}));
  EXPECT_EQ(folge(spalte(Feldtyp::Datum, tage + QVariantList{"2026-0", ""})),
            std::vector<int>({2, 6, 1, 3, 5, 0, 4}));
}

TEST(Zeilenordnungen, MehrereSpaltenDieWichtigsteZuletzt) {
  Datenblock::Bauer bauer(
      std::vector<Spalte>{{"Tag", Feldtyp::Datum, 0}, {"Art", Feldtyp::Text, 9}});
  for (const auto& [tag, art] : std::initializer_list<std::pair<int, const char*>>{
           {2, "b"}, {1, "b"}, {2, "a"}, {1, "B"}, {1, "a"}}) {
    bauer.wert(QDate(2026, 1, tag));
    bauer.wert(QString(art));
  }
  const Daten block = bauer.fertig();
  std::vector<int> zeilen = alle(block);
  for (const int nummer : {1, 0})
    Zeilenordnung::sortiere(zeilen, Zeilenordnung::schlüssel(*block, nummer));
  EXPECT_EQ(zeilen, std::vector<int>({4, 1, 3, 2, 0}));
  EXPECT_EQ(block->geordnet(zeilen)->anzeige(0, 1), "a");
  EXPECT_EQ(block->geordnet({3, 3})->anzeige(1, 1), "B");
  EXPECT_EQ(block->geordnet({})->zeilen(), 0);
}

TEST(Zeilenordnungen, TexteVonZahlenStehenInEinerZahlenspalteNachGröße) {
  const Daten block = spalte(
      Feldtyp::Währung, {"1.234,50 €", "9,00 €", "SUMME", "-30,00 €", "", QVariant(100.0), "12,5"});
  EXPECT_EQ(folge(block), std::vector<int>({4, 3, 1, 6, 5, 0, 2}));
}

TEST(Zeilenordnungen, TexteVonZahlenBleibenInEinerTextspalteTexte) {
  const Daten block = spalte(Feldtyp::Text, {"9,00 €", "10,00 €"});
  EXPECT_EQ(folge(block), std::vector<int>({1, 0}));
}

TEST(Zeilenordnungen, ZufälligeSpaltenWieZelleFürZelleVerglichen) {
  std::mt19937 zufall(11);
  const QStringList texte = {"Wald", "wald ", "Straße", "STRASSE", "ähre", "Ahre", "10", "2", " "};
  for (int lauf = 0; lauf < 60; ++lauf) {
    const Feldtyp typ = std::array{Feldtyp::Ausdruck, Feldtyp::Text, Feldtyp::Einfach,
                                   Feldtyp::Datum}[static_cast<size_t>(lauf % 4)];
    QVariantList werte;
    for (int i = 0; i < 400; ++i) {
      const auto n = static_cast<int>(zufall() % 1000);
      if (n % 7 == 0)
        werte << QVariant();
      else if (typ == Feldtyp::Datum)
        werte << QVariant(QDate(2020, 1, 1).addDays(n));
      else if (typ == Feldtyp::Text || (typ == Feldtyp::Ausdruck && n % 2 == 0))
        werte << QVariant(texte[n % texte.size()] + (n % 3 == 0 ? QString::number(n) : QString()));
      else
        werte << QVariant((n - 500) / 8.0);
    }
    const Daten block = spalte(typ, werte);
    ASSERT_EQ(folge(block), erwartet(block, false)) << lauf;
    ASSERT_EQ(folge(block, true), erwartet(block, true)) << lauf;
  }
}

}  // namespace
