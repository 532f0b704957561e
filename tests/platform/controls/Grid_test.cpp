#include "platform/controls/Grid.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include "platform/controls/Formular.h"
#include "platform/controls/Hilfen.h"

namespace {

QVariant null() { return {}; }

Daten block(std::vector<Spalte> spalten, const std::vector<QVariantList>& zeilen) {
  Datenblock::Bauer bauer(std::move(spalten));
  for (const QVariantList& zeile : zeilen)
    for (const QVariant& wert : zeile) bauer.wert(wert);
  return bauer.fertig();
}

const std::vector<Spalte> Völkerspalten = {
    {QStringLiteral("Volknr"), Feldtyp::Text, 10},
    {QStringLiteral("Volkname"), Feldtyp::Text, 30},
    {QStringLiteral("Honigmenge_Gesamt"), Feldtyp::Einfach, 0},
    {QStringLiteral("Volk_Zugangsdatum"), Feldtyp::Datum, 0},
    {QStringLiteral("ID"), Feldtyp::Zähler, 0}};

Daten völker() {
  return block(Völkerspalten,
               {{QStringLiteral("1"), QStringLiteral("Müller"), 12.5, QDate(2023, 5, 1), 11},
                {QStringLiteral("10"), QStringLiteral("ahre"), 9.0, QDate(2022, 12, 31), 12},
                {QStringLiteral("2"), QStringLiteral("Ähre"), 100.0, null(), 13},
                {QStringLiteral("3"), QStringLiteral("Zander"), null(), QDate(2023, 1, 15), 14},
                {QStringLiteral("4"), null(), 9.0, QDate(2021, 6, 30), 15}});
}

class GridTest : public testing::Test {
 protected:
  GridTest() {
    Fensterablage::setDatei(ordner.filePath(QStringLiteral("Fenster.ini")));
    auto* lage = new QVBoxLayout(&fenster);
    lage->setContentsMargins(0, 0, 0, 0);
    lage->addWidget(grid = new Grid);
    lage->addWidget(anderes = new QWidget);
    anderes->setFocusPolicy(Qt::StrongFocus);
    fenster.resize(900, 400);
  }
  ~GridTest() override { Fensterablage::setDatei({}); }
  void SetUp() override {
    grid->setDaten(völker());
    zeige(fenster);
  }

  QPoint ort(int zeile, int spalte = 0) const {
    return grid->visualRect(grid->model()->index(zeile, spalte)).center();
  }
  void klicke(int zeile, Qt::KeyboardModifiers mit = {}, Qt::MouseButton knopf = Qt::LeftButton) {
    QTest::mouseClick(grid->viewport(), knopf, mit, ort(zeile));
  }
  void klickeKopf(int spalte) {
    auto* kopf = grid->horizontalHeader();
    QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {},
                      QPoint(kopf->sectionViewportPosition(spalte) + 12, kopf->height() / 2));
  }
  QStringList spalteAlsListe(const char* name) const {
    QStringList texte;
    for (int i = 0; i < grid->zeilen(); ++i) texte += grid->zelle(i, QString::fromUtf8(name));
    return texte;
  }

  QTemporaryDir ordner;
  QWidget fenster;
  Grid* grid;
  QWidget* anderes;
};

}  // namespace

TEST_F(GridTest, NachSetDatenIstNichtsAktuellUndNichtsMarkiert) {
  EXPECT_EQ(grid->zeilen(), 5);
  EXPECT_EQ(grid->spalten(), 5);
  EXPECT_EQ(grid->aktuelleZeile(), -1);
  EXPECT_TRUE(grid->markierteZeilen().isEmpty());
  EXPECT_EQ(grid->sortierSpalte(), -1);
}

TEST_F(GridTest, DieAktuelleZeileBleibtZuSehenWennDieListeWenigerPlatzHat) {
  grid->setAktuelleZeile(4);
  fenster.resize(900, 700);
  const QRect vorher = grid->visualRect(grid->model()->index(4, 0));
  ASSERT_TRUE(grid->viewport()->rect().contains(vorher));
  const int kopf = grid->height() - grid->viewport()->height();
  grid->resize(grid->width(), kopf + 3 * grid->rowHeight(0));
  const QRect jetzt = grid->visualRect(grid->model()->index(4, 0));
  EXPECT_TRUE(grid->viewport()->rect().contains(jetzt)) << jetzt.y();
}

