#include "evaluations/Deckungsbeitrag.h"

#include <array>

#include "core/globals.h"
#include "evaluations/Vergleichsbestand.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

const QList<int> AllePosten{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};

template <class Betrieb>
class MitDeckungsbeitrag : public Betrieb {
 protected:
  void SetUp() override {
    Betrieb::SetUp();
    this->öffne(Deckungsbeitrag::beschreibung());
    this->zeitraum(2004, 2005);
    this->hake("kontier", {0});
  }
  void jeVolk() { this->e.setWahl("optiauswertung", 1); }
};

class DeckungsbeitragTest : public MitDeckungsbeitrag<Zahlenbetrieb> {
 protected:
  static void wanderung(qint64 volk, double kosten, double prämie, const QVariant& erhalten) {
    buche("Wanderung", volk, "01.05.2004",
          {{"Kosten", kosten}, {"Standortprämie", prämie}, {"Prämie_erhalten", erhalten}});
  }
  static void handel(const QString& tabelle, const QString& feld, const QString& tag,
                     const QVariant& betrag) {
    einfügen(tabelle, {{"Datum", DatumLesen(tag)}, {feld, betrag}});
  }
};

TEST_F(DeckungsbeitragTest, JeJahrEinnahmenWenigerKosten) {
  const qint64 eins = volk("1");
  const qint64 zwei = volk("2");
  handel("Verkauf", "Einnahmen", "01.01.2004", 1000.5);
  handel("Einkauf", "Ausgaben", "31.12.2005", 200);
  buche("Honigernte", eins, "01.01.2004", {{"Honig_Wert", 50.25}, {"Kosten", 10}});
  buche("Honigernte", zwei, "31.12.2004", {{"Honig_Wert", 49.75}, {"Kosten", 5.5}});
  buche("Honigernte", eins, "31.12.2003", {{"Honig_Wert", 999}, {"Kosten", 999}});
  buche("Behandlung", eins, "01.01.2005", {{"Kosten", 7}});
  hake("konkost", {0, 1, 6, 13, 15});
  EXPECT_EQ(starte(),
            QStringList({"Jahr|E_Verkäufe|E_Honigernte|K_Honigernte|K_Behandlung|K_Verkäufe|Summe",
                         "2004|1.000,50 €|100,00 €|15,50 €|0,00 €|0,00 €|1.085,00 €",
                         "2005|0,00 €|0,00 €|0,00 €|7,00 €|200,00 €|-207,00 €",
                         "SUMME|1.000,50 €|100,00 €|15,50 €|7,00 €|200,00 €|878,00 €"}));
  EXPECT_EQ(spalten(), QStringList({"jahr", "0 (Zahl)", "1 (Zahl)", "6 (Zahl)", "13 (Zahl)",
                                    "15 (Zahl)", "17 (Zahl)"}));
}

TEST_F(DeckungsbeitragTest, JeVolkÜberDenGanzenZeitraum) {
  const qint64 eins = volk("1");
  volk("2");
  buche("Honigernte", eins, "01.01.2004", {{"Honig_Wert", 50}, {"Kosten", 10}});
  buche("Honigernte", eins, "31.12.2005", {{"Honig_Wert", 50}, {"Kosten", 10}});
  buche("Honigernte", eins, "01.01.2006", {{"Honig_Wert", 50}, {"Kosten", 10}});
  hake("konkost", {1, 6});
  hake("kontier", {2});
  jeVolk();
  EXPECT_EQ(starte(), QStringList({"Volknr|Standort|E_Honigernte|K_Honigernte|Summe",
                                   "1|Hof|100,00 €|20,00 €|80,00 €", "2|Hof|0,00 €|0,00 €|0,00 €",
                                   "SUMME||100,00 €|20,00 €|80,00 €"}));
  EXPECT_EQ(spalten(), QStringList({"volknr", "standort", "1 (Zahl)", "6 (Zahl)", "17 (Zahl)"}));
}

TEST_F(DeckungsbeitragTest, JeVolkGibtEsKeineVerkäufeUndEinkäufe) {
  volk("1");
  handel("Verkauf", "Einnahmen", "01.01.2004", 1000);
  handel("Einkauf", "Ausgaben", "01.01.2004", 1000);
  hake("konkost", {0, 1, 15});
  jeVolk();
  EXPECT_EQ(starte()[0], "Volknr|E_Honigernte|Summe");
  EXPECT_FALSE(e.an("konkost", 0));
  EXPECT_FALSE(e.an("konkost", 15));
  EXPECT_TRUE(e.an("konkost", 1));
}

