#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/files/Einzelstart.h"
#include "platform/files/Schreibschutz.h"
#include "platform/files/Ton.h"

namespace {

void leg(const QString& pfad, const QByteArray& bytes = "x") {
  QFile datei(pfad);
  ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
  datei.write(bytes);
}

constexpr auto NurLesen = QFileDevice::ReadOwner | QFileDevice::ReadUser;

TEST(Schreibschutz, NurGeschützteDateienNachNamen) {
  const QTemporaryDir ordner;
  for (const char* name : {"b.txt", "a.txt", "frei.txt"})
    leg(ordner.filePath(QString::fromLatin1(name)));
  QFile::setPermissions(ordner.filePath(QStringLiteral("a.txt")), NurLesen);
  QFile::setPermissions(ordner.filePath(QStringLiteral("b.txt")), NurLesen);
  EXPECT_EQ(Schreibschutz::dateien(ordner.path()),
            (QStringList{ordner.filePath(QStringLiteral("a.txt")),
                         ordner.filePath(QStringLiteral("b.txt"))}));
}

TEST(Schreibschutz, OrdnerUndDateienInUnterordnernZählenNicht) {
  const QTemporaryDir ordner;
  ASSERT_TRUE(QDir(ordner.path()).mkdir(QStringLiteral("unter")));
  leg(ordner.filePath(QStringLiteral("unter/a.txt")));
  QFile::setPermissions(ordner.filePath(QStringLiteral("unter/a.txt")), NurLesen);
  EXPECT_EQ(Schreibschutz::dateien(ordner.path()), QStringList());
}

TEST(Schreibschutz, FehlenderOrdnerHatKeine) {
  EXPECT_EQ(Schreibschutz::dateien(QStringLiteral("/gibt/es/nicht")), QStringList());
}

TEST(Schreibschutz, EntfernenLässtDieAnderenRechteStehen) {
  const QTemporaryDir ordner;
  const QString pfad = ordner.filePath(QStringLiteral("a.txt"));
  leg(pfad);
  QFile::setPermissions(pfad, NurLesen | QFileDevice::ReadGroup);
  EXPECT_EQ(Schreibschutz::entfernen({pfad}), QStringList());
  const auto rechte = QFile::permissions(pfad);
  EXPECT_TRUE(rechte & QFileDevice::WriteOwner);
  EXPECT_TRUE(rechte & QFileDevice::ReadGroup);
  EXPECT_FALSE(rechte & QFileDevice::WriteGroup);
  EXPECT_EQ(Schreibschutz::dateien(ordner.path()), QStringList());
}

TEST(Schreibschutz, InzwischenGelöschteDateiIstKeinFehler) {
  const QTemporaryDir ordner;
  EXPECT_EQ(Schreibschutz::entfernen({ordner.filePath(QStringLiteral("weg.txt"))}), QStringList());
}

// What a link leads to lies elsewhere and belongs to somebody else.
TEST(Schreibschutz, EinerVerknüpfungWirdNichtGefolgt) {
  const QTemporaryDir ordner;
  const QTemporaryDir woanders;
  const QString fremde = woanders.filePath(QStringLiteral("fremd.txt"));
  const QString link = ordner.filePath(QStringLiteral("link.txt"));
  leg(fremde);
  QFile::setPermissions(fremde, NurLesen);
  ASSERT_TRUE(QFile::link(fremde, link));
  EXPECT_EQ(Schreibschutz::dateien(ordner.path()), QStringList());
  EXPECT_EQ(Schreibschutz::entfernen({link}), QStringList());
  EXPECT_FALSE(QFile::permissions(fremde) & QFileDevice::WriteOwner);
}

TEST(Einzelstart, DerErsteDarfDerZweiteNicht) {
  const QTemporaryDir ordner;
  const Einzelstart erster(ordner.path());
  EXPECT_FALSE(erster.läuftBereits());
  EXPECT_TRUE(Einzelstart(ordner.path()).läuftBereits());
  EXPECT_TRUE(Einzelstart(ordner.path()).läuftBereits());
}

TEST(Einzelstart, EinAbgewiesenerNimmtDemErstenDieSperreNicht) {
  const QTemporaryDir ordner;
  const Einzelstart erster(ordner.path());
  { const Einzelstart zweiter(ordner.path()); }
  EXPECT_TRUE(QFile::exists(Einzelstart::sperrdatei(ordner.path())));
}

TEST(Einzelstart, NachDemEndeDarfDerNächste) {
  const QTemporaryDir ordner;
  { const Einzelstart erster(ordner.path()); }
  EXPECT_FALSE(QFile::exists(Einzelstart::sperrdatei(ordner.path())));
  EXPECT_FALSE(Einzelstart(ordner.path()).läuftBereits());
}

TEST(Einzelstart, VerschiedeneOrdnerStörenSichNicht) {
  const QTemporaryDir einer;
  const QTemporaryDir anderer;
  const Einzelstart erster(einer.path());
  EXPECT_FALSE(Einzelstart(anderer.path()).läuftBereits());
}

TEST(Einzelstart, DieSperreEinesAbgestürztenProgrammsZähltNicht) {
  const QTemporaryDir ordner;
  const pid_t kind = fork();
  ASSERT_GE(kind, 0);
  if (kind == 0) {
    new Einzelstart(ordner.path());  // never released: the program dies with it
    _exit(0);
  }
  int status = 0;
  ASSERT_EQ(waitpid(kind, &status, 0), kind);
  ASSERT_TRUE(QFile::exists(Einzelstart::sperrdatei(ordner.path())));
  EXPECT_FALSE(Einzelstart(ordner.path()).läuftBereits());
}

TEST(Einzelstart, EinLebenderAndererProzessZählt) {
  const QTemporaryDir ordner;
  int bereit[2];
  int ende[2];
  ASSERT_EQ(pipe(bereit), 0);
  ASSERT_EQ(pipe(ende), 0);
  const pid_t kind = fork();
  ASSERT_GE(kind, 0);
  char byte = 0;
  if (kind == 0) {
    new Einzelstart(ordner.path());
    if (write(bereit[1], &byte, 1) == 1 && read(ende[0], &byte, 1) == 1) _exit(0);
    _exit(1);
  }
  ASSERT_EQ(read(bereit[0], &byte, 1), 1);
  EXPECT_TRUE(Einzelstart(ordner.path()).läuftBereits());
  ASSERT_EQ(write(ende[1], &byte, 1), 1);
  int status = 0;
  ASSERT_EQ(waitpid(kind, &status, 0), kind);
}

TEST(Einzelstart, DieSperreEinesAnderenRechnersNenntIhnUndLässtSichÜbernehmen) {
  for (const char* inhalt : {"4711\ntova\nIMKER-PC\n", "1\ntova\nIMKER-PC\nabc\ndef\n"}) {
    const QTemporaryDir ordner;
    leg(Einzelstart::sperrdatei(ordner.path()), inhalt);
    Einzelstart start(ordner.path());
    EXPECT_TRUE(start.läuftBereits());
    EXPECT_EQ(start.andererRechner(), QStringLiteral("IMKER-PC"));
    EXPECT_TRUE(QFile::exists(Einzelstart::sperrdatei(ordner.path())));
    start.übernehmen();
    EXPECT_FALSE(start.läuftBereits());
    EXPECT_TRUE(Einzelstart(ordner.path()).läuftBereits());
    EXPECT_EQ(Einzelstart(ordner.path()).andererRechner(), QString());
  }
}

TEST(Einzelstart, EinLebenderProzessDiesesRechnersIstKeinAndererRechner) {
  const QTemporaryDir ordner;
  const Einzelstart erster(ordner.path());
  const Einzelstart zweiter(ordner.path());
  EXPECT_TRUE(zweiter.läuftBereits());
  EXPECT_EQ(zweiter.andererRechner(), QString());
}

TEST(Einzelstart, EineLeereOderVerstümmelteSperrdateiZähltNicht) {
  for (const char* inhalt : {"", "\n", "Unsinn", "abc\ndef\n"}) {
    const QTemporaryDir ordner;
    leg(Einzelstart::sperrdatei(ordner.path()), inhalt);
    EXPECT_FALSE(Einzelstart(ordner.path()).läuftBereits()) << inhalt;
  }
}

TEST(Einzelstart, OrdnerOhneSchreibrechtZähltNichtAlsGestartet) {
  EXPECT_FALSE(Einzelstart(QStringLiteral("/gibt/es/nicht")).läuftBereits());
  EXPECT_FALSE(Einzelstart(QStringLiteral("/proc")).läuftBereits());
}

TEST(Ton, DerGesetzteSpielerBekommtHöheUndDauer) {
  int höhe = 0;
  int dauer = 0;
  Ton::setSpieler([&](int hertz, int millisekunden) {
    höhe = hertz;
    dauer = millisekunden;
  });
  EXPECT_TRUE(Ton::piep(1000, 15));
  Ton::setSpieler({});
  EXPECT_EQ(höhe, 1000);
  EXPECT_EQ(dauer, 15);
}

#ifndef Q_OS_WIN
TEST(Ton, OhneSpielerBleibtEsStill) { EXPECT_FALSE(Ton::piep(1000, 15)); }
#endif

}  // namespace
