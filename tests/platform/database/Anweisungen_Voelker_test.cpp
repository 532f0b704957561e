#include "platform/database/Anweisungsprobe.h"

// The statements about colonies: the main list, the record, the selection, the lists to choose
// from.
namespace {

TEST_F(Anweisungsprobe, FälligeTermine) {
  prüfe({
      {"Fällige Termine",
       "select top 1 * from Termine where Datum <= #05/02/2006# and Erledigt = 'N'",
       zeilen({"2006-05-01|Schwarmkontrolle|N|1|1"})},
      {"Keine fälligen Termine",
       "select top 1 * from Termine where Datum <= #04/30/2006# and Erledigt = 'N'", QStringList()},
  });
}

TEST_F(Anweisungsprobe, BestandsUndAbgangsliste) {
  const QString liste = listenfelder;
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, LetzteErnteUndHonigmengen) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, VölkerImBestandUndIhreStockkarten) {
  prüfe({
      {"Völker im Bestand", "select ID from Bienenvolk where Akt_im_Bestand = 'X'",
       zeilen({"1", "2", "3"})},
      {"Nummer mit Leerzeichen davor", "select * from Stockkarte where Volk_ID = 7", QStringList()},
      {"Stockkarten", QString(stockkartenfelder) + " where Volk_ID = 1 order by Datum DESC"},
  });
}

TEST_F(Anweisungsprobe, BuchungenEinesVolkes) {
  for (const QString& tabelle : buchungstabellen) {
    prüfe({
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

TEST_F(Anweisungsprobe, AlleVölkerUndDieLetzteWanderung) {
  prüfe({
      {"Alle Völker", "select * from Bienenvolk"},
      {"Letzte Wanderung", "select top 1 * from Wanderung where Volk_ID = 1 order by Datum DESC",
       zeilen({"2006-07-01|Wald|<>|6.0|30.0|N|<>|1|2"})},
  });
}

TEST_F(Anweisungsprobe, SelektionAufhebenLässtNiemandenUnentschieden) {
  prüfe({
      {"Selektion aufheben", "update Bienenvolk set Selektiert = ''"},
      {"Niemand ist selektiert", "select count(*) as n from Bienenvolk where Selektiert = 'X'",
       zeilen({"0"})},
      {"Niemand ist unentschieden", "select count(*) as n from Bienenvolk where Selektiert = Null",
       zeilen({"0"})},
      {"Flaggen lesen", "select Selektiert, ID from Bienenvolk",
       zeilen({"|1", "|2", "|3", "|4", "|5"})},
  });
}

TEST_F(Anweisungsprobe, TermineEinesVolkesLöschen) {
  prüfe({
      {"Termine eines Volkes löschen", "delete from termine where Volk_ID = 4"},
      {"Seine Termine sind weg", "select count(*) as n from Termine", zeilen({"4"})},
  });
}

TEST_F(Anweisungsprobe, BuchungenEinesVolkesLöschen) {
  for (const QString& tabelle : buchungstabellen + QStringList{"Termine"}) {
    prüfe({{"Buchungen löschen", "delete from " + tabelle + " where Volk_ID = 1"},
           {"Keine mehr da", "select count(*) as n from " + tabelle + " where Volk_ID = 1",
            zeilen({"0"})}});
  }
}

}  // namespace
