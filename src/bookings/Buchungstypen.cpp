#include "bookings/Buchungstypen.h"

#include "core/globals.h"
#include "data/helpers.h"
#include "data/schema.h"

namespace {

using Plätze = QList<Buchungsslot>;
using Verwaltung::Feld;

enum class Teilen : bool { Nein, Ja };

Buchungsslot platz(int nummer, const Feld& feld, Teilen teilen = Teilen::Nein) {
  return {feld, nummer, teilen == Teilen::Ja};
}

Buchungsslot dezimal(int nummer, const QString& beschriftung, const QString& feld, int länge,
                     int nachkommastellen, Teilen teilen) {
  return platz(nummer,
               Verwaltung::dezimal(feld, beschriftung, länge, nachkommastellen)
                   .vorgabe(ZahlFormat(0, nachkommastellen)),
               teilen);
}

Buchungsslot note(int nummer, const QString& beschriftung, const QString& feld) {
  return dezimal(nummer, beschriftung, feld, 4, 1, Teilen::Nein);
}

// A food store beside the one before.
Buchungsslot vorratDaneben(int nummer, const QString& name, const QString& feld) {
  return platz(nummer, Verwaltung::dezimal(feld, {}, 5, 2).vorgabe("0,00").daneben(name));
}

Buchungsslot zeit(int nummer) { return dezimal(nummer, "Zeit (h)", "Zeit_h", 5, 2, Teilen::Ja); }

Buchungsslot geld(int nummer, const QString& beschriftung, const QString& feld) {
  return platz(nummer, Verwaltung::geld(feld, beschriftung, 8).vorgabe("0,00"), Teilen::Ja);
}

Buchungsslot kosten(int nummer) { return geld(nummer, "Kosten", "Kosten"); }

Buchungsslot ganz(int nummer, const QString& beschriftung, const QString& feld, qint64 bis,
                  Teilen teilen = Teilen::Nein) {
  return platz(nummer, Verwaltung::ganzzahl(feld, beschriftung, bis).vorgabe("0"), teilen);
}

Buchungsslot mengeInGramm(int nummer) {
  return ganz(nummer, "Menge (g)", "Menge_g", 9999, Teilen::Ja);
}

// A text with the pick list of what the field held before.
Buchungsslot text(int nummer, const QString& beschriftung, const QString& feld, int länge,
                  const QString& listenTabelle) {
  return platz(nummer, Verwaltung::text(feld, beschriftung, länge).listeAus(listenTabelle));
}

Buchungsslot bemerkung(int nummer, const QString& tabelle) {
  return text(nummer, "Bemerkung", "Bemerkung", 30, tabelle);
}

Plätze stockkarte() {
  return {
      note(1, "Volksstärke", "Volkstärke"),
      note(2, "Brutstand", "Brutstand"),
      note(3, "Wabensitz", "Wabensitz"),
      note(4, "Sanftmut", "Sanftmut"),
      note(5, "Schwarmtrieb", "Schwarmtrieb"),
      note(6, "Frühjahrsentw.", "Frühjahrsentw"),
      note(7, "Winterfestigkeit", "Winterfestigkeit"),
      note(8, "Varroabefall", "Varroabefall"),
      note(9, "Belagert", "Belagert"),
      ganz(10, "Magazine", "Magazine", 9),
      ganz(11, "Waben", "Waben", 99),
      ganz(12, "Honigwaben", "Honigwaben", 99),
      ganz(13, "Brutwaben", "Brutwaben", 99),
      ganz(14, "Pollenwaben", "Pollenwaben", 99),
      ganz(16, "Drohnenwaben", "Drohnenwaben", 99),
      ganz(17, "Leerwaben", "Leerwaben", 99),
      ganz(18, "Mittelwände", "Mittelwände", 99),
      ganz(19, "Futterwaben", "Futterwaben", 99),
      ganz(20, "HW_verdeckelt%", "HW_verdeckelt", 100),
      ganz(21, "BW_Stifte%", "BW_Stift", 100),
      ganz(22, "BW_offen%", "BW_offen", 100),
      ganz(23, "BW_verdeckelt%", "BW_verdeckelt", 100),
      platz(24, Verwaltung::dezimal("Futter_flüssig_l", "Futter Flssg.|Teig|Eigen", 5, 2)
                    .vorgabe("0,00")
                    .genannt("Futter flüssig")),
      vorratDaneben(25, "Futter Teig", "Futter_Teig_kg"),
      vorratDaneben(26, "Futter Eigen", "Eigener_Futtervorrat"),
      bemerkung(27, "Stockkarte"),
  };
}

Plätze honigernte() {
  return {
      dezimal(1, "Menge (kg)", "Menge_kg", 8, 2, Teilen::Ja),
      text(2, "Honigsorte", "Honigsorte", 20, "Honigernte"),
      text(3, "Qualität", "Qualität", 10, "Honigernte"),
      zeit(4),
      kosten(5),
      geld(6, "Honigwert", "Honig_Wert"),
      text(7, "Charge", "Charge", 15, "Honigernte"),
      bemerkung(8, "Honigernte"),
  };
}

Plätze wachsernte() {
  return {
      dezimal(1, "Menge (kg)", "Menge_kg", 8, 2, Teilen::Ja),
      text(2, "Qualität", "Qualität", 10, "Wachsernte"),
      zeit(3),
      kosten(4),
      geld(5, "Wachswert", "Wachs_Wert"),
      bemerkung(6, "Wachsernte"),
  };
}

Plätze pollenernte() {
  return {
      mengeInGramm(1),
      text(2, "Qualität", "Qualität", 10, "Pollenernte"),
      zeit(3),
      kosten(4),
      geld(5, "Pollenwert", "Pollen_Wert"),
      bemerkung(6, "Pollenernte"),
  };
}

Plätze sonstigeernte() {
  return {
      text(1, "Art der Ernte", "Ernteart", 20, "Sonstigeernte"),
      mengeInGramm(2),
      text(3, "Qualität", "Qualität", 10, "Sonstigeernte"),
      zeit(4),
      kosten(5),
      geld(6, "Wert", "Wert"),
      bemerkung(7, "Sonstigeernte"),
  };
}

Plätze arbeiten() {
  return {
      text(1, "Arbeitsart", "Arbeitsart", 30, "Arbeiten"),
      zeit(2),
      kosten(3),
      bemerkung(4, "Arbeiten"),
  };
}

Plätze wanderung() {
  return {
      text(1, "Standort", "Standort", 100, "Standorte"),
      zeit(2),
      kosten(3),
      geld(4, "Standortprämie", "Standortprämie"),
      platz(5, Verwaltung::auswahl("Prämie_erhalten", "Prämie erhalten JN", {"J", "N"})),
      bemerkung(6, "Wanderung"),
  };
}

Plätze gewichtsmessung() {
  return {
      dezimal(1, "Gewicht (kg)", "Gewicht_kg", 7, 3, Teilen::Nein),
      zeit(2),
      kosten(3),
      bemerkung(4, "Gewichtsmessung"),
  };
}

Plätze behandlung() {
  return {
      text(1, "Behandlungsart", "Behandlungsart", 30, "Behandlung"),
      text(2, "Mittel", "Mittel", 30, "Behandlung"),
      mengeInGramm(3),
      text(4, "Zulassungsnr", "Zulassungsnr", 10, "Behandlung"),
      ganz(5, "Wartezeit in Tagen", "Wartezeit", 99),
      zeit(6),
      kosten(7),
      bemerkung(8, "Behandlung"),
      ganz(9, "Anzahl Varroen", "Anz_Varroen", 999),
  };
}

Plätze königinwechsel() {
  return {
      text(1, "Herkunft", "Herkunft", 30, "Königinwechsel"),
      text(2, "Zuchtindex", "Zuchtindex", 10, "Königinwechsel"),
      text(3, "Nummer", "Nummer", 20, "Königinwechsel"),
      text(4, "Farbe", "Farbe", 10, "Königinwechsel"),
      zeit(5),
      kosten(6),
      bemerkung(7, "Königinwechsel"),
  };
}

Plätze notizen() { return {platz(NotizSlot, Verwaltung::notiz("Notiz", "Notiz"))}; }

QList<Buchungstyp> alleTypen() {
  QList<Buchungstyp> typen{
      {0, {}, "Stockkarte", stockkarte()},
      {1, {}, "Honigernte", honigernte()},
      {2, {}, "Wachsernte", wachsernte()},
      {3, {}, "Pollenernte", pollenernte()},
      {4, {}, "Sonstige Ernte", sonstigeernte()},
      {5, {}, "Arbeiten", arbeiten()},
      {6, {}, "Wanderung", wanderung()},
      {7, {}, "Gewichtsmessung", gewichtsmessung()},
      {8, {}, "Behandlung", behandlung()},
      {9, {}, "Königinwechsel", königinwechsel()},
      {10, {}, "Notizen", notizen()},
  };
  for (Buchungstyp& typ : typen) typ.tabelle = buchungstabellen().at(typ.art);
  return typen;
}

}  // namespace

const Buchungsslot* Buchungstyp::platz(int nummer) const {
  for (const Buchungsslot& slot : plätze)
    if (slot.nummer == nummer) return &slot;
  return nullptr;
}

const Buchungstyp& buchungstyp(int art) {
  static const QList<Buchungstyp> typen = alleTypen();
  return typen.at(art);
}

QString listenAbfrage(int art) {
  const QString& eigene = TZ_Variablen::EinstellungenText[Textslots.stockkartenfelder];
  // A settings file of an early version can have no statement there.
  if (art == 0 && !eigene.trimmed().isEmpty()) return eigene;
  return "select * from " + buchungstyp(art).tabelle;
}
