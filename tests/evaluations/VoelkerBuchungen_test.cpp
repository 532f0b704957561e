#include "evaluations/VoelkerBuchungen.h"

#include "evaluations/Buchungsbetrieb.h"

using namespace TZ_Variablen;

namespace {

enum Tabelle : int { Stockkarte, Honigernte, Wachsernte, Arbeiten = 5, Notizen = 10 };

class BuchungenErweitert : public Buchungsbetrieb {
 protected:
  static Probelauf auswertung() {
    Probelauf a(VölkerBuchungen::beschreibung());
    a.wähle("optitieraus", 1);
    return a;
  }
  // Four harvests of two colonies, two of them on one day.
  void ernten() {
    ernte(zwei, tag(7, 1), 3, "gut");
    ernte(zehn, tag(6, 20), 2.5, "mäßig");
    ernte(zehn, tag(5, 10), 1234.5);
    ernte(zehn, tag(6, 20), 7);
  }
};

// ---- inputs ----

TEST_F(BuchungenErweitert, ElfListenMitDenFeldernOhneSchlüssel) {
  const Probelauf a = auswertung();
  EXPECT_EQ(a.e.angebot("li_10"), QStringList({"Datum", "NOTIZ"}));
  EXPECT_EQ(a.e.angebot("li_5"),
            QStringList({"Datum", "Arbeitsart", "Zeit_h", "Kosten", "Bemerkung"}));
  for (int i = 0; i < 11; ++i) {
    EXPECT_FALSE(a.e.angebot(Auswertung::Eingaben::glied("li", i)).contains("Volk_ID"));
    EXPECT_FALSE(a.e.angebot(Auswertung::Eingaben::glied("li", i)).contains("ID"));
  }
}

TEST_F(BuchungenErweitert, AlleUndKeineGeltenFürJedeListe) {
  int listen = 0;
  int knöpfe = 0;
  for (const auto& gruppe : auswertung().b.gruppen) {
    for (const auto& eingabe : gruppe.eingaben)
      if (eingabe.art == Auswertung::Art::Merkliste) {
        EXPECT_NE(gruppe.alle, Auswertung::Gruppe::Alle::Nein);
        ++listen;
      }
    if (gruppe.alle == Auswertung::Gruppe::Alle::Knöpfe) ++knöpfe;
  }
  EXPECT_EQ(listen, 11);
  EXPECT_EQ(knöpfe, 1);
}

TEST_F(BuchungenErweitert, DieFelderLiegenInIhrenPlätzenNurDieNotizenNicht) {
  for (int i = 5; i <= 14; ++i) EinstellungenText[Textslot{i}] = ";Datum;";
  Probelauf a = auswertung();
  for (int i = 0; i < 10; ++i) EXPECT_EQ(a.e.gewählt("li", i), QStringList("Datum")) << i;
  EXPECT_EQ(a.e.gewählt("li", Notizen), QStringList());
  a.e.setGewählt("li", Honigernte, {"Menge_kg", "Charge"});
  a.e.setGewählt("li", Notizen, {"NOTIZ"});
  a.schließen();
  EXPECT_EQ(EinstellungenText[Textslots.honigernteFelder], ";Menge_kg;Charge;");
  a.öffnen();
  EXPECT_EQ(a.e.gewählt("li", Notizen), QStringList());
}

TEST_F(BuchungenErweitert, KästchenUndWahlLiegenInIhrenPlätzen) {
  EinstellungenZahl[Zahlslots.buchungsauswahl] = 2;
  EinstellungenZahl[Zahlslots.ereignisbericht] = 1;
  EinstellungenZahl[Zahlslots.ereignisseNachVölkern] = 1;
  EinstellungenZahl[Zahlslots.buchungenLeerzeile] = 1;
  EinstellungenZahl[Zahlslots.buchungenVolknummer] = 1;
  Probelauf a = auswertung();
  EXPECT_EQ(a.e.wahl("optibuch"), 2);
  for (const char* name : {"konereignis", "kontiergruppe", "tierleer", "kontier_0"}) {
    EXPECT_TRUE(a.e.an(name)) << name;
    a.hake(name, false);
  }
  a.schließen();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.ereignisbericht], 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.ereignisseNachVölkern], 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.buchungenLeerzeile], 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.buchungenVolknummer], 0);
}

TEST_F(BuchungenErweitert, OhneFeldGibtEsNurDenEreignisbericht) {
  ernten();
  Probelauf a = auswertung();
  a.drücke("ok");
  EXPECT_EQ(a.meldungen,
            QStringList("Die Daten können nicht gelistet werden, weil...\r\n\r\n"
                        "...keine zu listenden Datenfelder (Buchungen) ausgewählt sind."));
  a.hake("konereignis");
  EXPECT_EQ(a.liste("ok").zeilen(), 4);
}

TEST_F(BuchungenErweitert, DerZeitraumWirdAuchBeimEreignisberichtGeprüft) {
  Probelauf a = auswertung();
  a.hake("konereignis");
  a.wähle("optibuch", 1);
  a.drücke("ok");
  EXPECT_EQ(a.meldungen, QStringList("Die Daten können nicht gelistet werden, weil...\r\n\r\n"
                                     "...das Datum von...bis eingegeben werden muß."));
}

// ---- table by table ----

