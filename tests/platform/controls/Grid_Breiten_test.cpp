#include "platform/controls/Grid.h"
#include "platform/controls/Hilfen.h"

namespace {

// A list in the order of its texts, the long ones at its end.
Daten sortiert(int kurze, int lange, const QString& langer) {
  Datenblock::Bauer bauer({{"Termin", Feldtyp::Text, 30}});
  for (int i = 0; i < kurze; ++i) bauer.wert(QString("Ernte"));
  for (int i = 0; i < lange; ++i) bauer.wert(langer);
  return bauer.fertig();
}

TEST(GridBreiten, AuchLangeTexteHinterVielenKurzenPassenInDieSpalte) {
  const QString langer = "Varroa-Winterbekämpfung";
  for (const int zeilen : {150, 300, 5000}) {
    Grid grid;
    grid.setDaten(sortiert(zeilen - zeilen / 10, zeilen / 10, langer));
    EXPECT_GT(grid.columnWidth(0), grid.fontMetrics().horizontalAdvance(langer)) << zeilen;
  }
}

}  // namespace
