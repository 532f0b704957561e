#include "evaluations/Statistikmasse.h"

namespace Statistik {

namespace {

Maß anzahl(const QString& titel, const QString& schlüssel, const QString& tabelle) {
  return {titel, schlüssel, tabelle};
}

Maß mittel(const QString& titel, const QString& schlüssel, const QString& tabelle,
           const QString& feld) {
  return {titel, schlüssel, tabelle, Rechnung::Mittel, feld};
}

Maß summe(const QString& titel, const QString& schlüssel, const QString& tabelle,
          const QString& feld) {
  return {titel, schlüssel, tabelle, Rechnung::Summe, feld};
}

Maß preis(const QString& titel, const QString& schlüssel, const QString& tabelle,
          const QString& menge, const QString& wert) {
  return Maß{titel, schlüssel, tabelle, Rechnung::Preis, menge, wert}.inGeld();
}

}  // namespace

const QList<Maß>& maße() {
  static const QList<Maß> alle{
      anzahl("Anzahl Honigernten", "Anz_Honigernten", "Honigernte"),
      mittel("Durchschn. Honigernte (kg)", "D_Honigernte", "Honigernte", "Menge_kg"),
      summe("Gesamte Honigernte (kg)", "G_Honigernte", "Honigernte", "Menge_kg"),
      preis("Durchschn. Honigwert je kg", "D_Honigwert", "Honigernte", "Menge_kg", "Honig_Wert"),
      summe("Gesamter Honigwert", "G_Honigwert", "Honigernte", "Honig_Wert").inGeld(),
      anzahl("Anzahl Wachsernten", "Anz_Wachsernten", "Wachsernte"),
      mittel("Durchschn. Wachsernte (kg)", "D_Wachsernte", "Wachsernte", "Menge_kg"),
      summe("Gesamte Wachsernte (kg)", "G_Wachsernte", "Wachsernte", "Menge_kg"),
      preis("Durchschn. Wachsert je kg", "D_Wachswert", "Wachsernte", "Menge_kg", "Wachs_Wert"),
      summe("G_Wachswert", "G_Wachswert", "Wachsernte", "Wachs_Wert").inGeld(),
      anzahl("Anzahl Pollenernten", "Anz_Pollenernten", "Pollenernte"),
      mittel("Durchschn. Pollenernte (g)", "D_Pollenernte", "Pollenernte", "Menge_g"),
      summe("Gesamte Pollenernte (g)", "G_Pollenernte", "Pollenernte", "Menge_g"),
      preis("Durchschn. Pollenwert je g", "D_Pollenwert", "Pollenernte", "Menge_g", "Pollen_Wert"),
      summe("Gesamter Pollenwert", "G_Pollenwert", "Pollenernte", "Pollen_Wert").inGeld(),
      anzahl("Anzahl Standortprämien", "Anz_Standortprämien", "Wanderung"),
      mittel("Durchschn. Standortprämie", "D_Standortprämie", "Wanderung", "Standortprämie")
          .inGeld(),
      summe("Gesamte Standortprämie", "G_Standortprämie", "Wanderung", "Standortprämie").inGeld(),
      anzahl("Anzahl Gewichtsmessungen", "Anz_Gewichtsmess", "Gewichtsmessung"),
      mittel("Durchschn. Gewicht (kg)", "D_Gewicht", "Gewichtsmessung", "Gewicht_kg"),
      anzahl("Anzahl Stockkarten-Buchungen", "Anz_Stockbuchung", "Stockkarte"),
      mittel("Durchschn. Volksstärke lt. Stockkarte", "D_Volksstärke", "Stockkarte", "Volkstärke"),
      mittel("Durchschn. Brutstand lt. Stockkarte", "D_Brutstand", "Stockkarte", "Brutstand"),
      mittel("Durchschn. Wabensitz lt. Stockkarte", "D_Wabensitz", "Stockkarte", "Wabensitz"),
      mittel("Durchschn. Sanftmut lt. Stockkarte", "D_Sanftmut", "Stockkarte", "Sanftmut"),
      mittel("Durchschn. Schwarmtrieb lt. Stockkarte", "D_Schwarmtrieb", "Stockkarte",
             "Schwarmtrieb"),
      mittel("Durchschn. Frühjahrsentw. lt. Stockkarte", "D_Frühjahrsentw", "Stockkarte",
             "Frühjahrsentw"),
      mittel("Durchschn. Winterfestigkeit lt. Stockkarte", "D_Winterfest", "Stockkarte",
             "Winterfestigkeit"),
      mittel("Durchschn. Varroabefall lt. Stockkarte", "D_Varroa", "Stockkarte", "Varroabefall"),
      mittel("Durchschn. Belagerung lt. Stockkarte", "D_Belagerung", "Stockkarte", "Belagert"),
      mittel("Durchschn. Anz. Magazine lt. Stockkarte", "D_Magazine", "Stockkarte", "Magazine"),
      mittel("Durchschn. Anz. Mittelwände lt. Stockkarte", "D_Mittelwände", "Stockkarte",
             "Mittelwände"),
      mittel("Durchschn. Anz. Waben lt. Stockkarte", "D_Waben", "Stockkarte", "Waben"),
      mittel("Durchschn. Anz. Honigwaben lt. Stockkarte", "D_HonigW", "Stockkarte", "Honigwaben"),
      mittel("Durchschn. Anz. Brutwaben lt. Stockkarte", "D_BrutW", "Stockkarte", "Brutwaben"),
      mittel("Durchschn. Anz. Pollenwaben lt. Stockkarte", "D_PollenW", "Stockkarte",
             "Pollenwaben"),
      mittel("Durchschn. Anz. Drohnenwaben lt. Stockkarte", "D_DrohnenW", "Stockkarte",
             "Drohnenwaben"),
      mittel("Durchschn. Anz. Leerwaben lt. Stockkarte", "D_LeerW", "Stockkarte", "Leerwaben"),
      mittel("Durchschn. Anz. Futterwaben lt. Stockkarte", "D_FutterW", "Stockkarte",
             "Futterwaben"),
      mittel("Durchschn. Futter flüssig lt. Stockkarte", "D_Futter_fl", "Stockkarte",
             "Futter_flüssig_l"),
      mittel("Durchschn. Futter Teig lt. Stockkarte", "D_Futter_Teig", "Stockkarte",
             "Futter_Teig_kg"),
      mittel("Durchschn. Eigener Futtervorrat lt. Stockkarte", "D_Futter_eig", "Stockkarte",
             "Eigener_Futtervorrat"),
  };
  return alle;
}

}  // namespace Statistik
