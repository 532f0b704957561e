#include "data/Verwaltungsfelder.h"

#include "colonies/Testbetrieb.h"

using namespace Verwaltung;

namespace {

class Verwaltungsfelder : public Testbetrieb {
 protected:
  const Felder felder = {text("Standort", "Standort", 100),
                         ganzzahl("Max_Völker", "Max. Anzahl Völker", 999).vorgabe("10"),
                         dezimal("Standortprämie_Volk", "Standortprämie je Volk", 8, 2),
                         datum("Trachtzeit_von", "Trachtzeit von"),
                         datum("Trachtzeit_bis", "Trachtzeit bis").gezeigt()};
  const Texte texte = {{"Standort", " O'Hof "},
                       {"Max_Völker", "12"},
                       {"Standortprämie_Volk", "3,50"},
                       {"Trachtzeit_von", "01.05.2006"},
                       {"Trachtzeit_bis", "01.06.2006"}};
  void SetUp() override {
    Testbetrieb::SetUp();
    db().Execute("delete from Standorte");
  }
};

TEST_F(Verwaltungsfelder, NeueZeileMitAllenFeldernUndDenWeiteren) {
  const qint64 id = speichern(db(), "Standorte", felder, texte, std::nullopt, {{"PTop", 250}});
  EXPECT_EQ(anzahl("Standorte"), 1);
  EXPECT_EQ(wert("select ID from Standorte").toLongLong(), id);
  EXPECT_EQ(wert("select Standort from Standorte").toString(), "O`Hof");
  EXPECT_EQ(wert("select Max_Völker from Standorte").toInt(), 12);
  EXPECT_EQ(wert("select Standortprämie_Volk from Standorte").toDouble(), 3.5);
  EXPECT_EQ(wert("select Trachtzeit_von from Standorte").toDate(), QDate(2006, 5, 1));
  EXPECT_EQ(wert("select PTop from Standorte").toInt(), 250);
}

TEST_F(Verwaltungsfelder, NurGezeigtesWirdNichtGeschrieben) {
  speichern(db(), "Standorte", felder, texte, std::nullopt);
  EXPECT_TRUE(wert("select Trachtzeit_bis from Standorte").isNull());
}

TEST_F(Verwaltungsfelder, ÄndernTrifftNurDieEineZeile) {
  const qint64 erste = speichern(db(), "Standorte", felder, texte, std::nullopt, {{"PTop", 7}});
  speichern(db(), "Standorte", felder, {{"Standort", "Heide"}}, std::nullopt);
  Texte neu = texte;
  neu["Standort"] = "Wald";
  EXPECT_EQ(speichern(db(), "Standorte", felder, neu, erste), erste);
  EXPECT_EQ(wert("select Standort from Standorte where ID = ?", {erste}).toString(), "Wald");
  EXPECT_EQ(wert("select PTop from Standorte where ID = ?", {erste}).toInt(), 7);
  EXPECT_EQ(anzahl("Standorte", "Standort = 'Heide'"), 1);
}

TEST_F(Verwaltungsfelder, ÄndernEinerVerschwundenenZeileSchlägtFehl) {
  EXPECT_THROW(speichern(db(), "Standorte", felder, texte, 4711), Datenbankfehler);
  EXPECT_EQ(anzahl("Standorte"), 0);
}

TEST_F(Verwaltungsfelder, LeeresDatumWirdNull) {
  EXPECT_TRUE(feldwert(felder[3], "").isNull());
  EXPECT_TRUE(feldwert(felder[3], "31.02.2006").isNull());
}

TEST_F(Verwaltungsfelder, FeldtextZeigtDieStellenDesFeldesUndKeineVerlorenen) {
  EXPECT_EQ(feldtext(felder[2], 5.0), "5,00");
  EXPECT_EQ(feldtext(felder[2], 0.1234), "0,1234");
  EXPECT_EQ(feldtext(felder[2], QVariant()), "");
  EXPECT_EQ(feldtext(felder[1], 12), "12");
  EXPECT_EQ(feldtext(felder[3], QDate(2006, 5, 1)), "01.05.2006");
}

TEST_F(Verwaltungsfelder, EineDezimalzahlWirdInEinfacherGenauigkeitGelesen) {
  EXPECT_EQ(feldwert(felder[2], "1234,56").toDouble(), 1234.56);
  // Seven digits and a bit: of ten the last ones are lost.
  const double gelesen = feldwert(felder[2], "12345678,91").toDouble();
  EXPECT_NE(gelesen, 12345678.91);
  EXPECT_NEAR(gelesen, 12345678.91, 1);
  EXPECT_EQ(feldwert(felder[2], "-3,50").toDouble(), 3.5);
  EXPECT_EQ(feldwert(felder[2], "").toDouble(), 0);
}

TEST_F(Verwaltungsfelder, EineGanzzahlBehältIhrVorzeichen) {
  EXPECT_EQ(feldwert(felder[1], "-12").toLongLong(), -12);
  EXPECT_EQ(feldwert(felder[1], "").toLongLong(), 0);
}

TEST_F(Verwaltungsfelder, KnappZeigtNurDieStellenDieDieZahlHat) {
  const Feld menge = dezimal("Menge", "Menge", 8, 3).knapp();
  EXPECT_EQ(feldtext(menge, 5.0), "5");
  EXPECT_EQ(feldtext(menge, 12.5), "12,5");
  EXPECT_EQ(feldtext(menge, 0.1234), "0,1234");
}

TEST_F(Verwaltungsfelder, EinAngebotIstDiePicklisteInSeinerFolge) {
  const Feld einheit = text("Einheit", "Einheit", 2).angebot({"kg", "g"});
  EXPECT_TRUE(einheit.hatPickliste());
  EXPECT_EQ(pickliste(db(), einheit), QStringList({"kg", "g"}));
  EXPECT_EQ(einheit.art, Art::Text);
  EXPECT_FALSE(text("Einheit", "Einheit", 2).hatPickliste());
  EXPECT_FALSE(auswahl("Lieferant", "Lieferant", {"J", "N"}).hatPickliste());
}

TEST_F(Verwaltungsfelder, EinTagImJahrIstEinText) {
  const Feld start = tagMonat("Startzeitraum", "Startzeitraum (TT.MM)");
  EXPECT_EQ(feldwert(start, " 01.05 "), QVariant(QString("01.05")));
  EXPECT_EQ(feldtext(start, "01.05"), "01.05");
  EXPECT_FALSE(start.hatPickliste());
}

TEST(Ganzzahl, HatEineUntereUndEineObereGrenze) {
  const Feld anteil = ganzzahl("Proz_Anteil", "Anteil in %", 100).ab(1);
  EXPECT_EQ(anteil.von, 1);
  EXPECT_EQ(anteil.bis, 100);
  EXPECT_EQ(anteil.maxLänge, 3);
  EXPECT_EQ(ganzzahl("Max_Völker", "Max. Anzahl Völker", 999).von, 0);
}

TEST(Ganzzahl, UnterNullBehältIhrVorzeichen) {
  const Feld grad = ganzzahl("Temp_1", "Temperatur", 60).ab(-40);
  EXPECT_EQ(grad.maxLänge, 3);
  EXPECT_EQ(feldwert(grad, "-40"), QVariant(qint64{-40}));
  EXPECT_EQ(feldtext(grad, -40), "-40");
  EXPECT_EQ(feldwert(grad, "-"), QVariant(qint64{0}));
}

TEST_F(Verwaltungsfelder, NamenDieSichNurInDerSchreibungUnterscheidenSindVorhanden) {
  const qint64 id =
      speichern(db(), "Standorte", felder, {{"Standort", "Müllers Hof"}}, std::nullopt);
  EXPECT_TRUE(vorhanden(db(), "Standorte", felder.first(), "MÜLLERS HOF", std::nullopt));
  EXPECT_FALSE(vorhanden(db(), "Standorte", felder.first(), "MÜLLERS HOF", id));
  EXPECT_FALSE(vorhanden(db(), "Standorte", felder.first(), "Mullers Hof", std::nullopt));
}

TEST_F(Verwaltungsfelder, EinDatumWirdAlsDatumGesucht) {
  const qint64 id = speichern(db(), "Standorte", felder, texte, std::nullopt);
  EXPECT_TRUE(vorhanden(db(), "Standorte", felder[3], "01.05.2006", std::nullopt));
  EXPECT_TRUE(vorhanden(db(), "Standorte", felder[3], "1.5.06", std::nullopt));
  EXPECT_FALSE(vorhanden(db(), "Standorte", felder[3], "01.05.2006", id));
  EXPECT_FALSE(vorhanden(db(), "Standorte", felder[3], "05.01.2006", std::nullopt));
  EXPECT_FALSE(vorhanden(db(), "Standorte", felder[3], "", std::nullopt));
  EXPECT_TRUE(vorhanden(db(), "Standorte", felder[1], "12", std::nullopt));
  EXPECT_TRUE(vorhanden(db(), "Standorte", felder[2], "3,5", std::nullopt));
}

TEST(Daneben, StehtOhneBeschriftungUnterDerDesFeldesDavor) {
  const Feld feld = dezimal("Futter_Teig_kg", "Teig", 5, 2).daneben("Futter Teig");
  EXPECT_TRUE(feld.stehtDaneben());
  EXPECT_EQ(feld.name(), "Futter Teig");
  EXPECT_FALSE(notiz("Notiz", "Notiz").stehtDaneben());
  EXPECT_FALSE(datum("Datum", "Datum").stehtDaneben());
  EXPECT_EQ(datum("Datum", "Datum").name(), "Datum");
}

TEST_F(Verwaltungsfelder, VorhandenZähltDieEigeneZeileNicht) {
  const qint64 id = speichern(db(), "Standorte", felder, texte, std::nullopt);
  EXPECT_TRUE(vorhanden(db(), "Standorte", felder.first(), "O'Hof", std::nullopt));
  EXPECT_FALSE(vorhanden(db(), "Standorte", felder.first(), "O'Hof", id));
  EXPECT_FALSE(vorhanden(db(), "Standorte", felder.first(), "Hof", std::nullopt));
}

TEST_F(Verwaltungsfelder, PicklisteOhneLeereTexte) {
  for (const char* klima : {"rau", "", "mild", "rau"})
    db().Execute("insert into Standorte(Klima) values (?)", {klima});
  const Feld klima =
      text("Klima", "Klima", 20).liste("select distinct Klima from Standorte order by Klima");
  EXPECT_EQ(pickliste(db(), klima), QStringList({"mild", "rau"}));
  EXPECT_EQ(pickliste(db(), felder[0]), QStringList());
}

TEST(Ablehnung, EineMeldungMitAllenGründen) {
  EXPECT_EQ(ablehnung({"...a.", "...b."}).toStdString(),
            "Die Daten werden nicht gespeichert, weil...\r\n\r\n...a.\r\n...b.");
}

TEST(Vorgaben, JedesFeldHatSeinenErstenText) {
  const Texte texte = vorgaben({text("A", "a", 5), ganzzahl("B", "b", 9).vorgabe("3")});
  EXPECT_EQ(texte["A"], "");
  EXPECT_EQ(texte["B"], "3");
}

}  // namespace
