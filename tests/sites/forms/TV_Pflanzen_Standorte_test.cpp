#include "sites/forms/TV_Pflanzen_Standorte.h"

#include <QGroupBox>
#include <QPushButton>

#include "sites/forms/Orteprobe.h"

namespace {

class TVPflanzenStandorte : public Orteprobe {};
class StandorteReiter : public Orteprobe {};

// ---- the form ----

TEST_F(TVPflanzenStandorte, TitelReiterUndKnöpfe) {
  öffne();
  EXPECT_EQ(form->objectName(), "TV_Pflanzen_Standorte");
  EXPECT_EQ(form->windowTitle(), "Pflanzen und Standorte (Wanderung)");
  auto* reiter = kind<QTabWidget>("reiter");
  EXPECT_EQ(reiter->tabText(0), "Standorte");
  EXPECT_EQ(reiter->tabText(1), "Pflanzen je Standort");
  EXPECT_EQ(reiter->tabText(2), "Pflanzen");
  const QList<std::pair<QString, QString>> knöpfe = {
      {"neustandort_0", "&Neu"},
      {"neustandort_1", "&Ändern"},
      {"lschstandort", "&Löschen"},
      {"neuje_0", "&Neu"},
      {"neuje_1", "&Ändern"},
      {"lschje", "&Löschen"},
      {"neu_0", "&Neu"},
      {"neu_1", "&Ändern"},
      {"löschen", "&Löschen"},
      {"aufwaerts_0", "Weidezeit + 1 Jahr"},
      {"aufwaerts_1", "Weidezeit - 1 Jahr"},
      {"comstandortlisten", "&Standorte / Pflanzen auswerten"},
      {"hilfe", "&Hilfe"},
      {"beenden", "&Schließen"}};
  for (const auto& [name, text] : knöpfe) EXPECT_EQ(kind<QPushButton>(name)->text(), text);
  EXPECT_FALSE(kind<QPushButton>("comstandortlisten")->isEnabled());
}

TEST_F(TVPflanzenStandorte, FormModusWähltDenReiter) {
  öffne("2");
  EXPECT_EQ(reiter(), 2);
  EXPECT_TRUE(feld("Pflanzen", "Pflanze")->hasFocus());
  öffne("0");
  EXPECT_EQ(reiter(), 0);
  EXPECT_TRUE(feld("Standort")->hasFocus());
  öffne("x");
  EXPECT_EQ(reiter(), 0);
}

TEST_F(TVPflanzenStandorte, DieselbeInstanzFolgtDemNächstenModus) {
  öffne("2");
  TZ_Variablen::FormModus = "0";
  form->laden();
  EXPECT_EQ(reiter(), 0);
}

TEST_F(TVPflanzenStandorte, EingabetasteDrücktNeuDesReiters) {
  öffne();
  EXPECT_TRUE(kind<QPushButton>("neustandort_0")->isDefault());
  zumReiter(2);
  EXPECT_TRUE(kind<QPushButton>("neu_0")->isDefault());
  tippePflanze("Raps", "20.04.2003", "20.05.2003");
  QTest::keyClick(feld("Weidezeit bis"), Qt::Key_Return);
  EXPECT_EQ(anzahl("Pflanzen"), 1);
  EXPECT_TRUE(offen());
}

TEST_F(TVPflanzenStandorte, SchließenErmitteltDieTrachtzeit) {
  const qint64 hof = standort("Hof");
  standort("Leer");
  pflanze("Krokus", QDate(2003, 3, 1), QDate(2003, 4, 15));
  pflanze("Robinie", QDate(2003, 5, 10), QDate(2003, 6, 30));
  tracht(hof, "Krokus", 50);
  tracht(hof, "Robinie", 50);
  db().Execute("update Standorte set Trachtzeit_von = ? where Standort = 'Leer'",
               {QDate(2003, 1, 1)});
  öffne();
  klicke("beenden");
  EXPECT_FALSE(offen());
  EXPECT_EQ(von("Hof").toDate(), QDate(2003, 3, 1));
  EXPECT_EQ(bis("Hof").toDate(), QDate(2003, 6, 30));
  EXPECT_TRUE(von("Leer").isNull());
}

TEST_F(TVPflanzenStandorte, EscUndDasSchließfeldErmittelnNichts) {
  const qint64 hof = standort("Hof");
  pflanze("Krokus", QDate(2003, 3, 1), QDate(2003, 4, 15));
  tracht(hof, "Krokus", 50);
  öffne();
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_FALSE(offen());
  öffne();
  form->close();
  EXPECT_TRUE(von("Hof").isNull());
}

TEST_F(TVPflanzenStandorte, EinFehlerBeimSchließenWirdGesagtUndDasFormularBleibtOffen) {
  tracht(standort("Hof"), "Raps", 10);
  öffne();
  db().Execute("drop table Standorte_Pflanzen");
  boxen.hinweisMit("Standorte_Pflanzen");
  klicke("beenden");
  EXPECT_TRUE(offen());
  form->close();
  EXPECT_FALSE(offen());
}

TEST_F(TVPflanzenStandorte, HilfeÖffnetDasThemaDesFormulars) {
  QString thema;
  Formular::setHilfe([&](QWidget*, const QString& t) { thema = t; });
  öffne();
  klicke("hilfe");
  Formular::setHilfe(nullptr);
  EXPECT_EQ(thema, "TV_Pflanzen_Standorte");
}

TEST_F(TVPflanzenStandorte, OhneStandortZurückZumErstenReiter) {
  öffne();
  boxen.hinweis(
      "Bevor die Pflanzen für die Standorte eingegeben werden, muß mindestens ein Standort "
      "eingetragen werden. Deshalb wird jetzt das Register für die Standorte geöffnet.");
  zumReiter(1);
  EXPECT_EQ(reiter(), 0);
}

// ---- sites ----

TEST_F(StandorteReiter, LeereFormZeigtDieVorgaben) {
  standort("Hof");
  öffne();
  const QStringList vorgaben = {"", "", "J", "", "J", "0", "", "10", "0,00", "", ""};
  for (int i = 0; i < vorgaben.size(); ++i)
    EXPECT_EQ(inhalt(QString("sevtstandort_%1").arg(i)), vorgaben[i].toStdString()) << i;
  EXPECT_EQ(feld("sevtstandort_1")->accessibleName(), "Zusatz-Orthinweis");
}

TEST_F(StandorteReiter, TrachtzeitWirdNurGezeigt) {
  öffne();
  EXPECT_TRUE(feld("Trachtzeit von")->isReadOnly());
  EXPECT_TRUE(feld("Trachtzeit bis")->isReadOnly());
  bool hinweis = false;
  for (const auto* label : form->findChildren<QLabel*>())
    hinweis = hinweis ||
              label->text() ==
                  "Folgende Werte werden über die Pflanzen-Eintragungen zum Standort automatisch "
                  "ermittelt:";
  EXPECT_TRUE(hinweis);
}

TEST_F(StandorteReiter, NeuSchreibtAlleFelderUndDenPlatzAufDerKarte) {
  öffne();
  tippe("Standort", "Hof");
  tippe("Zusatz-Orthinweis", "hinter der Scheune");
  tippe("Wintertauglich", "N");
  tippe("Klima", "mild");
  tippe("Wasserentfernung m", "250");
  tippe("Flugrichtung", "Nordost");
  tippe("Max. Anzahl Völker", "25");
  tippe("Standortprämie je Volk", "3,50");
  klicke("neustandort_0");
  const Daten d = db().Lesen("select * from Standorte");
  ASSERT_EQ(d->zeilen(), 1);
  const auto zelle = [&](const char* name) {
    return d->anzeige(0, d->spaltenNummer(QString(name))).toStdString();
  };
  EXPECT_EQ(zelle("Standort"), "Hof");
  EXPECT_EQ(zelle("Zusatzortshinweis"), "hinter der Scheune");
  EXPECT_EQ(zelle("Wintertauglich"), "N");
  EXPECT_EQ(zelle("Klima"), "mild");
  EXPECT_EQ(zelle("Pkw_anfahrbar"), "J");
  EXPECT_EQ(zelle("Entfernung_Wasser_m"), "250");
  EXPECT_EQ(zelle("Flugrichtung"), "Nordost");
  EXPECT_EQ(zelle("Max_Völker"), "25");
  EXPECT_EQ(zelle("Standortprämie_Volk"), "3,50");
  EXPECT_EQ(zelle("Trachtzeit_von"), "");
  EXPECT_EQ(zelle("PTop"), "250");
  EXPECT_EQ(zelle("PLeft"), "250");
  EXPECT_EQ(liste("listandorte")->aktuelleZeile(), 0);
  EXPECT_TRUE(feld("Standort")->hasFocus());
  EXPECT_EQ(feld("Klima")->liste(), QStringList("mild"));
}

TEST_F(StandorteReiter, ZeileWählenKopiertSieInDieEingaben) {
  standort("Heide");
  db().Execute(
      "update Standorte set Zusatzortshinweis = 'am Moor', Wintertauglich = 'N', Klima = 'rau', "
      "Pkw_anfahrbar = 'N', Entfernung_Wasser_m = 40, Flugrichtung = 'Ost', Max_Völker = 7, "
      "Standortprämie_Volk = 2.5, Trachtzeit_von = ?, Trachtzeit_bis = ?",
      {QDate(2003, 8, 1), QDate(2003, 9, 15)});
  standort("Hof");
  öffne();
  wähle("listandorte", 0);
  const QStringList erwartet = {"Heide", "am Moor", "N",    "rau",        "N",         "40",
                                "Ost",   "7",       "2,50", "01.08.2003", "15.09.2003"};
  for (int i = 0; i < erwartet.size(); ++i)
    EXPECT_EQ(inhalt(QString("sevtstandort_%1").arg(i)), erwartet[i].toStdString()) << i;
  QTest::keyClick(liste("listandorte"), Qt::Key_Down);
  EXPECT_EQ(inhalt("Standort"), "Hof");
}

TEST_F(StandorteReiter, OhneNamenWirdNichtGespeichert) {
  öffne();
  boxen.hinweis(Weil + "...der Standort angegeben werden muß.");
  klicke("neustandort_0");
  EXPECT_EQ(anzahl("Standorte"), 0);
}

TEST_F(StandorteReiter, DerNameEinesAnderenWirdAbgelehnt) {
  standort("Heide");
  standort("Hof");
  öffne();
  wähle("listandorte", 1);
  tippe("Standort", "Heide");
  boxen.hinweis("Der Standort existiert bereits!").hinweis("Der Standort existiert bereits!");
  klicke("neustandort_1");
  tippe("Zusatz-Orthinweis", "anderer Hinweis");  // the remark plays no part
  klicke("neustandort_0");
  EXPECT_EQ(anzahl("Standorte", "Standort = 'Heide'"), 1);
  EXPECT_EQ(anzahl("Standorte"), 2);
}

TEST_F(StandorteReiter, DieselbeZeileUnverändertWirdAngenommen) {
  standort("Hof");
  öffne();
  wähle("listandorte", 0);
  klicke("neustandort_1");
  EXPECT_EQ(anzahl("Standorte", "Standort = 'Hof'"), 1);
}

TEST_F(StandorteReiter, UmbenennenLässtKartenplatzUndVölkerWieSieSind) {
  standort("Hof");
  db().Execute("update Standorte set PTop = 12, PLeft = 34, Trachtzeit_von = ?",
               {QDate(2003, 8, 1)});
  const qint64 volk = neuesVolk("1", "X", "Hof");
  wanderung(volk, QDate(2006, 5, 1), "Hof");
  öffne();
  wähle("listandorte", 0);
  tippe("Standort", "Garten");
  klicke("neustandort_1");
  EXPECT_EQ(wert("select PTop from Standorte where Standort = 'Garten'").toInt(), 12);
  EXPECT_EQ(wert("select PLeft from Standorte where Standort = 'Garten'").toInt(), 34);
  EXPECT_EQ(von("Garten").toDate(), QDate(2003, 8, 1));
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Hof");
  EXPECT_EQ(wert("select Standort from Wanderung").toString(), "Hof");
}

TEST_F(StandorteReiter, NeuAusEinerGewähltenZeileÜbernimmtTrachtzeitUndKartenplatzNicht) {
  standort("Hof");
  db().Execute("update Standorte set PTop = 12, PLeft = 34, Trachtzeit_von = ?",
               {QDate(2003, 8, 1)});
  öffne();
  wähle("listandorte", 0);
  EXPECT_EQ(inhalt("Trachtzeit von"), "01.08.2003");
  tippe("Standort", "Wald");
  klicke("neustandort_0");
  EXPECT_TRUE(von("Wald").isNull());
  EXPECT_EQ(wert("select PTop from Standorte where Standort = 'Wald'").toInt(), 250);
  EXPECT_EQ(wert("select PLeft from Standorte where Standort = 'Wald'").toInt(), 250);
  EXPECT_EQ(inhalt("Trachtzeit von"), "");
}

TEST_F(StandorteReiter, LöschenLässtDiePflanzenZeilenStehen) {
  const qint64 heide = standort("Heide");
  standort("Hof");
  tracht(heide, "Raps", 50);
  öffne();
  wähle("listandorte", 0);
  klicke("lschstandort");
  EXPECT_EQ(anzahl("Standorte", "Standort = 'Heide'"), 0);
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 1);
}

TEST_F(StandorteReiter, GrenzenBeimTippen) {
  öffne();
  tippe("Wasserentfernung m", "10000");
  EXPECT_EQ(inhalt("Wasserentfernung m"), "1000");
  tippe("Max. Anzahl Völker", "1000");
  EXPECT_EQ(inhalt("Max. Anzahl Völker"), "100");
  tippe("Wintertauglich", "x");
  EXPECT_EQ(inhalt("Wintertauglich"), "J");
  tippe("Flugrichtung", "Nordnordost");
  EXPECT_EQ(inhalt("Flugrichtung"), "Nordnordos");
}

}  // namespace
