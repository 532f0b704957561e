#include <sqlite3.h>
#include <unistd.h>

#include <QDir>
#include <QProcess>

#include "platform/database/Dateigrenze.h"
#include "platform/database/Testdatenbank.h"

namespace {

QString s(const char* text) { return QString::fromUtf8(text); }

const QString alleTabellen = s(
    "create table Bienenvolk (Volknr text, ID integer primary key); create table Stockkarte (ID "
    "int); create table Honigernte (ID int); create table Standorte (ID int); create table Termine "
    "(ID int);");

// A database of the same engine that isn't of this program.
void fremdeDatenbank(const QString& pfad, const QString& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(pfad.toUtf8().constData(), &db), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(db);
}

}  // namespace

class WorkspaceTest : public Testdatenbank {
 protected:
  // Opening fails with this kind and text, and leaves file and folder as they were.
  void erwarteAbgelehnt(const QString& pfad, Datenbankfehler::Art art, const char* teil) {
    const QByteArray vorher = dateiinhalt(pfad);
    const QStringList dateienVorher = dateien();
    const auto fehler = fehlerVon([&] { Workspace().OpenDatabase(pfad); });
    ASSERT_TRUE(fehler.has_value());
    EXPECT_EQ(fehler->art(), art) << fehler->what();
    EXPECT_TRUE(fehler->text().contains(s(teil))) << fehler->what();
    EXPECT_TRUE(fehler->text().contains(QDir::toNativeSeparators(pfad))) << fehler->what();
    EXPECT_EQ(dateiinhalt(pfad), vorher);
    EXPECT_EQ(dateien(), dateienVorher);
  }
  static constexpr auto Keine = Datenbankfehler::Art::KeineDatenbank;

  static QByteArray ohneRechte(const QString& pfad) {
    QProcess prozess;
    prozess.start(QCoreApplication::applicationFilePath(), {s("--ohne-rechte"), pfad});
    EXPECT_TRUE(prozess.waitForFinished());
    EXPECT_EQ(prozess.exitCode(), 0);
    return prozess.readAllStandardOutput();
  }
};

TEST_F(WorkspaceTest, EineNeueDatenbankÜberschreibtKeineDatei) {
  const QByteArray vorher = dateiinhalt(pfad());
  ERWARTE_FEHLER(arbeitsbereich.CreateDatabase(pfad()), Allgemein, "schon vorhanden");
  EXPECT_EQ(dateiinhalt(pfad()), vorher);
}

TEST_F(WorkspaceTest, EineNeueDatenbankInEinemOrdnerDenEsNichtGibtIstEinFehler) {
  ERWARTE_FEHLER(arbeitsbereich.CreateDatabase(imOrdner(s("fehlt/TOVA2.MDB"))), NurLesen, "Ordner");
}

TEST_F(WorkspaceTest, GeschriebenesIstNachDemWiederöffnenDa) {
  volk(s("Anna"));
  arbeitsbereich.Close();
  Workspace neu;
  Database wieder = neu.OpenDatabase(pfad());
  EXPECT_EQ(wieder.Name(), pfad());
  EXPECT_EQ(wieder.Lesen(s("select Volkname from Bienenvolk"))->wert(0, 0).toString(), s("Anna"));
  EXPECT_EQ(dateien(), QStringList{s("TOVA2.MDB")});
}

TEST_F(WorkspaceTest, ZweiGriffeSehenDieÄnderungenDesAndernSofort) {
  Database anderer = arbeitsbereich.OpenDatabase(pfad());
  volk(s("Anna"));
  EXPECT_EQ(anderer.Lesen(s("select * from Bienenvolk"))->zeilen(), 1);
  anderer.Execute(s("update Bienenvolk set Volkname = 'Agnes'"));
  EXPECT_EQ(einWert(s("select Volkname from Bienenvolk")).toString(), s("Agnes"));
}

