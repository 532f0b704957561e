// A rule that never finds anything would be none: here each of them has a form that breaks it.
#include "Formregeln.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

namespace {

class Formregel : public testing::Test {
 protected:
  Formregel() : spalte(new QVBoxLayout(&form)) {}
  QLineEdit* feld(const QString& name, const QString& vorlesename) {
    auto* neu = new QLineEdit;
    neu->setObjectName(name);
    neu->setAccessibleName(vorlesename);
    spalte->addWidget(neu);
    return neu;
  }
  void zeigen() {
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  }

  QDialog form;
  QVBoxLayout* spalte;
};

}  // namespace

TEST_F(Formregel, EineGuteFormHatKeineFehler) {
  feld("eins", "Eins")->setFocus();
  feld("zwei", "Zwei");
  auto* knopf = new QPushButton("&Fertig");
  knopf->setObjectName("fertig");
  spalte->addWidget(knopf);
  zeigen();
  EXPECT_EQ(Formregeln::eingaben(&form).size(), 3);
  EXPECT_TRUE(Formregeln::namen(&form).isEmpty());
  EXPECT_TRUE(Formregeln::mnemonics(&form).isEmpty());
  EXPECT_TRUE(Formregeln::tabregeln(&form).isEmpty());
  EXPECT_TRUE(Formregeln::beschnitten(&form).isEmpty());
}

TEST_F(Formregel, FehlenderNameFehlendeBeschriftungUndDoppelterName) {
  feld({}, "Eins");
  feld("zwei", {});
  feld("drei", "Drei");
  feld("drei", "Auch drei");
  zeigen();
  EXPECT_EQ(Formregeln::namen(&form),
            QStringList({"ohne Namen: QLineEdit ", "ohne Beschriftung: QLineEdit zwei",
                         "zweimal derselbe Name: QLineEdit drei"}));
}

TEST_F(Formregel, EinSchildGiltAlsBeschriftung) {
  auto* schild = new QLabel("&Volk");
  spalte->addWidget(schild);
  schild->setBuddy(feld("volk", {}));
  zeigen();
  EXPECT_TRUE(Formregeln::namen(&form).isEmpty());
}

TEST_F(Formregel, ZweimalDieselbeTasteNurWoSieZugleichZuSehenIst) {
  auto* reiter = new QTabWidget;
  reiter->addTab(new QPushButton("&Anna"), "Eins");
  reiter->addTab(new QPushButton("&Berta"), "Zwei");
  spalte->addWidget(reiter);
  spalte->addWidget(new QPushButton("&beenden"));
  zeigen();
  int fehler = 0;
  int seiten = 0;
  Formregeln::jedeSeite(&form, [&] {
    ++seiten;
    fehler += static_cast<int>(Formregeln::mnemonics(&form).size());
  });
  EXPECT_EQ(seiten, 2);
  EXPECT_EQ(fehler, 1);
}

TEST_F(Formregel, DoppelteBuchstabenImMenü) {
  auto* menü = new QMenu(&form);
  menü->setObjectName("menue");
  for (const char* text : {"&Honig", "&Wachs", "&Wandern"}) menü->addAction(text);
  EXPECT_EQ(Formregeln::doppeltImMenü(&form), QStringList{"menue:W"});
}

TEST_F(Formregel, TabulatorDerEinFeldAuslässt) {
  feld("eins", "Eins")->setFocus();
  feld("zwei", "Zwei")->setFocusPolicy(Qt::ClickFocus);
  feld("drei", "Drei");
  zeigen();
  EXPECT_EQ(Formregeln::tabregeln(&form), QStringList{"0 Halte bei QLineEdit zwei"});
}

TEST_F(Formregel, TabulatorDerZurückspringt) {
  QLineEdit* eins = feld("eins", "Eins");
  QLineEdit* zwei = feld("zwei", "Zwei");
  QLineEdit* drei = feld("drei", "Drei");
  QWidget::setTabOrder(eins, drei);
  QWidget::setTabOrder(drei, zwei);
  eins->setFocus();
  zeigen();
  EXPECT_EQ(Formregeln::tabregeln(&form),
            QStringList{"zurück von QLineEdit drei zu QLineEdit zwei"});
}

TEST_F(Formregel, ZuSchmalesSchildZuSchmalesFeldUndZuSchmalerKnopf) {
  auto* schild = new QLabel("Ein langer Text");
  schild->setFixedWidth(20);
  spalte->addWidget(schild);
  QLineEdit* eingabe = feld("eins", "Eins");
  eingabe->setText("12.04.2026");
  eingabe->setFixedWidth(40);
  auto* knopf = new QPushButton("Speichern");
  knopf->setFixedWidth(30);
  spalte->addWidget(knopf);
  zeigen();
  const QStringList fehler = Formregeln::beschnitten(&form);
  ASSERT_EQ(fehler.size(), 3);
  for (const QString& zeile : fehler) EXPECT_TRUE(zeile.startsWith("zu eng: "));
}

TEST_F(Formregel, WasHinausragtUndWasÜbereinanderliegt) {
  feld("eins", "Eins");
  auto* zwei = new QPushButton("Zwei", &form);
  zwei->setGeometry(0, 0, 60, 40);
  auto* drei = new QPushButton("Drei", &form);
  drei->setGeometry(500, 500, 90, 40);
  zeigen();
  const QString fehler = Formregeln::beschnitten(&form).join(u'\n');
  EXPECT_TRUE(fehler.contains("ragt hinaus: QPushButton  \"Drei\"")) << qPrintable(fehler);
  EXPECT_TRUE(fehler.contains("übereinander: ")) << qPrintable(fehler);
}

TEST_F(Formregel, ZweiEingabenDieGleichHeißen) {
  feld("eins", "Betrag");
  feld("zwei", "Betrag");
  feld("drei", "Menge");
  zeigen();
  const QStringList fehler = Formregeln::gleichnamig(&form);
  ASSERT_EQ(fehler.size(), 1);
  EXPECT_TRUE(fehler[0].startsWith("zweimal \"Betrag\": ")) << qPrintable(fehler[0]);
}
