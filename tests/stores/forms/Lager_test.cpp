#include "stores/forms/Handelsprobe.h"

// The tab of the honey store.
namespace {

class LagerReiter : public Handelsprobe {};

TEST_F(LagerReiter, NeuMitBeidenMengenOhneAbfülldatum) {
  öffne(Lager);
  tippeLager("Raps", "5", "3");
  tippe("Bemerkung", "Eimer");
  tippe("Honiglager", "Chargen-Nr", "C1");
  klicke("neuhonig_0");
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Raps|5|3|C1|Eimer|0"));
  EXPECT_TRUE(wert("select Abfülldatum from Honiglager").isNull());
  EXPECT_EQ(inhalte("honig"), "20.06.2006|Raps|5|3|Eimer|C1|");
  EXPECT_TRUE(feld("Honiglager", "Datum")->hasFocus());
  EXPECT_EQ(feld("Produkt (Sorte)")->liste(), QStringList("Raps"));
  EXPECT_EQ(feld("Bemerkung")->liste(), QStringList("Eimer"));
  EXPECT_EQ(feld("Honiglager", "Chargen-Nr")->liste(), QStringList("C1"));
}

TEST_F(LagerReiter, AlleGründeInEinerMeldung) {
  öffne(Lager);
  tippe("Honiglager", "Datum", "");
  boxen.hinweis(Weil +
                "...das Datum korrekt angegeben werden muß.\r\n"
                "...das Produkt angegeben werden muß.\r\n"
                "...entweder eine Zugangs- oder Abgangsmenge eingetragen werden muß.\r\n");
  klicke("neuhonig_0");
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

TEST_F(LagerReiter, UngültigesAbfülldatumWirdLeerGespeichert) {
  öffne(Lager);
  tippeLager("Raps", "5", "0");
  tippe("Abfülldatum", "31.02.2006");
  klicke("neuhonig_0");
  EXPECT_TRUE(wert("select Abfülldatum from Honiglager").isNull());
  EXPECT_EQ(inhalt("Abfülldatum"), "");
  tippe("Abfülldatum", "01.06.2006");
  klicke("neuhonig_1");
  EXPECT_EQ(wert("select Abfülldatum from Honiglager").toDate(), QDate(2006, 6, 1));
}

TEST_F(LagerReiter, EineGeänderteBewegungBehältIhrGeschäft) {
  const qint64 id = verkaufe("Honig", "3");
  öffne(Lager);
  wähle("lihonig", 0);
  tippe("Bemerkung", "Probe");
  klicke("neuhonig_1");
  EXPECT_EQ(bewegungen(), QStringList(QString("20.06.2006|Honig|0|3||Probe|%1").arg(id)));
  klicke("neuhonig_0");
  EXPECT_EQ(bewegungen().last(), "20.06.2006|Honig|0|3||Probe|0");
}

TEST_F(LagerReiter, LöschenEntferntNurDieZeile) {
  verkaufe("Honig", "3");
  öffne(Lager);
  wähle("lihonig", 0);
  klicke("lschhonig");
  EXPECT_EQ(anzahl("Honiglager"), 0);
  EXPECT_EQ(anzahl("Verkauf"), 1);
}

TEST_F(LagerReiter, EineErnteStehtAlsGewöhnlicheZeile) {
  lager("Linde", 12.5, 0, "L1");
  öffne(Lager);
  EXPECT_EQ(liste("lihonig")->zelle(0, "Zugang"), "12,5");
  EXPECT_EQ(liste("lihonig")->zelle(0, "EVK_ID"), "0");
}

TEST_F(LagerReiter, NachDemVerkaufIstDieLetzteZeileAktuellUndWirdGeändert) {
  lager("Raps", 5, 0, "C1");
  öffne(Lager);
  wähle("lihonig", 0);
  zumReiter(Verkauf);
  tippeVerkauf("Honig", "3");
  klicke("neuverkauf_0");
  zumReiter(Lager);
  EXPECT_EQ(liste("lihonig")->aktuelleZeile(), 1);
  EXPECT_EQ(inhalte("honig"), "20.06.2006|Honig|0|3|||");  // "Ändern" writes over what is shown
  wähle("lihonig", 0);
  tippe("Eingang (kg)", "6");
  klicke("neuhonig_1");
  EXPECT_EQ(zeilen("select Produkt, Zugang, Abgang from Honiglager order by ID"),
            QStringList({"Raps|6|0", "Honig|0|3"}));
}

TEST_F(LagerReiter, GetipptesBleibtNachEinemVerkaufStehen) {
  lager("Raps", 5, 0, "C1");
  öffne(Lager);
  wähle("lihonig", 0);
  tippe("Bemerkung", "halb getippt");
  zumReiter(Verkauf);
  tippeVerkauf("Honig", "3");
  klicke("neuverkauf_0");
  EXPECT_EQ(inhalte("honig"), "01.05.2006|Raps|5|0|halb getippt|C1|");
}

TEST_F(LagerReiter, NachDemLöschenEinesVerkaufsZeigenDieEingabenDieAktuelleZeile) {
  lager("Raps", 5, 0, "C1");
  verkaufe("Honig", "3");
  öffne(Lager);
  wähle("lihonig", 1);
  zumReiter(Verkauf);
  wähle("liverkauf", 0);
  klicke("lschverkauf");
  EXPECT_EQ(liste("lihonig")->aktuelleZeile(), 0);
  EXPECT_EQ(inhalte("honig"), "01.05.2006|Raps|5|0||C1|");
}

TEST_F(LagerReiter, AktualisierenZeigtDenBestandJeProduktUndCharge) {
  lager("Raps", 10, 0, "A1");
  lager("Raps", 0, 2.5, "A1");
  lager("Raps", 4, 0, QString(""));
  öffne(Lager);
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
  öffne(Lager);
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
  öffne(Lager);
  auto* stand = kind<QLabel>("bestandsstand");
  EXPECT_TRUE(stand->isVisible());
  klicke("comalle");
  EXPECT_FALSE(stand->isVisible());
  wähle("lihonig", 0);
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
