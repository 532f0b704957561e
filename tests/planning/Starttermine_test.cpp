#include "planning/Starttermine.h"

#include <numeric>

#include "planning/Terminbestand.h"

namespace {

using namespace Starttermine;

class StarttermineTest : public Terminbestand {
 protected:
  static std::vector<int> alle(const Daten& daten) {
    std::vector<int> ordnung(static_cast<size_t>(daten->zeilen()));
    std::iota(ordnung.begin(), ordnung.end(), 0);
    return ordnung;
  }
  static void amStandort(const QString& art, const QString& standort, const QString& bis,
                         const Erledigung& erledigung) {
    const Daten daten = liste(db());
    amStandortErledigen(db(), {art, standort, bis}, daten, alle(daten), erledigung);
  }
};

TEST_F(StarttermineTest, TitelNenntDieTageMitEinemBlankDavor) {
  EXPECT_EQ(titel(), "Aktuelle offene Termine (bis 14 Tage ab heute)");
  TZ_Variablen::EinstellungenZahl[Zahlslots.termintage] = 3;
  EXPECT_EQ(titel(), "Aktuelle offene Termine (bis 3 Tage ab heute)");
}

TEST_F(StarttermineTest, GrenzeIstHeutePlusTageUndGehörtDazu) {
  EXPECT_EQ(grenze(), tag(7, 4));
  termin(tag(7, 4), "am Grenztag");
  termin(tag(7, 5), "danach");
  EXPECT_EQ(zeilen(liste(db())), "04.07.2006|am Grenztag|||");
}

TEST_F(StarttermineTest, NullTageZeigenVersäumtesUndHeute) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.termintage] = 0;
  termin(QDate(2003, 1, 1), "vor Jahren");
  termin(tag(6, 20), "heute");
  termin(tag(6, 21), "morgen");
  EXPECT_EQ(zeilen(liste(db())), "01.01.2003|vor Jahren|||; 20.06.2006|heute|||");
}

TEST_F(StarttermineTest, ErledigteUndVerwaisteZeilenKommenNicht) {
  const qint64 volk = neuesVolk("1", "X", "Hof");
  termin(tag(6, 1), "erledigt", volk, "J");
  termin(tag(6, 1), "erledigt", 0, "J");
  termin(tag(6, 1), "ohne Volk", 4711);
  termin(tag(6, 1), "offen", volk);
  EXPECT_EQ(zeilen(liste(db())), "01.06.2006|offen|1||Hof");
}

TEST_F(StarttermineTest, VolkUndAllgemeineStehenInEinerListeNachDatumTerminUndVolknummer) {
  const qint64 zwei = neuesVolk("2", "X", "Hof");
  const qint64 zehn = neuesVolk("10", "X", "Hof");
  termin(tag(6, 21), "B", zwei);
  termin(tag(6, 21), "A", zwei);
  termin(tag(6, 21), "A", zehn);
  termin(tag(6, 21), "A");
  termin(tag(6, 19), "Z");
  EXPECT_EQ(zeilen(liste(db())),
            "19.06.2006|Z|||; 21.06.2006|A|||; 21.06.2006|A|10||Hof; 21.06.2006|A|2||Hof; "
            "21.06.2006|B|2||Hof");
}

TEST_F(StarttermineTest, ListeHatDieSpaltenUndIDs) {
  const qint64 id = termin(tag(6, 21), "Schau");
  const Daten daten = liste(db());
  QStringList namen;
  for (int i = 0; i < daten->spalten(); ++i) namen << daten->spalte(i).name;
  EXPECT_EQ(namen, QStringList({"Datum", "Termin", "Volknr", "Volkname", "Standort", "ID"}));
  EXPECT_EQ(daten->ganzzahl(0, 5), id);
}

TEST_F(StarttermineTest, GruppiertGibtEineZeileJeStandortTagUndArtMitDerZahlDerVölker) {
  const qint64 a = neuesVolk("1", "X", "Heide");
  const qint64 b = neuesVolk("2", "X", "Heide");
  const qint64 c = neuesVolk("3", "X", "Hof");
  termin(tag(6, 21), "Schau", a);
  termin(tag(6, 21), "Schau", b);
  termin(tag(6, 22), "Schau", b);
  termin(tag(6, 21), "Schau", c);
  termin(tag(6, 21), "Schau");
  termin(tag(7, 5), "Schau", c);
  termin(tag(6, 21), "Schau", c, "J");
  const Daten daten = gruppiert(db());
  EXPECT_EQ(zeilen(daten),
            "Heide|21.06.2006|Schau|2; Heide|22.06.2006|Schau|1; Hof|21.06.2006|Schau|1");
  EXPECT_EQ(daten->spalte(3).name, QString("Anz_Völker"));
}

