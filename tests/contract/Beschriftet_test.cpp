#include "gemeinsam/Beschriftet.h"

#include <gtest/gtest-spi.h>

#include <QVBoxLayout>

namespace {

// Two tabs that both have an amount; one more input is named, but not shown.
class Beschriftung : public testing::Test {
 protected:
  Beschriftung() {
    auto* spalte = new QVBoxLayout(&form);
    reiter = new QTabWidget;
    spalte->addWidget(reiter);
    for (const char* titel : {"&Einkäufe", "&Verkäufe"}) {
      auto* seite = new QWidget;
      auto* zeilen = new QVBoxLayout(seite);
      betrag << eingabe(zeilen, "Betrag");
      eingabe(zeilen, titel[1] == 'E' ? "Lieferant" : "Abnehmer");
      reiter->addTab(seite, titel);
    }
    verborgen = eingabe(spalte, "Charge");
    verborgen->hide();
    form.show();
  }
  static Eingabefeld* eingabe(QVBoxLayout* spalte, const QString& name) {
    auto* feld = new Eingabefeld;
    feld->setAccessibleName(name);
    spalte->addWidget(feld);
    return feld;
  }
  QWidget form;
  QTabWidget* reiter = nullptr;
  QList<Eingabefeld*> betrag;
  Eingabefeld* verborgen = nullptr;
};

}  // namespace

TEST_F(Beschriftung, WasZuSehenIstGehtVor) {
  EXPECT_EQ(Beschriftet::finde(&form, "Betrag"), betrag[0]);
  reiter->setCurrentIndex(1);
  EXPECT_EQ(Beschriftet::finde(&form, "Betrag"), betrag[1]);
  EXPECT_EQ(Beschriftet::finde(&form, "Charge"), verborgen);
}

TEST_F(Beschriftung, DerReiterSagtWelcheGemeintIst) {
  EXPECT_EQ(Beschriftet::finde(&form, "Betrag", QString("Verkäufe")), betrag[1]);
  EXPECT_EQ(Beschriftet::finde(&form, "Betrag", QString("Einkäufe")), betrag[0]);
}

TEST_F(Beschriftung, FehltSieStehtDaWelcheEsGibt) {
  EXPECT_NONFATAL_FAILURE(Beschriftet::finde(&form, "Preis"),
                          "0 Eingaben heißen \"Preis\"; zu sehen sind: Betrag, Lieferant");
}

TEST_F(Beschriftung, MehrereSindKeine) {
  eingabe(qobject_cast<QVBoxLayout*>(form.layout()), "Betrag")->show();
  EXPECT_NONFATAL_FAILURE(Beschriftet::finde(&form, "Betrag"), "2 Eingaben heißen \"Betrag\"");
}
