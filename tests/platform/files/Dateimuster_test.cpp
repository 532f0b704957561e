#include "platform/files/Dateimuster.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

class DateimusterTest : public testing::Test {
 protected:
  DateimusterTest() {
    for (const char* name : {"b.TKS", "A.tks", "ohne", "x.txt", "tova20_backup_1.zip"}) {
      QFile datei(m_ordner.filePath(QString::fromLatin1(name)));
      EXPECT_TRUE(datei.open(QIODevice::WriteOnly));
    }
    QDir(m_ordner.path()).mkdir(QStringLiteral("c.TKS"));
  }
  std::string namen(const char* muster) const {
    return Dateimuster::namen(m_ordner.filePath(QString::fromLatin1(muster)))
        .join(u' ')
        .toStdString();
  }
  QTemporaryDir m_ordner;
};

TEST_F(DateimusterTest, SternUndEndungOhneGroßUndKlein) {
  EXPECT_EQ(namen("*.TKS"), "A.tks b.TKS");
}

TEST_F(DateimusterTest, SternMittenImNamen) {
  EXPECT_EQ(namen("tova20_backup_*.zip"), "tova20_backup_1.zip");
}

TEST_F(DateimusterTest, SternPunktSternIstJedeDatei) {
  EXPECT_EQ(namen("*.*"), "A.tks b.TKS ohne tova20_backup_1.zip x.txt");
}

TEST_F(DateimusterTest, EinNameOhneSternIstEineDatei) {
  EXPECT_EQ(namen("x.txt"), "x.txt");
  EXPECT_EQ(namen("fehlt.txt"), "");
}

TEST_F(DateimusterTest, LeereOderFehlendeOrdnerHabenKeine) {
  EXPECT_EQ(namen("fehlt/*.TKS"), "");
  EXPECT_EQ(Dateimuster::namen(QString()), QStringList());
  EXPECT_EQ(Dateimuster::namen(m_ordner.path() + u'/'), QStringList());
}

TEST_F(DateimusterTest, RückwärtsstricheTrennenAuchOrdner) {
  EXPECT_EQ(Dateimuster::ordner(QStringLiteral("C:\\Imkerei\\*.TKS")),
            QStringLiteral("C:/Imkerei/"));
  EXPECT_EQ(Dateimuster::ordner(QStringLiteral("*.TKS")), QString());
}

}  // namespace
