#include <sqlite3.h>

#include <cerrno>
#include <limits>

#include "platform/database/Testdatenbank.h"
#include "platform/database/verbindung/Enginefehler.h"

namespace {

QString s(const char* text) { return QString::fromUtf8(text); }

Datenbankfehler übersetzt(int code, int systemfehler = 0, bool beimVorbereiten = false) {
  return Enginefehler::fehler({code, systemfehler, s("engine says"), beimVorbereiten},
                              s("C:\\TOVA\\TOVA2.MDB"), s("select 1"));
}

}  // namespace

class Fehler : public Testdatenbank {};

TEST(Enginefehler, JedeArtNenntDieDateiUndDieAnweisung) {
  using Art = Datenbankfehler::Art;
  const std::vector<std::pair<int, Art>> erwartet = {{SQLITE_READONLY, Art::NurLesen},
                                                     {SQLITE_READONLY_DIRECTORY, Art::NurLesen},
                                                     {SQLITE_READONLY_DBMOVED, Art::NurLesen},
                                                     {SQLITE_PERM, Art::NurLesen},
                                                     {SQLITE_CANTOPEN, Art::NurLesen},
                                                     {SQLITE_FULL, Art::Voll},
                                                     {SQLITE_BUSY, Art::Gesperrt},
                                                     {SQLITE_LOCKED, Art::Gesperrt},
                                                     {SQLITE_CORRUPT, Art::KeineDatenbank},
                                                     {SQLITE_NOTADB, Art::KeineDatenbank},
                                                     {SQLITE_IOERR_READ, Art::Datenträger},
                                                     {SQLITE_ERROR, Art::Allgemein}};
  for (const auto& [code, art] : erwartet) {
    const Datenbankfehler fehler = übersetzt(code);
    EXPECT_EQ(fehler.art(), art) << code;
    EXPECT_TRUE(fehler.text().contains(s("TOVA2.MDB"))) << fehler.what();
    EXPECT_EQ(fehler.anweisung(), s("select 1"));
    EXPECT_FALSE(fehler.allesVerworfen());
  }
}

TEST(Enginefehler, EinFehlerDesDatenträgersRichtetSichNachDemSystem) {
  EXPECT_EQ(übersetzt(SQLITE_IOERR_WRITE, ENOSPC).art(), Datenbankfehler::Art::Voll);
  EXPECT_EQ(übersetzt(SQLITE_IOERR_WRITE, EFBIG).art(), Datenbankfehler::Art::Voll);
  EXPECT_EQ(übersetzt(SQLITE_IOERR_WRITE, EROFS).art(), Datenbankfehler::Art::NurLesen);
  EXPECT_EQ(übersetzt(SQLITE_IOERR_WRITE, EIO).art(), Datenbankfehler::Art::Datenträger);
}

TEST(Enginefehler, EinFehlerBeimVorbereitenLiegtAnDerAnweisung) {
  EXPECT_EQ(übersetzt(SQLITE_ERROR, 0, true).art(), Datenbankfehler::Art::Anweisung);
  EXPECT_EQ(übersetzt(SQLITE_BUSY, 0, true).art(), Datenbankfehler::Art::Gesperrt);
}

// What the engine says in English doesn't reach the user.
TEST(Enginefehler, DieMeldungenDerMaschineKommenAufDeutschOderAlsNummer) {
  const std::vector<std::pair<const char*, const char*>> erwartet = {
      {"no such table: Standorte", "(die Tabelle Standorte gibt es nicht)"},
      {"no such column: Gewicht", "(das Feld Gewicht gibt es nicht)"},
      {"no such column: \"Gewicht\" - should this be a string literal in single-quotes?",
       "(das Feld Gewicht gibt es nicht)"},
      {"duplicate column name: Charge", "(das Feld Charge gibt es schon)"},
      {"table Notizen already exists", "(die Tabelle Notizen gibt es schon)"},
      {"near \"form\": syntax error", "(bei \"form\")"},
      {"table A has no column named B", "(die Tabelle A hat kein Feld B)"},
      {"5 values for 4 columns", "(5 Werte für 4 Felder)"},
      {"something new", "(Fehlernummer 1)"},
      {"Zeichen werden von 1 an gezählt.", "(Zeichen werden von 1 an gezählt.)"}};
  for (const auto& [englisch, deutsch] : erwartet) {
    for (const bool beimVorbereiten : {true, false}) {
      const auto fehler =
          Enginefehler::fehler({SQLITE_ERROR, 0, s(englisch), beimVorbereiten}, s("A.MDB"), {});
      EXPECT_TRUE(fehler.text().contains(s(deutsch))) << fehler.what();
    }
  }
  const auto medium =
      Enginefehler::fehler({SQLITE_IOERR_READ, EIO, s("disk I/O error"), false}, s("A.MDB"), {});
  EXPECT_FALSE(medium.text().contains(s("error"))) << medium.what();
  EXPECT_TRUE(medium.text().contains(s("Fehlernummer 266"))) << medium.what();
}

