// Every form fits the screen of a small notebook, less its task bar, and its window's frame. The
// program is run once for each way in which people magnify it: see main.cpp.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTest>

#include "Formenliste.h"
#include "Formregeln.h"
#include "gemeinsam/Bildschirm.h"

namespace {

constexpr QSize Rahmen(8, 32);  // title and edges of a window

std::string fallname(const testing::TestParamInfo<size_t>& info) {
  return formenliste()[info.param].fall.toStdString();
}

std::string text(const QStringList& zeilen) { return zeilen.join(u'\n').toStdString(); }

QSize platz() { return QGuiApplication::primaryScreen()->availableSize() - Rahmen; }

class Schirmvertrag : public testing::TestWithParam<size_t> {
 protected:
  void SetUp() override { betrieb = std::make_unique<Betrieb>(); }
  void TearDown() override {
    if (form && form->isVisible()) form->close();
    form.reset();
    betrieb.reset();
  }
  const Formfall& fall() const { return formenliste()[GetParam()]; }
  void öffnen() {
    form = fall().machen(*betrieb);
    ASSERT_NE(form, nullptr);
    form->show();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    QApplication::processEvents();
  }
  // What doesn't fit, and what can't be reached or isn't in sight.
  QStringList mängel(bool amKleinsten) {
    QStringList alle;
    if (form->width() > platz().width() || form->height() > platz().height())
      alle << QStringLiteral("zu groß: %1 x %2 statt höchstens %3 x %4")
                  .arg(form->width())
                  .arg(form->height())
                  .arg(platz().width())
                  .arg(platz().height());
    return alle << Formregeln::verborgeneKnöpfe(form.get(), amKleinsten)
                << Formregeln::unerreichbar(form.get());
  }

  std::unique_ptr<Betrieb> betrieb;
  Form form;
};

}  // namespace

TEST_P(Schirmvertrag, ÖffnetSichGanzUndMitAllenKnöpfen) {
  öffnen();
  const bool vergrößert = !qEnvironmentVariableIsEmpty("TOVA_SCHIRM");
  const bool rollend = fall().befehleRollen && vergrößert;
  Formregeln::jedeSeite(form.get(), [&] { EXPECT_EQ(text(mängel(rollend)), ""); });
  bildAblegen(*form, fall().fall + u'_' + qEnvironmentVariable("TOVA_SCHIRM"));
}

TEST_P(Schirmvertrag, AuchSoKleinWieEsGehtBleibtAllesErreichbar) {
  öffnen();
  Formregeln::jedeSeite(form.get(), [&] {
    EXPECT_EQ(text(Formregeln::beschnitten(form.get())), "");
    EXPECT_EQ(text(mängel(true)), "");
  });
}

TEST_P(Schirmvertrag, DieZweiteÖffnungStehtWoDieErsteStand) {
  if (fall().hauptformular) return;  // it is shown once
  öffnen();
  form->move(12, 40);  // whole pixels of the screen at each magnification
  QApplication::processEvents();
  const QPoint ort = form->pos();
  const QSize größe = form->size();
  for (int i = 0; i < 3; ++i) {
    form->close();
    form->show();
    QApplication::processEvents();
    EXPECT_EQ(form->pos(), ort) << i;
    EXPECT_EQ(form->size(), größe) << i;
  }
  // Other instances, as after a new start. A magnified screen has no whole pixels for all places.
  for (int i = 0; i < 3; ++i) {
    form->close();
    öffnen();
    EXPECT_LE((form->pos() - ort).manhattanLength(), 2) << i;
    EXPECT_EQ(form->size(), größe) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Alle, Schirmvertrag, testing::Range(size_t{0}, formenliste().size()),
                         fallname);
