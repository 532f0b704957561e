#include "platform/database/dialekt/Dialekt.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/database/Probebank.h"

namespace {

using Art = Datenbankfehler::Art;

// Three small tables that any rule can be shown with.
class Dialekttest : public testing::Test {
 protected:
  Dialekttest() {
    bank.lies(
        "create table Volk(Name TEXT (10), Flagge TEXT (1), Stärke SINGLE, Waben INTEGER, "
        "Seit DATETIME, Preis CURRENCY, Notiz MEMO, Stufe SHORT, Lage LONG, ID COUNTER)");
    bank.lies(
        "create table Ernte(Datum DATETIME, Menge SINGLE, Sorte TEXT (20), Volk_ID LONG, "
        "ID COUNTER)");
    bank.lies("create table Einzeln(Wort TEXT (20), Zahl LONG)");
    bank.lies("create index volk_name on Volk(Name)");
    bank.lies("create index ernte_sorte on Ernte(Sorte)");
    bank.lies("create index ernte_datum on Ernte(Datum)");
    bank.lies("create index ernte_menge on Ernte(Menge)");
  }

  // The kind and text of the failure that a statement ends in.
  std::pair<Art, QString> fehler(const QString& anweisung, const QVariantList& werte = {}) {
    try {
      bank.lies(anweisung, werte);
    } catch (const Datenbankfehler& f) {
      return {f.art(), f.text()};
    }
    ADD_FAILURE() << "no failure: " << anweisung.toStdString();
    return {Art::Allgemein, {}};
  }
  void unlesbar(const QString& anweisung) {
    try {
      bank.übersetze(anweisung);
      ADD_FAILURE() << "was read: " << anweisung.toStdString();
    } catch (const Datenbankfehler& f) {
      EXPECT_EQ(f.art(), Art::Anweisung);
      EXPECT_FALSE(f.text().isEmpty());
      EXPECT_EQ(f.anweisung(), anweisung);
    }
  }

  Probebank bank;
};

QStringList zeilen(std::initializer_list<const char*> liste) {
  QStringList ergebnis;
  for (const char* zeile : liste) ergebnis += QString(zeile);
  return ergebnis;
}

}  // namespace

// ---- top and order ----

TEST_F(Dialekttest, TopWirdLimitUndGleicheKommenNachID) {
  EXPECT_EQ(bank.sql("select top 1 * from Ernte where Volk_ID = 3 order by Datum DESC"),
            "SELECT * FROM Ernte WHERE Volk_ID = 3 ORDER BY Datum DESC, Ernte.ID LIMIT 1");
}

TEST_F(Dialekttest, TopMitGleichemDatumGibtDieErsteZeile) {
  for (const char* sorte : {"Raps", "Linde", "Wald"}) {
    bank.lies("insert into Ernte(Datum, Sorte, Volk_ID) values (#06/01/2006#, ?, 1)", {sorte});
  }
  EXPECT_EQ(bank.eins("select top 1 Sorte from Ernte where Volk_ID = 1 order by Datum DESC"),
            "Raps");
  EXPECT_EQ(bank.eins("select top 1 Sorte from Ernte where Volk_ID = 1 order by Datum"), "Raps");
  EXPECT_EQ(bank.eins("select top 1 Sorte from Ernte"), "Raps");
  EXPECT_EQ(bank.lies("select top 2 Sorte from Ernte"), zeilen({"Raps", "Linde"}));
}

TEST_F(Dialekttest, TopÜberZweiTabellenNimmtDieIDsBeider) {
  EXPECT_EQ(bank.sql("select top 1 Sorte from Volk, Ernte where Volk_ID = Volk.ID order by Sorte"),
            "SELECT Ernte.Sorte FROM Volk, Ernte WHERE Ernte.Volk_ID = Volk.ID "
            "ORDER BY Ernte.Sorte, Volk.ID, Ernte.ID LIMIT 1");
}

TEST_F(Dialekttest, EineOrdnungDieDieIDSchonHatBleibt) {
  EXPECT_EQ(bank.sql("select * from Ernte order by Datum, id desc"),
            "SELECT * FROM Ernte ORDER BY Datum, ID DESC");
  EXPECT_EQ(bank.sql("select * from Ernte order by Ernte.ID"),
            "SELECT * FROM Ernte ORDER BY Ernte.ID");
}

TEST_F(Dialekttest, OhneIDBleibtDieOrdnungWieSieIst) {
  EXPECT_EQ(bank.sql("select top 3 * from Einzeln order by Zahl"),
            "SELECT * FROM Einzeln ORDER BY Zahl LIMIT 3");
}

TEST_F(Dialekttest, GanzeTabelleKommtNachIDAuchWennEinIndexAllesWeiß) {
  for (const char* name : {"C", "a", "B"}) {
    bank.lies("insert into Volk(Name) values (?)", {name});
  }
  EXPECT_EQ(bank.lies("select Name from Volk"), zeilen({"C", "a", "B"}));
}

TEST_F(Dialekttest, SortierungAufsteigendUndAbsteigendNachDerKollation) {
  for (const char* name : {"b", "Ä", "B", "a", "10", "2"}) {
    bank.lies("insert into Volk(Name) values (?)", {name});
  }
  EXPECT_EQ(bank.lies("select Name from Volk order by Name"),
            zeilen({"10", "2", "a", "Ä", "b", "B"}));
  EXPECT_EQ(bank.lies("select Name from Volk order by Name DESC"),
            zeilen({"b", "B", "Ä", "a", "2", "10"}));
}

// ---- dates ----

