#include "platform/database/Anweisungsprobe.h"

// The statements of the work plan, the appointments and the working hours.
namespace {

TEST_F(Anweisungsprobe, Arbeitsplanoptionen) {
  prüfe({
      {"Optionen", "select * from Arbeitsplanoptionen order by Arbeitsart"},
      {"Name der Option schon da",
       "select Arbeitsart from Arbeitsplanoptionen where Arbeitsart = 'honigernte' and ID <> 1",
       zeilen({"Honigernte"})},
      {"Option zum Ändern", "select top 1 * from Arbeitsplanoptionen where ID = 2"},
      {"Option nach Nummer", "select * from Arbeitsplanoptionen where ID = 2"},
  });
}

TEST_F(Anweisungsprobe, BuchungenSeitDerSchwelle) {
  prüfe({
      {"Letzte Buchung seit der Schwelle",
       "select top 1 Datum from Honigernte where Volk_ID = 1 and Datum >= #07/01/2006# order by "
       "Datum DESC",
       zeilen({"2006-07-15"})},
      {"Letzte Arbeit seit der Schwelle",
       "select top 1 Datum from Arbeiten where Arbeitsart = 'Durchsicht' and Volk_ID = 1 and Datum "
       ">= "
       "#01/01/2006# order by Datum DESC",
       zeilen({"2006-04-01"})},
  });
}

TEST_F(Anweisungsprobe, TermineDesJahres) {
  prüfe({
      {"Optionen je Volk", "select ID from Arbeitsplanoptionen where Volkabhängig = 'J'",
       zeilen({"1", "2"})},
      {"Termine des Jahres",
       "select ID from Termine where Volk_ID <> 0 and Datum >= #01/01/2006# and Datum <= "
       "#12/31/2006# "
       "order by ID",
       zeilen({"1", "2", "3", "5"})},
  });
}

TEST_F(Anweisungsprobe, Terminverwaltung) {
  const QString völkertermine =
      "select Datum, Termin, Erledigt, Volknr, Volkname, Standort, Volk_ID, Termine.ID from "
      "Bienenvolk, Termine where Volk_ID = Bienenvolk.ID";
  prüfe({
      {"Termine der Völker",
       völkertermine + " and Datum >= #05/01/2006# and Datum <= #12/31/2006# and Termin = "
                       "'Schwarmkontrolle' and Erledigt = 'N' order by Datum",
       zeilen({"2006-05-01|Schwarmkontrolle|N|1|Anna|Wald|1|1",
               "2006-05-10|Schwarmkontrolle|N|2|Berta|Wald|2|3"})},
      {"Termine eines Volkes", völkertermine + " and Volk_ID = 2 order by Datum",
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
  });
}

TEST_F(Anweisungsprobe, Starttermine) {
  prüfe({
      {"Starttermine der Völker",
       "select Datum, Termin, Volknr, Volkname, Standort, Termine.ID from Termine, Bienenvolk "
       "where Datum "
       "<= #05/05/2006# and Bienenvolk.ID = Volk_ID and Erledigt = 'N'"},
      {"Allgemeine Starttermine",
       "select Datum, Termin, ID from Termine where Datum <= #12/31/2006# and Volk_ID = 0 and "
       "Erledigt = "
       "'N' order by Datum",
       zeilen({"2006-08-01|Waben schmelzen|4"})},
  });
}

TEST_F(Anweisungsprobe, TermineNachStandort) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, TermineErledigenUmbenennenUndLöschen) {
  prüfe({
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

TEST_F(Anweisungsprobe, Arbeitszeiten) {
  const auto jahressumme = [](const QString& einschränkung) {
    return "select sum(Zeit_h) as summe from Arbeiten, Bienenvolk" + einschränkung +
           " and Datum >= #01/01/2006# and Datum <= #12/31/2006# and Volk_ID = Bienenvolk.ID";
  };
  prüfe({
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

}  // namespace
