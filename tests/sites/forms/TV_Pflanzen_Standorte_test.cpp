#include "sites/forms/TV_Pflanzen_Standorte.h"

#include <QGroupBox>
#include <QPushButton>

#include "sites/Standorte.h"
#include "sites/forms/Orteprobe.h"

namespace {

const QString Weil = "Die Daten werden nicht gespeichert, weil...\r\n\r\n";
const QString LoeschFrage =
    "Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?";

class TVPflanzenStandorte : public Orteprobe {};
class StandorteReiter : public Orteprobe {};
class PflanzenReiter : public Orteprobe {};
class JeStandortReiter : public Orteprobe {
 protected:
  void SetUp() override {
    Orteprobe::SetUp();
    hof = standort("Hof");
    heide = standort("Heide");
    pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
    pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  }
  // The tab, with the site chosen; "Heide" is row 0, "Hof" row 1.
  void zumStandort(int zeile) {
    zumReiter(1);
    waehle("lijeort", zeile);
  }
  qint64 hof = 0;
  qint64 heide = 0;
};

// ---- the form ----

TEST_F(TVPflanzenStandorte, TitelReiterUndKnoepfe) {
  oeffne();
  EXPECT_EQ(form->objectName(), "TV_Pflanzen_Standorte");
  EXPECT_EQ(form->windowTitle(), "Pflanzen und Standorte (Wanderung)");
  auto* reiter = kind<QTabWidget>("reiter");
  EXPECT_EQ(reiter->tabText(0), "Standorte");
  EXPECT_EQ(reiter->tabText(1), "Pflanzen je Standort");
  EXPECT_EQ(reiter->tabText(2), "Pflanzen");
  const QList<std::pair<QString, QString>> knoepfe = {
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
  for (const auto& [name, text] : knoepfe) EXPECT_EQ(kind<QPushButton>(name)->text(), text);
  EXPECT_FALSE(kind<QPushButton>("comstandortlisten")->isEnabled());
}

TEST_F(TVPflanzenStandorte, FormModusWaehltDenReiter) {
  oeffne("2");
  EXPECT_EQ(reiter(), 2);
  EXPECT_TRUE(feld("sevt_0")->hasFocus());
  oeffne("0");
  EXPECT_EQ(reiter(), 0);
  EXPECT_TRUE(feld("sevtstandort_0")->hasFocus());
  oeffne("x");
  EXPECT_EQ(reiter(), 0);
}

TEST_F(TVPflanzenStandorte, DieselbeInstanzFolgtDemNaechstenModus) {
  oeffne("2");
  TZ_Variablen::FormModus = "0";
  form->laden();
  EXPECT_EQ(reiter(), 0);
}

TEST_F(TVPflanzenStandorte, EingabetasteDruecktNeuDesReiters) {
  oeffne();
  EXPECT_TRUE(kind<QPushButton>("neustandort_0")->isDefault());
  zumReiter(2);
  EXPECT_TRUE(kind<QPushButton>("neu_0")->isDefault());
  tippePflanze("Raps", "20.04.2003", "20.05.2003");
  QTest::keyClick(feld("sevt_2"), Qt::Key_Return);
  EXPECT_EQ(anzahl("Pflanzen"), 1);
  EXPECT_TRUE(offen());
}

TEST_F(TVPflanzenStandorte, SchliessenErmitteltDieTrachtzeit) {
  const qint64 hof = standort("Hof");
  standort("Leer");
  pflanze("Krokus", QDate(2003, 3, 1), QDate(2003, 4, 15));
  pflanze("Robinie", QDate(2003, 5, 10), QDate(2003, 6, 30));
  tracht(hof, "Krokus", 50);
  tracht(hof, "Robinie", 50);
  db().Execute("update Standorte set Trachtzeit_von = ? where Standort = 'Leer'",
               {QDate(2003, 1, 1)});
  oeffne();
  klicke("beenden");
  EXPECT_FALSE(offen());
  EXPECT_EQ(von("Hof").toDate(), QDate(2003, 3, 1));
  EXPECT_EQ(bis("Hof").toDate(), QDate(2003, 6, 30));
  EXPECT_TRUE(von("Leer").isNull());
}

TEST_F(TVPflanzenStandorte, EscUndDasSchliessfeldErmittelnNichts) {
  const qint64 hof = standort("Hof");
  pflanze("Krokus", QDate(2003, 3, 1), QDate(2003, 4, 15));
  tracht(hof, "Krokus", 50);
  oeffne();
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_FALSE(offen());
  oeffne();
  form->close();
  EXPECT_TRUE(von("Hof").isNull());
}

TEST_F(TVPflanzenStandorte, HilfeOeffnetDasThemaDesFormulars) {
  QString thema;
  Formular::setHilfe([&](QWidget*, const QString& t) { thema = t; });
  oeffne();
  klicke("hilfe");
  Formular::setHilfe(nullptr);
  EXPECT_EQ(thema, "TV_Pflanzen_Standorte");
}

// ---- sites ----

TEST_F(StandorteReiter, LeereFormZeigtDieVorgaben) {
  standort("Hof");
  oeffne();
  const QStringList vorgaben = {"", "", "J", "", "J", "0", "", "10", "0,00", "", ""};
  for (int i = 0; i < vorgaben.size(); ++i)
    EXPECT_EQ(inhalt(QString("sevtstandort_%1").arg(i)), vorgaben[i].toStdString()) << i;
  EXPECT_EQ(feld("sevtstandort_1")->accessibleName(), "Zusatz-Orthinweis");
}

TEST_F(StandorteReiter, TrachtzeitWirdNurGezeigt) {
  oeffne();
  EXPECT_TRUE(feld("sevtstandort_9")->isReadOnly());
  EXPECT_TRUE(feld("sevtstandort_10")->isReadOnly());
  bool hinweis = false;
  for (const auto* label : form->findChildren<QLabel*>())
    hinweis = hinweis ||
              label->text() ==
                  "Folgende Werte werden über die Pflanzen-Eintragungen zum Standort automatisch "
                  "ermittelt:";
  EXPECT_TRUE(hinweis);
}

TEST_F(StandorteReiter, NeuSchreibtAlleFelderUndDenPlatzAufDerKarte) {
  oeffne();
  tippe("sevtstandort_0", "Hof");
  tippe("sevtstandort_1", "hinter der Scheune");
  tippe("sevtstandort_2", "N");
  tippe("sevtstandort_3", "mild");
  tippe("sevtstandort_5", "250");
  tippe("sevtstandort_6", "Nordost");
  tippe("sevtstandort_7", "25");
  tippe("sevtstandort_8", "3,50");
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
  EXPECT_TRUE(feld("sevtstandort_0")->hasFocus());
  EXPECT_EQ(feld("sevtstandort_3")->liste(), QStringList("mild"));
}

TEST_F(StandorteReiter, ZeileWaehlenKopiertSieInDieEingaben) {
  standort("Heide");
  db().Execute(
      "update Standorte set Zusatzortshinweis = 'am Moor', Wintertauglich = 'N', Klima = 'rau', "
      "Pkw_anfahrbar = 'N', Entfernung_Wasser_m = 40, Flugrichtung = 'Ost', Max_Völker = 7, "
      "Standortprämie_Volk = 2.5, Trachtzeit_von = ?, Trachtzeit_bis = ?",
      {QDate(2003, 8, 1), QDate(2003, 9, 15)});
  standort("Hof");
  oeffne();
  waehle("listandorte", 0);
  const QStringList erwartet = {"Heide", "am Moor", "N",    "rau",        "N",         "40",
                                "Ost",   "7",       "2,50", "01.08.2003", "15.09.2003"};
  for (int i = 0; i < erwartet.size(); ++i)
    EXPECT_EQ(inhalt(QString("sevtstandort_%1").arg(i)), erwartet[i].toStdString()) << i;
  QTest::keyClick(liste("listandorte"), Qt::Key_Down);
  EXPECT_EQ(inhalt("sevtstandort_0"), "Hof");
}

TEST_F(StandorteReiter, OhneNamenWirdNichtGespeichert) {
  oeffne();
  boxen.hinweis(Weil + "...der Standort angegeben werden muß.");
  klicke("neustandort_0");
  EXPECT_EQ(anzahl("Standorte"), 0);
}

TEST_F(StandorteReiter, AendernOhneZeileSagtWasFehlt) {
  standort("Hof");
  oeffne();
  tippe("sevtstandort_0", "Wald");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  klicke("neustandort_1");
  EXPECT_EQ(anzahl("Standorte", "Standort = 'Wald'"), 0);
}

TEST_F(StandorteReiter, DerNameEinesAnderenWirdAbgelehnt) {
  standort("Heide");
  standort("Hof");
  oeffne();
  waehle("listandorte", 1);
  tippe("sevtstandort_0", "Heide");
  boxen.hinweis("Der Standort existiert bereits!").hinweis("Der Standort existiert bereits!");
  klicke("neustandort_1");
  tippe("sevtstandort_1", "anderer Hinweis");  // the remark plays no part
  klicke("neustandort_0");
  EXPECT_EQ(anzahl("Standorte", "Standort = 'Heide'"), 1);
  EXPECT_EQ(anzahl("Standorte"), 2);
}

TEST_F(StandorteReiter, DieselbeZeileUnveraendertWirdAngenommen) {
  standort("Hof");
  oeffne();
  waehle("listandorte", 0);
  klicke("neustandort_1");
  EXPECT_EQ(anzahl("Standorte", "Standort = 'Hof'"), 1);
}

TEST_F(StandorteReiter, UmbenennenLaesstKartenplatzUndVoelkerWieSieSind) {
  standort("Hof");
  db().Execute("update Standorte set PTop = 12, PLeft = 34, Trachtzeit_von = ?",
               {QDate(2003, 8, 1)});
  const qint64 volk = neuesVolk("1", "X", "Hof");
  wanderung(volk, QDate(2006, 5, 1), "Hof");
  oeffne();
  waehle("listandorte", 0);
  tippe("sevtstandort_0", "Garten");
  klicke("neustandort_1");
  EXPECT_EQ(wert("select PTop from Standorte where Standort = 'Garten'").toInt(), 12);
  EXPECT_EQ(wert("select PLeft from Standorte where Standort = 'Garten'").toInt(), 34);
  EXPECT_EQ(von("Garten").toDate(), QDate(2003, 8, 1));
  EXPECT_EQ(wert("select Standort from Bienenvolk").toString(), "Hof");
  EXPECT_EQ(wert("select Standort from Wanderung").toString(), "Hof");
}

TEST_F(StandorteReiter, LoeschenFragtUndLaesstDiePflanzenZeilenStehen) {
  const qint64 heide = standort("Heide");
  standort("Hof");
  tracht(heide, "Raps", 50);
  TZ_Variablen::EinstellungenZahl[55] = 1;
  oeffne();
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("lschstandort");
  waehle("listandorte", 0);
  boxen.frage(LoeschFrage, false);
  klicke("lschstandort");
  EXPECT_EQ(anzahl("Standorte"), 2);
  boxen.frage(LoeschFrage, true);
  klicke("lschstandort");
  EXPECT_EQ(anzahl("Standorte", "Standort = 'Heide'"), 0);
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 1);
  EXPECT_EQ(inhalt("sevtstandort_0"), "Hof");
  EXPECT_EQ(liste("listandorte")->aktuelleZeile(), 0);
}

TEST_F(StandorteReiter, DieLetzteZeileGeloeschtZeigtDieLeereForm) {
  standort("Hof");
  oeffne();
  waehle("listandorte", 0);
  klicke("lschstandort");
  EXPECT_EQ(inhalt("sevtstandort_0"), "");
  EXPECT_EQ(inhalt("sevtstandort_7"), "10");
}

TEST_F(StandorteReiter, GrenzenBeimTippen) {
  oeffne();
  tippe("sevtstandort_5", "10000");
  EXPECT_EQ(inhalt("sevtstandort_5"), "1000");
  tippe("sevtstandort_7", "1000");
  EXPECT_EQ(inhalt("sevtstandort_7"), "100");
  tippe("sevtstandort_2", "x");
  EXPECT_EQ(inhalt("sevtstandort_2"), "J");
  tippe("sevtstandort_6", "Nordnordost");
  EXPECT_EQ(inhalt("sevtstandort_6"), "Nordnordos");
}

// ---- plants ----

TEST_F(PflanzenReiter, NeuSchreibtUndFindetDieZeileWieder) {
  oeffne("2");
  EXPECT_EQ(inhalt("sevt_3"), "5");
  EXPECT_EQ(inhalt("sevt_4"), "5");
  tippePflanze("Raps", "20.4.03", "20.05.2003");
  tippe("sevt_3", "9");
  klicke("neu_0");
  EXPECT_EQ(wert("select Weidezeit_von from Pflanzen").toDate(), QDate(2003, 4, 20));
  EXPECT_EQ(wert("select Nektarstufe from Pflanzen").toInt(), 9);
  EXPECT_EQ(wert("select Pollenstufe from Pflanzen").toInt(), 5);
  EXPECT_EQ(liste("lipflanzen")->aktuelleZeile(), 0);
  EXPECT_TRUE(feld("sevt_0")->hasFocus());
  EXPECT_EQ(feld("sevt_0")->liste(), QStringList("Raps"));
}

TEST_F(PflanzenReiter, AlleGruendeInEinerMeldung) {
  oeffne("2");
  boxen.hinweis(Weil +
                "...die Pflanze angegeben werden muß.\r\n"
                "...die Weidezeit von...bis korrekt angegeben werden muß.");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Pflanzen"), 0);
}

TEST_F(PflanzenReiter, AendernOhneZeileUndDoppelterName) {
  pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  oeffne("2");
  tippePflanze("Linde", "10.06.2003", "10.07.2003");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!")
      .hinweis("Die Pflanze existiert bereits!")
      .hinweis("Die Pflanze existiert bereits!");
  klicke("neu_1");
  klicke("neu_0");
  waehle("lipflanzen", 1);
  tippe("sevt_0", "Linde");
  klicke("neu_1");
  EXPECT_EQ(anzahl("Pflanzen", "Pflanze = 'Linde'"), 1);
}

TEST_F(PflanzenReiter, UmbenennenUndLoeschenLassenDieStandortZeilenStehen) {
  const qint64 hof = standort("Hof");
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  tracht(hof, "Raps", 50);
  oeffne("2");
  waehle("lipflanzen", 0);
  EXPECT_EQ(inhalt("sevt_1"), "20.04.2003");
  EXPECT_EQ(inhalt("sevt_3"), "3");
  EXPECT_EQ(inhalt("sevt_4"), "4");
  tippe("sevt_0", "Winterraps");
  klicke("neu_1");
  EXPECT_EQ(wert("select Pflanze from Pflanzen").toString(), "Winterraps");
  EXPECT_EQ(wert("select Pflanze from Standorte_Pflanzen").toString(), "Raps");
  klicke("löschen");
  EXPECT_EQ(anzahl("Pflanzen"), 0);
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 1);
}

