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
  void großeZeile() {
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

TEST_F(Sammelschreiben, JedesExecuteSchreibtFürSichFest) {
  volk(s("Anna"));
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

TEST_F(Sammelschreiben, DieSchreibvorgängeEinerAktionSindEiner) {
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

TEST_F(Sammelschreiben, EinInneresSchließtSichDemÄußerenAn) {
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

TEST_F(Sammelschreiben, SchließenMittendrinBehältDasGeschriebene) {
  db.Sammelschreiben([&] {
    volk(s("Anna"));
    arbeitsbereich.Close();
  });
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

// --- full disk --------------------------------------------------------------------------------

TEST_F(Sammelschreiben, VollerDatenträgerBeiEinemEinzelnenExecute) {
  fastVoll();
  const auto fehler = fehlerVon([&] {
    for (int i = 0; i < 100; ++i) großeZeile();
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Voll);
  EXPECT_TRUE(fehler->text().contains(s("Auf dem Datenträger ist kein Platz mehr")));
  EXPECT_TRUE(fehler->text().contains(pfad()));
  EXPECT_FALSE(fehler->allesVerworfen());
  const qint64 geschrieben = anzahl();
  EXPECT_GT(geschrieben, 0);
  wiederPlatz();
  großeZeile();
  EXPECT_EQ(anzahlInDerDatei(), geschrieben + 1);
}

TEST_F(Sammelschreiben, WirftDieEngineAllesWegSagtEsDerFehler) {
  volk(s("vorher"));
  fastVoll();
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      for (int i = 0; i < 100; ++i) großeZeile();
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

// A statement that fills many rows is undone by itself, and what was written before it would stay.
TEST_F(Sammelschreiben, VollMittenInEinerAnweisungMachtDieGanzeAktionUngeschehen) {
  for (int i = 0; i < 40; ++i) volk(QString::number(i));
  fastVoll();
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      volk(s("Anna"));
      db.Execute(s("update Bienenvolk set Bemerkung = ?"), {QString(3000, u'x')});
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Voll);
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_EQ(fehler->text().count(s("Von diesem Vorgang wurde nichts gespeichert.")), 1);
  wiederPlatz();
  EXPECT_EQ(anzahlInDerDatei(), 40);
  EXPECT_EQ(befund(), "ok");
}

TEST_F(Sammelschreiben, VerschlucktDieAktionDenFehlerDesDatenträgersIstSieDochVerworfen) {
  for (int i = 0; i < 40; ++i) volk(QString::number(i));
  fastVoll();
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      volk(s("Anna"));
      EXPECT_THROW(db.Execute(s("update Bienenvolk set Bemerkung = ?"), {QString(3000, u'x')}),
                   Datenbankfehler);
      EXPECT_THROW(volk(s("Berta")), Datenbankfehler);
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_TRUE(fehler->allesVerworfen());
  wiederPlatz();
  EXPECT_EQ(anzahlInDerDatei(), 40);
}

TEST_F(Sammelschreiben, EineBeschädigteTabelleMachtDieGanzeAktionUngeschehen) {
  db.Execute(s("create table Kunden (Kundenname TEXT (30), ID COUNTER)"));
  db.Execute(s("insert into Kunden (Kundenname) values ('Meier')"));
  const QByteArray wurzel =
      verbindung().steuere("select rootpage from sqlite_schema where name = 'Kunden'");
  const qint64 seite = verbindung().steuere("pragma page_size").toLongLong();
  arbeitsbereich.Close();
  QFile datei(pfad());
  ASSERT_TRUE(datei.open(QIODevice::ReadWrite));
  ASSERT_TRUE(datei.seek((wurzel.toLongLong() - 1) * seite));
  ASSERT_EQ(datei.write(QByteArray(8, '\xff')), 8);
  datei.close();
  db = arbeitsbereich.OpenDatabase(pfad());
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      volk(s("Anna"));
      db.Lesen(s("select * from Kunden"));
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::KeineDatenbank);
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_EQ(anzahlInDerDatei(), 0);
}

TEST_F(Sammelschreiben, EineStörungDieNichtVonDieserVerbindungKommtVerwirftAuch) {
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      volk(s("Anna"));
      throw Datenbankfehler(Datenbankfehler::Art::Datenträger, s("Die andere Datei ist kaputt."));
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->text(),
            s("Die andere Datei ist kaputt. Von diesem Vorgang wurde nichts gespeichert."));
  EXPECT_EQ(anzahlInDerDatei(), 0);
  volk(s("Berta"));
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

TEST_F(Sammelschreiben, WasFolgtGeschiehtNachDemFestschreiben) {
  QList<qint64> gesehen;
  const auto folge = [&] { gesehen << anzahlInDerDatei(); };
  db.NachFestschreiben(folge);  // outside: at once
  db.Sammelschreiben([&] {
    volk(s("Anna"));
    db.Sammelschreiben([&] { db.NachFestschreiben(folge); });
    EXPECT_EQ(gesehen, QList<qint64>{0});
  });
  EXPECT_EQ(gesehen, (QList<qint64>{0, 1}));
  // A rule that fails keeps what was written, and what follows from it.
  EXPECT_THROW(db.Sammelschreiben([&] {
    volk(s("Berta"));
    db.NachFestschreiben(folge);
    volk(QString(21, u'x'));
  }),
               Datenbankfehler);
  EXPECT_EQ(gesehen, (QList<qint64>{0, 1, 2}));
}

TEST_F(Sammelschreiben, WasVerworfenWurdeHatKeineFolge) {
  bool gefolgt = false;
  const auto störung = [&] {
    db.NachFestschreiben([&] { gefolgt = true; });
    throw Datenbankfehler(Datenbankfehler::Art::Voll, s("voll"));
  };
  EXPECT_THROW(db.Sammelschreiben(störung), Datenbankfehler);
  EXPECT_FALSE(gefolgt);
  db.Sammelschreiben([&] { volk(s("Anna")); });
  EXPECT_FALSE(gefolgt);
}

TEST_F(Sammelschreiben, NachDemVerlustSchreibtNichtsMehrHeimlichFest) {
  fastVoll();
  int weitere = 0;
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      try {
        for (int i = 0; i < 100; ++i) großeZeile();
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
      for (int i = 0; i < 300; ++i) großeZeile();
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Voll) << fehler->what();
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_EQ(anzahl(), 1);
  EXPECT_EQ(befund(), "ok");
  großeZeile();
  EXPECT_EQ(anzahlInDerDatei(), 2);
}

// --- closed in the middle ---------------------------------------------------------------------

TEST_F(Sammelschreiben, ScheitertDasFestschreibenBeimSchließenSagtEsDerFehler) {
  volk(s("vorher"));
  bool amEnde = false;
  const auto fehler = fehlerVon([&] {
    const Dateigrenze grenze(static_cast<rlim_t>(QFileInfo(pfad()).size()) + 4096);
    db.Sammelschreiben([&] {
      for (int i = 0; i < 300; ++i) großeZeile();
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
  großeZeile();
  EXPECT_EQ(anzahlInDerDatei(), 2);
}

TEST_F(Sammelschreiben, VerschlucktDieAktionDenFehlerDesSchließensSagtIhnDasSammelschreiben) {
  volk(s("vorher"));
  const auto fehler = fehlerVon([&] {
    const Dateigrenze grenze(static_cast<rlim_t>(QFileInfo(pfad()).size()) + 4096);
    db.Sammelschreiben([&] {
      for (int i = 0; i < 300; ++i) großeZeile();
      EXPECT_THROW(arbeitsbereich.Close(), Datenbankfehler);
    });
  });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_EQ(anzahlInDerDatei(), 1);
}

TEST_F(Sammelschreiben, ScheitertEinesSchließtDerArbeitsbereichAuchDieAnderen) {
  volk(s("vorher"));
  Database zweite = arbeitsbereich.CreateDatabase(imOrdner(s("zweite.mdb")));
  Database dritte = arbeitsbereich.CreateDatabase(imOrdner(s("dritte.mdb")));
  const QString anlegen = s("create table Bienenvolk (Volkname TEXT (20), ID COUNTER)");
  zweite.Execute(anlegen);
  dritte.Execute(anlegen);
  const auto fehler = fehlerVon([&] {
    db.Sammelschreiben([&] {
      for (int i = 0; i < 300; ++i) großeZeile();
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
  const auto fehler = fehlerVon([&] { db.Sammelschreiben([] { FAIL(); }); });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_EQ(fehler->art(), Datenbankfehler::Art::Gesperrt);
  EXPECT_TRUE(fehler->text().contains(s("von einem anderen Programm benutzt")));
  EXPECT_TRUE(fehler->allesVerworfen());
  EXPECT_TRUE(fehler->text().endsWith(s("Von diesem Vorgang wurde nichts gespeichert.")));
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

TEST_F(Gesperrt, LiestEinAnderesProgrammBeimSchließenMittendrinIstAllesVerworfen) {
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
  void schießeAb(const char* helfer, const QByteArray& wort, int nachMs) {
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

TEST_F(Abgeschossen, MittenImLaufStehtNachDemÖffnenNichtsVonIhmDa) {
  volk(s("vorher"));
  arbeitsbereich.Close();
  const qint64 größe = QFileInfo(pfad()).size();
  schießeAb("--unterbrochen", "halb", 0);
  // The run had reached the file, and its journal lies there to undo it.
  ASSERT_GT(QFileInfo(pfad()).size(), größe);
  ASSERT_GT(QFileInfo(pfad() + s("-journal")).size(), 0);
  db = arbeitsbereich.OpenDatabase(pfad());
  EXPECT_EQ(anzahl(), 1);
  EXPECT_EQ(befund(), "ok");
  EXPECT_EQ(dateien(), QStringList{s("TOVA2.MDB")});
}

TEST_F(Abgeschossen, ZuIrgendeinemZeitpunktStehtJederLaufGanzOderGarNichtDa) {
  arbeitsbereich.Close();
  qint64 läufe = 0;
  for (int runde = 0; runde < 12; ++runde) {
    schießeAb("--laeufe", "los", 1 + runde * 7);
    db = arbeitsbereich.OpenDatabase(pfad());
    EXPECT_EQ(befund(), "ok");
    const Daten d = db.Lesen(s("select Jahre, count(*) from Bienenvolk group by Jahre"));
    for (int z = 0; z < d->zeilen(); ++z) EXPECT_EQ(d->ganzzahl(z, 1), 300);
    läufe = d->zeilen();
    arbeitsbereich.Close();
  }
  EXPECT_GT(läufe, 0);
}
