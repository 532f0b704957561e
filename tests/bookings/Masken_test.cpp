#include "bookings/Masken.h"

#include <QFile>

#include "Bestand.h"
#include "platform/files/Textdatei.h"

namespace {

class Masken : public testing::Test {
 protected:
  static Slotarten nach(const QList<int>& typen) {
    Slotarten arten{};
    for (const int art : typen) einkleiden(arten, art);
    return arten;
  }
  static QByteArray datei(int art) {
    QFile datei(maskenDatei(art));
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("<fehlt>");
  }
  // Slot n holds "sn".
  static Slottexte nummeriert() {
    Slottexte texte;
    for (int i = 0; i < AnzahlSlots; ++i) texte[static_cast<size_t>(i)] = "s" + QString::number(i);
    return texte;
  }

  Programmordner m_ordner{"20.06.2026"};
};

}  // namespace

TEST_F(Masken, DateinameHatDieNummerDesTyps) {
  EXPECT_EQ(maskenDatei(1), m_ordner.path() + "/TOVA_TE_EINGABE_STD1.TV2");
  EXPECT_EQ(maskenDatei(10), m_ordner.path() + "/TOVA_TE_EINGABE_STD10.TV2");
  EXPECT_EQ(maskeGesichertText(1), "Die aktuelle Eingabemaske wurde unter dem Dateinamen " +
                                       m_ordner.path() + "/TOVA_TE_EINGABE_STD1.TV2 gespeichert.");
}

TEST_F(Masken, SechsundzwanzigZeilenInSlotfolgeOhneSlot15) {
  maskeSichern(1, nummeriert(), nach({1}));
  EXPECT_EQ(datei(1),
            "s1\r\ns2\r\ns3\r\ns4\r\ns5\r\ns6\r\ns7\r\ns8\r\ns9\r\ns10\r\ns11\r\ns12\r\ns13\r\n"
            "s14\r\ns16\r\ns17\r\ns18\r\ns19\r\ns20\r\ns21\r\ns22\r\ns23\r\ns24\r\ns25\r\ns26\r\n"
            "s27\r\n");
}

TEST_F(Masken, WanderungHatEineZeileWeniger) {
  maskeSichern(6, nummeriert(), nach({6}));
  EXPECT_EQ(datei(6).count("\r\n"), 25);
  EXPECT_TRUE(datei(6).startsWith("s1\r\ns2\r\ns3\r\ns4\r\ns6\r\n"));
}

TEST_F(Masken, VerborgenerSlotBehältSeineAuswahlVonDerWanderung) {
  maskeSichern(5, nummeriert(), nach({6, 5}));  // Arbeiten ends at slot 4
  EXPECT_EQ(datei(5).count("\r\n"), 25);
}

TEST_F(Masken, NeuEingekleideterSlotZähltWiederMit) {
  maskeSichern(1, nummeriert(), nach({6, 1}));
  EXPECT_EQ(datei(1).count("\r\n"), 26);
}

TEST_F(Masken, NotizWirdNieGesichertDieAnderenSlotsSchon) {
  Slottexte texte = nummeriert();
  texte[15] = "Notiz\nmit Zeilen";
  maskeSichern(10, texte, nach({10}));
  EXPECT_EQ(datei(10).count("\r\n"), 26);
  EXPECT_FALSE(datei(10).contains("Notiz"));
}

TEST_F(Masken, OhneDateiGeschiehtNichts) { EXPECT_EQ(maskeEinlesen(3, nach({3})), std::nullopt); }

TEST_F(Masken, GesichertesKommtInSeineSlotsZurück) {
  Slottexte texte = nummeriert();
  texte[1] = "1.234,50";
  texte[2] = "Löwenzahn €";
  maskeSichern(1, texte, nach({1}));
  const auto gelesen = maskeEinlesen(1, nach({1}));
  ASSERT_TRUE(gelesen);
  ASSERT_EQ(gelesen->size(), 26);
  EXPECT_EQ(gelesen->at(0), (Slotänderung{1, "1.234,50"}));
  EXPECT_EQ(gelesen->at(1), (Slotänderung{2, "Löwenzahn €"}));
  EXPECT_EQ(gelesen->at(13), (Slotänderung{14, "s14"}));
  EXPECT_EQ(gelesen->at(14), (Slotänderung{16, "s16"}));
  EXPECT_EQ(gelesen->at(25), (Slotänderung{27, "s27"}));
}

TEST_F(Masken, UmlauteStehenAlsEinByteInDerDatei) {
  Slottexte texte;
  texte[1] = "Müll€";
  maskeSichern(5, texte, nach({5}));
  EXPECT_TRUE(datei(5).startsWith("M\xFCll\x80\r\n"));
}

TEST_F(Masken, LesenÜberspringtDieselbenSlots) {
  maskeSichern(6, nummeriert(), nach({6}));
  const auto gelesen = maskeEinlesen(6, nach({6}));
  ASSERT_EQ(gelesen->size(), 25);
  EXPECT_EQ(gelesen->at(3), (Slotänderung{4, "s4"}));
  EXPECT_EQ(gelesen->at(4), (Slotänderung{6, "s6"}));
}

TEST_F(Masken, KurzeDateiFülltNurDieErstenSlots) {
  Textdatei::schreiben(maskenDatei(1), {"5,00", ""});
  EXPECT_EQ(maskeEinlesen(1, nach({1})), (QList<Slotänderung>{{1, "5,00"}, {2, ""}}));
}

TEST_F(Masken, LangeDateiLässtDenRestLiegen) {
  QStringList zeilen;
  for (int i = 0; i < 40; ++i) zeilen.append("x");
  Textdatei::schreiben(maskenDatei(1), zeilen);
  EXPECT_EQ(maskeEinlesen(1, nach({1}))->size(), 26);
}

TEST_F(Masken, LeereDateiFülltNichts) {
  Textdatei::schreiben(maskenDatei(1), {});
  ASSERT_TRUE(maskeEinlesen(1, nach({1})));
  EXPECT_TRUE(maskeEinlesen(1, nach({1}))->isEmpty());
}

TEST_F(Masken, SichernInEinenFehlendenOrdnerIstEinFehler) {
  TZ_Variablen::AppPfad = m_ordner.path() + "/fehlt/";
  EXPECT_THROW(maskeSichern(1, nummeriert(), nach({1})), Dateifehler);
}
