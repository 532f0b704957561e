// Every shape of statement that the program gives to its database, run on a small operation. One
// row a shape; where the result says something, it stands beside it.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <optional>
#include <vector>

#include "platform/database/Datenbank.h"
#include "platform/database/Probebank.h"

namespace {

struct Fall {
  const char* name;
  QString anweisung;
  // The rows expected; none given: it only has to run.
  std::optional<QStringList> zeilen = std::nullopt;
};

QStringList zeilen(std::initializer_list<const char*> liste) {
  QStringList ergebnis;
  for (const char* zeile : liste) ergebnis += QString(zeile);
  return ergebnis;
}

const QStringList buchungstabellen = {
    "Stockkarte", "Honigernte",      "Wachsernte", "Pollenernte",    "Sonstigeernte", "Arbeiten",
    "Wanderung",  "Gewichtsmessung", "Behandlung", "Königinwechsel", "Notizen"};

const char* const listenfelder =
    "select Volknr, Volkname, Volkstärke, Magazine, Wabenanzahl, Honigwaben, Brutwaben, "
    "Pollenwaben, Drohnenwaben, Leerwaben, Mittelwände, Futterwaben, HW_verdeckelt, BW_Stift, "
    "BW_offen, BW_verdeckelt, Brutstand, Wabensitz, Sanftmut, Schwarmtrieb, Frühjahrsentw, "
    "Winterfestigkeit, Varroabefall, Belagert, Belegstelle, Zuchtbuchnr, L_Honigernte, "
    "L_Honigmenge_kg, Honigmenge_Gesamt, L_Behandlung, Standort, Königin_Nr, Königin_Farbe, "
    "Königin_Zugangsdatum, Futtervorrat_eigen, Futtervorrat_flüssig, Futtervorrat_Teig, Beuteart, "
    "Waben_je_Magazin, Bienenrasse, Volk_Zugangsdatum, Volk_Herkunft, Volk_Einkaufspreis, "
    "Akt_im_Bestand, Abgangsdatum, Abgangsgrund, Abnehmer, Volk_Verkaufspreis, Selektiert, ID "
    "from Bienenvolk";

const char* const stockkartenfelder =
    "select Datum, Volkstärke, Brutstand, Wabensitz, Sanftmut, Schwarmtrieb, Frühjahrsentw, "
    "Winterfestigkeit, Varroabefall, Belagert, Magazine, Waben, Honigwaben, Brutwaben, "
    "Pollenwaben, Drohnenwaben, Leerwaben, Mittelwände, Futterwaben, HW_verdeckelt, BW_Stift, "
    "BW_offen, BW_verdeckelt, Futter_flüssig_l, Futter_Teig_kg, Eigener_Futtervorrat, Volk_ID, "
    "Bemerkung, ID from Stockkarte";

// Colonies 1 to 3 are held, 4 has left, of 5 nobody ever said.
const char* const betrieb[] = {
    "insert into Bienenvolk(Volknr, Volkname, Standort, Akt_im_Bestand, Wabenanzahl, Mittelwände, "
    "Volk_Zugangsdatum, Selektiert, Beuteart, Abgangsgrund, Abnehmer) values "
    "('1', 'Anna', 'Wald', 'X', 10, 2, #12/24/2005#, 'X', 'Zander', '', ''), "
    "('2', 'Berta', 'Wald', 'X', 10, 3, #06/01/2006#, '', 'Dadant', '', ''), "
    "('10', 'Carla', 'Wiese', 'X', 8, Null, Null, '', 'zander', '', ''), "
    "('4', 'Dora', 'Wiese', '', 12, 0, #01/01/2004#, '', 'Zander', 'verkauft', 'Meier'), "
    "('5', 'Emma', Null, Null, Null, Null, Null, Null, Null, 'Winter', Null)",
    "insert into Honigernte(Datum, Menge_kg, Honigsorte, Qualität, Kosten, Honig_Wert, Zeit_h, "
    "Charge, Bemerkung, Volk_ID) values "
    "(#06/01/2006#, 10, 'Raps', 'gut', 5, 50, 1, 'R1', '', 1), "
    "(#07/15/2006#, 20, 'Linde', 'gut', 7, 120, 2, 'L1', 'nass', 1), "
    "(#07/15/2006#, 12.5, 'Linde', 'sehr gut', 3, 75, 0.5, 'L1', '', 2), "
    "(#06/01/2005#, 8, 'Raps', 'gut', 4, 40, 1, '', '', 1), "
    "(#06/01/2006#, 100, 'Wald', '', 0, 0, 0, '', '', 99)",
    "insert into Wanderung(Datum, Standort, Standortprämie, Prämie_erhalten, Kosten, Volk_ID) "
    "values "
    "(#05/01/2006#, 'Raps am Berg', 20, 'J', 6, 1), (#07/01/2006#, 'Wald', 30, 'N', 6, 1), "
    "(#07/01/2006#, 'Wald', 25, 'J', 6, 2)",
    "insert into Arbeiten(Datum, Arbeitsart, Zeit_h, Kosten, Volk_ID) values "
    "(#04/01/2006#, 'Durchsicht', 1.5, 3, 1), (#04/02/2006#, 'Durchsicht', 0.5, 1, 2), "
    "(#04/01/2005#, 'Einwinterung', 2, 4, 1)",
    "insert into Stockkarte(Datum, Volkstärke, Brutstand, Waben, Volk_ID) values "
    "(#03/01/2006#, 2.5, 3, 8, 1), (#04/01/2006#, 3.5, 4, 10, 1), (#04/01/2006#, 1, 2, 9, 1)",
    "insert into Behandlung(Datum, Behandlungsart, Mittel, Menge_g, Anz_Varroen, Volk_ID) values "
    "(#08/01/2006#, 'Varroa', 'Ameisensäure', 20, 30, 1), "
    "(#12/20/2006#, 'Varroa', 'Oxalsäure', 30, Null, 1)",
    "insert into Termine(Datum, Termin, Erledigt, Volk_ID) values "
    "(#05/01/2006#, 'Schwarmkontrolle', 'N', 1), (#05/01/2006#, 'Schwarmkontrolle', 'J', 2), "
    "(#05/10/2006#, 'Schwarmkontrolle', 'N', 2), (#08/01/2006#, 'Waben schmelzen', 'N', 0), "
    "(#05/01/2006#, 'Fütterung', 'N', 4)",
    "insert into Arbeitsplanoptionen(Arbeitsart, Startzeitraum, Wiederholungsfrist_Tage, "
    "Endzeitraum, Volkabhängig, Auto_erledigt_Buchung, Auto_erledigt_Arbeitsart) values "
    "('Schwarmkontrolle', '01.05', 9, '30.06', 'J', '', ''), "
    "('Honigernte', '01.06', 14, '31.08', 'J', 'Honigernte', '')",
    "insert into Pflanzen(Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe) values "
    "('Efeu', '15.09.2006', '20.11.2006', 5, 2)",
    "insert into Pflanzen(Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe) values "
    "('Haselnuss', '15.01.2006', '10.03.2006', 0, 4)",
    "insert into Standorte(Standort, Zusatzortshinweis, Max_Völker, PTop, PLeft) values "
    "('Wiese', '', 5, 250, 0), ('Wald', 'am Bach', 10, 10, 20)",
    "insert into Standorte_Pflanzen(Pflanze, Entfernung_m, Proz_Anteil, Standort_Kennung) values "
    "('Haselnuss', 100, 60, 2), ('Efeu', 300, 40, 2), ('efeu', 50, 10, 1)",
    "insert into Honiglager(Datum, Produkt, Zugang, Abgang, Charge, EVK_ID) values "
    "(#06/01/2006#, 'Raps', 10, 0, 'R1', 0), (#07/15/2006#, 'Linde', 32.5, 0, 'L1', 0), "
    "(#08/01/2006#, 'Raps', 0, 4, 'R1', 1), (#08/02/2006#, 'raps', 5, 0, 'R2', Null)",
    "insert into Verkauf(Datum, Produkt, Qualität, Abnehmer, Menge, Einheit, Einnahmen, Charge) "
    "values (#08/01/2006#, 'Raps', 'gut', 'Meier', 4, 'kg', 32, 'R1'), "
    "(#08/05/2006#, 'Kerzen', '', 'Schulz', 3, 'St', 9, ''), "
    "(#09/01/2005#, 'Raps', 'gut', 'Meier', 1, 'kg', 8, '')",
    "insert into Einkauf(Datum, Produkt, Lieferant, Menge, Einheit, Ausgaben) values "
    "(#03/01/2006#, 'Gläser', 'Glashaus', 100, 'St', 40)",
    "insert into Kunden(Kundenname, Lieferant, Ort) values ('Meier', 'N', 'Ulm'), "
    "('Glashaus', 'J', 'Bonn'), ('Schulz', 'N', 'ulm')",
    "insert into Lagerartikel(Artikel, Bestand, Mindestbestand) values ('Zucker', 5, 10), "
    "('Gläser', 10, 10), ('Deckel', 0, 0)",
    "insert into Lagerbuchungen(Datum, Artikel, Eingang, Ausgang, An_Von) values "
    "(#03/01/2006#, 'Zucker', 20, 0, 'Glashaus'), (#09/01/2006#, 'Zucker', 0, 15, ''), "
    "(#09/01/2006#, 'Gläser', 10, 0, Null)",
    "insert into Wetterdaten(Datum, Wetter, Temperatur, Niederschlag_mm, Windrichtung, Windstärke) "
    "values (#05/01/2006#, 'sonnig', 20, 0, 'W', 2), (#05/02/2006#, 'Regen', 11, 12, 'W', 5), "
    "(#05/03/2005#, 'sonnig', 23, Null, 'SO', 1)",
    "insert into Zuchtbuch(Jahr, Zuchtbuchnr, Rasse, Sanftmut, LJ1_Summe) values "
    "('2005', '7', 'Carnica', 3, 20), ('2006', '12', 'Carnica', 4, Null), "
    "('2006', '3', 'Buckfast', 2, 30)",
    "insert into DIBVerschluss(Verschlussnr, Charge, Kunde) values ('A00002', '', ''), "
    "('A00001', 'R1', 'Meier')",
    "insert into Inventar(Objekt, Kaufpreis, Erstes_Jahr, Letztes_Jahr) values "
    "('Schleuder', 400, 2005, 2010), ('Auto', 9000, 2000, 2006)",
};

class Anweisungen : public testing::Test {
 protected:
  Anweisungen() {
    bank.legeTabellenAn();
    for (const char* anweisung : betrieb) bank.lies(anweisung);
    Funktionen::setzeUhr([] { return QDateTime(QDate(2007, 1, 15), QTime(12, 0)); });
  }
  ~Anweisungen() override { Funktionen::setzeUhr({}); }

