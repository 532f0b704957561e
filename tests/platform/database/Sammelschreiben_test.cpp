#include <sqlite3.h>

#include <QFileInfo>
#include <QProcess>
#include <QThread>
#include <stdexcept>

#include "platform/database/Dateigrenze.h"
#include "platform/database/Testdatenbank.h"

namespace {
QString s(const char* text) { return QString::fromUtf8(text); }
}  // namespace

class Sammelschreiben : public Testdatenbank {
 protected:
  // What another process would find in the file at this moment.
  qint64 anzahlInDerDatei() {
    sqlite3* andere = nullptr;
    EXPECT_EQ(sqlite3_open(pfad().toUtf8().constData(), &andere), SQLITE_OK);
    sqlite3_stmt* stmt = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(andere, "select count(*) from Bienenvolk", -1, &stmt, nullptr),
              SQLITE_OK);
    EXPECT_EQ(sqlite3_step(stmt), SQLITE_ROW);
    const qint64 zeilen = sqlite3_column_int64(stmt, 0);
    sqlite3_finalize(stmt);
    sqlite3_close(andere);
    return zeilen;
  }
  void grosseZeile() {
    db.Execute(s("insert into Bienenvolk (Bemerkung) values (?)"), {QString(3000, u'x')});
  }
  // From now on the database can grow by a few pages only.
  void fastVoll() {
    const int seiten = verbindung().steuere("pragma page_count").toInt();
    verbindung().steuere("pragma max_page_count = " + QByteArray::number(seiten + 5));
  }
  void wiederPlatz() { verbindung().steuere("pragma max_page_count = 1000000"); }
  QByteArray befund() { return verbindung().steuere("pragma integrity_check"); }
};

