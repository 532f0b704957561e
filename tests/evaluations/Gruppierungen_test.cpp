#include "evaluations/Gruppierungen.h"

#include <gtest/gtest.h>

#include "core/globals.h"
#include "evaluations/Auswertung.h"
#include "gemeinsam/Musterdatenbank.h"

using TZ_Variablen::DB;

namespace {

// Rows as "a|b|c".
QStringList zeilen(const Ausgabeliste& liste) {
  QStringList alle;
  for (int z = 0; z < liste.zeilen(); ++z) {
    QStringList zellen;
    for (int s = 0; s < liste.spalten(); ++s)
      zellen += liste.daten()->anzeige(liste.blockzeile(z), s);
    alle += zellen.join(u'|');
  }
  return alle;
}

class GruppierungenTest : public testing::Test {
 protected:
  void SetUp() override { leereDatenbank(); }

  static qint64 volk(const QString& nr, const QVariantHash& felder = {}) {
    QStringList namen{"Volknr"};
    QVariantList werte{nr};
    for (auto f = felder.begin(); f != felder.end(); ++f) {
      namen += f.key();
      werte += f.value();
    }
    const QStringList marken(namen.size(), "?");
    DB.Execute("insert into Bienenvolk(" + namen.join(',') + ") values (" + marken.join(',') + ")",
               werte);
    return DB.LetzteID();
  }
  static QVariantHash imBestand(QVariantHash felder = {}) {
    felder["Akt_im_Bestand"] = "X";
    return felder;
  }

  Auswertung::Ergebnis laufe(const QString& befehl) {
    const auto beschreibung = Gruppierungen::beschreibung();
    Auswertung::Lauf lauf{DB, m_eingaben};
    return beschreibung.befehl(befehl)->lauf(lauf);
  }

