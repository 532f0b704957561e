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

TEST(Schreibschutz, NurGeschuetzteDateienNachNamen) {
  const QTemporaryDir ordner;
  for (const char* name : {"b.txt", "a.txt", "frei.txt"})
    leg(ordner.filePath(QString::fromLatin1(name)));
  QFile::setPermissions(ordner.filePath(QStringLiteral("a.txt")), NurLesen);
  QFile::setPermissions(ordner.filePath(QStringLiteral("b.txt")), NurLesen);
  EXPECT_EQ(Schreibschutz::dateien(ordner.path()),
            (QStringList{ordner.filePath(QStringLiteral("a.txt")),
                         ordner.filePath(QStringLiteral("b.txt"))}));
}

TEST(Schreibschutz, OrdnerUndDateienInUnterordnernZaehlenNicht) {
  const QTemporaryDir ordner;
  ASSERT_TRUE(QDir(ordner.path()).mkdir(QStringLiteral("unter")));
  leg(ordner.filePath(QStringLiteral("unter/a.txt")));
  QFile::setPermissions(ordner.filePath(QStringLiteral("unter/a.txt")), NurLesen);
  EXPECT_EQ(Schreibschutz::dateien(ordner.path()), QStringList());
}

TEST(Schreibschutz, FehlenderOrdnerHatKeine) {
  EXPECT_EQ(Schreibschutz::dateien(QStringLiteral("/gibt/es/nicht")), QStringList());
}

TEST(Schreibschutz, EntfernenLaesstDieAnderenRechteStehen) {
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

TEST(Schreibschutz, InzwischenGeloeschteDateiIstKeinFehler) {
  const QTemporaryDir ordner;
  EXPECT_EQ(Schreibschutz::entfernen({ordner.filePath(QStringLiteral("weg.txt"))}), QStringList());
}

TEST(Einzelstart, DerErsteDarfDerZweiteNicht) {
  const QTemporaryDir ordner;
  const Einzelstart erster(ordner.path());
  EXPECT_FALSE(erster.laeuftBereits());
  EXPECT_TRUE(Einzelstart(ordner.path()).laeuftBereits());
  EXPECT_TRUE(Einzelstart(ordner.path()).laeuftBereits());
}

TEST(Einzelstart, EinAbgewiesenerNimmtDemErstenDieSperreNicht) {
  const QTemporaryDir ordner;
  const Einzelstart erster(ordner.path());
  { const Einzelstart zweiter(ordner.path()); }
  EXPECT_TRUE(QFile::exists(Einzelstart::sperrdatei(ordner.path())));
}

TEST(Einzelstart, NachDemEndeDarfDerNaechste) {
  const QTemporaryDir ordner;
  { const Einzelstart erster(ordner.path()); }
  EXPECT_FALSE(QFile::exists(Einzelstart::sperrdatei(ordner.path())));
  EXPECT_FALSE(Einzelstart(ordner.path()).laeuftBereits());
}

TEST(Einzelstart, VerschiedeneOrdnerStoerenSichNicht) {
  const QTemporaryDir einer;
  const QTemporaryDir anderer;
  const Einzelstart erster(einer.path());
  EXPECT_FALSE(Einzelstart(anderer.path()).laeuftBereits());
}

TEST(Einzelstart, DieSperreEinesAbgestuerztenProgrammsZaehltNicht) {
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
  EXPECT_FALSE(Einzelstart(ordner.path()).laeuftBereits());
}

TEST(Einzelstart, EinLebenderAndererProzessZaehlt) {
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
  EXPECT_TRUE(Einzelstart(ordner.path()).laeuftBereits());
  ASSERT_EQ(write(ende[1], &byte, 1), 1);
  int status = 0;
  ASSERT_EQ(waitpid(kind, &status, 0), kind);
}

TEST(Einzelstart, EineLeereOderVerstuemmelteSperrdateiZaehltNicht) {
  for (const char* inhalt : {"", "\n", "Unsinn", "abc\ndef\n"}) {
    const QTemporaryDir ordner;
    leg(Einzelstart::sperrdatei(ordner.path()), inhalt);
    EXPECT_FALSE(Einzelstart(ordner.path()).laeuftBereits()) << inhalt;
  }
}

TEST(Einzelstart, OrdnerOhneSchreibrechtZaehltNichtAlsGestartet) {
  EXPECT_FALSE(Einzelstart(QStringLiteral("/gibt/es/nicht")).laeuftBereits());
  EXPECT_FALSE(Einzelstart(QStringLiteral("/proc")).laeuftBereits());
}

TEST(Ton, DerGesetzteSpielerBekommtHoeheUndDauer) {
  int hoehe = 0;
  int dauer = 0;
  Ton::setSpieler([&](int hertz, int millisekunden) {
    hoehe = hertz;
    dauer = millisekunden;
  });
  EXPECT_TRUE(Ton::piep(1000, 15));
  Ton::setSpieler({});
  EXPECT_EQ(hoehe, 1000);
  EXPECT_EQ(dauer, 15);
}

#ifndef Q_OS_WIN
TEST(Ton, OhneSpielerBleibtEsStill) { EXPECT_FALSE(Ton::piep(1000, 15)); }
#endif

}  // namespace
