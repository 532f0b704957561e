#include <QHeaderView>
#include <QPushButton>
#include <QTimer>

#include "platform/controls/Formular.h"
#include "sites/forms/Orteprobe.h"

// What holds for the form as a whole: captions, names, limits, kept widths, opening and closing.

namespace {

class Formularregeln : public Orteprobe {
 protected:
  void TearDown() override {
    Orteprobe::TearDown();
    Fensterablage::setDatei({});
  }
  // The captions of name_0, name_1, ..., each on a label that leads to its input.
  QStringList beschriftungen(const QString& name) {
    QStringList texte;
    for (int i = 0; form->findChild<Eingabefeld*>(name + QString("_%1").arg(i)) != nullptr; ++i)
      for (const auto* schild : form->findChildren<QLabel*>())
        if (schild->buddy() != nullptr &&
            schild->buddy()->objectName() == name + QString("_%1").arg(i))
          texte << schild->text();
    return texte;
  }
};

TEST_F(Formularregeln, BeschriftungenAllerEingabenInIhrerFolge) {
  öffne();
  EXPECT_EQ(
      beschriftungen("sevtstandort"),
      QStringList({"Standort", "Zusatz-Orthinweis", "Wintertauglich", "Klima", "PKW anfahrbar",
                   "Wasserentfernung m", "Flugrichtung", "Max. Anzahl Völker",
                   "Standortprämie je Volk", "Trachtzeit von", "Trachtzeit bis"}));
  EXPECT_EQ(beschriftungen("sevtje"), QStringList({"Pflanze", "Entfernung m", "Anteil in %"}));
  EXPECT_EQ(beschriftungen("sevt"), QStringList({"Pflanze", "Weidezeit von", "Weidezeit bis",
                                                 "Nektarstufe (0..10)", "Pollenstufe (0..10)"}));
}

TEST_F(Formularregeln, DieListenTragenDieWorteDerEingabenUndVerbergenDieKennungen) {
  tracht(standort("Hof"), "Raps", 10);
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  öffne();
  zumReiter(1);
  const auto köpfe = [this](const QString& name) {
    QStringList texte;
    for (int i = 0; i < liste(name)->spalten(); ++i)
      if (!liste(name)->isColumnHidden(i)) texte << liste(name)->überschrift(i);
    return texte;
  };
  EXPECT_EQ(köpfe("listandorte"),
            QStringList({"Standort", "Zusatz-Orthinweis", "Wintertauglich", "Klima",
                         "Trachtzeit von", "Trachtzeit bis", "PKW anfahrbar", "Wasserentfernung m",
                         "Flugrichtung", "Max. Anzahl Völker", "Standortprämie je Volk"}));
  EXPECT_EQ(köpfe("lipflanzen"), beschriftungen("sevt"));
  EXPECT_EQ(köpfe("lijepflanze"), beschriftungen("sevtje"));
  EXPECT_EQ(köpfe("lijeort"), QStringList("Standort"));
}

TEST_F(Formularregeln, WasNurGezeigtWirdLiegtAufDemGrundDesFormulars) {
  öffne();
  const auto grund = [this](const QString& name) {
    return feld(name)->palette().color(QPalette::Base);
  };
  const QColor fenster = form->palette().color(QPalette::Window);
  EXPECT_EQ(grund("sevtstandort_9"), fenster);
  EXPECT_NE(grund("sevtstandort_0"), fenster);
}

TEST_F(Formularregeln, JederAndereModusAlsZweiBeginntMitDemErstenReiter) {
  standort("Hof");
  for (const char* modus : {"1", "", "22", "3"}) {
    öffne(modus);
    EXPECT_EQ(reiter(), 0) << modus;
  }
}

TEST_F(Formularregeln, DieListenMerkenIhreBreitenUnterIhremSchlüssel) {
  Fensterablage::setDatei(m_ordner.filePath("TOVA2.LAY"));
  tracht(standort("Hof"), "Raps", 10);
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  öffne();
  zumReiter(1);
  const QStringList listen = {"listandorte", "lipflanzen", "lijepflanze"};
  for (int i = 0; i < listen.size(); ++i) {
    liste(listen[i])->horizontalHeader()->resizeSection(0, 171 + i);
    const QVariantList breiten =
        Fensterablage::lesen("Spaltenbreiten/tv_pflanzen_standorte_" + listen[i]).toList();
    ASSERT_EQ(breiten.size(), liste(listen[i])->spalten()) << qPrintable(listen[i]);
    EXPECT_EQ(breiten[0].toInt(), 171 + i) << qPrintable(listen[i]);
  }
  öffne();
  zumReiter(1);
  for (int i = 0; i < listen.size(); ++i)
    EXPECT_EQ(liste(listen[i])->columnWidth(0), 171 + i) << qPrintable(listen[i]);
}

TEST_F(Formularregeln, NamenDieSichNurInDerSchreibungUnterscheidenGeltenAlsGleich) {
  standort("Müllers Hof");
  pflanze("Löwenzahn", QDate(2003, 4, 20), QDate(2003, 5, 20));
  öffne();
  boxen.hinweis("Der Standort existiert bereits!").hinweis("Die Pflanze existiert bereits!");
  tippe("Standort", "MÜLLERS HOF");
  klicke("neustandort_0");
  zumReiter(2);
  tippePflanze("LÖWENZAHN", "20.04.2003", "20.05.2003");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Standorte"), 1);
  EXPECT_EQ(anzahl("Pflanzen"), 1);
}

TEST_F(Formularregeln, DieEigeneZeileDarfIhreSchreibungÄndern) {
  standort("Müllers Hof");
  pflanze("Löwenzahn", QDate(2003, 4, 20), QDate(2003, 5, 20));
  öffne();
  wähle("listandorte", 0);
  tippe("Standort", "MÜLLERS HOF");
  klicke("neustandort_1");
  EXPECT_EQ(wert("select Standort from Standorte").toString(), "MÜLLERS HOF");
  zumReiter(2);
  wähle("lipflanzen", 0);
  tippe("Pflanzen", "Pflanze", "LÖWENZAHN");
  klicke("neu_1");
  EXPECT_EQ(wert("select Pflanze from Pflanzen").toString(), "LÖWENZAHN");
}

TEST_F(Formularregeln, EinApostrophImNamenWirdGespeichertUndWiedergefunden) {
  öffne();
  tippe("Standort", " O'Briens Hof ");
  klicke("neustandort_0");
  EXPECT_EQ(wert("select Standort from Standorte").toString(), "O`Briens Hof");
  EXPECT_EQ(liste("listandorte")->aktuelleZeile(), 0);
  boxen.hinweis("Der Standort existiert bereits!");
  tippe("Standort", "O'Briens Hof");
  klicke("neustandort_0");
}

TEST_F(Formularregeln, OhneNamenKommtDerGrundVorDerFehlendenZeile) {
  standort("Hof");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  öffne();
  boxen.hinweis(Weil + "...der Standort angegeben werden muß.");
  tippe("Standort", "   ");
  klicke("neustandort_1");
  zumReiter(2);
  tippePflanze("  ", "20.04.2003", "20.05.2003");
  boxen.hinweis(Weil + "...die Pflanze angegeben werden muß.");
  klicke("neu_1");
}

TEST_F(Formularregeln, LängenDerTexteBeimTippen) {
  öffne();
  tippe("Standort", QString(101, 'a'));
  EXPECT_EQ(inhalt("Standort").size(), 100U);
  tippe("Zusatz-Orthinweis", QString(51, 'b'));
  EXPECT_EQ(inhalt("Zusatz-Orthinweis").size(), 50U);
  tippe("Klima", QString(21, 'c'));
  EXPECT_EQ(inhalt("Klima").size(), 20U);
  tippe("Standortprämie je Volk", "1234567890");
  EXPECT_EQ(inhalt("Standortprämie je Volk"), "12345678");
  tippe("Standortprämie je Volk", "1,5");
  EXPECT_EQ(inhalt("Standortprämie je Volk"), "1,5");
  tippe("Wasserentfernung m", "9999");
  EXPECT_EQ(inhalt("Wasserentfernung m"), "9999");
  tippe("Max. Anzahl Völker", "999");
  EXPECT_EQ(inhalt("Max. Anzahl Völker"), "999");
  zumReiter(2);
  tippe("Pflanzen", "Pflanze", QString(21, 'd'));
  EXPECT_EQ(inhalt("Pflanzen", "Pflanze").size(), 20U);
  tippe("Nektarstufe (0..10)", "0");
  EXPECT_EQ(inhalt("Nektarstufe (0..10)"), "0");
}

TEST_F(Formularregeln, JaUndNeinAlsGeschlosseneWahl) {
  öffne();
  tippe("Wintertauglich", "n");
  EXPECT_EQ(inhalt("Wintertauglich"), "N");
  tippe("PKW anfahrbar", "n");
  EXPECT_EQ(inhalt("PKW anfahrbar"), "N");
  tippe("PKW anfahrbar", "z");
  EXPECT_EQ(inhalt("PKW anfahrbar"), "N");
}

TEST_F(Formularregeln, PicklistenAusDenAnderenStandorten) {
  standort("Hof");
  db().Execute(
      "update Standorte set Zusatzortshinweis = 'am Moor', Klima = 'rau', Flugrichtung = 'Ost'");
  öffne();
  EXPECT_EQ(feld("Zusatz-Orthinweis")->liste(), QStringList("am Moor"));
  EXPECT_EQ(feld("Klima")->liste(), QStringList("rau"));
  EXPECT_EQ(feld("Flugrichtung")->liste(), QStringList("Ost"));
  EXPECT_EQ(feld("Standort")->liste(), QStringList());
}

TEST_F(Formularregeln, EinUngültigesDatumWirdAbgelehnt) {
  öffne("2");
  tippePflanze("Raps", "31.02.2003", "20.05.2003");
  boxen.hinweis(Weil + "...die Weidezeit von...bis korrekt angegeben werden muß.");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Pflanzen"), 0);
  tippePflanze("Raps", "20.05.2003", "20.04.2003");  // the order isn't judged
  klicke("neu_0");
  EXPECT_EQ(anzahl("Pflanzen"), 1);
}

TEST_F(Formularregeln, NeunundzwanzigsterFebruarAlsBeginnWirdGesagtUndDasFormularBleibt) {
  pflanze("Krokus", QDate(2004, 3, 1), QDate(2004, 4, 1));
  pflanze("Hasel", QDate(2004, 2, 29), QDate(2004, 3, 20));
  öffne("2");
  wähle("lipflanzen", 1);
  boxen.hinweisMit("29.02.2003");
  klicke("aufwaerts_1");
  EXPECT_TRUE(offen());
  EXPECT_EQ(liste("lipflanzen")->zelle(0, "Weidezeit_von"), "29.02.2004");
  EXPECT_EQ(liste("lipflanzen")->zelle(0, "Weidezeit_bis"), "20.03.2004");
  EXPECT_EQ(liste("lipflanzen")->zelle(1, "Weidezeit_von"), "01.03.2003");
  EXPECT_EQ(inhalt("Weidezeit von"), "01.03.2003");
}

TEST_F(Formularregeln, GeschlossenHältKeinBlockDieDatenbankFest) {
  TZ_Variablen::FormModus = "0";
  form = std::make_unique<TV_Pflanzen_Standorte>();
  QTimer::singleShot(0, form.get(), [this] { kind<QPushButton>("beenden")->click(); });
  form->zeigen();
  EXPECT_FALSE(offen());
  const QList<std::array<QString, 2>> blöcke = {{"sevtstandort_0", "neustandort_0"},
                                                {"sevt_0", "neu_0"}};
  feld("Weidezeit von")->setInhalt("20.04.2003");
  feld("Weidezeit bis")->setInhalt("20.05.2003");
  for (const auto& [eingabe, knopf] : blöcke) {
    feld(eingabe)->setInhalt("Neu");
    boxen.hinweisMit("Die Datenbank ist geschlossen.");
    kind<QPushButton>(knopf)->click();
  }
  EXPECT_EQ(anzahl("Standorte"), 0);
  EXPECT_EQ(anzahl("Pflanzen"), 0);
  // Opened again it works as before.
  QTimer::singleShot(0, form.get(), [this] {
    tippe("Standort", "Hof");
    klicke("neustandort_0");
    kind<QPushButton>("beenden")->click();
  });
  form->zeigen();
  EXPECT_EQ(anzahl("Standorte"), 1);
}

}  // namespace
