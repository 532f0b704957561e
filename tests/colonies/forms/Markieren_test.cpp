#include "colonies/forms/Markieren.h"

#include "colonies/forms/Selektionsprobe.h"

namespace {

const QString Strg = "Sie können die Völker auch mit gedrückter STRG-Taste und der Maus markieren.";

class Markieren : public Selektionsprobe {
 protected:
  // Opens the form as the menu does, acts on it and closes it.
  void selektiereMit(const std::function<void(QWidget*)>& aktion) {
    QTimer takt;
    QObject::connect(&takt, &QTimer::timeout, &takt, [&] {
      QWidget* offen = QApplication::activeModalWidget();
      if (offen == nullptr) return;
      takt.stop();
      EXPECT_EQ(offen->objectName(), "TV_Selektieren");
      aktion(offen);
      offen->close();
    });
    takt.start(5);
    völkerSelektieren(&fenster);
  }
  static void klick(QWidget* form, const QString& name) {
    auto* k = form->findChild<QAbstractButton*>(name);
    ASSERT_NE(k, nullptr);
    QTest::mouseClick(k, Qt::LeftButton);
  }

  QWidget fenster;
};

TEST_F(Markieren, SelektierteWerdenMarkiertUndDieErsteWirdAktuell) {
  merke({"2", "4"});
  liste->setMarkierteZeilen({0, 1, 2});
  boxen.hinweis(Strg);
  selektierteMarkieren(&fenster);
  EXPECT_EQ(liste->markierteZeilen(), QList<int>({1, 3}));
  EXPECT_EQ(liste->aktuelleZeile(), 1);
  EXPECT_EQ(TZ_Variablen::AktVolkID, liste->zelle(1, "ID"));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Markieren, OhneSelektierteIstKeineZeileMarkiertDieAktuelleBleibtUndDerHinweisKommt) {
  liste->setAktuelleZeile(2);
  boxen.hinweis(Strg);
  selektierteMarkieren(&fenster);
  EXPECT_EQ(liste->markierteZeilen(), QList<int>());
  EXPECT_EQ(liste->aktuelleZeile(), 2);
}

TEST_F(Markieren, VomFilterVerborgeneBleibenSelektiert) {
  merke({"1", "5"});
  boxen.hinweis(Strg);
  selektierteMarkieren(&fenster);
  EXPECT_EQ(liste->markierteZeilen(), QList<int>({0}));
  EXPECT_EQ(selektiert(), "1 5");
}

TEST_F(Markieren, MarkierteWerdenSelektiert) {
  liste->setMarkierteZeilen({0, 2});
  const int vorher = liste->gelesen;
  markierteSelektieren();
  EXPECT_EQ(selektiert(), "1 3");
  EXPECT_EQ(liste->gelesen, vorher + 1);
  EXPECT_EQ(liste->zelle(2, "Selektiert"), "X");
}

TEST_F(Markieren, MarkierteSelektierenLöschtAuchDieVomFilterVerborgenen) {
  merke({"2", "5"});
  liste->setMarkierteZeilen({0});
  markierteSelektieren();
  EXPECT_EQ(selektiert(), "1");
}

TEST_F(Markieren, OhneMarkierteZeileIstDanachKeinVolkSelektiert) {
  merke({"2"});
  liste->setMarkierteZeilen({});
  markierteSelektieren();
  EXPECT_EQ(selektiert(), "");
}

TEST_F(Markieren, NachDemSelektierenFragtDasMenüUndJaMarkiert) {
  boxen.frage("Es sind 4 Völker selektiert. Sollen diese auch gleich markiert werden?", true);
  boxen.hinweis(Strg);
  selektiereMit([](QWidget* form) { klick(form, "entselekt_7"); });
  EXPECT_EQ(liste->markierteZeilen(), QList<int>({0, 1, 2, 3}));
}

TEST_F(Markieren, NeinLässtDieMarkierung) {
  boxen.frage("Es sind 4 Völker selektiert. Sollen diese auch gleich markiert werden?", false);
  selektiereMit([](QWidget* form) { klick(form, "entselekt_7"); });
  EXPECT_EQ(liste->markierteZeilen(), QList<int>({0}));
}

TEST_F(Markieren, DieFrageZähltNurWasDieListeZeigt) {
  boxen.frage("Es sind 4 Völker selektiert. Sollen diese auch gleich markiert werden?", false);
  selektiereMit([](QWidget* form) { klick(form, "entselekt_0"); });
  EXPECT_EQ(selektiert(), "1 2 3 4 5");
}

TEST_F(Markieren, NurVerborgeneSelektiertGibtKeineFrage) {
  merke({"5"});
  selektiereMit([](QWidget*) {});
}

TEST_F(Markieren, OhneSelektierteGibtEsKeineFrage) {
  merke({"1"});
  selektiereMit([](QWidget* form) { klick(form, "entselekt_1"); });
  EXPECT_EQ(selektiert(), "");
}

TEST_F(Markieren, DieFormIstBeimZweitenMalDieselbe) {
  QWidget* erste = nullptr;
  selektiereMit([&](QWidget* form) { erste = form; });
  selektiereMit([&](QWidget* form) { EXPECT_EQ(form, erste); });
}

}  // namespace