TEST_F(Dialekttest, DatumZwischenRautenIstMonatTagJahr) {
  EXPECT_EQ(bank.sql("select * from Ernte where Datum >= #02/05/2006# order by ID"),
            "SELECT * FROM Ernte WHERE Datum >= '2006-02-05' ORDER BY ID");
  bank.lies("insert into Ernte(Datum) values (#02/05/2006#)");
  EXPECT_EQ(bank.eins("select count(*) from Ernte where Datum = #2/5/2006#"), "1");
  EXPECT_EQ(bank.eins("select Datum from Ernte"), "2006-02-05");
  EXPECT_EQ(bank.eins("select count(*) from Ernte where Datum = #02/05/06#"), "1");
}

TEST_F(Dialekttest, ZerrissenesDatumSagtDassEsKeinesIst) {
  for (const char* datum : {"#/ab/cd#", "##", "#02/30/2006#", "#13/01/2006#", "#00/01/2006#",
                            "#2006#", "#1/1/1/1#", "#1//2006#", "#01/01/2006 10:00#", "#1/1/5#"}) {
    const auto [art, text] = fehler(QString("select * from Ernte where Datum = ") + QString(datum));
    EXPECT_EQ(art, Art::Anweisung) << datum;
    EXPECT_EQ(text, QString(datum) + " ist kein Datum.");
  }
}

TEST_F(Dialekttest, SchalttagGibtEsNurImSchaltjahr) {
  EXPECT_EQ(bank.eins("select #02/29/2008#"), "2008-02-29");
  EXPECT_EQ(fehler("select #02/29/2007#").second, "#02/29/2007# ist kein Datum.");
}

TEST_F(Dialekttest, JahrMonatUndTagUndNullBleibtNull) {
  EXPECT_EQ(bank.eins("select year(#12/31/2006#), month(#12/31/2006#), day(#12/31/2006#)"),
            "2006|12|31");
  EXPECT_EQ(bank.eins("select Year(Null), MONTH(Null), datediff('yyyy', Null, now)"), "<>|<>|<>");
}

TEST_F(Dialekttest, DatediffZähltÜberschritteneGrenzen) {
  EXPECT_EQ(bank.eins("select datediff('yyyy', #12/31/2006#, #01/01/2007#)"), "1");
  EXPECT_EQ(bank.eins("select datediff('yyyy', #01/01/2006#, #12/31/2006#)"), "0");
  EXPECT_EQ(bank.eins("select datediff('m', #01/31/2006#, #02/01/2006#)"), "1");
  EXPECT_EQ(bank.eins("select datediff('m', #02/28/2006#, #02/01/2006#)"), "0");
  EXPECT_EQ(bank.eins("select datediff('m', #03/15/2006#, #11/01/2005#)"), "-4");
  EXPECT_EQ(bank.eins("select datediff('d', #02/28/2008#, #03/01/2008#)"), "2");
  EXPECT_EQ(bank.eins("select datediff('q', #03/31/2006#, #04/01/2006#)"), "1");
  // The 1st of January 2006 was a Sunday.
  EXPECT_EQ(bank.eins("select datediff('ww', #12/31/2005#, #01/01/2006#)"), "1");
  EXPECT_EQ(bank.eins("select datediff('ww', #01/01/2006#, #01/07/2006#)"), "0");
  EXPECT_EQ(bank.eins("select datediff(\"d\", #01/02/2006#, #01/01/2006#)"), "-1");
}

TEST_F(Dialekttest, NowIstDieUhrDesProgramms) {
  Funktionen::setzeUhr([] { return QDateTime(QDate(2007, 1, 15), QTime(10, 30)); });
  EXPECT_EQ(bank.eins("select datediff('yyyy', #12/24/2006#, now)"), "1");
  EXPECT_EQ(bank.eins("select datediff('m', #12/24/2006#, Now())"), "1");
  bank.lies("insert into Ernte(Datum) values (now)");
  EXPECT_EQ(bank.eins("select Datum from Ernte"), "2007-01-15");
  EXPECT_EQ(bank.eins("select count(*) from Ernte where Datum < now"), "1");
  Funktionen::setzeUhr({});
}

// ---- null and flags ----

TEST_F(Dialekttest, GleichNullIstDieFrageNachNull) {
  bank.lies("insert into Volk(Name, Lage) values ('a', 0), ('b', Null), ('c', 5)");
  EXPECT_EQ(bank.lies("select Name from Volk where Lage = 0 or Lage = Null"), zeilen({"a", "b"}));
  EXPECT_EQ(bank.lies("select Name from Volk where Lage <> Null"), zeilen({"a", "c"}));
  EXPECT_EQ(bank.lies("select Name from Volk where Null = Lage"), zeilen({"b"}));
  EXPECT_EQ(bank.lies("select Name from Volk where not Lage = null"), zeilen({"a", "c"}));
  EXPECT_EQ(bank.lies("select Name from Volk where Lage IS NOT NULL"), zeilen({"a", "c"}));
  EXPECT_EQ(bank.lies("select iif(Lage = Null, 'leer', 'da') from Volk"),
            zeilen({"da", "leer", "da"}));
}

TEST_F(Dialekttest, NullInSetIstEinWert) {
  bank.lies("insert into Volk(Name, Seit) values ('a', #01/01/2006#)");
  bank.lies("update Volk set Seit = Null, Name = 'b' where Name = 'a'");
  EXPECT_EQ(bank.eins("select Name, Seit from Volk"), "b|<>");
}

TEST_F(Dialekttest, UngleichXGiltAuchFürNull) {
  bank.lies(
      "insert into Volk(Name, Flagge) values ('drin', 'X'), ('leer', ''), ('nie', Null), "
      "('klein', 'x')");
  EXPECT_EQ(bank.lies("select Name from Volk where Flagge = 'X'"), zeilen({"drin", "klein"}));
  EXPECT_EQ(bank.lies("select Name from Volk where Flagge <> 'X'"), zeilen({"leer", "nie"}));
  EXPECT_EQ(bank.lies("select Name from Volk where 'X' <> Volk.Flagge"), zeilen({"leer", "nie"}));
  EXPECT_EQ(bank.lies("select Name from Volk where (Flagge) <> ('X')"), zeilen({"leer", "nie"}));
  EXPECT_EQ(bank.lies("select Name from Volk where not Flagge = 'X'"), zeilen({"leer"}));
}

