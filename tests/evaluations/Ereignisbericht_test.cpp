#include "evaluations/Ereignisbericht.h"

#include "evaluations/Buchungsbetrieb.h"
#include "evaluations/VoelkerBuchungen.h"
#include "examples/Betriebsfall.h"
#include "output/Uebergabe.h"
#include "platform/database/werte/Zeilenordnung.h"

namespace {

class Ereignisse : public Buchungsbetrieb {
 protected:
  static Probelauf auswertung(bool nummer = true, bool name = false) {
    Probelauf a(VölkerBuchungen::beschreibung());
    a.hake("konereignis");
    a.wähle("optitieraus", 1);
    a.hake("kontier_0", nummer);
    a.hake("kontier_1", name);
    return a;
  }
  // On three days at two colonies, in no order.
  void betrieb() {
    ernte(zwei, tag(6, 20), 12.5, "gut");
    buche("Arbeiten", zehn, tag(6, 20), {"Arbeitsart"}, {"Schleudern"});
    ernte(zehn, tag(7, 1), 8);
    buche("Notizen", zwei, tag(5, 2), {"NOTIZ"}, {"Königin gesehen"});
  }
};

TEST_F(Ereignisse, DieSpaltenMitUndOhneVolk) {
  betrieb();
  EXPECT_EQ(auswertung(false).liste("ok").überschriften(),
            QStringList({"Datum", "Buchung", "Hinweise"}));
  const Ausgabeliste liste = auswertung(true, true).liste("ok");
  EXPECT_EQ(liste.überschriften(),
            QStringList({"Datum", "Buchung", "Volknr", "Volkname", "Hinweise"}));
  QStringList keys;
  for (int i = 0; i < liste.spalten(); ++i) keys += liste.daten()->spalte(i).name;
  EXPECT_EQ(keys, QStringList({"datum", "buchung", "vnummer", "vname", "hinweise"}));
  EXPECT_EQ(liste.daten()->spalte(0).typ, Feldtyp::Datum);
}

TEST_F(Ereignisse, SortiertNachTagUndVolknummer) {
  betrieb();
  EXPECT_EQ(zeilen(auswertung(true, true).liste("ok")),
            QStringList({"02.05.2006|Notizen|2|Ol`ga|Königin gesehen",
                         "20.06.2006|Arbeiten|10|Max & Moritz|Schleudern",
                         "20.06.2006|Honigernte|2|Ol`ga|12,5  gut",
                         "01.07.2006|Honigernte|10|Max & Moritz|8"}));
}

TEST_F(Ereignisse, NachVölkernGruppiertStehtDerTagAnZweiterStelle) {
  betrieb();
  Probelauf a = auswertung();
  a.hake("kontiergruppe");
  EXPECT_EQ(
      zeilen(a.liste("ok")),
      QStringList({"20.06.2006|Arbeiten|10|Schleudern", "01.07.2006|Honigernte|10|8",
                   "02.05.2006|Notizen|2|Königin gesehen", "20.06.2006|Honigernte|2|12,5  gut"}));
}

TEST_F(Ereignisse, MitLeerzeileStehtEineLeereZeileVorJedemWeiterenVolk) {
  betrieb();
  ernte(drei, tag(7, 1), 1);
  Probelauf a = auswertung();
  a.hake("kontiergruppe");
  a.hake("tierleer");
  const Ausgabeliste liste = a.liste("ok");
  const QStringList soll{"20.06.2006|Arbeiten|10|Schleudern",
                         "01.07.2006|Honigernte|10|8",
                         "|||",
                         "02.05.2006|Notizen|2|Königin gesehen",
                         "20.06.2006|Honigernte|2|12,5  gut",
                         "|||",
                         "01.07.2006|Honigernte|3|1"};
  EXPECT_EQ(zeilen(liste), soll);
  EXPECT_FALSE(liste.istTrennzeile(2));
  Übergabe::schreiben(Übergabe::datei(), liste);
  EXPECT_EQ(zeilen(Übergabe::lesen(Übergabe::datei())), soll);
}

TEST_F(Ereignisse, OhneGruppierungGibtEsKeineLeerzeile) {
  betrieb();
  Probelauf a = auswertung();
  a.hake("tierleer");
  EXPECT_EQ(a.liste("ok").zeilen(), 4);
}

TEST_F(Ereignisse, GruppiertWirdAuchWennDieVolknummerNichtGezeigtWird) {
  betrieb();
  Probelauf a = auswertung(false);
  a.hake("kontiergruppe");
  a.hake("tierleer");
  EXPECT_EQ(zeilen(a.liste("ok")),
            QStringList({"20.06.2006|Arbeiten|Schleudern", "01.07.2006|Honigernte|8", "||",
                         "02.05.2006|Notizen|Königin gesehen", "20.06.2006|Honigernte|12,5  gut"}));
}

TEST_F(Ereignisse, DieHinweiseJederTabelle) {
  buche("Stockkarte", zwei, tag(1, 1),
        {"Volkstärke", "Brutstand", "Wabensitz", "Sanftmut", "Schwarmtrieb", "Frühjahrsentw",
         "Winterfestigkeit", "Varroabefall"},
        {3.5, 2, QVariant(), 4, 1, 5, 4.5, 0.5});
  ernte(zwei, tag(1, 2), 12.5, "gut");
  buche("Wachsernte", zwei, tag(1, 3), {"Menge_kg", "Qualität"}, {0.75, "hell"});
  buche("Pollenernte", zwei, tag(1, 4), {"Menge_g", "Qualität"}, {250, "frisch"});
  buche("Sonstigeernte", zwei, tag(1, 5), {"Ernteart", "Menge_g", "Qualität"},
        {"Propolis", 40, "rein"});
  buche("Arbeiten", zwei, tag(1, 6), {"Arbeitsart"}, {"Ol'ga zeichnen"});
  buche("Wanderung", zwei, tag(1, 7), {"Standort"}, {"Heide"});
  buche("Gewichtsmessung", zwei, tag(1, 8), {"Gewicht_kg"}, {41.25});
  buche("Behandlung", zwei, tag(1, 9), {"Mittel", "Menge_g", "Behandlungsart"},
        {"Ameisensäure", 60, "Sommer"});
  buche("Königinwechsel", zwei, tag(1, 10), {"Herkunft", "Zuchtindex", "Farbe"},
        {"eigene Zucht", "112", "blau"});
  buche("Notizen", zwei, tag(1, 11), {"NOTIZ"}, {"zwei\r\nZeilen"});
  QStringList ist;
  for (const QStringList& z : Probelauf::zeilen(auswertung(false).liste("ok")))
    ist += z.mid(1).join(": ");
  EXPECT_EQ(ist,
            QStringList({"Stockkarte: VS=3,5  BS=2  WS=  SM=4  ST=1  FE=5  WF=4,5  VM=0,5",
                         "Honigernte: 12,5  gut", "Wachsernte: 0,75  hell",
                         "Pollenernte: 250  frisch", "Sonstigeernte: Propolis  40  rein",
                         "Arbeiten: Ol`ga zeichnen", "Wanderung: Heide", "Gewichtsmessung: 41,25",
                         "Behandlung: Ameisensäure  60  Sommer",
                         "Königinwechsel: eigene Zucht  112  blau", "Notizen: zwei\r\nZeilen"}));
}

TEST_F(Ereignisse, EineFehlendeAngabeHatIhrenPlatzAmEndeKeinen) {
  buche("Sonstigeernte", zwei, tag(1, 1), {"Menge_g"}, {40});
  buche("Sonstigeernte", zwei, tag(1, 2), {"Ernteart", "Qualität"}, {"Propolis", "rein"});
  EXPECT_EQ(
      zeilen(auswertung(false).liste("ok")),
      QStringList({"01.01.2006|Sonstigeernte|  40", "02.01.2006|Sonstigeernte|Propolis    rein"}));
}

TEST_F(Ereignisse, EineBuchungOhneTagStehtVorn) {
  betrieb();
  ernte(zwei, QVariant(), 1);
  EXPECT_EQ(zeilen(auswertung().liste("ok")).first(), "|Honigernte|2|1");
}

TEST_F(Ereignisse, JedeVölkerwahlNimmtIhreVölker) {
  for (const qint64 id : {zehn, zwei, drei}) ernte(id, tag(6, 1), 1);
  ernte(999, tag(6, 1), 1);  // of no colony
  db().Execute("update Bienenvolk set Selektiert = 'X' where Volknr = '3'");
  const QStringList erwartet[]{{"10", "2"}, {"10", "2", "3"}, {"3"}, {"3"}, {"2"}};
  for (int wahl = 0; wahl < 5; ++wahl) {
    Probelauf a = auswertung();
    a.wähle("optitieraus", wahl);
    a.e.volk = zwei;
    QStringList nummern;
    for (const QStringList& z : Probelauf::zeilen(a.liste("ok"))) nummern += z.at(2);
    EXPECT_EQ(nummern, erwartet[wahl]) << wahl;
  }
}

TEST_F(Ereignisse, DerZeitraumGiltMitSeinenGrenzen) {
  betrieb();
  Probelauf a = auswertung();
  a.wähle("optibuch", 1);
  a.tippe("tdat_0", "20.06.2006");
  a.tippe("tdat_1", "01.07.2006");
  EXPECT_EQ(a.liste("ok").zeilen(), 3);
  a.tippe("tdat_1", "30.06.2006");
  EXPECT_EQ(a.liste("ok").zeilen(), 2);
  a.wähle("optitieraus", 4);
  a.e.volk = zehn;
  EXPECT_EQ(zeilen(a.liste("ok")), QStringList("20.06.2006|Arbeiten|10|Schleudern"));
}

// ---- the way by the letter ----

class Ereignisvergleich : public Betriebsfall {
 protected:
  void SetUp() override { standard(); }

