#include "colonies/Volkfelder.h"

#include <QStringList>

namespace {

using Verwaltung::Feld;

enum Reiter { Stammdaten, BeuteWaben, BewertungFutter };
enum Gruppe {
  GVolk,
  GZugang,
  GKönigin,
  GAbgang,
  GBeute,
  GBrut,
  GWaben,
  GBewertung,
  GFutter,
  GErnte
};

Volkfeld in(Gruppe gruppe, const Feld& feld) {
  Volkfeld f{feld};
  f.gruppe = gruppe;
  return f;
}

Volkfeld text(const QString& feld, const QString& beschriftung, int länge, Gruppe gruppe) {
  return in(gruppe, Verwaltung::text(feld, beschriftung, länge));
}

Volkfeld liste(const QString& feld, const QString& beschriftung, int länge, Gruppe gruppe,
               const QString& tabelle = "Bienenvolk") {
  return in(gruppe, Verwaltung::text(feld, beschriftung, länge).listeAus(tabelle));
}

// Counts go up to what the field can hold; the default of the combs per magazine is kept in a slot
// of 16 bits.
Volkfeld ganz(const QString& feld, const QString& beschriftung, Gruppe gruppe,
              qint64 bis = 2147483647) {
  return in(gruppe, Verwaltung::ganzzahl(feld, beschriftung, bis));
}

// Long enough for every number that a booking can leave here, so that none is cut when it is shown;
// the decimals limit only what is typed.
constexpr int Zahllänge = 14;

Volkfeld dezimal(const QString& feld, const QString& beschriftung, Gruppe gruppe, int stellen,
                 const QString& einheit = {}) {
  return in(gruppe,
            Verwaltung::dezimal(feld, beschriftung, Zahllänge, stellen).knapp().einheit(einheit));
}

Volkfeld geld(const QString& feld, const QString& beschriftung, Gruppe gruppe) {
  return in(gruppe, Verwaltung::geld(feld, beschriftung, Zahllänge).knapp());
}

Volkfeld datum(const QString& feld, const QString& beschriftung, Gruppe gruppe) {
  return in(gruppe, Verwaltung::datum(feld, beschriftung));
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
          liste("Königin_Nr", "Königin-Nr", 20, GKönigin),
          liste("Königin_Farbe", "Königin-Farbe", 10, GKönigin),
          datum("Königin_Zugangsdatum", "Zugangsdatum Königin", GKönigin),
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
          liste("Belegstelle", "Belegstelle", 20, GKönigin),
          text("Zuchtbuchnr", "Zuchtbuch-Nr", 15, GKönigin),
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
