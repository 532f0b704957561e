#include "data/schema.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "core/globals.h"
#include "core/settings.h"
#include "platform/database/Recordset.h"

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
  const Daten p = DB.Lesen("select * from Pflanzen order by ID");
  ASSERT_EQ(p->zeilen(), 11);
  EXPECT_EQ(p->anzeige(0, 0), "Efeu");
  EXPECT_EQ(p->anzeige(0, 1), "15.09.2006");
  EXPECT_EQ(p->anzeige(0, 2), "20.11.2006");
  EXPECT_EQ(p->anzeige(0, 3), "5");
  EXPECT_EQ(p->anzeige(0, 4), "2");
  EXPECT_EQ(p->anzeige(3, 0), "Küblerweide");
  EXPECT_EQ(p->anzeige(9, 4), "0");
  EXPECT_EQ(p->anzeige(10, 0), "Goldrute");
  EXPECT_EQ(p->wert(10, 2).toDate(), QDate(2006, 9, 30));
}

TEST_F(Schema, AchtzehnArbeitsplanoptionenUndNurHonigernteWirdDurchEineBuchungErledigt) {
  DatenbankAnlegen();
  const Daten o = DB.Lesen(
      "select Arbeitsart, Startzeitraum, Wiederholungsfrist_Tage, Endzeitraum, Volkabhängig, "
      "Auto_erledigt_Buchung, Auto_erledigt_Arbeitsart from Arbeitsplanoptionen order by ID");
  ASSERT_EQ(o->zeilen(), 18);
  EXPECT_EQ(o->anzeige(0, 0), "Schwarmkontrolle");
  EXPECT_EQ(o->anzeige(17, 0), "Winterkontrolle");
  EXPECT_EQ(o->anzeige(17, 1), "01.11");
  EXPECT_EQ(o->anzeige(17, 2), "14");
  EXPECT_EQ(o->anzeige(17, 3), "15.05");
  for (int i = 0; i < 18; ++i) {
    EXPECT_EQ(o->anzeige(i, 5), i == 9 ? "Honigernte" : "") << i;
    EXPECT_FALSE(o->istNull(i, 5)) << i;
    EXPECT_FALSE(o->istNull(i, 6)) << i;
  }
  EXPECT_EQ(wert("select count(*) from Arbeitsplanoptionen where Volkabhängig = 'J'"), "12");
  EXPECT_EQ(wert("select count(*) from Arbeitsplanoptionen where Volkabhängig = 'N'"), "6");
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
