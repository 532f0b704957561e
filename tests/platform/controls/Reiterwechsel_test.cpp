#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "platform/controls/Formular.h"
#include "platform/controls/Hilfen.h"

namespace {

// Three pages and, below them, a button.
class Reiterformular : public Formular {
 public:
  Reiterformular() : Formular("TV_Reiter", "Reiter", nullptr) {
    auto* lage = new QVBoxLayout(this);
    reiter = new QTabWidget;
    for (const char* titel : {"Eins", "Zwei", "Drei"}) reiter->addTab(new QWidget, titel);
    knopf = new QPushButton("Fuß");
    lage->addWidget(reiter);
    lage->addWidget(knopf);
  }
  QTabWidget* reiter;
  QPushButton* knopf;
};

TEST(Reiterwechsel, StrgTabBlättertAuchVonEinemKnopfUnterDenReiternAus) {
  Reiterformular form;
  zeige(form);
  form.knopf->setFocus();
  QTest::keyClick(form.knopf, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(form.reiter->currentIndex(), 1);
  QTest::keyClick(form.knopf, Qt::Key_Tab, Qt::ControlModifier);
  QTest::keyClick(form.knopf, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(form.reiter->currentIndex(), 0);
  QTest::keyClick(form.knopf, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(form.reiter->currentIndex(), 2);
}

TEST(Reiterwechsel, TabAlleinGehtZumNächstenFeld) {
  Reiterformular form;
  zeige(form);
  form.knopf->setFocus();
  QTest::keyClick(form.knopf, Qt::Key_Tab);
  EXPECT_EQ(form.reiter->currentIndex(), 0);
  EXPECT_FALSE(form.knopf->hasFocus());
}

}  // namespace
