#include "platform/database/Anweisungsprobe.h"

// The statements of purchases, sales, the honey store, articles, customers and seals.
namespace {

TEST_F(Anweisungsprobe, EinkäufeVerkäufeUndIhreBewegungen) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, HonigbestandUndDasLöschenEinerBewegung) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, LagerartikelUndLagerbuchungen) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, KundenUndInventar) {
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, Verschlüsse) {
  prüfe({
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

TEST_F(Anweisungsprobe, VerkäufeNachProduktQualitätUndAbnehmer) {
  const QString zeit = " where Datum >= #01/01/2006# and Datum <= #12/31/2006#";
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, VerkäufeNachMonatUndJahr) {
  const QString zeit = " where Datum >= #01/01/2006# and Datum <= #12/31/2006#";
  prüfe({
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
  });
}

TEST_F(Anweisungsprobe, HoniglagerNachProduktChargeUndMonat) {
  const QString zeit = " where Datum >= #01/01/2006# and Datum <= #12/31/2006#";
  prüfe({
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

}  // namespace