TEST_F(DeckungsbeitragTest, NurVerkäufeUndEinkäufeJeVolkLässtDieSummeAlleinUndOhneZeileSUMME) {
  volk("1");
  handel("Verkauf", "Einnahmen", "01.01.2004", 1000);
  hake("konkost", {0, 15});
  jeVolk();
  EXPECT_EQ(starte(), QStringList({"Volknr|Summe", "1|0,00 €"}));
}

TEST_F(DeckungsbeitragTest, DiePauschaleZähltJeVolkUndJahr) {
  for (const char* nummer : {"1", "2", "3"}) volk(nummer);
  volk("4", "");
  hake("konkost", {5, 16});
  e.setText("sevt", 0, "10,00");
  e.setText("sevt", 1, "1.000,50");
  EXPECT_EQ(
      starte(),
      QStringList({"Jahr|E_Pauschale|K_Pauschale|Summe", "2004|30,00 €|3.001,50 €|-2.971,50 €",
                   "2005|30,00 €|3.001,50 €|-2.971,50 €", "SUMME|60,00 €|6.003,00 €|-5.943,00 €"}));
  jeVolk();
  EXPECT_EQ(starte().mid(1, 2),
            QStringList({"1|20,00 €|2.001,00 €|-1.981,00 €", "2|20,00 €|2.001,00 €|-1.981,00 €"}));
}

TEST_F(DeckungsbeitragTest, EineErhaltenePrämieSenktDieKostenDerWanderung) {
  wanderung(volk("1"), 20, 50, "J");
  hake("konkost", {11});
  EXPECT_EQ(starte()[1], "2004|-30,00 €|30,00 €");
  jeVolk();
  EXPECT_EQ(starte()[1], "1|-30,00 €|30,00 €");
}

TEST_F(DeckungsbeitragTest, EineNichtErhaltenePrämieZähltNicht) {
  const qint64 eins = volk("1");
  wanderung(eins, 20, 50, "N");
  wanderung(eins, 0, 50, QVariant());
  hake("konkost", {11});
  EXPECT_EQ(starte()[1], "2004|20,00 €|-20,00 €");
  jeVolk();
  EXPECT_EQ(starte()[1], "1|20,00 €|-20,00 €");
}

TEST_F(DeckungsbeitragTest, OhneDieKostenDerWanderungZähltKeinePrämie) {
  wanderung(volk("1"), 20, 50, "J");
  hake("konkost", {1});
  EXPECT_EQ(starte()[1], "2004|0,00 €|0,00 €");
}

TEST_F(DeckungsbeitragTest, BeimAktuellenVolkBleibenVerkäufeUndEinkäufeGanz) {
  const qint64 eins = volk("1");
  const qint64 zwei = volk("2");
  zeitraum(2004, 2004);
  handel("Verkauf", "Einnahmen", "01.01.2004", 1000);
  handel("Einkauf", "Ausgaben", "01.02.2004", 300);
  for (const qint64 id : {eins, zwei}) {
    buche("Honigernte", id, "01.06.2004", {{"Honig_Wert", 50}});
    buche("Arbeiten", id, "01.06.2004", {{"Kosten", 20}});
  }
  hake("konkost", {0, 1, 5, 10, 15});
  e.setText("sevt", 0, "1,00");
  e.setWahl("optitieraus", 4);
  e.volk = zwei;
  EXPECT_EQ(starte()[1], "2004|1.000,00 €|50,00 €|1,00 €|20,00 €|300,00 €|731,00 €");
}

TEST_F(DeckungsbeitragTest, BleibtNichtsÜbrigStehtKeineZeileSUMME) {
  const qint64 eins = volk("1");
  buche("Honigernte", eins, "01.06.2004", {{"Honig_Wert", 1234.56}});
  buche("Honigernte", eins, "01.06.2005", {{"Kosten", 1000.1}});
  buche("Wachsernte", eins, "01.06.2005", {{"Kosten", 234.46}});
  hake("konkost", {1, 6, 7});
  EXPECT_EQ(starte().mid(1), QStringList({"2004|1.234,56 €|0,00 €|0,00 €|1.234,56 €",
                                          "2005|0,00 €|1.000,10 €|234,46 €|-1.234,56 €"}));
}

TEST_F(DeckungsbeitragTest, OhneVolkInDerAuswahlIstNichtsZuListen) {
  volk("1");
  e.setWahl("optitieraus", 3);
  jeVolk();
  EXPECT_EQ(starte(), QStringList("Keine zu listenden Daten gefunden"));
}

// ---- inputs ----