TEST_F(PflanzenReiter, StufenBisZehn) {
  oeffne("2");
  tippe("sevt_3", "11");
  EXPECT_EQ(inhalt("sevt_3"), "1");
  tippe("sevt_4", "10");
  EXPECT_EQ(inhalt("sevt_4"), "10");
}

TEST_F(PflanzenReiter, EinJahrVorUndZurueckZeigtDieNeuenDaten) {
  pflanze("Linde", QDate(2003, 6, 10), QDate(2003, 7, 10));
  pflanze("Raps", QDate(2003, 4, 20), QDate(2003, 5, 20));
  oeffne("2");
  waehle("lipflanzen", 1);
  klicke("aufwaerts_0");
  EXPECT_EQ(liste("lipflanzen")->zelle(0, "Weidezeit_von"), "10.06.2004");
  EXPECT_EQ(liste("lipflanzen")->aktuelleZeile(), 1);
  EXPECT_EQ(inhalt("sevt_1"), "20.04.2004");
  klicke("aufwaerts_1");
  klicke("aufwaerts_1");
  EXPECT_EQ(inhalt("sevt_2"), "20.05.2002");
}

TEST_F(PflanzenReiter, NeunundzwanzigsterFebruarWirdGesagtUndDieListeZeigtWasGetanIst) {
  pflanze("Krokus", QDate(2004, 3, 1), QDate(2004, 4, 1));
  pflanze("Hasel", QDate(2004, 2, 10), QDate(2004, 2, 29));
  oeffne("2");
  boxen.hinweisMit("29.02.2005");
  klicke("aufwaerts_0");
  EXPECT_EQ(liste("lipflanzen")->zelle(0, "Weidezeit_bis"), "29.02.2004");
  EXPECT_EQ(liste("lipflanzen")->zelle(1, "Weidezeit_von"), "01.03.2005");
  EXPECT_TRUE(offen());
}

