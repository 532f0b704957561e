#include "platform/files/Textdatei.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <functional>
#include <random>

#include "gemeinsam/AndererBenutzer.h"

namespace {

class TextdateiTest : public testing::Test {
 protected:
  QString pfad() const { return m_ordner.filePath(QStringLiteral("Probe.TV2")); }

  void leg(const QByteArray& bytes) const {
    QFile datei(pfad());
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    ASSERT_EQ(datei.write(bytes), bytes.size());
  }

  QByteArray bytes() const {
    QFile datei(pfad());
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("(keine Datei)");
  }

  QStringList imOrdner() const {
    return QDir(m_ordner.path()).entryList(QDir::Files | QDir::Hidden);
  }

  QTemporaryDir m_ordner;
};

QString fehlertext(const std::function<void()>& aktion) {
  try {
    aktion();
  } catch (const Dateifehler& fehler) {
    return fehler.text();
  }
  return QStringLiteral("(kein Fehler)");
}

// No file of this process may grow beyond the limit while one lives: a full disk.
class VolleScheibe {
 public:
  explicit VolleScheibe(rlim_t grenze) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_vorher);
    rlimit neu = m_vorher;
    neu.rlim_cur = grenze;
    setrlimit(RLIMIT_FSIZE, &neu);
  }
  ~VolleScheibe() { setrlimit(RLIMIT_FSIZE, &m_vorher); }

 private:
  rlimit m_vorher{};
};

TEST_F(TextdateiTest, ZeilenBekommenCrLf) {
  Textdatei::schreiben(pfad(), {QStringLiteral("eins"), QString(), QStringLiteral("drei")});
  EXPECT_EQ(bytes(), QByteArray("eins\r\n\r\ndrei\r\n"));
}

TEST_F(TextdateiTest, UmlauteUndEuroStehenInDerCodepage) {
  Textdatei::schreiben(pfad(), {QStringLiteral("äöüÄÖÜß €")});
  EXPECT_EQ(bytes(), QByteArray("\xE4\xF6\xFC\xC4\xD6\xDC\xDF \x80\r\n"));
  EXPECT_EQ(Textdatei::lesen(pfad()), QStringList{QStringLiteral("äöüÄÖÜß €")});
}

TEST_F(TextdateiTest, ZeichenAußerhalbDerCodepageWerdenFragezeichen) {
  Textdatei::schreiben(pfad(), {QStringLiteral("aЖb漢c")});
  EXPECT_EQ(bytes(), QByteArray("a?b?c\r\n"));
}

TEST_F(TextdateiTest, EinZeichenAusZweiErsatzzeichenGibtEinFragezeichen) {
  EXPECT_EQ(Textdatei::nachCp1252(QStringLiteral("a🐝b")), QByteArray("a?b"));
  const QString halb = QString(QChar(0xD83D)) + QStringLiteral("b");
  EXPECT_EQ(Textdatei::nachCp1252(halb), QByteArray("?b"));
}

TEST_F(TextdateiTest, SteuerzeichenAchtzigIstNichtDasEurozeichen) {
  EXPECT_EQ(Textdatei::nachCp1252(QString(QChar(0x80))), QByteArray("?"));
}

TEST_F(TextdateiTest, AlleZweihundertsechsundfünfzigBytesBleibenErhalten) {
  QByteArray alle;
  for (int i = 0; i < 256; ++i) alle += static_cast<char>(i);
  const QString text = Textdatei::vonCp1252(alle);
  EXPECT_EQ(Textdatei::nachCp1252(text), alle);
  Textdatei::schreibenGanz(pfad(), text);
  EXPECT_EQ(bytes(), alle);
  EXPECT_EQ(Textdatei::lesenGanz(pfad()), text);
}

TEST_F(TextdateiTest, TypischeZeichenDerCodepage) {
  EXPECT_EQ(Textdatei::vonCp1252("\x80\x84\x93\x96\x85\x8A\x9F"), QStringLiteral("€„“–…ŠŸ"));
}

TEST_F(TextdateiTest, CrLfUndLfUndCrBeendenEineZeile) {
  leg("a\r\nb\nc\rd");
  EXPECT_EQ(Textdatei::lesen(pfad()), (QStringList{QStringLiteral("a"), QStringLiteral("b"),
                                                   QStringLiteral("c"), QStringLiteral("d")}));
}

