#include "stores/forms/Handelsprobe.h"

// The tab of the honey store.
namespace {

const QString ZuerstLoeschen = "Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.";

class LagerReiter : public Handelsprobe {};

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
  EXPECT_EQ(inhalte("honig"), "20.06.2006|Honig|0|3|||");  // "Ändern" writes over what is shown
  waehle("lihonig", 0);
  tippe("sevthonig_2", "6");
  klicke("neuhonig_1");
  EXPECT_EQ(zeilen("select Produkt, Zugang, Abgang from Honiglager order by ID"),
            QStringList({"Raps|6|0", "Honig|0|3"}));
}

TEST_F(LagerReiter, GetipptesBleibtNachEinemVerkaufStehen) {
  lager("Raps", 5, 0, "C1");
  oeffne(Lager);
  waehle("lihonig", 0);
  tippe("sevthonig_4", "halb getippt");
  zumReiter(Verkauf);
  tippeVerkauf("Honig", "3");
  klicke("neuverkauf_0");
  EXPECT_EQ(inhalte("honig"), "01.05.2006|Raps|5|0|halb getippt|C1|");
}

TEST_F(LagerReiter, NachDemLoeschenEinesVerkaufsZeigenDieEingabenDieAktuelleZeile) {
  lager("Raps", 5, 0, "C1");
  verkaufe("Honig", "3");
  oeffne(Lager);
  waehle("lihonig", 1);
  zumReiter(Verkauf);
  waehle("liverkauf", 0);
  klicke("lschverkauf");
  EXPECT_EQ(liste("lihonig")->aktuelleZeile(), 0);
  EXPECT_EQ(inhalte("honig"), "01.05.2006|Raps|5|0||C1|");
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

TEST_F(LagerReiter, BeimRechnenDesBestandsStehtDieSanduhr) {
  lager("Raps", 10, 0, "A1");
  oeffne(Lager);
  int gelesen = 0;
  QObject::connect(liste("ligroup")->model(), &QAbstractItemModel::modelReset, form.get(), [&] {
    ++gelesen;
    const QCursor* zeiger = QApplication::overrideCursor();
    ASSERT_NE(zeiger, nullptr);
    EXPECT_EQ(zeiger->shape(), Qt::WaitCursor);
  });
  klicke("comalle");
  EXPECT_EQ(gelesen, 1);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
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

}  // namespace
