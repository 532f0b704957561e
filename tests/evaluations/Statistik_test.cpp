#include "evaluations/Statistik.h"

#include "core/globals.h"
#include "evaluations/Vergleichsbestand.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

// The measures with the statement that each stands for.
struct Erwartet {
  const char* titel;
  const char* schlüssel;
  const char* anweisung;
  const char* format;
};

// clang-format off
constexpr Erwartet Maße[] = {
    {"Anzahl Honigernten", "Anz_Honigernten", "select count(*) as summe from Honigernte", "0"},
    {"Durchschn. Honigernte (kg)", "D_Honigernte", "select avg(Menge_kg) as summe from Honigernte", "0.0"},
    {"Gesamte Honigernte (kg)", "G_Honigernte", "select sum(Menge_kg) as summe from Honigernte", "0.0"},
    {"Durchschn. Honigwert je kg", "D_Honigwert", "select sum(Menge_kg) as summe, sum(Honig_Wert) as summe1 from Honigernte", "currency"},
    {"Gesamter Honigwert", "G_Honigwert", "select sum(Honig_Wert) as summe from Honigernte", "currency"},
    {"Anzahl Wachsernten", "Anz_Wachsernten", "select count(*) as summe from Wachsernte", "0"},
    {"Durchschn. Wachsernte (kg)", "D_Wachsernte", "select avg(Menge_kg) as summe from Wachsernte", "0.0"},
    {"Gesamte Wachsernte (kg)", "G_Wachsernte", "select sum(Menge_kg) as summe from Wachsernte", "0.0"},
    {"Durchschn. Wachsert je kg", "D_Wachswert", "select sum(Menge_kg) as summe, sum(Wachs_Wert) as summe1 from Wachsernte", "currency"},
    {"G_Wachswert", "G_Wachswert", "select sum(Wachs_Wert) as summe from Wachsernte", "currency"},
    {"Anzahl Pollenernten", "Anz_Pollenernten", "select count(*) as summe from Pollenernte", "0"},
    {"Durchschn. Pollenernte (g)", "D_Pollenernte", "select avg(Menge_g) as summe from Pollenernte", "0.0"},
    {"Gesamte Pollenernte (g)", "G_Pollenernte", "select sum(Menge_g) as summe from Pollenernte", "0.0"},
    {"Durchschn. Pollenwert je g", "D_Pollenwert", "select sum(Menge_g) as summe, sum(Pollen_Wert) as summe1 from Pollenernte", "currency"},
    {"Gesamter Pollenwert", "G_Pollenwert", "select sum(Pollen_Wert) as summe from Pollenernte", "currency"},
    {"Anzahl Standortprämien", "Anz_Standortprämien", "select count(*) as summe from Wanderung", "0"},
    {"Durchschn. Standortprämie", "D_Standortprämie", "select avg(Standortprämie) as summe from Wanderung", "currency"},
    {"Gesamte Standortprämie", "G_Standortprämie", "select sum(Standortprämie) as summe from Wanderung", "currency"},
    {"Anzahl Gewichtsmessungen", "Anz_Gewichtsmess", "select count(*) as summe from Gewichtsmessung", "0"},
    {"Durchschn. Gewicht (kg)", "D_Gewicht", "select avg(Gewicht_kg) as summe from Gewichtsmessung", "0.0"},
    {"Anzahl Stockkarten-Buchungen", "Anz_Stockbuchung", "select count(*) as summe from Stockkarte", "0"},
    {"Durchschn. Volksstärke lt. Stockkarte", "D_Volksstärke", "select avg(Stockkarte.Volkstärke) as summe from Stockkarte", "0.0"},
    {"Durchschn. Brutstand lt. Stockkarte", "D_Brutstand", "select avg(Stockkarte.Brutstand) as summe from Stockkarte", "0.0"},
    {"Durchschn. Wabensitz lt. Stockkarte", "D_Wabensitz", "select avg(Stockkarte.Wabensitz) as summe from Stockkarte", "0.0"},
    {"Durchschn. Sanftmut lt. Stockkarte", "D_Sanftmut", "select avg(Stockkarte.Sanftmut) as summe from Stockkarte", "0.0"},
    {"Durchschn. Schwarmtrieb lt. Stockkarte", "D_Schwarmtrieb", "select avg(Stockkarte.Schwarmtrieb) as summe from Stockkarte", "0.0"},
    {"Durchschn. Frühjahrsentw. lt. Stockkarte", "D_Frühjahrsentw", "select avg(Stockkarte.Frühjahrsentw) as summe from Stockkarte", "0.0"},
    {"Durchschn. Winterfestigkeit lt. Stockkarte", "D_Winterfest", "select avg(Stockkarte.Winterfestigkeit) as summe from Stockkarte", "0.0"},
    {"Durchschn. Varroabefall lt. Stockkarte", "D_Varroa", "select avg(Stockkarte.Varroabefall) as summe from Stockkarte", "0.0"},
    {"Durchschn. Belagerung lt. Stockkarte", "D_Belagerung", "select avg(Stockkarte.Belagert) as summe from Stockkarte", "0.0"},
    {"Durchschn. Anz. Magazine lt. Stockkarte", "D_Magazine", "select avg(Stockkarte.Magazine) as summe from Stockkarte", "0.0"},
    {"Durchschn. Anz. Mittelwände lt. Stockkarte", "D_Mittelwände", "select avg(Stockkarte.Mittelwände) as summe from Stockkarte", "0.0"},
    {"Durchschn. Anz. Waben lt. Stockkarte", "D_Waben", "select avg(Stockkarte.Waben) as summe from Stockkarte", "0.0"},
    {"Durchschn. Anz. Honigwaben lt. Stockkarte", "D_HonigW", "select avg(Stockkarte.Honigwaben) as summe from Stockkarte", "0.0"},
    {"Durchschn. Anz. Brutwaben lt. Stockkarte", "D_BrutW", "select avg(Stockkarte.Brutwaben) as summe from Stockkarte", "0.0"},
    {"Durchschn. Anz. Pollenwaben lt. Stockkarte", "D_PollenW", "select avg(Stockkarte.Pollenwaben) as summe from Stockkarte", "0.0"},
    {"Durchschn. Anz. Drohnenwaben lt. Stockkarte", "D_DrohnenW", "select avg(Stockkarte.Drohnenwaben) as summe from Stockkarte", "0.0"},
    {"Durchschn. Anz. Leerwaben lt. Stockkarte", "D_LeerW", "select avg(Stockkarte.Leerwaben) as summe from Stockkarte", "0.0"},
    {"Durchschn. Anz. Futterwaben lt. Stockkarte", "D_FutterW", "select avg(Stockkarte.Futterwaben) as summe from Stockkarte", "0.0"},
    {"Durchschn. Futter flüssig lt. Stockkarte", "D_Futter_fl", "select avg(Futter_flüssig_l) as summe from Stockkarte", "0.0"},
    {"Durchschn. Futter Teig lt. Stockkarte", "D_Futter_Teig", "select avg(Futter_Teig_kg) as summe from Stockkarte", "0.0"},
    {"Durchschn. Eigener Futtervorrat lt. Stockkarte", "D_Futter_eig", "select avg(Eigener_Futtervorrat) as summe from Stockkarte", "0.0"},
};
// clang-format on