TEST_F(Dialekttest, UngleichLeererTextGiltNichtFürNull) {
  bank.lies("insert into Volk(Name, Flagge) values ('drin', 'X'), ('leer', ''), ('nie', Null)");
  EXPECT_EQ(bank.lies("select Name from Volk where Flagge <> ''"), zeilen({"drin"}));
  EXPECT_EQ(bank.lies("select Name from Volk where Flagge = ''"), zeilen({"leer"}));
}

// ---- expressions ----

TEST_F(Dialekttest, TeilenSchneidetNieAb) {
  EXPECT_EQ(bank.eins("select 7 / 2, 7/2*2, 2 * 7 / 4, 8 / 2 / 4, -7 / 2"), "3.5|7.0|3.5|1.0|-3.5");
  bank.lies("insert into Volk(Waben, Stufe) values (7, 2)");
  EXPECT_EQ(bank.eins("select Waben / Stufe from Volk"), "3.5");
}

TEST_F(Dialekttest, VorzeichenHintereinanderSindKeinKommentar) {
  EXPECT_EQ(bank.eins("select 5 - -3, 5 - - - 3, - - 5, -(-5)"), "8|2|5|5");
  EXPECT_EQ(bank.eins("select 5 --3"), "8");
}

TEST_F(Dialekttest, TexteMitApostrophUndAnführungszeichen) {
  EXPECT_EQ(bank.eins("select 'O''Neill', \"er sagt 'ja'\", \"5\"\" breit\""),
            "O'Neill|er sagt 'ja'|5\" breit");
}

TEST_F(Dialekttest, TexteVerketten) {
  bank.lies("insert into Volk(Name) values ('a'), (Null)");
  EXPECT_EQ(bank.lies("select Name & '-' & ID from Volk"), zeilen({"a-1", "-2"}));
  EXPECT_EQ(bank.lies("select Name + '-' from Volk"), zeilen({"a-", "<>"}));
}

TEST_F(Dialekttest, VergleicheOhneFeldNehmenDieKollation) {
  EXPECT_EQ(bank.eins("select 'STRASSE' = 'Straße', trim(' a ') = 'A', 'a' < 'B'"), "1|1|1");
  EXPECT_EQ(bank.eins("select trim('Straße ') in ('strasse', 'weg')"), "1");
  EXPECT_EQ(bank.eins("select left('Biene', 3) between 'BIA' and 'BIZ'"), "1");
}

TEST_F(Dialekttest, LikeMitSternUndFragezeichen) {
  bank.lies("insert into Volk(Name) values ('Volk 1'), ('volk 12'), ('Ableger'), (Null)");
  EXPECT_EQ(bank.lies("select Name from Volk where Name like 'VOLK*'"),
            zeilen({"Volk 1", "volk 12"}));
  EXPECT_EQ(bank.lies("select Name from Volk where Name like 'volk ?'"), zeilen({"Volk 1"}));
  EXPECT_EQ(bank.lies("select Name from Volk where Name not like 'volk #*'"), zeilen({"Ableger"}));
  EXPECT_TRUE(Funktionen::passtZu(u"Äpfel", u"[a-zä]p*l"));
  EXPECT_FALSE(Funktionen::passtZu(u"Apfel", u"[!a]*"));
  EXPECT_TRUE(Funktionen::passtZu(u"aXbXc", u"a*X?"));
  EXPECT_TRUE(Funktionen::passtZu(u"[", u"["));
  EXPECT_FALSE(Funktionen::passtZu(u"", u"?"));
}

TEST_F(Dialekttest, TextfunktionenZählenZeichen) {
  EXPECT_EQ(bank.eins("select left('Königin', 2), right('Königin', 3), mid('Königin', 2, 2), "
                      "mid('Königin', 5), len('Königin'), ucase('ö'), lcase('Ö'), left('a', 9), "
                      "right('ab', 9)"),
            "Kö|gin|ön|gin|7|Ö|ö|a|ab");
  EXPECT_EQ(bank.eins("select val('1.5 kg'), val('1,5'), val('x'), int(2.7), int(-2.5), abs(-3)"),
            "1.5|1.0|0.0|2|-3|3");
}

TEST_F(Dialekttest, WasKeineAnweisungBrauchtIstUnlesbar) {
  for (const char* anweisung :
       {"select Name from Volk where ID in (select Volk_ID from Ernte)",
        "select Name from Volk where exists (select * from Ernte)",
        "select (select sum(Menge) from Ernte) as S from Volk",
        "select Name from Volk left join Ernte on Volk_ID = Volk.ID",
        "select Name from Volk inner join Ernte on Volk_ID = Volk.ID",
        "select Sorte from Ernte group by Sorte having count(*) > 1",
        "select count(distinct Sorte) from Ernte", "select Name from Volk union select Sorte",
        "insert into Volk(Name) select Sorte from Ernte", "delete * from Volk",
        "create unique index volk_lage on Volk(Lage)", "create index volk_lage on Volk(Lage desc)",
        "transform sum(Menge) select Sorte from Ernte group by Sorte pivot Volk_ID",
        "transform count(*) select Sorte, avg(Menge) as M from Ernte group by Sorte pivot Volk_ID",
        "transform count(*) select Sorte from Ernte group by Sorte, Volk_ID pivot Datum"}) {
    unlesbar(anweisung);
  }
}

// ---- names ----

