#include "platform/database/Anweisungsprobe.h"

// The statements of the lists, the groupings and the cross tables.
namespace {

TEST_F(Anweisungsprobe, Stockkarten) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, Völkerdaten) {
  prüfe({
      {"Völkerdaten",
       "select Volknr, Volkname, ID from Bienenvolk where Selektiert = 'X' order by Volknr",
       zeilen({"1|Anna|1"})},
      {"Völkerdaten aktuelles Volk", "select Volknr from Bienenvolk where ID = 3 order by Volkname",
       zeilen({"10"})},
  });
}

TEST_F(Anweisungsprobe, Buchungsliste) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, Standortlisten) {
  prüfe({
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

TEST_F(Anweisungsprobe, VölkerJeMerkmal) {
  const QString bestand = " from Bienenvolk where Akt_im_Bestand = 'X'";
  prüfe({
      {"Völker je Standort", "select Standort, count(*) as Anzahl" + bestand + " group by Standort",
       zeilen({"Wald|2", "Wiese|1"})},
      {"Völker je Beuteart", "select Beuteart, count(*) as Anzahl" + bestand + " group by Beuteart",
       zeilen({"Dadant|1", "Zander|2"})},
      {"Abgänge je Grund",
       "select Abgangsgrund, count(*) as Anzahl from Bienenvolk where Akt_im_Bestand <> 'X' group "
       "by "
       "Abgangsgrund",
       zeilen({"verkauft|1", "Winter|1"})},
  });
}

TEST_F(Anweisungsprobe, KreuztabellenDerVölker) {
  const QString bestand = " from Bienenvolk where Akt_im_Bestand = 'X'";
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, KreuztabellenDerBuchungen) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, KostenDerHonigernteJeVolk) {
  prüfe({
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
}

TEST_F(Anweisungsprobe, KostenDerAnderenErntenJeVolk) {
  const std::vector<std::pair<const char*, const char*>> ernten = {
      {"Wachsernte", "Wachs_Wert"}, {"Pollenernte", "Pollen_Wert"}, {"Sonstigeernte", "Wert"}};
  for (const auto& [tabelle, wert] : ernten) {
    prüfe({{"Kosten der Ernte",
            QString(
                "select Volkname, count(*) as Buchungen, sum(Kosten) as S_Kosten, sum(%2) as "
                "Wachswert, "
                "sum(Zeit_h) as Zeit, avg(%2) as D_Wert from Bienenvolk, %1 where Akt_im_Bestand = "
                "'X' and Volk_ID = Bienenvolk.ID group by Volkname")
                .arg(QString(tabelle), QString(wert))}});
  }
}

TEST_F(Anweisungsprobe, KostenDerBuchungenJeVolk) {
  for (const char* tabelle :
       {"Arbeiten", "Wanderung", "Gewichtsmessung", "Behandlung", "Königinwechsel"}) {
    prüfe({{"Kosten der Buchungen",
            "select Volknr, count(*) as Buchungen, sum(Kosten) as S_Kosten, sum(Zeit_h) as Zeit, "
            "avg(Kosten) as D_Kosten, avg(Zeit_h) as D_Zeit from Bienenvolk, " +
                QString(tabelle) +
                " where Akt_im_Bestand = 'X' and Volk_ID = Bienenvolk.ID group by Volknr"}});
  }
}

}  // namespace