TEST_F(WorkspaceTest, GriffeSperrenEinanderNichtAuchNichtImSammelschreiben) {
  Database anderer = arbeitsbereich.OpenDatabase(pfad());
  db.Sammelschreiben([&] {
    volk(s("Anna"));
    anderer.Execute(s("insert into Bienenvolk (Volkname) values ('Berta')"));
    EXPECT_EQ(anderer.Lesen(s("select * from Bienenvolk"))->zeilen(), 2);
  });
  EXPECT_EQ(anzahl(), 2);
}

TEST_F(WorkspaceTest, EinAndererWegZurSelbenDateiIstDieselbeVerbindung) {
  ASSERT_TRUE(QDir(m_ordner.path()).mkdir(s("x")));
  Database anderer = arbeitsbereich.OpenDatabase(imOrdner(s("x/../TOVA2.MDB")));
  db.Sammelschreiben([&] {
    volk(s("Anna"));
    EXPECT_EQ(anderer.Lesen(s("select * from Bienenvolk"))->zeilen(), 1);
  });
}

TEST_F(WorkspaceTest, CloseEinesGriffsSchließtNurIhn) {
  Database anderer = arbeitsbereich.OpenDatabase(pfad());
  anderer.Close();
  EXPECT_FALSE(anderer.IsOpen());
  ERWARTE_FEHLER(anderer.Lesen(s("select * from Bienenvolk")), Allgemein, "geschlossen");
  EXPECT_EQ(anzahl(), 0);
}

TEST_F(WorkspaceTest, NachDemSchließenDesArbeitsbereichsScheiternAlleGriffe) {
  Database anderer = arbeitsbereich.OpenDatabase(pfad());
  EXPECT_TRUE(db.IsOpen());
  arbeitsbereich.Close();
  EXPECT_FALSE(db.IsOpen());
  ERWARTE_FEHLER(db.Execute(s("delete from Bienenvolk")), Allgemein, "geschlossen");
  ERWARTE_FEHLER(anderer.Lesen(s("select * from Bienenvolk")), Allgemein, "geschlossen");
  ERWARTE_FEHLER(db.Felder(s("Bienenvolk")), Allgemein, "geschlossen");
  ERWARTE_FEHLER(db.Sammelschreiben([] {}), Allgemein, "geschlossen");
}

TEST_F(WorkspaceTest, EineErsetzteDateiWirdNeuGeöffnet) {
  volk(s("Anna"));
  arbeitsbereich.Close();
  ASSERT_TRUE(QFile::copy(pfad(), imOrdner(s("sicherung"))));
  db = arbeitsbereich.OpenDatabase(pfad());
  volk(s("Berta"));
  ASSERT_TRUE(QFile::remove(pfad()));
  ASSERT_TRUE(QFile::rename(imOrdner(s("sicherung")), pfad()));
  Database neu = arbeitsbereich.OpenDatabase(pfad());
  EXPECT_EQ(neu.Lesen(s("select * from Bienenvolk"))->zeilen(), 1);
  ERWARTE_FEHLER(db.Lesen(s("select * from Bienenvolk")), Allgemein, "geschlossen");
}

TEST_F(WorkspaceTest, InEineVerschobeneDateiWirdNichtGeschrieben) {
  ASSERT_TRUE(QFile::rename(pfad(), imOrdner(s("weg"))));
  ERWARTE_FEHLER(volk(s("Anna")), NurLesen, "verschoben oder gelöscht");
}

// --- the check before opening ---------------------------------------------------------------

TEST_F(WorkspaceTest, EineDateiDieEsNichtGibt) {
  ERWARTE_FEHLER(arbeitsbereich.OpenDatabase(imOrdner(s("fehlt.MDB"))), KeineDatenbank,
                 "nicht gefunden");
  EXPECT_FALSE(QFile::exists(imOrdner(s("fehlt.MDB"))));
}

TEST_F(WorkspaceTest, EinOrdner) {
  ASSERT_TRUE(QDir(m_ordner.path()).mkdir(s("Ordner.MDB")));
  ERWARTE_FEHLER(arbeitsbereich.OpenDatabase(imOrdner(s("Ordner.MDB"))), KeineDatenbank,
                 "ist ein Ordner");
}

