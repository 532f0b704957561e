#include <QPushButton>

#include "sites/Standorte.h"
#include "sites/forms/Orteprobe.h"

namespace {

// With TOVA_BILDER set to a folder the tabs are saved there as pictures.
class OrteBild : public Orteprobe, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    m_schrift = QApplication::font();
    QFont gross = m_schrift;
    gross.setPointSizeF(10.0 * GetParam() / 100);
    QApplication::setFont(gross);
    Orteprobe::SetUp();
    const qint64 hof = standort("Heidelandschaft am großen Moor bei Schneverdingen");
    standort("Hof");
    for (const char* name : {"Besenheide", "Raps", "Sommerlinde"})
      pflanze(name, QDate(2006, 4, 20), QDate(2006, 9, 15));
    tracht(hof, "Besenheide", 80);
    tracht(hof, "Sommerlinde", 20);
    Standorte::trachtzeitenErmitteln(db());
  }
  void TearDown() override {
    Orteprobe::TearDown();
    QApplication::setFont(m_schrift);
  }
  QFont m_schrift;
};

TEST_P(OrteBild, PasstAufDenBildschirmUndJederKnopfIstLesbar) {
  const QString ordner = qEnvironmentVariable("TOVA_BILDER");
  oeffne();
  EXPECT_LE(form->minimumSizeHint().width(), 1366);
  EXPECT_LE(form->minimumSizeHint().height(), 700);  // less the window's title and the task bar
  for (int nummer = 0; nummer < 3; ++nummer) {
    zumReiter(nummer);
    const QStringList listen = {"listandorte", "lijepflanze", "lipflanzen"};
    waehle(listen[nummer], 0);
    QTest::qWait(1);
    for (auto* knopf : form->findChildren<QPushButton*>()) {
      if (!knopf->isVisible()) continue;
      EXPECT_GE(knopf->width(), knopf->minimumSizeHint().width()) << qPrintable(knopf->text());
      EXPECT_GE(knopf->height(), knopf->minimumSizeHint().height()) << qPrintable(knopf->text());
    }
    if (!ordner.isEmpty()) {
      EXPECT_TRUE(
          form->grab().save(QString("%1/orte_%2_%3.png").arg(ordner).arg(GetParam()).arg(nummer)));
    }
  }
}

// As a beginner finds it: one site, nothing else.
TEST_P(OrteBild, LeerStehenDieVorgabenInDenEingaben) {
  for (const char* tabelle : {"Standorte", "Pflanzen", "Standorte_Pflanzen"})
    db().Execute(QString("delete from %1").arg(tabelle));
  const QString ordner = qEnvironmentVariable("TOVA_BILDER");
  oeffne();
  const QStringList erste = {"sevtstandort_7", "sevtje_2", "sevt_3"};
  const QStringList vorgaben = {"10", "", "5"};
  for (int nummer = 0; nummer < 3; ++nummer) {
    if (nummer == 1) {
      standort("Hof");
      oeffne();
    }
    zumReiter(nummer);
    QTest::qWait(1);
    EXPECT_TRUE(feld(erste[nummer])->isVisible());
    EXPECT_EQ(inhalt(erste[nummer]), vorgaben[nummer].toStdString());
    if (!ordner.isEmpty()) {
      EXPECT_TRUE(form->grab().save(
          QString("%1/orte_leer_%2_%3.png").arg(ordner).arg(GetParam()).arg(nummer)));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Schriftgroessen, OrteBild, ::testing::Values(100, 150));

}  // namespace