TEST_F(Dialekttest, NamenInJederSchreibung) {
  bank.lies("insert into VOLK(NAME, STÄRKE) values ('a', 3)");
  EXPECT_EQ(bank.eins("SELECT name, stärke FROM volk WHERE Volk.NAME = 'A'"), "a|3.0");
  EXPECT_EQ(bank.spalten, zeilen({"Name", "Stärke"}));
  bank.lies("create table Königinwechsel(Größe SHORT, ID COUNTER)");
  EXPECT_EQ(bank.lies("select GRÖßE from KÖNIGINWECHSEL"), QStringList());
}

TEST_F(Dialekttest, NamenInEckigenKlammern) {
  bank.lies(
      "create table [Meine Liste]([Order] TEXT (5), [2. Wert] LONG, [Größe] SHORT, ID COUNTER)");
  bank.lies("insert into [Meine Liste]([Order], [2. Wert]) values ('a', 1)");
  EXPECT_EQ(bank.eins("select [Order], [2. Wert] as [Select] from [meine liste] order by [ORDER]"),
            "a|1");
  EXPECT_EQ(bank.spalten, zeilen({"Order", "Select"}));
}

TEST_F(Dialekttest, SpaltennamenMitUmlauten) {
  bank.lies("select count(*) as Völker, sum(Menge) as Zugänge from Ernte");
  EXPECT_EQ(bank.spalten, zeilen({"Völker", "Zugänge"}));
}

TEST_F(Dialekttest, UnbekanntesWirdBeimNamenGenannt) {
  EXPECT_EQ(fehler("select * from Bienen").second,
            "Die Tabelle \"Bienen\" gibt es in der Datenbank nicht.");
  EXPECT_EQ(fehler("select Farbe from Volk").second,
            "Das Feld \"Farbe\" gibt es in der Datenbank nicht.");
  EXPECT_EQ(fehler("select Ernte.Name from Volk, Ernte").second,
            "Das Feld \"Ernte.Name\" gibt es in der Datenbank nicht.");
  EXPECT_EQ(fehler("insert into Volk(Farbe) values (1)").second,
            "Das Feld \"Farbe\" gibt es in der Tabelle \"Volk\" nicht.");
  EXPECT_EQ(fehler("select ID from Volk, Ernte").second,
            "Das Feld \"ID\" gibt es in mehreren Tabellen der Anweisung.");
  EXPECT_EQ(fehler("select zufall(1) from Volk").second, "Die Funktion \"zufall\" gibt es nicht.");
  EXPECT_EQ(fehler("select * from Volk where Volk_ID = ").second,
            "Das Feld \"Volk_ID\" gibt es in der Datenbank nicht.");
  EXPECT_EQ(fehler("select * from Ernte where Volk_ID = ").second,
            "Die Anweisung an die Datenbank ist unvollständig.");
}

// ---- groups ----

TEST_F(Dialekttest, GruppenKommenInIhrerOrdnung) {
  bank.lies(
      "insert into Ernte(Sorte, Menge) values ('Wald', 1), ('raps', 2), ('Raps', 3), (Null, 4)");
  EXPECT_EQ(
      bank.lies("select Sorte, count(*) as Anzahl, sum(Menge) as S from Ernte group by Sorte"),
      zeilen({"<>|1|4.0", "raps|2|5.0", "Wald|1|1.0"}));
  EXPECT_EQ(bank.lies("select left(Sorte, 1) as L, count(*) from Ernte where Sorte <> '' "
                      "group by left(Sorte, 1)"),
            zeilen({"r|2", "W|1"}));
}

TEST_F(Dialekttest, GruppeNachFunktionInAndererSchreibung) {
  bank.lies(
      "insert into Ernte(Datum, Menge) values (#05/01/2007#, 1), (#05/01/2006#, 2), "
      "(#06/01/2007#, 3)");
  EXPECT_EQ(bank.lies("select year(Datum) as Inhalt1, sum(Menge) as Wert1 from Ernte "
                      "group by Year(Datum)"),
            zeilen({"2006|2.0", "2007|4.0"}));
}

TEST_F(Dialekttest, SummeOhneZeilenIstNullUndAnzahlNull) {
  EXPECT_EQ(bank.eins("select sum(Menge), avg(Menge), count(*), max(ID) from Ernte"), "<>|<>|0|<>");
}

// ---- what is told about a statement ----

TEST_F(Dialekttest, EineTabelleOhneGruppenKannGeändertWerden) {
  EXPECT_EQ(bank.übersetze("select * from VOLK where Name = 'a' order by Name").tabelle, "Volk");
  EXPECT_EQ(bank.übersetze("select top 1 Name, ID from Volk").tabelle, "Volk");
  for (const char* anweisung :
       {"select distinct Name from Volk", "select count(*) from Volk",
        "select Name from Volk group by Name", "select Name from Volk, Ernte",
        "select sum(Menge) + 1 from Ernte", "delete from Volk", "update Volk set Name = 'a'"}) {
    EXPECT_EQ(bank.übersetze(anweisung).tabelle, "") << anweisung;
  }
}

TEST_F(Dialekttest, SchreibenUndSchemaSindKenntlich) {
  EXPECT_TRUE(bank.übersetze("insert into Volk(Name) values ('a')").schreibt);
  EXPECT_TRUE(bank.übersetze("update Volk set Name = 'a'").schreibt);
  EXPECT_TRUE(bank.übersetze("delete from Volk").schreibt);
  EXPECT_FALSE(bank.übersetze("select * from Volk").schreibt);
  EXPECT_TRUE(bank.übersetze("create table X(ID COUNTER)").ändertSchema);
  EXPECT_TRUE(bank.übersetze("alter table Volk add column X LONG").ändertSchema);
  EXPECT_TRUE(bank.übersetze("create index x on Volk(Lage)").ändertSchema);
  EXPECT_TRUE(bank.übersetze("drop table Volk").ändertSchema);
  EXPECT_FALSE(bank.übersetze("delete from Volk").ändertSchema);
}

