#include "output/Textausgabe.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "gemeinsam/AndererBenutzer.h"
#include "gemeinsam/Programmordner.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;
using Textausgabe::Druckweg;

namespace {

class Textausgabetest : public testing::Test {
 protected:
  Textausgabetest() : m_vorher(QDir::currentPath()) { AusgabeDatei = AppPfad + "LISTE.TXT"; }
  ~Textausgabetest() override { QDir::setCurrent(m_vorher); }

  void schreibe(const QByteArray& bytes) {
    QFile datei(AusgabeDatei);
    ASSERT_TRUE(datei.open(QFile::WriteOnly));
    datei.write(bytes);
  }
  // 320 lines of 98 characters and CR LF: 32000 characters.
  static QByteArray genau32000() { return (QByteArray(98, 'a') + "\r\n").repeated(320); }

  Programmordner m_ordner{"15.06.2024"};
  QString m_vorher;
};

// A page that is so many characters wide.
Textausgabe::Passend breit(qsizetype zeichen) {
  return [zeichen](QStringView text) { return std::min(zeichen, text.size()); };
}
QList<QStringList> seiten(const QStringList& zeilen, Druckweg weg, int rand = 0,
                          int zeilenJeSeite = 60, int breite = 80) {
  return Textausgabe::seiten(zeilen, weg, rand, zeilenJeSeite, breit(breite));
}

// Reading

TEST_F(Textausgabetest, JedeZeileErhältIhrenUmbruchAuchDieLetzte) {
  schreibe("eins\r\nzwei\r\n\r\ndrei");
  EXPECT_EQ(Textausgabe::lesen(AusgabeDatei).text, QString("eins\r\nzwei\r\n\r\ndrei\r\n"));
}

TEST_F(Textausgabetest, DieDateiStehtInWindows1252) {
  schreibe("K\xF6nigin \x80 5\r\n");
  EXPECT_EQ(Textausgabe::lesen(AusgabeDatei).text, QString("Königin € 5\r\n"));
}

TEST_F(Textausgabetest, Genau32000ZeichenGebenKeineWarnung) {
  schreibe(genau32000());
  const auto anzeige = Textausgabe::lesen(AusgabeDatei);
  EXPECT_EQ(anzeige.text.size(), 32000);
  EXPECT_FALSE(anzeige.zuGroß);
}

TEST_F(Textausgabetest, EineZeileMehrAls32000ZeichenBeendetDasLesen) {
  schreibe(genau32000() + "mehr\r\nnicht mehr gelesen\r\n");
  const auto anzeige = Textausgabe::lesen(AusgabeDatei);
  EXPECT_TRUE(anzeige.zuGroß);
  EXPECT_TRUE(anzeige.text.endsWith("a\r\nmehr\r\n"));
  EXPECT_EQ(anzeige.text.size(), 32006);
}

TEST_F(Textausgabetest, EineLeereZeileMehrAls32000ZeichenWarntAuch) {
  schreibe(genau32000() + "\r\n");
  EXPECT_TRUE(Textausgabe::lesen(AusgabeDatei).zuGroß);
}

TEST_F(Textausgabetest, EineLeereDateiGibtLeerenText) {
  schreibe("");
  EXPECT_EQ(Textausgabe::lesen(AusgabeDatei).text, QString());
}

TEST_F(Textausgabetest, EineFehlendeDateiWirdGenannt) {
  EXPECT_EQ(Textausgabe::fehltText("/x/LISTE.TXT"),
            QString("Die Datei /x/LISTE.TXT existiert nicht"));
  EXPECT_THROW(Textausgabe::lesen(AusgabeDatei), Dateifehler);
}

TEST_F(Textausgabetest, TexteDerHinweise) {
  EXPECT_EQ(Textausgabe::zuGroßText(),
            QString("ACHTUNG:\r\n\r\nDer Text ist über 32 kB groß. Es ist deshalb u.U. nicht alles "
                    "im Textfeld enthalten. Beim Ausdruck mit 'Datei drucken' werden trotzdem alle "
                    "Daten ausgedruckt!"));
  EXPECT_EQ(Textausgabe::schriftHinweis(),
            QString("Hinweis:\r\n\r\nUm die Tabellenausgabe im ZEB-Editor richtig darstellen zu "
                    "können, sollten Sie eine nicht proportionale Schrift, z.B. Courier New oder "
                    "eine andere Courier-Schrift, auswählten!"));
}

TEST_F(Textausgabetest, NurSchriftenDieMitCourierBeginnenGeltenAlsPassend) {
  EXPECT_FALSE(Textausgabe::schriftUnpassend("Courier New"));
  EXPECT_FALSE(Textausgabe::schriftUnpassend("Courier 10 Pitch"));
  EXPECT_FALSE(Textausgabe::schriftUnpassend("Courier New (Ersatz: FreeMono)"));
  EXPECT_TRUE(Textausgabe::schriftUnpassend("FreeMono"));
  EXPECT_TRUE(Textausgabe::schriftUnpassend(""));
}

// Writing

TEST_F(Textausgabetest, DieListeKommtInDenProgrammordner) {
  AusgabeDatei.clear();
  Textausgabe::listeSchreiben({"Völker", "2"});
  EXPECT_EQ(AusgabeDatei, AppPfad + "LISTE.TXT");
  EXPECT_EQ(Textdatei::lesenGanz(AusgabeDatei), QString("Völker\r\n2\r\n"));
}

TEST_F(Textausgabetest, EineListeDieNichtGeschriebenWirdIstEinFehler) {
  schreibe("alt\r\n");
  AppPfad += "weg/";
  EXPECT_THROW(Textausgabe::listeSchreiben({"neu"}), Dateifehler);
}

TEST_F(Textausgabetest, DruckaufKommtInDenAktuellenOrdnerUndNichtInDenProgrammordner) {
  QTemporaryDir anderer;
  QDir::setCurrent(anderer.path());
  const QString pfad = Textausgabe::druckaufSchreiben("Königin\r\n#\r\n");
  EXPECT_EQ(QFileInfo(pfad).canonicalFilePath(),
            QFileInfo(anderer.filePath("DRUCKAUF.TXT")).canonicalFilePath());
  EXPECT_EQ(Textdatei::lesenGanz(anderer.filePath("DRUCKAUF.TXT")), QString("Königin\r\n#\r\n"));
  EXPECT_FALSE(QFile::exists(AppPfad + "DRUCKAUF.TXT"));
}

TEST_F(Textausgabetest, IstDerAktuelleOrdnerGesperrtNenntDieMeldungDieDatei) {
  QTemporaryDir anderer;
  QDir::setCurrent(anderer.path());
  QFile::setPermissions(anderer.path(),
                        QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
  {
    const AndererBenutzer ohneRechte;
    ASSERT_FALSE(ohneRechte.darfAlles());
    try {
      Textausgabe::druckaufSchreiben("x");
      FAIL() << "it could be written";
    } catch (const Dateifehler& fehler) {
      EXPECT_TRUE(fehler.text().contains(anderer.filePath("DRUCKAUF.TXT")))
          << fehler.text().toStdString();
    }
  }
  QFile::setPermissions(anderer.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// Settings

TEST_F(Textausgabetest, EinstellungenStehenInIhrenFünfPlätzen) {
  Textausgabe::sichern({true, false, true, 12, 7});
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textQuer], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textFett], 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textKursiv], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textGröße], 12);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textRand], 7);
  const auto e = Textausgabe::laden();
  EXPECT_TRUE(e.quer);
  EXPECT_FALSE(e.fett);
  EXPECT_TRUE(e.kursiv);
  EXPECT_EQ(e.größe, 12);
  EXPECT_EQ(e.rand, 7);
}