TEST_F(GridTest, WasDerBenutzerWeggerolltHatBleibtWegWennDieListeWenigerPlatzHat) {
  const int kopf = grid->height() - grid->viewport()->height();
  grid->resize(grid->width(), kopf + 3 * grid->rowHeight(0));
  grid->setAktuelleZeile(4);
  grid->verticalScrollBar()->setValue(0);
  grid->resize(grid->width(), kopf + 2 * grid->rowHeight(0));
  EXPECT_EQ(grid->verticalScrollBar()->value(), 0);
}

TEST_F(GridTest, ZellenNachNamenWieGezeigt) {
  EXPECT_EQ(grid->zelle(0, QStringLiteral("Honigmenge_Gesamt")), QStringLiteral("12,5"));
  EXPECT_EQ(grid->zelle(0, QStringLiteral("volk_zugangsdatum")), QStringLiteral("01.05.2023"));
  EXPECT_EQ(grid->zelle(0, QStringLiteral("GibtEsNicht")), QString());
  EXPECT_EQ(grid->zelle(99, QStringLiteral("ID")), QString());
  EXPECT_EQ(grid->wert(0, QStringLiteral("ID")).toInt(), 11);
  EXPECT_FALSE(grid->wert(3, QStringLiteral("Honigmenge_Gesamt")).isValid());
}

TEST_F(GridTest, EigeneAnzeigeUndÜberschrift) {
  grid->setAnzeige(QStringLiteral("Honigmenge_Gesamt"), [](const QVariant& wert) {
    return wert.isValid() ? QStringLiteral("%1 kg").arg(wert.toDouble()) : QStringLiteral("-");
  });
  grid->setÜberschrift(QStringLiteral("Honigmenge_Gesamt"), QStringLiteral("Honig"));
  EXPECT_EQ(grid->zelle(2, QStringLiteral("Honigmenge_Gesamt")), QStringLiteral("100 kg"));
  EXPECT_EQ(grid->zelle(3, QStringLiteral("Honigmenge_Gesamt")), QStringLiteral("-"));
  EXPECT_EQ(grid->model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Honig"));
  grid->setDaten(völker());
  EXPECT_EQ(grid->zelle(2, QStringLiteral("Honigmenge_Gesamt")), QStringLiteral("100 kg"));
}

TEST_F(GridTest, MehrzeiligerTextStehtInEinerZeileAberZelleGibtIhnGanz) {
  grid->setDaten(
      block({{QStringLiteral("Notiz"), Feldtyp::Memo, 0}}, {{QStringLiteral("eins\r\nzwei")}}));
  EXPECT_EQ(grid->zelle(0, QStringLiteral("Notiz")), QStringLiteral("eins\r\nzwei"));
  EXPECT_FALSE(grid->model()->index(0, 0).data().toString().contains(u'\n'));
}

TEST_F(GridTest, ZahlenStehenRechts) {
  const auto links = grid->model()->index(0, 1).data(Qt::TextAlignmentRole).toInt();
  const auto rechts = grid->model()->index(0, 2).data(Qt::TextAlignmentRole).toInt();
  EXPECT_TRUE(links & Qt::AlignLeft);
  EXPECT_TRUE(rechts & Qt::AlignRight);
}

TEST_F(GridTest, KlickMachtDieZeileAktuellUndMeldetSie) {
  QSignalSpy wechsel(grid, &Grid::zeileGewechselt);
  QSignalSpy klick(grid, &Grid::zeileAngeklickt);
  klicke(2);
  EXPECT_EQ(grid->aktuelleZeile(), 2);
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({2}));
  klicke(2);
  ASSERT_EQ(wechsel.count(), 1);
  EXPECT_EQ(wechsel.first().first().toInt(), 2);
  ASSERT_EQ(klick.count(), 2);
  EXPECT_EQ(klick.last().first().toInt(), 2);
}