template <class Betrieb>
class MitStatistik : public Betrieb {
 protected:
  void SetUp() override {
    Betrieb::SetUp();
    this->öffne(Statistik::beschreibung());
    this->zeitraum(2004, 2005);
    this->hake("kontier", {0});
  }
  void wähle(const QStringList& schlüssel) { this->e.setGewählt("li1", schlüssel); }
};

class StatistikTest : public MitStatistik<Zahlenbetrieb> {
 protected:
  static void ernte(const QVariant& volk, const QString& tag, const QVariant& kg,
                    const QVariant& wert = {}) {
    buche("Honigernte", volk, tag, {{"Menge_kg", kg}, {"Honig_Wert", wert}});
  }
};

TEST_F(StatistikTest, ZweiundvierzigMaßeInIhrerOrdnung) {
  const auto posten = b.eingabe("li1")->posten(db(), e);
  ASSERT_EQ(posten.size(), 42);
  for (int i = 0; i < 42; ++i) {
    EXPECT_EQ(posten[i].titel, Maße[i].titel);
    EXPECT_EQ(posten[i].schlüssel, Maße[i].schlüssel);
  }
}

TEST_F(StatistikTest, EinJahrOhneErnteHatNullenUndNieLeereZellen) {
  volk("1");
  zeitraum(2004, 2004);
  wähle({"Anz_Honigernten", "D_Honigernte", "G_Honigwert", "D_Pollenwert"});
  EXPECT_EQ(starte("ok_1"),
            QStringList({"Jahr|Anzahl Honigernten|Durchschn. Honigernte (kg)|Gesamter Honigwert|"
                         "Durchschn. Pollenwert je g",
                         "2004|0|0,0|0,00 €|0,00 €"}));
  EXPECT_EQ(spalten(), QStringList({"Jahr", "Anz_Honigernten (Zahl)", "D_Honigernte (Zahl)",
                                    "G_Honigwert (Zahl)", "D_Pollenwert (Zahl)"}));
}

