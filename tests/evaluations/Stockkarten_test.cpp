#include "evaluations/Stockkarten.h"

#include "colonies/Testbetrieb.h"
#include "data/helpers.h"
#include "evaluations/Probelauf.h"
#include "output/Textausgabe.h"

using namespace TZ_Variablen;

namespace {

// The measured fields in the order of the report's columns.
const QStringList Messfelder{"Volkstärke",
                             "Brutstand",
                             "Wabensitz",
                             "Sanftmut",
                             "Schwarmtrieb",
                             "Frühjahrsentw",
                             "Winterfestigkeit",
                             "Varroabefall",
                             "Belagert",
                             "Magazine",
                             "Waben",
                             "Honigwaben",
                             "Brutwaben",
                             "Pollenwaben",
                             "Drohnenwaben",
                             "Leerwaben",
                             "Futterwaben",
                             "Mittelwände",
                             "HW_verdeckelt",
                             "BW_Stift",
                             "BW_offen",
                             "BW_verdeckelt",
                             "Futter_flüssig_l",
                             "Futter_Teig_kg",
                             "Eigener_Futtervorrat"};

class Stockkarte : public Testbetrieb {
 protected:
  static void durchsicht(qint64 volk, const QVariant& datum, QVariantList werte,
                         const QVariant& bemerkung = {}) {
    werte.resize(Messfelder.size());
    const QStringList fragezeichen(Messfelder.size() + 3, "?");
    db().Execute("insert into Stockkarte(" + Messfelder.join(", ") +
                     ", Datum, Bemerkung, Volk_ID) values (" + fragezeichen.join(", ") + ")",
                 werte + QVariantList{datum, bemerkung, volk});
  }

  // Four colonies: two inspections, one, none, three of which two are of the same day.
  static void betrieb() {
    const qint64 a1 = neuesVolk("A1", "X");
    neuesVolk("9", "X");
    const qint64 sieben = neuesVolk("7", "");
    const qint64 zwölf = neuesVolk("12", "X");
    durchsicht(zwölf, QDate(2006, 5, 1), {4.5, 2.5, 3, 3.5, 1.5, 2,  5,  0,  4,  2,   10, 3, 5,
                                          1,   1,   0, 0,   5,   25, 40, 35, 25, 1.5, 0,  3},
               "Honigraum auf");
    durchsicht(zwölf, QDate(2006, 4, 3), {3, 2.5, 4, 3.5, 1, 2, 5,  0.5, 4,  1, 8, 2,  4,
                                          1, 0,   1, 0,   2, 0, 50, 30,  20, 0, 0, 3.5},
               "Kontrolle");
    durchsicht(sieben, QDate(2005, 5, 20), {2});
    durchsicht(a1, QDate(2006, 6, 10),
               {5, 4, 5, 3.5, 5, 5, 5, 5, 5, 2, 9, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 100, 0, 0, 0.25});
    durchsicht(a1, QDate(2006, 6, 10), {4.75, QVariant(), 5, 3.5, 5, 5,   5, 5, 5, 2, 11, 0, 0,
                                        0,    0,          0, 0,   0, 100, 0, 0, 0, 0, 0,  0},
               "zweite Durchsicht");
    durchsicht(a1, QDate(2006, 3, 10), {5, 5, 5, -3.5, 5, 5, 5, 5, 5, 1200, 9,      0, 0,
                                        0, 0, 0, 0,    0, 0, 0, 0, 0, 12.5, 100.25, 0},
               "Ol'ga");
  }

  static Probelauf auswertung() { return Probelauf(Stockkarten::beschreibung()); }