TEST_F(WorkspaceTest, EineLeereDatei) {
  schreibeDatei(imOrdner(s("x.MDB")), {});
  erwarteAbgelehnt(imOrdner(s("x.MDB")), Keine, "ist leer");
}

TEST_F(WorkspaceTest, EineTextdatei) {
  schreibeDatei(imOrdner(s("x.MDB")),
                "Einkaufsliste\r\nHonigl\xF6"
                "ffel\r\n");
  erwarteAbgelehnt(imOrdner(s("x.MDB")), Keine, "Textdatei");
}

TEST_F(WorkspaceTest, EineAndereBinärdatei) {
  schreibeDatei(imOrdner(s("x.MDB")), QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16).repeated(20));
  erwarteAbgelehnt(imOrdner(s("x.MDB")), Keine, "keine Datenbank von TOVA");
}

TEST_F(WorkspaceTest, DieDatenbankEinerÄlterenVersion) {
  schreibeDatei(
      imOrdner(s("x.MDB")),
      QByteArray::fromHex("000100005374616e64617264204a657420444200") + QByteArray(2028, '\7'));
  erwarteAbgelehnt(imOrdner(s("x.MDB")), Keine, "Datenbank einer älteren TOVA-Version");
}

TEST_F(WorkspaceTest, EineDatenbankOhneBienenvolk) {
  const QString fremd = imOrdner(s("x.MDB"));
  fremdeDatenbank(fremd, s("create table Kunden (Name text)"));
  erwarteAbgelehnt(fremd, Keine, "keine Datenbank von TOVA");
}

TEST_F(WorkspaceTest, EineFremdeDatenbankMitSchreibprotokollBleibtUnberührt) {
  const QString fremd = imOrdner(s("x.MDB"));
  fremdeDatenbank(fremd, s("pragma journal_mode = wal; create table Kunden (Name text)"));
  erwarteAbgelehnt(fremd, Keine, "keine Datenbank von TOVA");
}

// Whatever tables it has: the mark of another program, or texts that this one never writes.
TEST_F(WorkspaceTest, EineDatenbankMitDerKennungEinesAnderenProgramms) {
  const QString fremd = imOrdner(s("x.MDB"));
  fremdeDatenbank(fremd, alleTabellen + s("pragma application_id = 1196444487"));
  erwarteAbgelehnt(fremd, Keine, "eines anderen Programms");
}

TEST_F(WorkspaceTest, EineDatenbankInUtf16) {
  const QString fremd = imOrdner(s("x.MDB"));
  fremdeDatenbank(fremd, s("pragma encoding = 'UTF-16le';") + alleTabellen);
  erwarteAbgelehnt(fremd, Keine, "eines anderen Programms");
}

TEST_F(WorkspaceTest, OhneKennungReichtDieTabelleBienenvolkAlleinNicht) {
  const QString fremd = imOrdner(s("x.MDB"));
  fremdeDatenbank(fremd, s("create table Bienenvolk (Art text)"));
  erwarteAbgelehnt(fremd, Keine, "keine Datenbank von TOVA");
}

TEST_F(WorkspaceTest, OhneKennungAberMitDenTabellenIstEsEineEigene) {
  const QString eigene = imOrdner(s("x.MDB"));
  fremdeDatenbank(eigene, alleTabellen);
  EXPECT_TRUE(arbeitsbereich.OpenDatabase(eigene).IsOpen());
}

TEST_F(WorkspaceTest, EineEigeneDatenbankMitSchreibprotokollWirdUmgestellt) {
  volk(s("Anna"));
  EXPECT_EQ(verbindung().steuere("pragma journal_mode = wal"), "wal");
  arbeitsbereich.Close();
  db = arbeitsbereich.OpenDatabase(pfad());
  EXPECT_EQ(verbindung().steuere("pragma journal_mode"), "delete");
  EXPECT_EQ(anzahl(), 1);
  EXPECT_EQ(dateien(), QStringList{s("TOVA2.MDB")});
}

