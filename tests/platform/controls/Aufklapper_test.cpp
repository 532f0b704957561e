// The calendar and the calculator of an entry field.

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Hilfen.h"
#include "platform/controls/Kalender.h"
#include "platform/controls/Rechner.h"

using Art = Eingabefeld::Art;

namespace {

class AufklapperTest : public testing::Test {
 protected:
  AufklapperTest() {
    auto* lage = new QVBoxLayout(&fenster);
    lage->addWidget(feld = new Eingabefeld);
    Eingabefeld::setHeute([] { return QDate(2024, 5, 17); });
    Eingabefeld::setSteuersätze([] { return std::pair<int, int>(19, 7); });
  }
  ~AufklapperTest() override {
    Eingabefeld::setHeute({});
    Eingabefeld::setSteuersätze({});
  }
  void SetUp() override {
    zeige(fenster);
    feld->setFocus(Qt::OtherFocusReason);
  }
  template <typename Fenster>
  Fenster* öffne() {
    QTest::keyClick(feld, Qt::Key_F4);
    return qobject_cast<Fenster*>(QApplication::activePopupWidget());
  }
  Kalender* kalender() {
    auto* k = öffne<Kalender>();
    return k;
  }
  // Keys go where the keyboard is within the popup.
  static void taste(QWidget* fenster, Qt::Key taste, Qt::KeyboardModifiers mit = {}) {
    QWidget* ziel = fenster->focusWidget() != nullptr ? fenster->focusWidget() : fenster;
    QTest::keyClick(ziel, taste, mit);
  }
  static QString anzeige(Rechner* rechner) {
    return rechner->findChild<QLabel*>(QStringLiteral("anzeige"))->text();
  }
  static void drücke(Rechner* rechner, const char* name, Qt::MouseButton knopf = Qt::LeftButton) {
    auto* ziel = rechner->findChild<QPushButton*>(QString::fromUtf8(name));
    ASSERT_NE(ziel, nullptr) << name;
    QTest::mouseClick(ziel, knopf);
  }

  QDialog fenster;
  Eingabefeld* feld;
};

}  // namespace

TEST_F(AufklapperTest, KalenderBeginntMitHeuteUndMontag) {
  feld->einrichten({Art::Datum, 0, 0, {}, {}, {}, {}});
  auto* k = kalender();
  ASSERT_NE(k, nullptr);
  EXPECT_EQ(k->datum(), QDate(2024, 5, 17));
  auto* blatt = k->findChild<QCalendarWidget*>();
  EXPECT_EQ(blatt->firstDayOfWeek(), Qt::Monday);
  EXPECT_EQ(blatt->verticalHeaderFormat(), QCalendarWidget::ISOWeekNumbers);
  EXPECT_EQ(blatt->locale().monthName(5), QStringLiteral("Mai"));
  k->close();
}

TEST_F(AufklapperTest, KalenderPfeilUndEnterNehmenDenTag) {
  feld->einrichten({Art::Datum, 0, 0, {}, QStringLiteral("30.05.2024"), {}, {}});
  auto* k = kalender();
  ASSERT_NE(k, nullptr);
  EXPECT_EQ(k->datum(), QDate(2024, 5, 30));
  taste(k, Qt::Key_Right);
  taste(k, Qt::Key_Down);
  EXPECT_EQ(k->datum(), QDate(2024, 6, 7));
  taste(k, Qt::Key_Return);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("07.06.2024"));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(AufklapperTest, KalenderEscLässtDasFeld) {
  feld->einrichten({Art::Datum, 0, 0, {}, QStringLiteral("30.05.2024"), {}, {}});
  auto* k = kalender();
  ASSERT_NE(k, nullptr);
  taste(k, Qt::Key_Right);
  taste(k, Qt::Key_Escape);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("30.05.2024"));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_TRUE(fenster.isVisible());
}

TEST_F(AufklapperTest, KalenderKnopfHeute) {
  feld->einrichten({Art::Datum, 0, 0, {}, QStringLiteral("01.01.2020"), {}, {}});
  auto* k = kalender();
  ASSERT_NE(k, nullptr);
  auto* heute = k->findChild<QPushButton*>(QStringLiteral("heute"));
  EXPECT_EQ(heute->text(), QStringLiteral("&Heute, 17.05.2024"));
  QTest::mouseClick(heute, Qt::LeftButton);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("17.05.2024"));
}

TEST_F(AufklapperTest, KalenderSchreibtTagUndMonatKurz) {
  feld->einrichten({Art::TagMonat, 0, 0, {}, QStringLiteral("01.05"), {}, {}});
  auto* k = kalender();
  ASSERT_NE(k, nullptr);
  EXPECT_EQ(k->datum(), QDate(2024, 5, 1));
  taste(k, Qt::Key_Return);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("01.05"));
}

