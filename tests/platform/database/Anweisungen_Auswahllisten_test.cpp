#include "platform/database/Anweisungsprobe.h"

// The statements that fill the lists to choose from.
namespace {

struct Auswahllisten {
  const char* tabelle;
  QStringList felder;
};

class AnweisungenDerAuswahllisten : public Anweisungsprobe,
                                    public testing::WithParamInterface<Auswahllisten> {};

// Each text once, in the order of the texts; of texts that differ in case only, the first.
TEST_P(AnweisungenDerAuswahllisten, GebenJedenTextEinmalInSeinerOrdnung) {
  const QString t = GetParam().tabelle;
  for (const QString& f : GetParam().felder) {
    const QString erwartet = bank.roh("select " + f + " from (select " + f + ", min(ID) from " + t +
                                      " group by " + f + ") order by " + f)
                                 .join('\n');
    EXPECT_EQ(bank.lies("select distinct " + f + " from " + t + " order by " + f).join('\n'),
              erwartet)
        << f.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Tabellen, AnweisungenDerAuswahllisten,
    testing::Values(
        Auswahllisten{
            "Bienenvolk",
            {"Volkname", "Bienenrasse", "Königin_Nr", "Königin_Farbe", "Beuteart", "Volk_Herkunft",
             "Abgangsgrund", "Abnehmer", "Belegstelle", "Standort", "Volknr"}},
        Auswahllisten{"Standorte", {"Standort", "Zusatzortshinweis", "Klima", "Flugrichtung"}},
        Auswahllisten{"Termine", {"Termin"}},
        Auswahllisten{"Honigernte", {"Honigsorte", "Qualität", "Bemerkung"}},
        Auswahllisten{"Arbeiten", {"Arbeitsart", "Bemerkung"}},
        Auswahllisten{"Behandlung", {"Behandlungsart", "Mittel", "Zulassungsnr", "Bemerkung"}},
        Auswahllisten{"Stockkarte", {"Bemerkung"}}, Auswahllisten{"Wanderung", {"Bemerkung"}},
        Auswahllisten{"Gewichtsmessung", {"Bemerkung"}},
        Auswahllisten{"Einkauf", {"Produkt", "Qualität"}},
        Auswahllisten{"Honiglager", {"Charge", "Produkt", "Bemerkung"}},
        Auswahllisten{"Verkauf", {"Produkt", "Qualität"}},
        Auswahllisten{"Lagerbuchungen", {"An_Von"}}, Auswahllisten{"Kunden", {"Ort", "Bank"}},
        Auswahllisten{"Inventar", {"Erhalten_von", "Ausgeliehen_an", "Bemerkung"}},
        Auswahllisten{"DIBVerschluss", {"Charge", "Kunde", "Bemerkung", "Verschlussnr"}},
        Auswahllisten{"Pflanzen", {"Pflanze"}},
        Auswahllisten{"Wetterdaten", {"Wetter", "Windrichtung", "Bemerkung"}},
        Auswahllisten{"Zuchtbuch", {"Rasse", "Jahr", "Anpaarung"}},
        Auswahllisten{"Königinwechsel", {"Herkunft", "Zuchtindex"}},
        Auswahllisten{"Pollenernte", {"Qualität"}}, Auswahllisten{"Wachsernte", {"Qualität"}},
        Auswahllisten{"Sonstigeernte", {"Ernteart"}}),
    [](const auto& fall) { return QString(fall.param.tabelle).replace("ö", "oe").toStdString(); });

TEST_F(Anweisungsprobe, AuswahllistenMitIhremInhalt) {
  prüfe({
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

}  // namespace