TEST_F(WorkspaceTest, EineAbgeschnitteneDatei) {
  for (int i = 0; i < 50; ++i) volk(s("Volk"));
  arbeitsbereich.Close();
  const QByteArray ganz = dateiinhalt(pfad());
  ASSERT_GT(ganz.size(), 4096);
  for (const qsizetype länge : {ganz.size() - 1, ganz.size() - 4096, qsizetype(4096),
                                qsizetype(1000), qsizetype(100), qsizetype(99), qsizetype(16)}) {
    schreibeDatei(imOrdner(s("x.MDB")), ganz.left(länge));
    erwarteAbgelehnt(imOrdner(s("x.MDB")), Keine, "unvollständig");
  }
}

TEST_F(WorkspaceTest, EinZerstörterKopf) {
  arbeitsbereich.Close();
  QByteArray inhalt = dateiinhalt(pfad());
  inhalt[16] = 3;  // no page has such a size
  schreibeDatei(imOrdner(s("x.MDB")), inhalt);
  erwarteAbgelehnt(imOrdner(s("x.MDB")), Keine, "beschädigt");
}

TEST_F(WorkspaceTest, EinZerstörtesInhaltsverzeichnis) {
  arbeitsbereich.Close();
  QByteArray inhalt = dateiinhalt(pfad());
  for (int i = 100; i < 4096; ++i) inhalt[i] = '\x5A';
  schreibeDatei(imOrdner(s("x.MDB")), inhalt);
  erwarteAbgelehnt(imOrdner(s("x.MDB")), Keine, "beschädigt");
}

TEST_F(WorkspaceTest, EineSchreibgeschützteDatei) {
  arbeitsbereich.Close();
  QFile::setPermissions(m_ordner.path(), QFile::Permissions::fromInt(0x7777));
  QFile::setPermissions(pfad(), QFile::Permissions::fromInt(0x4444));
  const QByteArray vorher = dateiinhalt(pfad());
  const QByteArray ergebnis = ohneRechte(pfad());
  EXPECT_TRUE(ergebnis.startsWith("nurlesen")) << ergebnis.constData();
  EXPECT_TRUE(ergebnis.contains("Schreibschutz der Datei")) << ergebnis.constData();
  EXPECT_EQ(dateiinhalt(pfad()), vorher);
}

TEST_F(WorkspaceTest, EinSchreibgeschützterOrdner) {
  arbeitsbereich.Close();
  QFile::setPermissions(pfad(), QFile::Permissions::fromInt(0x6666));
  QFile::setPermissions(m_ordner.path(), QFile::Permissions::fromInt(0x5555));
  const QByteArray ergebnis = ohneRechte(pfad());
  QFile::setPermissions(m_ordner.path(), QFile::Permissions::fromInt(0x7777));
  EXPECT_TRUE(ergebnis.startsWith("nurlesen")) << ergebnis.constData();
  EXPECT_TRUE(ergebnis.contains("Schreibschutz des Ordners")) << ergebnis.constData();
}

TEST_F(WorkspaceTest, EineDateiOhneLeserecht) {
  arbeitsbereich.Close();
  QFile::setPermissions(m_ordner.path(), QFile::Permissions::fromInt(0x7777));
  QFile::setPermissions(pfad(), QFile::Permissions());
  const QByteArray ergebnis = ohneRechte(pfad());
  EXPECT_TRUE(ergebnis.startsWith("keine")) << ergebnis.constData();
  EXPECT_TRUE(ergebnis.contains("nicht gelesen")) << ergebnis.constData();
}

TEST_F(WorkspaceTest, MitAllenRechtenÖffnetDerselbeBenutzerSie) {
  arbeitsbereich.Close();
  QFile::setPermissions(m_ordner.path(), QFile::Permissions::fromInt(0x7777));
  QFile::setPermissions(pfad(), QFile::Permissions::fromInt(0x6666));
  EXPECT_EQ(ohneRechte(pfad()), "offen\n");
}

// --- compaction -------------------------------------------------------------------------------

