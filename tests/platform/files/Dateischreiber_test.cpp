#include "platform/files/Dateischreiber.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
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

TEST_F(DateischreiberTest, SchreibtStückFürStückDieGanzeDatei) {
  lege("alter und viel laengerer Inhalt");
  QByteArray erwartet;
  {
    Dateischreiber datei(pfad());
    for (int i = 0; i < 300000; ++i) {
      datei.puffer() += "Zeile\r\n";
      erwartet += "Zeile\r\n";
      datei.weiter();
    }
    datei.fertig();
  }
  EXPECT_EQ(Textdatei::bytesLesen(pfad()), erwartet);
  EXPECT_EQ(dateien(), QStringList{"liste.txt"});
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
    Dateischreiber datei(pfad());
    datei.puffer().append(3000000, 'x');
    datei.weiter();
  }
  EXPECT_EQ(dateien(), QStringList());
}

TEST_F(DateischreiberTest, EinOrdnerDesNamensWirdGemeldet) {
  ASSERT_TRUE(QDir().mkdir(pfad()));
  EXPECT_THROW(Dateischreiber{pfad()}, Dateifehler);
  EXPECT_TRUE(QDir(pfad()).exists());
}

TEST_F(DateischreiberTest, EinSchreibgeschützterOrdnerWirdGemeldet) {
  ASSERT_TRUE(QFile::setPermissions(
      ordner.path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
  const AndererBenutzer anderer;
  if (anderer.darfAlles()) GTEST_SKIP() << "write protections don't hold here";
  EXPECT_THROW(Dateischreiber{pfad()}, Dateifehler);
}

TEST_F(DateischreiberTest, VollerDatenträgerLässtDieAlteDateiUndKeinenHalbenBericht) {
  lege("alt");
  const auto vollschreiben = [this](const QString& name) {
    const Dateigrenze voll(100000);
    Dateischreiber datei(pfad(name));
    datei.puffer().append(3000000, 'x');
    datei.weiter();
    datei.fertig();
  };
  EXPECT_THROW(vollschreiben("liste.txt"), Dateifehler);
  EXPECT_THROW(vollschreiben("report.htm"), Dateifehler);
  EXPECT_EQ(Textdatei::bytesLesen(pfad()), "alt");
  EXPECT_EQ(dateien(), QStringList{"liste.txt"});
}

TEST_F(DateischreiberTest, EineSchreibgeschützteDateiBleibt) {
  lege("alt");
  QFile::setPermissions(ordner.path(), QFile::Permissions::fromInt(0x7777));
  ASSERT_TRUE(QFile::setPermissions(pfad(), QFile::ReadOwner | QFile::ReadOther));
  const AndererBenutzer anderer;
  if (anderer.darfAlles()) GTEST_SKIP() << "write protections don't hold here";
  EXPECT_THROW(Dateischreiber{pfad()}, Dateifehler);
}

TEST_F(DateischreiberTest, EineNeueDateiHatDieRechteDieDerBenutzerWill) {
  for (const auto& [maske, rechte] : {std::pair(0027, 0x640), {0077, 0x600}, {0022, 0x644}}) {
    const mode_t bisher = umask(static_cast<mode_t>(maske));
    Dateischreiber{pfad()}.fertig();
    umask(bisher);
    EXPECT_EQ(QFile::permissions(pfad()).toInt() & 0x0fff, rechte) << maske;
    QFile::remove(pfad());
  }
}

TEST_F(DateischreiberTest, EineErsetzteBehältIhreRechte) {
  lege("alt");
  QFile::setPermissions(pfad(), QFile::ReadOwner | QFile::WriteOwner);
  Dateischreiber{pfad()}.fertig();
  EXPECT_EQ(QFile::permissions(pfad()).toInt() & 0x00ff, 0);
}

TEST_F(DateischreiberTest, EinerVerknüpfungWirdGefolgt) {
  lege("alt");
  const QString link = pfad("link.txt");
  ASSERT_TRUE(QFile::link(pfad(), link));
  {
    Dateischreiber datei(link);
    datei.puffer() = "neu";
    datei.fertig();
  }
  EXPECT_TRUE(QFileInfo(link).isSymLink());
  EXPECT_EQ(Textdatei::bytesLesen(pfad()), "neu");
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