  void pruefe(const std::vector<Fall>& faelle) {
    for (const Fall& fall : faelle) {
      try {
        const QStringList ergebnis = bank.lies(fall.anweisung);
        if (fall.zeilen) {
          EXPECT_EQ(ergebnis.join('\n').toStdString(), fall.zeilen->join('\n').toStdString())
              << fall.name << ": " << fall.anweisung.toStdString();
        }
      } catch (const Datenbankfehler& fehler) {
        ADD_FAILURE() << fall.name << ": " << fehler.what();
      }
    }
  }

  Probebank bank;
};

}  // namespace

TEST_F(Anweisungen, Programmkern) {
  const QString liste = listenfelder;
  pruefe({
      {"Fällige Termine",
       "select top 1 * from Termine where Datum <= #05/02/2006# and Erledigt = 'N'",
       zeilen({"2006-05-01|Schwarmkontrolle|N|1|1"})},
      {"Keine fälligen Termine",
       "select top 1 * from Termine where Datum <= #04/30/2006# and Erledigt = 'N'", QStringList()},
      {"Bestandsliste", liste + " where Akt_im_Bestand = 'X'"},
      {"Abgangsliste", liste + " where Akt_im_Bestand <> 'X'"},
      {"Gesamtliste", liste},
      {"Gesamtliste sortiert", liste + " order by Standort, Volknr"},
      {"Sortierte Bestandsliste",
       "select Volknr, ID from Bienenvolk where Akt_im_Bestand = 'X' order by Volknr",
       zeilen({"1|1", "10|3", "2|2"})},
      {"Zwei Sortierungen",
       "select Volknr from Bienenvolk where Akt_im_Bestand = 'X' order by Standort, Volkname",
       zeilen({"1", "2", "10"})},
      {"Anzahl im Bestand", "select count(*) as anzahl from Bienenvolk where Akt_im_Bestand = 'X'",
       zeilen({"3"})},
      {"Anzahl abgegangen, auch nie gesagt",
       "select count(*) as anzahl from Bienenvolk where Akt_im_Bestand <> 'X'", zeilen({"2"})},
      {"Letzte Honigernte", "select top 1 * from Honigernte where Volk_ID = 1 order by Datum DESC",
       zeilen({"2006-07-15|20.0|Linde|gut|2.0|7.0|120.0|L1|nass|1|2"})},
      {"Honig des Jahres",
       "select sum(Menge_kg) as xsumme from Honigernte where Datum >= #01/01/2006# and "
       "Datum <= #12/31/2006# and Volk_ID = 1",
       zeilen({"30.0"})},
      {"Honig insgesamt", "select sum(Menge_kg) as xsumme from Honigernte where Volk_ID = 1",
       zeilen({"38.0"})},
      {"Honig eines Volkes ohne Ernte",
       "select sum(Menge_kg) as xsumme from Honigernte where Volk_ID = 3", zeilen({"<>"})},
      {"Völker im Bestand", "select ID from Bienenvolk where Akt_im_Bestand = 'X'",
       zeilen({"1", "2", "3"})},
      {"Nummer mit Leerzeichen davor", "select * from Stockkarte where Volk_ID = 7", QStringList()},
      {"Stockkarten", QString(stockkartenfelder) + " where Volk_ID = 1 order by Datum DESC"},
  });
  for (const QString& tabelle : buchungstabellen) {
    pruefe({
        {"Buchungen eines Volkes",
         "select * from " + tabelle + " where Volk_ID = 1 order by Datum DESC"},
        {"Buchungen seit Jahresbeginn", "select * from " + tabelle +
                                            " where Volk_ID = 1 and Datum >= #01/01/2006# "
                                            "order by Datum DESC"},
        {"Neueste Buchung",
         "select top 1 * from " + tabelle + " where Volk_ID = 1 order by Datum DESC"},
    });
  }
}

