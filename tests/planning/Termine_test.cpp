#include "planning/Termine.h"

#include <QRandomGenerator>

#include "colonies/Testbetrieb.h"

namespace {

constexpr int Volk = 7;
constexpr int AnderesVolk = 8;

class Termine : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    db().Execute("delete from Arbeitsplanoptionen");
  }

  static void heute(const QString& text) { TZ_Variablen::HeuteText = text; }

  static void buche(const QString& tabelle, QDate datum, qint64 volkId = Volk) {
    db().Execute("insert into " + tabelle + "(Datum, Volk_ID) values (?, ?)", {datum, volkId});
  }
  static void arbeite(const QString& art, QDate datum, qint64 volkId = Volk) {
    db().Execute("insert into Arbeiten(Datum, Arbeitsart, Volk_ID) values (?, ?, ?)",
                 {datum, art, volkId});
  }
  static qint64 honigoption(const QString& volkabhängig = "J") {
    return option("Honigernte", "01.06", 14, "31.08", volkabhängig, "Honigernte");
  }

  // The days in Termine as "dd.mm. dd.mm.", in the order in which they were written.
  static QString tage() {
    const Daten daten = db().Lesen("select Datum from Termine order by ID");
    QStringList texte;
    for (int i = 0; i < daten->zeilen(); ++i)
      texte << daten->wert(i, 0).toDate().toString("dd.MM.");
    return texte.join(' ');
  }
};

TEST_F(Termine, SerieHängtAmStartzeitraum) {
  heute("01.01.2006");
  TermineBerechnen(db(), honigoption(), Volk);
  EXPECT_EQ(tage(), "01.06. 15.06. 29.06. 13.07. 27.07. 10.08. 24.08.");
}

TEST_F(Termine, HeuteSchneidetNurDenAnfangAb) {
  heute("20.06.2006");
  TermineBerechnen(db(), option("Schwarmkontrolle", "01.05", 9, "30.06"), Volk);
  EXPECT_EQ(tage(), "24.06.");
}

TEST_F(Termine, HeuteAufEinemSerientagBleibtDrin) {
  heute("15.06.2006");
  TermineBerechnen(db(), honigoption(), Volk);
  EXPECT_EQ(tage(), "15.06. 29.06. 13.07. 27.07. 10.08. 24.08.");
}

TEST_F(Termine, BuchungAmSerientagLässtDiesenTagStehen) {
  heute("20.06.2006");
  buche("Honigernte", QDate(2006, 6, 29));
  TermineBerechnen(db(), honigoption(), Volk);
  EXPECT_EQ(tage(), "29.06. 13.07. 27.07. 10.08. 24.08.");
}

TEST_F(Termine, BuchungZwischenSerientagenVerschiebtDieSerieNicht) {
  heute("20.06.2006");
  buche("Honigernte", QDate(2006, 6, 30));
  TermineBerechnen(db(), honigoption(), Volk);
  EXPECT_EQ(tage(), "13.07. 27.07. 10.08. 24.08.");
}

TEST_F(Termine, DieNeuesteBuchungZählt) {
  heute("20.06.2006");
  buche("Honigernte", QDate(2006, 8, 1));
  buche("Honigernte", QDate(2006, 6, 21));
  TermineBerechnen(db(), honigoption(), Volk);
  EXPECT_EQ(tage(), "10.08. 24.08.");
}

TEST_F(Termine, BuchungVorHeuteÄndertNichts) {
  heute("20.06.2006");
  buche("Honigernte", QDate(2006, 6, 16));
  TermineBerechnen(db(), honigoption(), Volk);
  EXPECT_EQ(tage(), "29.06. 13.07. 27.07. 10.08. 24.08.");
}

TEST_F(Termine, BuchungEinesAnderenVolkesZähltNicht) {
  heute("20.06.2006");
  buche("Honigernte", QDate(2006, 8, 1), AnderesVolk);
  TermineBerechnen(db(), honigoption(), Volk);
  EXPECT_EQ(tage(), "29.06. 13.07. 27.07. 10.08. 24.08.");
}

TEST_F(Termine, BuchungEinerAnderenArtZähltNicht) {
  heute("20.06.2006");
  buche("Wachsernte", QDate(2006, 8, 1));
  TermineBerechnen(db(), honigoption(), Volk);
  EXPECT_EQ(tage(), "29.06. 13.07. 27.07. 10.08. 24.08.");
}

TEST_F(Termine, ArbeitsartSchneidetAb) {
  heute("20.06.2006");
  arbeite("Waben tauschen", QDate(2006, 7, 20));
  arbeite("Etwas anderes", QDate(2006, 8, 20));
  const qint64 id = option("Tausch", "01.06", 14, "31.08", "J", "", "Waben tauschen");
  TermineBerechnen(db(), id, Volk);
  EXPECT_EQ(tage(), "27.07. 10.08. 24.08.");
}