TEST_F(StarttermineTest, AktuellerMitUngültigemDatumBehältTagUndReihe) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  termin(tag(6, 29), "A", 7);
  option("A", "01.06", 14, "31.08");
  aktuellenErledigen(db(), id, "A", {"31.02.2006", true});
  EXPECT_EQ(termine(), "15.06. A J 7; 29.06. A N 7");
}

TEST_F(StarttermineTest, AktuellerMitDatumWirdAnDiesemTagErledigt) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  aktuellenErledigen(db(), id, "A", {"18.06.2006", false});
  EXPECT_EQ(termine(), "18.06. A J 7");
}

TEST_F(StarttermineTest, ArbeitsartenStehenInDerOrdnungOhneLeere) {
  option("Zeidlerkontrolle", "01.06", 14, "31.08");
  option("", "01.06", 14, "31.08");
  option("Ährenlese", "01.06", 14, "31.08");
  EXPECT_EQ(arbeitsarten(db()), QStringList({QString("Ährenlese"), "Zeidlerkontrolle"}));
}

TEST_F(StarttermineTest, MarkierteBehaltenIhrenTag) {
  const qint64 a = termin(tag(6, 15), "A", 7);
  const qint64 b = termin(tag(6, 16), "B");
  termin(tag(6, 17), "C");
  markierteErledigen(db(), {a, b});
  EXPECT_EQ(termine(), "15.06. A J 7; 16.06. B J 0; 17.06. C N 0");
}

TEST_F(StarttermineTest, BisHeuteErledigtAuchHeuteUndNichtMorgen) {
  termin(tag(6, 1), "A", 7);
  termin(tag(6, 20), "B");
  termin(tag(6, 21), "C");
  termin(QDate(2001, 1, 1), "verwaist", 4711);
  bisHeuteErledigen(db());
  EXPECT_EQ(termine(), "01.06. A J 7; 20.06. B J 0; 21.06. C N 0; 01.01. verwaist J 4711");
}

TEST_F(StarttermineTest, StandortBrauchtArtOrtUndDatum) {
  EXPECT_TRUE(unvollständig({"", "Hof", "20.06.2006"}));
  EXPECT_TRUE(unvollständig({"A", "", "20.06.2006"}));
  EXPECT_TRUE(unvollständig({"A", "Hof", ""}));
  EXPECT_TRUE(unvollständig({"A", "Hof", "31.02.2006"}));
  EXPECT_FALSE(unvollständig({"A", "Hof", "20.06.2006"}));
}

TEST_F(StarttermineTest, StandortZähltOffeneDerArtBisZumTag) {
  const qint64 a = neuesVolk("1", "X", "Hof");
  const qint64 b = neuesVolk("2", "X", "Heide");
  termin(tag(6, 21), "A", a);
  termin(tag(6, 22), "A", a);
  termin(tag(6, 23), "A", a);
  termin(tag(6, 21), "B", a);
  termin(tag(6, 21), "A", b);
  termin(tag(6, 20), "A", a, "J");
  EXPECT_EQ(gefunden(db(), {"A", "Hof", "22.06.2006"}), 2);
  EXPECT_EQ(gefunden(db(), {"C", "Hof", "22.06.2006"}), 0);
}

TEST_F(StarttermineTest, StandortErledigtAlleDerArtBisZumTagMitDemDatumDerArbeit) {
  const qint64 a = neuesVolk("1", "X", "Hof");
  const qint64 b = neuesVolk("2", "X", "Hof");
  const qint64 c = neuesVolk("3", "X", "Heide");
  termin(tag(6, 21), "A", a);
  termin(tag(6, 22), "A", b);
  termin(tag(6, 23), "A", b);
  termin(tag(6, 21), "B", a);
  termin(tag(6, 21), "A", c);
  amStandort("A", "Hof", "22.06.2006", {"19.06.2006", false});
  const std::string va = std::to_string(a);
  const std::string vb = std::to_string(b);
  EXPECT_EQ(termine(), "19.06. A J " + va + "; 19.06. A J " + vb + "; 23.06. A N " + vb +
                           "; 21.06. B N " + va + "; 21.06. A N " + std::to_string(c));
}

TEST_F(StarttermineTest, StandortErledigtNurWasInDerListeSteht) {
  const qint64 volk = neuesVolk("1", "X", "Hof");
  termin(tag(7, 4), "A", volk);
  termin(tag(7, 5), "A", volk);
  EXPECT_EQ(gefunden(db(), {"A", "Hof", "31.07.2006"}), 2);
  amStandort("A", "Hof", "31.07.2006", {"20.06.2006", false});
  EXPECT_EQ(termine(),
            "20.06. A J " + std::to_string(volk) + "; 05.07. A N " + std::to_string(volk));
}

