#include "mainform/Volkbild.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QStringList>
#include <algorithm>
#include <string>

using namespace Volkbild;

namespace {

using Zellen = QHash<QString, QString>;

Bild bildVon(const Zellen& zellen, Rahmen& rahmen) {
  return bild([&zellen](const QString& spalte) { return zellen.value(spalte); }, rahmen);
}
Bild bildVon(const Zellen& zellen) {
  Rahmen rahmen;
  return bildVon(zellen, rahmen);
}

// The places from..to as letters: B H P D F L M, a point for none.
std::string plätze(const Bild& bild, int von, int bis) {
  std::string text;
  for (int i = von; i <= bis; ++i) {
    const auto wabe = bild.waben[static_cast<size_t>(i)];
    text += wabe ? "BHPDFLM"[static_cast<int>(*wabe)] : '.';
  }
  return text;
}
std::string magazin(const Bild& bild, int nummer) {
  return plätze(bild, nummer * 16, nummer * 16 + 15);
}
long sichtbar(const Bild& bild) {
  return std::count_if(bild.waben.begin(), bild.waben.end(),
                       [](const auto& wabe) { return wabe.has_value(); });
}

void prüfeRahmen(int w, int links, int rechts, int obenBreite) {
  Rahmen rahmen{1, 2, 3};
  const Bild b = bildVon({{"Waben_je_Magazin", QString::number(w)}}, rahmen);
  EXPECT_EQ(b.rahmen.links, links) << w;
  EXPECT_EQ(b.rahmen.rechts, rechts) << w;
  EXPECT_EQ(b.rahmen.obenBreite, obenBreite) << w;
  EXPECT_EQ(rahmen.links, links) << w;
  EXPECT_EQ(rahmen.rechts, rechts) << w;
  EXPECT_EQ(rahmen.obenBreite, obenBreite) << w;
}

void prüfeWabe(int rang, Wabenart art, const QString& spalte, int nummer, quint32 farbe,
               const QString& legende, int bildpos) {
  const Wabe& wabe = waben()[static_cast<size_t>(rang)];
  EXPECT_EQ(wabe.art, art);
  EXPECT_EQ(wabe.spalte, spalte);
  EXPECT_EQ(wabe.farbnummer, nummer);
  EXPECT_EQ(palettenfarbe(wabe.farbnummer), farbe);
  EXPECT_EQ(wabe.legende, legende);
  EXPECT_EQ(wabe.bildpos, bildpos);
}

void prüfeNote(int bildpos, const QString& spalte, const QString& beschriftung) {
  const Note& note = noten()[static_cast<size_t>(bildpos)];
  EXPECT_EQ(note.spalte, spalte);
  EXPECT_EQ(note.beschriftung, beschriftung);
  const Bild b = bildVon({{spalte, "7,5"}});
  for (int i = 0; i < Noten; ++i) {
    EXPECT_EQ(b.marken[static_cast<size_t>(i)].text, i == bildpos ? "7,5" : "0,0") << i;
    EXPECT_DOUBLE_EQ(b.marken[static_cast<size_t>(i)].stelle, i == bildpos ? 1050 : 375) << i;
  }
}

}  // namespace

// --- kinds and colours

TEST(VolkbildFarben, BrutHellrot) {
  prüfeWabe(0, Wabenart::Brut, "Brutwaben", 12, 0xff0000, "Brutwabe", 13);
}
TEST(VolkbildFarben, HonigHellgelb) {
  prüfeWabe(1, Wabenart::Honig, "Honigwaben", 14, 0xffff00, "Honigwabe", 12);
}
TEST(VolkbildFarben, PollenHellblau) {
  prüfeWabe(2, Wabenart::Pollen, "Pollenwaben", 9, 0x0000ff, "Pollenwabe", 14);
}
TEST(VolkbildFarben, DrohnenHelltürkis) {
  prüfeWabe(3, Wabenart::Drohnen, "Drohnenwaben", 11, 0x00ffff, "Drohnenwabe", 15);
}
TEST(VolkbildFarben, FutterGrau) {
  prüfeWabe(4, Wabenart::Futter, "Futterwaben", 8, 0x808080, "Futterwabe", 16);
}
TEST(VolkbildFarben, LeerHellgrün) {
  prüfeWabe(5, Wabenart::Leer, "Leerwaben", 10, 0x00ff00, "Leerwabe", 17);
}
TEST(VolkbildFarben, MittelwandWeiß) {
  prüfeWabe(6, Wabenart::Mittelwand, "Mittelwände", 15, 0xffffff, "Mittelwand", 18);
}