TEST_F(StatistikTest, JeVolkStehenVornDieGewähltenFelderUndDieVölkerNachIhrerNummer) {
  const qint64 zwei = volk("2");
  const qint64 eins = volk("10");
  ernte(zwei, "01.01.2004", 10.0, 50);
  ernte(zwei, "31.12.2005", 5.5, 1200.5);
  ernte(zwei, "31.12.2003", 100);
  ernte(eins, "01.06.2004", 3);
  hake("kontier", {2});
  wähle({"Anz_Honigernten", "D_Honigernte", "G_Honigernte", "G_Honigwert"});
  EXPECT_EQ(starte("ok_0"),
            QStringList({"Volknr|Standort|Anzahl Honigernten|Durchschn. Honigernte (kg)|Gesamte "
                         "Honigernte (kg)|Gesamter Honigwert",
                         "10|Hof|1|3,0|3,0|0,00 €", "2|Hof|2|7,8|15,5|1.250,50 €"}));
  EXPECT_EQ(spalten().mid(0, 3), QStringList({"volknr", "standort", "Anz_Honigernten (Zahl)"}));
}

TEST_F(StatistikTest, DerPreisIstDasMitMengenGewogeneMittel) {
  const qint64 eins = volk("1");
  ernte(eins, "01.06.2004", 10, 100);
  ernte(eins, "02.06.2004", 30, 150);
  wähle({"D_Honigwert"});
  EXPECT_EQ(starte("ok_0")[1], "1|6,25 €");
}

TEST_F(StatistikTest, OhneMengeIstDerPreisNull) {
  ernte(volk("1"), "01.06.2004", 0, 100);
  wähle({"D_Honigwert", "G_Honigwert"});
  EXPECT_EQ(starte("ok_0")[1], "1|0,00 €|100,00 €");
}

TEST_F(StatistikTest, WasNichtImBestandIstZähltNurJeJahr) {
  ernte(volk("1", ""), "01.06.2004", 10);
  ernte(volk("2", QVariant()), "01.06.2004", 10);
  volk("3");
  ernte(4711, "01.06.2004", 10);
  ernte(QVariant(), "01.06.2004", 10);
  wähle({"Anz_Honigernten"});
  zeitraum(2004, 2004);
  EXPECT_EQ(starte("ok_0"), QStringList({"Volknr|Anzahl Honigernten", "3|0"}));
  EXPECT_EQ(starte("ok_1"), QStringList({"Jahr|Anzahl Honigernten", "2004|4"}));
}

