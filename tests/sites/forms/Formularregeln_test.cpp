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
  oeffne();
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
  oeffne();
  zumReiter(1);
  const auto koepfe = [this](const QString& name) {
    QStringList texte;
    for (int i = 0; i < liste(name)->spalten(); ++i)
      if (!liste(name)->isColumnHidden(i)) texte << liste(name)->ueberschrift(i);
    return texte;
  };
  EXPECT_EQ(koepfe("listandorte"),
            QStringList({"Standort", "Zusatz-Orthinweis", "Wintertauglich", "Klima",
                         "Trachtzeit von", "Trachtzeit bis", "PKW anfahrbar", "Wasserentfernung m",
                         "Flugrichtung", "Max. Anzahl Völker", "Standortprämie je Volk"}));
  EXPECT_EQ(koepfe("lipflanzen"), beschriftungen("sevt"));
  EXPECT_EQ(koepfe("lijepflanze"), beschriftungen("sevtje"));
  EXPECT_EQ(koepfe("lijeort"), QStringList("Standort"));
}

TEST_F(Formularregeln, WasNurGezeigtWirdLiegtAufDemGrundDesFormulars) {
  oeffne();
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
    oeffne(modus);
    EXPECT_EQ(reiter(), 0) << modus;
  }
}

TEST_F(Formularregeln, DieListenMerkenIhreBreitenUnterIhremSchluessel) {
  Fensterablage::setDatei(m_ordner.filePath("TOVA2.LAY"));
  tracht(standort("Hof"), "Raps", 10);
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  oeffne();
  zumReiter(1);
  const QStringList listen = {"listandorte", "lipflanzen", "lijepflanze"};
  for (int i = 0; i < listen.size(); ++i) {
    liste(listen[i])->horizontalHeader()->resizeSection(0, 171 + i);
    const QVariantList breiten =
        Fensterablage::lesen("Spaltenbreiten/tv_pflanzen_standorte_" + listen[i]).toList();
    ASSERT_EQ(breiten.size(), liste(listen[i])->spalten()) << qPrintable(listen[i]);
    EXPECT_EQ(breiten[0].toInt(), 171 + i) << qPrintable(listen[i]);
  }
  oeffne();
  zumReiter(1);
  for (int i = 0; i < listen.size(); ++i)
    EXPECT_EQ(liste(listen[i])->columnWidth(0), 171 + i) << qPrintable(listen[i]);
}

TEST_F(Formularregeln, NamenDieSichNurInDerSchreibungUnterscheidenGeltenAlsGleich) {
  standort("Müllers Hof");
  pflanze("Löwenzahn", QDate(2003, 4, 20), QDate(2003, 5, 20));
  oeffne();
  boxen.hinweis("Der Standort existiert bereits!").hinweis("Die Pflanze existiert bereits!");
  tippe("sevtstandort_0", "MÜLLERS HOF");
  klicke("neustandort_0");
  zumReiter(2);
  tippePflanze("LÖWENZAHN", "20.04.2003", "20.05.2003");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Standorte"), 1);
  EXPECT_EQ(anzahl("Pflanzen"), 1);
}

TEST_F(Formularregeln, DieEigeneZeileDarfIhreSchreibungAendern) {
  standort("Müllers Hof");
  pflanze("Löwenzahn", QDate(2003, 4, 20), QDate(2003, 5, 20));
  oeffne();
  waehle("listandorte", 0);
  tippe("sevtstandort_0", "MÜLLERS HOF");
  klicke("neustandort_1");
  EXPECT_EQ(wert("select Standort from Standorte").toString(), "MÜLLERS HOF");
  zumReiter(2);
  waehle("lipflanzen", 0);
  tippe("sevt_0", "LÖWENZAHN");
  klicke("neu_1");
  EXPECT_EQ(wert("select Pflanze from Pflanzen").toString(), "LÖWENZAHN");
}

TEST_F(Formularregeln, EinApostrophImNamenWirdGespeichertUndWiedergefunden) {
  oeffne();
  tippe("sevtstandort_0", " O'Briens Hof ");
  klicke("neustandort_0");
  EXPECT_EQ(wert("select Standort from Standorte").toString(), "O`Briens Hof");
  EXPECT_EQ(liste("listandorte")->aktuelleZeile(), 0);
  boxen.hinweis("Der Standort existiert bereits!");
  tippe("sevtstandort_0", "O'Briens Hof");
  klicke("neustandort_0");
}

TEST_F(Formularregeln, OhneNamenKommtDerGrundVorDerFehlendenZeile) {
  standort("Hof");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  oeffne();
  boxen.hinweis(Weil + "...der Standort angegeben werden muß.");
  tippe("sevtstandort_0", "   ");
  klicke("neustandort_1");
  zumReiter(2);
  tippePflanze("  ", "20.04.2003", "20.05.2003");
  boxen.hinweis(Weil + "...die Pflanze angegeben werden muß.");
  klicke("neu_1");
}

