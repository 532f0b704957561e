#include "output/Textliste.h"

#include <gtest/gtest.h>

#include "gemeinsam/Programmordner.h"
#include "output/Listen.h"
#include "platform/files/Textdatei.h"

namespace {

using TZ_Variablen::EinstellungenText;
using TZ_Variablen::EinstellungenZahl;

class TextlisteTest : public testing::Test {
 protected:
  // The file as it lies on the disk.
  QByteArray datei(const Ausgabeliste& liste, const Listenkopf& kopf = {},
                   const QString& trennzeichen = " | ") const {
    Textliste::schreiben(Textliste::datei(), liste, kopf, trennzeichen);
    return Listen::bytes(Textliste::datei());
  }
  // Readable: decoded, line ends as LF.
  std::string text(const Ausgabeliste& liste, const Listenkopf& kopf = {},
                   const QString& trennzeichen = " | ") const {
    QString t = Textdatei::vonCp1252(datei(liste, kopf, trennzeichen));
    EXPECT_EQ(t.count('\n'), t.count("\r\n"));
    return t.remove('\r').toStdString();
  }
  static std::string golden(const QString& name) {
    return Listen::bytes(QStringLiteral(TOVA_TESTDATEN "/") + name).toStdString();
  }

  Programmordner ordner{"20.11.2026"};
};

const std::string Ernte =
    "Volkname | Anz_Ernten | Menge_kg | Erlös   | Datum     \n"
    "-------------------------------------------------------\n"
    "Anna     |          2 |     12,5 |   87,50 | 04.05.2026\n"
    "Bärbel   |         10 |        7 | 1049,00 | 21.07.2026\n"
    "Cäsar    |            |          |         |           \n";

TEST_F(TextlisteTest, DieDateiHeißtListeUndLiegtImProgrammordner) {
  EXPECT_EQ(Textliste::datei(), ordner.filePath("LISTE.TXT"));
}

TEST_F(TextlisteTest, ZahlenStehenRechtsAllesAndereLinks) {
  EXPECT_EQ(text(Ausgabeliste(Listen::ernte())), Ernte);
}

TEST_F(TextlisteTest, DieBreiteIstDerLängsteTextVonKopfUndZellen) {
  EXPECT_EQ(text(Ausgabeliste(Listen::block({{"a", Feldtyp::Text, 9}, {"lang", Feldtyp::Text, 9}},
                                            {{"xyz", "b"}}))),
            "a   | lang\n"
            "----------\n"
            "xyz | b   \n");
}

TEST_F(TextlisteTest, ÜberschriftenTretenAnDieStelleDerNamen) {
  EXPECT_EQ(text(Ausgabeliste(Listen::block({{"a", Feldtyp::Text, 9}}, {{"x"}}), {"Volk"})),
            "Volk\n----\nx   \n");
}

TEST_F(TextlisteTest, DieZeilenStehenWieSieGezeigtWerden) {
  EXPECT_EQ(text(Ausgabeliste(Listen::block({{"a", Feldtyp::Text, 9}}, {{"1."}, {"2."}, {"3."}}),
                              {}, {2, 0})),
            "a \n--\n3.\n1.\n");
}

TEST_F(TextlisteTest, DatumAlsListenkopf) {
  EXPECT_EQ(text(Ausgabeliste(Listen::ernte()), {"20.11.2026", ""}),
            "Datum: 20.11.2026\n\n" + Ernte);
}

TEST_F(TextlisteTest, KopftextOhneDatum) {
  EXPECT_EQ(text(Ausgabeliste(Listen::ernte()), {"", "Imkerei Königsblüte"}),
            "Imkerei Königsblüte\n\n" + Ernte);
}

TEST_F(TextlisteTest, DatumUndKopftextMitEinerLeerzeileDarunter) {
  EXPECT_EQ(text(Ausgabeliste(Listen::ernte()), {"20.11.2026", "Imkerei Königsblüte"}),
            "Datum: 20.11.2026\nImkerei Königsblüte\n\n" + Ernte);
}

TEST_F(TextlisteTest, OhneDatumUndKopftextBeginntDieListeMitDenÜberschriften) {
  EXPECT_EQ(text(Ausgabeliste(Listen::ernte()), {"", ""}).substr(0, 8), "Volkname");
}

TEST_F(TextlisteTest, EineTrennzeileGibtLeerzeilenUndDieÜberschriftenNocheinmal) {
  const Daten d = Listen::block({{"Ort", Feldtyp::Text, 9}, {"kg", Feldtyp::Einfach, 0}},
                                {{"Wald", 7.5}, {".", QVariant()}, {"Wiese", 12}, {".x", 1}});
  EXPECT_EQ(text(Ausgabeliste(d)),
            "Ort   | kg \n"
            "-----------\n"
            "Wald  | 7,5\n"
            "\n"
            "\n"
            "Ort   | kg \n"
            "Wiese |  12\n"
            ".x    |   1\n");
}

TEST_F(TextlisteTest, TrennzeileAlsErsteUndAlsLetzteZeile) {
  const Daten d = Listen::block({{"Ort", Feldtyp::Text, 9}}, {{"."}, {"Wald"}, {"."}});
  EXPECT_EQ(text(Ausgabeliste(d)), "Ort \n----\n\n\nOrt \nWald\n\n\nOrt \n");
}

TEST_F(TextlisteTest, EigenesTrennzeichenZähltInDerStrichzeileMit) {
  EXPECT_EQ(text(Ausgabeliste(Listen::block({{"a", Feldtyp::Text, 9}, {"b", Feldtyp::Text, 9}},
                                            {{"x", "y"}})),
                 {}, " §§ "),
            "a §§ b\n------\nx §§ y\n");
}

TEST_F(TextlisteTest, EinLeeresTrennzeichenWirdDerSenkrechteStrich) {
  EinstellungenText[Textslots.trennzeichen] = "";
  EXPECT_EQ(Textliste::trennzeichen(), " | ");
  EinstellungenText[Textslots.trennzeichen] = ";";
  EXPECT_EQ(Textliste::trennzeichen(), ";");
}

TEST_F(TextlisteTest, NurDieErstenZweiundfünfzigSpaltenWerdenGelistet) {
  std::vector<Spalte> spalten;
  QVariantList zeile;
  for (int i = 1; i <= 54; ++i) {
    spalten.push_back({"S" + QString::number(i), Feldtyp::Lang, 0});
    zeile += i * 100;
  }
  const std::string t = text(Ausgabeliste(Listen::block(spalten, {zeile})), {}, "|");
  EXPECT_EQ(t, golden("Textliste_54_Spalten.golden.txt"));
  EXPECT_NE(t.find("S52"), std::string::npos);
  EXPECT_EQ(t.find("S53"), std::string::npos);
}

TEST_F(TextlisteTest, EineGanzeAuswertungMitGruppen) {
  EinstellungenZahl[Zahlslots.datumAlsListenkopf] = 1;
  EinstellungenText[Textslots.kopftext] = "Imkerei Königsblüte";
  EinstellungenText[Textslots.trennzeichen] = "";
  const Daten d =
      Listen::block({{"Standort", Feldtyp::Text, 30},
                     {"Volknr", Feldtyp::Text, 10},
                     {"Datum", Feldtyp::Datum, 0},
                     {"Menge_kg", Feldtyp::Einfach, 0},
                     {"Erlös", Feldtyp::Währung, 0},
                     {"Bemerkung", Feldtyp::Memo, 0}},
                    {{"Obstgarten", "7", QDate(2026, 5, 30), 12.5, 87.5, "1. Ernte"},
                     {"Obstgarten", "11a", QDate(2026, 6, 2), 9.25, 64.75, QVariant()},
                     {".", QVariant(), QVariant(), QVariant(), QVariant(), QVariant()},
                     {"Lindenallee", "3", QDate(2026, 7, 11), 107, 749, "Linde,\nsehr hell"},
                     {"Lindenallee", "4", QVariant(), 0, -12.5, "Verlust – Räuberei"}});
  EXPECT_EQ(text(Ausgabeliste(d), listenkopf(), Textliste::trennzeichen()),
            golden("Textliste_Gruppen.golden.txt"));
}

TEST_F(TextlisteTest, ZahlenImTextStehenEbenfallsRechts) {
  EXPECT_EQ(text(Ausgabeliste(Listen::block({{"Menge", Feldtyp::Text, 9}}, {{"7,50"}, {"viel"}}))),
            "Menge\n-----\n 7,50\nviel \n");
}

TEST_F(TextlisteTest, ZeilenwechselUndTabsWerdenLeerzeichen) {
  EXPECT_EQ(text(Ausgabeliste(Listen::block({{"T", Feldtyp::Memo, 0}}, {{"a\r\nb\nc\td\re"}}))),
            "T        \n---------\na b c d e\n");
}

TEST_F(TextlisteTest, DieDateiStehtInDerCodepageUndFremdeZeichenWerdenFragezeichen) {
  EXPECT_EQ(datei(Ausgabeliste(Listen::block({{"Größe", Feldtyp::Text, 9}}, {{"🐝 5 €"}, {"Ş"}}))),
            QByteArray("Gr\xF6\xDF"
                       "e\r\n-----\r\n? 5 \x80\r\n?    \r\n"));
}

TEST_F(TextlisteTest, ListenkopfNachDenEinstellungen) {
  EinstellungenZahl[Zahlslots.datumAlsListenkopf] = 0;
  EinstellungenText[Textslots.kopftext] = "Kopf";
  EXPECT_EQ(listenkopf().datum, "");
  EXPECT_EQ(listenkopf().kopftext, "Kopf");
  EinstellungenZahl[Zahlslots.datumAlsListenkopf] = 1;
  EXPECT_EQ(listenkopf().datum, "20.11.2026");
}

TEST_F(TextlisteTest, WennDieDateiNichtGeschriebenWerdenKannWirdEsGemeldet) {
  EXPECT_THROW(Textliste::schreiben(ordner.filePath("fehlt/LISTE.TXT"),
                                    Ausgabeliste(Listen::ernte()), {}, "|"),
               Dateifehler);
}

}  // namespace
