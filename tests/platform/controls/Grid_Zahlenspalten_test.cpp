#include <QHeaderView>

#include "platform/controls/Grid.h"
#include "platform/controls/Hilfen.h"

// Where the numbers of a list and their headings stand.
namespace {

QVariant null() { return {}; }

// Columns that are expressions, as sum(Zugang) or max(Datum) give them.
Daten ausdrücke(const QStringList& namen, const std::vector<QVariantList>& zeilen) {
  std::vector<Spalte> spalten;
  for (const QString& name : namen) spalten.push_back({name, Feldtyp::Ausdruck, 0});
  Datenblock::Bauer bauer(std::move(spalten));
  for (const QVariantList& zeile : zeilen)
    for (const QVariant& wert : zeile) bauer.wert(wert);
  return bauer.fertig();
}

bool kopfRechts(const Grid& grid, int spalte) {
  return grid.model()->headerData(spalte, Qt::Horizontal, Qt::TextAlignmentRole).toInt() &
         Qt::AlignRight;
}
bool zelleRechts(const Grid& grid, int zeile, int spalte) {
  return grid.model()->index(zeile, spalte).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight;
}

// From the first to the last pixel of a text on its light ground.
struct Tinte {
  int von = -1, bis = -1;
};
Tinte tinte(const QImage& bild, const QRect& fläche) {
  Tinte ergebnis;
  for (int x = fläche.left(); x <= fläche.right(); ++x)
    for (int y = fläche.top(); y <= fläche.bottom(); ++y) {
      if (bild.pixelColor(x, y).lightness() >= 100) continue;
      if (ergebnis.von < 0) ergebnis.von = x;
      ergebnis.bis = x;
    }
  return ergebnis;
}
Tinte tinteDerZelle(const Grid& grid, int zeile, int spalte) {
  return tinte(grid.viewport()->grab().toImage(),
               grid.visualRect(grid.model()->index(zeile, spalte)));
}
Tinte tinteDesKopfes(const Grid& grid, int spalte) {
  QHeaderView* kopf = grid.horizontalHeader();
  return tinte(kopf->viewport()->grab().toImage(),
               QRect(kopf->sectionViewportPosition(spalte), 2, kopf->sectionSize(spalte) - 2,
                     kopf->height() - 4));
}

// The fonts of a screen at 100 and at 150 per cent.
class Zahlenspalten : public testing::TestWithParam<double> {
 protected:
  void zeigeDaten(const Daten& daten) {
    QFont schrift = grid.font();
    schrift.setPointSizeF(schrift.pointSizeF() * GetParam());
    grid.setFont(schrift);
    grid.resize(900, 300);
    grid.setDaten(daten);
    zeige(grid);
  }
  Grid grid;
};

}  // namespace

TEST(Zahlenspalte, EinAusdruckAusZahlenStehtMitSeinerÜberschriftRechts) {
  Grid grid;
  grid.setDaten(ausdrücke({"Summe", "Anzahl"}, {{null(), 3}, {7.5, 0}, {0.25, 12}}));
  for (const int spalte : {0, 1}) {
    EXPECT_TRUE(kopfRechts(grid, spalte)) << spalte;
    for (const int zeile : {0, 1, 2}) EXPECT_TRUE(zelleRechts(grid, zeile, spalte)) << spalte;
  }
}

TEST(Zahlenspalte, TexteTageGemischtesUndLeeresStehenMitIhrerÜberschriftLinks) {
  Grid grid;
  grid.setDaten(ausdrücke({"Text", "Tag", "Gemischt", "Leer"},
                          {{QString("7"), QDate(2026, 5, 1), 3, null()},
                           {QString("8"), null(), QString("drei"), null()}}));
  for (const int spalte : {0, 1, 2, 3}) {
    EXPECT_FALSE(kopfRechts(grid, spalte)) << spalte;
    for (const int zeile : {0, 1}) EXPECT_FALSE(zelleRechts(grid, zeile, spalte)) << spalte;
  }
}

TEST(Zahlenspalte, OhneZeilenGiltDerTypDesFeldes) {
  Grid grid;
  Datenblock::Bauer bauer({{"Menge", Feldtyp::Einfach, 0}, {"Summe", Feldtyp::Ausdruck, 0}});
  grid.setDaten(bauer.fertig());
  EXPECT_TRUE(kopfRechts(grid, 0));
  EXPECT_FALSE(kopfRechts(grid, 1));
}

TEST_P(Zahlenspalten, DieÜberschriftEndetÜberDenZiffern) {
  zeigeDaten(ausdrücke({"HHH", "Art"}, {{88888, QString("H")}}));
  grid.setColumnWidth(0, 300);
  const Tinte kopf = tinteDesKopfes(grid, 0);
  const Tinte zelle = tinteDerZelle(grid, 0, 0);
  ASSERT_GT(kopf.bis, 150);
  EXPECT_NEAR(kopf.bis, zelle.bis, 3);
}

TEST_P(Zahlenspalten, ZwischenZahlUndFolgendemTextPassenZweiZeichen) {
  zeigeDaten(ausdrücke({"Tage", "Volkabhängig"}, {{14, QString("H")}}));
  const Tinte zahl = tinteDerZelle(grid, 0, 0);
  const Tinte text = tinteDerZelle(grid, 0, 1);
  ASSERT_GT(zahl.bis, 0);
  EXPECT_GE(text.von - zahl.bis, 2 * grid.fontMetrics().averageCharWidth());
  EXPECT_GE(tinteDesKopfes(grid, 1).von - tinteDesKopfes(grid, 0).bis,
            2 * grid.fontMetrics().averageCharWidth());
}

TEST_P(Zahlenspalten, DieBreitesteZahlStehtGanzDa) {
  zeigeDaten(ausdrücke({"n", "H"}, {{qlonglong{8888888888}, QString("H")}, {8, QString("H")}}));
  const Tinte angepasst = tinteDerZelle(grid, 0, 0);
  grid.setColumnWidth(0, 600);
  const Tinte weit = tinteDerZelle(grid, 0, 0);
  EXPECT_EQ(angepasst.bis - angepasst.von, weit.bis - weit.von);
  grid.passeBreitenAn(0);
  const Tinte nochmal = tinteDerZelle(grid, 0, 0);
  EXPECT_EQ(nochmal.bis - nochmal.von, weit.bis - weit.von);
}

INSTANTIATE_TEST_SUITE_P(Schriftgrößen, Zahlenspalten, testing::Values(1.0, 1.5));
