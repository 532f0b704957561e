// The three menu entries that lead from marked to selected colonies and back, with the real list.
#include "Hauptumfeld.h"

using namespace TZ_Variablen;

namespace {

const QString Strg = "Sie können die Völker auch mit gedrückter STRG-Taste und der Maus markieren.";

class Hauptselektion : public Hauptumfeld {
 protected:
  static qint64 selektierte() {
    return DB.Lesen("select count(*) as n from Bienenvolk where Selektiert = 'X'")->ganzzahl(0, 0);
  }
};

TEST_F(Hauptselektion, MarkierteWerdenSelektiertUndLassenSichWiederMarkieren) {
  völker(5, 2);
  starten();
  form->setMarkierteZeilen({1, 3});
  aktion("XV_markiertevölkerselektieren")->trigger();
  EXPECT_EQ(selektierte(), 2);
  EXPECT_EQ(form->zelle(1, "Selektiert"), "X");
  EXPECT_EQ(form->zelle(2, "Selektiert"), "");
  EXPECT_EQ(form->aktuelleZeile(), 0);

  probe.hinweis(Strg);
  aktion("XV_selektiertevölkermarkieren")->trigger();
  EXPECT_EQ(form->markierteZeilen(), QList<int>({1, 3}));
  EXPECT_EQ(form->aktuelleZeile(), 1);
  EXPECT_EQ(AktVolkID, form->zelle(1, "ID"));
}

TEST_F(Hauptselektion, OhneSelektierteBleibtDieAktuelleZeileUndNichtsIstMarkiert) {
  völker(3);
  starten();
  form->setAktuelleZeile(2);
  probe.hinweis(Strg);
  aktion("XV_selektiertevölkermarkieren")->trigger();
  EXPECT_EQ(form->markierteZeilen(), QList<int>());
  EXPECT_EQ(form->aktuelleZeile(), 2);
}

TEST_F(Hauptselektion, DieFormSelektiertUndDieMarkierungÜberstehtDieRückkehr) {
  völker(3, 2);
  starten();
  probe.frage("Es sind 3 Völker selektiert. Sollen diese auch gleich markiert werden?", true);
  probe.hinweis(Strg);
  Formbesuch besuch("TV_Selektieren", [](QWidget* form) {
    QTest::mouseClick(form->findChild<QAbstractButton*>("entselekt_0"), Qt::LeftButton);
  });
  aktion("XV_völkerselektieren")->trigger();
  QApplication::processEvents();
  EXPECT_TRUE(besuch.war());
  EXPECT_EQ(selektierte(), 5);
  EXPECT_EQ(form->markierteZeilen(), QList<int>({0, 1, 2}));
}

TEST_F(Hauptselektion, SelektierteBleibenNachEinemNeustart) {
  völker(2);
  starten();
  form->setMarkierteZeilen({0});
  aktion("XV_markiertevölkerselektieren")->trigger();
  schließen();
  starten();
  EXPECT_EQ(form->zelle(0, "Selektiert"), "X");
  EXPECT_EQ(form->zelle(1, "Selektiert"), "");
}

TEST_F(Hauptselektion, MitLeererListeSindDieDreiPunkteGesperrt) {
  völker(0, 1);
  EXPECT_TRUE(laden());
  Formbesuch erste("TH_Hilfe_Wieanfangen");
  zeigen();
  for (const char* name :
       {"XV_völkerselektieren", "XV_selektiertevölkermarkieren", "XV_markiertevölkerselektieren"})
    EXPECT_FALSE(aktion(name)->isEnabled()) << name;
}

}  // namespace
