#include "planning/Terminverwaltung.h"

#include "planning/Terminbestand.h"
#include "platform/database/verbindung/Verbindung.h"

namespace {

using namespace Terminverwaltung;

class TerminverwaltungTest : public Terminbestand {
 protected:
  static Filter filter(Ansicht ansicht = Ansicht::Allgemein) {
    Filter f;
    f.ansicht = ansicht;
    f.von = "01.01.2006";
    f.bis = "31.12.2006";
    return f;
  }
  static Eingabe eingabe(const QString& datum = "21.06.2006", const QString& termin = "Schau",
                         const QString& volknr = {}) {
    return {datum, termin, "N", volknr, {}};
  }
  static std::string texte(const Filter& f) {
    return zeilen(liste(db(), f), {"Datum", "Erledigt", "Volkname", "Standort", "Volk_ID", "ID"});
  }
};

TEST_F(TerminverwaltungTest, LeererZeitraumWirdSiebenTageZurückUndVierzehnVoraus) {
  Filter f;
  vorgaben(f);
  EXPECT_EQ(f.von, "13.06.2006");
  EXPECT_EQ(f.bis, "04.07.2006");
}

TEST_F(TerminverwaltungTest, KeinDatumWirdErsetztUndEinDatumBleibt) {
  Filter f;
  f.von = "31.02.2006";
  f.bis = "01.09.2006";
  vorgaben(f);
  EXPECT_EQ(f.von, "13.06.2006");
  EXPECT_EQ(f.bis, "01.09.2006");
}

TEST_F(TerminverwaltungTest, AllgemeineAnsichtZeigtNurZeilenOhneVolk) {
  const qint64 volk = neuesVolk("1");
  termin(tag(6, 21), "Schau");
  termin(tag(6, 20), "Steuer", 0, "J");
  termin(tag(6, 20), "Durchsicht", volk);
  const Daten daten = liste(db(), filter());
  EXPECT_EQ(zeilen(daten), "20.06.2006|Steuer|J|0; 21.06.2006|Schau|N|0");
  EXPECT_EQ(daten->spaltenNummer(u"ID"), 4);
}

TEST_F(TerminverwaltungTest, VolkansichtZeigtNummerNameUndStandort) {
  const qint64 volk = neuesVolk("7", "X", "Heide");
  db().Execute("update Bienenvolk set Volkname = 'Anna'");
  const qint64 id = termin(tag(6, 21), "Durchsicht", volk);
  termin(tag(6, 21), "Schau");
  const Daten daten = liste(db(), filter(Ansicht::Volkabhängig));
  EXPECT_EQ(zeilen(daten), "21.06.2006|Durchsicht|N|7|Anna|Heide|" + std::to_string(volk));
  EXPECT_EQ(daten->spaltenNummer(u"ID"), 7);
  EXPECT_EQ(daten->ganzzahl(0, 7), id);
}

TEST_F(TerminverwaltungTest, BeideGrenztageGehörenDazu) {
  termin(tag(6, 12), "davor");
  termin(tag(6, 13), "erster");
  termin(tag(7, 4), "letzter");
  termin(tag(7, 5), "danach");
  Filter f;
  vorgaben(f);
  EXPECT_EQ(texte(f), "erster; letzter");
}

TEST_F(TerminverwaltungTest, FilterNachVolknummerNimmtDasErsteVolkDieserNummer) {
  const qint64 erstes = neuesVolk("5", "");
  const qint64 zweites = neuesVolk("5");
  termin(tag(6, 21), "vom ersten", erstes);
  termin(tag(6, 21), "vom zweiten", zweites);
  Filter f = filter(Ansicht::Volkabhängig);
  f.volknr = "5";
  EXPECT_EQ(texte(f), "vom ersten|5");
}

TEST_F(TerminverwaltungTest, UnbekannteVolknummerSchränktNichtEin) {
  termin(tag(6, 21), "A", neuesVolk("5"));
  Filter f = filter(Ansicht::Volkabhängig);
  f.volknr = "99";
  EXPECT_EQ(texte(f), "A|5");
}

TEST_F(TerminverwaltungTest, VolknummerInDerAllgemeinenAnsichtLässtNichtsÜbrig) {
  neuesVolk("5");
  termin(tag(6, 21), "Schau");
  Filter f = filter();
  f.volknr = "5";
  EXPECT_EQ(texte(f), "");
}

TEST_F(TerminverwaltungTest, FilterNachTerminartUndErledigt) {
  termin(tag(6, 21), "A", 0, "N");
  termin(tag(6, 22), "A", 0, "J");
  termin(tag(6, 23), "B", 0, "J");
  Filter f = filter();
  f.termin = "A";
  EXPECT_EQ(texte(f), "A; A");
  f.erledigt = "J";
  EXPECT_EQ(zeilen(liste(db(), f)), "22.06.2006|A|J|0");
  f.termin.clear();
  EXPECT_EQ(texte(f), "A; B");
}

TEST_F(TerminverwaltungTest, FilterNachTerminartMitApostrophFindetWasMitBacktickGespeichertIst) {
  speichern(db(), eingabe("21.06.2006", "Rund um's Volk"), 0);
  Filter f = filter();
  f.termin = "Rund um's Volk";
  EXPECT_EQ(texte(f), "Rund um`s Volk");
  f.termin = " Rund um`s Volk ";
  EXPECT_EQ(texte(f), "Rund um`s Volk");
}

TEST_F(TerminverwaltungTest, BlankImFilterSchränktNichtEin) {
  termin(tag(6, 21), "Schau");
  Filter f = filter();
  f.termin = " ";
  EXPECT_EQ(texte(f), "Schau");
}

TEST_F(TerminverwaltungTest, ListeIstNachDatumGeordnet) {
  termin(tag(8, 1), "spät");
  termin(tag(2, 1), "früh");
  termin(tag(6, 1), "mitten");
  EXPECT_EQ(texte(filter()), "früh; mitten; spät");
}

TEST_F(TerminverwaltungTest, OhneDatumWirdNichtGespeichert) {
  EXPECT_EQ(prüfen(db(), eingabe("31.02.2006")).gründe,
            QStringList("...das Datum des Termins angegeben werden muß."));
}

TEST_F(TerminverwaltungTest, OhneTerminartWirdNichtGespeichert) {
  EXPECT_EQ(prüfen(db(), eingabe("21.06.2006", " ")).gründe,
            QStringList("...die Terminart angegeben werden muß."));
}

TEST_F(TerminverwaltungTest, UnbekanntesVolkWirdAbgelehnt) {
  EXPECT_EQ(prüfen(db(), eingabe("21.06.2006", "Schau", "9")).gründe,
            QStringList("...das angegebene Volk nicht existiert (aktuell im Bestand ist)."));
}

TEST_F(TerminverwaltungTest, VolkNichtImBestandWirdAbgelehntObwohlDieListeSeineZeilenZeigt) {
  const qint64 volk = neuesVolk("9", "");
  termin(tag(6, 21), "alt", volk);
  EXPECT_EQ(texte(filter(Ansicht::Volkabhängig)), "alt|9");
  EXPECT_EQ(prüfen(db(), eingabe("21.06.2006", "Schau", "9")).gründe,
            QStringList("...das angegebene Volk nicht existiert (aktuell im Bestand ist)."));
}

TEST_F(TerminverwaltungTest, AlleGründeInIhrerFolge) {
  EXPECT_EQ(prüfen(db(), eingabe("", "", "9")).gründe,
            QStringList({"...das Datum des Termins angegeben werden muß.",
                         "...die Terminart angegeben werden muß.",
                         "...das angegebene Volk nicht existiert (aktuell im Bestand ist)."}));
}

TEST_F(TerminverwaltungTest, LeereVolknummerIstVolkNullUndEineNummerDasVolkImBestand) {
  neuesVolk("4", "");
  const qint64 volk = neuesVolk("4");
  EXPECT_EQ(prüfen(db(), eingabe()).volkId, 0);
  EXPECT_EQ(prüfen(db(), eingabe("21.06.2006", "Schau", "4")).volkId, volk);
  EXPECT_EQ(prüfen(db(), eingabe("21.06.2006", "Schau", "4")).gründe, QStringList());
}

TEST_F(TerminverwaltungTest, BlankAlsVolknummerIstEinAllgemeinerTermin) {
  neuesVolk("");
  const Prüfung prüfung = prüfen(db(), eingabe("21.06.2006", "Schau", " "));
  EXPECT_EQ(prüfung.gründe, QStringList());
  EXPECT_EQ(prüfung.volkId, 0);
}

TEST_F(TerminverwaltungTest, VolknummerWirdGesuchtWieSieGespeichertIst) {
  const qint64 volk = neuesVolk("7`a");
  EXPECT_EQ(prüfen(db(), eingabe("21.06.2006", "Schau", " 7'a")).volkId, volk);
}

TEST_F(TerminverwaltungTest, GleicherTextAmSelbenTagBeimSelbenVolkExistiert) {
  const qint64 volk = neuesVolk("4");
  const qint64 id = termin(tag(6, 21), "Schau", volk);
  EXPECT_TRUE(existiert(db(), eingabe(), volk));
  EXPECT_FALSE(existiert(db(), eingabe(), 0));
  EXPECT_FALSE(existiert(db(), eingabe("22.06.2006"), volk));
  EXPECT_FALSE(existiert(db(), eingabe("21.06.2006", "Anderes"), volk));
  EXPECT_FALSE(existiert(db(), eingabe(), volk, id));
  const qint64 zweite = termin(tag(6, 21), "Schau", volk);
  EXPECT_TRUE(existiert(db(), eingabe(), volk, zweite));
}

TEST_F(TerminverwaltungTest, ApostrophWirdGespeichertUndBeimDoppeltestGefundenAlsBacktick) {
  const Eingabe e = eingabe("21.06.2006", " Rund um's Volk ");
  speichern(db(), e, 0);
  EXPECT_EQ(termine(), "21.06. Rund um`s Volk N 0");
  EXPECT_TRUE(existiert(db(), e, 0));
}

TEST_F(TerminverwaltungTest, NeuerTerminBekommtSeineZeile) {
  const qint64 volk = neuesVolk("4");
  const qint64 id = speichern(db(), {"21.06.2006", "Schau", "J", "4", {}}, volk);
  EXPECT_EQ(termine(), "21.06. Schau J " + std::to_string(volk));
  EXPECT_EQ(wert("select ID from Termine").toLongLong(), id);
}

TEST_F(TerminverwaltungTest, ÄndernÜberschreibtNurSeineZeile) {
  termin(tag(6, 1), "erste");
  const qint64 id = termin(tag(6, 2), "zweite");
  EXPECT_EQ(speichern(db(), {"03.07.2006", "neu", "J", {}, {}}, 0, id), id);
  EXPECT_EQ(termine(), "01.06. erste N 0; 03.07. neu J 0");
}

TEST_F(TerminverwaltungTest, StandortBekommtEineZeileJeVolkAuchDerAbgänge) {
  const qint64 a = neuesVolk("1", "X", "Heide");
  const qint64 b = neuesVolk("2", "", "Heide");
  neuesVolk("3", "X", "Hof");
  Eingabe e = eingabe();
  e.standort = "Heide";
  const qint64 letzte = amStandortEintragen(db(), e);
  EXPECT_EQ(termine(),
            "21.06. Schau N " + std::to_string(a) + "; 21.06. Schau N " + std::to_string(b));
  EXPECT_EQ(wert("select max(ID) from Termine").toLongLong(), letzte);
}

TEST_F(TerminverwaltungTest, StandortTrägtAuchDoppelteEin) {
  const qint64 a = neuesVolk("1", "X", "Heide");
  termin(tag(6, 21), "Schau", a);
  Eingabe e = eingabe();
  e.standort = "Heide";
  amStandortEintragen(db(), e);
  EXPECT_EQ(anzahl("Termine"), 2);
}

TEST_F(TerminverwaltungTest, StandortOhneVolkGibtKeineZeile) {
  Eingabe e = eingabe();
  e.standort = "Nirgends";
  EXPECT_EQ(amStandortEintragen(db(), e), 0);
  EXPECT_EQ(anzahl("Termine"), 0);
}

TEST_F(TerminverwaltungTest, ZuLangerTextAmStandortIstEinFehlerUndSchreibtNichts) {
  neuesVolk("1", "X", "Heide");
  Eingabe e = eingabe("21.06.2006", QString(31, u'x'));  // one more than the field holds
  e.standort = "Heide";
  EXPECT_THROW(amStandortEintragen(db(), e), Datenbankfehler);
  EXPECT_EQ(anzahl("Termine"), 0);
}

TEST_F(TerminverwaltungTest, FehlschlagAmStandortSagtBeiWievielenVölkernErEingetragenIst) {
  for (const char* nummer : {"1", "2", "3"}) neuesVolk(nummer, "X", "Heide");
  Verbindung::zu(TZ_Variablen::DatenbankPfad)
      ->steuere(
          "create trigger voll before insert on Termine when (select count(*) from Termine) = 2 "
          "begin select raise(abort, 'kein Platz'); end");
  Eingabe e = eingabe();
  e.standort = "Heide";
  try {
    amStandortEintragen(db(), e);
    ADD_FAILURE() << "no failure";
  } catch (const Datenbankfehler& fehler) {
    EXPECT_TRUE(fehler.text().contains("kein Platz"));
    EXPECT_TRUE(
        fehler.text().endsWith("\r\n\r\nBei 2 von 3 Völkern am Standort 'Heide' ist der Termin "
                               "schon eingetragen, bei den anderen nicht."));
  }
  EXPECT_EQ(anzahl("Termine"), 2);
}

TEST_F(TerminverwaltungTest, StandortTrägtDasKennzeichenUndDenTextWieBeimEinzelnenEin) {
  const qint64 a = neuesVolk("1", "X", "Heide");
  amStandortEintragen(db(), {"21.06.2006", " Rund um's Volk ", "J", {}, "Heide"});
  EXPECT_EQ(termine(), "21.06. Rund um`s Volk J " + std::to_string(a));
}

TEST_F(TerminverwaltungTest, StandortFrageNenntDenStandort) {
  EXPECT_EQ(standortFrage("Heide"),
            "Soll der Termin wirklich bei allen Völkern am Standort 'Heide' eingetragen werden?");
}

TEST_F(TerminverwaltungTest, ErledigteAllerJahreUndAnsichtenWerdenGelöscht) {
  const qint64 volk = neuesVolk("1");
  termin(QDate(1999, 1, 1), "alt", volk, "J");
  termin(tag(6, 21), "allgemein", 0, "J");
  termin(tag(6, 21), "offen", volk);
  termin(tag(6, 22), "offen", 0);
  erledigteLöschen(db());
  EXPECT_EQ(termine(), "21.06. offen N " + std::to_string(volk) + "; 22.06. offen N 0");
}

TEST_F(TerminverwaltungTest, VolknummerZurVolkIdUndLeerOhneVolk) {
  const qint64 volk = neuesVolk("12a");
  EXPECT_EQ(volknummer(db(), volk), "12a");
  EXPECT_EQ(volknummer(db(), 0), "");
  EXPECT_EQ(volknummer(db(), 4711), "");
}

TEST_F(TerminverwaltungTest, ListenZeigenJedenTextEinmalInDerOrdnung) {
  neuesVolk("2", "X", "Hof");
  neuesVolk("10", "X", "Heide");
  neuesVolk("2", "", "Hof");
  neuesVolk("3", "X", "");
  termin(tag(6, 21), "B");
  termin(tag(6, 22), "A");
  termin(tag(6, 23), "B");
  EXPECT_EQ(volknummern(db()), QStringList({"10", "2", "3"}));
  EXPECT_EQ(standorte(db()), QStringList({"Heide", "Hof"}));
  EXPECT_EQ(terminarten(db()), QStringList({"A", "B"}));
}

TEST_F(TerminverwaltungTest, DerGewählteStandortFindetSeineVölkerWieErInDerTabelleSteht) {
  neuesVolk("1", "X", "Bauer's Hof");
  ASSERT_EQ(standorte(db()), QStringList("Bauer's Hof"));
  amStandortEintragen(db(), {"21.06.2006", "Schau", "N", {}, standorte(db()).first()});
  EXPECT_EQ(texte(filter(Ansicht::Volkabhängig)), "Schau|1");
}

TEST_F(TerminverwaltungTest, HeuteInTagenRechnetHinUndZurück) {
  EXPECT_EQ(datumInTagen("0"), "20.06.2006");
  EXPECT_EQ(datumInTagen("14"), "04.07.2006");
  EXPECT_EQ(datumInTagen("-20"), "31.05.2006");
  EXPECT_EQ(tageBis("20.06.2006"), "0");
  EXPECT_EQ(tageBis("04.07.2006"), "14");
  EXPECT_EQ(tageBis("31.05.2006"), "-20");
}

TEST_F(TerminverwaltungTest, KeineZahlUndKeinDatumGebenNichts) {
  EXPECT_EQ(datumInTagen(""), "");
  EXPECT_EQ(datumInTagen("-"), "");
  EXPECT_EQ(datumInTagen("10000"), "");
  EXPECT_EQ(tageBis("31.02.2006"), "");
  EXPECT_EQ(tageBis(""), "");
}

TEST_F(TerminverwaltungTest, TageBleibenInIhrenGrenzen) {
  EXPECT_EQ(tageBis("04.11.2033"), "9999");
  EXPECT_EQ(tageBis("05.11.2033"), "");
}

TEST_F(TerminverwaltungTest, BeiTagenZählenNurVorzeichenUndVierZiffern) {
  EXPECT_EQ(nurTage("-12x3"), "-123");
  EXPECT_EQ(nurTage("1-2"), "12");
  EXPECT_EQ(nurTage("12345"), "1234");
  EXPECT_EQ(nurTage("abc"), "");
}

}  // namespace
