#include "colonies/Volkfelder.h"

#include "colonies/Testbetrieb.h"

namespace {

class Volkfelder : public Testbetrieb {};

Spalte spalte(const QString& name) {
  for (const Spalte& s : TZ_Variablen::DB.Felder("Bienenvolk"))
    if (s.name == name) return s;
  return {};
}

QStringList feldnamen(Volkarray array) {
  QStringList namen;
  for (const Volkfeld& f : volkfelder())
    if (f.array == array) namen << f.feld;
  return namen;
}

TEST_F(Volkfelder, SevtHatSeineZwanzigFelderInDerReihe) {
  EXPECT_EQ(feldnamen(Volkarray::sevt), QStringList({"Volknr",
                                                     "Volkname",
                                                     "Bienenrasse",
                                                     "Standort",
                                                     "Königin_Nr",
                                                     "Königin_Farbe",
                                                     "Königin_Zugangsdatum",
                                                     "Beuteart",
                                                     "Mittelwände",
                                                     "Wabenanzahl",
                                                     "Volk_Zugangsdatum",
                                                     "Volk_Herkunft",
                                                     "Volk_Einkaufspreis",
                                                     "Abgangsdatum",
                                                     "Abgangsgrund",
                                                     "Abnehmer",
                                                     "Volk_Verkaufspreis",
                                                     "Waben_je_Magazin",
                                                     "Belegstelle",
                                                     "Zuchtbuchnr"}));
}

TEST_F(Volkfelder, SevtxHatSeineSiebenundzwanzigFelderInDerReihe) {
  EXPECT_EQ(feldnamen(Volkarray::sevtx), QStringList({"Volkstärke",         "Brutstand",
                                                      "Wabensitz",          "Sanftmut",
                                                      "Schwarmtrieb",       "Frühjahrsentw",
                                                      "Winterfestigkeit",   "Belagert",
                                                      "Futtervorrat_eigen", "Futtervorrat_flüssig",
                                                      "Futtervorrat_Teig",  "Varroabefall",
                                                      "L_Honigernte",       "L_Honigmenge_kg",
                                                      "Honigmenge_Gesamt",  "L_Behandlung",
                                                      "Honigwaben",         "Brutwaben",
                                                      "Pollenwaben",        "Drohnenwaben",
                                                      "Leerwaben",          "Magazine",
                                                      "Futterwaben",        "HW_verdeckelt",
                                                      "BW_Stift",           "BW_offen",
                                                      "BW_verdeckelt"}));
}

TEST_F(Volkfelder, IndizesZählenJeFeldgruppeVonNull) {
  int sevt = 0;
  int sevtx = 0;
  for (const Volkfeld& f : volkfelder())
    EXPECT_EQ(f.index, f.array == Volkarray::sevt ? sevt++ : sevtx++);
  EXPECT_EQ(sevt, SevtAnzahl);
  EXPECT_EQ(sevtx, SevtxAnzahl);
}

TEST_F(Volkfelder, ArtUndLängePassenZurTabelle) {
  for (const Volkfeld& f : volkfelder()) {
    const Spalte s = spalte(f.feld);
    ASSERT_EQ(s.name, f.feld);
    switch (f.art) {
      case Verwaltung::Art::Text:
        EXPECT_EQ(s.typ, Feldtyp::Text) << f.feld.toStdString();
        EXPECT_EQ(s.länge, f.maxLänge) << f.feld.toStdString();
        break;
      case Verwaltung::Art::Ganzzahl:
        EXPECT_EQ(s.typ, Feldtyp::Lang) << f.feld.toStdString();
        break;
      case Verwaltung::Art::Dezimal:
        EXPECT_EQ(s.typ, f.zeichen == "€" ? Feldtyp::Währung : Feldtyp::Einfach)
            << f.feld.toStdString();
        break;
      default:
        ASSERT_EQ(f.art, Verwaltung::Art::Datum);
        EXPECT_EQ(s.typ, Feldtyp::Datum) << f.feld.toStdString();
        break;
    }
  }
}

TEST_F(Volkfelder, AuswahllistenKommenAusIhrerTabelle) {
  QStringList listen;
  for (const Volkfeld& f : volkfelder())
    if (!f.listenAnweisung.isEmpty()) listen << f.listenAnweisung;
  EXPECT_EQ(listen,
            QStringList({"select distinct Volkname from Bienenvolk order by Volkname",
                         "select distinct Bienenrasse from Bienenvolk order by Bienenrasse",
                         "select distinct Standort from Standorte order by Standort",
                         "select distinct Königin_Nr from Bienenvolk order by Königin_Nr",
                         "select distinct Königin_Farbe from Bienenvolk order by Königin_Farbe",
                         "select distinct Beuteart from Bienenvolk order by Beuteart",
                         "select distinct Volk_Herkunft from Bienenvolk order by Volk_Herkunft",
                         "select distinct Abgangsgrund from Bienenvolk order by Abgangsgrund",
                         "select distinct Abnehmer from Bienenvolk order by Abnehmer",
                         "select distinct Belegstelle from Bienenvolk order by Belegstelle"}));
  for (const QString& liste : listen) EXPECT_NO_THROW(db().Lesen(liste)) << liste.toStdString();
}

TEST_F(Volkfelder, BeschriftungenUndEinheiten) {
  for (const Volkfeld& f : volkfelder()) {
    EXPECT_FALSE(f.beschriftung.isEmpty());
    EXPECT_LT(f.gruppe, volkgruppen().size());
    if (f.feld == "Varroabefall") {
      EXPECT_EQ(f.beschriftung, QString("Varroaschäden"));
    }
    if (f.feld == QString("Futtervorrat_flüssig")) {
      EXPECT_EQ(f.zeichen, "Liter");
    }
  }
  for (const Volkgruppe& g : volkgruppen()) EXPECT_LT(g.reiter, volkreiter().size());
}

}  // namespace