  // One statement a table, its rows in its order, then sorted as lists sort.
  static QStringList nachBuchstaben(const Auswertung::Eingaben& e, const QString& rest) {
    Datenblock::Bauer bauer(
        {{"datum", Feldtyp::Datum, 0}, {"vnummer", Feldtyp::Memo, 0}, {"zeile", Feldtyp::Memo, 0}});
    for (const auto& art : Ereignisbericht::arten()) {
      QString anweisung = "select Bienenvolk.Volknr as Volknr, Bienenvolk.Volkname as Volkname, " +
                          art.tabelle + ".Datum as Datum";
      for (const auto& feld : art.felder)
        anweisung += ", " + art.tabelle + "." + feld.name + " as " + feld.name;
      const Daten d =
          DB.Lesen(anweisung + " from Bienenvolk, " + art.tabelle + rest +
                   (rest.isEmpty() ? " where " : " and ") + "Bienenvolk.ID = " + art.tabelle +
                   ".Volk_ID" + Auswertung::zeitraumRest(e, art.tabelle + ".Datum") +
                   " order by Bienenvolk.Volknr, " + art.tabelle + ".Datum");
      for (int i = 0; i < d->zeilen(); ++i) {
        QStringList hinweise;
        for (int f = 0; f < art.felder.size(); ++f)
          hinweise += art.felder[f].vorsatz + TextLesen(d->wert(i, 3 + f));
        QString text = hinweise.join("  ");
        while (text.endsWith(' ')) text.chop(1);
        bauer.wert(d->wert(i, 2));
        bauer.wert(d->wert(i, 0));
        bauer.text(QStringView(QStringList{TextLesen(d->wert(i, 2)), art.tabelle,
                                           TextLesen(d->wert(i, 0)), TextLesen(d->wert(i, 1)), text}
                                   .join('|')));
      }
    }
    return sortiert(*bauer.fertig(), e.an("kontiergruppe"));
  }
  static QStringList sortiert(const Datenblock& block, bool nachVolk) {
    std::vector<int> ordnung(static_cast<size_t>(block.zeilen()));
    std::iota(ordnung.begin(), ordnung.end(), 0);
    for (const int spalte : {nachVolk ? 0 : 1, nachVolk ? 1 : 0})
      Zeilenordnung::sortiere(ordnung, Zeilenordnung::schlüssel(block, spalte));
    QStringList zeilen;
    for (const int i : ordnung) zeilen += block.anzeige(i, 2);
    return zeilen;
  }
};

TEST_F(Ereignisvergleich, JedeZeileGleichtDerAusEinerAnweisungJeTabelle) {
  const QStringList reste{" where Akt_im_Bestand = 'X'", "", " where Selektiert = 'X'",
                          " where Akt_im_Bestand <> 'X'", " where Bienenvolk.ID = 3"};
  for (const bool nachVolk : {false, true})
    for (const int optibuch : {0, 1})
      for (const int wahl : {0, 1, 3, 4}) {
        Probelauf a(VölkerBuchungen::beschreibung());
        a.hake("konereignis");
        a.hake("kontier_0");
        a.hake("kontier_1");
        a.hake("tierleer", false);
        a.hake("kontiergruppe", nachVolk);
        a.wähle("optitieraus", wahl);
        a.e.volk = 3;
        a.wähle("optibuch", optibuch);
        a.tippe("tdat_0", "01.05.2025");
        a.tippe("tdat_1", "31.08.2025");
        QStringList ist;
        for (const QStringList& z : Probelauf::zeilen(a.liste("ok"))) ist += z.join('|');
        const QStringList soll = nachBuchstaben(a.e, reste[wahl]);
        EXPECT_GT(soll.size(), wahl == 3 ? -1 : 5);
        EXPECT_EQ(ist, soll) << nachVolk << optibuch << wahl;
      }
}

}  // namespace
