#include "gemeinsam/Bildschirm.h"
#include "stores/forms/Handelsprobe.h"

namespace {

// With TOVA_BILDER set to a folder the tabs are saved there as pictures.
class HandelBild : public Handelsprobe, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    Handelsprobe::SetUp();
    fülle();
  }
  static void buche(Seite seite, const QStringList& werte) {
    Verwaltung::Texte texte;
    const Verwaltung::Felder felder = Handel::geschäftsfelder(seite);
    for (int i = 0; i < felder.size(); ++i) texte[felder[i].feld] = werte[i];
    Handel::geschäftSpeichern(db(), seite, texte, {});
  }
  static void fülle() {
    const QList<QStringList> einkäufe = {
        {"12.03.2006", "Honiggläser mit Decke", "500 g, Twist-off", "Glasgroßhandel Übersee GmbH",
         "1200", "St", "684", ""},
        {"02.04.2006", "Zucker", "Raffinade", "Landhandel Schmidt", "250", "kg", "212,5", ""},
        {"20.05.2006", "Rapshonig", "I", "Müller-Lüdenscheidt, Jürgen", "40", "kg", "180", "R06"}};
    const QList<QStringList> verkäufe = {
        {"01.06.2006", "Waldhonig", "I", "Bäckerei Grünäcker", "12,5", "kg", "118,75", "A1"},
        {"05.06.2006", "Kerzen", "gezogen", "Weihnachtsmarkt", "30", "St", "90", ""},
        {"10.06.2006", "Frühtrachthonig", "cremig gerührt", "Müller-Lüdenscheidt, Jürgen", "24",
         "kg", "216", "F06/1"}};
    for (QStringList werte : einkäufe) {
      werte[1] = werte[1].left(20);
      buche(Seite::Einkauf, werte);
    }
    for (const QStringList& werte : verkäufe) buche(Seite::Verkauf, werte);
    lager("Frühtrachthonig", 180.5, 0, "F06/1");
    lager("Waldhonig", 65, 0, "A1");
    lager("Waldhonig", 12, 0, QString(""));
  }
  void bild(const QString& name) {
    QTest::qWait(1);
    bildAblegen(*form, QString("handel_%1_%2").arg(name).arg(GetParam()));
  }

 private:
  const Schriftgröße m_schrift{GetParam()};
};

TEST_P(HandelBild, PasstAufDenBildschirmUndJederKnopfIstLesbar) {
  öffne(Einkauf);
  passtAufKleinenSchirm(*form);
  const QStringList listen = {"lieinkauf", "liverkauf", "lihonig"};
  for (const QSize größe : {QSize(1024, 700), QSize(1400, 900)}) {
    form->resize(größe);
    for (int nummer = 0; nummer < 3; ++nummer) {
      zumReiter(nummer);
      wähle(listen[nummer], 0);
      if (nummer == Lager) klicke("comalle");
      QTest::qWait(1);
      knöpfeSindLesbar(*form);
      bild(QString("%1_%2").arg(größe.width()).arg(nummer));
    }
  }
}

TEST_P(HandelBild, LeerIstAllesZuSehen) {
  for (const char* tabelle : {"Einkauf", "Verkauf", "Honiglager", "Kunden"})
    db().Execute(QString("delete from %1").arg(tabelle));
  for (int nummer = 0; nummer < 3; ++nummer) {
    öffne(nummer);
    form->resize(1024, 700);
    EXPECT_EQ(liste(QStringList({"lieinkauf", "liverkauf", "lihonig"})[nummer])->spalten(), 9);
    bild(QString("leer_%1").arg(nummer));
  }
}

INSTANTIATE_TEST_SUITE_P(Schriftgrößen, HandelBild, ::testing::Values(100, 150));

}  // namespace