TEST_F(StatistikTest, EineLeereNoteZähltNichtImMittelAberAlsBuchung) {
  const qint64 eins = volk("1");
  buche("Stockkarte", eins, "01.06.2004", {{"Brutstand", 3}});
  buche("Stockkarte", eins, "02.06.2004", {{"Brutstand", QVariant()}});
  buche("Stockkarte", eins, "03.06.2004", {{"Brutstand", 2}});
  wähle({"Anz_Stockbuchung", "D_Brutstand"});
  EXPECT_EQ(starte("ok_0")[1], "1|3|2,5");
}

TEST_F(StatistikTest, NurErhalteneStandortprämienZählen) {
  const qint64 eins = volk("1");
  buche("Wanderung", eins, "01.06.2004", {{"Standortprämie", 50}, {"Prämie_erhalten", "J"}});
  buche("Wanderung", eins, "02.06.2004", {{"Standortprämie", 70}, {"Prämie_erhalten", "N"}});
  buche("Wanderung", eins, "03.06.2004", {{"Standortprämie", 70}});
  buche("Wanderung", eins, "04.06.2004", {{"Standortprämie", 20}, {"Prämie_erhalten", "J"}});
  wähle({"Anz_Standortprämien", "D_Standortprämie", "G_Standortprämie"});
  EXPECT_EQ(starte("ok_0")[1], "1|2|35,00 €|70,00 €");
}

// ---- averages ----

TEST_F(StatistikTest, DieLetzteSpalteHatKeinenSchnitt) {
  const qint64 eins = volk("1");
  ernte(eins, "01.06.2004", 10);
  ernte(eins, "02.06.2004", 10);
  e.setAn("konschnitt", true);
  wähle({"Anz_Honigernten", "G_Honigernte"});
  EXPECT_EQ(starte("ok_1").mid(1), QStringList({"2004|2|20,0", "2005|0|0,0", "SCHNITT|2,0|"}));
  wähle({"G_Honigernte"});
  EXPECT_EQ(starte("ok_1").last(), "SCHNITT|");
}

TEST_F(StatistikTest, NullenZiehenDenSchnittNichtHinunter) {
  const qint64 eins = volk("1");
  const qint64 zwei = volk("2");
  volk("3");
  ernte(eins, "01.06.2004", 10, 1000);
  ernte(zwei, "01.06.2004", 5, 234.5);
  e.setAn("konschnitt", true);
  hake("kontier", {0, 1, 2});
  wähle({"G_Honigernte", "G_Honigwert", "G_Wachswert", "Anz_Wachsernten"});
  EXPECT_EQ(
      starte("ok_0").mid(1),
      QStringList({"1|Volk 1|Hof|10,0|1.000,00 €|0|0,00 €", "2|Volk 2|Hof|5,0|234,50 €|0|0,00 €",
                   "3|Volk 3|Hof|0,0|0,00 €|0|0,00 €", "SCHNITT|||7,5|617,3|0,0|"}));
}

// 2.25 and 2.25 are read as 2.3 each.
TEST_F(StatistikTest, DerSchnittGehtÜberDieGelistetenZahlen) {
  ernte(volk("1"), "01.06.2004", 2.25);
  ernte(volk("2"), "01.06.2004", 2.16);
  e.setAn("konschnitt", true);
  wähle({"D_Honigernte", "G_Honigernte"});
  EXPECT_EQ(starte("ok_0").mid(1), QStringList({"1|2,3|2,3", "2|2,2|2,2", "SCHNITT|2,3|"}));
}

TEST_F(StatistikTest, OhneVolkStehtHöchstensDerSchnitt) {
  wähle({"Anz_Honigernten", "G_Honigernte"});
  EXPECT_EQ(starte("ok_0"), QStringList("Keine zu listenden Daten gefunden"));
  e.setAn("konschnitt", true);
  EXPECT_EQ(starte("ok_0").mid(1), QStringList("SCHNITT|0,0|"));
}

