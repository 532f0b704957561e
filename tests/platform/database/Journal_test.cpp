#include <QProcess>

#include "platform/database/Testdatenbank.h"
#include "platform/database/verbindung/Journalpruefung.h"

// What lies beside a database after a crash, and a copy that was put back meanwhile.
class FremdesJournal : public Testdatenbank {
 protected:
  void SetUp() override {
    Testdatenbank::SetUp();
    völker(40);
    arbeitsbereich.Close();
    ASSERT_TRUE(QFile::copy(pfad(), sicherung()));
    db = arbeitsbereich.OpenDatabase(pfad());
    völker(200);
    arbeitsbereich.Close();
  }
  QString sicherung() const { return imOrdner("Sicherung.MDB"); }
  QString journal() const { return Journalprüfung::journal(pfad()); }
  void völker(int wieviele) {
    db.Sammelschreiben([&] {
      for (int i = 0; i < wieviele; ++i)
        db.Execute("insert into Bienenvolk (Bemerkung, Jahre) values (?, 1)",
                   {QString(2000, QChar(u'a' + i % 20))});
    });
  }
  void stürzeAb(const char* helfer) {
    QProcess prozess;
    prozess.start(QCoreApplication::applicationFilePath(), {helfer, pfad()});
    ASSERT_TRUE(prozess.waitForStarted());
    while (!prozess.readAllStandardOutput().contains("halb"))
      ASSERT_TRUE(prozess.waitForReadyRead(20000)) << prozess.readAllStandardError().constData();
    prozess.kill();
    ASSERT_TRUE(prozess.waitForFinished());
    ASSERT_GT(QFileInfo(journal()).size(), 0);
  }
  void spieleZurück(const QString& kopie) {
    ASSERT_TRUE(QFile::remove(pfad()));
    ASSERT_TRUE(QFile::copy(kopie, pfad()));
  }
  void erwarteBeiseiteGelegt(const QString& name) {
    const QByteArray vorher = dateiinhalt(pfad());
    const QByteArray mitschrift = dateiinhalt(journal());
    db = arbeitsbereich.OpenDatabase(pfad());
    EXPECT_EQ(dateiinhalt(pfad()), vorher);
    EXPECT_EQ(anzahl(), 40);
    EXPECT_EQ(verbindung().steuere("pragma integrity_check"), "ok");
    EXPECT_EQ(dateiinhalt(imOrdner(name)), mitschrift);
    EXPECT_FALSE(QFile::exists(journal()));
    const QStringList hinweise = arbeitsbereich.NimmHinweise();
    ASSERT_EQ(hinweise.size(), 1);
    EXPECT_TRUE(hinweise[0].contains("\"" + name + "\"")) << qPrintable(hinweise[0]);
    EXPECT_TRUE(arbeitsbereich.NimmHinweise().isEmpty());
  }
};

TEST_F(FremdesJournal, WirdNichtInEineZurückgespielteKopieGespielt) {
  stürzeAb("--unterbrochen");
  spieleZurück(sicherung());
  EXPECT_FALSE(Journalprüfung::gehörtDazu(pfad()));
  erwarteBeiseiteGelegt("TOVA2.MDB-journal.alt");
}

// The change had only replaced what was there, and its journal doesn't hold the first page.
TEST_F(FremdesJournal, WirdAuchOhneErsteSeiteAnDerLängeErkannt) {
  stürzeAb("--geaendert");
  spieleZurück(sicherung());
  erwarteBeiseiteGelegt("TOVA2.MDB-journal.alt");
}

TEST_F(FremdesJournal, EinFrüherBeiseiteGelegtesBleibt) {
  schreibeDatei(imOrdner("TOVA2.MDB-journal.alt"), "früher");
  stürzeAb("--unterbrochen");
  spieleZurück(sicherung());
  erwarteBeiseiteGelegt("TOVA2.MDB-journal.alt2");
  EXPECT_EQ(dateiinhalt(imOrdner("TOVA2.MDB-journal.alt")), "früher");
}

TEST_F(FremdesJournal, DasEigeneWirdZurückgespielt) {
  for (const char* helfer : {"--unterbrochen", "--geaendert"}) {
    SCOPED_TRACE(helfer);
    stürzeAb(helfer);
    EXPECT_TRUE(Journalprüfung::gehörtDazu(pfad()));
    db = arbeitsbereich.OpenDatabase(pfad());
    EXPECT_EQ(anzahl(), 240);
    EXPECT_EQ(anzahl("where Jahre = 9"), 0);
    EXPECT_EQ(verbindung().steuere("pragma integrity_check"), "ok");
    EXPECT_TRUE(arbeitsbereich.NimmHinweise().isEmpty());
    EXPECT_FALSE(QFile::exists(journal()));
    arbeitsbereich.Close();
  }
}

// A copy of the interrupted file itself, with its journal: both are of one state.
TEST_F(FremdesJournal, EineKopieMitIhremJournalWirdZurückgespielt) {
  stürzeAb("--unterbrochen");
  const QString kopie = imOrdner("Kopie.MDB");
  ASSERT_TRUE(QFile::copy(pfad(), kopie));
  ASSERT_TRUE(QFile::copy(journal(), Journalprüfung::journal(kopie)));
  db = arbeitsbereich.OpenDatabase(kopie);
  EXPECT_EQ(anzahl(), 240);
  EXPECT_TRUE(arbeitsbereich.NimmHinweise().isEmpty());
}

TEST_F(FremdesJournal, EinesDasDieMaschineNichtBeachtetBleibtIhreSache) {
  for (const QByteArray& inhalt :
       {QByteArray(), QByteArray("x"), QByteArray(5000, '\0'), QByteArray(5000, '\x5a')}) {
    schreibeDatei(journal(), inhalt);
    EXPECT_TRUE(Journalprüfung::gehörtDazu(pfad()));
  }
}
