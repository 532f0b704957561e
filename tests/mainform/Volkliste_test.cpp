#include "mainform/Volkliste.h"

#include "Umfeld.h"

using namespace TZ_Variablen;

namespace {

const QString Volkfelder = QStringLiteral(
    "select Volknr, Volkname, Volkstärke, Magazine, Wabenanzahl, Honigwaben, Brutwaben, "
    "Pollenwaben, Drohnenwaben, Leerwaben, Mittelwände, Futterwaben, HW_verdeckelt, BW_Stift, "
    "BW_offen, BW_verdeckelt, Brutstand, Wabensitz, Sanftmut, Schwarmtrieb, Frühjahrsentw, "
    "Winterfestigkeit, Varroabefall, Belagert, Belegstelle, Zuchtbuchnr, L_Honigernte, "
    "L_Honigmenge_kg, Honigmenge_Gesamt, L_Behandlung, Standort, Königin_Nr, Königin_Farbe, "
    "Königin_Zugangsdatum, Futtervorrat_eigen, Futtervorrat_flüssig, Futtervorrat_Teig, Beuteart, "
    "Waben_je_Magazin, Bienenrasse, Volk_Zugangsdatum, Volk_Herkunft, Volk_Einkaufspreis, "
    "Akt_im_Bestand, Abgangsdatum, Abgangsgrund, Abnehmer, Volk_Verkaufspreis, Selektiert, ID from "
    "Bienenvolk");

class Liste : public Umfeld {
 protected:
  void SetUp() override {
    Umfeld::SetUp();
    datenbank();
    listenfelderPrüfen();
  }
  static QStringList nummern(Volkfilter filter) {
    const Daten daten = volkliste(DB, filter);
    QStringList liste;
    for (int i = 0; i < daten->zeilen(); ++i)
      liste << daten->anzeige(i, daten->spaltenNummer(u"Volknr"));
    return liste;
  }
};

}  // namespace

TEST_F(Liste, LeereFeldlisteWirdDerStandard) {
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], Volkfelder);
}

TEST_F(Liste, FeldlisteOhneFutterwabenWirdFallengelassen) {
  EinstellungenText[Textslots.volkfelder] =
      QStringLiteral("select Volknr, Selektiert, ID from Bienenvolk");
  listenfelderPrüfen();
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], Volkfelder);
}

TEST_F(Liste, EigeneFeldlisteBleibt) {
  const QString eigene =
      QStringLiteral("select Volknr, Futterwaben, Selektiert, ID from Bienenvolk");
  EinstellungenText[Textslots.volkfelder] = eigene;
  listenfelderPrüfen();
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], eigene);
}

TEST_F(Liste, StockkartenfelderWerdenEbensoGeprüft) {
  const QString standard = QStringLiteral(
      "select Datum, Volkstärke, Brutstand, Wabensitz, Sanftmut, Schwarmtrieb, Frühjahrsentw, "
      "Winterfestigkeit, Varroabefall, Belagert, Magazine, Waben, Honigwaben, Brutwaben, "
      "Pollenwaben, Drohnenwaben, Leerwaben, Mittelwände, Futterwaben, HW_verdeckelt, BW_Stift, "
      "BW_offen, BW_verdeckelt, Futter_flüssig_l, Futter_Teig_kg, Eigener_Futtervorrat, Volk_ID, "
      "Bemerkung, ID from Stockkarte");
  EinstellungenText[Textslots.stockkartenfelder] =
      QStringLiteral("select Datum, ID from Stockkarte");
  stockkartenfelderPrüfen();
  EXPECT_EQ(EinstellungenText[Textslots.stockkartenfelder], standard);
  const QString eigene = QStringLiteral("select Datum, Futterwaben, ID from Stockkarte");
  EinstellungenText[Textslots.stockkartenfelder] = eigene;
  stockkartenfelderPrüfen();
  EXPECT_EQ(EinstellungenText[Textslots.stockkartenfelder], eigene);
}

TEST_F(Liste, PanelauswahlOhneEinenZeigtAlles) {
  EinstellungenText[Textslots.infofenster] = QString(60, u'0');
  stockkartenfelderPrüfen();
  EXPECT_EQ(EinstellungenText[Textslots.infofenster], QString(60, u'1'));
  EinstellungenText[Textslots.infofenster] = QStringLiteral("01");
  stockkartenfelderPrüfen();
  EXPECT_EQ(EinstellungenText[Textslots.infofenster], QStringLiteral("01"));
}

TEST_F(Liste, AnweisungJeFilter) {
  EinstellungenText[Textslots.volkfelder] =
      QStringLiteral("select Volknr, Futterwaben from Bienenvolk");
  EXPECT_EQ(
      volklisteAnweisung(Volkfilter::Bestand),
      QStringLiteral("select Volknr, Futterwaben from Bienenvolk where Akt_im_Bestand = 'X'"));
  EXPECT_EQ(
      volklisteAnweisung(Volkfilter::Abgang),
      QStringLiteral("select Volknr, Futterwaben from Bienenvolk where Akt_im_Bestand <> 'X'"));
  EXPECT_EQ(volklisteAnweisung(Volkfilter::Alles),
            QStringLiteral("select Volknr, Futterwaben from Bienenvolk"));
}

