#include "data/schema.h"

#include "Schemafall.h"
#include "data/helpers.h"
#include "platform/database/verbindung/Verbindung.h"

using namespace TZ_Variablen;

namespace {

class Schema : public Schemafall {};

QStringList erwarteteBeschreibung() {
  return festgehalten(QString(TOVA_TESTDATEN) + "/schema.golden.txt");
}

TEST_F(Schema, NeueDatenbankHatAlleTabellenFelderUndIndexeInIhrerReihenfolge) {
  DatenbankAnlegen();
  const QStringList ist = beschreibung();
  const QStringList soll = erwarteteBeschreibung();
  for (qsizetype i = 0; i < qMin(ist.size(), soll.size()); ++i)
    ASSERT_EQ(ist[i].toStdString(), soll[i].toStdString()) << "Zeile " << i + 1;
  EXPECT_EQ(ist.size(), soll.size());
  EXPECT_EQ(DB.Tabellen().size(), 28);
}

TEST_F(Schema, EinIndexNameGehörtZuGenauEinerTabelle) {
  DatenbankAnlegen();
  EXPECT_EQ(wert("select count(*) from sqlite_master where type = 'index'"), "189");
}

TEST_F(Schema, ElfPflanzenInIhrerReihenfolge) {
  DatenbankAnlegen();
  EXPECT_EQ(
      zeilen("select Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe "
             "from Pflanzen order by ID"),
      (QStringList{"Efeu|15.09.2006|20.11.2006|5|2", "Schneeheide|15.01.2006|20.03.2006|5|5",
                   "Haselnuss|15.01.2006|10.03.2006|0|4", "Küblerweide|10.03.2006|10.04.2006|4|7",
                   "Krokus|10.02.2006|10.04.2006|5|5", "Kirsche|20.03.2006|10.05.2006|7|3",
                   "Löwenzahn|01.04.2006|20.05.2006|6|8", "Bergahorn|01.05.2006|30.06.2006|4|2",
                   "Winterlinde|20.06.2006|31.07.2006|7|2", "Fichte|15.05.2006|31.07.2006|7|0",
                   "Goldrute|20.07.2006|30.09.2006|3|3"}));
  EXPECT_EQ(DB.Lesen("select Weidezeit_bis from Pflanzen order by ID")->wert(10, 0).toDate(),
            QDate(2006, 9, 30));
}

TEST_F(Schema, AchtzehnArbeitsplanoptionenUndNurHonigernteWirdDurchEineBuchungErledigt) {
  DatenbankAnlegen();
  EXPECT_EQ(zeilen("select Arbeitsart, Startzeitraum, Wiederholungsfrist_Tage, Endzeitraum, "
                   "Volkabhängig, Auto_erledigt_Buchung from Arbeitsplanoptionen order by ID"),
            (QStringList{
                "Schwarmkontrolle|01.05|9|30.06|J|", "Varroakontrolle|01.05|9|30.09|J|",
                "Varroa-Winterbekämpfung|15.12|0|15.12|J|", "Rähmchen bauen|01.11|0|01.11|N|",
                "Waben schmelzen|01.08|0|01.08|N|", "Beuten reparieren|01.12|0|01.12|N|",
                "Beuten bauen|01.12|0|01.12|N|", "Frühjahrskontrolle|01.03|9|30.04|J|",
                "Erweiterungskontrolle|01.04|9|31.07|J|", "Honigernte|01.06|14|31.08|J|Honigernte",
                "Kerzenproduktion|01.11|0|01.11|N|", "Fütterung|01.09|0|01.09|J|",
                "Drohnenbrutentnahme|01.05|14|31.07|J|", "Wassertränke errichten|15.03|0|15.03|N|",
                "Brutkontrolle|01.04|9|31.08|J|", "Jahreserstkontrolle|15.03|0|15.03|J|",
                "Einwinterung|15.09|0|15.09|J|", "Winterkontrolle|01.11|14|15.05|J|"}));
  // What is empty is a text and not null.
  EXPECT_EQ(wert("select count(*) from Arbeitsplanoptionen where Auto_erledigt_Buchung = ''"),
            "17");
  EXPECT_EQ(wert("select count(*) from Arbeitsplanoptionen where Auto_erledigt_Arbeitsart = ''"),
            "18");
}

TEST_F(Schema, KeineAndereTabelleHatStartzeilen) {
  DatenbankAnlegen();
  for (const QString& tabelle : DB.Tabellen()) {
    if (tabelle == "Pflanzen" || tabelle == "Arbeitsplanoptionen") continue;
    EXPECT_EQ(wert("select count(*) from " + tabelle), "0") << tabelle.toStdString();
  }
}

TEST_F(Schema, AuswahllisteEinerLeerenTabelleIstLeerUndKeinFehler) {
  DatenbankAnlegen();
  EXPECT_EQ(DB.Lesen("select distinct Standort from Standorte order by Standort")->zeilen(), 0);
}

TEST_F(Schema, LeererUndFehlenderBestandsvermerkZählenAlsAbgang) {
  DatenbankAnlegen();
  DB.Execute("insert into Bienenvolk(Volknr, Akt_im_Bestand) values ('1', 'X')");
  DB.Execute("insert into Bienenvolk(Volknr, Akt_im_Bestand) values ('2', '')");
  DB.Execute("insert into Bienenvolk(Volknr) values ('3')");
  EXPECT_EQ(wert("select count(*) as anzahl from Bienenvolk where Akt_im_Bestand = 'X'"), "1");
  EXPECT_EQ(wert("select count(*) as anzahl from Bienenvolk where Akt_im_Bestand <> 'X'"), "2");
}

TEST_F(Schema, BuchungOhneVolkFälltAusJederVerbindungHeraus) {
  DatenbankAnlegen();
  DB.Execute("insert into Bienenvolk(Volknr) values ('1')");
  DB.Execute("insert into Arbeiten(Arbeitsart, Volk_ID) values ('Füttern', 1)");
  DB.Execute("insert into Arbeiten(Arbeitsart, Volk_ID) values ('Füttern', 99)");
  EXPECT_EQ(wert("select count(*) from Bienenvolk, Arbeiten where Volk_ID = Bienenvolk.ID"), "1");
}

TEST_F(Schema, SelektionWirdInEinerAnweisungGeleert) {
  DatenbankAnlegen();
  DB.Execute("insert into Bienenvolk(Volknr, Selektiert) values ('1', 'X')");
  DB.Execute("insert into Bienenvolk(Volknr) values ('2')");
  EXPECT_EQ(DB.Execute("update Bienenvolk set Selektiert = ''"), 2);
  EXPECT_EQ(wert("select count(*) from Bienenvolk where Selektiert = ''"), "2");
}

TEST_F(Schema, EinDatumOhneWertLiestSichAlsLeererText) {
  DatenbankAnlegen();
  for (const QString& tabelle : DB.Tabellen())
    for (const Spalte& feld : DB.Felder(tabelle)) {
      if (feld.typ != Feldtyp::Datum) continue;
      DB.Execute("delete from " + tabelle);
      DB.Execute("insert into " + tabelle + "(" + feld.name + ") values (null)");
      const Recordset zeile = DB.OpenRecordset("select * from " + tabelle);
      EXPECT_FALSE(zeile.Wert(feld.name).isValid()) << feld.name.toStdString();
      EXPECT_EQ(TextLesen(zeile.Wert(feld.name)), QString()) << feld.name.toStdString();
    }
}

TEST_F(Schema, AnlegenLässtNurDieFertigeDateiZurück) {
  DatenbankAnlegen();
  EXPECT_TRUE(QFile::exists(DatenbankPfad));
  EXPECT_FALSE(QFile::exists(DatenbankPfad + ".neu"));
}

TEST_F(Schema, EinAbgebrochenesAnlegenStörtDasNächsteNicht) {
  QFile rest(DatenbankPfad + ".neu");
  ASSERT_TRUE(rest.open(QIODevice::WriteOnly));
  rest.write("halb");
  rest.close();
  DatenbankAnlegen();
  EXPECT_EQ(DB.Tabellen().size(), 28);
}

TEST_F(Schema, DasJournalEinerVerlorenenDatenbankGehtNichtInDieNeue) {
  const auto notizen = [](int anzahl, QChar zeichen) {
    for (int i = 0; i < anzahl; ++i)
      DB.Execute("insert into Notizen(NOTIZ) values (?)", {QString(500, zeichen)});
  };
  DatenbankAnlegen();
  DB.Sammelschreiben([&] { notizen(500, 'a'); });
  // A small cache makes the engine write before the end: the journal becomes one that counts.
  Verbindung::zu(DatenbankPfad)->steuere("pragma cache_size = 10");
  DB.Sammelschreiben([&] {
    DB.Execute("update Notizen set NOTIZ = 'b'");
    notizen(500, 'c');
    ASSERT_TRUE(QFile::copy(DatenbankPfad + "-journal", AppPfad + "journal"));
  });
  DB.Close();
  Arbeitsbereich.Close();
  ASSERT_TRUE(QFile::remove(DatenbankPfad));
  ASSERT_TRUE(QFile::rename(AppPfad + "journal", DatenbankPfad + "-journal"));
  DatenbankAnlegen();
  EXPECT_EQ(Verbindung::zu(DatenbankPfad)->steuere("pragma quick_check(1)"), "ok");
  EXPECT_EQ(wert("select count(*) from Notizen"), "0");
  EXPECT_EQ(wert("select count(*) from Pflanzen"), "11");
}

TEST_F(Schema, AnlegenInEinemFehlendenOrdnerScheitertMitMeldung) {
  DatenbankPfad = AppPfad + "fehlt/TOVA2.MDB";
  EXPECT_THROW(DatenbankAnlegen(), Datenbankfehler);
}

TEST_F(Schema, EineNeueDatenbankWirdNichtErweitert) {
  DatenbankAnlegen();
  const QStringList vorher = beschreibung();
  SchemaErweitern();
  EXPECT_EQ(beschreibung(), vorher);
  EXPECT_FALSE(QFile::exists(AppPfad + "Einstellungen.TV2"));
}

}  // namespace
