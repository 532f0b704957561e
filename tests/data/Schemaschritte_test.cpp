#include "data/Schemaschritte.h"

#include <QCoreApplication>
#include <QProcess>
#include <csignal>
#include <stdexcept>

#include "Schemafall.h"
#include "core/settings.h"
#include "gemeinsam/Nebenprogramm.h"

using namespace TZ_Variablen;

namespace {

QString testdaten(const QString& name) { return QString(TOVA_TESTDATEN) + "/" + name; }

QStringList heutige() { return festgehalten(testdaten("schema.golden.txt")); }

// The lines of a description with their table in front, in the order of the alphabet: an upgrade
// adds fields behind the others.
QStringList sortiert(const QStringList& beschreibung) {
  QStringList zeilen;
  QString tabelle;
  for (const QString& zeile : beschreibung) {
    if (!zeile.startsWith(' ')) tabelle = zeile;
    zeilen << tabelle + ":" + zeile;
  }
  zeilen.sort();
  return zeilen;
}

struct AlteTabelle {
  QString name;
  QStringList felder;
  QList<std::pair<QString, QString>> indexe;
};

QList<AlteTabelle> alteTabellen(int stand) {
  QList<AlteTabelle> tabellen;
  for (const QString& zeile : festgehalten(testdaten(QString("stand%1.golden.txt").arg(stand)))) {
    if (!zeile.startsWith(' ')) {
      tabellen.append({zeile, {}, {}});
    } else if (zeile.startsWith("  index ")) {
      const QStringList teile = zeile.trimmed().split(' ');
      tabellen.last().indexe.append({teile[1], teile[2].mid(1).chopped(1)});
    } else {
      tabellen.last().felder << zeile.trimmed().replace(":", "");
    }
  }
  return tabellen;
}

// A file of an earlier stand, with one row in each table.
void alteDatenbankAnlegen(int stand) {
  DB = Arbeitsbereich.CreateDatabase(DatenbankPfad);
  DB.Sammelschreiben([stand] {
    for (const AlteTabelle& tabelle : alteTabellen(stand)) {
      DB.Execute("create table " + tabelle.name + "(" + tabelle.felder.join(", ") + ")");
      for (const auto& [index, feld] : tabelle.indexe)
        DB.Execute("create index " + index + " on " + tabelle.name + "(" + feld + ")");
      const QString erstes = tabelle.felder.first().section(' ', 0, 0);
      DB.Execute("insert into " + tabelle.name + "(" + erstes + ") values (null)");
    }
    DB.setSchemastand(stand);
  });
}

TEST_F(Schemafall, EineDateiJedesFrüherenStandesKommtAufDenHeutigen) {
  for (int stand = 0; stand < heutigerSchemastand(); ++stand) {
    SCOPED_TRACE(stand);
    alteDatenbankAnlegen(stand);
    ASSERT_NE(sortiert(beschreibung()), sortiert(heutige()));
    SchemaErweitern();
    EXPECT_EQ(sortiert(beschreibung()), sortiert(heutige()));
    EXPECT_EQ(DB.Schemastand(), heutigerSchemastand());
    for (const AlteTabelle& tabelle : alteTabellen(stand))
      EXPECT_EQ(wert("select count(*) from " + tabelle.name), "1") << tabelle.name.toStdString();
    Arbeitsbereich.Close();
    QFile::remove(DatenbankPfad);
  }
}

class Erweiterung : public Schemafall {
 protected:
  void SetUp() override {
    alteDatenbankAnlegen(0);
    for (const AlteTabelle& tabelle : alteTabellen(0)) DB.Execute("delete from " + tabelle.name);
    EinstellungenZahl[Zahlslots.wabenJeMagazin] = 12;
    DB.Execute("insert into Bienenvolk(Volknr, Akt_im_Bestand) values ('7', 'X')");
    DB.Execute("insert into Stockkarte(Waben, Volk_ID) values (9, 1)");
    DB.Execute("insert into Standorte(Standort) values ('Waldrand')");
    DB.Execute("insert into Honigernte(Menge_kg, Volk_ID) values (10, 1)");
  }
  static void erwarteDenHeutigenStand() {
    EXPECT_EQ(sortiert(beschreibung()), sortiert(heutige()));
    EXPECT_EQ(DB.Schemastand(), heutigerSchemastand());
    EXPECT_EQ(wert("select Futterwaben from Bienenvolk"), "0");
    EXPECT_EQ(wert("select Waben_je_Magazin from Bienenvolk"), "12");
    EXPECT_EQ(wert("select PTop from Standorte"), "250");
    EXPECT_EQ(wert("select count(*) from Honigernte where Charge = ''"), "1");
    EXPECT_EQ(EinstellungenText[Textslots.infofenster], QString(60, '1'));
  }
};

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
  EinstellungenText[Textslots.infofenster] = "000";
  SchemaErweitern();
  EXPECT_EQ(EinstellungenText[Textslots.infofenster], QString(60, '1'));
  EinstellungenText[Textslots.infofenster].clear();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[Textslots.infofenster], QString(60, '1'));
}

