#include <gtest/gtest.h>

#include "planning/forms/Arplanprobe.h"

namespace {

class ArplanBedienung : public Arplanprobe {};

TEST_F(ArplanBedienung, DieListeIstLesbarUeberschrieben) {
  oeffne();
  QStringList koepfe;
  for (int i = 0; i < liste()->spalten(); ++i)
    koepfe << liste()->model()->headerData(i, Qt::Horizontal).toString();
  EXPECT_EQ(koepfe.join("|").toStdString(),
            "Arbeitsart|Startzeitraum|Endzeitraum|Wiederholungsfrist (Tage)|"
            "Volkabhängig|Autom. Erled. Buchung|Autom. Erled. Arbeitsart|ID");
}

// Several options one after the other, without clearing the input in between.
TEST_F(ArplanBedienung, NachDemSpeichernUeberschreibtDerNaechsteNameDenAlten) {
  oeffne();
  fuelle("Drohnen schneiden", "01.07", "31.07", "N");
  klicke("neu_0");
  QTest::keyClicks(feld(0), "Schwarmkontrolle");
  EXPECT_EQ(inhalt(0), "Schwarmkontrolle");
  klicke("neu_0");
  EXPECT_EQ(namen(), QStringList({"Drohnen schneiden", "Schwarmkontrolle"}));
}

}  // namespace