TEST(Enginefehler, VerworfenStehtEinmalImText) {
  Datenbankfehler fehler = übersetzt(SQLITE_FULL);
  Enginefehler::allesVerworfen(fehler);
  Enginefehler::allesVerworfen(fehler);
  EXPECT_TRUE(fehler.allesVerworfen());
  EXPECT_EQ(fehler.text().count(s("nichts gespeichert")), 1);
}

TEST_F(Fehler, WhatEnthältTextUndAnweisung) {
  const auto fehler = fehlerVon([&] { db.Lesen(s("select Gewicht from Bienenvolk")); });
  ASSERT_TRUE(fehler.has_value());
  EXPECT_TRUE(QByteArray(fehler->what()).contains("select Gewicht from Bienenvolk"));
}

TEST_F(Fehler, UnbekannteTabelleUndUnbekanntesFeld) {
  ERWARTE_FEHLER(db.Lesen(s("select * from Standorte")), Anweisung, "Standorte");
  ERWARTE_FEHLER(db.Lesen(s("select Gewicht from Bienenvolk")), Anweisung, "Gewicht");
  ERWARTE_FEHLER(db.Execute(s("update Bienenvolk set Gewicht = 1")), Anweisung, "Gewicht");
}

TEST_F(Fehler, UnlesbareAnweisung) {
  EXPECT_THROW(db.Lesen(s("selekt * from Bienenvolk")), Datenbankfehler);
  EXPECT_THROW(db.Lesen(s("select * from")), Datenbankfehler);
  EXPECT_THROW(db.Lesen(s("")), Datenbankfehler);
  EXPECT_THROW(db.Execute(s("delete from Bienenvolk where Datum < ##")), Datenbankfehler);
}

TEST_F(Fehler, ZweiAnweisungenInEinerSindEineZuViel) {
  volk(s("Anna"));
  EXPECT_THROW(db.Execute(s("delete from Bienenvolk where ID = 9; delete from Bienenvolk")),
               Datenbankfehler);
  EXPECT_EQ(anzahl(), 1);
}

TEST_F(Fehler, FalscheZahlVonWerten) {
  ERWARTE_FEHLER(db.Lesen(s("select * from Bienenvolk where ID = ?")), Anweisung, "1 Werte");
  ERWARTE_FEHLER(db.Lesen(s("select * from Bienenvolk"), {1}), Anweisung, "0 Werte");
}

TEST_F(Fehler, LesenUndSchreibenVerwechselt) {
  ERWARTE_FEHLER(db.Execute(s("select * from Bienenvolk")), Anweisung, "liest Zeilen");
  ERWARTE_FEHLER(db.Lesen(s("insert into Bienenvolk (Jahre) values (1)")), Anweisung,
                 "keine Zeilen");
  EXPECT_EQ(anzahl(), 0);
}

TEST_F(Fehler, UnendlichIstKeinWert) {
  ERWARTE_FEHLER(db.Lesen(s("select * from Bienenvolk where Jahre = ?"),
                          {std::numeric_limits<double>::quiet_NaN()}),
                 Wertebereich, "keine Zahl");
}

TEST_F(Fehler, EineNurLesendGeöffneteDateiNimmtNichtsAn) {
  Verbindung lesend(pfad(), Verbindung::Modus::NurLesen);
  EXPECT_TRUE(lesend.nurLesend());
  ERWARTE_FEHLER(lesend.execute(s("insert into Bienenvolk (Jahre) values (1)"), {}), NurLesen,
                 "kann nicht beschrieben werden");
  EXPECT_EQ(lesend.lies(s("select * from Bienenvolk"), {}).daten->zeilen(), 0);
}