  // LISTE.TXT as it lies on the disk, readable.
  static std::string datei(Probelauf& a) {
    Textausgabe::listeSchreiben(*a.drücke("ok").text);
    return Textdatei::vonCp1252(Probelauf::inhalt(AppPfad + "LISTE.TXT"))
        .replace("\r\n", "\n")
        .toStdString();
  }
  static std::string golden(const QString& name) {
    return Probelauf::inhalt(QStringLiteral(TOVA_TESTDATEN "/Stockkarten_") + name + ".golden.txt")
        .toStdString();
  }
  // The lines of the inspections.
  static QStringList zeilen(Probelauf& a) { return a.drücke("ok").text->mid(4); }
  static QString zelle(const QString& zeile, int spalte) { return zeile.split('|').at(spalte - 1); }
};

TEST_F(Stockkarte, AlleDurchsichtenAllerVölker) {
  betrieb();
  auto a = auswertung();
  EXPECT_EQ(datei(a), golden("Alle"));
}

TEST_F(Stockkarte, AbDerZweitenZeileÄnderungenUndAmEndeDieLetzteDurchsichtGanz) {
  betrieb();
  auto a = auswertung();
  a.hake("konseparat");
  EXPECT_EQ(datei(a), golden("Aenderungen"));
}

TEST_F(Stockkarte, ZeitraumMitAbkürzungenUndEinerLeerzeileNachJedemVolkMitDurchsichten) {
  betrieb();
  auto a = auswertung();
  a.hake("kondetails");
  a.hake("tierleer_0");
  a.e.setWahl("optibuch", 1);
  a.e.setText("tdat", 0, "10.03.2006");
  a.e.setText("tdat", 1, "09.06.2006");
  EXPECT_EQ(datei(a), golden("Abkuerzungen"));
}

TEST_F(Stockkarte, NurDieLetzteGibtDieÄltesteUndZweiLeerzeilenStehenVorDerTrennlinie) {
  betrieb();
  auto a = auswertung();
  a.hake("konseparat");
  a.hake("tierleer_1");
  a.hake("kontrennlinie");
  a.e.setWahl("optibuch", 2);
  EXPECT_EQ(datei(a), golden("Aelteste"));
}

TEST_F(Stockkarte, OhneVölkerEndetDerBerichtNachDemKopf) {
  auto a = auswertung();
  EXPECT_EQ(a.drücke("ok").text->size(), 4);
}

TEST_F(Stockkarte, EineDurchsichtHatNurIhreGanzeZeile) {
  const qint64 volk = neuesVolk("1");
  durchsicht(volk, QDate(2006, 4, 1), {3});
  auto a = auswertung();
  a.hake("konseparat");
  EXPECT_EQ(zeilen(a).size(), 1);
}

TEST_F(Stockkarte, ZweiDurchsichtenHabenDreiZeilenDreiHabenVier) {
  const qint64 volk = neuesVolk("1");
  durchsicht(volk, QDate(2006, 4, 1), {3});
  durchsicht(volk, QDate(2006, 5, 1), {4.5});
  auto a = auswertung();
  a.hake("konseparat");
  QStringList ist;
  for (const QString& z : zeilen(a)) ist += zelle(z, 3);
  EXPECT_EQ(ist, QStringList({" 3,0", "+1,5", " 4,5"}));
  durchsicht(volk, QDate(2006, 6, 1), {4});
  ist.clear();
  for (const QString& z : zeilen(a)) ist += zelle(z, 3);
  EXPECT_EQ(ist, QStringList({" 3,0", "+1,5", "-0,5", " 4,0"}));
}

TEST_F(Stockkarte, NurDieMittelwändeHabenKeinPluszeichen) {
  const qint64 volk = neuesVolk("1");
  durchsicht(volk, QDate(2006, 4, 1), QVariantList(25, 2));
  durchsicht(volk, QDate(2006, 5, 1), QVariantList(25, 5));
  auto a = auswertung();
  a.hake("konseparat");
  const QString zeile = zeilen(a).at(1);
  for (int spalte = 3; spalte <= 27; ++spalte)
    EXPECT_EQ(zelle(zeile, spalte).contains('+'), spalte != 20) << spalte;
  EXPECT_EQ(zelle(zeile, 20), "  3");
}

TEST_F(Stockkarte, EineÄnderungWirdAlsDezimalzahlGerundet) {
  const qint64 volk = neuesVolk("1");
  durchsicht(volk, QDate(2006, 4, 1), {1.25});
  durchsicht(volk, QDate(2006, 5, 1), {1.3});
  auto a = auswertung();
  a.hake("konseparat");
  EXPECT_EQ(zelle(zeilen(a).at(1), 3), "+0,1");
}

TEST_F(Stockkarte, AuchMitDemAktuellenVolkWerdenAlleGelistet) {
  betrieb();
  auto a = auswertung();
  a.e.setWahl("optitieraus", 4);
  a.e.volk = 1;
  EXPECT_EQ(datei(a), golden("Alle"));
  a.schließen();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.völkerwahl], 4);
}

TEST_F(Stockkarte, EineDurchsichtOhneTagStehtVornUndFehltImZeitraum) {
  const qint64 volk = neuesVolk("1");
  durchsicht(volk, QDate(1990, 1, 1), {3});
  durchsicht(volk, QVariant(), {4});
  auto a = auswertung();
  EXPECT_EQ(zelle(zeilen(a).at(0), 2), "          ");
  a.e.setWahl("optibuch", 1);
  a.e.setText("tdat", 0, "01.01.1990");
  a.e.setText("tdat", 1, "31.12.2026");
  EXPECT_EQ(zeilen(a).size(), 1);
}

TEST_F(Stockkarte, EineDurchsichtOhneIhrVolkStehtInKeinerZeile) {
  neuesVolk("1");
  durchsicht(999, QDate(2006, 4, 1), {3});
  auto a = auswertung();
  EXPECT_EQ(zeilen(a), QStringList());
}

TEST_F(Stockkarte, DieBeidenLeerzeilenkästchenSchließenEinanderAus) {
  auto a = auswertung();
  a.hake("tierleer_0");
  a.hake("tierleer_1");
  EXPECT_FALSE(a.e.an("tierleer", 0));
  a.hake("tierleer_0");
  EXPECT_FALSE(a.e.an("tierleer", 1));
  EXPECT_TRUE(a.e.an("tierleer", 0));
  a.hake("tierleer_0", false);
  EXPECT_FALSE(a.e.an("tierleer", 1));
}

TEST_F(Stockkarte, AlleKästchenHabenIhrePlätze) {
  EinstellungenZahl[Zahlslots.stockkartenAbstand] = 2;
  EinstellungenZahl[Zahlslots.stockkartenTrennlinie] = 1;
  EinstellungenZahl[Zahlslots.buchungsauswahl] = 2;
  auto a = auswertung();
  EXPECT_TRUE(a.e.an("tierleer", 1));
  EXPECT_TRUE(a.e.an("kontrennlinie"));
  EXPECT_EQ(a.e.wahl("optibuch"), 2);
  a.hake("tierleer_0");
  a.hake("konseparat");
  a.hake("kondetails");
  a.hake("kontrennlinie", false);
  a.schließen();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.stockkartenAbstand], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.stockkartenÄnderungen], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.stockkartenAbkürzungen], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.stockkartenTrennlinie], 0);
}

TEST_F(Stockkarte, GeprüftWirdDerZeitraumAllein) {
  auto a = auswertung();
  EXPECT_TRUE(a.drücke("ok").text);
  a.wähle("optibuch", 1);
  EXPECT_FALSE(a.drücke("ok").text);
  EXPECT_EQ(a.meldungen, QStringList("Die Daten können nicht gelistet werden, weil...\r\n\r\n"
                                     "...das Datum von...bis eingegeben werden muß."));
}

}  // namespace