// ---- inputs ----

TEST_F(StatistikTest, ZwanzigJahreAbstandGehenEinundzwanzigNicht) {
  zeitraum(2000, 2020);
  EXPECT_EQ(gründe("ok_1"), QStringList());
  zeitraum(2000, 2021);
  EXPECT_EQ(starte("ok_1"),
            QStringList("Die Statisktik kann nicht erstellt werden, weil...\r\n\r\n...der "
                        "Unterschied Jahr von... zu Jahr bis... max. 20 Jahre sein darf."));
}

TEST_F(StatistikTest, DasErsteJahrNachDemLetztenWirdAbgelehnt) {
  zeitraum(2005, 2004);
  EXPECT_EQ(gründe("ok_0"),
            QStringList("...das Jahr von... nicht höher sein darf als das Jahr bis...!"));
}

TEST_F(StatistikTest, WasKeineJahreszahlIstWirdGenannt) {
  e.setText("t", 1, "20");
  EXPECT_EQ(gründe("ok_0"), QStringList("...das Jahr '20' keine vierstellige Jahreszahl ist."));
}

TEST_F(StatistikTest, OhneGewähltesWirdAllesGelistet) {
  volk("1");
  hake("kontier", {0}, false);
  EXPECT_EQ(starte("ok_0")[0].split('|').size(), 3 + 42);
  EXPECT_EQ(e.gewählt("li1").size(), 42);
  EXPECT_TRUE(e.an("kontier", 0) && e.an("kontier", 1) && e.an("kontier", 2));
}

TEST_F(StatistikTest, EinVorgewähltesFeldDesVolkesBleibtAllein) {
  volk("1");
  hake("kontier", {0}, false);
  hake("kontier", {1});
  wähle({"Anz_Honigernten"});
  EXPECT_EQ(starte("ok_0"), QStringList({"Volkname|Anzahl Honigernten", "Volk 1|0"}));
}

TEST_F(StatistikTest, DieMaßeStehenMitIhremSchlüsselImSpeicher) {
  wähle({"Anz_Honigernten", "D_Futter_eig"});
  e.setAn("konschnitt", true);
  Auswertung::sichern(b, e);
  EXPECT_EQ(EinstellungenText[Textslots.statistikMaße], ";Anz_Honigernten;D_Futter_eig;");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.statistikSchnitt], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.listeVolknummer], 1);
}

TEST_F(StatistikTest, JahreAußerhalbVon1901Bis2099WerdenDasLaufende) {
  const auto geladen = [this](int von, int bis) {
    EinstellungenZahl[Zahlslots.jahrVon] = static_cast<qint16>(von);
    EinstellungenZahl[Zahlslots.jahrBis] = static_cast<qint16>(bis);
    öffne(Statistik::beschreibung());
    return e.text("t", 0) + "-" + e.text("t", 1);
  };
  EXPECT_EQ(geladen(1901, 2099), "1901-2099");
  EXPECT_EQ(geladen(1900, 2100), "2006-2006");
  EXPECT_EQ(geladen(0, 2001), "2006-2001");
}

// ---- beside a statement for each cell ----