class Komprimieren : public WorkspaceTest {
 protected:
  void SetUp() override {
    WorkspaceTest::SetUp();
    db.Sammelschreiben([&] {
      for (int i = 0; i < 200; ++i) {
        db.Execute(s("insert into Bienenvolk (Volkname, Bemerkung) values (?, ?)"),
                   {s("Volk ") + QString::number(i), QString(2000, u'x')});
      }
      db.Execute(s("delete from Bienenvolk where ID > 50"));
    });
    db.Execute(s("create index volk1 on Bienenvolk (Volkname)"));
    arbeitsbereich.Close();
  }
  QString ziel() const { return imOrdner(s("TOVA2.$$$")); }
};

TEST_F(Komprimieren, DieKopieIstKleinerUndEnthältAlles) {
  const QByteArray vorher = dateiinhalt(pfad());
  Workspace::CompactDatabase(pfad(), ziel());
  EXPECT_EQ(dateiinhalt(pfad()), vorher);
  EXPECT_LT(QFileInfo(ziel()).size(), QFileInfo(pfad()).size() / 2);
  EXPECT_EQ(dateien(), (QStringList{s("TOVA2.$$$"), s("TOVA2.MDB")}));
  db = arbeitsbereich.OpenDatabase(ziel());
  EXPECT_EQ(anzahl(), 50);
  EXPECT_EQ(anzahl(s("where Volkname = 'VOLK 7'")), 1);
}

TEST_F(Komprimieren, AuchDanachKommtKeineNummerWieder) {
  Workspace::CompactDatabase(pfad(), ziel());
  db = arbeitsbereich.OpenDatabase(ziel());
  EXPECT_EQ(volk(s("neu")), 201);
}

TEST_F(Komprimieren, EineOffeneDatenbankWirdNichtKomprimiert) {
  db = arbeitsbereich.OpenDatabase(pfad());
  ERWARTE_FEHLER(Workspace::CompactDatabase(pfad(), ziel()), Gesperrt, "noch geöffnet");
  EXPECT_FALSE(QFile::exists(ziel()));
}

TEST_F(Komprimieren, EinVorhandenesZielBleibtWieEsIst) {
  schreibeDatei(ziel(), "alt");
  ERWARTE_FEHLER(Workspace::CompactDatabase(pfad(), ziel()), Allgemein, "schon vorhanden");
  EXPECT_EQ(dateiinhalt(ziel()), "alt");
}

TEST_F(Komprimieren, EtwasAnderesAlsEineDatenbankWirdNichtKomprimiert) {
  schreibeDatei(imOrdner(s("x.MDB")), "Einkaufsliste");
  ERWARTE_FEHLER(Workspace::CompactDatabase(imOrdner(s("x.MDB")), ziel()), KeineDatenbank,
                 "Textdatei");
  EXPECT_FALSE(QFile::exists(ziel()));
}

TEST_F(Komprimieren, BeiVollemDatenträgerBleibtDieQuelleUndKeinHalbesZiel) {
  const QByteArray vorher = dateiinhalt(pfad());
  {
    const Dateigrenze grenze(20000);
    ERWARTE_FEHLER(Workspace::CompactDatabase(pfad(), ziel()), Voll, "kein Platz mehr");
  }
  EXPECT_EQ(dateiinhalt(pfad()), vorher);
  EXPECT_EQ(dateien(), QStringList{s("TOVA2.MDB")});
}

TEST_F(Komprimieren, EinZielImFehlendenOrdnerIstEinFehler) {
  const QByteArray vorher = dateiinhalt(pfad());
  EXPECT_THROW(Workspace::CompactDatabase(pfad(), imOrdner(s("fehlt/x.$$$"))), Datenbankfehler);
  EXPECT_EQ(dateiinhalt(pfad()), vorher);
}

// What another program does with the file meanwhile.
class Nachbar {
 public:
  explicit Nachbar(const QString& pfad) {
    EXPECT_EQ(sqlite3_open(pfad.toUtf8().constData(), &m_db), SQLITE_OK);
  }
  ~Nachbar() { sqlite3_close(m_db); }
  Nachbar(const Nachbar&) = delete;
  Nachbar& operator=(const Nachbar&) = delete;
  int tut(const char* sql) const { return sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr); }

 private:
  sqlite3* m_db = nullptr;
};