TEST_F(Dialekttest, WerteBleibenInIhrerReihenfolge) {
  bank.lies("insert into Ernte(Sorte, Menge, Volk_ID) values (?, ?, ?)", {"Raps", 2.5, 1});
  bank.lies("insert into Ernte(Sorte, Menge, Volk_ID) values (?, ?, ?)", {"Wald", 7.5, 2});
  EXPECT_EQ(bank.übersetze("select ? as A, Sorte from Ernte where Menge > ?").werte, 2);
  EXPECT_EQ(bank.eins("select top 1 ? as A, Sorte from Ernte where Menge > ? and Volk_ID = ? "
                      "order by Menge + ?",
                      {"erster", 3, 2, 1}),
            "erster|Wald");
  bank.lies("update Ernte set Sorte = ?, Menge = ? where Volk_ID = ?", {"Linde", 1.25, 2});
  EXPECT_EQ(bank.eins("select Sorte, Menge from Ernte where Volk_ID = 2"), "Linde|1.25");
}

TEST_F(Dialekttest, WerteInEinerKreuztabelleGeltenInBeidenTeilen) {
  bank.lies(
      "insert into Ernte(Sorte, Menge, Volk_ID) values ('a', 1, 1), ('a', 9, 1), ('b', 9, 2)");
  EXPECT_EQ(bank.lies("transform count(*) select Sorte, count(*) as Anzahl, ? as Titel from Ernte "
                      "where Menge > ? group by Sorte pivot Volk_ID;",
                      {"T", 5}),
            zeilen({"a|1|T|1|1", "b|1|T|2|1"}));
}

// ---- writing ----

TEST_F(Dialekttest, EinfügenWandeltNachDemFeld) {
  bank.lies(
      "insert into Volk(Name, Stärke, Waben, Seit, Preis, Stufe) values "
      "(12, '3,5', '10', '15.09.2006', 1.00005, 2.5)");
  EXPECT_EQ(bank.eins("select Name, Stärke, Waben, Seit, Preis, Stufe from Volk"),
            "12|3.5|10|2006-09-15|1.0|2");
  EXPECT_EQ(bank.roh("select typeof(Name), typeof(Waben), typeof(Seit) from Volk"),
            zeilen({"text|integer|text"}));
}

TEST_F(Dialekttest, EinfachIstDieKürzesteDezimalzahl) {
  bank.lies("insert into Volk(Stärke) values (3.3333333333)");
  EXPECT_EQ(bank.eins("select Stärke from Volk"), "3.3333333");
  bank.lies("update Volk set Stärke = 10 / 3 - 0.0033333");
  EXPECT_EQ(bank.eins("select Stärke from Volk where Stärke = 3.33"), "3.33");
}

TEST_F(Dialekttest, ÄndernWandeltUndRechnet) {
  bank.lies("insert into Volk(Name, Waben, Seit) values ('a', 7, #01/01/2006#)");
  bank.lies(
      "update Volk set Waben = Waben / 2, Name = 'O''Neill', Seit = '01.02.2007' where ID = 1");
  EXPECT_EQ(bank.eins("select Waben, Name, Seit from Volk"), "4|O'Neill|2007-02-01");
  bank.lies("update Volk set Waben = '8'");
  EXPECT_EQ(bank.eins("select Waben from Volk where Waben = 8"), "8");
}

TEST_F(Dialekttest, LeererTextUndNullBleibenVerschieden) {
  bank.lies("insert into Volk(Name, Flagge) values ('', Null)");
  EXPECT_EQ(bank.eins("select Name, Flagge, Notiz from Volk"), "|<>|<>");
}

TEST_F(Dialekttest, WasNichtPasstIstEinFehlerDerAnweisung) {
  bank.lies("insert into Volk(Name) values ('a')");
  for (const char* anweisung :
       {"update Volk set Name = 'elf Zeichen'", "update Volk set Stufe = 40000",
        "update Volk set Waben = 3000000000", "update Volk set Waben = 'viele'",
        "update Volk set Seit = '31.02.2006'", "insert into Volk(Flagge) values ('XX')",
        "update Volk set Seit = ''", "insert into Volk(Stufe) values (-32769)"}) {
    const auto [art, text] = fehler(anweisung);
    EXPECT_EQ(art, Art::Wertebereich) << anweisung;
    EXPECT_TRUE(text.contains("Feld")) << text.toStdString();
  }
  EXPECT_EQ(bank.lies("select Name, Stufe, Waben, Seit from Volk"), zeilen({"a|<>|<>|<>"}));
  EXPECT_EQ(fehler("update Volk set Name = ?", {"elf Zeichen"}).first, Art::Wertebereich);
}

TEST_F(Dialekttest, LöschenMitUndOhneBedingung) {
  bank.lies("insert into Volk(Name) values ('a'), ('b'), ('c')");
  bank.lies("delete from Volk where Name = 'A' or ID =  2");
  EXPECT_EQ(bank.lies("select Name from Volk"), zeilen({"c"}));
  bank.lies("delete from volk;");
  EXPECT_EQ(bank.eins("select count(*) from Volk"), "0");
}

TEST_F(Dialekttest, NummernWerdenNichtWiederVergeben) {
  bank.lies("insert into Volk(Name) values ('a'), ('b')");
  bank.lies("delete from Volk");
  bank.lies("insert into Volk(Name) values ('c')");
  EXPECT_EQ(bank.eins("select ID from Volk"), "3");
}

// ---- tables ----