TEST_F(TextdateiTest, LeereZeilenBleiben) {
  leg("\r\n\r\na\n\n\r\r\n");
  EXPECT_EQ(Textdatei::lesen(pfad()), (QStringList{QString(), QString(), QStringLiteral("a"),
                                                   QString(), QString(), QString()}));
}

TEST_F(TextdateiTest, LeereDateiHatKeineZeile) {
  leg("");
  EXPECT_EQ(Textdatei::lesen(pfad()), QStringList());
}

TEST_F(TextdateiTest, NullbytesStörenNicht) {
  leg(QByteArray("a\0b\r\nc", 6));
  const QStringList zeilen = Textdatei::lesen(pfad());
  ASSERT_EQ(zeilen.size(), 2);
  EXPECT_EQ(zeilen[0], QString(QStringLiteral("a") + QChar(0) + QStringLiteral("b")));
}

TEST_F(TextdateiTest, FehlendeDateiWirdGenannt) {
  const QString text = fehlertext([this] { Textdatei::lesen(pfad()); });
  EXPECT_TRUE(text.contains(pfad())) << text.toStdString();
  EXPECT_TRUE(text.contains(QStringLiteral("existiert nicht"))) << text.toStdString();
}

TEST_F(TextdateiTest, OrdnerStattDateiWirdGenannt) {
  EXPECT_TRUE(fehlertext([this] {
                Textdatei::lesen(m_ordner.path());
              }).contains(QStringLiteral("ist ein Ordner")));
  EXPECT_TRUE(fehlertext([this] {
                Textdatei::schreiben(m_ordner.path(), {});
              }).contains(QStringLiteral("einen Ordner mit diesem Namen")));
  EXPECT_FALSE(Textdatei::existiert(m_ordner.path()));
}

TEST_F(TextdateiTest, SchreibenInFehlendenOrdnerNenntDenOrdner) {
  const QString dorthin = m_ordner.filePath(QStringLiteral("fehlt/a.txt"));
  const QString text = fehlertext([&] { Textdatei::schreiben(dorthin, {QStringLiteral("a")}); });
  EXPECT_TRUE(text.contains(m_ordner.filePath(QStringLiteral("fehlt")))) << text.toStdString();
  EXPECT_TRUE(text.contains(QStringLiteral("legen Sie den Ordner an")));
}

TEST_F(TextdateiTest, VolleScheibeLässtDieAlteDateiByteFürByte) {
  const QByteArray alt = "Kopf \xE4\r\nalt\r\n";
  leg(alt);
  QString text;
  {
    const VolleScheibe voll(4096);
    text = fehlertext([this] {
      Textdatei::schreiben(pfad(), {QString(100000, u'x'), QStringLiteral("neu")});
    });
  }
  EXPECT_TRUE(text.contains(QStringLiteral("noch Platz"))) << text.toStdString();
  EXPECT_EQ(bytes(), alt);
  EXPECT_EQ(imOrdner(), QStringList{QStringLiteral("Probe.TV2")});
}

TEST_F(TextdateiTest, VolleScheibeOhneAlteDateiLässtKeineHalbeZurück) {
  {
    const VolleScheibe voll(100);
    EXPECT_THROW(Textdatei::schreibenGanz(pfad(), QString(5000, u'x')), Dateifehler);
  }
  EXPECT_EQ(imOrdner(), QStringList());
}

// Reading and looking into it is allowed to all, writing to nobody.
constexpr QFileDevice::Permissions OrdnerNurLesen = QFileDevice::ReadOwner | QFileDevice::ExeOwner |
                                                    QFileDevice::ReadGroup | QFileDevice::ExeGroup |
                                                    QFileDevice::ReadOther | QFileDevice::ExeOther;

TEST_F(TextdateiTest, SchreibgeschützterOrdnerLässtDieAlteDatei) {
  leg("alt\r\n");
  QFile::setPermissions(m_ordner.path(), OrdnerNurLesen);
  QString text;
  {
    const AndererBenutzer niemand;
    ASSERT_FALSE(niemand.darfAlles());
    text = fehlertext([this] { Textdatei::schreiben(pfad(), {QStringLiteral("neu")}); });
  }
  QFile::setPermissions(m_ordner.path(), OrdnerNurLesen | QFileDevice::WriteOwner);
  EXPECT_TRUE(text.contains(QStringLiteral("geschrieben werden darf"))) << text.toStdString();
  EXPECT_EQ(bytes(), QByteArray("alt\r\n"));
}