TEST_F(Erweiterung, EinFehlerLässtDieSchritteDavorInKraft) {
  DB.Execute("create table DIBVerschluss(ID COUNTER)");
  EinstellungenText[Textslots.infofenster] = "000";
  EXPECT_THROW(SchemaErweitern(), Datenbankfehler);
  EXPECT_EQ(wert("select Waben_je_Magazin from Bienenvolk"), "12");
  EXPECT_EQ(wert("select PTop from Standorte"), "250");
  EXPECT_EQ(wert("select PLeft from Standorte"), "0");
  EXPECT_EQ(DB.Felder("DIBVerschluss").size(), 1U);
  EXPECT_THROW(DB.Lesen("select Charge from Honigernte"), Datenbankfehler);
  EXPECT_EQ(EinstellungenText[Textslots.infofenster], "000");
  EXPECT_FALSE(QFile::exists(AppPfad + "Einstellungen.TV2"));
  EXPECT_EQ(DB.Schemastand(), 0);
}

TEST_F(Erweiterung, NachEinemFehlerGehtDerNächsteStartDortWeiter) {
  DB.Execute("create table DIBVerschluss(ID COUNTER)");
  EXPECT_THROW(SchemaErweitern(), Datenbankfehler);
  DB.Execute("drop table DIBVerschluss");
  SchemaErweitern();
  erwarteDenHeutigenStand();
}

// Earlier versions of the program committed each statement by itself.
TEST_F(Erweiterung, EineHalbeErweiterungWirdZuEndeGeführt) {
  DB.Execute("ALTER TABLE Bienenvolk ADD COLUMN Futterwaben INTEGER");
  SchemaErweitern();
  erwarteDenHeutigenStand();
}

TEST_F(Erweiterung, WasDieHalbeErweiterungSchonGesetztHatBleibt) {
  DB.Execute("ALTER TABLE Standorte ADD COLUMN PTop LONG");
  DB.Execute("update Standorte set PTop = 77");
  SchemaErweitern();
  EXPECT_EQ(wert("select PTop from Standorte"), "77");
}

TEST_F(Erweiterung, DieNummerAlleinMachtKeineDateiAktuell) {
  DB.setSchemastand(heutigerSchemastand());
  SchemaErweitern();
  erwarteDenHeutigenStand();
}

// Takes the steps of an upgrade on the file and is killed in the middle.
const Nebenprogramm abgeschossen("--erweitern", [](const QStringList& argumente) {
  Workspace bereich;
  Database db = bereich.OpenDatabase(argumente.first());
  db.Sammelschreiben([&db] {
    schemaschritteNehmen(db, {[](Umbau& umbau) {
                           schemaschritte().front()(umbau);
                           std::raise(SIGKILL);
                         }});
  });
  return 0;
});

TEST_F(Erweiterung, EineAbgeschosseneLässtNichtsUndDerNächsteStartHoltSieNach) {
  const QStringList vorher = beschreibung();
  DB.Close();
  Arbeitsbereich.Close();
  QProcess prozess;
  prozess.start(QCoreApplication::applicationFilePath(), {"--erweitern", DatenbankPfad});
  ASSERT_TRUE(prozess.waitForFinished(30000));
  ASSERT_EQ(prozess.exitStatus(), QProcess::CrashExit);
  DB = Arbeitsbereich.OpenDatabase(DatenbankPfad);
  EXPECT_EQ(beschreibung(), vorher);
  EXPECT_EQ(DB.Schemastand(), 0);
  SchemaErweitern();
  erwarteDenHeutigenStand();
}