TEST_F(BuchungenErweitert, JedeTabelleHatNamenKopfZeilenUndZweiLeereDanach) {
  ernten();
  buche("Arbeiten", zwei, tag(4, 1), {"Arbeitsart", "Zeit_h", "Kosten"},
        {"Ol'ga zeichnen", 0.25, 3});
  Probelauf a = auswertung();
  a.hake("kontier_0");
  a.e.setGewählt("li", Honigernte, {"Datum", "Menge_kg", "Qualität"});
  a.e.setGewählt("li", Arbeiten, {"Arbeitsart", "Zeit_h", "Kosten", "Bemerkung"});
  const Ausgabeliste liste = a.liste("ok");
  EXPECT_EQ(liste.überschriften(), QStringList({"Volknr", "Feld 1", "Feld 2", "Feld 3", "Feld 4"}));
  EXPECT_EQ(zeilen(liste), QStringList({
                               "HONIGERNTE||||",
                               "VOLKNR|DATUM|MENGE_KG|QUALITÄT|",
                               "10|10.05.2006|1234,50||",
                               "10|20.06.2006|2,50|mäßig|",
                               "10|20.06.2006|7,00||",
                               "2|01.07.2006|3,00|gut|",
                               "||||",
                               "||||",
                               "ARBEITEN||||",
                               "VOLKNR|ARBEITSART|ZEIT_H|KOSTEN|BEMERKUNG",
                               "2|Ol`ga zeichnen|0,25|3,00|",
                               "||||",
                               "||||",
                           }));
}

TEST_F(BuchungenErweitert, EineTabelleOhneBuchungenHinterlässtKeineSpur) {
  ernten();
  Probelauf a = auswertung();
  a.e.setGewählt("li", Honigernte, {"Menge_kg"});
  a.e.setGewählt("li", Wachsernte, {"Menge_kg", "Qualität"});
  const QStringList ist = zeilen(a.liste("ok"));
  EXPECT_EQ(ist.first(), "HONIGERNTE");
  EXPECT_EQ(ist.size(), 2 + 4 + 2);
}

TEST_F(BuchungenErweitert, BeträgeUndKommazahlenHabenZweiNachkommastellenGanzeKeine) {
  buche("Behandlung", zwei, tag(8, 1), {"Menge_g", "Wartezeit", "Zeit_h", "Kosten"},
        {120, 14, 0.5, QVariant()});
  buche("Behandlung", zwei, tag(8, 2), {"Zeit_h", "Kosten"}, {QVariant(), -4.5});
  Probelauf a = auswertung();
  a.e.setGewählt("li", 8, {"Menge_g", "Wartezeit", "Zeit_h", "Kosten"});
  const QStringList ist = zeilen(a.liste("ok"));
  EXPECT_EQ(ist.at(2), "120|14|0,50|0,00");
  EXPECT_EQ(ist.at(3), "||0,00|4,50");  // read without its sign, as everywhere
}

TEST_F(BuchungenErweitert, NurDieLetzteBuchungJeVolkAuchOhneDessenNummer) {
  ernten();
  Probelauf a = auswertung();
  a.wähle("optibuch", 2);
  a.e.setGewählt("li", Honigernte, {"Menge_kg"});
  EXPECT_EQ(zeilen(a.liste("ok")), QStringList({"HONIGERNTE", "MENGE_KG", "7,00", "3,00", "", ""}));
}

TEST_F(BuchungenErweitert, LeerzeilenZwischenDenVölkernUndEineMehrNachDerTabelle) {
  ernten();
  Probelauf a = auswertung();
  a.hake("tierleer");
  a.e.setGewählt("li", Honigernte, {"Menge_kg"});
  const QStringList kopf{"HONIGERNTE", "MENGE_KG"};
  EXPECT_EQ(zeilen(a.liste("ok")),
            kopf + QStringList({"1234,50", "2,50", "7,00", "", "3,00", "", "", ""}));
  a.wähle("optibuch", 2);
  EXPECT_EQ(zeilen(a.liste("ok")), kopf + QStringList({"7,00", "", "3,00", "", "", ""}));
}

TEST_F(BuchungenErweitert, DerZeitraumGiltFürJedeTabelle) {
  ernten();
  buche("Arbeiten", zwei, tag(6, 30), {"Arbeitsart"}, {"Kontrolle"});
  Probelauf a = auswertung();
  a.wähle("optibuch", 1);
  a.tippe("tdat_0", "20.06.2006");
  a.tippe("tdat_1", "30.06.2006");
  a.e.setGewählt("li", Honigernte, {"Menge_kg"});
  a.e.setGewählt("li", Arbeiten, {"Arbeitsart"});
  EXPECT_EQ(zeilen(a.liste("ok")), QStringList({"HONIGERNTE", "MENGE_KG", "2,50", "7,00", "", "",
                                                "ARBEITEN", "ARBEITSART", "Kontrolle", "", ""}));
}

TEST_F(BuchungenErweitert, DasKaufmannsUndDesNamensBleibt) {
  ernte(zehn, tag(6, 1), 1);
  Probelauf a = auswertung();
  a.hake("kontier_1");
  a.e.setGewählt("li", Honigernte, {"Menge_kg"});
  const Ausgabeliste liste = a.liste("ok");
  EXPECT_EQ(zeilen(liste).at(2), "Max & Moritz|1,00");
  EXPECT_EQ(liste.überschriften().first(), "Volkname");
}

TEST_F(BuchungenErweitert, DerFortschrittZähltElfTabellen) {
  ernten();
  Probelauf a = auswertung();
  for (int i = 0; i < 11; ++i) a.e.setGewählt("li", i, {"Datum"});
  a.liste("ok");
  EXPECT_EQ(a.fortschritte, 11);
}

TEST_F(BuchungenErweitert, OhneBuchungSagenBeideDassKeineDatenGefundenWurden) {
  Probelauf a = auswertung();
  a.e.setGewählt("li", Honigernte, {"Datum"});
  a.drücke("ok");
  a.hake("konereignis");
  a.drücke("ok");
  const QString nichts = "Es wurden lt. den aktuellen Einstellungen keine Daten gefunden!";
  EXPECT_EQ(a.meldungen, QStringList({nichts, nichts}));
}

}  // namespace