// ---- plants at a site ----

TEST_F(TVPflanzenStandorte, OhneStandortZurueckZumErstenReiter) {
  oeffne();
  boxen.hinweis(
      "Bevor die Pflanzen für die Standorte eingegeben werden, muß mindestens ein Standort "
      "eingetragen werden. Deshalb wird jetzt das Register für die Standorte geöffnet.");
  zumReiter(1);
  EXPECT_EQ(reiter(), 0);
}

TEST_F(JeStandortReiter, ZeigtDiePflanzenDesGewaehltenStandorts) {
  tracht(hof, "Raps", 60);
  tracht(hof, "Linde", 25);
  oeffne();
  zumStandort(1);
  EXPECT_EQ(liste("lijeort")->zelle(1, "Standort"), "Hof");
  ASSERT_EQ(liste("lijepflanze")->zeilen(), 2);
  EXPECT_EQ(liste("lijepflanze")->zelle(0, "Pflanze"), "Linde");
  EXPECT_EQ(text("bezproz"), "85");
  waehle("lijeort", 0);
  EXPECT_EQ(liste("lijepflanze")->zeilen(), 0);
  EXPECT_EQ(text("bezproz"), "0");
  EXPECT_EQ(feld("sevtje_0")->liste(), QStringList({"Linde", "Raps"}));
}

