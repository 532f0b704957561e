#include "bookings/Buchungstypen.h"

#include "core/globals.h"
#include "data/Pickliste.h"
#include "data/helpers.h"
#include "data/schema.h"

namespace {

using Plaetze = QList<Buchungsslot>;

enum class Teilen : bool { Nein, Ja };

Buchungsslot dezimal(int nummer, const QString& beschriftung, const QString& feld, int laenge,
                     int nachkommastellen, Teilen teilen) {
  Buchungsslot slot{nummer, beschriftung, feld, Slotart::Dezimal, laenge, nachkommastellen};
  slot.ersterText = ZahlFormat(0, nachkommastellen);
  slot.geteilt = teilen == Teilen::Ja;
  return slot;
}

Buchungsslot note(int nummer, const QString& beschriftung, const QString& feld) {
  return dezimal(nummer, beschriftung, feld, 4, 1, Teilen::Nein);
}

Buchungsslot zeit(int nummer) { return dezimal(nummer, "Zeit (h)", "Zeit_h", 5, 2, Teilen::Ja); }

Buchungsslot geld(int nummer, const QString& beschriftung, const QString& feld) {
  Buchungsslot slot = dezimal(nummer, beschriftung, feld, 8, 2, Teilen::Ja);
  slot.geld = true;
  return slot;
}

Buchungsslot kosten(int nummer) { return geld(nummer, "Kosten", "Kosten"); }

Buchungsslot ganz(int nummer, const QString& beschriftung, const QString& feld, int laenge,
                  qint64 bis, Teilen teilen = Teilen::Nein) {
  Buchungsslot slot{nummer, beschriftung, feld, Slotart::Ganzzahl, laenge, 0, bis, "0"};
  slot.geteilt = teilen == Teilen::Ja;
  return slot;
}

Buchungsslot mengeInGramm(int nummer) {
  return ganz(nummer, "Menge (g)", "Menge_g", 4, 9999, Teilen::Ja);
}

// A text with the pick list of what the field held before.
Buchungsslot text(int nummer, const QString& beschriftung, const QString& feld, int laenge,
                  const QString& listenTabelle) {
  Buchungsslot slot{nummer, beschriftung, feld, Slotart::Text, laenge};
  slot.listenTabelle = listenTabelle;
  slot.listenFeld = feld;
  return slot;
}

Buchungsslot bemerkung(int nummer, const QString& tabelle) {
  return text(nummer, "Bemerkung", "Bemerkung", 30, tabelle);
}

Plaetze stockkarte() {
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
      ganz(10, "Magazine", "Magazine", 2, 9),
      ganz(11, "Waben", "Waben", 2, 99),
      ganz(12, "Honigwaben", "Honigwaben", 2, 99),
      ganz(13, "Brutwaben", "Brutwaben", 2, 99),
      ganz(14, "Pollenwaben", "Pollenwaben", 2, 99),
      ganz(16, "Drohnenwaben", "Drohnenwaben", 2, 99),
      ganz(17, "Leerwaben", "Leerwaben", 2, 99),
      ganz(18, "Mittelwände", "Mittelwände", 2, 99),
      ganz(19, "Futterwaben", "Futterwaben", 2, 99),
      ganz(20, "HW_verdeckelt%", "HW_verdeckelt", 3, 100),
      ganz(21, "BW_Stifte%", "BW_Stift", 3, 100),
      ganz(22, "BW_offen%", "BW_offen", 3, 100),
      ganz(23, "BW_verdeckelt%", "BW_verdeckelt", 3, 100),
      dezimal(24, "Futter Flssg.|Teig|Eigen", "Futter_flüssig_l", 5, 2, Teilen::Nein),
      dezimal(25, {}, "Futter_Teig_kg", 5, 2, Teilen::Nein),
      dezimal(26, {}, "Eigener_Futtervorrat", 5, 2, Teilen::Nein),
      bemerkung(27, "Stockkarte"),
  };
}

