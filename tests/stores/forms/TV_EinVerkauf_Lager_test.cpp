#include "stores/forms/TV_EinVerkauf_Lager.h"

#include <QGroupBox>

#include "platform/controls/Formular.h"
#include "platform/database/Verbindung.h"
#include "stores/forms/Handelsprobe.h"

namespace {

const QString Weil = "Die Daten werden nicht gespeichert, weil...\r\n\r\n";
const QString LoeschFrage =
    "Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?";
const QString ZuerstLoeschen = "Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.";

class TVEinVerkaufLager : public Handelsprobe {};
class EinkaufReiter : public Handelsprobe {};
class VerkaufReiter : public Handelsprobe {};
class LagerReiter : public Handelsprobe {};
class Handelssummen : public Handelsprobe {};
class Handelsfehler : public Handelsprobe {};

// ---- the form ----

TEST_F(TVEinVerkaufLager, TitelReiterBloeckeUndKnoepfe) {
  oeffne(Einkauf);
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

TEST_F(TVEinVerkaufLager, FormModusWaehltDenReiter) {
  for (const int nummer : {0, 1, 2}) {
    oeffne(nummer);
    EXPECT_EQ(reiter(), nummer);
  }
  EXPECT_TRUE(feld("sevthonig_0")->hasFocus());
  for (const char* modus : {"", "x", "3", "-1"}) {
    oeffneMit(modus);
    EXPECT_EQ(reiter(), 0) << modus;
  }
}

TEST_F(TVEinVerkaufLager, DieListenZeigenAlleSpaltenUndMerkenIhreBreiten) {
  kaufe("Gläser", "1");
  verkaufe("Honig", "1");
  oeffne(Einkauf);
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
  EXPECT_EQ(liste("lihonig")->ueberschrift(2), "Eingang (kg)");  // headed as the inputs
  EXPECT_EQ(liste("lihonig")->ueberschrift(7), "EVK_ID");
  const QString ablage = m_ordner.path() + "/TOVA2.LAY";
  Fensterablage::setDatei(ablage);
  for (const auto& [nummer, name] : {std::pair(0, "lieinkauf"), {1, "liverkauf"}, {2, "lihonig"}}) {
    oeffne(nummer);
    liste(name)->setColumnWidth(1, 200 + nummer);
    oeffne(nummer);
    EXPECT_EQ(liste(name)->columnWidth(1), 200 + nummer) << name;
  }
  form.reset();
  Fensterablage::setDatei({});
}

TEST_F(TVEinVerkaufLager, BeimOeffnenVorgabenUndDieLetzteZeileAktuell) {
  verkaufe("Honig", "2");
  db().Execute("update Verkauf set Datum = ?", {QDate(2006, 8, 1)});
  verkaufe("Wachs", "3");
  db().Execute("insert into Einkauf(Datum, Produkt) values (?, 'Gläser')", {QDate(2006, 1, 1)});
  oeffne(Verkauf);
  EXPECT_EQ(inhalte("einkauf"), "20.06.2006||||0||0|");
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006||||0||0|");
  EXPECT_EQ(inhalte("honig"), "20.06.2006||0|0|||");
  EXPECT_EQ(liste("liverkauf")->aktuelleZeile(), 1);  // the latest by date, not by ID
  EXPECT_EQ(liste("liverkauf")->zelle(1, "Produkt"), "Honig");
  EXPECT_EQ(liste("lieinkauf")->aktuelleZeile(), 0);
  EXPECT_EQ(liste("lihonig")->aktuelleZeile(), 0);
}

TEST_F(TVEinVerkaufLager, DieselbeInstanzBeginntJedesMalNeu) {
  oeffne(Verkauf);
  tippeVerkauf("Honig", "3");
  klicke("neuverkauf_0");
  klicke("comalle");
  TZ_Variablen::FormModus = "0";
  form->laden();
  EXPECT_EQ(reiter(), 0);
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006||||0||0|");
  EXPECT_EQ(liste("ligroup")->zeilen(), 0);
}

TEST_F(TVEinVerkaufLager, WaehrendEineListeLaedtSindDieKnoepfeGesperrt) {
  oeffne(Verkauf);
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

TEST_F(TVEinVerkaufLager, EingabetasteDruecktNeuDesReiters) {
  oeffne(Einkauf);
  EXPECT_TRUE(kind<QPushButton>("neueinkauf_0")->isDefault());
  zumReiter(Verkauf);
  EXPECT_TRUE(kind<QPushButton>("neuverkauf_0")->isDefault());
  zumReiter(Lager);
  EXPECT_TRUE(kind<QPushButton>("neuhonig_0")->isDefault());
  tippeLager("Raps", "5", "0");
  QTest::keyClick(feld("sevthonig_3"), Qt::Key_Return);
  EXPECT_EQ(anzahl("Honiglager"), 1);
  EXPECT_TRUE(offen());
}

TEST_F(TVEinVerkaufLager, SchliessenUndEscSchliessen) {
  oeffne(Einkauf);
  klicke("beenden");
  EXPECT_FALSE(offen());
  oeffne(Einkauf);
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_FALSE(offen());
}

TEST_F(TVEinVerkaufLager, HilfeOeffnetDasThemaDesFormulars) {
  QString thema;
  Formular::setHilfe([&](QWidget*, const QString& t) { thema = t; });
  oeffne(Einkauf);
  klicke("hilfe");
  Formular::setHilfe(nullptr);
  EXPECT_EQ(thema, "TV_EinVerkauf_Lager");
}

// ---- purchases ----

TEST_F(EinkaufReiter, NeuSchreibtAllesUndFindetDieZeileWieder) {
  kaufe("Zucker", "50");
  db().Execute("update Einkauf set Datum = ?", {QDate(2006, 12, 24)});
  oeffne(Einkauf);
  tippe("sevteinkauf_0", "1.5.06");
  tippe("sevteinkauf_1", "Gläser");
  tippe("sevteinkauf_2", "500 g");
  tippe("sevteinkauf_3", "Glashütte");
  tippe("sevteinkauf_4", "1.239");  // the point becomes the comma
  tippe("sevteinkauf_5", "St");
  tippe("sevteinkauf_6", "24,5");
  tippe("sevteinkauf_7", "B7");
  klicke("neueinkauf_0");
  EXPECT_EQ(zeilen("select Datum, Produkt, Qualität, Lieferant, Menge, Einheit, Ausgaben, Charge "
                   "from Einkauf where Produkt = 'Gläser'"),
            QStringList("01.05.2006|Gläser|500 g|Glashütte|1,239|St|24,50|B7"));
  EXPECT_EQ(liste("lieinkauf")->aktuelleZeile(), 0);
  EXPECT_EQ(inhalte("einkauf"), "01.05.2006|Gläser|500 g|Glashütte|1,239|St|24,50|B7");
  EXPECT_TRUE(feld("sevteinkauf_0")->hasFocus());
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

TEST_F(EinkaufReiter, DiePicklistenKommenNachDemSpeichernNeu) {
  lager("Raps", 5, 0, "C1");
  oeffne(Einkauf);
  EXPECT_EQ(feld("sevteinkauf_1")->liste(), QStringList());
  EXPECT_EQ(feld("sevteinkauf_5")->liste(), QStringList({"kg", "g", "l", "ml", "St"}));
  EXPECT_EQ(feld("sevteinkauf_7")->liste(), QStringList("C1"));
  tippeEinkauf("Honig", "5", "Meier");
  tippe("sevteinkauf_2", "I");
  tippe("sevteinkauf_5", "Fl");  // free text
  tippe("sevteinkauf_7", "A1");
  klicke("neueinkauf_0");
  EXPECT_EQ(feld("sevteinkauf_1")->liste(), QStringList("Honig"));
  EXPECT_EQ(feld("sevteinkauf_2")->liste(), QStringList("I"));
  EXPECT_EQ(feld("sevteinkauf_3")->liste(), QStringList("Meier"));
  EXPECT_EQ(feld("sevteinkauf_5")->liste(), QStringList({"kg", "g", "l", "ml", "St"}));
  EXPECT_EQ(feld("sevteinkauf_7")->liste(), QStringList({"A1", "C1"}));
  EXPECT_EQ(wert("select Einheit from Einkauf").toString(), "Fl");
}

TEST_F(EinkaufReiter, DieChargenKommenAusDemHoniglagerNichtAusDemEinkauf) {
  kaufe("Wachs", "1", "", "W9");
  lager("Raps", 5, 0, "C1");
  oeffne(Einkauf);
  for (const char* name : {"sevteinkauf_7", "sevtverkauf_7", "sevthonig_5"})
    EXPECT_EQ(feld(name)->liste(), QStringList("C1")) << name;
}

TEST_F(EinkaufReiter, AlleGruendeInEinerMeldungJederMitZeilenende) {
  oeffne(Einkauf);
  tippe("sevteinkauf_0", "");
  boxen.hinweis(Weil +
                "...das Datum korrekt angegeben werden muß.\r\n"
                "...das Produkt angegeben werden muß.\r\n"
                "...die Menge über 0 liegen muß.\r\n");
  klicke("neueinkauf_0");
  EXPECT_EQ(anzahl("Einkauf"), 0);
}

TEST_F(EinkaufReiter, AendernOhneZeileSagtWasFehlt) {
  oeffne(Einkauf);
  tippeEinkauf("Gläser", "1", "Meier");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  klicke("neueinkauf_1");
  EXPECT_EQ(anzahl("Einkauf") + anzahl("Kunden"), 0);
  EXPECT_EQ(inhalte("einkauf"), "20.06.2006|Gläser||Meier|1||0|");
}

TEST_F(EinkaufReiter, HonigGehtInsLagerUndStehtDortSofort) {
  oeffne(Einkauf);
  tippeEinkauf("Honig", "40");
  klicke("neueinkauf_0");
  zumReiter(Lager);
  ASSERT_EQ(liste("lihonig")->zeilen(), 1);
  EXPECT_EQ(liste("lihonig")->zelle(0, "Zugang"), "40");
  EXPECT_EQ(liste("lihonig")->zelle(0, "Abgang"), "0");
}

TEST_F(EinkaufReiter, LoeschenNimmtNurDenZugangGleicherNummerMit) {
  const qint64 verkauf = verkaufe("Honig", "3");
  const qint64 einkauf = kaufe("Honig", "8");
  ASSERT_EQ(verkauf, einkauf);
  oeffne(Einkauf);
  waehle("lieinkauf", 0);
  klicke("lscheinkauf");
  EXPECT_EQ(anzahl("Einkauf"), 0);
  EXPECT_EQ(zeilen("select Zugang, Abgang from Honiglager"), QStringList("0|3"));
  EXPECT_EQ(liste("lihonig")->zeilen(), 1);
  EXPECT_EQ(inhalte("einkauf"), "20.06.2006||||0||0|");
}

// ---- sales ----

TEST_F(VerkaufReiter, ZeileWaehlenKopiertAlleAchtFelder) {
  verkaufe("Honig", "2");
  db().Execute(
      "update Verkauf set Qualität = 'I', Abnehmer = 'Meier', Einheit = 'kg', Einnahmen = 12.5, "
      "Charge = 'A1', Menge = 2.5");
  verkaufe("Wachs", "3");
  oeffne(Verkauf);
  waehle("liverkauf", 0);
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006|Honig|I|Meier|2,5|kg|12,50|A1");
  QTest::keyClick(liste("liverkauf"), Qt::Key_Down);
  EXPECT_EQ(inhalt("sevtverkauf_1"), "Wachs");
}

TEST_F(VerkaufReiter, DieSchonAktuelleZeileKopiertEinKlickAuch) {
  verkaufe("Honig", "2");
  oeffne(Verkauf);
  EXPECT_EQ(inhalt("sevtverkauf_1"), "");
  waehle("liverkauf", 0);
  EXPECT_EQ(inhalt("sevtverkauf_1"), "Honig");
}

TEST_F(VerkaufReiter, AendernOhneZeileSagtWasFehlt) {
  oeffne(Verkauf);
  tippeVerkauf("Honig", "1");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz (die Pflanze), den Sie ändern möchten!");
  klicke("neuverkauf_1");
  EXPECT_EQ(anzahl("Verkauf"), 0);
}

TEST_F(VerkaufReiter, AendernErsetztDieBewegungUndBehaeltDasAbfuelldatum) {
  oeffne(Verkauf);
  tippeVerkauf("Waldhonig", "12,5", "Meier");
  tippe("sevtverkauf_7", "A1");
  klicke("neuverkauf_0");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Waldhonig|0|12,5|A1||1"));
  zumReiter(Lager);
  waehle("lihonig", 0);
  tippe("sevthonig_6", "01.06.2006");
  klicke("neuhonig_1");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Waldhonig|0|12,5|A1||1"));
  zumReiter(Verkauf);
  tippe("sevtverkauf_4", "10");
  klicke("neuverkauf_1");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Waldhonig|0|10|A1||1"));
  EXPECT_EQ(wert("select Abfülldatum from Honiglager").toDate(), QDate(2006, 6, 1));
  EXPECT_EQ(anzahl("Verkauf"), 1);
  EXPECT_EQ(anzahl("Kunden"), 1);
}

TEST_F(VerkaufReiter, UnbekannterAbnehmerStehtDanachInDerPicklisteNichtBeiDenLieferanten) {
  oeffne(Verkauf);
  tippeVerkauf("Wachs", "1", "Meier");
  klicke("neuverkauf_0");
  EXPECT_EQ(feld("sevtverkauf_3")->liste(), QStringList("Meier"));
  zumReiter(Einkauf);
  tippeEinkauf("Gläser", "1", "Meier");
  klicke("neueinkauf_0");
  EXPECT_EQ(anzahl("Kunden"), 1);
  EXPECT_EQ(feld("sevteinkauf_3")->liste(), QStringList());
}

TEST_F(VerkaufReiter, LoeschenOhneZeileUndDieFrage) {
  TZ_Variablen::EinstellungenZahl[55] = 1;
  oeffne(Verkauf);
  boxen.hinweis(ZuerstLoeschen);
  klicke("lschverkauf");
  tippeVerkauf("Honig", "3");
  klicke("neuverkauf_0");
  boxen.frage(LoeschFrage, false);
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 2);
  boxen.frage(LoeschFrage, true);
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 0);
  EXPECT_EQ(liste("lihonig")->zeilen(), 0);
}

TEST_F(VerkaufReiter, LoeschenZeigtDieZeileDieNunDortSteht) {
  for (const char* produkt : {"Honig A", "Honig B", "Honig C"}) verkaufe(produkt, "1");
  oeffne(Verkauf);
  waehle("liverkauf", 1);
  klicke("lschverkauf");
  EXPECT_EQ(liste("liverkauf")->aktuelleZeile(), 1);
  EXPECT_EQ(inhalt("sevtverkauf_1"), "Honig C");
  EXPECT_EQ(zeilen("select Produkt from Honiglager order by ID"),
            QStringList({"Honig A", "Honig C"}));
}

TEST_F(VerkaufReiter, GeaendertesDatumImFeldLaesstDieBewegungStehen) {
  verkaufe("Honig", "3");
  oeffne(Verkauf);
  waehle("liverkauf", 0);
  tippe("sevtverkauf_0", "21.06.2006");
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf"), 0);
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Honig|0|3|||1"));
}

TEST_F(VerkaufReiter, OhneDatumImFeldWirdNichtGeloescht) {
  verkaufe("Honig", "3");
  oeffne(Verkauf);
  waehle("liverkauf", 0);
  tippe("sevtverkauf_0", "");
  boxen.hinweisMit("im Feld \"Datum\" kein gültiges Datum");
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 2);
  EXPECT_EQ(liste("liverkauf")->zeilen(), 1);
}

TEST_F(VerkaufReiter, MinusLaesstSichNichtTippenUndNullWirdAbgelehnt) {
  oeffne(Verkauf);
  tippeVerkauf("Honig", "-1");
  EXPECT_EQ(inhalt("sevtverkauf_4"), "1");
  tippe("sevtverkauf_4", "7");
  fuegeEin("sevtverkauf_4", "-1");
  EXPECT_EQ(inhalt("sevtverkauf_4"), "7");
  tippe("sevtverkauf_4", "0");
  boxen.hinweis(Weil + "...die Menge über 0 liegen muß.\r\n");
  klicke("neuverkauf_0");
  EXPECT_EQ(anzahl("Verkauf"), 0);
}

TEST_F(VerkaufReiter, EineMillionWirdGespeichertUndGezeigt) {
  oeffne(Verkauf);
  tippeVerkauf("Honig", "1000000");
  tippe("sevtverkauf_6", "1000000");
  klicke("neuverkauf_0");
  EXPECT_EQ(wert("select Abgang from Honiglager").toDouble(), 1e6);
  EXPECT_EQ(inhalt("sevtverkauf_4"), "1000000");
  klicke("rosumme");
  EXPECT_EQ(summen(), "Einkauf: 0,00 €   Verkauf: 1.000.000,00 €   Summe: 1.000.000,00 €");
}

TEST_F(VerkaufReiter, EinundzwanzigZeichenEingefuegtWerdenZwanzig) {
  oeffne(Verkauf);
  fuegeEin("sevtverkauf_1", "Honigbrot mit Walnuss");
  EXPECT_EQ(inhalt("sevtverkauf_1"), "Honigbrot mit Walnus");
  tippe("sevtverkauf_4", "1");
  klicke("neuverkauf_0");
  EXPECT_EQ(wert("select Produkt from Verkauf").toString(), "Honigbrot mit Walnus");
}

TEST_F(VerkaufReiter, ApostropheImNamen) {
  oeffne(Verkauf);
  tippeVerkauf("Honig 'D'", "1", "O'Neill");
  klicke("neuverkauf_0");
  EXPECT_EQ(inhalt("sevtverkauf_3"), "O`Neill");
  EXPECT_EQ(feld("sevtverkauf_3")->liste(), QStringList("O`Neill"));
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Honiglager"), 0);
}

// ---- honey store ----

TEST_F(LagerReiter, NeuMitBeidenMengenOhneAbfuelldatum) {
  oeffne(Lager);
  tippeLager("Raps", "5", "3");
  tippe("sevthonig_4", "Eimer");
  tippe("sevthonig_5", "C1");
  klicke("neuhonig_0");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Raps|5|3|C1|Eimer|0"));
  EXPECT_TRUE(wert("select Abfülldatum from Honiglager").isNull());
  EXPECT_EQ(inhalte("honig"), "20.06.2006|Raps|5|3|Eimer|C1|");
  EXPECT_TRUE(feld("sevthonig_0")->hasFocus());
  EXPECT_EQ(feld("sevthonig_1")->liste(), QStringList("Raps"));
  EXPECT_EQ(feld("sevthonig_4")->liste(), QStringList("Eimer"));
  EXPECT_EQ(feld("sevthonig_5")->liste(), QStringList("C1"));
}

TEST_F(LagerReiter, AlleGruendeInEinerMeldung) {
  oeffne(Lager);
  tippe("sevthonig_0", "");
  boxen.hinweis(Weil +
                "...das Datum korrekt angegeben werden muß.\r\n"
                "...das Produkt angegeben werden muß.\r\n"
                "...entweder eine Zugangs- oder Abgangsmenge eingetragen werden muß.\r\n");
  klicke("neuhonig_0");
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

TEST_F(LagerReiter, AendernUndLoeschenOhneZeile) {
  oeffne(Lager);
  tippeLager("Raps", "5", "0");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!")
      .hinweis(ZuerstLoeschen);
  klicke("neuhonig_1");
  klicke("lschhonig");
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

TEST_F(LagerReiter, UngueltigesAbfuelldatumWirdLeerGespeichert) {
  oeffne(Lager);
  tippeLager("Raps", "5", "0");
  tippe("sevthonig_6", "31.02.2006");
  klicke("neuhonig_0");
  EXPECT_TRUE(wert("select Abfülldatum from Honiglager").isNull());
  EXPECT_EQ(inhalt("sevthonig_6"), "");
  tippe("sevthonig_6", "01.06.2006");
  klicke("neuhonig_1");
  EXPECT_EQ(wert("select Abfülldatum from Honiglager").toDate(), QDate(2006, 6, 1));
}

TEST_F(LagerReiter, ZeileWaehlenKopiertSiebenFelder) {
  lager("Raps", 5, 0, "C1");
  db().Execute("update Honiglager set Bemerkung = 'Eimer', Abfülldatum = ?", {QDate(2006, 6, 1)});
  oeffne(Lager);
  waehle("lihonig", 0);
  EXPECT_EQ(inhalte("honig"), "01.05.2006|Raps|5|0|Eimer|C1|01.06.2006");
}

TEST_F(LagerReiter, EineGeaenderteBewegungBehaeltIhrGeschaeft) {
  const qint64 id = verkaufe("Honig", "3");
  oeffne(Lager);
  waehle("lihonig", 0);
  tippe("sevthonig_4", "Probe");
  klicke("neuhonig_1");
  EXPECT_EQ(bewegungen(), QStringList(QString("20.06.2006|Honig|0|3||Probe|%1").arg(id)));
  klicke("neuhonig_0");
  EXPECT_EQ(bewegungen().last(), "20.06.2006|Honig|0|3||Probe|0");
}

TEST_F(LagerReiter, LoeschenEntferntNurDieZeile) {
  verkaufe("Honig", "3");
  oeffne(Lager);
  waehle("lihonig", 0);
  klicke("lschhonig");
  EXPECT_EQ(anzahl("Honiglager"), 0);
  EXPECT_EQ(anzahl("Verkauf"), 1);
}

TEST_F(LagerReiter, EineErnteStehtAlsGewoehnlicheZeile) {
  lager("Linde", 12.5, 0, "L1");
  oeffne(Lager);
  EXPECT_EQ(liste("lihonig")->zelle(0, "Zugang"), "12,5");
  EXPECT_EQ(liste("lihonig")->zelle(0, "EVK_ID"), "0");
}

TEST_F(LagerReiter, NachDemVerkaufIstDieLetzteZeileAktuellUndWirdGeaendert) {
  lager("Raps", 5, 0, "C1");
  oeffne(Lager);
  waehle("lihonig", 0);
  zumReiter(Verkauf);
  tippeVerkauf("Honig", "3");
  klicke("neuverkauf_0");
  zumReiter(Lager);
  EXPECT_EQ(liste("lihonig")->aktuelleZeile(), 1);
  EXPECT_EQ(inhalt("sevthonig_1"), "Raps");  // the inputs stay
  waehle("lihonig", 0);
  tippe("sevthonig_2", "6");
  klicke("neuhonig_1");
  EXPECT_EQ(zeilen("select Produkt, Zugang, Abgang from Honiglager order by ID"),
            QStringList({"Raps|6|0", "Honig|0|3"}));
}

TEST_F(LagerReiter, AktualisierenZeigtDenBestandJeProduktUndCharge) {
  lager("Raps", 10, 0, "A1");
  lager("Raps", 0, 2.5, "A1");
  lager("Raps", 4, 0, QString(""));
  oeffne(Lager);
  Grid* li = liste("ligroup");
  EXPECT_EQ(li->zeilen(), 0);
  klicke("comalle");
  QStringList spalten;
  for (int i = 0; i < li->spalten(); ++i) spalten << li->spaltenName(i);
  EXPECT_EQ(spalten, QStringList({"Produkt", "Charge", "Summe", "Anzahl", "Zugänge", "Abgänge"}));
  ASSERT_EQ(li->zeilen(), 2);
  const int a1 = li->findeZeile("Charge = 'A1'");
  EXPECT_EQ(li->zelle(a1, "Summe"), "7,5");
  EXPECT_EQ(li->zelle(a1, "Anzahl"), "2");
  EXPECT_EQ(li->zelle(1 - a1, "Summe"), "4");
}

TEST_F(LagerReiter, DerBestandSagtWennErNichtAktuellIst) {
  lager("Raps", 10, 0, "A1");
  oeffne(Lager);
  auto* stand = kind<QLabel>("bestandsstand");
  EXPECT_TRUE(stand->isVisible());
  klicke("comalle");
  EXPECT_FALSE(stand->isVisible());
  waehle("lihonig", 0);
  klicke("lschhonig");
  EXPECT_TRUE(stand->isVisible());
  EXPECT_EQ(liste("ligroup")->zeilen(), 1);  // only the button works it out anew
  klicke("comalle");
  zumReiter(Verkauf);
  tippeVerkauf("Honig", "3");
  klicke("neuverkauf_0");
  zumReiter(Lager);
  EXPECT_TRUE(stand->isVisible());
}

// ---- sums ----

TEST_F(Handelssummen, OhneGeschaefteDreimalNull) {
  oeffne(Einkauf);
  EXPECT_EQ(summen(), "Einkauf: 0,00 €   Verkauf: 0,00 €   Summe: 0,00 €");
}

TEST_F(Handelssummen, BeimOeffnenUndAufKnopfdruckNichtNachDemSpeichern) {
  verkaufe("Wachs", "1");
  db().Execute("update Verkauf set Einnahmen = 100");
  oeffne(Einkauf);
  EXPECT_EQ(summen(), "Einkauf: 0,00 €   Verkauf: 100,00 €   Summe: 100,00 €");
  tippeEinkauf("Gläser", "1");
  tippe("sevteinkauf_6", "130,5");
  klicke("neueinkauf_0");
  EXPECT_EQ(summen(), "Einkauf: 0,00 €   Verkauf: 100,00 €   Summe: 100,00 €");
  klicke("rosumme");
  EXPECT_EQ(summen(), "Einkauf: 130,50 €   Verkauf: 100,00 €   Summe: -30,50 €");
}

// ---- failures ----

TEST_F(Handelsfehler, VolleFestplatteWirdGesagtUndDieEingabenBleiben) {
  Verbindung* verbindung = Verbindung::zu(TZ_Variablen::DatenbankPfad);
  verbindung->steuere("pragma max_page_count = " + verbindung->steuere("pragma page_count"));
  int gespeichert = 0;
  try {
    for (; gespeichert < 500; ++gespeichert)
      verkaufe("Honig", "3", QString("Kunde mit langem Namen %1").arg(1000 + gespeichert));
    FAIL() << "the disk was never full";
  } catch (const Datenbankfehler&) {
  }
  oeffne(Verkauf);
  tippeVerkauf("Honig", "3", "Kunde mit langem Namen 9999");
  boxen.hinweisMit("nichts");  // of this action is saved
  klicke("neuverkauf_0");
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006|Honig||Kunde mit langem Namen 9999|3||0|");
  EXPECT_EQ(liste("liverkauf")->zeilen(), gespeichert);
  verbindung->steuere("pragma max_page_count = 1000000");
  for (const char* tabelle : {"Verkauf", "Kunden", "Honiglager"})
    EXPECT_EQ(anzahl(tabelle), gespeichert) << tabelle;
  klicke("neuverkauf_0");  // with room again the same entries go in
  for (const char* tabelle : {"Verkauf", "Kunden", "Honiglager"})
    EXPECT_EQ(anzahl(tabelle), gespeichert + 1) << tabelle;
}

TEST_F(Handelsfehler, WasHalbGeschriebenIstStehtInDerListe) {
  oeffne(Verkauf);
  tippeVerkauf("Honig", "3", "Meier");
  Verbindung::zu(TZ_Variablen::DatenbankPfad)
      ->steuere(
          "create trigger kaputt before insert on Honiglager begin select raise(fail, 'x'); end");
  boxen.hinweisMit("");
  klicke("neuverkauf_0");
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006|Honig||Meier|3||0|");
  EXPECT_EQ(liste("liverkauf")->zeilen(), 1);
  EXPECT_EQ(anzahl("Verkauf"), 1);
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

TEST_F(Handelsfehler, GescheitertesLoeschenLaesstGeschaeftUndBewegung) {
  verkaufe("Honig", "3");
  oeffne(Verkauf);
  waehle("liverkauf", 0);
  Verbindung::zu(TZ_Variablen::DatenbankPfad)
      ->steuere(
          "create trigger kaputt before delete on Verkauf begin select raise(rollback, 'x'); end");
  boxen.hinweisMit("");
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf"), 1);
  EXPECT_EQ(anzahl("Honiglager"), 1);
  EXPECT_EQ(liste("liverkauf")->zeilen(), 1);
  EXPECT_EQ(inhalt("sevtverkauf_1"), "Honig");
}

// ---- pictures ----

// With TOVA_BILDER set to a folder the tabs are saved there as pictures.
class HandelBild : public Handelsprobe, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    m_schrift = QApplication::font();
    QFont gross = m_schrift;
    gross.setPointSizeF(10.0 * GetParam() / 100);
    QApplication::setFont(gross);
    Handelsprobe::SetUp();
    fuelle();
  }
  void TearDown() override {
    Handelsprobe::TearDown();
    QApplication::setFont(m_schrift);
  }
  static void buche(Seite seite, const QStringList& werte) {
    Verwaltung::Texte texte;
    const Verwaltung::Felder felder = Handel::geschaeftsfelder(seite);
    for (int i = 0; i < felder.size(); ++i) texte[felder[i].feld] = werte[i];
    Handel::geschaeftSpeichern(db(), seite, texte, {});
  }
  static void fuelle() {
    const QList<QStringList> einkaeufe = {
        {"12.03.2006", "Honiggläser mit Decke", "500 g, Twist-off", "Glasgroßhandel Übersee GmbH",
         "1200", "St", "684", ""},
        {"02.04.2006", "Zucker", "Raffinade", "Landhandel Schmidt", "250", "kg", "212,5", ""},
        {"20.05.2006", "Rapshonig", "I", "Müller-Lüdenscheidt, Jürgen", "40", "kg", "180", "R06"}};
    const QList<QStringList> verkaeufe = {
        {"01.06.2006", "Waldhonig", "I", "Bäckerei Grünäcker", "12,5", "kg", "118,75", "A1"},
        {"05.06.2006", "Kerzen", "gezogen", "Weihnachtsmarkt", "30", "St", "90", ""},
        {"10.06.2006", "Frühtrachthonig", "cremig gerührt", "Müller-Lüdenscheidt, Jürgen", "24",
         "kg", "216", "F06/1"}};
    for (QStringList werte : einkaeufe) {
      werte[1] = werte[1].left(20);
      buche(Seite::Einkauf, werte);
    }
    for (const QStringList& werte : verkaeufe) buche(Seite::Verkauf, werte);
    lager("Frühtrachthonig", 180.5, 0, "F06/1");
    lager("Waldhonig", 65, 0, "A1");
    lager("Waldhonig", 12, 0, QString(""));
  }
  void bild(const QString& name) {
    const QString ordner = qEnvironmentVariable("TOVA_BILDER");
    if (ordner.isEmpty()) return;
    QTest::qWait(1);
    EXPECT_TRUE(
        form->grab().save(QString("%1/handel_%2_%3.png").arg(ordner).arg(GetParam()).arg(name)));
  }
  QFont m_schrift;
};

TEST_P(HandelBild, PasstAufDenBildschirmUndJederKnopfIstLesbar) {
  oeffne(Einkauf);
  EXPECT_LE(form->minimumSizeHint().width(), 1366);
  EXPECT_LE(form->minimumSizeHint().height(), 700);  // less the window's title and the task bar
  const QStringList listen = {"lieinkauf", "liverkauf", "lihonig"};
  for (const QSize groesse : {QSize(1024, 700), QSize(1400, 900)}) {
    form->resize(groesse);
    for (int nummer = 0; nummer < 3; ++nummer) {
      zumReiter(nummer);
      waehle(listen[nummer], 0);
      if (nummer == Lager) klicke("comalle");
      QTest::qWait(1);
      for (auto* knopf : form->findChildren<QPushButton*>()) {
        if (!knopf->isVisible()) continue;
        EXPECT_GE(knopf->width(), knopf->minimumSizeHint().width()) << qPrintable(knopf->text());
        EXPECT_GE(knopf->height(), knopf->minimumSizeHint().height()) << qPrintable(knopf->text());
      }
      bild(QString("%1_%2").arg(groesse.width()).arg(nummer));
    }
  }
}

TEST_P(HandelBild, LeerIstAllesZuSehen) {
  for (const char* tabelle : {"Einkauf", "Verkauf", "Honiglager", "Kunden"})
    db().Execute(QString("delete from %1").arg(tabelle));
  for (int nummer = 0; nummer < 3; ++nummer) {
    oeffne(nummer);
    form->resize(1024, 700);
    EXPECT_EQ(liste(QStringList({"lieinkauf", "liverkauf", "lihonig"})[nummer])->spalten(), 9);
    bild(QString("leer_%1").arg(nummer));
  }
}

INSTANTIATE_TEST_SUITE_P(Schriftgroessen, HandelBild, ::testing::Values(100, 150));

}  // namespace
