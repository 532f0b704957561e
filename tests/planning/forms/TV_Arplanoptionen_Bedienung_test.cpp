#include <gtest/gtest.h>

#include "planning/forms/Arplanprobe.h"

namespace {

class ArplanBedienung : public Arplanprobe {};

TEST_F(ArplanBedienung, DieListeIstLesbarÜberschrieben) {
  öffne();
  QStringList köpfe;
  for (int i = 0; i < liste()->spalten(); ++i)
    köpfe << liste()->model()->headerData(i, Qt::Horizontal).toString();
  EXPECT_EQ(köpfe.join("|").toStdString(),
            "Arbeitsart|Startzeitraum|Endzeitraum|Wiederholungsfrist (Tage)|"
            "Volkabhängig|Autom. Erled. Buchung|Autom. Erled. Arbeitsart|ID");
}

// Several options one after the other, without clearing the input in between.
TEST_F(ArplanBedienung, NachDemSpeichernÜberschreibtDerNächsteNameDenAlten) {
  öffne();
  fülle("Drohnen schneiden", "01.07", "31.07", "N");
  klicke("neu_0");
  QTest::keyClicks(feld("Arbeitsart"), "Schwarmkontrolle");
  EXPECT_EQ(inhalt("Arbeitsart"), "Schwarmkontrolle");
  klicke("neu_0");
  EXPECT_EQ(namen(), QStringList({"Drohnen schneiden", "Schwarmkontrolle"}));
}

}  // namespace
