#include "mainform/Volkanzeige.h"

namespace Volkanzeige {

namespace {

Spaltenform rechts(const QString& feld, int breite, int nachkommastellen = -1) {
  return {Spaltenform::Art::Rechts, feld, breite, nachkommastellen};
}
Spaltenform links(const QString& feld, int breite) {
  return {Spaltenform::Art::Links, feld, breite};
}
Spaltenform lücke(int breite) { return {Spaltenform::Art::Lücke, {}, breite}; }
Spaltenform differenz(const QString& feld, int breite) {
  return {Spaltenform::Art::Differenz, feld, breite};
}
Spaltenform wabensumme(int breite) { return {Spaltenform::Art::Wabensumme, {}, breite}; }

Block stockkarte() {
  Block block{46,
              "Stockkarte",
              "Stockkarte",
              "DATUM        VS   BS   WS   SM   ST   FE   WF   VB   BE MAG  WZ DIF HOW BRW POW DRW "
              "LEW  MW DIF MWG  FUTTER_FL/TEIG/EIGEN  BEMERKUNG",
              {}};
  for (const char* feld : {"Volkstärke", "Brutstand", "Wabensitz", "Sanftmut", "Schwarmtrieb",
                           "Frühjahrsentw", "Winterfestigkeit", "Varroabefall", "Belagert"})
    block.spalten << rechts(feld, 5, 1);
  block.spalten << rechts("Magazine", 4) << rechts("Waben", 4) << differenz("Waben", 4);
  for (const char* feld :
       {"Honigwaben", "Brutwaben", "Pollenwaben", "Drohnenwaben", "Leerwaben", "Mittelwände"})
    block.spalten << rechts(feld, 4);
  block.spalten << differenz("Mittelwände", 4) << wabensumme(4) << lücke(2)
                << rechts("Futter_flüssig_l", 6, 2) << lücke(1) << rechts("Futter_Teig_kg", 6, 2)
                << lücke(1) << rechts("Eigener_Futtervorrat", 6, 2) << lücke(2);
  return block;
}

QList<Block> ernten() {
  return {
      {47,
       "Honigernte",
       "Honigernte",
       "DATUM       MENGE_KG  HONIGSORTE           QUALITÄT   ZEIT_H  KOSTEN HONIGWERT  CHARGE     "
       "     BEMERKUNG",
       {rechts("Menge_kg", 10, 2), lücke(2), links("Honigsorte", 21), links("Qualität", 11),
        rechts("Zeit_h", 6, 2), rechts("Kosten", 8, 2), rechts("Honig_Wert", 10, 2), lücke(2),
        links("Charge", 16)}},
      {48,
       "Wachsernte",
       "Wachsernte",
       "DATUM       MENGE_KG  QUALITÄT   ZEIT_H  KOSTEN WACHSWERT  BEMERKUNG",
       {rechts("Menge_kg", 10, 2), lücke(2), links("Qualität", 11), rechts("Zeit_h", 6, 2),
        rechts("Kosten", 8, 2), rechts("Wachs_Wert", 10, 2), lücke(2)}},
      {49,
       "Pollenernte",
       "Pollenernte",
       "DATUM       MENGE_G  QUALITÄT   ZEIT_H  KOSTEN POLLENWERT  BEMERKUNG",
       {rechts("Menge_g", 9, 2), lücke(2), links("Qualität", 11), rechts("Zeit_h", 6, 2),
        rechts("Kosten", 8, 2), rechts("Pollen_Wert", 11, 2), lücke(2)}},
      {50,
       "Sonstigeernte",
       "Sonstige Ernte",
       "DATUM       ERNTEART             MENGE_G  QUALITÄT   ZEIT_H  KOSTEN     WERT  BEMERKUNG",
       {lücke(2), links("Ernteart", 20), rechts("Menge_g", 8, 2), lücke(2), links("Qualität", 11),
        rechts("Zeit_h", 6, 2), rechts("Kosten", 8, 2), rechts("Wert", 8, 2), lücke(2)}},
  };
}

QList<Block> pflege() {
  return {
      {51,
       "Arbeiten",
       "Arbeiten",
       "DATUM       ARBEITSART                     ZEIT_H  KOSTEN  BEMERKUNG",
       {lücke(2), links("Arbeitsart", 30), rechts("Zeit_h", 7, 2), rechts("Kosten", 8, 2),
        lücke(2)}},
      {52,
       "Wanderung",
       "Wanderung",
       "DATUM       STANDORT                                 ZEIT_H  KOSTEN  PRÄMIE  E  BEMERKUNG",
       {lücke(2), links("Standort", 40), lücke(1), rechts("Zeit_h", 6, 2), rechts("Kosten", 8, 2),
        rechts("Standortprämie", 8, 2), lücke(2), links("Prämie_erhalten", 3)}},
      {53,
       "Gewichtsmessung",
       "Gewichtsmessung",
       "DATUM       GEWICHT_KG  ZEIT_H  KOSTEN  BEMERKUNG",
       {rechts("Gewicht_kg", 12, 2), rechts("Zeit_h", 8, 2), rechts("Kosten", 8, 2), lücke(2)}},
      {54,
       "Behandlung",
       "Behandlung",
       QStringLiteral("DATUM       BEHANDLUNGSART") + QString(17, u' ') + QStringLiteral("MITTEL") +
           QString(25, u' ') +
           QStringLiteral(" MENGE_G  ZULASS-NR  WZ ZEIT_H A_V  KOSTEN  BEMERKUNG"),
       {lücke(2), links("Behandlungsart", 31), links("Mittel", 30), rechts("Menge_g", 9, 2),
        lücke(2), links("Zulassungsnr", 11), rechts("Wartezeit", 2), rechts("Zeit_h", 7, 2),
        rechts("Anz_Varroen", 4), rechts("Kosten", 8, 2), lücke(2)}},
      {55,
       "Königinwechsel",
       "Königinwechsel",
       QStringLiteral("DATUM       HERKUNFT") + QString(23, u' ') +
           QStringLiteral("ZUCHTINDEX NUMMER") + QString(15, u' ') +
           QStringLiteral("FARBE      ZEIT_H  KOSTEN  BEMERKUNG"),
       {lücke(2), links("Herkunft", 31), links("Zuchtindex", 11), links("Nummer", 21),
        links("Farbe", 10), rechts("Zeit_h", 7, 2), rechts("Kosten", 8, 2), lücke(2)}},
      {56, "Notizen", "NOTIZEN", {}, {}},
  };
}

}  // namespace

const QList<Zeile>& zeilen() {
  static const QList<Zeile> liste = {
      {1, "Volkname:          ", "Volkname"},
      {2, "Volkstärke:        ", "Volkstärke"},
      {3, "Magazine:          ", "Magazine"},
      {4, "Mittelwände:       ", "Mittelwände"},
      {5, "Wabenanzahl:       ", "Wabenanzahl"},
      {6, "Summe Wände/Waben: ", {}},
      {7, "Honigwaben:        ", "Honigwaben"},
      {8, "Brutwaben:         ", "Brutwaben"},
      {9, "Pollenwaben:       ", "Pollenwaben"},
      {10, "Drohnenwaben:      ", "Drohnenwaben"},
      {11, "Leerwaben:         ", "Leerwaben"},
      {12, "Futterwaben:       ", "Futterwaben"},
      {13, "HW_verdeckelt:     ", "HW_verdeckelt"},
      {14, "BW_Stifte:         ", "BW_Stift"},
      {15, "BW_offen:          ", "BW_offen"},
      {16, "BW_verdeckelt:     ", "BW_verdeckelt"},
      {17, "Brutstand:         ", "Brutstand"},
      {18, "Wabensitz:         ", "Wabensitz"},
      {19, "Sanftmut:          ", "Sanftmut"},
      {20, "Schwarmtrieb:      ", "Schwarmtrieb"},
      {21, "Frühjahrsentw.:    ", "Frühjahrsentw"},
      {22, "Winterfestigkeit:  ", "Winterfestigkeit"},
      {23, "Varroabefall:      ", "Varroabefall"},
      {24, "Belagert:          ", "Belagert"},
      {25, "Belegstelle:       ", "Belegstelle"},
      {26, "Zuchtbuchnr:       ", "Zuchtbuchnr"},
      {27, "L_Honigernte:      ", "L_Honigernte"},
      {28, "L_Honigmenge kg:   ", "L_Honigmenge_kg"},
      {29, "Honigmenge Ges.:   ", "Honigmenge_Gesamt"},
      {30, "L_Behandlung:      ", "L_Behandlung"},
      {31, "Standort:          ", "Standort"},
      {32, "Königin Nr:        ", "Königin_Nr"},
      {33, "Königin Farbe:     ", "Königin_Farbe"},
      {34, "Königin Zugang:    ", "Königin_Zugangsdatum"},
      {35, "Futter eigen:      ", "Futtervorrat_eigen"},
      {36, "Futter flüssig:    ", "Futtervorrat_flüssig"},
      {37, "Futter Teig:       ", "Futtervorrat_Teig"},
      {38, "Beuteart:          ", "Beuteart"},
      {39, "Waben je Magazin:  ", "Waben_je_Magazin"},
      {40, "Bienenrasse:       ", "Bienenrasse"},
      {41, "Zugangsdatum:      ", "Volk_Zugangsdatum"},
      {42, "Herkunft:          ", "Volk_Herkunft"},
      {43, "Abgangsdatum:      ", "Abgangsdatum"},
      {44, "Abgangsgrund:      ", "Abgangsgrund"},
      {45, "Abnehmer:          ", "Abnehmer"},
  };
  return liste;
}

const QList<Block>& blöcke() {
  static const QList<Block> liste = QList<Block>{stockkarte()} + ernten() + pflege();
  return liste;
}

}  // namespace Volkanzeige