// --- placing

TEST(Volkbild, KeineWabenZeigenEinLeeresMagazin) {
  const Bild b = bildVon({{"Waben_je_Magazin", "10"}});
  EXPECT_EQ(sichtbar(b), 0);
  EXPECT_EQ(b.magazine, 1);
}

TEST(Volkbild, SechsBrutUndSechsHonigBeiZehnGehenAufPlatzSechzehnWeiter) {
  const Bild b = bildVon({{"Waben_je_Magazin", "10"}, {"Brutwaben", "6"}, {"Honigwaben", "6"}});
  EXPECT_EQ(magazin(b, 0), "BBBBBBHHHH......");
  EXPECT_EQ(magazin(b, 1), "HH..............");
  EXPECT_EQ(sichtbar(b), 12);
  EXPECT_EQ(b.magazine, 2);
}

TEST(Volkbild, AlleArtenInIhrerReihenfolge) {
  const Bild b = bildVon({{"Waben_je_Magazin", "16"},
                          {"Mittelwände", "1"},
                          {"Leerwaben", "2"},
                          {"Futterwaben", "1"},
                          {"Drohnenwaben", "2"},
                          {"Pollenwaben", "1"},
                          {"Honigwaben", "2"},
                          {"Brutwaben", "3"}});
  EXPECT_EQ(magazin(b, 0), "BBBHHPDDFLLM....");
  EXPECT_EQ(b.magazine, 1);
}

TEST(Volkbild, VollesMagazinOhneWeitereWabeBleibtAllein) {
  const Bild b = bildVon({{"Waben_je_Magazin", "10"}, {"Brutwaben", "10"}});
  EXPECT_EQ(magazin(b, 0), "BBBBBBBBBB......");
  EXPECT_EQ(b.magazine, 1);
}

TEST(Volkbild, SechzehnWabenJeMagazinMachenKeinenSprung) {
  const Bild b = bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "17"}});
  EXPECT_EQ(magazin(b, 0), "BBBBBBBBBBBBBBBB");
  EXPECT_EQ(magazin(b, 1), "B...............");
  EXPECT_EQ(b.magazine, 2);
}

TEST(Volkbild, JedesMagazinBeginntNachDemSprungNeu) {
  for (int w = 8; w <= 15; ++w) {
    // One comb more than four full magazines: the last one stands alone in the fifth.
    const Bild b = bildVon(
        {{"Waben_je_Magazin", QString::number(w)}, {"Leerwaben", QString::number(4 * w + 1)}});
    const std::string voll =
        std::string(static_cast<size_t>(w), 'L') + std::string(static_cast<size_t>(16 - w), '.');
    for (int m = 0; m < 4; ++m) EXPECT_EQ(magazin(b, m), voll) << w << " Magazin " << m;
    EXPECT_EQ(magazin(b, 4), "L...............") << w;
    EXPECT_EQ(b.magazine, 5) << w;
  }
}

TEST(Volkbild, WenigerAlsAchtJeMagazinFüllenSechzehnPlätze) {
  const Bild b = bildVon({{"Waben_je_Magazin", "7"}, {"Brutwaben", "18"}});
  EXPECT_EQ(magazin(b, 0), "BBBBBBBBBBBBBBBB");
  EXPECT_EQ(magazin(b, 1), "BB..............");
  EXPECT_EQ(b.magazine, 2);
}

TEST(Volkbild, MehrAlsSechzehnJeMagazinFüllenSechzehnPlätze) {
  const Bild b = bildVon({{"Waben_je_Magazin", "17"}, {"Brutwaben", "17"}});
  EXPECT_EQ(magazin(b, 0), "BBBBBBBBBBBBBBBB");
  EXPECT_EQ(magazin(b, 1), "B...............");
}

TEST(Volkbild, OhneWabenJeMagazinFüllenSieSechzehnPlätze) {
  const Bild b = bildVon({{"Honigwaben", "16"}});
  EXPECT_EQ(magazin(b, 0), "HHHHHHHHHHHHHHHH");
  EXPECT_EQ(b.magazine, 1);
}