TEST_F(Termine, VonBuchungUndArbeitZähltDieSpätere) {
  heute("20.06.2006");
  buche("Honigernte", QDate(2006, 7, 14));
  arbeite("Schleudern", QDate(2006, 6, 25));
  const qint64 id = option("Ernte", "01.06", 14, "31.08", "J", "Honigernte", "Schleudern");
  TermineBerechnen(db(), id, Volk);
  EXPECT_EQ(tage(), "27.07. 10.08. 24.08.");
  db().Execute("delete from Termine");
  arbeite("Schleudern", QDate(2006, 8, 10));
  TermineBerechnen(db(), id, Volk);
  EXPECT_EQ(tage(), "10.08. 24.08.");
}

TEST_F(Termine, OptionOhneVolkBeachtetKeineBuchung) {
  heute("20.06.2006");
  buche("Honigernte", QDate(2006, 8, 1), 0);
  TermineBerechnen(db(), honigoption("N"), 0);
  EXPECT_EQ(tage(), "29.06. 13.07. 27.07. 10.08. 24.08.");
  EXPECT_EQ(anzahl("Termine", "Volk_ID = 0"), 5);
}

TEST_F(Termine, FristNullGibtEinenTermin) {
  heute("01.03.2006");
  TermineBerechnen(db(), option("Jahreserstkontrolle", "15.03", 0, "15.03"), Volk);
  TermineBerechnen(db(), option("Einmal", "16.03", 0, "31.12"), Volk);
  EXPECT_EQ(tage(), "15.03. 16.03.");
}

TEST_F(Termine, FristNullUndBeginnHeuteGibtDenTermin) {
  heute("15.03.2006");
  TermineBerechnen(db(), option("Jahreserstkontrolle", "15.03", 0, "15.03"), Volk);
  EXPECT_EQ(tage(), "15.03.");
}

TEST_F(Termine, FristNullUndBeginnVorbeiGibtKeinenTermin) {
  heute("16.03.2006");
  TermineBerechnen(db(), option("Einmal", "15.03", 0, "31.12"), Volk);
  EXPECT_EQ(tage(), "");
}

TEST_F(Termine, BeginnGleichEndeMitFristGibtEinenTermin) {
  heute("01.01.2006");
  TermineBerechnen(db(), option("Kurz", "10.04", 9, "10.04"), Volk);
  EXPECT_EQ(tage(), "10.04.");
}

TEST_F(Termine, LetzterTagDesZeitraumsGehörtDazu) {
  heute("01.01.2006");
  TermineBerechnen(db(), option("Zweimal", "01.04", 9, "10.04"), Volk);
  EXPECT_EQ(tage(), "01.04. 10.04.");
}

TEST_F(Termine, ZeitraumÜberDenJahreswechselGibtKeinenTermin) {
  heute("01.01.2006");
  TermineBerechnen(db(), option("Winterkontrolle", "01.11", 14, "15.05"), Volk);
  EXPECT_EQ(tage(), "");
}

TEST_F(Termine, HeuteNachDemEndeGibtKeinenTermin) {
  heute("01.09.2006");
  TermineBerechnen(db(), honigoption(), Volk);
  EXPECT_EQ(tage(), "");
}

TEST_F(Termine, UnbekannteOptionTutNichts) {
  TermineBerechnen(db(), 4711, Volk);
  EXPECT_EQ(tage(), "");
}

TEST_F(Termine, JedeBerechnungFügtIhreZeilenHinzu) {
  heute("20.06.2006");
  const qint64 id = option("Schwarmkontrolle", "01.05", 9, "30.06");
  TermineBerechnen(db(), id, Volk);
  TermineBerechnen(db(), id, Volk);
  EXPECT_EQ(tage(), "24.06. 24.06.");
}

TEST_F(Termine, ZeileTrägtArbeitsartOffenUndVolk) {
  heute("20.06.2006");
  TermineBerechnen(db(), option(QString("Rähmchen bauen"), "24.06", 0, "24.06"), Volk);
  const Daten zeile = db().Lesen("select Datum, Termin, Erledigt, Volk_ID from Termine");
  ASSERT_EQ(zeile->zeilen(), 1);
  EXPECT_EQ(zeile->wert(0, 0).toDate(), QDate(2006, 6, 24));
  EXPECT_EQ(zeile->wert(0, 1).toString(), QString("Rähmchen bauen"));
  EXPECT_EQ(zeile->wert(0, 2).toString(), "N");
  EXPECT_EQ(zeile->wert(0, 3).toLongLong(), Volk);
}

TEST_F(Termine, ArbeitsartStehtImTerminWieSieIst) {
  heute("20.06.2006");
  TermineBerechnen(db(), option("Rund um's Volk ", "24.06", 0, "24.06"), Volk);
  EXPECT_EQ(wert("select Termin from Termine").toString(), "Rund um's Volk ");
}