TEST_F(Dialekttest, FeldtypenDerTabellen) {
  EXPECT_EQ(bank.sql("create table T(A TEXT (10), B MEMO, C SHORT, D INTEGER, E LONG, F SINGLE, "
                     "G CURRENCY, H DATETIME, ID COUNTER)"),
            "CREATE TABLE T (A TEXT (10) COLLATE tova, B MEMO TEXT COLLATE tova, C SHORT INT, "
            "D INTEGER, E LONG INT, F SINGLE REAL, G CURRENCY REAL, H DATETIME TEXT, "
            "ID INTEGER PRIMARY KEY AUTOINCREMENT)");
  EXPECT_EQ(bank.sql("ALTER TABLE volk ADD COLUMN Stelle TEXT(20)"),
            "ALTER TABLE Volk ADD COLUMN Stelle TEXT (20) COLLATE tova");
  EXPECT_EQ(bank.sql("create index v2 on Volk(flagge)"), "CREATE INDEX v2 ON Volk (Flagge)");
  unlesbar("create table T(A BLOB)");
  unlesbar("create table T(A TEXT (0))");
}

TEST_F(Dialekttest, NeueSpalteIstNullUndNimmtDieKollation) {
  bank.lies("insert into Volk(Name) values ('a')");
  bank.lies("ALTER TABLE Volk ADD COLUMN Stelle TEXT (20)");
  EXPECT_EQ(bank.eins("select Stelle from Volk"), "<>");
  bank.lies("UPDATE Volk SET Stelle = 'Straße'");
  EXPECT_EQ(bank.eins("select count(*) from Volk where Stelle = 'STRASSE '"), "1");
}

// ---- cross tables ----

TEST_F(Dialekttest, KreuztabelleGibtGruppenSummenUndZellen) {
  bank.lies(
      "insert into Ernte(Sorte, Menge, Volk_ID) values ('Wald', 1, 10), ('Raps', 2, 9), "
      "('wald', 4, 9), ('Wald', 8, Null), ('WALD', 16, 10), (Null, 32, 9)");
  const Dialekt::Übersetzt u = bank.übersetze(
      "transform count(*) select Sorte, count(*) as Anzahl from Ernte group by Sorte pivot "
      "Volk_ID;");
  ASSERT_TRUE(u.kreuztabelle);
  EXPECT_EQ(u.kreuztabelle->gruppen, 2);
  EXPECT_EQ(bank.roh(u.sql),
            zeilen({"<>|1|9|1", "Raps|1|9|1", "Wald|4|<>|1", "wald|4|9|1", "Wald|4|10|2"}));
  EXPECT_EQ(bank.spalten, zeilen({"Sorte", "Anzahl", "Pivot", "Zelle"}));
  EXPECT_EQ(bank.typen[0], "TEXT (20)");
  EXPECT_EQ(bank.typen[2], "LONG INT");
}

TEST_F(Dialekttest, KreuztabelleGruppiertDieTabelleEinmal) {
  const QString plan =
      bank.roh("explain query plan " +
               bank.sql("transform count(*) select Sorte, count(*) as Anzahl from Ernte group by "
                        "Sorte pivot Volk_ID"))
          .join('\n');
  EXPECT_EQ(plan.count("SCAN Ernte"), 1) << plan.toStdString();
}

TEST_F(Dialekttest, KreuztabelleÜberTextUndZweiGruppen) {
  bank.lies(
      "insert into Ernte(Sorte, Datum, Volk_ID) values ('b', #01/01/2006#, 1), "
      "('B', #01/01/2007#, 1), ('ä', #01/01/2006#, 2), ('a', #01/01/2006#, 2), "
      "(Null, #01/01/2006#, 2)");
  EXPECT_EQ(bank.lies("transform count(*) select Volk_ID, year(Datum) as Jahr from Ernte "
                      "group by Volk_ID, year(Datum) pivot Sorte"),
            zeilen({"1|2006|b|1", "1|2007|B|1", "2|2006|<>|1", "2|2006|a|1", "2|2006|ä|1"}));
}

TEST_F(Dialekttest, KreuztabelleOhneGruppeOderPivotIstUnlesbar) {
  unlesbar("transform count(*) select Sorte from Ernte pivot Volk_ID");
  unlesbar("transform count(*) select Sorte from Ernte group by Sorte");
  unlesbar("transform Menge select Sorte from Ernte group by Sorte pivot Volk_ID");
  unlesbar("transform count(*) select * from Ernte group by Sorte pivot Volk_ID");
  unlesbar("transform count(*) from Ernte group by Sorte pivot Volk_ID");
}

// ---- the different values of an indexed field ----

namespace {

QString zufallswort(std::mt19937& zufall) {
  static const QStringList worte = {"",     "a",    "A",     "ä",      "Ä",       "a ", "b", "B  ",
                                    "Wald", "WALD", "wald ", "Straße", "strasse", "10", "2", " "};
  return worte[std::uniform_int_distribution<int>(0, static_cast<int>(worte.size()) - 1)(zufall)];
}

}  // namespace

TEST_F(Dialekttest, VerschiedeneWerteMitIndexSindDieselbenWieOhne) {
  std::mt19937 zufall(31);
  for (int lauf = 0; lauf < 40; ++lauf) {
    bank.lies("delete from Ernte");
    const int anzahl = std::uniform_int_distribution<int>(0, 60)(zufall);
    for (int i = 0; i < anzahl; ++i) {
      QVariantList werte = {zufallswort(zufall), QVariant(), QVariant()};
      if (zufall() % 8 == 0) werte[0] = QVariant();
      if (zufall() % 4 != 0) werte[1] = static_cast<int>(zufall() % 9) / 2.0;
      if (zufall() % 4 != 0) werte[2] = QDate(2006, 1, 1 + static_cast<int>(zufall() % 7));
      bank.lies("insert into Ernte(Sorte, Menge, Datum) values (?, ?, ?)", werte);
    }
    for (const char* feld : {"Sorte", "Menge", "Datum"}) {
      const QString anweisung =
          QString("select distinct %1 from Ernte order by %1").arg(QString(feld));
      const QStringList ohneIndex =
          bank.roh(QString("select %1 from (select %1, min(ID) from Ernte group by %1) order by %1")
                       .arg(QString(feld)));
      ASSERT_TRUE(bank.sql(anweisung).contains("RECURSIVE"));
      ASSERT_EQ(bank.lies(anweisung), ohneIndex) << feld;
    }
  }
}