TEST_F(GridTest, DoppelklickUndEnterMeldenDieZeile) {
  QSignalSpy spion(grid, &Grid::zeileDoppelgeklickt);
  klicke(1);
  QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, ort(1));
  ASSERT_EQ(spion.count(), 1);
  EXPECT_EQ(spion.last().first().toInt(), 1);
  grid->setFocus();
  grid->setAktuelleZeile(3);
  QTest::keyClick(grid, Qt::Key_Return);
  ASSERT_EQ(spion.count(), 2);
  EXPECT_EQ(spion.last().first().toInt(), 3);
}

TEST_F(GridTest, MarkierenMitStrgUmschaltUndStrgA) {
  klicke(0);
  klicke(2, Qt::ControlModifier);
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({0, 2}));
  klicke(4, Qt::ShiftModifier);
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({2, 3, 4}));
  QTest::keyClick(grid, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({0, 1, 2, 3, 4}));
  klicke(2, Qt::ControlModifier);
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({0, 1, 3, 4}));
  klicke(0);
  klicke(2, Qt::ControlModifier);
  klicke(3, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({0, 2, 3}));
}

TEST_F(GridTest, RechtsklickNebenDieMarkierungMachtDieZeileAktuell) {
  klicke(0);
  klicke(1, Qt::ShiftModifier);
  klicke(3, {}, Qt::RightButton);
  EXPECT_EQ(grid->aktuelleZeile(), 3);
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({3}));
}

TEST_F(GridTest, RechtsklickInDieMarkierungLässtSie) {
  klicke(0);
  klicke(2, Qt::ShiftModifier);
  klicke(1, {}, Qt::RightButton);
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({0, 1, 2}));
}

TEST_F(GridTest, KlickUnterDieLetzteZeileLässtDieMarkierung) {
  klicke(1);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                    QPoint(20, grid->viewport()->height() - 3));
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({1}));
  EXPECT_EQ(grid->aktuelleZeile(), 1);
}

TEST_F(GridTest, PfeilePos1UndEnde) {
  klicke(2);
  QSignalSpy klick(grid, &Grid::zeileAngeklickt);
  QTest::keyClick(grid, Qt::Key_Down);
  EXPECT_EQ(grid->aktuelleZeile(), 3);
  QTest::keyClick(grid, Qt::Key_Home);
  EXPECT_EQ(grid->aktuelleZeile(), 0);
  QTest::keyClick(grid, Qt::Key_End);
  EXPECT_EQ(grid->aktuelleZeile(), 4);
  EXPECT_EQ(klick.count(), 3);
  QTest::keyClick(grid, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({3, 4}));
}

TEST_F(GridTest, TabGehtAusDerListe) {
  klicke(1);
  QTest::keyClick(grid, Qt::Key_Tab);
  EXPECT_FALSE(grid->hasFocus());
  EXPECT_EQ(grid->aktuelleZeile(), 1);
}

TEST_F(GridTest, FokusAlleinMachtKeineZeileAktuell) {
  anderes->setFocus();
  grid->setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(grid->hasFocus());
  EXPECT_EQ(grid->aktuelleZeile(), -1);
  QTest::keyClick(grid, Qt::Key_Down);
  EXPECT_EQ(grid->aktuelleZeile(), 0);
}

TEST_F(GridTest, BuchstabenSuchenInDerSortiertenSpalte) {
  klicke(0);
  grid->sortiere(grid->spaltenNummer(QStringLiteral("Volkname")), Qt::AscendingOrder);
  QTest::keyClicks(grid, QStringLiteral("zan"));
  EXPECT_EQ(grid->zelle(grid->aktuelleZeile(), QStringLiteral("Volkname")),
            QStringLiteral("Zander"));
}

TEST_F(GridTest, BuchstabenSuchenOhneSortierungInDerErsten) {
  klicke(0);
  QTest::keyClicks(grid, QStringLiteral("4"));
  EXPECT_EQ(grid->zelle(grid->aktuelleZeile(), QStringLiteral("Volknr")), QStringLiteral("4"));
}