Plaetze honigernte() {
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

Plaetze wachsernte() {
  return {
      dezimal(1, "Menge (kg)", "Menge_kg", 8, 2, Teilen::Ja),
      text(2, "Qualität", "Qualität", 10, "Wachsernte"),
      zeit(3),
      kosten(4),
      geld(5, "Wachswert", "Wachs_Wert"),
      bemerkung(6, "Wachsernte"),
  };
}

Plaetze pollenernte() {
  return {
      mengeInGramm(1),
      text(2, "Qualität", "Qualität", 10, "Pollenernte"),
      zeit(3),
      kosten(4),
      geld(5, "Pollenwert", "Pollen_Wert"),
      bemerkung(6, "Pollenernte"),
  };
}

Plaetze sonstigeernte() {
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

Plaetze arbeiten() {
  return {
      text(1, "Arbeitsart", "Arbeitsart", 30, "Arbeiten"),
      zeit(2),
      kosten(3),
      bemerkung(4, "Arbeiten"),
  };
}

Plaetze wanderung() {
  Buchungsslot erhalten{5, "Prämie erhalten JN", "Prämie_erhalten", Slotart::Auswahl, 1};
  erhalten.auswahl = QStringList{"J", "N"};
  return {
      text(1, "Standort", "Standort", 100, "Standorte"), zeit(2),  kosten(3),
      geld(4, "Standortprämie", "Standortprämie"),       erhalten, bemerkung(6, "Wanderung"),
  };
}

Plaetze gewichtsmessung() {
  return {
      dezimal(1, "Gewicht (kg)", "Gewicht_kg", 7, 3, Teilen::Nein),
      zeit(2),
      kosten(3),
      bemerkung(4, "Gewichtsmessung"),
  };
}

Plaetze behandlung() {
  return {
      text(1, "Behandlungsart", "Behandlungsart", 30, "Behandlung"),
      text(2, "Mittel", "Mittel", 30, "Behandlung"),
      mengeInGramm(3),
      text(4, "Zulassungsnr", "Zulassungsnr", 10, "Behandlung"),
      ganz(5, "Wartezeit in Tagen", "Wartezeit", 2, 99),
      zeit(6),
      kosten(7),
      bemerkung(8, "Behandlung"),
      ganz(9, "Anzahl Varroen", "Anz_Varroen", 3, 999),
  };
}

Plaetze koeniginwechsel() {
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

Plaetze notizen() { return {{NotizSlot, {}, "Notiz", Slotart::Notiz}}; }

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
      {9, {}, "Königinwechsel", koeniginwechsel()},
      {10, {}, "Notizen", notizen()},
  };
  for (Buchungstyp& typ : typen) typ.tabelle = buchungstabellen().at(typ.art);
  return typen;
}

}  // namespace

const Buchungsslot* Buchungstyp::platz(int nummer) const {
  for (const Buchungsslot& slot : plaetze)
    if (slot.nummer == nummer) return &slot;
  return nullptr;
}

const Buchungstyp& buchungstyp(int art) {
  static const QList<Buchungstyp> typen = alleTypen();
  return typen.at(art);
}

QString listenAbfrage(int art) {
  const QString& eigene = TZ_Variablen::EinstellungenText[22];
  // A settings file of an early version can have no statement there.
  if (art == 0 && !eigene.trimmed().isEmpty()) return eigene;
  return "select * from " + buchungstyp(art).tabelle;
}

QString picklistenAbfrage(const Buchungsslot& slot) {
  if (slot.listenTabelle.isEmpty()) return {};
  return "select distinct " + slot.listenFeld + " from " + slot.listenTabelle + " order by " +
         slot.listenFeld;
}

QStringList pickliste(Database& datenbank, const Buchungsslot& slot) {
  const QString abfrage = picklistenAbfrage(slot);
  return abfrage.isEmpty() ? QStringList() : Pickliste::lesen(datenbank, abfrage);
}