TEST_F(Liste, StartsortierungNachZweiFeldern) {
  EinstellungenText[Textslots.volkfelder] = QStringLiteral("select Volknr from Bienenvolk");
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("Standort");
  EXPECT_EQ(volklisteAnweisung(Volkfilter::Alles),
            QStringLiteral("select Volknr from Bienenvolk order by Standort"));
  EinstellungenText[Textslots.sortierung2] = QStringLiteral("Volknr");
  EXPECT_EQ(volklisteAnweisung(Volkfilter::Alles),
            QStringLiteral("select Volknr from Bienenvolk order by Standort, Volknr"));
}

TEST_F(Liste, ZweiteSortierungAlleinZähltNicht) {
  EinstellungenText[Textslots.volkfelder] = QStringLiteral("select Volknr from Bienenvolk");
  EinstellungenText[Textslots.sortierung2] = QStringLiteral("Volknr");
  EXPECT_EQ(volklisteAnweisung(Volkfilter::Alles), QStringLiteral("select Volknr from Bienenvolk"));
}

TEST_F(Liste, LeererUndFehlenderBestandGeltenAlsAbgang) {
  neu("Bienenvolk", {{"Volknr", "1"}, {"Akt_im_Bestand", "X"}});
  neu("Bienenvolk", {{"Volknr", "2"}, {"Akt_im_Bestand", ""}});
  neu("Bienenvolk", {{"Volknr", "3"}});
  EXPECT_EQ(nummern(Volkfilter::Bestand), QStringList({"1"}));
  EXPECT_EQ(nummern(Volkfilter::Abgang), QStringList({"2", "3"}));
}

TEST_F(Liste, AllesZeigtBestandUndAbgang) {
  neu("Bienenvolk", {{"Volknr", "1"}, {"Akt_im_Bestand", "X"}});
  neu("Bienenvolk", {{"Volknr", "2"}, {"Akt_im_Bestand", ""}});
  EXPECT_EQ(nummern(Volkfilter::Alles), QStringList({"1", "2"}));
}

TEST_F(Liste, SortiertNachDemEingestelltenFeld) {
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("Volkname");
  neu("Bienenvolk", {{"Volknr", "1"}, {"Volkname", "Zita"}, {"Akt_im_Bestand", "X"}});
  neu("Bienenvolk", {{"Volknr", "2"}, {"Volkname", "anna"}, {"Akt_im_Bestand", "X"}});
  EXPECT_EQ(nummern(Volkfilter::Bestand), QStringList({"2", "1"}));
}

TEST_F(Liste, AnzahlenHängenNichtVomFilterAb) {
  neu("Bienenvolk", {{"Volknr", "1"}, {"Akt_im_Bestand", "X"}});
  neu("Bienenvolk", {{"Volknr", "2"}, {"Akt_im_Bestand", "X"}});
  neu("Bienenvolk", {{"Volknr", "3"}});
  EXPECT_EQ(filterbeschriftungen(volkanzahl(DB)),
            QStringList({"Bestand (2 Völker)", "Abgang (1 Völker)", "Alles (3 Völker)"}));
}

TEST_F(Liste, NeueDatenbankHatDreimalNullVölker) {
  EXPECT_EQ(filterbeschriftungen(volkanzahl(DB)),
            QStringList({"Bestand (0 Völker)", "Abgang (0 Völker)", "Alles (0 Völker)"}));
}

TEST_F(Liste, AbgelehnteAnweisungIstEinFehler) {
  EinstellungenText[Textslots.volkfelder] =
      QStringLiteral("select Gibtsnicht, Futterwaben from Bienenvolk");
  EXPECT_THROW(volkliste(DB, Volkfilter::Alles), Datenbankfehler);
}

TEST_F(Liste, SortierspalteNullOderZuGroßWirdEins) {
  for (const qint16 wert : {0, -3, 6}) {
    EinstellungenZahl[Zahlslots.sortierspalte] = wert;
    EXPECT_EQ(gemerkteSortierung(5).spalte, 0);
    EXPECT_EQ(EinstellungenZahl[Zahlslots.sortierspalte], 1);
  }
  EinstellungenZahl[Zahlslots.sortierspalte] = 5;
  EXPECT_EQ(gemerkteSortierung(5).spalte, 4);
}

TEST_F(Liste, SortierungWirdGemerkt) {
  sortierungMerken({2, Qt::DescendingOrder});
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sortierspalte], 3);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sortierrichtung], 1);
  EXPECT_EQ(gemerkteSortierung(5).spalte, 2);
  EXPECT_EQ(gemerkteSortierung(5).richtung, Qt::DescendingOrder);
  sortierungMerken({0, Qt::AscendingOrder});
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sortierrichtung], 0);
  EXPECT_EQ(gemerkteSortierung(5).richtung, Qt::AscendingOrder);
}

TEST_F(Liste, MitStartsortierungBleibenDieZeilenWieSieKommen) {
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("Standort");
  EXPECT_EQ(gemerkteSortierung(5).spalte, -1);
}

TEST_F(Liste, ErsteSpalteZeigtVolknummerOderLaufendeNummer) {
  EXPECT_EQ(ersteSpalte(4, "17a"), QStringLiteral("17a"));
  EinstellungenZahl[Zahlslots.laufendeNummer] = 1;
  EXPECT_EQ(ersteSpalte(4, "17a"), QStringLiteral("5"));
}