TEST_F(GridTest, GetippteZifferfolgeIstEinWort) {
  std::vector<QVariantList> zeilen;
  for (const char* nr : {"1", "2", "20", "22", "11", "110", "111", "21"})
    zeilen.push_back({QString::fromUtf8(nr), QString(), null(), null(), null()});
  const auto nummer = [this](const char* tasten) {
    grid->setDaten(grid->daten());  // the next key begins a new word
    grid->setAktuelleZeile(0);
    QTest::keyClicks(grid, QString::fromUtf8(tasten));
    return grid->zelle(grid->aktuelleZeile(), QStringLiteral("Volknr")).toStdString();
  };
  grid->setDaten(block(Völkerspalten, zeilen));
  grid->setFocus();
  EXPECT_EQ(nummer("22"), "22");
  EXPECT_EQ(nummer("111"), "111");
  EXPECT_EQ(nummer("110"), "110");
  EXPECT_EQ(nummer("21"), "21");
  EXPECT_EQ(nummer("2"), "2");
  EXPECT_EQ(nummer("29"), "2") << "die 9 gehört zum Wort und springt nirgends hin";
}

TEST_F(GridTest, DerselbeBuchstabeGehtZurNächstenZeile) {
  grid->setFocus();
  QTest::keyClicks(grid, QStringLiteral("1"));
  EXPECT_EQ(grid->aktuelleZeile(), 0);
  QTest::keyClicks(grid, QStringLiteral("1"));
  EXPECT_EQ(grid->aktuelleZeile(), 1);
  QTest::keyClicks(grid, QStringLiteral("1"));
  EXPECT_EQ(grid->aktuelleZeile(), 0);
}

TEST_F(GridTest, TextSortiertNachDerKollationMitLeerZuerst) {
  grid->sortiere(1, Qt::AscendingOrder);
  EXPECT_EQ(spalteAlsListe("Volkname"),
            QStringList({QString(), QStringLiteral("ahre"), QStringLiteral("Ähre"),
                         QStringLiteral("Müller"), QStringLiteral("Zander")}));
  grid->sortiere(1, Qt::DescendingOrder);
  EXPECT_EQ(spalteAlsListe("Volkname").last(), QString());
}

TEST_F(GridTest, ZifferntextSortiertAlsText) {
  grid->sortiere(0, Qt::AscendingOrder);
  EXPECT_EQ(spalteAlsListe("Volknr"),
            QStringList({QStringLiteral("1"), QStringLiteral("10"), QStringLiteral("2"),
                         QStringLiteral("3"), QStringLiteral("4")}));
}

TEST_F(GridTest, ZahlenSortierenAlsZahlenUndGleicheBleiben) {
  grid->sortiere(2, Qt::AscendingOrder);
  EXPECT_EQ(spalteAlsListe("ID"),
            QStringList({QStringLiteral("14"), QStringLiteral("12"), QStringLiteral("15"),
                         QStringLiteral("11"), QStringLiteral("13")}));
  grid->setDaten(völker());
  grid->sortiere(2, Qt::DescendingOrder);
  EXPECT_EQ(spalteAlsListe("ID"),
            QStringList({QStringLiteral("13"), QStringLiteral("11"), QStringLiteral("12"),
                         QStringLiteral("15"), QStringLiteral("14")}));
}

TEST_F(GridTest, DatumSortiertAlsDatum) {
  grid->sortiere(3, Qt::AscendingOrder);
  EXPECT_EQ(spalteAlsListe("Volk_Zugangsdatum"),
            QStringList({QString(), QStringLiteral("30.06.2021"), QStringLiteral("31.12.2022"),
                         QStringLiteral("15.01.2023"), QStringLiteral("01.05.2023")}));
}

TEST_F(GridTest, SortierungMinusEinsGibtDieUrsprünglicheFolge) {
  grid->sortiere(2, Qt::DescendingOrder);
  grid->sortiere(-1, Qt::AscendingOrder);
  EXPECT_EQ(spalteAlsListe("ID").first(), QStringLiteral("11"));
  EXPECT_EQ(grid->sortierSpalte(), -1);
}