TEST_F(Dialekttest, VerschiedeneWerteLiestDerIndexUndNichtDieTabelle) {
  for (const QString& schritt : bank.roh(
           "explain query plan " + bank.sql("select distinct Sorte from Ernte order by Sorte"))) {
    if (schritt.contains("Ernte") || schritt.contains("tova_t") || schritt.contains("tova_u")) {
      EXPECT_TRUE(schritt.contains("SEARCH")) << schritt.toStdString();
    }
    EXPECT_FALSE(schritt.contains("B-TREE")) << schritt.toStdString();
  }
}

TEST_F(Dialekttest, EinPlusVorDemFeldLiestDieTabelleInIhrerReihenfolge) {
  const auto plan = [this](const QString& anweisung) {
    return bank.roh("explain query plan " + bank.sql(anweisung)).join('\n').toStdString();
  };
  const QString mitIndex = "select Menge from Ernte where Sorte = 'Raps' order by ID";
  EXPECT_NE(plan(mitIndex).find("USING INDEX"), std::string::npos) << plan(mitIndex);
  for (const char* anweisung :
       {"select Menge from Ernte where +Sorte = 'Raps' order by ID",
        "select Menge from Ernte where +Datum >= #01/01/2006# and +Ernte.Menge > 3 order by ID",
        "select Menge, Datum, Sorte, Volk_ID from Ernte"}) {
    EXPECT_NE(plan(anweisung).find("SCAN Ernte"), std::string::npos) << plan(anweisung);
    EXPECT_EQ(plan(anweisung).find("INDEX"), std::string::npos) << plan(anweisung);
    EXPECT_EQ(plan(anweisung).find("B-TREE"), std::string::npos) << plan(anweisung);
  }
}

TEST_F(Dialekttest, EinPlusVorDemFeldÄndertDieZeilenNicht) {
  for (const char* bedingung :
       {"Sorte = 'raps'", "Sorte <> 'Raps'", "Sorte = Null", "Sorte like 'r*'", "Menge > 2.5",
        "Sorte in ('RAPS', 'Linde')", "Sorte between 'a' and 's'", "Datum < #12/31/2006#",
        "Volk_ID = 1"}) {
    const QString ohne = QString("select ID from Ernte where %1 order by ID").arg(bedingung);
    EXPECT_EQ(bank.lies(QString(ohne).replace("where ", "where +")), bank.lies(ohne)) << bedingung;
  }
  EXPECT_EQ(bank.eins("select + 5, +-+5, - + 5"), "5|-5|-5");
}

TEST_F(Dialekttest, VerschiedeneWerteBehaltenNameUndTypDesFeldes) {
  bank.lies("select distinct Sorte from Ernte order by Sorte");
  EXPECT_EQ(bank.spalten, zeilen({"Sorte"}));
  EXPECT_EQ(bank.typen, zeilen({"TEXT (20)"}));
  bank.lies("select distinct sorte as Wort from Ernte order by Wort");
  EXPECT_EQ(bank.spalten, zeilen({"Wort"}));
}

TEST_F(Dialekttest, AndereVerschiedeneWerteBleibenEinfach) {
  for (const char* anweisung :
       {"select distinct Name from Volk where Flagge = 'J' order by Name",
        "select distinct Flagge from Volk order by Flagge", "select distinct Name from Volk",
        "select distinct Name from Volk order by Name DESC",
        "select distinct Name, Flagge from Volk order by Name",
        "select distinct top 3 Name from Volk order by Name"}) {
    EXPECT_TRUE(bank.sql(anweisung).startsWith("SELECT DISTINCT")) << anweisung;
  }
  bank.lies("insert into Volk(Name, Flagge) values ('b', 'x'), ('B', 'X'), ('a', Null)");
  EXPECT_EQ(bank.lies("select distinct Flagge from Volk order by Flagge"), zeilen({"<>", "x"}));
  EXPECT_EQ(bank.lies("select distinct top 1 Name from Volk order by Name"), zeilen({"a"}));
  EXPECT_EQ(bank.lies("select distinct left(Name, 1) as L from Volk order by L"),
            zeilen({"a", "b"}));
}

// ---- what can't be read ----

TEST_F(Dialekttest, UnlesbareAnweisungen) {
  for (const char* anweisung : {"",
                                ";",
                                "   ",
                                "select",
                                "select from Volk",
                                "select * from",
                                "select * Volk",
                                "select * from Volk where",
                                "select * from Volk order",
                                "select * from Volk order by",
                                "select top from Volk",
                                "select top 10 percent * from Volk",
                                "select Name as from Volk",
                                "select 'offen from Volk",
                                "select [offen from Volk",
                                "select \"offen from Volk",
                                "select * from Volk where Seit = #01/01",
                                "select * from Volk; delete from Volk",
                                "select * from Volk -- alles",
                                "select * from Volk /* alles */",
                                "vacuum",
                                "pragma table_info(Volk)",
                                "attach 'x' as y",
                                "explain select * from Volk",
                                "insert into Volk",
                                "insert into Volk(Name)",
                                "insert into Volk(Name) values",
                                "insert into Volk(Name) values ('a', 'b')",
                                "insert into Volk(Name, Lage) values ('a')",
                                "insert into Volk() values ()",
                                "update Volk",
                                "update Volk set",
                                "update Volk set Name",
                                "update Volk set Name = ",
                                "update Volk set Lage = max(ID)",
                                "delete Volk",
                                "delete from",
                                "create table",
                                "create table T",
                                "create table T()",
                                "create table T(A)",
                                "create index x",
                                "create index x on Volk",
                                "alter table Volk",
                                "alter table Volk add",
                                "select count() from Volk",
                                "select year() from Volk",
                                "select * from Volk where (Lage = 1",
                                "select * from Volk where Lage = 1)",
                                "select * from Volk where Lage == 1",
                                "select * from Volk where Lage in ()",
                                "select * from Volk where Lage in 1",
                                "select 5Waben from Volk",
                                "select 1.2.3",
                                "select @x",
                                "select * from Volk limit 5",
                                "select Name from Volk union select Sorte from Ernte",
                                "select * from Volk where Name = 'a' 'b'",
                                "select * from Volk where Lage between 1",
                                "select *, from Volk",
                                "select a.b.c from Volk"}) {
    unlesbar(anweisung);
  }
  unlesbar(QString("select * from Volk where Name = 'a") + QChar(0) + "b'");
}