TEST_F(Anweisungen, DatenhaltungUndSchema) {
  pruefe({
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

TEST_F(Anweisungen, JedeTabelleNimmtEineZeileUndGibtSieWieder) {
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

TEST_F(Anweisungen, SchemaErweitern) {
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

TEST_F(Anweisungen, Auswahllisten) {
  const std::vector<std::pair<const char*, const char*>> listen = {
      {"Bienenvolk", "Volkname"},
      {"Bienenvolk", "Bienenrasse"},
      {"Standorte", "Standort"},
      {"Bienenvolk", "Königin_Nr"},
      {"Bienenvolk", "Königin_Farbe"},
      {"Bienenvolk", "Beuteart"},
      {"Bienenvolk", "Volk_Herkunft"},
      {"Bienenvolk", "Abgangsgrund"},
      {"Bienenvolk", "Abnehmer"},
      {"Bienenvolk", "Belegstelle"},
      {"Bienenvolk", "Standort"},
      {"Bienenvolk", "Volknr"},
      {"Termine", "Termin"},
      {"Honigernte", "Honigsorte"},
      {"Honigernte", "Qualität"},
      {"Honigernte", "Bemerkung"},
      {"Arbeiten", "Arbeitsart"},
      {"Arbeiten", "Bemerkung"},
      {"Behandlung", "Behandlungsart"},
      {"Behandlung", "Mittel"},
      {"Behandlung", "Zulassungsnr"},
      {"Behandlung", "Bemerkung"},
      {"Stockkarte", "Bemerkung"},
      {"Wanderung", "Bemerkung"},
      {"Gewichtsmessung", "Bemerkung"},
      {"Einkauf", "Produkt"},
      {"Einkauf", "Qualität"},
      {"Honiglager", "Charge"},
      {"Verkauf", "Produkt"},
      {"Verkauf", "Qualität"},
      {"Honiglager", "Produkt"},
      {"Honiglager", "Bemerkung"},
      {"Lagerbuchungen", "An_Von"},
      {"Kunden", "Ort"},
      {"Kunden", "Bank"},
      {"Inventar", "Erhalten_von"},
      {"Inventar", "Ausgeliehen_an"},
      {"Inventar", "Bemerkung"},
      {"DIBVerschluss", "Charge"},
      {"DIBVerschluss", "Kunde"},
      {"DIBVerschluss", "Bemerkung"},
      {"DIBVerschluss", "Verschlussnr"},
      {"Pflanzen", "Pflanze"},
      {"Standorte", "Zusatzortshinweis"},
      {"Standorte", "Klima"},
      {"Standorte", "Flugrichtung"},
      {"Wetterdaten", "Wetter"},
      {"Wetterdaten", "Windrichtung"},
      {"Wetterdaten", "Bemerkung"},
      {"Zuchtbuch", "Rasse"},
      {"Zuchtbuch", "Jahr"},
      {"Zuchtbuch", "Anpaarung"},
      {"Königinwechsel", "Herkunft"},
      {"Königinwechsel", "Zuchtindex"},
      {"Pollenernte", "Qualität"},
      {"Wachsernte", "Qualität"},
      {"Sonstigeernte", "Ernteart"}};
  for (const auto& [tabelle, feld] : listen) {
    const QString t = tabelle;
    const QString f = feld;
    const QString erwartet = bank.roh("select " + f + " from (select " + f + ", min(ID) from " + t +
                                      " group by " + f + ") order by " + f)
                                 .join('\n');
    EXPECT_EQ(bank.lies("select distinct " + f + " from " + t + " order by " + f).join('\n'),
              erwartet)
        << tabelle << "." << feld;
  }
  pruefe({
      {"Beutearten, groß oder klein", "select distinct Beuteart from Bienenvolk order by Beuteart",
       zeilen({"<>", "Dadant", "Zander"})},
      {"Orte", "select distinct Ort from Kunden order by Ort", zeilen({"Bonn", "Ulm"})},
      {"Lieferanten",
       "select distinct Kundenname from Kunden where Lieferant = 'J' order by Kundenname",
       zeilen({"Glashaus"})},
      {"Abnehmer",
       "select distinct Kundenname from Kunden where Lieferant = 'N' order by Kundenname",
       zeilen({"Meier", "Schulz"})},
      {"Arbeitsarten der Optionen",
       "select Arbeitsart from Arbeitsplanoptionen order by Arbeitsart",
       zeilen({"Honigernte", "Schwarmkontrolle"})},
      {"Standortnamen", "select Standort from Standorte order by Standort",
       zeilen({"Wald", "Wiese"})},
      {"Artikelnamen", "select Artikel from Lagerartikel order by Artikel",
       zeilen({"Deckel", "Gläser", "Zucker"})},
  });
}

TEST_F(Anweisungen, VoelkerUndSelektion) {
  pruefe({
      {"Alle Völker", "select * from Bienenvolk"},
      {"Letzte Wanderung", "select top 1 * from Wanderung where Volk_ID = 1 order by Datum DESC",
       zeilen({"2006-07-01|Wald|<>|6.0|30.0|N|<>|1|2"})},
      {"Selektion aufheben", "update Bienenvolk set Selektiert = ''"},
      {"Niemand ist selektiert", "select count(*) as n from Bienenvolk where Selektiert = 'X'",
       zeilen({"0"})},
      {"Niemand ist unentschieden", "select count(*) as n from Bienenvolk where Selektiert = Null",
       zeilen({"0"})},
      {"Flaggen lesen", "select Selektiert, ID from Bienenvolk",
       zeilen({"|1", "|2", "|3", "|4", "|5"})},
      {"Termine eines Volkes löschen", "delete from termine where Volk_ID = 4"},
      {"Seine Termine sind weg", "select count(*) as n from Termine", zeilen({"4"})},
  });
  for (const QString& tabelle : buchungstabellen + QStringList{"Termine"}) {
    pruefe({{"Buchungen löschen", "delete from " + tabelle + " where Volk_ID = 1"},
            {"Keine mehr da", "select count(*) as n from " + tabelle + " where Volk_ID = 1",
             zeilen({"0"})}});
  }
}

TEST_F(Anweisungen, Buchungen) {
  pruefe({
      {"Liste der Buchungsart", QString(stockkartenfelder) +
                                    " where Volk_ID = 1 and Datum >= #01/01/2006# and Datum <= "
                                    "#12/31/2006# order by Datum"},
      {"Vorschlag aus der letzten Behandlung",
       "select top 1 * from Behandlung where Behandlungsart = 'varroa' order by Datum DESC",
       zeilen({"2006-12-20|Varroa|Oxalsäure|30|<>|<>|<>|<>|<>|<>|1|2"})},
      {"Vorschlag aus dem Mittel",
       "select top 1 * from Behandlung where Mittel = 'Ameisensäure' order by Datum DESC"},
      {"Letzter Preis der Sorte",
       "select top 1 * from Honigernte where Honigsorte = 'raps' and Qualität = 'gut' order by "
       "Datum DESC",
       zeilen({"2006-06-01|10.0|Raps|gut|1.0|5.0|50.0|R1||1|1"})},
      {"Letzter Wachspreis",
       "select top 1 * from Wachsernte where Qualität = '' order by Datum DESC"},
      {"Letzter Pollenpreis",
       "select top 1 * from Pollenernte where Qualität = 'x' order by Datum DESC"},
      {"Letzter Preis der Ernteart",
       "select top 1 * from Sonstigeernte where Ernteart = 'Met' and Qualität = '' order by Datum "
       "DESC"},
      {"Die eine Buchung", "select top 1 * from Honigernte where Volk_ID = 1 and ID = 2"},
      {"Optionen, die eine Buchung erledigt",
       "select * from Arbeitsplanoptionen where Auto_erledigt_Buchung = 'Honigernte'",
       zeilen({"Honigernte|01.06|31.08|14|J|Honigernte||2"})},
      {"Optionen, die eine Arbeit erledigt",
       "select * from Arbeitsplanoptionen where Auto_erledigt_Arbeitsart = 'Durchsicht'",
       QStringList()},
      {"Termine erledigen",
       "update Termine set Erledigt = 'J' where Termin = 'SCHWARMKONTROLLE' and Datum <= "
       "#05/05/2006# "
       "and Volk_ID = 1"},
      {"Nur der eine ist erledigt", "select ID from Termine where Erledigt = 'J' order by ID",
       zeilen({"1", "2"})},
      {"Leere Zeilen zum Anfügen", "select * from Honiglager where ID = 0", QStringList()},
      {"Neueste Stockkarte, bei gleichem Tag die erste",
       "select top 1 * from Stockkarte where Volk_ID = 1 order by Datum DESC"},
      {"Deren Volkstärke",
       "select top 1 Volkstärke from Stockkarte where Volk_ID = 1 order by Datum DESC",
       zeilen({"3.5"})},
      {"Letzte Behandlung",
       "select top 1 Datum from Behandlung where Volk_ID = 1 order by Datum DESC",
       zeilen({"2006-12-20"})},
      {"Letzter Königinwechsel",
       "select top 1 * from Königinwechsel where Volk_ID = 1 order by Datum DESC", QStringList()},
  });
}

TEST_F(Anweisungen, Arbeitsplanung) {
  const QString voelkertermine =
      "select Datum, Termin, Erledigt, Volknr, Volkname, Standort, Volk_ID, Termine.ID from "
      "Bienenvolk, Termine where Volk_ID = Bienenvolk.ID";
  pruefe({
      {"Optionen", "select * from Arbeitsplanoptionen order by Arbeitsart"},
      {"Name der Option schon da",
       "select Arbeitsart from Arbeitsplanoptionen where Arbeitsart = 'honigernte' and ID <> 1",
       zeilen({"Honigernte"})},
      {"Option zum Ändern", "select top 1 * from Arbeitsplanoptionen where ID = 2"},
      {"Option nach Nummer", "select * from Arbeitsplanoptionen where ID = 2"},
      {"Letzte Buchung seit der Schwelle",
       "select top 1 Datum from Honigernte where Volk_ID = 1 and Datum >= #07/01/2006# order by "
       "Datum DESC",
       zeilen({"2006-07-15"})},
      {"Letzte Arbeit seit der Schwelle",
       "select top 1 Datum from Arbeiten where Arbeitsart = 'Durchsicht' and Volk_ID = 1 and Datum "
       ">= "
       "#01/01/2006# order by Datum DESC",
       zeilen({"2006-04-01"})},
      {"Optionen je Volk", "select ID from Arbeitsplanoptionen where Volkabhängig = 'J'",
       zeilen({"1", "2"})},
      {"Termine des Jahres",
       "select ID from Termine where Volk_ID <> 0 and Datum >= #01/01/2006# and Datum <= "
       "#12/31/2006# "
       "order by ID",
       zeilen({"1", "2", "3", "5"})},
      {"Termine der Völker",
       voelkertermine + " and Datum >= #05/01/2006# and Datum <= #12/31/2006# and Termin = "
                        "'Schwarmkontrolle' and Erledigt = 'N' order by Datum",
       zeilen({"2006-05-01|Schwarmkontrolle|N|1|Anna|Wald|1|1",
               "2006-05-10|Schwarmkontrolle|N|2|Berta|Wald|2|3"})},
      {"Termine eines Volkes", voelkertermine + " and Volk_ID = 2 order by Datum",
       zeilen({"2006-05-01|Schwarmkontrolle|J|2|Berta|Wald|2|2",
               "2006-05-10|Schwarmkontrolle|N|2|Berta|Wald|2|3"})},
      {"Allgemeine Termine",
       "select Datum, Termin, Erledigt, Volk_ID, Termine.ID from Termine where Volk_ID = 0 and "
       "Datum >= "
       "#01/01/2006# order by Datum",
       zeilen({"2006-08-01|Waben schmelzen|N|0|4"})},
      {"Volk zur Nummer", "select Volknr, ID from Bienenvolk where Volknr = '2'", zeilen({"2|2"})},
      {"Nummer zum Volk", "select Volknr from Bienenvolk where ID = 3", zeilen({"10"})},
      {"Volk im Bestand", "select ID from Bienenvolk where Volknr = '4' and Akt_im_Bestand = 'X'",
       QStringList()},
      {"Doppelter Termin",
       "select Termin from Termine where Datum = #05/01/2006# and Termin = 'fütterung' and Volk_ID "
       "= 4 "
       "and ID <> 1",
       zeilen({"Fütterung"})},
      {"Völker am Standort", "select ID from Bienenvolk where Standort = 'WIESE'",
       zeilen({"3", "4"})},
      {"Starttermine der Völker",
       "select Datum, Termin, Volknr, Volkname, Standort, Termine.ID from Termine, Bienenvolk "
       "where Datum "
       "<= #05/05/2006# and Bienenvolk.ID = Volk_ID and Erledigt = 'N'"},
      {"Allgemeine Starttermine",
       "select Datum, Termin, ID from Termine where Datum <= #12/31/2006# and Volk_ID = 0 and "
       "Erledigt = "
       "'N' order by Datum",
       zeilen({"2006-08-01|Waben schmelzen|4"})},
      {"Termine am Standort",
       "select Datum, Termin, Standort, Volk_ID, Termine.ID from Termine, Bienenvolk where Datum "
       "<= "
       "#12/31/2006# and Bienenvolk.ID = Volk_ID and Erledigt = 'N' and Standort = 'Wiese' and "
       "Termin = "
       "'Fütterung'",
       zeilen({"2006-05-01|Fütterung|Wiese|4|5"})},
      {"Termine gruppiert",
       "select Standort, Datum, Termin, count(*) as Anz_Völker from Termine, Bienenvolk where "
       "Datum <= "
       "#12/31/2006# and Bienenvolk.ID = Volk_ID and Erledigt = 'N' group by Standort, Datum, "
       "Termin",
       zeilen({"Wald|2006-05-01|Schwarmkontrolle|1", "Wald|2006-05-10|Schwarmkontrolle|1",
               "Wiese|2006-05-01|Fütterung|1"})},
      {"Arbeitsplan",
       "select Datum, Volknr, Volkname, Standort, Termin from Bienenvolk, Termine where Volk_ID = "
       "Bienenvolk.ID and Erledigt = 'N' and Akt_im_Bestand = 'X' and Datum >= #01/01/2006# and "
       "Datum <= "
       "#12/31/2006# order by Volkname, Volknr",
       zeilen({"2006-05-01|1|Anna|Wald|Schwarmkontrolle",
               "2006-05-10|2|Berta|Wald|Schwarmkontrolle"})},
      {"Einen Termin erledigen", "UPDATE Termine SET Erledigt = 'J' where ID = 3"},
      {"Offene Termine der Reihe löschen",
       "delete from Termine where Erledigt = 'N' and Volk_ID = 1 and Termin = 'Schwarmkontrolle'"},
      {"Termine zum Anfügen", "select * from Termine where Volk_ID = -1", QStringList()},
      {"Alle bis heute erledigen", "UPDATE Termine SET Erledigt = 'J' where Datum <= #05/31/2006#"},
      {"Umbenennen", "UPDATE Termine SET Termin = 'Wachs' where Termin = 'Waben schmelzen'"},
      {"Was übrig ist", "select Termin, Erledigt, ID from Termine",
       zeilen({"Schwarmkontrolle|J|2", "Schwarmkontrolle|J|3", "Wachs|N|4", "Fütterung|J|5"})},
      {"Erledigte löschen", "delete from Termine where Erledigt = 'J'"},
      {"Termine eines Namens löschen", "delete from Termine where Termin = 'Wachs'"},
      {"Termine des Jahres löschen",
       "delete from Termine where Volk_ID <> 0 and Datum >= #01/01/2006# and Datum <= "
       "#12/31/2006#"},
      {"Nichts bleibt", "select count(*) as n from Termine", zeilen({"0"})},
  });
}

TEST_F(Anweisungen, Arbeitszeiten) {
  const auto jahressumme = [](const QString& einschraenkung) {
    return "select sum(Zeit_h) as summe from Arbeiten, Bienenvolk" + einschraenkung +
           " and Datum >= #01/01/2006# and Datum <= #12/31/2006# and Volk_ID = Bienenvolk.ID";
  };
  pruefe({
      {"Im Bestand", jahressumme(" where Bienenvolk.Akt_im_Bestand = 'X'"), zeilen({"2.0"})},
      {"Alle Völker", jahressumme(" where Bienenvolk.Volknr IS NOT NULL"), zeilen({"2.0"})},
      {"Selektierte", jahressumme(" where Bienenvolk.Selektiert = 'X'"), zeilen({"1.5"})},
      {"Nicht im Bestand", jahressumme(" where Bienenvolk.Akt_im_Bestand <> 'X'"), zeilen({"<>"})},
      {"Aktuelles Volk", jahressumme(" where Bienenvolk.ID = 2"), zeilen({"0.5"})},
      {"Ein Volk über Jahre",
       "select sum(Zeit_h) as summe from Arbeiten where Volk_ID = 1 and Datum >= #01/01/2005# and "
       "Datum "
       "<= #12/31/2006#",
       zeilen({"3.5"})},
      {"Die Völker dazu",
       "select Volknr, Volkname, Standort, ID from Bienenvolk where Bienenvolk.Akt_im_Bestand <> "
       "'X'",
       zeilen({"4|Dora|Wiese|4", "5|Emma|<>|5"})},
  });
}

TEST_F(Anweisungen, Austausch) {
  for (const QString& tabelle : buchungstabellen) {
    pruefe({
        {"Buchungen ab einem Tag",
         "select * from " + tabelle +
             " where Volk_ID = 1 and Datum >= #01/01/2006# order by Datum DESC"},
        {"Anfügen", "select * from " + tabelle + " where id = 0", QStringList()},
        {"Schon eingelesen",
         "select datum from " + tabelle + " where Volk_ID = 1 and datum = #01/01/1999#",
         QStringList()},
    });
  }
  pruefe({
      {"Termine zum Mitnehmen",
       "select Datum, Volknr, Volkname, Termin, Standort, Erledigt, Termine.ID from Bienenvolk, "
       "Termine "
       "where Akt_im_Bestand = 'X' and Erledigt = 'N' and Volk_ID = Bienenvolk.ID and Datum >= "
       "#04/20/2006# and Datum <= #06/01/2006# order by Standort, Volknr",
       zeilen({"2006-05-01|1|Anna|Schwarmkontrolle|Wald|N|1",
               "2006-05-10|2|Berta|Schwarmkontrolle|Wald|N|3"})},
      {"Völker zum Mitnehmen",
       "select * from Bienenvolk where Akt_im_Bestand = 'X' order by Standort, Volknr"},
      {"Volk der Datei", "select ID from Bienenvolk where ID = 0001", zeilen({"1"})},
      {"Offener Termin", "select * from Termine where Erledigt = 'N' and ID = 3",
       zeilen({"2006-05-10|Schwarmkontrolle|N|2|3"})},
      {"Arbeit schon eingelesen",
       "select datum from Arbeiten where Volk_ID = 1 and Arbeitsart = 'durchsicht' and datum = "
       "#04/01/2006#",
       zeilen({"2006-04-01"})},
      {"Behandlung schon eingelesen",
       "select datum from Behandlung where Volk_ID = 1 and Behandlungsart = 'Varroa' and datum = "
       "#08/01/2006#",
       zeilen({"2006-08-01"})},
      {"Honig insgesamt", "select sum(Menge_kg) as summe from Honigernte where Volk_ID = 2",
       zeilen({"12.5"})},
  });
}

TEST_F(Anweisungen, HandelUndLager) {
  pruefe({
      {"Einkäufe", "select * from Einkauf order by Datum"},
      {"Verkäufe", "select * from Verkauf order by Datum"},
      {"Honiglager", "select * from Honiglager order by Datum"},
      {"Einkauf ändern", "select top 1 * from Einkauf where ID = 1"},
      {"Verkauf anfügen", "select top 1 * from Verkauf"},
      {"Kunde da", "select * from Kunden where Kundenname = 'MEIER'"},
      {"Bewegung zum Verkauf", "select * from honiglager where evk_id = 1 and Zugang = 0",
       zeilen({"2006-08-01|Raps|0.0|4.0|R1|<>|<>|1|3"})},
      {"Bewegung zum Einkauf", "select * from honiglager where evk_id = 1 and Abgang = 0",
       QStringList()},
      {"Bestand nach Produkt und Charge",
       "select Produkt, Charge, sum(Zugang - Abgang) as Summe, count(*) as Anzahl, sum(Zugang) as "
       "Zugänge, sum(Abgang) as Abgänge from Honiglager group by Produkt, Charge",
       zeilen({"Linde|L1|32.5|1|32.5|0.0", "Raps|R1|6.0|2|10.0|4.0", "raps|R2|5.0|1|5.0|0.0"})},
      {"Ausgaben", "select sum(Ausgaben) as summe from Einkauf", zeilen({"40.0"})},
      {"Einnahmen", "select sum(Einnahmen) as summe from Verkauf", zeilen({"49.0"})},
      {"Bewegung löschen",
       "delete from Honiglager where Datum = #08/01/2006# and Produkt = 'Raps' and Abgang <> 0 and "
       "EVK_ID = 1"},
      {"Sie ist weg", "select ID from Honiglager", zeilen({"1", "2", "4"})},
      {"Artikel", "select * from Lagerartikel order by Artikel"},
      {"Lagerbuchungen", "select * from Lagerbuchungen order by Datum, Artikel"},
      {"Artikel doppelt", "select Artikel from Lagerartikel where Artikel = 'gläser' and ID <> 1",
       zeilen({"Gläser"})},
      {"Buchungen listen",
       "select Datum, Artikel, Eingang from Lagerbuchungen where ID <> 0 and Datum >= #01/01/2006# "
       "and "
       "Datum <= #12/31/2006# and Artikel = 'Zucker' and An_Von = 'Glashaus' order by Eingang DESC",
       zeilen({"2006-03-01|Zucker|20.0"})},
      {"Nach Partner",
       "select An_Von, count(*) as Anzahl, sum(Eingang) as Ein, sum(Ausgang) as Aus, "
       "sum(Eingang-Ausgang) as Gesamt from Lagerbuchungen where An_Von <> '' and Datum >= "
       "#01/01/2006# "
       "and Datum <= #12/31/2006# group by An_Von",
       zeilen({"Glashaus|1|20.0|0.0|20.0"})},
      {"Nach Artikel",
       "select Artikel, count(*) as Anzahl, sum(Eingang) as Ein, sum(Ausgang) as Aus, "
       "sum(Eingang-Ausgang) as Gesamt from Lagerbuchungen where Artikel <> '' group by Artikel",
       zeilen({"Gläser|1|10.0|0.0|10.0", "Zucker|2|20.0|15.0|5.0"})},
      {"Bestandsliste des Lagers", "select * from Lagerartikel order by Artikel",
       zeilen({"Deckel|0.0|0.0|3", "Gläser|10.0|10.0|2", "Zucker|5.0|10.0|1"})},
      {"Unter dem Mindestbestand",
       "select * from Lagerartikel where Mindestbestand > 0 and Bestand < Mindestbestand order by "
       "Artikel",
       zeilen({"Zucker|5.0|10.0|1"})},
      {"Kunden", "select * from Kunden order by Kundenname"},
      {"Kunde doppelt", "select Kundenname from Kunden where Kundenname = 'Meier' and ID <> 1",
       QStringList()},
      {"Felder der Kunden", "select * from Kunden where ID = 0", QStringList()},
      {"Kundenliste", "select Kundenname, Ort from Kunden  order by Ort DESC",
       zeilen({"Meier|Ulm", "Schulz|ulm", "Glashaus|Bonn"})},
      {"Inventar", "select * from Inventar order by Objekt"},
      {"Inventar doppelt", "select Objekt from Inventar where Objekt = 'auto' and ID <> 1",
       zeilen({"Auto"})},
      {"Inventarliste", "select Objekt,Kaufpreis from Inventar  order by Kaufpreis DESC",
       zeilen({"Auto|9000.0", "Schleuder|400.0"})},
      {"Verschlüsse", "select * from DIBVerschluss order by Verschlussnr"},
      {"Verschlüsse listen",
       "select Verschlussnr, Charge, Kunde, Datum, Bemerkung from DIBVerschluss where ID <> 0 and "
       "Charge "
       "= 'R1' and Kunde = 'Meier' order by Verschlussnr, Charge, Kunde, Datum",
       zeilen({"A00001|R1|Meier|<>|<>"})},
      {"Verschlüsse bis zu einem Tag",
       "select Verschlussnr, Charge, Kunde, Datum, Bemerkung from DIBVerschluss where ID <> 0 and "
       "Datum "
       ">= #01/01/2006# and Datum <= #12/31/2006# order by Verschlussnr, Charge, Kunde, Datum",
       QStringList()},
      {"Verschlüsse löschen", "delete from DIBVerschluss where ID =  1 or ID =  2 or ID =  3"},
      {"Sie sind weg", "select count(*) as n from DIBVerschluss", zeilen({"0"})},
  });
}

TEST_F(Anweisungen, HandelAuswerten) {
  const QString zeit = " where Datum >= #01/01/2006# and Datum <= #12/31/2006#";
  pruefe({
      {"Verkäufe einzeln",
       "select Datum, Produkt, Qualität, Charge, Abnehmer, Menge, Einheit, Einnahmen from "
       "Verkauf " +
           zeit + " order by Datum",
       zeilen(
           {"2006-08-01|Raps|gut|R1|Meier|4.0|kg|32.0", "2006-08-05|Kerzen|||Schulz|3.0|St|9.0"})},
      {"Nach Produkt",
       "select Produkt, count(*) as Anzahl, sum(Menge) as S_Menge, avg(Menge) as D_Menge, "
       "sum(Einnahmen) as Einnahme from Verkauf" +
           zeit + " group by Produkt",
       zeilen({"Kerzen|1|3.0|3.0|9.0", "Raps|1|4.0|4.0|32.0"})},
      {"Nach Qualität",
       "select Qualität, count(*) as Anzahl, sum(Menge) as S_Menge, avg(Menge) as D_Menge, "
       "sum(Einnahmen) as Einnahme from Verkauf group by Qualität",
       zeilen({"|1|3.0|3.0|9.0", "gut|2|5.0|2.5|40.0"})},
      {"Nach Abnehmer",
       "select Abnehmer , count(*) as Anzahl, sum(Menge) as S_Menge, avg(Menge) as D_Menge, "
       "sum(Einnahmen) as Einnahme from Verkauf group by Abnehmer",
       zeilen({"Meier|2|5.0|2.5|40.0", "Schulz|1|3.0|3.0|9.0"})},
      {"Einkauf nach Lieferant",
       "select Lieferant , count(*) as Anzahl, sum(Menge) as S_Menge, avg(Menge) as D_Menge, "
       "sum(Ausgaben) as Ausgabe from Einkauf group by Lieferant",
       zeilen({"Glashaus|1|100.0|100.0|40.0"})},
      {"Nach Produkt und Charge",
       "select Produkt, Charge, count(*) as Anzahl, sum(Menge) as S_Menge, avg(Menge) as D_Menge, "
       "sum(Einnahmen) as Einnahme from Verkauf group by Produkt, Charge",
       zeilen({"Kerzen||1|3.0|3.0|9.0", "Raps||1|1.0|1.0|8.0", "Raps|R1|1|4.0|4.0|32.0"})},
      {"Ein Monat",
       "select count(*) as Anzahl, sum(Menge) as summe1, sum(Einnahmen) as summe2 from Verkauf" +
           zeit + " and month(Datum) = 8",
       zeilen({"2|7.0|41.0"})},
      {"Ein Monat aller Jahre",
       "select count(*) as Anzahl, sum(Menge) as summe1, sum(Einnahmen) as summe2 from Verkauf "
       "where "
       "month(Datum) = 9",
       zeilen({"1|1.0|8.0"})},
      {"Ein leerer Monat",
       "select count(*) as Anzahl, sum(Menge) as summe1, sum(Einnahmen) as summe2 from Verkauf "
       "where "
       "month(Datum) = 1",
       zeilen({"0|<>|<>"})},
      {"Ein Jahr",
       "select count(*) as Anzahl, sum(Menge) as summe1, sum(Einnahmen) as summe2 from Verkauf "
       "where "
       "year(Datum) = 2006",
       zeilen({"2|7.0|41.0"})},
      {"Honiglager einzeln",
       "select Datum, Produkt, Zugang, Abgang, Charge, Abfülldatum, Bemerkung from Honiglager" +
           zeit + " order by Datum"},
      {"Honiglager nach Produkt",
       "select Produkt, count(*) as Anzahl, sum(Zugang) as Zugänge, sum(Abgang) as Abgänge from "
       "Honiglager" +
           zeit + " group by Produkt",
       zeilen({"Linde|1|32.5|0.0", "Raps|3|15.0|4.0"})},
      {"Honigbestand nach Produkt",
       "select Produkt, sum(Zugang - Abgang) as Summe, count(*) as Anzahl, sum(Zugang) as Zugänge, "
       "sum(Abgang) as Abgänge from Honiglager group by Produkt",
       zeilen({"Linde|32.5|1|32.5|0.0", "Raps|11.0|3|15.0|4.0"})},
      {"Honiglager nach Produkt und Charge",
       "select Produkt, Charge, count(*) as Anzahl, sum(Zugang) as Zugänge, sum(Abgang) as Abgänge "
       "from "
       "Honiglager" +
           zeit + " group by Produkt, Charge"},
      {"Honiglager im Monat",
       "select count(*) as Anzahl, sum(Zugang) as summe1, sum(Abgang) as summe2, sum(Zugang) - "
       "sum(Abgang) as summe3 from Honiglager where Datum >= #01/01/2006# and Datum <= "
       "#12/31/2006# and "
       "month(Datum) = 8",
       zeilen({"2|5.0|4.0|1.0"})},
  });
}

TEST_F(Anweisungen, StandorteWetterUndZucht) {
  const QString mittel =
      "count(*) as Anzahl, avg(Temperatur) as D_Temperatur, avg(Niederschlag_mm) as "
      "D_Niederschlag, "
      "avg(Windstärke) as D_Windstärke from Wetterdaten";
  pruefe({
      {"Standorte", "select * from Standorte order by Standort"},
      {"Pflanzen am Standort",
       "select * from Standorte_Pflanzen where Standort_Kennung = 2 order by Pflanze",
       zeilen({"Efeu|300|40|2|2", "Haselnuss|100|60|2|1"})},
      {"Anteil am Standort",
       "select sum(Proz_Anteil) as xsumme from Standorte_Pflanzen where Standort_Kennung = 2",
       zeilen({"100"})},
      {"Standort schon da",
       "select Standort, Zusatzortshinweis from Standorte where Standort = 'wald' and ID <> 1",
       zeilen({"Wald|am Bach"})},
      {"Pflanze schon da", "select Pflanze from Pflanzen where Pflanze = 'EFEU' and ID <> 1",
       QStringList()},
      {"Trachtzeit eines Standorts",
       "select Trachtzeit_von, Trachtzeit_bis, ID from Standorte where Standort = 'Wald'",
       zeilen({"<>|<>|2"})},
      {"Erste Weide",
       "select top 1 Weidezeit_von from Pflanzen, Standorte_Pflanzen where Standort_Kennung = 2 "
       "and "
       "Standorte_Pflanzen.Pflanze = Pflanzen.Pflanze order by Weidezeit_von",
       zeilen({"2006-01-15"})},
      {"Letzte Weide",
       "select top 1 Weidezeit_bis from Pflanzen, Standorte_Pflanzen where Standort_Kennung = 1 "
       "and "
       "Standorte_Pflanzen.Pflanze = Pflanzen.Pflanze order by Weidezeit_bis DESC",
       zeilen({"2006-11-20"})},
      {"Standorte der Karte", "select Standort, PTop, PLeft from Standorte order by Standort",
       zeilen({"Wald|10|20", "Wiese|250|0"})},
      {"Völker der Karte",
       "select Volknr, Volkname, Standort, STop, SLeft, ID from Bienenvolk order by Volknr"},
      {"Lage eines Volkes", "select STop, SLeft from Bienenvolk where ID = 1", zeilen({"<>|<>"})},
      {"Lage eines Standorts", "select PTop, PLeft from Standorte where Standort = 'Wald'",
       zeilen({"10|20"})},
      {"Wetter", "select * from Wetterdaten order by Datum DESC"},
      {"Tag schon da", "select Datum from Wetterdaten where Datum = #05/01/2006# and ID <> 2",
       zeilen({"2006-05-01"})},
      {"Wetter listen",
       "select Datum, Wetter, Temperatur, Niederschlag_mm, Windrichtung, Windstärke, Bemerkung "
       "from "
       "Wetterdaten where Datum >= #01/01/2006# and Datum <= #12/31/2006# order by Datum",
       zeilen({"2006-05-01|sonnig|20|0|W|2|<>", "2006-05-02|Regen|11|12|W|5|<>"})},
      {"Nach Wetter", "select Wetter, " + mittel + " group by Wetter",
       zeilen({"Regen|1|11.0|12.0|5.0", "sonnig|2|21.5|0.0|1.5"})},
      {"Nach Temperatur",
       "select Temperatur, count(*) as Anzahl from Wetterdaten group by Temperatur",
       zeilen({"11|1", "20|1", "23|1"})},
      {"Nach Niederschlag",
       "select Niederschlag_mm, count(*) as Anzahl from Wetterdaten group by Niederschlag_mm",
       zeilen({"<>|1", "0|1", "12|1"})},
      {"Nach Windrichtung",
       "select Windrichtung, " + mittel +
           " where Datum >= #01/01/2006# and Datum <= #12/31/2006# group "
           "by Windrichtung",
       zeilen({"W|2|15.5|6.0|3.5"})},
      {"Nach Windstärke",
       "select Windstärke, count(*) as Anzahl from Wetterdaten group by Windstärke",
       zeilen({"1|1", "2|1", "5|1"})},
      {"Wetter eines Monats",
       "select count(*) as Anzahl, avg(Temperatur) as summe1, avg(Niederschlag_mm) as summe2, "
       "avg(Windstärke) as summe3 from Wetterdaten where month(Datum) = 5",
       zeilen({"3|18.0|6.0|2.66666666666667"})},
      {"Zuchtbuch", "select * from Zuchtbuch order by Jahr, Zuchtbuchnr"},
      {"Zuchtbuch eines Jahres",
       "select Zuchtbuchnr from Zuchtbuch where Jahr = '2006' order by Jahr, Zuchtbuchnr",
       zeilen({"12", "3"})},
      {"Zuchtbuchnummer schon da",
       "select Zuchtbuchnr from Zuchtbuch where Jahr = '2006' and Zuchtbuchnr = '3' and ID <> 1",
       zeilen({"3"})},
      {"Zuchtbuch zum Ändern", "select top 1 * from Zuchtbuch where ID = 1"},
      {"Zuchtbuch nach Rasse",
       "select Rasse, count(*) as Buchungen, avg(Sanftmut) as Sanftm, avg(Wabensitz) as Wabens, "
       "avg(Schwarmtrieb) as Schwarmtr, avg(Winterfestigkeit) as Winterf, avg(Frühjahrsentw) as "
       "FJahrentw, avg(Volkstärke) as Volkst, avg(Anz_Varroen) as Varroen, "
       "avg(Anteil_verletzt_Varroen) as VerlVarroen, avg(Ausräumrate_Proz) as Ausräumrate, "
       "avg(LJ1_Teiltracht_bis_15_6) as LJ1_T1506, avg(LJ1_Teiltracht_16_6_bis_15_8) as "
       "LJ1_T1606_1508, avg(LJ1_Teiltracht_ab_16_8) as LJ1_T1608, avg(LJ1_Vorräte) as LJ1_Vorrat, "
       "avg(LJ1_Summe) as LJ1_Gesamt, avg(LJ1_Leistung_Proz) as LJ1_Leistung, "
       "avg(LJ2_Teiltracht_bis_15_6) as LJ2_T1506, avg(LJ2_Teiltracht_16_6_bis_15_8) as "
       "LJ2_T1606_1508, avg(LJ2_Teiltracht_ab_16_8) as LJ2_T1608, avg(LJ2_Vorräte) as LJ2_Vorrat, "
       "avg(LJ2_Summe) as LJ2_Gesamt, avg(LJ2_Leistung_Proz) as LJ2_Leistung from Zuchtbuch where "
       "Jahr = "
       "'2006' group by Rasse"},
      {"Sanftmut nach Rasse",
       "select Rasse, count(*) as Buchungen, avg(Sanftmut) as Sanftm, avg(LJ1_Summe) as LJ1_Gesamt "
       "from "
       "Zuchtbuch group by Rasse",
       zeilen({"Buckfast|1|2.0|30.0", "Carnica|2|3.5|20.0"})},
  });
}

TEST_F(Anweisungen, StatistikUndDeckungsbeitrag) {
  const QString zeit = " where Datum >= #01/01/2006# and Datum <= #12/31/2006#";
  const std::vector<std::pair<const char*, QStringList>> masse = {
      {"Honigernte", {"Menge_kg", "Honig_Wert"}},
      {"Wachsernte", {"Menge_kg", "Wachs_Wert"}},
      {"Pollenernte", {"Menge_g", "Pollen_Wert"}},
      {"Wanderung", {"Standortprämie"}},
      {"Gewichtsmessung", {"Gewicht_kg"}},
      {"Stockkarte",
       {"Stockkarte.Volkstärke",
        "Stockkarte.Brutstand",
        "Stockkarte.Wabensitz",
        "Stockkarte.Sanftmut",
        "Stockkarte.Schwarmtrieb",
        "Stockkarte.Frühjahrsentw",
        "Stockkarte.Winterfestigkeit",
        "Stockkarte.Varroabefall",
        "Stockkarte.Belagert",
        "Stockkarte.Magazine",
        "Stockkarte.Mittelwände",
        "Stockkarte.Waben",
        "Stockkarte.Honigwaben",
        "Stockkarte.Brutwaben",
        "Stockkarte.Pollenwaben",
        "Stockkarte.Drohnenwaben",
        "Stockkarte.Leerwaben",
        "Stockkarte.Futterwaben",
        "Futter_flüssig_l",
        "Futter_Teig_kg",
        "Eigener_Futtervorrat"}}};
  for (const auto& [tabelle, felder] : masse) {
    const QString von = " from " + QString(tabelle) + zeit;
    pruefe({{"Anzahl", "select count(*) as summe" + von + " and Volk_ID = 1"}});
    for (const QString& feld : felder) {
      pruefe({{"Durchschnitt", "select avg(" + feld + ") as summe" + von + " and Volk_ID = 1"},
              {"Summe", "select sum(" + feld + ") as summe" + von}});
    }
  }
  for (const QString& tabelle : buchungstabellen) {
    if (tabelle == "Stockkarte" || tabelle == "Notizen") continue;
    pruefe({{"Kosten", "select sum(Kosten) as summe from " + tabelle +
                           ", Bienenvolk where Bienenvolk.Akt_im_Bestand = 'X' and Datum >= "
                           "#01/01/2006# and Datum <= #12/31/2006# and Volk_ID = Bienenvolk.ID"},
            {"Kosten eines Volkes", "select sum(Kosten) as summe from " + tabelle +
                                        " where Volk_ID = 1 and Datum >= #01/01/2006# and Datum <= "
                                        "#12/31/2006#"}});
  }
  const QString imBestand =
      ", Bienenvolk where Bienenvolk.Akt_im_Bestand = 'X' and Datum >= #01/01/2006# and Datum <= "
      "#12/31/2006# and Volk_ID = Bienenvolk.ID";
  pruefe({
      {"Honigwert je kg",
       "select sum(Menge_kg) as summe, sum(Honig_Wert) as summe1 from Honigernte" + zeit +
           " and Volk_ID = 1",
       zeilen({"30.0|170.0"})},
      {"Durchschnittliche Volkstärke",
       "select avg(Stockkarte.Volkstärke) as summe from Stockkarte" + zeit + " and Volk_ID = 1",
       zeilen({"2.33333333333333"})},
      {"Erhaltene Prämien",
       "select sum(Standortprämie) as summe from Wanderung" + zeit + " and Prämie_erhalten = 'J'",
       zeilen({"45.0"})},
      {"Völker der Statistik",
       "select Volknr, Volkname, Standort, ID from Bienenvolk where Akt_im_Bestand = 'X' order by "
       "Volknr",
       zeilen({"1|Anna|Wald|1", "10|Carla|Wiese|3", "2|Berta|Wald|2"})},
      {"Verkaufserlös",
       "select sum(Einnahmen) as summe from Verkauf where Datum >= #01/01/2006# and Datum <= "
       "#12/31/2006#",
       zeilen({"41.0"})},
      {"Einkaufskosten",
       "select sum(Ausgaben) as summe from Einkauf where Datum >= #01/01/2006# and Datum <= "
       "#12/31/2006#",
       zeilen({"40.0"})},
      {"Honigwert ohne fremde Völker",
       "select sum(Honig_Wert) as summe from Honigernte" + imBestand, zeilen({"245.0"})},
      {"Wachswert", "select sum(Wachs_Wert) as summe from Wachsernte" + imBestand, zeilen({"<>"})},
      {"Pollenwert", "select sum(Pollen_Wert) as summe from Pollenernte" + imBestand},
      {"Sonstiger Wert", "select sum(Wert) as summe from Sonstigeernte" + imBestand},
      {"Prämien im Bestand",
       "select sum(Standortprämie) as summe from Wanderung" + imBestand +
           " and Prämie_erhalten = 'J'",
       zeilen({"45.0"})},
      {"Anzahl Völker",
       "select count(*) as summe from Bienenvolk where Bienenvolk.Volknr IS NOT NULL",
       zeilen({"5"})},
      {"Honigwert eines Volkes",
       "select sum(Honig_Wert) as summe from Honigernte where Volk_ID = 1 and Datum >= "
       "#01/01/2005# and "
       "Datum <= #12/31/2006#",
       zeilen({"210.0"})},
  });
}

TEST_F(Anweisungen, Listen) {
  pruefe({
      {"Völker der Stockkarten", "select Volknr, Volkname, ID from Bienenvolk order by Volknr"},
      {"Die erste Stockkarte trotz der Beschriftung",
       "select top 1 * from Stockkarte where Volk_ID = 1 order by Datum"},
      {"Deren Tag", "select top 1 Datum from Stockkarte where Volk_ID = 1 order by Datum",
       zeilen({"2006-03-01"})},
      {"Stockkarten im Zeitraum",
       "select * from Stockkarte where Volk_ID = 1 and Datum >= #01/01/2006# and Datum <= "
       "#12/31/2006# "
       "order by Datum"},
      {"Vorige Stockkarte", "select * from Stockkarte where ID = 1"},
      {"Völkerdaten",
       "select Volknr, Volkname, ID from Bienenvolk where Selektiert = 'X' order by Volknr",
       zeilen({"1|Anna|1"})},
      {"Völkerdaten aktuelles Volk", "select Volknr from Bienenvolk where ID = 3 order by Volkname",
       zeilen({"10"})},
      {"Buchungsliste",
       "select Bienenvolk.Volknr as Volknr, Bienenvolk.Volkname as Volkname, Honigernte.Datum as "
       "Datum, "
       "Honigernte.Menge_kg as Menge_kg from Bienenvolk, Honigernte where Akt_im_Bestand = 'X' and "
       "Bienenvolk.ID = Honigernte.Volk_ID and Honigernte.Datum >= #01/01/2006# and "
       "Honigernte.Datum <= "
       "#12/31/2006# order by Bienenvolk.Volknr, Honigernte.Datum",
       zeilen({"1|Anna|2006-06-01|10.0", "1|Anna|2006-07-15|20.0", "2|Berta|2006-07-15|12.5"})},
      {"Buchungsliste nach Menge",
       "select Bienenvolk.Volknr as Volknr, Honigernte.Menge_kg as Menge_kg from Bienenvolk, "
       "Honigernte "
       "where Akt_im_Bestand = 'X' and Bienenvolk.ID = Honigernte.Volk_ID order by Volknr, "
       "Honigernte.Menge_kg",
       zeilen({"1|8.0", "1|10.0", "1|20.0", "2|12.5"})},
      {"Buchungsliste aller Völker",
       "select Honigernte.Menge_kg as Menge_kg from Bienenvolk, Honigernte where Bienenvolk.ID = "
       "Honigernte.Volk_ID order by Honigernte.Menge_kg",
       zeilen({"8.0", "10.0", "12.5", "20.0"})},
      {"Buchungsliste aktuelles Volk",
       "select Honigernte.Menge_kg as Menge_kg from Bienenvolk, Honigernte where Bienenvolk.ID = 2 "
       "and "
       "Bienenvolk.ID = Honigernte.Volk_ID",
       zeilen({"12.5"})},
      {"Gleicher Feldname in beiden Tabellen",
       "select Stockkarte.Volkstärke as Volkstärke from Bienenvolk, Stockkarte where "
       "Akt_im_Bestand = 'X' "
       "and Bienenvolk.ID = Stockkarte.Volk_ID order by Stockkarte.Volkstärke",
       zeilen({"1.0", "2.5", "3.5"})},
      {"Vorletzte Arbeit", "select * from Arbeiten where Volk_ID = 1 order by Datum DESC",
       zeilen({"2006-04-01|Durchsicht|1.5|3.0|<>|1|1", "2005-04-01|Einwinterung|2.0|4.0|<>|1|3"})},
      {"Ein Volk", "select * from Bienenvolk where ID = 1"},
      {"Pflanzen je Standort",
       "select Standort, Zusatzortshinweis, Pflanze, Entfernung_m, Proz_Anteil from Standorte, "
       "Standorte_Pflanzen where Standort_Kennung = Standorte.ID order by Standort, Pflanze",
       zeilen({"Wald|am Bach|Efeu|300|40", "Wald|am Bach|Haselnuss|100|60", "Wiese||efeu|50|10"})},
      {"Platz am Standort",
       "select Standort, Zusatzortshinweis, Max_Völker from Standorte order by Standort",
       zeilen({"Wald|am Bach|10", "Wiese||5"})},
      {"Völker am Standort", "select count(*) as Anzahl from Bienenvolk where Standort = 'Wiese'",
       zeilen({"2"})},
      {"Standorte zum Bewerten", "select * from Standorte order by Standort, Zusatzortshinweis"},
      {"Tracht am Standort",
       "select Pflanze, Entfernung_m, Proz_Anteil from Standorte_Pflanzen where Standort_Kennung = "
       "2",
       zeilen({"Haselnuss|100|60", "Efeu|300|40"})},
      {"Die Pflanze dazu", "select * from Pflanzen where Pflanze = 'efeu'",
       zeilen({"Efeu|2006-09-15|2006-11-20|5|2|1"})},
  });
}

TEST_F(Anweisungen, GruppierungenUndKreuztabellen) {
  const QString bestand = " from Bienenvolk where Akt_im_Bestand = 'X'";
  pruefe({
      {"Völker je Standort", "select Standort, count(*) as Anzahl" + bestand + " group by Standort",
       zeilen({"Wald|2", "Wiese|1"})},
      {"Völker je Beuteart", "select Beuteart, count(*) as Anzahl" + bestand + " group by Beuteart",
       zeilen({"Dadant|1", "Zander|2"})},
      {"Abgänge je Grund",
       "select Abgangsgrund, count(*) as Anzahl from Bienenvolk where Akt_im_Bestand <> 'X' group "
       "by "
       "Abgangsgrund",
       zeilen({"verkauft|1", "Winter|1"})},
      {"Standort und Waben",
       "transform count(*) select Standort, count(*) as Völker" + bestand +
           " group by Standort pivot Wabenanzahl;",
       zeilen({"Wald|2|10|2", "Wiese|1|8|1"})},
      {"Standort und Mittelwände, auch unbekannte",
       "transform count(*) select Standort, count(*) as Völker" + bestand +
           " group by Standort pivot Mittelwände;",
       zeilen({"Wald|2|2|1", "Wald|2|3|1", "Wiese|1|<>|1"})},
      {"Alter in Jahren",
       "transform count(*) select datediff('yyyy',Volk_Zugangsdatum, now) as Alter_Jahre" +
           bestand +
           " and Volk_Zugangsdatum IS NOT NULL group by datediff('yyyy', Volk_Zugangsdatum, now) "
           "pivot "
           "Standort;",
       zeilen({"1|Wald|1", "2|Wald|1"})},
      {"Alter in Monaten",
       "transform count(*) select datediff('m',Volk_Zugangsdatum, now) as Alter_Monate" + bestand +
           " and Volk_Zugangsdatum IS NOT NULL group by datediff('m', Volk_Zugangsdatum, now) "
           "pivot "
           "Beuteart;",
       zeilen({"7|Dadant|1", "13|Zander|1"})},
      {"Sorten je Volk",
       "transform count(*) select Volknr, count(*) as Anzahl from Bienenvolk, Honigernte where "
       "Akt_im_Bestand = 'X' and Volk_ID = Bienenvolk.ID group by Volknr pivot Honigsorte;",
       zeilen({"1|3|Linde|1", "1|3|Raps|2", "2|1|Linde|1"})},
      {"Wanderorte je Volk",
       "transform count(*) select Volkname, count(*) as Anzahl from Bienenvolk, Wanderung where "
       "Akt_im_Bestand = 'X' and Volk_ID = Bienenvolk.ID group by Volkname pivot "
       "Wanderung.Standort;",
       zeilen({"Anna|2|Raps am Berg|1", "Anna|2|Wald|1", "Berta|1|Wald|1"})},
      {"Milben je Volk, auch nicht gezählte",
       "transform count(*) select Volknr, count(*) as Anzahl from Bienenvolk, Behandlung where "
       "Akt_im_Bestand = 'X' and Volk_ID = Bienenvolk.ID group by Volknr pivot Anz_Varroen;",
       zeilen({"1|2|<>|1", "1|2|30|1"})},
      {"Kosten der Honigernte je Volk",
       "select Volknr, count(*) as Buchungen, sum(Kosten) as S_Kosten, sum(Honig_Wert) as "
       "Honigwert, "
       "sum(Menge_kg) as Menge, sum(Zeit_h) as Zeit, avg(Kosten) as D_Kosten, avg(Honig_Wert) as "
       "D_Honigwert, avg(Menge_kg) as D_Menge, avg(Zeit_h) as D_Zeit from Bienenvolk, Honigernte "
       "where "
       "Akt_im_Bestand = 'X' and Volk_ID = Bienenvolk.ID group by Volknr",
       zeilen({"1|3|16.0|210.0|38.0|4.0|5.33333333333333|70.0|12.6666666666667|1.33333333333333",
               "2|1|3.0|75.0|12.5|0.5|3.0|75.0|12.5|0.5"})},
  });
  const std::vector<std::pair<const char*, const char*>> ernten = {
      {"Wachsernte", "Wachs_Wert"}, {"Pollenernte", "Pollen_Wert"}, {"Sonstigeernte", "Wert"}};
  for (const auto& [tabelle, wert] : ernten) {
    pruefe(
        {{"Kosten der Ernte",
          QString(
              "select Volkname, count(*) as Buchungen, sum(Kosten) as S_Kosten, sum(%2) as "
              "Wachswert, "
              "sum(Zeit_h) as Zeit, avg(%2) as D_Wert from Bienenvolk, %1 where Akt_im_Bestand = "
              "'X' and Volk_ID = Bienenvolk.ID group by Volkname")
              .arg(QString(tabelle), QString(wert))}});
  }
  for (const char* tabelle :
       {"Arbeiten", "Wanderung", "Gewichtsmessung", "Behandlung", "Königinwechsel"}) {
    pruefe({{"Kosten der Buchungen",
             "select Volknr, count(*) as Buchungen, sum(Kosten) as S_Kosten, sum(Zeit_h) as Zeit, "
             "avg(Kosten) as D_Kosten, avg(Zeit_h) as D_Zeit from Bienenvolk, " +
                 QString(tabelle) +
                 " where Akt_im_Bestand = 'X' and Volk_ID = Bienenvolk.ID group by Volknr"}});
  }
}

TEST_F(Anweisungen, Diagramme) {
  pruefe({
      {"Völker je Standort",
       "select Standort as Inhalt1, count(*) as Wert1 from Bienenvolk group by Standort",
       zeilen({"<>|1", "Wald|2", "Wiese|2"})},
      {"Honig je Sorte",
       "select Honigsorte as Inhalt1, sum(Menge_kg) as Wert1 from Honigernte where Datum >= "
       "#01/01/2006# "
       "and Datum <= #12/31/2006# group by Honigsorte",
       zeilen({"Linde|32.5", "Raps|10.0", "Wald|100.0"})},
      {"Honig je Jahr",
       "select year(Datum) as Inhalt1, sum(Menge_kg) as Wert1 from Honigernte group by Year(Datum)",
       zeilen({"2005|8.0", "2006|142.5"})},
      {"Wachs je Jahr",
       "select year(Datum) as Inhalt1, sum(Menge_kg) as Wert1 from Wachsernte group by Year(Datum)",
       QStringList()},
      {"Pollen je Jahr",
       "select year(Datum) as Inhalt1, sum(Menge_g) as Wert1 from Pollenernte group by "
       "Year(Datum)"},
  });
}

TEST_F(Anweisungen, Uebernahme) {
  pruefe({
      {"Bewegungen zum Verkauf", "select * from Honiglager where Abgang > 0 and EVK_ID = 1"},
      {"Bewegungen zum Einkauf", "select * from Honiglager where Zugang > 0 and EVK_ID = 1",
       QStringList()},
      {"Bewegungen ohne Geschäft",
       "select ID from Honiglager where EVK_ID = 0 or EVK_ID = Null order by ID",
       zeilen({"1", "2", "4"})},
  });
  for (const Tabellenangabe& tabelle : tabellen) {
    pruefe(
        {{"Leeren", QString("delete from ") + QString(tabelle.name)},
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
  EXPECT_FALSE(db.Uebersetzung("select distinct Farbe from Königinwechsel order by Farbe")
                   .contains("RECURSIVE"));
  db.Execute("create index Königinwechsel1 on KÖNIGINWECHSEL(Farbe)");
  EXPECT_TRUE(db.Uebersetzung("select distinct Farbe from Königinwechsel order by Farbe")
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