TEST_F(Komprimieren, SolangeEinAnderesProgrammSchreibtBleibtJedesByte) {
  const Nachbar nachbar(pfad());
  ASSERT_EQ(nachbar.tut("begin immediate; create table Gast (x); insert into Gast values (1)"),
            SQLITE_OK);
  const QByteArray vorher = dateiinhalt(pfad());
  ERWARTE_FEHLER(Workspace::CompactInPlace(pfad(), ziel()), Gesperrt, "anderen Programm");
  EXPECT_EQ(dateiinhalt(pfad()), vorher);
  EXPECT_FALSE(QFile::exists(ziel()));
  ASSERT_EQ(nachbar.tut("commit"), SQLITE_OK);
  EXPECT_EQ(nachbar.tut("select x from Gast"), SQLITE_OK);
  db = arbeitsbereich.OpenDatabase(pfad());
  EXPECT_EQ(db.Lesen(s("select x from Gast"))->zeilen(), 1);
}

TEST_F(Komprimieren, SolangeEinAnderesProgrammLiestBleibtJedesByte) {
  const Nachbar nachbar(pfad());
  ASSERT_EQ(nachbar.tut("begin; select count(*) from sqlite_master"), SQLITE_OK);
  const QByteArray vorher = dateiinhalt(pfad());
  ERWARTE_FEHLER(Workspace::CompactDatabase(pfad(), ziel()), Gesperrt, "anderen Programm");
  EXPECT_EQ(dateiinhalt(pfad()), vorher);
  EXPECT_FALSE(QFile::exists(ziel()));
}

// One that has the file open but at rest can't write into the file that is gone.
TEST_F(Komprimieren, WasEinRuhenderNachbarDanachSchreibtGehtNichtVerloren) {
  const Nachbar nachbar(pfad());
  ASSERT_EQ(nachbar.tut("select count(*) from sqlite_master"), SQLITE_OK);
  Workspace::CompactInPlace(pfad(), ziel());
  EXPECT_NE(nachbar.tut("create table Gast (x)"), SQLITE_OK);
}

TEST_F(Komprimieren, DieKopieTrittAnDieStelleDerDatei) {
  const qint64 größe = QFileInfo(pfad()).size();
  Workspace::CompactInPlace(pfad(), ziel());
  EXPECT_LT(QFileInfo(pfad()).size(), größe / 2);
  EXPECT_EQ(dateien(), QStringList{s("TOVA2.MDB")});
  db = arbeitsbereich.OpenDatabase(pfad());
  EXPECT_EQ(anzahl(), 50);
}

TEST_F(Komprimieren, DerStandDesSchemasGehtMit) {
  db = arbeitsbereich.OpenDatabase(pfad());
  db.setSchemastand(7);
  arbeitsbereich.Close();
  Workspace::CompactInPlace(pfad(), ziel());
  EXPECT_EQ(arbeitsbereich.OpenDatabase(pfad()).Schemastand(), 7);
}

// An index that no longer tells what its table holds: nothing in the structure is wrong.
TEST_F(Komprimieren, EineBeschädigteDateiWirdVorherErkanntUndBleibt) {
  db = arbeitsbereich.OpenDatabase(pfad());
  const int seite =
      verbindung().steuere("select rootpage from sqlite_schema where name = 'volk1'").toInt();
  const int größe = verbindung().steuere("pragma page_size").toInt();
  arbeitsbereich.Close();
  QByteArray inhalt = dateiinhalt(pfad());
  const qsizetype ort = inhalt.indexOf("Volk 17", qsizetype{größe} * (seite - 1));
  ASSERT_LT(ort, qsizetype{größe} * seite);
  ASSERT_GT(ort, 0);
  inhalt[ort + 6] = ':';
  schreibeDatei(pfad(), inhalt);
  ERWARTE_FEHLER(Workspace::CompactInPlace(pfad(), ziel()), KeineDatenbank, "ist beschädigt");
  EXPECT_EQ(dateiinhalt(pfad()), inhalt);
  EXPECT_EQ(dateien(), QStringList{s("TOVA2.MDB")});
}
