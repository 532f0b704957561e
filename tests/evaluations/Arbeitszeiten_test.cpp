#include "evaluations/Arbeitszeiten.h"

#include "core/globals.h"
#include "evaluations/Vergleichsbestand.h"

using namespace TZ_Variablen;

namespace {

const QList<int> AlleTabellen{0, 1, 2, 3, 4, 5, 6, 7, 8};

template <class Betrieb>
class MitArbeitszeiten : public Betrieb {
 protected:
  void SetUp() override {
    Betrieb::SetUp();
    this->öffne(Arbeitszeiten::beschreibung());
    this->zeitraum(2004, 2005);
  }
  void stunden(const QString& tabelle, const QVariant& volk, const QString& tag,
               const QVariant& h) {
    this->buche(tabelle, volk, tag, {{"Zeit_h", h}});
  }
};

class ArbeitszeitenTest : public MitArbeitszeiten<Zahlenbetrieb> {};

TEST_F(ArbeitszeitenTest, JeJahrEineZeileMitSummenUndGesamt) {
  const qint64 eins = volk("1");
  const qint64 zwei = volk("2");
  stunden("Honigernte", eins, "01.01.2004", 1.5);
  stunden("Honigernte", zwei, "31.12.2004", 2.25);
  stunden("Sonstigeernte", eins, "01.06.2005", 0.1);
  stunden("Sonstigeernte", eins, "02.06.2005", 0.2);
  stunden("Honigernte", eins, "31.12.2003", 100);
  stunden("Honigernte", eins, "01.01.2006", 100);
  hake("konkost", {0, 3});
  EXPECT_EQ(starte(), QStringList({"Jahr|Honigernte|Sonstige Ernte|Gesamt", "2004|3,75|0,00|3,75",
                                   "2005|0,00|0,30|0,30", "SUMME|3,75|0,30|4,05"}));
  EXPECT_EQ(spalten(), QStringList({"jahr", "0 (Zahl)", "3 (Zahl)", "9 (Zahl)"}));
}

TEST_F(ArbeitszeitenTest, JeVolkStehenVornDieGewähltenFelder) {
  const qint64 eins = volk("1");
  volk("2");
  stunden("Arbeiten", eins, "01.01.2004", 1.5);
  stunden("Arbeiten", eins, "31.12.2005", 2);
  hake("konkost", {4});
  hake("kontier", {0, 2});
  e.setWahl("optiauswertung", 1);
  EXPECT_EQ(starte(), QStringList({"Volknr|Standort|Arbeiten|Gesamt", "1|Hof|3,50|3,50",
                                   "2|Hof|0,00|0,00", "SUMME||3,50|3,50"}));
  EXPECT_EQ(spalten(), QStringList({"volknr", "standort", "4 (Zahl)", "9 (Zahl)"}));
}

TEST_F(ArbeitszeitenTest, OhneFelderDesVolkesStehenDieSummenUnterIhrenSpalten) {
  stunden("Arbeiten", volk("1"), "01.01.2004", 1.5);
  hake("konkost", {4});
  e.setWahl("optiauswertung", 1);
  EXPECT_EQ(starte(), QStringList({"Arbeiten|Gesamt", "1,50|1,50", "1,50|1,50"}));
}

TEST_F(ArbeitszeitenTest, OhneTabelleNurGesamtNullUndKeineZeileSUMME) {
  stunden("Arbeiten", volk("1"), "01.01.2004", 1.5);
  EXPECT_EQ(starte(), QStringList({"Jahr|Gesamt", "2004|0,00", "2005|0,00"}));
}

TEST_F(ArbeitszeitenTest, EinJahrOhneBuchungenGibtEineZeileMitNullen) {
  stunden("Arbeiten", volk("1"), "01.01.2005", 1.5);
  hake("konkost", {4, 7});
  EXPECT_EQ(starte(), QStringList({"Jahr|Arbeiten|Behandlung|Gesamt", "2004|0,00|0,00|0,00",
                                   "2005|1,50|0,00|1,50", "SUMME|1,50|0,00|1,50"}));
}

TEST_F(ArbeitszeitenTest, NichtEingetrageneStundenZählenNull) {
  const qint64 eins = volk("1");
  stunden("Arbeiten", eins, "01.01.2004", QVariant());
  stunden("Arbeiten", eins, "01.01.2005", QVariant());
  stunden("Arbeiten", eins, "02.01.2005", 2);
  hake("konkost", {4});
  EXPECT_EQ(starte(), QStringList({"Jahr|Arbeiten|Gesamt", "2004|0,00|0,00", "2005|2,00|2,00",
                                   "SUMME|2,00|2,00"}));
}

TEST_F(ArbeitszeitenTest, BuchungenOhneVolkZählenJeJahrNicht) {
  const qint64 eins = volk("1");
  stunden("Arbeiten", eins + 7, "01.01.2004", 5);
  stunden("Arbeiten", QVariant(), "01.01.2004", 5);
  hake("konkost", {4});
  e.setWahl("optitieraus", 1);
  EXPECT_EQ(starte(), QStringList({"Jahr|Arbeiten|Gesamt", "2004|0,00|0,00", "2005|0,00|0,00"}));
}

TEST_F(ArbeitszeitenTest, EinVolkMitSehrHoherKennungHatSeineStunden) {
  volk("1");
  einfügen("Bienenvolk", {{"Volknr", "2"}, {"Akt_im_Bestand", "X"}, {"ID", 2'000'000'000}});
  stunden("Arbeiten", 2'000'000'000, "01.01.2004", 5);
  stunden("Arbeiten", 1'999'999'999, "01.01.2004", 5);
  hake("konkost", {4});
  hake("kontier", {0});
  EXPECT_EQ(starte()[1], "2004|5,00|5,00");
  e.setWahl("optiauswertung", 1);
  EXPECT_EQ(starte().mid(1, 2), QStringList({"1|0,00|0,00", "2|5,00|5,00"}));
}

TEST_F(ArbeitszeitenTest, OhneVolkInDerAuswahlIstNichtsZuListen) {
  volk("1");
  e.setWahl("optitieraus", 3);
  e.setWahl("optiauswertung", 1);
  EXPECT_EQ(starte(), QStringList("Keine zu listenden Daten gefunden"));
}

TEST_F(ArbeitszeitenTest, DreißigJahreGehenEinunddreißigNicht) {
  zeitraum(2000, 2029);
  EXPECT_EQ(gründe(), QStringList());
  zeitraum(2000, 2030);
  EXPECT_EQ(gründe(), QStringList("...die Auswertung max. über 30 Jahre erlaubt ist."));
}

TEST_F(ArbeitszeitenTest, DasErsteJahrNachDemLetztenWirdAbgelehnt) {
  zeitraum(2006, 2005);
  EXPECT_EQ(starte(), QStringList("Die Daten können nicht gelistet werden, weil...\r\n\r\n...das "
                                  "'Wirtschaftsjahr von' größer ist als das 'Wirtschaftsjahr "
                                  "bis'."));
}

TEST_F(ArbeitszeitenTest, WasKeineJahreszahlIstWirdGenannt) {
  e.setText("t", 0, "");
  e.setText("t", 1, "20*6");
  EXPECT_EQ(gründe(), QStringList({"...das Jahr '' keine vierstellige Jahreszahl ist.",
                                   "...das Jahr '20*6' keine vierstellige Jahreszahl ist."}));
  zeitraum(99, 20060);
  EXPECT_EQ(gründe().size(), 2);
  e.setText("t", 0, "0999");
  e.setText("t", 1, "2006");
  EXPECT_EQ(gründe(), QStringList("...das Jahr '0999' keine vierstellige Jahreszahl ist."));
}

TEST_F(ArbeitszeitenTest, JahreDieNieGespeichertWurdenSindDasLaufende) {
  EinstellungenZahl[Zahlslots.jahrVon] = 0;
  EinstellungenZahl[Zahlslots.jahrBis] = 0;
  öffne(Arbeitszeiten::beschreibung());
  EXPECT_EQ(e.text("t", 0), "2006");
  EXPECT_EQ(e.text("t", 1), "2006");
  EinstellungenZahl[Zahlslots.jahrVon] = 2001;
  öffne(Arbeitszeiten::beschreibung());
  EXPECT_EQ(e.text("t", 1), "2001");
}

TEST_F(ArbeitszeitenTest, DieKästchenStehenMitEinerZifferImSpeicher) {
  hake("konkost", {0, 8});
  hake("kontier", {1});
  e.setWahl("optiauswertung", 1);
  Auswertung::sichern(b, e);
  EXPECT_EQ(EinstellungenText[Textslots.arbeitszeitTabellen], "100000001");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.nachVölkern], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.jahrVon], 2004);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.jahrBis], 2005);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.listeVolkname], 1);
}