TEST_F(AufklapperTest, RechnerBeginntMitDemInhaltUndÜbernimmt) {
  feld->einrichten({Art::Dezimal, 8, 2, {}, QStringLiteral("12,50"), {}, {}});
  auto* r = öffne<Rechner>();
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(anzeige(r), QStringLiteral("12,5"));
  QTest::keyClicks(r, QStringLiteral("*3"));
  taste(r, Qt::Key_Return);
  EXPECT_EQ(anzeige(r), QStringLiteral("37,5"));
  taste(r, Qt::Key_Return);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("37,50"));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(AufklapperTest, RechnerMitDenKnöpfen) {
  feld->einrichten({Art::Dezimal, 8, 2, {}, {}, {}, {}});
  auto* r = öffne<Rechner>();
  ASSERT_NE(r, nullptr);
  for (const char* name :
       {"ziffer_7", "komma", "ziffer_5", "plus", "ziffer_1", "ziffer_0", "zurueck", "gleich"})
    drücke(r, name);
  EXPECT_EQ(anzeige(r), QStringLiteral("8,5"));
  drücke(r, "uebernehmen");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("8,50"));
}

TEST_F(AufklapperTest, MwStLinksSatzEinsRechtsSatzZwei) {
  feld->einrichten({Art::Dezimal, 8, 2, {}, QStringLiteral("100,00"), {}, {}});
  auto* r = öffne<Rechner>();
  ASSERT_NE(r, nullptr);
  auto* mwst = r->findChild<QPushButton*>(QStringLiteral("mwst"));
  EXPECT_TRUE(mwst->text().contains(QStringLiteral("19")));
  EXPECT_TRUE(mwst->text().contains(QStringLiteral("7")));
  drücke(r, "mwst", Qt::LeftButton);
  EXPECT_EQ(anzeige(r), QStringLiteral("119"));
  QTest::keyClicks(r, QStringLiteral("c100"));
  drücke(r, "mwst", Qt::RightButton);
  EXPECT_EQ(anzeige(r), QStringLiteral("107"));
  QTest::keyClicks(r, QStringLiteral("c100m"));
  EXPECT_EQ(anzeige(r), QStringLiteral("119"));
  QTest::keyClicks(r, QStringLiteral("c100"));
  QTest::keyClick(r, Qt::Key_M, Qt::ShiftModifier);
  EXPECT_EQ(anzeige(r), QStringLiteral("107"));
  r->close();
}

TEST_F(AufklapperTest, DurchNullWirdNichtÜbernommen) {
  feld->einrichten({Art::Dezimal, 8, 2, {}, QStringLiteral("5,00"), {}, {}});
  auto* r = öffne<Rechner>();
  ASSERT_NE(r, nullptr);
  QTest::keyClicks(r, QStringLiteral("/0="));
  EXPECT_EQ(anzeige(r), QStringLiteral("Fehler"));
  drücke(r, "uebernehmen");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("5,00"));
  EXPECT_EQ(QApplication::activePopupWidget(), r);
  r->close();
}

TEST_F(AufklapperTest, ErgebnisDasNichtPasstBleibtDraußen) {
  feld->einrichten({Art::Ganzzahl, 3, 0, 100, QStringLiteral("60"), {}, {}});
  auto* r = öffne<Rechner>();
  ASSERT_NE(r, nullptr);
  QTest::keyClicks(r, QStringLiteral("*2="));
  taste(r, Qt::Key_Return);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("60"));
  EXPECT_EQ(QApplication::activePopupWidget(), r);
  QTest::keyClicks(r, QStringLiteral("/3="));
  taste(r, Qt::Key_Return);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("40"));
}

TEST_F(AufklapperTest, NegativesErgebnisPasstInKeinFeld) {
  feld->einrichten({Art::Dezimal, 8, 2, {}, QStringLiteral("1,00"), {}, {}});
  auto* r = öffne<Rechner>();
  ASSERT_NE(r, nullptr);
  QTest::keyClicks(r, QStringLiteral("-3="));
  taste(r, Qt::Key_Return);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("1,00"));
  r->close();
}

TEST_F(AufklapperTest, RechnerEscLässtDasFeld) {
  feld->einrichten({Art::Dezimal, 8, 2, {}, QStringLiteral("1,00"), {}, {}});
  auto* r = öffne<Rechner>();
  ASSERT_NE(r, nullptr);
  QTest::keyClicks(r, QStringLiteral("99"));
  taste(r, Qt::Key_Escape);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("1,00"));
  EXPECT_TRUE(fenster.isVisible());
}