TEST_F(DeckungsbeitragTest, OhneGewähltesWirdAllesGelistet) {
  hake("kontier", {0}, false);
  EXPECT_EQ(starte()[0],
            "Jahr|E_Verkäufe|E_Honigernte|E_Wachsernte|E_Pollenernte|E_Sonstigeernte|E_Pauschale|"
            "K_Honigernte|K_Wachsernte|K_Pollenernte|K_Sonstigeernte|K_Arbeiten|K_Wanderung|"
            "K_Gewichtsmessung|K_Behandlung|K_Königinwechsel|K_Verkäufe|K_Pauschale|Summe");
  for (const int i : AllePosten) EXPECT_TRUE(e.an("konkost", i));
  for (const int i : {0, 1, 2}) EXPECT_TRUE(e.an("kontier", i));
}

TEST_F(DeckungsbeitragTest, AuchEineAbgelehnteAuswertungSchaltetAllesAn) {
  zeitraum(2005, 2004);
  starte();
  EXPECT_TRUE(e.an("konkost", 16));
}

TEST_F(DeckungsbeitragTest, DreißigJahreGehenEinunddreißigNicht) {
  zeitraum(2000, 2029);
  EXPECT_EQ(gründe(), QStringList());
  zeitraum(2000, 2030);
  EXPECT_EQ(gründe(), QStringList("...die Auswertung max. über 30 Jahre erlaubt ist."));
  zeitraum(2006, 2005);
  EXPECT_EQ(starte(), QStringList("Die Daten können nicht gelistet werden, weil...\r\n\r\n...das "
                                  "'Wirtschaftsjahr von' größer ist als das 'Wirtschaftsjahr "
                                  "bis'."));
}

TEST_F(DeckungsbeitragTest, EinJahrMitEinemSternWirdGenannt) {
  e.setText("t", 0, "20*4");
  EXPECT_EQ(gründe(), QStringList("...das Jahr '20*4' keine vierstellige Jahreszahl ist."));
}

TEST_F(DeckungsbeitragTest, DieJahreSindZehnZurückBisZehnVorausZuWählen) {
  const QStringList jahre = e.angebot("t_1");
  ASSERT_EQ(jahre.size(), 21);
  EXPECT_EQ(jahre.first(), "1996");
  EXPECT_EQ(jahre.last(), "2016");
}

TEST_F(DeckungsbeitragTest, LeerePauschalenWerdenNullKommaNullNull) {
  EXPECT_EQ(e.text("sevt", 0), "0,00");
  EXPECT_EQ(e.text("sevt", 1), "0,00");
  e.setText("sevt", 0, "12,50");
  hake("konkost", {0, 16});
  Auswertung::sichern(b, e);
  EXPECT_EQ(EinstellungenText[Textslots.pauschaleEinnahme], "12,50");
  EXPECT_EQ(EinstellungenText[Textslots.deckungsbeitragPosten], "10000000000000001");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.nachVölkern], 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.jahrVon], 2004);
}

TEST_F(DeckungsbeitragTest, JahreDieNieGespeichertWurdenSindDasLaufende) {
  EinstellungenZahl[Zahlslots.jahrVon] = 0;
  EinstellungenZahl[Zahlslots.jahrBis] = 0;
  öffne(Deckungsbeitrag::beschreibung());
  EXPECT_EQ(e.text("t", 0) + "-" + e.text("t", 1), "2006-2006");
  EinstellungenZahl[Zahlslots.jahrVon] = 2001;
  öffne(Deckungsbeitrag::beschreibung());
  EXPECT_EQ(e.text("t", 0) + "-" + e.text("t", 1), "2001-2001");
}

// ---- beside a statement for each cell ----

class DeckungsbeitragGenau : public MitDeckungsbeitrag<Vergleichsbestand> {
 protected:
  static constexpr int Summe = 17;
  using Werte = std::array<double, Summe + 1>;

  // Table and field of an item.
  static QStringList quelle(int posten) {
    return QList<QStringList>{{"Verkauf", "Einnahmen"},
                              {"Honigernte", "Honig_Wert"},
                              {"Wachsernte", "Wachs_Wert"},
                              {"Pollenernte", "Pollen_Wert"},
                              {"Sonstigeernte", "Wert"},
                              {},
                              {"Honigernte", "Kosten"},
                              {"Wachsernte", "Kosten"},
                              {"Pollenernte", "Kosten"},
                              {"Sonstigeernte", "Kosten"},
                              {"Arbeiten", "Kosten"},
                              {"Wanderung", "Kosten"},
                              {"Gewichtsmessung", "Kosten"},
                              {"Behandlung", "Kosten"},
                              {"Königinwechsel", "Kosten"},
                              {"Einkauf", "Ausgaben"},
                              {}}[posten];
  }