TEST_F(Textausgabetest, NullIstHochformatAllesAndereQuerformat) {
  EXPECT_FALSE(Textausgabe::laden().quer);
  EinstellungenZahl[Zahlslots.textQuer] = 2;
  EXPECT_TRUE(Textausgabe::laden().quer);
}

TEST_F(Textausgabetest, BeimLadenGeltenNurGrößenVon8Bis48) {
  for (const auto& [platz, größe] : QList<std::pair<qint16, int>>{
           {0, 10}, {4, 10}, {7, 10}, {8, 8}, {30, 30}, {48, 48}, {49, 10}, {-3, 10}}) {
    EinstellungenZahl[Zahlslots.textGröße] = platz;
    EXPECT_EQ(Textausgabe::laden().größe, größe) << platz;
  }
}

TEST_F(Textausgabetest, EinRandÜber20WirdBeimLaden20) {
  for (const auto& [platz, rand] :
       QList<std::pair<qint16, int>>{{0, 0}, {20, 20}, {21, 20}, {30, 20}, {-1, 0}}) {
    EinstellungenZahl[Zahlslots.textRand] = platz;
    EXPECT_EQ(Textausgabe::laden().rand, rand) << platz;
  }
}

TEST_F(Textausgabetest, DieKnöpfeGehenVon4Bis30) {
  EXPECT_EQ(Textausgabe::größeNach(10, 5), 15);
  EXPECT_EQ(Textausgabe::größeNach(10, -1), 9);
  EXPECT_EQ(Textausgabe::größeNach(8, -5), 4);
  EXPECT_EQ(Textausgabe::größeNach(4, -1), 4);
  EXPECT_EQ(Textausgabe::größeNach(28, 5), 30);
  EXPECT_EQ(Textausgabe::größeNach(30, 1), 30);
  EXPECT_EQ(Textausgabe::größeNach(48, 1), 30);
  EXPECT_EQ(Textausgabe::größeNach(48, -1), 30);
}

