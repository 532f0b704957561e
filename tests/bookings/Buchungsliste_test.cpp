#include "bookings/Buchungsliste.h"

#include "Bestand.h"

using Änderungen = QList<Slotänderung>;

namespace {

class Buchungsliste : public Bestand {
 protected:
  static void arbeit(const QString& art, QDate datum, int volk = 1) {
    schreibe("insert into Arbeiten (Arbeitsart, Datum, Volk_ID) values (?, ?, ?)",
             {art, datum, volk});
  }
  static QString arbeiten(Anzeigebereich bereich, const QString& volk = "1") {
    const Daten daten = buchungenLesen(db(), 5, volk, bereich);
    QStringList texte;
    for (int i = 0; i < daten->zeilen(); ++i)
      texte.append(daten->anzeige(i, daten->spaltenNummer(u"Arbeitsart")));
    return texte.join("|");
  }
  // The slots of the only booking of this type.
  static Änderungen einzige(int art) {
    const Daten daten = buchungenLesen(db(), art, "1", Anzeigebereich::Alles);
    return zeilentexte(*daten, 0, art);
  }
};

}  // namespace

TEST_F(Buchungsliste, AbfrageHatVolkBereichUndReihenfolge) {
  const Buchungsabfrage alles = buchungsAbfrage(1, "12", Anzeigebereich::Alles);
  EXPECT_EQ(alles.anweisung, "select * from Honigernte where Volk_ID = ? order by Datum");
  EXPECT_EQ(alles.werte, QVariantList{qint64{12}});
  const Buchungsabfrage jahr = buchungsAbfrage(1, "12", Anzeigebereich::AktuellesJahr);
  EXPECT_EQ(jahr.anweisung,
            "select * from Honigernte where Volk_ID = ? and Datum >= ? and Datum <= ? order by "
            "Datum");
  EXPECT_EQ(jahr.werte, (QVariantList{qint64{12}, QDate(2026, 1, 1), QDate(2026, 12, 31)}));
  const Buchungsabfrage zwei = buchungsAbfrage(1, "12", Anzeigebereich::AktuellesUndLetztesJahr);
  EXPECT_EQ(zwei.werte, (QVariantList{qint64{12}, QDate(2025, 1, 1), QDate(2026, 12, 31)}));
}

TEST_F(Buchungsliste, BereichSchneidetNachJahren) {
  arbeit("2027", {2027, 1, 1});
  arbeit("Silvester 2026", {2026, 12, 31});
  arbeit("Neujahr 2026", {2026, 1, 1});
  arbeit("2025", {2025, 12, 31});
  arbeit("Neujahr 2025", {2025, 1, 1});
  arbeit("2024", {2024, 12, 31});
  arbeit("fremd", {2026, 5, 1}, 2);
  EXPECT_EQ(arbeiten(Anzeigebereich::AktuellesJahr), "Neujahr 2026|Silvester 2026");
  EXPECT_EQ(arbeiten(Anzeigebereich::AktuellesUndLetztesJahr),
            "Neujahr 2025|2025|Neujahr 2026|Silvester 2026");
  EXPECT_EQ(arbeiten(Anzeigebereich::Alles),
            "2024|Neujahr 2025|2025|Neujahr 2026|Silvester 2026|2027");
}

TEST_F(Buchungsliste, AmSelbenTagStehtDieSpäterGebuchteZuletzt) {
  arbeit("erste", {2026, 5, 1});
  arbeit("zweite", {2026, 5, 1});
  arbeit("frühere", {2026, 4, 1});
  EXPECT_EQ(arbeiten(Anzeigebereich::Alles), "frühere|erste|zweite");
}

TEST_F(Buchungsliste, VolkOhneBuchungenHatKeineZeile) {
  EXPECT_EQ(buchungenLesen(db(), 5, "1", Anzeigebereich::Alles)->zeilen(), 0);
}

TEST_F(Buchungsliste, ZeileStehtMitDenStellenDerSlots) {
  schreibe(
      "insert into Honigernte (Datum, Menge_kg, Honigsorte, Qualität, Zeit_h, Kosten, Honig_Wert, "
      "Charge, Bemerkung, Volk_ID) values (?, 12, 'Raps', 'A', 1.5, 23.25, 102, 'L1', 'gut', 1)",
      {QDate(2026, 6, 5)});
  EXPECT_EQ(einzige(1), (Änderungen{{0, "05.06.2026"},
                                    {1, "12,00"},
                                    {2, "Raps"},
                                    {3, "A"},
                                    {4, "1,50"},
                                    {5, "23,25"},
                                    {6, "102,00"},
                                    {7, "L1"},
                                    {8, "gut"}}));
}

