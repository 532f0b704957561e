#include "platform/database/verbindung/Verbindung.h"
#include "stores/forms/Handelsprobe.h"

// What the user finds after a save or a deletion that failed.
namespace {

class Handelsfehler : public Handelsprobe {
 protected:
  // The database refuses this; after "rollback" nothing of the whole action is left.
  static void störe(const QString& ereignis, const QString& art = "fail") {
    Verbindung::zu(TZ_Variablen::DatenbankPfad)
        ->steuere(("create trigger kaputt before " + ereignis + " begin select raise(" + art +
                   ", 'gestört'); end")
                      .toUtf8());
  }
  static QString gestört() {
    return "Die Datenbank \"" + TZ_Variablen::DatenbankPfad +
           "\" konnte die Anweisung nicht ausführen (gestört).";
  }
};

TEST_F(Handelsfehler, VolleFestplatteWirdGesagtUndDieEingabenBleiben) {
  Verbindung* verbindung = Verbindung::zu(TZ_Variablen::DatenbankPfad);
  verbindung->steuere("pragma max_page_count = " + verbindung->steuere("pragma page_count"));
  int gespeichert = 0;
  try {
    for (; gespeichert < 500; ++gespeichert)
      verkaufe("Honig", "3", QString("Kunde mit langem Namen %1").arg(1000 + gespeichert));
    FAIL() << "the disk was never full";
  } catch (const Datenbankfehler&) {
  }
  öffne(Verkauf);
  tippeVerkauf("Honig", "3", "Kunde mit langem Namen 9999");
  boxen.hinweisMit("Von diesem Vorgang wurde nichts gespeichert.");
  klicke("neuverkauf_0");
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006|Honig||Kunde mit langem Namen 9999|3||0|");
  EXPECT_EQ(liste("liverkauf")->zeilen(), gespeichert);
  verbindung->steuere("pragma max_page_count = 1000000");
  for (const char* tabelle : {"Verkauf", "Kunden", "Honiglager"})
    EXPECT_EQ(anzahl(tabelle), gespeichert) << tabelle;
  klicke("neuverkauf_0");  // with room again the same entries go in
  for (const char* tabelle : {"Verkauf", "Kunden", "Honiglager"})
    EXPECT_EQ(anzahl(tabelle), gespeichert + 1) << tabelle;
}

TEST_F(Handelsfehler, WasHalbGeschriebenIstStehtInDerListe) {
  öffne(Verkauf);
  tippeVerkauf("Honig", "3", "Meier");
  störe("insert on Honiglager");
  boxen.hinweis(gestört());
  klicke("neuverkauf_0");
  EXPECT_EQ(inhalte("verkauf"), "20.06.2006|Honig||Meier|3||0|");
  EXPECT_EQ(liste("liverkauf")->zeilen(), 1);
  EXPECT_EQ(anzahl("Verkauf"), 1);
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

TEST_F(Handelsfehler, GingNurDieAlteBewegungWegStehtSieNichtMehrImLager) {
  verkaufe("Honig", "3");
  öffne(Verkauf);
  wähle("liverkauf", 0);
  tippe("Verkäufe", "Menge", "4");
  störe("insert on Honiglager");
  boxen.hinweis(gestört());
  klicke("neuverkauf_1");
  EXPECT_EQ(zeilen("select Menge from Verkauf"), QStringList("4"));
  EXPECT_EQ(liste("liverkauf")->zelle(0, "Menge"), "4");
  EXPECT_EQ(anzahl("Honiglager"), 0);
  EXPECT_EQ(liste("lihonig")->zeilen(), 0);
}

TEST_F(Handelsfehler, GescheitertesLöschenLässtGeschäftUndBewegung) {
  verkaufe("Honig", "3");
  öffne(Verkauf);
  wähle("liverkauf", 0);
  störe("delete on Verkauf", "rollback");
  boxen.hinweis(gestört() + " Von diesem Vorgang wurde nichts gespeichert.");
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf"), 1);
  EXPECT_EQ(anzahl("Honiglager"), 1);
  EXPECT_EQ(liste("liverkauf")->zeilen(), 1);
  EXPECT_EQ(inhalt("Verkäufe", "Produkt"), "Honig");
}

// Pressed once more, as the box tells, the button must not take another deal.
TEST_F(Handelsfehler, NachEinemGescheitertenLöschenIstKeinGeschäftGewählt) {
  verkaufe("Honig", "3", "Meier");
  verkaufe("Honig", "4", "Schulz");
  öffne(Verkauf);
  wähle("liverkauf", 0);
  Verbindung::zu(TZ_Variablen::DatenbankPfad)
      ->steuere(
          "create trigger kaputt after delete on Verkauf begin select raise(rollback, 'gestört'); "
          "end");
  boxen.hinweis(gestört() + " Von diesem Vorgang wurde nichts gespeichert.");
  klicke("lschverkauf");
  EXPECT_EQ(liste("liverkauf")->zeilen(), 2);
  EXPECT_EQ(liste("liverkauf")->aktuelleZeile(), -1);
  Verbindung::zu(TZ_Variablen::DatenbankPfad)->steuere("drop trigger kaputt");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf"), 2);
  EXPECT_EQ(anzahl("Honiglager"), 2);
}

// The last deal is current right after opening, but the inputs are those of a new one.
TEST_F(Handelsfehler, DasLetzteGeschäftWirdNachDemÖffnenNichtUngefragtÜberschrieben) {
  verkaufe("Honig", "3", "Meier");
  öffne(Verkauf);
  tippeVerkauf("Zucker", "9", "Schulz");
  boxen.frage(
      "Der gewählte Datensatz steht nicht in den Eingabefeldern:\n\nDatum: 20.06.2006, Produkt: "
      "Honig, Abnehmer: Meier, Menge: 3\n\nSoll er wirklich mit den jetzigen Eingaben "
      "überschrieben werden?",
      false, Meldungen::Vorgabe::Nein);
  klicke("neuverkauf_1");
  EXPECT_EQ(zeilen("select Produkt from Verkauf"), QStringList("Honig"));
  EXPECT_EQ(inhalt("Verkäufe", "Produkt"), "Zucker");
}

TEST_F(Handelsfehler, DasLetzteGeschäftNimmtNachDemÖffnenGelöschtSeineBewegungMit) {
  verkaufe("Honig", "3", "Meier");
  öffne(Verkauf);
  boxen.frage(
      "Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?\n\nDatum: "
      "20.06.2006, Produkt: Honig, Abnehmer: Meier, Menge: 3",
      true, Meldungen::Vorgabe::Nein);
  klicke("lschverkauf");
  EXPECT_EQ(anzahl("Verkauf"), 0);
  EXPECT_EQ(anzahl("Honiglager"), 0);
  EXPECT_EQ(liste("lihonig")->zeilen(), 0);
}

TEST_F(Handelsfehler, WasNichtGeladenWerdenKannWirdNichtGezeigtUndHältDieDatenbankNicht) {
  db().Execute("drop table Kunden");
  TZ_Variablen::FormModus = "1";
  form = std::make_unique<TV_EinVerkauf_Lager>();
  EXPECT_THROW(form->zeigen(), Datenbankfehler);
  EXPECT_FALSE(offen());
  for (const char* tab : {"einkauf", "verkauf", "honig"}) {
    feld(QString("sevt%1_1").arg(tab))->setInhalt("Zucker");
    feld(QString("sevt%1_%2").arg(tab).arg(QString(tab) == "honig" ? 2 : 4))->setInhalt("1");
    boxen.hinweisMit("Die Datenbank ist geschlossen.");
    kind<QPushButton>(QString("neu%1_0").arg(tab))->click();
  }
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  kind<QPushButton>("rosumme")->click();
  for (const char* tabelle : {"Einkauf", "Verkauf", "Honiglager"})
    EXPECT_EQ(anzahl(tabelle), 0) << tabelle;
}

}  // namespace