TEST_F(JeStandortReiter, BeginntMitDemStandortDesErstenReitersUndNimmtIhnMit) {
  oeffne();
  waehle("listandorte", 1);
  zumReiter(1);
  EXPECT_EQ(liste("lijeort")->aktuelleZeile(), 1);
  waehle("lijeort", 0);
  EXPECT_EQ(liste("listandorte")->aktuelleZeile(), 0);
  zumReiter(0);
  EXPECT_EQ(inhalt("sevtstandort_0"), "Heide");
}

TEST_F(JeStandortReiter, AuchNachSortierenGehoertDieZeileZumGewaehltenStandort) {
  tracht(heide, "Raps", 60);
  oeffne();
  liste("listandorte")->sortiere(0, Qt::DescendingOrder);
  zumStandort(0);
  EXPECT_EQ(liste("lijeort")->zelle(0, "Standort"), "Heide");
  EXPECT_EQ(liste("lijepflanze")->zeilen(), 1);
  tippeTracht("Linde", "300", "10");
  klicke("neuje_0");
  EXPECT_EQ(anzahl("Standorte_Pflanzen", QString("Standort_Kennung = %1").arg(heide)), 2);
}

TEST_F(JeStandortReiter, NeuSchreibtMitDerKennungDesStandorts) {
  oeffne();
  zumStandort(1);
  tippeTracht("Raps", "500", "60");
  klicke("neuje_0");
  const Daten d = db().Lesen(
      "select Pflanze, Entfernung_m, Proz_Anteil, Standort_Kennung "
      "from Standorte_Pflanzen");
  ASSERT_EQ(d->zeilen(), 1);
  EXPECT_EQ(d->anzeige(0, 0), "Raps");
  EXPECT_EQ(d->ganzzahl(0, 1), 500);
  EXPECT_EQ(d->ganzzahl(0, 2), 60);
  EXPECT_EQ(d->ganzzahl(0, 3), hof);
  EXPECT_EQ(text("bezproz"), "60");
}

