// The list of colonies: moving, marking, choosing a site; and the main list behind it.
#include <QHeaderView>

#include "Eingabeprobe.h"

namespace {

using Völker = Eingabeprobe;
using namespace TZ_Variablen;

TEST_F(Völker, DieListeSpiegeltReihenfolgeZeileUndMarkierung) {
  liste = std::make_unique<Testliste>(
      "select * from Bienenvolk where Akt_im_Bestand = 'X' order by Volkname DESC");
  liste->setAktuelleZeile(1);
  liste->setMarkierteZeilen({1, 2});
  öffne(0);
  ASSERT_EQ(volkli()->zeilen(), 3);
  EXPECT_EQ(volkli()->spalten(), 3);
  EXPECT_EQ(volkli()->zelle(0, "Volkname"), "Carla");
  EXPECT_EQ(volkli()->zelle(1, "Volknr"), "2");
  EXPECT_EQ(volkli()->zelle(2, "Standort"), "Hof");
  EXPECT_EQ(volkli()->aktuelleZeile(), 1);
  EXPECT_EQ(volkli()->markierteZeilen(), (QList<int>{1, 2}));
}

TEST_F(Völker, EinKlickMachtDasVolkAuchInDerHauptlisteAktuell) {
  zeile("Arbeiten", 2, "2026-05-01", {{"Arbeitsart", "bei Berta"}});
  öffne(5);
  tippe("Arbeitsart", "vergessen");
  liste->wechselOhneHalt = 0;
  klicke(volkli(), 1);
  EXPECT_EQ(liste->aktuelleZeile(), 1);
  EXPECT_EQ(AktVolkID, "2");
  EXPECT_EQ(liste->markierteZeilen(), QList<int>{1});
  EXPECT_EQ(liste->wechselOhneHalt, 0) << "the main list is moved with BildAnhalten set";
  EXPECT_EQ(BildAnhalten, 0);
  EXPECT_EQ(text("Arbeitsart"), "bei Berta");
  EXPECT_EQ(schild("bezbewegungsdaten"), "Bewegungsdaten für das Volk:  2 / Berta");
  EXPECT_TRUE(hatFokus("Datum"));
}

TEST_F(Völker, MarkierenMitStrgUndUmschaltGehtInDieHauptliste) {
  öffne(5);
  klicke(volkli(), 0);
  klicke(volkli(), 2, Qt::ControlModifier);
  EXPECT_EQ(liste->markierteZeilen(), (QList<int>{0, 2}));
  EXPECT_EQ(volkli()->markierteZeilen(), (QList<int>{0, 2}));
  EXPECT_EQ(liste->aktuelleZeile(), 2);
  klicke(volkli(), 0);
  klicke(volkli(), 2, Qt::ShiftModifier);
  EXPECT_EQ(liste->markierteZeilen(), (QList<int>{0, 1, 2}));
}

TEST_F(Völker, MarkierenMitGezogenerMausGehtInDieHauptliste) {
  öffne(5);
  const auto mitte = [&](int zeile) {
    return volkli()->visualRect(volkli()->model()->index(zeile, 0)).center();
  };
  QTest::mousePress(volkli()->viewport(), Qt::LeftButton, Qt::NoModifier, mitte(0));
  for (int zeile : {1, 2}) {
    QMouseEvent zug(QEvent::MouseMove, mitte(zeile),
                    volkli()->viewport()->mapToGlobal(mitte(zeile)), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
    QApplication::sendEvent(volkli()->viewport(), &zug);
  }
  QTest::mouseRelease(volkli()->viewport(), Qt::LeftButton, Qt::NoModifier, mitte(2));
  QTest::qWait(20);
  EXPECT_EQ(volkli()->markierteZeilen(), (QList<int>{0, 1, 2}));
  EXPECT_EQ(liste->markierteZeilen(), (QList<int>{0, 1, 2}));
}

TEST_F(Völker, MitDerTastaturMarkierenBleibtInDerVölkerliste) {
  öffne(5);
  volkli()->setFocus();
  taste(volkli(), Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), volkli());
  taste(volkli(), Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(liste->markierteZeilen(), (QList<int>{0, 1, 2}));
  EXPECT_EQ(liste->aktuelleZeile(), 2);
  taste(volkli(), Qt::Key_Return);
  EXPECT_TRUE(hatFokus("Datum"));
}

TEST_F(Völker, AllesMarkierenMitDerTastaturGehtInDieHauptliste) {
  öffne(5);
  volkli()->setFocus();
  taste(volkli(), Qt::Key_A, Qt::ControlModifier);
  QTest::qWait(20);
  EXPECT_EQ(volkli()->markierteZeilen(), (QList<int>{0, 1, 2}));
  EXPECT_EQ(liste->markierteZeilen(), (QList<int>{0, 1, 2}));
  EXPECT_EQ(liste->aktuelleZeile(), 0);
  EXPECT_EQ(QApplication::focusWidget(), volkli());
}

TEST_F(Völker, DieRechteMaustasteMachtDasVolkInBeidenListenAktuell) {
  öffne(5);
  QTest::mouseClick(volkli()->viewport(), Qt::RightButton, Qt::NoModifier,
                    volkli()->visualRect(volkli()->model()->index(2, 0)).center());
  QTest::qWait(20);
  EXPECT_EQ(liste->aktuelleZeile(), volkli()->aktuelleZeile());
  EXPECT_EQ(liste->markierteZeilen(), volkli()->markierteZeilen());
}

TEST_F(Völker, WeiterVomLetztenVolkGehtZumErsten) {
  öffne(5);
  klicke("nextvolk1_1");
  EXPECT_EQ(liste->aktuelleZeile(), 1);
  EXPECT_EQ(volkli()->aktuelleZeile(), 1);
  EXPECT_EQ(liste->markierteZeilen(), QList<int>{1});
  EXPECT_EQ(volkli()->markierteZeilen(), QList<int>{1});
  klicke("nextvolk1_1");
  klicke("nextvolk1_1");
  EXPECT_EQ(liste->aktuelleZeile(), 0);
  EXPECT_EQ(volkli()->aktuelleZeile(), 0);
  EXPECT_TRUE(hatFokus("Datum"));
}

TEST_F(Völker, ZurückVomErstenVolkGehtZumLetzten) {
  öffne(5);
  klicke("nextvolk1_0");
  EXPECT_EQ(liste->aktuelleZeile(), 2);
  EXPECT_EQ(volkli()->aktuelleZeile(), 2);
  EXPECT_EQ(schild("bezbewegungsdaten"), "Bewegungsdaten für das Volk:  3 / Carla");
}

TEST_F(Völker, DasDatumBleibtBeimVolkwechsel) {
  öffne(5);
  tippe("Datum", "02.02.2026");
  klicke("nextvolk1_1");
  EXPECT_EQ(text("Datum"), "02.02.2026");
}

TEST_F(Völker, EinStandortMarkiertSeineVölkerInBeidenListen) {
  liste = std::make_unique<Testliste>();
  liste->setAktuelleZeile(1);
  öffne(5);
  auto* kom = kind<QComboBox>("kom");
  ASSERT_EQ(kom->count(), 2);
  EXPECT_EQ(kom->itemText(0), "Hof");
  EXPECT_EQ(kom->itemText(1), "Waldrand");
  wähleStandort("Hof");
  EXPECT_EQ(liste->markierteZeilen(), (QList<int>{0, 2}));
  EXPECT_EQ(volkli()->markierteZeilen(), (QList<int>{0, 2}));
  EXPECT_EQ(liste->aktuelleZeile(), 0);
  EXPECT_EQ(volkli()->aktuelleZeile(), 0);
  EXPECT_EQ(schild("bezbewegungsdaten"), "Bewegungsdaten für das Volk:  1 / Anna");
  EXPECT_TRUE(hatFokus("Datum"));
}

TEST_F(Völker, EinStandortOhneVolkInDerListeLässtKeinesAktuell) {
  volk("4", "Dora", "Heide");
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "Füttern"}});
  liste = std::make_unique<Testliste>("select * from Bienenvolk where Volknr < '4'");
  öffne(5);
  wähleStandort("Heide");
  EXPECT_EQ(liste->aktuelleZeile(), -1);
  EXPECT_EQ(volkli()->aktuelleZeile(), -1);
  EXPECT_EQ(liste->markierteZeilen(), QList<int>{});
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(text("Arbeitsart"), "");
  boxen.hinweis(
      "Bitte markieren Sie zuerst die Völker, bei denen die Buchung ausgeführt werden soll!");
  klicke("neu_0");
  klicke("nextvolk1_1");
  EXPECT_EQ(liste->aktuelleZeile(), 0);
}

