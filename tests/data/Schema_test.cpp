#include "data/schema.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "core/globals.h"
#include "core/settings.h"
#include "data/helpers.h"
#include "platform/database/Recordset.h"
#include "platform/database/Verbindung.h"

using namespace TZ_Variablen;

namespace {

class Schema : public ::testing::Test {
 protected:
  void SetUp() override {
    zuruecksetzen();
    AppPfad = m_ordner.path() + "/";
    DatenbankPfad = AppPfad + "TOVA2.MDB";
    HeuteText = "20.06.2026";
  }
  void TearDown() override {
    DB.Close();
    Arbeitsbereich.Close();
  }
  static QString wert(const QString& anweisung, int spalte = 0) {
    const Daten daten = DB.Lesen(anweisung);
    return daten->zeilen() == 0 ? QStringLiteral("<keine Zeile>") : daten->anzeige(0, spalte);
  }
  static QStringList zeilen(const QString& anweisung) {
    const Daten daten = DB.Lesen(anweisung);
    QStringList liste;
    for (int z = 0; z < daten->zeilen(); ++z) {
      QStringList felder;
      for (int s = 0; s < daten->spalten(); ++s) felder << daten->anzeige(z, s);
      liste << felder.join('|');
    }
    return liste;
  }

  QTemporaryDir m_ordner;
};

QString typwort(const Spalte& spalte) {
  switch (spalte.typ) {
    case Feldtyp::Text:
      return QStringLiteral("TEXT (%1)").arg(spalte.laenge);
    case Feldtyp::Memo:
      return "MEMO";
    case Feldtyp::Kurz:
      return "SHORT";
    case Feldtyp::Lang:
      return "INTEGER";
    case Feldtyp::Einfach:
      return "SINGLE";
    case Feldtyp::Waehrung:
      return "CURRENCY";
    case Feldtyp::Datum:
      return "DATETIME";
    case Feldtyp::Zaehler:
      return "COUNTER";
    case Feldtyp::Ausdruck:
      break;
  }
  return "?";
}

// Tables, fields and indexes of the open database in their order of creation. LONG and INTEGER
// are one type.
QStringList beschreibung() {
  QStringList zeilen;
  for (const QString& tabelle : DB.Tabellen()) {
    zeilen << tabelle;
    for (const Spalte& feld : DB.Felder(tabelle))
      zeilen << QStringLiteral("  %1: %2").arg(feld.name, typwort(feld));
    const Daten indexe = DB.Lesen(
        "select name, sql from sqlite_master where type = 'index' and tbl_name = ?", {tabelle});
    for (int i = 0; i < indexe->zeilen(); ++i) {
      const QString sql = indexe->wert(i, 1).toString();
      const qsizetype klammer = sql.lastIndexOf('(');
      zeilen << QStringLiteral("  index %1 (%2)")
                    .arg(indexe->wert(i, 0).toString(), sql.mid(klammer + 1).chopped(1).trimmed());
    }
  }
  return zeilen;
}

QStringList erwarteteBeschreibung() {
  QFile datei(QString(TOVA_TESTDATEN) + "/schema.golden.txt");
  if (!datei.open(QIODevice::ReadOnly)) return {"schema.golden.txt fehlt"};
  QString text = QString::fromUtf8(datei.readAll()).trimmed();
  return text.replace(": LONG", ": INTEGER").split('\n');
}

TEST_F(Schema, NeueDatenbankHatAlleTabellenFelderUndIndexeInIhrerReihenfolge) {
  DatenbankAnlegen();
  const QStringList ist = beschreibung();
  const QStringList soll = erwarteteBeschreibung();
  for (qsizetype i = 0; i < qMin(ist.size(), soll.size()); ++i)
    ASSERT_EQ(ist[i].toStdString(), soll[i].toStdString()) << "Zeile " << i + 1;
  EXPECT_EQ(ist.size(), soll.size());
  EXPECT_EQ(DB.Tabellen().size(), 27);
}

TEST_F(Schema, EinIndexNameGehoertZuGenauEinerTabelle) {
  DatenbankAnlegen();
  EXPECT_EQ(wert("select count(*) from sqlite_master where type = 'index'"), "188");
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

TEST_F(Schema, LeererUndFehlenderBestandsvermerkZaehlenAlsAbgang) {
  DatenbankAnlegen();
  DB.Execute("insert into Bienenvolk(Volknr, Akt_im_Bestand) values ('1', 'X')");
  DB.Execute("insert into Bienenvolk(Volknr, Akt_im_Bestand) values ('2', '')");
  DB.Execute("insert into Bienenvolk(Volknr) values ('3')");
  EXPECT_EQ(wert("select count(*) as anzahl from Bienenvolk where Akt_im_Bestand = 'X'"), "1");
  EXPECT_EQ(wert("select count(*) as anzahl from Bienenvolk where Akt_im_Bestand <> 'X'"), "2");
}

TEST_F(Schema, BuchungOhneVolkFaelltAusJederVerbindungHeraus) {
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

TEST_F(Schema, AnlegenLaesstNurDieFertigeDateiZurueck) {
  DatenbankAnlegen();
  EXPECT_TRUE(QFile::exists(DatenbankPfad));
  EXPECT_FALSE(QFile::exists(DatenbankPfad + ".neu"));
}

TEST_F(Schema, EinAbgebrochenesAnlegenStoertDasNaechsteNicht) {
  QFile rest(DatenbankPfad + ".neu");
  ASSERT_TRUE(rest.open(QIODevice::WriteOnly));
  rest.write("halb");
  rest.close();
  DatenbankAnlegen();
  EXPECT_EQ(DB.Tabellen().size(), 27);
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

// A database of the earlier version: it lacks exactly what the upgrade adds.
bool fehlteFrueher(const QString& tabelle, const QString& feld) {
  static const QStringList neu = {"Futterwaben",      "HW_verdeckelt", "BW_Stift",
                                  "BW_offen",         "BW_verdeckelt", "Belegstelle",
                                  "Waben_je_Magazin", "PTop",          "PLeft"};
  return neu.contains(feld) || (feld == "Zuchtbuchnr" && tabelle == "Bienenvolk") ||
         (feld == "Charge" && tabelle == "Honigernte");
}

void alteTabelleAnlegen(const Tabelle& tabelle) {
  const qsizetype klammer = tabelle.anlegen.indexOf('(');
  QStringList felder;
  for (const QString& feld : tabelle.anlegen.mid(klammer + 1).chopped(1).split(", "))
    if (!fehlteFrueher(tabelle.name, feld.section(' ', 0, 0))) felder << feld;
  DB.Execute("create table " + tabelle.name + "(" + felder.join(", ") + ")");
  for (const QString& index : tabelle.indexe)
    if (!index.contains(" volk13 ") && !index.contains(" honigernte10 ")) DB.Execute(index);
  for (const QString& zeile : tabelle.startwerte) DB.Execute(zeile);
}

void alteDatenbankAnlegen() {
  DB = Arbeitsbereich.CreateDatabase(DatenbankPfad);
  DB.Sammelschreiben([] {
    for (const Tabelle& tabelle : schema())
      if (tabelle.name != "DIBVerschluss") alteTabelleAnlegen(tabelle);
  });
}

class Erweiterung : public Schema {
 protected:
  void SetUp() override {
    Schema::SetUp();
    alteDatenbankAnlegen();
    EinstellungenZahl[56] = 12;
    DB.Execute("insert into Bienenvolk(Volknr, Akt_im_Bestand) values ('7', 'X')");
    DB.Execute("insert into Stockkarte(Waben, Volk_ID) values (9, 1)");
    DB.Execute("insert into Standorte(Standort) values ('Waldrand')");
    DB.Execute("insert into Honigernte(Menge_kg, Volk_ID) values (10, 1)");
  }
};

QStringList sortiert(QStringList liste) {
  liste.sort();
  return liste;
}

TEST_F(Erweiterung, EineAeltereDatenbankHatDanachAlleTabellenFelderUndIndexe) {
  ASSERT_NE(sortiert(beschreibung()), sortiert(erwarteteBeschreibung()));
  SchemaErweitern();
  EXPECT_EQ(sortiert(beschreibung()), sortiert(erwarteteBeschreibung()));
}

TEST_F(Erweiterung, NeueZahlenSindNullUndNeueTexteLeerAberNichtOhneWert) {
  SchemaErweitern();
  const Daten volk = DB.Lesen(
      "select Futterwaben, HW_verdeckelt, BW_Stift, BW_offen, BW_verdeckelt, Belegstelle, "
      "Zuchtbuchnr from Bienenvolk");
  for (int i = 0; i < 7; ++i) {
    EXPECT_FALSE(volk->istNull(0, i)) << i;
    EXPECT_EQ(volk->anzeige(0, i), i < 5 ? "0" : "") << i;
  }
  const Daten karte = DB.Lesen(
      "select Futterwaben, HW_verdeckelt, BW_Stift, BW_offen, BW_verdeckelt from Stockkarte");
  for (int i = 0; i < 5; ++i) EXPECT_EQ(karte->anzeige(0, i), "0") << i;
  EXPECT_EQ(wert("select PTop from Standorte"), "250");
  EXPECT_EQ(wert("select PLeft from Standorte"), "0");
  EXPECT_EQ(wert("select count(*) from Honigernte where Charge = ''"), "1");
}

TEST_F(Erweiterung, WabenJeMagazinKommtAusDenEinstellungenUndIstEineZahl) {
  SchemaErweitern();
  const Daten volk = DB.Lesen("select Waben_je_Magazin from Bienenvolk");
  EXPECT_EQ(volk->wert(0, 0), QVariant(qint64(12)));
}

TEST_F(Erweiterung, AlteZeilenBleiben) {
  SchemaErweitern();
  EXPECT_EQ(wert("select Volknr from Bienenvolk"), "7");
  EXPECT_EQ(wert("select Waben from Stockkarte"), "9");
  EXPECT_EQ(wert("select Menge_kg from Honigernte"), "10");
}

TEST_F(Erweiterung, DanachZeigtDasInfoFensterAllesUndDieEinstellungenSindGesichert) {
  EinstellungenText[24] = "000";
  SchemaErweitern();
  EXPECT_EQ(EinstellungenText[24], QString(60, '1'));
  EinstellungenText[24].clear();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[24], QString(60, '1'));
}

TEST_F(Erweiterung, EinFehlerLaesstDieSchritteDavorInKraft) {
  DB.Execute("create table DIBVerschluss(ID COUNTER)");
  EinstellungenText[24] = "000";
  EXPECT_THROW(SchemaErweitern(), Datenbankfehler);
  EXPECT_EQ(wert("select Waben_je_Magazin from Bienenvolk"), "12");
  EXPECT_EQ(wert("select PTop from Standorte"), "250");
  EXPECT_EQ(wert("select PLeft from Standorte"), "0");
  EXPECT_EQ(DB.Felder("DIBVerschluss").size(), 1U);
  EXPECT_THROW(DB.Lesen("select Charge from Honigernte"), Datenbankfehler);
  EXPECT_EQ(EinstellungenText[24], "000");
  EXPECT_FALSE(QFile::exists(AppPfad + "Einstellungen.TV2"));
}

TEST_F(Erweiterung, EineAbgebrocheneErweiterungWirdNichtFortgesetzt) {
  DB.Execute("ALTER TABLE Bienenvolk ADD COLUMN Futterwaben INTEGER");
  SchemaErweitern();
  EXPECT_FALSE(DB.Tabellen().contains("DIBVerschluss"));
}

TEST_F(Schema, EineNeueDatenbankWirdNichtErweitert) {
  DatenbankAnlegen();
  const QStringList vorher = beschreibung();
  SchemaErweitern();
  EXPECT_EQ(beschreibung(), vorher);
  EXPECT_FALSE(QFile::exists(AppPfad + "Einstellungen.TV2"));
}

}  // namespace