  // The row's cells; bedingung is what stands behind the table.
  QStringList zellen(const QString& bedingung, const QString& handel, double pauschalen) {
    Werte w{};
    for (int i = 0; i < Summe; ++i) {
      if (!e.an("konkost", i)) continue;
      const QStringList q = quelle(i);
      if (q.isEmpty())
        w[i] = Deutsch::einfach(pauschalen * ZahlLesen(e.text("sevt", i == 5 ? 0 : 1)));
      else
        w[i] = gelesen("select sum(" + q[1] + ") as summe from " + q[0] +
                       (i == 0 || i == 15 ? handel : bedingung));
      if (i == 11)
        w[i] =
            Deutsch::einfach(w[i] - gelesen("select sum(Standortprämie) as summe from Wanderung" +
                                            bedingung + " and Prämie_erhalten = 'J'"));
    }
    w[Summe] = Deutsch::einfach(w[1] + w[0] + w[2] + w[3] + w[4] + w[5] - w[6] - w[7] - w[8] -
                                w[9] - w[10] - w[11] - w[12] - w[13] - w[14] - w[15] - w[16]);
    for (size_t i = 0; i < w.size(); ++i) m_alle[i] = Deutsch::einfach(m_alle[i] + w[i]);
    return alsText(w);
  }
  QStringList alsText(const Werte& werte) {
    QStringList alle;
    for (int i = 0; i <= Summe; ++i)
      if (i == Summe || e.an("konkost", i)) alle += Deutsch::währung(werte[i]);
    return alle;
  }

  QStringList erwartetJeJahr() {
    QStringList alle;
    const double völker = gelesen("select count(*) as summe from Bienenvolk" + rest());
    for (int jahr = e.text("t", 0).toInt(); jahr <= e.text("t", 1).toInt(); ++jahr) {
      const QString j = QString::number(jahr);
      const QString tage = "Datum >= #01/01/" + j + "# and Datum <= #12/31/" + j + "#";
      alle += (QStringList(j) +
               zellen(", Bienenvolk" + rest() + " and " + tage + " and Volk_ID = Bienenvolk.ID",
                      " where " + tage, völker))
                  .join('|');
    }
    return alle + QStringList((QStringList("SUMME") + alsText(m_alle)).join('|'));
  }
  QStringList erwartetJeVolk() {
    QStringList alle;
    const int jahre = e.text("t", 1).toInt() - e.text("t", 0).toInt() + 1;
    const Daten völker =
        db().Lesen("select Volknr, Volkname, Standort, ID from Bienenvolk" + rest());
    for (int v = 0; v < völker->zeilen(); ++v)
      alle += (QStringList{völker->anzeige(v, 0), völker->anzeige(v, 2)} +
               zellen(" where Volk_ID = " + völker->anzeige(v, 3) + " and Datum >= #01/01/" +
                          e.text("t", 0) + "# and Datum <= #12/31/" + e.text("t", 1) + "#",
                      {}, jahre))
                  .join('|');
    return alle + QStringList((QStringList{"SUMME", ""} + alsText(m_alle)).join('|'));
  }

  void vergleiche(int variante, const QList<int>& posten) {
    hake("konkost", AllePosten, false);
    hake("konkost", posten);
    e.volk = 4;
    e.setWahl("optiauswertung", variante);
    e.setText("sevt", 0, "12,34");
    e.setText("sevt", 1, "5,67");
    hake("kontier", {0, 1, 2}, false);
    hake("kontier", {0, 2});
    for (const auto& jahre : zeiträume()) {
      zeitraum(jahre.von, jahre.bis);
      for (int wahl = 0; wahl < 5; ++wahl) {
        m_alle.fill(0);
        e.setWahl("optitieraus", wahl);
        const QStringList ist = starte().mid(1);
        QStringList soll = variante == 0 ? erwartetJeJahr() : erwartetJeVolk();
        if (m_alle[Summe] == 0) soll.removeLast();
        EXPECT_TRUE(gleich(ist, soll)) << wahl;
      }
    }
  }

  Werte m_alle{};
};

TEST_P(DeckungsbeitragGenau, JeJahrWieMitEinerAnweisungJeZelle) { vergleiche(0, AllePosten); }

TEST_P(DeckungsbeitragGenau, JeVolkWieMitEinerAnweisungJeZelle) { vergleiche(1, AllePosten); }

TEST_P(DeckungsbeitragGenau, JederPostenAlleinWieMitEinerAnweisungJeZelle) {
  for (const int posten : AllePosten) {
    vergleiche(0, {posten});
    if (posten != 0 && posten != 15) vergleiche(1, {posten});
  }
}

INSTANTIATE_TEST_SUITE_P(Bestände, DeckungsbeitragGenau,
                         testing::Values(Bestand::Beispiel, Bestand::Dicht), bestandsname);

}  // namespace