TEST_F(StarttermineTest, StandortPasstDieReiheJedesVolkesAn) {
  const qint64 a = neuesVolk("1", "X", "Hof");
  const qint64 b = neuesVolk("2", "X", "Hof");
  option("A", "01.06", 14, "05.07");
  termin(tag(6, 15), "A", a);
  termin(tag(6, 22), "A", a);
  termin(tag(6, 15), "A", b);
  amStandort("A", "Hof", "30.06.2006", {"20.06.2006", true});
  EXPECT_EQ(termine("Volk_ID = " + QString::number(a)),
            "20.06. A J " + std::to_string(a) + "; 04.07. A N " + std::to_string(a));
  EXPECT_EQ(termine("Volk_ID = " + QString::number(b)),
            "20.06. A J " + std::to_string(b) + "; 04.07. A N " + std::to_string(b));
}

TEST_F(StarttermineTest, StandortMitUngültigemDatumBehältDieTageUndDieReihe) {
  const qint64 volk = neuesVolk("1", "X", "Hof");
  option("A", "01.06", 14, "31.08");
  for (const char* datum : {"", "31.02.2006"}) {
    db().Execute("delete from Termine");
    termin(tag(6, 15), "A", volk);
    termin(tag(7, 20), "A", volk);
    amStandort("A", "Hof", "30.06.2006", {datum, true});
    EXPECT_EQ(termine(),
              "15.06. A J " + std::to_string(volk) + "; 20.07. A N " + std::to_string(volk));
  }
}

TEST_F(StarttermineTest, StandortFindetWasMitBacktickGespeichertIst) {
  const qint64 volk = neuesVolk("1", "X", "Bauer`s Hof");
  termin(tag(6, 15), "Rund um`s Volk", volk);
  EXPECT_EQ(gefunden(db(), {"Rund um's Volk", "Bauer's Hof", "30.06.2006"}), 1);
  amStandort(" Rund um's Volk", "Bauer's Hof ", "30.06.2006", {"20.06.2006", false});
  EXPECT_EQ(termine(), "20.06. Rund um`s Volk J " + std::to_string(volk));
  EXPECT_TRUE(unvollständig({" ", "Hof", "30.06.2006"}));
  EXPECT_TRUE(unvollständig({"A", " ", "30.06.2006"}));
}

TEST_F(StarttermineTest, StandortAchtetNichtAufGroßUndKlein) {
  const qint64 volk = neuesVolk("1", "X", "Hof");
  termin(tag(6, 15), "Durchsicht", volk);
  EXPECT_EQ(gefunden(db(), {"durchsicht", "HOF", "30.06.2006"}), 1);
  amStandort("durchsicht", "HOF", "30.06.2006", {"20.06.2006", false});
  EXPECT_EQ(termine(), "20.06. Durchsicht J " + std::to_string(volk));
}

TEST_F(StarttermineTest, StandortLässtAllgemeineTermineDerselbenArtOffen) {
  const qint64 volk = neuesVolk("1", "X", "");
  termin(tag(6, 15), "A");
  termin(tag(6, 15), "A", volk);
  termin(tag(6, 15), "A", neuesVolk("2", "X", "Hof"));
  amStandort("A", "Hof", "30.06.2006", {"20.06.2006", false});
  EXPECT_EQ(anzahl("Termine", "Erledigt = 'N'"), 2);
}

TEST_F(StarttermineTest, FragenUndHinweisNennenZahlUndTag) {
  EXPECT_EQ(markierteFrage(3), "Sollen die 3 Termine wirklich als erledigt markiert werden?");
  EXPECT_EQ(bisHeuteFrage(),
            "Sollen wirklich alle Termine bis einschließlich zum 20.06.2006 als erledigt markiert "
            "werden?");
  EXPECT_EQ(standortFrage(2),
            "Es wurden 2 Termine gefunden. Sollen diese wirklich erledigt werden?");
  EXPECT_EQ(unvollständigText(),
            "Die Terminart, der betroffene Standort und der Zeitraum (bis wann eine Erledigung "
            "gewünscht wird) muss angegeben werden!");
}

// Every row stands in its place, whichever way the two statements gave it.
TEST_F(StarttermineTest, FünfzigtausendZeilenStehenGeordnet) {
  const qint64 volk = neuesVolk("1", "X", "Hof");
  db().Sammelschreiben([&] {
    for (int i = 0; i < 50000; ++i)
      termin(tag(1, 1).addDays((i * 7919) % 180), QString("T%1").arg(i % 13), i % 3 ? volk : 0);
  });
  const Daten daten = liste(db());
  EXPECT_EQ(daten->zeilen(), anzahl("Termine", "Datum <= #07/04/2006#"));
  EXPECT_EQ(daten->zeilen(), 50000);
  for (int i = 1; i < daten->zeilen(); ++i) {
    const auto vorher = daten->rohtext(i - 1, 0);
    const auto jetzt = daten->rohtext(i, 0);
    ASSERT_LE(vorher.toByteArray(), jetzt.toByteArray()) << i;
    if (vorher == jetzt) {
      ASSERT_LE(daten->anzeige(i - 1, 1), daten->anzeige(i, 1)) << i;
    }
  }
}

}  // namespace
