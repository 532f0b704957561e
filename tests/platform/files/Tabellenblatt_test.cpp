#include "platform/files/Tabellenblatt.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "gemeinsam/AndererBenutzer.h"
#include "platform/database/Dateigrenze.h"
#include "platform/files/Textdatei.h"
#include "platform/files/Xlsx.h"

namespace {

using Form = Tabellenblatt::Form;

class TabellenblattTest : public testing::Test {
 protected:
  QStringList dateien() const { return QDir(ordner.path()).entryList(QDir::Files | QDir::Hidden); }

  QTemporaryDir ordner;
  QString pfad = ordner.path() + "/tova_liste.xlsx";
};

TEST_F(TabellenblattTest, TexteUndZahlenStehenInIhrenZellen) {
  Tabellenblatt blatt(pfad, "Liste");
  blatt.text(0, 0, "Völker & <Königin> 🐝", Form::Fett);
  blatt.text(1, 0, "zwei\nZeilen\tund Tab", Form::Standard);
  blatt.zahl(1, 27, -12.5, Form::Zahl);
  blatt.speichern();
  const Xlsx gelesen(pfad);
  EXPECT_EQ(gelesen.text("A1"), "Völker & <Königin> 🐝");
  EXPECT_TRUE(gelesen.fett("A1"));
  EXPECT_FALSE(gelesen.istZahl("A1"));
  EXPECT_EQ(gelesen.text("A2"), "zwei\nZeilen\tund Tab");
  EXPECT_FALSE(gelesen.fett("A2"));
  EXPECT_TRUE(gelesen.istZahl("AB2"));
  EXPECT_EQ(gelesen.text("AB2"), "-12.5");
  EXPECT_EQ(gelesen.format("AB2"), "#,##0.00");
  EXPECT_TRUE(gelesen.rechts("AB2"));
}

TEST_F(TabellenblattTest, DieFormEinerSpalteGiltFürIhreLeerenZellen) {
  Tabellenblatt blatt(pfad, "Liste");
  blatt.setSpalte(2, 12, Form::Zahl);
  blatt.text(0, 0, "x", Form::Standard);
  blatt.speichern();
  const Xlsx gelesen(pfad);
  EXPECT_EQ(gelesen.spaltenformat(3), "#,##0.00");
  EXPECT_TRUE(gelesen.spalteRechts(3));
  EXPECT_EQ(gelesen.spaltenformat(2), "");
}

TEST_F(TabellenblattTest, EinÜberlangerTextWirdGekürztUndNichtWeggelassen) {
  const QByteArray lang = QByteArray(40000, 'a');
  Tabellenblatt blatt(pfad, "Liste");
  blatt.text(0, 0, lang.constData(), Form::Standard);
  blatt.speichern();
  EXPECT_EQ(Xlsx(pfad).text("A1"), QString::fromLatin1(lang.left(32767)));
}

TEST_F(TabellenblattTest, OhneSpeichernBleibtDieAlteDateiUndNichtsDaneben) {
  {
    Tabellenblatt erstes(pfad, "Liste");
    erstes.text(0, 0, "alt", Form::Standard);
    erstes.speichern();
    Tabellenblatt zweites(pfad, "Liste");
    zweites.text(0, 0, "neu", Form::Standard);
  }
  EXPECT_EQ(Xlsx(pfad).text("A1"), "alt");
  EXPECT_EQ(dateien(), QStringList{"tova_liste.xlsx"});
}

TEST_F(TabellenblattTest, EineVorhandeneTabelleWirdErsetzt) {
  for (const char* text : {"erste", "zweite"}) {
    Tabellenblatt blatt(pfad, "Liste");
    blatt.text(0, 0, text, Form::Standard);
    blatt.speichern();
  }
  EXPECT_EQ(Xlsx(pfad).text("A1"), "zweite");
  EXPECT_EQ(dateien(), QStringList{"tova_liste.xlsx"});
}

TEST_F(TabellenblattTest, EineNeueTabelleHatDieRechteDieDerBenutzerWill) {
  for (const auto& [maske, rechte] : {std::pair(0077, 0x600), {0002, 0x664}}) {
    const mode_t bisher = umask(static_cast<mode_t>(maske));
    Tabellenblatt(pfad, "Liste").speichern();
    umask(bisher);
    EXPECT_EQ(QFile::permissions(pfad).toInt() & 0x0fff, rechte) << maske;
    ASSERT_TRUE(QFile::remove(pfad));
  }
}

TEST_F(TabellenblattTest, EinOrdnerDesNamensWirdMitNamenGemeldet) {
  ASSERT_TRUE(QDir().mkdir(pfad));
  try {
    Tabellenblatt blatt(pfad, "Liste");
    FAIL();
  } catch (const Dateifehler& fehler) {
    EXPECT_TRUE(fehler.text().contains(pfad)) << fehler.what();
  }
}

TEST_F(TabellenblattTest, EineSchreibgeschützteTabelleBleibtUndWirdGemeldet) {
  {
    QFile alt(pfad);
    ASSERT_TRUE(alt.open(QIODevice::WriteOnly));
    alt.write("alt");
  }
  ASSERT_TRUE(QFile::setPermissions(pfad, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
  ASSERT_TRUE(QFile::setPermissions(ordner.path(), QFile::ReadOwner | QFile::WriteOwner |
                                                       QFile::ExeOwner | QFile::ReadOther |
                                                       QFile::WriteOther | QFile::ExeOther));
  {
    const AndererBenutzer anderer;
    if (anderer.darfAlles()) GTEST_SKIP() << "write protections don't hold here";
    EXPECT_THROW(Tabellenblatt(pfad, "Liste"), Dateifehler);
  }
  EXPECT_EQ(Textdatei::bytesLesen(pfad), "alt");
}

TEST_F(TabellenblattTest, VollerDatenträgerGibtKeineHalbeTabelle) {
  {
    Tabellenblatt alt(pfad, "Liste");
    alt.text(0, 0, "alt", Form::Standard);
    alt.speichern();
  }
  for (const rlim_t grenze : {1000, 100000, 300000}) {
    Tabellenblatt blatt(pfad, "Liste");
    const Dateigrenze voll(grenze);
    for (int i = 0; i < 10000; ++i) blatt.text(i, 0, "sitzt ruhig auf den Waben", Form::Standard);
    EXPECT_THROW(blatt.speichern(), Dateifehler) << grenze;
  }
  EXPECT_EQ(Xlsx(pfad).text("A1"), "alt");
  EXPECT_EQ(dateien(), QStringList{"tova_liste.xlsx"});
}

TEST_F(TabellenblattTest, EineZeileUnterDerLetztenIstEinFehler) {
  Tabellenblatt blatt(pfad, "Liste");
  EXPECT_THROW(blatt.text(Tabellenblatt::MaxZeilen, 0, "x", Form::Standard), Dateifehler);
}

}  // namespace