class StatistikGenau : public MitStatistik<Vergleichsbestand> {
 protected:
  static QString zelle(const Erwartet& maß, QString bedingung) {
    const QString kopf = maß.anweisung;
    if (kopf.endsWith("from Wanderung")) bedingung += " and Prämie_erhalten = 'J'";
    const Daten zeile = db().Lesen(kopf + bedingung);
    double wert = ZahlLesen(TextLesen(zeile->wert(0, 0)));
    if (kopf.contains("summe1")) {
      const auto menge = static_cast<float>(wert);
      const auto geld = static_cast<float>(ZahlLesen(TextLesen(zeile->wert(0, 1))));
      wert = menge != 0 ? Deutsch::einfach(static_cast<double>(geld / menge)) : 0;
    }
    const QString format = maß.format;
    if (format == "currency") return Deutsch::währung(wert);
    return ZahlFormat(wert, format == "0" ? 0 : 1);
  }
  QStringList zellen(const QString& bedingung) {
    QStringList alle;
    for (const Erwartet& maß : Maße)
      if (e.gewählt("li1").contains(maß.schlüssel)) alle += zelle(maß, bedingung);
    return alle;
  }
  static QString schnitt(const QList<QStringList>& zeilen, int köpfe) {
    QStringList alle("SCHNITT");
    for (int i = 1; i < köpfe; ++i) alle += "";
    for (qsizetype spalte = köpfe; spalte < zeilen[0].size() - 1; ++spalte) {
      double summe = 0;
      int anzahl = 0;
      for (const QStringList& zeile : zeilen) {
        const double zahl = ZahlLesen(zeile[spalte]);
        if (zahl != 0) ++anzahl;
        summe += zahl;
      }
      alle += ZahlFormat(Deutsch::einfach(anzahl == 0 ? 0 : summe / anzahl), 1);
    }
    return (alle + QStringList("")).join('|');
  }
  QStringList fertig(const QList<QStringList>& zeilen, int köpfe) {
    QStringList alle;
    for (const QStringList& zeile : zeilen) alle += zeile.join('|');
    return alle + QStringList(schnitt(zeilen, köpfe));
  }

  QStringList jeVolk() {
    QList<QStringList> alle;
    const Daten völker = db().Lesen(
        "select Volknr, Volkname, Standort, ID from Bienenvolk where Akt_im_Bestand = 'X' order by "
        "Volknr");
    for (int v = 0; v < völker->zeilen(); ++v)
      alle += QStringList(völker->anzeige(v, 0)) +
              QStringList{völker->anzeige(v, 1), völker->anzeige(v, 2)} +
              zellen(" where Datum >= #01/01/" + e.text("t", 0) + "# and Datum <= #12/31/" +
                     e.text("t", 1) + "# and Volk_ID = " + völker->anzeige(v, 3));
    return fertig(alle, 3);
  }
  QStringList jeJahr() {
    QList<QStringList> alle;
    for (int jahr = e.text("t", 0).toInt(); jahr <= e.text("t", 1).toInt(); ++jahr) {
      const QString j = QString::number(jahr);
      alle += QStringList(j) +
              zellen(" where Datum >= #01/01/" + j + "# and Datum <= #12/31/" + j + "#");
    }
    return fertig(alle, 1);
  }

  void vergleiche() {
    hake("kontier", {0, 1, 2});
    e.setAn("konschnitt", true);
    EXPECT_TRUE(gleich(starte("ok_0").mid(1), jeVolk()));
    EXPECT_TRUE(gleich(starte("ok_1").mid(1), jeJahr()));
  }
};

TEST_P(StatistikGenau, AlleMaßeWieMitEinerAnweisungJeZelle) {
  wähle(e.angebot("li1"));
  for (const auto& jahre : zeiträume()) {
    zeitraum(jahre.von, jahre.bis);
    vergleiche();
  }
}

TEST_P(StatistikGenau, JedesMaßAlleinWieMitEinerAnweisungJeZelle) {
  zeitraum(zeiträume()[1].von, zeiträume()[1].bis);
  for (const QString& schlüssel : e.angebot("li1")) {
    wähle({schlüssel});
    vergleiche();
  }
}

TEST_P(StatistikGenau, JahreOhneBuchungenWieMitEinerAnweisungJeZelle) {
  zeitraum(1901, 1921);
  wähle(e.angebot("li1"));
  vergleiche();
}

INSTANTIATE_TEST_SUITE_P(Bestände, StatistikGenau,
                         testing::Values(Bestand::Beispiel, Bestand::Dicht), bestandsname);

}  // namespace