TEST_F(JeStandortReiter, SechzigUndVierzigGehenEinProzentMehrNicht) {
  oeffne();
  zumStandort(1);
  tippeTracht("Raps", "500", "60");
  klicke("neuje_0");
  tippeTracht("Linde", "500", "40");
  klicke("neuje_0");
  EXPECT_EQ(text("bezproz"), "100");
  tippeTracht("Klee", "500", "1");
  boxen.hinweis(Weil +
                "...der prozentuale Anteil bei den Pflanzen am Standort nicht über 100 sein darf.");
  klicke("neuje_0");
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 2);
}

TEST_F(JeStandortReiter, AusSechzigWirdNeunundfuenfzigAberNichtEinundsechzig) {
  tracht(hof, "Linde", 40);
  tracht(hof, "Raps", 60);
  oeffne();
  zumStandort(1);
  waehle("lijepflanze", 1);
  EXPECT_EQ(inhalt("sevtje_0"), "Raps");
  EXPECT_EQ(inhalt("sevtje_1"), "100");
  tippe("sevtje_2", "61");
  boxen.hinweis(Weil +
                "...der prozentuale Anteil bei den Pflanzen am Standort nicht über 100 sein darf.");
  klicke("neuje_1");
  EXPECT_EQ(wert("select Proz_Anteil from Standorte_Pflanzen where Pflanze = 'Raps'").toInt(), 60);
  tippe("sevtje_2", "59");
  klicke("neuje_1");
  EXPECT_EQ(wert("select Proz_Anteil from Standorte_Pflanzen where Pflanze = 'Raps'").toInt(), 59);
  EXPECT_EQ(text("bezproz"), "99");
}

