#include "platform/database/Anweisungsprobe.h"

// The statements that make, widen and empty tables.
namespace {

TEST_F(Anweisungsprobe, DatenhaltungUndSchema) {
  prüfe({
      {"Felder einer Tabelle", "select top 1 * from Bienenvolk"},
      {"Volknummer schon da", "select Volknr from Bienenvolk where Volknr = '10'", zeilen({"10"})},
      {"Volknummer bei anderen", "select Volknr from Bienenvolk where Volknr = '10' and ID <>  3",
       QStringList()},
      {"Auswahlliste einer leeren Tabelle",
       "select distinct Farbe from Königinwechsel order by Farbe", QStringList()},
      {"Ein Arbeitsplan mit leeren Texten",
       "select Auto_erledigt_Buchung, Wiederholungsfrist_Tage from Arbeitsplanoptionen where "
       "Arbeitsart = 'Schwarmkontrolle'",
       zeilen({"|9"})},
      {"Weidezeit kommt als deutscher Text",
       "select Weidezeit_von, Weidezeit_bis from Pflanzen where Pflanze = 'Efeu'",
       zeilen({"2006-09-15|2006-11-20"})},
  });
}

TEST_F(Anweisungsprobe, JedeTabelleNimmtEineZeileUndGibtSieWieder) {
  for (const Tabellenangabe& tabelle : tabellen) {
    const QString name = tabelle.name;
    bank.lies("delete from " + name);
    bank.lies("select * from " + name + " where ID = 0");
    EXPECT_EQ(
        bank.spalten.join(", "),
        QString(tabelle.felder).remove(QRegularExpression(" (TEXT \\(\\d+\\)|[A-Z]+)(?=,|$)")));
    const QString erstes = bank.spalten[0];
    bank.lies("insert into " + name + "(" + erstes + ") values (Null)");
    EXPECT_EQ(bank.lies("select top 1 * from " + name).size(), 1);
    bank.lies("update " + name + " set " + erstes + " = Null where ID = 1");
    EXPECT_EQ(bank.eins("select count(*) from " + name.toUpper() + " where " + erstes + " = Null"),
              "1");
  }
}

TEST_F(Anweisungsprobe, SchemaErweitern) {
  Probebank alt;
  alt.lies("create table Bienenvolk(Volknr TEXT (10), ID COUNTER)");
  alt.lies("create table Stockkarte(Datum DATETIME, ID COUNTER)");
  alt.lies("create table Standorte(Standort TEXT (100), ID COUNTER)");
  alt.lies("create table Honigernte(Datum DATETIME, ID COUNTER)");
  for (const char* tabelle : {"Bienenvolk(Volknr", "Standorte(Standort"}) {
    alt.lies(QString("insert into %1) values ('a')").arg(QString(tabelle)));
  }
  for (const char* tabelle : {"Stockkarte(Datum", "Honigernte(Datum"}) {
    alt.lies(QString("insert into %1) values (#01/02/2006#)").arg(QString(tabelle)));
  }
  for (const char* feld :
       {"Futterwaben", "HW_verdeckelt", "BW_Stift", "BW_offen", "BW_verdeckelt"}) {
    for (const char* tabelle : {"Bienenvolk", "Stockkarte"}) {
      alt.lies(
          QString("ALTER TABLE %1 ADD COLUMN %2 INTEGER").arg(QString(tabelle), QString(feld)));
      alt.lies(QString("UPDATE %1 SET %2 = 0").arg(QString(tabelle), QString(feld)));
    }
  }
  for (const char* anweisung :
       {"ALTER TABLE Bienenvolk ADD COLUMN Belegstelle TEXT (20)",
        "create index volk13 on Bienenvolk(Belegstelle)", "UPDATE Bienenvolk SET Belegstelle = ''",
        "ALTER TABLE Bienenvolk ADD COLUMN Zuchtbuchnr TEXT (15)",
        "UPDATE Bienenvolk SET Zuchtbuchnr = ''",
        "ALTER TABLE Bienenvolk ADD COLUMN Waben_je_Magazin INTEGER",
        "UPDATE Bienenvolk SET Waben_je_Magazin = '10'",
        "ALTER TABLE Standorte ADD COLUMN PTop LONG", "UPDATE Standorte SET PTop = 250",
        "ALTER TABLE Standorte ADD COLUMN PLeft LONG", "UPDATE Standorte SET PLeft = 0",
        "create table DIBVerschluss(Verschlussnr TEXT (10), Charge TEXT (15), Kunde TEXT (20), "
        "Datum "
        "DATETIME, Bemerkung TEXT (30), ID COUNTER)",
        "create index dibverschluss1 on DIBVerschluss(Verschlussnr)",
        "ALTER TABLE Honigernte ADD COLUMN Charge TEXT (15)",
        "create index honigernte10 on Honigernte(Charge)", "UPDATE Honigernte SET Charge = ''"}) {
    EXPECT_NO_THROW(alt.lies(anweisung)) << anweisung;
  }
  EXPECT_EQ(alt.eins("select * from Bienenvolk"), "a|1|0|0|0|0|0|||10");
  EXPECT_EQ(alt.eins("select * from Stockkarte"), "2006-01-02|1|0|0|0|0|0");
  EXPECT_EQ(alt.eins("select * from Standorte"), "a|1|250|0");
  EXPECT_EQ(alt.eins("select * from Honigernte"), "2006-01-02|1|");
  EXPECT_EQ(alt.roh("select typeof(Waben_je_Magazin) from Bienenvolk"), zeilen({"integer"}));
  EXPECT_THROW(alt.lies("ALTER TABLE Honigernte ADD COLUMN Charge TEXT (15)"), Datenbankfehler);
}

TEST_F(Anweisungsprobe, ÜbernahmeDerBewegungen) {
  prüfe({
      {"Bewegungen zum Verkauf", "select * from Honiglager where Abgang > 0 and EVK_ID = 1"},
      {"Bewegungen zum Einkauf", "select * from Honiglager where Zugang > 0 and EVK_ID = 1",
       QStringList()},
      {"Bewegungen ohne Geschäft",
       "select ID from Honiglager where EVK_ID = 0 or EVK_ID = Null order by ID",
       zeilen({"1", "2", "4"})},
  });
}

TEST_F(Anweisungsprobe, JedeTabelleLeeren) {
  for (const Tabellenangabe& tabelle : tabellen) {
    prüfe({{"Leeren", QString("delete from ") + QString(tabelle.name)},
           {"Leer", QString("select count(*) as n from ") + QString(tabelle.name), zeilen({"0"})}});
  }
}

// The same through the program's own connection, which adds what it knows of tables and indexes.
TEST(AnweisungenDerDatenbank, TabellennamenAuswahllistenUndKreuztabellen) {
  QTemporaryDir ordner;
  Workspace arbeitsbereich;
  Database db = arbeitsbereich.CreateDatabase(ordner.filePath("TOVA2.MDB"));
  db.Execute(
      "create table Königinwechsel(Farbe TEXT (10), Standort TEXT (20), Waben INTEGER, ID "
      "COUNTER)");
  EXPECT_FALSE(db.Übersetzung("select distinct Farbe from Königinwechsel order by Farbe")
                   .contains("RECURSIVE"));
  db.Execute("create index Königinwechsel1 on KÖNIGINWECHSEL(Farbe)");
  EXPECT_TRUE(db.Übersetzung("select distinct Farbe from Königinwechsel order by Farbe")
                  .contains("RECURSIVE"));
  for (const char* farbe : {"rot", "Weiß", "ROT", "weiss "}) {
    db.Execute("insert into KÖNIGINWECHSEL(farbe, Standort, Waben) values (?, 'Wald', 10)",
               {farbe});
  }
  db.Execute("insert into königinwechsel(Standort, Waben) values ('Wiese', Null)");
  const Daten farben = db.Lesen("select distinct Farbe from KÖNIGINWECHSEL order by Farbe");
  ASSERT_EQ(farben->zeilen(), 3);
  EXPECT_EQ(farben->spalte(0).name, "Farbe");
  EXPECT_EQ(farben->spalte(0).typ, Feldtyp::Text);
  EXPECT_TRUE(farben->istNull(0, 0));
  EXPECT_EQ(farben->wert(1, 0).toString(), "rot");
  EXPECT_EQ(farben->wert(2, 0).toString(), "Weiß");

  const Daten kreuz = db.Lesen(
      "transform count(*) select Standort, count(*) as Völker from Königinwechsel group by "
      "Standort "
      "pivot Waben;");
  ASSERT_EQ(kreuz->spalten(), 4);
  EXPECT_EQ(kreuz->spalte(1).name, "Völker");
  EXPECT_EQ(kreuz->spalte(2).name, "<>");
  EXPECT_EQ(kreuz->spalte(3).name, "10");
  ASSERT_EQ(kreuz->zeilen(), 2);
  EXPECT_EQ(kreuz->wert(0, 0).toString(), "Wald");
  EXPECT_EQ(kreuz->ganzzahl(0, 1), 4);
  EXPECT_TRUE(kreuz->istNull(0, 2));
  EXPECT_EQ(kreuz->ganzzahl(0, 3), 4);
  EXPECT_EQ(kreuz->ganzzahl(1, 2), 1);
  EXPECT_TRUE(kreuz->istNull(1, 3));
  try {
    db.Execute("update Königinwechsel set Farbe = 'viel zu lange Farbe'");
    ADD_FAILURE();
  } catch (const Datenbankfehler& fehler) {
    EXPECT_EQ(fehler.art(), Datenbankfehler::Art::Wertebereich);
    EXPECT_TRUE(fehler.text().contains("Farbe"));
  }
}

}  // namespace
