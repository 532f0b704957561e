#include "platform/files/Dateischreiber.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "gemeinsam/AndererBenutzer.h"
#include "platform/database/Dateigrenze.h"
#include "platform/files/Textdatei.h"

namespace {

class DateischreiberTest : public testing::Test {
 protected:
  QString pfad(const QString& name = "liste.txt") const { return ordner.path() + "/" + name; }
  void lege(const QByteArray& inhalt) const {
    QFile datei(pfad());
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(inhalt);
  }
  QStringList dateien() const { return QDir(ordner.path()).entryList(QDir::Files | QDir::Hidden); }

  QTemporaryDir ordner;
};

using Art = Dateischreiber::Art;

TEST_F(DateischreiberTest, SchreibtStueckFuerStueckDieGanzeDatei) {
  for (const Art art : {Art::GanzOderGarNicht, Art::Fluechtig}) {
    lege("alter und viel laengerer Inhalt");
    QByteArray erwartet;
    Dateischreiber datei(pfad(), art);
    for (int i = 0; i < 300000; ++i) {
      datei.puffer() += "Zeile\r\n";
      erwartet += "Zeile\r\n";
      datei.weiter();
    }
    datei.fertig();
    EXPECT_EQ(Textdatei::bytesLesen(pfad()), erwartet);
    EXPECT_EQ(dateien(), QStringList{"liste.txt"});
  }
}

TEST_F(DateischreiberTest, OhneFertigBleibtDieAlteDatei) {
  lege("alt");
  {
    Dateischreiber datei(pfad());
    datei.puffer().append(3000000, 'x');
    datei.weiter();
  }
  EXPECT_EQ(Textdatei::bytesLesen(pfad()), "alt");
  EXPECT_EQ(dateien(), QStringList{"liste.txt"});
}

TEST_F(DateischreiberTest, OhneFertigBleibtKeinHalberBericht) {
  {
    Dateischreiber datei(pfad(), Art::Fluechtig);
    datei.puffer().append(3000000, 'x');
    datei.weiter();
  }
  EXPECT_EQ(dateien(), QStringList());
}

TEST_F(DateischreiberTest, EinOrdnerDesNamensWirdGemeldet) {
  ASSERT_TRUE(QDir().mkdir(pfad()));
  for (const Art art : {Art::GanzOderGarNicht, Art::Fluechtig})
    EXPECT_THROW(Dateischreiber(pfad(), art), Dateifehler);
  EXPECT_TRUE(QDir(pfad()).exists());
}

TEST_F(DateischreiberTest, EinSchreibgeschuetzterOrdnerWirdGemeldet) {
  ASSERT_TRUE(QFile::setPermissions(
      ordner.path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
  const AndererBenutzer anderer;
  if (anderer.darfAlles()) GTEST_SKIP() << "write protections don't hold here";
  for (const Art art : {Art::GanzOderGarNicht, Art::Fluechtig})
    EXPECT_THROW(Dateischreiber(pfad(), art), Dateifehler);
}

TEST_F(DateischreiberTest, VollerDatentraegerLaesstDieAlteDateiUndKeinenHalbenBericht) {
  lege("alt");
  const auto vollschreiben = [this](const QString& name, Art art) {
    const Dateigrenze voll(100000);
    Dateischreiber datei(pfad(name), art);
    datei.puffer().append(3000000, 'x');
    datei.weiter();
    datei.fertig();
  };
  EXPECT_THROW(vollschreiben("liste.txt", Art::GanzOderGarNicht), Dateifehler);
  EXPECT_THROW(vollschreiben("report.htm", Art::Fluechtig), Dateifehler);
  EXPECT_EQ(Textdatei::bytesLesen(pfad()), "alt");
  EXPECT_EQ(dateien(), QStringList{"liste.txt"});
}

TEST_F(DateischreiberTest, EinFehlenderOrdnerWirdGenannt) {
  try {
    Dateischreiber datei(ordner.path() + "/fehlt/liste.txt");
    FAIL();
  } catch (const Dateifehler& fehler) {
    EXPECT_TRUE(fehler.text().contains("fehlt")) << fehler.what();
  }
}

}  // namespace