TEST(Volkbild, AchtzigWabenHabenPlatz) {
  const Bild b = bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "79"}, {"Mittelwände", "1"}});
  EXPECT_EQ(sichtbar(b), 80);
  EXPECT_EQ(plätze(b, 78, 79), "BM");
  EXPECT_EQ(b.magazine, 5);
}

TEST(Volkbild, ÜberAchtzigWabenFallenDieLetztenArtenWeg) {
  const Bild b = bildVon({{"Waben_je_Magazin", "16"},
                          {"Brutwaben", "40"},
                          {"Honigwaben", "39"},
                          {"Leerwaben", "5"},
                          {"Mittelwände", "6"}});
  EXPECT_EQ(sichtbar(b), 80);
  EXPECT_EQ(plätze(b, 38, 41), "BBHH");
  EXPECT_EQ(plätze(b, 78, 79), "HL");
  EXPECT_EQ(b.magazine, 5);
}

TEST(Volkbild, BeiZehnJeMagazinIstNachFünfzigSchluss) {
  const Bild b = bildVon({{"Waben_je_Magazin", "10"}, {"Brutwaben", "49"}, {"Honigwaben", "30"}});
  EXPECT_EQ(sichtbar(b), 50);
  EXPECT_EQ(magazin(b, 4), "BBBBBBBBBH......");
  EXPECT_EQ(b.magazine, 5);
}

TEST(Volkbild, SehrVieleWabenFüllenDasBild) {
  const Bild b = bildVon({{"Brutwaben", "32767"}, {"Honigwaben", "32767"}});
  EXPECT_EQ(sichtbar(b), 80);
  EXPECT_EQ(plätze(b, 78, 79), "BB");
}

TEST(Volkbild, MagazineUndWabenanzahlZählenNicht) {
  const Bild b = bildVon(
      {{"Waben_je_Magazin", "10"}, {"Magazine", "4"}, {"Wabenanzahl", "40"}, {"Brutwaben", "3"}});
  EXPECT_EQ(sichtbar(b), 3);
  EXPECT_EQ(b.magazine, 1);
}

// --- frames by the last counter

TEST(VolkbildRahmen, ZweitesMagazinAbPlatzSechzehn) {
  EXPECT_EQ(bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "16"}}).magazine, 1);
  EXPECT_EQ(bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "17"}}).magazine, 2);
}
TEST(VolkbildRahmen, DrittesMagazinAbPlatzZweiunddreißig) {
  EXPECT_EQ(bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "32"}}).magazine, 2);
  EXPECT_EQ(bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "33"}}).magazine, 3);
}
TEST(VolkbildRahmen, ViertesMagazinAbPlatzAchtundvierzig) {
  EXPECT_EQ(bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "48"}}).magazine, 3);
  EXPECT_EQ(bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "49"}}).magazine, 4);
}
TEST(VolkbildRahmen, FünftesMagazinAbPlatzVierundsechzig) {
  EXPECT_EQ(bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "64"}}).magazine, 4);
  EXPECT_EQ(bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "65"}}).magazine, 5);
}
TEST(VolkbildRahmen, MehrAlsFünfMagazineGibtEsNicht) {
  EXPECT_EQ(bildVon({{"Waben_je_Magazin", "8"}, {"Brutwaben", "79"}}).magazine, 5);
}

TEST(VolkbildRahmen, AchtWaben) { prüfeRahmen(8, 855, 2430, 1680); }
TEST(VolkbildRahmen, NeunWaben) { prüfeRahmen(9, 675, 2430, 1860); }
TEST(VolkbildRahmen, ZehnWaben) { prüfeRahmen(10, 675, 2610, 2040); }
TEST(VolkbildRahmen, ElfWaben) { prüfeRahmen(11, 495, 2610, 2220); }
TEST(VolkbildRahmen, ZwölfWaben) { prüfeRahmen(12, 495, 2790, 2400); }
TEST(VolkbildRahmen, DreizehnWaben) { prüfeRahmen(13, 315, 2790, 2580); }
TEST(VolkbildRahmen, VierzehnWaben) { prüfeRahmen(14, 315, 2970, 2760); }
TEST(VolkbildRahmen, FünfzehnWaben) { prüfeRahmen(15, 135, 2970, 2940); }
TEST(VolkbildRahmen, SechzehnWaben) { prüfeRahmen(16, 135, 3150, 3120); }

