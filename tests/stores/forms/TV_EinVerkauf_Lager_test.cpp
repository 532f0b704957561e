#include "stores/forms/TV_EinVerkauf_Lager.h"

#include <QGroupBox>

#include "platform/controls/Formular.h"
#include "stores/forms/Handelsprobe.h"

namespace {

class TVEinVerkaufLager : public Handelsprobe {};
class Handelssummen : public Handelsprobe {};

// ---- the form ----

TEST_F(TVEinVerkaufLager, TitelReiterBlöckeUndKnöpfe) {
  öffne(Einkauf);
  EXPECT_EQ(form->objectName(), "TV_EinVerkauf_Lager");
  EXPECT_EQ(form->windowTitle(), "Ein- und Verkäufe / Honiglager");
  auto* reiter = kind<QTabWidget>("reiter");
  EXPECT_EQ(reiter->tabText(0), "Einkäufe");
  EXPECT_EQ(reiter->tabText(1), "Verkäufe");
  EXPECT_EQ(reiter->tabText(2), "Honiglager");
  QStringList titel;
  for (int i = 0; i < 3; ++i) titel << reiter->widget(i)->findChild<QGroupBox*>()->title();
  EXPECT_EQ(titel, QStringList({"Einkäufe eingeben / ändern", "Verkäufe eingeben / ändern",
                                "Lagerbuchungen eingeben / ändern"}));
  for (const char* tab : {"einkauf", "verkauf", "honig"}) {
    EXPECT_EQ(kind<QPushButton>(QString("neu%1_0").arg(tab))->text(), "&Neu");
    EXPECT_EQ(kind<QPushButton>(QString("neu%1_1").arg(tab))->text(), "&Ändern");
    EXPECT_EQ(kind<QPushButton>(QString("lsch%1").arg(tab))->text(), "&Löschen");
  }
  EXPECT_EQ(kind<QPushButton>("comlisten")->text(), "&Listen");
  EXPECT_FALSE(kind<QPushButton>("comlisten")->isEnabled());
  EXPECT_EQ(kind<QPushButton>("rosumme")->text(), "Summen");
  EXPECT_EQ(kind<QPushButton>("comalle")->text(), "Aktualisieren");
  EXPECT_EQ(kind<QPushButton>("hilfe")->text(), "&Hilfe");
  EXPECT_EQ(kind<QPushButton>("beenden")->text(), "&Schließen");
}

TEST_F(TVEinVerkaufLager, FormModusWähltDenReiter) {
  for (const int nummer : {0, 1, 2}) {
    öffne(nummer);
    EXPECT_EQ(reiter(), nummer);
  }
  EXPECT_TRUE(feld("Honiglager", "Datum")->hasFocus());
  for (const char* modus : {"", "x", "3", "-1"}) {
    öffneMit(modus);
    EXPECT_EQ(reiter(), 0) << modus;
  }
}

TEST_F(TVEinVerkaufLager, DieListenZeigenAlleSpaltenUndMerkenIhreBreiten) {
  kaufe("Gläser", "1");
  verkaufe("Honig", "1");
  öffne(Einkauf);
  const auto spalten = [&](const char* name) {
    QStringList alle;
    for (int i = 0; i < liste(name)->spalten(); ++i) {
      alle << liste(name)->spaltenName(i);
      EXPECT_FALSE(liste(name)->isColumnHidden(i));
    }
    return alle;
  };
  EXPECT_EQ(spalten("lieinkauf"), QStringList({"Datum", "Produkt", "Qualität", "Lieferant", "Menge",
                                               "Einheit", "Ausgaben", "Charge", "ID"}));
  EXPECT_EQ(spalten("liverkauf"), QStringList({"Datum", "Produkt", "Qualität", "Abnehmer", "Menge",
                                               "Einheit", "Einnahmen", "Charge", "ID"}));
  EXPECT_EQ(spalten("lihonig"), QStringList({"Datum", "Produkt", "Zugang", "Abgang", "Charge",
                                             "Abfülldatum", "Bemerkung", "EVK_ID", "ID"}));
  EXPECT_EQ(liste("lihonig")->überschrift(2), "Eingang (kg)");  // as the inputs
  EXPECT_EQ(liste("lihonig")->überschrift(7), "EVK_ID");
  const QString ablage = m_ordner.path() + "/TOVA2.LAY";
  Fensterablage::setDatei(ablage);
  for (const auto& [nummer, name] : {std::pair(0, "lieinkauf"), {1, "liverkauf"}, {2, "lihonig"}}) {
    öffne(nummer);
    liste(name)->setColumnWidth(1, 200 + nummer);
    öffne(nummer);
    EXPECT_EQ(liste(name)->columnWidth(1), 200 + nummer) << name;
  }
  form.reset();
  Fensterablage::setDatei({});
}

TEST_F(TVEinVerkaufLager, GelesenWerdenLagerEinkaufVerkaufDannDiePicklistenDannDieSummen) {
  kaufe("Honig", "1");
  verkaufe("Honig", "1");
  TZ_Variablen::FormModus = "0";
  form = std::make_unique<TV_EinVerkauf_Lager>();
  QStringList gelesen;
  for (const char* name : {"lieinkauf", "liverkauf", "lihonig"})
    QObject::connect(liste(name)->model(), &QAbstractItemModel::modelReset, form.get(), [&, name] {
      gelesen << name;
      for (const char* produkt : {"sevteinkauf_1", "sevtverkauf_1", "sevthonig_1"})
        EXPECT_EQ(feld(produkt)->liste(), QStringList()) << name;
      EXPECT_EQ(summen(), "");
    });
  form->laden();
  EXPECT_EQ(gelesen, QStringList({"lihonig", "lieinkauf", "liverkauf"}));
  for (const char* produkt : {"sevteinkauf_1", "sevtverkauf_1", "sevthonig_1"})
    EXPECT_EQ(feld(produkt)->liste(), QStringList("Honig")) << produkt;
}

TEST_F(TVEinVerkaufLager, BeimÖffnenVorgabenUndDieLetzteZeileAktuell) {
  verkaufe("Honig", "2");
  db().Execute("update Verkauf set Datum = ?", {QDate(2006, 8, 1)});
  verkaufe("Wachs", "3");
  db().Execute("insert into Einkauf(Datum, Produkt) values (?, 'Gläser')", {QDate(2006, 1, 1)});
  öffne(Verkauf);
  EXPECT_EQ(inhalte("einkauf"), "20.06.2006||||0||0|");
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006||||0||0|");
  EXPECT_EQ(inhalte("honig"), "20.06.2006||0|0|||");
  EXPECT_EQ(liste("liverkauf")->aktuelleZeile(), 1);  // the latest by date, not by ID
  EXPECT_EQ(liste("liverkauf")->zelle(1, "Produkt"), "Honig");
  EXPECT_EQ(liste("lieinkauf")->aktuelleZeile(), 0);
  EXPECT_EQ(liste("lihonig")->aktuelleZeile(), 0);
}

TEST_F(TVEinVerkaufLager, DieselbeInstanzBeginntJedesMalNeu) {
  öffne(Verkauf);
  tippeVerkauf("Honig", "3");
  klicke("neuverkauf_0");
  klicke("comalle");
  TZ_Variablen::FormModus = "0";
  form->laden();
  EXPECT_EQ(reiter(), 0);
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006||||0||0|");
  EXPECT_EQ(liste("ligroup")->zeilen(), 0);
}

TEST_F(TVEinVerkaufLager, WährendEineListeLädtSindDieKnöpfeGesperrt) {
  öffne(Verkauf);
  tippeVerkauf("Honig", "3");
  int gelesen = 0;
  for (const char* name : {"liverkauf", "lihonig"})
    QObject::connect(liste(name)->model(), &QAbstractItemModel::modelReset, form.get(), [&] {
      ++gelesen;
      for (const auto* knopf : form->findChildren<QPushButton*>())
        EXPECT_FALSE(knopf->isEnabled()) << qPrintable(knopf->objectName());
    });
  klicke("neuverkauf_0");
  EXPECT_EQ(gelesen, 2);
  for (const auto* knopf : form->findChildren<QPushButton*>())
    EXPECT_EQ(knopf->isEnabled(), knopf->objectName() != "comlisten")
        << qPrintable(knopf->objectName());
}

TEST_F(TVEinVerkaufLager, EingabetasteDrücktNeuDesReiters) {
  öffne(Einkauf);
  EXPECT_TRUE(kind<QPushButton>("neueinkauf_0")->isDefault());
  zumReiter(Verkauf);
  EXPECT_TRUE(kind<QPushButton>("neuverkauf_0")->isDefault());
  zumReiter(Lager);
  EXPECT_TRUE(kind<QPushButton>("neuhonig_0")->isDefault());
  tippeLager("Raps", "5", "0");
  QTest::keyClick(feld("Ausgang (kg)"), Qt::Key_Return);
  EXPECT_EQ(anzahl("Honiglager"), 1);
  EXPECT_TRUE(offen());
}

TEST_F(TVEinVerkaufLager, NachDemSpeichernDrücktDieEingabetasteWiederNeu) {
  öffne(Lager);
  tippeLager("Raps", "5", "0");
  QTest::keyClick(feld("Ausgang (kg)"), Qt::Key_Return);
  EXPECT_TRUE(kind<QPushButton>("neuhonig_0")->isDefault());
  EXPECT_TRUE(feld("Honiglager", "Datum")->hasFocus());
  QTest::keyClick(feld("Honiglager", "Datum"), Qt::Key_Return);
  EXPECT_EQ(anzahl("Honiglager"), 2);
}

TEST_F(TVEinVerkaufLager, NachDemLöschenMitDerTastaturBleibtDerKnopf) {
  for (const char* produkt : {"Honig A", "Honig B"}) verkaufe(produkt, "1");
  öffne(Verkauf);
  wähle("liverkauf", 0);
  kind<QPushButton>("lschverkauf")->setFocus();
  QTest::keyClick(kind<QPushButton>("lschverkauf"), Qt::Key_Space);
  EXPECT_EQ(anzahl("Verkauf"), 1);
  EXPECT_TRUE(kind<QPushButton>("lschverkauf")->hasFocus());
  EXPECT_EQ(inhalt("Verkäufe", "Produkt"), "Honig B");
}

TEST_F(TVEinVerkaufLager, SchließenUndEscSchließen) {
  öffne(Einkauf);
  klicke("beenden");
  EXPECT_FALSE(offen());
  öffne(Einkauf);
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_FALSE(offen());
}

TEST_F(TVEinVerkaufLager, HilfeÖffnetDasThemaDesFormulars) {
  QString thema;
  Formular::setHilfe([&](QWidget*, const QString& t) { thema = t; });
  öffne(Einkauf);
  klicke("hilfe");
  Formular::setHilfe(nullptr);
  EXPECT_EQ(thema, "TV_EinVerkauf_Lager");
}

// ---- sums ----

TEST_F(Handelssummen, OhneGeschäfteDreimalNull) {
  öffne(Einkauf);
  EXPECT_EQ(summen(), "Einkauf: 0,00 €   Verkauf: 0,00 €   Summe: 0,00 €");
}

TEST_F(Handelssummen, BeimÖffnenUndAufKnopfdruckNichtNachDemSpeichern) {
  verkaufe("Wachs", "1");
  db().Execute("update Verkauf set Einnahmen = 100");
  öffne(Einkauf);
  EXPECT_EQ(summen(), "Einkauf: 0,00 €   Verkauf: 100,00 €   Summe: 100,00 €");
  tippeEinkauf("Gläser", "1");
  tippe("Ausgaben", "130,5");
  klicke("neueinkauf_0");
  EXPECT_EQ(summen(), "Einkauf: 0,00 €   Verkauf: 100,00 €   Summe: 100,00 €");
  klicke("rosumme");
  EXPECT_EQ(summen(), "Einkauf: 130,50 €   Verkauf: 100,00 €   Summe: -30,50 €");
}

}  // namespace