TEST_F(Textausgabetest, DerRandWirdBeimTippenAuf0Bis30Begrenzt) {
  for (const auto& [getippt, wird] : QList<std::pair<QString, QString>>{{"-1", "0"},
                                                                        {"-", "-"},
                                                                        {"", ""},
                                                                        {"0", "0"},
                                                                        {"30", "30"},
                                                                        {"31", "30"},
                                                                        {"305", "30"}})
    EXPECT_EQ(Textausgabe::randNachTippen(getippt), wird);
  EXPECT_EQ(Textausgabe::rand(""), 0);
  EXPECT_EQ(Textausgabe::rand("-"), 0);
  EXPECT_EQ(Textausgabe::rand("12"), 12);
}

// Pages

TEST_F(Textausgabetest, DerAusdruckBeginntMitEinerLeerenZeile) {
  for (const Druckweg weg : {Druckweg::Text, Druckweg::Datei})
    EXPECT_EQ(seiten({"eins"}, weg), QList<QStringList>({{"", "eins"}}));
}

TEST_F(Textausgabetest, EineZeileMitRauteBeginntEineSeite) {
  for (const Druckweg weg : {Druckweg::Text, Druckweg::Datei})
    EXPECT_EQ(seiten({"eins", "#", "zwei"}, weg), QList<QStringList>({{"", "eins"}, {"zwei"}}));
}

TEST_F(Textausgabetest, RauteMitLeerzeichenIstNurBeiDateiDruckenEinSeitenwechsel) {
  EXPECT_EQ(seiten({"eins", "# ", "zwei"}, Druckweg::Datei),
            QList<QStringList>({{"", "eins"}, {"zwei"}}));
  EXPECT_EQ(seiten({"eins", "  #", "zwei"}, Druckweg::Datei),
            QList<QStringList>({{"", "eins"}, {"zwei"}}));
  EXPECT_EQ(seiten({"eins", "# ", "zwei"}, Druckweg::Text),
            QList<QStringList>({{"", "eins", "# ", "zwei"}}));
}

TEST_F(Textausgabetest, RauteImTextIstKeinSeitenwechsel) {
  for (const Druckweg weg : {Druckweg::Text, Druckweg::Datei})
    EXPECT_EQ(seiten({"## ", "#1"}, weg).size(), 1);
}

TEST_F(Textausgabetest, EinRandVon0DrucktDieZeilenUnverändert) {
  EXPECT_EQ(seiten({"  a  b "}, Druckweg::Text, 0)[0][1], QString("  a  b "));
}