TEST_F(Termine, FehlendeArbeitsartBleibtNull) {
  heute("20.06.2006");
  const qint64 id = option("", "24.06", 0, "24.06");
  TermineBerechnen(db(), id, Volk);
  EXPECT_FALSE(wert("select Termin from Termine").isNull());
  db().Execute("delete from Termine");
  db().Execute("update Arbeitsplanoptionen set Arbeitsart = ? where ID = ?", {QVariant(), id});
  TermineBerechnen(db(), id, Volk);
  EXPECT_EQ(anzahl("Termine"), 1);
  EXPECT_TRUE(wert("select Termin from Termine").isNull());
}

TEST_F(Termine, SchalttagLiegtInDerSerie) {
  heute("01.01.2008");
  TermineBerechnen(db(), option("Winter", "20.02", 9, "10.03"), Volk);
  EXPECT_EQ(tage(), "20.02. 29.02. 09.03.");
}

TEST_F(Termine, BeginnAmSchalttagImSchaltjahr) {
  heute("01.01.2008");
  TermineBerechnen(db(), option("Schalttag", "29.02", 0, "29.02"), Volk);
  EXPECT_EQ(tage(), "29.02.");
}

TEST_F(Termine, SchalttagImGemeinjahrIstEinFehlerMitNamenUndDatum) {
  heute("01.01.2006");
  const qint64 id = option("Schalttagsarbeit", "01.02", 9, "29.02");
  try {
    TermineBerechnen(db(), id, Volk);
    FAIL() << "kein Fehler";
  } catch (const Datenbankfehler& fehler) {
    EXPECT_EQ(fehler.art(), Datenbankfehler::Art::Wertebereich);
    EXPECT_TRUE(fehler.text().contains("'Schalttagsarbeit'")) << fehler.what();
    EXPECT_TRUE(fehler.text().contains("Endtermin '29.02.2006'")) << fehler.what();
  }
  EXPECT_EQ(tage(), "");
}

TEST_F(Termine, LeererBeginnIstEinFehler) {
  const qint64 id = option("Leer", "", 0, "30.06");
  EXPECT_THROW(TermineBerechnen(db(), id, Volk), Datenbankfehler);
}

TEST_F(Termine, BuchungstabelleOhneDatumIstEinFehler) {
  const qint64 id = option("Falsch", "01.06", 14, "31.08", "J", "Standorte");
  EXPECT_THROW(TermineBerechnen(db(), id, Volk), Datenbankfehler);
  EXPECT_EQ(tage(), "");
}

TEST_F(Termine, TabelleMitUmlautWirdGefunden) {
  heute("20.06.2006");
  buche(QString("Königinwechsel"), QDate(2006, 7, 14));
  const qint64 id = option("Umweiseln", "01.06", 14, "31.08", "J", QString("Königinwechsel"));
  TermineBerechnen(db(), id, Volk);
  EXPECT_EQ(tage(), "27.07. 10.08. 24.08.");
}

TEST_F(Termine, NegativeFristVerliertIhrVorzeichen) {
  heute("01.01.2006");
  TermineBerechnen(db(), option("Minus", "01.04", -9, "10.04"), Volk);
  EXPECT_EQ(tage(), "01.04. 10.04.");
}

TEST_F(Termine, LeereFelderDerOptionGeltenAlsNichtGesetzt) {
  heute("20.06.2006");
  db().Execute(
      QString("insert into Arbeitsplanoptionen(Arbeitsart, Startzeitraum, Endzeitraum, "
              "Volkabhängig) values ('Kurz', '21.06', '30.06', 'J')"));
  TermineBerechnen(db(), db().LetzteID(), Volk);
  EXPECT_EQ(tage(), "21.06.");
}

// Whatever the period, the days are start + n * interval within it, none is before the threshold
// and none that belongs there is missing.
TEST(Terminreihe, TageSindImmerBeginnPlusVielfacheDerFrist) {
  QRandomGenerator zufall(20060620);
  const QDate neujahr(2006, 1, 1);
  for (int lauf = 0; lauf < 2000; ++lauf) {
    const QDate beginn = neujahr.addDays(zufall.bounded(365));
    const QDate ende = neujahr.addDays(zufall.bounded(365));
    const QDate schwelle = neujahr.addDays(zufall.bounded(365));
    const int frist = 1 + zufall.bounded(99);
    const QList<QDate> tage = terminreihe(beginn, ende, frist, schwelle);
    int erwartet = 0;
    for (qint64 n = 0; beginn.addDays(n) <= ende; ++n)
      if (n % frist == 0 && beginn.addDays(n) >= schwelle) ++erwartet;
    ASSERT_EQ(tage.size(), erwartet);
    for (const QDate& tag : tage) {
      ASSERT_EQ(beginn.daysTo(tag) % frist, 0);
      ASSERT_GE(tag, beginn);
      ASSERT_LE(tag, ende);
      ASSERT_GE(tag, schwelle);
    }
    for (qsizetype i = 1; i < tage.size(); ++i) ASSERT_EQ(tage[i - 1].daysTo(tage[i]), frist);
  }
}

}  // namespace