TEST_F(Formularregeln, LaengenDerTexteBeimTippen) {
  oeffne();
  tippe("sevtstandort_0", QString(101, 'a'));
  EXPECT_EQ(inhalt("sevtstandort_0").size(), 100U);
  tippe("sevtstandort_1", QString(51, 'b'));
  EXPECT_EQ(inhalt("sevtstandort_1").size(), 50U);
  tippe("sevtstandort_3", QString(21, 'c'));
  EXPECT_EQ(inhalt("sevtstandort_3").size(), 20U);
  tippe("sevtstandort_8", "1234567890");
  EXPECT_EQ(inhalt("sevtstandort_8"), "12345678");
  tippe("sevtstandort_8", "1,5");
  EXPECT_EQ(inhalt("sevtstandort_8"), "1,5");
  tippe("sevtstandort_5", "9999");
  EXPECT_EQ(inhalt("sevtstandort_5"), "9999");
  tippe("sevtstandort_7", "999");
  EXPECT_EQ(inhalt("sevtstandort_7"), "999");
  zumReiter(2);
  tippe("sevt_0", QString(21, 'd'));
  EXPECT_EQ(inhalt("sevt_0").size(), 20U);
  tippe("sevt_3", "0");
  EXPECT_EQ(inhalt("sevt_3"), "0");
}

TEST_F(Formularregeln, JaUndNeinAlsGeschlosseneWahl) {
  oeffne();
  tippe("sevtstandort_2", "n");
  EXPECT_EQ(inhalt("sevtstandort_2"), "N");
  tippe("sevtstandort_4", "n");
  EXPECT_EQ(inhalt("sevtstandort_4"), "N");
  tippe("sevtstandort_4", "z");
  EXPECT_EQ(inhalt("sevtstandort_4"), "N");
}

TEST_F(Formularregeln, PicklistenAusDenAnderenStandorten) {
  standort("Hof");
  db().Execute(
      "update Standorte set Zusatzortshinweis = 'am Moor', Klima = 'rau', Flugrichtung = 'Ost'");
  oeffne();
  EXPECT_EQ(feld("sevtstandort_1")->liste(), QStringList("am Moor"));
  EXPECT_EQ(feld("sevtstandort_3")->liste(), QStringList("rau"));
  EXPECT_EQ(feld("sevtstandort_6")->liste(), QStringList("Ost"));
  EXPECT_EQ(feld("sevtstandort_0")->liste(), QStringList());
}

TEST_F(Formularregeln, EinUngueltigesDatumWirdAbgelehnt) {
  oeffne("2");
  tippePflanze("Raps", "31.02.2003", "20.05.2003");
  boxen.hinweis(Weil + "...die Weidezeit von...bis korrekt angegeben werden muß.");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Pflanzen"), 0);
  tippePflanze("Raps", "20.05.2003", "20.04.2003");  // the order isn't judged
  klicke("neu_0");
  EXPECT_EQ(anzahl("Pflanzen"), 1);
}

TEST_F(Formularregeln, EinePflanzeLoeschenVerlangtEineZeileUndFragt) {
  pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  TZ_Variablen::EinstellungenZahl[55] = 1;
  oeffne("2");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.")
      .frage(Loeschfrage, false)
      .frage(Loeschfrage, true);
  klicke("löschen");
  waehle("lipflanzen", 0);
  klicke("löschen");
  EXPECT_EQ(anzahl("Pflanzen"), 2);
  klicke("löschen");
  EXPECT_EQ(anzahl("Pflanzen", "Pflanze = 'Linde'"), 0);
  EXPECT_EQ(inhalt("sevt_0"), "Raps");
}

TEST_F(Formularregeln, NeunundzwanzigsterFebruarAlsBeginnWirdGesagtUndDasFormularBleibt) {
  pflanze("Krokus", QDate(2004, 3, 1), QDate(2004, 4, 1));
  pflanze("Hasel", QDate(2004, 2, 29), QDate(2004, 3, 20));
  oeffne("2");
  waehle("lipflanzen", 1);
  boxen.hinweisMit("29.02.2003");
  klicke("aufwaerts_1");
  EXPECT_TRUE(offen());
  EXPECT_EQ(liste("lipflanzen")->zelle(0, "Weidezeit_von"), "29.02.2004");
  EXPECT_EQ(liste("lipflanzen")->zelle(0, "Weidezeit_bis"), "20.03.2004");
  EXPECT_EQ(liste("lipflanzen")->zelle(1, "Weidezeit_von"), "01.03.2003");
  EXPECT_EQ(inhalt("sevt_1"), "01.03.2003");
}

TEST_F(Formularregeln, GeschlossenHaeltKeinBlockDieDatenbankFest) {
  TZ_Variablen::FormModus = "0";
  form = std::make_unique<TV_Pflanzen_Standorte>();
  QTimer::singleShot(0, form.get(), [this] { kind<QPushButton>("beenden")->click(); });
  form->zeigen();
  EXPECT_FALSE(offen());
  const QList<std::array<QString, 2>> bloecke = {{"sevtstandort_0", "neustandort_0"},
                                                 {"sevt_0", "neu_0"}};
  feld("sevt_1")->setInhalt("20.04.2003");
  feld("sevt_2")->setInhalt("20.05.2003");
  for (const auto& [eingabe, knopf] : bloecke) {
    feld(eingabe)->setInhalt("Neu");
    boxen.hinweisMit("Die Datenbank ist geschlossen.");
    kind<QPushButton>(knopf)->click();
  }
  EXPECT_EQ(anzahl("Standorte"), 0);
  EXPECT_EQ(anzahl("Pflanzen"), 0);
  // Opened again it works as before.
  QTimer::singleShot(0, form.get(), [this] {
    tippe("sevtstandort_0", "Hof");
    klicke("neustandort_0");
    kind<QPushButton>("beenden")->click();
  });
  form->zeigen();
  EXPECT_EQ(anzahl("Standorte"), 1);
}

}  // namespace