TEST_F(Fehler, EineZerstörteSeiteFälltBeimLesenAuf) {
  db.Sammelschreiben([&] {
    for (int i = 0; i < 300; ++i) {
      db.Execute(s("insert into Bienenvolk (Bemerkung) values (?)"), {QString(500, u'x')});
    }
  });
  arbeitsbereich.Close();
  QByteArray inhalt = dateiinhalt(pfad());
  for (qsizetype i = 4096; i < inhalt.size(); ++i) inhalt[i] = '\x5A';
  schreibeDatei(pfad(), inhalt);
  db = arbeitsbereich.OpenDatabase(pfad());
  ERWARTE_FEHLER(db.Lesen(s("select * from Bienenvolk")), KeineDatenbank, "beschädigt");
}

TEST_F(Fehler, EineNummerZweimalVergeben) {
  db.Execute(s("insert into Bienenvolk (ID) values (7)"));
  ERWARTE_FEHLER(db.Execute(s("insert into Bienenvolk (ID) values (7)")), Allgemein,
                 "schon vorhanden");
}

TEST_F(Fehler, DieselbeAnweisungGehtNachEinemFehlerWieder) {
  const QString anweisung = s("insert into Bienenvolk (Volkname) values (?)");
  EXPECT_THROW(db.Execute(anweisung, {QString(21, u'x')}), Datenbankfehler);
  EXPECT_EQ(db.Execute(anweisung, {s("Anna")}), 1);
}

TEST_F(Fehler, ExecuteGibtDieZahlDerZeilen) {
  volk(s("Anna"));
  volk(s("Berta"));
  EXPECT_EQ(db.Execute(s("update Bienenvolk set Jahre = 1")), 2);
  EXPECT_EQ(db.Execute(s("update Bienenvolk set Jahre = 1 where ID = 99")), 0);
  EXPECT_EQ(db.Execute(s("create index volk1 on Bienenvolk (Jahre)")), 0);
  EXPECT_EQ(db.Execute(s("delete from Bienenvolk")), 2);
}

TEST_F(Fehler, VieleVerschiedeneAnweisungenVerdrängenEinander) {
  volk(s("Anna"));
  for (int i = 0; i < 700; ++i) {
    const QString anweisung = s("select Volkname from Bienenvolk where ID < ") + QString::number(i);
    EXPECT_EQ(db.Lesen(anweisung)->zeilen(), i > 1 ? 1 : 0);
  }
  EXPECT_EQ(db.Lesen(s("select Volkname from Bienenvolk where ID < 0"))->zeilen(), 0);
}

TEST_F(Fehler, EinSchemaDasEineAndereVerbindungÄndertWirdBemerkt) {
  EXPECT_EQ(db.Lesen(s("select * from Bienenvolk"))->spalten(), 9);
  Workspace anderer;
  Database andere = anderer.OpenDatabase(pfad());
  andere.Execute(s("ALTER TABLE Bienenvolk ADD COLUMN Belegstelle TEXT (20)"));
  const Daten d = db.Lesen(s("select * from Bienenvolk"));
  ASSERT_EQ(d->spalten(), 10);
  EXPECT_EQ(d->spalte(9).typ, Feldtyp::Text);
  EXPECT_EQ(d->spalte(9).länge, 20);
}

// A flipped bit makes "Buche" "Ruche" in the index alone: from "Ahorn" it leads to the row of
// "Buche", and from there to the same row again.
TEST_F(Fehler, EinIndexDerImKreisFührtMeldetDieBeschädigteDatenbank) {
  db.Execute("create index Volkname on Bienenvolk (Volkname)");
  for (const char* name : {"Ahorn", "Buche", "Linde"}) volk(name);
  const auto seite = [this] {
    return verbindung()
        .steuere("select rootpage from sqlite_schema where name = 'Volkname'")
        .toInt();
  };
  const qsizetype größe = verbindung().steuere("pragma page_size").toInt();
  const qsizetype anfang = (seite() - 1) * größe;
  db.Close();
  arbeitsbereich.Close();
  QByteArray inhalt = dateiinhalt(pfad());
  const qsizetype ort = inhalt.indexOf("Buche", anfang);
  ASSERT_GE(ort, anfang);
  ASSERT_LT(ort, anfang + größe);
  inhalt[ort] ^= 0x10;
  schreibeDatei(pfad(), inhalt);
  db = arbeitsbereich.OpenDatabase(pfad());
  ERWARTE_FEHLER(db.Lesen("select distinct Volkname from Bienenvolk order by Volkname"),
                 KeineDatenbank, "TOVA2.MDB");
  EXPECT_EQ(anzahl(), 3);
}