TEST(VolkbildRahmen, AndereZahlenLassenDenRahmenDesVorigenVolkesStehen) {
  Rahmen rahmen;
  bildVon({{"Waben_je_Magazin", "9"}}, rahmen);
  for (const char* w : {"7", "17", "0", "", "100", "32767"}) {
    const Bild b = bildVon({{"Waben_je_Magazin", w}, {"Brutwaben", "16"}}, rahmen);
    EXPECT_EQ(b.rahmen.links, 675) << w;
    EXPECT_EQ(b.rahmen.rechts, 2430) << w;
    EXPECT_EQ(b.rahmen.obenBreite, 1860) << w;
  }
  EXPECT_EQ(bildVon({{"Waben_je_Magazin", "12"}}, rahmen).rahmen.links, 495);
}

// --- markers

TEST(VolkbildNoten, Volkstärke) { prüfeNote(0, "Volkstärke", "Volkst."); }
TEST(VolkbildNoten, Brutstand) { prüfeNote(1, "Brutstand", "Brutst."); }
TEST(VolkbildNoten, Wabensitz) { prüfeNote(2, "Wabensitz", "Wabens."); }
TEST(VolkbildNoten, Sanftmut) { prüfeNote(3, "Sanftmut", "Sanftm."); }
TEST(VolkbildNoten, Schwarmtrieb) { prüfeNote(4, "Schwarmtrieb", "Schwtr."); }
TEST(VolkbildNoten, Frühjahrsentwicklung) { prüfeNote(5, "Frühjahrsentw", "FJEntw."); }
TEST(VolkbildNoten, Winterfestigkeit) { prüfeNote(6, "Winterfestigkeit", "Winterf."); }
TEST(VolkbildNoten, Varroabefall) { prüfeNote(7, "Varroabefall", "Varroab."); }
TEST(VolkbildNoten, Belagert) { prüfeNote(8, "Belagert", "Belagert"); }

TEST(VolkbildMarke, NullStehtAmAnfang) {
  EXPECT_DOUBLE_EQ(marke("0").stelle, 375);
  EXPECT_EQ(marke("0").text, "0,0");
  EXPECT_DOUBLE_EQ(marke("").stelle, 375);
  EXPECT_EQ(marke("").text, "0,0");
}
TEST(VolkbildMarke, ZehnStehtAmEnde) {
  EXPECT_DOUBLE_EQ(marke("10").stelle, 1275);
  EXPECT_EQ(marke("10").text, "10,0");
}
TEST(VolkbildMarke, DazwischenNeunzigJeGanzeNote) {
  EXPECT_DOUBLE_EQ(marke("1").stelle, 465);
  EXPECT_DOUBLE_EQ(marke("6,5").stelle, 960);
  EXPECT_EQ(marke("6,5").text, "6,5");
}
TEST(VolkbildMarke, ÜberZehnStehtBeiZehnUndZeigtZehn) {
  for (const char* wert : {"10,1", "12", "99"}) {
    EXPECT_DOUBLE_EQ(marke(wert).stelle, 1275) << wert;
    EXPECT_EQ(marke(wert).text, "10,0") << wert;
  }
}

// --- in words

TEST(VolkbildBeschreibung, SagtWasInDenMagazinenSteht) {
  const Bild b = bildVon({{"Waben_je_Magazin", "10"},
                          {"Brutwaben", "6"},
                          {"Honigwaben", "5"},
                          {"Mittelwände", "2"},
                          {"Volkstärke", "8"}});
  EXPECT_EQ(beschreibung(b).toStdString(),
            "Magazin 1: 6 Brutwaben, 4 Honigwaben. Magazin 2: 1 Honigwabe, 2 Mittelwände. "
            "Noten: Volkstärke 8,0, Brutstand 0,0, Wabensitz 0,0, Sanftmut 0,0, "
            "Schwarmtrieb 0,0, Frühjahrsentw 0,0, Winterfestigkeit 0,0, Varroabefall 0,0, "
            "Belagert 0,0.");
}
TEST(VolkbildBeschreibung, EinStockOhneWabenIstLeer) {
  EXPECT_TRUE(beschreibung(bildVon({})).startsWith("Magazin 1: leer. Noten: "));
}