TEST_F(Buchungsliste, GenauereZahlenVerlierenNichts) {
  schreibe("insert into Honigernte (Menge_kg, Honig_Wert, Volk_ID) values (3.333, 28.305, 1)");
  const Änderungen texte = einzige(1);
  EXPECT_EQ(texte[1], (Slotänderung{1, "3,333"}));
  EXPECT_EQ(texte[6], (Slotänderung{6, "28,305"}));
}

TEST_F(Buchungsliste, NullenFallenWegWoDerSlotZuKurzIst) {
  schreibe("insert into Gewichtsmessung (Gewicht_kg, Zeit_h, Volk_ID) values (1234.5, 2.25, 1)");
  EXPECT_EQ(einzige(7)[1], (Slotänderung{1, "1234,5"}));  // "1234,500" has eight characters
  EXPECT_EQ(einzige(7)[2], (Slotänderung{2, "2,25"}));
}

TEST_F(Buchungsliste, LeereFelderZeigenDieErstenTexte) {
  schreibe("insert into Wanderung (Datum, Volk_ID) values (?, 1)", {QDate(2026, 6, 5)});
  EXPECT_EQ(
      einzige(6),
      (Änderungen{
          {0, "05.06.2026"}, {1, ""}, {2, "0,00"}, {3, "0,00"}, {4, "0,00"}, {5, ""}, {6, ""}}));
}

TEST_F(Buchungsliste, PrämieGanzzahlenUndNotizStehenWieSieSind) {
  schreibe("insert into Wanderung (Prämie_erhalten, Volk_ID) values ('J', 1)");
  EXPECT_EQ(einzige(6)[5], (Slotänderung{5, "J"}));
  schreibe(
      "insert into Behandlung (Menge_g, Wartezeit, Anz_Varroen, Volk_ID) values (9999, 7, 0, "
      "1)");
  EXPECT_EQ(einzige(8)[3], (Slotänderung{3, "9999"}));
  EXPECT_EQ(einzige(8)[5], (Slotänderung{5, "7"}));
  EXPECT_EQ(einzige(8)[9], (Slotänderung{9, "0"}));
  schreibe("insert into Notizen (Datum, NOTIZ, Volk_ID) values (?, ?, 1)",
           {QDate(2026, 6, 5), QString("Zeile 1\r\nZeile 2")});
  EXPECT_EQ(einzige(10), (Änderungen{{0, "05.06.2026"}, {15, "Zeile 1\r\nZeile 2"}}));
}

TEST_F(Buchungsliste, StockkarteZeigtNurDieEingestelltenFelder) {
  TZ_Variablen::EinstellungenText[Textslots.stockkartenfelder] =
      "select Datum, Waben, Volkstärke, ID from Stockkarte";
  schreibe(
      "insert into Stockkarte (Datum, Volkstärke, Waben, Brutwaben, Volk_ID) values "
      "(?, 3.5, 12, 6, 1)",
      {QDate(2026, 6, 5)});
  EXPECT_EQ(einzige(0), (Änderungen{{0, "05.06.2026"}, {1, "3,5"}, {11, "12"}}));
}

TEST_F(Buchungsliste, ÜberschriftUndLayoutname) {
  EXPECT_EQ(listenÜberschrift("3", "Anna"), "Bewegungsdaten für das Volk:  3 / Anna");
  EXPECT_EQ(listenLayout(0), "0bewegungsdaten");
  EXPECT_EQ(listenLayout(10), "10bewegungsdaten");
}

TEST_F(Buchungsliste, StandorteDerVölkerJederEinmalUndKeinerAlsLeererText) {
  schreibe("update Bienenvolk set Standort = null");
  for (const QVariant& ort :
       {QVariant("Waldrand"), QVariant("Heide"), QVariant("Waldrand"), QVariant(""), QVariant()})
    schreibe("insert into Bienenvolk (Volknr, Standort) values ('9', ?)", {ort});
  EXPECT_EQ(volkstandorte(db()), QStringList({"", "Heide", "Waldrand"}));
}
