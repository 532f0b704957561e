#include "platform/database/Testdatenbank.h"

// Rows given to a visitor one by one.
class Durchlauf : public Testdatenbank {
 protected:
  void SetUp() override {
    Testdatenbank::SetUp();
    for (int i = 0; i < 5; ++i)
      db.Execute("insert into Bienenvolk (Volkname, Menge_kg, Datum, Jahre) values (?, ?, ?, ?)",
                 {QString("Völkchen %1").arg(i), 1.5 * i, QDate(2026 - i, 5, 1), i});
    db.Execute("insert into Bienenvolk (Volkname) values (Null)");
  }
};

TEST_F(Durchlauf, GibtJedeZeileMitIhrenWerten) {
  QStringList gelesen;
  db.Durchlaufe("select Volkname, Menge_kg, Datum, Jahre from Bienenvolk where ID <= ? order by ID",
                {2}, [&](const Laufzeile& zeile) {
                  EXPECT_EQ(zeile.spalten(), 4);
                  EXPECT_TRUE(zeile.istText(0));
                  EXPECT_FALSE(zeile.istText(1));
                  gelesen << QString("%1|%2|%3|%4|%5")
                                 .arg(zeile.text(0))
                                 .arg(zeile.zahl(1))
                                 .arg(zeile.datum(2).toString(Qt::ISODate))
                                 .arg(zeile.jahr(2))
                                 .arg(zeile.ganzzahl(3));
                });
  EXPECT_EQ(gelesen,
            QStringList({"Völkchen 0|0|2026-05-01|2026|0", "Völkchen 1|1.5|2025-05-01|2025|1"}));
}

TEST_F(Durchlauf, LiestNullUndFremdeArtenWieEinBlock) {
  const QString anweisung =
      "select Volkname, Menge_kg, Datum, '12.5 kg', 2.5, 3.5, 'keines', '2026-5-1' from Bienenvolk "
      "where ID = 6";
  const Daten block = db.Lesen(anweisung);
  int zeilen = 0;
  db.Durchlaufe(anweisung, {}, [&](const Laufzeile& zeile) {
    ++zeilen;
    for (int i = 0; i < zeile.spalten(); ++i) {
      EXPECT_EQ(zeile.istNull(i), block->istNull(0, i)) << i;
      EXPECT_EQ(zeile.istText(i), block->istText(0, i)) << i;
      EXPECT_EQ(zeile.zahl(i), block->zahl(0, i)) << i;
      EXPECT_EQ(zeile.ganzzahl(i), block->ganzzahl(0, i)) << i;
      EXPECT_EQ(zeile.rohtext(i), block->rohtext(0, i)) << i;
      EXPECT_FALSE(zeile.datum(i).isValid()) << i;
      EXPECT_EQ(zeile.jahr(i), 0) << i;
    }
  });
  EXPECT_EQ(zeilen, 1);
}

TEST_F(Durchlauf, EndetAufWunsch) {
  int zeilen = 0;
  db.Durchlaufe("select ID from Bienenvolk", {}, [&](const Laufzeile&) { return ++zeilen < 3; });
  EXPECT_EQ(zeilen, 3);
  zeilen = 0;
  db.Durchlaufe("select ID from Bienenvolk where ID > 100", {},
                [&](const Laufzeile&) { ++zeilen; });
  EXPECT_EQ(zeilen, 0);
}

TEST_F(Durchlauf, DieselbeAnweisungGehtAuchIneinander) {
  const QString anweisung = "select ID from Bienenvolk where ID <= ?";
  int paare = 0;
  db.Durchlaufe(anweisung, {4}, [&](const Laufzeile& außen) {
    const qint64 id = außen.ganzzahl(0);
    db.Durchlaufe(anweisung, {id}, [&](const Laufzeile&) { ++paare; });
    EXPECT_EQ(db.Lesen(anweisung, {id})->zeilen(), id);
    EXPECT_EQ(außen.ganzzahl(0), id);
  });
  EXPECT_EQ(paare, 1 + 2 + 3 + 4);
}

TEST_F(Durchlauf, SolangeWirdNichtsGeschrieben) {
  const QString anweisung = "select ID from Bienenvolk";
  const char* const text = "wird gerade gelesen";
  db.Durchlaufe(anweisung, {}, [&](const Laufzeile&) {
    ERWARTE_FEHLER(db.Execute("delete from Bienenvolk"), Anweisung, text);
    ERWARTE_FEHLER(db.Execute("drop table Bienenvolk"), Anweisung, text);
    ERWARTE_FEHLER(db.Sammelschreiben([] {}), Anweisung, text);
    Recordset zeile = db.OpenRecordset("select * from Bienenvolk where ID = 1");
    ERWARTE_FEHLER(zeile.Delete(), Anweisung, text);
  });
  EXPECT_EQ(anzahl(), 6);
  EXPECT_EQ(db.Execute("delete from Bienenvolk where ID = 1"), 1);
}

TEST_F(Durchlauf, EineAusnahmeDesBesuchersGehtWeiterUndGibtAllesFrei) {
  const auto scheitert = [&] {
    db.Durchlaufe("select ID from Bienenvolk", {},
                  [](const Laufzeile&) { throw std::runtime_error("Abbruch"); });
  };
  EXPECT_THROW(scheitert(), std::runtime_error);
  EXPECT_EQ(db.Execute("delete from Bienenvolk"), 6);
}

TEST_F(Durchlauf, EineDatenbankDieDabeiSchließtEndetMitEinerMeldung) {
  int zeilen = 0;
  ERWARTE_FEHLER(db.Durchlaufe("select ID from Bienenvolk", {},
                               [&](const Laufzeile&) {
                                 ++zeilen;
                                 arbeitsbereich.Close();
                               }),
                 Allgemein, "Die Datenbank ist geschlossen.");
  EXPECT_EQ(zeilen, 1);
}

TEST_F(Durchlauf, NimmtNurWasZeilenGibt) {
  const auto nichts = [](const Laufzeile&) { FAIL(); };
  ERWARTE_FEHLER(db.Durchlaufe("delete from Bienenvolk", {}, nichts), Anweisung, "keine Zeilen");
  ERWARTE_FEHLER(db.Durchlaufe("transform count(*) select Jahre, count(*) as Anzahl from "
                               "Bienenvolk group by Jahre pivot Volkname",
                               {}, nichts),
                 Anweisung, "Kreuztabelle");
  ERWARTE_FEHLER(db.Durchlaufe("select ID from Bienenvolk where ID = ?", {}, nichts), Anweisung,
                 "braucht 1 Werte");
  EXPECT_EQ(anzahl(), 6);
}
