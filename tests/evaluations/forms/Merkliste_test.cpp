#include "evaluations/forms/Merkliste.h"

#include <gtest/gtest.h>

#include <QTest>

namespace {

class MerklisteTest : public testing::Test {
 protected:
  MerklisteTest() {
    m_liste.setPosten({"Volknr", "Standort", "Beuteart"}, {"Nummer", "Standort", "Beute"});
    m_liste.show();
  }
  void klicke(int zeile) {
    QTest::mouseClick(m_liste.viewport(), Qt::LeftButton, {},
                      m_liste.visualItemRect(m_liste.item(zeile)).center());
  }

  Merkliste m_liste{"liste"};
};

TEST_F(MerklisteTest, EinKlickSchaltetUmUndDerHakenFolgt) {
  klicke(1);
  EXPECT_EQ(m_liste.gewählt(), QStringList("Standort"));
  EXPECT_EQ(m_liste.item(1)->checkState(), Qt::Checked);
  klicke(1);
  EXPECT_EQ(m_liste.gewählt(), QStringList());
  EXPECT_EQ(m_liste.item(1)->checkState(), Qt::Unchecked);
}

TEST_F(MerklisteTest, AuchEinKlickAufDenHakenSchaltetEinmalUm) {
  const QRect zeile = m_liste.visualItemRect(m_liste.item(0));
  QTest::mouseClick(m_liste.viewport(), Qt::LeftButton, {}, {zeile.left() + 8, zeile.center().y()});
  EXPECT_EQ(m_liste.gewählt(), QStringList("Volknr"));
}

TEST_F(MerklisteTest, DieLeertasteSchaltetUm) {
  m_liste.setFocus();
  QTest::keyClick(&m_liste, Qt::Key_Down);
  QTest::keyClick(&m_liste, Qt::Key_Space);
  EXPECT_EQ(m_liste.gewählt(), QStringList("Standort"));
}

TEST_F(MerklisteTest, GewähltStehtInDerFolgeDerListe) {
  m_liste.setGewählt({"Beuteart", "Volknr", "gibt es nicht"});
  EXPECT_EQ(m_liste.gewählt(), QStringList({"Volknr", "Beuteart"}));
}

}  // namespace