TEST_F(JeStandortReiter, AlleGruendeInIhrerFolge) {
  oeffne();
  zumStandort(1);
  boxen.hinweis(Weil +
                "...die Pflanze angegeben werden muß.\r\n"
                "...die Entfernung muß größer als 0 Meter sein.\r\n"
                "...der prozentuale Anteil müß größer als 0 % sein.");
  klicke("neuje_0");
  tippeTracht("Raps", "500", "60");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz (die Pflanze), den Sie ändern möchten!");
  klicke("neuje_1");
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 0);
}

TEST_F(JeStandortReiter, UnbekanntePflanzeWirdGespeichertUndAendertDieTrachtzeitNicht) {
  oeffne();
  zumStandort(1);
  tippeTracht("Wunderkraut", "10", "5");
  klicke("neuje_0");
  EXPECT_EQ(anzahl("Standorte_Pflanzen", "Pflanze = 'Wunderkraut'"), 1);
  klicke("beenden");
  EXPECT_TRUE(von("Hof").isNull());
  EXPECT_TRUE(bis("Hof").isNull());
}

TEST_F(JeStandortReiter, EinePflanzeDarfMehrmalsAnEinemStandortStehen) {
  oeffne();
  zumStandort(1);
  tippeTracht("Raps", "500", "10");
  klicke("neuje_0");
  klicke("neuje_0");
  EXPECT_EQ(anzahl("Standorte_Pflanzen", "Pflanze = 'Raps'"), 2);
  EXPECT_EQ(text("bezproz"), "20");
}

TEST_F(JeStandortReiter, LoeschenZeigtDieSummeNeu) {
  tracht(hof, "Linde", 40);
  tracht(hof, "Raps", 60);
  TZ_Variablen::EinstellungenZahl[55] = 1;
  oeffne();
  zumStandort(1);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("lschje");
  waehle("lijepflanze", 0);
  boxen.frage(LoeschFrage, true);
  klicke("lschje");
  EXPECT_EQ(anzahl("Standorte_Pflanzen"), 1);
  EXPECT_EQ(text("bezproz"), "60");
  EXPECT_EQ(inhalt("sevtje_0"), "Raps");
}

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
