#include "platform/database/Anweisungsprobe.h"

// The statements of the statistics and of the contribution margin.
namespace {

TEST_F(Anweisungsprobe, MittelUndSummeJederAngabe) {
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
    prüfe({{"Anzahl", "select count(*) as summe" + von + " and Volk_ID = 1"}});
    for (const QString& feld : felder) {
      prüfe({{"Durchschnitt", "select avg(" + feld + ") as summe" + von + " and Volk_ID = 1"},
             {"Summe", "select sum(" + feld + ") as summe" + von}});
    }
  }
}

TEST_F(Anweisungsprobe, KostenJederBuchungsart) {
  for (const QString& tabelle : buchungstabellen) {
    if (tabelle == "Stockkarte" || tabelle == "Notizen") continue;
    prüfe({{"Kosten", "select sum(Kosten) as summe from " + tabelle +
                          ", Bienenvolk where Bienenvolk.Akt_im_Bestand = 'X' and Datum >= "
                          "#01/01/2006# and Datum <= #12/31/2006# and Volk_ID = Bienenvolk.ID"},
           {"Kosten eines Volkes", "select sum(Kosten) as summe from " + tabelle +
                                       " where Volk_ID = 1 and Datum >= #01/01/2006# and Datum <= "
                                       "#12/31/2006#"}});
  }
}

TEST_F(Anweisungsprobe, HonigwertVolkstärkeUndPrämien) {
  const QString zeit = " where Datum >= #01/01/2006# and Datum <= #12/31/2006#";
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, Deckungsbeitrag) {
  const QString imBestand =
      ", Bienenvolk where Bienenvolk.Akt_im_Bestand = 'X' and Datum >= #01/01/2006# and Datum <= "
      "#12/31/2006# and Volk_ID = Bienenvolk.ID";
  prüfe({
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

TEST_F(Anweisungsprobe, Diagramme) {
  prüfe({
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

}  // namespace