TEST_F(ArbeitszeitenTest, DerFortschrittGehtDurchDieTabellen) {
  hake("konkost", AlleTabellen);
  starte();
  EXPECT_EQ(fortschritt.size(), 9);
}

// ---- beside a statement for each cell ----

class ArbeitszeitenGenau : public MitArbeitszeiten<Vergleichsbestand> {
 protected:
  static constexpr int Tabellen = 9;
  static QString tabelle(int nummer) {
    return QStringList{"Honigernte", "Wachsernte",      "Pollenernte", "Sonstigeernte", "Arbeiten",
                       "Wanderung",  "Gewichtsmessung", "Behandlung",  "Königinwechsel"}[nummer];
  }

  // A row's cells behind the leading ones.
  QStringList zellen(const std::function<QString(const QString&)>& anweisung) {
    QStringList alle;
    double gesamt = 0;
    for (int i = 0; i < Tabellen; ++i) {
      if (!e.an("konkost", i)) continue;
      const double summe = gelesen(anweisung(tabelle(i)));
      m_summe[i] += summe;
      gesamt += summe;
      alle += ZahlFormat(summe, 2);
    }
    m_summe[Tabellen] += gesamt;
    return alle + QStringList(ZahlFormat(gesamt, 2));
  }
  QStringList summenzeile() {
    QStringList alle;
    for (int i = 0; i <= Tabellen; ++i)
      if (i == Tabellen || e.an("konkost", i)) alle += ZahlFormat(m_summe[i], 2);
    return alle;
  }