TEST_F(Völker, DieSpaltenköpfeDerVölkerlisteSortierenNicht) {
  öffne(5);
  auto* kopf = volkli()->horizontalHeader();
  QTest::mouseClick(kopf->viewport(), Qt::LeftButton, Qt::NoModifier,
                    QPoint(kopf->sectionViewportPosition(1) + 10, kopf->height() / 2));
  QTest::mouseClick(kopf->viewport(), Qt::LeftButton, Qt::NoModifier,
                    QPoint(kopf->sectionViewportPosition(1) + 10, kopf->height() / 2));
  EXPECT_EQ(volkli()->zelle(0, "Volkname"), "Anna") << "rows must stand as in the main list";
}

// A block built anew for each step would stand in front of another model content.
TEST_F(Völker, ZehntausendVölkerWerdenNurEinmalGelesen) {
  DB.Sammelschreiben([&] {
    for (int nr = 4; nr <= 10000; ++nr) volk(QString::number(nr), "Volk", "Heide");
  });
  öffne(5);
  ASSERT_EQ(volkli()->zeilen(), 10000);
  int neuAufgebaut = 0;
  QObject::connect(volkli()->model(), &QAbstractItemModel::modelReset, form.get(),
                   [&] { ++neuAufgebaut; });
  klicke("nextvolk1_0");
  EXPECT_EQ(volkli()->aktuelleZeile(), 9999);
  klicke("nextvolk1_1");
  klicke("opti_1");
  EXPECT_EQ(neuAufgebaut, 0);
  wähleStandort("Heide");
  EXPECT_EQ(liste->markierteZeilen().size(), 9997);
  EXPECT_EQ(volkli()->markierteZeilen().size(), 9997);
}