// A later step, as the next version may bring it.
std::vector<Schemaschritt> mitWeiteren(QStringList& genommen) {
  std::vector<Schemaschritt> schritte = schemaschritte();
  schritte.push_back([&genommen](Umbau& umbau) {
    genommen << "Waage";
    umbau.feld("Gewichtsmessung", "Waage TEXT (20)", "''", "Gewichtsmessung7");
  });
  schritte.push_back([&genommen](Umbau& umbau) {
    genommen << "Eichung";
    umbau.tabelle("Waagen", "Name TEXT (20), ID COUNTER", {{"Waagen1", "Name"}});
    umbau.feld("Waagen", "Eichung DATETIME", "Null");
  });
  return schritte;
}

TEST_F(Erweiterung, JederSchrittLäuftEinmalUndInSeinerReihenfolge) {
  QStringList genommen;
  const auto schritte = mitWeiteren(genommen);
  EXPECT_TRUE(schemaschritteNehmen(DB, schritte));
  EXPECT_EQ(genommen, QStringList({"Waage", "Eichung"}));
  EXPECT_EQ(DB.Schemastand(), heutigerSchemastand() + 2);
  EXPECT_FALSE(schemaschritteNehmen(DB, schritte));
  EXPECT_EQ(genommen.size(), 2);
  EXPECT_EQ(DB.Felder("Waagen").size(), 3U);
}

TEST_F(Schemafall, EinNeuesFeldKommtInEineDateiVonHeute) {
  DatenbankAnlegen();
  DB.Execute("insert into Gewichtsmessung(Gewicht_kg) values (30)");
  QStringList genommen;
  EXPECT_FALSE(schemaschritteNehmen(DB, mitWeiteren(genommen)));
  EXPECT_EQ(wert("select count(*) from Gewichtsmessung where Waage = ''"), "1");
  EXPECT_EQ(wert("select count(*) from sqlite_master where name = 'Gewichtsmessung7'"), "1");
}

TEST_F(Schemafall, EinGescheiterterSchrittBehältDieNummerDavor) {
  DatenbankAnlegen();
  std::vector<Schemaschritt> schritte = schemaschritte();
  schritte.push_back([](Umbau&) { throw std::runtime_error("Waage"); });
  EXPECT_THROW(schemaschritteNehmen(DB, schritte), std::runtime_error);
  EXPECT_EQ(DB.Schemastand(), heutigerSchemastand());
}

TEST_F(Schemafall, EineNeueDatenbankWirdNichtErweitert) {
  DatenbankAnlegen();
  EXPECT_EQ(DB.Schemastand(), heutigerSchemastand());
  const QStringList vorher = beschreibung();
  SchemaErweitern();
  EXPECT_EQ(beschreibung(), vorher);
  EXPECT_FALSE(QFile::exists(AppPfad + "Einstellungen.TV2"));
}

// One that an earlier version has made whole bears no number yet.
TEST_F(Schemafall, EineVolleOhneNummerBekommtNurDieNummer) {
  DatenbankAnlegen();
  DB.Execute("insert into Bienenvolk(Volknr, Futterwaben, Belegstelle) values ('1', 5, null)");
  DB.setSchemastand(0);
  EinstellungenText[Textslots.infofenster] = "000";
  SchemaErweitern();
  EXPECT_EQ(DB.Schemastand(), heutigerSchemastand());
  EXPECT_EQ(wert("select Futterwaben from Bienenvolk"), "5");
  EXPECT_EQ(EinstellungenText[Textslots.infofenster], "000");
  EXPECT_FALSE(QFile::exists(AppPfad + "Einstellungen.TV2"));
}

TEST_F(Schemafall, EineDateiEinerNeuerenFassungBleibtWieSieIst) {
  DatenbankAnlegen();
  DB.setSchemastand(heutigerSchemastand() + 1);
  try {
    SchemaErweitern();
    ADD_FAILURE() << "kein Fehler";
  } catch (const Datenbankfehler& fehler) {
    EXPECT_TRUE(fehler.text().contains("neueren Fassung")) << fehler.what();
  }
  EXPECT_EQ(DB.Schemastand(), heutigerSchemastand() + 1);
}

}  // namespace