  Programmordner m_ordner{"15.01.2026"};
  Auswertung::Eingaben m_eingaben;
};

TEST_F(GruppierungenTest, AbgangsgrundGruppiertDieAbgegangenenAlleAnderenDieImBestand) {
  volk("1", imBestand({{"Beuteart", "Zander"}, {"Abgangsgrund", "verkauft"}}));
  volk("2", {{"Beuteart", "Dadant"}, {"Abgangsgrund", "Winterverlust"}});
  volk("3", {{"Akt_im_Bestand", ""}, {"Abgangsgrund", "Winterverlust"}});
  m_eingaben.setText("li1", "Abgangsgrund");
  EXPECT_EQ(zeilen(*laufe("gruppeok").liste), QStringList("Winterverlust|2"));
  EXPECT_EQ(laufe("gruppeok").titel, "Ergebnis (Abgangsgrund)");
  m_eingaben.setText("li1", "Beuteart");
  EXPECT_EQ(zeilen(*laufe("gruppeok").liste), QStringList("Zander|1"));
}

TEST_F(GruppierungenTest, AbnehmerGruppiertEbenfallsDieAbgegangenen) {
  volk("1", {{"Abnehmer", "Huber"}});
  volk("2", imBestand({{"Abnehmer", "Maier"}}));
  m_eingaben.setText("li1", "Abnehmer");
  EXPECT_EQ(zeilen(*laufe("gruppeok").liste), QStringList("Huber|1"));
}

TEST_F(GruppierungenTest, WanderungNachStandortMeintDenDerBuchung) {
  const qint64 id = volk("1", imBestand({{"Standort", "Hausgarten"}}));
  for (const char* ort : {"Raps", "Wald", "Wald"})
    DB.Execute("insert into Wanderung(Standort, Volk_ID) values (?, ?)", {QString(ort), id});
  m_eingaben.setText("li2", "Wanderung / Standort");
  m_eingaben.setText("kom_0", "Volknr");
  const Auswertung::Ergebnis e = laufe("auswertungok");
  EXPECT_EQ(e.titel, "Ergebnis (Wanderung / Standort)");
  EXPECT_EQ(e.liste->überschriften(), QStringList({"Volknr", "Anzahl", "Raps", "Wald"}));
  EXPECT_EQ(zeilen(*e.liste), QStringList("1|3|1|2"));
}

TEST_F(GruppierungenTest, DieKreuztabelleNimmtNurVölkerImBestandUndKannNachNamenGruppieren) {
  const qint64 da = volk("1", imBestand({{"Volkname", "Max & Moritz"}}));
  const qint64 fort = volk("2", {{"Volkname", "Fort"}});
  for (const qint64 id : {da, fort})
    DB.Execute("insert into Honigernte(Honigsorte, Menge_kg, Volk_ID) values ('Raps', 5, ?)", {id});
  m_eingaben.setText("li2", "Honigernte / Honigsorte");
  m_eingaben.setText("kom_0", "Volkname");
  EXPECT_EQ(zeilen(*laufe("auswertungok").liste), QStringList("Max & Moritz|1|1"));
}

TEST_F(GruppierungenTest, KostenUndZeitenJeVolkMitMengeUndWertDerErnte) {
  const qint64 id = volk("7", imBestand());
  for (const double kg : {4.0, 8.0})
    DB.Execute(
        "insert into Honigernte(Menge_kg, Honig_Wert, Kosten, Zeit_h, Volk_ID) values (?, ?, 3, "
        "0.5, ?)",
        {kg, kg * 10, id});
  m_eingaben.setText("kom_2", "Volknr");
  const Auswertung::Ergebnis e = laufe("gruppekostenjetier_0");
  EXPECT_EQ(e.liste->überschriften(),
            QStringList({"Volknr", "Buchungen", "S_Kosten", "Honigwert", "Menge", "Zeit",
                         "D_Kosten", "D_Honigwert", "D_Menge", "D_Zeit"}));
  EXPECT_EQ(zeilen(*e.liste), QStringList("7|2|6,00|120,00|12|1|3,00|60,00|6|0,5"));
  EXPECT_EQ(e.titel, "Ergebnis (Honigernte)");
}

TEST_F(GruppierungenTest, ArbeitenHabenNurKostenUndZeiten) {
  const qint64 id = volk("7", imBestand());
  DB.Execute("insert into Arbeiten(Kosten, Zeit_h, Volk_ID) values (2, 1.5, ?)", {id});
  m_eingaben.setText("kom_2", "Volknr");
  const Auswertung::Ergebnis e = laufe("gruppekostenjetier_4");
  EXPECT_EQ(e.liste->überschriften(),
            QStringList({"Volknr", "Buchungen", "S_Kosten", "Zeit", "D_Kosten", "D_Zeit"}));
  EXPECT_EQ(zeilen(*e.liste), QStringList("7|1|2,00|1,5|2,00|1,5"));
}

TEST_F(GruppierungenTest, NachStandortGruppierteWanderungenMeinenDenDesVolkes) {
  const qint64 id = volk("7", imBestand({{"Standort", "Hausgarten"}}));
  DB.Execute("insert into Wanderung(Standort, Kosten, Zeit_h, Volk_ID) values ('Raps', 2, 1, ?)",
             {id});
  m_eingaben.setText("kom_2", "Standort");
  const Auswertung::Ergebnis e = laufe("gruppekostenjetier_5");
  EXPECT_EQ(zeilen(*e.liste), QStringList("Hausgarten|1|2,00|1|2,00|1"));
  EXPECT_EQ(e.liste->überschrift(0), "Standort");
}

TEST_F(GruppierungenTest, StandorteMitVölkernWabenUndMittelwänden) {
  volk("1", imBestand({{"Standort", "Wald"}, {"Wabenanzahl", 20}, {"Mittelwände", 2}}));
  volk("2", imBestand({{"Standort", "Wald"}, {"Wabenanzahl", 10}, {"Mittelwände", 2}}));
  volk("3", {{"Standort", "Wald"}});
  EXPECT_EQ(zeilen(*laufe("sonstigecom_0").liste), QStringList("Wald|2"));
  EXPECT_EQ(laufe("sonstigecom_1").liste->überschriften(),
            QStringList({"Standort", "Völker", "10", "20"}));
  EXPECT_EQ(zeilen(*laufe("sonstigecom_1").liste), QStringList("Wald|2|1|1"));
  EXPECT_EQ(zeilen(*laufe("sonstigecom_2").liste), QStringList("Wald|2|2"));
  EXPECT_EQ(laufe("sonstigecom_2").titel, "Ergebnis");
}

TEST_F(GruppierungenTest, ImDezemberZugegangenesIstImJanuarEinJahrAlt) {
  // "now" is the day of the computer.
  const QDate heute = QDate::currentDate();
  volk("1", imBestand({{"Volk_Zugangsdatum", QDate(heute.year() - 1, 12, 31)}}));
  volk("2", imBestand({{"Volk_Zugangsdatum", QDate(heute.year(), heute.month(), 1)}}));
  m_eingaben.setText("kom_1", "Volknr");
  const Auswertung::Ergebnis jahre = laufe("sonstigeok_0");
  EXPECT_EQ(jahre.titel, "Ergebnis (Bestandsalter nach Jahren)");
  EXPECT_EQ(jahre.liste->überschriften(), QStringList({"Alter_Jahre", "1", "2"}));
  EXPECT_EQ(zeilen(*jahre.liste), QStringList({"0||1", "1|1|"}));
  EXPECT_EQ(zeilen(*laufe("sonstigeok_1").liste),
            QStringList({"0||1", QString("%1|1|").arg(heute.month())}));
}

TEST_F(GruppierungenTest, VölkerOhneZugangsdatumFehlenInDenAltern) {
  volk("1", imBestand());
  m_eingaben.setText("kom_1", "Volknr");
  EXPECT_EQ(laufe("sonstigeok_0").liste->zeilen(), 0);
}

TEST_F(GruppierungenTest, AlleAngebotenenFelderLassenSichGruppieren) {
  volk("1", imBestand());
  const auto b = Gruppierungen::beschreibung();
  const auto posten = [&](const QString& name) { return b.eingabe(name)->posten(DB, m_eingaben); };
  EXPECT_EQ(posten("li1").size(), 32);
  for (const Auswertung::Posten& p : posten("li1")) {
    m_eingaben.setText("li1", p.schlüssel);
    EXPECT_NO_THROW(laufe("gruppeok")) << p.titel.toStdString();
  }
  EXPECT_EQ(posten("li2").size(), 14);
  EXPECT_EQ(posten("kom_0").first().schlüssel, "Volknr");
  EXPECT_EQ(posten("kom_0")[1].schlüssel, "Volkname");
  for (const Auswertung::Posten& gruppe : posten("kom_0")) {
    for (const char* kom : {"kom_0", "kom_2"}) m_eingaben.setText(kom, gruppe.schlüssel);
    for (const Auswertung::Posten& p : posten("li2")) {
      m_eingaben.setText("li2", p.schlüssel);
      EXPECT_NO_THROW(laufe("auswertungok")) << (p.titel + gruppe.titel).toStdString();
    }
    for (int i = 0; i < 9; ++i)
      EXPECT_NO_THROW(laufe(QString("gruppekostenjetier_%1").arg(i))) << gruppe.titel.toStdString();
  }
  for (const Auswertung::Posten& pivot : posten("kom_1")) {
    m_eingaben.setText("kom_1", pivot.schlüssel);
    for (const char* knopf : {"sonstigeok_0", "sonstigeok_1"})
      EXPECT_NO_THROW(laufe(knopf)) << pivot.titel.toStdString();
  }
}

}  // namespace