TEST_F(Dialekttest, TausendeKlammernSindKeinAbsturz) {
  unlesbar("select " + QString(100000, '(') + "1" + QString(100000, ')'));
  unlesbar("select " + QString(100000, '-').replace("-", "- ") + "1");
  unlesbar("select * from Volk where " + QString("not ").repeated(50000) + "Lage = 1");
  unlesbar("select " + QString("abs(").repeated(50000) + "1");
  EXPECT_NO_THROW(bank.übersetze("select 1" + QString(" + 1").repeated(20000)));
  EXPECT_EQ(bank.eins("select " + QString(30, '(') + "1" + QString(30, ')')), "1");
}

TEST_F(Dialekttest, VieleNummernInEinerAnweisung) {
  QString anweisung = "delete from Volk where ID = 1";
  for (int i = 2; i <= 100; ++i) anweisung += " or ID = " + QString::number(i);
  EXPECT_NO_THROW(bank.lies(anweisung));
}

namespace {

const QStringList& bausteine() {
  static const QStringList alle = {
      "select",       "distinct", "top",     "1",       "*",         "from",  "Volk",
      "Ernte",        "where",    "Name",    "Stärke",  "Seit",      "ID",    "=",
      "<>",           "<",        "'X'",     "''",      "Null",      "and",   "or",
      "not",          "(",        ")",       ",",       ".",         "order", "by",
      "desc",         "group",    "having",  "count",   "sum",       "year",  "now",
      "like",         "in",       "between", "is",      "insert",    "into",  "values",
      "update",       "set",      "delete",  "create",  "table",     "index", "on",
      "TEXT",         "(10)",     "LONG",    "COUNTER", "transform", "pivot", "?",
      "#01/02/2006#", "#x#",      "-",       "+",       "/",         "&",     ";",
      "as",           "[Name]",   "[",       "'",       "\"",        "5.5",   "exists",
      "left",         "join",     "alter",   "add",     "column",    "drop",  "iif",
      "datediff",     "'yyyy'",   "ü"};
  return alle;
}

}  // namespace

TEST_F(Dialekttest, IrgendeinTextGibtHöchstensEinenDatenbankfehler) {
  std::mt19937 zufall(4711);
  int gelesen = 0;
  for (int lauf = 0; lauf < 30000; ++lauf) {
    QString text;
    const int länge = std::uniform_int_distribution<int>(0, 25)(zufall);
    for (int i = 0; i < länge; ++i) {
      if (lauf % 3 == 0) {
        text += QChar(static_cast<char16_t>(zufall() % (lauf % 2 ? 0x80 : 0x10000)));
      } else {
        text += bausteine()[static_cast<qsizetype>(zufall() % bausteine().size())] + ' ';
      }
    }
    try {
      bank.übersetze(text);
      ++gelesen;
    } catch (const Datenbankfehler&) {
    }
  }
  EXPECT_GT(gelesen, 0);
}

// What the translator takes for a statement must at least never bring the engine down or do
// something else than it says.
TEST_F(Dialekttest, AngeknabberteAnweisungenLaufenOderScheitern) {
  const QStringList gute = {
      "select top 1 * from Ernte where Volk_ID = 3 and Datum >= #01/01/2006# order by Datum DESC",
      "select Name, Stärke / 2 as Halb, 'O''N' from Volk where Flagge <> 'X' and not Lage = Null",
      "transform count(*) select Sorte, count(*) as Anzahl from Volk, Ernte where Volk_ID = "
      "Volk.ID "
      "group by Sorte pivot year(Datum);",
      "update Volk set Name = 'abc', Waben = Waben + 1 where ID in (1, 2) or Name like 'a*'",
      "insert into Ernte(Datum, Menge, Sorte) values ('15.09.2006', 5, 'Wald')",
      "select distinct Sorte from Ernte order by Sorte",
      "select Sorte, sum(Menge - 1) as S from Ernte group by Sorte order by S"};
  for (const QString& anweisung : gute)
    EXPECT_NO_THROW(bank.lies(anweisung)) << anweisung.toStdString();
  std::mt19937 zufall(77);
  int gelaufen = 0;
  for (int lauf = 0; lauf < 6000; ++lauf) {
    QString text = gute[static_cast<qsizetype>(zufall() % gute.size())];
    for (int i = static_cast<int>(zufall() % 3); i >= 0; --i) {
      const qsizetype ort = static_cast<qsizetype>(zufall() % text.size());
      switch (zufall() % 3) {
        case 0:
          text.remove(ort, 1 + static_cast<qsizetype>(zufall() % 4));
          break;
        case 1:
          text.insert(
              ort, ' ' + bausteine()[static_cast<qsizetype>(zufall() % bausteine().size())] + ' ');
          break;
        default:
          text.truncate(ort + 1);
      }
      if (text.isEmpty()) break;
    }
    try {
      bank.roh("savepoint probe");
      bank.lies(text);
      ++gelaufen;
    } catch (const Datenbankfehler&) {
    }
    bank.roh("rollback to probe");
    bank.roh("release probe");
  }
  EXPECT_GT(gelaufen, 100);
}