TEST_F(Sammelschreiben, JedesExecuteSchreibtFuerSichFest) {
  volk(s("Anna"));
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

TEST_F(Sammelschreiben, DieSchreibvorgaengeEinerAktionSindEiner) {
  db.Sammelschreiben([&] {
    volk(s("Anna"));
    volk(s("Berta"));
    EXPECT_EQ(anzahl(), 2);
    EXPECT_EQ(anzahlInDerDatei(), 0);
  });
  EXPECT_EQ(anzahlInDerDatei(), 2);
}

TEST_F(Sammelschreiben, WasVorDemFehlerGeschriebenWurdeBleibt) {
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      volk(s("Anna"));
      volk(QString(21, u'x'));
      volk(s("Cäsar"));
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Wertebereich);
  EXPECT_FALSE(fehler->allesVerworfen());
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

TEST_F(Sammelschreiben, AuchFremdeAusnahmenGehenWeiterUndDasGeschriebeneBleibt) {
  EXPECT_THROW(db.Sammelschreiben([&] {
    volk(s("Anna"));
    throw std::runtime_error("abgebrochen");
  }),
               std::runtime_error);
  EXPECT_EQ(anzahlInDerDatei(), 1);
  volk(s("Berta"));
  EXPECT_EQ(anzahlInDerDatei(), 2);
}

TEST_F(Sammelschreiben, EinInneresSchliesstSichDemAeusserenAn) {
  Database anderer = arbeitsbereich.OpenDatabase(pfad());
  db.Sammelschreiben([&] {
    volk(s("Anna"));
    anderer.Sammelschreiben([&] { volk(s("Berta")); });
    EXPECT_EQ(anzahlInDerDatei(), 0);
    EXPECT_THROW(db.Sammelschreiben([&] {
      volk(s("Cäsar"));
      throw std::runtime_error("innen");
    }),
                 std::runtime_error);
    EXPECT_EQ(anzahlInDerDatei(), 0);
  });
  EXPECT_EQ(anzahlInDerDatei(), 3);
}

TEST_F(Sammelschreiben, RecordsetsSchreibenMit) {
  db.Sammelschreiben([&] {
    Recordset rs = db.OpenRecordset(s("select * from Bienenvolk"));
    for (int i = 0; i < 10; ++i) {
      rs.AddNew();
      rs[s("Jahre")] = i;
      rs.Update();
    }
    EXPECT_EQ(anzahlInDerDatei(), 0);
  });
  EXPECT_EQ(anzahlInDerDatei(), 10);
}

TEST_F(Sammelschreiben, SchliessenMittendrinBehaeltDasGeschriebene) {
  db.Sammelschreiben([&] {
    volk(s("Anna"));
    arbeitsbereich.Close();
  });
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

// --- full disk --------------------------------------------------------------------------------

TEST_F(Sammelschreiben, VollerDatentraegerBeiEinemEinzelnenExecute) {
  fastVoll();
  const auto fehler = fehlerVon([&] {
    for (int i = 0; i < 100; ++i) grosseZeile();
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Voll);
  EXPECT_TRUE(fehler->text().contains(s("Auf dem Datenträger ist kein Platz mehr")));
  EXPECT_TRUE(fehler->text().contains(pfad()));
  EXPECT_FALSE(fehler->allesVerworfen());
  const qint64 geschrieben = anzahl();
  EXPECT_GT(geschrieben, 0);
  wiederPlatz();
  grosseZeile();
  EXPECT_EQ(anzahlInDerDatei(), geschrieben + 1);
}

TEST_F(Sammelschreiben, WirftDieEngineAllesWegSagtEsDerFehler) {
  volk(s("vorher"));
  fastVoll();
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      for (int i = 0; i < 100; ++i) grosseZeile();
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Voll);
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_TRUE(fehler->text().contains(s("Von diesem Vorgang wurde nichts gespeichert.")));
  wiederPlatz();
  EXPECT_EQ(anzahlInDerDatei(), 1);
  EXPECT_EQ(befund(), "ok");
}

TEST_F(Sammelschreiben, NachDemVerlustSchreibtNichtsMehrHeimlichFest) {
  fastVoll();
  int weitere = 0;
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      try {
        for (int i = 0; i < 100; ++i) grosseZeile();
      } catch (const Datenbankfehler&) {
      }
      wiederPlatz();
      const auto danach = fehlerVon([&] { volk(s("danach")); });
      EXPECT_TRUE(danach && danach->allesVerworfen());
      EXPECT_THROW(db.Sammelschreiben([&] { ++weitere; }), Datenbankfehler);
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_EQ(weitere, 0);
  EXPECT_EQ(anzahlInDerDatei(), 0);
  volk(s("neuer Anlauf"));
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

TEST_F(Sammelschreiben, ScheitertDasFestschreibenIstAllesVerworfen) {
  volk(s("vorher"));
  const auto fehler = fehlerVon([&] {
    const Dateigrenze grenze(static_cast<rlim_t>(QFileInfo(pfad()).size()) + 4096);
    db.Sammelschreiben([&] {
      for (int i = 0; i < 300; ++i) grosseZeile();
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Voll) << fehler->what();
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_EQ(anzahl(), 1);
  EXPECT_EQ(befund(), "ok");
  grosseZeile();
  EXPECT_EQ(anzahlInDerDatei(), 2);
}

// --- closed in the middle ---------------------------------------------------------------------

TEST_F(Sammelschreiben, ScheitertDasFestschreibenBeimSchliessenSagtEsDerFehler) {
  volk(s("vorher"));
  bool amEnde = false;
  const auto fehler = fehlerVon([&] {
    const Dateigrenze grenze(static_cast<rlim_t>(QFileInfo(pfad()).size()) + 4096);
    db.Sammelschreiben([&] {
      for (int i = 0; i < 300; ++i) grosseZeile();
      arbeitsbereich.Close();
      amEnde = true;
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_FALSE(amEnde);
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Voll) << fehler->what();
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_EQ(fehler->text().count(s("Von diesem Vorgang wurde nichts gespeichert.")), 1);
  EXPECT_FALSE(db.IsOpen());
  EXPECT_EQ(Verbindung::zu(pfad()), nullptr);
  db = arbeitsbereich.OpenDatabase(pfad());
  EXPECT_EQ(anzahl(), 1);
  EXPECT_EQ(befund(), "ok");
  grosseZeile();
  EXPECT_EQ(anzahlInDerDatei(), 2);
}

TEST_F(Sammelschreiben, VerschlucktDieAktionDenFehlerDesSchliessensSagtIhnDasSammelschreiben) {
  volk(s("vorher"));
  const auto fehler = fehlerVon([&] {
    const Dateigrenze grenze(static_cast<rlim_t>(QFileInfo(pfad()).size()) + 4096);
    db.Sammelschreiben([&] {
      for (int i = 0; i < 300; ++i) grosseZeile();
      EXPECT_THROW(arbeitsbereich.Close(), Datenbankfehler);
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

TEST_F(Sammelschreiben, ScheitertEinesSchliesstDerArbeitsbereichAuchDieAnderen) {
  volk(s("vorher"));
  Database zweite = arbeitsbereich.CreateDatabase(imOrdner(s("zweite.mdb")));
  Database dritte = arbeitsbereich.CreateDatabase(imOrdner(s("dritte.mdb")));
  const QString anlegen = s("create table Bienenvolk (Volkname TEXT (20), ID COUNTER)");
  zweite.Execute(anlegen);
  dritte.Execute(anlegen);
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      for (int i = 0; i < 300; ++i) grosseZeile();
      dritte.Sammelschreiben([&] {
        dritte.Execute(s("insert into Bienenvolk (Volkname) values ('Anna')"));
        const Dateigrenze grenze(static_cast<rlim_t>(QFileInfo(pfad()).size()) + 4096);
        arbeitsbereich.Close();
      });
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_TRUE(fehler->text().contains(pfad()));
  EXPECT_FALSE(db.IsOpen());
  EXPECT_FALSE(zweite.IsOpen());
  EXPECT_FALSE(dritte.IsOpen());
  EXPECT_EQ(anzahlInDerDatei(), 1);
  dritte = arbeitsbereich.OpenDatabase(imOrdner(s("dritte.mdb")));
  EXPECT_EQ(dritte.Lesen(s("select count(*) from Bienenvolk"))->ganzzahl(0, 0), 1);
}

// --- locked -----------------------------------------------------------------------------------

class Gesperrt : public Sammelschreiben {
 protected:
  void SetUp() override {
    Sammelschreiben::SetUp();
    ASSERT_EQ(sqlite3_open(pfad().toUtf8().constData(), &anderes), SQLITE_OK);
    verbindung().steuere("pragma busy_timeout = 50");
  }
  void TearDown() override { sqlite3_close(anderes); }
  void imAnderen(const char* sql) {
    ASSERT_EQ(sqlite3_exec(anderes, sql, nullptr, nullptr, nullptr), SQLITE_OK);
  }
  sqlite3* anderes = nullptr;
};

TEST_F(Gesperrt, SchreibtEinAnderesProgrammSagtEsDerFehler) {
  imAnderen("begin immediate");
  ERWARTE_FEHLER(volk(s("Anna")), Gesperrt, "von einem anderen Programm benutzt");
  ERWARTE_FEHLER(db.Sammelschreiben([] { FAIL(); }), Gesperrt,
                 "von einem anderen Programm benutzt");
  imAnderen("rollback");
  volk(s("Anna"));
  EXPECT_EQ(anzahl(), 1);
}

TEST_F(Gesperrt, LiestEinAnderesProgrammBeimFestschreibenIstAllesVerworfen) {
  volk(s("vorher"));
  imAnderen("begin; select * from sqlite_schema");
  const auto fehler = fehlerVon([&] { db.Sammelschreiben([&] { volk(s("Anna")); }); });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Gesperrt);
  EXPECT_TRUE(fehler->allesVerworfen());
  imAnderen("commit");
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

TEST_F(Gesperrt, LiestEinAnderesProgrammBeimSchliessenMittendrinIstAllesVerworfen) {
  volk(s("vorher"));
  imAnderen("begin; select * from sqlite_schema");
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      volk(s("Anna"));
      arbeitsbereich.Close();
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Gesperrt);
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_FALSE(db.IsOpen());
  imAnderen("commit");
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

// --- killed in the middle -----------------------------------------------------------------------

class Abgeschossen : public Sammelschreiben {
 protected:
  // Runs this program again as `helfer` until it has said the word, kills it some time later.
  void schiesseAb(const char* helfer, const QByteArray& wort, int nachMs) {
    QProcess prozess;
    prozess.start(QCoreApplication::applicationFilePath(), {s(helfer), pfad()});
    ASSERT_TRUE(prozess.waitForStarted());
    while (!prozess.readAllStandardOutput().contains(wort)) {
      ASSERT_TRUE(prozess.waitForReadyRead(20000)) << prozess.readAllStandardError().constData();
    }
    QThread::msleep(static_cast<unsigned long>(nachMs));
    prozess.kill();
    ASSERT_TRUE(prozess.waitForFinished());
    ASSERT_EQ(prozess.exitStatus(), QProcess::CrashExit);
  }
};

TEST_F(Abgeschossen, MittenImLaufStehtNachDemOeffnenNichtsVonIhmDa) {
  volk(s("vorher"));
  arbeitsbereich.Close();
  const qint64 groesse = QFileInfo(pfad()).size();
  schiesseAb("--unterbrochen", "halb", 0);
  // The run had reached the file, and its journal lies there to undo it.
  ASSERT_GT(QFileInfo(pfad()).size(), groesse);
  ASSERT_GT(QFileInfo(pfad() + s("-journal")).size(), 0);
  db = arbeitsbereich.OpenDatabase(pfad());
  EXPECT_EQ(anzahl(), 1);
  EXPECT_EQ(befund(), "ok");
  EXPECT_EQ(dateien(), QStringList{s("TOVA2.MDB")});
}

TEST_F(Abgeschossen, ZuIrgendeinemZeitpunktStehtJederLaufGanzOderGarNichtDa) {
  arbeitsbereich.Close();
  qint64 laeufe = 0;
  for (int runde = 0; runde < 12; ++runde) {
    schiesseAb("--laeufe", "los", 1 + runde * 7);
    db = arbeitsbereich.OpenDatabase(pfad());
    EXPECT_EQ(befund(), "ok");
    const Daten d = db.Lesen(s("select Jahre, count(*) from Bienenvolk group by Jahre"));
    for (int z = 0; z < d->zeilen(); ++z) EXPECT_EQ(d->ganzzahl(z, 1), 300);
    laeufe = d->zeilen();
    arbeitsbereich.Close();
  }
  EXPECT_GT(laeufe, 0);
}
