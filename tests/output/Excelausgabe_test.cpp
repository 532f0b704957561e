#include "output/Excelausgabe.h"

#include <gtest/gtest.h>

#include <QDir>

#include "gemeinsam/Programmordner.h"
#include "output/Listen.h"
#include "platform/files/Textdatei.h"
#include "platform/files/Xlsx.h"

namespace {

class ExcelausgabeTest : public testing::Test {
 protected:
  Xlsx blatt(const Ausgabeliste& liste, const Listenkopf& kopf = {}) const {
    Excelausgabe::schreiben(Excelausgabe::datei(), liste, kopf);
    return Xlsx(Excelausgabe::datei());
  }
  static Ausgabeliste eineSpalte(const QVariantList& werte, Feldtyp typ = Feldtyp::Text) {
    QList<QVariantList> zeilen;
    for (const QVariant& w : werte) zeilen += QVariantList{w};
    return Ausgabeliste(Listen::block({{"Wert", typ, 0}}, zeilen));
  }

  Programmordner ordner{"20.11.2026"};
};

TEST_F(ExcelausgabeTest, DieDateiHeißtTovaListeUndLiegtImProgrammordner) {
  EXPECT_EQ(Excelausgabe::datei(), ordner.filePath("tova_liste.xlsx"));
}

TEST_F(ExcelausgabeTest, DieÜberschriftenStehenFettInDerErstenZeile) {
  const Xlsx x = blatt(Ausgabeliste(Listen::ernte(), {"Volk", "Ernten"}));
  EXPECT_EQ(x.text("A1"), "Volk");
  EXPECT_EQ(x.text("B1"), "Ernten");
  EXPECT_EQ(x.text("C1"), "Menge_kg");
  EXPECT_EQ(x.text("E1"), "Datum");
  for (const char* z : {"A1", "B1", "C1", "D1", "E1"}) EXPECT_TRUE(x.fett(z)) << z;
  EXPECT_FALSE(x.fett("A2"));
}

TEST_F(ExcelausgabeTest, DieZellenStehenAbDerZweitenZeile) {
  const Xlsx x = blatt(Ausgabeliste(Listen::ernte()));
  EXPECT_EQ(x.text("A2"), "Anna");
  EXPECT_TRUE(x.istZahl("B2"));
  EXPECT_EQ(x.text("B2"), "2");
  EXPECT_TRUE(x.istZahl("C2"));
  EXPECT_EQ(x.text("C2"), "12.5");
  EXPECT_EQ(x.text("D3"), "1049");
  EXPECT_EQ(x.text("A4"), QString("Cäsar"));
  EXPECT_FALSE(x.gibtEs("B4"));
  EXPECT_EQ(x.anzahl(), 5 + 5 + 5 + 1);
}

TEST_F(ExcelausgabeTest, EinDatumBleibtText) {
  const Xlsx x = blatt(Ausgabeliste(Listen::ernte()));
  EXPECT_FALSE(x.istZahl("E2"));
  EXPECT_EQ(x.text("E2"), "04.05.2026");
}

TEST_F(ExcelausgabeTest, EinTextMitKommaWirdEineZahl) {
  const Xlsx x = blatt(eineSpalte({"12,5", "x"}));
  EXPECT_TRUE(x.istZahl("A2"));
  EXPECT_EQ(x.text("A2"), "12.5");
}

TEST_F(ExcelausgabeTest, EinTextMitEigenemPunktBleibtText) {
  const Xlsx x = blatt(eineSpalte({"12.5", "1.234,50"}));
  EXPECT_FALSE(x.istZahl("A2"));
  EXPECT_EQ(x.text("A2"), "12.5");
  EXPECT_EQ(x.text("A3"), "1.234,50");
}

TEST_F(ExcelausgabeTest, ZweiKommasSindKeineZahl) {
  const Xlsx x = blatt(eineSpalte({"1,2,3"}));
  EXPECT_FALSE(x.istZahl("A2"));
  EXPECT_EQ(x.text("A2"), "1,2,3");
}

TEST_F(ExcelausgabeTest, ZahlenspaltenStehenRechtsMitZweiNachkommastellen) {
  const Xlsx x = blatt(Ausgabeliste(Listen::ernte()));
  for (const char* z : {"B2", "C2", "D2", "C3"}) {
    EXPECT_EQ(x.format(z), "#,##0.00") << z;
    EXPECT_TRUE(x.rechts(z)) << z;
  }
  for (int s : {2, 3, 4}) {
    EXPECT_EQ(x.spaltenformat(s), "#,##0.00");
    EXPECT_TRUE(x.spalteRechts(s));
  }
  EXPECT_TRUE(x.rechts("B1"));
  for (const char* z : {"A1", "A2", "E2"}) {
    EXPECT_EQ(x.format(z), "") << z;
    EXPECT_FALSE(x.rechts(z)) << z;
  }
}

TEST_F(ExcelausgabeTest, EineSpalteMitEinemTextHatKeinZahlenformat) {
  const Xlsx x = blatt(eineSpalte({7, "viel", 8}, Feldtyp::Ausdruck));
  EXPECT_TRUE(x.istZahl("A2"));
  EXPECT_EQ(x.format("A2"), "");
  EXPECT_EQ(x.spaltenformat(1), "");
}

TEST_F(ExcelausgabeTest, LeereZellenUndTrennzeilenStörenDieZahlenspalteNicht) {
  const Xlsx x = blatt(eineSpalte({7, QVariant(), ".", "", 8}, Feldtyp::Ausdruck));
  EXPECT_EQ(x.spaltenformat(1), "#,##0.00");
  EXPECT_EQ(x.text("A4"), ".");
  EXPECT_FALSE(x.istZahl("A4"));
  EXPECT_EQ(x.text("A6"), "8");
}

TEST_F(ExcelausgabeTest, EineSpalteOhneWerteHatKeinZahlenformat) {
  EXPECT_EQ(blatt(eineSpalte({QVariant(), QVariant()}, Feldtyp::Lang)).spaltenformat(1), "");
}

TEST_F(ExcelausgabeTest, HinterDerZweiundfünfzigstenSpalteStehenZahlenOhneFormat) {
  std::vector<Spalte> spalten;
  QVariantList zeile;
  for (int i = 1; i <= 54; ++i) {
    spalten.push_back({"S" + QString::number(i), Feldtyp::Lang, 0});
    zeile += i;
  }
  const Xlsx x = blatt(Ausgabeliste(Listen::block(spalten, {zeile})));
  EXPECT_EQ(x.format("AZ2"), "#,##0.00");
  EXPECT_EQ(x.spaltenformat(52), "#,##0.00");
  EXPECT_EQ(x.text("BA2"), "53");
  EXPECT_TRUE(x.istZahl("BA2"));
  EXPECT_EQ(x.format("BA2"), "");
  EXPECT_EQ(x.spaltenformat(53), "");
  EXPECT_EQ(x.text("BB1"), "S54");
}

TEST_F(ExcelausgabeTest, KopftextAlleinGibtZweiZeilenDarüber) {
  const Xlsx x = blatt(eineSpalte({"x"}), {"", "Imkerei Königsblüte"});
  EXPECT_EQ(x.text("A1"), QString("Imkerei Königsblüte"));
  EXPECT_FALSE(x.gibtEs("A2"));
  EXPECT_EQ(x.text("A3"), "Wert");
  EXPECT_TRUE(x.fett("A3"));
  EXPECT_EQ(x.text("A4"), "x");
}

TEST_F(ExcelausgabeTest, DatumAlleinGibtEineZeileDarüber) {
  const Xlsx x = blatt(eineSpalte({7}), {"20.11.2026", ""});
  EXPECT_EQ(x.text("A1"), "20.11.2026");
  EXPECT_FALSE(x.istZahl("A1"));
  EXPECT_FALSE(x.fett("A1"));
  EXPECT_FALSE(x.rechts("A1"));
  EXPECT_EQ(x.text("A2"), "Wert");
  EXPECT_EQ(x.text("A3"), "7");
}

TEST_F(ExcelausgabeTest, DatumUndKopftextGebenVierZeilenDarüber) {
  const Xlsx x = blatt(eineSpalte({"x"}), {"20.11.2026", "Kopf"});
  EXPECT_EQ(x.text("A1"), "20.11.2026");
  EXPECT_FALSE(x.gibtEs("A2"));
  EXPECT_EQ(x.text("A3"), "Kopf");
  EXPECT_FALSE(x.gibtEs("A4"));
  EXPECT_EQ(x.text("A5"), "Wert");
  EXPECT_EQ(x.text("A6"), "x");
}

TEST_F(ExcelausgabeTest, DieZeilenStehenWieSieGezeigtWerden) {
  const Xlsx x = blatt(Ausgabeliste(Listen::ernte(), {}, {2, 0}));
  EXPECT_EQ(x.text("A2"), QString("Cäsar"));
  EXPECT_EQ(x.text("A3"), "Anna");
  EXPECT_FALSE(x.gibtEs("A4"));
}

TEST_F(ExcelausgabeTest, UmlauteEmojiUndZeilenwechselBleibenSteuerzeichenNicht) {
  const Xlsx x = blatt(eineSpalte({"Bärbel 🐝\nzweite Zeile", QString("a") + QChar(1) + "b"}));
  EXPECT_EQ(x.text("A2"), QString("Bärbel 🐝\nzweite Zeile"));
  EXPECT_EQ(x.text("A3"), "ab");
}

TEST_F(ExcelausgabeTest, KannNichtGeschriebenWerdenNenntDieMeldungDieDatei) {
  ASSERT_TRUE(QDir().mkdir(Excelausgabe::datei()));
  try {
    Excelausgabe::schreiben(Excelausgabe::datei(), Ausgabeliste(Listen::ernte()), {});
    FAIL();
  } catch (const Dateifehler& fehler) {
    EXPECT_TRUE(fehler.text().contains("tova_liste.xlsx")) << fehler.what();
  }
}

TEST_F(ExcelausgabeTest, EineListeLängerAlsEinBlattWirdAbgelehnt) {
  const Daten d = Listen::block({{"a", Feldtyp::Text, 1}}, {{"x"}});
  const Ausgabeliste liste(d, {}, std::vector<int>(1048576, 0));
  EXPECT_THROW(Excelausgabe::schreiben(Excelausgabe::datei(), liste, {}), Dateifehler);
  EXPECT_FALSE(QFile::exists(Excelausgabe::datei()));
}

}  // namespace