TEST_F(TextdateiTest, NichtLesbareDateiWirdGenannt) {
  leg("geheim");
  QFile::setPermissions(m_ordner.path(), OrdnerNurLesen | QFileDevice::WriteOwner);
  QFile::setPermissions(pfad(), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  if (geteuid() != 0) QFile::setPermissions(pfad(), {});  // the test's own user
  QString text;
  {
    const AndererBenutzer niemand;
    text = fehlertext([this] { Textdatei::lesen(pfad()); });
  }
  EXPECT_TRUE(text.contains(QStringLiteral("kann nicht gelesen werden"))) << text.toStdString();
}

TEST_F(TextdateiTest, AbgeschossenesSchreibenLässtEineGanzeDatei) {
  const QString a(300000, u'a');
  const QString b(300000, u'b');
  std::mt19937 zufall(2);
  for (int runde = 0; runde < 15; ++runde) {
    Textdatei::schreibenGanz(pfad(), a);
    const pid_t kind = fork();
    ASSERT_GE(kind, 0);
    if (kind == 0) {
      for (;;) {
        Textdatei::schreibenGanz(pfad(), b);
        Textdatei::schreibenGanz(pfad(), a);
      }
    }
    QThread::usleep(1000 + zufall() % 20000);
    kill(kind, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(kind, &status, 0), kind);
    ASSERT_TRUE(WIFSIGNALED(status));
    const QString danach = Textdatei::lesenGanz(pfad());
    ASSERT_TRUE(danach == a || danach == b) << danach.size();
  }
  Textdatei::resteLöschen(m_ordner.path(), {QStringLiteral("Probe.TV2")});
  static const QRegularExpression wort(
      QStringLiteral("\\AProbe\\.TV2(\\.[A-Z]?[a-z]+|\\.[A-Z]+)?\\z"));
  for (const QString& name : imOrdner())
    EXPECT_TRUE(wort.match(name).hasMatch()) << name.toStdString();
}

TEST_F(TextdateiTest, ResteEinesAbgeschossenenSchreibensVerschwindenKopienBleiben) {
  const QStringList reste = {"Probe.TV2.aBcDeF", "Probe.TV2.ABcdef", "Probe.TV2.abcdeF"};
  const QStringList bleiben = {"Probe.TV2",         "Probe.TV2.backup",  "Probe.TV2.Backup",
                               "Probe.TV2.BACKUP",  "Probe.TV2.aBcDe",   "Probe.TV2.aBcDeFg",
                               "Probe.TV2.aBcDe1",  "Probe.TV2.alt.neu", "Rechnung.txt.aBcDeF",
                               "xProbe.TV2.aBcDeF", "Probe.TV2aBcDeF"};
  for (const QString& name : reste + bleiben) {
    QFile datei(m_ordner.filePath(name));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
  }
  Textdatei::resteLöschen(m_ordner.path(), {QStringLiteral("Probe.TV2")});
  QStringList soll = bleiben;
  QStringList ist = imOrdner();
  soll.sort();
  ist.sort();
  EXPECT_EQ(ist, soll);
}

TEST_F(TextdateiTest, EinRestDerBleibtWirdGenannt) {
  const QString rest = m_ordner.filePath(QStringLiteral("Probe.TV2.aBcDeF"));
  QFile datei(rest);
  ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
  datei.close();
  QFile::setPermissions(m_ordner.path(), OrdnerNurLesen);
  QString text;
  {
    const AndererBenutzer niemand;
    text =
        fehlertext([this] { Textdatei::resteLöschen(m_ordner.path(), {QStringLiteral("*.TV2")}); });
  }
  QFile::setPermissions(m_ordner.path(), OrdnerNurLesen | QFileDevice::WriteOwner);
  EXPECT_TRUE(text.contains(rest)) << text.toStdString();
}

TEST_F(TextdateiTest, ZufälligeBytesLassenSichLesenUndWiederSchreiben) {
  std::mt19937 zufall(3);
  for (int runde = 0; runde < 50; ++runde) {
    QByteArray zufällig;
    for (auto n = zufall() % 3000; n > 0; --n) zufällig += static_cast<char>(zufall());
    leg(zufällig);
    Textdatei::lesen(pfad());
    Textdatei::schreibenGanz(pfad(), Textdatei::lesenGanz(pfad()));
    ASSERT_EQ(bytes(), zufällig);
  }
}

}  // namespace