TEST_F(Textausgabetest, DerRandStehtVorJederZeileAberNichtVorDerErstenLeeren) {
  EXPECT_EQ(seiten({"a", "b"}, Druckweg::Datei, 3), QList<QStringList>({{"", "   a", "   b"}}));
}

TEST_F(Textausgabetest, EineVolleSeiteWirdVonSelbstGewechselt) {
  EXPECT_EQ(seiten({"1", "2", "3", "4"}, Druckweg::Text, 0, 3),
            QList<QStringList>({{"", "1", "2"}, {"3", "4"}}));
}

TEST_F(Textausgabetest, SeitenwechselNachGenauVollerSeiteGibtKeinLeeresBlatt) {
  EXPECT_EQ(seiten({"1", "2", "#", "3"}, Druckweg::Text, 0, 3),
            QList<QStringList>({{"", "1", "2"}, {"3"}}));
}

TEST_F(Textausgabetest, ZweiSeitenwechselHintereinanderGebenEinLeeresBlatt) {
  EXPECT_EQ(seiten({"1", "#", "#", "2"}, Druckweg::Text),
            QList<QStringList>({{"", "1"}, {}, {"2"}}));
}

TEST_F(Textausgabetest, SeitenwechselAmEndeGibtKeinLeeresBlatt) {
  EXPECT_EQ(seiten({"1", "#"}, Druckweg::Text), QList<QStringList>({{"", "1"}}));
}

TEST_F(Textausgabetest, EinLeererTextGibtEineSeite) {
  EXPECT_EQ(seiten({}, Druckweg::Text), QList<QStringList>({{""}}));
}

TEST_F(Textausgabetest, UmgebrocheneZeilenZählenFürDieSeite) {
  EXPECT_EQ(seiten({"aaa bbb ccc"}, Druckweg::Text, 0, 3, 7),
            QList<QStringList>({{"", "aaa bbb", "  ccc"}}));
  EXPECT_EQ(seiten({"aaa bbb ccc"}, Druckweg::Text, 0, 2, 7),
            QList<QStringList>({{"", "aaa bbb"}, {"  ccc"}}));
}

// Lines wider than the page

TEST_F(Textausgabetest, EineZeileDieGenauPasstBleibtGanz) {
  EXPECT_EQ(Textausgabe::umbrechen("1234567890", 0, breit(10)), QStringList({"1234567890"}));
}

TEST_F(Textausgabetest, EineZuBreiteZeileGehtEingerücktWeiterUndVerliertNichts) {
  EXPECT_EQ(Textausgabe::umbrechen("Königin gezeichnet und umgesetzt", 0, breit(20)),
            QStringList({"Königin gezeichnet ", "  und umgesetzt"}));
  EXPECT_EQ(Textausgabe::umbrechen("abcdefghijklmnop", 0, breit(10)),
            QStringList({"abcdefghij", "  klmnop"}));
}

TEST_F(Textausgabetest, DieFortsetzungSteinHinterDemRand) {
  EXPECT_EQ(Textausgabe::umbrechen("aaaa bbbb cccc", 3, breit(12)),
            QStringList({"   aaaa bbbb", "     cccc"}));
}

TEST_F(Textausgabetest, NurLeerzeichenHinterDerBreiteGebenKeineLeereZeile) {
  EXPECT_EQ(Textausgabe::umbrechen("12345678     ", 0, breit(8)), QStringList({"12345678"}));
}

TEST_F(Textausgabetest, EinRandBreiterAlsDieSeiteVerschlucktDenTextNicht) {
  EXPECT_EQ(Textausgabe::umbrechen("abcdef", 30, breit(4)), QStringList({"abcd", "ef"}));
  EXPECT_EQ(Textausgabe::umbrechen("abc", 0, breit(0)), QStringList({"a", "b", "c", ""}));
}

TEST_F(Textausgabetest, TabulatorenGehenZurNächstenAchtenSpalte) {
  EXPECT_EQ(Textausgabe::umbrechen("a\tb", 2, breit(80)), QStringList({"  a       b"}));
}

}  // namespace
