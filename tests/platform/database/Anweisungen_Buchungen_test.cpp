#include "platform/database/Anweisungsprobe.h"

// The statements of bookings, and of their exchange with a mobile device.
namespace {

TEST_F(Anweisungsprobe, ListeDerBuchungsart) {
  prüfe({
      {"Liste der Buchungsart", QString(stockkartenfelder) +
                                    " where Volk_ID = 1 and Datum >= #01/01/2006# and Datum <= "
                                    "#12/31/2006# order by Datum"},
  });
}

TEST_F(Anweisungsprobe, VorschlägeAusFrüherenBuchungen) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, EineBuchungErledigtIhrenTermin) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, NeuesteBuchungen) {
  prüfe({
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

TEST_F(Anweisungsprobe, AustauschJederBuchungsart) {
  for (const QString& tabelle : buchungstabellen) {
    prüfe({
        {"Buchungen ab einem Tag",
         "select * from " + tabelle +
             " where Volk_ID = 1 and Datum >= #01/01/2006# order by Datum DESC"},
        {"Anfügen", "select * from " + tabelle + " where id = 0", QStringList()},
        {"Schon eingelesen",
         "select datum from " + tabelle + " where Volk_ID = 1 and datum = #01/01/1999#",
         QStringList()},
    });
  }
}

TEST_F(Anweisungsprobe, AustauschVonTerminenUndVölkern) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, WasSchonEingelesenIst) {
  prüfe({
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

}  // namespace
