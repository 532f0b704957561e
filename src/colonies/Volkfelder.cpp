#include "colonies/Volkfelder.h"

#include <QStringList>

namespace {

using Art = Volkfeld::Art;

enum Reiter { Stammdaten, BeuteWaben, BewertungFutter };
enum Gruppe {
  GVolk,
  GZugang,
  GKoenigin,
  GAbgang,
  GBeute,
  GBrut,
  GWaben,
  GBewertung,
  GFutter,
  GErnte
};

Volkfeld text(const char* feld, const char* beschriftung, int maxLaenge, Gruppe gruppe) {
  Volkfeld f;
  f.feld = QString::fromUtf8(feld);
  f.beschriftung = QString::fromUtf8(beschriftung);
  f.maxLaenge = maxLaenge;
  f.gruppe = gruppe;
  return f;
}

Volkfeld liste(const char* feld, const char* beschriftung, int maxLaenge, Gruppe gruppe,
               const char* tabelle = "Bienenvolk") {
  Volkfeld f = text(feld, beschriftung, maxLaenge, gruppe);
  f.listenTabelle = QString::fromUtf8(tabelle);
  return f;
}

// Counts go up to what the field can hold; the default of the combs per magazine is kept in a slot
// of 16 bits.
Volkfeld ganz(const char* feld, const char* beschriftung, Gruppe gruppe, qint64 bis = 2147483647) {
  Volkfeld f = text(feld, beschriftung, static_cast<int>(QString::number(bis).size()), gruppe);
  f.art = Art::Ganzzahl;
  f.bis = bis;
  return f;
}

// Long enough for every number that a booking can leave here, so that none is cut when it is shown;
// the decimals limit only what is typed.
Volkfeld dezimal(const char* feld, const char* beschriftung, Gruppe gruppe, int stellen,
                 const char* einheit = "") {
  Volkfeld f = text(feld, beschriftung, 14, gruppe);
  f.art = Art::Dezimal;
  f.nachkommastellen = stellen;
  f.einheit = QString::fromUtf8(einheit);
  return f;
}

Volkfeld geld(const char* feld, const char* beschriftung, Gruppe gruppe) {
  Volkfeld f = text(feld, beschriftung, 14, gruppe);
  f.art = Art::Waehrung;
  f.nachkommastellen = 2;
  f.einheit = QString("€");
  return f;
}

Volkfeld datum(const char* feld, const char* beschriftung, Gruppe gruppe) {
  Volkfeld f = text(feld, beschriftung, 10, gruppe);
  f.art = Art::Datum;
  return f;
}

QList<Volkfeld> numeriert(QList<Volkfeld> felder, Volkarray array) {
  for (int i = 0; i < felder.size(); ++i) {
    felder[i].array = array;
    felder[i].index = i;
  }
  return felder;
}

QList<Volkfeld> sevtFelder() {
  return numeriert(
      {
          text("Volknr", "Volknummer", 10, GVolk),
          liste("Volkname", "Volkname", 20, GVolk),
          liste("Bienenrasse", "Bienenrasse", 20, GVolk),
          liste("Standort", "Standort", 100, GVolk, "Standorte"),
          liste("Königin_Nr", "Königin-Nr", 20, GKoenigin),
          liste("Königin_Farbe", "Königin-Farbe", 10, GKoenigin),
          datum("Königin_Zugangsdatum", "Zugangsdatum Königin", GKoenigin),
          liste("Beuteart", "Beuteart", 20, GBeute),
          ganz("Mittelwände", "Mittelwände", GBeute),
          ganz("Wabenanzahl", "Wabenanzahl", GBeute),
          datum("Volk_Zugangsdatum", "Zugangsdatum", GZugang),
          liste("Volk_Herkunft", "Herkunft", 50, GZugang),
          geld("Volk_Einkaufspreis", "Einkaufspreis", GZugang),
          datum("Abgangsdatum", "Abgangsdatum", GAbgang),
          liste("Abgangsgrund", "Abgangsgrund", 20, GAbgang),
          liste("Abnehmer", "Abnehmer", 50, GAbgang),
          geld("Volk_Verkaufspreis", "Verkaufspreis", GAbgang),
          ganz("Waben_je_Magazin", "Waben je Magazin", GBeute, 32767),
          liste("Belegstelle", "Belegstelle", 20, GKoenigin),
          text("Zuchtbuchnr", "Zuchtbuch-Nr", 15, GKoenigin),
      },
      Volkarray::sevt);
}

QList<Volkfeld> sevtxFelder() {
  return numeriert(
      {
          dezimal("Volkstärke", "Volkstärke", GBewertung, 2),
          dezimal("Brutstand", "Brutstand", GBewertung, 2),
          dezimal("Wabensitz", "Wabensitz", GBewertung, 2),
          dezimal("Sanftmut", "Sanftmut", GBewertung, 2),
          dezimal("Schwarmtrieb", "Schwarmtrieb", GBewertung, 2),
          dezimal("Frühjahrsentw", "Frühjahrsentwicklung", GBewertung, 2),
          dezimal("Winterfestigkeit", "Winterfestigkeit", GBewertung, 2),
          dezimal("Belagert", "Belagert", GBewertung, 2),
          dezimal("Futtervorrat_eigen", "Futtervorrat eigen", GFutter, 3),
          dezimal("Futtervorrat_flüssig", "Futtervorrat flüssig", GFutter, 3, "Liter"),
          dezimal("Futtervorrat_Teig", "Futtervorrat Teig", GFutter, 3),
          dezimal("Varroabefall", "Varroaschäden", GBewertung, 2),
          datum("L_Honigernte", "Letzte Honigernte", GErnte),
          dezimal("L_Honigmenge_kg", "Letzte Honigmenge", GErnte, 3, "kg"),
          dezimal("Honigmenge_Gesamt", "Honigmenge gesamt", GErnte, 3, "kg"),
          datum("L_Behandlung", "Letzte Behandlung", GErnte),
          ganz("Honigwaben", "Honigwaben", GWaben),
          ganz("Brutwaben", "Brutwaben", GWaben),
          ganz("Pollenwaben", "Pollenwaben", GWaben),
          ganz("Drohnenwaben", "Drohnenwaben", GWaben),
          ganz("Leerwaben", "Leerwaben", GWaben),
          ganz("Magazine", "Magazine", GBeute),
          ganz("Futterwaben", "Futterwaben", GWaben),
          ganz("HW_verdeckelt", "Honigwaben verdeckelt", GBrut),
          ganz("BW_Stift", "Brutwaben mit Stiften", GBrut),
          ganz("BW_offen", "Brutwaben offen", GBrut),
          ganz("BW_verdeckelt", "Brutwaben verdeckelt", GBrut),
      },
      Volkarray::sevtx);
}

}  // namespace

QString Volkfeld::listenAnweisung() const {
  if (listenTabelle.isEmpty()) return {};
  return "select distinct " + feld + " from " + listenTabelle + " order by " + feld;
}

const QList<Volkfeld>& volkfelder() {
  static const QList<Volkfeld> felder = sevtFelder() + sevtxFelder();
  return felder;
}

const QList<Volkgruppe>& volkgruppen() {
  static const QList<Volkgruppe> gruppen = {
      {"Volk", Stammdaten, 0},
      {"Zugang", Stammdaten, 0},
      {"Königin", Stammdaten, 1},
      {"Abgang", Stammdaten, 1},
      {"Beute", BeuteWaben, 0},
      {"Zustand der Waben", BeuteWaben, 0},
      {"Waben", BeuteWaben, 1},
      {"Bewertung", BewertungFutter, 0},
      {"Futtervorrat", BewertungFutter, 1},
      {"Ernte und Behandlung", BewertungFutter, 1},
  };
  return gruppen;
}

const QStringList& volkreiter() {
  static const QStringList reiter = {"&Stammdaten", "&Beute und Waben",
                                     "Be&wertung, Futter und Ernte"};
  return reiter;
}

int volkgruppeBestand() { return GAbgang; }