  QStringList jeJahr() {
    QStringList alle;
    for (int jahr = e.text("t", 0).toInt(); jahr <= e.text("t", 1).toInt(); ++jahr) {
      const QString j = QString::number(jahr);
      const auto anweisung = [&](const QString& tabelle) {
        return "select sum(Zeit_h) as summe from " + tabelle + ", Bienenvolk" + rest() +
               " and Datum >= #01/01/" + j + "# and Datum <= #12/31/" + j +
               "# and Volk_ID = Bienenvolk.ID";
      };
      alle += (QStringList(j) + zellen(anweisung)).join('|');
    }
    return alle + QStringList((QStringList("SUMME") + summenzeile()).join('|'));
  }
  QStringList jeVolk() {
    QStringList alle;
    const Daten völker =
        db().Lesen("select Volknr, Volkname, Standort, ID from Bienenvolk" + rest());
    for (int v = 0; v < völker->zeilen(); ++v) {
      const auto anweisung = [&](const QString& tabelle) {
        return "select sum(Zeit_h) as summe from " + tabelle +
               " where Volk_ID = " + völker->anzeige(v, 3) + " and Datum >= #01/01/" +
               e.text("t", 0) + "# and Datum <= #12/31/" + e.text("t", 1) + "#";
      };
      alle +=
          (QStringList{völker->anzeige(v, 0), völker->anzeige(v, 1)} + zellen(anweisung)).join('|');
    }
    return alle + QStringList((QStringList{"SUMME", ""} + summenzeile()).join('|'));
  }

  void vergleiche(int variante) {
    e.volk = 4;
    e.setWahl("optiauswertung", variante);
    hake("kontier", {0, 1, 2}, false);
    hake("kontier", {0, 1});
    for (const auto& jahre : zeiträume()) {
      zeitraum(jahre.von, jahre.bis);
      for (int wahl = 0; wahl < 5; ++wahl) {
        m_summe.fill(0);
        e.setWahl("optitieraus", wahl);
        const QStringList ist = starte().mid(1);
        QStringList soll = variante == 0 ? jeJahr() : jeVolk();
        if (m_summe[Tabellen] == 0) soll.removeLast();
        EXPECT_TRUE(gleich(ist, soll)) << wahl;
      }
    }
  }

  std::array<double, Tabellen + 1> m_summe{};
};

TEST_P(ArbeitszeitenGenau, JeJahrWieMitEinerAnweisungJeZelle) {
  hake("konkost", AlleTabellen);
  vergleiche(0);
  hake("konkost", {1, 2, 6, 8}, false);
  vergleiche(0);
}

TEST_P(ArbeitszeitenGenau, JeVolkWieMitEinerAnweisungJeZelle) {
  hake("konkost", AlleTabellen);
  vergleiche(1);
  hake("konkost", {1, 2, 6, 8}, false);
  vergleiche(1);
}

INSTANTIATE_TEST_SUITE_P(Bestände, ArbeitszeitenGenau,
                         testing::Values(Bestand::Beispiel, Bestand::Dicht), bestandsname);

}  // namespace