// With scattered marks each needless marking or move would be felt in a long list.
TEST_F(Völker, VonFünfhundertMarkiertenGehtWeiterMitEinemEinzigenSchritt) {
  DB.Sammelschreiben([&] {
    for (int nr = 4; nr <= 10000; ++nr) volk(QString::number(nr), "Volk", "Heide");
  });
  öffne(5);
  QList<int> verstreut;
  for (int i = 0; i < 499; ++i) verstreut.append(10 + 19 * i);
  volkli()->setMarkierteZeilen(verstreut);
  klicke(volkli(), 9999, Qt::ControlModifier);
  verstreut.append(9999);
  QTest::qWait(20);
  EXPECT_EQ(liste->markierteZeilen(), verstreut);
  EXPECT_EQ(volkli()->markierteZeilen(), verstreut);
  liste->wechsel = 0;
  int markierungen = 0;
  QObject::connect(volkli(), &Grid::markierungNeu, form.get(), [&] { ++markierungen; });
  klicke("opti_7");
  EXPECT_EQ(liste->wechsel, 0);
  EXPECT_EQ(markierungen, 0);
  EXPECT_EQ(liste->markierteZeilen(), verstreut) << "another type keeps the marks";
  klicke("nextvolk1_0");
  EXPECT_EQ(liste->wechsel, 1);
  EXPECT_EQ(markierungen, 1);
  EXPECT_EQ(volkli()->markierteZeilen(), QList<int>{9998});
  EXPECT_EQ(liste->markierteZeilen(), QList<int>{9998});
}

}  // namespace