TEST_F(GridTest, SortierenHältAktuelleUndMarkierteDatensätze) {
  grid->setMarkierteZeilen({0, 2});
  klicke(0, Qt::ControlModifier);
  klicke(0, Qt::ControlModifier);
  ASSERT_EQ(grid->markierteZeilen(), QList<int>({0, 2}));
  ASSERT_EQ(grid->aktuelleZeile(), 0);
  QSignalSpy wechsel(grid, &Grid::zeileGewechselt);
  grid->sortiere(2, Qt::AscendingOrder);
  EXPECT_EQ(grid->zelle(grid->aktuelleZeile(), QStringLiteral("ID")), QStringLiteral("11"));
  QStringList ids;
  for (const int zeile : grid->markierteZeilen()) ids += grid->zelle(zeile, QStringLiteral("ID"));
  EXPECT_EQ(ids, QStringList({QStringLiteral("11"), QStringLiteral("13")}));
  EXPECT_EQ(wechsel.count(), 0);
}

TEST_F(GridTest, KlickAufDenKopfSortiertUndKehrtUm) {
  QSignalSpy spion(grid, &Grid::vomBenutzerSortiert);
  klickeKopf(2);
  EXPECT_EQ(grid->sortierSpalte(), 2);
  EXPECT_EQ(grid->sortierRichtung(), Qt::AscendingOrder);
  EXPECT_EQ(grid->zelle(0, QStringLiteral("ID")), QStringLiteral("14"));
  klickeKopf(2);
  EXPECT_EQ(grid->sortierRichtung(), Qt::DescendingOrder);
  EXPECT_EQ(grid->zelle(0, QStringLiteral("ID")), QStringLiteral("13"));
  klickeKopf(1);
  EXPECT_EQ(grid->sortierSpalte(), 1);
  EXPECT_EQ(grid->sortierRichtung(), Qt::AscendingOrder);
  EXPECT_EQ(spion.count(), 3);
  EXPECT_TRUE(grid->markierteZeilen().isEmpty()) << "der Kopf markiert nichts";
}

