#include "gemeinsam/Bildschirm.h"
#include "sites/Standorte.h"
#include "sites/forms/Orteprobe.h"

namespace {

// With TOVA_BILDER set to a folder the tabs are saved there as pictures.
class OrteBild : public Orteprobe, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    Orteprobe::SetUp();
    const qint64 hof = standort("Heidelandschaft am großen Moor bei Schneverdingen");
    standort("Hof");
    for (const char* name : {"Besenheide", "Raps", "Sommerlinde"})
      pflanze(name, QDate(2006, 4, 20), QDate(2006, 9, 15));
    tracht(hof, "Besenheide", 80);
    tracht(hof, "Sommerlinde", 20);
    Standorte::trachtzeitenErmitteln(db());
  }
  void bild(const QString& name) {
    bildAblegen(*form, QString("orte_%1_%2").arg(name).arg(GetParam()));
  }

 private:
  const Schriftgröße m_schrift{GetParam()};
};

TEST_P(OrteBild, PasstAufDenBildschirmUndJederKnopfIstLesbar) {
  öffne();
  passtAufKleinenSchirm(*form);
  for (int nummer = 0; nummer < 3; ++nummer) {
    zumReiter(nummer);
    const QStringList listen = {"listandorte", "lijepflanze", "lipflanzen"};
    wähle(listen[nummer], 0);
    QTest::qWait(1);
    knöpfeSindLesbar(*form);
    bild(QString::number(nummer));
  }
}

// As a beginner finds it: one site, nothing else.
TEST_P(OrteBild, LeerStehenDieVorgabenInDenEingaben) {
  for (const char* tabelle : {"Standorte", "Pflanzen", "Standorte_Pflanzen"})
    db().Execute(QString("delete from %1").arg(tabelle));
  öffne();
  const QStringList erste = {"sevtstandort_7", "sevtje_2", "sevt_3"};
  const QStringList vorgaben = {"10", "", "5"};
  for (int nummer = 0; nummer < 3; ++nummer) {
    if (nummer == 1) {
      standort("Hof");
      öffne();
    }
    zumReiter(nummer);
    QTest::qWait(1);
    EXPECT_TRUE(feld(erste[nummer])->isVisible());
    EXPECT_EQ(inhalt(erste[nummer]), vorgaben[nummer].toStdString());
    bild(QString("leer_%1").arg(nummer));
  }
}

INSTANTIATE_TEST_SUITE_P(Schriftgrößen, OrteBild, ::testing::Values(100, 150));

}  // namespace