TEST_F(GridTest, ProgrammsortierungMeldetSichNichtAlsBenutzer) {
  QSignalSpy spion(grid, &Grid::vomBenutzerSortiert);
  grid->sortiere(2, Qt::DescendingOrder);
  EXPECT_EQ(spion.count(), 0);
  EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), 2);
  EXPECT_EQ(grid->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(GridTest, FindeZeileNachZahlTextUndBeidem) {
  EXPECT_EQ(grid->findeZeile(QStringLiteral("ID = 13")), 2);
  EXPECT_EQ(grid->findeZeile(QStringLiteral("Volkname = 'MÜLLER'")), 0);
  EXPECT_EQ(grid->findeZeile(QStringLiteral("Honigmenge_Gesamt = 9 and Volknr = '4'")), 4);
  EXPECT_EQ(grid->findeZeile(QStringLiteral("ID = 999")), -1);
  grid->sortiere(2, Qt::DescendingOrder);
  EXPECT_EQ(grid->findeZeile(QStringLiteral("ID = 13")), 0);
}

TEST_F(GridTest, FindeZeileInLeererListe) {
  grid->setDaten({});
  EXPECT_EQ(grid->findeZeile(QStringLiteral("ID = 13")), -1);
}

TEST_F(GridTest, NeueDatenMeldenEinmalMinusEins) {
  klicke(3);
  QSignalSpy wechsel(grid, &Grid::zeileGewechselt);
  grid->setDaten(block(Völkerspalten, {{QStringLiteral("1"), null(), null(), null(), 11}}));
  ASSERT_EQ(wechsel.count(), 1);
  EXPECT_EQ(wechsel.first().first().toInt(), -1);
  EXPECT_EQ(grid->aktuelleZeile(), -1);
  grid->setDaten({});
  EXPECT_EQ(wechsel.count(), 1);
  EXPECT_EQ(grid->zeilen(), 0);
  EXPECT_EQ(grid->spalten(), 0);
}

TEST_F(GridTest, SetAktuelleZeileMinusEinsHebtAuf) {
  grid->setAktuelleZeile(2);
  QSignalSpy wechsel(grid, &Grid::zeileGewechselt);
  grid->setAktuelleZeile(-1);
  EXPECT_EQ(grid->aktuelleZeile(), -1);
  EXPECT_TRUE(grid->markierteZeilen().isEmpty());
  ASSERT_EQ(wechsel.count(), 1);
  EXPECT_EQ(wechsel.first().first().toInt(), -1);
  grid->setAktuelleZeile(99);
  EXPECT_EQ(grid->aktuelleZeile(), -1);
}

TEST_F(GridTest, MarkierteZeilenSetzenUndMelden) {
  QSignalSpy spion(grid, &Grid::markierungNeu);
  grid->setMarkierteZeilen({4, 0, 1, 99, -3});
  EXPECT_EQ(grid->markierteZeilen(), QList<int>({0, 1, 4}));
  EXPECT_EQ(spion.count(), 1);
  grid->setMarkierteZeilen({});
  EXPECT_TRUE(grid->markierteZeilen().isEmpty());
}

TEST_F(GridTest, ZehntausendZeilenAlleMarkiertUndSortiert) {
  std::vector<Spalte> spalten;
  for (int i = 0; i < 52; ++i) spalten.push_back({QStringLiteral("S%1").arg(i), Feldtyp::Lang, 0});
  Datenblock::Bauer bauer(spalten);
  for (int zeile = 0; zeile < 10000; ++zeile)
    for (int spalte = 0; spalte < 52; ++spalte) bauer.ganz((zeile * 7919) % 10007 + spalte);
  grid->setDaten(bauer.fertig());
  grid->setFocus();
  QTest::keyClick(grid, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(grid->markierteZeilen().size(), 10000);
  QList<int> gerade;
  for (int i = 0; i < 10000; i += 2) gerade += i;
  grid->setMarkierteZeilen(gerade);
  EXPECT_EQ(grid->markierteZeilen(), gerade);
  grid->setAktuelleZeile(10);
  grid->setMarkierteZeilen(gerade);
  klickeKopf(0);
  EXPECT_EQ(grid->markierteZeilen().size(), 5000);
  for (int i = 1; i < 10000; ++i)
    ASSERT_LE(grid->wert(i - 1, QStringLiteral("S0")).toInt(),
              grid->wert(i, QStringLiteral("S0")).toInt());
}

TEST_F(GridTest, ErsteSpalteIstDerZeilenkopf) {
  EXPECT_FALSE(grid->verticalHeader()->isVisible());
  grid->setErsteSpalte([this](int zeile) { return grid->zelle(zeile, QStringLiteral("Volknr")); });
  EXPECT_TRUE(grid->verticalHeader()->isVisible());
  EXPECT_EQ(grid->model()->headerData(1, Qt::Vertical).toString(), QStringLiteral("10"));
  grid->sortiere(2, Qt::DescendingOrder);
  EXPECT_EQ(grid->model()->headerData(0, Qt::Vertical).toString(), QStringLiteral("2"));
  QSignalSpy klick(grid, &Grid::zeileAngeklickt);
  auto* kopf = grid->verticalHeader();
  QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {},
                    QPoint(kopf->width() / 2, kopf->sectionViewportPosition(1) + 5));
  EXPECT_EQ(klick.count(), 1);
  EXPECT_EQ(grid->aktuelleZeile(), 1);
}

TEST_F(GridTest, VerborgeneSpalteBleibtAuchNachNeuenDaten) {
  grid->setSpalteVerborgen(QStringLiteral("id"), true);
  EXPECT_TRUE(grid->isColumnHidden(4));
  EXPECT_EQ(grid->zelle(0, QStringLiteral("ID")), QStringLiteral("11"));
  grid->setDaten(völker());
  EXPECT_TRUE(grid->isColumnHidden(4));
  grid->setSpalteVerborgen(QStringLiteral("ID"), false);
  EXPECT_FALSE(grid->isColumnHidden(4));
  EXPECT_GE(grid->columnWidth(4), Grid::KleinsteBreite);
}

TEST_F(GridTest, BreitenWerdenGemerktUndGeladen) {
  grid->setLayoutSchlüssel(QStringLiteral("tv_völker/datali"));
  auto* kopf = grid->horizontalHeader();
  const int rand = kopf->sectionViewportPosition(0) + kopf->sectionSize(0) - 1;
  const int breite = kopf->sectionSize(0);
  QTest::mousePress(kopf->viewport(), Qt::LeftButton, {}, QPoint(rand, 5));
  QTest::mouseMove(kopf->viewport(), QPoint(rand + 20, 5));
  QTest::mouseMove(kopf->viewport(), QPoint(rand + 40, 5));
  QTest::mouseRelease(kopf->viewport(), Qt::LeftButton, {}, QPoint(rand + 40, 5));
  EXPECT_EQ(kopf->sectionSize(0), breite + 40);

  Grid anderer;
  anderer.setLayoutSchlüssel(QStringLiteral("tv_völker/datali"));
  anderer.setDaten(völker());
  EXPECT_EQ(anderer.columnWidth(0), breite + 40);
}

TEST_F(GridTest, GezogeneBreiteIstMindestensFünfundzwanzig) {
  grid->setLayoutSchlüssel(QStringLiteral("datali"));
  auto* kopf = grid->horizontalHeader();
  const int rand = kopf->sectionViewportPosition(1) + kopf->sectionSize(1) - 1;
  QTest::mousePress(kopf->viewport(), Qt::LeftButton, {}, QPoint(rand, 5));
  QTest::mouseMove(kopf->viewport(), QPoint(rand - 20, 5));
  QTest::mouseMove(kopf->viewport(), QPoint(kopf->sectionViewportPosition(1) + 3, 5));
  QTest::mouseRelease(kopf->viewport(), Qt::LeftButton, {},
                      QPoint(kopf->sectionViewportPosition(1) + 3, 5));
  EXPECT_EQ(grid->columnWidth(1), 25);
  EXPECT_EQ(Fensterablage::lesen(QStringLiteral("Spaltenbreiten/datali")).toList().at(1).toInt(),
            25);
}

TEST_F(GridTest, GemerkteBreitenNurBeiGleicherSpaltenzahl) {
  Fensterablage::schreiben(QStringLiteral("Spaltenbreiten/datali"), QVariantList({200, 10}));
  grid->setLayoutSchlüssel(QStringLiteral("datali"));
  const int vorher = grid->columnWidth(0);
  EXPECT_NE(vorher, 200);
  grid->setDaten(block(
      {{QStringLiteral("a"), Feldtyp::Text, 5}, {QStringLiteral("b"), Feldtyp::Text, 5}}, {}));
  EXPECT_EQ(grid->columnWidth(0), 200);
  EXPECT_EQ(grid->columnWidth(1), 25) << "auch Gemerktes ist nicht schmaler";
}

TEST_F(GridTest, EineEinzigeSpalteMerktSichIhreBreite) {
  const auto eine = [] {
    return block({{QStringLiteral("a"), Feldtyp::Text, 5}}, {{QStringLiteral("x")}});
  };
  grid->setLayoutSchlüssel(QStringLiteral("einzeln"));
  grid->setDaten(eine());
  grid->horizontalHeader()->resizeSection(0, 133);
  Grid anderer;
  anderer.setLayoutSchlüssel(QStringLiteral("einzeln"));
  anderer.setDaten(eine());
  EXPECT_EQ(anderer.columnWidth(0), 133);
}

TEST_F(GridTest, BreitenHaltenOhneSchlüsselBeiNeuemLesen) {
  grid->horizontalHeader()->resizeSection(1, 177);
  grid->setDaten(völker());
  EXPECT_EQ(grid->columnWidth(1), 177);
}

// As much of a long text shows in a larger font, and a text without end leaves room for others.
TEST_F(GridTest, GrößteBreiteWächstMitDerSchrift) {
  const auto langer = [](const QString& text) {
    return block({{QStringLiteral("Ort"), Feldtyp::Text, 100}}, {{text}});
  };
  const QString ort = QStringLiteral("Lindenallee am Schloßpark, hinten");
  QFont schrift = grid->font();
  for (const double faktor : {1.0, 1.5, 2.0}) {
    QFont groß = schrift;
    groß.setPointSizeF(schrift.pointSizeF() * faktor);
    Grid gitter;
    gitter.setFont(groß);
    gitter.setDaten(langer(ort));
    EXPECT_GT(gitter.columnWidth(0), gitter.fontMetrics().horizontalAdvance(ort)) << faktor;
    gitter.setDaten(langer(QString(100, u'W')));
    EXPECT_LT(gitter.columnWidth(0), gitter.fontMetrics().horizontalAdvance(QString(40, u'W')))
        << faktor;
  }
}

TEST_F(GridTest, StrgCKopiertDieMarkiertenZeilen) {
  grid->setSpalteVerborgen(QStringLiteral("ID"), true);
  klicke(0);
  klicke(1, Qt::ControlModifier);
  QTest::keyClick(grid, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(),
            QStringLiteral("1\tMüller\t12,5\t01.05.2023\n10\tahre\t9\t31.12.2022"));
}

namespace {

class GridLöschenTest : public GridTest {
 protected:
  void SetUp() override {
    db = raum.CreateDatabase(ordner.filePath(QStringLiteral("TEST.MDB")));
    db.Execute(QStringLiteral("create table Notizen (Notiz TEXT (30), ID COUNTER)"));
    for (const char* text : {"eins", "zwei", "drei"})
      db.Execute(QStringLiteral("insert into Notizen (Notiz) values (?)"),
                 {QString::fromUtf8(text)});
    grid->setDaten(db.Lesen(QStringLiteral("select * from Notizen order by ID")));
    zeige(fenster);
  }
  int anzahl() {
    return static_cast<int>(db.Lesen(QStringLiteral("select * from Notizen"))->zeilen());
  }

  Workspace raum;
  Database db;
};

}  // namespace

TEST_F(GridLöschenTest, LöschtDatensatzUndZeileUndDieNächsteWirdAktuell) {
  klicke(1);
  QSignalSpy wechsel(grid, &Grid::zeileGewechselt);
  grid->löscheZeile(1, db, QStringLiteral("Notizen"));
  EXPECT_EQ(spalteAlsListe("Notiz"), QStringList({QStringLiteral("eins"), QStringLiteral("drei")}));
  EXPECT_EQ(anzahl(), 2);
  EXPECT_EQ(grid->aktuelleZeile(), 1);
  ASSERT_EQ(wechsel.count(), 1);
  EXPECT_EQ(wechsel.first().first().toInt(), 1);
  grid->löscheZeile(1, db, QStringLiteral("Notizen"));
  EXPECT_EQ(grid->aktuelleZeile(), 0);
  grid->löscheZeile(0, db, QStringLiteral("Notizen"));
  EXPECT_EQ(grid->aktuelleZeile(), -1);
  EXPECT_EQ(wechsel.last().first().toInt(), -1);
  EXPECT_EQ(anzahl(), 0);
}

TEST_F(GridLöschenTest, LöschtInSortierterListeDenRichtigen) {
  grid->sortiere(0, Qt::AscendingOrder);  // drei, eins, zwei
  grid->löscheZeile(0, db, QStringLiteral("Notizen"));
  grid->sortiere(-1, Qt::AscendingOrder);
  EXPECT_EQ(spalteAlsListe("Notiz"), QStringList({QStringLiteral("eins"), QStringLiteral("zwei")}));
}

TEST_F(GridLöschenTest, FehlerLässtDieZeileStehen) {
  klicke(1);
  EXPECT_THROW(grid->löscheZeile(1, db, QStringLiteral("GibtEsNicht")), Datenbankfehler);
  EXPECT_EQ(grid->zeilen(), 3);
  EXPECT_EQ(grid->aktuelleZeile(), 1);
}

TEST_F(GridLöschenTest, OhneSpalteIdWirdNichtsGelöscht) {
  grid->setDaten(db.Lesen(QStringLiteral("select Notiz from Notizen")));
  EXPECT_THROW(grid->löscheZeile(0, db, QStringLiteral("Notizen")), Datenbankfehler);
  EXPECT_EQ(anzahl(), 3);
}
